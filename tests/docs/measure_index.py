#!/usr/bin/env python3
"""The identifier index of docs/measures.md against `tavi measures`.

Usage: measure_index.py SOURCE_DIR TAVI_BINARY

Every identifier the program prints must have a row in the index (section
"Index of identifiers"), and every row must name an identifier the program
prints, in the same order: a measure added, renamed or dropped without its
entry fails here.
"""

import os
import re
import subprocess
import sys
import tempfile


def printed_identifiers(tavi, sample):
    with tempfile.TemporaryDirectory() as settings:
        r = subprocess.run(
            [tavi, "--settings-dir", settings, "measures", sample],
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            check=False,
        )
    if r.returncode != 0:
        sys.exit("tavi measures failed: " + r.stderr.decode("utf-8", "replace"))
    return [line.split("\t")[0] for line in r.stdout.decode("utf-8").splitlines() if line]


def indexed_identifiers(measures_md):
    with open(measures_md, encoding="utf-8") as f:
        text = f.read()
    start = text.find("## 14. Index of identifiers")
    if start < 0:
        sys.exit("docs/measures.md has no section '## 14. Index of identifiers'")
    rows = []
    for line in text[start:].splitlines()[1:]:
        if line.startswith("## "):
            break
        m = re.match(r"^\| `([^`]+)` \| (.*?) \| (.*?) \|$", line)
        if m:
            if not m.group(2).strip():
                sys.exit("empty definition for " + m.group(1))
            rows.append(m.group(1))
    return rows


def main():
    source_dir, tavi = sys.argv[1], sys.argv[2]
    sample = os.path.join(source_dir, "data", "samples", "story-age7.tvi")
    printed = printed_identifiers(tavi, sample)
    indexed = indexed_identifiers(os.path.join(source_dir, "docs", "measures.md"))
    missing = [i for i in printed if i not in indexed]
    unknown = [i for i in indexed if i not in printed]
    failed = False
    if missing:
        failed = True
        print("printed by tavi measures but not in the index of docs/measures.md:")
        print("  " + " ".join(missing))
    if unknown:
        failed = True
        print("in the index of docs/measures.md but not printed by tavi measures:")
        print("  " + " ".join(unknown))
    if not failed and printed != indexed:
        failed = True
        print("the index of docs/measures.md is not in the order tavi measures prints")
    print("%d identifiers printed, %d indexed" % (len(printed), len(indexed)))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
