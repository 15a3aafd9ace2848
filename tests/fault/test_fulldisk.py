#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The whole program with its data on a disk that is full, read-only or gone; mounted.py gives the disk."""

import os
import pathlib
import signal
import subprocess
import time
import unittest
import xml.etree.ElementTree as ET

DISK = pathlib.Path(os.environ["ORVANTO_MOUNT"])
FIRST = """<?xml version="1.0" encoding="utf-8"?>
<Settings version="0">
  <Misc><IsFirstStart>false</IsFirstStart><DisableSplashScreen>true</DisableSplashScreen></Misc>
  <Log><Save>true</Save><IncludeDebugInfo>true</IncludeDebugInfo></Log>
  <VersionCheck><Auto>false</Auto></VersionCheck>
  <SupportUsHint>false</SupportUsHint>
  <Own><Remark>%s</Remark></Own>
</Settings>
""" % ("x" * 20000)


class FullDisk(unittest.TestCase):
    def setUp(self):
        self.data = DISK / "Kavrondel" / "Orvanto"
        self.settings = self.data / "config" / "global.xml"
        self.ballast = DISK / "ballast"
        self.settings.parent.mkdir(parents=True, exist_ok=True)
        self.settings.write_text(FIRST, encoding="utf-8")

    def tearDown(self):
        subprocess.run(["mount", "-o", "remount,bind,rw", DISK], check=True)
        self.ballast.unlink(missing_ok=True)

    def fill(self):
        """Takes all there is; what the program can write then is what a last page that it has holds."""
        with self.ballast.open("wb", buffering=0) as file:
            for size in (1 << 16, 1):
                try:
                    while True:
                        file.write(b"x" * size)
                except OSError as error:
                    self.assertEqual(error.strerror, "No space left on device")

    def start(self):
        environment = {**os.environ, "XDG_DATA_HOME": str(DISK), "QT_QPA_PLATFORM": "offscreen"}
        program = subprocess.Popen([os.environ["ORVANTO_E2E_EXECUTABLE"]], env=environment)
        self.addCleanup(program.kill)
        end = time.monotonic() + 60
        # The event loop has a descriptor of its own for the requests to end.
        while not self.catches_termination(program) and time.monotonic() < end:
            self.assertIsNone(program.poll(), "ended by itself")
            time.sleep(0.01)
        return program

    @staticmethod
    def catches_termination(program):
        status = pathlib.Path(f"/proc/{program.pid}/status").read_text(encoding="ascii")
        caught = next(int(line.split()[1], 16) for line in status.splitlines() if line.startswith("SigCgt"))
        return bool(caught & 1 << (signal.SIGTERM - 1))

    def end(self, program):
        program.send_signal(signal.SIGTERM)
        self.assertEqual(program.wait(60), 0)

    def expect_saved(self):
        self.end(self.start())
        root = ET.parse(self.settings).getroot()
        self.assertEqual((root.get("version") != "0", root.findtext("Own/Remark")), (True, "x" * 20000))
        self.assertEqual([entry.name for entry in self.settings.parent.iterdir()], ["global.xml"])

    def test_full_from_the_start(self):
        self.fill()
        self.end(self.start())
        self.assertEqual(self.settings.read_text(encoding="utf-8"), FIRST)
        self.ballast.unlink()
        self.expect_saved()

    def test_small_settings_on_a_full_disk(self):
        small = FIRST.replace("x" * 20000, "short")
        self.settings.write_text(small, encoding="utf-8")
        self.fill()
        self.end(self.start())
        self.assertEqual(self.settings.read_text(encoding="utf-8"), small)

    def test_filled_while_it_runs(self):
        program = self.start()
        self.fill()
        self.end(program)
        self.assertEqual(self.settings.read_text(encoding="utf-8"), FIRST)
        self.ballast.unlink()
        self.expect_saved()

    def test_read_only_from_the_start(self):
        subprocess.run(["mount", "-o", "remount,bind,ro", DISK], check=True)
        self.end(self.start())
        self.assertEqual(self.settings.read_text(encoding="utf-8"), FIRST)
        subprocess.run(["mount", "-o", "remount,bind,rw", DISK], check=True)
        self.expect_saved()

    def test_z_gone_while_it_runs(self):
        """The last one: nothing can be put on this disk afterwards."""
        program = self.start()
        door = os.open(DISK, os.O_PATH | os.O_DIRECTORY)
        self.addCleanup(os.close, door)
        subprocess.run(["umount", "--lazy", DISK], check=True)
        self.end(program)
        # The program stands in its data folder and writes there still, or nothing at all.
        root = ET.parse(f"/proc/self/fd/{door}/Kavrondel/Orvanto/config/global.xml").getroot()
        self.assertEqual(root.findtext("Own/Remark"), "x" * 20000)
        self.assertEqual(list(DISK.iterdir()), [])
        subprocess.run(["mount", "-t", "tmpfs", "none", DISK], check=True)


if __name__ == "__main__":
    unittest.main()
