# What the comparing benchmarks share; to be sourced. It makes the folder $work, which goes at the
# end, and finds the programs of the release preset in $programs.

programs=${ORVAN_PROGRAMS:-$(dirname "$0")/../build/release/bin}
programs=$(cd "$programs" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
trap 'exit 1' INT TERM

# milliseconds COMMAND...: how long one run takes; what it prints goes nowhere
milliseconds() {
    begin=$(date +%s%N)
    "$@" >/dev/null
    echo $((($(date +%s%N) - begin) / 1000000))
}

# compare OURS THEIRS: the best time of five runs of each in $ours and $theirs, in milliseconds.
# The two take turns, so that other work on the machine burdens both alike.
compare() {
    theirs=$(milliseconds "$2")
    ours=$(milliseconds "$1")
    for _ in 2 3 4 5; do
        took=$(milliseconds "$2")
        if [ "$took" -lt "$theirs" ]; then theirs=$took; fi
        took=$(milliseconds "$1")
        if [ "$took" -lt "$ours" ]; then ours=$took; fi
    done
}

# median FILE COLUMN: the one in the middle of a column of numbers
median() {
    awk -v column="$2" '{ print $column }' "$1" | sort -n |
        awk '{ all[NR] = $1 } END { print all[int((NR + 1) / 2)] }'
}

# peakKilobytes COMMAND...: the largest resident size of one run
peakKilobytes() {
    /usr/bin/time -o "$work/peak" -f %M "$@" >/dev/null 2>&1
    cat "$work/peak"
}

# ratio A B: A / B with two decimals
ratio() {
    awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / (b > 0 ? b : 1) }'
}

# sampleLog SITE: the path of the log that KoCSMgr writes on a sample server
sampleLog() {
    ls "$1"/drive_c/KelmaOrvan/Logs/diag_KoCSMgr_*.txt | tail -n 1
}

# told NAME OURS THEIRS [MOST]: a line of the table of benchmarks/run, in the file $ORVAN_RESULTS,
# with the ratio OURS / THEIRS. MOST is the goal for it, and the reader hears whether it is met; ends
# with 1 when it is not.
told() {
    verdict=
    if [ -n "${4:-}" ]; then
        verdict=$(awk -v a="$2" -v b="$3" -v most="$4" 'BEGIN { print a <= b * most ? "met" : "MISSED" }')
        echo "goal       $1: $(ratio "$2" "$3"), at most $4, $verdict"
    fi
    if [ -n "${ORVAN_RESULTS:-}" ]; then
        printf '%s\t%s\t%s\t%s\n' "$1" "$(ratio "$2" "$3")" "${4:-}" "$verdict" >>"$ORVAN_RESULTS"
    fi
    [ "$verdict" != MISSED ]
}
