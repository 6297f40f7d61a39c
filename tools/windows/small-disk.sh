#!/usr/bin/env bash
# Makes volumes with little room for tests under Wine, whose names of folders it is given. ANSWER is a file that begins to be
# when the work is done, with the exit code: a program under Wine learns nothing else of one of Linux.
#   tools/windows/small-disk.sh ANSWER mount FOLDER BYTES
#   tools/windows/small-disk.sh ANSWER close FOLDER          from now on nothing can be written on it
#   tools/windows/small-disk.sh ANSWER unmount FOLDER
set -uo pipefail

place() {
  local path=${1//\\//} drive=${1%%:*}
  echo "$WINEPREFIX/dosdevices/${drive,,}:${path#*:}"
}

answer=$(place "$1")
folder=$(place "$3")
case $2 in
mount) mount -t tmpfs -o "size=$4" lumidex-test "$folder" ;;
close) mount -o remount,ro "$folder" ;;
unmount) umount --lazy "$folder" ;;
esac 2>/dev/null
echo $? >"$answer.part"
mv "$answer.part" "$answer"
