// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/pathlist.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// The files of a run of the shell.
class TestPathList final : public QObject
{
    Q_OBJECT

private slots:
    void eachFileIsListedOnce();
    void pathsStayAsTheyWereGiven();
    void filesAreThoseOfTheFolder();
    void manyAreFoundAgain();
    void orderIsWhatWasAskedFor();
};

void TestPathList::eachFileIsListedOnce()
{
    PathList list(u"/home/me"_s);
    QVERIFY(list.add("a"));
    for (const char *same : {"a", "./a", "/home/me/a"})
        QVERIFY2(!list.add(same), same);
    for (const char *other : {"b", "/home/me2/a", "/a", "sub/a", "a\xFF", "a\xFE", "home/me/a"})
        QVERIFY2(list.add(other), other);
    QCOMPARE(list.count(), 8);
}

void TestPathList::pathsStayAsTheyWereGiven()
{
    PathList list(u"/home/me"_s);
    const QList<QByteArray> paths{"./a", "/home/me/b", "c/../d", "e\xFF", "-x", ":y", "é"};
    for (const QByteArray &path : paths)
        QVERIFY(list.add(path));
    for (int row = 0; row < list.count(); ++row)
        QCOMPARE(list.bytes(row), paths.at(row));
    QCOMPARE(list.given(3), u'e' + QString(QChar(0xDCFF)));
    QCOMPARE(list.given(6), u"é"_s);
}

void TestPathList::filesAreThoseOfTheFolder()
{
    PathList list(u"/home/me"_s);
    for (const char *path : {"a", "./b", "/x/c", "sub/d", "sub/e", ":y", "é",
                             "\xEF\xBB\xBF"
                             "f",
                             "g\xFF", "/x/h\xC3"})
        QVERIFY(list.add(path));
    QStringList files;
    for (int row = 0; row < list.count(); ++row) {
        const FilePath file = list.file(row);
        files.append(file.folder() + u" | "_s + file.name());
    }
    QCOMPARE(files, (QStringList{u"/home/me | a"_s, u"/home/me | b"_s, u"/x | c"_s, u"/home/me/sub | d"_s,
                                 u"/home/me/sub | e"_s, u"/home/me | :y"_s, u"/home/me | é"_s,
                                 u"/home/me | \uFEFFf"_s, u"/home/me | g"_s + QChar(0xDCFF),
                                 u"/x | h"_s + QChar(0xDCC3)}));
    PathList root(u"/"_s);
    QVERIFY(root.add("a"));
    QVERIFY(!root.add("/a"));
    QCOMPARE(root.file(0).name(), u"a"_s);
}

void TestPathList::manyAreFoundAgain()
{
    PathList list(u"/"_s);
    constexpr int number = 10'000;
    for (int i = 0; i < number; ++i) {
        // Whether they were announced or not.
        if (i == number / 4)
            list.expect(number / 4);
        QVERIFY(list.add("folder/" + QByteArray::number(i)));
    }
    for (int i = 0; i < number; ++i)
        QVERIFY(!list.add("folder/" + QByteArray::number(i)));
    QCOMPARE(list.count(), number);
    QCOMPARE(list.bytes(number - 1), QByteArray("folder/9999"));
}

void TestPathList::orderIsWhatWasAskedFor()
{
    PathList list(u"/"_s);
    for (const char *path : {"a", "b", "c"})
        QVERIFY(list.add(path));
    list.reorder({2, 0, 1});
    QCOMPARE(list.bytes(0) + list.bytes(1) + list.bytes(2), QByteArray("cab"));
}

QTEST_APPLESS_MAIN(TestPathList)
#include "tst_pathlist.moc"
