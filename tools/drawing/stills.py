# SPDX-License-Identifier: MIT
"""Stills for the categories of programmes, and the marks of right holders."""

import math

from scenes import person


def news(c):
    c.fill(c.down("#061a3a", "#0c3f7a", "#0a2348"))
    x, y, r = c.w * 0.64, c.h * 0.5, c.u * 27
    c.glow(x, y, r * 2, "#3fa0ff", 0.6)
    c.circle(x, y, r, c.round(x - r * 0.4, y - r * 0.4, r * 1.5, "#5fc0ff", "#1565b8", "#072a5e"))
    for i in range(-3, 4):
        half = math.sqrt(max(1 - (i / 4) ** 2, 0)) * r
        c.path(f"M{x - half:.1f} {y + r * i / 4:.1f} Q{x:.1f} {y + r * i / 4 + r * 0.1:.1f} {x + half:.1f} {y + r * i / 4:.1f}", stroke="#bfe6ff", width=c.u * 0.22, opacity=0.6)
        c.ellipse(x, y, abs(i) * r / 3.6, r, "none", 1)
        c.path(f"M{x:.1f} {y - r:.1f} Q{x + i * r * 0.62:.1f} {y:.1f} {x:.1f} {y + r:.1f}", stroke="#bfe6ff", width=c.u * 0.22, opacity=0.6)
    for i in range(9):
        top, size = c.h * (0.1 + 0.09 * i), c.w * c.random.uniform(0.2, 0.5)
        c.rect(-4, top, size, c.u * 0.7, c.along(0, 0, size, 0, ("#5fc8ff", 0.5), ("#5fc8ff", 0)))
    c.polygon([(0, c.h * 0.86), (c.w * 0.52, c.h * 0.86), (c.w * 0.49, c.h * 0.93), (0, c.h * 0.93)], c.along(0, 0, c.w * 0.5, 0, "#d0202e", "#ff5a5f"))
    c.vignette(0.5)


def weather(c):
    c.fill(c.down("#1f6fb8", "#6fb8e8", "#dff2fa"))
    x, y = c.w * 0.62, c.h * 0.34
    c.rays(x, y, c.u * 70, 14, "#fff6c8", 0.5)
    c.glow(x, y, c.u * 40, "#fff6c8", 1)
    c.circle(x, y, c.u * 11, c.round(x - c.u * 3, y - c.u * 3, c.u * 15, "#fffbe0", "#ffc93c"))
    for px, py, size, color in ((0.22, 0.5, 24, "#ffffff"), (0.5, 0.62, 28, "#f2f8ff"), (0.84, 0.56, 24, "#e6f1fb"), (0.35, 0.8, 34, "#d3e6f5"), (0.78, 0.86, 32, "#c2dcf0")):
        for _ in range(3):
            c.cloud(c.w * px, c.h * py, c.u * size, color, 0.9, 9, 0.62, 0.5)
    c.vignette(0.25, "#0b3560")


def business(c):
    c.fill(c.down("#07202e", "#0d4550", "#0a2a36"))
    for i in range(9):
        c.line([(0, c.h * i / 8), (c.w, c.h * i / 8)], "#7fe0d0", c.u * 0.08, 0.25)
    points, level = [], 0.78
    for i in range(15):
        level -= c.random.uniform(-0.035, 0.09)
        x, top = c.w * (0.03 + 0.068 * i), c.h * max(level, 0.15)
        points.append((x, top))
        c.rect(x - c.u * 1.7, top + c.u * 8, c.u * 3.4, c.h, c.down("#3fd0b8", "#0d4550", top=top, bottom=c.h), 0.75, c.u * 0.4)
    c.line(points, "#ffd166", c.u * 1.6, 0.5, blur=c.u * 1.2)
    c.line(points, "#fff0c0", c.u * 0.6)
    for x, y in points:
        c.circle(x, y, c.u * 0.9, "#fffaf0")
    c.glow(*points[-1], c.u * 16, "#ffd166", 0.9)
    c.vignette(0.5)


def talk(c):
    c.fill(c.down("#3a1c2e", "#7a3a3f", "#2b1526"))
    for x, color in ((0.28, "#ffb35c"), (0.72, "#ff7d6b")):
        c.polygon([(c.w * x - c.u * 3, -2), (c.w * x + c.u * 3, -2), (c.w * x + c.u * 26, c.h), (c.w * x - c.u * 26, c.h)], c.down((color, 0.55), (color, 0)), blur=c.u * 2)
    c.ellipse(c.w * 0.5, c.h * 0.94, c.w * 0.55, c.h * 0.13, "#1c0d1c")
    for side in (-1, 1):
        x, base = c.w * 0.5 + side * c.u * 25, c.h * 0.93
        chair = "#c9543f" if side < 0 else "#e09a4a"
        c.rect(x - c.u * 9, base - c.u * 24, c.u * 18, c.u * 23, chair, radius=c.u * 5)
        c.rect(x - c.u * 11, base - c.u * 11, c.u * 22, c.u * 9, c.down(chair, "#5a2430", top=base - c.u * 11, bottom=base), radius=c.u * 3)
        c.circle(x, base - c.u * 29, c.u * 4.4, "#23101f")
        c.path(f"M{x - c.u * 7:.1f} {base - c.u * 8:.1f} Q{x - c.u * 7:.1f} {base - c.u * 24:.1f} {x:.1f} {base - c.u * 24:.1f} Q{x + c.u * 7:.1f} {base - c.u * 24:.1f} {x + c.u * 7:.1f} {base - c.u * 8:.1f} Z", "#23101f")
    c.rect(c.w * 0.5 - c.u * 7, c.h * 0.8, c.u * 14, c.u * 1.4, "#f2d0a0", radius=c.u * 0.7)
    c.line([(c.w * 0.5, c.h * 0.82), (c.w * 0.5, c.h * 0.94)], "#f2d0a0", c.u)
    for dx in (-3, 3):
        c.rect(c.w * 0.5 + c.u * dx - c.u, c.h * 0.8 - c.u * 3, c.u * 2, c.u * 3, "#fff0d8", radius=c.u * 0.5)
    c.vignette(0.6)


def quiz(c):
    c.fill(c.round(c.w * 0.5, c.h * 0.55, c.w * 0.7, "#7a2fd0", "#3a1580", "#12062e"))
    for i in range(9):
        x = c.w * (i + 0.5) / 9
        color = ("#ff5fa8", "#5fd0ff", "#ffd166")[i % 3]
        c.polygon([(x - c.u, -2), (x + c.u, -2), (c.w * 0.5 + (x - c.w * 0.5) * 0.25 + c.u * 7, c.h * 0.9), (c.w * 0.5 + (x - c.w * 0.5) * 0.25 - c.u * 7, c.h * 0.9)], c.down((color, 0.7), (color, 0)), blur=c.u)
        c.glow(x, 0, c.u * 7, color, 1)
    for i, color in enumerate(("#1c0a4a", "#2f1278", "#5a2fc0")):
        c.ellipse(c.w * 0.5, c.h * (0.95 - 0.03 * i), c.u * (58 - 12 * i), c.u * (10 - 2 * i), color)
    for i in range(3):
        x, base, color = c.w * 0.5 + (i - 1) * c.u * 24, c.h * 0.88, ("#ff5fa8", "#ffd166", "#5fd0ff")[i]
        person(c, x, base - c.u * 5, c.u * 24, "#16083a")
        c.polygon([(x - c.u * 7, base - c.u * 13), (x + c.u * 7, base - c.u * 13), (x + c.u * 5, base + c.u), (x - c.u * 5, base + c.u)], c.down(color, "#3a1580", top=base - c.u * 13, bottom=base))
        c.circle(x, base - c.u * 7, c.u * 2.4, "#fff8e0", 0.95)
    for _ in range(50):
        c.circle(c.w * c.random.random(), c.h * c.random.random(), c.u * c.random.uniform(0.15, 0.5), "#ffffff", c.random.uniform(0.2, 0.8))
    c.vignette(0.5)


def sport(c):
    c.fill(c.down("#0a1f3f", "#1f4f86", "#5f8fb8", bottom=c.h * 0.5))
    for side in (0.13, 0.87):
        x = c.w * side
        c.line([(x, c.h * 0.5), (x, c.h * 0.16)], "#0a1830", c.u * 0.9)
        for row in range(3):
            for column in range(4):
                px, py = x + (column - 1.5) * c.u * 3, c.h * 0.08 + row * c.u * 2.7
                c.circle(px, py, c.u * 1.1, "#ffffff")
        c.glow(x, c.h * 0.12, c.u * 30, "#eaf6ff", 0.95)
    c.land(c.waves(c.h * 0.44, c.u * 1.5, 0.5, 0.25), c.down("#1a2f55", "#0f1f3f", top=c.h * 0.4, bottom=c.h * 0.62))
    for _ in range(500):
        c.circle(c.w * c.random.random(), c.h * c.random.uniform(0.44, 0.6), c.u * 0.32, c.random.choice(("#ff8f6b", "#ffd98a", "#9fd0ff", "#ffffff", "#d0606f")), c.random.uniform(0.25, 0.8))
    top, foot = c.h * 0.6, c.h * 1.02
    c.rect(-2, top, c.w + 4, foot, c.down("#2f9a55", "#14683a", top=top))
    for i in range(6):
        a, b = i / 6, (i + 0.5) / 6
        c.polygon([(c.w * (0.15 + 0.7 * a), top), (c.w * (0.15 + 0.7 * b), top), (c.w * (-0.5 + 2 * b), foot), (c.w * (-0.5 + 2 * a), foot)], "#49b86b", 0.45)
    c.line([(c.w * 0.15, top), (c.w * -0.5, foot)], "#f2fff4", c.u * 0.5, 0.8)
    c.line([(c.w * 0.85, top), (c.w * 1.5, foot)], "#f2fff4", c.u * 0.5, 0.8)
    c.path(f"M{c.w * 0.33:.1f} {top + c.u * 12:.1f} A{c.w * 0.17:.1f} {c.u * 5:.1f} 0 1 1 {c.w * 0.67:.1f} {top + c.u * 12:.1f} A{c.w * 0.17:.1f} {c.u * 5:.1f} 0 1 1 {c.w * 0.33:.1f} {top + c.u * 12:.1f}", stroke="#f2fff4", width=c.u * 0.5, opacity=0.8)
    c.line([(-4, top + c.u * 12), (c.w + 4, top + c.u * 12)], "#f2fff4", c.u * 0.5, 0.8)
    x, y, r = c.w * 0.56, c.h * 0.84, c.u * 5.4
    c.ellipse(x, y + r, r * 1.2, r * 0.25, "#06331c", 0.7, c.u * 0.5)
    c.circle(x, y, r, c.round(x - r * 0.4, y - r * 0.4, r * 1.5, "#ffffff", "#b8c6d0"))
    c.polygon([(x + r * 0.38 * math.sin(k * 1.2566), y - r * 0.38 * math.cos(k * 1.2566)) for k in range(5)], "#1c2a3a")
    for k in range(5):
        angle = k * 1.2566
        c.line([(x + r * 0.38 * math.sin(angle), y - r * 0.38 * math.cos(angle)), (x + r * 0.85 * math.sin(angle), y - r * 0.85 * math.cos(angle))], "#1c2a3a", c.u * 0.25)
    c.vignette(0.5)


def film(c):
    c.fill(c.down("#1a0f1f", "#3a1626", "#120a14"))
    for i in range(13):
        for side in (-1, 1):
            x = c.w * 0.5 + side * (c.u * 40 + c.u * 3 * i)
            c.rect(x - c.u * 2, -2, c.u * 4, c.h + 4, c.along(x - c.u * 2, 0, x + c.u * 2, 0, "#5a1226", "#b8283f", "#4a0f20"))
    left, top, width, height = c.w * 0.5 - c.u * 37, c.h * 0.12, c.u * 74, c.u * 37
    c.glow(c.w * 0.5, top + height * 0.5, c.u * 62, "#ffe9c0", 0.55)
    c.rect(left, top, width, height, c.down("#2b4a7a", "#c97f6b", "#ffd9a0", top=top, bottom=top + height), radius=c.u)
    c.circle(c.w * 0.56, top + height * 0.7, c.u * 5, "#fff6dc")
    c.polygon([(left, top + height), (left, top + height * 0.75), (left + width * 0.25, top + height * 0.55), (left + width * 0.45, top + height * 0.8), (left + width * 0.7, top + height * 0.62), (left + width, top + height * 0.85), (left + width, top + height)], "#3a2a55")
    for row in range(3):
        y, size = c.h * (0.82 + 0.085 * row), c.u * (5 + 1.6 * row)
        for i in range(12):
            x = c.w * (i + 0.5 * (row % 2)) / 11
            c.rect(x - size * 0.8, y, size * 1.6, c.h, ("#4a1424", "#36101c", "#1f0a12")[row], radius=size * 0.4)
            if c.random.random() < 0.6:
                c.circle(x, y - size * 0.25, size * 0.48, ("#1f0e18", "#170a12", "#0d060a")[row])
    c.vignette(0.6)


def music(c):
    c.fill(c.down("#150a33", "#4a1a6b", "#a3346b", "#2b0f2f"))
    bars = 42
    for i in range(bars):
        x = c.w * (i + 0.5) / bars
        size = c.h * (0.06 + 0.32 * abs(math.sin(i * 0.31) * math.cos(i * 0.13 + 0.6)) + 0.08 * c.random.random())
        c.rect(x - c.u * 0.75, c.h * 0.56 - size, c.u * 1.5, size * 2, c.down("#ffd166", "#ff5fa2", "#7a5cff", top=c.h * 0.56 - size, bottom=c.h * 0.56 + size), 0.92, c.u * 0.75)
    for k, color in enumerate(("#ffffff", "#ffd98a", "#8fe3ff")):
        c.line([(c.w * i / 60, c.h * (0.56 + 0.13 * math.sin(i * 0.2 + k * 1.3) * math.sin(i * 0.05 + 0.4))) for i in range(61)], color, c.u * 0.5, 0.7 - 0.15 * k)
    c.glow(c.w * 0.5, c.h * 0.56, c.u * 60, "#ff7ab0", 0.35)
    for _ in range(60):
        c.circle(c.w * c.random.random(), c.h * c.random.random(), c.u * c.random.uniform(0.2, 1.1), "#ffe6c0", c.random.uniform(0.08, 0.4))
    c.vignette(0.55)


def food(c):
    c.fill(c.down("#e9b872", "#b5693f", "#6b3522"))
    for i in range(7):
        c.rect(-2, c.h * i / 7, c.w + 4, c.h / 7 - c.u * 0.3, "#5a2c1c", 0.12 + 0.06 * (i % 2))
    x, y, r = c.w * 0.5, c.h * 0.52, c.u * 30
    c.circle(x + c.u * 2, y + c.u * 3, r, "#2b120a", 0.55, c.u * 2)
    c.circle(x, y, r, c.round(x - r * 0.3, y - r * 0.4, r * 1.5, "#fffaf0", "#d8cdbb"))
    c.circle(x, y, r * 0.78, c.round(x, y, r * 0.8, "#f8efe0", "#e3d6c2"))
    c.circle(x, y, r * 0.68, c.round(x - r * 0.2, y - r * 0.2, r, "#ffb84c", "#e07a2f", "#b5501f"))
    c.path(" ".join(f"{'M' if k == 0 else 'L'}{x + r * 0.011 * k * math.cos(k * 0.32):.1f} {y + r * 0.011 * k * math.sin(k * 0.32):.1f}" for k in range(46)), stroke="#fff0cc", width=c.u * 0.8, opacity=0.85)
    for k in range(7):
        angle, reach = k * 0.9 + 0.3, r * c.random.uniform(0.25, 0.55)
        px, py = x + reach * math.cos(angle), y + reach * math.sin(angle)
        c.ellipse(px, py, c.u * 3, c.u * 1.2, "#3f8a3f", turn=math.degrees(angle) + 40)
        c.ellipse(px + c.u * 1.6, py + c.u, c.u * 2.2, c.u * 0.9, "#6fb84f", turn=math.degrees(angle) - 20)
    for px, py, size in ((0.13, 0.3, 7), (0.18, 0.55, 6), (0.86, 0.72, 7.5), (0.88, 0.4, 5.5)):
        tx, ty, tr = c.w * px, c.h * py, c.u * size
        c.circle(tx + c.u, ty + c.u * 1.4, tr, "#2b120a", 0.5, c.u)
        c.circle(tx, ty, tr, c.round(tx - tr * 0.35, ty - tr * 0.35, tr * 1.5, "#ff8f70", "#d0342c", "#8a1a1f"))
        for k in range(5):
            c.ellipse(tx + tr * 0.2 * math.cos(k * 1.26), ty + tr * 0.2 * math.sin(k * 1.26), tr * 0.22, tr * 0.07, "#3f7f3a", turn=72 * k)
    c.vignette(0.5, "#2b0f08")


def travel(c):
    sea = c.h * 0.58
    c.fill(c.down("#2f8fd0", "#8fd6ee", "#fff0c8", bottom=sea))
    c.glow(c.w * 0.7, sea * 0.5, c.u * 45, "#fff8d8", 0.9)
    c.circle(c.w * 0.7, sea * 0.45, c.u * 6, "#fffbe8")
    for x, y, size in ((0.2, 0.16, 15), (0.92, 0.3, 16), (0.46, 0.4, 13)):
        c.cloud(c.w * x, c.h * y, c.u * size, "#ffffff", 0.7, 11, 0.4, 0.8)
    c.land(c.ridge(sea - c.u, c.u * 5, 0.5, tilt=0.9), c.down("#6fa8a8", "#a8d0c8", top=sea - c.u * 12, bottom=sea))
    c.rect(-2, sea, c.w + 4, c.h, c.down("#5fd0d8", "#1f9cb8", "#0f6f98", top=sea))
    c.glitter(c.w * 0.7, sea, c.h * 0.86, c.u * 18, "#fffbe0", 110)
    x, base, size = c.w * 0.56, sea + c.u * 5, c.u * 15
    c.polygon([(x, base - size * 0.12), (x, base - size * 1.2), (x + size * 0.55, base - size * 0.18)], "#fffdf5")
    c.polygon([(x - size * 0.04, base - size * 0.14), (x - size * 0.04, base - size), (x - size * 0.36, base - size * 0.2)], "#ff7b5f")
    c.polygon([(x - size * 0.45, base - size * 0.1), (x + size * 0.6, base - size * 0.1), (x + size * 0.42, base + size * 0.06), (x - size * 0.34, base + size * 0.06)], "#7a3f2b")
    c.path(f"M-4 {c.h * 0.9:.1f} Q{c.w * 0.3:.1f} {c.h * 0.78:.1f} {c.w * 0.62:.1f} {c.h * 1.02:.1f} L-4 {c.h * 1.02:.1f} Z", c.down("#ffeec0", "#d9a86b", top=c.h * 0.82))
    palm(c, c.w * 0.17, c.h * 0.9, c.u * 54, 0.22)
    palm(c, c.w * 0.1, c.h * 0.94, c.u * 40, -0.1)
    c.vignette(0.3, "#0b3550")


def palm(c, x, base, height, lean):
    top_x, top_y = x + height * lean, base - height
    c.path(f"M{x:.1f} {base:.1f} Q{x + height * lean * 0.2:.1f} {base - height * 0.6:.1f} {top_x:.1f} {top_y:.1f}", stroke="#4a3226", width=c.u * 1.6)
    for k in range(9):
        angle = math.radians(-170 + 20 * k)
        reach = height * 0.42
        tip_x, tip_y = top_x + reach * math.cos(angle), top_y + reach * (0.42 + 0.5 * math.sin(angle))
        middle_x, middle_y = top_x + reach * 0.55 * math.cos(angle), top_y + reach * (0.72 * math.sin(angle) - 0.1)
        c.path(f"M{top_x:.1f} {top_y:.1f} Q{middle_x:.1f} {middle_y - c.u * 1.6:.1f} {tip_x:.1f} {tip_y:.1f} Q{middle_x:.1f} {middle_y + c.u * 2.4:.1f} {top_x:.1f} {top_y:.1f} Z", ("#1f5f48", "#2f7f55", "#174a3a")[k % 3])


def science(c):
    c.fill(c.round(c.w * 0.5, c.h * 0.5, c.w * 0.7, "#12406b", "#0a1c44", "#040a1c"))
    c.stars(150, c.h * 1.4)
    x, y, r = c.w * 0.5, c.h * 0.5, c.u * 40
    for turn, color in ((0, "#5fe0ff"), (60, "#ff8fd0"), (120, "#ffd166")):
        c.body.append(f'<ellipse cx="{x:.1f}" cy="{y:.1f}" rx="{r:.1f}" ry="{r * 0.36:.1f}" fill="none" stroke="{color}" stroke-width="{c.u * 0.55:.2f}" opacity="0.85" transform="rotate({turn} {x:.1f} {y:.1f})"/>')
        angle = math.radians(turn)
        where = c.random.uniform(0.4, 2.4)
        ex, ey = r * math.cos(where), r * 0.36 * math.sin(where)
        px, py = x + ex * math.cos(angle) - ey * math.sin(angle), y + ex * math.sin(angle) + ey * math.cos(angle)
        c.glow(px, py, c.u * 9, color, 0.9)
        c.circle(px, py, c.u * 1.7, "#ffffff")
    c.glow(x, y, c.u * 26, "#8fd8ff", 0.8)
    for k in range(9):
        angle = k * 2.4
        px, py = x + c.u * 1.15 * math.sqrt(k) * 1.5 * math.cos(angle), y + c.u * 1.15 * math.sqrt(k) * 1.5 * math.sin(angle)
        light, dark = (("#ffd9a0", "#e0602f"), ("#bfe6ff", "#2f6fc0"))[k % 2]
        c.circle(px, py, c.u * 2.7, c.round(px - c.u, py - c.u, c.u * 4, light, dark))
    c.vignette(0.5)


def history(c):
    c.fill(c.down("#4a3a5e", "#b56f6b", "#f5b98a", "#ffe0b0", bottom=c.h * 0.8))
    c.glow(c.w * 0.36, c.h * 0.62, c.u * 52, "#fff0c8", 0.95)
    c.circle(c.w * 0.36, c.h * 0.58, c.u * 7, "#fff8e0")
    c.land(c.ridge(c.h * 0.74, c.u * 6, 0.5), "#a5707a", 0.8)
    c.mist(c.h * 0.76, c.u * 14, "#ffe6c0", 0.5)
    ground = c.h * 0.86
    c.rect(-2, ground, c.w + 4, c.h, c.down("#6b4658", "#2b1a30", top=ground))
    for i, broken in enumerate((0.5, 0, 0, 0, 0.32, 0.7)):
        x, size, height = c.w * (0.08 + 0.165 * i), c.u * 4.2, c.u * 46 * (1 - broken)
        stone = c.along(x - size, 0, x + size, 0, "#ffd9b0", "#a5707a", "#4a2f4a")
        c.rect(x - size, ground - height, size * 2, height, stone)
        for k in range(1, 4):
            c.rect(x - size + size * 0.5 * k - size * 0.06, ground - height, size * 0.12, height, "#4a2f4a", 0.4)
        c.rect(x - size * 1.4, ground - c.u * 2.4, size * 2.8, c.u * 2.6, stone)
        if not broken:
            c.rect(x - size * 1.4, ground - height - c.u * 2.2, size * 2.8, c.u * 2.4, stone)
    left, right, top = c.w * (0.08 + 0.165) - c.u * 7, c.w * (0.08 + 0.165 * 3) + c.u * 7, ground - c.u * 48.2
    c.rect(left, top - c.u * 4.5, right - left, c.u * 4.7, c.down("#f5c9a0", "#8a5a6b", top=top - c.u * 4.5, bottom=top))
    c.polygon([(left - c.u, top - c.u * 4.5), ((left + right) / 2, top - c.u * 14), (right + c.u, top - c.u * 4.5)], c.down("#ffdcb0", "#9c6b74", top=top - c.u * 14, bottom=top - c.u * 4.5))
    c.vignette(0.45, "#1c0f20")


# --- marks of right holders: white, transparent around them ------------------------------------------------

def mark_wave(c):
    for i in range(3):
        c.line([(c.w * (0.08 + 0.84 * k / 40), c.h * (0.3 + 0.2 * i) + c.h * 0.09 * math.sin(k * 0.47 + i * 0.5)) for k in range(41)], "#ffffff", c.h * 0.09, 1 - 0.22 * i)


def mark_prism(c):
    c.polygon([(c.w * 0.5, c.h * 0.1), (c.w * 0.82, c.h * 0.86), (c.w * 0.5, c.h * 0.7)], "#ffffff", 0.95)
    c.polygon([(c.w * 0.5, c.h * 0.1), (c.w * 0.18, c.h * 0.86), (c.w * 0.5, c.h * 0.7)], "#ffffff", 0.6)


def mark_orbit(c):
    c.circle(c.w * 0.5, c.h * 0.5, c.h * 0.2, "#ffffff")
    c.body.append(f'<ellipse cx="{c.w / 2}" cy="{c.h / 2}" rx="{c.h * 0.46}" ry="{c.h * 0.19}" fill="none" stroke="#ffffff" stroke-width="{c.h * 0.075:.1f}" opacity="0.85" transform="rotate(-28 {c.w / 2} {c.h / 2})"/>')


def mark_leaf(c):
    x, y, s = c.w * 0.5, c.h * 0.5, c.h * 0.42
    c.path(f"M{x - s:.1f} {y + s:.1f} C{x - s:.1f} {y - s * 0.4:.1f} {x - s * 0.2:.1f} {y - s:.1f} {x + s:.1f} {y - s:.1f} C{x + s:.1f} {y + s * 0.2:.1f} {x + s * 0.4:.1f} {y + s:.1f} {x - s:.1f} {y + s:.1f} Z", "#ffffff", 0.9)
    c.line([(x - s * 0.9, y + s * 0.9), (x + s * 0.45, y - s * 0.45)], "#7f8fa0", c.h * 0.05, 0.9)
