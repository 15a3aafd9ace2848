// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/patterncost.h"

#include "platform/processortime.h"

#include <QMultiMap>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

// The way of a pattern, which docs/patterns.md tells the reasons of:
// - PatternReader follows the engine's parser through it, and adds up in a Part for each of its parts what
// the
//   automaton would amount to (inSequence, eitherOf, repeated, check). patternCost() is what comes out.
// - Where that decides nothing, adverseNames() makes the names that such a pattern may take longest for, and
//   isQuickEnough() has them searched, longer from time to time, with a clock beside it.

namespace {

// The longest file name that file systems take.
constexpr int nameLength = 255;
constexpr double longestSearch = 50; // milliseconds
// The engine's parser recurses once per level and overflows a stack of 8 MiB at some 8,000 levels.
constexpr int maxDepth = 100;
// Each level multiplies the time by the name's length: too much from one trial to the next.
constexpr int maxLookaheadDepth = 8;
// A count above this is an error to the engine, and back-references far above it are a crash.
constexpr int maxCount = 1024;
// Transitions of the automaton: a tenth of a second and 30 MB to compile.
constexpr double maxEdges = 100'000;
// The engine takes 13 lookaheads beside each other, but builds all that there are before it says so.
constexpr double edgesOfALookahead = maxEdges / 14;
// States times captures, of which the engine holds 16 bytes each.
constexpr double maxCaptureCells = 1e7;
// So many can be looked at for each character of a name in no time. What may look at a name more than once
// counts as more: loops let a dozen others beside them, lookaheads and back-references none.
constexpr double fewEdges = 300;
constexpr double edgesOfALoop = fewEdges - 20;

/// What the engine's automaton for a part of the pattern amounts to: the states that a match may begin and
/// end with, the transitions with what else takes time to compile, and the ways in which anchors may hold
/// where no character is matched. No product of counts overflows double.
struct Part
{
    double first = 0;
    double last = 0;
    double edges = 1;
    double ways = 1;
    bool isNullable = true;
};

constexpr Part state{.first = 1, .last = 1, .isNullable = false};

Part inSequence(const Part &left, const Part &right)
{
    return {left.first + (left.isNullable ? right.first : 0), right.last + (right.isNullable ? left.last : 0),
            left.edges + right.edges + left.last * right.first, left.ways * right.ways,
            left.isNullable && right.isNullable};
}

Part eitherOf(const Part &left, const Part &right)
{
    const bool areNullable = left.isNullable && right.isNullable;
    return {left.first + right.first, left.last + right.last, left.edges + right.edges,
            areNullable ? left.ways + right.ways : std::max(left.ways, right.ways),
            left.isNullable || right.isNullable};
}

/// Reads a pattern the way the engine's parser does.
struct PatternReader
{
    QStringView pattern;
    qsizetype position = 0;
    int depth = 0;
    int lookaheadDepth = 0;
    int captures = 0;
    bool isExhausting = false;

    PatternCost cost()
    {
        const Part all = readAlternatives();
        check(all);
        if (isExhausting || captures * all.edges > maxCaptureCells)
            return PatternCost::Exhausting;
        return all.edges <= fewEdges ? PatternCost::Small : PatternCost::Unknown;
    }

    [[nodiscard]] bool isAtEnd() const { return isExhausting || position >= pattern.size(); }
    [[nodiscard]] QChar next() const { return isAtEnd() ? QChar() : pattern.at(position); }
    /// Digits of other scripts are letters to the engine.
    [[nodiscard]] bool isAtDigit() const { return next() >= u'0' && next() <= u'9'; }
    bool take(QChar character)
    {
        const bool isThere = !isAtEnd() && next() == character;
        position += isThere ? 1 : 0;
        return isThere;
    }
    int readNumber()
    {
        int number = 0;
        for (; isAtDigit(); ++position)
            number = std::min(number * 10 + pattern.at(position).digitValue(), maxCount);
        return number;
    }

    Part readAlternatives()
    {
        Part all = readSequence();
        while (take(u'|'))
            all = eitherOf(all, readSequence());
        return all;
    }

    Part readSequence()
    {
        Part all;
        while (!isAtEnd() && next() != u'|' && next() != u')')
            all = inSequence(all, readFactor());
        return all;
    }

    Part readFactor()
    {
        const Part atom = readAtom();
        if (take(u'*'))
            return repeated(atom, 0, 1, true);
        if (take(u'+'))
            return repeated(atom, 1, 1, true);
        if (take(u'?'))
            return repeated(atom, 0, 1, false);
        if (!take(u'{'))
            return atom;
        const int least = readNumber();
        const bool isRange = take(u',');
        const bool isLoop = isRange && !isAtDigit();
        const int most = std::max({least, readNumber(), 1});
        take(u'}');
        return repeated(atom, least, most, isLoop);
    }

    /// Counts are written out, each further one within the one before it.
    Part repeated(const Part &part, int least, int most, bool isLoop)
    {
        Part all = part;
        all.edges += isLoop ? part.last * part.first + edgesOfALoop : 0;
        for (int copy = most; copy > 0; --copy) {
            if (copy < most)
                all = inSequence(part, all);
            all.isNullable = all.isNullable || copy > least;
        }
        return all;
    }

    Part readAtom()
    {
        switch (pattern.at(position++).unicode()) {
        case u'(':
            return readGroup();
        case u'[':
            skipSet();
            return state;
        case u'\\':
            return readEscape();
        case u'^':
        case u'$':
            return {};
        default:
            return state;
        }
    }

    Part readGroup()
    {
        const bool isCapture = !take(u'?');
        const bool isLookahead = !isCapture && (take(u'=') || take(u'!') || !take(u':'));
        captures += isCapture ? 1 : 0;
        lookaheadDepth += isLookahead ? 1 : 0;
        isExhausting = isExhausting || ++depth > maxDepth || lookaheadDepth > maxLookaheadDepth;
        const Part inside = readAlternatives();
        take(u')');
        --depth;
        lookaheadDepth -= isLookahead ? 1 : 0;
        if (!isLookahead)
            return inside;
        check(inside);
        return {.edges = inside.edges + edgesOfALookahead};
    }

    Part readEscape()
    {
        const bool isAnchor = next() == u'b' || next() == u'B';
        if (!isAtDigit() || next() == u'0') {
            ++position;
            return isAnchor ? Part{} : state;
        }
        // A back-reference; what it refers to may be empty.
        isExhausting = isExhausting || readNumber() == maxCount;
        return {.first = 1, .last = 1, .edges = fewEdges};
    }

    void skipSet()
    {
        take(u'^');
        // A bracket at the first place closes nothing.
        do {
            take(u'\\');
            ++position;
        } while (!isAtEnd() && next() != u']');
        take(u']');
    }

    /// Every way in which anchors may hold is kept at every transition, from before it and from behind it.
    void check(const Part &automaton)
    {
        isExhausting = isExhausting || automaton.edges * automaton.ways * automaton.ways > maxEdges;
    }
};

/// Names of the greatest length on which the pattern may take long; the same ones every time.
QStringList adverseNames(QStringView pattern)
{
    static const QRegularExpression notPlain(uR"(\(\?[=!:]|\{[0-9,]*\}|[][(){}*+?|^$.\\])"_s);
    const QString plain = pattern.left(nameLength).toString().remove(notPlain) + u'a';
    QString letters = u"a0"_s;
    for (const QChar character : plain)
        letters += letters.contains(character) ? QString() : QString(character);
    QStringList names{plain.repeated(nameLength)};
    for (const QChar letter : letters.left(12))
        names << QString(nameLength, letter) << plain.left(nameLength / 3) + QString(nameLength, letter);
    // Runs of a few letters, and words of such runs that are repeated.
    QRandomGenerator random(1);
    for (int i = 0; i < 24; ++i) {
        const auto first = random.bounded(letters.size());
        const int kinds = 2 + random.bounded(3);
        const int longestRun = 1 + random.bounded(8);
        const int length = i % 3 == 0 ? nameLength : 2 + random.bounded(12);
        QString word;
        while (word.size() < length) {
            const QChar letter = letters.at((first + random.bounded(kinds) * 7) % letters.size());
            word += QString(1 + random.bounded(longestRun), letter);
        }
        names += word.repeated(nameLength);
    }
    return names;
}

} // namespace

PatternCost patternCost(QStringView pattern)
{
    return PatternReader{pattern}.cost();
}

bool isQuickEnough(QStringView pattern, const std::function<void(const QString &)> &search)
{
    const auto millisecondsFor = [&search](const QString &name) {
        return processorMilliseconds([&] { search(name); });
    };
    QStringList names = adverseNames(pattern);
    double costBefore = 0.001;
    int lengthBefore = 1;
    for (int length = 8;;) {
        QMultiMap<double, QString> costs;
        for (const QString &name : std::as_const(names)) {
            costs.insert(millisecondsFor(name.left(length)), name);
            // Once more: the processor may have been busy with something else.
            if (costs.lastKey() > longestSearch && millisecondsFor(name.left(length)) > longestSearch)
                return false;
        }
        if (length == nameLength)
            return true;
        const double cost = std::max(costs.lastKey(), 0.001);
        // The dearer the trials, the fewer of the names go on.
        names = costs.values().mid(names.size() - std::max(2, static_cast<int>(2 / cost)));
        const double growth = std::log(cost / costBefore) / std::log(double(length) / lengthBefore);
        const double room = std::pow(2 * longestSearch / cost, 1 / std::max(growth, 2.0));
        costBefore = cost;
        lengthBefore = length;
        length = std::clamp(int(length * std::min(room, cost < 0.5 ? 1.06 : 1.25)), length + 1, nameLength);
    }
}
