#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Reads a CSV file with Python's csv module and prints its rows as JSON.

Usage: readcsv.py FILE DELIMITER
The rows come out exactly as the csv module sees them, so a test can compare
every cell with what it exported.
"""
import csv
import json
import sys

path, delimiter = sys.argv[1], sys.argv[2]
with open(path, newline="", encoding="utf-8") as handle:
    rows = list(csv.reader(handle, delimiter=delimiter, strict=True))
json.dump(rows, sys.stdout)
