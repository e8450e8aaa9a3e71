#!/usr/bin/env bash
# Runs the check that README shows, on the program given: check-readme.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
cd "$(dirname "$0")/.."

example=$(grep -m 1 -oE '^scripts/run\.sh /a [^&]+ && echo VALID$' README.md)
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cp LICENSE "$place"
cd "$place"
[[ $(QT_QPA_PLATFORM=offscreen bash -c "${example/scripts\/run.sh/\"$program\"}") == VALID ]]
