#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The program looks the same whatever colours the desktop has."""

import unittest

from harness.windowpictures import WindowPictures

LIGHT, DARK = (250, 245, 240), (35, 40, 45)
# KDE's names for its colours; Qt itself reads them.
KDE_BACKGROUNDS = ("Window", "View", "Button", "Selection", "Tooltip")
# Qt's roles in the order of their numbers, as qt6ct keeps them: those that are texts.
ROLES, TEXT_ROLES = 21, (0, 6, 7, 8, 13, 14, 15, 19, 20)


def kde(configuration, background, text):
    lines = []
    for name in KDE_BACKGROUNDS:
        lines += [f"[Colors:{name}]", f"BackgroundNormal={','.join(map(str, background))}",
                  f"ForegroundNormal={','.join(map(str, text))}"]
    (configuration / "kdeglobals").write_text("\n".join(lines) + "\n", encoding="utf-8")
    return {"QT_QPA_PLATFORMTHEME": "kde", "XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5"}


def qt6ct(configuration, background, text):
    folder = configuration / "qt6ct"
    folder.mkdir()
    colors = ["#ff%02x%02x%02x" % (text if role in TEXT_ROLES else background) for role in range(ROLES)]
    (folder / "scheme.conf").write_text("[ColorScheme]\n" + "".join(
        f"{group}_colors={', '.join(colors)}\n" for group in ("active", "disabled", "inactive")), encoding="utf-8")
    (folder / "qt6ct.conf").write_text(
        f"[Appearance]\ncolor_scheme_path={folder}/scheme.conf\ncustom_palette=true\nstyle=Fusion\n", encoding="utf-8")
    return {"QT_QPA_PLATFORMTHEME": "qt6ct"}


class DarkDesktop(WindowPictures):
    def pictures_on(self, theme, background, text):
        """The pictures of all windows by their names, as they are on a desktop with these colours."""
        configuration = self.home / "configuration"
        configuration.mkdir(parents=True)
        return self.pictures(f"{theme.__name__}-{background[0]}", XDG_CONFIG_HOME=str(configuration),
                             **theme(configuration, background, text))

    def expect_one_look(self, theme):
        light, dark = self.pictures_on(theme, LIGHT, DARK), self.pictures_on(theme, DARK, LIGHT)
        self.assertNotEqual(light.pop("desktop"), dark.pop("desktop"), "the theme does nothing")
        self.assertGreater(len(light), 30)
        self.assertEqual(light.keys(), dark.keys())
        self.assertEqual([name for name in sorted(light) if light[name] != dark[name]], [])

    def test_kde(self):
        self.expect_one_look(kde)

    def test_qt6ct(self):
        self.expect_one_look(qt6ct)


if __name__ == "__main__":
    unittest.main()
