#!/usr/bin/env bash
# Runs each fuzzer of the build folder build/fuzz for some seconds and tells what it did. What breaks one ends the run; it
# lies in build/fuzz/found and belongs, once mended, into tests/fuzz.
#   tools/fuzz.sh [SECONDS [FUZZER...]]
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-15}
shift || true
fuzzers=("$@")
[ ${#fuzzers[@]} -gt 0 ] || fuzzers=(Position Dates Metadata Calendar ImageLayout TiffEdit PictureEnd Sidecar ModelHead)
work=build/fuzz
export ASAN_OPTIONS=detect_odr_violation=0
export LSAN_OPTIONS=suppressions=tests/support/lsan.suppressions:print_suppressions=0

for name in "${fuzzers[@]}"; do
  mkdir -p "$work/corpus/$name" "$work/found"
  log=$work/$name.log
  # Beyond 512 MiB an input takes memory without bound, beyond 10 seconds it hangs.
  if ! "$work/bin/fuzz_$name" "$work/corpus/$name" "tests/fuzz/$name" -max_total_time="$seconds" -timeout=10 \
      -rss_limit_mb=2048 -malloc_limit_mb=512 -artifact_prefix="$work/found/$name-" -print_final_stats=1 >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "fuzz: $name broke; its input is in $work/found" >&2
    exit 1
  fi
  runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
  peak=$(sed -n 's/^stat::peak_rss_mb: *//p' "$log")
  echo "fuzz: $name read $runs inputs in $seconds s, at most $peak MB"
done
