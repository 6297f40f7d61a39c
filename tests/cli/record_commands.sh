#!/usr/bin/env bash
# Records what a fixed list of commands prints, how they end, and what they leave in catalogue and folders, so that two
# builds of the program can be compared:
#   tests/cli/record_commands.sh BUILD_A/bin/lumidex /tmp/before [PHOTOS [SAMPLE]]
#   tests/cli/record_commands.sh BUILD_B/bin/lumidex /tmp/after  [PHOTOS [SAMPLE]]
#   diff -r /tmp/before /tmp/after
# PHOTOS is a folder of photos of any camera, SAMPLE a folder that "lumidex sample" made; without it the program makes its
# own. Both are only copied. The output has a file for each command. Paths, dates of today, random identifiers and file
# times that nobody pinned are replaced. Needs sqlite3.
set -euo pipefail

program=$(realpath "$1")
mkdir -p "$2"
out=$(realpath "$2")
photos=${3:+$(realpath "$3")}
sample=${4:+$(realpath "$4")}
[ -z "$(ls -A "$out")" ] || { echo "$out is not empty" >&2; exit 2; }

work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
cd "$work"
export HOME=$work/home XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config XDG_CACHE_HOME=$work/cache
export LC_ALL=C.UTF-8 TZ=UTC TERM=dumb COLUMNS=100
unset LANG LANGUAGE
mkdir -p home
catalogue=data/lumidex/catalogue.sqlite

# Random identifiers are told by their order of appearance.
plain() {
  local today
  today=$(date +%Y-%m-%d)
  sed -E -e "s|$work|WORK|g" -e "s|${program%/*/*}|BUILD|g" -e "s/$today(.[0-9]{2}:[0-9]{2}(:[0-9]{2})?(Z|\.[0-9]+)?)?/TODAY/g" \
    -e 's/^(WORK.*iB) +[0-9.]+ [KMGT]iB$/\1  FREE/' -e 's/"bytesFree": [0-9]+/"bytesFree": FREE/' |
    awk 'BEGIN { h = "[0-9a-f][0-9a-f][0-9a-f][0-9a-f]" }
    {
      line = ""
      while (match($0, h h "-" h "-" h "-" h "-" h h h)) {
        id = substr($0, RSTART, RLENGTH)
        if (!(id in seen)) seen[id] = ++ids
        line = line substr($0, 1, RSTART - 1) "id-" seen[id]
        $0 = substr($0, RSTART + RLENGTH)
      }
      print line $0
    }'
}

record() { # NAME TEXT...: what comes from standard input
  # In a pipeline a variable would not count.
  local number
  number=$(find "$out" -name '*.txt' | wc -l)
  { printf '%s\n' "${*:2}"; plain; } >"$out/$(printf '%03d' $((number + 1)))-$1.txt"
}

run() { # the program's arguments
  local code=0 name
  name=$(printf '%s' "${*:-none}" | tr -cs 'A-Za-z0-9' '-' | cut -c 1-50)
  "$program" "$@" >"$work/.out" 2>"$work/.err" </dev/null || code=$?
  { cat .out; echo "--- notes"; cat .err; echo "--- ends with $code"; } | record "$name" "lumidex $*"
}

both() { # as text and as JSON: for what changes nothing
  run "$@"
  run --json "$@"
}

files() { # names and bytes; hidden ones too
  { find "$@" -type f ! -name '.lumidex-import' -print0 | sort -z | xargs -0 -r cksum; find "$@" -type l -printf '%p -> %l\n' | sort; } |
    record files "files of $*"
}

tables() { # all rows of the catalogue, without what differs between two runs
  local table columns
  for table in $(sqlite3 $catalogue "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"); do
    columns=$(sqlite3 $catalogue "
      SELECT group_concat('CASE typeof(\"' || name || '\") WHEN ''blob'' THEN CASE WHEN substr(\"' || name ||
        '\", 1, 1) = x''2F'' THEN CAST(\"' || name || '\" AS TEXT) WHEN length(\"' || name || '\") <= 32 THEN hex(\"' ||
        name || '\") ELSE length(\"' || name || '\") || '' bytes'' END WHEN ''real'' THEN round(\"' || name ||
        '\", 3) ELSE \"' || name || '\" END')
      FROM pragma_table_info('$table')
      WHERE name NOT IN ('modified_ns', 'photo_modified_ns', 'kept_modified_ns', 'device', 'file')")
    echo "== $table"
    [ "$table" = sqlite_sequence ] || sqlite3 $catalogue "SELECT $columns FROM \"$table\""
  done | record tables "the tables of the catalogue"
}

fresh() { # FOLDER FROM: a copy whose file times are known
  mkdir -p "$1"
  cp -R "$2/." "$1"
  find "$1" -exec touch -h -d '2021-05-04 10:11:12' {} +
}

# --- Pages, and words that are not understood
run --version
run --json --version
run --help
for command in scan import check albums similar info find tag rename rotate shift-date set-date undo redo \
  "calendar show" "calendar check" "calendar update" sample stats "stats show"; do
  # shellcheck disable=SC2086
  run help $command
done
run
run scna
run --nosuch
run scan --dry-rn photos
run scan
run find --date nonsense
run find --place 1,2,3
run rename photos
run rename --pattern '{nosuch}' photos
run rotate up photos
run shift-date 1x photos
run set-date 2024-13-01 photos
run similar --min 0
run similar --report a.html --explain a b
run similar --alike
run albums --accept
run tag -x
run --lang xx albums
run sample
run sample --photos 3 new
run undo --last 0
run undo --keep-size much
run import photos
run calendar
run calendar shw
run --json nosuch

# --- Nothing is there yet
both albums
both find
both tag
both similar
both undo --list
both undo
both redo
both info missing.jpg
both check missing
both scan missing
run similar --trash --yes
run rename --pattern x missing

# --- Samples
run sample --photos 180 --seed 7 drawn
[ -n "$sample" ] || find drawn -type f | sort | record names "names of drawn"
run sample --photos 180 --seed 7 drawn
fresh sample "${sample:-$work/drawn}"
mkdir -p small/sub
find sample -type f -name '*.jpg' | LC_ALL=C sort | head -6 | while read -r file; do cp "$file" small/; done
cp "$(find small -name '*.jpg' | LC_ALL=C sort | head -1)" small/sub/copy.jpg
echo "no picture" >small/broken.jpg
echo "text" >small/notes.txt
ln -s sub/copy.jpg small/link.jpg
find small -exec touch -h -d '2021-05-04 10:11:12' {} +
both scan --dry-run sample
run scan --threads 1 sample
run --json scan sample
run scan --full --threads 1 sample
if [ -n "$photos" ]; then
  fresh photos "$photos"
  both check photos
  both info photos
  run scan --threads 1 photos
else
  run scan --threads 1 small
fi
tables

# --- Albums
both albums
both albums --list
both --lang de_DE albums
both albums --locale ja_JP
both albums --file-times
run albums --accept nosuch
run albums --report albums.html
sed -E 's/data:image[^"]*/PICTURE/g' albums.html | record page "albums.html"
run albums --report small/notes.txt
run albums --accept all
run albums --accept all
both albums --accepted
run undo
run redo

# --- Similar photos
run similar --threads 2
both similar
both similar --check
run similar --anew
both similar --min 5
run similar --not-compared
first=$(find sample -type f -name '*.jpg' | LC_ALL=C sort | sed -n 1p)
second=$(find sample -type f -name '*.jpg' | LC_ALL=C sort | sed -n 2p)
both similar --explain "$first" "$second"
both similar --explain "$first" nosuch.jpg
both similar --only "$first"
run similar --report similar.html
sed -E 's/data:image[^"]*/PICTURE/g' similar.html | record page "similar.html"
run similar --model nosuch.onnx
run similar --trash
run --json similar --trash
both similar --trash --dry-run
both similar --trash --alike --dry-run
cp "$first" sample/again.jpg
touch -d '2021-05-04 10:11:12' sample/again.jpg
run scan --threads 1 sample
both similar --trash --dry-run
run similar --trash --yes
files sample
tables
run undo
run redo
run undo
run --json similar --trash --alike --only "$first" --yes
run undo

# --- Looking up, tags
both info "$first" "$second"
both find --date 2023
both find --date "2023-06 - 2023-12" --camera phone
run find --text Christmas --paths
both find --place 38,-10,39,-9
run tag "$first" "$second" +Beach +Family
both tag
both tag "$first"
both find --tag Strand
run tag "$first" -Family
run --json tag "$first" +Beach
run tag --locale de_DE
run tag nosuch.jpg +Beach
run undo

# --- Renames and edits
files small
run scan --threads 1 small
both rename --dry-run --pattern '{date}_{number:3}' small
both rename --dry-run --pattern same small
run rename --pattern 'x_{number:2}' --order name --start 5 small
run --json rename --pattern '{name}-y' --skip-problems small
files small
run undo
run redo
both rotate --dry-run right small
run rotate right small
run --json rotate left small/sub
both shift-date --dry-run +1h small
run shift-date -- -1d2h small
run set-date 2020-02-03T04:05 small
run set-date --no-undo 2020-02-03 small/sub
both undo --list
files small
tables
run undo --last 2
run --json redo
run undo --skip
run --json undo --last 9
both undo --list
files small
if [ -n "$photos" ]; then
  both rotate --dry-run left photos
  run rotate left photos
  run --json shift-date +1h photos
  run rename --pattern '{datetime}_{name}' photos
  run undo --last 3
  files photos
fi
run undo --keep-days 30
run undo --keep-size 1G
both check small
both check --for rename small

# --- Imports
both import --dry-run small --to target
run import small --to target
run import --yes small --to target
run --json import --yes small --to target
run import --yes --no-copy small
find target | sort | record names "names of target"
tables
run undo
find target | sort | record names "names of target"

# --- The rest
run calendar show --year 2024
run --json calendar show --year 2024 --locale de_DE
run calendar show --year 2024 --locale xx
both calendar check
run calendar check small/notes.txt
run calendar update
both stats show
run stats on
run find --date 2023
run stats off
run stats clear
both undo --list
tables
echo "$(find "$out" -name '*.txt' | wc -l) records in $out"
