#!/bin/sh
# Measures the console's window on Qt's offscreen platform:
#
# - a cold start to a filled tree on the sample server, beside an empty window of Qt;
# - showing a log of 2.4 MB, beside `orvandiag read` of it;
# - paging through that log, beside a table of Qt over texts that are ready.
#
#     benchmarks/window_benchmark.sh [ROUNDS]
#
# In each of the ROUNDS (21) all take turns, and medians are compared. Needs the release preset's
# programs. Ends with 1 unless a start takes no more than 1.5 times the empty window's, showing the
# log no more than 3 times the reading, and a page stays within a frame of 60 a second.
set -eu
. "$(dirname "$0")/measure.sh"

rounds=${1:-21}
frameMicroseconds=16667
export QT_QPA_PLATFORM=offscreen
export XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime"
mkdir -m 700 "$XDG_RUNTIME_DIR"

site=$work/site
"$programs/orvandiag" sample "$site" --lines 300000 >/dev/null
log=$(sampleLog "$site")
head -c 2400000 "$log" | sed '$d' >"$work/part"
touch -r "$log" "$work/part"
mv "$work/part" "$log"
name=$(basename "$log")

console() { "$programs/console_window" "$@" --site "$site" 2>/dev/null; }
untilPainted() { "$programs/first_output" "$@" 2>/dev/null; }
readLog() { "$programs/orvandiag" --site "$site" read "$name"; }

# The first start supplies the tool's folder and writes the settings.
console tree >/dev/null
round=0
while [ "$round" -lt "$rounds" ]; do
    round=$((round + 1))
    microseconds "$programs/empty_window" >>"$work/emptyWhole"
    microseconds "$programs/console_window" tree --site "$site" >>"$work/treeWhole"
    untilPainted "$programs/empty_window" >>"$work/empty"
    untilPainted "$programs/console_window" tree --site "$site" >>"$work/tree"
    untilPainted "$programs/console_window" processes --site "$site" >>"$work/processes"
    microseconds readLog >>"$work/read"
    console log "$name" >>"$work/log"
    console lines "$name" >>"$work/lines"
done
of() { median "$work/$1"; }
shown() { awk -v took="$(of "$1")" 'BEGIN { printf "%.1f ms", took / 1000 }'; }

missed=0
echo "load       $(cut -d ' ' -f 1-3 /proc/loadavg), $(nproc) processors, $rounds rounds"
start=$(ratio "$(of treeWhole)" "$(of emptyWhole)")
echo "start      $(shown treeWhole) from start to end, an empty window $(shown emptyWhole), ratio $start"
echo "           $(shown tree) to the painted tree ($(shown processes) with the processes opened)," \
    "an empty window $(shown empty)"
goal "console start / empty window" "$start" 1.5 || missed=1

showing=$(ratio "$(of log)" "$(of read)")
echo "log        $(stat -c %s "$log") bytes, $(wc -l <"$log") lines"
echo "           $(shown log) to the painted lines, orvandiag read $(shown read), ratio $showing"
echo "           $(shown lines) of it are the tool's own reading"
goal "log in the window / orvandiag read" "$showing" 3 || missed=1

console scroll "$name" | sed 1d >"$work/pages"
while read -r table pages usual longest; do
    echo "pages      $table: $pages of $usual us each, $longest us at most"
done <"$work/pages"
plain=$(awk '$1 == "plain" { print $3 }' "$work/pages")
for table in log sorted filtered; do
    usual=$(awk -v table=$table '$1 == table { print $3 }' "$work/pages")
    goal "page of the $table lines / a frame" "$(ratio "$usual" $frameMicroseconds)" 1 || missed=1
    echo "           $(ratio "$usual" "$plain") of the plain table"
done
exit $missed
