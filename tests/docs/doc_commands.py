#!/usr/bin/env python3
"""Runs every command shown in the documentation and compares its output.

Usage: doc_commands.py SOURCE_DIR BIN_DIR [FILE.md ...]

Without files, README.md and every docs/*.md are read.

The marking convention of the documents:

- A fenced block opened with ```sh is run with bash (`set -e`, `pipefail`)
  and must end with exit status 0. The blocks of one document run in order in
  one fresh folder, so a later block sees the files an earlier one wrote (a
  tutorial's transcript); the folder holds `data/` (the source tree's data
  folder, so the bundled samples are at `data/samples/`) and `build/bin/` (the
  built programs). `tavi` is on PATH, and the settings are read from an empty
  user folder, so the program's defaults are in force.
- ```sh exit=N: the block is run and must end with exit status N (for a
  command that reports a problem, such as `tavi check` on a transcript with
  errors).
- ```sh no-test: the block is shown but not run: it needs what the test cannot
  have (the desktop program, R, Python libraries, root, a network, files the
  reader brings), or it is a pattern with placeholders (FILE.tvi).
- A ```text block that follows a run block, with only blank lines between, is
  the block's expected output: its standard output and standard error merged.
  The text must match line for line, blanks at line ends aside. A line that
  is exactly `...` stands for any number of lines (none included).

Blocks of other languages (```r, ```python, plain ```) are never run.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile

FENCE = re.compile(r"^```(\S*)\s*(.*)$")


def blocks(path):
    """Yields (line, language, options, text, expected-or-None)."""
    with open(path, encoding="utf-8") as f:
        lines = f.read().split("\n")
    found = []  # (start line, language, options, body lines)
    i = 0
    while i < len(lines):
        m = FENCE.match(lines[i])
        if not m:
            i += 1
            continue
        start, language, options = i + 1, m.group(1), m.group(2).split()
        body = []
        i += 1
        while i < len(lines) and not lines[i].startswith("```"):
            body.append(lines[i])
            i += 1
        found.append((start, language, options, body, i))
        i += 1
    for n, (start, language, options, body, end) in enumerate(found):
        if language != "sh":
            continue
        expected = None
        if n + 1 < len(found) and found[n + 1][1] == "text":
            between = lines[end + 1 : found[n + 1][0] - 1]
            if all(not line.strip() for line in between):
                expected = found[n + 1][3]
        yield start, options, "\n".join(body) + "\n", expected


def matches(expected, actual):
    """Line-by-line match where a line `...` stands for any number of lines."""
    if not expected:
        return not actual
    if expected[0] == "...":
        return any(matches(expected[1:], actual[k:]) for k in range(len(actual) + 1))
    return bool(actual) and expected[0] == actual[0] and matches(expected[1:], actual[1:])


def clean(text_lines):
    out = [line.rstrip() for line in text_lines]
    while out and not out[-1]:
        out.pop()
    return out


def make_folder(source_dir, bin_dir):
    work = tempfile.mkdtemp(prefix="tavi_doc_")
    os.symlink(os.path.join(source_dir, "data"), os.path.join(work, "data"))
    os.makedirs(os.path.join(work, "build"))
    os.symlink(bin_dir, os.path.join(work, "build", "bin"))
    os.makedirs(os.path.join(work, ".home", "Documents"))
    return work


def run_block(work, bin_dir, script):
    home = os.path.join(work, ".home")
    env = dict(os.environ)
    env.update(
        PATH=bin_dir + os.pathsep + env.get("PATH", ""),
        HOME=home,
        TAVI_DATA_USER=os.path.join(home, "tavi"),
        XDG_CONFIG_HOME=os.path.join(home, ".config"),
        XDG_DOCUMENTS_DIR=os.path.join(home, "Documents"),
        LC_ALL="C.UTF-8",
        QT_QPA_PLATFORM="offscreen",
    )
    env.pop("TAVI_DATA_GROUP", None)
    r = subprocess.run(
        ["bash", "-e", "-o", "pipefail", "-c", script],
        cwd=work,
        env=env,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        timeout=120,
    )
    return r.returncode, r.stdout.decode("utf-8", "replace")


def main():
    source_dir = os.path.abspath(sys.argv[1])
    bin_dir = os.path.abspath(sys.argv[2])
    files = sys.argv[3:]
    if not files:
        docs = os.path.join(source_dir, "docs")
        files = [os.path.join(source_dir, "README.md")] + sorted(
            os.path.join(docs, f) for f in os.listdir(docs) if f.endswith(".md")
        )
    failures = 0
    ran = skipped = compared = 0
    for path in files:
        name = os.path.relpath(path, source_dir)
        work = make_folder(source_dir, bin_dir)
        for line, options, script, expected in blocks(path):
            if "no-test" in options:
                skipped += 1
                continue
            want_status = 0
            for option in options:
                if option.startswith("exit="):
                    want_status = int(option[len("exit=") :])
            status, output = run_block(work, bin_dir, script)
            ran += 1
            problems = []
            if status != want_status:
                problems.append("exit status %d, expected %d" % (status, want_status))
            if expected is not None:
                compared += 1
                if not matches(clean(expected), clean(output.split("\n"))):
                    problems.append("output differs from the text block below it")
            if problems:
                failures += 1
                print("FAIL %s:%d: %s" % (name, line, "; ".join(problems)))
                print("  script:\n    " + script.rstrip().replace("\n", "\n    "))
                print("  output:\n    " + output.rstrip().replace("\n", "\n    "))
        shutil.rmtree(work, ignore_errors=True)
    print(
        "%d blocks run (%d with shown output compared), %d marked no-test, %d failed"
        % (ran, compared, skipped, failures)
    )
    return 1 if failures or ran == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
