#!/usr/bin/env python3
"""Runs clang-tidy over the C++ files that changed, on all processors; `--all` or TESSIK_TIDY_ALL=1: over all of them.

Changed is what differs from the point where the branch left the remote's main branch, on that branch itself from the
commit before the last; new and uncommitted files count. The files changed most come first, and what goes beyond LIMIT
is named and left out, because each takes seconds. A header is looked at with its source where that is in the list.
Usage: check_tidy.py BUILD-DIRECTORY [--all]; ends with 1 when something is found.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from project_files import ROOT, git, project_files

LIMIT = 50
FOLDERS = ("src/", "tests/")
EMPTY_TREE = "4b825dc642cb6eb9a060e54bf8d69288fbee4904"


def starting_point():
    """The commit (or tree) against which a file counts as changed."""
    head = git("rev-parse", "--verify", "-q", "HEAD")
    fork = git("merge-base", "HEAD", "origin/HEAD") or git("merge-base", "HEAD", "origin/main")
    if fork and fork != head:
        return fork[0]
    previous = git("rev-parse", "--verify", "-q", "HEAD~1")
    return previous[0] if previous else EMPTY_TREE


def changed_lines():
    """How many lines each tracked file gained or lost since the starting point, by name."""
    counts = {}
    for line in git("diff", "--numstat", "--no-renames", starting_point()) or []:
        added, removed, name = line.split("\t")
        counts[name] = int(added) + int(removed) if added != "-" else 0
    return counts


def chosen_files(everything):
    """The files to look at, those changed most first."""
    files = [str(path) for path in project_files(suffixes={".h", ".cpp"}) if str(path).startswith(FOLDERS)]
    tracked = git("ls-files")
    if not everything and tracked is not None:
        changed, tracked = changed_lines(), set(tracked)
        new = {name: len((ROOT / name).read_bytes().splitlines()) for name in files if name not in tracked}
        weights = {**changed, **new}
        files = sorted((name for name in files if name in weights), key=lambda name: (-weights[name], name))
    sources = {name for name in files if name.endswith(".cpp")}
    return [name for name in files if name in sources or name.removesuffix(".h") + ".cpp" not in sources]


def without_precompiled_headers(build, folder):
    """Writes the compile commands anew into `folder`: clang cannot read what g++ has precompiled."""
    commands = json.loads(pathlib.Path(build, "compile_commands.json").read_text(encoding="utf-8"))
    for command in commands:
        command["command"] = re.sub(r"(-Winvalid-pch|-include \S*cmake_pch\S*) ", "", command["command"])
    pathlib.Path(folder, "compile_commands.json").write_text(json.dumps(commands), encoding="utf-8")


def tidy(build, name):
    """What clang-tidy has to say on a file; empty when it is clean."""
    # The build directory was made for g++, some of whose options clang does not know.
    command = ["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option", "-p", build, str(ROOT / name)]
    done = subprocess.run(command, cwd=ROOT, capture_output=True, encoding="utf-8", check=False)
    if done.returncode == 0:
        return ""
    return done.stdout.strip() or done.stderr.strip() or f"{name}: clang-tidy ended with {done.returncode}"


def main():
    build = sys.argv[1]
    if not os.path.exists(os.path.join(build, "compile_commands.json")):
        sys.exit(f"{build} has no compile_commands.json: configure it first")
    everything = "--all" in sys.argv[2:] or os.environ.get("TESSIK_TIDY_ALL") == "1"
    files = chosen_files(everything)
    taken = files if everything else files[:LIMIT]
    with tempfile.TemporaryDirectory() as folder:
        without_precompiled_headers(build, folder)
        with concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0))) as workers:
            findings = [text for text in workers.map(lambda name: tidy(folder, name), taken) if text]
    for text in findings:
        print(text)
    print(f"clang-tidy: {len(taken)} files, {len(findings)} with findings.")
    if len(taken) < len(files):
        print("Not looked at (./check --all does): " + " ".join(files[len(taken):]))
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
