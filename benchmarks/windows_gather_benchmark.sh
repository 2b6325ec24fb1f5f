#!/bin/sh
# Compares a time frame gather by the program for Windows, under Wine, with one by this machine's own.
#
#     benchmarks/windows_gather_benchmark.sh [LINES]
#
# Both gather all of a sample server of LINES lines (1,000,000), with the cabinet. Needs the programs
# of the presets windows and release, and Wine. Ends with 1 unless the one for Windows takes no more
# than one and a half of the other's time.
set -eu
. "$(dirname "$0")/measure.sh"

project=$(cd "$(dirname "$0")/.." && pwd)
forWindows=${ORVAN_WINDOWS_PROGRAMS:-$project/build/windows/bin}
under_wine=$project/scripts/run_under_wine.sh
WINEPREFIX=${WINEPREFIX:-$work/prefix}
export WINEPREFIX

lines=${1:-1000000}
cd "$work"
"$programs/orvandiag" sample site --lines "$lines" >/dev/null
cp -a site site_for_windows

# gather FOLDER PROGRAM... : all lines of the sample, into a new folder, as the program names it
gather() {
    rm -rf "$work/$1"
    into=$2/$1
    shift 2
    "$@" gather frame --from '2025-02-01 00:00' --hours 999 --to "$into" || true
    ls "$work/${into##*/}"/*.cab "$work/${into##*/}"/*.mdb >/dev/null
}
own() { gather own "$work" "$programs/orvandiag" --site site; }
windows() {
    gather windows "/Z:$work" "$under_wine" "$forWindows/orvandiag.exe" \
        --site "/Z:$work/site_for_windows"
}

"$under_wine" "$forWindows/orvandiag.exe" --version >/dev/null # makes the machine that Wine has
compare windows own
cmp windows/*.mdb own/*.mdb
echo "Windows    $ours ms under Wine"
echo "own        $theirs ms"
told "time frame gather, under Wine / own" "$ours" "$theirs" 1.5
