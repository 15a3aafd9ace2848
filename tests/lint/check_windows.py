# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Compiles the Windows side of src/ against the Win32 headers, each folder's as one, without building anything.

Qt's headers of this machine do: they look at the compiler, and that one says Windows. Linking and running need
a Qt for Windows: packaging/windows/build makes one.

QT_INCLUDES  the folders of Qt's headers, separated by ":"
"""

import os
import pathlib
import shutil
import subprocess

import sources

COMPILER = "x86_64-w64-mingw32-g++-posix"
OPTIONS = (
    "-std=c++20 -fsyntax-only -Werror -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual "
    "-Wcast-qual -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII -DQT_NO_CAST_FROM_BYTEARRAY -DQT_USE_QSTRINGBUILDER "
    "-DQT_DISABLE_DEPRECATED_BEFORE=0x060400"
).split()

problems = []
checked = [path for path in sources.files(["src"], {".cpp"}) if path.stem.endswith("_windows")]
# The folder of this system's own headers is among them, for OpenGL's; those are not for Windows.
folders = [folder for folder in os.environ["QT_INCLUDES"].split(":") if folder != "/usr/include"]
includes = [option for folder in folders for option in ("-isystem", folder)]
if shutil.which(COMPILER) is None:
    problems.append(f"{COMPILER} is missing: install the package g++-mingw-w64-x86-64-posix, as ./test does.")
else:
    command = [COMPILER, *OPTIONS, "-I", str(sources.ROOT / "src"), *includes]
    folders = {}
    for path in checked:
        unix = path.with_stem(path.stem.replace("_windows", "_unix"))
        if not (sources.ROOT / unix).exists():
            problems.append(f"{path}: has no {pathlib.Path(unix).name} beside it.")
        folders.setdefault(path.parent, []).append(path)
    for folder, paths in folders.items():
        # The headers, which take nearly all of the time, are read once; our own before the system's, whose names
        # they would shadow.
        headers = sorted((sources.ROOT / folder).glob("*.h"), key=lambda path: path.stem.endswith("_windows"))
        headers = [path for path in headers if not path.stem.endswith("_unix")]
        joined = "".join(f'#include "{path}"\n' for path in [*headers, *(sources.ROOT / path for path in paths)])
        run = subprocess.run([*command, "-x", "c++", "-"], cwd=sources.ROOT, input=joined, capture_output=True,
                             text=True)
        if run.returncode != 0:
            problems.append(f"{folder}: does not compile for Windows.\n{run.stderr}")
sources.finish(problems, len(checked))
