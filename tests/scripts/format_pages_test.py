"""The examples in docs/formats are the files they name, no link leads nowhere, and the README lists every
page.

The files are Shift-JIS, the pages UTF-8. Run with --write to copy the files into the pages.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
EXAMPLE = re.compile(r"^(\[[^]]*\]\(([^)]*)\):\n\n```\n)(.*?)(^```)$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\(([^)#:]+)\)")


def with_files(page, text):
    def example(match):
        head, file, _, tail = match.groups()
        return head + (page.parent / file).read_text("cp932") + tail

    return EXAMPLE.sub(example, text)


def findings(page, text):
    for link in LINK.findall(text):
        if not (page.parent / link).exists():
            yield f"leads nowhere: {link}"
            return
    if with_files(page, text) != text:
        yield "an example is not what its file holds"
    if page.name != "README.md" and f"]({page.name})" not in (page.parent / "README.md").read_text("utf-8"):
        yield "the README leaves it out"


found = False
for page in sorted((ROOT / "docs" / "formats").glob("*.md")):
    text = page.read_text("utf-8")
    if sys.argv[1:] == ["--write"]:
        page.write_text(with_files(page, text), "utf-8")
        continue
    for finding in findings(page, text):
        found = True
        print(f"{page.relative_to(ROOT)}: {finding}")
sys.exit(1 if found else 0)
