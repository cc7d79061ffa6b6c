# SPDX-License-Identifier: MIT
"""Every QML file of the tree passes qmllint, with the build's modules as import path."""

import argparse
import pathlib
import subprocess
import sys

LEFT_OUT = ("build", ".git")


def main():
    parser = argparse.ArgumentParser()
    for name in ("source", "qml", "program"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    source = pathlib.Path(options.source)
    files = sorted(str(path) for path in source.rglob("*.qml")
                   if path.relative_to(source).parts[0] not in LEFT_OUT)
    if not files:
        print("There is no QML file yet.")
        return 0
    result = subprocess.run([options.program, "-I", options.qml, *files], cwd=source, check=False)
    print(f"{len(files)} files, qmllint ended with {result.returncode}")
    return 1 if result.returncode else 0


if __name__ == "__main__":
    sys.exit(main())
