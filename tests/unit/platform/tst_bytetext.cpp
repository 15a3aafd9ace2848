// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "platform/bytetext.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/// Text of bytes that may be none, and back.
class TestByteText final : public QObject
{
    Q_OBJECT

private slots:
    void textIsWhatUtf8Says();
    void bytesThatAreNoTextAreHalvesOfCharacters_data();
    void bytesThatAreNoTextAreHalvesOfCharacters();
    void anyBytesComeBack();
    void otherHalvesAreNoUtf8();
    void asciiIsWrittenAlone();
};

void TestByteText::textIsWhatUtf8Says()
{
    for (const QString &text :
         {QString(), u"a/b.txt"_s, u"straße 日本語 😀"_s, u"\uFEFFname"_s, u"\uFFFD"_s, u"e\u0301"_s}) {
        QCOMPARE(textOfBytes(text.toUtf8()), text);
        QCOMPARE(bytesOfText(text), text.toUtf8());
    }
}

void TestByteText::bytesThatAreNoTextAreHalvesOfCharacters_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto half = [](int byte) {
        return QString(QChar(0xDC00 + byte));
    };
    QTest::newRow("a lone byte") << QByteArray("a\xFF.txt") << u'a' + half(0xFF) + u".txt"_s;
    QTest::newRow("cut off") << QByteArray("\xE6\x97") << half(0xE6) + half(0x97);
    QTest::newRow("cut off before text") << QByteArray("\xE6\x97/x") << half(0xE6) + half(0x97) + u"/x"_s;
    QTest::newRow("beside characters") << QByteArray("\xC3\xA9\x80\xC3\xA9") << u"é"_s + half(0x80) + u"é"_s;
    QTest::newRow("too long a form") << QByteArray("\xC0\xAF") << half(0xC0) + half(0xAF);
    QTest::newRow("half a character") << QByteArray("\xED\xA0\x80") << half(0xED) + half(0xA0) + half(0x80);
}

void TestByteText::bytesThatAreNoTextAreHalvesOfCharacters()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(textOfBytes(bytes), text);
    QVERIFY(!textOfBytes(bytes).isValidUtf16());
    QCOMPARE(bytesOfText(text), bytes);
}

void TestByteText::anyBytesComeBack()
{
    QRandomGenerator random(1);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray bytes;
        for (int i = random.bounded(12); i > 0; --i)
            bytes.append(
                static_cast<char>(random.bounded(3) ? 0x80 + random.bounded(0x80) : random.bounded(256)));
        QCOMPARE(bytesOfText(textOfBytes(bytes)), bytes);
    }
}

void TestByteText::otherHalvesAreNoUtf8()
{
    const QByteArray bytes = bytesOfText(QString(u"a"_s + QChar(0xD83D)));
    QCOMPARE(bytes, QByteArray("a\xED\xA0\xBD"));
    QVERIFY(!bytes.isValidUtf8());
}

void TestByteText::asciiIsWrittenAlone()
{
    const QString untouched(8, u'-');
    for (const QByteArray &bytes : {QByteArray(), QByteArray("a b\x7F\n")}) {
        QString text = untouched;
        QCOMPARE(writeAscii(bytes, text.data()), text.data() + bytes.size());
        QCOMPARE(text, QString::fromLatin1(bytes) + untouched.sliced(bytes.size()));
    }
    for (const QByteArray &bytes : {QByteArray("\x80"), QByteArray("ab\xFF"), QByteArray("é")}) {
        QString text = untouched;
        QCOMPARE(writeAscii(bytes, text.data()), nullptr);
        QCOMPARE(text, untouched);
    }
}

QTEST_APPLESS_MAIN(TestByteText)
#include "tst_bytetext.moc"
