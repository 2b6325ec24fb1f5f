#!/bin/sh
# with_postgres.sh COMMAND...: runs a command beside a PostgreSQL server of its own, which it has do
# things by files, as a program under Wine can't start one. Gives the command's status, and 77 where
# no server is installed.
#
# ORVAN_TEST_POSTGRES names the server's folder to the command. There it asks by a file NUMBER.ask,
# whose first line is "run", "file", "start" or "stop", with statements or the name of a file behind
# it; it finds the answer in NUMBER.done, with the status before what the server said.
set -u
programs=$(printf '%s\n' /usr/lib/postgresql/*/bin | sort -V | tail -n 1)
[ -x "$programs/initdb" ] || exit 77
folder=$(mktemp -d)
as_server=
if [ "$(id -u)" = 0 ]; then
  chown postgres "$folder"
  as_server="setpriv --reuid=postgres --regid=postgres --init-groups"
fi

psql() {
  "$programs/psql" -X -q -t -A -v ON_ERROR_STOP=1 -h "$folder" -U postgres -d postgres "$@"
}

start_server() {
  (cd "$folder" && exec $as_server "$programs/postgres" -D "$folder/data" -k "$folder" \
    -c listen_addresses= -F) >>"$folder/log" 2>&1 &
  server=$!
  tries=0
  until psql -c 'SELECT 1' >/dev/null 2>&1; do
    tries=$((tries + 1))
    if [ $tries -ge 600 ] || ! kill -0 "$server" 2>/dev/null; then
      server=
      return 1
    fi
    sleep 0.1
  done
}

stop_server() {
  [ -n "$server" ] || return 0
  kill -QUIT "$server" 2>/dev/null
  wait "$server" 2>/dev/null
  server=
}

answer() {
  read -r wish <"$1"
  tail -n +2 "$1" >"$folder/statements"
  case $wish in
    run) psql -f "$folder/statements" ;;
    file) psql -f "$(cat "$folder/statements")" ;;
    start) start_server ;;
    stop) stop_server ;;
    *) false ;;
  esac >"$folder/said" 2>&1
  { echo $?; cat "$folder/said"; } >"$folder/answer"
  rm "$1"
  mv "$folder/answer" "${1%.ask}.done"
}

server=
trap 'stop_server; rm -rf "$folder"' EXIT
trap 'exit 1' INT TERM
(cd "$folder" && $as_server "$programs/initdb" -D "$folder/data" -A trust -U postgres --no-locale \
  -E UTF8 -N) >"$folder/log" 2>&1 && start_server
if [ -z "$server" ]; then
  cat "$folder/log" >&2
  exit 1
fi

ORVAN_TEST_POSTGRES=$folder "$@" &
command=$!
while kill -0 "$command" 2>/dev/null; do
  for wish in "$folder"/*.ask; do
    [ -f "$wish" ] && answer "$wish"
  done
  sleep 0.01
done
wait "$command"
