#!/usr/bin/env bash
# Runs the tests, and every program that they start, under valgrind, and prints what it finds:
# scripts/valgrind.sh [UNIT]... Takes half an hour or so for all. The tests' own verdicts do not count, since nothing is as
# fast as they expect; scripts/test.sh asan runs the same with sanitizers, fast enough for every day.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" "${test_packages[@]}"
cmake --preset release >/dev/null
cmake --build --preset release >/dev/null

units=("$@")
if [[ ${#units[@]} -eq 0 ]]; then
    # Without those that count instructions, hash gigabytes, or do everything thousands of times, or trace programs.
    for unit in build/release/tests/bin/*; do
        case ${unit##*/} in
        counts | hugemessage | endurance | loadedcode) ;;
        *) units+=("${unit##*/}") ;;
        esac
    done
fi

logs=$(mktemp -d)
# Regular expressions in machine code look further than their text goes, where that does no harm.
export LC_ALL=C.UTF-8 QT_ENABLE_REGEXP_JIT=0 logs
under_valgrind() {
    timeout 3000 tests/support/with-display valgrind --trace-children=yes --num-callers=30 --leak-check=no \
        --suppressions="$PWD/tests/support/valgrind.supp" \
        --trace-children-skip='*/xdotool,*/nginx,*/wmctrl,*/import*,*/xclip,*/losetup,*/sh,*/bash,*/md5sum,*/sha1sum,*/head,*/python3*' \
        --log-file="$logs/$1-%p" "build/release/tests/bin/$1/tst_$1" >"$logs/output-$1" 2>&1 || true
    echo "$1: $(tail -n 2 "$logs/output-$1" | head -n 1)"
}
export -f under_valgrind
printf '%s\n' "${units[@]}" | xargs -P 2 -I UNIT bash -c 'under_valgrind UNIT'

# A program that went over to another one leaves a log without an end.
mapfile -t ended < <(grep -l "ERROR SUMMARY" "$logs"/*-[0-9]*)
mapfile -t wrong < <(grep -lE "ERROR SUMMARY: [1-9]" "${ended[@]}")
echo "${#ended[@]} processes, ${#wrong[@]} of them with errors"
[[ ${#wrong[@]} -eq 0 ]] || cat "${wrong[@]}"
[[ ${#wrong[@]} -eq 0 ]]
