# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Reads the lists of faults, and puts a fault into a source text. README.md describes the format."""

import dataclasses
import re


class ListError(Exception):
    """Says what is wrong with a list, and where."""


@dataclasses.dataclass(frozen=True)
class Fault:
    where: str  # the list and the line of the title
    title: str
    file: str
    tests: tuple
    context: str  # stands before the text; "" when the text alone is found once
    text: str
    replacement: str

    def __str__(self):
        return f"{self.where}: {self.title}"


def _found(text, source, where):
    """The places of a text, however its source is broken into lines and indented."""
    tokens = re.findall(r"\w+|[^\w\s]", text)
    if not tokens:
        raise ListError(f"{where}: there is no text to look for.")
    pattern = r"\s*".join(map(re.escape, tokens))
    if text[0].isalnum():
        pattern = r"(?<!\w)" + pattern
    if text[-1].isalnum():
        pattern += r"(?!\w)"
    return [match.span() for match in re.finditer(pattern, source)]


def mutated(fault, source):
    """The source with the fault in it."""
    begin = 0
    if fault.context:
        contexts = _found(fault.context, source, fault)
        if len(contexts) != 1:
            raise ListError(f'{fault}: "{fault.context}" stands {len(contexts)} times in {fault.file}.')
        begin = contexts[0][1]
    places = [place for place in _found(fault.text, source, fault) if place[0] >= begin]
    if not places or (len(places) > 1 and not fault.context):
        raise ListError(f'{fault}: "{fault.text}" stands {len(places)} times in {fault.file}.')
    # A statement that is left out leaves an empty one, else a condition before it would take hold of the next.
    replacement = fault.replacement or (";" if fault.text.endswith(";") else "")
    result = source[: places[0][0]] + replacement + source[places[0][1] :]
    if result == source:
        raise ListError(f"{fault}: changes nothing.")
    return result


def _fault(where, block, file, tests):
    """One fault from the lines of its paragraph."""
    parts = {"@": [], "-": [], "+": []}
    mark = ""
    for line in block[1:]:
        mark = mark if line.startswith(" ") else line[0]
        if mark not in parts:
            raise ListError(f'{where}: "{line}" begins with none of @ - +.')
        parts[mark].append(line[1:].strip())
    if not parts["-"] or not parts["+"] or not file or not tests:
        raise ListError(f"{where}: a fault needs a file, tests, a text (-) and a replacement (+).")
    context, text, replacement = ("\n".join(parts[mark]) for mark in "@-+")
    return Fault(where, block[0], file, tests, context, text, replacement)


def read(path):
    """The faults of one list."""
    found, file, tests = [], "", ()
    lines = path.read_text(encoding="utf-8").splitlines()
    block = []
    for number, line in enumerate([*lines, ""], 1):
        line = line.rstrip()
        if line.startswith("#"):
            continue
        if line.startswith("file "):
            file, tests = line.removeprefix("file ").strip(), ()
        elif line.startswith("tests "):
            tests = tuple(line.split()[1:])
        elif line:
            block.append(line)
        elif block:
            found.append(_fault(f"{path.name}:{number - len(block)}", block, file, tests))
            block = []
    return found
