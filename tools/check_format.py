#!/usr/bin/env python3
"""Checks that every C++ file is formatted as clang-format would format it; `check_format.py --fix` formats them."""

import subprocess
import sys

from project_files import ROOT, project_files


def main():
    names = [str(path) for path in project_files(suffixes={".h", ".cpp"})]
    mode = ["-i"] if "--fix" in sys.argv[1:] else ["--dry-run", "-Werror"]
    return subprocess.run(["clang-format", *mode, *names], cwd=ROOT, check=False).returncode if names else 0


if __name__ == "__main__":
    sys.exit(main())
