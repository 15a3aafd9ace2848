// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT
//
// Writes what QRegExp makes of random patterns and subjects: qregexp-check SEED COUNT FILE.
// The same seed gives the same cases on every system, so the files of two builds can be compared line by
// line.

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QStringList>
#include <QtCore/QTextStream>
#include <QtCore5Compat/QRegExp>
#include <cstdio>

namespace {

/// SplitMix64: the standard library's distributions differ between systems.
class Random final
{
public:
    explicit Random(quint64 seed)
        : m_state(seed)
    {
    }

    /// 0 … bound - 1
    int below(int bound)
    {
        m_state += 0x9e3779b97f4a7c15ULL;
        quint64 mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9ULL;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebULL;
        return int((mixed ^ (mixed >> 31)) % quint64(bound));
    }

    QString pick(const QStringList &from) { return from.at(below(int(from.size()))); }

private:
    quint64 m_state;
};

const QStringList &atoms()
{
    static const QStringList list{
        QStringLiteral("a"),       QStringLiteral("b"),          QStringLiteral("c"),
        QStringLiteral("A"),       QStringLiteral("1"),          QStringLiteral("."),
        QStringLiteral(" "),       QStringLiteral("_"),          QStringLiteral("\u00e4"),
        QStringLiteral("\u042f"),  QStringLiteral("\\."),        QStringLiteral("\\d"),
        QStringLiteral("\\D"),     QStringLiteral("\\w"),        QStringLiteral("\\W"),
        QStringLiteral("\\s"),     QStringLiteral("\\S"),        QStringLiteral("\\b"),
        QStringLiteral("\\B"),     QStringLiteral("\\1"),        QStringLiteral("\\2"),
        QStringLiteral("\\t"),     QStringLiteral("\\x0061"),    QStringLiteral("\\0141"),
        QStringLiteral("[a-c]"),   QStringLiteral("[^a-c]"),     QStringLiteral("[\\d_]"),
        QStringLiteral("[^\\s.]"), QStringLiteral("^"),          QStringLiteral("$"),
        QStringLiteral("-"),       QStringLiteral("[]a]"),       QStringLiteral("\\("),
        QStringLiteral("\\\\"),    QStringLiteral("\U0001F600"),
    };
    return list;
}

/// Pieces that are wrong by themselves, so that refusals are compared as well.
const QStringList &oddities()
{
    static const QStringList list{
        QStringLiteral("("),      QStringLiteral(")"),     QStringLiteral("["),     QStringLiteral("]"),
        QStringLiteral("{"),      QStringLiteral("}"),     QStringLiteral("*"),     QStringLiteral("+"),
        QStringLiteral("\\"),     QStringLiteral("|"),     QStringLiteral("{2,1}"), QStringLiteral("{9999}"),
        QStringLiteral("(?<=a)"), QStringLiteral("[z-a]"), QStringLiteral("\\9"),   QStringLiteral("??"),
        QStringLiteral("\\08"),   QStringLiteral("(?i)"),
    };
    return list;
}

const QStringList &properties()
{
    static const QStringList list{QStringLiteral("\\p{Lu}"), QStringLiteral("\\P{Nd}"),
                                  QStringLiteral("\\i"),     QStringLiteral("\\c"),
                                  QStringLiteral("\\p{Xx}"), QStringLiteral("\\I")};
    return list;
}

QString randomPattern(Random &random, int depth)
{
    static const QStringList quantifiers{
        QStringLiteral("*"),     QStringLiteral("+"),    QStringLiteral("?"),    QStringLiteral("{2}"),
        QStringLiteral("{1,3}"), QStringLiteral("{,2}"), QStringLiteral("{0,1}")};
    static const QStringList openers{QStringLiteral("("),   QStringLiteral("("),   QStringLiteral("("),
                                     QStringLiteral("(?:"), QStringLiteral("(?="), QStringLiteral("(?!")};
    QString pattern;
    const int pieces = 1 + random.below(4);
    for (int i = 0; i < pieces; ++i) {
        const int kind = random.below(100);
        if (kind < 25 && depth > 0)
            pattern += random.pick(openers) + randomPattern(random, depth - 1) + u')';
        else if (kind < 28)
            pattern += random.pick(oddities());
        else
            pattern += random.pick(atoms());
        if (random.below(4) == 0)
            pattern += random.pick(quantifiers);
        if (depth > 0 && random.below(10) == 0)
            pattern += u'|';
    }
    return pattern;
}

QString randomSubject(Random &random)
{
    static const QStringList pieces{
        QStringLiteral("a"),      QStringLiteral("b"),          QStringLiteral("c"),
        QStringLiteral("A"),      QStringLiteral("aa"),         QStringLiteral("abc"),
        QStringLiteral("1"),      QStringLiteral("42"),         QStringLiteral(" "),
        QStringLiteral("."),      QStringLiteral("_"),          QStringLiteral("-"),
        QStringLiteral("\t"),     QStringLiteral("\\"),         QStringLiteral("("),
        QStringLiteral("\u00e4"), QStringLiteral("\u00c4"),     QStringLiteral("\u042f"),
        QStringLiteral("\u0301"), QStringLiteral("\U0001F600"), QStringLiteral(".txt"),
        QStringLiteral("]"),
    };
    QString subject;
    for (int left = random.below(14); left > 0; --left)
        subject += random.pick(pieces);
    return subject;
}

QString randomReplacement(Random &random)
{
    static const QStringList pieces{
        QStringLiteral("x"),     QStringLiteral("a"),      QStringLiteral("-"),        QStringLiteral("\\1"),
        QStringLiteral("\\2"),   QStringLiteral("\\0"),    QStringLiteral("\\9"),      QStringLiteral("\\10"),
        QStringLiteral("\\11"),  QStringLiteral("\\12"),   QStringLiteral("\\"),       QStringLiteral("3"),
        QStringLiteral("\\\\1"), QStringLiteral("\u0662"), QStringLiteral("\\\u0661"), QStringLiteral(" "),
    };
    QString after;
    for (int left = random.below(5); left > 0; --left)
        after += random.pick(pieces);
    return after;
}

/// Some patterns need ten captures and more, for references of two digits.
QString manyCaptures(Random &random)
{
    QString pattern;
    const int groups = 9 + random.below(5);
    for (int i = 0; i < groups; ++i)
        pattern += u'(' + random.pick(atoms()) + QStringLiteral(")?");
    return pattern;
}

/// ASCII only, so that no code page can change what is written.
QString shown(const QString &text)
{
    QString result(text.isNull() ? u'N' : u'"');
    for (const QChar character : text) {
        if (character.unicode() >= 0x20 && character.unicode() < 0x7f && character != u'"' &&
            character != u'%')
            result += character;
        else
            result += u'%' + QString::number(character.unicode(), 16) + u';';
    }
    return result + u'"';
}

QString shown(const QStringList &texts)
{
    QStringList parts;
    for (const QString &text : texts)
        parts += shown(text);
    return parts.join(u' ');
}

QString captures(const QRegExp &pattern)
{
    QString result = QString::number(pattern.matchedLength());
    for (int i = 0; i <= pattern.captureCount(); ++i)
        result += u' ' + QString::number(pattern.pos(i)) + shown(pattern.cap(i));
    return result + u' ' + shown(pattern.capturedTexts());
}

void writeMatches(QTextStream &out, const QRegExp &pattern, const QString &subject, Random &random)
{
    const int offset = random.below(int(subject.size()) + 2) - 1;
    const auto caret = QRegExp::CaretMode(random.below(3));
    out << "  index " << pattern.indexIn(subject) << ' ' << captures(pattern) << '\n';
    out << "  from " << offset << ' ' << int(caret) << ' ' << pattern.indexIn(subject, offset, caret) << ' '
        << captures(pattern) << '\n';
    out << "  last " << pattern.lastIndexIn(subject) << ' ' << captures(pattern) << '\n';
    out << "  exact " << pattern.exactMatch(subject) << ' ' << captures(pattern) << '\n';
    out << "  count " << pattern.countIn(subject) << ' ' << pattern.containedIn(subject) << '\n';
}

void writeCase(QTextStream &out, int number, Random &random)
{
    const int kind = random.below(20);
    // Character properties stand in front only: inside a lookahead Debian's library reads an uninitialised
    // member for them, so that its answer changes from run to run.
    const QString property = random.below(40) == 0 ? random.pick(properties()) : QString();
    const QString text = property + (kind == 0 ? manyCaptures(random) : randomPattern(random, 2));
    const auto syntax = kind < 17 ? QRegExp::RegExp : QRegExp::PatternSyntax(random.below(6));
    const auto sensitivity = random.below(4) == 0 ? Qt::CaseInsensitive : Qt::CaseSensitive;
    QRegExp pattern(text, sensitivity, syntax);
    pattern.setMinimal(random.below(6) == 0);
    out << number << ' ' << shown(text) << " syntax " << int(syntax) << " case " << int(sensitivity)
        << " minimal " << pattern.isMinimal() << " valid " << pattern.isValid() << ' '
        << shown(pattern.errorString()) << " groups " << pattern.captureCount() << " escaped "
        << shown(QRegExp::escape(text)) << '\n';
    QStringList subjects;
    for (int i = 0; i < 3; ++i) {
        const QString subject = randomSubject(random);
        const QString after = randomReplacement(random);
        subjects += subject;
        out << " subject " << shown(subject) << " after " << shown(after) << '\n';
        writeMatches(out, pattern, subject, random);
        out << "  replace " << shown(pattern.replaceIn(subject, after)) << '\n';
        out << "  remove " << shown(pattern.removeIn(subject)) << '\n';
        out << "  split " << shown(pattern.splitString(subject)) << " | "
            << shown(pattern.splitString(subject, Qt::SkipEmptyParts)) << '\n';
    }
    const int from = random.below(6) - 3;
    out << " list " << from << ' ' << pattern.indexIn(subjects, from) << ' '
        << pattern.lastIndexIn(subjects, from) << ' ' << shown(pattern.filterList(subjects)) << " | "
        << shown(pattern.replaceIn(subjects, text)) << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 4) {
        std::fputs("usage: qregexp-check SEED COUNT FILE\n", stderr);
        return 2;
    }
    const QStringList arguments = QCoreApplication::arguments();
    Random random(arguments.at(1).toULongLong());
    QFile file(arguments.at(3));
    if (!file.open(QIODevice::WriteOnly)) {
        std::fputs("cannot write the result file\n", stderr);
        return 2;
    }
    QTextStream out(&file);
    const int count = arguments.at(2).toInt();
    for (int number = 0; number < count; ++number)
        writeCase(out, number, random);
    out.flush();
    return out.status() == QTextStream::Ok && file.flush() ? 0 : 1;
}
