#!/usr/bin/env bash
# Installs what is missing of tools/packages-debian.txt; does nothing when all is there.
#   tools/setup.sh            what every build needs
#   tools/setup.sh windows    what the Windows build needs besides
#   tools/setup.sh bench      what the benchmarks compare with
#   tools/setup.sh fuzz       what the fuzzers are built with
#   tools/setup.sh gallery    what the gallery's pictures need
set -euo pipefail
cd "$(dirname "$0")/.."

group=${1:-}
mapfile -t wanted < <(sed -n "/^[a-z0-9+.-]*$/p;s/^${group:-none}: //p" tools/packages-debian.txt)

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
  echo "setup: this system has no apt; make sure that it has the counterparts of: ${wanted[*]}" >&2
  exit 0
fi

missing=()
for package in "${wanted[@]}"; do
  status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "setup: needs root or sudo to install: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi

echo "setup: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
echo "setup: done"
