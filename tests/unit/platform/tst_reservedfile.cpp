// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "filesizelimit.h"
#include "platform/fileidentity.h"
#include "platform/filelock.h"
#include "platform/foldernumbers.h"
#include "platform/reservedfile.h"
#include "platform/sharedfile.h"
#include "platform/volume.h"
#include "support/temptree.h"

#include <QTest>

#include <cstring>

using namespace Qt::StringLiterals;

class TestReservedFile final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsThereAtOnce()
    {
        const TempTree tree;
        QString error;
        const auto file = ReservedFile::create(tree.path(u"a"_s), &error);
        QVERIFY(file);
        const qint64 step = ReservedFile::windowStep();
        char *window = file->moveWindow(0, 2 * step);
        QVERIFY(window);
        std::memcpy(window + step - 1, "xy", 2);
        QCOMPARE(tree.content(u"a"_s).mid(step - 1, 2), "xy");
        QCOMPARE(tree.content(u"a"_s).count('\0'), 2 * step - 2);
        while (file->touchAhead()) {
        }
        QCOMPARE(tree.content(u"a"_s).mid(step - 1, 2), "xy");
        window = file->moveWindow(step, step);
        QVERIFY(window);
        QCOMPARE(window[0], 'y');
        std::memcpy(window + 1, "z", 1);
        QVERIFY(file->sync());
        QVERIFY(file->finish(step + 2));
        QCOMPARE(tree.content(u"a"_s), QByteArray(step - 1, '\0') + "xyz");
    }

    void neverTakesAFileThatIsThere()
    {
        const TempTree tree;
        tree.addFile(u"a"_s);
        QString error;
        QVERIFY(!ReservedFile::create(tree.path(u"a"_s), &error));
        QVERIFY(!error.isEmpty());
        QCOMPARE(tree.content(u"a"_s), "a");
    }

    void withoutRoomTheWindowStays()
    {
        const TempTree tree;
        QString error;
        const auto file = ReservedFile::create(tree.path(u"a"_s), &error);
        const qint64 step = ReservedFile::windowStep();
        char *window = file->moveWindow(0, step);
        {
            const FileSizeLimit limit(static_cast<quint64>(step));
            QVERIFY(!file->moveWindow(step, step));
            QVERIFY(!file->error().isEmpty());
        }
        std::memcpy(window, "x", 1);
        QVERIFY(file->finish(1));
        QCOMPARE(tree.content(u"a"_s), "x");
    }

    void discardedItIsGone()
    {
        const TempTree tree;
        QString error;
        const auto file = ReservedFile::create(tree.path(u"a"_s), &error);
        QVERIFY(file->moveWindow(0, ReservedFile::windowStep()));
        file->discard();
        QVERIFY(!file->sync());
        QVERIFY(!file->touchAhead());
        QCOMPARE(tree.names(), QStringList());
    }

    void lockBelongsToTheOpenFile()
    {
        const TempTree tree;
        QFile one(tree.addFile(u"a"_s));
        QFile two(one.fileName());
        QVERIFY(one.open(QIODevice::ReadWrite) && two.open(QIODevice::ReadWrite));
        QCOMPARE(lockFile(one), FileLock::Locked);
        QVERIFY(isLocked(two));
        QCOMPARE(lockFile(two), FileLock::HeldByAnother);
        unlockFile(one);
        QVERIFY(!isLocked(two));
        QCOMPARE(lockFile(two), FileLock::Locked);
        two.close();
        QVERIFY(!isLocked(one));
    }

    void newFileIsLockedUntilItIsFinished()
    {
        const TempTree tree;
        QString error;
        const auto file = ReservedFile::create(tree.path(u"a"_s), &error);
        QVERIFY(file->moveWindow(0, ReservedFile::windowStep()));
        QFile other(file->path());
        QVERIFY(other.open(QIODevice::ReadOnly));
        QVERIFY(isLocked(other));
        QVERIFY(file->finish(0));
        QVERIFY(!isLocked(other));
    }

    /// On Windows only a file that was opened for it.
    void fileInUseCanBeRemoved()
    {
        const TempTree tree;
        QString error;
        auto file = ReservedFile::create(tree.path(u"a"_s), &error);
        QVERIFY(file->moveWindow(0, ReservedFile::windowStep()));
        QFile reader(file->path());
        QVERIFY(openShared(reader, QIODevice::ReadOnly));
        QVERIFY(file->finish(10));
        QVERIFY(removeShared(file->path()));
        QVERIFY(!QFile::exists(file->path()));
        QCOMPARE(reader.readAll(), QByteArray(10, '\0'));
        file.reset();
        reader.close();
        QCOMPARE(tree.names(), QStringList());
        QVERIFY(!removeShared(tree.path(u"a"_s)));
    }

    void openingMakesNoFile()
    {
        const TempTree tree;
        QFile file(tree.path(u"a"_s));
        QVERIFY(!openShared(file, QIODevice::ReadOnly));
        QVERIFY(!openShared(file, QIODevice::ReadWrite | QIODevice::ExistingOnly));
        QCOMPARE(tree.names(), QStringList());
        QVERIFY(openShared(file, QIODevice::ReadWrite | QIODevice::NewOnly));
        QCOMPARE(file.write("ab"), 2);
        QVERIFY(file.flush() && file.seek(1));
        QCOMPARE(file.readAll(), "b");
        QCOMPARE(file.size(), 2);
        QVERIFY(file.resize(1));
        QFile other(tree.path(u"a"_s));
        QVERIFY(!openShared(other, QIODevice::ReadWrite | QIODevice::NewOnly));
        QCOMPARE(tree.content(u"a"_s), "a");
    }

    void listingTellsTheNumbersOfFiles()
    {
        const TempTree tree;
        QStringList paths = tree.addFiles(u"a%1"_s, 1000);
        for (const QString &name : {u"é"_s, u"日本語"_s, u"🎉"_s, u"x"_s.repeated(255)})
            paths.append(tree.addFile(name));
        FolderNumbers numbers(tree.path());
        QCOMPARE(numbers.take(u"a000"_s), 0);
        while (numbers.readOn()) {
        }
        QVERIFY(numbers.entriesRead() >= paths.size());
        for (const QString &path : paths) {
            const QString name = path.sliced(tree.path().size() + 1);
            QCOMPARE(numbers.take(name), fileIdentity(path)->number);
            QCOMPARE(numbers.take(name), 0);
        }
        QCOMPARE(numbers.take(u"none"_s), 0);
        QCOMPARE(numbers.take(u"x"_s.repeated(1000)), 0);
        QVERIFY(!numbers.readOn());
    }

    void folderThatIsNoneHasNoNumbers()
    {
        const TempTree tree;
        FolderNumbers numbers(tree.path(u"none"_s));
        QVERIFY(!numbers.readOn());
        QCOMPARE(numbers.take(u"a"_s), 0);
    }

    void volumesHaveAnId()
    {
        const TempTree tree;
        tree.addFile(u"sub/a"_s);
        const Volume volume = volumeOf(tree.path());
        QVERIFY(!volume.id.isEmpty());
        QCOMPARE(volumeOf(tree.path(u"sub/a"_s)).id, volume.id);
        QCOMPARE(volumeOf(tree.path(u"none"_s)).id, QString());
    }
};

QTEST_GUILESS_MAIN(TestReservedFile)
#include "tst_reservedfile.moc"
