#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""orvanto-cli in a real shell: exit codes, streams that end, names of every kind, a million of them."""

import base64
import json
import os
import random
import resource
import signal
import subprocess
import unittest

from shell import Shell, Terminal, executable


class Answers(Shell):
    def test_exit_codes(self):
        self.make("a", "b", "xb")
        add = ("--insert", "x@0")
        codes = {
            ("--version",): 0,
            ("preview", *add, "a"): 0,
            ("preview", *add, "b"): 3,
            ("apply", "--yes", *add, "b"): 3,
            ("apply", "--yes", "--classic", *add, "b"): 1,
            ("apply", "--yes", "--classic", *add, "a", "b"): 2,
            ("apply", "--yes", "b"): 4,
            ("undo", "--yes"): 0,
            ("undo", "--yes", "never"): 4,
            ("apply", *add, "a"): 64,
            ("rename",): 64,
            ("preview", "--files-from", "gone"): 74,
            ("history",): 0,
        }
        for words, code in codes.items():
            self.assertEqual(self.run_program(*words).returncode, code, words)
        self.assertEqual(self.names(), ["a", "b", "xb"])

    def test_help_and_version_go_to_standard_output(self):
        for words in (["--help"], ["--version"], ["preview", "--help"], ["apply", "-h"], ["undo", "--help"],
                      ["history", "--help"], ["sets", "--help"]):
            run = self.run_program(*words)
            self.assertEqual((run.returncode, run.stderr), (0, b""), words)
            self.assertTrue(run.stdout.endswith(b"\n"))
            self.assertLessEqual(max(map(len, run.stdout.decode().split("\n"))), 80, words)

    def test_nothing_is_read_that_was_not_asked_for(self):
        self.make("a")
        read, write = os.pipe()
        self.addCleanup(os.close, write)
        with os.fdopen(read) as stdin:
            run = self.run_program("preview", "a", stdin=stdin)
        self.assertEqual(run.returncode, 0)

    def test_the_folder_is_left_alone_and_no_data_is_made_by_looking(self):
        self.make("a")
        for words in (("preview", "--trim", "0,1", "a"), ("history",), ("sets", "list"), ("undo", "--yes")):
            self.run_program(*words)
        self.assertEqual(self.names(), ["a"])
        self.assertFalse((self.base / "data").exists())


class Names(Shell):
    HOSTILE = ["-x", "--yes", "a b", "it's", 'say "it"', "$HOME", "`id`", "a\\b", "new\nline", "\x1b[31mred", "\r",
               "tab\t", "*", "?", "[a]", "~", "#", "!", "{a,b}", "é", "日本語", "😀", "\u202egpj", "'", "-", " ", "%s",
               "\x01", "\x7f", "a;b", "a&b", "(x)", "\ufeffbom", ":x"]
    NO_TEXT = [b"\xff", b"a\xe6\x97", b"\xed\xa0\x80.txt", b"caf\xe9"]

    def test_what_is_printed_steers_no_terminal_and_can_be_read_back(self):
        self.make(*self.HOSTILE)
        run = self.in_bash('"$orvanto" preview --insert N@0 -- * 2>trouble')
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertFalse(set(run.stdout) & (set(range(32)) - {10}))
        self.assertNotIn("\u202e", run.stdout.decode())
        pairs = [line.split(" → ") for line in run.stdout.decode().splitlines()]
        self.assertEqual(len(pairs), len(self.HOSTILE))
        script = "\n".join(f"printf '%s\\0' {old}; printf '%s\\0' {new}" for old, new in pairs)
        words = self.in_bash(script).stdout.decode().split("\0")[:-1]
        self.assertEqual(sorted(words[0::2]), sorted(self.HOSTILE))
        self.assertEqual(words[1::2], ["N" + name for name in words[0::2]])

    def test_names_are_quoted_as_ls_quotes_them(self):
        random.seed(1)
        letters = "ab'\"$ \n\\#~;*é日\x1b%@+]=-"
        names = {"".join(random.choices(letters, k=random.randint(1, 6))) for _ in range(400)}
        # Of names with both, ls at times writes empty quotes before the first ones.
        names -= {name for name in names if "'" in name and any(letter < " " for letter in name)}
        names -= {name for name in names if name.strip(".") == ""}
        self.make(*names)
        ours = self.in_bash('"$orvanto" preview --files-from <(printf "%s\\0" *) -0').stdout
        theirs = self.in_bash('printf "%s\\0" * | LC_ALL=C.UTF-8 xargs -0 ls -d -U --quoting-style=shell-escape --')
        self.assertEqual([line.removesuffix(b": keeps its name") for line in ours.splitlines()],
                         theirs.stdout.splitlines())

    def test_hostile_names_are_renamed_exactly(self):
        self.make(*self.HOSTILE)
        run = self.in_bash('printf "%s\\0" * | "$orvanto" apply --yes --insert N@0 -0 --files-from - --print0')
        self.assertEqual(run.returncode, 0, run.stderr)
        expected = sorted("N" + name for name in self.HOSTILE)
        self.assertEqual(self.names(), expected)
        self.assertEqual(sorted(run.stdout.decode().split("\0")[:-1]), expected)
        self.assertEqual(self.run_program("undo", "--yes").returncode, 0)
        self.assertEqual(self.names(), sorted(self.HOSTILE))

    def test_bytes_that_are_no_text_stay_and_are_exact(self):
        self.make("good", *self.NO_TEXT)
        words = [b"--insert", b"N@0", b"--", *self.NO_TEXT, b"good"]
        run = self.run_program(b"apply", b"--yes", *words)
        self.assertEqual(run.returncode, 3)
        self.assertTrue(run.stderr.isascii())
        run = self.run_program(b"apply", b"--yes", b"--classic", b"--print0", *words)
        self.assertEqual(run.returncode, 2)
        self.assertEqual(run.stdout.split(b"\0"), [*self.NO_TEXT, b"Ngood", b""])
        rows = [json.loads(line) for line in self.run_program(b"preview", b"--json", *words).stdout.splitlines()]
        self.assertEqual([base64.b64decode(row["oldBytes"]) for row in rows[:-1]], self.NO_TEXT)
        self.assertEqual({row["outcome"] for row in rows[:-1]}, {"no-text"})
        self.assertEqual(sorted(os.listdir(os.fsencode(self.folder))), sorted([b"Ngood", *self.NO_TEXT]))

    def test_bytes_in_a_folder_s_name_are_no_text_either(self):
        self.make(b"d\xff/a.txt")
        row, = self.rows(b"preview", b"--insert", b"N@0", b"d\xff/a.txt")
        self.assertEqual((row["outcome"], base64.b64decode(row["oldBytes"])), ("no-text", b"d\xff/a.txt"))

    def test_relative_paths_are_those_of_the_folder(self):
        self.make("a", "sub/b")
        run = self.run_program("apply", "--yes", "--insert", "N@0", "../files/a", "sub//b", "./sub/../sub/b")
        self.assertEqual(run.returncode, 3)
        run = self.run_program("apply", "--yes", "--print0", "--insert", "N@0", "../files/a", "sub//b")
        self.assertEqual((run.returncode, run.stdout), (0, b"../files/Na\0sub//Nb\0"))
        self.assertEqual((self.names(), os.listdir(self.folder / "sub")), (["Na", "sub"], ["Nb"]))


class Streams(Shell):
    def test_a_full_disk_is_told(self):
        self.make("a")
        with open("/dev/full", "wb") as full:
            run = self.run_program("preview", "--insert", "N@0", "a", stdout=full)
        self.assertEqual(run.returncode, 74)
        self.assertIn(b"the output cannot be written", run.stderr)
        with open("/dev/full", "wb") as full:
            run = self.run_program("apply", "--yes", "--insert", "N@0", "a", stdout=full)
        self.assertEqual((run.returncode, self.names()), (74, ["a"]))

    def test_a_pipe_that_closes_ends_nothing(self):
        self.make(*(f"{number:05}" for number in range(20_000)))
        run = self.in_bash('set -o pipefail; "$orvanto" preview --insert N@0 --files-from <(ls) | head -n 1')
        self.assertEqual((run.returncode, run.stdout), (0, "00000 → N00000\n".encode()))
        self.assertNotIn(b"cannot be written", run.stderr)
        run = self.in_bash('set -o pipefail; "$orvanto" apply --yes --insert N@0 --files-from <(ls) | head -n 1')
        self.assertEqual(run.returncode, 0, run.stderr)
        self.assertEqual(self.names(), [f"N{number:05}" for number in range(20_000)])

    def test_closed_streams_harm_nothing(self):
        self.make("a")
        run = self.in_bash('"$orvanto" apply --yes --insert N@0 a >&- 2>&- <&-')
        self.assertEqual(self.names(), ["a"] if run.returncode else ["Na"])
        self.assertEqual(self.names(), ["a"])

    def test_a_million_paths_take_400_bytes_each(self):
        # What the program takes without any path is no part of it.
        def peak(count, script):
            env = dict(self.env, orvanto=executable(), count=str(count))
            with subprocess.Popen(["bash", "-c", script], cwd=self.folder, env=env, stdin=subprocess.DEVNULL,
                                  stdout=subprocess.PIPE) as run:
                words = run.stdout.read().split()
            self.assertEqual(run.returncode, 0)
            return int(words[-1]) * 1024

        script = ('seq -f "some/folder/of/photographs/IMG_%08.0f.JPG" "$count" | '
                  '/usr/bin/time -o /dev/stdout -f %M "$orvanto" preview --quiet --files-from - --replace IMG x '
                  '2>/dev/null; [ "${PIPESTATUS[1]}" = 3 ]')
        count = 1_000_000
        most = int(os.environ["ORVANTO_CLI_BYTES_A_PATH"])
        self.assertLess((peak(count, script) - peak(1, script)) / count, most)


class InATerminal(Shell):
    def test_it_asks_and_renames(self):
        self.make("a", "b")
        terminal = Terminal(self, "apply", "--insert", "N@0", "a", "b")
        terminal.wait_for(b"Rename 2 files? [y/N] ")
        self.assertEqual(self.names(), ["a", "b"])
        terminal.type(b"y\n")
        output, code = terminal.end()
        self.assertEqual(code, 0)
        self.assertIn(b"renamed 2 files\n", output)
        self.assertEqual(self.names(), ["Na", "Nb"])
        terminal = Terminal(self, "undo")
        terminal.wait_for(b"Take back 2 renames of ")
        terminal.type(b"yes\n")
        self.assertEqual(terminal.end()[1], 0)
        self.assertEqual(self.names(), ["a", "b"])

    def test_no_is_the_answer_of_who_only_presses_enter(self):
        self.make("a")
        terminal = Terminal(self, "apply", "--insert", "N@0", "a")
        terminal.wait_for(b"[y/N] ")
        terminal.type(b"\n")
        self.assertEqual((terminal.end()[1], self.names()), (4, ["a"]))

    def test_interruption_at_the_question_touches_nothing(self):
        self.make("a")
        terminal = Terminal(self, "apply", "--insert", "N@0", "a")
        terminal.wait_for(b"[y/N] ")
        terminal.type(b"\x03")
        output, code = terminal.end()
        self.assertEqual((code, self.names()), (130, ["a"]))
        self.assertIn(b"interrupted: nothing was renamed", output)

    def test_colours_are_for_terminals(self):
        self.make("a")
        words = ("preview", "--insert", "N@0", "a")
        self.assertIn(b"\x1b[", Terminal(self, *words).end()[0])
        self.assertNotIn(b"\x1b", self.run_program(*words).stdout)
        self.env["NO_COLOR"] = "1"
        self.assertNotIn(b"\x1b", Terminal(self, *words).end()[0])
        del self.env["NO_COLOR"]
        self.env["TERM"] = "dumb"
        self.assertNotIn(b"\x1b", Terminal(self, *words).end()[0])


    def test_what_takes_longer_tells_how_far_it_is(self):
        # So many that they take more than a second anywhere.
        (self.folder / "list").write_text("".join(f"{number}.jpg\n" for number in range(2_000_000)), encoding="ascii")
        terminal = Terminal(self, "preview", "--files-from", "list", "--json")
        terminal.wait_for(b"\rFiles: ")
        terminal.type(b"\x03")
        output, code = terminal.end()
        self.assertEqual(code, 130)
        self.assertTrue(output.endswith(b" \r"), output[-80:])


class Interruption(Shell):
    COUNT = 60_000

    def interrupted_run(self):
        """A run that was interrupted in its midst: its exit code, what it said, and how many files it renamed."""
        names = [f"{number:05}" for number in range(self.COUNT)]
        for name in names:
            os.close(os.open(self.folder / name, os.O_CREAT))
        with subprocess.Popen([executable(), "apply", "--yes", "--quiet", "--insert", "N@0", "--filter", "*",
                               str(self.folder)], cwd=self.folder, env=self.env, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.PIPE) as run:
            while not os.path.exists(self.folder / "N00000"):
                self.assertIsNone(run.poll())
            run.send_signal(signal.SIGINT)
            said = run.stderr.read().decode()
        return run.returncode, said, sum(name.startswith("N") for name in os.listdir(self.folder))

    def test_a_run_stops_between_two_files_and_can_be_taken_back(self):
        code, said, renamed = self.interrupted_run()
        self.assertEqual(code, 130)
        self.assertGreater(renamed, 0)
        self.assertLess(renamed, self.COUNT)
        self.assertIn(f'interrupted: renamed {renamed} of {self.COUNT:,} files; "orvanto-cli undo ', said)
        self.assertEqual(self.run_program("undo", "--yes", "--quiet").returncode, 0)
        self.assertEqual(self.names(), [f"{number:05}" for number in range(self.COUNT)])


class Journals(Shell):
    def test_without_a_journal_it_refuses_unless_told(self):
        self.make("a")
        self.data.parent.mkdir(parents=True)
        self.data.write_text("in the way", encoding="utf-8")
        run = self.run_program("apply", "--yes", "--insert", "N@0", "a")
        self.assertEqual((run.returncode, self.names()), (74, ["a"]))
        run = self.run_program("apply", "--yes", "--no-undo", "--insert", "N@0", "a")
        self.assertEqual((run.returncode, self.names()), (0, ["Na"]))

    def test_a_journal_without_room_is_told(self):
        self.make(*(f"{number:05}" for number in range(3000)))

        def no_large_files():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096))

        run = self.run_program("apply", "--yes", "--quiet", "--filter", "*", "--insert", "N@0", ".",
                               preexec_fn=no_large_files)
        self.assertNotEqual(run.returncode, 0)
        self.assertEqual(self.names(), [f"{number:05}" for number in range(3000)])


if __name__ == "__main__":
    unittest.main()
