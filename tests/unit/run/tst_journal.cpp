// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "filesizelimit.h"
#include "support/journalfiles.h"

#include <QTest>
#include <QThreadPool>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Looks into the journal whenever a file is about to be moved.
class LookingDisk final : public Disk
{
public:
    explicit LookingDisk(JournalledTree &of)
        : tree(of)
    {
    }

    QString journal;
    int seen = 0;

    RenameResult rename(const FilePath &from, const QString &to) override
    {
        QFile file(tree.journals.filePath(journal));
        if (file.open(QIODevice::ReadOnly)) {
            BackwardEntries entries(file);
            const auto entry = entries.next();
            if (entry && entry->folder + u'/' + entry->from == from.path &&
                entry->folder + u'/' + entry->to == to)
                ++seen;
        }
        return tree.disk.rename(from, to);
    }
    std::optional<FileIdentity> identity(const QString &path) const override
    {
        return tree.disk.identity(path);
    }

private:
    JournalledTree &tree;
};

/// At every path stands the same.
class OneFileDisk final : public Disk
{
public:
    FileIdentity file;

    RenameResult rename(const FilePath & /*from*/, const QString & /*to*/) override
    {
        return RenameResult::Other;
    }
    std::optional<FileIdentity> identity(const QString & /*path*/) const override { return file; }
};

QList<JournalLine> linesOf(const QByteArray &bytes)
{
    QList<JournalLine> lines;
    for (const QByteArray &line : bytes.split('\n')) {
        if (!line.isEmpty())
            lines.append(fromJson(line));
    }
    return lines;
}

template <typename Kind>
int countOf(const QList<JournalLine> &lines)
{
    int count = 0;
    for (const JournalLine &line : lines)
        count += std::holds_alternative<Kind>(line) ? 1 : 0;
    return count;
}

} // namespace

class TestJournal final : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<JournalledTree> files;

private slots:
    void init() { files = std::make_unique<JournalledTree>(); }
    void cleanup() { files.reset(); }

    void everyRenameIsNamedBefore()
    {
        const QStringList paths = files->tree.addFiles(u"f%1"_s, 200);
        LookingDisk looking(*files);
        const auto journal = files->begin(200);
        looking.journal = JournalledTree::nameOf(*journal);
        JournalledDisk journalled(looking, *journal);
        RenameRun run(journalled);
        for (const QString &path : paths)
            QVERIFY(run.next(FilePath::of(path), u"new "_s + FilePath::of(path).name()).isRenamed());
        QCOMPARE(looking.seen, 200);
    }

    void holdsTheRunLineByLine()
    {
        files->tree.addFiles(u"f%1"_s, 3);
        const QString name = files->run({{u"f000"_s, u"a"_s}, {u"f001"_s, u"a"_s}, {u"f002"_s, u"c"_s}});
        const QList<JournalLine> lines = linesOf(files->bytes(name));
        QCOMPARE(lines.size(), 6);
        const auto header = std::get<JournalHeader>(lines[0]);
        QCOMPARE(header.program, u"1.2.3"_s);
        QCOMPARE(header.rows, 3);
        QVERIFY(header.takesBack.isEmpty());
        const auto first = std::get<JournalEntry>(lines[1]);
        QCOMPARE(first.folder, files->tree.path());
        QCOMPARE(first.from, u"f000"_s);
        QCOMPARE(first.to, u"a"_s);
        QVERIFY(!first.file.volume.isEmpty());
        QCOMPARE(std::get<JournalRefusal>(lines[3]).number, std::get<JournalEntry>(lines[2]).number);
        QCOMPARE(std::get<JournalRefusal>(lines[3]).reason, u"taken"_s);
        const auto end = std::get<JournalFigures>(lines[5]);
        QCOMPARE(end.state, JournalFigures::State::Complete);
        QCOMPARE(end.renamed, 2);
        QCOMPARE(end.refused, 1);
        QCOMPARE(end.folders, 1);
        QVERIFY(files->bytes(name).endsWith("}\n"));
    }

    void onlyItsOwnerMayReadIt()
    {
        files->tree.addFile(u"a"_s);
        const QString name = files->run({{u"a"_s, u"b"_s}});
        const QFile::Permissions others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QVERIFY(!(QFile::permissions(files->journals.filePath(name)) & others));
    }

    void unchangedNamesAreNotInIt()
    {
        files->tree.addFile(u"a"_s);
        files->tree.addFile(u"b"_s);
        const QString name = files->run({{u"a"_s, u"a"_s}, {u"b"_s, u"c"_s}});
        QCOMPARE(countOf<JournalEntry>(linesOf(files->bytes(name))), 1);
    }

    /// Painting waits for a thread of that pool: two runs at once kept all of a machine with two processors.
    void poolOfEverybodyIsLeftToOthers()
    {
        const auto first = files->begin(1);
        const auto second = files->begin(1);
        QCOMPARE(QThreadPool::globalInstance()->activeThreadCount(), 0);
    }

    void runThatRenamedNothingLeavesNone()
    {
        files->tree.addFiles(u"f%1"_s, 2);
        files->run({{u"f000"_s, u"f001"_s}, {u"none"_s, u"x"_s}});
        QCOMPARE(files->tree.names(u"data/undo"_s), QStringList());
    }

    void runThatWasNotEndedIsCancelled()
    {
        files->tree.addFile(u"a"_s);
        auto journal = files->begin(1);
        files->renameAll(*journal, {{u"a"_s, u"b"_s}});
        const QString name = JournalledTree::nameOf(*journal);
        journal.reset();
        QCOMPARE(files->info(name).state, JournalInfo::State::Cancelled);
    }

    /// Two lines of different length, so that lines meet the ends of windows in many ways.
    void longRunsAreReadFromEndToEnd()
    {
        constexpr int count = 30000;
        QString error;
        const auto journal = files->journals.begin({}, count, {}, &error);
        const FileStamp stamp{.volume = u"1"_s, .number = 5};
        for (int i = 0; i < count; ++i) {
            const QString name = QString::number(i).repeated(1 + i % 7);
            journal->renaming({.folder = u"/f"_s, .from = name, .to = u"x"_s, .file = stamp});
            if (i % 3 == 0)
                journal->refused(u"taken"_s);
        }
        const QString name = JournalledTree::nameOf(*journal);
        for (const bool ended : {false, true}) {
            if (ended)
                journal->end(false);
            QFile file(files->journals.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            BackwardEntries entries(file);
            for (int i = count - 1; i >= 0; --i) {
                if (i % 3 == 0)
                    continue;
                const auto entry = entries.next();
                QVERIFY(entry);
                QCOMPARE(entry->number, i);
                QCOMPARE(entry->from, QString::number(i).repeated(1 + i % 7));
            }
            QVERIFY(!entries.next());
            const JournalSummary summary = summaryOf(file);
            QCOMPARE(summary.figures.renamed, 20000);
            QCOMPARE(summary.figures.refused, 10000);
        }
        QVERIFY(files->bytes(name).size() > (2 << 20));
        QVERIFY(countOf<JournalFigures>(linesOf(files->bytes(name))) > 2);
    }

    void lineLargerThanAWindow()
    {
        const QString folder = u"/\x01"_s.repeated(100000);
        QString error;
        const auto journal = files->journals.begin({}, 1, {}, &error);
        const FileStamp stamp;
        for (int i = 0; i < 5; ++i)
            journal->renaming({.folder = folder, .from = u"a"_s, .to = QString::number(i), .file = stamp});
        const QString name = JournalledTree::nameOf(*journal);
        journal->end(false);
        QFile file(files->journals.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        BackwardEntries entries(file);
        for (int i = 4; i >= 0; --i) {
            const auto entry = entries.next();
            QVERIFY(entry);
            QCOMPARE(entry->folder, folder);
            QCOMPARE(entry->to, QString::number(i));
        }
    }

    /// A full disk: the run goes on, and what was told by then stays.
    void fullDiskEndsTheJournalNotTheRun()
    {
        const QStringList paths = files->tree.addFiles(u"f%1"_s, 1000);
        auto journal = files->begin(1000);
        const QString name = JournalledTree::nameOf(*journal);
        {
            const FileSizeLimit limit(1 << 16);
            JournalledDisk journalled(files->disk, *journal);
            RenameRun run(journalled);
            for (const QString &path : paths)
                QVERIFY(run.next(FilePath::of(path), FilePath::of(path).name() + u".new"_s).isRenamed());
            QVERIFY(!journal->error().isEmpty());
            journal->end(false);
        }
        const JournalInfo info = files->info(name);
        QCOMPARE(info.state, JournalInfo::State::Complete);
        QCOMPARE(info.renamed + info.unrecorded, 1000);
        QVERIFY(info.renamed > 100);
        QVERIFY(info.unrecorded > 100);
        QCOMPARE(files->undo(name), QStringList(info.renamed, u"renamed"_s));
        QCOMPARE(files->tree.names().filter(u".new"_s).size(), info.unrecorded);
    }

    void whatCannotBeMadeSaysWhy()
    {
        files->tree.addFile(u"data"_s);
        QString error;
        QVERIFY(!files->journals.begin({}, 1, {}, &error));
        QVERIFY(!error.isEmpty());
    }

    /// Not even room for the header.
    void fullDiskFromTheStartLeavesNone()
    {
        QDir().mkpath(files->tree.path(u"data/undo"_s));
        const FileSizeLimit limit(1000);
        QString error;
        QVERIFY(!files->journals.begin({}, 1, {}, &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(files->tree.names(u"data/undo"_s), QStringList());
    }

    void stampsAreThoseOfTheFiles()
    {
        // Some are asked for one by one, the others come from the folder's listing.
        const QStringList paths = files->tree.addFiles(u"f%1 é"_s, 100);
        FileStamps stamps(files->disk);
        for (const QString &path : paths) {
            const FileStamp stamp = stamps.of(FilePath::of(path));
            QVERIFY(stamps.isAt(path, stamp, QDateTime::currentDateTimeUtc()));
            QCOMPARE(stamp.number, files->disk.identity(path)->number);
        }
        QCOMPARE(stamps.of(FilePath::of(files->tree.path(u"none"_s))), FileStamp());
    }

    void stampsOfTheNextFolderAreItsOwn()
    {
        FileStamps stamps(files->disk);
        QStringList paths = files->tree.addFiles(u"one/f%1"_s, 40);
        for (const QString &path : std::as_const(paths))
            (void)stamps.of(FilePath::of(path));
        // The same names, the last of them first.
        paths = files->tree.addFiles(u"two/f%1"_s, 40);
        std::reverse(paths.begin(), paths.end());
        for (const QString &path : std::as_const(paths))
            QCOMPARE(stamps.of(FilePath::of(path)).number, files->disk.identity(path)->number);
    }

    void stampsTellOtherFiles()
    {
        const QString path = files->tree.addFile(u"f"_s);
        const QDateTime now = QDateTime::currentDateTimeUtc();
        OneFileDisk disk;
        disk.file = {.number = 7, .born = now.toMSecsSinceEpoch() * 1'000'000, .size = 5, .modified = 0};
        FileStamps stamps(disk);
        const QString volume = volumeOf(path).id;
        QVERIFY(stamps.isAt(path, {.volume = volume, .number = 7}, now));
        QVERIFY(!stamps.isAt(path, {.volume = volume, .number = 8}, now));
        // The number was given again when the file was gone.
        QVERIFY(!stamps.isAt(path, {.volume = volume, .number = 7}, now.addMSecs(-1)));
        QVERIFY(!stamps.isAt(path, {.volume = volume + u'0', .number = 7}, now));
        // Without numbers size and time tell, as coarse as they are kept.
        QVERIFY(stamps.isAt(path, {.volume = volume, .size = 5, .modified = 2000}, now));
        QVERIFY(!stamps.isAt(path, {.volume = volume, .size = 5, .modified = 2001}, now));
        QVERIFY(!stamps.isAt(path, {.volume = volume, .size = 6, .modified = 0}, now));
    }

    /// The listing told who had a name before the run; afterwards others have it.
    void stampsFollowTheRunItself()
    {
        QStringList paths = files->tree.addFiles(u"f%1"_s, 100);
        FileStamps stamps(files->disk);
        for (const QString &path : paths)
            (void)stamps.of(FilePath::of(path));
        QVERIFY(QFile::rename(paths[50], files->tree.path(u"away"_s)));
        QVERIFY(QFile::rename(paths[60], paths[50]));
        QCOMPARE(stamps.of(FilePath::of(paths[50])).number, files->disk.identity(paths[50])->number);
    }
};

QTEST_GUILESS_MAIN(TestJournal)
#include "tst_journal.moc"
