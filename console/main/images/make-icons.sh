#!/usr/bin/env bash
# Makes the .ico files from the drawings beside it. Needs rsvg-convert (librsvg2-bin) and convert (imagemagick).
set -euo pipefail
cd "$(dirname "$0")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

make_icon() { # name sizes…
  local name=$1 pictures=()
  shift
  for size in "$@"; do
    rsvg-convert --width "$size" --height "$size" "$name.svg" --output "$work/$name-$size.png"
    pictures+=("$work/$name-$size.png")
  done
  convert "${pictures[@]}" "$name.ico"
}

make_icon TConsole 16 20 24 32 48 64
for name in back forward up delete properties refresh; do
  make_icon "$name" 16 20 24 32
done
