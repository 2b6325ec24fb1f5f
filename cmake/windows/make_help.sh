#!/bin/sh
# Makes the help file that Windows' viewer shows: make_help.sh FOLDER LANGUAGE HELP.chm
#
# FOLDER has the pages and topics.txt, LANGUAGE is the number of their language.
set -eu
pages=$1
language=$2
target=$3
tools=$(cd "$(dirname "$0")" && pwd)
name=$(basename "$target" .chm)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp "$pages/help.css" "$work/"
for page in "$pages"/*.html; do
  # Without being asked the viewer lays pages out as its oldest one did.
  sed 's|^<meta charset="utf-8">$|&\n<meta http-equiv="X-UA-Compatible" content="IE=edge">|' \
    "$page" >"$work/$(basename "$page")"
done
awk -v name="$name" -v language="$language" -v folder="$work" -f "$tools/make_help_project.awk" \
  "$pages/topics.txt" "$pages/index.html" \
  $(ls "$pages"/*.html | grep -v '/index\.html$')
(cd "$work" && chmcmd --no-html-scan "$name.hhp" >messages 2>&1) || { cat "$work/messages" >&2; exit 1; }
[ -s "$work/$name.chm" ] || { cat "$work/messages" >&2; exit 1; }
python3 "$tools/number_help_topics.py" "$work/$name.chm" "$work"
mv "$work/$name.chm" "$target"
