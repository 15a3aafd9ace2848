// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

// Opens a folder in the explorer's dock of a real main window and prints what share of a processor the window
// takes, in percent, while a thread keeps renaming the folder's files one after the other. Usage:
// orvanto_benchmark_follow folder [seconds]

#include "bench.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThread>

#include <atomic>
#include <cstdio>
#include <ctime>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

double cpuSeconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Renames files there and back until told to stop; the seconds of processor time that it took.
class Changer final : public QThread
{
public:
    explicit Changer(const QString &folder)
    {
        QDirIterator found(folder, QDir::Files);
        while (found.hasNext())
            paths.append(QFile::encodeName(found.next()));
    }
    std::atomic<bool> stop = false;
    double spent = 0;
    qint64 renamed = 0;

protected:
    void run() override
    {
        while (!stop) {
            for (const QByteArray &path : std::as_const(paths)) {
                const QByteArray other = path + ".changed";
                std::rename(path.constData(), other.constData());
                std::rename(other.constData(), path.constData());
                renamed += 2;
                usleep(100);
                if (stop)
                    break;
            }
        }
        spent = cpuSeconds(CLOCK_THREAD_CPUTIME_ID);
    }

private:
    QList<QByteArray> paths;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", OFFSCREEN_PLATFORM);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "Usage: orvanto_benchmark_follow folder [seconds]\n");
        return 2;
    }
    const QString folder = QFileInfo(QFile::decodeName(argv[1])).absoluteFilePath();
    const qint64 seconds = argc > 2 ? QByteArray(argv[2]).toInt() : 10;
    const QTemporaryDir dataDirectory;
    QDir::setCurrent(dataDirectory.path());
    prepareBenchmark();
    Bench bench;
    const double opened = secondsOf([&] { bench.openInExplorer(folder); });
    Changer changer(folder);
    const double before = cpuSeconds(CLOCK_PROCESS_CPUTIME_ID);
    changer.start();
    const double elapsed = secondsOf([&] {
        QElapsedTimer timer;
        timer.start();
        while (!timer.hasExpired(seconds * 1000))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    });
    changer.stop = true;
    changer.wait();
    const double spent = cpuSeconds(CLOCK_PROCESS_CPUTIME_ID) - before - changer.spent;
    std::printf("opened in %.3f s; %lld renames; %.2f %% of a processor\n", opened,
                static_cast<long long>(changer.renamed), 100 * spent / elapsed);
    return 0;
}
