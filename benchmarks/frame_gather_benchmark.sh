#!/bin/sh
# Compares a time frame gather, without its cabinet, with the sqlite3 shell's import of the same rows.
#
#     benchmarks/frame_gather_benchmark.sh [LINES]
#
# All is done on a sample server of LINES lines (1,000,000) with the release preset's programs. Needs
# sqlite3, mdb-export and GNU time. Ends with 1 unless the gather takes no more than half of the
# import's time, a line outside the frame no more than a fifth of one inside, and memory stays
# below 60 MB.
set -eu
. "$(dirname "$0")/measure.sh"

lines=${1:-1000000}
cd "$work"

"$programs/orvandiag" sample site --lines "$lines" >/dev/null
logs=site/drive_c/KelmaOrvan/Logs
# Malformed lines would end most logs at the eleventh.
rm -f $logs/*_fmtd.txt
for log in $logs/diag_*.txt; do
    LC_ALL=C grep -aE '^[0-9: -]{12,19},[^,]*,-?[0-9]+,[^,]*,-?[0-9]+,' "$log" >sound
    touch -r "$log" sound
    mv -f sound "$log"
done
"$programs/orvandiag" --site site status >/dev/null # supplies the tool's folder once
rm -f site/drive_c/OrvanDiagnostics/cabmaker.exe
mkdir site/drive_c/OrvanDiagnostics/cabmaker.exe # no cabinet is made

# gather FROM HOURS: the milliseconds of a gather into "gathered"; its memory is in "memory"
gather() {
    rm -rf gathered
    begin=$(date +%s%N)
    /usr/bin/time -f %M -o memory "$programs/orvandiag" --site site --json gather frame \
        --from "$1" --hours "$2" --no-application --no-system --to gathered >/dev/null 2>&1 || true
    echo $((($(date +%s%N) - begin) / 1000000))
}

import() {
    rm -f rows.sqlite
    begin=$(date +%s%N)
    sqlite3 rows.sqlite 'pragma journal_mode=off' 'pragma synchronous=off' \
        'create table traces(date text, process text, source text, number integer,
         component text, level integer, port text, trace text, callId text, highlight integer,
         qrvIndex text)' '.import --csv rows.csv traces' >/dev/null
    echo $((($(date +%s%N) - begin) / 1000000))
}

least() {
    if [ "$1" -lt "$2" ]; then echo "$1"; else echo "$2"; fi
}

inside=$(gather '2025-02-17 17:00' 999)
mdb-export -H gathered/*.mdb tblTraces >rows.csv
imported=$(import)
outside=$(gather '2025-02-20 17:41' 1)
outsideRows=$(mdb-export -H gathered/*.mdb tblTraces | wc -l)
start=$(gather '2001-01-01 00:00' 1)

# All take turns, so that other work on the machine burdens them alike.
peak=0
for _ in 2 3 4 5; do
    inside=$(least "$inside" "$(gather '2025-02-17 17:00' 999)")
    used=$(tail -n 1 memory)
    if [ "$used" -gt "$peak" ]; then peak=$used; fi
    imported=$(least "$imported" "$(import)")
    outside=$(least "$outside" "$(gather '2025-02-20 17:41' 1)")
    start=$(least "$start" "$(gather '2001-01-01 00:00' 1)")
done
rows=$(sqlite3 rows.sqlite 'select count(*) from traces')
# Those read for the short frame at the end: the current logs, whose lines lie before it.
outsideLines=$(cat $logs/d*_20250219_*.txt | wc -l)

insideTook=$((inside - start))
outsideTook=$((outside - start))
outsideLines=$((outsideLines - outsideRows))
nanoseconds() { awk -v took="$1" -v lines="$2" 'BEGIN { printf "%.0f", took * 1e6 / lines }'; }
lineInside=$(nanoseconds $insideTook "$rows")
lineOutside=$(nanoseconds $outsideTook $outsideLines)

echo "sqlite3    imports $rows rows in $imported ms"
echo "gather     the same in $inside ms"
echo "           $lineInside ns for a line inside, $lineOutside ns for one outside ($outsideLines lines)"
echo "           $start ms for start and end"
echo "memory     $peak KB at most"
missed=0
told "time frame gather / sqlite3 import" "$inside" "$imported" 0.5 || missed=1
told "line outside the frame / line inside" "$lineOutside" "$lineInside" 0.2 || missed=1
told "time frame gather, memory / 60 MB" "$peak" 61440 1 || missed=1
exit $missed
