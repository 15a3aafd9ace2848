# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Checks which folder of src/ includes which: the arrows of docs/architecture.md."""

import re

import sources

MAY_USE = {
    "platform": set(),
    "core": set(),
    "rules": {"core"},
    "run": {"platform"},
    "update": {"core"},
    "dialogs": {"platform", "core", "update"},
    "mainwindow": {"platform", "core", "rules", "run", "update", "dialogs"},
    "app": {"platform", "core", "rules", "run", "update", "dialogs", "mainwindow"},
}
INCLUDE = re.compile(r'^\s*#\s*include\s+"([a-z]+)/', re.MULTILINE)

problems = []
checked = sources.files(["src"], {".cpp", ".h", ".in"})
for path in checked:
    folder = path.parts[1]
    for used in INCLUDE.findall((sources.ROOT / path).read_text()):
        if used != folder and used not in MAY_USE[folder]:
            problems.append(
                f"{path}: src/{folder}/ must not include {used}/. Move what is needed down into a folder that "
                f"both may use ({', '.join(sorted(MAY_USE[folder])) or 'none'}), or pass it in from above."
            )
sources.finish(problems, len(checked))
