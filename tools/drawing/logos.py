# SPDX-License-Identifier: MIT
"""The logos of the channels of our own guide: a sign each, transparent around it."""

import math


def news(c):
    """A globe that sends."""
    x, y, r = c.w * 0.5, c.h * 0.54, c.h * 0.3
    c.circle(x, y, r, c.down("#6fd0ff", "#2a7fd8", top=y - r, bottom=y + r))
    for rx in (0.38, 0.82):
        c.body.append(f'<ellipse cx="{x:.1f}" cy="{y:.1f}" rx="{r * rx:.1f}" ry="{r:.1f}" fill="none" stroke="#ffffff" stroke-width="{c.h * 0.028:.1f}" opacity="0.75"/>')
    for level in (-0.45, 0.0, 0.45):
        half = 0.95 * r * math.sqrt(1 - level * level)
        c.line([(x - half, y + r * level), (x + half, y + r * level)], "#ffffff", c.h * 0.028, 0.75)
    for i, radius in enumerate((0.4, 0.47)):
        points = [(x + c.h * radius * math.sin(a / 40), y - c.h * radius * math.cos(a / 40)) for a in range(8, 43)]
        c.line(points, "#ffffff", c.h * 0.032, 0.95 - 0.35 * i)


def sport(c):
    """A ball in flight."""
    x, y, r = c.w * 0.6, c.h * 0.44, c.h * 0.28
    for i, (length, level) in enumerate(((0.5, 0.1), (0.62, 0.42), (0.5, 0.74))):
        start = y - r + 2 * r * level
        c.line([(x - c.h * length, start + c.h * 0.17), (x - r * 0.95, start + c.h * 0.03)], "#ffb03a", c.h * 0.05, 0.95 - 0.25 * i)
    c.circle(x, y, r, c.down("#ffffff", "#cfd8e2", top=y - r, bottom=y + r))
    corners = [(x + r * 0.4 * math.sin(k * math.tau / 5), y - r * 0.4 * math.cos(k * math.tau / 5)) for k in range(5)]
    c.polygon(corners, "#1f2a38")
    for k, corner in enumerate(corners):
        edge = (x + r * 0.97 * math.sin(k * math.tau / 5), y - r * 0.97 * math.cos(k * math.tau / 5))
        c.line([corner, edge], "#1f2a38", c.h * 0.03)


def cinema(c):
    """A reel with a strip of film."""
    x, y, r = c.w * 0.46, c.h * 0.47, c.h * 0.34
    c.path(f"M{x:.1f} {y + r * 0.92:.1f} L{x + c.h * 0.46:.1f} {y + r * 0.92:.1f}", stroke="#ff5d6c", width=c.h * 0.1)
    c.circle(x, y, r, c.down("#ff8a80", "#d92d4a", top=y - r, bottom=y + r))
    for k in range(5):
        c.circle(x + r * 0.58 * math.sin(k * math.tau / 5), y - r * 0.58 * math.cos(k * math.tau / 5), r * 0.22, "#2a0d16")
    c.circle(x, y, r * 0.12, "#2a0d16")


def series(c):
    """Three frames, one behind the other."""
    for i, (fill, opacity) in enumerate((("#7a5cff", 0.45), ("#8f74ff", 0.7), ("#b39dff", 1))):
        c.rect(c.w * 0.5 - c.h * (0.44 - 0.09 * i), c.h * (0.16 + 0.1 * i), c.h * 0.7, c.h * 0.46, fill, opacity, c.h * 0.06)
    x, y, s = c.w * 0.5 + c.h * 0.09, c.h * 0.59, c.h * 0.13
    c.polygon([(x - s * 0.8, y - s), (x + s, y), (x - s * 0.8, y + s)], "#241a4d")


def music(c):
    """Bars that dance."""
    for i, height in enumerate((0.3, 0.56, 0.72, 0.44, 0.62, 0.26)):
        x = c.w * 0.5 + c.h * (i - 2.5) * 0.145
        c.rect(x - c.h * 0.05, c.h * (0.86 - height), c.h * 0.1, c.h * height, c.down("#ffd75e", "#ff6fae", top=c.h * 0.14, bottom=c.h * 0.86), 1, c.h * 0.05)


def nature(c):
    """Two leaves on a stem."""
    x, y = c.w * 0.5, c.h * 0.86
    c.line([(x, y), (x, c.h * 0.5)], "#5fbf6a", c.h * 0.06)
    for side, top, size in ((-1, 0.3, 0.36), (1, 0.12, 0.44)):
        tip_x, tip_y = x + side * c.h * size, c.h * top
        c.path(f"M{x:.1f} {c.h * 0.62:.1f} C{x:.1f} {tip_y:.1f} {x + side * c.h * size * 0.3:.1f} {tip_y:.1f} {tip_x:.1f} {tip_y:.1f} "
               f"C{tip_x:.1f} {c.h * 0.6:.1f} {x + side * c.h * size * 0.6:.1f} {c.h * 0.64:.1f} {x:.1f} {c.h * 0.62:.1f} Z",
               c.down("#a5e57a", "#3fa45c", top=tip_y, bottom=c.h * 0.64))
