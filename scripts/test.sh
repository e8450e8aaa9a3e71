#!/usr/bin/env bash
# Installs what is missing, builds, and runs the tests: scripts/test.sh [release|qt6|asan|fuzz|tree]...   (all by default)
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

for part in "${@:-release qt6 asan fuzz tree}"; do
    for name in $part; do
        case $name in
        release | qt6 | asan | fuzz) test_preset "$name" ;;
        tree) test_tree ;;
        *)
            echo "test.sh: no such part: $name" >&2
            exit 2
            ;;
        esac
    done
done
echo "All tests passed."
