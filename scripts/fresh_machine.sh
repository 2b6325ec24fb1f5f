#!/usr/bin/env bash
# Does what the README says on a new machine: a bare system of this machine's release, which has
# this project's last commit and nothing else, and is gone afterwards.
#
#   scripts/fresh_machine.sh [run]      ./run; the results are then read with other people's readers
#   scripts/fresh_machine.sh test       ./test
#   scripts/fresh_machine.sh windows    ./test --windows
#   scripts/fresh_machine.sh package    installs the packages of scripts/package.sh with apt and
#                                       works with them
#
# It takes root or a user namespace. Its status is 77 where no bare system can be made.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/setup.sh

install=yes
mode=${1:-run}
inside=scripts/fresh_machine/$mode.sh
[ $# -le 1 ] && [ -f "$inside" ] && [ "$mode" != prepare ] ||
  { sed -n 's/^#   //p' "$0" >&2; exit 2; }

cannot() {
  say "no bare system can be made here: $1"
  exit 77
}

install_missing git mmdebstrap uidmap || cannot "mmdebstrap is not installed"
work=$(mktemp -d)
trap 'rm -rf "$work" 2>/dev/null' EXIT # mmdebstrap too removes what it made
chmod 755 "$work" # in a user namespace the hooks are somebody else
# Whoever runs this may be another one than the folder's owner, as in a container.
git config --file "$work/git" safe.directory '*'
GIT_CONFIG_GLOBAL=$work/git git clone --quiet --no-hardlinks . "$work/orvandiag" ||
  cannot "this folder is no clone of the project"
cp "$inside" scripts/fresh_machine/prepare.sh "$work"
mkdir "$work/packages"
if [ "$mode" = package ]; then
  scripts/package.sh >&2
  cp build/packages/*.deb "$work/packages"
fi

# What the machine's own programs find their way out with goes along.
passed=(HOME=/root LANG=C.UTF-8 PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin)
for name in http_proxy https_proxy no_proxy HTTP_PROXY HTTPS_PROXY NO_PROXY SSL_CERT_FILE \
  NODE_EXTRA_CA_CERTS; do
  [ -z "${!name:-}" ] || passed+=("$name=${!name}")
done
if command -v npm >/dev/null; then
  passed+=("npm_config_registry=$(npm config get registry 2>/dev/null)")
fi
printf '%q ' exec env -i "${passed[@]}" bash "/root/$mode.sh" >"$work/start.sh"

sources=()
for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.{list,sources}; do
  [ ! -f "$file" ] || sources+=("$file")
done
suite=$(. /etc/os-release && echo "${VERSION_CODENAME:-}")
[ ${#sources[@]} -gt 0 ] && [ -n "$suite" ] || cannot "apt has no sources of a Debian release"

# A system without /proc is none to try things on; once it has it, a failure is ours.
: >"$work/made"
chmod 666 "$work/made"
# Root's mounts would stay when this is ended from outside, so they have a world of their own.
alone=()
if [ "$(id -u)" = 0 ] && unshare --mount true 2>/dev/null; then
  alone=(unshare --mount)
  export TMPDIR=$work
fi
say "making a bare $suite system"
"${alone[@]}" mmdebstrap --quiet --variant=apt --format=null \
  --dpkgopt=force-unsafe-io --setup-hook="sh '$work/prepare.sh' \"\$1\"" \
  --customize-hook='test -e "$1/proc/self/exe"' \
  --customize-hook="echo yes >'$work/made'" \
  --customize-hook="copy-in '$work/orvandiag' '$work/packages' '$work/$mode.sh' '$work/start.sh' /root" \
  --customize-hook='chroot "$1" bash /root/start.sh' \
  "$suite" "" "${sources[@]}" >&2 && status=0 || status=$?
[ -s "$work/made" ] || cannot "mmdebstrap could not make one"
[ $status = 0 ] || { say "on a new machine \"$mode\" fails"; exit 1; }
say "a new machine does \"$mode\""
