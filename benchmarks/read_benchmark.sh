#!/bin/sh
# Compares `orvandiag read`, as columns and as JSON, with mawk splitting the same fields of the same
# log of 2.4 MB, best of five. Needs the release preset's programs, mawk and GNU time.
# Ends with 1 unless making JSON takes no more than 3 times as long as mawk.
set -eu
. "$(dirname "$0")/measure.sh"

"$programs/orvandiag" sample "$work/site" --lines 300000 >/dev/null
log=$work/part.txt
head -c 2400000 "$(sampleLog "$work/site")" | sed '$d' >"$log"

splitFields() {
    mawk -F, '{
        trace = $0
        for (field = 1; field <= 5; field++) trace = substr(trace, index(trace, ",") + 1)
        print $1 "\t" $2 "\t" $3 "\t" $4 "\t" $5 "\t" trace
    }' "$log"
}
readColumns() { "$programs/orvandiag" --site "$work/site" read "$log"; }
readJson() { "$programs/orvandiag" --site "$work/site" --json read "$log"; }
splitAtCommas() { mawk -F, '{ print $1, $2, $3, $4, $5, $6 }' "$log"; }

echo "log        $(stat -c %s "$log") bytes, $(wc -l <"$log") lines"
compare readColumns splitFields
echo "columns    $ours ms, mawk $theirs ms, ratio $(ratio "$ours" "$theirs")"
compare readJson splitAtCommas
echo "JSON       $ours ms, mawk cutting the trace at its first comma $theirs ms," \
    "ratio $(ratio "$ours" "$theirs")"
compare readJson splitFields
echo "JSON       $ours ms, mawk $theirs ms, ratio $(ratio "$ours" "$theirs")"
missed=0
told "read, as JSON / mawk" "$ours" "$theirs" 3 || missed=1
echo "memory     $(peakKilobytes "$programs/orvandiag" --site "$work/site" --json read "$log") KB"
exit $missed
