# What building for Windows takes. To be sourced in the project's folder, behind setup.sh.

windows_packages=(
  dpkg-dev fp-utils g++-mingw-w64-x86-64-posix googletest icoutils imagemagick libchm-bin
  librsvg2-bin libsqliteodbc make msitools odbc-postgresql perl postgresql python3 python3-six tcl
  unicode-data wine64 wixl
)

# The libraries that mingw-w64 has no package for, or a slow one, from Debian's own sources of them.
windows_sources=(libmspack libxml2 re2 sqlite3 zlib)
windows_libraries=build/windows-libraries

# fetch_sources FOLDER PACKAGE... : unpacks the sources of packages, from where the machine has its
# packages. Leaves the machine's own lists as they are.
fetch_sources() {
  local folder=$1 list
  shift
  mkdir -p "$folder/lists/partial" "$folder/sources"
  for list in /etc/apt/sources.list /etc/apt/sources.list.d/*; do
    [ -f "$list" ] || continue
    case $list in
      *.sources) sed 's/^Types:.*/Types: deb-src/' "$list" >"$folder/sources/${list##*/}" ;;
      *.list) sed -n 's/^deb /deb-src /p' "$list" >"$folder/sources/${list##*/}" ;;
    esac
  done
  local options=(
    -o Dir::Etc::sourcelist=/dev/null -o "Dir::Etc::sourceparts=$PWD/$folder/sources"
    -o "Dir::State::lists=$PWD/$folder/lists" -o APT::Sandbox::User=
  )
  # A list that can't be read now need not be the one that tells of them.
  apt-get "${options[@]}" update -qq >"$folder/apt.log" 2>&1 || true
  (cd "$folder" && apt-get "${options[@]}" source -qq "$@" >>apt.log 2>&1) ||
    { tail -n 5 "$folder/apt.log" >&2; return 1; }
}

# cross_build SOURCE BUILD [OPTION...] : builds and installs a library that CMake builds.
cross_build() {
  local source=$1 build=$2
  shift 2
  cmake -S "$source" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/windows.cmake" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$PWD/$windows_libraries" \
    -DBUILD_SHARED_LIBS=OFF "$@" >"$build.log" 2>&1 &&
    cmake --build "$build" --target install >>"$build.log" 2>&1 ||
    { tail -n 30 "$build.log" >&2; return 1; }
}

# Makes SQLite's one source file, as its own build does, and compiles it.
cross_build_sqlite() {
  local source=$1 target=$PWD/$windows_libraries
  (
    cd "$source" && mkdir -p for_windows && cd for_windows &&
      ../configure --disable-tcl --disable-readline && make sqlite3.c sqlite3.h &&
      x86_64-w64-mingw32-gcc-posix -O2 -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA \
        -c sqlite3.c -o sqlite3.o &&
      x86_64-w64-mingw32-ar rcs "$target/lib/libsqlite3.a" sqlite3.o &&
      cp sqlite3.h "$target/include/"
  ) >"$source.log" 2>&1 || { tail -n 30 "$source.log" >&2; return 1; }
}

# Compiles what reads cabinets of the library for them, with offsets of 64 bits as our own code has.
cross_build_mspack() {
  local source=$1 target=$PWD/$windows_libraries name
  (
    cd "$source/mspack" && for name in cabd lzxd mszipd qtmd system; do
      x86_64-w64-mingw32-gcc-posix -O2 -D_FILE_OFFSET_BITS=64 -DHAVE_INTTYPES_H -I. -c "$name.c" || exit 1
    done && rm -f "$target/lib/libmspack.a" &&
      x86_64-w64-mingw32-ar rcs "$target/lib/libmspack.a" cabd.o lzxd.o mszipd.o qtmd.o system.o &&
      cp mspack.h "$target/include/"
  ) >"$source.log" 2>&1 || { tail -n 30 "$source.log" >&2; return 1; }
}

# Compiles what packs and unpacks bytes in memory. The package of mingw-w64 takes a third more time.
cross_build_zlib() {
  local source=$1 target=$PWD/$windows_libraries name objects=()
  (
    cd "$source" && for name in adler32 crc32 deflate inffast inflate inftrees trees zutil; do
      x86_64-w64-mingw32-gcc-posix -O3 -c "$name.c" || exit 1
      objects+=("$name.o")
    done && rm -f "$target/lib/libz.a" &&
      x86_64-w64-mingw32-ar rcs "$target/lib/libz.a" "${objects[@]}" &&
      cp zlib.h zconf.h "$target/include/"
  ) >"$source.log" 2>&1 || { tail -n 30 "$source.log" >&2; return 1; }
}

# The distribution's sources of it lack the tables of characters, which are made of its own Unicode.
cross_build_re2() {
  local tables=(re2/perl_groups.cc re2/unicode_casefold.cc re2/unicode_groups.cc)
  make -C "$1" REBUILD_TABLES=1 "${tables[@]}" >"$2.tables.log" 2>&1 ||
    { tail -n 5 "$2.tables.log" >&2; return 1; }
  cross_build "$1" "$2" -DRE2_BUILD_TESTING=OFF
}

# Libraries of headers alone serve as they are.
copy_header_libraries() {
  mkdir -p "$windows_libraries/include" "$windows_libraries/share/cmake"
  cp -r /usr/include/CLI /usr/include/nlohmann /usr/include/toml++ "$windows_libraries/include/"
  cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$windows_libraries/share/cmake/"
}

# What the libraries are made of, and how: other ones are made when this changes.
windows_libraries_stamp() {
  dpkg-query -W -f '${Package} ${Version}\n' g++-mingw-w64-x86-64-posix googletest libcli11-dev \
    libmspack-dev libre2-dev libsqlite3-0 libtomlplusplus-dev libxml2 nlohmann-json3-dev zlib1g
  declare -f fetch_sources cross_build cross_build_sqlite cross_build_mspack cross_build_zlib \
    cross_build_re2 copy_header_libraries build_windows_libraries
  sha256sum cmake/windows.cmake
}

# Builds the libraries, unless they are there already.
build_windows_libraries() {
  local stamp=$windows_libraries/stamp work=build/windows-sources
  [ "$(cat "$stamp" 2>/dev/null)" = "$(windows_libraries_stamp)" ] && return 0
  say "building libraries for Windows"
  rm -rf "$windows_libraries" "$work"
  mkdir -p "$windows_libraries/include" "$windows_libraries/lib" "$work"
  copy_header_libraries
  fetch_sources "$work" "${windows_sources[@]}"
  cross_build_sqlite "$(echo "$work"/sqlite3-*/)"
  cross_build "$(echo "$work"/libxml2-*/)" "$work/libxml2" -DLIBXML2_WITH_ICONV=OFF \
    -DLIBXML2_WITH_LZMA=OFF -DLIBXML2_WITH_ZLIB=OFF -DLIBXML2_WITH_PYTHON=OFF \
    -DLIBXML2_WITH_PROGRAMS=OFF -DLIBXML2_WITH_TESTS=OFF -DLIBXML2_WITH_FTP=OFF \
    -DLIBXML2_WITH_HTTP=OFF
  cross_build_mspack "$(echo "$work"/libmspack-*/)"
  cross_build_re2 "$(echo "$work"/re2-*/)" "$work/re2"
  cross_build_zlib "$(echo "$work"/zlib-*/)"
  cross_build /usr/src/googletest "$work/googletest"
  windows_libraries_stamp >"$stamp"
}

# The test programs of what is the same on every machine, and of Windows' own: those that run under
# Wine. Those of the snap-in are found by their names.
windows_tests=(
  backends_common cabmaker console controls core gather host_database jet logreader odbc odbc_server
  runtime server settings shell system text timeline tracelines traces windows_backend wizards xml
)

# test_windows : builds for Windows, and runs the tests of it under Wine, in a folder of its own for
# the machine that Wine makes.
test_windows() {
  install_missing "${windows_packages[@]}"
  build_windows_libraries
  local together targets=(orvandiag orvan_data windows_installer windows_later_installer) names
  together=$(choose_together windows)
  configure_preset windows ${together:+"$together"}
  targets+=("${windows_tests[@]/%/_test}")
  mapfile -t -O "${#targets[@]}" targets < <(cmake --build --preset windows --target help |
    sed -n 's/^\(mmc[a-z_]*_test\): phony.*/\1/p')
  build_preset windows "${targets[@]}"
  names=$(IFS='|'; printf '%s' "${windows_tests[*]}")
  say "testing under Wine"
  (
    export WINEPREFIX=$PWD/build/windows/prefix
    mkdir -p "$WINEPREFIX"
    scripts/run_under_wine.sh cmd.exe /c exit || exit 1
    status=0
    ctest --preset windows -R "^($names|windows_.*|mmc.*)\$" || status=$?
    "$(command -v wineserver || echo /usr/lib/wine/wineserver)" -k || true
    exit $status
  )
}
