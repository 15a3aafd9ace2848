# SPDX-FileCopyrightText: 2026 Kavrondel
# SPDX-License-Identifier: MIT
"""Builds the program once, its libraries shared, and then beside it the little that a fault changes."""

import json
import pathlib
import re
import shlex
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/mutants"


class BuildError(Exception):
    """A fault that does not compile, or one that the compiler makes the same of."""


def _output(*command):
    run = subprocess.run(command, cwd=BUILD, capture_output=True, text=True, check=False)
    if run.returncode != 0:
        raise BuildError(f"{shlex.join(map(str, command))}\n{run.stdout}{run.stderr}")
    return run.stdout


class Build:
    def __init__(self):
        BUILD.mkdir(parents=True, exist_ok=True)
        _output("cmake", "-S", ROOT, "--preset", "mutants")
        entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
        self._compilations = {}
        for entry in entries:
            words = shlex.split(entry["command"])
            self._compilations[words[words.index("-o") + 1]] = entry
        self._targets = set(re.findall(r"^(\S+): ", _output("ninja", "-t", "targets", "all"), re.MULTILINE))
        self._link_commands = {}
        self._dependencies = {}
        self._read_tests()

    def _read_tests(self):
        """The tests by their names. Those whose program is not built have no command yet."""
        self.tests = {test["name"]: test for test in json.loads(_output("ctest", "--show-only=json-v1"))["tests"]}

    def full_name(self, name):
        """The name of a test with the label before it, which may be left out; None where that is not one test."""
        found = [full for full in self.tests if name in (full, full.partition(".")[2])]
        return found[0] if len(found) == 1 else None

    @staticmethod
    def environment(test):
        values = [each["value"] for each in test["properties"] if each["name"] == "ENVIRONMENT"]
        return dict(line.partition("=")[::2] for line in (values[0] if values else []))

    def programs(self, name):
        """The programs of a test, as files in the build folder."""
        test = self.tests[name]
        words = [*test.get("command", []), *self.environment(test).values()]
        files = {word.removeprefix(f"{BUILD}/") for word in words if word.startswith(f"{BUILD}/")}
        return files & self._targets

    def make(self, names):
        """Builds what these tests need, without any fault."""
        targets = {"translations"}
        for name in names:
            own = name.partition(".")[2]
            targets |= {own} if own in self._targets else self.programs(name)
        subprocess.run(["cmake", "--build", BUILD, "--target", *sorted(targets)], check=True)
        self._read_tests()
        for name in names:
            for program in self.programs(name):
                self._remember(program)
        self._dependencies = self._read_dependencies()

    def _remember(self, target):
        """How a program is linked, and each of the project's libraries."""
        if target not in self._link_commands:
            self._link_commands[target] = _output("ninja", "-t", "commands", "-s", target).strip()
            for library in self._libraries(target):
                self._remember(library)

    def _libraries(self, target):
        return set(re.findall(r"lib/liborvanto_\w+\.so", self._link_commands[target])) - {target}

    def _read_dependencies(self):
        """The objects of what was made that include a file, by the file; as the compiler said."""
        linked = {word for command in self._link_commands.values() for word in shlex.split(command)}
        found, current = {}, ""
        for line in _output("ninja", "-t", "deps").splitlines():
            if not line.startswith(" "):
                current = line.partition(":")[0]
            # What moc makes of a header names it by its path, so it keeps the functions of the faultless header.
            elif current in linked and not current.endswith("mocs_compilation.cpp.o"):
                found.setdefault((BUILD / line.strip()).resolve(), []).append(current)
        return found

    def mutate(self, fault, text, folder):
        """Makes in the folder what the fault changes; the names of the libraries and programs that it changes."""
        source = folder / fault.file
        source.parent.mkdir(parents=True)
        source.write_text(text, encoding="utf-8")
        made = {output: folder / output for output in self._dependencies.get(ROOT / fault.file, [])}
        for output, file in made.items():
            file.parent.mkdir(parents=True, exist_ok=True)
            entry = self._compilations[output]
            words = shlex.split(entry["command"])
            words[words.index("-o") + 1] = str(file)
            words[-1] = str(source if entry["file"] == str(ROOT / fault.file) else entry["file"])
            # Before all other folders, behind what launches the compiler.
            first = next(index for index, word in enumerate(words) if word.startswith("-"))
            _output(*words[:first], f"-I{folder / 'src'}", *words[first:])
        if all(file.read_bytes() == (BUILD / output).read_bytes() for output, file in made.items()):
            raise BuildError("The compiler makes the same of it.")
        changed = set()
        for target, command in self._link_commands.items():
            words = [str(made.get(word, word)) for word in shlex.split(command)]
            if words != shlex.split(command):
                product = folder / target
                product.parent.mkdir(parents=True, exist_ok=True)
                words[words.index("-o") + 1] = str(product)
                _output("bash", "-c", " ".join(word if word in ("&&", ":") else shlex.quote(word) for word in words))
                changed.add(target)
        for target in changed:
            if not target.startswith("lib/"):
                self._surround(folder, pathlib.Path(target).parent)
        return changed

    @staticmethod
    def _surround(folder, place):
        """Gives a program that is made anew what lies beside the old one: it may look there."""
        for neighbour in (BUILD / place).iterdir():
            beside = folder / place / neighbour.name
            if not beside.exists():
                beside.symlink_to(neighbour)

    def sees(self, name, changed):
        """Whether a test runs anything of what changed."""
        programs = self.programs(name)
        return any(changed & {program, *self._libraries(program)} for program in programs)
