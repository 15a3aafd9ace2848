# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Pictures of the program's windows, made by a program over its own code."""

import os
import pathlib
import shutil
import subprocess

from settingsfile import SETTLED, settings_text

from .case import Case


class WindowPictures(Case):
    def pictures(self, kept_as, *which, language=None, **environment):
        """Pictures by their names, which are also kept with the screenshots; of all windows unless told otherwise."""
        settings = self.home / "data/Kavrondel/Orvanto/config/global.xml"
        settings.parent.mkdir(parents=True)
        settings.write_text(settings_text(SETTLED | ({"Misc.Language": language} if language else {})),
                            encoding="utf-8")
        env = dict(self.desktop.env, HOME=str(self.home), XDG_DATA_HOME=str(self.home / "data"),
                   XDG_CONFIG_HOME=str(self.home / "configuration")) | environment
        seen = self.folder / "pictures"
        seen.mkdir()
        run = subprocess.run([os.environ["ORVANTO_E2E_WINDOWPICTURES"], str(seen), *which], env=env,
                             capture_output=True, text=True, timeout=120, check=False)
        kept = pathlib.Path(os.environ["ORVANTO_E2E_SCREENSHOTS"]) / kept_as
        shutil.rmtree(kept, ignore_errors=True)
        shutil.copytree(seen, kept)
        pictures = {file.stem: file.read_bytes() for file in seen.iterdir()}
        # The next run finds the same names, and no more.
        for folder in (self.home, seen):
            shutil.rmtree(folder)
        self.assertEqual((run.returncode, run.stdout, run.stderr), (0, "", ""))
        return pictures
