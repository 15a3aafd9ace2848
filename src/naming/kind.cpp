// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#include "naming/kind.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Names
{
    QLatin1StringView id;
    const char *name;
};

// In the order of Kind.
constexpr std::array<Names, allKinds.size()> kindNames{{
    {"replace"_L1, QT_TRANSLATE_NOOP("Rules", "Replace")},
    {"trim"_L1, QT_TRANSLATE_NOOP("Rules", "Trim")},
    {"case"_L1, QT_TRANSLATE_NOOP("Rules", "Change Case")},
    {"insert"_L1, QT_TRANSLATE_NOOP("Rules", "Insert Text")},
    {"number"_L1, QT_TRANSLATE_NOOP("Rules", "Enumerate")},
}};

const Names &namesOf(Kind kind)
{
    return kindNames.at(static_cast<size_t>(kind));
}

} // namespace

Kind kindOf(const Parameters &parameters)
{
    static_assert(std::variant_size_v<Parameters> == allKinds.size());
    return allKinds.at(parameters.index());
}

QString kindId(Kind kind)
{
    return namesOf(kind).id;
}

std::optional<Kind> kindFromId(QStringView id)
{
    const auto *found =
        std::find_if(kindNames.begin(), kindNames.end(), [id](const Names &one) { return one.id == id; });
    if (found == kindNames.end())
        return std::nullopt;
    return allKinds.at(static_cast<size_t>(found - kindNames.begin()));
}

QString kindName(Kind kind)
{
    return QCoreApplication::translate("Rules", namesOf(kind).name);
}
