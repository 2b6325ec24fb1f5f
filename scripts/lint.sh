# Looks at the code without running it: its form, and what clang-tidy finds. To be sourced in the
# project's folder.

# Leaves out the names of files that are gone.
existing() { while IFS= read -r file; do [ ! -f "$file" ] || printf '%s\n' "$file"; done; }

own_files() { git ls-files --cached --others --exclude-standard "$@" | sort -u | existing; }

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
    base=$(git merge-base HEAD "$main" 2>/dev/null) || continue
    [ "$base" = "$(git rev-parse HEAD)" ] || { echo "$base"; return; }
  done
  git rev-parse --quiet --verify HEAD~1 || git rev-parse HEAD
}

# The sources of src/ that changed since then, and those beside a header that did.
changed_sources() {
  {
    git diff --name-only "$(base_commit)" -- 'src/*.cpp' 'src/*.h' | sed 's/\.h$/.cpp/'
    git ls-files --others --exclude-standard 'src/*.cpp'
  } | sort -u | existing
}

# lint SOURCE...: what .clang-tidy asks for, with the options that the dev preset compiles with.
lint() {
  say "clang-tidy, sources: $#"
  command -v clang-tidy >/dev/null || { say "there is no clang-tidy here"; return 1; }
  # What it says on standard error counts what it passed over in the headers of others.
  printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -n 1 clang-tidy -p build/dev --quiet 2>/dev/null
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
