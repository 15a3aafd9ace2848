#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Desktops take the type of rule sets as it is written, with its name in every language of the program; the desktop
entry claims no type, since the program reads no file names from its command line."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

from check_translations import LANGUAGES

TYPE = "application/x-orvanto-rules"
SOURCE = pathlib.Path("packaging/linux/orvanto-rules.xml")
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"


def main():
    faults = []
    with tempfile.TemporaryDirectory() as folder:
        made = pathlib.Path(folder) / "mime"
        packages = made / "packages"
        packages.mkdir(parents=True)
        shutil.copy(SOURCE, packages)
        run = subprocess.run(["update-mime-database", made], env=dict(os.environ, XDG_DATA_HOME=folder),
                             capture_output=True, text=True, check=False)
        if run.returncode or run.stderr:
            faults.append(f"{SOURCE}: update-mime-database says: {run.stderr}")
        if f":{TYPE}:*.orvanto-rules\n" not in (made / "globs2").read_text(encoding="utf-8"):
            faults.append(f"{SOURCE}: *.orvanto-rules is not of type {TYPE}")
        if f"{TYPE} application/json\n" not in (made / "subclasses").read_text(encoding="utf-8"):
            faults.append(f"{SOURCE}: {TYPE} is no JSON")
    named = {comment.get(LANGUAGE) for comment in ET.parse(SOURCE).iter() if comment.tag.endswith("}comment")}
    for code in LANGUAGES:
        if not {code, code.partition("_")[0]} & named:
            faults.append(f"{SOURCE}: no name of the type in {code}")
    if "\nMimeType=" in pathlib.Path("packaging/linux/orvanto.desktop.in").read_text(encoding="utf-8"):
        faults.append("the desktop entry claims a type")
    print("\n".join(faults))
    return 1 if faults else 0


sys.exit(main())
