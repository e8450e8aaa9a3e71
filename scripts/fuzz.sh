#!/usr/bin/env bash
# Builds the fuzz targets and runs each for so many minutes, two at a time: scripts/fuzz.sh MINUTES [TARGET]... What they
# learn is kept in build/fuzz/corpus for the next run.
set -euo pipefail
cd "$(dirname "$0")/.."
[[ ${1:-} =~ ^[0-9]+$ ]] || {
    echo "usage: scripts/fuzz.sh MINUTES [TARGET]..." >&2
    exit 2
}
seconds=$(($1 * 60))
shift
[[ $# -gt 0 ]] || set -- $(ls fuzz/seeds)
. scripts/packages.sh
install_missing "${build_packages[@]}" "${test_packages[@]}"
cmake --preset fuzz -DORVANTA_WARNINGS_AS_ERRORS=ON >/dev/null
cmake --build --preset fuzz

for target in "$@"; do
    mkdir -p "build/fuzz/corpus/$target"
done
failed=0
printf '%s\n' "$@" | xargs -P 2 -I TARGET bash -c \
    "fuzz/run build/fuzz/bin/TARGET fuzz/seeds/TARGET build/fuzz/corpus/TARGET $seconds >build/fuzz/TARGET.log 2>&1" ||
    failed=1

total=0
for target in "$@"; do
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "build/fuzz/$target.log")
    if [[ -z $runs ]]; then
        tail -n 40 "build/fuzz/$target.log"
    fi
    printf '%-14s %12s executions\n' "$target" "${runs:-no}"
    total=$((total + ${runs:-0}))
done
printf '%-14s %12s executions\n' "all" "$total"
exit "$failed"
