# SPDX-License-Identifier: MIT
"""Installs the platform, builds the module against that, installs it too and compares.

external.py --cmake PROGRAM --source FOLDER --build FOLDER --work FOLDER [--define NAME=VALUE]...
            [-- COMMAND...]

The command after "--" is run at the end, with @PLATFORM@ and @MODULE@ replaced by the two prefixes.
"""

import argparse
import filecmp
import pathlib
import shutil
import subprocess
import sys

MODULE = "qt6/qml/Stbui/UI/Qml/Controls/Basic"
# The public headers that a vendor's platform has to bring.
HEADERS = ("stbconfig/configurationmanager.h", "stbcore/textrenderer.h", "stbcore/throbberrenderer.h",
           "stbcore/platformnativeinterface.h", "design_system/textstyle.h", "design_system/statescolors.h",
           "design_system/playerepgdelegatestyle.h", "design_system/qmldesignsystem.h")


def step(*command):
    result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            text=True, check=False)
    if result.returncode != 0 or "CMake Warning" in result.stdout:
        sys.exit(f"{' '.join(command)}\nended with {result.returncode}:\n{result.stdout}")


def check(holds, message):
    if not holds:
        sys.exit(message)


def check_platform(prefix):
    headers = {str(path.relative_to(prefix / "include")) for path in (prefix / "include").rglob("*.h")}
    check(headers.issuperset(HEADERS), f"not installed: {sorted(set(HEADERS) - headers)}")
    private = [header for header in headers if header.endswith("_p.h")]
    check(not private, f"private headers are installed: {private}")


def check_module(prefix, built):
    installed = list(prefix.glob(f"*/{MODULE}")) + list(prefix.glob(f"*/*/{MODULE}"))
    check(len(installed) == 1, f"the module is not in one place below {prefix}: {installed}")
    for name in ("qmldir", "qmlbasiccontrolsextensionplugin.qmltypes"):
        check(filecmp.cmp(installed[0] / name, built / name, shallow=False),
              f"{name} differs from the one of the reference build, {built / name}")
    plugin = installed[0] / "libqmlbasiccontrolsextensionplugin.so"
    check(plugin.is_file(), f"{plugin} is missing")
    sources = [line.split()[-1] for line in (built / "qmldir").read_text().splitlines() if line.endswith(".qml")]
    missing = [source for source in sources if not (installed[0] / source).is_file()]
    check(not missing, f"the qmldir names files that are not installed: {missing}")


def main():
    parser = argparse.ArgumentParser()
    for name in ("cmake", "source", "build", "work"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--define", action="append", default=[])
    parser.add_argument("command", nargs="*")
    options = parser.parse_args()

    work = pathlib.Path(options.work)
    platform, module, build = work / "platform", work / "module", work / "build"
    for prefix in (platform, module):
        shutil.rmtree(prefix, ignore_errors=True)
    step(options.cmake, "--install", options.build, "--component", "platform", "--prefix", str(platform))
    check_platform(platform)

    # The cache is made anew, the objects stay: a second run compiles what changed.
    step(options.cmake, "--fresh", "-G", "Ninja", "-S", options.source, "-B", str(build),
         "-DSTBUI_PLATFORM=external", f"-DCMAKE_PREFIX_PATH={platform}", "-DSTBUI_BUILD_TESTS=OFF",
         "-DSTBUI_BUILD_GALLERY=OFF", "-DSTBUI_BUILD_BENCHMARKS=OFF",
         *(f"-D{definition}" for definition in options.define))
    step(options.cmake, "--build", str(build))
    step(options.cmake, "--install", str(build), "--prefix", str(module))
    check_module(module, pathlib.Path(options.build) / "qml" / "Stbui/UI/Qml/Controls/Basic")
    if options.command:
        places = {"@PLATFORM@": str(platform), "@MODULE@": str(module)}
        command = options.command
        for place, prefix in places.items():
            command = [word.replace(place, prefix) for word in command]
        step(*command)


if __name__ == "__main__":
    main()
