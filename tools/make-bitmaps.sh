#!/usr/bin/env bash
# Draws the committed bitmaps and the icon of tmgmt/resources/images from the SVG sources beside them, then checks
# them with check-bitmaps.py. The same sources and tools always give the same bytes. With a folder as argument the
# results go there instead, for comparison.
#
# Where nothing is drawn a bitmap holds the mask colour, RGB(0,128,128). Half-covered edge pixels are either fully
# drawn or not at all: blending them with the mask would leave a teal fringe around every image.
set -euo pipefail
tools=$(cd "$(dirname "$0")" && pwd)
images=$tools/../tmgmt/resources/images
out=${1:-$images}

missing=()
command -v rsvg-convert >/dev/null || missing+=("rsvg-convert (package librsvg2-bin)")
command -v convert >/dev/null || missing+=("convert (package imagemagick)")
command -v python3 >/dev/null || missing+=("python3 (package python3)")
if [ ${#missing[@]} -gt 0 ]; then
  printf 'make-bitmaps.sh: missing %s\n' "${missing[@]}" >&2
  exit 1
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"

# bitmap NAME SIZE COLOURS SVG…: the images side by side. COLOURS bounds the palette, which decides the depth: up to
# 16 with the mask are stored in 4 bits, up to 256 in 8; "true" stores 24 bits.
bitmap() {
  local name=$1 size=$2 colours=$3 svg cells=()
  shift 3
  for svg in "$@"; do
    cells+=("$work/$size-$(basename "$svg" .svg).png")
    rsvg-convert -w "$size" -h "$size" "$svg" -o "${cells[-1]}"
  done
  convert "${cells[@]}" +append -channel A -threshold 50% +channel "PNG32:$work/strip.png"
  if convert "$work/strip.png" txt:- | grep -qi '#008080FF'; then
    echo "make-bitmaps.sh: $name has something drawn in the mask colour; choose another teal" >&2
    exit 1
  fi

  # Colours are reduced among the drawn pixels, before the mask comes under them, so that the mask stays exact.
  local reduce=(+dither -colors "$colours") type=(-type Palette)
  [ "$colours" != true ] || reduce=() type=(-type TrueColor)
  convert "$work/strip.png" "${reduce[@]}" -background 'rgb(0,128,128)' -alpha remove -alpha off "${type[@]}" \
    -compress None "BMP3:$out/$name"
}

bitmap nodes16.bmp 16 255 "$images"/nodes/[0-9][0-9]-*.svg
bitmap nodes32.bmp 32 true "$images"/nodes/[0-9][0-9]-*.svg
bitmap folder16.bmp 16 255 "$images/snapin-16.svg"
bitmap folder32.bmp 32 true "$images/snapin.svg"
bitmap toolbar.bmp 16 15 "$images"/toolbar/1002-start.svg "$images"/toolbar/1003-stop.svg

# The icon has real transparency. 16 pixels are too few for the detailed drawing.
rsvg-convert -w 16 -h 16 "$images/snapin-16.svg" -o "$work/icon-16.png"
for size in 32 48 256; do
  rsvg-convert -w "$size" -h "$size" "$images/snapin.svg" -o "$work/icon-$size.png"
done
convert "$work"/icon-{16,32,48,256}.png -strip -define png:exclude-chunks=date,time "ICO:$out/snapin.ico"

python3 "$tools/check-bitmaps.py" "$out"
