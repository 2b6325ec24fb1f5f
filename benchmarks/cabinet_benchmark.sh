#!/bin/sh
# Compares cabmaker with `gcab -z` on one file: size of the cabinet and time to make it, best of five.
#
#     benchmarks/cabinet_benchmark.sh [FILE]
#
# Without a file a trace database of 200 MB is made up. Needs the release preset's programs and gcab.
# Ends with 1 unless cabmaker's cabinet is the smaller one and is made in less time.
set -eu

. "$(dirname "$0")/measure.sh"

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

makeTheirs() { gcab -c -z theirs.cab input.mdb; }
makeOurs() { "$programs/cabmaker" /f directives.ddf; }
compare makeOurs makeTheirs
theirSize=$(stat -c %s theirs.cab)
ourSize=$(stat -c %s ours.cab)

cabextract -q -d extracted ours.cab
cmp input.mdb extracted/input.mdb

echo "input      $(stat -c %s input.mdb) bytes, $(nproc) processors"
echo "gcab -z    $theirSize bytes in $theirs ms"
echo "cabmaker   $ourSize bytes in $ours ms"
missed=0
told "cabinet, size / gcab -z" "$ourSize" "$theirSize" 1 || missed=1
told "cabinet, time / gcab -z" "$ours" "$theirs" 1 || missed=1
exit $missed
