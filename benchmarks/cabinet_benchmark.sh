#!/bin/sh
# Compares cabmaker with `gcab -z` on one file: size of the cabinet and time to make it, best of three.
#
#     benchmarks/cabinet_benchmark.sh [FILE]
#
# Without a file a trace database of 200 MB is made up. Needs the release preset's programs and gcab.
# Ends with 1 unless cabmaker's cabinet is the smaller one and is made in less time.
set -eu

programs=${ORVAN_PROGRAMS:-$(dirname "$0")/../build/release/bin}
programs=$(cd "$programs" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' INT TERM

if [ $# -gt 0 ]; then
    cp "$1" "$work/input.mdb"
else
    "$programs/cabinet_benchmark_input" 200 "$work/input.mdb"
fi
cd "$work"
cat >directives.ddf <<'DIRECTIVES'
.Option EXPLICIT
.Set CabinetNameTemplate=..\ours.cab
.Set Cabinet=on
.Set Compress=on
.Set MaxDiskSize=0
"input.mdb"
DIRECTIVES

# milliseconds COMMAND...: the best of three runs
milliseconds() {
    best=
    for _ in 1 2 3; do
        begin=$(date +%s%N)
        "$@" >/dev/null
        took=$((($(date +%s%N) - begin) / 1000000))
        if [ -z "$best" ] || [ "$took" -lt "$best" ]; then best=$took; fi
    done
    echo "$best"
}

theirTime=$(milliseconds gcab -c -z theirs.cab input.mdb)
ourTime=$(milliseconds "$programs/cabmaker" /f directives.ddf)
theirSize=$(stat -c %s theirs.cab)
ourSize=$(stat -c %s ours.cab)

cabextract -q -d extracted ours.cab
cmp input.mdb extracted/input.mdb

echo "input      $(stat -c %s input.mdb) bytes, $(nproc) processors"
echo "gcab -z    $theirSize bytes in $theirTime ms"
echo "cabmaker   $ourSize bytes in $ourTime ms"
[ "$ourSize" -lt "$theirSize" ] && [ "$ourTime" -lt "$theirTime" ]
