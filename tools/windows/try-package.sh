#!/usr/bin/env bash
# Unpacks the zip where no other library of ours is found and makes albums of a sample with it, in an empty prefix.
#   tools/windows/try-package.sh FILE.zip
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

if [ "${2:-}" != in-prefix ]; then
  exec "$here/with-wine.sh" "$0" "$(realpath "$1")" in-prefix
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# A blank and letters of another alphabet in the way, as on people's machines.
place="$work/Мои программы"
mkdir -p "$place" "$work/empty"
python3 -m zipfile -e "$1" "$place"
cd "$work"
lumidex=$(find "$place" -name lumidex.exe)
# Only the folder of the program itself and Windows' own are searched.
export WINEPATH='C:\windows\system32' WINEQT_PLUGIN_PATH='C:\none' WINEQT_QPA_PLATFORM=none
run() {
  echo "> lumidex.exe $*"
  "$here/wine.sh" "$lumidex" "$@"
}

run --version
run --catalogue 'каталог.sqlite' sample 'Sample Bilder' --photos 250
run --catalogue 'каталог.sqlite' scan 'Sample Bilder'
run --catalogue 'каталог.sqlite' albums --report report.html
[ "$(grep -c '<img' report.html)" -gt 0 ] || { echo "try-package: the report page has no pictures" >&2; exit 1; }
[ -s 'каталог.sqlite' ] || { echo "try-package: the catalogue is not where it was asked for" >&2; exit 1; }
