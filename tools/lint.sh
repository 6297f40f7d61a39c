#!/usr/bin/env bash
# The gates of form: clang-format on every source, clang-tidy on every translation unit of the dev build.
#   tools/lint.sh [format|tidy]     both when nothing is named
set -euo pipefail
cd "$(dirname "$0")/.."

what=${1:-all}
mapfile -t sources < <(git ls-files --cached --others --exclude-standard '*.cpp' '*.h')

if [ "$what" != tidy ]; then
  clang-format --dry-run -Werror "${sources[@]}"
  echo "clang-format: ${#sources[@]} files are in form"
  # A path around the include roots would be a way around the rooms.
  if grep -nE '#include [<"](.*/)?\.\./' "${sources[@]}"; then
    echo "includes: name headers by their include root, not by ../" >&2
    exit 1
  fi
fi

if [ "$what" != format ]; then
  mapfile -t units < <(printf '%s\n' "${sources[@]}" | grep '\.cpp$' | grep -v '^tests/package/')
  printf '%s\0' "${units[@]}" |
    xargs -0 -n 1 -P "$(nproc)" bash -c 'clang-tidy --quiet -p build/dev "$0" 2>/dev/null || { echo "clang-tidy: $0" >&2; exit 1; }'
  echo "clang-tidy: ${#units[@]} units are clean"
fi
