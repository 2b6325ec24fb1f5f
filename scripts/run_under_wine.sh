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
mkdir -p "$WINEPREFIX"
out=$(mktemp)
err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT
"$wine" "$@" <"${ORVAN_WINE_INPUT:-/dev/null}" >"$out" 2>"$err"
status=$?
cat "$out"
cat "$err" >&2
exit $status
