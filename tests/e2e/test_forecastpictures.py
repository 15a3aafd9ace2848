#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""What is told of rows that are not renamed has its room in every language, and on a screen of high resolution."""

import pathlib
import unittest

from harness.windowpictures import WindowPictures

TRANSLATIONS = pathlib.Path(__file__).parents[2] / "translations"
LANGUAGES = sorted(file.stem.removeprefix("orvanto-") for file in TRANSLATIONS.glob("*.ts"))


class ForecastPictures(WindowPictures):
    def test_every_language(self):
        seen = set()
        for language in LANGUAGES:
            with self.subTest(language):
                # It ends with an error when a text is cut off.
                pictures = self.pictures(f"forecast-{language}", "forecast", language=language)
                self.assertEqual(pictures.keys(), {"desktop", "preview", "report-with-details", "details"})
                seen.add(pictures["details"])
        self.assertEqual(len(seen), len(LANGUAGES), "pictures that do not differ by language")

    def test_twice_as_large(self):
        plain = self.pictures("forecast", "forecast")
        large = self.pictures("forecast-200", "forecast", QT_SCALE_FACTOR="2")
        self.assertGreater(len(large["details"]), len(plain["details"]))


if __name__ == "__main__":
    unittest.main()
