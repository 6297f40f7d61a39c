#!/bin/sh
# How well similar photos of a folder are told from different ones:
#   bench/similar_quality.sh                       verdicts and keepers, on what it draws with three seeds
#   bench/similar_quality.sh FOLDER --verdicts     the same, on copies of the folder's photos
#   bench/similar_quality.sh FOLDER [--same TABLE] [--half 0|1] [--list N]     how well groups are found
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
cmake -S "$root" --preset release >/dev/null
cmake --build "$root/build/release" --target lumidex_similar_quality >/dev/null
exec "$root/build/release/bin/lumidex_similar_quality" "$@"
