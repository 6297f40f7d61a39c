#!/usr/bin/env python3
"""Keeps the help to its word.

Each promise is a sentence of a help page and a check of it. The sentence must stand on its page, word for word: who
changes one of them changes its check, too. Each check gets a folder of its own with photos to play with.

    promises_test.py --lumidex PROGRAM [--only WORD]
"""

import argparse
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile


class Broken(Exception):
    pass


def require(condition, text):
    if not condition:
        raise Broken(text)


class Room:
    """Photos, a catalogue and settings that nobody else has."""

    def __init__(self, program, folder, sample):
        self.program = program
        self.folder = folder
        self.photos = os.path.join(folder, "photos")
        shutil.copytree(sample, self.photos)
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", TZ="UTC", HOME=folder,
                                XDG_CONFIG_HOME=self.path("config"), XDG_DATA_HOME=self.path("data"),
                                XDG_CACHE_HOME=self.path("cache"))

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def write(self, name, text):
        os.makedirs(os.path.dirname(self.path(name)), exist_ok=True)
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text)

    def run(self, *words, code=None):
        done = subprocess.run([self.program, *words], capture_output=True, check=False, cwd=self.folder,
                              env=self.environment, stdin=subprocess.DEVNULL)
        text = done.stdout.decode(errors="replace") + done.stderr.decode(errors="replace")
        require(code is None or done.returncode == code,
                f"lumidex {' '.join(words)} ends with {done.returncode}: {text.strip()[-400:]}")
        return text

    def read(self, *words, code=None):
        done = subprocess.run([self.program, "--json", *words], capture_output=True, check=False, cwd=self.folder,
                              env=self.environment, stdin=subprocess.DEVNULL)
        require(code is None or done.returncode == code,
                f"lumidex {' '.join(words)} ends with {done.returncode}: {done.stdout.decode(errors='replace')[-400:]}")
        return json.loads(done.stdout)

    def files(self, folder="photos"):
        """Of each file its bytes, its time and its mode, by its name."""
        found = {}
        for place, _, names in os.walk(self.path(folder)):
            for name in names:
                path = os.path.join(place, name)
                with open(path, "rb") as file:
                    state = os.stat(path)
                    found[os.path.relpath(path, self.path(folder))] = (hashlib.sha256(file.read()).hexdigest(),
                                                                       state.st_mtime_ns, state.st_mode)
        return found

    def bytes_of(self, folder="photos"):
        return {name: state[0] for name, state in self.files(folder).items()}

    def some(self, count=3):
        return [os.path.join(self.photos, name) for name in sorted(self.files()) if name.endswith(".jpg")][:count]

    def tags(self, photo):
        shown = self.read("tag", photo)["photos"]
        return sorted(tag["name"] for tag in shown[0]["tags"])


def untouched(room, *commands):
    before = room.files()
    for words in commands:
        room.run(*words)
        require(room.files() == before, f"lumidex {' '.join(words)} changed a file")


def scan_only_reads(room):
    untouched(room, ("scan", "photos"), ("scan", "--full", "photos"))


def lost_is_not_forgotten(room):
    room.run("scan", "photos", code=0)
    photo = room.some(1)[0]
    room.run("tag", photo, "+Kept", code=0)
    with open(photo, "rb") as file:
        content = file.read()
    os.remove(photo)
    room.run("scan", "photos")
    require(room.read("find", "--tag", "Kept")["photos"] == [], "a photo that is gone is found")
    with open(photo, "wb") as file:
        file.write(content)
    room.run("scan", "photos")
    require(room.tags(photo) == ["Kept"], "the photo came back without its tag")


def dry_scan_makes_nothing(room):
    room.run("scan", "--dry-run", "photos", code=0)
    require(not os.path.exists(room.path("data")), "a catalogue was made")


def import_only_reads(room):
    before = room.files()
    room.write("target/keep.txt", "mine")
    shutil.copy(room.some(1)[0], room.path("target", os.path.basename(room.some(2)[1])))
    there = room.bytes_of("target")
    for _ in range(2):
        room.run("import", "photos", "--to", "target", "--yes")
    require(room.files() == before, "a source was changed")
    now = room.bytes_of("target")
    require(all(now.get(name) == content for name, content in there.items()), "what was there is changed")
    missing = set(room.bytes_of().values()) - set(now.values())
    require(not missing, f"{len(missing)} files have no copy")


def visible(room, folder):
    return {name: content for name, content in room.bytes_of(folder).items() if not name.startswith(".")}


def import_is_undone(room):
    before = room.files()
    room.run("import", "photos", "--to", "target", "--yes", code=0)
    copies = visible(room, "target")
    trash = os.path.join("data", "Trash", "files")
    require(room.read("undo", code=0)["done"][0]["kind"] == "import", "undo took something else back")
    require(not visible(room, "target"), "a copy is still there")
    require(sorted(visible(room, trash).values()) == sorted(copies.values()), "a copy is not in the trash")
    room.run("redo", code=0)
    require(visible(room, "target") == copies, "redo did not bring the copies back")
    with open(room.path("target", sorted(copies)[0]), "ab") as file:
        file.write(b"changed")
    room.run("undo", code=3)
    require(list(visible(room, "target")) == sorted(copies)[:1], "the changed copy did not stay, or others did")
    require(room.files() == before, "a source was changed")


def safe_only_when_nothing_is_left(room):
    require("safe to format" in room.run("import", "photos", "--to", "target", code=0), "it is not said")
    room.write("photos/letter.txt", "mine")
    require("safe to format" not in room.run("import", "photos", "--to", "target", code=1), "it is said of a letter")
    os.remove(room.path("photos/letter.txt"))
    room.write("photos/.DS_Store", "views of the folder")
    told = room.run("import", "photos", "--to", "target", code=0)
    require("safe to format" in told and "except for housekeeping files" in told, "housekeeping is told to have a copy")


def albums_are_undone(room):
    room.run("scan", "photos", code=0)
    room.run("albums", "--accept", "all", code=0)
    accepted = room.read("albums", "--accepted", "--list")["albums"]
    require(accepted, "there is no album to try it with")
    room.run("undo", code=0)
    require(not room.read("albums", "--accepted")["albums"], "an album is still accepted")
    room.run("redo", code=0)
    require(room.read("albums", "--accepted", "--list")["albums"] == accepted, "redo made other albums")


def check_changes_nothing(room):
    untouched(room, ("check", "photos"))


def albums_leave_files(room):
    room.run("scan", "photos", code=0)
    untouched(room, ("albums",), ("albums", "--list"), ("albums", "--accept", "all"))


def one_unknown_album_accepts_none(room):
    room.run("scan", "photos", code=0)
    names = [album["name"] for album in room.read("albums")["albums"]]
    require(names, "there is no album to try it with")
    room.run("albums", "--accept", names[0], "--accept", "No such album", code=4)
    require(not any(album["accepted"] for album in room.read("albums")["albums"]), "an album was accepted")


def report_replaces_pages_only(room):
    room.run("scan", "photos", code=0)
    before = room.files()
    room.run("albums", "--report", room.some(1)[0], code=2)
    room.write("photos/notes.html", "my own notes")
    before["notes.html"] = room.files()["notes.html"]
    room.run("albums", "--report", "photos/notes.html", code=4)
    require(room.files() == before, "a file that is no page was replaced")
    for _ in range(2):
        room.run("albums", "--report", "page.html", code=0)


def info_changes_nothing(room):
    untouched(room, ("info", *room.some(9)))
    require(not os.path.exists(room.path("data")), "a catalogue was made")


def tags_stay_with_photos(room):
    room.run("scan", "photos", code=0)
    photo = room.some(1)[0]
    before = room.files()
    room.run("tag", photo, "+Kept", code=0)
    require(room.files() == before, "a file was changed")
    room.run("rename", "--pattern", "renamed", photo, code=0)
    renamed = os.path.join(os.path.dirname(photo), "renamed.jpg")
    require(room.tags(renamed) == ["Kept"], "the tag was lost by the rename")
    room.run("undo", code=0)
    require(room.tags(photo) == ["Kept"], "the tag was lost by undo")
    room.run("undo", code=0)
    require(room.tags(photo) == [], "undo left the tag")


def rename_replaces_nothing(room):
    taken = room.some(1)[0]
    others = [photo for photo in room.some(30) if os.path.dirname(photo) == os.path.dirname(taken)][1:3]
    require(len(others) == 2, "there are too few photos")
    before = room.files()
    pattern = os.path.splitext(os.path.basename(taken))[0]
    room.run("scan", "photos", code=0)
    text = room.run("rename", "--pattern", pattern, *others, code=1)
    require(room.files() == before, "something was renamed")
    require(all(os.path.basename(photo) in text for photo in others), "a photo is not listed")


def rename_is_undone(room):
    before = room.files()
    room.run("scan", "photos", code=0)
    room.run("rename", "--pattern", "x{number:4}", *room.some(5), code=0)
    require(room.files() != before, "nothing was renamed")
    room.run("undo", code=0)
    require(room.files() == before, "undo left a difference")


def edits_are_undone(room):
    """Every byte, time and mode, there and back, and there once more."""
    room.run("scan", "photos", code=0)
    states = [room.files()]
    for words in (("rotate", "right"), ("shift-date", "+1h"), ("set-date", "1987-08-15")):
        room.run(*words, *room.some(3), code=0)
        states.append(room.files())
    bytes_after = room.bytes_of()
    for state in reversed(states[:-1]):
        room.run("undo", code=0)
        require(room.files() == state, "undo left a difference")
    room.run("redo", "--last", "3", code=0)
    require(room.bytes_of() == bytes_after, "redo made other bytes")


def rotation_keeps_the_picture(room):
    def pictures():
        scans = []
        for photo in room.some(3):
            with open(photo, "rb") as file:
                content = file.read()
            scans.append(hashlib.sha256(content[content.rfind(b"\xff\xda"):]).hexdigest())
        return scans

    before = pictures()
    room.run("rotate", "left", *room.some(3), code=0)
    require(pictures() == before, "the picture's bytes changed")


def dry_edits_change_nothing(room):
    for words in (("rotate", "right"), ("shift-date", "+1h"), ("set-date", "1987-08-15")):
        untouched(room, (words[0], "--dry-run", *words[1:], *room.some(3)))


def sample_overwrites_nothing(room):
    before = room.files()
    room.run("sample", "photos", code=4)
    require(room.files() == before, "a file was changed")


def sample_is_the_same_again(room):
    room.run("sample", "one", "--photos", "50", "--seed", "7", code=0)
    room.run("sample", "two", "--photos", "50", "--seed", "7", code=0)
    require(room.bytes_of("one") == room.bytes_of("two"), "the files differ")


def update_leaves_the_calendar(room):
    before = room.read("calendar", "show")["events"]
    room.write("config/lumidex/lumidex.ini", "[Download]\nBaseUrl=http://127.0.0.1:9\n")
    room.run("calendar", "update", code=3)
    require(room.read("calendar", "show")["events"] == before, "the calendar changed")


def statistics_hold_nothing_of_photos(room):
    room.run("scan", "photos", code=0)
    require(not os.path.exists(room.path("data", "lumidex", "statistics.jsonl")), "they are on from the start")
    room.run("stats", "on", code=0)
    photo = room.some(1)[0]
    for words in (("scan", "photos"), ("find", "--text", "holiday"), ("tag", photo, "+Secret"), ("rotate", "left", photo)):
        room.run(*words)
    with open(room.path("data", "lumidex", "statistics.jsonl"), encoding="utf-8") as file:
        text = file.read()
    require(text, "there are no statistics")
    for word in ("Secret", os.path.basename(photo), room.folder, "holiday", ".jpg"):
        require(word not in text, f"they hold {word}")


PROMISES = [
    ("scan", "Your files are only read.", scan_only_reads),
    ("scan", "are marked as lost, but stay in the catalogue.", lost_is_not_forgotten),
    ("scan", "Show what would be done; do not change the catalogue.", dry_scan_makes_nothing),
    ("import", "Your files are only read.", import_only_reads),
    ("import", "Files that were copied before are skipped", import_only_reads),
    ("import", "\"lumidex undo\" moves the copies of a run to the trash.", import_is_undone),
    ("import", "is said only if no other file remains.", safe_only_when_nothing_is_left),
    ("undo", "unchanged copies go to the trash, changed copies stay", import_is_undone),
    ("undo", "new albums are removed, added photos are removed from albums", albums_are_undone),
    ("check", "Nothing is changed.", check_changes_nothing),
    ("albums", "Your files do not change.", albums_leave_files),
    ("albums", "if one name does not, nothing is accepted.", one_unknown_album_accepts_none),
    ("albums", "A report replaces an older report of the same name, but never a photo", report_replaces_pages_only),
    ("info", "The catalogue is not used, and nothing is changed.", info_changes_nothing),
    ("tag", "your files do not change, and photos keep their tags through renames, the trash and undo.", tags_stay_with_photos),
    ("rename", "No file is ever replaced", rename_replaces_nothing),
    ("rename", "nothing is renamed and every such photo is listed.", rename_replaces_nothing),
    ("rename", "\"lumidex undo\" undoes all renames.", rename_is_undone),
    ("rotate", "\"lumidex undo\" undoes it.", edits_are_undone),
    ("rotate", "their pictures stay the same, bit for bit.", rotation_keeps_the_picture),
    ("rotate", "Show what would be changed; change nothing.", dry_edits_change_nothing),
    ("undo", "Photos get back their names and every byte of their files.", edits_are_undone),
    ("sample", "nothing of yours is ever overwritten.", sample_overwrites_nothing),
    ("sample", "The same seed and number of photos give the same files.", sample_is_the_same_again),
    ("calendar update", "If the server has no calendar, the one in use stays.", update_leaves_the_calendar),
    ("stats", "Statistics are off until you turn them on.", statistics_hold_nothing_of_photos),
    ("stats", "They hold no names, no paths and nothing of your photos.", statistics_hold_nothing_of_photos),
]


def main():
    reader = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    reader.add_argument("--lumidex", required=True)
    reader.add_argument("--only", default="", help="only the pages and sentences with that word")
    given = reader.parse_args()
    program = os.path.abspath(given.lumidex)
    failures = 0
    verdicts = {}
    with tempfile.TemporaryDirectory(prefix="lumidex-promises-") as root:
        sample = os.path.join(root, "sample")
        subprocess.run([program, "sample", sample, "--photos", "150", "-q"], check=True, stdout=subprocess.DEVNULL)
        for page, sentence, check in PROMISES:
            if given.only not in page + sentence:
                continue
            shown = subprocess.run([program, "help", *page.split()], capture_output=True, check=True).stdout.decode()
            verdict = "" if sentence in re.sub(r"\s+", " ", shown) else "the page does not say it any more"
            if not verdict and check not in verdicts:
                folder = tempfile.mkdtemp(dir=root)
                try:
                    check(Room(program, folder, sample))
                    verdicts[check] = ""
                except Broken as broken:
                    verdicts[check] = str(broken)
                shutil.rmtree(folder)
            verdict = verdict or verdicts[check]
            failures += verdict != ""
            print(f"{'BROKEN' if verdict else 'kept'}  {page}: {sentence}{'  -- ' + verdict if verdict else ''}")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
