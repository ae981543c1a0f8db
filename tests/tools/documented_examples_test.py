#!/usr/bin/env python3
"""Runs every example of docs/program.md and compares its output with what the page says.

usage: documented_examples_test.py PROGRAM PAGE SAMPLE

An example is a block "```console": lines "$ COMMAND", each followed by what the command prints on stdout and
stderr together. "..." on a line of its own stands for any number of lines. They run one after the other, by
the shell, in a copy of SAMPLE.
"""

import difflib
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path


def examples(page):
    """Triples of line number, command and expected output."""
    command, number, output, inside = None, 0, [], False
    for line_number, line in enumerate(page.splitlines(), start=1):
        is_fence = line.startswith("```")
        if inside and (is_fence or line.startswith("$ ")) and command:
            yield number, command, "".join(text + "\n" for text in output)
            command = None
        if is_fence:
            inside = not inside and line == "```console"
        elif inside and line.startswith("$ "):
            command, number, output = line[2:], line_number, []
        elif inside:
            output.append(line)


def matches(expected, actual):
    pattern = "".join("(?:.*\n)*?" if line == "...\n" else re.escape(line) for line in expected.splitlines(True))
    return re.fullmatch(pattern, actual) is not None


def run(command, directory, program):
    environment = {
        "PATH": f"{Path(program).parent}:{os.environ['PATH']}",
        "LANG": "C.UTF-8",
        "HOME": directory,
        "YDSROOT": "system",
        "AMPLIFIER_LIBRARY": "/opt/amplifier/library",
    }
    # Under a sanitizer its options matter.
    environment |= {name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
    result = subprocess.run(command, shell=True, cwd=directory, env=environment, check=False,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return result.stdout.decode("utf-8")


def main(program, page, sample):
    found = list(examples(Path(page).read_text(encoding="utf-8")))
    wrong = 0
    with tempfile.TemporaryDirectory() as scratch:
        directory = shutil.copytree(sample, Path(scratch) / "amplifier")
        for number, command, expected in found:
            actual = run(command, str(directory), program)
            if matches(expected, actual):
                continue
            wrong += 1
            print(f"{page}:{number}: {command}")
            print("".join(difflib.unified_diff(expected.splitlines(True), actual.splitlines(True), "page", "program")))
    print(f"{len(found)} examples, {wrong} not as the program does it")
    return 0 if found and not wrong else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
