#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The transcript of docs/command-line.md is what a shell shows. ORVANTO_WRITE_TRANSCRIPT=1 writes it anew."""

import os
import pathlib
import re
import subprocess
import unittest

from shell import DEADLINE, Shell, executable

PAGE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "command-line.md"
BLOCK = re.compile(r"(?<=<!-- transcript -->\n```console\n).*?(?=^```$)", re.DOTALL | re.MULTILINE)

COMMANDS = r"""
ls
orvanto-cli preview --regexp '^IMG_\d+' Holiday *.jpg
orvanto-cli apply --yes --regexp '^IMG_\d+' Holiday *.jpg; echo $?
orvanto-cli apply --yes --regexp '^IMG_\d+' 'Holiday ' --number 1,1,8 *.jpg
ls
orvanto-cli history
orvanto-cli undo --yes
ls
orvanto-cli apply --yes --regexp '\d\.jpg$' .jpg --number 8,0,7 IMG_000*.jpg
ls
orvanto-cli undo --yes --quiet
orvanto-cli preview --json --case upper,all IMG_0007.jpg
""".strip().splitlines()


class Transcript(Shell):
    def shown(self, command):
        env = dict(self.env, PATH=f"{self.base}:{self.env['PATH']}", LC_COLLATE="C")
        run = subprocess.run(["bash", "-c", command], cwd=self.folder, env=env, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=DEADLINE, check=False)
        text = run.stdout.replace(str(self.folder), "/photos")
        text = re.sub(r"\d{8}T\d{9}Z-[0-9a-f]{8}", "20260801T135741123Z-4f2a9c1d", text)
        return re.sub(r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d", "2026-08-01 15:57:41", text)

    def test_the_page_shows_what_a_shell_shows(self):
        (self.base / "orvanto-cli").symlink_to(executable())
        self.make("IMG_0007.jpg", "IMG_0008.jpg", "IMG_0010.jpg", "notes.txt")
        transcript = "".join(f"$ {command}\n{self.shown(command)}" for command in COMMANDS)
        page = PAGE.read_text(encoding="utf-8")
        if os.environ.get("ORVANTO_WRITE_TRANSCRIPT"):
            PAGE.write_text(BLOCK.sub(lambda _: transcript, page), encoding="utf-8")
        self.assertEqual(BLOCK.findall(PAGE.read_text(encoding="utf-8")), [transcript])


if __name__ == "__main__":
    unittest.main()
