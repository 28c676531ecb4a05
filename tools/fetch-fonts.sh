#!/usr/bin/env bash
# Fetches the interface fonts from npm and converts them to the TrueType/OpenType files the
# program embeds: IBM Plex Sans (regular, italic and semibold), IBM Plex Mono Medium and the Material
# Icons font. The npm packages ship WOFF; fontTools (Debian's python3-fonttools) unpacks them.
set -euo pipefail

dest=${1:?usage: fetch-fonts.sh DEST_DIR}
wanted=(IBMPlexSans.ttf IBMPlexSans-Italic.ttf IBMPlexMono-Medium.ttf MaterialIcons-Regular.otf IBMPlexSans-SemiBold.ttf)

have_all=1
for f in "${wanted[@]}"; do
    [ -s "$dest/$f" ] || have_all=0
done
[ $have_all -eq 1 ] && exit 0

mkdir -p "$dest"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

echo "Fetching fonts from npm into $dest"
(cd "$work" && npm pack --silent @ibm/plex-sans@1.1.0 @ibm/plex-mono@1.1.0 material-icons@1.13.14 >/dev/null)
for t in "$work"/*.tgz; do
    mkdir -p "$work/x" && tar -xzf "$t" -C "$work/x"
    mv "$work/x/package" "$work/$(basename "$t" .tgz)"
done

convert() {
    /usr/bin/python3 - "$1" "$2" <<'PY'
import sys
from fontTools.ttLib import TTFont
font = TTFont(sys.argv[1])
font.flavor = None
font.save(sys.argv[2])
PY
}
convert "$work"/ibm-plex-sans-*/fonts/complete/woff/IBMPlexSans-Regular.woff "$dest/IBMPlexSans.ttf"
convert "$work"/ibm-plex-sans-*/fonts/complete/woff/IBMPlexSans-Italic.woff "$dest/IBMPlexSans-Italic.ttf"
convert "$work"/ibm-plex-sans-*/fonts/complete/woff/IBMPlexSans-SemiBold.woff "$dest/IBMPlexSans-SemiBold.ttf"
convert "$work"/ibm-plex-mono-*/fonts/complete/woff/IBMPlexMono-Medium.woff "$dest/IBMPlexMono-Medium.ttf"
convert "$work"/material-icons-*/iconfont/material-icons.woff "$dest/MaterialIcons-Regular.otf"
echo "Fonts ready in $dest"
