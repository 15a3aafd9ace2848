#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The settings file in three round trips: written by the program, edited by hand, damaged."""

import unittest

from harness.case import Case
from harness.dialogs import pass_first_start
from harness.mainwindow import MainWindow
from settingsfile import SETTLED, settings_text

DECLARATION = "<?xml version='1.0' encoding='utf-8'?>"
COMMENT = "<!--here you can find the global settings-->"

EDITED = """<?xml version="1.0" encoding="UTF-8"?>
<!-- edited by hand -->
<Settings version="0.9.0.1" note="mine">
    <SupportUsHint>false</SupportUsHint>
    <Own><Remark place="left">kept \u00e9 &lt;3</Remark></Own>
    <Log><IncludeDebugInfo/><Save>true</Save></Log>
    <VersionCheck><Auto>false</Auto></VersionCheck>
    <Misc><DisableSplashScreen>true</DisableSplashScreen><IsFirstStart>false</IsFirstStart></Misc>
</Settings>
"""

DAMAGED = {
    "empty": "",
    "no XML": "Log.Save=true\n",
    "cut off": settings_text({**SETTLED, "Log.Save": "true"})[:-20],
    "another root": settings_text({**SETTLED, "Log.Save": "true"}).replace("Settings", "Options"),
    "binary": bytes(range(256)),
}

AFTER_FIRST_START = {
    "@version": "1.2.0.5",
    "Misc.IsFirstStart": "false",
    "SupportUsHint": "false",
    "VersionCheck.Auto": "false",
    "Log.Save": "false",
    "Log.IncludeDebugInfo": "false",
    "Window.Opacity": "1",
    "Window.StayOnTop": "false",
}


class Settings(Case):
    def log_boxes(self, window):
        """Whether Save and Debug are ticked."""
        return tuple(window.log_dock.one("check box", name).has("checked") for name in ("Save", "Debug"))

    def written(self):
        text = self.program.settings_file.read_text(encoding="utf-8")
        self.assertTrue(text.replace('"', "'").startswith(DECLARATION), text)
        return text

    def test_written_by_the_program(self):
        window = self.start()
        self.assertEqual(self.log_boxes(window), (False, False))
        window.toggle(window.log_dock.one("check box", "Save"))
        window.toggle(window.log_dock.one("check box", "Debug"))
        self.close()
        first = self.program.settings()
        self.assertEqual((first["Log.Save"], first["Log.IncludeDebugInfo"]), ("true", "true"))
        self.assertEqual(first["@version"], "1.2.0.5")
        for name, value in SETTLED.items():
            self.assertEqual(first[name], value, name)
        text = self.written()

        window = self.start_again()
        self.assertEqual(self.log_boxes(window), (True, True))
        self.close()
        self.assertEqual(self.written(), text, "a run without a change changed the file")
        log = next((self.program.data / "logs").iterdir()).read_text(encoding="latin-1")
        self.assertIn("|Orvanto started\n", log)
        self.assertIn("|close event call\n", log)

        window = self.start_again()
        window.toggle(window.log_dock.one("check box", "Debug"))
        self.close()
        self.assertEqual(self.program.settings(), {**first, "Log.IncludeDebugInfo": "false"})
        self.assertEqual([file.name for file in self.program.settings_file.parent.iterdir()], ["global.xml"])

    def test_edited_by_hand(self):
        window = self.start(text=EDITED)
        # An element without text answers with the reader's default, which here is "no".
        self.assertEqual(self.log_boxes(window), (True, False))
        self.close()
        text = self.written()
        self.assertIn('<Remark place="left">kept \u00e9 &lt;3</Remark>', text)
        self.assertIn('note="mine"', text)
        self.assertNotIn(COMMENT, text, "the comment belongs to files that the program made")
        settings = self.program.settings()
        self.assertEqual({name: settings[name] for name in (
            "@version", "Log.Save", "Log.IncludeDebugInfo", "SupportUsHint", "Misc.DisableSplashScreen")}, {
                "@version": "1.2.0.5", "Log.Save": "true", "Log.IncludeDebugInfo": "false",
                "SupportUsHint": "false", "Misc.DisableSplashScreen": "true"})
        # The message handler's default for the empty element is "yes".
        log = next((self.program.data / "logs").iterdir()).read_text(encoding="latin-1")
        self.assertIn("|Orvanto started\n", log)

    def test_damaged(self):
        for kind, text in DAMAGED.items():
            with self.subTest(kind):
                window = self.start_without_settings(text)
                self.assertTrue(window.rules.has("showing"))
                self.close(support_request=True)
                self.assertIn(COMMENT, self.written(), "the file was not made anew")
                settings = self.program.settings()
                self.assertEqual({name: settings[name] for name in AFTER_FIRST_START}, AFTER_FIRST_START)

    def test_missing_and_in_a_folder_that_cannot_be_made(self):
        self.start_without_settings()
        self.close(support_request=True)
        self.assertIn(COMMENT, self.written())
        settings = self.program.settings()
        self.assertEqual({name: settings[name] for name in AFTER_FIRST_START}, AFTER_FIRST_START)
        # A file in the way of the folder refuses everyone; the values are lost, and that is all.
        self.program.settings_file.unlink()
        self.program.settings_file.parent.rmdir()
        self.program.settings_file.parent.write_text("in the way", encoding="utf-8")
        self.program.start()
        pass_first_start(self.program)
        MainWindow(self.program)
        self.close(support_request=True)
        self.assertEqual(self.program.settings_file.parent.read_text(encoding="utf-8"), "in the way")


if __name__ == "__main__":
    unittest.main()
