// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "unit/cli/shelltest.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What is printed of a plan.
class TestPreview final : public QObject
{
    Q_OBJECT

private slots:
    void everyRowIsPrintedWithItsNewName();
    void troubleComesFirstAndOnStandardError();
    void eachRowIsAnObjectInJson();
    void pathsAreThoseOfAfterwards();
    void quietPrintsNothingButTrouble();
    void namesSteerNoTerminal();
    void colorsAreForTerminals();
    void foldersAreExpandedAsADropExpandsThem();
    void listsOfFilesAreRead();
    void unreadableListsAreToldOf();
    void filesAreSorted_data();
    void filesAreSorted();
    void numbersFollowTheOrder();
    void interruptionEndsIt();
    void outputThatCannotBeWrittenIsToldOf();
    void closedOutputIsNoFault();
};

void TestPreview::everyRowIsPrintedWithItsNewName()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"IMG_%1.jpg"_s, 2);
    folder.addFile(u"sub/x.txt"_s);
    const auto ended = shell.run({u"preview"_s, u"--replace"_s, u"IMG_"_s, u"Photo "_s, u"IMG_000.jpg"_s,
                                  u"./IMG_001.jpg"_s, u"sub/x.txt"_s});
    QCOMPARE(ended.out, QByteArray("IMG_000.jpg → 'Photo 000.jpg'\n"
                                   "./IMG_001.jpg → './Photo 001.jpg'\n"
                                   "sub/x.txt: keeps its name\n"));
    QCOMPARE(ended.trouble, QByteArray("orvanto-cli: 3 files: 2 would be renamed, 1 would keep its name\n"));
    QCOMPARE(ended.code, ExitCode::Done);
    QCOMPARE(folder.names(), (QStringList{u"IMG_000.jpg"_s, u"IMG_001.jpg"_s, u"sub"_s}));
}

void TestPreview::troubleComesFirstAndOnStandardError()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"a1"_s, u"a2"_s, u"b"_s, u"x"_s})
        folder.addFile(name);
    const auto ended = shell.run({u"preview"_s, u"--regexp"_s, u"^a."_s, u"c"_s, u"--replace"_s, u"b"_s,
                                  u"x"_s, u"a1"_s, u"a2"_s, u"b"_s, u"gone"_s});
    QCOMPARE(ended.out, QByteArray("a1 → c\n"));
    QCOMPARE(ended.trouble, QByteArray("a2 → c: a1 takes the name\n"
                                       "b → x: the name is taken\n"
                                       "gone: the file is not there\n"
                                       "orvanto-cli: 4 files: 1 would be renamed, 3 could not be renamed\n"));
    QCOMPARE(ended.code, ExitCode::Conflicts);
}

void TestPreview::eachRowIsAnObjectInJson()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"a1"_s, u"a2"_s, u"c"_s, u"sub/d"_s})
        folder.addFile(name);
    const auto ended = shell.run({u"preview"_s, u"--json"_s, u"--regexp"_s, u"^a."_s, u"é"_s, u"--regexp"_s,
                                  u"^c"_s, u"sub/e"_s, u"a1"_s, u"a2"_s, u"c"_s, u"sub/d"_s});
    const QList<QJsonObject> rows = ended.objects();
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows.at(0),
             (QJsonObject{{u"old"_s, u"a1"_s}, {u"new"_s, u"é"_s}, {u"outcome"_s, u"renamed"_s}}));
    QCOMPARE(rows.at(1), (QJsonObject{{u"old"_s, u"a2"_s},
                                      {u"new"_s, u"é"_s},
                                      {u"outcome"_s, u"taken-by-row"_s},
                                      {u"blockedBy"_s, u"a1"_s}}));
    QCOMPARE(rows.at(2), (QJsonObject{{u"old"_s, u"c"_s},
                                      {u"new"_s, u"sub/e"_s},
                                      {u"outcome"_s, u"separator"_s},
                                      {u"reason"_s, u"renamed"_s}}));
    QCOMPARE(rows.at(3).value("outcome"_L1).toString(), u"unchanged"_s);
    QCOMPARE(ended.trouble, QByteArray());
    QCOMPARE(ended.code, ExitCode::Conflicts);
}

void TestPreview::pathsAreThoseOfAfterwards()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a\nb"_s);
    folder.addFile(u"c"_s);
    const auto ended =
        shell.run({u"preview"_s, u"--print0"_s, u"--replace"_s, u"a"_s, u"x"_s, u"a\nb"_s, u"./c"_s, u"a"_s});
    QCOMPARE(ended.out, QByteArray("x\nb\0./c\0a\0", 10));
    QCOMPARE(ended.trouble, QByteArray("a → x: the file is not there\n"));
}

void TestPreview::quietPrintsNothingButTrouble()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    const QStringList words{u"preview"_s, u"--quiet"_s, u"--replace"_s, u"a"_s, u"b"_s, u"a"_s};
    const auto fine = shell.run(words);
    QCOMPARE(fine.out + fine.trouble, QByteArray());
    const auto ended = shell.run(words + QStringList(u"gone"_s));
    QCOMPARE(ended.out, QByteArray());
    QCOMPARE(ended.trouble, QByteArray("gone: the file is not there\n"));
}

void TestPreview::namesSteerNoTerminal()
{
    const TestFolder folder;
    ShellTest shell;
    const QString name = u"\x1b]0;x\a\n"_s;
    folder.addFile(name);
    const QString noText = u'b' + QString(QChar(0xDCFF));
    const auto ended = shell.run({u"preview"_s, u"--insert"_s, u"\r@0"_s, name, noText});
    QCOMPARE(ended.out, QByteArray("''$'\\033'']0;x'$'\\a\\n' → ''$'\\r\\033'']0;x'$'\\a\\n'\n"));
    QVERIFY(ended.trouble.startsWith("'b'$'\\377': the name is no text\n"));
    QCOMPARE(ended.code, ExitCode::Conflicts);
    const QJsonObject object = shell.run({u"preview"_s, u"--json"_s, noText}).objects().constFirst();
    QCOMPARE(object, (QJsonObject{{u"old"_s, u"b\uFFFD"_s},
                                  {u"new"_s, u"b\uFFFD"_s},
                                  {u"outcome"_s, u"no-text"_s},
                                  {u"oldBytes"_s, QString::fromLatin1(QByteArray("b\xFF").toBase64())}}));
    // Nor where a rule takes those bytes away.
    const auto trimmed = shell.run({u"preview"_s, u"--json"_s, u"--trim"_s, u"1,1"_s, noText});
    QCOMPARE(trimmed.objects(), QList<QJsonObject>{object});
    QCOMPARE(shell.run({u"preview"_s, u"--print0"_s, noText}).out, QByteArray("b\xFF\0", 3));
}

void TestPreview::colorsAreForTerminals()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    const QStringList words{u"preview"_s, u"--replace"_s, u"a"_s, u"b"_s, u"a"_s, u"gone"_s};
    const auto isColored = [&](const QStringList &more) {
        const auto ended = shell.run(words + more);
        const bool isOut = ended.out.contains('\x1b');
        return isOut == ended.trouble.contains('\x1b') ? QVariant(isOut) : QVariant(u"half"_s);
    };
    qunsetenv("NO_COLOR");
    QCOMPARE(isColored({}), QVariant(false));
    QCOMPARE(isColored({u"--color"_s, u"always"_s}), QVariant(true));
    shell.hasColors = true;
    QCOMPARE(isColored({}), QVariant(true));
    QCOMPARE(isColored({u"--color"_s, u"never"_s}), QVariant(false));
    qputenv("NO_COLOR", "1");
    QCOMPARE(isColored({}), QVariant(false));
    QCOMPARE(isColored({u"--color=always"_s}), QVariant(true));
    qunsetenv("NO_COLOR");
}

void TestPreview::foldersAreExpandedAsADropExpandsThem()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"d/10.jpg"_s, u"d/9.jpg"_s, u"d/s/1.jpg"_s, u"d/.hidden.jpg"_s, u"d/none"_s,
                                u"d/b.PNG"_s, u"e.txt"_s})
        folder.addFile(name);
    const auto rows = [&](const QStringList &more) {
        QStringList paths;
        for (const QJsonObject &row : shell.run(QStringList{u"preview"_s, u"--json"_s} + more).objects())
            paths.append(row.value("old"_L1).toString());
        return paths;
    };
    QCOMPARE(rows({u"e.txt"_s, u"d"_s, u"d/9.jpg"_s}),
             (QStringList{u"e.txt"_s, u"d/9.jpg"_s, u"d/10.jpg"_s, u"d/b.PNG"_s, u"d/s/1.jpg"_s}));
    QCOMPARE(rows({u"d/"_s, u"--filter"_s, u"*.png;n*"_s}), (QStringList{u"d/b.PNG"_s, u"d/none"_s}));
    QCOMPARE(rows({u"d/s"_s, u"--filter"_s, u"*.png"_s}), QStringList());
}

void TestPreview::listsOfFilesAreRead()
{
    const TestFolder folder;
    ShellTest shell;
    for (const QString &name : {u"a"_s, u"b"_s, u"c\nd"_s, u"e.x"_s})
        folder.addFile(name);
    shell.input = "b\n\na";
    QCOMPARE(shell.run({u"preview"_s, u"--print0"_s, u"--files-from"_s, u"-"_s, u"e.x"_s}).out,
             QByteArray("e.x\0b\0a\0", 8));
    shell.input = QByteArray("c\nd\0a", 5);
    QCOMPARE(shell.run({u"preview"_s, u"--print0"_s, u"-0"_s, u"--files-from"_s, u"-"_s}).out,
             QByteArray("c\nd\0a\0", 6));
    folder.addFile(u"list"_s, "a\nb\n");
    QCOMPARE(shell.run({u"preview"_s, u"--print0"_s, u"--files-from=list"_s}).out, QByteArray("a\0b\0", 4));
    // Nothing is read that was not asked for.
    shell.input = "a\n";
    QVERIFY(shell.run({u"preview"_s, u"a"_s}).code == ExitCode::Done);
    QCOMPARE(shell.input, QByteArray("a\n"));
}

void TestPreview::unreadableListsAreToldOf()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFolder(u"folder"_s);
    folder.addFile(u"long"_s, QByteArray((1 << 20) + 100'000, 'x'));
    const auto ended = [&](const QString &list) {
        return shell.run({u"preview"_s, u"--files-from"_s, list});
    };
    QVERIFY(ended(u"gone"_s).trouble.startsWith("orvanto-cli: gone: "));
    QCOMPARE(ended(u"gone"_s).code, ExitCode::NoInputOrOutput);
    QCOMPARE(ended(u"folder"_s).trouble, QByteArray("orvanto-cli: folder: is a folder\n"));
    QCOMPARE(ended(u"long"_s).trouble,
             QByteArray("orvanto-cli: long: holds a name of more than a million bytes\n"));
    QCOMPARE(ended(u"long"_s).code, ExitCode::NoInputOrOutput);
}

void TestPreview::filesAreSorted_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("order");
    const auto row = [](const char *words, const QString &order) {
        QTest::newRow(words) << QString::fromUtf8(words).split(u' ', Qt::SkipEmptyParts) << order;
    };
    row("", u"z/2.b b.c 10.a 9.a a/1.c"_s);
    row("--sort none", u"z/2.b b.c 10.a 9.a a/1.c"_s);
    row("--reverse", u"a/1.c 9.a 10.a b.c z/2.b"_s);
    row("--sort name", u"a/1.c z/2.b 9.a 10.a b.c"_s);
    row("--sort path", u"9.a 10.a b.c a/1.c z/2.b"_s);
    row("--sort extension", u"10.a 9.a z/2.b b.c a/1.c"_s);
    row("--sort size", u"9.a b.c z/2.b 10.a a/1.c"_s);
    row("--sort modified", u"a/1.c 10.a z/2.b b.c 9.a"_s);
    row("--sort modified --reverse", u"9.a b.c z/2.b 10.a a/1.c"_s);
}

void TestPreview::filesAreSorted()
{
    QFETCH(QStringList, words);
    QFETCH(QString, order);
    const TestFolder folder;
    ShellTest shell;
    const QStringList names{u"z/2.b"_s, u"b.c"_s, u"10.a"_s, u"9.a"_s, u"a/1.c"_s};
    const QList<int> sizes{3, 2, 4, 1, 5};
    const QList<int> ages{3, 2, 4, 1, 5};
    for (int i = 0; i < names.size(); ++i) {
        QFile file(folder.addFile(names.at(i), QByteArray(sizes.at(i), 'x')));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-ages.at(i) * 100),
                                 QFileDevice::FileModificationTime));
    }
    QByteArray out = shell.run(QStringList{u"preview"_s, u"--print0"_s} + words + names).out;
    QCOMPARE(QString::fromUtf8(out.replace('\0', ' ').trimmed()), order);
}

void TestPreview::numbersFollowTheOrder()
{
    const TestFolder folder;
    ShellTest shell;
    const QStringList names{u"b"_s, u"a"_s};
    for (const QString &name : names)
        folder.addFile(name);
    QCOMPARE(shell.run(QStringList{u"preview"_s, u"--sort"_s, u"name"_s, u"--number"_s, u"1"_s} + names).out,
             QByteArray("a → 1a\nb → 2b\n"));
}

void TestPreview::interruptionEndsIt()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFiles(u"%1"_s, 3);
    int looks = 0;
    while (true) {
        int left = looks++;
        shell.isInterrupted = [&left] {
            return left-- <= 0;
        };
        const auto ended = shell.run({u"preview"_s, u"000"_s, u"001"_s, u"002"_s});
        QVERIFY(looks < 100);
        if (ended.code == ExitCode::Done)
            break;
        QCOMPARE(ended.code, ExitCode::Interrupted);
    }
    QVERIFY(looks > 6);
}

void TestPreview::outputThatCannotBeWrittenIsToldOf()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    shell.fault = WriteResult::Failed;
    const auto ended = shell.run({u"preview"_s, u"--json"_s, u"a"_s});
    QCOMPARE(ended.code, ExitCode::NoInputOrOutput);
    QCOMPARE(ended.trouble, QByteArray("orvanto-cli: the output cannot be written: the disk is full\n"));
}

void TestPreview::closedOutputIsNoFault()
{
    const TestFolder folder;
    ShellTest shell;
    folder.addFile(u"a"_s);
    shell.fault = WriteResult::Closed;
    const auto ended = shell.run({u"preview"_s, u"--json"_s, u"a"_s});
    QCOMPARE(ended.code, ExitCode::Done);
    QCOMPARE(ended.trouble, QByteArray());
}

QTEST_GUILESS_MAIN(TestPreview)
#include "tst_preview.moc"
