#!/usr/bin/env bash
# Makes the Windows editions, twice and in two places, compares, and tests them under Wine: without a display and with
# one. Installs what is missing first.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" "${windows_packages[@]}" "${windows_test_packages[@]}"

place=$(mktemp -d)
# Nothing is forbidden to root, but the permissions of files bind a process without these two privileges.
bound=()
[[ $(id -u) -ne 0 ]] || bound=(setpriv --bounding-set=-dac_override,-dac_read_search)
end_wine() {
    WINEPREFIX=$place/wine /usr/lib/wine/wineserver64 "$@" 2>/dev/null || true
}
finish() {
    end_wine -k
    end_wine -w
    rm -rf "$place"
}
trap finish EXIT

SOURCE_DATE_EPOCH=$(scripts/source-date.sh)
ORVANTA_WINDOWS_QT=${ORVANTA_WINDOWS_QT:-$(scripts/windows-qt.sh)}
export SOURCE_DATE_EPOCH ORVANTA_WINDOWS_QT
scripts/windows.sh "$place/packages"

echo "== tree"
headers=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
find app settings ui update -name '*_windows.cpp' |
    xargs clang-tidy --quiet -p build/windows --extra-arg=--target=x86_64-w64-mingw32 \
        "--extra-arg=-isystem$headers" "--extra-arg=-isystem$headers/x86_64-w64-mingw32" 2>/dev/null

echo "== the same bytes in another place"
mkdir "$place/again"
git ls-files -z --cached --others --exclude-standard | xargs -0 cp --parents -t "$place/again"
"$place/again/scripts/windows.sh" "$place/packages-again" >/dev/null
diff -r "$place/packages" "$place/packages-again"
rm -rf "$place/again" "$place/packages-again"

mkdir "$place/tmp" "$place/home"
export HOME=$place/home TMPDIR=$place/tmp LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
export WINEPREFIX=$place/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=" # without questions for add-ons
export ORVANTA_PACKAGES=$place/packages ORVANTA_TOOLS=$PWD/build/windows/tests ORVANTA_DATA=$PWD/tests/data
unset DISPLAY WAYLAND_DISPLAY
cd tests/windows
"${bound[@]}" /usr/lib/wine/wine64 wineboot -i
end_wine -k
end_wine -w

echo "== without a display"
"${bound[@]}" /usr/bin/python3 -m unittest -v test_files test_command_lines
end_wine -k # the desktop that cannot be seen goes with it
end_wine -w
echo "== with a display"
"${bound[@]}" ../support/with-display /usr/bin/python3 -m unittest -v test_command_lines test_window test_installer
echo "The Windows editions are fine."
