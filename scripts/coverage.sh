# Tells which lines the tests run. To be sourced in the project's folder.

# Runs every test in a build of its own that counts, writes build/coverage/report/ and prints the
# share of the core's lines, and of all. A program that a test kills leaves no counts.
coverage() {
  local report=build/coverage/report
  build_preset coverage
  find build/coverage -name '*.gcda' -delete
  ctest --preset coverage -j "$(nproc)"
  mkdir -p "$report"
  say "reading what was counted"
  gcovr --root . --object-directory build/coverage --filter src/ -j "$(nproc)" \
    --exclude-throw-branches --exclude-unreachable-branches \
    --html-details "$report/index.html" --json-summary "$report/summary.json" >"$report/log" 2>&1 ||
    { tail -n 20 "$report/log" >&2; return 1; }
  python3 scripts/coverage_shares.py "$report/summary.json"
  say "line by line: $report/index.html"
}
