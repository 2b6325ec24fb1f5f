# Shared by ./run, ./test and benchmarks/run: installs what is missing, and builds. To be sourced.

# Packages for building and running; the tests need some readers more, the
# benchmarks some peers.
build_packages=(
  ccache cmake g++ libcli11-dev libgmock-dev libgtest-dev libpugixml-dev
  libsqlite3-dev ninja-build nlohmann-json3-dev qt6-base-dev qt6-l10n-tools qt6-svg-dev
  qt6-translations-l10n zlib1g-dev
)
test_packages=(
  cabextract clang clang-format gcab libclang-rt-14-dev librapidcheck-dev mawk mdbtools p7zip-full
  sqlite3
)
benchmark_packages=(cabextract gcab libbenchmark-dev mawk mdbtools sqlite3 time)

say() { printf '%s\n' "$*" >&2; }

# install_missing PACKAGE... : asks the package database first, so that a warm start takes no time.
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
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { say "run as root, or install: ${missing[*]}"; return 1; }
    as_root=(sudo)
  fi
  say "installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# build_preset PRESET [TARGET...]: configures when needed and builds on all cores, quietly.
build_preset() {
  local preset=$1 log=build/$1.log
  shift
  mkdir -p build
  if ! cmake --preset "$preset" >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
  say "building ($preset)"
  if ! cmake --build --preset "$preset" ${1:+--target "$@"} >"$log" 2>&1; then
    grep -E -A8 'error|FAILED' "$log" >&2 || tail -n 40 "$log" >&2
    return 1
  fi
}
