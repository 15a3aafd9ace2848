// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalline.h"
#include "unit/run/journaljson.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QByteArray jsonOf(const JournalWishView &wish)
{
    QByteArray bytes(mostBytes(wish), Qt::Uninitialized);
    bytes.truncate(writeJson(wish, bytes.data()) - bytes.data());
    return bytes;
}

QString toldOf(const FileStamp &file)
{
    return u"%1 %2 %3 %4"_s.arg(file.volume).arg(file.number).arg(file.size).arg(file.modified);
}

QString toldOfHalf(int half)
{
    return half == 0 ? QString() : u", half %1"_s.arg(half);
}

/// Everything that a line says.
QString toldOf(const JournalLine &line)
{
    if (const auto *header = std::get_if<JournalHeader>(&line))
        return u"header %1 %2 %3 "_s.arg(header->version).arg(header->rows).arg(header->planned) +
               header->takesBack;
    if (const auto *wish = std::get_if<JournalWish>(&line))
        return u"wish %1|%2|%3|%4 "_s.arg(wish->folder.value_or(u"?"_s), wish->from, wish->to,
                                          toldOf(wish->file)) +
               (wish->isStamped ? u"stamped"_s : u"bare"_s);
    if (const auto *entry = std::get_if<JournalEntry>(&line))
        return u"entry %1 of %2 "_s.arg(entry->number).arg(entry->takesBack) +
               u"%1|%2|%3|%4"_s.arg(entry->folder, entry->from, entry->to, toldOf(entry->file)) +
               (entry->other ? u"|%1"_s.arg(toldOf(*entry->other)) : QString()) + toldOfHalf(entry->half);
    if (const auto *back = std::get_if<JournalBack>(&line))
        return u"back %1, files %2"_s.arg(back->number).arg(back->files);
    if (const auto *kept = std::get_if<JournalKept>(&line))
        return u"kept %1, files %2"_s.arg(kept->takesBack).arg(kept->files) + toldOfHalf(kept->half);
    if (const auto *told = std::get_if<JournalFigures>(&line))
        return u"figures %1: %2 %3 %4 %5 %6"_s.arg(static_cast<int>(told->state))
            .arg(told->renamed)
            .arg(told->refused)
            .arg(told->kept)
            .arg(told->unrecorded)
            .arg(told->folders);
    return std::holds_alternative<JournalLeft>(line) ? u"left"_s : u"nothing"_s;
}

} // namespace

/// The lines by which the journal of a planned run differs from another's.
class TestPlannedLines final : public QObject
{
    Q_OBJECT

private slots:
    void comeBackAsTheyWere_data();
    void comeBackAsTheyWere();
    void damagedOnes_data() { comeBackAsTheyWere_data(); }
    void damagedOnes();
    void fitTheRoomThatIsMadeForThem();
};

void TestPlannedLines::comeBackAsTheyWere_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("told");

    const FileStamp file{.volume = u"9c1f"_s, .number = 5};
    const FileStamp other{.volume = u"9c1f"_s, .number = std::numeric_limits<quint64>::max()};
    const FileStamp unnumbered{.volume = u"1"_s, .number = 0, .size = 7, .modified = -1};
    const FileStamp unknown;
    JournalHeader header{.version = journalVersion,
                         .time = QDateTime({2026, 8, 1}, {13, 57, 41, 123}, Qt::UTC),
                         .program = u"1"_s,
                         .machine = u"ab"_s,
                         .rows = 4,
                         .takesBack = {},
                         .planned = 3};
    QTest::newRow("planned run")
        << toJson(header)
        << R"({"kind":"run","format":"orvanto-journal","version":2,"time":"2026-08-01T13:57:41.123Z","program":"1","machine":"ab","rows":4,"planned":3})"_ba
        << u"header 2 4 3 "_s;
    header.takesBack = u"x"_s;
    header.planned = 0;
    QTest::newRow("undo of one")
        << toJson(header)
        << R"({"kind":"undo","format":"orvanto-journal","version":2,"time":"2026-08-01T13:57:41.123Z","program":"1","machine":"ab","rows":4,"of":"x"})"_ba
        << u"header 2 4 0 x"_s;
    QTest::newRow("first row")
        << jsonOf({u"/d", u"a", u"b\n", u"9c1f", file})
        << R"({"kind":"wish","folder":"/d","from":"a","to":"b\n","volume":"9c1f","file":"5"})"_ba
        << u"wish /d|a|b\n|9c1f 5 0 0 stamped"_s;
    QTest::newRow("row of the same folder")
        << jsonOf({{}, u"a", u"../b", {}, other})
        << R"({"kind":"wish","from":"a","to":"../b","file":"18446744073709551615"})"_ba
        << u"wish ?|a|../b| 18446744073709551615 0 0 stamped"_s;
    QTest::newRow("row in the root") << jsonOf({u"", u"a", u"b", {}, file})
                                     << R"({"kind":"wish","folder":"","from":"a","to":"b","file":"5"})"_ba
                                     << u"wish |a|b| 5 0 0 stamped"_s;
    QTest::newRow("row without a number")
        << jsonOf({{}, u"a", u"b", {}, unnumbered})
        << R"({"kind":"wish","from":"a","to":"b","size":7,"modified":-1})"_ba
        << u"wish ?|a|b| 0 7 -1 stamped"_s;
    QTest::newRow("row of which nothing is known")
        << jsonOf({{}, u"a", u"b", {}, unknown}) << R"({"kind":"wish","from":"a","to":"b"})"_ba
        << u"wish ?|a|b| 0 0 0 bare"_s;
    QTest::newRow("third name")
        << toJson(
               JournalEntry{.number = 2, .folder = u"/d"_s, .from = u"a"_s, .to = u".orv-0"_s, .file = file})
        << R"({"kind":"rename","n":2,"folder":"/d","from":"a","to":".orv-0","volume":"9c1f","file":"5"})"_ba
        << u"entry 2 of -1 /d|a|.orv-0|9c1f 5 0 0"_s;
    JournalEntry exchange{.number = 0, .folder = u"/d"_s, .from = u"a"_s, .to = u"b"_s, .file = file};
    exchange.other = other;
    QTest::newRow("exchange")
        << toJson(exchange)
        << R"({"kind":"exchange","n":0,"folder":"/d","from":"a","to":"b","volume":"9c1f","file":"5","other":"18446744073709551615"})"_ba
        << u"entry 0 of -1 /d|a|b|9c1f 5 0 0|9c1f 18446744073709551615 0 0"_s;
    exchange.takesBack = 8;
    QTest::newRow("exchange taken back")
        << toJson(exchange)
        << R"({"kind":"exchange","n":0,"of":8,"folder":"/d","from":"a","to":"b","volume":"9c1f","file":"5","other":"18446744073709551615"})"_ba
        << u"entry 0 of 8 /d|a|b|9c1f 5 0 0|9c1f 18446744073709551615 0 0"_s;
    JournalEntry half{
        .number = 4, .takesBack = 8, .folder = u"/d"_s, .from = u"b"_s, .to = u"a"_s, .file = file};
    half.half = 2;
    QTest::newRow("one file of an exchange taken back")
        << toJson(half)
        << R"({"kind":"rename","n":4,"of":8,"half":2,"folder":"/d","from":"b","to":"a","volume":"9c1f","file":"5"})"_ba
        << u"entry 4 of 8 /d|b|a|9c1f 5 0 0, half 2"_s;
    QTest::newRow("one of both was back")
        << toJson(JournalKept{.takesBack = 0, .half = 1}) << R"({"kind":"kept","of":0,"half":1})"_ba
        << u"kept 0, files 1, half 1"_s;
    QTest::newRow("taken back by the run")
        << toJson(JournalBack{.number = 3}) << R"({"kind":"back","n":3})"_ba << u"back 3, files 1"_s;
    QTest::newRow("exchange taken back by the run")
        << toJson(JournalBack{.number = 0, .files = 2}) << R"({"kind":"back","n":0,"files":2})"_ba
        << u"back 0, files 2"_s;
    QTest::newRow("both were back") << toJson(JournalKept{.takesBack = 0, .files = 2})
                                    << R"({"kind":"kept","of":0,"files":2})"_ba << u"kept 0, files 2"_s;
    QTest::newRow("left") << toJson(JournalLeft()) << R"({"kind":"left"})"_ba << u"left"_s;
    using State = JournalFigures::State;
    QTest::newRow("stopped, to be gone on with")
        << toJson(JournalFigures{State::Running, 1, 2, 3, 4, 5})
        << R"({"kind":"so far","renamed":1,"refused":2,"kept":3,"unrecorded":4,"folders":5})"_ba
        << u"figures 0: 1 2 3 4 5"_s;
    QTest::newRow("end")
        << toJson(JournalFigures{State::Complete, 1, 2, 3, 4, 5})
        << R"({"kind":"end","state":"complete","renamed":1,"refused":2,"kept":3,"unrecorded":4,"folders":5})"_ba
        << u"figures 1: 1 2 3 4 5"_s;
    QTest::newRow("end of a run that is kept as it is")
        << toJson(JournalFigures{State::Cancelled, 1, 2, 3, 4, 1LL << 40})
        << R"({"kind":"end","state":"cancelled","renamed":1,"refused":2,"kept":3,"unrecorded":4,"folders":1099511627776})"_ba
        << u"figures 2: 1 2 3 4 1099511627776"_s;
}

void TestPlannedLines::comeBackAsTheyWere()
{
    QFETCH(const QByteArray, written);
    QFETCH(const QByteArray, json);
    QFETCH(const QString, told);
    QCOMPARE(document(written), document(json));
    QCOMPARE(toldOf(fromJson(inside(written))), told);
    QCOMPARE(toldOf(fromJson(json)), told);
    // Of another hand: the members in another order, and one that is not known.
    QJsonObject object = document(json);
    object.insert(u"zz"_s, 1);
    QCOMPARE(toldOf(fromJson(QJsonDocument(object).toJson(QJsonDocument::Compact))), told);
}

/// A piece of a line is none; a line with a byte that is another one says nothing that Qt does not read.
void TestPlannedLines::damagedOnes()
{
    QFETCH(const QByteArray, json);
    for (qsizetype size = 0; size < json.size(); ++size) {
        QCOMPARE(toldOf(fromJson(json.first(size))), u"nothing"_s);
        if (size > 0)
            QCOMPARE(toldOf(fromJson(json.sliced(size))), u"nothing"_s);
    }
    for (qsizetype at = 0; at < json.size(); ++at) {
        for (const char wrong : {'\0', '\xff', '"', '{', '}', '\\', ',', '-', '9', 'x'}) {
            QByteArray torn = json;
            torn[at] = wrong;
            const JournalLine line = fromJson(torn);
            if (wrong == '\0' || wrong == '\xff')
                QCOMPARE(toldOf(line), u"nothing"_s);
            QJsonParseError error;
            const QJsonObject object = QJsonDocument::fromJson(torn, &error).object();
            if (!std::holds_alternative<std::monostate>(line))
                QVERIFY2(error.error == QJsonParseError::NoError && object.contains("kind"_L1),
                         torn.constData());
        }
    }
}

/// The journal writes into memory that it reserves before.
void TestPlannedLines::fitTheRoomThatIsMadeForThem()
{
    const QString worst = QString(2000, QChar(0x01)) + QString(2000, QChar(0xd83c));
    const FileStamp numbered{.volume = worst, .number = std::numeric_limits<quint64>::max()};
    const FileStamp unnumbered{.volume = worst,
                               .number = 0,
                               .size = std::numeric_limits<qint64>::min(),
                               .modified = std::numeric_limits<qint64>::min()};
    for (const FileStamp &file : {numbered, unnumbered}) {
        const JournalWishView wish{worst, worst, worst, worst, file};
        QVERIFY(jsonOf(wish).size() <= mostBytes(wish));
        const JournalEntryView entry{std::numeric_limits<qint64>::max(),
                                     std::numeric_limits<qint64>::max(),
                                     worst,
                                     worst,
                                     worst,
                                     file,
                                     &numbered};
        QByteArray bytes(2 * mostBytes(entry), Qt::Uninitialized);
        QVERIFY(writeJson(entry, folderJson(worst), bytes.data()) - bytes.data() <= mostBytes(entry));
    }
}

QTEST_GUILESS_MAIN(TestPlannedLines)
#include "tst_plannedlines.moc"
