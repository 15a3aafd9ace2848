#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Fail when the pictures the program ships do not follow from their SVG sources.

Checked: every PNG looks like its SVG, none is missing or left over, orvanto.ico and
orvanto.qrc are current, the SVGs hold shapes only, and every ":/img/..." path named
in src/ or forms/ has a picture.  Each message says how to mend the fault.
"""

import importlib.machinery
import pathlib
import re
import shutil
import sys
import tempfile
import types
import xml.etree.ElementTree as ET

sys.dont_write_bytecode = True

ROOT = pathlib.Path(__file__).resolve().parents[2]
RESOURCES = ROOT / "resources"
RENDER_HINT = "run resources/render and commit what it writes"
# Another librsvg may round edges a little differently; a real change of a drawing
# moves pixels much further than this (of 255).
TOLERANCE = 12
FORBIDDEN_TAGS = {"text", "tspan", "image", "style", "script", "foreignObject", "metadata"}
SVG_NAMESPACE = "{http://www.w3.org/2000/svg}"
PICTURE_PATH = re.compile(r":/(img/[A-Za-z0-9_./@%-]+)")


def load_render():
    """The render script as a module; it has no .py suffix, as it is a command."""
    path = RESOURCES / "render"
    module = types.ModuleType("render")
    module.__file__ = str(path)
    importlib.machinery.SourceFileLoader("render", str(path)).exec_module(module)
    return module


def largest_difference(first, second):
    """Largest channel difference of two RGBA buffers, colours weighted by their alpha."""
    worst = 0
    for i in range(0, len(first), 4):
        a, b = first[i : i + 4], second[i : i + 4]
        if a == b:
            continue
        worst = max(worst, abs(a[3] - b[3]))
        for channel in range(3):
            worst = max(worst, abs(a[channel] * a[3] - b[channel] * b[3]) // 255)
    return worst


def check_png(render, svg, target, width, height, scratch):
    """Problem text of one PNG, or None."""
    png = RESOURCES / target
    source = svg.relative_to(ROOT)
    if not png.exists():
        return f"resources/{target} is missing though {source} exists: {RENDER_HINT}"
    fresh = scratch / "fresh.png"
    render.rasterize(svg, fresh, width, height)
    try:
        kept = render.decode_png(png)
    except ValueError as error:
        return f"{error}: {RENDER_HINT}"
    wanted = render.decode_png(fresh)
    if kept[:2] != wanted[:2]:
        return f"resources/{target} is {kept[0]}x{kept[1]}, {source} asks for {width}x{height}: {RENDER_HINT}"
    worst = largest_difference(kept[2], wanted[2])
    if worst > TOLERANCE:
        return f"resources/{target} differs from {source} by up to {worst} of 255: {RENDER_HINT}"
    return None


def check_pngs(render):
    problems, expected = [], set()
    with tempfile.TemporaryDirectory() as scratch:
        for svg, target, width, height in render.jobs():
            expected.add(RESOURCES / target)
            problems.append(check_png(render, svg, target, width, height, pathlib.Path(scratch)))
    for folder in ("img", "flags", "app"):
        for png in sorted((RESOURCES / folder).rglob("*.png")):
            if png not in expected:
                problems.append(
                    f"{png.relative_to(ROOT)} has no source: draw it as SVG below resources/svg/, then {RENDER_HINT}"
                )
    return problems


def check_sources():
    problems = []
    for svg in sorted((RESOURCES / "svg").rglob("*.svg")):
        name = svg.relative_to(ROOT)
        for element in ET.parse(svg).iter():
            namespace, _, tag = element.tag.rpartition("}")
            if namespace + "}" != SVG_NAMESPACE or tag in FORBIDDEN_TAGS:
                problems.append(
                    f"{name} contains <{tag}>: keep shapes only; letters are drawn as paths, "
                    "because a font found on one machine is missing on the next"
                )
    return problems


def check_icon(render):
    """The .ico holds copies of the app PNGs, so it must match the PNGs byte for byte."""
    icon = RESOURCES / "app" / "orvanto.ico"
    pngs = [RESOURCES / "app" / f"orvanto-{size}.png" for size in render.APP_SIZES]
    if not all(png.exists() for png in pngs):
        return []  # check_pngs has already named each missing one
    if not icon.exists() or icon.read_bytes() != render.ico_bytes(pngs):
        return [f"resources/app/orvanto.ico does not hold the current app/ pictures: {RENDER_HINT}"]
    return []


def listed_pictures():
    """Paths below ":/" that orvanto.qrc offers, mapped to the files they name."""
    listed = {}
    for resource in ET.parse(RESOURCES / "orvanto.qrc").iter("qresource"):
        prefix = resource.get("prefix", "/").strip("/")
        for entry in resource.iter("file"):
            alias = entry.get("alias", entry.text)
            listed[f"{prefix}/{alias}".lstrip("/")] = entry.text
    return listed


def check_list(render):
    problems, listed = [], listed_pictures()
    if (RESOURCES / "orvanto.qrc").read_text(encoding="utf-8") != render.qrc_text():
        problems.append(f"resources/orvanto.qrc is not the list of today's pictures: {RENDER_HINT}")
    for alias, name in listed.items():
        if not (RESOURCES / name).exists():
            problems.append(f"orvanto.qrc names {name} (as :/{alias}), which does not exist: {RENDER_HINT}")
    return problems


def check_uses():
    problems, listed = [], listed_pictures()
    for folder in ("src", "forms"):
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in {".cpp", ".h", ".ui", ".qss", ".rc", ".in"}:
                continue
            text = path.read_text(encoding="utf-8")
            for match in PICTURE_PATH.finditer(text):
                used = match.group(1)
                if "%" in used or used.endswith("/"):
                    # Filled in at run time: the fixed beginning must at least be a known folder or name.
                    known = any(entry.startswith(used.split("%")[0]) for entry in listed)
                else:
                    known = used in listed
                if not known:
                    line = text.count("\n", 0, match.start()) + 1
                    problems.append(
                        f'{path.relative_to(ROOT)}:{line} uses ":/{used}", which no picture provides: '
                        f"draw resources/svg/{used.removeprefix('img/').removesuffix('.png')}.svg, then {RENDER_HINT}"
                    )
    return problems


def main():
    if not shutil.which("rsvg-convert"):
        sys.exit("check_pictures: rsvg-convert is missing; install the package librsvg2-bin")
    render = load_render()
    problems = check_sources() + check_pngs(render) + check_icon(render) + check_list(render) + check_uses()
    problems = [problem for problem in problems if problem]
    for problem in problems:
        print(f"check_pictures: {problem}", file=sys.stderr)
    if problems:
        sys.exit(1)
    print(f"check_pictures: {sum(1 for _ in render.jobs())} pictures follow from their sources")


if __name__ == "__main__":
    main()
