#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Fail when a translation is missing, unfinished or damaged; docs/translating.md tells how to mend it."""

import os
import pathlib
import re
import subprocess
import tempfile
import xml.etree.ElementTree as ET

import sources

LANGUAGES = "de_DE es_ES fr_FR it_IT ja_JP nl_NL pl_PL pt_BR ru_RU tr_TR uk_UA zh_CN".split()

# Words that are the same in English and in the language. Keep it short: everything else must be translated.
SAME = {
    "de_DE": {"Info", "Downloads", "Plugins", "Debug", "Name", "OK", "Position", "Text", "Alt"},
    "es_ES": {"&No", "General", "Total", "Ctrl", "Alt"},
    "fr_FR": {"Type", "Documents", "Photo", "Code", "Extension", "Message", "Total", "OK", "Ctrl", "Position", "Alt"},
    "it_IT": {"Computer", "File", "&No", "1 file", "Debug", "OK", "Ctrl", "Alt"},
    "ja_JP": {"OK", "Ctrl", "Shift", "Alt"},
    "nl_NL": {"Type", "Downloads", "Computer", "Info", "Code", "Debug", "OK", "Ctrl", "Shift", "Later", "Alt"},
    "pl_PL": {"Folder", "OK", "Ctrl", "Shift", "Alt"},
    "pt_BR": {"Plugins", "Downloads", "Total", "OK", "Ctrl", "Shift", "Alt"},
    "ru_RU": {"Ctrl", "Shift", "Alt"},
    "tr_TR": {"Ctrl", "Shift", "Alt"},
    "uk_UA": {"Ctrl", "Shift", "Alt"},
    "zh_CN": {"Ctrl", "Shift", "Alt"},
}

# Contexts whose texts share a menu: two entries with the same underlined letter would block each other.
MENUS = {
    "the tray icon's menu": ["TrayIcon"],
    "a line edit's menu": ["QLineEdit"],
    "a spin box's menu": ["QLineEdit", "QAbstractSpinBox"],
    "a read-only text's menu": ["QWidgetTextControl"],
    "the file dialog's menu": ["QFileDialog"],
}

# What else has a letter there stands outside its menu.
FILE_DIALOG_MENU = {"&Rename", "&Delete", "Show &hidden files", "&New Folder"}

# Labels of these languages go without a full stop.
WITHOUT_FULL_STOP = {"ja_JP"}

WIDE = str.maketrans({"：": ":", "。": ".", "！": "!", "？": "?", "…": "..."})
UPDATE = "run `ninja -C build/dev update-translations`"


def entries(path):
    """All messages of a .ts file as (context, source, comment, message element)."""
    found = []
    for context in ET.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source", ""), message.findtext("comment", ""))
            found.append((*key, message))
    return found


def placeholders(text):
    return sorted(re.findall(r"%(?:L?\d+|n)", text))


def tags(text):
    return sorted(re.findall(r"</?[A-Za-z][^>]*>", text))


def blanks(text):
    return re.match(r"\s*", text).group(), re.search(r"\s*$", text).group()


def ending(text):
    """The punctuation that ends the text: East Asian wide forms count as the plain ones."""
    return re.search(r"(\.\.\.|[:.!?])?$", text.translate(WIDE).strip()).group()


def mnemonics(text):
    """Letters marked with &; "&&" is a plain ampersand and "&nbsp;" is HTML."""
    return [letter.lower() for letter in re.findall(r"&(\S)", re.sub(r"&&|&#?\w+;", "", text))]


def damage(source, text, code):
    """What the translation lost of its source, as teaching sentences."""
    if not text.strip():
        return ["is empty: translate it."]
    problems = []
    if placeholders(source) != placeholders(text):
        problems.append(f"must hold the placeholders {placeholders(source)}: the program fills them in.")
    if tags(source) != tags(text):
        problems.append(f"must hold the HTML tags {tags(source)} unchanged: they format the text.")
    if blanks(source) != blanks(text):
        problems.append("must begin and end with the same blanks as its source: another text follows there.")
    free = {"", "."} if code in WITHOUT_FULL_STOP else {ending(source)}
    if ending(text) != ending(source) and not {ending(text), ending(source)} <= free:
        problems.append(f'must end as its source does ("{ending(source)}", wide forms allowed).')
    if source.count("\n") != text.count("\n"):
        problems.append("must have as many line breaks as its source.")
    if len(mnemonics(source)) != len(mnemonics(text)):
        wanted = "exactly one letter" if mnemonics(source) else "no letter"
        problems.append(f"must mark {wanted} with &, as its source does: it is the key that chooses the entry.")
    return problems


def check_entry(code, context, source, message):
    element = message.find("translation")
    text = "" if element is None else element.text or ""
    state = None if element is None else element.get("type")
    problems = []
    if message.get("numerus"):
        problems.append("has plural forms, which this program does not use: write tr() without a number.")
    if state == "unfinished":
        problems.append('is unfinished: translate it and remove type="unfinished".')
    elif state:
        problems.append(f"is {state}: the program has no such text any more: {UPDATE}.")
    else:
        problems += damage(source, text, code)
        if text == source and source not in SAME.get(code, set()):
            problems.append("is the English text: translate it, or add it to SAME in check_translations.py.")
    where = f"translations/orvanto-{code}.ts: {context}: "
    return [f'{where}"{source}" -> "{text}" {problem}' for problem in problems]


def check_menus(code, found):
    problems = []
    for menu, contexts in MENUS.items():
        owner = {}
        for context, source, _, message in found:
            if context not in contexts or (context == "QFileDialog" and source not in FILE_DIALOG_MENU):
                continue
            text = message.findtext("translation") or ""
            for letter in mnemonics(text):
                if letter in owner:
                    problems.append(
                        f'translations/orvanto-{code}.ts: "{text}" and "{owner[letter]}" of {menu} share '
                        f'the letter "{letter}": mark another letter with & in one of them.'
                    )
                owner[letter] = text
    return problems


def check_language(code, expected):
    path = sources.ROOT / f"translations/orvanto-{code}.ts"
    name = path.relative_to(sources.ROOT)
    problems = []
    for flag in (f"{code}.png", f"{code}@2x.png"):
        if not (sources.ROOT / "resources/flags" / flag).is_file():
            problems.append(
                f"resources/flags/{flag} is missing: draw resources/svg/flags/{code}.svg, then run resources/render."
            )
    if not path.is_file():
        return [*problems, f"{name} is missing: docs/translating.md tells how to make it."]
    if ET.parse(path).getroot().get("language") != code:
        problems.append(f'{name}: <TS> must say language="{code}".')
    found = entries(path)
    keys = [entry[:3] for entry in found]
    for key in sorted(set(keys)):
        if keys.count(key) > 1:
            problems.append(f'{name}: {key[0]}: "{key[1]}" appears twice: remove one of the entries.')
    for context, source, _ in sorted(expected - set(keys)):
        problems.append(f'{name}: {context}: "{source}" is missing: {UPDATE}, then translate it.')
    for context, source, _ in sorted(set(keys) - expected):
        problems.append(f'{name}: {context}: "{source}" is no text of the program any more: {UPDATE}.')
    for context, source, _, message in found:
        problems += check_entry(code, context, source, message)
    same = {source for _, source, _, message in found if message.findtext("translation") == source}
    for source in sorted(SAME.get(code, set()) - same):
        problems.append(f'check_translations.py: "{source}" in SAME of {code} is not needed: remove it.')
    return problems + check_menus(code, found)


def lupdate():
    """The test run names the tool; by hand, Qt itself says where it is."""
    if "LUPDATE" in os.environ:
        return os.environ["LUPDATE"]
    query = subprocess.run(["qtpaths6", "--query", "QT_HOST_BINS"], stdout=subprocess.PIPE, text=True, check=True)
    return pathlib.Path(query.stdout.strip()) / "lupdate"


def texts_of_the_program():
    """The texts that lupdate finds now, and its complaints about texts that no translation can reach."""
    with tempfile.TemporaryDirectory() as folder:
        fresh = pathlib.Path(folder) / "fresh.ts"
        command = [lupdate(), "-silent", "src", "forms", "translations/qttexts.h", "-ts", fresh]
        run = subprocess.run(command, cwd=sources.ROOT, capture_output=True, text=True, check=True)
        expected = {entry[:3] for entry in entries(fresh)}
    return expected, [f"lupdate says: {line}" for line in run.stderr.splitlines() if line.strip()]


def main():
    expected, problems = texts_of_the_program()
    if not expected:
        problems.append("lupdate found no text at all: the check itself is broken.")
    for path in sources.files(["translations"], {".ts"}):
        if path.stem.removeprefix("orvanto-") not in LANGUAGES:
            problems.append(f"{path}: add the language to LANGUAGES in check_translations.py.")
    for code in LANGUAGES:
        problems += check_language(code, expected)
    sources.finish(problems, len(LANGUAGES))


if __name__ == "__main__":
    main()
