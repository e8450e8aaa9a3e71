#!/usr/bin/env bash
# Prints the folder of a static Qt for Windows and builds it there first, once for each recipe: windows-qt.sh [--cached]
#
# The folder is in $ORVANTA_CACHE, "~/.cache/orvanta" by default. The recipe is the options in packaging/windows, the
# version of the compiler and the number below. With --cached nothing is installed or built; without a ready folder that
# fails.
set -euo pipefail
tree=$(cd "$(dirname "$0")/.." && pwd)
# shellcheck source=scripts/packages.sh
. "$tree/scripts/packages.sh"

options=$tree/packaging/windows/qt-options
cache=${ORVANTA_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/orvanta}
compiler=g++-mingw-w64-x86-64-posix
recipe_number=1 # to be counted up with every change below that makes another toolkit

folder() {
    local recipe
    recipe=$({ echo "$recipe_number"
        sed -e 's/#.*//' -e '/^ *$/d' "$options"
        cat "$tree/packaging/windows/notices.py"
        dpkg-query -W -f '${Version}' "$compiler" 2>/dev/null || true; } | sha256sum)
    echo "$cache/windows-qt-${recipe:0:12}"
}

if [[ ${1:-} == --cached ]]; then
    [[ -e $(folder)/third-party-notices.txt ]] || exit 1
    folder
    exit
fi
install_missing "${windows_packages[@]}"
qt=$(folder)
if [[ -e $qt/third-party-notices.txt ]]; then
    echo "$qt"
    exit
fi

# Only one build at a time in one cache; who had to wait finds the folder ready.
mkdir -p "$cache"
exec 9>"$cache/lock"
flock 9
if [[ -e $qt/third-party-notices.txt ]]; then
    echo "$qt"
    exit
fi
work=$cache/work
rm -rf "$work" "$qt"
mkdir -p "$work/state/lists/partial" "$work/cache/archives/partial" "$work/build"
progress=""
trap '[[ -z $progress ]] || kill "$progress" 2>/dev/null || true; rm -rf "$work"' EXIT

# logged COMMAND...: keeps the output in the log and shows its end if the command fails.
log=$cache/windows-qt.log
: >"$log"
logged() {
    "$@" >>"$log" 2>&1 || {
        tail -n 40 "$log" >&2
        echo "windows-qt.sh: failed: $* (all of it: $log)" >&2
        exit 1
    }
}

# Debian's source of the toolkit, with Debian's security fixes, through package lists of our own: those of the machine
# need not hold sources.
fetch() {
    local keyring=/usr/share/keyrings/debian-archive-keyring.gpg
    cat >"$work/sources.list" <<END
deb-src [signed-by=$keyring] http://deb.debian.org/debian bookworm main
deb-src [signed-by=$keyring] http://deb.debian.org/debian bookworm-updates main
deb-src [signed-by=$keyring] http://deb.debian.org/debian-security bookworm-security main
END
    local own_lists=(
        -o Dir::Etc::SourceList="$work/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o Dir::State::Lists="$work/state/lists" -o Dir::Cache="$work/cache" -o APT::Sandbox::User=root
    )
    logged apt-get "${own_lists[@]}" update
    (cd "$work" && logged apt-get "${own_lists[@]}" source qtbase-opensource-src)
}

# What the compiler has done so far, about: it is called this often.
calls=1030
show_progress() {
    local count
    while sleep "$1"; do
        count=$(grep -c -E '^[^ ]*g\+\+ .*-c ' "$log" || true)
        printf '%s%s%% of Qt built%s' "$2" $((count < calls ? count * 100 / calls : 100)) "$3" >&2
    done
}

# shellcheck disable=SC2046
build() {
    cd "$work/build"
    # What is baked into the toolkit's libraries must not tell one cache from another.
    logged "$source/configure" -prefix /orvanta-qt -extprefix "$qt" -hostprefix "$qt" \
        "QMAKE_CFLAGS+=-ffile-prefix-map=$work=." "QMAKE_CXXFLAGS+=-ffile-prefix-map=$work=." \
        $(sed 's/#.*//' "$options") # one word or two in each line
    if [[ -t 2 ]]; then
        show_progress 2 $'\r' '' &
    else
        show_progress 60 '' $'\n' &
    fi
    progress=$!
    logged make -j"$(nproc)"
    logged make install
    kill "$progress"
    [[ ! -t 2 ]] || echo >&2
}

echo "Building Qt for Windows; a quarter of an hour on two cores, once" >&2
fetch
source=$(echo "$work"/qtbase-opensource-src-*/)
source=${source%/}
build
"$tree/packaging/windows/notices.py" "$source" >"$work/notices"
mv "$work/notices" "$qt/third-party-notices.txt" # the last file: with it the folder is ready
echo "$qt"
