# ./run on a bare system, and what it must leave. Runs inside, as root.
set -euo pipefail
cd /root/orvandiag
. scripts/setup.sh
install=yes
fail() {
  say "$*"
  exit 1
}

[ -z "$(command -v g++ cmake)" ] || fail "the system is not bare"
./run
folder=$(ls -d build/gathered/*)
database=$(ls "$folder"/*.mdb) cabinet=$(ls "$folder"/*.cab)

install_missing cabextract mdbtools
rows=$(mdb-export "$database" tblTraces | wc -l)
[ "$rows" -gt 1000 ] || fail "the trace database has $rows rows"
cabextract --test "$cabinet" >/dev/null
echo "$database has $rows rows, and $cabinet is sound"

if dpkg-query -W libgtest-dev qt6-base-dev >/dev/null 2>&1; then
  fail "./run installs what it has no need of"
fi
nothing='ninja: no work to do.'
./run --no-install >/dev/null
tail -n 1 build/release.log | grep -qx "$nothing" || fail "./run builds again what has not changed"
