# SPDX-License-Identifier: MIT
"""The rules that the source tree keeps: who may include whom, where Qt's private headers may be read,
licence lines, a README in each source folder, and the lines of the module's qmldir."""

import argparse
import fnmatch
import pathlib
import re
import sys
import unittest

SOURCE = pathlib.Path()
QML = pathlib.Path()

# --- who may include whom -------------------------------------------------------------------------------

# A room is the longest of these prefixes that a file's path starts with.
ROOMS = ("platform/config", "platform/core", "platform/design", "platform/generic", "plugin", "scenegraph",
         "controls", "controls/buttons", "controls/tiles", "controls/epg", "gallery", "tests", "benchmarks")

# Includes whose first folder is not the name of their room.
INCLUDED_AS = {"stbconfig": "platform/config", "stbcore": "platform/core", "design_system": "platform/design",
               "testkit": "tests"}

CONTROL = {"scenegraph", "controls", "platform/core", "platform/design", "plugin/qmlsettings.h",
           "QtCore", "QtGui", "QtQml", "QtQuick"}

# Room -> the rooms, single headers and Qt libraries that it may include beside itself. What is not here is
# forbidden. "controls" are the headers that all families share; they know no family.
EDGES = {
    "platform/config": {"QtCore"},
    "platform/core": {"QtCore", "QtGui"},
    "platform/design": {"QtCore", "QtGui", "QtQml", "platform/config"},
    "platform/generic": {"QtCore", "QtGui", "QtQml", "QtQuick", "QtQuickTemplates2"},
    "plugin": {"controls", "controls/buttons", "controls/tiles", "controls/epg", "platform/config",
               "QtCore", "QtQml"},
    "scenegraph": {"platform/core", "design_system/textstyle.h", "plugin/qmlsettings.h",
                   "QtCore", "QtGui", "QtQml", "QtQuick"},
    "controls": CONTROL - {"controls"},
    "controls/buttons": CONTROL,
    "controls/tiles": CONTROL,
    "controls/epg": CONTROL,
    "gallery": {"controls", "controls/buttons", "controls/tiles", "controls/epg", "plugin", "scenegraph",
                "platform/config", "platform/core", "platform/design",
                "QtCore", "QtGui", "QtNetwork", "QtQml", "QtQmlModels", "QtQuick"},
}

# (file, included) -> why this one may.
EXCEPTIONS = {
    ("scenegraph/nodehelpers.cpp", "design_system/qmldesignsystem.h"):
        "finds the design system's singleton through an item's engine, for all controls",
}

# Rooms whose files may include everything but what stands here.
OPEN_ROOMS = {"tests": {"benchmarks"}, "benchmarks": set()}

# Qt's private headers move between releases, so few files may read them. Tests look at nodes and items.
PRIVATE_HEADERS_IN = ("scenegraph/*.cpp", "scenegraph/qtcompat_p.h", "controls/*/*_p.h", "tests/*",
                      "benchmarks/*")

# --- licence lines and READMEs --------------------------------------------------------------------------

LICENSED = ("*.cpp", "*.h", "*.py", "*.sh", "*.qml", "*.js", "*.cmake", "*.cmake.in", "*.svg", "CMakeLists.txt",
            ".clang-format", ".clang-tidy", ".qmllint.ini", ".ci/*", "tools/*")
SPDX = "SPDX-License-Identifier: MIT"

# Folder with sources -> the folder whose README speaks for it. All others have their own.
README_ELSEWHERE = {
    "platform/config/stbconfig": "platform",
    "platform/core/stbcore": "platform",
    "platform/design/design_system": "platform",
    "qml/Experimental": "qml",
    "benchmarks/counters": "benchmarks",
    "benchmarks/forms": "benchmarks",
    "benchmarks/time": "benchmarks",
}
# Everything in tests/ is spoken for by the README there, but for the test kit, which is a library.
README_OF_TESTS = "tests"
TESTS_WITH_OWN_README = ("tests/testkit",)

# --- the module's qmldir --------------------------------------------------------------------------------

QMLDIR_HEAD = """\
module Stbui.UI.Qml.Controls.Basic
linktarget qmlbasiccontrolsextensionplugin
optional plugin qmlbasiccontrolsextensionplugin
classname Stbui_UI_Qml_Controls_BasicPlugin
typeinfo qmlbasiccontrolsextensionplugin.qmltypes
depends QtQml.Base
depends QtQuick
depends QtQuickTemplates2
depends Stbui.UI.Qml.Design
depends Stbui.UI.Qml.Controls.Generic
prefer :/Stbui/UI/Qml/Controls/Basic/
""".splitlines()
# A component is listed as soon as its file exists, so that no line points nowhere.
QMLDIR_COMPONENTS = """\
BusyIndicator 1.0 qml/BusyIndicator.qml
CheckBox 1.0 qml/CheckBox.qml
CircleProgressBar 1.0 qml/CircleProgressBar.qml
Keyboard 1.0 qml/Keyboard.qml
LineEdit 1.0 qml/LineEdit.qml
MainMenuButton 1.0 qml/MainMenuButton.qml
MainMenuEffect 1.0 qml/MainMenuEffect.qml
MediaBlock 1.0 qml/MediaBlock.qml
MediaGridView 1.0 qml/MediaGridView.qml
MediaListView 1.0 qml/MediaListView.qml
PrimaryButton 1.0 qml/PrimaryButton.qml
RadioButton 1.0 qml/RadioButton.qml
ScrollBar 1.0 qml/ScrollBar.qml
StandardButton 1.0 qml/StandardButton.qml
TabButton 1.0 qml/TabButton.qml
PlayerButton 1.0 qml/Experimental/PlayerButton.qml
""".splitlines()


def tree_files():
    """Every file of the tree as a path relative to it, without builds and the repository's own folder."""
    for path in sorted(SOURCE.rglob("*")):
        parts = path.relative_to(SOURCE).parts
        if path.is_file() and parts[0] not in ("build", ".git", ".cache") and "__pycache__" not in parts:
            yield "/".join(parts)


def matches(file, patterns):
    name = file.rsplit("/", 1)[-1]
    return any(fnmatch.fnmatch(file if "/" in pattern else name, pattern) for pattern in patterns)


def room_of(path):
    rooms = [room for room in ROOMS if path.startswith(room + "/")]
    return max(rooms, key=len, default=None)


def includes_of(file):
    text = (SOURCE / file).read_text("utf-8")
    return re.findall(r'^[ \t]*#[ \t]*include[ \t]*[<"]([^>"]+)[>"]', text, re.M)


def target_of(file, included):
    """The room or the Qt library that an include reaches; "" for the standard library and generated code."""
    first, slash, _ = included.partition("/")
    if not slash:
        beside = pathlib.PurePosixPath(file).parent / included
        if (SOURCE / beside).is_file():
            return room_of(str(beside)) or "?"
        if included.endswith((".moc", "_p.h")) or re.match(r"^Q[A-Z]|^Qt", included):
            return "" if included.endswith(".moc") else "?"
        return ""
    if first in INCLUDED_AS:
        return INCLUDED_AS[first]
    if first == "private":
        return "?"
    return room_of(included) or (first if first.startswith("Qt") else "?" if first in ("..", ".") else "")


def verdict(file, included):
    """None when the file may include that, else the reason why not."""
    room, target = room_of(file), target_of(file, included)
    if target == "?":
        return "cannot be told; write the room's or Qt library's folder in front, as <QtCore/qobject.h>"
    if room is None or target in ("", room) or (file, included) in EXCEPTIONS:
        return None
    if room in OPEN_ROOMS:
        return f"{room} may not include {target}" if target in OPEN_ROOMS[room] else None
    if target in EDGES[room] or included in EDGES[room]:
        return None
    return f"{room} may not include {target}"


def cxx_files():
    return [file for file in tree_files() if file.endswith((".cpp", ".h"))]


class Tree(unittest.TestCase):
    maxDiff = None

    def test_rooms_include_only_what_they_may(self):
        wrong = [f"{file}: {included}: {reason}" for file in cxx_files() for included in includes_of(file)
                 if (reason := verdict(file, included))]
        self.assertEqual(wrong, [])

    def test_every_source_lies_in_a_room(self):
        self.assertEqual([file for file in cxx_files() if room_of(file) is None], [])

    def test_every_exception_is_needed(self):
        used = {(file, included) for file, included in EXCEPTIONS
                if (SOURCE / file).is_file() and included in includes_of(file)}
        self.assertEqual(set(EXCEPTIONS) - used, set())

    def test_the_rules_can_tell_a_forbidden_edge(self):
        for file, included in (("controls/epg/x.cpp", "controls/tiles/y.h"), ("scenegraph/x.h", "controls/y.h"),
                               ("platform/core/stbcore/x.h", "design_system/textstyle.h"),
                               ("platform/config/stbconfig/x.h", "QtGui/qcolor.h"),
                               ("scenegraph/x.h", "design_system/tilestyle.h"),
                               ("controls/x.h", "controls/epg/y.h"), ("gallery/x.cpp", "testkit/testcase.h"),
                               ("tests/x.cpp", "benchmarks/y.h"), ("plugin/x.cpp", "scenegraph/y.h"),
                               ("gallery/x.cpp", "QObject"), ("scenegraph/x.cpp", "private/qquickitem_p.h")):
            self.assertIsNotNone(verdict(file, included), f"{file} includes {included}")

    def test_qt_private_headers_stay_in_their_corner(self):
        wrong = [f"{file}: {included}" for file in cxx_files() for included in includes_of(file)
                 if re.search(r"(^|/)private/", included) and not matches(file, PRIVATE_HEADERS_IN)]
        self.assertEqual(wrong, [])

    def test_the_gallery_knows_no_private_header_of_a_control(self):
        wrong = [f"{file}: {included}" for file in cxx_files() if file.startswith("gallery/")
                 for included in includes_of(file)
                 if included.endswith("_p.h") and room_of(included) not in (None, "gallery")]
        self.assertEqual(wrong, [])

    def test_every_source_has_its_licence_line(self):
        without = []
        for file in tree_files():
            if not matches(file, LICENSED) or file.endswith(".md"):
                continue
            with (SOURCE / file).open(encoding="utf-8", errors="replace") as opened:
                if SPDX not in "".join(opened.readline() for _ in range(4)):
                    without.append(file)
        self.assertEqual(without, [])

    def test_every_source_folder_has_its_readme(self):
        folders = {file.rpartition("/")[0] for file in tree_files()
                   if file.endswith((".cpp", ".h", ".qml", ".py")) and "/" in file}
        without = []
        for folder in sorted(folders):
            speaks = README_ELSEWHERE.get(folder, folder)
            if folder.startswith(README_OF_TESTS + "/") and folder not in TESTS_WITH_OWN_README:
                speaks = README_OF_TESTS
            if not (SOURCE / speaks / "README.md").is_file():
                without.append(folder)
        self.assertEqual(without, [])

    # docs/themes.md sends designers there.
    def test_every_field_of_a_style_says_what_it_does(self):
        silent = []
        for path in sorted((SOURCE / "platform/design/design_system").glob("*.h")):
            if path.name.startswith("theme"):  # their reader
                continue
            lines = path.read_text("utf-8").splitlines()
            fields = re.findall(r"Q_PROPERTY\(.* MEMBER (\w+)", "\n".join(lines))
            for number, line in enumerate(lines):
                field = re.match(r"    ([\w:]+) (\w+)( = [^;]+)?;", line)
                if field is None or (field[2] not in fields and not field[1].endswith("Group")):
                    continue
                before = [text.strip() for text in lines[number - 3:number]]
                if not ("//!<" in line or before[-1].startswith("//!") or "next three" in "".join(before)):
                    silent.append(f"{path.name}: {field[2]}")
        self.assertEqual(silent, [])

    def test_the_qmldir_has_the_expected_lines(self):
        lines = (QML / "Stbui/UI/Qml/Controls/Basic/qmldir").read_text("utf-8").splitlines()
        if lines[-1] == "":  # Qt's template ends the file with an empty line
            lines.pop()
        expected = QMLDIR_HEAD + [line for line in QMLDIR_COMPONENTS if (SOURCE / line.split()[-1]).is_file()]
        self.assertEqual(lines, expected)


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--source", required=True)
    parser.add_argument("--qml", required=True)
    arguments, rest = parser.parse_known_args()
    SOURCE, QML = pathlib.Path(arguments.source).resolve(), pathlib.Path(arguments.qml)
    unittest.main(argv=[sys.argv[0], *rest])
