#!/usr/bin/env bash
# The gates of form: clang-format on every source, clang-tidy on those that changed since they were last found clean.
#   tools/lint.sh [format|tidy]     both when nothing is named
set -euo pipefail
cd "$(dirname "$0")/.."

what=${1:-all}

if [ "$what" != tidy ]; then
  mapfile -t sources < <(git ls-files --cached --others --exclude-standard '*.cpp' '*.h')
  clang-format --dry-run -Werror "${sources[@]}"
  echo "clang-format: ${#sources[@]} files are in form"
  # A path around the include roots would be a way around the rooms.
  if grep -nE '#include [<"](.*/)?\.\./' "${sources[@]}"; then
    echo "includes: name headers by their include root, not by ../" >&2
    exit 1
  fi
fi

[ "$what" = format ] || tools/tidy.py
