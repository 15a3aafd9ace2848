#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""./run where there is no display: the window in the web browser of the machine."""

import contextlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import threading
import unittest
import urllib.parse
import urllib.request

from harness.program import executable
from harness.vnc import PASSWORD, Refused, Screen
from harness.waiting import DEADLINE, until
from settingsfile import SETTLED, settings_text

PROJECT = pathlib.Path(__file__).resolve().parents[2]
LISTENS = "0A"
ALT, F4 = 0xffe9, 0xffc1
# Each stands for a program that the machine has: there is nothing to build here, and nothing is installed.
STAND_INS = {
    "cmake": '#!/bin/sh\necho "cmake: $*"\n',
    "dpkg-query": '#!/bin/sh\nfor name; do :; done\necho "$name" >>"$HOME/packages"\necho installed\n',
    "apt-get": '#!/bin/sh\necho "apt-get $*" >>"$HOME/packages"\nexit 1\n',
}


def readable(file):
    try:
        return file.read_bytes()
    except OSError:
        return b""


class BrowserDisplay(unittest.TestCase):
    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="orvanto-e2e-"))
        self.addCleanup(shutil.rmtree, self.home)
        self.addCleanup(self.kill_all)
        settings = self.home / "data" / "Kavrondel" / "Orvanto" / "config" / "global.xml"
        settings.parent.mkdir(parents=True)
        settings.write_text(settings_text(SETTLED), encoding="utf-8")
        self.project = self.home / "project"
        (self.project / "build" / "release" / "bin").mkdir(parents=True)
        shutil.copy(PROJECT / "run", self.project)
        shutil.copytree(PROJECT / "tools", self.project / "tools")
        self.build("orvanto", f'exec "{executable()}"')
        (self.home / "bin").mkdir()
        for name, text in STAND_INS.items():
            self.script(self.home / "bin" / name, text)
        (self.home / "tmp").mkdir()
        self.env = {name: text for name, text in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        self.env.update(HOME=str(self.home), XDG_DATA_HOME=str(self.home / "data"), LC_ALL="C.UTF-8",
                        TMPDIR=str(self.home / "tmp"), PATH=f"{self.home / 'bin'}:{os.environ['PATH']}")

    @staticmethod
    def script(file, text):
        file.write_text(text, encoding="utf-8")
        file.chmod(0o755)

    def build(self, name, words):
        """Stands for the result of a build."""
        self.script(self.project / "build" / "release" / "bin" / name, f"#!/bin/sh\n{words}\n")

    def processes(self):
        """All that was started with this home, as folders of /proc."""
        mark = f"HOME={self.home}".encode()
        return [entry for entry in pathlib.Path("/proc").iterdir()
                if entry.name.isdigit() and mark in readable(entry / "environ").split(b"\0")]

    def kill_all(self):
        for process in self.processes():
            # Some end by themselves meanwhile.
            with contextlib.suppress(ProcessLookupError):
                os.kill(int(process.name), signal.SIGKILL)

    def start(self):
        """Types ./run; the process, the address's parts and its password."""
        run = subprocess.Popen([self.project / "run"], env=self.env, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, text=True, start_new_session=True)
        self.addCleanup(run.wait)
        self.addCleanup(run.kill)
        self.addCleanup(run.stdout.close)
        watchdog = threading.Timer(DEADLINE, run.kill)
        watchdog.start()
        self.addCleanup(watchdog.cancel)
        said = ""
        for line in run.stdout:
            said += line
            if "http:" in line:
                break
        else:
            self.fail(f"no address: {said}")
        watchdog.cancel()
        address = urllib.parse.urlsplit(line.strip())
        return run, address, dict(urllib.parse.parse_qsl(address.fragment))

    def see_window(self, address, words):
        """The screen, once the window has been painted."""
        screen = Screen(address.port, words["password"])
        self.addCleanup(screen.close)
        until(lambda: len(screen.colours()) > 100, "a window that is painted")
        return screen

    def assert_nothing_is_left(self):
        until(lambda: not self.processes(), "the end of all that was started")
        self.assertEqual(list((self.home / "tmp").glob("orvanto-*")), [])

    def test_the_page_answers_and_takes_the_screen_from_the_address(self):
        _, address, words = self.start()
        self.assertEqual((address.hostname, address.query), ("127.0.0.1", ""))
        self.assertEqual({**words, "password": ""},
                         {"autoconnect": "true", "host": "127.0.0.1", "port": str(address.port), "resize": "scale",
                          "password": ""})
        opener = urllib.request.build_opener(urllib.request.ProxyHandler({}))
        with opener.open(address._replace(fragment="").geturl(), timeout=DEADLINE) as page:
            self.assertEqual(page.status, 200)
            self.assertIn("<title>noVNC</title>", page.read().decode())

    def test_the_window_is_seen_and_closed_there(self):
        run, address, words = self.start()
        screen = self.see_window(address, words)
        self.assertEqual(screen.size, (1280, 800))
        screen.press(ALT, F4)
        self.assertEqual(run.wait(DEADLINE), 0)
        self.assert_nothing_is_left()

    def test_who_does_not_know_the_password_sees_nothing(self):
        _, address, words = self.start()
        self.assertRegex(words["password"], "^[A-Za-z0-9]{8}$")
        self.assertEqual(self.see_window(address, words).ways_in, [PASSWORD])
        for wrong in ("", words["password"][:7], words["password"].swapcase()):
            with self.assertRaises(Refused):
                Screen(address.port, wrong)

    def test_the_password_stands_nowhere_else(self):
        _, address, words = self.start()
        self.see_window(address, words)
        password = words["password"].encode()
        processes = self.processes()
        self.assertGreaterEqual(len(processes), 5)
        for process in processes:
            for name in ("cmdline", "environ"):
                self.assertNotIn(password, readable(process / name))
        folder, = (self.home / "tmp").glob("orvanto-*")
        self.assertEqual(folder.stat().st_mode & 0o777, 0o700)
        for file in folder.iterdir():
            self.assertNotIn(password, b"" if file.is_socket() else file.read_bytes())

    def test_nothing_listens_but_the_page_and_that_for_this_machine_alone(self):
        _, address, words = self.start()
        self.see_window(address, words)
        sockets = set()
        for process in self.processes():
            for descriptor in (process / "fd").iterdir():
                try:
                    sockets.update(re.findall(r"socket:\[(\d+)\]", os.readlink(descriptor)))
                except FileNotFoundError:
                    pass
        found = []
        for table in ("tcp", "tcp6", "udp", "udp6"):
            for line in pathlib.Path("/proc/net", table).read_text(encoding="ascii").splitlines()[1:]:
                words = line.split()
                if words[9] in sockets and (words[3] == LISTENS or table.startswith("udp")):
                    found.append((table, words[1]))
        # The address is written as the machine has it in its memory.
        self.assertEqual(found, [("tcp", f"0100007F:{address.port:04X}")])

    def test_several_at_once(self):
        first, second = self.start(), self.start()
        self.assertNotEqual(first[1].port, second[1].port)
        for run, address, words in (first, second):
            self.see_window(address, words)
        with self.assertRaises(Refused):
            Screen(first[1].port, second[2]["password"])
        first[0].send_signal(signal.SIGTERM)
        first[0].wait(DEADLINE)
        self.see_window(second[1], second[2])

    def end_by(self, send, code):
        run, address, words = self.start()
        screen = self.see_window(address, words)
        send(run.pid)
        self.assertEqual(run.wait(DEADLINE), code)
        self.assert_nothing_is_left()
        screen.close()

    def test_ctrl_c_leaves_nothing(self):
        self.end_by(lambda pid: os.killpg(pid, signal.SIGINT), 128 + signal.SIGINT)

    def test_sigterm_leaves_nothing(self):
        self.end_by(lambda pid: os.kill(pid, signal.SIGTERM), 128 + signal.SIGTERM)

    def test_a_closed_terminal_leaves_nothing(self):
        self.end_by(lambda pid: os.killpg(pid, signal.SIGHUP), 128 + signal.SIGHUP)

    def test_killed_it_leaves_no_process(self):
        run, address, words = self.start()
        self.see_window(address, words)
        run.kill()
        until(lambda: not self.processes(), "the end of all that was started")

    def test_what_the_program_left_behind_ends_too(self):
        self.build("orvanto", "setsid sleep 1000 >/dev/null 2>&1 &\nexec sleep 1000")
        run, _, _ = self.start()
        until(lambda: sum(b"sleep" in readable(process / "cmdline") for process in self.processes()) == 2,
              "both")
        os.killpg(run.pid, signal.SIGINT)
        run.wait(DEADLINE)
        self.assert_nothing_is_left()

    def test_a_program_that_does_not_listen_is_killed_when_asked_twice(self):
        self.build("orvanto", 'trap "" TERM\ntouch "$HOME/started"\nwhile :; do sleep 0.1; done')
        run, _, _ = self.start()
        until((self.home / "started").exists, "the program")
        os.killpg(run.pid, signal.SIGINT)
        with self.assertRaises(subprocess.TimeoutExpired):
            run.wait(1)
        os.killpg(run.pid, signal.SIGINT)
        self.assertEqual(run.wait(5), 128 + signal.SIGINT)
        self.assert_nothing_is_left()

    def test_a_helper_that_ends_is_told(self):
        self.script(self.home / "bin" / "x11vnc", "#!/bin/sh\necho it has no heart >&2\nexit 3\n")
        run = subprocess.run([self.project / "run"], env=self.env, stdin=subprocess.DEVNULL, capture_output=True,
                             text=True, timeout=DEADLINE, check=False)
        self.assertEqual(run.returncode, 1)
        self.assertIn("it has no heart\nx11vnc has ended\n", run.stderr)
        self.assert_nothing_is_left()

    def run_cli(self, *words, **options):
        return subprocess.run([self.project / "run", "--cli", *words], env=self.env, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=DEADLINE, check=False, **options)

    def test_the_program_for_a_shell_gets_its_words_where_they_were_typed(self):
        self.build("orvanto-cli", 'printf "%s|" "$PWD" "$@"; exit 7')
        place = self.home / "photos"
        place.mkdir()
        run = self.run_cli("preview", "two words", "", "$HOME '\"", "--help", cwd=place)
        self.assertEqual((run.stdout, run.returncode), (f"{place}|preview|two words||$HOME '\"|--help|", 7))
        self.assertIn("--build --preset release --target orvanto-cli", run.stderr)

    def test_packages_of_a_display_are_looked_for_only_where_there_is_none(self):
        asked = self.home / "packages"
        self.build("orvanto-cli", ":")
        self.run_cli()
        self.assertNotIn("novnc", asked.read_text().split())
        asked.unlink()
        self.build("orvanto", ":")
        for display in ({"DISPLAY": ":0"}, {"WAYLAND_DISPLAY": "wayland-0"}):
            subprocess.run([self.project / "run"], env={**self.env, **display}, stdout=subprocess.DEVNULL, check=True)
        self.assertTrue({"cmake", "fonts-dejavu-core"} <= set(asked.read_text().split()))
        self.assertNotIn("novnc", asked.read_text().split())
        asked.unlink()
        self.assertEqual(subprocess.run([self.project / "run"], env=self.env, stdout=subprocess.DEVNULL,
                                        check=False).returncode, 0)
        self.assertTrue({"novnc", "websockify", "x11vnc"} <= set(asked.read_text().split()))


if __name__ == "__main__":
    unittest.main()
