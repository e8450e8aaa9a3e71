#!/usr/bin/env bash
# Who may include whom: checksum and settings nobody, locale and update settings, ui these four, app all; nobody app.
# check-includes.sh [TREE]
set -euo pipefail
cd "${1:-$(dirname "$0")/..}"

declare -A allowed=(
    [checksum]="checksum"
    [settings]="settings"
    [locale]="locale settings"
    [update]="update settings"
    [ui]="ui checksum settings locale update"
    [app]="app ui checksum settings locale update"
)
failures=0
seen=0
for folder in "${!allowed[@]}"; do
    while IFS=: read -r file line include; do
        seen=$((seen + 1))
        target=$(sed -E 's/^[^"]*"([^"/]+)\/.*$/\1/' <<<"$include")
        if [[ " ${allowed[$folder]} " != *" $target "* ]]; then
            echo "$file:$line: $folder must not include $target"
            failures=$((failures + 1))
        fi
    done < <(grep -rnE '^#include "[^"]+/' "$folder" --include='*.cpp' --include='*.h' || true)
done

# The digests are standard C++.
if find checksum -name '*.cpp' -o -name '*.h' | grep -vE 'filechecksum|contentfile' | xargs grep -nE '#include <Q'; then
    echo "the digests must not include Qt"
    failures=$((failures + 1))
fi
[[ $seen -gt 0 ]] || { echo "no include was seen at all"; exit 1; }
[[ $failures -eq 0 ]]
