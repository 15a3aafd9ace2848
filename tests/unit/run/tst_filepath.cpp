// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/filepath.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

class TestFilePath final : public QObject
{
    Q_OBJECT

private slots:
    void splitsAsQFileInfoDoes_data()
    {
        QTest::addColumn<QString>("path");
        const QString root = QDir::rootPath();
        QStringList paths = {u""_s,  u"a"_s,  u"./a"_s, u"../a"_s,          u"C:/a/b"_s,
                             u"/"_s, u"/a"_s, u"//a"_s, u"//host/share/a"_s};
        for (const QString &path : {u""_s,
                                    u"a"_s,
                                    u"a/b"_s,
                                    u"a/b/"_s,
                                    u"a//b"_s,
                                    u"a/./b"_s,
                                    u"a/../b"_s,
                                    u"a/."_s,
                                    u"a/.."_s,
                                    u"."_s,
                                    u".."_s,
                                    u"a/.b"_s,
                                    u"a/..b"_s,
                                    u"a/..."_s,
                                    u".a/b"_s,
                                    u"..a/b"_s,
                                    u"a./b"_s,
                                    u"a../b."_s,
                                    u"a/.b/..c/...d"_s,
                                    u"a\\b/c\\d"_s,
                                    u"a/Ж/日 1.txt"_s,
                                    u" / "_s,
                                    u"a/\n"_s})
            paths.append(root + path);
        for (const QString &path : std::as_const(paths))
            QTest::newRow(qPrintable(path)) << path;
    }
    void splitsAsQFileInfoDoes()
    {
        QFETCH(QString, path);
        const QFileInfo expected(path);
        const FilePath file = FilePath::of(path);
        QCOMPARE(file.name(), expected.fileName());
        QCOMPARE(file.folder(), expected.absolutePath());
        QCOMPARE(file.path, expected.absolutePath() + u'/' + expected.fileName());
        QCOMPARE(file.sibling(u"x"_s), expected.absolutePath() + "/x"_L1);
        QCOMPARE(file.sibling({}), expected.absolutePath() + u'/');
    }

    void aListIsSplitLikeSinglePaths()
    {
        const QString root = QDir::rootPath();
        FilePaths paths;
        for (const QString &path : {u"a/b"_s, u"a/c"_s, u"a/"_s, u"a/."_s, u"a/.."_s, u"a/.c"_s, u"a/b/c"_s,
                                    u"a//c"_s, u"a/b/d"_s, u"a/b"_s, u"abcd"_s, u"a/b"_s, u"a/./c"_s,
                                    u"a/bc"_s, u"a"_s, u"b"_s, u"a/b/../c"_s, u"a/b\\c"_s, u"a/b/c/d"_s}) {
            const QFileInfo expected(root + path);
            const FilePath file = paths.split(root + path);
            QCOMPARE(file.name(), expected.fileName());
            QCOMPARE(file.folder(), expected.absolutePath());
            QCOMPARE(file.path, expected.absolutePath() + u'/' + expected.fileName());
        }
        QCOMPARE(paths.split(u"a/b"_s).path, QFileInfo(u"a/b"_s).absoluteFilePath());
        QCOMPARE(paths.split({}).path, FilePath::of({}).path);
    }

    // What is plain is not given to QFileInfo, which takes ten times as long.
    void pathsOfScansAndDropsArePlain_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("plain");
        const QString root = QDir::rootPath();
        QTest::newRow("file") << root + u"a/b.txt"_s << true;
        QTest::newRow("hidden") << root + u"a/.b"_s << true;
        QTest::newRow("in a hidden folder") << root + u".a/b"_s << true;
        QTest::newRow("two dots before a name") << root + u"a/..b"_s << true;
        QTest::newRow("three dots") << root + u"a/..."_s << true;
        QTest::newRow("dots at the end") << root + u"a./b.."_s << true;
        QTest::newRow("relative") << u"a/b"_s << false;
        QTest::newRow("this folder") << root + u"a/./b"_s << false;
        QTest::newRow("this folder at the end") << root + u"a/."_s << false;
        QTest::newRow("the folder above") << root + u"a/../b"_s << false;
        QTest::newRow("the folder above at the end") << root + u"a/.."_s << false;
        QTest::newRow("two separators") << root + u"a//b"_s << false;
        QTest::newRow("the other separator") << root + u"a\\b"_s << (QDir::separator() == u'/');
        QTest::newRow("nothing") << QString() << false;
    }
    void pathsOfScansAndDropsArePlain()
    {
        QFETCH(QString, path);
        QFETCH(bool, plain);
        QCOMPARE(isPlainPath(path), plain);
    }
};

QTEST_GUILESS_MAIN(TestFilePath)
#include "tst_filepath.moc"
