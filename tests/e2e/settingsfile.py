# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""The settings that a test starts the program with, under X, Wayland and Wine."""

import xml.etree.ElementTree as ET

# What would otherwise stand between a test and the main window, or reach for the network.
SETTLED = {
    "Misc.IsFirstStart": "false",
    "Misc.DisableSplashScreen": "true",
    "SupportUsHint": "false",
    "VersionCheck.Auto": "false",
}


def settings_text(values):
    """A settings file with these values, each under its dotted name."""
    root = ET.Element("Settings")
    for name, value in values.items():
        element = root
        for component in name.split("."):
            found = element.find(component)
            element = ET.SubElement(element, component) if found is None else found
        element.text = value
    return ET.tostring(root, "unicode", xml_declaration=False)
