#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Rules that are kept, switched off and edited have their room in every language and on a screen of high resolution."""

import pathlib
import unittest

from harness.windowpictures import WindowPictures

TRANSLATIONS = pathlib.Path(__file__).parents[2] / "translations"
LANGUAGES = sorted(file.stem.removeprefix("orvanto-") for file in TRANSLATIONS.glob("*.ts"))
PICTURES = {"desktop", "rules", "menu-rule-sets", "rules-edited", "rule-set-name", "rule-sets", "rules-unsaved"}


class RulePictures(WindowPictures):
    def test_every_language(self):
        seen = set()
        for language in LANGUAGES:
            with self.subTest(language):
                # It ends with an error when a text is cut off.
                pictures = self.pictures(f"rules-{language}", "rules", language=language)
                self.assertEqual(pictures.keys(), PICTURES)
                seen.add(pictures["menu-rule-sets"])
        self.assertEqual(len(seen), len(LANGUAGES), "pictures that do not differ by language")

    def test_twice_as_large(self):
        plain = self.pictures("rules", "rules")
        large = self.pictures("rules-200", "rules", QT_SCALE_FACTOR="2")
        self.assertGreater(len(large["rules-edited"]), len(plain["rules-edited"]))


if __name__ == "__main__":
    unittest.main()
