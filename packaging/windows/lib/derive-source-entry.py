#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Prints a deb822 source entry (deb-src) for the archive that offers a package on this machine.

Where the package comes from is asked of apt itself, so mirrors, snapshots and other suites are followed; the
signing key is taken over from the machine's entry, since apt refuses two entries that differ in it.
"""

import glob
import re
import subprocess
import sys


def offering(package):
    """The (address, suite, component) triples of the archives offering a package, best first."""
    policy = subprocess.run(["apt-cache", "policy", package], check=True, capture_output=True, text=True,
                            env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"}).stdout
    return re.findall(r"^\s+-?\d+ (\S+) ([^\s/]+(?:/updates)?)/(\S+) \S+ Packages$", policy, re.MULTILINE)


def stanzas():
    for path in sorted(glob.glob("/etc/apt/sources.list.d/*.sources")):
        with open(path, encoding="utf-8") as file:
            text = "\n".join(line for line in file.read().splitlines() if not line.startswith("#"))
        for block in re.split(r"\n\s*\n", text):
            fields = dict(re.findall(r"^(\S+):[ \t]*(.*(?:\n[ \t].*)*)", block, re.MULTILINE))
            if fields:
                yield {key.lower(): value for key, value in fields.items()}


def signed_by(address):
    """The Signed-By value of the machine's entry for an address, in either list format, or None."""
    wanted = address.rstrip("/")
    for fields in stanzas():
        if wanted in (uri.rstrip("/") for uri in fields.get("uris", "").split()):
            return fields.get("signed-by")
    for path in ["/etc/apt/sources.list", *sorted(glob.glob("/etc/apt/sources.list.d/*.list"))]:
        try:
            with open(path, encoding="utf-8") as file:
                lines = file.read().splitlines()
        except FileNotFoundError:
            continue
        for line in lines:
            entry = re.match(r"deb(?:-src)?\s+(?:\[([^\]]*)\]\s+)?(\S+)", line)
            if entry and entry.group(2).rstrip("/") == wanted:
                key = re.search(r"signed-by=(\S+)", entry.group(1) or "", re.IGNORECASE)
                return key.group(1) if key else None
    return None


def main():
    found = offering(sys.argv[1])
    if not found:
        sys.exit(f"no apt entry of this machine offers {sys.argv[1]}")
    for address, suite, component in found:
        print("Types: deb-src")
        print(f"URIs: {address}")
        print(f"Suites: {suite}")
        print(f"Components: {component}")
        key = signed_by(address)
        if key:
            print(f"Signed-By: {key}")
        print()


main()
