#!/bin/sh
# Compares reading and changing the trace levels of 300 components with the sqlite3 program doing as
# many queries and updates. Needs the release preset's programs and sqlite3. Ends with 1 unless each
# takes no more than 5 times as long as sqlite3.
set -eu
. "$(dirname "$0")/measure.sh"

"$programs/micro_trace_benchmark" --benchmark_format=csv 2>/dev/null >"$work/results"
took() { awk -F , -v name="\"$1/real_time\"" '$1 == name { print $3 }' "$work/results"; }
shown() { printf '%.1f ms' "$(took "$1")"; }

echo "levels     $(shown testEveryLevel) to test every one, sqlite3 $(shown sqlite3RunsAsManyQueries)"
echo "           $(shown changeEveryComponent) to change every component," \
    "sqlite3 $(shown sqlite3RunsAsManyQueriesAndUpdates)"
missed=0
told "test of every level / sqlite3" "$(took testEveryLevel)" "$(took sqlite3RunsAsManyQueries)" 5 ||
    missed=1
told "change of every component / sqlite3" "$(took changeEveryComponent)" \
    "$(took sqlite3RunsAsManyQueriesAndUpdates)" 5 || missed=1
exit $missed
