#!/usr/bin/env bash
# Builds the Debian packages into build/packages, and lets Debian's own checker look at them.
#
#   scripts/package.sh [--no-install]
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/setup.sh

install=yes
case ${1:-} in
  '') ;;
  --no-install) install=no ;;
  *) sed -n 's/^#   //p' "$0" >&2; exit 2 ;;
esac

install_missing "${build_packages[@]}" "${desktop_packages[@]}" "${package_packages[@]}"
build_preset release
# The same sources make the same packages, wherever the time of the last commit is known.
if [ -z "${SOURCE_DATE_EPOCH:-}" ] && stamp=$(git log -1 --format=%ct 2>/dev/null); then
  export SOURCE_DATE_EPOCH=$stamp
fi
rm -rf build/packages
(cd build/release && cpack >../packages.log 2>&1) || { tail -n 20 build/packages.log >&2; exit 1; }
lintian --fail-on error --allow-root --tag-display-limit 0 build/packages/*.deb >&2
ls build/packages/*.deb
