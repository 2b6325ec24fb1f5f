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

# lint SOURCE...: what .clang-tidy asks for, with the options that the dev preset compiles with.
lint() {
  say "clang-tidy, sources: $#"
  command -v clang-tidy >/dev/null || { say "there is no clang-tidy here"; return 1; }
  local commands=build/dev
  # Sources that are compiled together have no commands of their own there.
  if grep -qsx 'ORVAN_TOGETHER:BOOL=ON' build/dev/CMakeCache.txt; then
    commands=build/lint
    cmake --preset dev -B "$commands" -DORVAN_TOGETHER=OFF >/dev/null || return 1
  fi
  # What it says on standard error counts what it passed over in the headers of others.
  printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -n 1 clang-tidy -p "$commands" --quiet 2>/dev/null
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

lint_all() {
  local sources
  mapfile -t sources < <(own_files 'src/*.cpp')
  lint "${sources[@]}"
}
