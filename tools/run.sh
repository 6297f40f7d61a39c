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

"$lumidex" --catalogue "$out/catalogue.sqlite" scan "$photos" || [ $? -eq 1 ] || [ $? -eq 3 ]
"$lumidex" --catalogue "$out/catalogue.sqlite" albums --report "$out/report.html"
