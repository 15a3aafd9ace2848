#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""start.py PROGRAMS [ROUNDS]: see "start"."""

import pathlib
import select
import statistics
import subprocess
import sys
import tempfile
import time

from Xlib import X, display
from Xlib.ext import damage

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "e2e"))
from harness.desktop import Desktop
from harness.program import Program
from settingsfile import SETTLED

DEADLINE = 30
IDLE = 3


def seconds_until_painted(screen, program):
    """From the start of the process to the first drawing after its window is on the screen."""
    root = screen.screen().root
    root.change_attributes(event_mask=X.SubstructureNotifyMask)
    drawn = root.damage_create(damage.DamageReportRawRectangles)
    screen.sync()
    while screen.pending_events():
        screen.next_event()
    begin = time.monotonic()
    program.start()
    mapped = False
    while time.monotonic() < begin + DEADLINE:
        while screen.pending_events():
            event = screen.next_event()
            if event.type == X.MapNotify and event.window.get_geometry().width > 300:
                mapped = True
            elif mapped and event.type == screen.extension_event.DamageNotify:
                seconds = time.monotonic() - begin
                screen.damage_destroy(drawn)
                return seconds
        select.select([screen.fileno()], [], [], 1)
    sys.exit("no window was painted")


def idle_memory(pid):
    """Proportional set size and what is the program's alone, in MiB."""
    fields = {}
    for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()[1:]:
        name, value = line.split()[:2]
        fields[name.rstrip(":")] = int(value) / 1024
    return fields["Pss"], fields["Private_Clean"] + fields["Private_Dirty"]


def measure(desktop, screen, binary, home):
    program = Program(desktop, home, binary=binary, settings=SETTLED,
                      environment={"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": None})
    seconds = seconds_until_painted(screen, program)
    time.sleep(IDLE)
    memory = idle_memory(program.process.pid)
    program.process.terminate()
    program.process.wait(DEADLINE)
    return seconds, *memory


def measure_shell(programs, rounds):
    """From the start of a program without a window to its end."""
    commands = {"empty Qt Core program": [programs / "orvanto_benchmark_core"],
                "orvanto-cli --version": [programs / "orvanto-cli", "--version"]}
    figures = {title: [] for title in commands}
    for number in range(10 * rounds + 1):
        for title, command in commands.items():
            begin = time.monotonic()
            subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
            if number > 0:
                figures[title].append(time.monotonic() - begin)
    print("\n| program | from start to end, median | fastest to slowest |\n|---|---:|---:|")
    for title, seconds in figures.items():
        print(f"| {title} | {statistics.median(seconds) * 1e3:.1f} ms "
              f"| {min(seconds) * 1e3:.1f} to {max(seconds) * 1e3:.1f} ms |")


def main():
    programs = pathlib.Path(sys.argv[1]).resolve()
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 15
    binaries = {"empty Qt window": programs / "orvanto_benchmark_window",
                "Orvanto, without the splash": programs / "orvanto"}
    figures = {title: [] for title in binaries}
    desktop = Desktop(window_manager=False)
    try:
        screen = display.Display(desktop.env["DISPLAY"])
        screen.damage_query_version()
        with tempfile.TemporaryDirectory() as home:
            # The first start of each fills the caches and does not count.
            for number in range(rounds + 1):
                for title, binary in binaries.items():
                    row = measure(desktop, screen, binary, pathlib.Path(home) / binary.name)
                    if number > 0:
                        figures[title].append(row)
        screen.close()
    finally:
        desktop.stop()
    bare = statistics.median(row[0] for row in figures["empty Qt window"])
    print("| program | start, median | fastest to slowest | beside the empty window "
          "| memory, proportional | its own alone |")
    print("|---|---:|---:|---:|---:|---:|")
    for title, rows in figures.items():
        seconds, proportional, own = ([row[column] for row in rows] for column in range(3))
        median = statistics.median(seconds)
        print(f"| {title} | {median * 1e3:.0f} ms | {min(seconds) * 1e3:.0f} to {max(seconds) * 1e3:.0f} ms "
              f"| {median / bare:.2f} | {statistics.median(proportional):.1f} MiB | {statistics.median(own):.1f} MiB |")
    measure_shell(programs, rounds)


main()
