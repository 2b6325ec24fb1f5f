#!/bin/sh
# Compares `orvandiag read` over thousands of logs whose rows come in turn with as many whose rows
# come log by log.
#
#     benchmarks/read_many_logs_benchmark.sh [LOGS]
#
# There are LOGS logs (10,000) of 20 rows. Only so many files are open at a time: where each row is
# of another log than the one before it, they must not be opened for each row again. Each number is
# the least processor time of five runs that take turns, in microseconds. Ends with 1 when the goal
# is missed.
set -eu
. "$(dirname "$0")/measure.sh"
export LC_ALL=C

logs=${1:-10000}
cd "$work"
mkdir turns behind
mawk -v logs="$logs" '
function write(folder, n, row, milliseconds,   seconds) {
    seconds = int(milliseconds / 1000)
    printf "%02d:%02d:%02d:%03d,Conv,12,CallFlow,7,row %d of log %d, of the usual length\n",
        int(seconds / 3600), int(seconds / 60) % 60, seconds % 60, milliseconds % 1000, row, n \
        >sprintf("%s/diag_P%05d_20250220_000000.txt", folder, n)
}
BEGIN {
    for (n = 0; n < logs; n++) {
        for (row = 0; row < 20; row++) {
            write("turns", n, row, (row * logs + n) * 80000 / logs * 50)
            write("behind", n, row, (n * 20 + row) * 80000 / logs * 50)
        }
        close(sprintf("turns/diag_P%05d_20250220_000000.txt", n))
        close(sprintf("behind/diag_P%05d_20250220_000000.txt", n))
    }
}'

# used FOLDER: the processor time of one reading in microseconds
used() {
    "$programs/measured_run" "$programs/orvandiag" --site none read "$1" --fields basic \
        --format raw | awk '{ print $3 }'
}

"$programs/orvandiag" --site none read turns --fields basic --format raw >shown
"$programs/orvandiag" --site none read behind --fields basic --format raw | sort >sorted
sort shown | cut -d, -f2- | sort >turns.rows
cut -d, -f2- sorted | sort | cmp - turns.rows

turns= behind=
for _ in 1 2 3 4 5; do
    took=$(used behind)
    if [ -z "$behind" ] || [ "$took" -lt "$behind" ]; then behind=$took; fi
    took=$(used turns)
    if [ -z "$turns" ] || [ "$took" -lt "$turns" ]; then turns=$took; fi
done
echo "rows of $logs logs in turn: $turns us, log by log: $behind us"
told "read, rows of many logs in turn / log by log" "$turns" "$behind" 2
