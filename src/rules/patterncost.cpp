// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "rules/patterncost.h"

#include <algorithm>

namespace {

// The engine's parser recurses once per level and overflows a stack of 8 MiB at some 8,000 levels.
constexpr int maxDepth = 100;
// The engine reads what is repeated by a count once for each repetition.
constexpr double maxCharactersRead = 100'000;
// The longest file name that file systems take.
constexpr double nameLength = 255;
// Transitions looked at while one name is searched: some 5 ns each, 100 ns at worst.
constexpr double maxSteps = 2e8;
// A count above this is an error to the engine.
constexpr int maxCount = 1024;
// One automaton takes no more lookaheads than this: with more the pattern is invalid, but only after the
// engine has built each of them.
constexpr double maxLookaheads = 13;
// The highest capture that the engine lets a back-reference name. With a number beyond its integers it
// crashes.
constexpr int maxBackReference = 14;
// A back-reference waits, once for each place where it may have begun, until its end is reached.
constexpr double edgesOfABackReference = 64;
// Every state carries the captures of its path along.
constexpr double capturesThatDoubleTheWork = 8;

/// What the engine's automaton for a part of the pattern amounts to. All are numbers of double: no product of
/// counts overflows them.
struct Part
{
    double first = 0;      ///< states that a match may begin with
    double last = 0;       ///< states that a match may end with
    double edges = 0;      ///< transitions, those with lookaheads counted by the work of these
    double length = 0;     ///< characters that a match has at most
    double head = 0;       ///< work of the lookaheads before each state of first
    double tail = 0;       ///< work of the lookaheads behind each state of last
    double skip = 0;       ///< work of the lookaheads where it matches no character
    double read = 0;       ///< characters read to compile it
    double lookaheads = 0; ///< of the automaton itself, those that are repeated by a count once for each time
    bool isNullable = true;
};

Part inSequence(const Part &left, const Part &right)
{
    Part both;
    both.edges = left.edges + right.edges + left.last * right.first * (1 + left.tail + right.head);
    both.first = left.first + (left.isNullable ? right.first : 0);
    both.last = right.last + (right.isNullable ? left.last : 0);
    both.head = std::max(left.head, left.isNullable && right.first > 0 ? left.skip + right.head : 0);
    both.tail = std::max(right.tail, right.isNullable && left.last > 0 ? left.tail + right.skip : 0);
    both.skip = left.skip + right.skip;
    both.length = left.length + right.length;
    both.read = left.read + right.read;
    both.lookaheads = left.lookaheads + right.lookaheads;
    both.isNullable = left.isNullable && right.isNullable;
    return both;
}

Part eitherOf(const Part &left, const Part &right)
{
    Part either;
    either.first = left.first + right.first;
    either.last = left.last + right.last;
    either.edges = left.edges + right.edges;
    either.length = std::max(left.length, right.length);
    either.head = std::max(left.head, right.head);
    either.tail = std::max(left.tail, right.tail);
    either.skip = left.skip + right.skip;
    either.read = left.read + right.read;
    either.lookaheads = left.lookaheads + right.lookaheads;
    either.isNullable = left.isNullable || right.isNullable;
    return either;
}

/// The transitions looked at for a match that begins at one given character.
double workPerStart(const Part &part)
{
    const double rounds = std::min(part.length, nameLength) + 1;
    return 1 + part.skip + part.first * (1 + part.head) + rounds * (part.edges + part.last * (1 + part.tail));
}

/// Digits of other scripts are letters to the engine.
bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/// Reads a pattern the way the engine's parser does.
class PatternReader final
{
public:
    explicit PatternReader(QStringView source)
        : pattern(source)
    {
    }

    [[nodiscard]] bool isTooDeep() const { return tooDeep; }
    [[nodiscard]] bool hasTooManyLookaheads() const { return tooManyLookaheads; }
    [[nodiscard]] bool hasTooHighReference() const { return refersTooFar; }
    [[nodiscard]] int captureCount() const { return captures; }

    Part readAlternatives()
    {
        Part all = readSequence();
        while (take(u'|'))
            all = eitherOf(all, readSequence());
        return all;
    }

private:
    [[nodiscard]] bool isAtEnd() const { return tooDeep || position >= pattern.size(); }
    [[nodiscard]] bool isAt(char16_t character) const
    {
        return !isAtEnd() && pattern.at(position) == character;
    }
    bool take(char16_t character)
    {
        const bool isThere = isAt(character);
        position += isThere ? 1 : 0;
        return isThere;
    }

    Part readSequence()
    {
        Part all;
        while (!isAtEnd() && !isAt(u'|') && !isAt(u')'))
            all = inSequence(all, readFactor());
        return all;
    }

    Part readFactor()
    {
        const qsizetype begin = position;
        Part atom = readAtom();
        atom.read += static_cast<double>(position - begin);
        if (take(u'*'))
            return repeated(atom, 0, maxCount, true);
        if (take(u'+'))
            return repeated(atom, 1, maxCount, true);
        if (take(u'?'))
            return repeated(atom, 0, 1, false);
        if (!take(u'{'))
            return atom;
        const int least = readCount(0);
        const bool isRange = take(u',');
        const int most = isRange ? readCount(-1) : least;
        take(u'}');
        return repeated(atom, least, most < 0 ? maxCount : most, most < 0);
    }

    int readCount(int valueWithoutDigits)
    {
        int count = valueWithoutDigits;
        for (; !isAtEnd() && isDigit(pattern.at(position)); ++position)
            count = std::min(std::max(count, 0) * 10 + pattern.at(position).digitValue(), maxCount);
        return count;
    }

    Part readAtom()
    {
        const char16_t character = pattern.at(position++).unicode();
        switch (character) {
        case u'(':
            return readGroup();
        case u'[':
            skipSet();
            return state();
        case u'\\':
            return readEscape();
        case u'^':
        case u'$':
            return {};
        default:
            return state();
        }
    }

    Part readGroup()
    {
        bool isLookahead = false;
        if (take(u'?'))
            isLookahead = take(u'=') || take(u'!') || !take(u':');
        else
            ++captures;
        tooDeep = tooDeep || ++depth > maxDepth;
        const Part inside = readAlternatives();
        --depth;
        take(u')');
        if (!isLookahead)
            return inside;
        tooManyLookaheads = tooManyLookaheads || inside.lookaheads > maxLookaheads;
        Part lookahead;
        lookahead.lookaheads = 1;
        lookahead.skip = workPerStart(inside);
        lookahead.read = inside.read;
        return lookahead;
    }

    Part readEscape()
    {
        if (isAtEnd())
            return {};
        const QChar character = pattern.at(position++);
        if (character == u'b' || character == u'B')
            return {};
        Part part = state();
        if (isDigit(character) && character != u'0') {
            // A back-reference; what it refers to may be empty.
            --position;
            refersTooFar = refersTooFar || readCount(0) > maxBackReference;
            part.length = nameLength;
            part.isNullable = true;
            part.edges = edgesOfABackReference;
        }
        return part;
    }

    void skipSet()
    {
        take(u'^');
        // A bracket at the first place closes nothing.
        do {
            take(u'\\');
            ++position;
        } while (!isAtEnd() && !isAt(u']'));
        take(u']');
    }

    static Part state()
    {
        Part part;
        part.first = part.last = part.length = 1;
        part.isNullable = false;
        return part;
    }

    /// Counts are written out: least times the part, then each further one within the one before it.
    static Part repeated(const Part &part, int least, int most, bool isEndless)
    {
        Part last = part;
        if (isEndless) {
            last.edges += part.last * part.first * (1 + part.tail + part.head);
            last.length = part.length > 0 ? nameLength : 0;
        }
        last.isNullable = part.isNullable || least == 0;
        const int mandatory = std::max(least - 1, 0);
        const int optional = isEndless ? 0 : std::max(most - mandatory - 1, 0);
        Part all;
        for (int i = 0; i < optional; ++i) {
            all = inSequence(part, all);
            all.isNullable = true;
        }
        for (int i = 0; i < mandatory; ++i)
            all = inSequence(part, all);
        return inSequence(all, last);
    }

    QStringView pattern;
    qsizetype position = 0;
    int depth = 0;
    int captures = 0;
    bool tooDeep = false;
    bool tooManyLookaheads = false;
    bool refersTooFar = false;
};

} // namespace

bool isAffordablePattern(QStringView pattern)
{
    PatternReader reader(pattern);
    const Part whole = reader.readAlternatives();
    const double steps =
        nameLength * workPerStart(whole) * (1 + reader.captureCount() / capturesThatDoubleTheWork);
    if (reader.isTooDeep() || reader.hasTooHighReference())
        return false;
    if (reader.hasTooManyLookaheads() || whole.lookaheads > maxLookaheads)
        return false;
    return whole.read <= maxCharactersRead && steps <= maxSteps;
}
