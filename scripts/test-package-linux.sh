#!/usr/bin/env bash
# Makes the Debian package twice and looks at it as a user's machine would: checks it, installs it on a bare Debian 12,
# verifies a file with it, and removes it. The bare machine is a folder, for which this must run as root.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
install_missing "${build_packages[@]}" dpkg-dev file lintian desktop-file-utils appstream groff debootstrap

place=$(mktemp -d)
trap 'rm -rf --one-file-system "$place"' EXIT

first=$(scripts/package-linux.sh "$place/first")
second=$(scripts/package-linux.sh "$place/second")
cmp "$first" "$second"

lintian --fail-on error,warning "$first"
desktop-file-validate packaging/linux/*.desktop
appstreamcli validate --no-net packaging/linux/*.metainfo.xml
groff -man -Tutf8 -wall packaging/linux/orv.1 2>&1 >/dev/null | (! grep .)

if [[ $(id -u) -ne 0 ]]; then
    echo "Not root: the package is not installed on a bare machine."
    exit 0
fi
machine=$place/machine
debootstrap --variant=minbase bookworm "$machine" >"$place/log" 2>&1 || { tail "$place/log"; exit 1; }
cp /etc/apt/apt.conf.d/* "$machine/etc/apt/apt.conf.d/"
cp "$first" "$machine/orvanta.deb"
list() { (cd "$machine" && find etc usr opt home root srv var/lib -not -path 'var/lib/apt/*' -not -path 'var/lib/dpkg/*' | sort); }
in_machine() { DEBIAN_FRONTEND=noninteractive chroot "$machine" "$@" >"$place/log" 2>&1 || { tail -n 30 "$place/log"; return 1; }; }

# Its dependencies first, so that what is left afterwards is the package's own doing.
in_machine apt-get update
in_machine apt-get install -y --no-install-recommends /orvanta.deb
in_machine dpkg --purge orvanta
list >"$place/before"
in_machine dpkg -i /orvanta.deb

printf abc >"$machine/tmp/sample.bin"
code() { chroot "$machine" sh -c "cd /tmp && orv $1" >"$place/log" 2>&1 && echo 0 || echo $?; }
[[ $(code "/a md5 /c 900150983cd24fb0d6963f7d28e17f72 /f sample.bin") == 0 ]]
[[ $(code "/a md5 /c 0 /f sample.bin") == 1 ]]
[[ $(code "/a md5 /c 0 /f nothing") == 255 ]]
[[ -f $machine/usr/lib/orvanta/locale/orvanta-de_DE.qm && -f $machine/usr/lib/orvanta/locale/de_DE.png ]]

in_machine dpkg --purge orvanta
list >"$place/after"
diff "$place/before" "$place/after"
echo "The package is fine: $(basename "$first"), $(stat -c %s "$first") bytes"
