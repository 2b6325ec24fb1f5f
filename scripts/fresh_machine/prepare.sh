#!/bin/sh
# prepare.sh ROOT : gives a system in the making this machine's settings of apt, and the keys,
# certificates and names of hosts that reaching its sources takes.
set -eu
root=$1

for name in preferences preferences.d trusted.gpg trusted.gpg.d keyrings; do
  [ ! -e "/etc/apt/$name" ] || cp -r "/etc/apt/$name" "$root/etc/apt/"
done
for folder in /usr/share/keyrings /usr/local/share/ca-certificates; do
  [ -d "$folder" ] || continue
  mkdir -p "$root$folder"
  cp -r "$folder/." "$root$folder"
done
mkdir -p "$root/etc/ssl/certs"
for file in /etc/ssl/certs/ca-certificates.crt /etc/resolv.conf /etc/hosts; do
  [ ! -e "$file" ] || cp -L "$file" "$root$file"
done

# How packages are fetched goes along; what this machine does with them before and after does not.
apt-config dump | grep '^Acquire::.*".\+";$' | grep -v '^Acquire::\(IndexTargets\|Changelogs\)::' \
  >"$root/etc/apt/apt.conf.d/90machine"
# Certificates and scripts that these settings name.
sed -n 's/^[^"]*"\(\/[^"]*\)";$/\1/p' "$root/etc/apt/apt.conf.d/90machine" | while read -r file; do
  [ -f "$file" ] || continue
  mkdir -p "$root$(dirname "$file")"
  cp -L "$file" "$root$file"
done
