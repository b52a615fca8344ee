#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Draws the demo vendor's letter paper (665 x 895, the protocol's page in
document pixels): a tinted sheet with a side stripe, a logo and a rule at the
top, and a footer rule with blocks where the address would be printed.

    python3 make-letter-paper.py Velmora_business-paper.png

Only the standard library: the PNG is written by hand.
"""
import math
import struct
import sys
import zlib

WIDTH, HEIGHT = 665, 895
PAPER = (252, 250, 244)
ACCENT = (0, 150, 136)
DARK = (38, 70, 83)
GREY = (200, 200, 196)


def draw():
    pixels = [[PAPER] * WIDTH for _ in range(HEIGHT)]

    def rect(x0, y0, x1, y1, colour):
        for y in range(max(0, y0), min(HEIGHT, y1)):
            row = pixels[y]
            for x in range(max(0, x0), min(WIDTH, x1)):
                row[x] = colour

    # Side stripe, darker towards the top.
    for y in range(HEIGHT):
        t = y / (HEIGHT - 1)
        colour = tuple(int(d + (a - d) * t) for d, a in zip(DARK, ACCENT))
        rect(0, y, 14, y + 1, colour)
    rect(14, 0, 17, HEIGHT, (230, 240, 238))

    # Logo: a ring with a beam through it, top right.
    cx, cy, r = 610, 30, 20
    for y in range(cy - r - 2, cy + r + 3):
        for x in range(cx - r - 2, cx + r + 3):
            d = math.hypot(x - cx, y - cy)
            if r - 6 <= d <= r:
                pixels[y][x] = ACCENT
            elif d < r - 11:
                pixels[y][x] = DARK
    rect(480, cy - 2, cx - r + 1, cy + 2, ACCENT)
    for i, width in enumerate((70, 52, 34)):
        rect(480, 38 + i * 6, 480 + width, 41 + i * 6, GREY)

    # Rule under the letterhead and above the footer.
    rect(40, 58, 640, 60, ACCENT)
    rect(40, 852, 640, 853, DARK)
    for column, widths in enumerate(((110, 90, 70), (120, 80, 100), (90, 110, 60))):
        x = 40 + column * 200
        for line, width in enumerate(widths):
            rect(x, 860 + line * 9, x + width, 864 + line * 9, GREY)
    return pixels


def write_png(path, pixels):
    raw = b"".join(b"\x00" + bytes(c for p in row for c in p) for row in pixels)

    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body) & 0xFFFFFFFF)

    header = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0)
    with open(path, "wb") as out:
        out.write(b"\x89PNG\r\n\x1a\n")
        out.write(chunk(b"IHDR", header))
        out.write(chunk(b"IDAT", zlib.compress(raw, 9)))
        out.write(chunk(b"IEND", b""))


if __name__ == "__main__":
    write_png(sys.argv[1] if len(sys.argv) > 1 else "Velmora_business-paper.png", draw())
