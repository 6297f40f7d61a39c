#!/usr/bin/env bash
# Runs a Windows program under Wine, as the tests' emulator. What it needs of its surroundings is set up by with-wine.sh;
# alone it makes do with the user's own prefix.
#   tools/windows/wine.sh PROGRAM [ARGUMENT...]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

toolchain=${LUMIDEX_WINDOWS_TOOLCHAIN:-$("$here/toolchain.sh" --path)}
# Wine hands over none of the variables that steer Qt, but takes the prefix off these.
export WINEQT_QPA_PLATFORM=${WINEQT_QPA_PLATFORM:-offscreen}
export WINEQT_QPA_FONTDIR=${WINEQT_QPA_FONTDIR:-Z:\\usr\\share\\fonts\\truetype\\dejavu}
export WINEQT_PLUGIN_PATH=${WINEQT_PLUGIN_PATH:-Z:${toolchain//\//\\}\\usr\\plugins}
compiler_libraries=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
export WINEPATH=${WINEPATH:-$(printf 'Z:%s;' "$toolchain/usr/bin" "$compiler_libraries" /usr/x86_64-w64-mingw32/lib)}
export WINEDEBUG=${WINEDEBUG:--all}
# No offers to install what no program here uses.
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree=;mshtml=;winemenubuilder.exe=}
export TZ=UTC LC_ALL=C.UTF-8

# Now and then Wine does not find a library that is there (exit code 0x35), or a program hangs before its first line. Only
# what never began is started again: a test program leaves a mark when it begins, others print something.
case ${1##*/} in
test_*) ;;
*) exec /usr/lib/wine/wine64 "$@" ;;
esac
mark=$(mktemp -u)
export LUMIDEX_TEST_BEGAN=Z:${mark//\//\\}
trap 'rm -f "$mark"' EXIT
for start in 1 2 3; do
  /usr/lib/wine/wine64 "$@" <&0 &
  program=$!
  # Two minutes are much for a first line, even on a busy machine.
  sleep 120 >/dev/null 2>&1 &
  watch=$!
  code=0
  wait -n "$program" "$watch" || code=$?
  if kill -0 "$program" 2>/dev/null; then
    if [ ! -e "$mark" ]; then
      kill -KILL "$program"
    fi
    code=0
    wait "$program" || code=$?
  else
    kill "$watch" 2>/dev/null || true
  fi
  [ ! -e "$mark" ] && [ "$code" -ne 0 ] || break
  echo "wine: start $start of ${1##*/} ended with $code before the program began" >&2
done
exit "$code"
