// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/faultrun.h"
#include "support/duringevents.h"

#include <QProcess>

#include <csignal>

#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// The file system at $ORVANTO_MOUNT goes away: it is unmounted behind the program's back, or the process
/// that serves it dies. Run by mounted.py.
class VanishingMount : public QObject
{
    Q_OBJECT

private:
    static constexpr int count = 30;
    std::unique_ptr<FaultRun> run;
    QString mount;
    qint64 daemon = 0;
    int behind = -1;

    [[nodiscard]] static QString nameOf(int i) { return u"file%1.txt"_s.arg(i, 3, 10, QChar(u'0')); }
    [[nodiscard]] QStringList plant() const
    {
        QStringList paths;
        QDir(mount).mkpath(u"folder"_s);
        for (int i = 0; i < count; ++i) {
            paths.append(mount + u"/folder/"_s + nameOf(i));
            QFile file(paths.constLast());
            if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly) || file.write(nameOf(i).toLatin1()) < 0)
                qFatal("cannot make %s", qPrintable(file.fileName()));
        }
        return paths;
    }
    void vanish()
    {
        if (daemon != 0) {
            QCOMPARE(::kill(static_cast<pid_t>(daemon), SIGKILL), 0);
            QTRY_VERIFY(!QFileInfo::exists(mount + u"/folder"_s));
        } else {
            // Still there for those who have a foot in the door.
            behind = open(QFile::encodeName(mount).constData(), O_PATH | O_DIRECTORY);
            QVERIFY(behind >= 0);
            QCOMPARE(umount2(QFile::encodeName(mount).constData(), MNT_DETACH), 0);
        }
    }
    /// What is on the file system that went away, as someone finds it who mounts it again.
    void comeBack()
    {
        if (daemon != 0) {
            umount2(QFile::encodeName(mount).constData(), MNT_DETACH);
            QProcess again;
            again.setProgram(u"lowntfs-3g"_s);
            again.setArguments({u"-o"_s, u"no_detach,ignore_case,windows_names"_s,
                                qEnvironmentVariable("ORVANTO_MOUNT_IMAGE"), mount});
            QVERIFY(again.startDetached(&daemon));
        } else {
            // A file system of that kind is gone for good; its folder alone can still be reached.
            mount = u"/proc/self/fd/%1"_s.arg(behind);
        }
        QTRY_VERIFY(QFileInfo::exists(mount + u"/folder"_s));
    }
    [[nodiscard]] Contents contents() const
    {
        Contents result;
        const QDir there(mount + u"/folder"_s);
        for (const QString &name : there.entryList(QDir::Files)) {
            QFile file(there.filePath(name));
            result.insert(name, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable"));
        }
        return result;
    }
    /// The program still does its work elsewhere.
    void verifyAlive()
    {
        run->window.files()->clear();
        run->window.drop({run->tree.addFile(u"elsewhere.txt"_s)});
        run->run();
        VERIFY_RUN(*run, 1, 1, {});
        QCOMPARE(run->tree.names(), QStringList(u"new-elsewhere.txt"_s));
    }

private slots:
    void initTestCase()
    {
        mount = qEnvironmentVariable("ORVANTO_MOUNT");
        daemon = qEnvironmentVariable("ORVANTO_MOUNT_DAEMON").toLongLong();
        QVERIFY2(QDir(mount).exists(), "mounted.py runs this test");
        run = std::make_unique<FaultRun>();
        run->window.addInsert(u"new-"_s);
    }
    void cleanupTestCase()
    {
        run.reset();
        close(behind);
    }

    // One mount for one end: the steps of a life.
    void goesInTheMiddleOfARunOrAScan()
    {
        const QString step = qEnvironmentVariable("ORVANTO_MOUNT_STEP");
        const QStringList paths = plant();
        constexpr int pass = 10;
        const auto goesAt = [this](int number) {
            if (number == pass)
                vanish();
        };
        int renamed = 0;
        QStringList failed;
        if (step == u"scan"_s) {
            const DuringEvents watch(goesAt);
            run->window.drop({mount + u"/folder"_s});
        } else {
            run->window.drop(paths);
            const DuringEvents watch(goesAt);
            renamed = pass;
            run->run();
            for (int i = pass; i < count; ++i)
                failed.append(nameOf(i));
            VERIFY_RUN(*run, count, renamed, failed);
        }
        QVERIFY(run->window.pathsAgree());
        // What is listed now leads nowhere.
        const QStringList listed = run->window.rowPaths();
        QVERIFY(listed.size() >= pass);
        failed.clear();
        for (const QString &path : listed)
            failed.append(path.section(u'/', -1));
        run->window.click("buttonPreview");
        run->window.click("buttonPreview");
        run->run();
        VERIFY_RUN(*run, static_cast<int>(listed.size()), 0, failed);
        QCOMPARE(run->window.rowPaths(), listed);
        verifyAlive();

        comeBack();
        Contents expected;
        for (int i = 0; i < count; ++i)
            expected.insert((i < renamed ? u"new-"_s : QString()) + nameOf(i), nameOf(i).toLatin1());
        QCOMPARE(contents(), expected);
    }
};

QTEST_MAIN(VanishingMount)
#include "tst_vanishing_mount.moc"
