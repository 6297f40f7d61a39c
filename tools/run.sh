#!/usr/bin/env bash
# The main job, start to end: photos -> catalogue -> proposals -> report page.
#   tools/run.sh [FOLDER]     the folder with photos; without one a sample collection is made
set -euo pipefail
cd "$(dirname "$0")/.."

lumidex=build/release/bin/lumidex
out=build/run
photos=${1:-}
mkdir -p "$out"

if [ -z "$photos" ]; then
  photos=$out/sample
  if [ ! -d "$photos" ]; then
    # Made aside first, so that an interrupted run leaves no half collection behind.
    rm -rf "$photos.part"
    "$lumidex" sample "$photos.part"
    mv "$photos.part" "$photos"
  fi
fi

# A catalogue of its own for each folder, so that collections do not mix.
name=$(realpath "$photos" | cksum | cut -d ' ' -f 1)
catalogue=$out/catalogue-$name.sqlite

# 1 and 3: done, with something to look at, which the program has said.
mostly_done() { "$@" || [ $? -eq 1 ] || [ $? -eq 3 ]; }
mostly_done "$lumidex" --catalogue "$catalogue" scan "$photos"
mostly_done "$lumidex" --catalogue "$catalogue" albums --report "$out/report.html"
