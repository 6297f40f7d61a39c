#!/usr/bin/env bash
# Runs a command in surroundings where Windows programs work: a new Wine prefix, gone afterwards, and one virtual screen.
#   tools/windows/with-wine.sh COMMAND [ARGUMENT...]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

LUMIDEX_WINDOWS_TOOLCHAIN=$("$here/toolchain.sh" --path) ||
  { echo "the Windows toolchain is missing: make windows-toolchain" >&2; exit 1; }
export LUMIDEX_WINDOWS_TOOLCHAIN
work=$(mktemp -d)
# From here on the user's own prefix is out of reach.
export WINEPREFIX=$work/prefix1 WINEARCH=win64 WINEDEBUG=-all
unset WINEPATH WINEDLLOVERRIDES
wineserver=/usr/lib/wine/wineserver64

screen=
sleeper=
stop() {
  [ -z "$sleeper" ] || kill "$sleeper" 2>/dev/null || true
  if [ -d "$WINEPREFIX" ]; then
    "$wineserver" -k 2>/dev/null || true
    "$wineserver" -w 2>/dev/null || true
  fi
  [ -z "$screen" ] || kill "$screen" 2>/dev/null || true
  rm -rf "$work"
}
trap stop EXIT
trap 'exit 130' INT TERM

# The number of the screen is the server's choice, so that several runs do not meet.
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
screen=$!
for _ in $(seq 100); do
  [ ! -s "$work/display" ] || break
  sleep 0.1
done
[ -s "$work/display" ] || { echo "with-wine: the virtual screen does not start" >&2; exit 1; }
DISPLAY=:$(cat "$work/display")
export DISPLAY

started=$SECONDS
# Now and then Wine stumbles at the first step of a new prefix; the next one then works.
for attempt in 1 2 3; do
  export WINEPREFIX=$work/prefix$attempt
  ! timeout --foreground 120 "$here/wine.sh" wineboot --init >"$work/wineboot.txt" 2>&1 || break
  "$wineserver" -k 2>/dev/null || true
  [ "$attempt" -lt 3 ] ||
    { tail "$work/wineboot.txt" >&2; echo "with-wine: Wine makes no prefix" >&2; exit 1; }
done
# A server with a share, in the place where Wine looks for them: network paths have rules of their own.
mkdir -p "$WINEPREFIX/dosdevices/unc/server/share"
export LUMIDEX_TEST_SHARE='\\server\share'
# Small volumes for the superuser who asks for them: not every test that fills one was seen to pass here.
[ -z "${LUMIDEX_TEST_DISKS:-}" ] || export LUMIDEX_TEST_DISKS=Z:${here//\//\\}\\small-disk.sh
# Without a window manager's frame a window is there at once.
"$here/wine.sh" reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f >/dev/null
# One server for everything that follows, and one program that waits for input without end: else Windows' services and
# its desktop would start and end with the programs that need them, and keep their output open.
"$wineserver" -w
"$wineserver" -p
mkfifo "$work/never"
sleep infinity >"$work/never" &
sleeper=$!
"$here/wine.sh" cmd /c 'set /p answer=' <"$work/never" >/dev/null 2>&1 &
"$here/wine.sh" rundll32 user32.dll,MessageBeep >/dev/null 2>&1
echo "with-wine: $(/usr/lib/wine/wine64 --version), prefix made in $((SECONDS - started)) s"

"$@"
