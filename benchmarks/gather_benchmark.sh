#!/bin/sh
# Compares `orvandiag gather standard` of a log of LINES lines (1,000,000) with mawk splitting the
# same lines and printing them to a file, best of five.
#
#     benchmarks/gather_benchmark.sh [LINES]
#
# Needs the release preset's programs, mawk and GNU time. Ends with 1 unless the gather takes no
# longer than mawk, and stays under 40 MB of memory.
set -eu
. "$(dirname "$0")/measure.sh"

lines=${1:-1000000}
mostKilobytes=40000

# All logs of the sample in one: as many lines as it was asked for.
"$programs/orvandiag" sample "$work/site" --lines "$lines" >/dev/null
log=$(sampleLog "$work/site")
find "$work/site/drive_c/KelmaOrvan/Logs" -name 'diag_*' ! -name '*_fmtd*' -exec cat {} + >"$work/all"
head -n "$lines" "$work/all" >"$log"
rm "$work/all"

gather() { "$programs/orvandiag" --site "$work/site" gather standard --to "$work/gathered"; }
splitAndPrint() {
    mawk -F, '{ print $1 " (" $2 "," $3 "," $4 "," $5 ") " $6 }' "$log" >"$work/split.txt"
}
copy() { cp "$log" "$work/copy.txt"; }

echo "log        $(stat -c %s "$log") bytes, $(wc -l <"$log") lines"
compare gather splitAndPrint
echo "gather     $ours ms, mawk $theirs ms, ratio $(ratio "$ours" "$theirs"); cp $(milliseconds copy) ms"
peak=$(peakKilobytes "$programs/orvandiag" --site "$work/site" gather standard --to "$work/gathered")
echo "memory     $peak KB"
missed=0
told "standard gather / mawk" "$ours" "$theirs" 1 || missed=1
told "standard gather, memory / 40 MB" "$peak" $mostKilobytes 1 || missed=1
exit $missed
