# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Checks that a program over naming and run needs no library of windows: check_quiet.py PROGRAM."""

import pathlib
import re
import subprocess
import sys
import tempfile

import sources

NEEDED = re.compile(r"\(NEEDED\).*\[(.*?)\]")
# What the rooms link, platform among them, and what every program links.
ALLOWED = re.compile(r"libQt6(Core|Core5Compat)\.so|lib(c|m|stdc\+\+|gcc_s|pthread)\.so|ld-linux")

program = sys.argv[1]
problems = []
listing = subprocess.run(["readelf", "--dynamic", "--wide", program], capture_output=True, text=True, check=True)
libraries = NEEDED.findall(listing.stdout)
if not any(library.startswith("libQt6Core.") for library in libraries):
    problems.append(f"{program}: needs no Qt at all: the check itself is broken.")
for library in libraries:
    if not ALLOWED.match(library):
        problems.append(f"{program}: needs {library}. naming and run link Qt Core alone, so that programs without a "
                        "window can use them; let a room above them link what needs more.")
with tempfile.TemporaryDirectory() as folder:
    pathlib.Path(folder, "file").touch()
    code = subprocess.run([program, folder + "/file"], env={"LC_ALL": "C.UTF-8"}, check=False).returncode
    names = sorted(path.name for path in pathlib.Path(folder).iterdir())
    if code != 0 or names != ["new_file"]:
        problems.append(f"{program}: ends with {code}, and of a file called file it leaves {names}.")
sources.finish(problems, len(libraries))
