#!/usr/bin/env bash
# Prints the date that packages bear, in seconds since 1970: the last commit's, or, without a history, the changelog's.
# SOURCE_DATE_EPOCH in the environment has the first word.
set -euo pipefail
cd "$(dirname "$0")/.."
echo "${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null ||
    date -d "$(sed -n 's/^ -- .*>  //p' packaging/linux/changelog)" +%s)}"
