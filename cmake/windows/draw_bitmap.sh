#!/bin/sh
# Draws a bitmap of the tool for Windows: draw_bitmap.sh NAME.svg SIZE NAME.bmp
#
# Its upper left pixel has the colour that stands for nothing, which no line has.
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
sed '1s/fill="none"/fill="#ffffff"/' "$1" >"$work/filled.svg"
rsvg-convert -w "$2" -h "$2" -o "$work/drawn.png" "$work/filled.svg"
# A pixel that is half drawn or less is no part of it; lines are blended with white, not with that
# colour.
convert "$work/drawn.png" -channel A -threshold 50% +channel "$work/mask.png"
convert "$work/drawn.png" -background white -alpha remove -alpha off \
  \( "$work/mask.png" -alpha extract \) -compose CopyOpacity -composite \
  -background '#ff00ff' -alpha remove -alpha off -type TrueColor "BMP3:$3"
