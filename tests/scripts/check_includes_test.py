"""Small trees with one fault each, and the finding that scripts/check-includes must make of it."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "check-includes"

# file, what it includes, whether that is allowed
ARROWS = [
    ("store/file.h", "foundation/ygeneral/ystring.h", True),
    ("store/file.cpp", "export.h", True),
    ("store/file.cpp", "foundation/text_cursor.h", True),
    ("store/file.h", "circuitrc/datarc.h", False),
    ("names/delimiters.cpp", "circuitrc/datarc.h", True),
    ("names/delimiters.cpp", "store/file.h", False),
    ("envrc/envrc.h", "circuitrc/datarc.h", False),
    ("batch/reload_resource.cpp", "design/net_list.h", False),
    ("design/net_list.cpp", "bexa.h", False),
    ("bexa.h", "batch/reload_resource.h", True),
    ("foundation/kanji.cpp", "foundation/ygeneral/ystring.h", True),
    ("foundation/ygeneral/ystring.h", "foundation/array_family.h", True),
    ("foundation/ygeneral/ystring.cpp", "foundation/kanji.h", False),
    ("foundation/ygeneral/ystring.h", "foundation/ycore/arrays.h", True),
    ("foundation/ycore/arrays.h", "foundation/ygeneral/ystring.h", False),
    ("foundation/ymessage/catalogue.cpp", "foundation/yrsc/keyed_file.h", True),
    ("foundation/yrsc/keyed_file.cpp", "foundation/ymessage/catalogue.h", False),
    ("foundation/array_family.h", "foundation/ycore/arrays.h", False),
    ("foundation/array_family.h", "foundation/ycore/array_find.h", True),
    ("foundation/kanji_bytes.h", "foundation/text_cursor.h", True),
    ("foundation/kanji_bytes.cpp", "foundation/kanji.h", False),
    ("foundation/ycore/file_access.cpp", "foundation/os.h", True),
    ("foundation/os_posix.cpp", "foundation/os.h", True),
    ("foundation/os_posix.cpp", "foundation/ycore/file_access.h", False),
    ("store/file.h", "foundation/missing.h", False),
]


def check(files):
    """Exit code and output of the script over a tree: {file: [included files]}, paths below bexa/."""
    with tempfile.TemporaryDirectory() as root:
        for file, includes in files.items():
            path = Path(root, "bexa", file)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text("#pragma once\n" + "".join(f'#include "bexa/{name}"\n' for name in includes))
        done = subprocess.run([sys.executable, SCRIPT, root], capture_output=True, text=True, check=False)
        return done.returncode, done.stdout


class CheckIncludes(unittest.TestCase):
    def test_arrows(self):
        for file, target, allowed in ARROWS:
            with self.subTest(file=file, target=target):
                files = {file: [target]}
                if "missing" not in target:
                    files[target] = []
                code, output = check(files)
                self.assertEqual(code, 0 if allowed else 1, output)
                self.assertEqual(f"bexa/{file}:2:" in output, not allowed, output)

    def test_circle(self):
        code, output = check({"store/a.h": ["store/b.h"], "store/b.h": ["store/c.h"], "store/c.h": ["store/a.h"]})
        self.assertEqual(code, 1)
        self.assertIn(
            "bexa/store/c.h:2: circle of includes: "
            "bexa/store/a.h -> bexa/store/b.h -> bexa/store/c.h -> bexa/store/a.h",
            output,
        )

    def test_file_that_includes_itself(self):
        code, output = check({"store/a.h": ["store/a.h"]})
        self.assertEqual(code, 1)
        self.assertIn("circle of includes", output)

    def test_two_ways_to_one_file_are_no_circle(self):
        code, output = check({"store/a.h": ["store/b.h", "store/c.h"], "store/b.h": ["store/c.h"], "store/c.h": []})
        self.assertEqual(code, 0, output)

    def test_a_tree_without_the_library_is_an_error(self):
        with tempfile.TemporaryDirectory() as root:
            done = subprocess.run([sys.executable, SCRIPT, root], capture_output=True, check=False)
        self.assertEqual(done.returncode, 2)


if __name__ == "__main__":
    unittest.main()
