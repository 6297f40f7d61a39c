#!/usr/bin/env bash
# Builds the libraries that a Windows build of Lumidex needs, from Debian's sources, once per machine.
#   tools/windows/toolchain.sh          builds what is not there yet
#   tools/windows/toolchain.sh --path   prints the folder with the libraries; fails when they are not built
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
host=x86_64-w64-mingw32

fail() {
  echo "windows-toolchain: $1" >&2
  exit 1
}

# Whatever shapes the result is part of the key, so that a stale folder is never taken for the right one.
installed=(g++-mingw-w64-x86-64-posix libboost-dev libcli11-dev libz-mingw-w64-dev)
versions() { dpkg-query -W -f='${Package} ${Version}\n' "${installed[@]}" 2>/dev/null; }
key() {
  local versions compiler
  versions=$(versions) || return 1
  compiler=$(sed -n 's/^g++-mingw[^ ]* //p' <<<"$versions")
  printf '%s-%s' "${compiler//[^0-9A-Za-z.]/-}" \
    "$( (echo "$versions"; cat "$here/toolchain.sh" "$here/toolchain.cmake" "$here/sources.txt") | sha256sum | cut -c 1-12)"
}

[ -n "${XDG_CACHE_HOME:-${HOME:-}}" ] || fail "neither XDG_CACHE_HOME nor HOME says where the cache is"
cache=${XDG_CACHE_HOME:-$HOME/.cache}/lumidex/windows
if [ "${1:-}" = --path ]; then
  root=$cache/$(key) || exit 1
  [ -e "$root/complete" ] || exit 1
  # Marks it as in use; on a cache that cannot be written nothing is cleared away either.
  touch -c "$root/complete" 2>/dev/null || true
  echo "$root"
  exit 0
elif [ $# -gt 0 ]; then
  echo "usage: $0 [--path]" >&2
  exit 2
fi

# Neither make nor qmake copes with it.
case $cache in *[[:space:]]*) fail "the path of the cache has a blank: $cache; set XDG_CACHE_HOME to one without" ;; esac
"$here/../setup.sh" windows
root=$cache/$(key) || fail "dpkg does not know the versions of ${installed[*]}; this works on Debian and its kin only"
mkdir -p "$cache"
exec 9>"$cache/lock"
flock -n 9 || { echo "windows-toolchain: another run is building it, waiting"; flock 9; }
if [ -e "$root/complete" ]; then
  echo "windows-toolchain: already built in $root"
  exit 0
fi

# Anything else here is of an interrupted run.
rm -rf "$root"
prefix=$root/usr
work=$root/work
log=$root/log
mkdir -p "$prefix"/{bin,include,lib} "$work/downloads" "$work/shims" "$log"
started=$SECONDS

# Runs a step with its output in a log, whose end is shown when it fails.
current=
step() {
  local from=$SECONDS
  current=$1
  shift
  echo "windows-toolchain: $current"
  # Not as a condition: that would switch off the end at the first error inside. A server that a compiler leaves behind
  # must not hold the lock.
  "$@" >"$log/$current.txt" 2>&1 </dev/null 9>&-
  echo "windows-toolchain: $current took $((SECONDS - from)) s"
  current=
}
tell_failure() {
  [ -n "$current" ] || return 0
  tail -n 40 "$log/$current.txt" >&2
  echo "windows-toolchain: $current failed; all of its output is in $log/$current.txt" >&2
}
trap tell_failure EXIT

# The machine's own package sources, asked for source packages as well, without touching its configuration.
apt_of_sources() {
  local apt=$work/apt
  mkdir -p "$apt/parts" "$apt/lists/partial" "$apt/cache"
  local list
  for list in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [ ! -f "$list" ] || sed -n 's/^deb\([[:space:]]\)/deb-src\1/p' "$list" >"$apt/parts/${list//\//_}"
  done
  for list in /etc/apt/sources.list.d/*.sources; do
    [ ! -f "$list" ] || sed 's/^Types:.*/Types: deb-src/' "$list" >"$apt/parts/${list//\//_}"
  done
  apt_options=(-o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$apt/parts"
    -o Dir::State::lists="$apt/lists" -o Dir::Cache="$apt/cache"
    -o APT::Sandbox::User="$(id -un)")
}

fetch_sources() {
  cd "$work/downloads"
  apt_of_sources
  apt-get "${apt_options[@]}" update
  local package upstream
  while read -r package upstream; do
    fetch_source "$package" "$upstream"
  done < <(grep -v '^#' "$here/sources.txt")
}

# The newest revision that can be had: a mirror's index may be ahead of its files.
fetch_source() {
  local package=$1 upstream=$2 version
  for version in $(apt-cache "${apt_options[@]}" showsrc --only-source "$package" |
    sed -n 's/^Version: //p' | grep -F -- "$upstream-" | sort -rV); do
    # The signature of the index covers the checksums of what is downloaded.
    if apt-get "${apt_options[@]}" source --download-only --only-source "$package=$version"; then
      dpkg-source --no-check -x "${package}_${version#*:}.dsc" "$work/$package"
      echo "$package $version" >>"$root/manifest"
      return
    fi
  done
  echo "no source package $package of version $upstream to be had"
  return 1
}

# The names without a suffix may mean the compilers with Windows' own threads: these are found first, and do not.
make_shims() {
  local tool
  for tool in gcc g++ cpp; do
    printf '#!/bin/sh\nexec %s-%s-posix "$@"\n' "$host" "$tool" >"$work/shims/$host-$tool"
    chmod +x "$work/shims/$host-$tool"
  done
}

# Headers that need no building, alone in a folder: beside them lie headers of the system, which must not be seen.
take_headers() {
  cp -r /usr/include/boost /usr/include/CLI "$prefix/include/"
  versions >>"$root/manifest"
}

with_cmake() {
  local name=$1
  shift
  LUMIDEX_WINDOWS_TOOLCHAIN=$root cmake -S "$work/$name" -B "$work/$name-build" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$here/toolchain.cmake" -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" \
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF "$@"
  cmake --build "$work/$name-build"
  cmake --install "$work/$name-build" --strip
}

build_expat() {
  # A fix of a later release, brought into this one, compares these with a number; its CMake gives them none.
  sed -i -E 's/^(#cmakedefine XML_(DTD|GE))[[:space:]]*$/\1 1/' "$work/expat/expat/expat_config.h.cmake"
  with_cmake expat/expat -DEXPAT_SHARED_LIBS=OFF -DEXPAT_BUILD_TOOLS=OFF -DEXPAT_BUILD_EXAMPLES=OFF \
    -DEXPAT_BUILD_TESTS=OFF -DEXPAT_BUILD_DOCS=OFF
}

build_exiv2() {
  with_cmake exiv2 -DBUILD_SHARED_LIBS=ON -DEXIV2_ENABLE_WIN_UNICODE=ON -DEXIV2_ENABLE_NLS=OFF \
    -DEXIV2_ENABLE_BMFF=ON -DEXIV2_ENABLE_XMP=ON -DEXIV2_BUILD_EXIV2_COMMAND=OFF -DEXIV2_BUILD_SAMPLES=OFF \
    -DEXIV2_BUILD_UNIT_TESTS=OFF -DEXIV2_ENABLE_WEBREADY=OFF -DEXIV2_ENABLE_CURL=OFF
}

build_glog() {
  with_cmake google-glog -DBUILD_SHARED_LIBS=ON -DBUILD_TESTING=OFF -DWITH_GFLAGS=OFF -DWITH_GTEST=OFF \
    -DWITH_UNWIND=OFF
}

build_googletest() {
  with_cmake googletest -DBUILD_SHARED_LIBS=OFF -DBUILD_GMOCK=ON
}

amalgamate_sqlite() {
  cd "$work/sqlite3"
  ./configure --disable-readline
  make -j"$(nproc)" sqlite3.c
  local bundled=$work/qtbase-opensource-src/src/3rdparty/sqlite
  mkdir -p "$bundled"
  cp sqlite3.c sqlite3.h "$bundled/"
}

# An old fault of the compiler: it takes the stack of 64-bit Windows for aligned to 32 bytes, which it is not.
unaligned=-Wa,-muse-unaligned-vector-move

build_qt() {
  mkdir -p "$work/qt-build"
  cd "$work/qt-build"
  PATH="$work/shims:$PATH" "$work/qtbase-opensource-src/configure" -opensource -confirm-license \
    -prefix "$prefix" -xplatform win32-g++ -device-option "CROSS_COMPILE=$host-" -release -shared \
    "QMAKE_CFLAGS+=$unaligned" "QMAKE_CXXFLAGS+=$unaligned" \
    -no-opengl -no-dbus -no-icu -qt-zlib -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz -qt-pcre \
    -qt-doubleconversion -no-openssl -no-feature-schannel -sql-sqlite -qt-sqlite -no-feature-vulkan \
    -no-feature-tabletevent -no-feature-direct2d -no-feature-printer \
    -make libs -nomake examples -nomake tests -nomake tools
  PATH="$work/shims:$PATH" make -j"$(nproc)"
  PATH="$work/shims:$PATH" make install
}

step sources fetch_sources
step shims make_shims
step headers take_headers
step expat build_expat
step exiv2 build_exiv2
step glog build_glog
step googletest build_googletest
step sqlite amalgamate_sqlite
step qt build_qt
rm -rf "$work"
touch "$root/complete"
# Those of other states of the project, when none has asked for them in two months.
for other in "$cache"/*/; do
  [ -z "$(find "$other" -maxdepth 1 -name complete -mtime +60)" ] || rm -rf "$other"
done
echo "windows-toolchain: built in $(((SECONDS - started) / 60)) min, $(du -sh "$root" | cut -f 1), in $root"
