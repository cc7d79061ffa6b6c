# SPDX-License-Identifier: MIT
"""Runs Qt's plain qml runtime on a document and checks how it ends and what it prints.

qmlruntime.py --runtime PROGRAM [-I FOLDER]... [--library-path FOLDER] [--preload FILE]
              [--message REGEX]... [--fails] (--document TEXT | --readme FILE [--example NUMBER])

The document must end the runtime itself. Standard output and error hold exactly the lines that match the
expected messages, one each, in this order; with --fails the runtime ends with an error, else with 0.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TIME_LIMIT = 60

# The document of a README is what a user pastes: it stays as it is and is wrapped in one that ends.
WRAPPER = """import QtQuick
Example {
    Component.onCompleted: {
        console.log("example loaded", width > 0, height > 0)
        Qt.callLater(Qt.quit)
    }
}
"""


def environment(options):
    """The least that a program needs, whatever the shell of the test run has set."""
    kept = {name: os.environ[name] for name in ("PATH", "HOME") if name in os.environ}
    folder = options.folder
    kept |= {"LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "offscreen", "QT_QUICK_BACKEND": "software",
             "XDG_RUNTIME_DIR": folder, "XDG_CACHE_HOME": folder, "XDG_CONFIG_HOME": folder,
             "QT_FORCE_STDERR_LOGGING": "1", "QML_DISABLE_DISK_CACHE": "1"}
    if options.library_path:
        kept["LD_LIBRARY_PATH"] = options.library_path
    if options.preload:
        # The variable is a list with blanks between its entries, and the build's path may have some.
        preload = pathlib.Path(folder) / "preload.so"
        preload.symlink_to(options.preload)
        kept["LD_PRELOAD"] = str(preload)
    return kept


def readme_example(readme, number):
    blocks = re.findall(r"^```qml\n(.*?)^```$", pathlib.Path(readme).read_text("utf-8"), re.S | re.M)
    if len(blocks) < number:
        sys.exit(f"{readme} has {len(blocks)} QML examples; expected {number} or more")
    return blocks[number - 1]


def write_document(options):
    folder = pathlib.Path(options.folder)
    main = folder / "main.qml"
    if options.readme:
        (folder / "Example.qml").write_text(readme_example(options.readme, options.example), "utf-8")
        main.write_text(WRAPPER, "utf-8")
    else:
        main.write_text(options.document, "utf-8")
    return main


def complaints(options, result):
    lines = [line for line in result.stdout.splitlines() if line.strip()]
    if options.fails and result.returncode == 0:
        yield "the runtime ended with 0; expected an error"
    if not options.fails and result.returncode != 0:
        yield f"the runtime ended with {result.returncode}; expected 0"
    if len(lines) != len(options.message):
        yield f"{len(lines)} lines were printed; expected {len(options.message)}"
    for line, expected in zip(lines, options.message):
        if not re.search(expected, line):
            yield f"this line does not match {expected!r}: {line}"


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--runtime", required=True)
    parser.add_argument("-I", dest="imports", action="append", default=[])
    parser.add_argument("--library-path")
    parser.add_argument("--preload")
    parser.add_argument("--message", action="append", default=[])
    parser.add_argument("--fails", action="store_true")
    source = parser.add_mutually_exclusive_group(required=True)
    source.add_argument("--document")
    source.add_argument("--readme")
    parser.add_argument("--example", type=int, default=1, metavar="NUMBER", help="of the README's examples")
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as options.folder:
        command = [options.runtime, *(word for path in options.imports for word in ("-I", path))]
        command.append(str(write_document(options)))
        result = subprocess.run(command, cwd=options.folder, env=environment(options), text=True,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                timeout=TIME_LIMIT, check=False)
    wrong = list(complaints(options, result))
    for complaint in wrong:
        print(complaint)
    if wrong:
        print("--- what the runtime printed:", result.stdout, sep="\n")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
