# SPDX-License-Identifier: MIT
"""The pictures of the films and series, each for any size of canvas."""

import math

WARM = ("#ffd98a", "#ffc15e", "#fff0c2", "#ff9f5a")


def ferry(c):
    sea = c.h * 0.6
    c.fill(c.down("#141a3c", "#3b2a63", "#a34a72", "#f08a5d", "#ffd08a", bottom=sea))
    c.stars(70, sea * 0.5)
    sun = c.w * 0.66
    c.glow(sun, sea, c.u * 48, "#ffdca0", 0.9)
    c.circle(sun, sea - c.u * 2, c.u * 8, c.down("#fff6d8", "#ffc97a", top=sea - c.u * 10, bottom=sea))
    for i, (level, color) in enumerate(((0.3, "#54356f"), (0.4, "#8a4573"), (0.5, "#d0706a"))):
        for _ in range(3):
            c.cloud(c.random.uniform(0, c.w), c.h * level, c.u * (26 - 5 * i), color, 0.55, flat=0.16, blur=1.4)
    c.land(c.ridge(sea - c.u * 2, c.u * 4, 0.5, tilt=-0.7), "#4a2f5f", 0.85)
    c.rect(-2, sea, c.w + 4, c.h - sea + 4, c.down("#c4685f", "#5f356a", "#1d1b42", "#0b0d25", top=sea))
    c.glitter(sun, sea + c.u, c.h, c.u * 20, "#ffe0a6", 130)
    boat(c, c.w * 0.4, sea + c.u * 9, c.u * 34)
    c.vignette(0.6)


def boat(c, x, y, length):
    def at(*points):
        return [(x + px * length, y + py * length) for px, py in points]
    dark, dim = "#120f2b", "#241b45"
    c.ellipse(x, y + length * 0.1, length * 0.62, length * 0.035, "#080818", 0.7, blur=c.u * 0.6)
    c.polygon(at((-0.46, -0.23), (0.3, -0.23), (0.36, -0.12), (-0.46, -0.12)), dim)
    c.polygon(at((-0.36, -0.33), (0.17, -0.33), (0.23, -0.23), (-0.36, -0.23)), dark)
    c.polygon(at((-0.16, -0.47), (-0.04, -0.47), (-0.02, -0.33), (-0.16, -0.33)), "#8c3a52")
    c.polygon(at((-0.52, -0.12), (0.55, -0.12), (0.44, 0.09), (-0.46, 0.09)), dark)
    for i in range(13):
        c.rect(x + (-0.42 + 0.055 * i) * length, y - 0.195 * length, length * 0.032, length * 0.034, "#ffdf94", 0.95)
    for i in range(8):
        c.rect(x + (-0.32 + 0.06 * i) * length, y - 0.3 * length, length * 0.03, length * 0.03, "#fff0c8", 0.9)
    c.glow(x + 0.1 * length, y - 0.2 * length, length * 0.6, "#ffcf7a", 0.25)
    for i in range(26):
        c.ellipse(x + c.random.uniform(-0.42, 0.42) * length, y + c.random.uniform(0.12, 0.42) * length,
                  length * 0.03, c.u * 0.12, "#ffd98a", c.random.uniform(0.2, 0.7))


def peaks(c):
    c.fill(c.down("#0f2a4f", "#2f6690", "#86b6c9", "#f6dcb8", "#ffc89a", bottom=c.h * 0.75))
    c.glow(c.w * 0.22, c.h * 0.4, c.u * 55, "#fff0cf", 0.85)
    c.circle(c.w * 0.22, c.h * 0.4, c.u * 5.5, "#fff8e6")
    layers = ((0.44, 9, "#7fa3b8", "#c7cfd0"), (0.5, 13, "#4f7f9c", "#9dbac4"), (0.6, 20, "#244f74", "#5b8aa3"))
    for level, rise, top, foot in layers:
        c.land(c.ridge(c.h * level, c.u * rise, 0.53), c.down(top, foot, top=c.h * (level - 0.2), bottom=c.h * 0.86))
        c.mist(c.h * (level + 0.14), c.h * 0.2, "#fbe9d6", 0.55)
    summit(c, c.w * 0.66, c.h * 0.26, c.h * 0.62)
    for i in range(22):
        depth = i / 22
        c.cloud(c.random.uniform(-0.1, 1.1) * c.w, c.h * (0.72 + 0.26 * depth), c.u * (16 + 16 * depth),
                "#fff4e8" if i % 3 else "#e9c9bd", 0.62, flat=0.34, blur=1.6)
    c.vignette(0.42, "#0a1c38")


def summit(c, x, top, height):
    half = height * 0.72
    c.polygon([(x, top), (x + half * 0.3, top + height * 0.3), (x + half * 0.46, top + height * 0.36),
               (x + half, top + height), (x - half, top + height), (x - half * 0.5, top + height * 0.52),
               (x - half * 0.28, top + height * 0.33)], c.down("#16395d", "#41708f", top=top, bottom=top + height))
    c.polygon([(x, top), (x + half * 0.05, top + height * 0.3), (x - half * 0.12, top + height * 0.55),
               (x - half * 0.2, top + height), (x - half, top + height), (x - half * 0.5, top + height * 0.52),
               (x - half * 0.28, top + height * 0.33)],
              c.down("#ffdcb0", "#c98f86", "#6d7d96", top=top, bottom=top + height), 0.9)
    c.polygon([(x, top), (x + half * 0.2, top + height * 0.2), (x + half * 0.1, top + height * 0.18),
               (x + half * 0.07, top + height * 0.3), (x - half * 0.03, top + height * 0.2),
               (x - half * 0.14, top + height * 0.27), (x - half * 0.2, top + height * 0.24)], "#fffaf0", 0.95)


def tram(c):
    road = c.h * 0.74
    c.fill(c.down("#060b1f", "#10234a", "#234a73", "#5f6b8f", bottom=road))
    c.stars(60, c.h * 0.3)
    c.moon(c.w * 0.76, c.h * 0.15, c.u * 4.6, "#e9f1ff", "#9fb2d0")
    c.skyline(road, c.h * 0.42, "#17315a", ("#7fa8d6",), 0.12, 6, 12)
    c.mist(road - c.u * 8, c.u * 30, "#7c9cc4", 0.35)
    c.skyline(road, c.h * 0.29, "#0b1a36", WARM, 0.3, 9, 16)
    c.rect(-2, road, c.w + 4, c.h - road + 4, c.down("#1c2c4c", "#0a1122", "#04070f", top=road))
    x, y, size = c.w * 0.5, road + c.u * 5, c.u * 21
    c.glow(x, y - size * 0.5, size * 2.6, "#ffb45e", 0.5)
    for side in (-1, 1):
        c.line([(x + side * size * 0.24, y), (x + side * size * 1.1, c.h + 4)], "#8fa6c8", c.u * 0.5, 0.55)
        c.line([(x + side * size * 0.24, y), (x + side * size * 1.1, c.h + 4)], "#ffc980", c.u * 0.2, 0.8)
    c.line([(x, y - size * 1.28), (x - size * 0.2, y - size * 1.5), (x + size * 0.12, y - size * 1.7)], "#04070f", c.u * 0.4)
    c.line([(-4, y - size * 1.62), (x, y - size * 1.7), (c.w + 4, y - size * 1.58)], "#04070f", c.u * 0.25, 0.9)
    c.rect(x - size * 0.52, y - size * 1.28, size * 1.04, size * 1.26, c.down("#c2413f", "#7d2438", top=y - size * 1.28, bottom=y), radius=size * 0.13)
    c.rect(x - size * 0.43, y - size * 1.16, size * 0.86, size * 0.16, "#0e1426", radius=size * 0.04)
    c.rect(x - size * 0.2, y - size * 1.12, size * 0.4, size * 0.08, "#ffc873", radius=size * 0.03)
    c.rect(x - size * 0.43, y - size * 0.96, size * 0.86, size * 0.47, c.down("#fff2c8", "#ffb964", top=y - size, bottom=y - size * 0.5), radius=size * 0.06)
    c.rect(x - size * 0.02, y - size * 0.96, size * 0.04, size * 0.47, "#7d2438")
    c.circle(x + size * 0.17, y - size * 0.66, size * 0.08, "#3a1c2b")
    c.rect(x + size * 0.06, y - size * 0.6, size * 0.22, size * 0.12, "#3a1c2b", radius=size * 0.06)
    for side in (-1, 1):
        c.glow(x + side * size * 0.34, y - size * 0.24, size * 0.7, "#fff1c4", 0.9)
        c.circle(x + side * size * 0.34, y - size * 0.24, size * 0.075, "#fffdf2")
    c.rect(x - size * 0.56, y - size * 0.1, size * 1.12, size * 0.12, "#070b18", radius=size * 0.04)
    c.glitter(x, y + c.u * 2, c.h, size * 0.8, "#ffcf86", 90, 0.5)
    c.rain(60, "#cfe0ff", 0.14)
    c.vignette(0.7)


def dunes(c):
    c.fill(c.down("#3a2a5d", "#a3526b", "#f0905f", "#ffd39a", bottom=c.h * 0.6))
    x, y = c.w * 0.36, c.h * 0.38
    c.glow(x, y, c.u * 50, "#fff0c0", 0.75)
    c.circle(x, y, c.u * 10, c.down("#fffbe0", "#ffd184", top=y - c.u * 10, bottom=y + c.u * 10))
    c.land(c.waves(c.h * 0.5, c.u * 2.4, 1.1, 0.3), c.down("#d9805f", "#c06a5b", top=c.h * 0.45, bottom=c.h * 0.6))
    c.mist(c.h * 0.51, c.u * 12, "#ffdca8", 0.5)
    dune(c, 0.56, 5.5, 0.8, 0.1, "#f0a468", "#8f4457")
    crest = c.waves(c.h * 0.64, c.u * 6, 0.75, 0.62)
    dune(c, 0.64, 6, 0.75, 0.62, "#e28a55", "#6d3350")
    for i in range(6):
        at = crest[int(len(crest) * (0.42 + 0.065 * i))]
        camel(c, at[0], at[1] + c.u * 0.3, c.u * 3.6)
    dune(c, 0.79, 7, 0.6, 0.33, "#bb5f4c", "#3b1f42")
    dune(c, 0.95, 6, 0.7, 0.95, "#6b3149", "#1f1330")
    c.vignette(0.5, "#1a0d22")


def dune(c, level, rise, count, phase, light, dark):
    line = c.waves(c.h * level, c.u * rise, count, phase)
    c.land(line, c.down(light, dark, top=c.h * level - c.u * rise, bottom=c.h * (level + 0.3)))
    c.line(line, "#fff0cf", c.u * 0.22, 0.35)


def camel(c, x, y, size):
    color = "#2b1630"
    for leg in (-0.32, -0.2, 0.16, 0.3):
        c.line([(x + leg * size, y - 0.5 * size), (x + leg * size * 1.08, y)], color, size * 0.08)
    c.ellipse(x, y - 0.62 * size, size * 0.42, size * 0.2, color)
    c.ellipse(x - 0.02 * size, y - 0.82 * size, size * 0.16, size * 0.17, color)
    c.line([(x + 0.34 * size, y - 0.64 * size), (x + 0.52 * size, y - 0.68 * size), (x + 0.56 * size, y - 0.98 * size),
            (x + 0.7 * size, y - 0.95 * size)], color, size * 0.11)


def aurora(c):
    c.fill(c.down("#040a1e", "#08233b", "#0d4a52", "#1c6a62", bottom=c.h * 0.75))
    c.stars(170, c.h * 0.7)
    for i, (color, x, lean) in enumerate((("#3dffb0", 0.2, 0.3), ("#7dffd0", 0.5, -0.2), ("#58e0ff", 0.72, 0.25), ("#b18cff", 0.36, 0.1))):
        ribbon = [(c.w * (x + lean * math.sin(k * 0.5 + i * 1.9) * 0.7 + (k - 6) * 0.075), c.h * (0.36 + 0.07 * math.sin(k * 0.8 + i)))
                  for k in range(13)]
        for (x1, y1), (x2, y2) in zip(ribbon, ribbon[1:]):
            height = c.h * c.random.uniform(0.24, 0.38)
            c.polygon([(x1, y1), (x2 + 1, y2), (x2 + 1 + c.u * 3, y2 - height), (x1 + c.u * 3, y1 - height)],
                      c.down((color, 0), (color, 0.34), (color, 0.05), top=y1 - height, bottom=y1 + c.u * 2), blur=c.u * 1.1)
        c.line(ribbon, color, c.u * 0.9, 0.55, blur=c.u * 1.3)
    c.land(c.ridge(c.h * 0.66, c.u * 9, 0.5), c.down("#0b3140", "#123f47", top=c.h * 0.55, bottom=c.h * 0.8))
    c.forest(c.ridge(c.h * 0.74, c.u * 2, 0.5, 5), c.u * 13, "#06202b", 1)
    ground = c.waves(c.h * 0.78, c.u * 1.6, 0.7, 0.2)
    c.land(ground, c.down("#9fe0d8", "#3a7f8d", "#113445", top=c.h * 0.76))
    cabin(c, c.w * 0.56, c.h * 0.815, c.u * 17)
    for x, size in ((0.06, 30), (0.17, 22), (0.9, 33), (0.8, 20)):
        c.pine(c.w * x, c.h * 0.93, c.u * size, "#03121b")
    c.vignette(0.6)


def cabin(c, x, y, size):
    c.glow(x, y - size * 0.2, size * 1.4, "#ffb84f", 0.5)
    c.rect(x - size * 0.4, y - size * 0.42, size * 0.8, size * 0.42, "#0d1a24")
    c.polygon([(x - size * 0.55, y - size * 0.38), (x, y - size * 0.8), (x + size * 0.55, y - size * 0.38)], "#d6f3f0")
    c.polygon([(x - size * 0.46, y - size * 0.36), (x, y - size * 0.7), (x + size * 0.46, y - size * 0.36)], "#132733")
    c.rect(x - size * 0.28, y - size * 0.32, size * 0.2, size * 0.18, "#ffd27a")
    c.rect(x + size * 0.08, y - size * 0.34, size * 0.16, size * 0.34, "#ffb252")
    c.ellipse(x, y + size * 0.04, size * 0.6, size * 0.08, "#ffcf80", 0.35, blur=c.u)
    for i in range(5):
        c.circle(x + size * (0.3 + 0.05 * i), y - size * (0.78 + 0.14 * i), size * (0.05 + 0.025 * i), "#cfeee8", 0.28 - 0.04 * i, blur=c.u * 0.6)


def orbit(c):
    c.fill(c.round(c.w * 0.4, c.h * 0.3, c.w + c.h, "#1b2450", "#0a0f2b", "#04060f"))
    c.ellipse(c.w * 0.75, c.h * 0.2, c.u * 50, c.u * 22, "#5a2f7a", 0.4, c.u * 9, -30)
    c.ellipse(c.w * 0.25, c.h * 0.38, c.u * 40, c.u * 16, "#1f5f8f", 0.35, c.u * 8, -25)
    c.stars(240, c.h * 1.3, largest=0.26)
    x, y, r = c.w * 0.5, c.h * 0.62 + c.u * 64, c.u * 78
    c.glow(x, y, r * 1.35, "#5fc8ff", 0.9)
    c.circle(x, y, r, c.round(x - r * 0.35, y - r * 0.75, r * 1.3, "#bff0ff", "#3b9fd6", "#12467f", "#061430"))
    for _ in range(16):
        angle = math.radians(c.random.uniform(215, 325))
        reach = r * c.random.uniform(0.7, 0.93)
        c.ellipse(x + reach * math.cos(angle), y + reach * math.sin(angle), c.u * c.random.uniform(5, 14), c.u * c.random.uniform(0.6, 1.6),
                  "#ffffff", 0.4, c.u * 0.6, math.degrees(angle) + 90)
    c.path(f"M{x - r:.1f} {y:.1f} A{r:.1f} {r:.1f} 0 0 1 {x + r:.1f} {y:.1f}", stroke="#d8f7ff", width=c.u * 0.5, opacity=0.85, blur=c.u * 0.3)
    c.glow(c.w * 0.86, c.h * 0.5, c.u * 26, "#fff1d0", 0.95)
    station_in_space(c, c.w * 0.42, c.h * 0.32, c.u * 34)
    c.vignette(0.55)


def station_in_space(c, x, y, size):
    c.body.append(f'<g transform="rotate(-18 {x:.1f} {y:.1f})">')
    metal = c.down("#f4f7ff", "#9fb0cc", "#4d5c7d", top=y - size * 0.1, bottom=y + size * 0.1)
    for side in (-1, 1):
        for row in (-1, 1):
            left = x + side * size * 0.56 - size * 0.2
            c.rect(left, y + row * size * 0.19 - size * 0.13, size * 0.4, size * 0.26, c.along(left, y, left + size * 0.4, y, "#2a4fa0", "#6fa0ea", "#1d3670"))
            for i in range(1, 4):
                c.rect(left + i * size * 0.1, y + row * size * 0.19 - size * 0.13, size * 0.008, size * 0.26, "#0d1b3d", 0.8)
    c.rect(x - size * 0.75, y - size * 0.02, size * 1.5, size * 0.04, metal)
    c.rect(x - size * 0.3, y - size * 0.09, size * 0.6, size * 0.18, metal, radius=size * 0.07)
    c.rect(x - size * 0.08, y - size * 0.3, size * 0.16, size * 0.6, metal, radius=size * 0.06)
    for i in range(5):
        c.circle(x - size * 0.2 + i * size * 0.1, y, size * 0.018, "#ffd98a")
    c.body.append("</g>")


def kite(c):
    c.fill(c.down("#2d7fb8", "#78bfd8", "#ffe6b8", "#ffd0a0", bottom=c.h * 0.78))
    c.glow(c.w * 0.8, c.h * 0.66, c.u * 50, "#fff3cf", 0.9)
    for x, y, size in ((0.2, 0.2, 17), (0.85, 0.13, 13), (0.62, 0.42, 19), (0.05, 0.46, 15)):
        c.cloud(c.w * x, c.h * y, c.u * size, "#ffffff", 0.6, 12, 0.35, 0.9)
    for level, rise, count, phase, top, foot in ((0.7, 3, 0.8, 0.1, "#8cc3a5", "#5e9f8f"), (0.77, 4, 0.7, 0.55, "#5fa877", "#3a7d66"), (0.86, 5, 0.6, 0.2, "#3c8a58", "#1f5a48")):
        c.land(c.waves(c.h * level, c.u * rise, count, phase), c.down(top, foot, top=c.h * level - c.u * rise))
        c.mist(c.h * (level + 0.04), c.u * 9, "#fff3cf", 0.25)
    x, y, size = c.w * 0.64, c.h * 0.24, c.u * 17
    hand = (c.w * 0.27, c.h * 0.79)
    c.path(f"M{x:.1f} {y + size * 0.2:.1f} Q{c.w * 0.44:.1f} {c.h * 0.66:.1f} {hand[0]:.1f} {hand[1]:.1f}", stroke="#fff8e6", width=c.u * 0.25, opacity=0.9)
    tail = [(x + size * (0.16 + 0.15 * i + 0.08 * math.sin(i * 1.6)), y + size * (0.86 + 0.2 * i)) for i in range(8)]
    c.line([(x + size * 0.08, y + size * 0.8), *tail], "#c9453f", c.u * 0.3)
    for i, (tx, ty) in enumerate(tail[1:]):
        c.ellipse(tx, ty, size * 0.09, size * 0.045, ("#ffd166", "#ef5b5b", "#3a86c8")[i % 3], turn=35 * (-1) ** i)
    top, left, right, bottom = (x, y - size * 0.7), (x - size * 0.5, y - size * 0.06), (x + size * 0.52, y - size * 0.1), (x + size * 0.08, y + size * 0.82)
    centre = (x + size * 0.01, y - size * 0.08)
    for points, color in (((top, left, centre), "#ff7b54"), ((top, right, centre), "#ffd166"), ((left, bottom, centre), "#d94a4a"), ((right, bottom, centre), "#f2a541")):
        c.polygon(points, color)
    c.line([top, bottom], "#7a2b2b", c.u * 0.25, 0.7)
    c.line([left, right], "#7a2b2b", c.u * 0.25, 0.7)
    person(c, hand[0] - c.u * 1.3, c.h * 0.86, c.u * 8.5, "#173f3a", True)
    person(c, hand[0] - c.u * 7, c.h * 0.865, c.u * 11, "#102e30")
    c.vignette(0.35, "#0b2b3d")


def person(c, x, base, height, color, raised=False):
    c.circle(x, base - height * 0.88, height * 0.105, color)
    c.path(f"M{x - height * 0.13:.1f} {base - height * 0.3:.1f} Q{x - height * 0.14:.1f} {base - height * 0.76:.1f} {x:.1f} {base - height * 0.76:.1f} "
           f"Q{x + height * 0.14:.1f} {base - height * 0.76:.1f} {x + height * 0.13:.1f} {base - height * 0.3:.1f} Z", color)
    for side in (-1, 1):
        c.line([(x + side * height * 0.06, base - height * 0.34), (x + side * height * 0.08, base)], color, height * 0.1)
    if raised:
        c.line([(x + height * 0.08, base - height * 0.68), (x + height * 0.24, base - height * 0.92)], color, height * 0.07)
