// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "cli/shellquote.h"

#include "unit/cli/shellwords.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

/// Names as words of a shell, which steer no terminal.
class TestShellQuote final : public QObject
{
    Q_OBJECT

private slots:
    void namesAreQuotedAsLsDoes_data();
    void namesAreQuotedAsLsDoes();
    void whatIsQuotedIsPrintableAndComesBack();
};

void TestShellQuote::namesAreQuotedAsLsDoes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("quoted");
    const auto row = [](const QString &name, const QString &quoted) {
        QTest::addRow("%s", quoted.toUtf8().constData()) << name << quoted;
    };
    row(u""_s, u"''"_s);
    row(u"a.txt"_s, u"a.txt"_s);
    row(u"-x"_s, u"-x"_s);
    row(u"日本語 é😀"_s, u"'日本語 é😀'"_s);
    row(u"日本語é😀"_s, u"日本語é😀"_s);
    row(u"it's"_s, u"\"it's\""_s);
    row(u"it's a"_s, u"\"it's a\""_s);
    row(u"it's $"_s, u"'it'\\''s $'"_s);
    row(u"it's {"_s, u"'it'\\''s {'"_s);
    row(u"'"_s, u"\"'\""_s);
    row(u"\""_s, u"'\"'"_s);
    row(u"a\\b"_s, u"'a\\b'"_s);
    row(u"#x"_s, u"'#x'"_s);
    row(u"x#"_s, u"x#"_s);
    row(u"~"_s, u"'~'"_s);
    row(u"a~"_s, u"a~"_s);
    row(u"{"_s, u"'{'"_s);
    row(u"a{b"_s, u"a{b"_s);
    row(u"a]b,c%d+e:f@g"_s, u"a]b,c%d+e:f@g"_s);
    for (const QChar special : u" !\"$&()*;<=>?[^`|"_s)
        row(u'a' + QString(special) + u'b', u"'a"_s + special + u"b'"_s);
    row(u"a\nb"_s, u"'a'$'\\n''b'"_s);
    row(u"\n"_s, u"''$'\\n'"_s);
    row(u"\n'"_s, u"''$'\\n'\\'''"_s);
    row(u"a'\nb"_s, u"'a'\\'''$'\\n''b'"_s);
    row(u"\x1b[31m"_s, u"''$'\\033''[31m'"_s);
    row(u"\a\b\f\r\t\v\x7f"_s, u"''$'\\a\\b\\f\\r\\t\\v\\177'"_s);
    row(u"\u0085"_s, u"''$'\\302\\205'"_s);
    row(u'a' + QString(QChar(0xDCFF)), u"'a'$'\\377'"_s);
    // ls would print these two as they are: the one leads astray whoever reads it, the other is two words.
    row(u"a\u202Egpj.exe"_s, u"'a'$'\\342\\200\\256''gpj.exe'"_s);
    row(u"a{b,c}"_s, u"'a{b,c}'"_s);
}

void TestShellQuote::namesAreQuotedAsLsDoes()
{
    QFETCH(QString, name);
    QFETCH(QString, quoted);
    QCOMPARE(shellQuoted(name), quoted);
    QCOMPARE(shellWords(quoted), QList<QByteArray>{bytesOfText(name)});
}

void TestShellQuote::whatIsQuotedIsPrintableAndComesBack()
{
    QRandomGenerator random(1);
    for (int round = 0; round < 20'000; ++round) {
        QByteArray bytes;
        for (int i = random.bounded(8); i >= 0; --i)
            bytes.append(
                static_cast<char>(random.bounded(2) ? 1 + random.bounded(0x7F) : random.bounded(1, 256)));
        const QString quoted = shellQuoted(textOfBytes(bytes));
        QVERIFY(quoted.isValidUtf16());
        for (const QChar character : quoted)
            QVERIFY(character.category() != QChar::Other_Control);
        QCOMPARE(shellWords(quoted), QList<QByteArray>{bytes});
    }
}

QTEST_APPLESS_MAIN(TestShellQuote)
#include "tst_shellquote.moc"
