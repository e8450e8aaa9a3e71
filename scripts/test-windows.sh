#!/usr/bin/env bash
# Makes the Windows editions, twice and in two places, compares, and tests them under Wine: without a display and with
# one. Installs what is missing first.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" "${windows_packages[@]}" "${windows_test_packages[@]}"

place=$(mktemp -d)
# For root nothing is unreadable, so root's tests run as somebody else.
as_user=()
[[ $(id -u) -ne 0 ]] || as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups)
end_wine() {
    "${as_user[@]}" env WINEPREFIX="$place/wine" /usr/lib/wine/wineserver64 "$@" 2>/dev/null || true
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
cp -r tests/windows "$place/tests"
cp build/windows/tests/*.exe build/windows/tests/*.dll tests/support/with-display tests/data/command-lines.tsv "$place"
chmod 755 "$place"
[[ ${#as_user[@]} -eq 0 ]] || chown -R 65534:65534 "$place"

export HOME=$place/home TMPDIR=$place/tmp LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1
export WINEPREFIX=$place/wine WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml=" # without questions for add-ons
export ORVANTA_PACKAGES=$place/packages ORVANTA_TOOLS=$place ORVANTA_DATA=$place
unset DISPLAY WAYLAND_DISPLAY
cd "$place/tests"
"${as_user[@]}" /usr/lib/wine/wine64 wineboot -i
end_wine -k
end_wine -w

echo "== without a display"
"${as_user[@]}" /usr/bin/python3 -m unittest -v test_files test_command_lines
end_wine -k # the desktop that cannot be seen goes with it
end_wine -w
echo "== with a display"
"${as_user[@]}" "$place/with-display" /usr/bin/python3 -m unittest -v test_command_lines test_window test_installer
echo "The Windows editions are fine."
