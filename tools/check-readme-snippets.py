#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Checks that every ```cpp block of a Markdown file is, line for line, a piece of
source marked "//! [name]" ... "//! [name]" in a folder whose sources are compiled
(the consumer project), so that the README shows only code that builds.

Usage: check-readme-snippets.py README.md tests/consumer
"""
import pathlib
import re
import sys
import textwrap


def blocks(markdown):
    return re.findall(r"^```cpp\n(.*?)^```", markdown, flags=re.S | re.M)


def marked_pieces(folder):
    pieces = {}
    for path in sorted(pathlib.Path(folder).glob("*.cpp")):
        text = path.read_text(encoding="utf-8")
        for name, body in re.findall(r"^//! \[(\w+)\]\n(.*?)^//! \[\1\]", text, flags=re.S | re.M):
            pieces[f"{path.name}:{name}"] = textwrap.dedent(body).strip()
    return pieces


def main():
    markdown = pathlib.Path(sys.argv[1]).read_text(encoding="utf-8")
    pieces = marked_pieces(sys.argv[2])
    found = blocks(markdown)
    missing = [b for b in found if textwrap.dedent(b).strip() not in pieces.values()]
    for block in missing:
        print("README block not found in a compiled source:\n" + block, file=sys.stderr)
    print(f"{len(found)} C++ blocks, {len(found) - len(missing)} compiled")
    return 1 if missing or not found else 0


if __name__ == "__main__":
    sys.exit(main())
