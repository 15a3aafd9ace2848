// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/regexp.h"

#include "naming/patterncost.h"

#include <QHash>
#include <QRegExp>

using namespace Qt::StringLiterals;

namespace {

// In place of a pattern that the engine must not see, or not use.
const auto invalidPattern = u"("_s;

/// Measured once a process: another measurement of a pattern near the limit might come to another end, and a
/// run would make other names than its preview showed.
bool isMeasuredQuickEnough(const QRegExp &engine)
{
    static QHash<QString, bool> known;
    const auto found = known.constFind(engine.pattern());
    if (found != known.cend())
        return *found;
    const auto search = [&engine](const QString &name) {
        (void)engine.removeIn(name);
    };
    return *known.insert(engine.pattern(), isQuickEnough(engine.pattern(), search));
}

RegExp::Verdict verdictOn(const QRegExp &engine, PatternCost cost)
{
    if (cost == PatternCost::Exhausting)
        return RegExp::Verdict::TooSlow;
    if (!engine.isValid())
        return RegExp::Verdict::Invalid;
    const bool isQuick = cost == PatternCost::Small || isMeasuredQuickEnough(engine);
    return isQuick ? RegExp::Verdict::Usable : RegExp::Verdict::TooSlow;
}

} // namespace

RegExp::RegExp(const QString &pattern)
{
    const PatternCost cost = patternCost(pattern);
    const auto compiled = [](const QString &text) {
        return std::make_shared<const QRegExp>(text, Qt::CaseSensitive, QRegExp::RegExp);
    };
    engine = compiled(cost == PatternCost::Exhausting ? invalidPattern : pattern);
    ownVerdict = verdictOn(*engine, cost);
    if (ownVerdict != Verdict::Usable)
        engine = compiled(invalidPattern);
}

QString RegExp::replacedIn(const QString &text, const QString &replacement) const
{
    return engine->replaceIn(text, replacement);
}

QString RegExp::removedFrom(const QString &text) const
{
    return engine->removeIn(text);
}
