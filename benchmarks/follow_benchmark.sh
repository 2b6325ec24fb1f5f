#!/bin/sh
# How soon `orvandiag read --follow` shows a line that is written to a log, and what it costs while
# nothing is written; beside it `tail -F`, which the system tells of each change.
#
#     benchmarks/follow_benchmark.sh
#
# Ends with 1 when one of forty lines takes more than 300 ms, or a quiet second more than 5 ms of a
# processor.
set -eu
. "$(dirname "$0")/measure.sh"

log=$work/diag_KoCSMgr_20250220_000000.txt
line='12:00:01:000,Conv,12,CallFlow,7,written '
for second in $(seq 10 59); do
    echo "12:00:00:0$second,Conv,12,CallFlow,7,one of those that are there"
done >"$log"

# followed COMMAND...: $middle, $longest and $quiet, each in microseconds
followed() {
    numbers=$("$programs/followed_run" "$log" "$line" "$@")
    middle=${numbers%% *}
    quiet=${numbers##* }
    longest=${numbers#* }
    longest=${longest%% *}
}

followed tail -F "$log"
echo "tail -F    a line after $middle us, at most $longest us; a quiet second $quiet us"
followed "$programs/orvandiag" --site none read --fields basic --follow --format raw "$log"
echo "read       a line after $middle us, at most $longest us; a quiet second $quiet us"
missed=0
told "read --follow, a line is shown / 300 ms" "$longest" 300000 1 || missed=1
told "read --follow, a quiet second / 5 ms" "$quiet" 5000 1 || missed=1
exit $missed
