#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The JSON schema of rule sets agrees with the program: it takes the files that a unit test has the program take, among
them the examples of the menu and of the page, and refuses those that the program refuses."""

import json
import pathlib
import re
import sys

import jsonschema

FILES = pathlib.Path("tests/fuzz/corpus/ruleset")
PAGE = pathlib.Path("docs/rule-sets.md")
SCHEMA = pathlib.Path("docs/rule-sets.schema.json")


def is_valid(validator, text):
    try:
        return validator.is_valid(json.loads(text))
    except json.JSONDecodeError:
        return False


def main():
    schema = json.loads(SCHEMA.read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    faults = []
    for kind, wanted in (("good", True), ("bad", False)):
        files = sorted(FILES.glob(f"{kind}-*"))
        if len(files) < 8:
            faults.append(f"{FILES}: {len(files)} {kind} files are too few")
        faults += [f"{file}: the schema says {not wanted}" for file in files
                   if is_valid(validator, file.read_text(encoding="utf-8")) != wanted]
    blocks = re.findall(r"```json\n(.*?)```", PAGE.read_text(encoding="utf-8"), re.DOTALL)
    if blocks != [(FILES / "good-documented").read_text(encoding="utf-8")]:
        faults.append(f"{PAGE}: its example is not that of good-documented")
    print("\n".join(faults))
    return 1 if faults else 0


sys.exit(main())
