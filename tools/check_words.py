#!/usr/bin/env python3
"""Checks what no compiler sees: words that must not be here, tabs, trailing blanks, how files open, how long they are.

Usage: check_words.py [PROJECT-DIRECTORY]; ends with 1 when something is found.
"""

import pathlib
import re
import sys

from project_files import ROOT, project_files

# Comments speak of this system and no other paper, and nothing knows the machine it was written on. Each pattern is
# written so that it does not match itself.
UNWANTED = re.compile(
    r"\bPart [0-9]+\.[0-9]+|\b[Ii]ssue #?[0-9]+|[Ss]pecificatio[n]|Spezifikatio[n]|spec\.md|\bthe spe[c]\b"
    r"|/wor[k]/|/tmp/bash_job[s]"
)
TRANSLATION = re.compile(r"\btr\(")
LONGEST_SOURCE = 500

# What is kept byte for byte because a program reads it: samples, and files whose format asks for tabs.
VERBATIM = ("tests/data/", "fuzz/", "packaging/")
CODE = {".h", ".cpp"}


def text_of(path):
    """The text of a file; None for pictures, sounds and other bytes."""
    content = path.read_bytes()
    if b"\0" in content:
        return None
    try:
        return content.decode("utf-8")
    except UnicodeDecodeError:
        return None


def opens_with_sentence(lines):
    """Whether the first paragraph is a comment that ends as a sentence does."""
    paragraph = []
    for line in lines:
        if not line.startswith("// "):
            break
        paragraph.append(line)
    return bool(paragraph) and paragraph[-1].rstrip().endswith((".", ":"))


def findings_of_lines(name, lines):
    for number, line in enumerate(lines, 1):
        word = UNWANTED.search(line)
        if word:
            yield f"{name}:{number}: \"{word[0]}\" must not be here"
        if not name.startswith(VERBATIM):
            if "\t" in line:
                yield f"{name}:{number}: a tab"
            if line != line.rstrip():
                yield f"{name}:{number}: blanks at the end of the line"


def findings_of_code(name, lines):
    if not opens_with_sentence(lines):
        yield f"{name}:1: does not open with a comment of one sentence on what the file is"
    if name.startswith("src/") and len(lines) > LONGEST_SOURCE:
        yield f"{name}: {len(lines)} lines, split it at {LONGEST_SOURCE}"
    for number, line in enumerate(lines, 1):
        if TRANSLATION.search(line):
            yield f"{name}:{number}: tr() is not used, texts are German where they stand"


def check(root):
    """All findings in the project at `root` as lines of text."""
    findings = []
    for path in project_files(root):
        name = path.as_posix()
        text = text_of(root / path)
        if text is None:
            continue
        lines = text.split("\n")
        if lines[-1] == "":
            lines.pop()
        findings.extend(findings_of_lines(name, lines))
        if path.suffix in CODE:
            findings.extend(findings_of_code(name, lines))
    return findings


def main():
    findings = check(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT)
    print("\n".join(findings) if findings else "Words, blanks, openings and lengths are as agreed.")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
