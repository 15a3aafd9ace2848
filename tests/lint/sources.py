# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The project's files, for the checks beside this one."""

import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def files(folders, suffixes):
    """All files below the folders with one of the suffixes, sorted, as paths relative to the project."""
    found = []
    for folder in folders:
        found += [path.relative_to(ROOT) for path in (ROOT / folder).rglob("*") if path.suffix in suffixes]
    return sorted(found)


def finish(problems, checked):
    """Prints the problems, or what was checked, and ends the check. A check that saw no file has failed."""
    if not checked:
        problems = ["No file was found to check: the check itself is broken."]
    for problem in problems:
        print(problem)
    if not problems:
        print(f"{checked} files are in order.")
    sys.exit(1 if problems else 0)
