#!/bin/sh
# Compares `orvandiag read` over logs of any size with lnav, grep, ripgrep, sort and mawk.
#
#     benchmarks/read_timeline_benchmark.sh [LINES]
#
# The log has LINES lines (1,000,000) with extended fields; one of ten times as many tells whether
# time and memory are in proportion. Numbers are microseconds: the least of seven runs that take
# turns. A goal is one of the time by the clock, in which two threads read a large log; the ratio of
# processor times stands beside it. Other work on the machine lengthens the first more, so the load
# is told. Needs the release preset's programs, lnav, ripgrep, mawk and GNU sort. Ends with 1 when a
# goal is missed.
set -eu
. "$(dirname "$0")/measure.sh"
export LC_ALL=C

lines=${1:-1000000}
cd "$work"
"$programs/orvandiag" sample site --lines "$lines" --fields extended >/dev/null
logs=site/drive_c/KelmaOrvan/Logs
rm -f $logs/*_fmtd.txt
log=diag_KoCSMgr_20250217_174217.txt
cat $logs/diag_*.txt >$log

# lnav takes a form of its own for these lines.
mkdir -p lnav/formats/orvan
cat >lnav/formats/orvan/format.json <<'TEXT'
{ "orvan_log": {
    "title": "Orvan", "description": "raw lines of an Orvan server",
    "regex": { "extended": { "pattern":
      "^(?<timestamp>\\d\\d:\\d\\d:\\d\\d:\\d{3}),(?<source>[^,]*),(?<number>-?\\d+),(?<thread>[^,]*),(?<port>[^,]*),(?<call>[^,]*),(?<component>[^,]*),(?<severity>-?\\d+),(?<body>.*)$" } },
    "timestamp-format": [ "%H:%M:%S:%L" ], "level-field": "severity",
    "value": { "source": { "kind": "string" }, "component": { "kind": "string" },
      "thread": { "kind": "string" }, "port": { "kind": "string" }, "call": { "kind": "string" },
      "number": { "kind": "integer" } },
    "sample": [ { "line": "17:42:29:078,Log,2402,812,,,LogManager,2,Log of KoCSMgr opened" } ]
} }
TEXT

# read_log WORDS...: without a server
read_log() { "$programs/orvandiag" --site none read --fields extended "$@"; }

# used COMMAND...: the processor time of one run in microseconds
used() { "$programs/measured_run" "$@" | awk '{ print $3 }'; }

# least FILE COLUMN: the smallest of a column of numbers
least() { awk -v column="$2" 'NR == 1 || $column < least { least = $column } END { print least }' "$1"; }

# script NAME WORDS...: a command as a file, as both sides begin with a shell then
script() {
    name=$1
    shift
    printf '%s\n' "$*" >"$name"
}

missed=0
# versus NAME MOST OUR-COMMAND THEIR-COMMAND
versus() {
    script ours "$3"
    script theirs "$4"
    rm -f ours.times theirs.times
    for _ in 1 2 3 4 5 6 7; do
        "$programs/measured_run" sh ./theirs >>theirs.times
        "$programs/measured_run" sh ./ours >>ours.times
    done
    echo "$1: $(least ours.times 2) us, $(least theirs.times 2) us;" \
        "of a processor $(least ours.times 3) us, $(least theirs.times 3) us;" \
        "load $(cut -d ' ' -f 1 /proc/loadavg)"
    told "$1" "$(least ours.times 2)" "$(least theirs.times 2)" "$2" || missed=1
    told "$1, of a processor" "$(least ours.times 3)" "$(least theirs.times 3)"
}

read="'$programs/orvandiag' --site none read --fields extended"
echo "log        $(stat -c %s $log) bytes, $lines lines"
[ "$(read_log $log --component CallFlow --count)" -gt 0 ]

versus "read, all counted / lnav" 0.25 "$read $log --count" \
    "lnav -n -I lnav -c ';select count(*) from orvan_log' $log"
versus "read, a component counted / grep -c" 2 "$read $log --component CallFlow --count" \
    "grep -c ,CallFlow, $log"
for expression in 'Evaluating 4 rules' 'calling [0-9]+, (direct|forwarded)' \
    'KoRuntime!Rep[a-zA-Z]+\+0x1C4'; do
    versus "read, $expression / ripgrep" 1.5 "$read $log --grep '$expression' --count" \
        "rg -c -e '$expression' $log"
done

first=
for _ in 1 2 3 4 5; do
    took=$("$programs/measured_run" sh -c "$read $log -n 10" | awk '{ print $1 }')
    if [ -z "$first" ] || [ "$took" -lt "$first" ]; then first=$took; fi
done
echo "first rows $first us"
told "read, the first rows / 50 ms" "$first" 50000 1 || missed=1

# Twenty logs by time, of which one hour is printed. They are of one day, as sort knows no other.
mkdir hour
head -n $((lines / 20 * 19)) $log | tail -n $((lines / 4)) | sort -s -t, -k1,1 | grep -aE '^[0-9]{2}:' >day
split -n r/20 day hour/diag_KoCSMgr_20250220_000000_
for part in hour/*; do mv "$part" "$part.txt"; done
cutAll=$(for part in hour/*.txt; do printf '"%s" ' "$part"; done)
ours="$read hour --since '2025-02-20 14:00' --until '2025-02-20 14:59:59.999' --format raw"
theirs="for part in $cutAll; do mawk '\$0 >= \"14:\" && \$0 < \"15:\"' \$part >\$part.cut; done; sort -s -m -t, -k1,1 hour/*.cut; rm -f hour/*.cut"
sh -c "$ours" >ours.lines
sh -c "$theirs" | tr -d '\r' >theirs.lines # which a log's lines end in, and rows do not
[ -s ours.lines ]
cmp ours.lines theirs.lines
echo "an hour    $(wc -l <ours.lines) lines, the same by both"
versus "read, an hour of twenty logs / mawk and sort -m" 1 "$ours" "$theirs"

# In proportion: ten times the lines.
small=$(used sh -c "$read $log --count")
smallMemory=$(peakKilobytes sh -c "$read $log --count")
for _ in 1 2 3 4 5 6 7 8 9 10; do cat $log; done >ten.txt
mv ten.txt ten_20250217_174217.txt
large=$(used sh -c "$read ten_20250217_174217.txt --count")
largeMemory=$(peakKilobytes sh -c "$read ten_20250217_174217.txt --count")
echo "ten times  $small us, $large us; $smallMemory KB, $largeMemory KB"
told "read, ten times the lines / ten times the time" "$large" $((small * 10)) 1.2 || missed=1
told "read, memory / 32 MB and 24 bytes a row" "$largeMemory" $((32768 + lines * 240 / 1024)) 1 || missed=1
exit $missed
