#!/usr/bin/env bash
# Installs what is missing, builds, and runs the tests: scripts/test.sh [release|qt6|asan|fuzz|tree|windows]...
# By default all; the Windows edition only where the toolkit for it has been built, which alone takes a quarter of an
# hour.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" "${test_packages[@]}"

folders=(app checksum settings locale update ui)

# test_preset NAME: warnings are errors.
test_preset() {
    echo "== $1"
    cmake --preset "$1" -DORVANTA_WARNINGS_AS_ERRORS=ON
    cmake --build --preset "$1"
    ctest --preset "$1"
}

# What is looked at without running it: format, include directions, clang-tidy.
test_tree() {
    echo "== tree"
    find "${folders[@]}" tests bench fuzz -name '*.cpp' -o -name '*.h' | xargs clang-format --dry-run -Werror
    scripts/check-includes.sh
    cmake --preset release -DORVANTA_WARNINGS_AS_ERRORS=ON >/dev/null
    cmake --build --preset release >/dev/null # generated headers
    find "${folders[@]}" -name '*.cpp' ! -name '*_windows.cpp' |
        xargs -P 2 -n 2 clang-tidy --quiet -p build/release 2>/dev/null
}

parts="release qt6 asan fuzz tree"
untested=""
if [[ $# -eq 0 ]]; then
    if scripts/windows-qt.sh --cached >/dev/null; then
        parts+=" windows"
    else
        untested=" NOT tested: the Windows edition. scripts/test-windows.sh builds its toolkit first, once, and tests it."
    fi
fi

for part in "${@:-$parts}"; do
    for name in $part; do
        case $name in
        release | qt6 | asan | fuzz) test_preset "$name" ;;
        tree) test_tree ;;
        windows)
            echo "== windows"
            scripts/test-windows.sh
            ;;
        *)
            echo "test.sh: no such part: $name" >&2
            exit 2
            ;;
        esac
    done
done
echo "All tests passed.$untested"
