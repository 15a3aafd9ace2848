# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""What Windows reads from the executable before it runs."""

import os
import re
import subprocess
import unittest
import xml.etree.ElementTree as ET

PROGRAM = os.environ["ORVANTO_PROGRAM"]
VERSION = os.environ["ORVANTO_VERSION"]


def output(tool, *arguments):
    return subprocess.run([f"x86_64-w64-mingw32-{tool}", *arguments], check=True, capture_output=True, text=True).stdout


class Executable(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.header = output("objdump", "-p", PROGRAM)
        cls.resources = output("windres", "-J", "coff", "-O", "rc", PROGRAM)

    def test_has_no_console(self):
        self.assertRegex(self.header, r"Subsystem\s+00000002\s+\(Windows GUI\)")

    def test_that_of_the_shell_has_a_console(self):
        header = output("objdump", "-p", PROGRAM.replace("orvanto.exe", "orvanto-cli.exe"))
        self.assertRegex(header, r"Subsystem\s+00000003\s+\(Windows CUI\)")
        self.assertNotIn("DLL Name: GDI32.dll", header)

    def test_is_placed_at_random_and_runs_no_data(self):
        for flag in ("HIGH_ENTROPY_VA", "DYNAMIC_BASE", "NX_COMPAT"):
            self.assertIn(flag, self.header)

    def test_icon_has_every_size(self):
        (group,) = re.findall(r"RT_GROUP_ICON \*/\nBEGIN\n(.*?)\nEND", self.resources, re.S)
        sizes = [int(size, 8) for size in re.findall(r'"\\(\d+)\\\d+', group)]
        # 256 is written as 0.
        self.assertEqual(sizes, [16, 24, 32, 48, 64, 128, 0])

    def test_version(self):
        numbers = VERSION.replace(".", ", ")
        self.assertIn(f"FILEVERSION {numbers}\n PRODUCTVERSION {numbers}\n", self.resources)
        texts = dict(re.findall(r'VALUE "(\w+)", "(.*)"', self.resources))
        self.assertEqual(texts, {"CompanyName": "Kavrondel", "FileDescription": "Orvanto", "FileVersion": VERSION,
                                 "InternalName": "orvanto", "OriginalFilename": "orvanto.exe",
                                 "LegalCopyright": "Copyright (c) 2026 Kavrondel, MIT licence",
                                 "ProductName": "Orvanto", "ProductVersion": VERSION})

    def test_manifest(self):
        (text,) = re.findall(r"RT_MANIFEST \*/\nBEGIN\n(.*?)\nEND", self.resources, re.S)
        lines = [line.strip().removeprefix('"').removesuffix('"') for line in text.splitlines()]
        manifest = ET.fromstring("".join(lines).replace('""', '"').replace("\\n", "\n"))
        found = {element.tag.partition("}")[2]: element for element in manifest.iter()}
        self.assertEqual(found["requestedExecutionLevel"].attrib, {"level": "asInvoker", "uiAccess": "false"})
        self.assertEqual(found["activeCodePage"].text, "UTF-8")
        self.assertEqual(found["longPathAware"].text, "true")
        self.assertEqual(found["dpiAwareness"].text, "PerMonitorV2, PerMonitor")
        # Windows 10
        self.assertEqual(found["supportedOS"].attrib, {"Id": "{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"})


if __name__ == "__main__":
    unittest.main()
