#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""compare.py PROGRAMS RESULTS [FILES ...]: times the program beside its peers. To be started by "compare".

Each puts "new_" before the name of every file of one folder, five rounds in turn; the files are the same ones all the
time, since making files where others have just gone is slow on some file systems. PROGRAMS is the folder of the
benchmark programs; RESULTS gets table.md and a plot for each number of files. The disk is the one of RESULTS.
"""

import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = 5
BARE, RUN, DROP_AND_RUN = "renameat2 alone", "Orvanto: Rename pressed", "Orvanto: drop and Rename"
JOURNAL, UNDO = "Orvanto: with journal", "Orvanto: undo"
SHELL = "orvanto-cli apply"
NAMES = "find . -mindepth 1 -printf '%f\\0'"
PEERS = {
    "mmv": ["mmv", "*", "new_#1"],
    "rename (Perl)": ["sh", "-c", NAMES + " | file-rename --null 's/^/new_/'"],
    "rename (util-linux)": ["sh", "-c", NAMES + " | xargs -0 rename.ul '' new_"],
    "vidir": ["vidir", "."],
    SHELL: ["orvanto-cli", "apply", "--yes", "--quiet", "--insert", "new_@0", "."],
}
EDITOR = """#!/bin/sh
exec sed -i 's,\\./,./new_,' "$1"
"""


def fill(folder, count):
    folder.mkdir()
    descriptor = os.open(folder, os.O_RDONLY)
    for number in range(count):
        os.close(os.open(f"IMG_{number:07}.JPG", os.O_CREAT | os.O_WRONLY, 0o600, dir_fd=descriptor))
    os.close(descriptor)
    os.sync()


def restore(folder, count, undone):
    """Gives every file its old name back, after a look at the new ones."""
    names = os.listdir(folder)
    if undone:
        if len(names) != count or not all(name.startswith("IMG_") for name in names):
            sys.exit(f"{folder} does not hold {count} files with their old names")
        return
    if len(names) != count or not all(name.startswith("new_IMG_") for name in names):
        sys.exit(f"{folder} does not hold {count} renamed files")
    descriptor = os.open(folder, os.O_RDONLY)
    for name in names:
        os.rename(name, name.removeprefix("new_"), src_dir_fd=descriptor, dst_dir_fd=descriptor)
    os.close(descriptor)
    os.sync()


def seconds_of(tool, folder, programs, editor):
    """What the tool took: one figure for each row of the table."""
    if tool in PEERS:
        environment = {**os.environ, "EDITOR": editor, "VISUAL": editor, "PATH": f"{programs}:{os.environ['PATH']}",
                       "XDG_DATA_HOME": str(folder.parent)}
        begin = time.monotonic()
        subprocess.run(PEERS[tool], cwd=folder, check=True, stdout=subprocess.DEVNULL, env=environment)
        return {tool: time.monotonic() - begin}
    program = "orvanto_benchmark_bare" if tool == BARE else "orvanto_benchmark_run"
    words = {RUN: ["unrecorded"], UNDO: ["undo"]}.get(tool, [])
    output = subprocess.run([programs / program, folder, *words], check=True, capture_output=True).stdout.split()
    if tool == BARE:
        return {BARE: float(output[1])}
    if tool == RUN:
        return {RUN: float(output[2])}
    if tool == UNDO:
        return {UNDO: float(output[3])}
    return {JOURNAL: float(output[2]), DROP_AND_RUN: float(output[1]) + float(output[2])}


def measure(place, count, programs):
    figures = {}
    with tempfile.TemporaryDirectory(dir=place) as name:
        editor = pathlib.Path(name) / "editor"
        editor.write_text(EDITOR)
        editor.chmod(0o700)
        folder = pathlib.Path(name) / "files"
        fill(folder, count)
        for number in range(ROUNDS):
            for tool in [BARE, RUN, JOURNAL, UNDO, *PEERS]:
                for row, seconds in seconds_of(tool, folder, programs, editor).items():
                    figures.setdefault(row, []).append(seconds)
                restore(folder, count, tool == UNDO)
            print(f"{place}, {count} files: round {number + 1} of {ROUNDS}", file=sys.stderr)
    return figures


def table(title, count, figures):
    bare = statistics.median(figures[BARE])
    lines = [f"{count:,} files, {title}", "",
             "| tool | median | fastest to slowest | per file | beside the bare calls |",
             "|---|---:|---:|---:|---:|"]
    for tool, seconds in sorted(figures.items(), key=lambda item: statistics.median(item[1])):
        median = statistics.median(seconds)
        lines.append(f"| {tool} | {median:.3f} s | {min(seconds):.3f} to {max(seconds):.3f} s "
                     f"| {median / count * 1e6:.1f} µs | {median / bare:.2f} |")
    return "\n".join(lines) + "\n"


def plot(target, count, results):
    """A bar for each tool in each place."""
    tools = sorted(results[0][1], key=lambda tool: statistics.median(results[0][1][tool]))
    rows = [f'"{tool}" ' + " ".join(f"{statistics.median(figures[tool]) / count * 1e6:.2f}" for _, figures in results)
            for tool in tools]
    columns = ", ".join(f"$rows using {index + 2}:xtic(1) title '{title}'" for index, (title, _) in enumerate(results))
    script = "\n".join([
        "set terminal svg size 900,420 font 'DejaVu Sans,12' background 'white'", f"set output '{target}'",
        "set linetype 1 lc rgb '#6b8299'", "set linetype 2 lc rgb '#b9c4cc'",
        "set style data histograms", "set style fill solid 0.8 border -1", "set boxwidth 0.9", "set grid ytics",
        "set xtics rotate by -20",
        f"set title '{count:,} files: microseconds for each file, median of {ROUNDS} rounds'",
        "set yrange [0:*]", "set key left top", "$rows << end", *rows, "end", "plot " + columns])
    subprocess.run(["gnuplot"], input=script, text=True, check=True)


def main():
    programs, target = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    counts = [int(text) for text in sys.argv[3:]] or [10_000, 100_000]
    target.mkdir(parents=True, exist_ok=True)
    tables = []
    for count in counts:
        results = [(title, measure(place, count, programs))
                   for title, place in (("RAM disk", pathlib.Path("/dev/shm")), ("disk", target.resolve()))]
        tables += [table(title, count, figures) for title, figures in results]
        plot(target / f"compare-{count}.svg", count, results)
    (target / "table.md").write_text("\n".join(tables), encoding="utf-8")
    print("\n".join(tables))


main()
