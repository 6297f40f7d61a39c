#!/usr/bin/env bash
# Says which reasons tests gave for being skipped in the last run of a build folder, and how many gave each.
#   tools/skipped.sh BUILD_FOLDER
set -euo pipefail

log=$1/Testing/Temporary/LastTest.log
[ -e "$log" ] || exit 0
# GoogleTest's reason follows its line of the place; CTest's own tests print one themselves.
reasons=$(tr -d '\r' <"$log" | awk '
  /: Skipped$/ { getline; print }
  /^left out: / { sub(/^left out: /, ""); print }' | sort | uniq -c | sort -rn)
[ -z "$reasons" ] || printf 'Tests that were skipped, by reason:\n%s\n' "$reasons"
