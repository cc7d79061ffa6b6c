# SPDX-License-Identifier: MIT
"""More pictures of films and series, and the stills of the series' episodes."""

import math

from scenes import WARM, cabin, person


def harbour(c):
    sea = c.h * 0.66
    c.fill(c.down("#101a26", "#22384a", "#4d6672", "#8a8f86", bottom=sea))
    for i in range(9):
        c.cloud(c.random.uniform(0, c.w), c.h * c.random.uniform(0, 0.26), c.u * 26, "#0d1620" if i % 2 else "#3a5261", 0.6, flat=0.45, blur=2)
    c.skyline(sea, c.h * 0.2, "#2c4354", None, 0, 8, 18)
    c.mist(sea - c.u * 4, c.u * 22, "#9fb0ae", 0.4)
    for x, height in ((0.18, 0.46), (0.74, 0.54)):
        crane(c, c.w * x, sea, c.h * height)
    house_x, width, height = c.w * 0.36, c.u * 33, c.u * 19
    c.rect(house_x, sea - height, width, height, "#101b25")
    for i in range(4):
        c.polygon([(house_x + width * i / 4, sea - height), (house_x + width * i / 4, sea - height * 1.3), (house_x + width * (i + 1) / 4, sea - height)], "#0d1720")
    c.windows(house_x, sea - height * 0.9, width, height * 0.55, ("#1d2d39",), 1, 3.4)
    c.rect(house_x + width * 0.62, sea - height * 0.62, width * 0.1, height * 0.22, "#ffcf7d")
    c.glow(house_x + width * 0.67, sea - height * 0.5, c.u * 17, "#ffb95c", 0.9)
    c.rect(-2, sea, c.w + 4, c.h - sea + 4, c.down("#4b626d", "#1e303c", "#0a131b", top=sea))
    c.glitter(house_x + width * 0.67, sea + c.u, c.h, c.u * 8, "#ffc878", 110, 0.8)
    c.rect(-2, c.h * 0.92, c.w + 4, c.h * 0.1, c.down("#0b141c", "#05090d", top=c.h * 0.92))
    x, base = c.w * 0.26, c.h * 0.95
    person(c, x, base, c.u * 21, "#05090e")
    c.path(f"M{x - c.u * 9:.1f} {base - c.u * 19:.1f} Q{x:.1f} {base - c.u * 31:.1f} {x + c.u * 9:.1f} {base - c.u * 19:.1f} Z", c.down("#b8373f", "#6d1f2e", top=base - c.u * 26, bottom=base - c.u * 19))
    c.line([(x, base - c.u * 22), (x + c.u * 1.5, base - c.u * 11)], "#05090e", c.u * 0.4)
    c.rain(230, "#d5e6ee", 0.3)
    c.vignette(0.65)


def crane(c, x, base, height):
    color = "#1a2a36"
    for side in (-0.14, 0.14):
        c.line([(x + side * height, base), (x + side * height * 0.55, base - height * 0.62)], color, c.u * 0.9)
    c.line([(x - height * 0.1, base - height * 0.32), (x + height * 0.1, base - height * 0.32)], color, c.u * 0.6)
    c.line([(x - height * 0.3, base - height * 0.6), (x + height * 0.52, base - height * 0.68)], color, c.u * 0.9)
    c.line([(x, base - height * 0.62), (x + height * 0.05, base - height * 0.86), (x + height * 0.5, base - height * 0.68)], color, c.u * 0.35)
    c.line([(x + height * 0.05, base - height * 0.86), (x - height * 0.28, base - height * 0.6)], color, c.u * 0.35)
    c.line([(x + height * 0.42, base - height * 0.67), (x + height * 0.42, base - height * 0.4)], color, c.u * 0.2)
    c.rect(x + height * 0.37, base - height * 0.4, height * 0.1, height * 0.06, "#7a3b37")


def orchard(c):
    c.fill(c.down("#20324f", "#6f6f8c", "#e0a184", "#ffd9a0", bottom=c.h * 0.68))
    c.glow(c.w * 0.7, c.h * 0.56, c.u * 55, "#ffe9b8", 0.9)
    c.circle(c.w * 0.7, c.h * 0.53, c.u * 7, "#fff3d0")
    for y in (0.18, 0.29, 0.4):
        c.cloud(c.w * c.random.random(), c.h * y, c.u * 24, "#f0b493", 0.5, flat=0.16)
    for i in range(6):
        level = 0.58 + 0.075 * i
        top = ("#b5885f", "#a77a4a", "#8e7a3f", "#6f6b35", "#4b5a30", "#2b4028")[i]
        foot = ("#9a6f58", "#7d5a3d", "#5f5530", "#3f4a28", "#263820", "#141f15")[i]
        line = c.waves(c.h * level, c.u * (1.5 + 0.5 * i), 0.6, 0.23 * i)
        c.land(line, c.down(top, foot, top=c.h * level - c.u * 4, bottom=c.h * (level + 0.14)))
        for x, y in line[3 + i % 2 * 3:: 6 + i]:
            tree(c, x, y + c.u, c.u * (3.4 + 2.2 * i))
        c.mist(c.h * (level + 0.04), c.u * 8, "#ffe2b0", 0.22)
    c.vignette(0.45, "#1c1418")


def tree(c, x, base, size):
    c.ellipse(x - size * 0.3, base, size * 0.7, size * 0.09, "#1c1a14", 0.35, c.u * 0.3)
    c.line([(x, base), (x, base - size * 0.5)], "#3a2620", size * 0.1)
    tones = ("#5b2f2a", "#8c4230", "#b8593a", "#d98a45")
    for i, (dx, dy, r) in enumerate(((-0.2, 0.68, 0.32), (0.22, 0.66, 0.32), (0, 0.88, 0.36), (0.1, 0.9, 0.22))):
        c.circle(x + dx * size, base - dy * size, r * size, tones[i], 0.96)
    for _ in range(6):
        c.circle(x + c.random.uniform(-0.35, 0.35) * size, base - c.random.uniform(0.5, 1.05) * size, size * 0.035, "#ffcf6b")


def deep(c):
    c.fill(c.down("#8fe3ea", "#2aa5c4", "#0f5f93", "#062a56", "#020c22"))
    c.rays(c.w * 0.6, -c.h * 0.12, c.h * 1.0, 11, "#e8ffff", 0.5, 55, 125, 3.4)
    c.glow(c.w * 0.6, 0, c.u * 60, "#ffffff", 0.55)
    whale(c, c.w * 0.5, c.h * 0.47, c.u * 66)
    for x, y in ((0.3, 0.66), (0.37, 0.7)):
        diver(c, c.w * x, c.h * y, c.u * 6)
    for _ in range(26):
        x, y = c.w * c.random.uniform(0.08, 0.92), c.h * c.random.uniform(0.12, 0.3)
        c.ellipse(x, y, c.u * 0.9, c.u * 0.3, "#0b4a78", 0.55)
    for _ in range(70):
        c.circle(c.w * c.random.random(), c.h * c.random.random(), c.u * c.random.uniform(0.08, 0.35), "#e6ffff", c.random.uniform(0.15, 0.6))
    c.land(c.ridge(c.h * 0.93, c.u * 6, 0.55), c.down("#04183a", "#010818", top=c.h * 0.84), 0.95)
    c.vignette(0.55, "#010a1c")


def whale(c, x, y, size):
    skin = c.down("#3d7ba0", "#1a4a74", "#0b2a4f", top=y - size * 0.16, bottom=y + size * 0.16)
    def at(px, py):
        return f"{x + px * size:.1f} {y + py * size:.1f}"
    c.path(f"M{at(-0.5, 0.02)} C{at(-0.47, -0.14)} {at(-0.2, -0.19)} {at(0.02, -0.14)} C{at(0.2, -0.1)} {at(0.3, -0.05)} {at(0.42, -0.1)} "
           f"C{at(0.47, -0.13)} {at(0.5, -0.22)} {at(0.58, -0.24)} C{at(0.56, -0.16)} {at(0.54, -0.11)} {at(0.5, -0.07)} "
           f"C{at(0.56, -0.05)} {at(0.6, -0.02)} {at(0.62, 0.05)} C{at(0.55, 0.03)} {at(0.48, 0)} {at(0.43, -0.02)} "
           f"C{at(0.3, 0.06)} {at(0.1, 0.13)} {at(-0.14, 0.14)} C{at(-0.36, 0.14)} {at(-0.5, 0.11)} {at(-0.5, 0.02)} Z", skin)
    c.path(f"M{at(-0.49, 0.05)} C{at(-0.36, 0.06)} {at(-0.2, 0.04)} {at(-0.1, 0.1)} C{at(-0.12, 0.13)} {at(-0.36, 0.14)} {at(-0.49, 0.05)} Z", "#a9cfdf", 0.55)
    for i in range(6):
        c.path(f"M{at(-0.46 + 0.02 * i, 0.07 + 0.009 * i)} Q{at(-0.3, 0.08 + 0.01 * i)} {at(-0.13, 0.105 + 0.005 * i)}", stroke="#1a4a74", width=c.u * 0.18, opacity=0.5)
    c.path(f"M{at(-0.16, 0.1)} C{at(-0.1, 0.22)} {at(0.0, 0.3)} {at(0.1, 0.32)} C{at(0.08, 0.22)} {at(0.02, 0.13)} {at(-0.06, 0.08)} Z", "#123a63")
    c.path(f"M{at(0.2, -0.1)} Q{at(0.25, -0.17)} {at(0.3, -0.16)} Q{at(0.28, -0.11)} {at(0.29, -0.06)} Z", "#1a4a74")
    c.circle(x - size * 0.34, y + size * 0.02, size * 0.012, "#041428")
    c.path(f"M{at(-0.46, -0.05)} C{at(-0.4, -0.14)} {at(-0.2, -0.18)} {at(0.02, -0.13)}", stroke="#bfefff", width=c.u * 0.5, opacity=0.5, blur=c.u * 0.4)


def diver(c, x, y, size):
    c.ellipse(x, y, size * 0.42, size * 0.12, "#03152e", turn=-14)
    c.circle(x - size * 0.46, y + size * 0.05, size * 0.12, "#03152e")
    for side in (0, 1):
        c.line([(x + size * 0.35, y - size * 0.06), (x + size * (0.8 + 0.1 * side), y - size * (0.26 - 0.3 * side))], "#03152e", size * 0.1)
    c.glow(x - size * 0.6, y + size * 0.1, size * 0.9, "#fff3c0", 0.7)
    for i in range(4):
        c.circle(x - size * (0.4 - 0.05 * i), y - size * (0.35 + 0.3 * i), size * (0.05 + 0.02 * i), "#dffcff", 0.5)


def bridges(c):
    river = c.h * 0.6
    c.fill(c.down("#28446f", "#7a7fa8", "#f0a585", "#ffd9a3", bottom=river))
    c.glow(c.w * 0.5, river * 0.92, c.u * 55, "#fff0c0", 0.9)
    c.circle(c.w * 0.5, river * 0.84, c.u * 6, "#fff6d8")
    c.skyline(river, c.u * 20, "#b5808a", None, 0, 5, 10)
    for x, height in ((0.3, 34), (0.72, 28)):
        tower(c, c.w * x, river, c.u * height, "#946a80")
    c.mist(river - c.u * 5, c.u * 18, "#ffe6bd", 0.6)
    c.rect(-2, river, c.w + 4, c.h - river + 4, c.down("#f0b088", "#a2708a", "#3a3f68", "#141a38", top=river))
    c.glitter(c.w * 0.5, river, c.h, c.u * 16, "#fff0c4", 120)
    for level, size, color, edge in ((0.655, 8, "#8f5f78", "#c78b88"), (0.74, 13, "#5d456c", "#9b6f80"), (0.87, 21, "#2a2548", "#6a5074")):
        arches(c, c.h * level, c.u * size, color, edge)
    for side, color in ((0, "#1d1b38"), (1, "#1d1b38")):
        x = -c.u * 2 if side == 0 else c.w - c.u * 14
        c.rect(x, river - c.u * 22, c.u * 16, c.h, color)
        c.windows(x, river - c.u * 22, c.u * 16, c.h * 0.5, WARM, 0.35, 2.6)
        c.polygon([(x - c.u, river - c.u * 22), (x + c.u * 8, river - c.u * 30), (x + c.u * 17, river - c.u * 22)], "#3a2440")
    c.vignette(0.5, "#140f22")


def tower(c, x, base, height, color):
    c.rect(x - height * 0.07, base - height * 0.8, height * 0.14, height * 0.8, color)
    c.ellipse(x, base - height * 0.8, height * 0.1, height * 0.09, color)
    c.line([(x, base - height * 0.85), (x, base - height)], color, c.u * 0.4)


def arches(c, base, size, color, edge):
    span = size * 2.4
    first = -span * c.random.random()
    d = f"M-4 {base - size:.1f} Q{c.w / 2:.1f} {base - size * 1.25:.1f} {c.w + 4:.1f} {base - size:.1f} L{c.w + 4:.1f} {base:.1f}"
    x = first + span * (int((c.w - first) / span) + 1)
    while x > first - span:
        d += f" L{x:.1f} {base:.1f} A{span * 0.41:.1f} {size * 0.78:.1f} 0 0 0 {x - span * 0.82:.1f} {base:.1f} L{x - span:.1f} {base:.1f}"
        x -= span
    c.path(d + " L-4 " + f"{base:.1f} Z", c.down(edge, color, top=base - size * 1.1, bottom=base))
    x = first
    while x < c.w:
        c.line([(x, base - size * 1.08), (x, base - size * 1.45)], color, c.u * 0.25)
        c.glow(x, base - size * 1.48, size * 0.5, "#ffdf98", 0.9)
        x += span


def moons(c):
    c.fill(c.down("#0d0b2e", "#2a1a5e", "#5b2f86", "#b2578f", "#f0a08a", bottom=c.h * 0.82))
    c.stars(140, c.h * 0.6)
    spots = ((0.66, 0.25, 15, "#ffe3c4", "#d79a8a"), (0.24, 0.17, 6.5, "#c6e7ff", "#7f9fd0"), (0.15, 0.42, 9, "#ffc3d8", "#b86f9e"), (0.44, 0.4, 3.6, "#fff4d0", "#d0a86f"),
             (0.88, 0.5, 5.5, "#d8ccff", "#8f78c9"), (0.4, 0.09, 2.6, "#ffffff", "#a9b8e0"), (0.58, 0.52, 2.4, "#ffe6b0", "#c98f60"))
    for x, y, size, light, shade in spots:
        c.moon(c.w * x, c.h * y, c.u * size, light, shade)
    c.land(c.ridge(c.h * 0.7, c.u * 9, 0.5), c.down("#6b3a86", "#8a4a86", top=c.h * 0.6, bottom=c.h * 0.85))
    c.mist(c.h * 0.74, c.u * 18, "#ffb9a0", 0.45)
    c.land(c.ridge(c.h * 0.79, c.u * 8, 0.52), c.down("#3a2163", "#4c2766", top=c.h * 0.7, bottom=c.h * 0.95))
    line = c.waves(c.h * 0.9, c.u * 5, 0.5, 0.55)
    c.land(line, c.down("#1d1140", "#0c0720", top=c.h * 0.84))
    x, y = line[40]
    person(c, x, y + c.u, c.u * 11, "#0c0720", True)
    c.glow(x + c.u * 2.8, y - c.u * 10, c.u * 8, "#ffe29a", 0.9)
    c.circle(x + c.u * 2.8, y - c.u * 9.8, c.u * 0.7, "#fff6d0")
    c.vignette(0.5)


def station(c, night=True, snow=170, thaw=False):
    sky = ("#0c1830", "#1c3a5e", "#4a7591", "#b9c9cf") if night else ("#3f7fb0", "#8fbfd6", "#ffe0bd", "#ffc9a0") if thaw else ("#4d6483", "#8ba3b9", "#c4d0d8", "#e8ecee")
    c.fill(c.down(*sky, bottom=c.h * 0.7))
    if night:
        c.stars(110, c.h * 0.5)
    if thaw:
        c.glow(c.w * 0.25, c.h * 0.5, c.u * 50, "#fff2d0", 0.9)
        c.circle(c.w * 0.25, c.h * 0.46, c.u * 6, "#fffaf0")
    c.land(c.ridge(c.h * 0.58, c.u * 14, 0.52), c.down("#6f93ad", "#c5d8e2", top=c.h * 0.42, bottom=c.h * 0.72))
    c.land(c.ridge(c.h * 0.66, c.u * 8, 0.5), c.down("#3f6784", "#9bb9ca", top=c.h * 0.56, bottom=c.h * 0.76))
    c.mist(c.h * 0.68, c.u * 16, "#e6f1f6", 0.6)
    c.land(c.waves(c.h * 0.76, c.u * 2, 0.6, 0.1), c.down("#dcecf4", "#8fb2c9", "#3f6584", top=c.h * 0.74))
    if thaw:
        c.land(c.waves(c.h * 0.86, c.u * 1.2, 0.8, 0.4), c.down("#2f86a8", "#134f78", top=c.h * 0.86))
        for _ in range(16):
            x, y = c.w * c.random.random(), c.h * c.random.uniform(0.88, 0.98)
            c.ellipse(x, y + c.u * 0.5, c.u * 5, c.u * 1.1, "#0d3f63", 0.6)
            c.ellipse(x, y, c.u * 5, c.u * 1.1, "#f2fbff", 0.95)
    x, base, size = c.w * 0.5, c.h * 0.79, c.u * 24
    mast = x + size * 0.55
    for side in (-1, 1):
        c.line([(mast + side * size * 0.12, base), (mast, base - size * 1.75)], "#22384c", c.u * 0.4)
    for i in range(8):
        y, half = base - size * 0.2 * i, size * 0.12 * (1 - i / 8.75)
        c.line([(mast - half, y), (mast + half * 0.9, y - size * 0.2)], "#22384c", c.u * 0.22)
    c.glow(mast, base - size * 1.78, size * 0.5, "#ff4d4d", 1)
    c.circle(mast, base - size * 1.78, c.u * 0.6, "#ffd0c8")
    c.rect(x - size * 0.7, base - size * 0.36, size * 1.1, size * 0.36, c.down("#b5403c", "#6b222c", top=base - size * 0.36, bottom=base))
    c.polygon([(x - size * 0.78, base - size * 0.36), (x - size * 0.6, base - size * 0.56), (x + size * 0.3, base - size * 0.56), (x + size * 0.48, base - size * 0.36)], "#f4fafc")
    c.circle(x - size * 0.34, base - size * 0.6, size * 0.17, c.round(x - size * 0.4, base - size * 0.66, size * 0.26, "#ffffff", "#9db9c9"))
    for i in range(5):
        c.rect(x - size * 0.6 + i * size * 0.2, base - size * 0.26, size * 0.11, size * 0.11, "#ffd98a" if night or i % 2 else "#3a5064")
    if night:
        c.glow(x - size * 0.15, base - size * 0.2, size * 1.1, "#ffbf66", 0.45)
        c.ellipse(x - size * 0.15, base + size * 0.06, size * 0.7, size * 0.09, "#ffd590", 0.4, c.u)
    c.snow(snow)
    c.vignette(0.5, "#0a1626")


def windows(c, wall=("#1a2140", "#0c1024"), lit=0.24, special=True, blackout=False):
    c.fill(c.down("#0b1030", "#1d2a58", "#4a3a68"))
    c.stars(50, c.h * 0.3)
    left, top, width = c.w * 0.12, c.h * 0.1, c.w * 0.76
    c.skyline(c.h, c.h * 0.7, "#141a3a", ("#6f7fb8",), 0.08, 8, 14)
    c.mist(c.h * 0.7, c.h * 0.5, "#5a4a80", 0.3)
    c.rect(left, top, width, c.h, c.down(*wall, top=top))
    c.rect(left - c.u * 1.5, top - c.u * 1.6, width + c.u * 3, c.u * 3, "#2b345f")
    columns = max(int(width / (c.u * 15)), 3)
    step, rows = width / columns, int(c.h / (c.u * 20)) + 1
    chosen = (rows // 2, columns // 2)
    for row in range(rows):
        for column in range(columns):
            x, y, w, h = left + step * (column + 0.22), top + c.u * (6 + 20 * row), step * 0.56, c.u * 13
            on = (row, column) == chosen if blackout else c.random.random() < lit or (special and (row, column) == chosen)
            pane(c, x, y, w, h, on, special and (row, column) == chosen)
    for x in (left + width * 0.02, left + width * 0.98):
        c.line([(x, top + c.u * 2), (x, c.h + 4)], "#080b1c", c.u * 0.5)
    c.rain(70, "#c8d4ff", 0.16)
    c.vignette(0.65)


def pane(c, x, y, w, h, on, special):
    if on:
        c.glow(x + w / 2, y + h / 2, h * (1.7 if special else 1.1), "#ff9f4a" if special else "#ffc878", 0.5)
    light = ("#fff2c0", "#ff9a4d") if special else ("#ffe3a0", "#e09a52")
    c.rect(x - c.u * 0.6, y - c.u * 0.6, w + c.u * 1.2, h + c.u * 1.2, "#2b345f")
    c.rect(x, y, w, h, c.down(*light, top=y, bottom=y + h) if on else c.down("#1a2452", "#0e1533", top=y, bottom=y + h))
    if special:
        c.circle(x + w * 0.55, y + h * 0.42, h * 0.11, "#2a1226")
        c.path(f"M{x + w * 0.55 - h * 0.2:.1f} {y + h:.1f} Q{x + w * 0.55:.1f} {y + h * 0.3:.1f} {x + w * 0.55 + h * 0.2:.1f} {y + h:.1f} Z", "#2a1226")
    elif on and c.random.random() < 0.5:
        c.rect(x, y, w * 0.22, h, "#a85a4a", 0.7)
        c.rect(x + w * 0.78, y, w * 0.22, h, "#a85a4a", 0.7)
    c.rect(x + w * 0.48, y, w * 0.04, h, "#1a2140")
    c.rect(x, y + h * 0.36, w, h * 0.03, "#1a2140")
    c.rect(x - c.u, y + h + c.u * 0.6, w + c.u * 2, c.u * 0.9, "#3a457a")


def valley(c, sky=("#1f5f7a", "#7fc0b8", "#fbe9bd", "#ffd79a"), birds=True):
    c.fill(c.down(*sky, bottom=c.h * 0.6))
    c.glow(c.w * 0.62, c.h * 0.42, c.u * 55, "#fff6d8", 0.85)
    c.circle(c.w * 0.62, c.h * 0.38, c.u * 5, "#fffbe8")
    for i, (level, rise) in enumerate(((0.44, 13), (0.5, 11), (0.57, 9))):
        c.land(c.ridge(c.h * level, c.u * rise, 0.5, tilt=(-0.8, 0.8, -0.5)[i]), c.down(("#8dbfb5", "#5a9d90", "#3a7f70")[i], ("#bcd9c0", "#8fc0a0", "#66a585")[i], top=c.h * (level - 0.14), bottom=c.h * (level + 0.16)))
        c.mist(c.h * (level + 0.1), c.u * 14, "#fff5d6", 0.5)
    c.land(c.waves(c.h * 0.68, c.u * 2, 0.5, 0.3), c.down("#5fa56a", "#2f7550", "#123f34", top=c.h * 0.64))
    bends = [(0.6, 0.66, 0.6), (0.5, 0.7, 1.4), (0.6, 0.76, 3), (0.42, 0.84, 6), (0.52, 0.94, 11), (0.36, 1.06, 18)]
    for side_color, grow in (("#d9f3e8", 1.12), (None, 1.0)):
        left = [(c.w * x - c.u * half * grow, c.h * y) for x, y, half in bends]
        right = [(c.w * x + c.u * half * grow, c.h * y) for x, y, half in bends]
        c.path(smooth(left, right), side_color or c.down("#fff0c8", "#8fd0cf", "#2f7f96", top=c.h * 0.66, bottom=c.h))
    c.forest([(x, y) for x, y in c.waves(c.h * 0.72, c.u * 2, 0.5, 0.3) if not c.w * 0.38 < x < c.w * 0.7], c.u * 9, "#1f5f48", 2)
    for x, size in ((0.03, 34), (0.13, 24), (0.95, 38), (0.84, 26), (0.77, 16)):
        c.pine(c.w * x, c.h * 1.0, c.u * size, "#0a2c27")
    if birds:
        for x, y, size in ((0.3, 0.2, 4), (0.38, 0.17, 3), (0.44, 0.23, 2.6), (0.24, 0.27, 2.6)):
            bird(c, c.w * x, c.h * y, c.u * size)
    c.vignette(0.4, "#08211f")


def smooth(left, right):
    def curve(points):
        text = ""
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            middle = (y1 + y2) / 2
            text += f" C{x1:.1f} {middle:.1f} {x2:.1f} {middle:.1f} {x2:.1f} {y2:.1f}"
        return text
    back = right[::-1]
    return f"M{left[0][0]:.1f} {left[0][1]:.1f}{curve(left)} L{back[0][0]:.1f} {back[0][1]:.1f}{curve(back)} Z"


def bird(c, x, y, size):
    c.path(f"M{x - size:.1f} {y - size * 0.3:.1f} Q{x - size * 0.4:.1f} {y - size * 0.5:.1f} {x:.1f} {y:.1f} Q{x + size * 0.4:.1f} {y - size * 0.6:.1f} {x + size:.1f} {y - size * 0.4:.1f}", stroke="#17443f", width=c.u * 0.45)


def balloon(c, sky=("#3b6fc4", "#86b8ee", "#ffe3c0", "#ffc7b0"), place="roofs"):
    c.fill(c.down(*sky, bottom=c.h * 0.85))
    c.glow(c.w * 0.2, c.h * 0.75, c.u * 55, "#fff2d0", 0.8)
    for x, y, size in ((0.1, 0.16, 15), (0.86, 0.1, 12), (0.9, 0.46, 18), (0.08, 0.56, 17), (0.5, 0.7, 20)):
        c.cloud(c.w * x, c.h * y, c.u * size, "#ffffff", 0.75, 11, 0.5, 0.7)
    for x, y, size, colors in ((0.82, 0.3, 6.5, ("#6c5ce7", "#a29bfe")), (0.2, 0.4, 4.5, ("#00a08a", "#7fe0c8"))):
        envelope(c, c.w * x, c.h * y, c.u * size, colors)
    if place == "roofs":
        roofs(c)
    else:
        island(c)
    envelope(c, c.w * 0.5, c.h * 0.34, min(c.u * 20, c.h * 0.22), ("#e84a5f", "#ffb84c", "#e84a5f", "#fff0d0"))
    c.vignette(0.3, "#1a2350")


def envelope(c, x, y, r, colors):
    bottom = y + r * 1.3
    for side in (-1, 1):
        c.line([(x + side * r * 0.34, y + r * 0.98), (x + side * r * 0.14, bottom + r * 0.3)], "#5a3a2a", c.u * 0.2)
    stripes = 7
    for i in range(stripes):
        a, b = -1 + 2 * i / stripes, -1 + 2 * (i + 1) / stripes
        def edge(k):
            bulge = math.sin(k * math.pi / 2)
            return bulge * r, k * r * 0.3
        (ax, an), (bx, bn) = edge(a), edge(b)
        c.path(f"M{x:.1f} {y - r:.1f} C{x + ax * 1.33:.1f} {y - r:.1f} {x + ax * 1.33:.1f} {y + r * 0.35:.1f} {x + an:.1f} {y + r:.1f} "
               f"L{x + bn:.1f} {y + r:.1f} C{x + bx * 1.33:.1f} {y + r * 0.35:.1f} {x + bx * 1.33:.1f} {y - r:.1f} {x:.1f} {y - r:.1f} Z", colors[i % len(colors)])
    c.path(f"M{x:.1f} {y - r:.1f} C{x + r * 1.33:.1f} {y - r:.1f} {x + r * 1.33:.1f} {y + r * 0.35:.1f} {x + r * 0.3:.1f} {y + r:.1f} L{x - r * 0.3:.1f} {y + r:.1f} "
           f"C{x - r * 1.33:.1f} {y + r * 0.35:.1f} {x - r * 1.33:.1f} {y - r:.1f} {x:.1f} {y - r:.1f} Z",
           c.round(x - r * 0.4, y - r * 0.45, r * 1.7, ("#ffffff", 0.45), ("#ffffff", 0, 0.35), ("#2a0f3a", 0.5)))
    c.rect(x - r * 0.17, bottom + r * 0.22, r * 0.34, r * 0.26, c.down("#b5773f", "#6b3f22", top=bottom + r * 0.2, bottom=bottom + r * 0.5), radius=r * 0.05)
    if r > c.u * 10:
        for side, color in ((-1, "#2f6fb0"), (1, "#3a9a5f")):
            c.circle(x + side * r * 0.07, bottom + r * 0.1, r * 0.055, "#f6cfa8")
            c.rect(x + side * r * 0.07 - r * 0.05, bottom + r * 0.14, r * 0.1, r * 0.1, color, radius=r * 0.03)


def roofs(c):
    for level, colors in ((0.84, ("#b88aa0", "#c79aa0")), (0.92, ("#9c5a6a", "#b56a60")), (1.0, ("#6b3550", "#8a4350"))):
        x = -c.u * 5
        while x < c.w:
            width = c.u * c.random.uniform(10, 17)
            top = c.h * level - c.u * c.random.uniform(4, 10)
            c.rect(x + width * 0.08, top, width * 0.84, c.h, "#f0d6b8" if level < 0.9 else "#d9b090" if level < 1 else "#a87a70")
            c.polygon([(x, top), (x + width * 0.5, top - width * 0.5), (x + width, top)], c.random.choice(colors))
            c.rect(x + width * 0.68, top - width * 0.42, width * 0.1, width * 0.3, colors[0])
            c.windows(x, top, width, c.u * 9, ("#ffe6a0", "#6b5a80"), 0.8, 3)
            x += width * 0.96


def island(c):
    sea = c.h * 0.82
    c.rect(-2, sea, c.w + 4, c.h, c.down("#7fc4d6", "#2f7fa8", "#174a78", top=sea))
    c.glitter(c.w * 0.2, sea, c.h, c.u * 20, "#fff6d8", 70)
    c.path(f"M{c.w * 0.52:.1f} {sea + c.u * 3:.1f} Q{c.w * 0.66:.1f} {sea - c.u * 16:.1f} {c.w * 0.8:.1f} {sea - c.u * 14:.1f} Q{c.w * 0.95:.1f} {sea - c.u * 10:.1f} {c.w + 4:.1f} {sea + c.u * 3:.1f} Z",
           c.down("#7fc07a", "#2f7f68", top=sea - c.u * 14, bottom=sea + c.u * 3))
    for x, base, height in ((0.7, -10, 22), (0.8, -12, 30), (0.91, -8, 19)):
        px, py, size = c.w * x, sea + c.u * base, c.u * height
        c.rect(px - size * 0.14, py - size * 0.7, size * 0.28, size * 0.8, c.along(px - size * 0.14, py, px + size * 0.14, py, "#fff0d8", "#d0a088"))
        c.polygon([(px - size * 0.19, py - size * 0.7), (px, py - size), (px + size * 0.19, py - size * 0.7)], "#c9505f")
        c.circle(px, py - size * 0.52, size * 0.1, "#fffdf5")
        c.line([(px - size * 0.06, py - size * 0.52), (px, py - size * 0.52), (px + size * 0.01, py - size * 0.6)], "#3a2a4a", c.u * 0.25)


def canopy(c):
    c.fill(c.down("#d9f0a8", "#7fb85f", "#2f7547", "#0d3526"))
    c.glow(c.w * 0.55, c.h * 0.2, c.u * 60, "#fffbd0", 0.9)
    for depth, color in ((0, "#6fa565"), (1, "#3f7f50"), (2, "#1c553c"), (3, "#0a2f26")):
        for _ in range(7 - depth):
            x, half = c.w * c.random.random(), c.u * (1 + 1.3 * depth) * c.random.uniform(0.7, 1.2)
            c.polygon([(x - half, c.h * 1.02), (x - half * 0.6, -4), (x + half * 0.6, -4), (x + half, c.h * 1.02)], color, 0.95, blur=c.u * (0.6 - 0.2 * min(depth, 3)))
        c.mist(c.h * 0.7, c.h * 0.6, "#eaffb8", 0.16)
        if depth == 1:
            c.rays(c.w * 0.6, -c.h * 0.2, c.h * 1.4, 8, "#ffffd8", 0.55, 60, 125, 4)
        for _ in range(30):
            c.ellipse(c.w * c.random.random(), c.h * c.random.uniform(-0.05, 0.22), c.u * c.random.uniform(4, 9), c.u * c.random.uniform(2, 4), color, 0.7, c.u * 0.7)
    for _ in range(90):
        x, y = c.w * c.random.random(), c.h * c.random.uniform(0.86, 1.02)
        c.line([(x, y + c.u * 4), (x + c.u * c.random.uniform(-3, 3), y - c.u * 3)], c.random.choice(("#0d3a2a", "#1f5f3f", "#2f7f4a")), c.u * 0.5)
    for _ in range(36):
        c.circle(c.w * c.random.random(), c.h * c.random.uniform(0.3, 0.9), c.u * c.random.uniform(0.15, 0.4), "#fffbc0", 0.8)
    c.vignette(0.5, "#04170f")
