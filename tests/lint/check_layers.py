# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Checks the rooms, which are the folders of src/, against the table of docs/architecture.md.

What a room includes and what its CMakeLists.txt links must be among the rooms that its row allows. The page also names
every header of every room.
"""

import re

import sources

PAGE = "docs/architecture.md"
ROW = re.compile(r"^\| `(\w+)` \| (.*) \|$", re.MULTILINE)
INCLUDE = re.compile(r'^\s*#\s*include\s+"([a-z]+)/', re.MULTILINE)
LIBRARY = re.compile(r"^orvanto_library\((\w+)", re.MULTILINE)
LINKED = re.compile(r"\borvanto_(\w+)\b")


def section(text, title):
    """The page's text below a heading."""
    _, found, rest = text.partition(f"\n## {title}\n")
    if not found:
        raise SystemExit(f'{PAGE}: has no section "{title}".')
    return rest.partition("\n## ")[0]


def read_table(page):
    """The rooms that each room may use, and what is wrong with the table itself."""
    may_use, faults = {}, []
    for room, cell in ROW.findall(section(page, "Which way the arrows point")):
        used = re.findall(r"`(\w+)`", cell)
        if not used and cell != "nobody":
            faults.append(f'{PAGE}: the row of `{room}` must name rooms in backticks, or "nobody".')
        for name in used:
            if name not in may_use:
                faults.append(f"{PAGE}: `{room}` uses `{name}`, which must have a row above it: arrows point upwards, "
                              "so that they never run in a circle.")
        may_use[room] = set(used)
    return may_use, faults


def check_arrow(path, room, used, may_use, how):
    """The explanation of a forbidden arrow; none for one that the table allows."""
    if room not in may_use or used == room or used in may_use[room]:
        return []
    allowed = ", ".join(sorted(may_use[room])) or "none"
    return [f"{path}: src/{room}/ must not {how} {used}. Move what is needed down into a room that both may use "
            f"({allowed}), pass it in from above, or draw the arrow in the table of {PAGE}."]


def main():
    page = (sources.ROOT / PAGE).read_text(encoding="utf-8")
    may_use, problems = read_table(page)
    rooms = sorted(path.name for path in (sources.ROOT / "src").iterdir() if path.is_dir())
    for room in rooms:
        if room not in may_use:
            problems.append(f"src/{room}/ is no room of the table in {PAGE}: add the line \"| `{room}` | ... |\" with "
                            'the rooms that it may use, or "nobody".')
    lists = {room: sources.ROOT / "src" / room / "CMakeLists.txt" for room in rooms}
    lists = {room: path.read_text(encoding="utf-8") for room, path in lists.items() if path.exists()}
    room_of = {library: room for room, text in lists.items() for library in LIBRARY.findall(text)}
    for room, text in lists.items():
        for library in sorted(set(LINKED.findall(text)) & set(room_of)):
            problems += check_arrow(f"src/{room}/CMakeLists.txt", room, room_of[library], may_use, "link")
    checked = sources.files(["src"], {".cpp", ".h", ".in"})
    named = set(re.findall(r"\w+\.h\b", section(page, "Where things live")))
    for path in checked:
        room = path.parts[1]
        for used in sorted(set(INCLUDE.findall((sources.ROOT / path).read_text(encoding="utf-8")))):
            problems += check_arrow(path, room, used, may_use, "include")
        if path.suffix == ".h" and path.name not in named:
            problems.append(f'{path}: is not named in {PAGE}. Say in "Where things live" what it is for.')
    sources.finish(problems, len(checked))


if __name__ == "__main__":
    main()
