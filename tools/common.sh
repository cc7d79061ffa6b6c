# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034
# What the programs of this folder share: the Debian packages they need, and how a preset is built.
# Sourced with the caller's "set -euo pipefail".

unset CDPATH
export LC_ALL=C.UTF-8 LANGUAGE=
PATH=/usr/local/bin:/usr/bin:/bin:/usr/local/sbin:/usr/sbin:/sbin:${PATH:-}
# The checkout, whatever folder the caller is in.
STB_ROOT=$(cd -P -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
STB_CACHE=${XDG_CACHE_HOME:-${HOME:-/tmp}/.cache}/stbui
readonly STB_ROOT STB_CACHE

# Exit codes other than 0 and 1.
readonly EXIT_USAGE=2 EXIT_PACKAGES=3

# The packages have the same names in Debian 12, 13 and testing.
STB_PACKAGES_BUILD=(
    ca-certificates ccache cmake g++ git ninja-build python3 zlib1g-dev
    qt6-base-dev qt6-base-private-dev qt6-declarative-dev qt6-declarative-private-dev
    qt6-declarative-dev-tools qt6-l10n-tools qt6-tools-dev)
STB_PACKAGES_RUN=(
    fonts-dejavu-core qml-qt6 qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-templates qml6-module-qtquick-window)
# Qt Quick Controls are what the benchmarks compare with; nothing else of the project uses them.
STB_PACKAGES_TEST=(libgl1-mesa-dri qml6-module-qtquick-controls qml6-module-qttest xauth xvfb)
STB_PACKAGES_LINT=(clang-format-14 clang-tidy-14 shellcheck)
STB_PACKAGES_DRAWING=(librsvg2-bin)
STB_PACKAGES_MATRIX=(ca-certificates git mmdebstrap)

say() { printf '%s\n' "$*"; }
fail() { # <exit code> <message>
    printf '%s: %s\n' "${0##*/}" "$2" >&2
    exit "$1"
}

# need_packages <package>...: installs what is missing when root, else prints the line that would.
need_packages() {
    local -A installed=()
    local -a missing=()
    local package status
    if ! command -v dpkg-query >/dev/null; then
        say "note: this is no Debian system; the programs of these packages have to be there: $*" >&2
        return 0
    fi
    while read -r package status; do
        [[ $status == installed ]] && installed[$package]=1
    done < <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true)
    for package in "$@"; do
        [[ -n ${installed[$package]:-} ]] || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    if ((EUID != 0)); then
        say "Packages are missing. Install them with:" >&2
        say "  sudo apt-get install --no-install-recommends ${missing[*]}" >&2
        exit "$EXIT_PACKAGES"
    fi
    say "Installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -q </dev/null || say "note: apt-get update failed; going on with the lists there are" >&2
    apt-get install -q -y --no-install-recommends "${missing[@]}" </dev/null ||
        fail "$EXIT_PACKAGES" "apt-get could not install: ${missing[*]}"
}

# configure_preset <preset>: only when the build folder is not there yet; the build itself notices changes.
# STBUI_CMAKE_OPTIONS: more arguments for CMake, separated by blanks.
configure_preset() {
    local -a options
    read -ra options <<<"${STBUI_CMAKE_OPTIONS:-}"
    [[ -f $STB_ROOT/build/$1/build.ninja ]] || (cd "$STB_ROOT" && cmake --preset "$1" "${options[@]}")
}

# build_preset <preset> [<target>...]
build_preset() {
    local preset=$1
    shift
    configure_preset "$preset"
    cmake --build "$STB_ROOT/build/$preset" ${1:+--target "$@"}
}
