"""docs/oddities.md and the code agree: every file, name and test of the page exists, and every mark in the code has
its file on the page.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs" / "oddities.md"
# The mark may be cut by the end of a comment line.
MARK = re.compile(r"Kept(?:\s|//)+on(?:\s|//)+purpose:")
TEST = re.compile(r"^(?:TYPED_)?TEST(?:_[FP])?\(\s*(\w+),\s*(\w+)\)", re.MULTILINE)
SPAN = re.compile(r"`([^`]+)`")


def text_of(file):
    return file.read_bytes().decode("latin-1")


def rows_of(section):
    for line in section.splitlines():
        if line.startswith("| ") and not line.startswith("| What |"):
            yield [cell.strip() for cell in line.strip("|").split("|")]


def is_file(span):
    return span.endswith((".h", ".cpp"))


def texts_of(folder, spans):
    """The texts of the files that a cell names, and what is wrong with them."""
    files = [folder / span for span in spans if is_file(span)]
    missing = [f"no such file: {file.relative_to(ROOT)}" for file in files if not file.is_file()]
    if not files:
        missing.append("names no file")
    return {file: text_of(file) for file in files if file.is_file()}, missing


def place_findings(folder, cell):
    spans = SPAN.findall(cell)
    texts, findings = texts_of(ROOT / "bexa" / folder, spans)
    yield from findings
    for file, text in texts.items():
        if not MARK.search(text):
            yield f"no mark in {file.relative_to(ROOT)}"
    for name in (span for span in spans if not is_file(span)):
        if not any(name.split("::")[-1] in text for text in texts.values()):
            yield f"{name} stands in none of its files"


def test_findings(folder, cell):
    spans = SPAN.findall(cell)
    texts, findings = texts_of(ROOT / "tests" / folder, spans)
    yield from findings
    tests = {".".join(found) for text in texts.values() for found in TEST.findall(text)}
    names = [span for span in spans if not is_file(span)]
    if not names:
        yield "names no test"
    for name in names:
        if name not in tests:
            yield f"no such test: {name}"


def section_findings(folder, section):
    for row in rows_of(section):
        if len(row) != 4:
            yield f"{row[0]}: not four cells"
            continue
        for finding in [*place_findings(folder, row[1]), *test_findings(folder, row[3])]:
            yield f"{row[0]}: {finding}"
    named = set(SPAN.findall(section))
    for file in sorted((ROOT / "bexa" / folder).rglob("*.*")):
        if is_file(file.name) and MARK.search(text_of(file)) and file.name not in named:
            yield f"the page leaves out {file.relative_to(ROOT)}"


def findings_of(page):
    sections = re.split(r"^## ", page, flags=re.MULTILINE)[1:]
    by_folder = dict(section.split("\n", 1) for section in sections)
    folders = {path.name for path in (ROOT / "bexa").iterdir() if path.is_dir()}
    for folder in sorted(folders | by_folder.keys()):
        for finding in section_findings(folder, by_folder.get(folder, "")):
            yield f"{folder}: {finding}"


findings = list(findings_of(PAGE.read_text("utf-8")))
for finding in findings:
    print(finding)
sys.exit(1 if findings else 0)
