# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Checks that programs need no library of windows: check_quiet.py QUIETROOMS COMMAND_LINE.

The first is built over naming and run alone, the second is orvanto-cli.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

import sources

NEEDED = re.compile(r"\(NEEDED\).*\[(.*?)\]")
# What the rooms link, platform among them, and what every program links.
ALLOWED = re.compile(r"libQt6(Core|Core5Compat)\.so|lib(c|m|stdc\+\+|gcc_s|pthread)\.so|ld-linux")

program, command_line = sys.argv[1:]
problems = []
libraries = []
for each in (program, command_line):
    listing = subprocess.run(["readelf", "--dynamic", "--wide", each], capture_output=True, text=True, check=True)
    needed = NEEDED.findall(listing.stdout)
    if not any(library.startswith("libQt6Core.") for library in needed):
        problems.append(f"{each}: needs no Qt at all: the check itself is broken.")
    for library in needed:
        if not ALLOWED.match(library):
            problems.append(f"{each}: needs {library}. naming, run and cli link Qt Core alone, so that programs "
                            "without a window can use them; let a room above them link what needs more.")
    libraries += needed
with tempfile.TemporaryDirectory() as folder:
    pathlib.Path(folder, "file").touch()
    code = subprocess.run([program, folder + "/file"], env={"LC_ALL": "C.UTF-8"}, check=False).returncode
    names = sorted(path.name for path in pathlib.Path(folder).iterdir())
    if code != 0 or names != ["new_file"]:
        problems.append(f"{program}: ends with {code}, and of a file called file it leaves {names}.")
sources.finish(problems, len(libraries))
