// SPDX-FileCopyrightText: 2026 Kavrondel
// SPDX-License-Identifier: MIT

#pragma once

#include <QRandomGenerator>

#include <cstdio>
#include <limits>

/// A number from the environment, or another one where none is set.
inline int environmentNumber(const char *name, int otherwise)
{
    bool valid = false;
    const int number = qEnvironmentVariableIntValue(name, &valid);
    return valid ? number : otherwise;
}

/// Another seed every time, unless ORVANTO_SEED says which; told at once, for a crash leaves no time for it.
inline quint32 randomSeed()
{
    const int any = QRandomGenerator::system()->bounded(std::numeric_limits<int>::max());
    const auto seed = static_cast<quint32>(environmentNumber("ORVANTO_SEED", any));
    std::fprintf(stderr, "ORVANTO_SEED=%u\n", seed);
    return seed;
}
