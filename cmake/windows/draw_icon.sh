#!/bin/sh
# Draws an icon of the tool for Windows: draw_icon.sh NAME.svg NAME.ico
#
# Shapes are filled, so that their lines are seen on a dark ground too.
set -eu
drawing=$1
icon=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
sed '1s/fill="none"/fill="#ffffff"/' "$drawing" >"$work/filled.svg"
set --
for size in 16 20 24 32 48; do
  rsvg-convert -w $size -h $size -o "$work/$size.png" "$work/filled.svg"
  set -- "$@" "$work/$size.png"
done
rsvg-convert -w 256 -h 256 -o "$work/256.png" "$work/filled.svg"
icotool --create --output="$icon" "$@" --raw="$work/256.png"
