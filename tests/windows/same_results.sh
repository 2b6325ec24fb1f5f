#!/bin/sh
# Does the same on copies of one sample server with the program for Windows, under Wine, and with
# the one for this machine, and fails on any difference: same_results.sh WINDOWS_ORVANDIAG ORVANDIAG
#
# What a moment or the name of the kind of machine is in is made equal first. Gives 77 where there
# is no Wine, no program to compare with, or no cabextract.
set -u
windows=$1
here=$2
runner=$(cd "$(dirname "$0")/../.." && pwd)/scripts/run_under_wine.sh
command -v wine64 >/dev/null || command -v wine >/dev/null || [ -x /usr/lib/wine/wine64 ] || exit 77
[ -x "$here" ] || exit 77
command -v cabextract >/dev/null || exit 77

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset ORVAN_SITE LANG TZ
differences=0

# A difference between what both programs made.
compare() {
  what=$1
  shift
  if ! "$@"; then
    echo "different: $what" >&2
    differences=$((differences + 1))
  fi
}

# What a program said, the folder of its own work taken out, and paths written with slashes where
# people of Windows write them with a drive and backslashes.
equalized() {
  sed -e ':a' -e 's#\(Z:[^ ",;]*\)\\#\1/#' -e ta -e ':b' -e 's#\(Z:[^ ",;]*\)//#\1/#' -e tb \
    -e 's|Z:/|/|g' -e "s|$work/windows|WORK|g" -e "s|$work/here|WORK|g" "$1"
}

# Runs a command with both programs, each in a folder of its own, and compares status and output.
both() {
  (cd "$work/windows" && "$runner" "$windows" "$@" >../windows.out 2>../windows.err; echo $? >../windows.status)
  (cd "$work/here" && "$here" "$@" </dev/null >../here.out 2>../here.err; echo $? >../here.status)
  for part in status out err; do
    for side in windows here; do equalized "$work/$side.$part" >"$work/$side.$part.equal"; done
    compare "$part of: $*" diff "$work/here.$part.equal" "$work/windows.$part.equal"
  done
}

# Takes the moments of this run out of a text; those of the sample server are older.
without_moments() {
  LC_ALL=C sed -e 's/20\(2[6-9]\|[3-9][0-9]\)-[0-9-]* [0-9:.]*/MOMENT/g' \
    -e 's/^\("[A-Za-z ]* Time Set"=hex:\)[0-9a-f,]*/\1MOMENT/' \
    -e 's|^\("Date"="\)[0-9/]* [0-9:]* [AP]M|\1MOMENT|'
}

# Sorted names of a folder's files with a sum of the bytes of each, but for those of databases and
# cabinets, of the tool's own logs, whose every line and name has a moment, of locks, and of the
# cabinet maker and the help file that each kind of machine has of its own.
listing() {
  (cd "$1" && find . -type f ! -name '*.mdb' ! -name '*.cab' ! -name '*.lock' ! -name '*.sqlite' \
    ! -path '*/OrvanDiagnostics/LOGS/*' ! -path '*/OrvanDiagnostics/cabmaker.exe' \
    ! -path '*/OrvanDiagnostics/*.chm' | LC_ALL=C sort | while read -r name; do
    echo "$(without_moments <"$name" | md5sum) $name"
  done)
}

# The rows and the definitions of a site's database.
rows() {
  python3 - "$1" <<'END'
import sqlite3, sys
for line in sqlite3.connect(f"file:{sys.argv[1]}?mode=ro", uri=True).iterdump():
    print(line)
END
}

compare_sites() {
  for side in windows here; do
    listing "$work/$side/site" >"$work/$side.files"
    rows "$work/$side/site/OrvanDirDb.sqlite" | without_moments >"$work/$side.rows"
  done
  compare "files of the site $1" diff "$work/here.files" "$work/windows.files"
  compare "rows of the database $1" diff "$work/here.rows" "$work/windows.rows"
}

mkdir "$work/windows" "$work/here"
both --json sample site --lines 500 --seed 5
compare_sites "as made"
compare "the database's bytes" cmp "$work/here/site/OrvanDirDb.sqlite" "$work/windows/site/OrvanDirDb.sqlite"
# From here on one and the same site, so that a difference of the making shows but once.
rm -rf "$work/windows/site"
cp -a "$work/here/site" "$work/windows/site"

# A site's tool folder is given what it lacks with the first change, on each side its own.
both --site site cycle
for command in status tree macro micro settings about language; do
  both --site site --json $command
  both --site site $command
done
log=$(ls "$work/here/site/drive_c/KelmaOrvan/Logs" | grep '^diag_' | grep -v fmtd | head -n 1)
both --site site --json read "$log"
both --site site read "$log"
both --site site macro set --on "Call Flow - Transfers"
both --site site micro set --on CallFlow:7
both --site site settings --max-megabytes 800
compare_sites "after changes"
both --site site --json macro
both --site site reset
compare_sites "after the reset"
both --site site read missing.txt
both --site no_site status

both --site site gather logs --log "$log" --event-log System --to copies
for side in windows here; do listing "$work/$side/copies" >"$work/$side.copies"; done
compare "formatted copies and captured events" diff "$work/here.copies" "$work/windows.copies"
[ -s "$work/here.copies" ] || compare "copies, of which there are none" false

# The names of a frame's results tell when they were made.
for side in windows here; do
  case $side in
    windows) run="$runner $windows" ;;
    here) run=$here ;;
  esac
  (cd "$work/$side" && $run --site site gather frame --from "2025-02-20 08:00" --hours 12 --to frame \
    >../$side.out 2>../$side.err </dev/null)
  echo $? >"$work/$side.status"
  (cd "$work/$side/frame" && for ending in mdb cab; do mv ./*."$ending" "result.$ending"; done)
  listing "$work/$side/frame" >"$work/$side.frame"
done
compare "status of the frame" cmp "$work/here.status" "$work/windows.status"
compare "files of the frame" diff "$work/here.frame" "$work/windows.frame"
compare "trace databases" cmp "$work/here/frame/result.mdb" "$work/windows/frame/result.mdb"
for side in windows here; do
  mkdir "$work/$side/packed"
  cabextract -q -d "$work/$side/packed" "$work/$side/frame/result.cab"
  mv "$work/$side/packed/"*.mdb "$work/$side/packed.mdb"
  listing "$work/$side/packed" >"$work/$side.packed"
done
compare "what is in the cabinets" diff "$work/here.packed" "$work/windows.packed"
compare "databases in the cabinets" cmp "$work/here/packed.mdb" "$work/windows/packed.mdb"

[ "$differences" = 0 ] || { echo "$differences differences" >&2; exit 1; }
echo "no difference"
