# SPDX-License-Identifier: MIT
"""Writes the SVG of one picture, or the list of all of them. Started by tools/pictures."""

import functools
import sys

import logos
import morescenes
import scenes
import stills
from canvas import Canvas

POSTER, WIDE, STILL, MARK, LOGO = (400, 600), (640, 360), (480, 270), (120, 80), (192, 168)

POSTERS = {"ferry": scenes.ferry, "peaks": scenes.peaks, "tram": scenes.tram, "dunes": scenes.dunes,
           "aurora": scenes.aurora, "orbit": scenes.orbit, "kite": scenes.kite, "harbour": morescenes.harbour,
           "orchard": morescenes.orchard, "deep": morescenes.deep, "bridges": morescenes.bridges, "moons": morescenes.moons,
           "station": morescenes.station, "windows": morescenes.windows, "valley": morescenes.valley,
           "balloon": morescenes.balloon}
EPISODES = {
    "station_1": functools.partial(morescenes.station, night=False, snow=260),
    "station_2": functools.partial(morescenes.station, snow=60),
    "station_3": functools.partial(morescenes.station, night=False, snow=0, thaw=True),
    "windows_1": functools.partial(morescenes.windows, wall=("#3a2440", "#1a1024"), lit=0.45),
    "windows_2": functools.partial(morescenes.windows, wall=("#173a46", "#0a1a24"), lit=0.12),
    "windows_3": functools.partial(morescenes.windows, wall=("#141a33", "#080b18"), blackout=True),
    "valley_1": functools.partial(morescenes.valley, sky=("#3a4f86", "#b58aa8", "#ffd0b0", "#ffe6c0")),
    "valley_2": morescenes.canopy,
    "balloon_1": functools.partial(morescenes.balloon, sky=("#5a5fc4", "#c79ad6", "#ffd0b8", "#ffe0c0")),
    "balloon_2": functools.partial(morescenes.balloon, place="island"),
    "station_4": functools.partial(morescenes.station, snow=420),
    "windows_4": functools.partial(morescenes.windows, wall=("#4a3a2e", "#1c1410"), lit=0.3),
    "windows_5": functools.partial(morescenes.windows, wall=("#2e4a3a", "#101c16"), lit=0.7),
}
CATEGORIES = {
    "news": stills.news, "weather": stills.weather, "business": stills.business, "talk": stills.talk,
    "quiz": stills.quiz, "sport": stills.sport, "film": stills.film, "music": stills.music, "food": stills.food,
    "science": stills.science, "history": stills.history,
    "series": functools.partial(morescenes.windows, wall=("#2b2b5e", "#12122e"), lit=0.5, special=False),
    "children": functools.partial(morescenes.balloon, sky=("#3fa0d8", "#a8e0ee", "#fff2c0", "#ffe0b0")),
    "nature": functools.partial(morescenes.valley, sky=("#2f6f9a", "#a0d0d8", "#fff0c8", "#ffe0a0")),
    "travel": stills.travel,
}
MARKS = {"mark_wave": stills.mark_wave, "mark_prism": stills.mark_prism, "mark_orbit": stills.mark_orbit,
         "mark_leaf": stills.mark_leaf}
LOGOS = {"logo_news": logos.news, "logo_sport": logos.sport, "logo_cinema": logos.cinema, "logo_series": logos.series,
         "logo_music": logos.music, "logo_nature": logos.nature}


def pictures():
    """Name -> what draws it, the size, and the seed of its randomness."""
    every = {}
    for seed, (name, scene) in enumerate(POSTERS.items()):
        every[name] = (scene, POSTER, 100 + seed)
        every[f"{name}_wide"] = (scene, WIDE, 200 + seed)
    for seed, (name, scene) in enumerate(EPISODES.items()):
        every[name] = (scene, STILL, 300 + seed)
    for seed, (name, scene) in enumerate(CATEGORIES.items()):
        every[f"still_{name}"] = (scene, STILL, 400 + seed)
    for name, scene in MARKS.items():
        every[name] = (scene, MARK, 1)
    for name, scene in LOGOS.items():
        every[name] = (scene, LOGO, 1)
    return every


def main():
    every = pictures()
    if len(sys.argv) < 2:
        print("\n".join(every))
        return
    scene, size, seed = every[sys.argv[1]]
    canvas = Canvas(*size, seed)
    scene(canvas)
    print(canvas.svg())


if __name__ == "__main__":
    main()
