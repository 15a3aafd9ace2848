// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalreader.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QByteArray entryLine(qint64 number)
{
    return toJson(JournalEntry{.number = number,
                               .folder = u"/f"_s,
                               .from = u"é %1"_s.arg(number),
                               .to = u"to"_s,
                               .file = {.volume = u"1"_s, .number = 9}});
}

QByteArray headerLine()
{
    return toJson(JournalHeader{1, QDateTime::currentDateTimeUtc(), u"1.2.3"_s, u"here"_s, 3, {}});
}

QList<qint64> numbersIn(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    BackwardEntries entries(buffer);
    QList<qint64> numbers;
    while (const auto entry = entries.next())
        numbers.append(entry->number);
    return numbers;
}

JournalSummary summaryIn(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return summaryOf(buffer);
}

} // namespace

class TestJournalReader final : public QObject
{
    Q_OBJECT

private slots:
    void linesComeBackwards()
    {
        QRandomGenerator random(3);
        for (int round = 0; round < 200; ++round) {
            QByteArrayList lines;
            for (int i = random.bounded(20); i > 0; --i)
                lines.append(QByteArray(random.bounded(random.bounded(8) ? 200 : 100000), 'x'));
            QBuffer buffer;
            buffer.setData(lines.join('\n') + (lines.isEmpty() ? "" : "\n") +
                           QByteArray(random.bounded(3), 'y'));
            buffer.open(QIODevice::ReadOnly);
            BackwardLines backward(buffer);
            while (!lines.isEmpty()) {
                const auto line = backward.next();
                QVERIFY(line);
                QCOMPARE(line->toByteArray(), lines.takeLast());
            }
            QVERIFY(!backward.next());
        }
    }

    void hugeLinesArePassedOver()
    {
        QBuffer buffer;
        buffer.setData("a\n" + QByteArray(3 << 20, 'x') + "\nb\n" + QByteArray(3 << 20, '\0'));
        buffer.open(QIODevice::ReadOnly);
        BackwardLines backward(buffer);
        QCOMPARE(backward.next()->toByteArray(), "b");
        QCOMPARE(backward.next()->toByteArray(), "a");
        QVERIFY(!backward.next());
    }

    /// Killed, or cut off by a disk, anywhere: the lines that are whole are read, and nothing else.
    void cutAtEveryByte()
    {
        const QByteArray bytes = headerLine() + entryLine(0) + entryLine(1) +
                                 toJson(JournalRefusal{1, u"taken"_s}) + entryLine(2) +
                                 toJson(JournalFigures{JournalFigures::State::Complete, 2, 1, 0, 0, 1});
        const qsizetype headerEnd = bytes.indexOf('\n') + 1;
        for (qsizetype size = 0; size <= bytes.size(); ++size) {
            // What is reserved reads as zeros.
            for (const QByteArray &tail : {QByteArray(), QByteArray(5000, '\0')}) {
                const QByteArray cut = bytes.first(size) + tail;
                const JournalSummary summary = summaryIn(cut);
                QCOMPARE(summary.header.has_value(), size >= headerEnd);
                QList<qint64> expected;
                const QByteArrayList whole = bytes.first(size).split('\n');
                for (qsizetype i = 1; i + 1 < whole.size(); ++i) {
                    if (whole[i].contains("rename\""))
                        expected.prepend(whole[i].mid(whole[i].indexOf("\"n\":") + 4, 1).toInt());
                    else if (whole[i].contains("\"refused\",\"n\""))
                        expected.removeFirst();
                }
                QCOMPARE(numbersIn(cut), expected);
                if (summary.header) {
                    QCOMPARE(summary.figures.renamed, expected.size());
                    QCOMPARE(summary.figures.state == JournalFigures::State::Complete, size == bytes.size());
                }
            }
        }
    }

    /// After a power cut a block in the middle may be zeros.
    void lostBlocksCostTheirLinesOnly()
    {
        const QByteArray one = entryLine(1);
        QByteArray bytes = headerLine() + entryLine(0) + one + entryLine(2);
        const qsizetype at = bytes.indexOf(one);
        for (qsizetype size = 1; size <= one.size(); ++size) {
            QByteArray torn = bytes;
            torn.replace(at, size, QByteArray(size, '\0'));
            QCOMPARE(numbersIn(torn), (QList<qint64>{2, 0}));
            QCOMPARE(summaryIn(torn).figures.renamed, 2);
        }
    }

    void garbageIsNoJournal()
    {
        QVERIFY(!summaryIn({}).header);
        QVERIFY(!summaryIn("\n\n").header);
        QVERIFY(!summaryIn(QByteArray(70000, '\n')).header);
        QVERIFY(!summaryIn(entryLine(0)).header);
        QVERIFY(!summaryIn(QByteArray(1 << 21, '\0')).header);
        QVERIFY(!summaryIn("\xff\xfe\n" + headerLine()).header);
        QCOMPARE(numbersIn("\n\n{}\n" + entryLine(5) + "x"), (QList<qint64>{5}));
    }

    void newerVersionSaysOnlyThat()
    {
        const QByteArray bytes =
            R"({"kind":"run","format":"orvanto-journal","version":3,"time":"2026-08-01T13:57:41.123Z","new":"x"})"
            "\n" +
            entryLine(0);
        const JournalSummary summary = summaryIn(bytes);
        QVERIFY(summary.header);
        QCOMPARE(summary.header->version, 3);
        QCOMPARE(summary.figures.renamed, 0);
    }

    void lastRenameOfAnInterruptedRunIsUncertain()
    {
        const QByteArray begin = headerLine() + entryLine(0) + entryLine(1);
        QVERIFY(summaryIn(begin).lastUncertain);
        QVERIFY(summaryIn(begin + "lost\n").lastUncertain);
        QVERIFY(summaryIn(begin + toJson(JournalLeft())).lastUncertain);
        QVERIFY(!summaryIn(begin + toJson(JournalRefusal{1, {}})).lastUncertain);
        QVERIFY(!summaryIn(begin + toJson(JournalFigures())).lastUncertain);
        QVERIFY(!summaryIn(headerLine()).lastUncertain);
        QVERIFY(summaryIn(begin + toJson(JournalLeft())).isLeft);
        QBuffer buffer;
        buffer.setData(begin + toJson(JournalLeft()));
        buffer.open(QIODevice::ReadOnly);
        BackwardEntries entries(buffer);
        QVERIFY(entries.next());
        QVERIFY(entries.isUncertain());
        QVERIFY(entries.next());
        QVERIFY(!entries.isUncertain());
    }

    void figuresGoOnFromThoseToldLast()
    {
        const JournalFigures told{JournalFigures::State::Running, 100, 7, 3, 0, 5};
        const JournalSummary summary =
            summaryIn(headerLine() + entryLine(0) + toJson(told) + entryLine(110) +
                      toJson(JournalRefusal{110, {}}) + entryLine(111) + toJson(JournalKept{4}));
        QCOMPARE(summary.figures.renamed, 101);
        QCOMPARE(summary.figures.refused, 8);
        QCOMPARE(summary.figures.kept, 4);
        QCOMPARE(summary.figures.folders, 5);
        QCOMPARE(summary.folder, u"/f"_s);
    }

    void linesEndBehindTheLastNewline()
    {
        QBuffer buffer;
        buffer.setData("a\nbc\nd" + QByteArray(100000, '\0'));
        buffer.open(QIODevice::ReadOnly);
        QCOMPARE(endOfLines(buffer), 5);
        QBuffer none;
        none.setData("abc");
        none.open(QIODevice::ReadOnly);
        QCOMPARE(endOfLines(none), 0);
    }
};

QTEST_GUILESS_MAIN(TestJournalReader)
#include "tst_journalreader.moc"
