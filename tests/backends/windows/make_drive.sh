#!/bin/sh
# Gives Wine an empty drive D:, in the folder that scripts/run_under_wine.sh has it keep its drives.
set -e
prefix=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/orvandiag/wine}
"$(dirname "$0")/../../../scripts/run_under_wine.sh" cmd.exe /c exit
mkdir -p "$prefix/drive_d"
ln -sfn ../drive_d "$prefix/dosdevices/d:"
