// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "core/translationfile.h"

#include "support/temptree.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

QByteArray number(quint32 value, int bytes)
{
    QByteArray big;
    for (int i = bytes - 1; i >= 0; --i)
        big += static_cast<char>(value >> (8 * i));
    return big;
}

/// Bytes behind their length.
QByteArray block(const QByteArray &bytes)
{
    return number(static_cast<quint32>(bytes.size()), 4) + bytes;
}

const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
const QByteArray german = QByteArray::fromHex("00450072007300650074007a0065006e"); // Ersetzen

// The kinds of sections and the parts of a message.
const QByteArray contexts("\x2f");
const QByteArray hashes("\x42");
const QByteArray messages("\x69");
const QByteArray rulesForNumbers("\x88");
const QByteArray dependencies("\x96");
const QByteArray translation("\x03");
const QByteArray sourceText("\x06");
const QByteArray context("\x07");
const QByteArray comment("\x08");
const QByteArray end("\x01");

// Of "Replace".
const QByteArray hash = QByteArray::fromHex("08c727c5");

const QByteArray message = translation + block(german) + comment + block({}) + sourceText + block("Replace") +
                           context + block("Rules") + end;

/// One message, its text under its hash.
QByteArray file(const QByteArray &messageBytes, quint32 place = 0)
{
    return magic + hashes + block(hash + number(place, 4)) + messages + block(messageBytes);
}

QString translated(const QByteArray &content)
{
    QTranslator translator;
    if (!translator.load(reinterpret_cast<const uchar *>(content.constData()),
                         static_cast<int>(content.size())))
        return u"(not loaded)"_s;
    return translator.translate("Rules", "Replace");
}

} // namespace

class TestTranslationFile final : public QObject
{
    Q_OBJECT

private slots:
    void wholeFilesAreTaken_data();
    void wholeFilesAreTaken();
    void damagedFilesAreNot_data();
    void damagedFilesAreNot();
    void dependenciesAreLeftOut();
    void ofSeveralSectionsTheLastCounts();
    void longListsOfNamesAreReadOnce();
};

void TestTranslationFile::wholeFilesAreTaken_data()
{
    QTest::addColumn<QByteArray>("content");
    // 1 entry, at 2 of the pool, which is behind a byte to fill up: "Rules" is hashed into the only place.
    const QByteArray names = number(1, 2) + number(1, 2) + number(0, 2) + '\x05' + "Rules" + '\0' + '\0';

    QTest::newRow("made by lrelease") << readFile(u":/languages/sample-de_DE.qm"_s);
    QTest::newRow("one message") << file(message);
    QTest::newRow("message behind another") << file(end + message, 1);
    QTest::newRow("obsolete part") << file('\x05' + number(0, 4) + message);
    QTest::newRow("with contexts") << file(message) + contexts + block(names);
    QTest::newRow("with rules for numbers")
        << file(message) + rulesForNumbers + block(QByteArray("\x01\x01"));
    QTest::newRow("unknown section") << file(message) + '\x11' + block("x");
    QTest::newRow("empty section") << file(message) + contexts + block({});
    QTest::newRow("sections in another order")
        << magic + messages + block(message) + hashes + block(hash + number(0, 4));
}

void TestTranslationFile::wholeFilesAreTaken()
{
    QFETCH(QByteArray, content);
    const QByteArray checked = installableTranslation(content);
    QCOMPARE(translated(checked), u"Ersetzen"_s);
    QCOMPARE(installableTranslation(checked), checked);
}

void TestTranslationFile::damagedFilesAreNot_data()
{
    QTest::addColumn<QByteArray>("content");
    const auto withContexts = [](const QByteArray &bytes) -> QByteArray {
        return file(message) + contexts + block(bytes);
    };

    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("another magic number") << 'x' + file(message).mid(1);
    QTest::newRow("magic number cut off") << magic.chopped(1);
    QTest::newRow("section beyond the end") << file(message).chopped(1);
    QTest::newRow("length cut off") << magic + messages + QByteArray(3, '\0');
    QTest::newRow("kind alone") << magic + messages;
    QTest::newRow("section of 4 GiB") << magic + messages + number(0xffffffff, 4) + message;
    QTest::newRow("more behind the last section") << file(message) + "more";
    QTest::newRow("hash cut off") << magic + hashes + block(hash + number(0, 3)) + messages + block(message);
    QTest::newRow("three bytes behind the last hash")
        << magic + hashes + block(hash + number(0, 4) + number(0, 3)) + messages + block(message);
    QTest::newRow("place behind the last message") << file(message, static_cast<quint32>(message.size()));
    QTest::newRow("place beyond the messages") << file(message, 0x7fffffff);
    QTest::newRow("place within a message") << file(message, 1);
    QTest::newRow("places without messages") << magic + hashes + block(hash + number(0, 4));
    QTest::newRow("message without end") << file(message.chopped(1));
    QTest::newRow("second message without end") << file(message + message.chopped(1));
    QTest::newRow("unknown part") << file("\x09" + message);
    QTest::newRow("translation beyond the end") << file(translation + number(1000, 4) + end);
    QTest::newRow("translation of an odd length") << file(translation + block("odd") + end);
    QTest::newRow("translation of a negative length") << file(translation + number(0xfffffffe, 4) + end);
    QTest::newRow("length of a translation cut off") << file(translation + number(0, 3));
    QTest::newRow("obsolete part beyond the end") << file('\x05' + number(0, 3));
    QTest::newRow("source text beyond the end") << file(sourceText + number(0xffffffff, 4) + end);
    QTest::newRow("context beyond the end") << file(context + number(3, 4) + end + end);
    QTest::newRow("comment beyond the end") << file(comment + number(2, 4) + end);
    QTest::newRow("no contexts in their table") << withContexts(number(0, 2));
    QTest::newRow("number of contexts cut off") << withContexts(QByteArray(1, '\x01'));
    QTest::newRow("table of contexts cut off") << withContexts(number(2, 2) + number(0, 2));
    QTest::newRow("context beyond the pool") << withContexts(number(1, 2) + number(9, 2) + number(0, 2));
    QTest::newRow("context at the end of the pool")
        << withContexts(number(1, 2) + number(1, 2) + number(0, 2));
    QTest::newRow("names without end")
        << withContexts(number(1, 2) + number(1, 2) + number(0, 2) + "\x05Rules");
    QTest::newRow("name beyond the pool")
        << withContexts(number(1, 2) + number(1, 2) + number(0, 2) + "\x06Rules");
}

void TestTranslationFile::damagedFilesAreNot()
{
    QFETCH(QByteArray, content);
    QCOMPARE(installableTranslation(content), QByteArray());
}

void TestTranslationFile::dependenciesAreLeftOut()
{
    const QByteArray checked = installableTranslation(file(message) + dependencies + block("any"));
    QCOMPARE(checked, installableTranslation(file(message)));
}

void TestTranslationFile::ofSeveralSectionsTheLastCounts()
{
    QCOMPARE(installableTranslation(magic + messages + block("damaged") + file(message).mid(magic.size())),
             installableTranslation(file(message)));
    QCOMPARE(installableTranslation(file(message) + messages + block("damaged")), QByteArray());
}

// 65535 places, each the beginning of a list that is read to its end, would take minutes.
void TestTranslationFile::longListsOfNamesAreReadOnce()
{
    QByteArray table = number(0xffff, 2);
    for (quint32 place = 1; place <= 0xffff; ++place)
        table += number(place, 2);
    const QByteArray pool = QByteArray("\x01x").repeated(0x10000) + '\0';
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!installableTranslation(file(message) + contexts + block(table + pool)).isEmpty());
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(TestTranslationFile)
#include "tst_translationfile.moc"
