# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""orvanto-cli.exe: one job in a shell, names that Windows refuses, long paths, and what comes out as which bytes."""

import json
import os
import pathlib
import pty
import select
import signal
import subprocess
import time
import tty
import unittest

from harness import DEADLINE, DRIVE_C, VERSION, roaming, shutil, windows_path

PROGRAM = os.environ["ORVANTO_PROGRAM"].replace("orvanto.exe", "orvanto-cli.exe")
FOLDER = DRIVE_C / "0 console"
NAMES = ["Straße.txt", "plain.txt", "日本.txt", "🎉.txt"]


class Console(unittest.TestCase):
    def setUp(self):
        FOLDER.mkdir()
        self.addCleanup(shutil.rmtree, FOLDER)
        self.addCleanup(shutil.rmtree, roaming() / "Kavrondel", ignore_errors=True)

    def make(self, names, folder=FOLDER):
        folder.mkdir(parents=True, exist_ok=True)
        for name in names:
            (folder / name).write_text(name, encoding="utf-8")

    def content(self, folder=FOLDER):
        return {path.name: path.read_text(encoding="utf-8") for path in folder.iterdir()}

    def run_program(self, *arguments, code=0, command=(PROGRAM,)):
        """What it printed: to standard output, as UTF-8, and to standard error."""
        done = subprocess.run(["wine", *command, *arguments], cwd=FOLDER, stdin=subprocess.DEVNULL,
                              capture_output=True, timeout=DEADLINE, check=False)
        trouble = done.stderr.decode(errors="replace")
        self.assertEqual(done.returncode, code, trouble)
        return done.stdout.decode().replace("\r\n", "\n"), trouble

    def rows(self, *arguments, code=0):
        out, _ = self.run_program(*arguments, code=code)
        return [json.loads(line) for line in out.splitlines()]

    def test_version(self):
        self.assertIn(VERSION, self.run_program("--version")[0])

    def test_one_job(self):
        self.make(NAMES)
        rule = ("--insert", "Ω @0")
        rows = self.rows("preview", "--json", *rule, *NAMES)
        self.assertEqual([(row["old"], row["new"], row["outcome"]) for row in rows],
                         [(name, f"Ω {name}", "renamed") for name in NAMES])
        self.assertEqual(self.content(), {name: name for name in NAMES})
        self.run_program("apply", *rule, *NAMES, code=64)
        self.run_program("apply", "--yes", *rule, *NAMES)
        self.assertEqual(self.content(), {f"Ω {name}": name for name in NAMES})
        self.assertIn("renamed 4 files, complete", self.run_program("history")[0])
        self.run_program("undo", "--yes")
        self.assertEqual(self.content(), {name: name for name in NAMES})

    def test_names_that_windows_refuses_are_foretold(self):
        names = [f"{letter}.txt" for letter in "abcde"]
        self.make(names)
        new = {"a.txt": "con.txt", "b.txt": "x:y.txt", "c.txt": "what?.txt", "d.txt": "lpt1", "e.txt": "fine.txt"}
        rules = [part for old, name in new.items() for part in ("--replace", old, name)]
        foretold = {row["old"]: row["outcome"] for row in self.rows("preview", "--json", *rules, *names, code=3)}
        self.assertEqual(foretold, {name: "renamed" if name == "e.txt" else "not-allowed" for name in names})
        self.run_program("apply", "--yes", *rules, *names, code=3)
        self.assertEqual(self.content(), {name: name for name in names})

    def test_dot_at_the_end_is_dropped(self):
        self.make(["a.txt"])
        self.run_program("apply", "--yes", "--replace", "a.txt", "name. ", "a.txt")
        self.assertEqual(self.content(), {"name": "a.txt"})

    def test_files_shift_and_swap_and_no_other_name_is_left(self):
        self.make(["1", "2", "3"])
        self.run_program("apply", "--yes", "--trim", "0,1", "--number", "2", "1", "2", "3")
        self.assertEqual(self.content(), {"2": "1", "3": "2", "4": "3"})
        self.run_program("undo", "--yes")
        self.assertEqual(self.content(), {"1": "1", "2": "2", "3": "3"})
        swap = ("--regexp", "^([12])$", "x\\1", "--replace", "x1", "2", "--replace", "x2", "1")
        self.run_program("apply", "--yes", *swap, "1", "2")
        self.assertEqual(self.content(), {"1": "2", "2": "1", "3": "3"})
        self.run_program("undo", "--yes")
        self.assertEqual(self.content(), {"1": "1", "2": "2", "3": "3"})

    def test_long_paths(self):
        deep = FOLDER.joinpath(*["a folder of forty characters or about it"] * 8)
        self.make(["a.txt", "b.txt"], deep)
        self.assertGreater(len(windows_path(deep)), 300)
        self.run_program("apply", "--yes", "--insert", "new_@0", windows_path(deep))
        self.assertEqual(self.content(deep), {"new_a.txt": "a.txt", "new_b.txt": "b.txt"})
        self.run_program("undo", "--yes")
        self.assertEqual(self.content(deep), {"a.txt": "a.txt", "b.txt": "b.txt"})

    def test_output_is_utf_8_under_another_code_page(self):
        self.make(NAMES)
        program = "Z:" + PROGRAM.replace("/", "\\")
        preview = f'@"{program}" preview --print0 --insert Y@0 --filter *.txt . >out'
        (FOLDER / "go.cmd").write_text(f"@chcp 850 >nul\r\n{preview}\r\n")
        self.run_program("/c", "go.cmd", command=("cmd",))
        printed = (FOLDER / "out").read_bytes().decode().rstrip("\0").split("\0")
        self.assertEqual({pathlib.PureWindowsPath(path).name for path in printed}, {f"Y{name}" for name in NAMES})

    def test_terminal_is_asked(self):
        self.make(["a.txt"])
        process, terminal = pty.fork()
        if process == 0:
            os.chdir(FOLDER)
            # Wine reads the keys themselves.
            tty.setraw(0)
            os.execvp("wine", ["wine", PROGRAM, "apply", "--case", "upper,all", "a.txt"])
        self.addCleanup(os.close, terminal)
        seen = self.answer(terminal, b"n\r")
        if b"[y/N]" not in seen:
            os.kill(process, signal.SIGKILL)
        code = os.waitstatus_to_exitcode(os.waitpid(process, 0)[1])
        self.assertEqual(code, 4, seen)
        self.assertEqual(self.content(), {"a.txt": "a.txt"})

    def answer(self, terminal, text):
        """What is printed until the terminal is closed; the text answers the question."""
        seen = b""
        asked = False
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end:
            if not select.select([terminal], [], [], 0.2)[0]:
                continue
            try:
                seen += os.read(terminal, 4096)
            except OSError:
                break
            if b"[y/N]" in seen and not asked:
                asked = True
                os.write(terminal, text)
        return seen


if __name__ == "__main__":
    unittest.main()
