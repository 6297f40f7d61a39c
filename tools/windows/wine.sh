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

exec /usr/lib/wine/wine64 "$@"
