#!/usr/bin/env bash
# Starts Orvanta with the arguments given and returns its exit code. Installs what is missing and builds first.
set -euo pipefail
tree=$(cd "$(dirname "$0")/.." && pwd)
# shellcheck source=scripts/packages.sh
. "$tree/scripts/packages.sh"
install_missing "${build_packages[@]}"

# quietly COMMAND...: shows the command's output only if it fails.
quietly() {
    local log
    log=$(mktemp)
    "$@" >"$log" 2>&1 || {
        cat "$log" >&2
        exit 1
    }
    rm -f "$log"
}

build() {
    cd "$tree"
    if [[ ! -x build/run/bin/orv ]]; then
        echo "Building Orvanta" >&2
        quietly cmake --preset release -B build/run -DORVANTA_TESTS=OFF
    fi
    quietly cmake --build build/run
}

(build)
exec "$tree/build/run/bin/orv" "$@"
