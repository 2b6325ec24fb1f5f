#!/bin/sh
# Compares cabmaker with `gcab -z` on one file: size of the cabinet and time to make it, best of five.
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

# milliseconds COMMAND...: how long one run takes
milliseconds() {
    begin=$(date +%s%N)
    "$@" >/dev/null
    echo $((($(date +%s%N) - begin) / 1000000))
}

# The two take turns, so that other work on the machine burdens both alike.
theirTime=$(milliseconds gcab -c -z theirs.cab input.mdb)
ourTime=$(milliseconds "$programs/cabmaker" /f directives.ddf)
for _ in 2 3 4 5; do
    took=$(milliseconds gcab -c -z theirs.cab input.mdb)
    if [ "$took" -lt "$theirTime" ]; then theirTime=$took; fi
    took=$(milliseconds "$programs/cabmaker" /f directives.ddf)
    if [ "$took" -lt "$ourTime" ]; then ourTime=$took; fi
done
theirSize=$(stat -c %s theirs.cab)
ourSize=$(stat -c %s ours.cab)

cabextract -q -d extracted ours.cab
cmp input.mdb extracted/input.mdb

echo "input      $(stat -c %s input.mdb) bytes, $(nproc) processors"
echo "gcab -z    $theirSize bytes in $theirTime ms"
echo "cabmaker   $ourSize bytes in $ourTime ms"
[ "$ourSize" -lt "$theirSize" ] && [ "$ourTime" -lt "$theirTime" ]
