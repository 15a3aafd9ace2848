// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "run/journalline.h"
#include "run/jsontext.h"
#include "unit/run/journaljson.h"

#include <QRandomGenerator>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QByteArray quoted(const QString &text)
{
    QByteArray bytes(JsonWriter::mostBytes(text.size()), Qt::Uninitialized);
    JsonWriter json(bytes.data());
    json.text(text);
    bytes.truncate(json.end() - bytes.data());
    return bytes;
}

JournalEntry someEntry()
{
    return {.number = 7,
            .folder = u"/home/u/Photos"_s,
            .from = u"a.jpg"_s,
            .to = u"b.jpg"_s,
            .file = {.volume = u"9c1f"_s, .number = std::numeric_limits<quint64>::max()}};
}

} // namespace

class TestJournalLine : public QObject
{
    Q_OBJECT

private slots:
    void textsComeBackAsTheyWere_data();
    void textsComeBackAsTheyWere();
    void everyCharacterComesBack();
    void linesSayWhatQtReadsInThem();
    void linesComeBack();
    void whatIsNoLineIsNone_data();
    void whatIsNoLineIsNone();
    void linesOfOthersAreReadAsJsonIs();
    void brokenLinesAreNone();
    void randomTextIsReadAsQtReadsIt();
};

void TestJournalLine::textsComeBackAsTheyWere_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << u"IMG_0001.JPG"_s;
    QTest::newRow("quotes") << u"\"a\\b\"/"_s;
    QTest::newRow("controls") << u"a\nb\tc\r\x01\x1f\x7f\x9f"_s;
    QTest::newRow("null") << QString(u"a\0b"_s);
    QTest::newRow("letters") << u"straße Ж 日本語 e\u0301"_s;
    QTest::newRow("emoji") << u"A🎉.txt"_s;
    QTest::newRow("first half alone") << u"a"_s + QChar(0xd83c);
    QTest::newRow("second half alone") << QChar(0xdf89) + u"a"_s;
    QTest::newRow("halves in the wrong order") << QString(QChar(0xdf89)) + QChar(0xd83c);
    QTest::newRow("half before a whole") << QString(QChar(0xd83c)) + u"🎉"_s;
    QTest::newRow("byte order mark first") << u"\uFEFFa\uFEFF"_s;
    QTest::newRow("noncharacters") << u"\uFFFE\uFFFF\uFDD0"_s;
    QTest::newRow("replacement") << u"\uFFFD"_s;
    QTest::newRow("last of all") << QString::fromUcs4(U"\U0010FFFF\U00010000");
    QTest::newRow("bidirectional") << u"\u202Egpj.exe\u2028\u2029"_s;
}

void TestJournalLine::textsComeBackAsTheyWere()
{
    QFETCH(const QString, text);
    const QByteArray json = "{\"a\":" + quoted(text) + "}";
    const auto object = JsonObject::parse(json);
    QVERIFY(object);
    QCOMPARE(object->text("a"), text);
    QCOMPARE(document(json).value("a"_L1).toString(), text);
}

void TestJournalLine::everyCharacterComesBack()
{
    for (char16_t unit = 0; unit < 0xffff; ++unit) {
        const QString text = u'<' + QString(QChar(unit)) + u'>';
        const QByteArray json = "{\"a\":" + quoted(text) + "}";
        QCOMPARE(JsonObject::parse(json)->text("a"), text);
        QCOMPARE(document(json).value("a"_L1).toString(), text);
    }
}

void TestJournalLine::linesSayWhatQtReadsInThem()
{
    const QJsonObject entry = document(toJson(someEntry()));
    QCOMPARE(entry, (QJsonObject{{u"kind"_s, u"rename"_s},
                                 {u"n"_s, 7},
                                 {u"folder"_s, u"/home/u/Photos"_s},
                                 {u"from"_s, u"a.jpg"_s},
                                 {u"to"_s, u"b.jpg"_s},
                                 {u"volume"_s, u"9c1f"_s},
                                 {u"file"_s, u"18446744073709551615"_s}}));
    const JournalHeader header{.time = QDateTime({2026, 8, 1}, {13, 57, 41, 123}, Qt::UTC),
                               .program = u"1.2.0.5"_s,
                               .machine = u"ab"_s,
                               .rows = 3,
                               .takesBack = u"x.jsonl"_s};
    QCOMPARE(document(toJson(header)), (QJsonObject{{u"kind"_s, u"undo"_s},
                                                    {u"format"_s, u"orvanto-journal"_s},
                                                    {u"version"_s, 1},
                                                    {u"time"_s, u"2026-08-01T13:57:41.123Z"_s},
                                                    {u"program"_s, u"1.2.0.5"_s},
                                                    {u"machine"_s, u"ab"_s},
                                                    {u"rows"_s, 3},
                                                    {u"of"_s, u"x.jsonl"_s}}));
    const JournalFigures end{.state = JournalFigures::State::Cancelled,
                             .renamed = 1,
                             .refused = 2,
                             .kept = 3,
                             .unrecorded = 4,
                             .folders = 5};
    QCOMPARE(document(toJson(end)), (QJsonObject{{u"kind"_s, u"end"_s},
                                                 {u"state"_s, u"cancelled"_s},
                                                 {u"renamed"_s, 1},
                                                 {u"refused"_s, 2},
                                                 {u"kept"_s, 3},
                                                 {u"unrecorded"_s, 4},
                                                 {u"folders"_s, 5}}));
}

void TestJournalLine::linesComeBack()
{
    JournalEntry entry = someEntry();
    for (const bool numbered : {true, false}) {
        if (!numbered)
            entry.file = {.volume = u"1"_s, .number = 0, .size = 1LL << 50, .modified = -1};
        const JournalLine line = fromJson(inside(toJson(entry)));
        const auto *read = std::get_if<JournalEntry>(&line);
        QVERIFY(read);
        QCOMPARE(read->number, entry.number);
        QCOMPARE(read->takesBack, entry.takesBack);
        QCOMPARE(read->folder, entry.folder);
        QCOMPARE(read->from, entry.from);
        QCOMPARE(read->to, entry.to);
        QVERIFY(read->file == entry.file);
        entry.takesBack = 12;
    }
    const JournalHeader header{1, QDateTime::currentDateTimeUtc(), {}, {}, 9, u"a"_s};
    const auto readHeader = std::get<JournalHeader>(fromJson(inside(toJson(header))));
    QCOMPARE(readHeader.time, header.time);
    QCOMPARE(readHeader.rows, 9);
    QCOMPARE(readHeader.takesBack, u"a"_s);
    const auto refusal = std::get<JournalRefusal>(fromJson(inside(toJson(JournalRefusal{4, u"taken"_s}))));
    QCOMPARE(refusal.number, 4);
    QCOMPARE(refusal.reason, u"taken"_s);
    QCOMPARE(std::get<JournalKept>(fromJson(inside(toJson(JournalKept{6})))).takesBack, 6);
    for (const auto state : {JournalFigures::State::Running, JournalFigures::State::Complete,
                             JournalFigures::State::Cancelled}) {
        const auto read =
            std::get<JournalFigures>(fromJson(inside(toJson(JournalFigures{state, 1, 2, 3, 4, 5}))));
        QCOMPARE(read.state, state);
        QCOMPARE(read.renamed, 1);
        QCOMPARE(read.refused, 2);
        QCOMPARE(read.kept, 3);
        QCOMPARE(read.unrecorded, 4);
        QCOMPARE(read.folders, 5);
    }
    QVERIFY(std::holds_alternative<JournalLeft>(fromJson(inside(toJson(JournalLeft())))));
}

void TestJournalLine::whatIsNoLineIsNone_data()
{
    QTest::addColumn<QByteArray>("line");
    const QList<QByteArray> lines = {
        "",
        " ",
        "{}",
        "[]",
        "1",
        "null",
        "{",
        R"({"kind":"rename"})",
        R"({"kind":"figures"})",
        R"({"kind":1})",
        R"({"kind":"rename","n":-1,"folder":"","from":"","to":""})",
        R"({"kind":"rename","n":1.5,"folder":"","from":"","to":""})",
        R"({"kind":"rename","n":1,"folder":"","from":"","to":{}})",
        R"({"kind":"rename","n":1,"folder":"","from":"","to":null})",
        R"({"kind":"rename","n":1,"folder":"","from":"","to":""} x)",
        R"({"kind":"rename","n":99999999999999999999,"folder":"","from":"","to":""})",
        R"({"kind":"rename","n":01,"folder":"","from":"","to":""})",
        R"({"kind":"rename","n":1,"folder":"\q","from":"","to":""})",
        R"({"kind":"rename","n":1,"folder":"\u12","from":"","to":""})",
        R"({"kind":"rename","n":1,"folder":"\u-123","from":"","to":""})",
        "{\"kind\":\"rename\",\"n\":1,\"folder\":\"\xff\",\"from\":\"\",\"to\":\"\"}",
        "{\"kind\":\"rename\",\"n\":1,\"folder\":\"\t\",\"from\":\"\",\"to\":\"\"}",
        QByteArray("\0\0\0", 3),
        R"({"kind":"run","format":"other","version":1,"time":"2026-08-01T13:57:41.123Z","rows":3})",
        R"({"kind":"run","format":"orvanto-journal","version":0,"time":"2026-08-01T13:57:41.123Z","rows":3})",
        R"({"kind":"run","format":"orvanto-journal","version":1,"time":"yesterday","rows":3})",
        R"({"kind":"run","format":"orvanto-journal","version":1,"time":"2026-08-01T13:57:41.123","rows":3})",
        R"({"kind":"run","format":"orvanto-journal","version":1,"time":"2026-08-01T13:57:41.123Z","rows":-3})",
        R"({"kind":"undo","format":"orvanto-journal","version":1,"time":"2026-08-01T13:57:41.123Z","rows":3})",
        R"({"kind":"end","state":"odd","renamed":1,"refused":1,"kept":0,"unrecorded":0,"folders":1})",
        R"({"kind":"end","state":"complete","renamed":-1,"refused":1,"kept":0,"unrecorded":0,"folders":1})",
        R"({"kind":"end","state":"complete","renamed":1099511627777,"refused":1,"kept":0,"unrecorded":0,"folders":1})",
        R"({"kind":"run","format":"orvanto-journal","version":2,"time":"2026-08-01T13:57:41.123Z","rows":3,"planned":-1})",
        R"({"kind":"run","format":"orvanto-journal","version":2,"time":"2026-08-01T13:57:41.123Z","rows":3,"planned":1099511627777})",
        R"({"kind":"run","format":"orvanto-journal","version":2,"time":"2026-08-01T13:57:41.123Z","rows":-1,"planned":3})",
        R"({"kind":"run","format":"orvanto-journal","version":2,"time":"2026-08-01T13:57:41.123Z","rows":3,"planned":3,"of":"x"})",
        R"({"kind":"undo","format":"orvanto-journal","version":2,"time":"2026-08-01T13:57:41.123Z","rows":3})",
        R"({"kind":"wish"})",
        R"({"kind":"wish","from":"a"})",
        R"({"kind":"wish","to":"b"})",
        R"({"kind":"wish","from":"a","to":1})",
        R"({"kind":"wish","from":["a"],"to":"b"})",
        R"({"kind":"wish","from":"a","to":"b","folder":null})",
        R"({"kind":"wish","from":"a","to":"b","file":true})",
        "{\"kind\":\"wish\",\"from\":\"a\",\"to\":\"\xed\xa0\x80\"}",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","file":"5"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","other":"5"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","file":"0","other":"5"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","file":"5","other":"0"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","file":"5","other":"-6"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","file":"5","other":"x"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","file":"5","other":"18446744073709551616"})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","file":"5","other":6})",
        R"({"kind":"exchange","n":1,"folder":"","from":"a","to":"b","volume":"1","size":5,"modified":6,"other":"6"})",
        R"({"kind":"exchange","n":-1,"folder":"","from":"a","to":"b","volume":"1","file":"5","other":"6"})",
        R"({"kind":"exchange","n":1,"of":-1,"folder":"","from":"a","to":"b","volume":"1","file":"5","other":"6"})",
        R"({"kind":"exchange","n":1,"from":"a","to":"b","volume":"1","file":"5","other":"6"})",
        R"({"kind":"rename","n":1,"of":1,"half":3,"folder":"","from":"a","to":"b"})",
        R"({"kind":"rename","n":1,"of":1,"half":-1,"folder":"","from":"a","to":"b"})",
        R"({"kind":"kept","of":1,"half":3})",
        R"({"kind":"back"})",
        R"({"kind":"back","n":-1})",
        R"({"kind":"back","n":"1"})",
        R"({"kind":"back","of":1})",
        R"({"kind":"back","n":1,"files":0})",
        R"({"kind":"back","n":1,"files":3})",
        R"({"kind":"back","n":1,"files":-2})",
        R"({"kind":"back","n":1,"files":4294967297})",
        R"({"kind":"kept","of":1,"files":0})",
        R"({"kind":"kept","of":1,"files":3})",
        R"({"kind":"kept","of":1,"files":1e0})",
        R"({"kind":"so far"})",
        R"({"kind":"so far","renamed":1,"refused":0,"kept":0,"unrecorded":0})",
        R"({"kind":"so far","renamed":1,"refused":0,"kept":0,"unrecorded":0,"folders":"1"})",
        R"({"kind":"Left"})",
        R"({"kind":"left"}{"kind":"left"})",
        R"({"kind":"refused"})",
        R"({"kind":"kept","of":-1})",
        R"({"a":1,"b":1,"c":1,"d":1,"e":1,"f":1,"g":1,"h":1,"i":1,"j":1,"k":1,"l":1,"m":1,"n":1,"o":1,"kind":"left","q":1})",
    };
    for (const QByteArray &line : lines)
        QTest::newRow(line.isEmpty() ? "empty" : line.toPercentEncoding(" {}[]\":,").constData()) << line;
}

void TestJournalLine::whatIsNoLineIsNone()
{
    QFETCH(const QByteArray, line);
    QVERIFY(std::holds_alternative<std::monostate>(fromJson(line)));
}

/// What our own lines never hold: two members of one name, and a mark that stands for itself.
void TestJournalLine::linesOfOthersAreReadAsJsonIs()
{
    QCOMPARE(JsonObject::parse(R"({"a":"1","a":"2"})")->text("a"), u"2"_s);
    QCOMPARE(JsonObject::parse("{\"a\":\"\xef\xbb\xbf-\"}")->text("a"), u"\uFEFF-"_s);
}

void TestJournalLine::brokenLinesAreNone()
{
    JournalEntry entry = someEntry();
    entry.to = u"é\n🎉"_s;
    const QByteArray line = inside(toJson(entry));
    for (qsizetype size = 0; size < line.size(); ++size)
        QVERIFY(std::holds_alternative<std::monostate>(fromJson(line.first(size))));
    for (qsizetype at = 0; at < line.size(); ++at) {
        QByteArray torn = line;
        torn[at] = '\0';
        QVERIFY(std::holds_alternative<std::monostate>(fromJson(torn)));
    }
    QVERIFY(std::holds_alternative<JournalEntry>(fromJson(line)));
}

/// What is accepted says the same to Qt.
void TestJournalLine::randomTextIsReadAsQtReadsIt()
{
    const QList<QByteArray> pieces = {"{",   "}",       "\"a\"", ":",       ",",      "\"",    "a",
                                      "\\n", "\\u00e9", "1",     "-0",      "0",      "12",    "\\ud83c",
                                      " ",   "\t",      "\xc3",  "\xa9",    "\\",     "\"b\"", "true",
                                      "1e5", "[",       "\\/",   "\"k\":5", "{\"a\":"};
    QRandomGenerator random(5);
    int accepted = 0;
    for (int i = 0; i < 200000; ++i) {
        QByteArray text = "{\"a\":";
        for (int parts = random.bounded(8); parts > 0; --parts)
            text += pieces.at(random.bounded(static_cast<int>(pieces.size())));
        text += random.bounded(2) ? "}" : "\"}";
        const auto object = JsonObject::parse(text);
        if (!object)
            continue;
        ++accepted;
        QJsonParseError error;
        const QJsonObject expected = QJsonDocument::fromJson(text, &error).object();
        QVERIFY2(error.error == QJsonParseError::NoError, text.constData());
        for (const char *name : {"a", "b", "k"}) {
            const QJsonValue value = expected.value(QLatin1StringView(name));
            QVERIFY2(object->text(name).has_value() == value.isString(), text.constData());
            QVERIFY2(object->number(name).has_value() == value.isDouble(), text.constData());
            QVERIFY2(object->text(name).value_or(QString()) == value.toString(), text.constData());
            QVERIFY2(object->number(name).value_or(0) == value.toInteger(), text.constData());
        }
    }
    QVERIFY(accepted > 1000);
}

QTEST_GUILESS_MAIN(TestJournalLine)
#include "tst_journalline.moc"
