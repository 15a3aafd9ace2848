// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/applog.h"
#include "support/messagecatcher.h"
#include "support/temptree.h"

#include "fileidentity.h"

#include <QDate>
#include <QRegularExpression>
#include <QTest>
#include <QTime>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// The line without its time.
QString textOf(const QString &line)
{
    return line.section(u'|', 1);
}

QStringList textsOf(const QStringList &lines)
{
    QStringList texts;
    for (const QString &line : lines)
        texts.append(textOf(line));
    return texts;
}

/// The day may change while a test runs.
QStringList possibleLogFiles()
{
    const QDate today = QDate::currentDate();
    return {today.toString(u"'logs/'yyyy-MM-dd'.txt'"_s),
            today.addDays(1).toString(u"'logs/'yyyy-MM-dd'.txt'"_s)};
}

} // namespace

class TestAppLog final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void thereIsOneLog();
    void linesAreStampedWithTheTime();
    void linesKeepTheirBars();
    void linesQueueInOrderUntilTheyAreCleared();
    void withoutFileOutputNothingIsWritten();
    void writtenLinesEndInALineFeed();
    void fileIsNamedByTheDate();
    void earlierLinesAreNotWrittenBack();
    void fileIsOpenedOnce();
    void switchingOffLeavesTheFileOpen();
    void linesAreAppendedToTheFileOfTheDay();
    void everyLineIsOnDiskAtOnce();
    void textsAreWrittenInLatin1_data();
    void textsAreWrittenInLatin1();
    void closedLogOpensItsFileAgain();
    void closingALogThatWroteNothingSaysNothing();
    void fileInThePlaceOfTheLogsFolderIsSilentlyDoneWithout();
    void folderInThePlaceOfTheLogFileIsSilentlyDoneWithout();
    void pipeInThePlaceOfTheLogFileIsNotOpened();
    void linkInThePlaceOfTheLogFileIsNotFollowed_data();
    void linkInThePlaceOfTheLogFileIsNotFollowed();
    void linkedLogsFolderIsFollowed();
    void writingStartsOnceTheObstacleIsGone();
    void destroyingTheLogClosesItsFile();

private:
    [[nodiscard]] QByteArray written() const
    {
        // Lines end as the system's text files do.
        return readFile(logFile()).replace("\r\n", "\n");
    }
    [[nodiscard]] QStringList writtenTexts() const
    {
        return textsOf(QString::fromLatin1(written()).split(u'\n', Qt::SkipEmptyParts));
    }
    /// The one file in the folder "logs".
    [[nodiscard]] QString logFile() const
    {
        const QString logs = folder->path(u"logs"_s);
        const QStringList files = entriesOf(logs);
        return files.size() == 1 ? logs + u'/' + files.first() : QString();
    }

    std::unique_ptr<TestFolder> folder;
    std::unique_ptr<AppLog> log;
};

void TestAppLog::init()
{
    folder = std::make_unique<TestFolder>();
    log = std::make_unique<AppLog>();
}

void TestAppLog::cleanup()
{
    log.reset();
    AppLog::destroy();
    folder.reset();
}

void TestAppLog::thereIsOneLog()
{
    AppLog *first = AppLog::instance();
    QCOMPARE(AppLog::instance(), first);
    first->append(u"x"_s);
    QCOMPARE(AppLog::instance()->pendingLines().size(), 1);
    AppLog::destroy();
    AppLog::destroy();
    QVERIFY(AppLog::instance()->pendingLines().isEmpty());
}

void TestAppLog::linesAreStampedWithTheTime()
{
    const QTime before = QTime::currentTime();
    log->append(u"File renaming started"_s);
    const QTime after = QTime::currentTime();
    const QString line = log->pendingLines().value(0);
    static const QRegularExpression form(u"^([0-2][0-9]:[0-5][0-9]:[0-5][0-9])\\|File renaming started$"_s);
    const QRegularExpressionMatch match = form.match(line);
    QVERIFY2(match.hasMatch(), qPrintable(line));
    const QStringList possible{before.toString(u"hh:mm:ss"_s), after.toString(u"hh:mm:ss"_s)};
    QVERIFY2(possible.contains(match.captured(1)), qPrintable(line));
}

void TestAppLog::linesKeepTheirBars()
{
    log->setSaveToFile(true);
    log->append(u"a|b||c|"_s);
    QCOMPARE(textsOf(log->pendingLines()), QStringList(u"a|b||c|\n"_s));
    QCOMPARE(writtenTexts(), QStringList(u"a|b||c|"_s));
}

void TestAppLog::linesQueueInOrderUntilTheyAreCleared()
{
    for (int i = 0; i < 150; ++i)
        log->append(QString::number(i));
    const QStringList lines = log->pendingLines();
    QCOMPARE(lines.size(), 150);
    QCOMPARE(textOf(lines.first()), u"0"_s);
    QCOMPARE(textOf(lines.last()), u"149"_s);
    log->append(u"later"_s);
    QCOMPARE(lines.size(), 150);
    log->clearPending();
    QVERIFY(log->pendingLines().isEmpty());
    QCOMPARE(lines.size(), 150);
    log->append(QString());
    QCOMPARE(textsOf(log->pendingLines()), QStringList(u""_s));
}

void TestAppLog::withoutFileOutputNothingIsWritten()
{
    log->append(u"text"_s);
    QVERIFY(log->pendingLines().value(0).endsWith(u"|text"_s));
    QVERIFY(entriesOf(folder->path()).isEmpty());
}

void TestAppLog::writtenLinesEndInALineFeed()
{
    log->setSaveToFile(true);
    log->append(u"text"_s);
    const QString line = log->pendingLines().value(0);
    QVERIFY(line.endsWith(u"|text\n"_s));
    QCOMPARE(written(), line.toLatin1());
}

void TestAppLog::fileIsNamedByTheDate()
{
    const QDate before = QDate::currentDate();
    log->setSaveToFile(true);
    log->append(u"text"_s);
    const QDate after = QDate::currentDate();
    const QStringList names = entriesOf(folder->path(u"logs"_s));
    QCOMPARE(names.size(), 1);
    QVERIFY(names.first() == before.toString(u"yyyy-MM-dd"_s) + u".txt" ||
            names.first() == after.toString(u"yyyy-MM-dd"_s) + u".txt");
}

void TestAppLog::earlierLinesAreNotWrittenBack()
{
    log->append(u"before"_s);
    log->setSaveToFile(true);
    QVERIFY(entriesOf(folder->path()).isEmpty());
    log->append(u"after"_s);
    QCOMPARE(writtenTexts(), QStringList(u"after"_s));
    QCOMPARE(textsOf(log->pendingLines()), (QStringList{u"before"_s, u"after\n"_s}));
}

// Deliberate: a run that passes midnight, or moves elsewhere, keeps the file it first wrote to.
void TestAppLog::fileIsOpenedOnce()
{
    log->setSaveToFile(true);
    log->append(u"one"_s);
    const QString renamed = folder->path(u"logs/yesterday.txt"_s);
    QVERIFY(QFile::rename(logFile(), renamed));
    {
        const TestFolder other;
        log->append(u"two"_s);
        QVERIFY(entriesOf(other.path()).isEmpty());
    }
    log->append(u"three"_s);
    QCOMPARE(entriesOf(folder->path(u"logs"_s)), QStringList(u"yesterday.txt"_s));
    QCOMPARE(writtenTexts(), (QStringList{u"one"_s, u"two"_s, u"three"_s}));
}

// Deliberate: switching on again continues in the same file, even if it no longer has that name.
void TestAppLog::switchingOffLeavesTheFileOpen()
{
    log->setSaveToFile(true);
    log->append(u"one"_s);
    log->setSaveToFile(false);
    log->append(u"two"_s);
    QVERIFY(log->pendingLines().value(1).endsWith(u"|two"_s));
    QVERIFY(QFile::rename(logFile(), folder->path(u"logs/moved.txt"_s)));
    log->setSaveToFile(true);
    log->append(u"three"_s);
    QCOMPARE(entriesOf(folder->path(u"logs"_s)), QStringList(u"moved.txt"_s));
    QCOMPARE(writtenTexts(), (QStringList{u"one"_s, u"three"_s}));
}

void TestAppLog::linesAreAppendedToTheFileOfTheDay()
{
    log->setSaveToFile(true);
    log->append(u"first run"_s);
    log.reset();
    log = std::make_unique<AppLog>();
    log->setSaveToFile(true);
    log->append(u"second run"_s);
    QCOMPARE(writtenTexts(), (QStringList{u"first run"_s, u"second run"_s}));
}

void TestAppLog::everyLineIsOnDiskAtOnce()
{
    log->setSaveToFile(true);
    for (int i = 1; i <= 5; ++i) {
        log->append(QString::number(i));
        QCOMPARE(writtenTexts().size(), i);
    }
}

void TestAppLog::textsAreWrittenInLatin1_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("plain") << u"abc"_s << QByteArray("abc");
    QTest::newRow("Latin-1") << u"é ÿ\u00a0"_s << QByteArray("\xe9 \xff\xa0");
    QTest::newRow("Cyrillic") << u"aЖb"_s << QByteArray("a?b");
    QTest::newRow("beyond Latin-1 by one") << u"Ā"_s << QByteArray("?");
    QTest::newRow("surrogate pair") << u"😀"_s << QByteArray("??");
    QTest::newRow("empty") << u""_s << QByteArray("");
    QTest::newRow("several lines") << u"a\nb"_s << QByteArray("a\nb");
}

void TestAppLog::textsAreWrittenInLatin1()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    log->setSaveToFile(true);
    log->append(text);
    QCOMPARE(textsOf(log->pendingLines()), QStringList(text + u'\n'));
    QCOMPARE(written().mid(written().indexOf('|') + 1), bytes + '\n');
}

void TestAppLog::closedLogOpensItsFileAgain()
{
    log->setSaveToFile(true);
    log->append(u"one"_s);
    log->close();
    log->close();
    log->append(u"two"_s);
    QCOMPARE(writtenTexts(), (QStringList{u"one"_s, u"two"_s}));

    log->close();
    const TestFolder other;
    log->append(u"three"_s);
    QCOMPARE(entriesOf(other.path()), QStringList(u"logs"_s));
    QCOMPARE(writtenTexts(), (QStringList{u"one"_s, u"two"_s}));
}

// A message at this point would reach the log while it is being taken down.
void TestAppLog::closingALogThatWroteNothingSaysNothing()
{
    const MessageCatcher catcher;
    log->append(u"text"_s);
    log->close();
    AppLog::instance()->append(u"text"_s);
    AppLog::destroy();
    QCOMPARE(catcher.messages(), QStringList());
}

void TestAppLog::fileInThePlaceOfTheLogsFolderIsSilentlyDoneWithout()
{
    QVERIFY(writeFile(u"logs"_s, "mine"));
    const MessageCatcher catcher;
    log->setSaveToFile(true);
    log->append(u"one"_s);
    log->append(u"two"_s);
    log->close();
    QCOMPARE(textsOf(log->pendingLines()), (QStringList{u"one"_s, u"two"_s}));
    QCOMPARE(readFile(u"logs"_s), "mine");
    QCOMPARE(entriesOf(folder->path()), QStringList(u"logs"_s));
    QCOMPARE(catcher.messages(), QStringList());
}

void TestAppLog::folderInThePlaceOfTheLogFileIsSilentlyDoneWithout()
{
    for (const QString &path : possibleLogFiles())
        QVERIFY(QDir().mkpath(path));
    const MessageCatcher catcher;
    log->setSaveToFile(true);
    log->append(u"one"_s);
    QCOMPARE(textsOf(log->pendingLines()), QStringList(u"one"_s));
    QCOMPARE(catcher.messages(), QStringList());
}

// Opening it would wait for whoever reads from it: the start, or the click on "Save", would never end.
void TestAppLog::pipeInThePlaceOfTheLogFileIsNotOpened()
{
    QVERIFY(QDir().mkdir(u"logs"_s));
    for (const QString &path : possibleLogFiles())
        QVERIFY(makePipe(path));
    const MessageCatcher catcher;
    log->setSaveToFile(true);
    log->append(u"one"_s);
    QCOMPARE(textsOf(log->pendingLines()), QStringList(u"one"_s));
    QCOMPARE(catcher.messages(), QStringList());
}

void TestAppLog::linkInThePlaceOfTheLogFileIsNotFollowed_data()
{
    QTest::addColumn<bool>("leadsToAFile");

    QTest::newRow("to a file") << true;
    QTest::newRow("to nothing") << false;
}

void TestAppLog::linkInThePlaceOfTheLogFileIsNotFollowed()
{
    QFETCH(bool, leadsToAFile);
    const QString elsewhere = folder->path(u"elsewhere"_s);
    if (leadsToAFile)
        QVERIFY(writeFile(elsewhere, "mine"));
    QVERIFY(QDir().mkdir(u"logs"_s));
    for (const QString &path : possibleLogFiles())
        QVERIFY(QFile::link(elsewhere, path));
    log->setSaveToFile(true);
    log->append(u"one"_s);
    QCOMPARE(textsOf(log->pendingLines()), QStringList(u"one"_s));
    QCOMPARE(readFile(elsewhere), leadsToAFile ? "mine" : "(cannot be read)");
}

// Someone may well keep the logs on another disk.
void TestAppLog::linkedLogsFolderIsFollowed()
{
    QVERIFY(QDir().mkdir(u"disk"_s));
    QVERIFY(QFile::link(folder->path(u"disk"_s), u"logs"_s));
    log->setSaveToFile(true);
    log->append(u"one"_s);
    QCOMPARE(writtenTexts(), QStringList(u"one"_s));
}

void TestAppLog::writingStartsOnceTheObstacleIsGone()
{
    QVERIFY(writeFile(u"logs"_s, "mine"));
    log->setSaveToFile(true);
    log->append(u"one"_s);
    QVERIFY(QFile::remove(u"logs"_s));
    log->append(u"two"_s);
    QCOMPARE(textsOf(log->pendingLines()), (QStringList{u"one"_s, u"two\n"_s}));
    QCOMPARE(writtenTexts(), QStringList(u"two"_s));
}

void TestAppLog::destroyingTheLogClosesItsFile()
{
    AppLog::instance()->setSaveToFile(true);
    AppLog::instance()->append(u"one"_s);
    AppLog::destroy();
    QCOMPARE(writtenTexts(), QStringList(u"one"_s));
    // A new log starts without file output.
    AppLog::instance()->append(u"two"_s);
    QCOMPARE(writtenTexts(), QStringList(u"one"_s));
}

QTEST_GUILESS_MAIN(TestAppLog)
#include "tst_applog.moc"
