#!/bin/sh
# Compares counting the components of a trace database of 1,000,000 rows with mdb-export and mawk,
# best of five. Needs the release preset's programs, mdbtools, mawk and GNU time.
# Ends with 1 unless it takes no more than a fifth of the time.
set -eu
. "$(dirname "$0")/measure.sh"

database=$work/gather.mdb
cp "$programs/../data/blankWPNDB.mdb" "$database"
"$programs/count_components" fill "$database" 1000000

countHere() { "$programs/count_components" "$database"; }
countExported() {
    mdb-export -H "$database" tblTraces | mawk -F, '{ ++counts[$5] } END { for (name in counts) print name, counts[name] }'
}

[ "$(countHere | sort)" = "$(countExported | tr -d '"' | sort)" ] ||
    { echo "the two count differently" >&2; exit 1; }
compare countHere countExported
echo "database   1,000,000 rows, $(stat -c %s "$database") bytes"
echo "counted    $ours ms, mdb-export and mawk $theirs ms, ratio $(ratio "$ours" "$theirs")"
echo "memory     $(peakKilobytes "$programs/count_components" "$database") KB"
told "a trace database counted / mdb-export | mawk" "$ours" "$theirs" 0.2
