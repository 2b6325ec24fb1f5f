#!/bin/sh
# Runs a Windows program: run_under_wine.sh PROGRAM.EXE [ARGUMENT...]
#
# Without a display and with nothing to read; what it writes goes through files, since the programs
# that Wine leaves in the background would keep the caller's pipe open. ORVAN_WINE_INPUT names a
# file to be read.
WINEPREFIX=${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/orvandiag/wine}
WINEDEBUG=${WINEDEBUG:--all}
WINEDLLOVERRIDES='mscoree,mshtml='
export WINEPREFIX WINEDEBUG WINEDLLOVERRIDES
unset DISPLAY WAYLAND_DISPLAY
wine=$(command -v wine64 || command -v wine || echo /usr/lib/wine/wine64)
server=$(command -v wineserver || echo /usr/lib/wine/wineserver)
mkdir -p "$WINEPREFIX"
out=$(mktemp)
err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT
# A server that leaves with its last program may be leaving just as the next one calls, which is
# then cut off. This one stays a minute; where one is there already, it ends at once.
"$server" -p60 </dev/null >/dev/null 2>&1 || true
"$wine" "$@" <"${ORVAN_WINE_INPUT:-/dev/null}" >"$out" 2>"$err"
status=$?
cat "$out"
cat "$err" >&2
exit $status
