"""bexa/bexa.h reaches every header that exports something."""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def reached_from(header, seen):
    if header in seen:
        return seen
    seen.add(header)
    for target in re.findall(r'^#\s*include "(bexa/[^"]+)"', (ROOT / header).read_text(), re.MULTILINE):
        reached_from(target, seen)
    return seen


def exporting_headers():
    for path in sorted((ROOT / "bexa").rglob("*.h")):
        if re.search(r"^[^/#]*\bBEXA_API\b", path.read_text(), re.MULTILINE):
            yield path.relative_to(ROOT).as_posix()


missing = [header for header in exporting_headers() if header not in reached_from("bexa/bexa.h", set())]
for header in missing:
    print(f"bexa/bexa.h: leaves out {header}")
sys.exit(1 if missing else 0)
