#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""windowpeers.py [--only TITLE] PROGRAMS RESULTS [FILES ...]: times the window beside other programs with a window.

Each is used by mouse and keyboard on a desktop of its own to put "new_" before the name of every file of one folder on
the RAM disk. PROGRAMS is the folder of the built program; RESULTS gets table.md, figures.json and a picture of each
program after each step. To be started by "windowpeers". How it is watched: watching.py.

To the list: from the files being given until the program rests. Orvanto gets them by Ctrl+V once it runs; the others
by their command line, so that their start is in it.
To the preview: from the last thing that a person does for it until the program rests.
The rename: from the click until the last file has its new name, which the folder's own time tells.
Without an answer: the longest time in all of that in which the window did not answer a ping.
"""

import argparse
import dataclasses
import json
import os
import pathlib
import resource
import shutil
import subprocess
import sys
import tempfile
import time
import typing

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from harness.desktop import Desktop
from settingsfile import SETTLED, settings_text
from watching import Person, Phase

LIMIT = 600
RAM_DISK = pathlib.Path("/dev/shm")
PREFIX = "new_"


# A slip of the hand must not reach anybody's files: the program can write to its home and to the folder, nowhere else.
CONFINED = """
for folder in "$1" "$2"; do mount --bind "$folder" "$folder" || exit 1; done
mount -o remount,bind,ro / && mount -o remount,bind,ro /dev/shm && cd "$1" && shift 2 && exec "$@"
"""


class Failure(Exception):
    """Why a program cannot be measured."""


class Sitting:
    """One program on a desktop of its own, from its start to its end, and the figures."""

    def __init__(self, programs, folder, count, results):
        self.programs, self.folder, self.count, self.results = programs, folder, count, results
        self.desktop = Desktop(screen="1280x900x24")
        self.home = pathlib.Path(self.desktop.env["HOME"])
        self.phases, self.person, self.program = {}, None, None

    def stop(self):
        if self.person:
            self.person.close()
        self.desktop.stop()

    def start(self, *command, **environment):
        """Starts the program in the folder with the files; returns when that was."""
        self.desktop.env.update(environment, NO_AT_BRIDGE="1", PWD=str(self.folder))
        confined = ["unshare", "--map-root-user", "--mount", "sh", "-c", CONFINED, "sh", self.folder,
                    self.desktop.folder]
        begin = time.time()
        self.program = self.desktop.spawn([str(word) for word in (*confined, *command)])
        if self.person:
            self.person.close()
        self.person = Person(self.desktop, self.program.pid)
        return begin

    def window(self, words):
        """The window with such a title, once it is there."""
        end = time.time() + LIMIT
        while time.time() < end:
            window = self.person.window(words)
            if window:
                return window
            if self.program.poll() is not None:
                raise Failure(f"ended with {self.program.returncode}")
            time.sleep(0.02)
        raise Failure(f"list: no window {words!r} in ten minutes")

    def rest(self, begin=None):
        phase = self.person.until_rest(begin or time.time(), LIMIT)
        if not phase.finished:
            raise Failure("not at rest in ten minutes")
        return phase

    def click(self, window, x, y, *keys):
        """Clicks there and types; not timed."""
        self.person.point(window, x, y)
        self.person.press()
        self.rest()
        self.person.keys(*keys)
        self.rest()

    def copy(self, text, kind="UTF8_STRING"):
        """Has another program put a text on the clipboard."""
        owner = self.desktop.spawn(["xclip", "-quiet", "-selection", "clipboard", "-target", kind],
                                   stdin=subprocess.PIPE, text=True)
        owner.stdin.write(text)
        owner.stdin.close()
        self.rest()

    def record(self, name, begin):
        """What began then is a phase of that name, or one more part of it."""
        phase = self.person.until_rest(begin, LIMIT)
        before = self.phases.get(name, Phase(0, 0, True))
        self.phases[name] = Phase(before.seconds + phase.seconds, max(before.longest_wait, phase.longest_wait),
                                  phase.finished)
        self.desktop.screenshot(self.results / f"{self.results.name}-{self.count}-{name}.png")
        if not phase.finished:
            raise Failure(f"{name}: not in ten minutes")

    def timed_keys(self, name, *keys):
        begin = time.time()
        self.person.keys(*keys)
        self.record(name, begin)

    def timed_click(self, name, window, x, y):
        self.person.point(window, x, y)
        self.rest()
        begin = time.time()
        self.person.press()
        self.record(name, begin)

    def rename(self, window, x, y):
        """Clicks there, waits for the new names and notes when the last one came."""
        self.person.point(window, x, y)
        self.rest()
        begin = time.time()
        self.person.press()
        phase = self.person.until_rest(begin, LIMIT, self._is_renamed)
        self.desktop.screenshot(self.results / f"{self.results.name}-{self.count}-rename.png")
        seconds = self.folder.stat().st_mtime - begin
        self.phases["rename"] = phase._replace(seconds=seconds if phase.finished else LIMIT)
        self.phases["rest"] = phase
        if not phase.finished:
            done = sum(name.startswith(PREFIX) for name in os.listdir(self.folder))
            raise Failure(f"rename: {done:,} of {self.count:,} files in ten minutes")

    def _is_renamed(self):
        names = os.listdir(self.folder)
        return len(names) == self.count and all(name.startswith(PREFIX + "IMG_") for name in names)


def use_orvanto(sitting):
    settings = sitting.home / "data" / "Kavrondel" / "Orvanto" / "config" / "global.xml"
    settings.parent.mkdir(parents=True)
    settings.write_text(settings_text(SETTLED), encoding="utf-8")
    sitting.start(sitting.programs / "orvanto", XDG_DATA_HOME=str(sitting.home / "data"))
    window = sitting.window("Orvanto")
    sitting.desktop.run("wmctrl", "-i", "-r", hex(window.id), "-e", "0,0,0,1200,840")
    sitting.rest()
    sitting.click(window, 90, 109, "Home", "Down", "Down", "Return")
    sitting.copy(PREFIX)
    sitting.click(window, 265, 197, "Control_L+v")
    sitting.click(window, 52, 463)
    sitting.copy(f"{sitting.folder.as_uri()}\r\n", "text/uri-list")
    sitting.click(window, 656, 400)
    sitting.timed_keys("list", "Control_L+v")
    sitting.timed_click("preview", window, 510, 785)
    sitting.rename(window, 630, 785)


def use_krename(sitting):
    # The first start asks whether root means it; it is answered for good.
    sitting.start("krename")
    warning = sitting.window("Error")
    sitting.rest()
    sitting.click(warning, 18, 126)
    sitting.click(warning, 242, 156)
    sitting.person.keys("alt+F4")
    sitting.desktop.run("wmctrl", "-c", "KRename")
    sitting.program.wait(LIMIT)

    begin = sitting.start("krename", "-r", sitting.folder)
    window = sitting.window("KRename")
    sitting.record("list", begin)
    sitting.copy(PREFIX)
    sitting.click(window, 263, 137)
    sitting.timed_keys("preview", "Control_L+v")
    sitting.rename(window, 419, 458)


def use_thunar(sitting):
    begin = sitting.start("thunar", "--bulk-rename", *sorted(os.listdir(sitting.folder)))
    window = sitting.window("Bulk Rename")
    sitting.record("list", begin)
    sitting.copy(PREFIX)
    sitting.click(window, 209, 376)
    sitting.timed_keys("preview", "Control_L+v")
    sitting.rename(window, 532, 469)


def use_gprename(sitting):
    begin = sitting.start("gprename")
    window = sitting.window("GPRename")
    sitting.record("list", begin)
    sitting.click(window, 184, 336)
    sitting.copy(PREFIX)
    sitting.click(window, 166, 376, "Control_L+v")
    sitting.timed_click("preview", window, 690, 338)
    sitting.rename(window, 690, 377)


def use_double_commander(sitting):
    begin = sitting.start("doublecmd", "--no-splash", f"--config-dir={sitting.home / 'dc'}", sitting.folder,
                          sitting.home)
    window = sitting.window("Double Commander")
    sitting.record("list", begin)
    sitting.click(window, 300, 400)
    sitting.timed_keys("list", "Control_L+a")
    sitting.timed_keys("list", "Control_L+m")
    tool = sitting.window("Multi-Rename")
    sitting.copy(PREFIX)
    sitting.click(tool, 116, 404, "Home")
    sitting.timed_keys("preview", "Control_L+v")
    sitting.rename(tool, 648, 605)


@dataclasses.dataclass(frozen=True)
class Peer:
    title: str
    use: typing.Callable


PEERS = (Peer("Orvanto", use_orvanto), Peer("Double Commander", use_double_commander),
         Peer("GPRename", use_gprename), Peer("KRename", use_krename), Peer("Thunar", use_thunar))


def fill(folder, count):
    descriptor = os.open(folder, os.O_RDONLY)
    for number in range(count):
        os.close(os.open(f"IMG_{number:07}.JPG", os.O_CREAT | os.O_WRONLY, 0o600, dir_fd=descriptor))
    os.close(descriptor)


def measure(peer, programs, count, results):
    """The figures of one program with so many files."""
    pictures = results / peer.title.lower().replace(" ", "-")
    pictures.mkdir(parents=True, exist_ok=True)
    parent = pathlib.Path(tempfile.mkdtemp(prefix="orvanto-peers-", dir=RAM_DISK))
    sitting = None
    try:
        folder = parent / "files"
        folder.mkdir()
        fill(folder, count)
        load = os.getloadavg()[0]
        sitting = Sitting(programs, folder, count, pictures)
        fault = None
        try:
            peer.use(sitting)
        except Failure as failure:
            fault = str(failure)
            sitting.desktop.screenshot(pictures / f"{pictures.name}-{count}-fault.png")
        return {"program": peer.title, "files": count, "fault": fault, "load before": load,
                "load after": os.getloadavg()[0],
                **{name: [phase.seconds, phase.longest_wait] for name, phase in sitting.phases.items()}}
    finally:
        if sitting:
            sitting.stop()
        shutil.rmtree(parent)


def cell(row, name):
    return f"{row[name][0]:.2f} s" if name in row else "-"


def table(rows):
    lines = ["| files | program | to the list | to the preview | rename | until it rests | without an answer "
             "| load | |",
             "|---:|---|---:|---:|---:|---:|---:|---:|---|"]
    for row in rows:
        waits = [row[name][1] for name in ("list", "preview", "rename") if name in row]
        lines.append(f"| {row['files']:,} | {row['program']} | {cell(row, 'list')} | {cell(row, 'preview')} "
                     f"| {cell(row, 'rename')} | {cell(row, 'rest')} | {max(waits, default=0):.2f} s "
                     f"| {row['load before']:.1f} to {row['load after']:.1f} | {row['fault'] or ''} |")
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("programs", type=pathlib.Path)
    parser.add_argument("results", type=pathlib.Path)
    parser.add_argument("--only", action="append")
    parser.add_argument("files", type=int, nargs="*", default=[1_000, 10_000, 100_000])
    options = parser.parse_intermixed_args()
    results = options.results.resolve()
    results.mkdir(parents=True, exist_ok=True)
    # The names of 100,000 files do not fit into the usual room for a command line.
    resource.setrlimit(resource.RLIMIT_STACK, (64 << 20, resource.getrlimit(resource.RLIMIT_STACK)[1]))
    rows = []
    for count in options.files or [1_000, 10_000, 100_000]:
        for peer in PEERS:
            if options.only and peer.title not in options.only:
                continue
            rows.append(measure(peer, options.programs.resolve(), count, results))
            print(json.dumps(rows[-1]), flush=True)
            (results / "figures.json").write_text(json.dumps(rows, indent=1), encoding="utf-8")
            (results / "table.md").write_text(table(rows), encoding="utf-8")
    print(table(rows))


main()
