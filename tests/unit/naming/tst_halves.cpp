// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "unit/naming/applied.h"

#include <QRandomGenerator>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Units = std::vector<char16_t>;

Units unitsOf(const QString &text)
{
    return {text.utf16(), text.utf16() + text.size()};
}

bool isPair(const Units &units, size_t at)
{
    return at + 1 < units.size() && QChar::isHighSurrogate(units[at]) && QChar::isLowSurrogate(units[at + 1]);
}

// What each kind makes of a name, written apart from the program.

Units afterReplace(const Units &name, const ReplaceParameters &parameters)
{
    const Units what = unitsOf(parameters.replaceWhat);
    const Units with = unitsOf(parameters.replaceWith);
    Units result;
    for (size_t i = 0; i <= name.size();) {
        const bool isHere =
            i + what.size() <= name.size() && std::equal(what.begin(), what.end(), name.begin() + i);
        if (isHere)
            result.insert(result.end(), with.begin(), with.end());
        if (isHere && !what.empty()) {
            i += what.size();
            continue;
        }
        if (i < name.size())
            result.push_back(name[i]);
        ++i;
    }
    return result;
}

Units afterTrim(const Units &name, const TrimParameters &parameters)
{
    Units result;
    for (size_t i = 0; i < name.size(); ++i) {
        const size_t from = static_cast<size_t>(parameters.position);
        if (i < from || i >= from + static_cast<size_t>(parameters.length))
            result.push_back(name[i]);
    }
    return result;
}

Units afterChangeCase(const Units &name, const ChangeCaseParameters &parameters)
{
    Units result;
    for (size_t i = 0; i < name.size(); ++i) {
        char32_t character = name[i];
        if (isPair(name, i)) {
            character = QChar::surrogateToUcs4(name[i], name[i + 1]);
            ++i;
        }
        character = parameters.upper ? QChar::toUpper(character) : QChar::toLower(character);
        for (const char16_t unit : QChar::fromUcs4(character))
            result.push_back(unit);
    }
    return result;
}

Units afterInsert(Units name, const InsertTextParameters &parameters)
{
    const Units text = unitsOf(parameters.text);
    const auto position = static_cast<size_t>(parameters.position);
    if (position > name.size())
        name.resize(position, u' ');
    name.insert(name.begin() + parameters.position, text.begin(), text.end());
    return name;
}

/// Characters of every plane, with letters of both cases; halves alone where they are asked for.
class RandomTexts
{
public:
    explicit RandomTexts(quint32 seed)
        : generator(seed)
    {
    }

    [[nodiscard]] int below(int limit) { return generator.bounded(limit); }
    QString text(int longest)
    {
        static const QStringList characters{
            u"a"_s,          u"B"_s,          u"."_s,          u"-"_s,          u"é"_s,         u"Ж"_s,
            u"\U0001F389"_s, u"\U00010400"_s, u"\U00010428"_s, u"\U0001E900"_s, u"\U00020000"_s};
        QString result;
        for (int count = below(longest + 1); count > 0; --count)
            result += characters.at(below(static_cast<int>(characters.size())));
        return result;
    }

private:
    QRandomGenerator generator;
};

} // namespace

/// Characters that take two units: rules part them, and may join them again.
class TestHalves final : public QObject
{
    Q_OBJECT

private slots:
    void everyChainKeepsEveryHalf();

private:
    /// Lets one random rule of the program and its model work on the same name.
    static void step(RandomTexts &random, QString *name, Units *model);
};

void TestHalves::step(RandomTexts &random, QString *name, Units *model)
{
    switch (random.below(4)) {
    case 0: {
        const bool isJoining = random.below(2) == 0;
        const ReplaceParameters parameters{isJoining ? u"-"_s : random.text(1),
                                           isJoining ? QString() : random.text(2), false};
        *name = applied(parameters, *name);
        *model = afterReplace(*model, parameters);
        break;
    }
    case 1: {
        const TrimParameters parameters{random.below(6), 1 + random.below(3), true};
        *name = applied(parameters, *name);
        *model = afterTrim(*model, parameters);
        break;
    }
    case 2: {
        const bool isUpper = random.below(2) == 0;
        const ChangeCaseParameters parameters{false, isUpper, !isUpper, false};
        *name = applied(parameters, *name);
        *model = afterChangeCase(*model, parameters);
        break;
    }
    default: {
        const InsertTextParameters parameters{u"\U0001F389"_s + random.text(2), random.below(8), true};
        *name = applied(parameters, *name);
        *model = afterInsert(*model, parameters);
        break;
    }
    }
}

void TestHalves::everyChainKeepsEveryHalf()
{
    int halved = 0;
    int joinedAgain = 0;
    for (quint32 seed = 0; seed < 20000; ++seed) {
        RandomTexts random(seed);
        QString name = random.text(8);
        const QString start = name;
        Units model = unitsOf(name);
        bool wasHalved = false;
        for (int rule = 1 + random.below(6); rule > 0; --rule) {
            step(random, &name, &model);
            wasHalved = wasHalved || !name.isValidUtf16();
            QVERIFY2(unitsOf(name) == model, qPrintable(u"seed %1, name %2"_s.arg(seed).arg(start)));
        }
        QVERIFY(!name.contains(QChar::ReplacementCharacter));
        halved += wasHalved ? 1 : 0;
        joinedAgain += wasHalved && name.isValidUtf16() ? 1 : 0;
    }
    // Chains that part no character, or join none again, would prove nothing.
    QVERIFY(halved > 2000);
    QVERIFY(joinedAgain > 200);
}

QTEST_APPLESS_MAIN(TestHalves)
#include "tst_halves.moc"
