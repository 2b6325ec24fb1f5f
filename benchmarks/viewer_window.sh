# The viewer's part of window_benchmark.sh, which sources it: what it measures of the viewer, $rounds
# times or once, and whether the goals are met ($missed).
#
# Its peers are an empty window of Qt, for a start, and `orvandiag read --count` of the same rows, for
# memory. A filter and a page have none: what a person notices is their goal.

database=$work/gather.mdb
cp "$programs/../data/blankWPNDB.mdb" "$database"
"$programs/count_components" fill "$database" 1000000

"$programs/orvandiag" sample "$work/large" --lines 1000000 --fields extended >/dev/null
large=$work/diag_KoCSMgr_20250217_174217.txt
for _ in 1 2 3 4 5 6 7 8 9 10; do
    find "$work/large/drive_c/KelmaOrvan/Logs" -name 'diag_*' ! -name '*_fmtd.txt' | sort |
        xargs cat
done >"$large"
rm -r "$work/large"

viewer() { "$programs/viewer_window" "$@" 2>/dev/null; }
# Always as at the first time, whatever a run before has left.
viewer first --fresh "$database" >/dev/null
round=0
while [ "$round" -lt "$rounds" ]; do
    round=$((round + 1))
    measured "$programs/empty_window" >/dev/null
    measured "$programs/empty_window" >>"$work/viewerEmpty"
    measured "$programs/empty_window" tree >>"$work/viewerPlain"
    measured "$programs/viewer_window" first --fresh "$database" >>"$work/viewerFirst"
    measured "$programs/viewer_window" first --fresh "$large" >>"$work/viewerLarge"
done
filesOfStart viewer_window "$database" >"$work/files"
round=0
while [ "$round" -lt $(((rounds + 2) / 3)) ]; do
    round=$((round + 1))
    coldly viewerColdEmpty measured "$programs/empty_window"
    coldly viewerColdFirst measured "$programs/viewer_window" first --fresh "$database"
done

echo "viewer     load $(cut -d ' ' -f 1-3 /proc/loadavg)"
echo "start      painted, from start to end, processor time of that"
for start in viewerColdEmpty viewerColdFirst viewerEmpty viewerPlain viewerFirst viewerLarge; do
    echo "           $(shown "$(first $start)")  $(shown "$(whole $start)")  $(shown "$(processor $start)")  $start"
done
told "viewer's first rows of a database of 1,000,000, cold / empty window" \
    "$(first viewerColdFirst)" "$(first viewerColdEmpty)" 2 || missed=1
told "viewer's first rows of a database of 1,000,000, cached / empty window" \
    "$(first viewerFirst)" "$(first viewerEmpty)"
told "viewer's first rows of 10,000,000 lines / empty window" \
    "$(first viewerLarge)" "$(first viewerEmpty)"

# goal NAME MICROSECONDS COMMAND...: the median of what the viewer says it took, and the longest
goal() {
    name=$1
    most=$2
    shift 2
    viewer "$@" >"$work/took"
    read -r usual longest <"$work/took"
    echo "$name: $(shown "$usual"), at most $(shown "$longest")"
    told "$name / $(shown "$most")" "$usual" "$most" 1 || missed=1
}
goal "filter by a component, first screen of 1,000,000 rows of a database" 50000 \
    component Component7 --fresh "$database"
goal "filter by a component, first screen of 10,000,000 rows" 50000 component CallFlow --fresh "$large"
goal "page down at 10,000,000 rows" 16000 pages --fresh "$large"

engine=$(peakKilobytes "$programs/orvandiag" --site none read --fields extended "$large" --count)
viewer=$(peakKilobytes "$programs/viewer_window" read --fresh "$large")
bare=$(peakKilobytes "$programs/empty_window")
echo "memory     $viewer KB with 10,000,000 rows, read --count $engine KB, an empty window $bare KB"
told "viewer's memory at 10,000,000 rows / read --count and 60 MB" \
    "$viewer" $((engine + 61440)) 1 || missed=1
