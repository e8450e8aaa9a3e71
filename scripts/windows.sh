#!/usr/bin/env bash
# Makes the Windows editions, a zip to carry around and an installer: windows.sh [FOLDER], "build/packages" by default.
# Installs the toolchain and builds the toolkit for it first, once. The same commit makes the same bytes.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" "${windows_packages[@]}"
ORVANTA_WINDOWS_QT=${ORVANTA_WINDOWS_QT:-$(scripts/windows-qt.sh)} # who has one already names it
export ORVANTA_WINDOWS_QT

folder=${1:-build/packages}
mkdir -p "$folder"
folder=$(cd "$folder" && pwd)
build=$PWD/build/windows
# Afresh, since a cache of another toolkit would go on using that one.
cmake --fresh --preset windows -DORVANTA_WARNINGS_AS_ERRORS=ON >/dev/null
cmake --build "$build"

# cached NAME: the value of one of the build's variables.
cached() {
    sed -n "s/^$1:[A-Z]*=//p" "$build/CMakeCache.txt"
}
version=$(cached CMAKE_PROJECT_VERSION)
name=orvanta-$version
date=$(scripts/source-date.sh)
export SOURCE_DATE_EPOCH=$date TZ=UTC

stage=$build/stage/$name
rm -rf "$build/stage"
(umask 022 && cmake --install "$build" --prefix "$stage" >/dev/null)
install -m 644 "$ORVANTA_WINDOWS_QT/third-party-notices.txt" "$stage/third-party-notices.txt"

# The installer gets two lists: what it puts where, and what its uninstaller takes away again.
lists=$build/lists
mkdir -p "$lists"
rm -f "$lists"/*.nsh
(cd "$stage" && find . -type f | sort) | while read -r file; do
    file=${file#./}
    inside=$(dirname "$file")
    [[ $inside == . ]] && inside='' || inside="\\${inside//\//\\}"
    printf 'SetOutPath "$INSTDIR%s"\nFile "%s"\n' "$inside" "$stage/$file" >>"$lists/install.nsh"
    printf 'Delete "$INSTDIR\\%s"\n' "${file//\//\\}" >>"$lists/uninstall.nsh"
done
(cd "$stage" && find . -mindepth 1 -type d | sort -r) | while read -r inner; do
    inner=${inner#./}
    printf 'RMDir "$INSTDIR\\%s"\n' "${inner//\//\\}" >>"$lists/uninstall.nsh"
done
find "$stage" -exec touch --no-dereference --date="@$date" {} +
rm -f "$folder/$name-setup.exe" "$folder/$name-portable.zip"
makensis -V2 -WX -NOCD "-DSTAGE=$stage" "-DLISTS=$lists" "-DVERSION=$version" "-DADDRESS=$(cached ORVANTA_WEB_ADDRESS)" \
    "-DOUTPUT=$folder/$name-setup.exe" packaging/windows/orvanta.nsi

# Carried around, the program keeps its data beside itself; the marker tells it to.
: >"$stage/portable"
touch --date="@$date" "$stage/portable"
(cd "$build/stage" && find "$name" -type f | LC_ALL=C sort >"$lists/zip" &&
    cmake -E tar cf "$folder/$name-portable.zip" --format=zip --files-from="$lists/zip")

echo "orv.exe: $(stat -c %s "$stage/orv.exe") bytes"
ls "$folder/$name-portable.zip" "$folder/$name-setup.exe"
