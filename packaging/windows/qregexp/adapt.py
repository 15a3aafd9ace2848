#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Makes Qt 5's qregexp.cpp compile against Qt 6: adapt.py INPUT OUTPUT.

Every edit states how often it must apply, so a source that changed is refused instead of half adapted.
"""

import re
import sys

# (pattern, replacement, how often)
EDITS = [
    (r'#include "qregexp\.h"', "#include <QtCore5Compat/qregexp.h>", 1),
    (r'#include "qvector\.h"\n', "", 1),
    # the lock helper is private to Qt's own build; the mutex itself is lockable
    (r'#include "private/qlocking_p\.h"', "#include <mutex>", 1),
    (r"qt_scoped_lock\(engineCacheMutex\)", "std::unique_lock<QBasicMutex>(engineCacheMutex)", 2),
    (r'#include "(q\w+\.h)"', r"#include <QtCore/\1>", 12),
    # the engine of a lookahead never sets it: \p, \i and \c in there would depend on leftovers in memory
    (r"bool xmlSchemaExtensions;", "bool xmlSchemaExtensions = false;", 1),
    (r"str\.count\(\)", "str.size()", 1),
    # Qt 6 hashes are as wide as a pointer
    (r"static uint qHash\(const QRegExpEngineKey &key, uint seed = 0\)",
     "static size_t qHash(const QRegExpEngineKey &key, size_t seed = 0)", 1),
    (r"\nuint qHash\(const QRegExp &key, uint seed\)", "\nsize_t qHash(const QRegExp &key, size_t seed)", 1),
]


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        text = file.read()
    for pattern, replacement, expected in EDITS:
        text, count = re.subn(pattern, replacement, text)
        if count != expected:
            sys.exit(f"{sys.argv[1]}: {pattern} found {count} times instead of {expected}")
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.write(text)


main()
