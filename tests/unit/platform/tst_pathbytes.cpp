// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/pathbytes_unix.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

class TestPathBytes final : public QObject
{
    Q_OBJECT

private slots:
    void areThoseOfEncodeName()
    {
        PathBytes bytes;
        // One after the other: what is remembered of a folder must not show in the next path.
        const QStringList paths = {u"/a/b"_s,
                                   u"/a/c.txt"_s,
                                   u"/a/"_s,
                                   u"/a"_s,
                                   u"a"_s,
                                   u"/a/b/c"_s,
                                   u"/a/b/d"_s,
                                   u"/a/bc"_s,
                                   u"/Ж日/é"_s,
                                   u"/Ж日/😀"_s,
                                   u"/Ж日/\u00e9 e\u0301"_s,
                                   u"/Ж日/sub/x"_s,
                                   u"/Ж日/x"_s,
                                   u"/"_s,
                                   u"/a\nb/\t"_s,
                                   u"relative/x"_s,
                                   u"x"_s,
                                   QString(300, u'x'),
                                   u'/' + QString(300, u'日')};
        for (const QString &path : paths) {
            const char *result = bytes.of(path);
            QVERIFY(result);
            QCOMPARE(QByteArray(result), QFile::encodeName(path));
        }
    }

    void whatIsNoPathHasNone_data()
    {
        QTest::addColumn<QString>("path");
        const QString first(QChar(0xd83d));
        const QString second(QChar(0xde00));
        QTest::newRow("empty") << QString();
        QTest::newRow("null character") << u"/a/b"_s + QChar(0);
        QTest::newRow("null character in the folder") << u"/a"_s + QChar(0) + u"/b"_s;
        QTest::newRow("first half") << u"/a/"_s + first;
        QTest::newRow("second half") << u"/a/"_s + second;
        QTest::newRow("first half in the middle") << u"/a/"_s + first + u'b';
        QTest::newRow("halves in the wrong order") << u"/a/"_s + second + first;
        QTest::newRow("half in the folder") << u"/a"_s + first + u"/b"_s;
        QTest::newRow("halves on both sides of a separator") << u"/a"_s + first + u'/' + second;
    }
    void whatIsNoPathHasNone()
    {
        QFETCH(QString, path);
        PathBytes bytes;
        QVERIFY(!bytes.of(path));
        QVERIFY(!bytes.of(path));
        // Nothing of it is left behind.
        QCOMPARE(bytes.of(u"/a/b"_s), "/a/b");
        QVERIFY(!bytes.of(path));
        QCOMPARE(bytes.of(u"/a/c"_s), "/a/c");
    }
};

QTEST_GUILESS_MAIN(TestPathBytes)
#include "tst_pathbytes.moc"
