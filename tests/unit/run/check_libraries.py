# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""check_libraries.py PROGRAM: the program runs, and needs no library of Qt's but the core."""

import pathlib
import re
import subprocess
import sys

ALLOWED = {"Qt6Core"}

program = pathlib.Path(sys.argv[1])
listed = subprocess.run(["ldd", program], check=True, capture_output=True, text=True).stdout
needed = set(re.findall(r"lib(Qt\d\w+)\.so", listed))
problems = [f"{program.name} needs {library}" for library in sorted(needed - ALLOWED)]
if not needed & ALLOWED:
    problems.append(f"{program.name} does not even need the core: this check looks at the wrong place.\n{listed}")
told = subprocess.run([program, sys.argv[0], "/no such folder/a"], check=True, capture_output=True, text=True).stdout
if told.split() != ["renamed", "missing"]:
    problems.append(f"{program.name} says {told!r}")
print("\n".join(problems) or f"{program.name} needs {', '.join(sorted(needed))}.")
sys.exit(1 if problems else 0)
