#!/bin/sh
# Makes a live server of a machine of Wine's, does what an administrator does there with the program
# for Windows, does the same on a copy of that server in a folder with the one for this machine, and
# fails on any difference in what they say and leave:
#   live_machine.sh WINDOWS_ORVANDIAG WINDOWS_DATA ORVANDIAG PREFIX
#
# PREFIX is a folder for the machine, made where it is missing. What a moment is in is made equal
# first. Gives 77 where there is no Wine, no SQLite driver of ODBC, or no program to compare with.
set -u
windows=$1
data=$2
here=$3
WINEPREFIX=$4
export WINEPREFIX
unset ORVAN_SITE LANG LC_ALL
runner=$(cd "$(dirname "$0")/../.." && pwd)/scripts/run_under_wine.sh
canonical=$(cd "$(dirname "$0")" && pwd)/canonical_registry.py
driver=$(find /usr/lib -name libsqlite3odbc.so -print -quit)
command -v wine64 >/dev/null || command -v wine >/dev/null || [ -x /usr/lib/wine/wine64 ] || exit 77
[ -n "$driver" ] && [ -x "$here" ] || exit 77
command -v cabextract >/dev/null || exit 77

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
differences=0

# The zone of the sample server, for the programs on both.
TZ=PST8PDT,M3.2.0,M11.1.0
export TZ

compare() {
  what=$1
  shift
  if ! "$@"; then
    echo "different: $what" >&2
    differences=$((differences + 1))
  fi
}

# What a sentence calls the server, and where the results lie, made equal; and the countries of
# languages' names, which Wine leaves out.
equalized() {
  sed -e 's/\(German\|English\|Spanish\|French\|Japanese\) ([A-Z][A-Za-z, ]*)/\1/g' -e "s|$work/here/|C:\\\\|g" -e "s|the site $work/here/site|this server|g" \
    -e 's|/C:/|C:\\|g' -e 's|/|\\|g' "$1"
}

# Runs a command on both servers and compares status and output.
both() {
  on_machine "$@" >"$work/windows.out" 2>"$work/windows.err"
  echo $? >"$work/windows.status"
  (cd "$work/here" && "$here" --site site "$@" </dev/null >../here.out 2>../here.err)
  echo $? >"$work/here.status"
  for part in status out err; do
    for side in windows here; do equalized "$work/$side.$part" >"$work/$side.$part.equal"; done
    compare "$part of: $*" diff "$work/here.$part.equal" "$work/windows.$part.equal"
  done
}

# The folder that a command is run in has the directory database under the name that the tool opens:
# the driver takes a database's name for that of a file.
on_machine() {
  (cd "$work/database" && ODBCSYSINI=$work/odbc ODBCINI=/dev/null \
    "$runner" 'C:\OrvanDiagnostics\orvandiag.exe' "$@")
}

regedit() {
  "$runner" regedit.exe "$@"
}

# The machine as it was before: without a server.
remove_server() {
  printf 'REGEDIT4\n\n[-HKEY_LOCAL_MACHINE\\Software\\Kelma Systems]\n' >"$work/remove.reg"
  printf '[-HKEY_LOCAL_MACHINE\\%s\\%s]\n' 'System\CurrentControlSet\Services' EventLog \
    >>"$work/remove.reg"
  regedit /S "Z:$work/remove.reg"
  rm -rf "$WINEPREFIX/drive_c/KelmaOrvan" "$WINEPREFIX/drive_c/OrvanDiagnostics" \
    "$WINEPREFIX/drive_c/out"
}

install_tool() {
  cp -a "$work/here/site/drive_c/OrvanDiagnostics" "$WINEPREFIX/drive_c/" 2>/dev/null ||
    mkdir "$WINEPREFIX/drive_c/OrvanDiagnostics"
  cp "$data"/*.dll "$data"/*.mdb "$data/cabmaker.exe" "$windows" \
    "$WINEPREFIX/drive_c/OrvanDiagnostics/"
}

install_server() {
  cp -a "$work/here/site/drive_c/KelmaOrvan" "$WINEPREFIX/drive_c/"
  { printf '\377\376'; iconv -f UTF-8 -t UTF-16LE "$work/here/site/registry.reg"; } \
    >"$work/server.reg"
  regedit /S "Z:$work/server.reg"
}

# The server's keys of both registries, a value a line; moments are words.
compare_registries() {
  regedit /E "Z:$work/windows.reg" 'HKEY_LOCAL_MACHINE\Software\Kelma Systems'
  python3 "$canonical" "$work/windows.reg" >"$work/windows.keys"
  python3 "$canonical" "$work/here/site/registry.reg" >"$work/here.keys"
  compare "registry $1" diff "$work/here.keys" "$work/windows.keys"
}

rows() {
  python3 - "$1" <<'END'
import re, sqlite3, sys
for line in sqlite3.connect(f"file:{sys.argv[1]}?mode=ro", uri=True).iterdump():
    print(re.sub(r"20(2[6-9]|[3-9][0-9])-[0-9-]* [0-9:.]*", "MOMENT", line))
END
}

compare_databases() {
  rows "$work/database/OrvanDirDb" >"$work/windows.rows"
  rows "$work/here/site/OrvanDirDb.sqlite" >"$work/here.rows"
  compare "rows of the database $1" diff "$work/here.rows" "$work/windows.rows"
}

# Names and sums of a folder's files; captured events are those of either machine.
listing() {
  (cd "$1" && find . -type f ! -name '*.mdb' ! -name '*.cab' ! -name '*.csv' | LC_ALL=C sort |
    while read -r name; do md5sum "$name"; done)
}

mkdir "$work/here" "$work/database" "$work/odbc"
: >"$work/odbc/odbcinst.ini"
"$here" sample "$work/here/site" --lines 2000 --seed 5 >/dev/null || exit 1
sed -i -e "s/^user=.*/user=$(id -un)/" -e "s/^computer=.*/computer=$(hostname)/" \
  "$work/here/site/site.ini"
"$runner" cmd.exe /c exit
remove_server
install_tool

# Without a server: a sentence, and the result of a folder without one.
on_machine status >"$work/none.out" 2>"$work/none.err"
compare "status of a machine without a server" [ $? = 0 ]
compare "sentence of a machine without a server" \
  grep -q '^orvandiag: no Orvan server is installed on this computer' "$work/none.err"
compare "connection of a machine without a server" grep -q 'cannot connect' "$work/none.out"

printf '[SQL Server]\nDriver=%s\n' "$driver" >"$work/odbc/odbcinst.ini"
cp "$work/here/site/OrvanDirDb.sqlite" "$work/database/OrvanDirDb"
install_server
for command in status tree macro micro settings about language event-language flags; do
  both --json $command
  both $command
done
compare_registries "after looks"
log=$(ls "$work/here/site/drive_c/KelmaOrvan/Logs" | grep '^diag_KoCSMgr' | grep -v fmtd | head -n 1)
both --json logs KoCSMgr
both --json read "$log"
both read "$log"
both --json read "C:\\KelmaOrvan\\Logs\\$log"
both read missing.txt
both macro set --on "Call Flow - Transfers"
both micro set --on CallFlow:7
both macro set --on "No - Such"
both settings --max-megabytes 800 --log-folder 'C:\KelmaOrvan\Logs'
compare_registries "after changes"
compare_databases "after changes"
both reset
compare_registries "after the reset"
compare_databases "after the reset"

# The results of a gather in a folder of the drive, and what their names and texts have of moments.
mkdir "$WINEPREFIX/drive_c/out" "$work/here/out"
gather() {
  name=$1
  shift
  on_machine --json gather "$@" --to "C:\\out\\$name" >"$work/windows.out" 2>"$work/windows.err"
  echo $? >"$work/windows.status"
  (cd "$work/here" && "$here" --site site --json gather "$@" --to "out/$name" \
    >../here.out 2>../here.err </dev/null)
  echo $? >"$work/here.status"
  compare "status of gather $1" diff "$work/here.status" "$work/windows.status"
  compare "messages of gather $1" diff "$work/here.err" "$work/windows.err"
  listing "$WINEPREFIX/drive_c/out/$name" >"$work/windows.files"
  listing "$work/here/out/$name" >"$work/here.files"
  compare "files of gather $1" diff "$work/here.files" "$work/windows.files"
}

gather standard standard
gather logs logs --log "$log" --event-log System
# Wine takes the moment of the last change for that of the making, by which lines, which have times of
# day alone, get their day: here it is the moment in each log's name.
find "$WINEPREFIX/drive_c/KelmaOrvan/Logs" "$work/here/site/drive_c/KelmaOrvan/Logs" -name '*_2025*' |
  sed -n 's/.*_\(2025[0-9]\{4\}\)_\([0-9]\{4\}\)\([0-9][0-9]\).*\.txt$/\1\2.\3 &/p' |
  while read -r moment log; do touch -t "$moment" "$log"; done
gather frame frame --from "2025-02-19 12:00" --hours 30
compare "a frame without lines" grep -q '"database":"' "$work/here.out"
for place in "$WINEPREFIX/drive_c/out/frame" "$work/here/out/frame"; do
  for ending in mdb cab; do
    compare "the frame's $ending in $place" [ "$(ls "$place" | grep -c "\\.$ending\$")" = 1 ]
    mv "$place"/*."$ending" "$place.$ending"
  done
  mkdir "$place.packed"
  cabextract -q -d "$place.packed" "$place.cab"
  mv "$place.packed"/*.mdb "$place.packed.mdb"
done
for name in frame.mdb frame.packed.mdb; do
  compare "$name" cmp "$work/here/out/$name" "$WINEPREFIX/drive_c/out/$name"
done
compare "what is in the cabinets" diff -r -x '*.csv' "$work/here/out/frame.packed" \
  "$WINEPREFIX/drive_c/out/frame.packed"

# A machine whose database has no driver.
: >"$work/odbc/odbcinst.ini"
on_machine status >"$work/none.out" 2>"$work/none.err"
compare "status without a driver" [ $? = 0 ]
compare "sentence of a machine without a driver" grep -q "No driver for the server" "$work/none.out"
on_machine macro set --on "Call Flow - Transfers" >"$work/none.out" 2>"$work/none.err"
compare "a change without a driver" [ $? = 1 ]

remove_server
[ "$differences" = 0 ] || { echo "$differences differences" >&2; exit 1; }
echo "no difference"
