#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The manual page and what shells propose, made of the same table as the help."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest

from shell import DEADLINE, Shell, executable

COMMANDS = ("preview", "apply", "undo", "history", "sets")


class Pages(Shell):
    def setUp(self):
        super().setUp()
        self.pages = self.base / "pages"
        self.pages.mkdir()
        subprocess.run([os.environ["ORVANTO_MAKEPAGES"], self.pages, "2026-08-01"], check=True, timeout=DEADLINE)
        (self.base / "orvanto-cli").symlink_to(executable())
        self.env["PATH"] = f"{self.base}:{self.env['PATH']}"

    def options(self, command):
        """As the help has them."""
        text = self.run_program(command, "--help").stdout.decode()
        found = re.findall(r"^  (--?[a-z0-9-]+)", text, re.MULTILINE)
        self.assertIn("--help", found)
        return sorted(set(found))

    def in_shell(self, *words, text=None):
        run = subprocess.run(words, cwd=self.folder, env=self.env, input=text, capture_output=True, text=True,
                             timeout=DEADLINE, check=False)
        self.assertEqual((run.returncode, run.stderr), (0, ""), words)
        return run.stdout

    def bash(self, *words):
        """What bash proposes for the last word."""
        script = ('source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _orvanto_cli; '
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        said = self.in_shell("bash", "-c", script, str(self.pages / "orvanto-cli.bash"), "orvanto-cli", *words)
        return sorted(said.split("\n")[:-1])

    def fish(self, line):
        said = self.in_shell("fish", "--no-config", "-c", f"source {self.pages}/orvanto-cli.fish; complete -C $argv[1]",
                             f"orvanto-cli {line}")
        return sorted(each.split("\t")[0] for each in said.splitlines())

    def test_the_manual_page_is_without_fault_and_complete(self):
        env = dict(self.env, MANROFFSEQ="", MANWIDTH="80")
        run = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-P", "cat",
                              self.pages / "orvanto-cli.1"], env=env, capture_output=True, text=True, check=True)
        self.assertEqual(run.stderr, "")
        text = re.sub(r"\x1b\[[0-9;]*m|.\x08", "", run.stdout)
        for command in COMMANDS:
            for option in self.options(command):
                self.assertRegex(text, rf"(?m)^ +{option}\b")
        for code in (0, 1, 2, 3, 4, 64, 74, 130):
            self.assertRegex(text, rf"(?m)^ +{code} ")

    def test_bash(self):
        self.assertEqual(self.bash(""), sorted([*COMMANDS, "--help", "--version"]))
        for command in COMMANDS:
            self.assertEqual(self.bash(command, "-"), self.options(command))
        self.assertEqual(self.bash("preview", "--sort", "s"), ["size"])
        self.assertEqual(self.bash("sets", ""), ["check", "list", "show"])
        self.make("a file", "another")
        self.assertEqual(self.bash("apply", "a"), ["a file", "another"])
        self.assertEqual(self.bash("apply", "--set", "'Number"), ["'Number photos'"])
        self.assertEqual(self.run_program("apply", "--yes", "--insert", "N@0", "another").returncode, 0)
        run, = self.bash("undo", "")
        self.assertRegex(run, r"^\d{8}T\d{9}Z-[0-9a-f]{8}$")

    def test_fish(self):
        self.assertEqual(self.fish(""), sorted(COMMANDS))
        for command in COMMANDS:
            self.assertLessEqual(set(self.options(command)), set(self.fish(f"{command} -")))
        self.assertEqual(self.fish("preview --sort s"), ["size"])
        self.assertEqual(self.fish("sets "), ["check", "list", "show"])
        self.assertIn("Number photos", [each.replace("\\", "") for each in self.fish("apply --set Num")])

    def test_zsh(self):
        # Its completion works in its line editor alone: what it hands to _arguments is looked at.
        self.in_shell("zsh", "-f", "-n", str(self.pages / "_orvanto-cli"))
        script = ('_arguments() { print -l -- "$@"; }; _values() { print -l -- "$@"; }; words=("$@"); CURRENT=$#; '
                  f'source {self.pages}/_orvanto-cli')
        for command in COMMANDS:
            said = self.in_shell("zsh", "-f", "-c", script, "zsh", "orvanto-cli", command, "")
            self.assertEqual(sorted(re.findall(r"(?m)^\*(--?[a-z0-9-]+)\[", said)), self.options(command))
        said = self.in_shell("zsh", "-f", "-c", script, "zsh", "orvanto-cli", "")
        self.assertEqual(re.findall(r"(?m)^([a-z]+)\[", said), list(COMMANDS))

    def test_nothing_is_written_where_there_is_no_room(self):
        with tempfile.TemporaryDirectory() as folder:
            run = subprocess.run([os.environ["ORVANTO_MAKEPAGES"], pathlib.Path(folder, "none"), "x"],
                                 capture_output=True, check=False)
        self.assertEqual(run.returncode, 1)


if __name__ == "__main__":
    unittest.main()
