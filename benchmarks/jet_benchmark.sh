#!/bin/sh
# Compares adding a million rows to a trace database with a plain write of as many pages. Needs the
# release preset's programs.
set -eu
. "$(dirname "$0")/measure.sh"

"$programs/jet_benchmark" --benchmark_format=csv 2>/dev/null >"$work/results"
took() { awk -F , -v name="\"$1/real_time\"" '$1 == name { print $3 }' "$work/results"; }

echo "rows       a million in $(printf '%.0f' "$(took addRowsToATraceDatabase)") ms," \
    "as many pages in $(printf '%.0f' "$(took writeAsManyPagesPlainly)") ms"
told "a million rows / their pages alone" "$(took addRowsToATraceDatabase)" "$(took writeAsManyPagesPlainly)"
