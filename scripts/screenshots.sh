#!/usr/bin/env bash
# Draws docs/images/console.png: the console on a fresh sample server, showing a log.
# Needs a build (build/<preset>, dev unless another is named) and Xvfb.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
console=$PWD/build/$preset/bin/orvandiag-console
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# A home of its own, so that nobody's window sizes and themes show.
export HOME=$work XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work
picture() { # picture FILE ARGUMENT...
  local file=$1
  shift
  xvfb-run -a -s '-screen 0 1600x1200x24' "$console" --theme light --screenshot "$file" "$@"
}

mkdir -p docs/images
picture "$work/first.png"
log=$(basename "$(ls "$work"/data/orvandiag/site/drive_c/KelmaOrvan/Logs/diag_KoCSMgr_*.txt | grep -v _fmtd | tail -n 1)")
picture docs/images/console.png --show "$log" --size 1280x760
