# Shared by the scripts that people start: installs what is missing, and builds. To be sourced.

# Packages for the command line, and for the window besides; the tests need some readers more, the
# count of the lines that they run a reporter, the benchmarks some peers, and packing some tools of
# Debian's.
build_packages=(
  ccache cmake g++ libcli11-dev libmspack-dev libre2-dev libsqlite3-dev libtomlplusplus-dev
  libxml2-dev ninja-build nlohmann-json3-dev unixodbc-dev zlib1g-dev
)
desktop_packages=(qt6-base-dev qt6-l10n-tools qt6-svg-dev qt6-translations-l10n)
test_packages=(
  appstream btrfs-progs cabextract clang clang-format clang-tidy desktop-file-utils fish gcab
  libclang-rt-14-dev libgmock-dev libgtest-dev librapidcheck-dev libsqliteodbc mandoc mawk mdbtools
  odbc-postgresql p7zip-full postgresql sqlite3 zsh
)
coverage_packages=(gcovr)
package_packages=(dpkg-dev file lintian)
benchmark_packages=(cabextract gcab libbenchmark-dev lnav mawk mdbtools ripgrep sqlite3 time)

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

# little_cached : whether the compiler cache can't hold a build with its tests, which leaves 1300 files
# in it. One of the programs alone leaves 600, but with other options.
little_cached() {
  command -v ccache >/dev/null || return 0
  [ "$(ccache --print-stats 2>/dev/null | awk '$1 == "files_in_cache" { print $2 }')" -lt 1000 ]
}

# choose_together PRESET : the option that compiles several sources as one, where a cache can't help.
# Chosen with the first build folder and kept, for the cache does not stay empty. What people run is
# never built so: a package must not depend on what a cache holds.
choose_together() {
  [[ $1 != release && $1 != benchmark && ! -f build/$1/CMakeCache.txt ]] || return 0
  local chosen
  chosen=$(grep -hs '^ORVAN_TOGETHER:' build/{dev,asan,tsan,coverage,fuzz}/CMakeCache.txt || true)
  if [[ $chosen == *=ON* ]] || { [ -z "$chosen" ] && little_cached; }; then
    echo -DORVAN_TOGETHER=ON
  fi
}

# build_preset PRESET [TARGET...]: configures when needed and builds on all cores, quietly. What
# stands in configure_options goes before the preset's own settings.
configure_options=()
build_preset() {
  local preset=$1 log=build/$1.log together
  shift
  mkdir -p build
  together=$(choose_together "$preset")
  configure_preset "$preset" ${together:+"$together"} || return 1
  say "building ($preset)"
  cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1 && return 0
  # Sources that compile one by one may have come to use one name.
  if grep -qsx 'ORVAN_TOGETHER:BOOL=ON' "build/$preset/CMakeCache.txt"; then
    say "building ($preset) one source at a time; together: $(grep -m 1 'error: ' "$log" || true)"
    configure_preset "$preset" -DORVAN_TOGETHER=OFF || return 1
    cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1 && return 0
  fi
  grep -E -A8 'error|FAILED' "$log" >&2 || tail -n 40 "$log" >&2
  return 1
}

# configure_preset PRESET [OPTION...]
configure_preset() {
  local preset=$1 log=build/$1.log
  shift
  cmake --preset "$preset" "${configure_options[@]}" "$@" >"$log" 2>&1 && return 0
  cat "$log" >&2
  return 1
}
