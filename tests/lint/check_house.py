# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Checks the rules of CONTRIBUTING.md that a script can see."""

import re

import sources

MAX_LINES = 500
# As .editorconfig says; clang-format sees to C++.
MAX_COLUMNS = 120
SCRIPT_FOLDERS = ".ci .github benchmarks cmake packaging resources src tests tools translations".split()
SYSTEM_ROOMS = (("src", "platform"), ("src", "desktop"))
SYSTEM_SWITCH = re.compile(r"^\s*#\s*(if|ifdef|ifndef|elif).*(Q_OS_|_WIN32|__linux__)", re.MULTILINE)
UNFINISHED = re.compile(r"\b(TODO|FIXME|XXX)\b")
SKIP = re.compile(r"\bQSKIP\b|\bGTEST_SKIP\b")
FIXED_WAIT = re.compile(r"\bqWait\(\s*\d|\bqSleep\(")



def is_script(path):
    """Whether it is written by hand for an interpreter: Python, shell, CMake or a workflow."""
    if path.suffix:
        return path.suffix in (".py", ".sh", ".cmake", ".yml") or path.name == "CMakeLists.txt"
    return (sources.ROOT / path).is_file() and (sources.ROOT / path).read_bytes().startswith(b"#!")


problems = []
for path in filter(is_script, sources.files(SCRIPT_FOLDERS, {".py", ".sh", ".cmake", ".yml", ".txt", ""})):
    for number, line in enumerate((sources.ROOT / path).read_text(encoding="utf-8").splitlines(), 1):
        if len(line) > MAX_COLUMNS:
            problems.append(f"{path}:{number}: {len(line)} columns. Break the line; {MAX_COLUMNS} are the limit.")
checked = sources.files(["src", "tests", "benchmarks"], {".cpp", ".h"})
for path in checked:
    text = (sources.ROOT / path).read_text()
    lines = text.count("\n")
    if "SPDX-License-Identifier: MIT" not in text[:200]:
        problems.append(f"{path}: begin with the two SPDX lines, as the other files do.")
    if lines > MAX_LINES:
        problems.append(f"{path}: {lines} lines. Split it by concern; {MAX_LINES} are the limit.")
    if SYSTEM_SWITCH.search(text) and path.parts[:2] not in SYSTEM_ROOMS:
        problems.append(f"{path}: asks for the operating system. Put the difference behind a header of src/platform/ "
                        "or src/desktop/.")
    if UNFINISHED.search(text):
        problems.append(f"{path}: holds a mark for unfinished work. Finish it or open an issue.")
    if path.parts[0] == "tests" and SKIP.search(text):
        problems.append(f"{path}: skips. Start what the test needs, or do not register the test.")
    if path.parts[0] == "tests" and FIXED_WAIT.search(text):
        problems.append(f"{path}: waits a fixed time. Wait for a condition (QTRY_VERIFY, QSignalSpy::wait).")
    if path.suffix == ".h" and "#pragma once" not in text:
        problems.append(f"{path}: lacks #pragma once.")
    if re.search(r"\bQRegExp\b", text) and path.parts[0] == "src" and path.stem != "regexp":
        problems.append(f"{path}: names QRegExp. Only src/naming/regexp.h and .cpp do; use RegExp.")
sources.finish(problems, len(checked))
