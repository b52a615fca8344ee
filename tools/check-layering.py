#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Fails when a library source includes a header of a subsystem above its own.

core is the floor; telegrams, plot and assistant sit on core; thresholds sits on
plot; charts on thresholds and plot; widgets and propertybrowser on core. A file
may include its own subsystem and any subsystem below it (the table lists each
subsystem's whole floor). Usage: check-layering.py [source root, default src]
"""
import pathlib
import re
import sys

BELOW = {
    "core": set(),
    "telegrams": {"core"},
    "plot": {"core"},
    "assistant": {"core"},
    "thresholds": {"plot", "core"},
    "charts": {"thresholds", "plot", "core"},
    "propertybrowser": {"core"},
    "widgets": {"propertybrowser", "core"},
}

# Headers that depend on nothing of the library, so that a lower subsystem may use
# them where the design puts them higher up. Each entry says who and why.
LEAVES = {
    # The sample series is plain QtCore; the plot's curve factory feeds curves from it.
    ("plot", "charts/valueovertime.h"),
    # The log viewer's filter field: a plain Qt line edit with icon buttons, nothing of the library below it.
    ("core", "widgets/filterlineedit.h"),
}

INCLUDE = re.compile(r'^\s*#\s*include\s*[<"](?:utils/)?(\w+)/([\w./]+)[>"]', re.M)


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "src")
    problems = []
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp") or len(path.relative_to(root).parts) < 2:
            continue
        own = path.relative_to(root).parts[0]
        if own not in BELOW:
            problems.append(f"{path}: subsystem '{own}' has no place in the layering table")
            continue
        text = path.read_text(encoding="utf-8", errors="replace")
        for subsystem, header in INCLUDE.findall(text):
            if subsystem not in BELOW or subsystem == own or subsystem in BELOW[own]:
                continue
            if (own, f"{subsystem}/{header}") in LEAVES:
                continue
            problems.append(f"{path}: includes {subsystem}/{header}, a subsystem above {own}")
    for problem in problems:
        print(problem, file=sys.stderr)
    print(f"layering: {len(problems)} problem(s) under {root}")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
