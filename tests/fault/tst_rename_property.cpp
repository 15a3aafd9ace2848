// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "fault/diskmodel.h"
#include "fault/randominput.h"
#include "fault/randomtree.h"
#include "support/drivenwindow.h"
#include "support/duringevents.h"
#include "support/environment.h"
#include "support/modalanswer.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstdio>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// What a run should do, from what the preview shows.
struct Expectation
{
    int processed = 0;
    int failed = 0;
    QStringList paths;
    QStringList logLines = {u"File renaming started"_s};
};

} // namespace

/// Thousands of random chains of rules over random trees: no file is ever lost, doubled or overwritten, and
/// the report tells what happened on disk. ORVANTO_SEED repeats a failure, ORVANTO_ROUNDS sets the number.
class RenameProperty : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestSettings> settings;
    std::unique_ptr<DrivenWindow> window;
    std::unique_ptr<BoxAnswerer> boxes;
    int fileNumber = 0;
    int renamed = 0;
    int refused = 0;
    int discarded = 0;

    /// Lists some of the files in random order, some twice or by another spelling, some that do not exist.
    void list(const QString &base, RandomInput &random) const
    {
        window->files()->clear();
        QStringList names;
        QDirIterator files(base, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
        while (files.hasNext())
            names.append(files.next());
        names.sort();
        while (!names.isEmpty()) {
            const QString path = names.takeAt(random.below(static_cast<int>(names.size())));
            if (random.chance(15))
                continue;
            window->get()->addPath(path);
            const qsizetype slash = path.lastIndexOf(u'/');
            if (random.chance(5))
                window->get()->addPath(path.left(slash) + "/./"_L1 + path.mid(slash + 1));
            if (random.chance(3))
                window->get()->addPath(path.left(slash) + "//"_L1 + path.mid(slash + 1));
            if (random.chance(3)) {
                auto *twin = new QListWidgetItem;
                twin->setData(Qt::UserRole, path);
                window->files()->addItem(twin);
            }
            if (random.chance(4))
                QFile::remove(path);
            if (random.chance(3))
                window->get()->addPath(base + u"never was"_s);
        }
    }

    void chooseRules(RandomInput &random) const
    {
        window->click("buttonRuleListClear");
        const int count = random.below(5);
        for (int i = 0; i < count; ++i)
            random.addRule(*window);
    }

    /// Changes the model as the run should change the disk; nothing where a name leads out of the tree. A
    /// run that is cancelled handles lastRow as its last row.
    std::optional<Expectation> expect(DiskModel &model, int lastRow) const
    {
        Expectation expected;
        expected.paths = window->rowPaths();
        const QStringList newNames = window->rowTexts();
        const int rows = static_cast<int>(expected.paths.size());
        for (int row = 0; row < rows; ++row) {
            const QFileInfo file(expected.paths.at(row));
            const QString folder = file.absolutePath() + u'/';
            const QString target = folder + newNames.at(row);
            bool leftRoot = false;
            const auto way = model.resolve(target, &leftRoot);
            if (leftRoot)
                return std::nullopt;
            if (row > lastRow)
                continue;
            if (way && model.rename(folder + file.fileName(), target)) {
                expected.paths[row] = target;
            } else {
                ++expected.failed;
                expected.logLines.append("Could not rename file '"_L1 + file.fileName() + u'\'');
            }
        }
        // A cancelled run counts one file less.
        expected.processed = (lastRow < rows ? lastRow : rows) - expected.failed;
        expected.logLines.append(
            u"Total %1 Processed %2 Failed %3"_s.arg(rows).arg(expected.processed).arg(expected.failed));
        return expected;
    }

    void runOnce(const TempTree &tree, RandomInput &random)
    {
        if (window->files()->count() == 0)
            return;
        if (!window->preview()->isChecked())
            window->click("buttonPreview");
        const bool cancelled = random.chance(15);
        // The click comes after this many files; one more is handled then.
        const int cancelAfter = 1 + random.below(window->files()->count());
        DiskModel model(tree.path());
        const QByteArrayList contents = model.contents();
        const bool cancelCounts = cancelled && cancelAfter < window->files()->count();
        const auto expected = expect(model, cancelCounts ? cancelAfter : std::numeric_limits<int>::max());
        if (!expected) {
            ++discarded;
            return;
        }
        checkCharacters();
        AppLog::instance()->clearPending();
        boxes->seen.clear();
        {
            const DuringEvents cancel([&](int pass) {
                if (cancelled && pass == cancelAfter)
                    window->waitDialog()->buttonCancel->click();
            });
            window->click("buttonRename");
        }
        const DiskModel disk(tree.path());
        QCOMPARE(disk.contents(), contents);
        QVERIFY2(disk == model, disk.differenceTo(model).constData());
        QCOMPARE(window->rowPaths(), expected->paths);
        QVERIFY(window->pathsAgree());
        QCOMPARE(DrivenWindow::logLines(), expected->logLines);
        QCOMPARE(boxes->seen.size(), 1);
        QCOMPARE(QString(boxes->seen.constFirst().text).replace(u'\n', u' '), expected->logLines.constLast());
        checkRows(disk);
        renamed += expected->processed;
        refused += expected->failed;
    }

    /// No rule puts U+FFFD where a character was.
    void checkCharacters() const
    {
        const QStringList paths = window->rowPaths();
        const QStringList newNames = window->rowTexts();
        for (int row = 0; row < paths.size(); ++row) {
            const auto before = QFileInfo(paths.at(row)).fileName().count(QChar::ReplacementCharacter);
            QVERIFY(newNames.at(row).count(QChar::ReplacementCharacter) <= before);
        }
    }

    /// After a run every row shows the name in its path.
    void checkRows(const DiskModel &disk) const
    {
        const QStringList paths = window->rowPaths();
        const QStringList texts = window->rowTexts();
        for (int row = 0; row < paths.size(); ++row) {
            QCOMPARE(texts.at(row), QFileInfo(paths.at(row)).fileName());
            const auto way = disk.resolve(paths.at(row));
            QCOMPARE(QFileInfo::exists(paths.at(row)), way && disk.exists(*way));
        }
    }

private slots:
    void init()
    {
        settings = std::make_unique<TestSettings>();
        window = std::make_unique<DrivenWindow>();
        window->stopLogTimer();
        boxes = std::make_unique<BoxAnswerer>();
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    }
    void cleanup()
    {
        qInstallMessageHandler(nullptr);
        boxes.reset();
        window.reset();
        settings.reset();
    }

    void noFileIsEverLostAndTheReportIsTrue()
    {
        const quint32 seed = randomSeed();
        const int rounds = environmentNumber("ORVANTO_ROUNDS", 3000);
        for (int round = 0; round < rounds; ++round) {
            // One generator per round: a failing round can be repeated alone.
            const quint32 roundSeed = seed + static_cast<quint32>(round);
            RandomInput random(roundSeed);
            const TempTree tree;
            const QString base = plantTree(tree, random, fileNumber);
            list(base, random);
            chooseRules(random);
            runOnce(tree, random);
            if (!QTest::currentTestFailed() && random.chance(25))
                runOnce(tree, random);
            if (QTest::currentTestFailed()) {
                std::fprintf(stderr, "repeat with ORVANTO_SEED=%u ORVANTO_ROUNDS=1\nrules: %s\n", roundSeed,
                             qPrintable(window->rules().join(u"; "_s)));
                return;
            }
        }
        std::fprintf(stderr, "%d files renamed, %d refused, %d runs discarded\n", renamed, refused,
                     discarded);
        // Input that never gets anywhere would prove nothing.
        if (rounds >= 1000) {
            QVERIFY(renamed > rounds);
            QVERIFY(refused > rounds / 2);
            QVERIFY(discarded < rounds / 10);
        }
    }
};

QTEST_MAIN(RenameProperty)
#include "tst_rename_property.moc"
