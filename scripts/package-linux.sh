#!/usr/bin/env bash
# Makes the Debian package: package-linux.sh [FOLDER], "build/packages" by default. The same commit makes the same bytes.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" dpkg-dev file

folder=${1:-build/packages}
build=build/package
SOURCE_DATE_EPOCH=$(scripts/source-date.sh)
export SOURCE_DATE_EPOCH
rm -rf "$build"
cmake --preset package >/dev/null
cmake --build "$build" >/dev/null
mkdir -p "$folder"
(umask 022 && cpack --config "$build/CPackConfig.cmake" -B "$folder" >/dev/null)
rm -rf "$folder/_CPack_Packages"
ls "$folder"/orvanta_*.deb
