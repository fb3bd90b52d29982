#!/usr/bin/env python3
"""Proves the levels of src/README.md: no include goes up, no module is in a cycle, Qt stays at the screen.

A module is a header with its source. Includes are read line by line; those inside comments of several lines count too.
Usage: check_includes.py [SOURCE-DIRECTORY]; ends with 1 when something is found.
"""

import pathlib
import posixpath
import re
import sys

# From the ground up. Folders of one level do not know each other unless they are FEATURES.
FEATURES = {"calc", "editor", "pricelists", "options", "planner", "calculator", "backup", "printing"}
LEVELS = [
    {"base"},
    {"errors"},
    {"settings"},
    {"frame"},
    FEATURES,
    {"commands"},
    {"lifecycle"},
    {"qtcore"},
    {"qttext"},
    {"ui", "terminal"},
    {"main.cpp"},
]
QT_FOLDERS = {"qtcore", "qttext", "ui", "terminal", "main.cpp"}
SUFFIXES = {".h", ".cpp", ".inc", ".def"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')
QT_HEADER = re.compile(r"^(Q[A-Za-z]|q[a-z]+\.h$|Qt[A-Z]\w*/)|^ui_\w+\.h$|\.moc$|^moc_")


def folder_of(name):
    """The folder that has a level, such as "errors" or "ui"; "main.cpp" stands for itself."""
    return name.split("/")[0]


def level_of(folder):
    for level, folders in enumerate(LEVELS):
        if folder in folders:
            return level
    return None


def module_of(name):
    return posixpath.splitext(name)[0]


def includes_of(path):
    """Yields (line number, is quoted, name)."""
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match[1] == '"', match[2]


def resolve(name, includer, known):
    """The file of the project an include names, from src/ or beside the includer; None for other headers."""
    beside = posixpath.normpath(posixpath.join(posixpath.dirname(includer), name))
    return next((candidate for candidate in (name, beside) if candidate in known), None)


def fault_of_direction(includer, included):
    """Why `includer` must not include `included`; None when it may."""
    lower, upper = folder_of(included), folder_of(includer)
    if lower == upper:
        return None
    if level_of(lower) > level_of(upper):
        return f"{upper} includes {included}, which stands above it"
    if level_of(lower) == level_of(upper) and lower not in FEATURES:
        return f"{upper} includes {included}, and the two must not know each other"
    return None


def find_cycle(graph):
    """One cycle as a list of modules whose first is also its last; None when there is none."""
    done = set()
    for start in sorted(graph):
        road, pending = [], [(start, False)]
        while pending:
            module, leaving = pending.pop()
            if leaving:
                done.add(road.pop())
            elif module in road:
                return road[road.index(module):] + [module]
            elif module not in done:
                road.append(module)
                pending.append((module, True))
                pending.extend((other, False) for other in sorted(graph.get(module, ())))
    return None


def check(source):
    """All findings in the tree `source` as lines of text."""
    known = {path.relative_to(source).as_posix(): path for path in source.rglob("*") if path.suffix in SUFFIXES}
    placed = {name: path for name, path in known.items() if level_of(folder_of(name)) is not None}
    findings = [f"{name}: its folder has no level" for name in sorted(known.keys() - placed.keys())]
    graph = {}
    for name, path in sorted(placed.items()):
        for number, quoted, header in includes_of(path):
            place = f"{name}:{number}: "
            target = resolve(header, name, placed) if quoted else None
            if QT_HEADER.search(header):
                if folder_of(name) not in QT_FOLDERS:
                    findings.append(f"{place}{header} belongs to Qt, which stays in qtcore/, qttext/, ui/, terminal/ and main.cpp")
            elif quoted and target is None:
                findings.append(f"{place}there is no {header} in the source")
            if target is None:
                continue
            fault = fault_of_direction(name, target)
            if fault:
                findings.append(place + fault)
            if module_of(target) != module_of(name):
                graph.setdefault(module_of(name), set()).add(module_of(target))
    cycle = find_cycle(graph)
    if cycle:
        findings.append("modules in a cycle: " + " -> ".join(cycle))
    return findings


def main():
    source = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent / "src"
    findings = check(source)
    print("\n".join(findings) if findings else "Every include goes down, no module is in a cycle.")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
