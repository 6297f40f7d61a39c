#!/usr/bin/env bash
# Makes a zip for 64-bit Windows out of build/windows-release: the command line, the libraries and plugins that it needs
# and nothing else, then tries it out in an empty Wine prefix. It runs from wherever it is unpacked.
set -euo pipefail
cd "$(dirname "$0")/../.."

LUMIDEX_WINDOWS_TOOLCHAIN=$(tools/windows/toolchain.sh --path)
export LUMIDEX_WINDOWS_TOOLCHAIN
build=build/windows-release
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:[A-Z]*=//p' "$build/CMakeCache.txt")
name=lumidex-$version-windows-x86_64
out=build/package
tree=$out/$name
objdump=x86_64-w64-mingw32-objdump
strip=x86_64-w64-mingw32-strip

compiler_libraries=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
places=("$build/bin" "$LUMIDEX_WINDOWS_TOOLCHAIN/usr/bin" "$compiler_libraries" /usr/x86_64-w64-mingw32/lib)

rm -rf "$tree"
mkdir -p "$tree/sqldrivers" "$tree/imageformats" "$tree/share" "$tree/licenses"
cp "$build/bin/lumidex.exe" "$tree/"
cp -r "$build/share/lumidex" "$tree/share/"
# Plugins are found beside the program: the catalogue's engine and what reads and writes pictures.
plugins=$LUMIDEX_WINDOWS_TOOLCHAIN/usr/plugins
cp "$plugins/sqldrivers/qsqlite.dll" "$tree/sqldrivers/"
cp "$plugins/imageformats/"{qjpeg,qgif}.dll "$tree/imageformats/"

imports() { "$objdump" -p "$1" | sed -n 's/^\s*DLL Name: //p'; }

# Whatever is not of ours, of the toolchain or of the compiler is of Windows.
take_imports() {
  local import place
  for import in $(imports "$1"); do
    [ ! -e "$tree/$import" ] || continue
    for place in "${places[@]}"; do
      if [ -e "$place/$import" ]; then
        cp "$place/$import" "$tree/"
        take_imports "$tree/$import"
        break
      fi
    done
  done
}
for file in "$tree"/*.exe "$tree"/*/*.dll; do
  take_imports "$file"
done
find "$tree" -name '*.exe' -o -name '*.dll' | xargs -n 1 "$strip" --strip-unneeded

cp LICENSE "$tree/licenses/lumidex.txt"
take_licence() { cp "/usr/share/doc/$2/copyright" "$tree/licenses/$1.txt"; }
take_licence boost libboost-dev
take_licence cli11 libcli11-dev
take_licence exiv2 libexiv2-dev
take_licence expat libexpat1
take_licence glog libgoogle-glog-dev
take_licence gcc-runtime gcc-mingw-w64-base
take_licence mingw-w64 mingw-w64-common
take_licence qt libqt5core5a
take_licence sqlite libsqlite3-0
take_licence zlib libz-mingw-w64
{
  echo "Lumidex $version for 64-bit Windows is built with these, in the versions of Debian:"
  sed 's/^/  /' "$LUMIDEX_WINDOWS_TOOLCHAIN/manifest"
  echo "Their licences lie beside this file. lumidex.exe and ZenvoraStrandel.dll link Exiv2, which is under the GPL: whoever"
  echo "passes them on passes on their complete source as well, or offers it."
} >"$tree/licenses/README.txt"

rm -f "$out/$name.zip"
(cd "$out" && zip -qr "$name.zip" "$name")

tools/windows/try-package.sh "$out/$name.zip"
echo "windows-package: $out/$name.zip, $(du -h "$out/$name.zip" | cut -f 1), $(find "$tree" -type f | wc -l) files"
