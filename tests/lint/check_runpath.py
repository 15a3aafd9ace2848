# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Checks that no executable or library below the folders given brings a search path of its own for libraries.

An empty or relative entry is the folder that a program is started in: a library planted among somebody's pictures
would be loaded. Everything that the program needs lies where the system looks anyway.
"""

import pathlib
import re
import subprocess
import sys

import sources

EXECUTABLE, SHARED = 2, 3
RUN_PATH = re.compile(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]")


def is_loaded(path):
    """Whether the dynamic linker reads it: neither a script nor an object file that is yet to be linked."""
    if path.is_symlink() or not path.is_file():
        return False
    with open(path, "rb") as file:
        head = file.read(18)
    # Little-endian, as on every machine that this program is built for.
    return head[:4] == b"\x7fELF" and int.from_bytes(head[16:18], "little") in (EXECUTABLE, SHARED)


problems = []
checked = [path for folder in sys.argv[1:] for path in sorted(pathlib.Path(folder).rglob("*")) if is_loaded(path)]
for path in checked:
    section = subprocess.run(["readelf", "--dynamic", "--wide", path], capture_output=True, text=True, check=True)
    for entry in RUN_PATH.findall(section.stdout):
        problems.append(f'{path}: has the run path "{entry}". CMakeLists.txt switches run paths off; if the build '
                        "makes this file no more, remove it.")
sources.finish(problems, len(checked))
