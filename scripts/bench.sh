#!/usr/bin/env bash
# Measures how fast Orvanta is, beside what others need for the same, and prints goals and figures. Installs what is
# missing and builds first. Nothing else should run meanwhile; docs/performance.md says how it is measured.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" "${bench_packages[@]}"
cmake --preset bench >/dev/null
cmake --build --preset bench >/dev/null

bin=build/bench/bin
echo "$(openssl version); $(sed -n 's/^model name\s*: //p' /proc/cpuinfo | head -n 1), $(nproc) cores"
echo
echo "| what | goal | figure | | |"
echo "|---|---|---|---|---|"
# Bit 29 of the word that the processor tells its SHA instructions in.
OPENSSL_ia32cap=:~0x20000000 "$bin/bench_record" masked
env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=minimal "$bin/bench_record" "$bin/orv" "$bin/bareapplication"
start=$(tests/support/with-display "$bin/bench_start" "$bin/orv" "$bin/emptywindow" || true)
echo "| first window, time to an empty window's | <= 1.20 | ${start##*ratio } | | ${start%, ratio*} |"
