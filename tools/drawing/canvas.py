# SPDX-License-Identifier: MIT
"""A picture in the making: shapes, light and weather, written as SVG. Lengths are in pixels, y grows downwards."""

import math
import random


class Canvas:
    """One picture. The same seed gives the same picture."""

    def __init__(self, width, height, seed=1):
        self.w, self.h = width, height
        self.u = math.sqrt(width * height) / 100  # a hundredth of the picture's size, whatever its shape
        self.random = random.Random(seed)
        self.defs, self.body = [], []

    def svg(self):
        return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.w}" height="{self.h}" '
                f'viewBox="0 0 {self.w} {self.h}"><defs>{"".join(self.defs)}</defs>{"".join(self.body)}</svg>')

    # --- paint ------------------------------------------------------------------------------------------

    def _define(self, element, attributes, content):
        name = f"d{len(self.defs)}"
        self.defs.append(f'<{element} id="{name}" {attributes}>{content}</{element}>')
        return name

    @staticmethod
    def _stops(colors):
        """Colours as "#rrggbb" or ("#rrggbb", opacity), spread evenly or at a given ("#rrggbb", opacity, place)."""
        text = []
        for i, color in enumerate(colors):
            value = (color,) if isinstance(color, str) else color
            opacity = value[1] if len(value) > 1 else 1
            place = value[2] if len(value) > 2 else i / max(len(colors) - 1, 1)
            text.append(f'<stop offset="{place:.3f}" stop-color="{value[0]}" stop-opacity="{opacity}"/>')
        return "".join(text)

    def down(self, *colors, top=0.0, bottom=None):
        """A gradient from the height \"top\" to \"bottom\"."""
        bottom = self.h if bottom is None else bottom
        box = f'gradientUnits="userSpaceOnUse" x1="0" y1="{top:.1f}" x2="0" y2="{bottom:.1f}"'
        return f"url(#{self._define('linearGradient', box, self._stops(colors))})"

    def along(self, x1, y1, x2, y2, *colors):
        box = f'gradientUnits="userSpaceOnUse" x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}"'
        return f"url(#{self._define('linearGradient', box, self._stops(colors))})"

    def round(self, x, y, radius, *colors):
        box = f'gradientUnits="userSpaceOnUse" cx="{x:.1f}" cy="{y:.1f}" r="{radius:.1f}"'
        return f"url(#{self._define('radialGradient', box, self._stops(colors))})"

    def _blur(self, blur):
        if not blur:
            return ""
        area = 'x="-60%" y="-60%" width="220%" height="220%"'
        name = self._define("filter", area, f'<feGaussianBlur stdDeviation="{blur:.2f}"/>')
        return f' filter="url(#{name})"'

    # --- shapes -----------------------------------------------------------------------------------------

    def rect(self, x, y, width, height, fill, opacity=1.0, radius=0.0, blur=0.0, turn=0.0):
        turned = f' transform="rotate({turn:.2f} {x + width / 2:.1f} {y + height / 2:.1f})"' if turn else ""
        self.body.append(f'<rect x="{x:.1f}" y="{y:.1f}" width="{width:.1f}" height="{height:.1f}" rx="{radius:.1f}" '
                         f'fill="{fill}" opacity="{opacity:.3f}"{self._blur(blur)}{turned}/>')

    def ellipse(self, x, y, rx, ry, fill, opacity=1.0, blur=0.0, turn=0.0):
        turned = f' transform="rotate({turn:.2f} {x:.1f} {y:.1f})"' if turn else ""
        self.body.append(f'<ellipse cx="{x:.1f}" cy="{y:.1f}" rx="{rx:.1f}" ry="{ry:.1f}" fill="{fill}" '
                         f'opacity="{opacity:.3f}"{self._blur(blur)}{turned}/>')

    def circle(self, x, y, radius, fill, opacity=1.0, blur=0.0):
        self.ellipse(x, y, radius, radius, fill, opacity, blur)

    def path(self, d, fill="none", opacity=1.0, stroke="none", width=1.0, blur=0.0):
        self.body.append(f'<path d="{d}" fill="{fill}" stroke="{stroke}" stroke-width="{width:.2f}" '
                         f'stroke-linecap="round" stroke-linejoin="round" opacity="{opacity:.3f}"{self._blur(blur)}/>')

    def polygon(self, points, fill, opacity=1.0, blur=0.0):
        self.path("M" + " L".join(f"{x:.1f} {y:.1f}" for x, y in points) + " Z", fill, opacity, blur=blur)

    def line(self, points, stroke, width, opacity=1.0, blur=0.0):
        self.path("M" + " L".join(f"{x:.1f} {y:.1f}" for x, y in points), "none", opacity, stroke, width, blur)

    # --- light ------------------------------------------------------------------------------------------

    def fill(self, paint):
        self.rect(-2, -2, self.w + 4, self.h + 4, paint)

    def glow(self, x, y, radius, color, opacity=1.0):
        self.circle(x, y, radius, self.round(x, y, radius, (color, opacity), (color, opacity * 0.35, 0.35), (color, 0)))

    def stars(self, count, bottom, color="#ffffff", largest=0.22):
        for _ in range(count):
            x, y = self.random.uniform(0, self.w), self.random.uniform(0, 1) ** 1.3 * bottom
            fade = 1 - y / bottom
            size = self.random.uniform(0.06, largest) * self.u
            self.circle(x, y, size, color, (0.25 + 0.75 * self.random.random()) * (0.25 + 0.75 * fade))

    def vignette(self, strength=0.55, color="#03060c"):
        radius = math.hypot(self.w, self.h) * 0.62
        self.fill(self.round(self.w / 2, self.h * 0.46, radius, (color, 0), (color, 0, 0.5), (color, strength)))

    def rays(self, x, y, length, count, color, opacity, first=0.0, last=360.0, width=5.0):
        for i in range(count):
            angle = math.radians(first + (last - first) * (i + self.random.uniform(0.2, 0.8)) / count)
            half = math.radians(width * self.random.uniform(0.4, 1.2))
            points = [(x, y)] + [(x + length * math.cos(angle + side * half), y + length * math.sin(angle + side * half))
                                 for side in (-1, 1)]
            self.polygon(points, self.round(x, y, length, (color, opacity), (color, 0)), blur=self.u * 0.7)

    # --- land, water and weather ------------------------------------------------------------------------

    def ridge(self, level, rise, roughness=0.55, steps=7, tilt=0.0):
        """The line of hills or mountains: points from left to right around the height \"level\"."""
        heights = [self.random.uniform(-1, 1) * 0.5 - tilt, self.random.uniform(-1, 1) * 0.5 + tilt]
        spread = 1.0
        for _ in range(steps):
            between = [(a + b) / 2 + self.random.uniform(-1, 1) * spread for a, b in zip(heights, heights[1:])]
            heights = [value for pair in zip(heights, between) for value in pair] + [heights[-1]]
            spread *= roughness
        return [(i * (self.w + 8) / (len(heights) - 1) - 4, level - rise * value) for i, value in enumerate(heights)]

    def waves(self, level, rise, count=2.0, phase=0.0, points=60):
        return [(-4 + (self.w + 8) * i / points,
                 level - rise * (math.sin(2 * math.pi * (count * i / points + phase))
                                 + 0.35 * math.sin(2 * math.pi * (2.3 * count * i / points + 1.7 * phase))))
                for i in range(points + 1)]

    def land(self, line, fill, opacity=1.0, blur=0.0):
        self.polygon([*line, (self.w + 4, self.h + 4), (-4, self.h + 4)], fill, opacity, blur)

    def mist(self, y, height, color, opacity):
        self.rect(-2, y - height / 2, self.w + 4, height,
                  self.down((color, 0), (color, opacity), (color, 0), top=y - height / 2, bottom=y + height / 2))

    def cloud(self, x, y, size, color, opacity=1.0, puffs=9, flat=0.4, blur=1.2):
        for _ in range(puffs):
            at = self.random.uniform(-1, 1)
            radius = size * self.random.uniform(0.2, 0.42) * (1.15 - abs(at))
            self.ellipse(x + at * size, y - radius * flat * self.random.random(), radius * 1.5, radius * flat * 1.5,
                         color, opacity * self.random.uniform(0.5, 1), blur=self.u * blur)

    def glitter(self, x, top, bottom, width, color, count=60, opacity=0.8):
        """Light on water below what shines."""
        for _ in range(count):
            depth = self.random.random()
            y = top + (bottom - top) * depth ** 1.4
            spread = width * (0.25 + depth)
            length = self.u * self.random.uniform(0.6, 3.2) * (0.4 + depth)
            self.ellipse(x + self.random.gauss(0, 0.4) * spread, y, length, self.u * (0.08 + 0.16 * depth), color,
                         opacity * self.random.uniform(0.2, 1))

    def pine(self, x, base, height, fill):
        half = height * 0.2
        points = []
        for i in range(5):
            low = base - height * (0.08 + 0.19 * i)
            reach = half * (1 - i * 0.18)
            points += [(reach, low), (reach * 0.42, low - height * 0.09)]
        right = [(x + dx, y) for dx, y in points]
        left = [(x - dx, y) for dx, y in reversed(points)]
        self.polygon([(x + height * 0.02, base), *right, (x, base - height), *left, (x - height * 0.02, base)], fill)

    def forest(self, line, height, fill, spacing=1.0):
        for x, y in line[:: max(int(2 / spacing), 1)]:
            self.pine(x + self.random.uniform(-1, 1) * self.u, y + height * 0.08,
                      height * self.random.uniform(0.6, 1.15), fill)

    def rain(self, count, color, opacity=0.25, slant=0.18, length=7.0):
        for _ in range(count):
            x, y = self.random.uniform(0, self.w * 1.1), self.random.uniform(-0.1, 1) * self.h
            size = self.u * length * self.random.uniform(0.4, 1)
            self.line([(x, y), (x - size * slant, y + size)], color, self.u * 0.1, opacity * self.random.uniform(0.3, 1))

    def snow(self, count, color="#ffffff"):
        for _ in range(count):
            size = self.u * self.random.choice((0.15, 0.22, 0.3, 0.55))
            self.circle(self.random.uniform(0, self.w), self.random.uniform(0, self.h), size, color,
                        self.random.uniform(0.3, 0.9), blur=size * 0.35)

    # --- what people build ------------------------------------------------------------------------------

    def skyline(self, base, tallest, fill, light=None, lit=0.4, narrow=5.0, wide=11.0, panes=1.3):
        x = -self.u * 2
        while x < self.w:
            width = self.u * self.random.uniform(narrow, wide)
            height = tallest * self.random.uniform(0.35, 1)
            self.rect(x, base - height, width + 1, self.h - base + height, fill)
            if self.random.random() < 0.3:
                self.rect(x + width * 0.45, base - height * 1.16, self.u * 0.35, height * 0.2, fill)
            if light:
                self.windows(x, base - height, width, height, light, lit, panes)
            x += width + self.u * self.random.uniform(0, 0.8)

    def windows(self, x, y, width, height, colors, lit, pane):
        step = self.u * pane
        columns, rows = int((width - step * 0.8) / step), int((height - step) / (step * 1.35))
        left = x + (width - columns * step) / 2
        for row in range(rows):
            for column in range(columns):
                if self.random.random() < lit:
                    self.rect(left + column * step + step * 0.2, y + step + row * step * 1.35, step * 0.55, step * 0.72,
                              self.random.choice(colors), self.random.uniform(0.45, 1))

    def moon(self, x, y, radius, light="#fdf6e3", shade="#c9b79c"):
        self.glow(x, y, radius * 3.6, light, 0.45)
        self.circle(x, y, radius, self.round(x - radius * 0.35, y - radius * 0.35, radius * 1.7, light, shade))
        for dx, dy, size in ((-0.3, 0.2, 0.2), (0.35, -0.25, 0.15), (0.1, 0.45, 0.11), (-0.45, -0.3, 0.1)):
            self.circle(x + dx * radius, y + dy * radius, size * radius, shade, 0.5, blur=radius * 0.03)
