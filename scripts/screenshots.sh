#!/usr/bin/env bash
# Draws the window, under a display of its own.
#
#   scripts/screenshots.sh [--no-install] [--preset NAME]            the pictures of the docs
#   scripts/screenshots.sh [--no-install] [--preset NAME] FOLDER     every page, view and box
#
# Into FOLDER go all languages in light and dark, as FOLDER/CODE-THEME/NAME.png; what follows FOLDER
# is for console_pictures, such as --language JPN --theme dark --only log --size 800x600. In front of
# the script QT_SCALE_FACTOR=2 draws as on a screen of 200 %.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/setup.sh

install=yes
preset=dev
while [ $# -gt 0 ]; do
  case $1 in
    --no-install) install=no ;;
    --preset) preset=$2; shift ;;
    -*) say "screenshots.sh: $1 is not known"; exit 2 ;;
    *) break ;;
  esac
  shift
done

# A display, a font for Japanese, and the means to make pictures small.
install_missing "${build_packages[@]}" "${desktop_packages[@]}" "${test_packages[@]}" \
  fontconfig fonts-dejavu-core fonts-ipafont-gothic imagemagick xauth xvfb
[ -n "$(fc-list :lang=ja)" ] ||
  say "no font has Japanese letters: install fonts-ipafont-gothic, or boxes stand in their places"
build_preset "$preset" orvandiag orvandiag-console orvandiag-viewer console_pictures orvan_data

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# A home of its own, so that nobody's window sizes and themes show.
mkdir -m 700 "$work/run"
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/run
display() { xvfb-run -a -s '-screen 0 1600x1200x24' "$@"; }
bin=$PWD/build/$preset/bin

if [ $# -gt 0 ]; then
  display "$bin/console_pictures" "$@"
  exit
fi

# small FROM TO : fewer shades of each letter's edge, and a third of the bytes.
small() { convert "$1" +dither -colors 128 -define png:compression-level=9 -strip "$2"; }
console() { # console NAME ARGUMENT...
  display "$bin/orvandiag-console" --screenshot "$work/$1.png" --size 1180x720 "${@:2}"
  small "$work/$1.png" "docs/images/$1.png"
}

"$bin/orvandiag" sample "$work/data/orvandiag/site" > "$work/sample.txt"
logs=$work/data/orvandiag/site/drive_c/KelmaOrvan/Logs
log=$(basename "$(ls "$logs"/diag_KoCSMgr_*.txt | grep -v _fmtd | tail -n 1)")
mkdir -p docs/images
console console --theme light --show "$log"
console console-dark --theme dark --show "Static Node"
# The hour that the user guide leads from a complaint to its cause in.
"$bin/orvandiag" sample "$work/voice01" --fields extended > "$work/sample.txt"
"$bin/orvandiag" --site "$work/voice01" gather frame --from "2025-02-20 13:00" --hours 1 \
  --to "$work/case" > "$work/gathered.txt"
display "$bin/orvandiag-viewer" --screenshot "$work/viewer.png" --size 1180x720 --theme light \
  "$work/case"/*.mdb
small "$work/viewer.png" docs/images/viewer.png
display "$bin/console_pictures" "$work/pages" --language ENU --theme light \
  --only gather-3-time-frame
small "$work/pages/ENU-light/gather-3-time-frame.png" docs/images/wizard.png
