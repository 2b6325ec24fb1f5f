# Shared by the scripts that people start: installs what is missing, and builds. To be sourced.

# Packages for the command line, and for the window besides; the tests need some readers more, the
# count of the lines that they run a reporter, the benchmarks some peers, and packing some tools of
# Debian's.
build_packages=(
  ccache cmake g++ libcli11-dev libxml2-dev libsqlite3-dev ninja-build nlohmann-json3-dev
  unixodbc-dev zlib1g-dev
)
desktop_packages=(qt6-base-dev qt6-l10n-tools qt6-svg-dev qt6-translations-l10n)
test_packages=(
  appstream btrfs-progs cabextract clang clang-format clang-tidy desktop-file-utils gcab
  libclang-rt-14-dev libgmock-dev libgtest-dev librapidcheck-dev libsqliteodbc mawk mdbtools
  odbc-postgresql p7zip-full postgresql sqlite3
)
coverage_packages=(gcovr)
package_packages=(dpkg-dev file lintian)
benchmark_packages=(cabextract gcab libbenchmark-dev mawk mdbtools sqlite3 time)

say() { printf '%s\n' "$*" >&2; }

# install_missing PACKAGE... : asks the package database first, so that a warm start takes no time.
# With install=no it only tells what is missing.
install_missing() {
  local missing=() package
  local installed
  installed=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' 2>/dev/null | sed -n 's/^ii  *//p')
  for package in "$@"; do
    grep -qx "$package" <<<"$installed" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  if [ "$install" = no ]; then
    say "missing packages (left alone because of --no-install): ${missing[*]}"
    return 0
  fi
  command -v apt-get >/dev/null ||
    { say "there is no apt here: install what Debian calls ${missing[*]}"; return 1; }
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { say "run as root, or install: ${missing[*]}"; return 1; }
    as_root=(sudo)
  fi
  say "installing: ${missing[*]}"
  local log=build/apt.log
  mkdir -p build
  # A source that can't be read now need not be the one that the packages come from.
  "${as_root[@]}" apt-get update -qq >"$log" 2>&1 || true
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >>"$log" 2>&1 && return 0
  say "apt could not install them: $(grep '^E: ' "$log" | tail -n 1 | cut -c 4-) ($log tells all)"
  return 1
}

# build_preset PRESET [TARGET...]: configures when needed and builds on all cores, quietly. What
# stands in configure_options goes before the preset's own settings.
configure_options=()
build_preset() {
  local preset=$1 log=build/$1.log
  shift
  mkdir -p build
  if ! cmake --preset "$preset" "${configure_options[@]}" >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
  say "building ($preset)"
  if ! cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1; then
    grep -E -A8 'error|FAILED' "$log" >&2 || tail -n 40 "$log" >&2
    return 1
  fi
}
