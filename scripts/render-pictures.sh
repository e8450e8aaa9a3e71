#!/usr/bin/env bash
# Renders the drawings in resources/svg and translations/flags to the PNGs that the program uses: each at its own size
# and at twice that, and the program's icon at the sizes that desktops ask for, for Windows all in one file.
set -euo pipefail
cd "$(dirname "$0")/.."

# render SVG PNG [SCALE]
render() {
    rsvg-convert --zoom "${3:-1}" --output "$2" "$1"
}

for svg in resources/svg/*.svg; do
    name=$(basename "$svg" .svg)
    [[ $name != orvanta ]] || continue
    render "$svg" "resources/img/$name.png"
    render "$svg" "resources/img/$name@2x.png" 2
done
for size in 16 22 24 32 48 64 128 256 512; do
    rsvg-convert --width $size --height $size --output "resources/img/orvanta-$size.png" resources/svg/orvanta.svg
done
icotool --create --output packaging/windows/orvanta.ico resources/img/orvanta-{16,24,32,48,64}.png \
    --raw=resources/img/orvanta-256.png
for svg in translations/flags/*.svg; do
    render "$svg" "${svg%.svg}.png"
    render "$svg" "${svg%.svg}@2x.png" 2
done
