#!/bin/sh
# Measures the console's window on Qt's offscreen platform:
#
# - a cold start to a filled tree on the sample server, with nothing of the programs, their libraries,
#   fonts and the site in the machine's file cache, beside an empty window of Qt, and beside one with
#   nothing but a menu bar and a tree, the least that shows a text;
# - the same with all of it in the file cache, as at a second start;
# - showing a log of 2.4 MB, beside `orvandiag read` of it;
# - paging through that log, beside a table of Qt over texts that are ready;
# - and, in viewer_window.sh, the viewer's window: its first rows of a database of 1,000,000, a filter
#   by a component and a page at 10,000,000 rows, and its memory with these.
#
#     benchmarks/window_benchmark.sh [ROUNDS [console|viewer]]
#
# In each of the ROUNDS (21; cold starts: a third of them) all take turns, and medians are compared.
# Needs the release preset's programs. Ends with 1 unless a cold start takes no more than 1.5 times
# the empty window's, showing the log no more than 3 times the reading, a page stays within a frame of
# 60 a second, and the viewer meets the goals that stand beside its numbers.
set -eu
. "$(dirname "$0")/measure.sh"

rounds=${1:-21}
window=${2:-both}
missed=0
frameMicroseconds=16667
export QT_QPA_PLATFORM=offscreen
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data" XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"

measured() { "$programs/measured_run" "$@" 2>/dev/null; }
first() { median "$work/$1" 1; }
whole() { median "$work/$1" 2; }
processor() { median "$work/$1" 3; }
shown() { awk -v took="$1" 'BEGIN { printf "%.1f ms", took / 1000 }'; }

# filesOfStart PROGRAM DATA : what a start reads. Libraries that other programs of the machine have in
# use stay in the cache, for all that are compared.
filesOfStart() {
    {
        for program in "$1" empty_window; do
            echo "$programs/$program"
            ldd "$programs/$program" | grep -o '/[^ ]*'
        done
        find -L /usr/lib/*/qt6/plugins /usr/share/fonts /etc/fonts /var/cache/fontconfig \
            "$programs/../data" "$XDG_CONFIG_HOME" "$2" ! -path "*/Logs/*" -type f 2>/dev/null
    } | sort -u
}
dropCached() {
    sync
    while read -r file; do
        dd if="$file" iflag=nocache count=0 status=none 2>/dev/null || true
    done <"$work/files"
}
# coldly NAME COMMAND...: what the command prints, with nothing of it cached, goes to a file
coldly() {
    dropCached
    file=$work/$1
    shift
    "$@" >>"$file"
}

[ "$window" = console ] || . "$(dirname "$0")/viewer_window.sh"
[ "$window" != viewer ] || exit $missed

site=$work/site
"$programs/orvandiag" sample "$site" --lines 300000 >/dev/null
log=$(sampleLog "$site")
head -c 2400000 "$log" | sed '$d' >"$work/part"
touch -r "$log" "$work/part"
mv "$work/part" "$log"
name=$(basename "$log")

console() { "$programs/console_window" "$@" --site "$site" 2>/dev/null; }
measuredConsole() { measured "$programs/console_window" "$@" --site "$site"; }

# The first start supplies the tool's folder and writes the settings.
console tree >/dev/null
round=0
while [ "$round" -lt "$rounds" ]; do
    round=$((round + 1))
    # Unmeasured: what ran before must burden none of those that are compared.
    measured "$programs/empty_window" >/dev/null
    measured "$programs/empty_window" >>"$work/empty"
    measured "$programs/empty_window" tree >>"$work/plain"
    measuredConsole tree >>"$work/tree"
    measuredConsole processes >>"$work/processes"
    measured "$programs/orvandiag" --site "$site" read "$name" >>"$work/read"
    console log "$name" >>"$work/log"
    console lines "$name" >>"$work/lines"
done

filesOfStart console_window "$site" >"$work/files"
round=0
while [ "$round" -lt $(((rounds + 2) / 3)) ]; do
    round=$((round + 1))
    coldly coldEmpty measured "$programs/empty_window"
    coldly coldPlain measured "$programs/empty_window" tree
    coldly coldTree measuredConsole tree
done

echo "load       $(cut -d ' ' -f 1-3 /proc/loadavg), $(nproc) processors, medians of $rounds rounds"
echo "start      painted, from start to end, processor time of that"
for start in coldEmpty coldPlain coldTree empty plain tree processes; do
    echo "           $(shown "$(first $start)")  $(shown "$(whole $start)")  $(shown "$(processor $start)")  $start"
done
told "console's cold start / empty window" "$(whole coldTree)" "$(whole coldEmpty)" 1.5 || missed=1
told "console's second start / empty window" "$(whole tree)" "$(whole empty)"
told "console's second start / empty window, processor time" "$(processor tree)" "$(processor empty)"
told "window with a menu and a tree / empty window" "$(whole plain)" "$(whole empty)"

echo "log        $(stat -c %s "$log") bytes, $(wc -l <"$log") lines"
echo "           $(shown "$(first log)") to the painted lines, $(shown "$(first lines)") of them the tool's own reading"
echo "           orvandiag read $(shown "$(whole read)")"
told "log in the window / orvandiag read" "$(first log)" "$(whole read)" 3 || missed=1

console scroll "$name" | sed 1d >"$work/pages"
echo "pages      of the log, microseconds each (and the longest):"
while read -r table pages usual longest; do
    echo "           $table: $usual ($longest), $pages pages"
done <"$work/pages"
page() { awk -v table="$1" '$1 == table { print $3 }' "$work/pages"; }
for table in log sorted filtered; do
    told "page of the $table lines / a frame" "$(page $table)" $frameMicroseconds 1 || missed=1
    told "page of the $table lines / plain table" "$(page $table)" "$(page plain)"
done
exit $missed
