# SPDX-License-Identifier: MIT
"""clang-format, clang-tidy, qmllint and shellcheck over this project's files. Started by tools/lint.

clang-tidy is slow, so that a source found clean is not looked at again while everything its result
depends on is the same: the source, every header it reads, the compile command and the configuration.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "dev"
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "stbui" / "lint"
CLANG_VERSION = "14"
CXX = (".cpp", ".h")
QMLLINT_CANDIDATES = ("/usr/lib/qt6/bin/qmllint", "qmllint6", "qmllint")


def run(command, **options):
    return subprocess.run(command, cwd=ROOT, stdin=subprocess.DEVNULL, text=True, errors="replace",
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False, **options)


def git(*arguments):
    """The lines that git prints, or None when it fails (no repository, no such branch)."""
    result = subprocess.run(["git", "-c", f"safe.directory={ROOT}", "-c", "core.quotePath=false", *arguments],
                            cwd=ROOT, stdin=subprocess.DEVNULL, text=True, capture_output=True, check=False)
    return result.stdout.splitlines() if result.returncode == 0 else None


def all_files():
    files = git("ls-files", "--cached", "--others", "--exclude-standard")
    if files is None:  # an unpacked archive
        files = [str(path.relative_to(ROOT)) for path in ROOT.rglob("*") if path.is_file()]
        files = [file for file in files if not file.startswith(("build/", ".git/"))]
    return sorted({file for file in files if (ROOT / file).is_file()})


def changed_files():
    """What differs from the main branch, committed or not."""
    base = None
    for branch in ("origin/main", "main"):
        merge_base = git("merge-base", branch, "HEAD")
        if merge_base:
            base = merge_base[0]
            break
    differing = git("diff", "--name-only", base or "HEAD")
    untracked = git("ls-files", "--others", "--exclude-standard")
    if differing is None or untracked is None:
        sys.exit("lint: this is no git checkout, only --all works")
    return sorted(file for file in {*differing, *untracked} if (ROOT / file).is_file())


def is_shell_script(file):
    path = ROOT / file
    if path.suffix == ".sh":
        return True
    if path.suffix:
        return False
    with path.open("rb") as opened:
        return re.match(rb"#!.*\b(ba|da)?sh\b", opened.readline()) is not None


def tool(name, wanted=CLANG_VERSION):
    """The program in the version whose findings and layout this tree agrees with."""
    for candidate in (f"{name}-{wanted}", name):
        path = shutil.which(candidate)
        if path and re.search(rf"version {wanted}\.", run([path, "--version"]).stdout):
            return path
    sys.exit(f"lint: {name} {wanted} is not there (package {name}-{wanted})")


# --- clang-format, shellcheck, qmllint ------------------------------------------------------------------

def check_format(files, fix):
    sources = [file for file in files if file.endswith(CXX)]
    if not sources:
        return 0, []
    program = tool("clang-format")
    if fix:
        run([program, "-i", *sources])
    output = run([program, "--dry-run", "--Werror", *sources]).stdout
    bad = sorted({match.group(1) for match in re.finditer(r"^(\S.*?):\d+:\d+: error:", output, re.M)})
    return len(sources), [f"{file}: not formatted (tools/lint --fix does it)" for file in bad]


def check_shell(files):
    scripts = [file for file in files if is_shell_script(file)]
    if not scripts:
        return 0, []
    result = run(["shellcheck", "--external-sources", "--format=gcc", *scripts])
    return len(scripts), result.stdout.splitlines() if result.returncode else []


def import_folders():
    """The folders that the build's QML modules are imported from: a module A.B lies in FOLDER/A/B."""
    folders = set()
    for qmldir in BUILD.rglob("qmldir"):
        match = re.match(r"module (\S+)", qmldir.read_text("utf-8"))
        depth = match.group(1).count(".") + 1 if match else 0
        if depth and qmldir.parent.parts[-depth:] == tuple(match.group(1).split(".")):
            folders.add(qmldir.parents[depth])
    # A test installs the modules once more below its own folder.
    return sorted(folder for folder in folders if BUILD / "tests" not in folder.parents)


def check_qml(files):
    sources = [file for file in files if file.endswith(".qml")]
    if not sources:
        return 0, []
    program = next((path for path in map(shutil.which, QMLLINT_CANDIDATES) if path), None)
    if program is None:
        sys.exit("lint: qmllint is not there (package qt6-declarative-dev-tools)")
    imports = [word for folder in import_folders() for word in ("-I", str(folder))]
    result = run([program, *imports, *sources])
    # Qt 6.4 ends with 255 on any warning, later versions with 0 unless told the number of warnings allowed.
    found = result.returncode != 0 or re.search(r"^(Warning|Error)\b", result.stdout, re.M)
    return len(sources), [result.stdout.rstrip()] if found else []


# --- clang-tidy -----------------------------------------------------------------------------------------

class Digests:
    """Content digests of files, each read once. A system header counts by its size and time."""

    def __init__(self):
        self.known = {}

    def of(self, path):
        if path not in self.known:
            try:
                if path.startswith("/usr/"):
                    status = os.stat(path)
                    self.known[path] = f"{status.st_size} {status.st_mtime_ns}"
                else:
                    with open(path, "rb") as opened:
                        self.known[path] = hashlib.sha256(opened.read()).hexdigest()
            except OSError:
                self.known[path] = "missing"
        return self.known[path]


def header_lists():
    """Object file -> the files it was compiled from, as the build recorded them."""
    lists, current = {}, None
    for line in run(["ninja", "-C", str(BUILD), "-t", "deps"]).stdout.splitlines():
        if line.startswith("    ") and current is not None:
            current.append(os.path.normpath(BUILD / line.strip()))
        elif ": #deps" in line:
            current = lists.setdefault(line.split(": #deps")[0], [])
    return lists


def reading_headers(command):
    """The command without a precompiled header, which clang-tidy could not read: GCC made it."""
    return re.sub(r" -Winvalid-pch| -include \S*/cmake_pch\.hxx", "", command)


def headers_read(name, lists):
    """What an object was compiled from, with what a precompiled header stands for."""
    read = set()
    for path in lists.get(name, []):
        inside = lists.get(os.path.relpath(path, BUILD), []) if path.endswith(".gch") else [path]
        read.update(file for file in inside if "/cmake_pch." not in file)
    return read


def translation_units():
    """
    Path in the tree -> its compile command and the headers it reads. Generated sources are left out.
    Writes the commands where clang-tidy finds them.
    """
    database = BUILD / "compile_commands.json"
    if not database.is_file():
        sys.exit(f"lint: {BUILD} is not configured; run tools/lint without --no-build")
    lists = header_lists()
    units, entries = {}, json.loads(database.read_text())
    for entry in entries:
        entry["command"] = reading_headers(entry["command"])
        path = os.path.normpath(os.path.join(entry["directory"], entry["file"]))
        if not path.startswith(f"{ROOT}/") or path.startswith(f"{ROOT}/build/"):
            continue
        words = shlex.split(entry["command"])
        target = words[words.index("-o") + 1] if "-o" in words else ""
        units[path[len(str(ROOT)) + 1:]] = (entry["command"], headers_read(target, lists))
    write_commands(entries)
    return units


def write_commands(entries):
    (BUILD / "lint").mkdir(exist_ok=True)
    (BUILD / "lint" / "compile_commands.json").write_text(json.dumps(entries))


def configuration_of(file):
    """The .clang-tidy files that hold for a source, outermost first."""
    folders = list(pathlib.PurePath(file).parents)[::-1]
    return [str(ROOT / folder / ".clang-tidy") for folder in folders if (ROOT / folder / ".clang-tidy").is_file()]


def tidy_key(file, unit, program, digests):
    """A name for everything a result depends on, or None when the build has not recorded the headers."""
    command, headers = unit
    if not headers:
        return None
    digest = hashlib.sha256()
    status = os.stat(os.path.realpath(program))
    parts = [f"2 {status.st_size} {status.st_mtime_ns}", file, command.replace(str(ROOT), "@")]
    for path in [*configuration_of(file), str(ROOT / file), *sorted(headers)]:
        parts.append(f"{path.replace(str(ROOT), '@')} {digests.of(path)}")
    for part in parts:
        digest.update(part.encode() + b"\0")
    return digest.hexdigest()


def findings_in(output):
    """The findings' lines with what explains them, without the counts of suppressed warnings."""
    noise = re.compile(r"^\d+ warnings?( and \d+ errors?)? generated|^\d+ errors? generated|^Suppressed "
                       r"|^Use -header-filter|^\d+ warnings? treated as|^Error while processing")
    return "\n".join(line for line in output.splitlines() if not noise.match(line)).strip()


def is_known(key):
    return key is not None and (CACHE / key[:2] / key).exists()


def remember(key):
    if key is not None:
        (CACHE / key[:2]).mkdir(parents=True, exist_ok=True)
        (CACHE / key[:2] / key).touch()


def tidy_one(program, file, key):
    if is_known(key):
        remember(key)
        return file, "", True
    result = run([program, "-p", str(BUILD / "lint"), "--quiet", str(ROOT / file)])
    if result.returncode == 0:
        remember(key)
        return file, "", False
    return file, findings_in(result.stdout) or f"{file}: clang-tidy ended with {result.returncode}", False


# Most of the time goes into Qt's headers, so that sources which are compiled alike are read as one, up to so many.
SOURCES_AT_ONCE = 8


def own_names(file):
    """Names that a source may have for itself: two sources that both have one cannot be read as one."""
    text = (ROOT / file).read_text(errors="replace")
    return {*re.findall(r"^(?=\S)(?:[\w:<>,*&\[\] ]+[ *&])?(\w+)\(", text, re.M),
            *re.findall(r"^(?:static |inline )*const\w* .*?(\w+)(?: =|\{| \{|\[|\()", text, re.M),
            *re.findall(r"^(?:struct|class|enum class|enum|using(?! namespace)) (\w+)(?!.*;$)", text, re.M),
            *re.findall(r"^#define (\w+)", text, re.M)}


def bundles_of(files, units):
    """The sources in lists of those that are read as one."""
    bundles = []
    for file in files:
        command = units[file][0]
        words = shlex.split(command)
        alike = " ".join(word for word in words if not word.endswith((file, ".o", ".d")))
        names = own_names(file)
        for bundle in bundles:
            if (bundle["alike"] == alike and len(bundle["files"]) < SOURCES_AT_ONCE
                    and bundle["names"].isdisjoint(names)):
                bundle["files"].append(file)
                bundle["names"] |= names
                break
        else:
            bundles.append({"alike": alike, "files": [file], "names": names})
    return [bundle["files"] for bundle in bundles]


def tidy_bundle(program, number, files, units, keys):
    """
    The result of each source. Findings count only when the source was read on its own; what is read as one and
    clean is clean, but for using declarations nobody needs, which clang-tidy looks for in the main file.
    """
    known = [file for file in files if is_known(keys[file])]
    files = [file for file in files if file not in known]
    results = [tidy_one(program, file, keys[file]) for file in known]
    if len(files) > 1:
        bundle = BUILD / "lint" / f"bundle_{number}"
        bundle.mkdir(exist_ok=True)
        source = bundle / "sources.cpp"
        source.write_text("".join(f'#include "{ROOT / file}" // NOLINT(bugprone-suspicious-include)\n'
                                  for file in files))
        command = units[files[0]][0].replace(str(ROOT / files[0]), str(source))
        (bundle / "compile_commands.json").write_text(json.dumps(
            [{"directory": str(BUILD), "command": command, "file": str(source)}]))
        header_filter = re.search(r"^HeaderFilterRegex: '(.*)\\\.h\$'$", (ROOT / ".clang-tidy").read_text(), re.M)[1]
        result = run([program, "-p", str(bundle), "--quiet", f"--header-filter={header_filter}", str(source)])
        if result.returncode == 0:
            for file in files:
                remember(keys[file])
            return results + [(file, "", False) for file in files]
    return results + [tidy_one(program, file, keys[file]) for file in files]


def forget_old_results():
    limit = time.time() - 30 * 24 * 3600
    for path in CACHE.glob("*/*"):
        if path.stat().st_mtime < limit:
            path.unlink(missing_ok=True)


def units_to_check(files, units, everything):
    if everything or any(pathlib.PurePath(file).name == ".clang-tidy" for file in files):
        return sorted(units)
    changed = {str(ROOT / file) for file in files}
    return sorted(file for file, (_, headers) in units.items()
                  if str(ROOT / file) in changed or not changed.isdisjoint(headers))


def check_tidy(files, everything, shipped, jobs):
    units = translation_units()
    chosen = units_to_check(files, units, everything)
    if shipped:
        chosen = [file for file in chosen if not file.startswith(("tests/", "benchmarks/"))]
    missing = [f"{file}: no target compiles this source" for file in files
               if file.endswith(".cpp") and file not in units]
    if not chosen:
        return 0, 0, missing
    program, digests = tool("clang-tidy"), Digests()
    keys = {file: tidy_key(file, units[file], program, digests) for file in chosen}
    seen, findings, cached = set(), list(missing), 0
    bundles = bundles_of(chosen, units) if everything else [[file] for file in chosen]
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        checks = [pool.submit(tidy_bundle, program, number, bundle, units, keys)
                  for number, bundle in enumerate(bundles)]
        for check in checks:
            for _, output, was_cached in check.result():
                cached += was_cached
                if output and output not in seen:
                    seen.add(output)
                    findings.append(output)
                    print(output, flush=True)
    forget_old_results()
    return len(chosen), cached, findings


# --- the whole ------------------------------------------------------------------------------------------

def parse_arguments():
    parser = argparse.ArgumentParser(prog="tools/lint", description="Checks the layout and the sense of the "
                                     "sources: what differs from main, or what is named, or everything.")
    parser.add_argument("--all", action="store_true", help="check every file of the tree")
    parser.add_argument("--fix", action="store_true", help="let clang-format change the files")
    parser.add_argument("--no-build", action="store_true", help="take build/dev as it is")
    parser.add_argument("--no-tidy", action="store_true", help="leave out clang-tidy, the slow one")
    parser.add_argument("--shipped", action="store_true",
                        help="clang-tidy leaves out tests and benchmarks, which are most of the sources")
    parser.add_argument("--only", metavar="CHECK", help="clang-format, qmllint, shellcheck or clang-tidy")
    parser.add_argument("--build", metavar="FOLDER", default=BUILD, help="the build instead of build/dev")
    parser.add_argument("--jobs", type=int, default=len(os.sched_getaffinity(0)), help="clang-tidy processes")
    parser.add_argument("files", nargs="*", help="files to check, relative to the current folder")
    return parser.parse_args()


def chosen_files(options):
    if options.files:
        return sorted(os.path.relpath(os.path.realpath(file), ROOT) for file in options.files)
    return all_files() if options.all else changed_files()


def report(name, count, findings, started, note="", shown=False):
    if not shown:
        for finding in findings:
            print(finding)
    verdict = f"{len(findings)} with findings" if findings else "clean"
    print(f"{name + ':':14}{count} files, {verdict}{note} ({time.monotonic() - started:.1f} s)", flush=True)
    return bool(findings)


def main():
    global BUILD
    options = parse_arguments()
    BUILD = pathlib.Path(options.build).resolve()
    files = chosen_files(options)
    checks = (("clang-format", lambda: check_format(files, options.fix)), ("qmllint", lambda: check_qml(files)),
              ("shellcheck", lambda: check_shell(files)))
    failed = False
    for name, check in checks:
        if options.only not in (None, name):
            continue
        started = time.monotonic()
        count, findings = check()
        failed |= report(name, count, findings, started)
    if not options.no_tidy and options.only in (None, "clang-tidy"):
        started = time.monotonic()
        count, cached, findings = check_tidy(files, options.all, options.shipped, options.jobs)
        failed |= report("clang-tidy", count, findings, started, f", {cached} known from before", shown=True)
    print("lint: FAILED" if failed else "lint: clean")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
