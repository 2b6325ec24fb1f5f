# Looks at the code without running it: its form, and what clang-tidy finds. To be sourced in the
# project's folder.

# Leaves out the names of files that are gone.
existing() { while IFS= read -r file; do [ ! -f "$file" ] || printf '%s\n' "$file"; done; }

# Whoever runs this may be another one than the folder's owner, as in a container.
own_git() { git -c safe.directory='*' "$@" 2>/dev/null; }

# own_files PATTERN...: the project's own, such as 'src/*.cpp'. A folder that git does not know, as
# one from an archive, holds nothing else in these.
own_files() {
  if own_git rev-parse --git-dir >/dev/null; then
    own_git ls-files --cached --others --exclude-standard "$@" | sort -u | existing
  else
    local pattern
    for pattern; do
      find benchmarks fuzz src tests -path "${pattern/#\*/*/*}" -not -path '*/node_modules/*'
    done | sort -u
  fi
}

# Every source and header is as clang-format writes it.
check_format() {
  say "checking the form"
  own_files '*.cpp' '*.h' | tr '\n' '\0' |
    xargs -0 -P "$(nproc)" -n 100 clang-format --dry-run --Werror
}

# The commit that the work under way stands on: where it left the main line, else the last but one.
base_commit() {
  local main base
  for main in '@{upstream}' origin/main main; do
    base=$(own_git merge-base HEAD "$main") || continue
    [ "$base" = "$(own_git rev-parse HEAD)" ] || { echo "$base"; return; }
  done
  own_git rev-parse --quiet --verify HEAD~1 || own_git rev-parse HEAD
}

# The sources of src/ that changed since then, and those beside a header that did; none where git
# does not know the folder.
changed_sources() {
  own_git rev-parse --git-dir >/dev/null || return 0
  {
    own_git diff --name-only "$(base_commit)" -- 'src/*.cpp' 'src/*.h' | sed 's/\.h$/.cpp/'
    own_git ls-files --others --exclude-standard 'src/*.cpp'
  } | sort -u | existing
}

# commands_for_lint FOLDER [OPTION...] : makes a build folder that tells how the dev preset compiles.
commands_for_lint() {
  local folder=$1
  shift
  command -v clang-tidy >/dev/null || { say "there is no clang-tidy here"; return 1; }
  cmake --preset dev -B "$folder" -DORVAN_TOGETHER=OFF "$@" >/dev/null
}

# compiled_here SOURCE... : those that are not for another system.
compiled_here() {
  local source
  for source; do
    ! grep -qF "\"$PWD/$source\"" build/lint/compile_commands.json || printf '%s\n' "$source"
  done
}

# lint SOURCE...: what .clang-tidy asks for, with the options that the dev preset compiles with.
lint() {
  local sources
  # Sources that are compiled together have no commands of their own in build/dev.
  commands_for_lint build/lint || return 1
  mapfile -t sources < <(compiled_here "$@")
  say "clang-tidy, sources: ${#sources[@]}"
  [ ${#sources[@]} -gt 0 ] || return 0
  # What it says on standard error counts what it passed over in the headers of others.
  printf '%s\0' "${sources[@]}" |
    xargs -0 -P "$(nproc)" -n 1 clang-tidy -p build/lint --quiet 2>/dev/null
}

# A run of everything takes minutes, so a change of many sources is looked at in part.
lint_changed() {
  local most=12 sources
  mapfile -t sources < <(changed_sources)
  if [ ${#sources[@]} -gt $most ]; then
    say "$((${#sources[@]} - most)) more sources changed: ./test --lint looks at all"
    sources=("${sources[@]:0:most}")
  fi
  [ ${#sources[@]} -eq 0 ] || lint "${sources[@]}"
}

# lint_group SOURCE : what clang-tidy finds in sources that are compiled as one. Where it finds
# anything, as when two of them have a name of their own in common, its word on each of them counts.
lint_group() {
  clang-tidy -p build/lint-together --checks=-bugprone-suspicious-include --quiet "$1" \
    >/dev/null 2>&1 ||
    sed -n 's/^#include "\(.*\)"$/\1/p' "$1" |
      xargs -d '\n' -n 1 clang-tidy -p build/lint --quiet 2>/dev/null
}

# Nearly all that takes time is in headers, so eight sources are looked at together. Sources for
# another system are in none of them.
lint_all() {
  local groups
  commands_for_lint build/lint &&
    commands_for_lint build/lint-together -DCMAKE_UNITY_BUILD=ON || return 1
  mapfile -t groups < <(find build/lint-together/src -name 'unity_*.cxx' | sort)
  say "clang-tidy, groups of sources: ${#groups[@]}"
  [ ${#groups[@]} -gt 0 ] || return 1
  export -f lint_group
  printf '%s\0' "${groups[@]}" | xargs -0 -P "$(nproc)" -n 1 bash -c 'lint_group "$0"'
}
