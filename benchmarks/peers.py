#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT

"""What programs for a shell make of renames that get in each other's way: the table of docs/behaviour.md.
Usage: benchmarks/peers.py ORVANTO_CLI
Each program renames real files in a folder of its own; each file holds its old name, so that it shows which one is
lost. Debian's packages mmv, rename, util-linux and moreutils have the others.
"""

import pathlib
import subprocess
import sys
import tempfile

PLANNED, CLASSIC, MMV, PERL, UTIL = "orvanto-cli", "orvanto-cli --classic", "mmv", "rename (Perl)", "rename.ul"
VIDIR = "vidir"
PROGRAMS = (PLANNED, CLASSIC, MMV, PERL, UTIL, VIDIR)


def orvanto(*words):
    return ["apply", "--yes", "--quiet", *words]


# Title, the rows, what is there besides, and the words for each program: None where it cannot say such a thing.
# mmv reads pairs from its input where there are no words.
CASES = (
    ("shift along, the one with the free name last", {"x": "xx", "xx": "xxx", "xxx": "xxxx"}, (),
     ("--regexp", "^x", "xx"), ["x*", "xx#1"], "s/x/xx/", ("x", "xx")),
    ("shift along, the one with the free name first", {"xx": "x", "xxx": "xx", "xxxx": "xxx"}, (),
     ("--regexp", "^xx", "x"), ["xx*", "x#1"], "s/xx/x/", ("xx", "x")),
    ("swap two names", {"a-b": "b-a", "b-a": "a-b"}, (),
     ("--regexp", "(.)-(.)", r"\2-\1"), ["?-?", "#2-#1"], r"s/(.)-(.)/$2-$1/", None),
    ("a ring of three", {"abc": "bca", "bca": "cab", "cab": "abc"}, (),
     ("--regexp", "(.)(..)", r"\2\1"), ["???", "#2#3#1"], "s/(.)(..)/$2$1/", None),
    ("two files, one name", {"ax": "a", "xa": "a"}, (),
     ("--replace", "x", ""), ["*x*", "#1#2"], "s/x//", ("x", "")),
    ("a name that another file has", {"x": "y"}, ("y",),
     ("--replace", "x", "y"), ["x", "y"], "s/x/y/", ("x", "y")),
    ("of three files one cannot", {"xa": "ya", "xb": "yb", "xc": "yc"}, ("yb",),
     ("--replace", "x", "y"), ["x*", "y#1"], "s/x/y/", ("x", "y")),
)


def command(program, cli, case, names):
    _, _, _, ours, mmv, perl, util = case
    if program == PLANNED:
        return [cli, *orvanto(*ours, *names)]
    if program == CLASSIC:
        return [cli, *orvanto("--classic", *ours, *names)]
    if program == MMV:
        return ["mmv", "--", *mmv]
    if program == PERL:
        return ["file-rename", perl, *names]
    if program == VIDIR:
        return ["vidir", *names]
    return ["rename.ul", "--", *util, *names] if util is not None else None


def make_editor(file, rows):
    """What a person does in vidir's editor: each name behind its number becomes the new one."""
    steps = "".join(f"s/\t{old}$/\t{new}/;t;" for old, new in rows.items())
    file.write_text(f"#!/bin/sh\nexec sed -i '{steps}' \"$1\"\n", encoding="utf-8")
    file.chmod(0o700)
    return str(file)


def verdict(program, cli, case):
    _, rows, others, *_ = case
    with tempfile.TemporaryDirectory() as parent:
        folder = pathlib.Path(parent) / "files"
        folder.mkdir()
        before = {name: name for name in (*rows, *others)}
        for name in before:
            (folder / name).write_text(name, encoding="utf-8")
        words = command(program, cli, case, list(rows))
        if words is None:
            return "cannot be said"
        subprocess.run(words, cwd=folder, stdin=subprocess.DEVNULL, capture_output=True, check=False, timeout=60,
                       env={"PATH": "/usr/bin:/bin", "HOME": parent, "LC_ALL": "C.UTF-8",
                            "EDITOR": make_editor(pathlib.Path(parent) / "editor", rows)})
        after = {path.name: path.read_text(encoding="utf-8") for path in folder.iterdir()}
    lost = sorted(set(before.values()) - set(after.values()))
    if lost:
        return f"**loses {len(lost)} of {len(before)} files**"
    wanted = {rows.get(name, name): name for name in before}
    if len(wanted) == len(before) and after == wanted:
        return "does it"
    invented = set(after) - set(before) - set(rows.values())
    if invented:
        return f"gives {len(invented)} file a name of its own"
    renamed = len(before) - sum(after.get(name) == name for name in before)
    return "refuses, touches nothing" if after == before else f"renames {renamed} of {len(rows)}"


def main():
    cli = str(pathlib.Path(sys.argv[1]).resolve())
    print("| case | " + " | ".join(f"`{program}`" for program in PROGRAMS) + " |")
    print("|---" * (len(PROGRAMS) + 1) + "|")
    for case in CASES:
        print(f"| {case[0]} | " + " | ".join(verdict(program, cli, case) for program in PROGRAMS) + " |")


if __name__ == "__main__":
    main()
