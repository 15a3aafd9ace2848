# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Checks that clang-format 14 would change nothing."""

import subprocess

import sources

checked = sources.files(["src", "tests", "benchmarks"], {".cpp", ".h"})
result = subprocess.run(
    ["clang-format-14", "--dry-run", "--Werror", *map(str, checked)],
    cwd=sources.ROOT, capture_output=True, text=True, check=False,
)
problems = []
if result.returncode != 0:
    names = sorted({line.split(":")[0] for line in result.stderr.splitlines() if ": error:" in line})
    problems.append("Run: clang-format-14 -i " + " ".join(names) if names else result.stderr)
sources.finish(problems, len(checked))
