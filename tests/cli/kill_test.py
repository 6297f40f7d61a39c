#!/usr/bin/env python3
"""Kills lumidex at random moments of batch edits and renames, and checks that nothing is ever lost.

Each round runs one batch over all photos of a folder and kills it (SIGKILL) after a random time. The next start of
lumidex recovers. Then
  - every picture is there once, byte for byte as it was before the batch or as an undisturbed run makes it,
  - the catalogue of a first scan is not there yet, or sound,
  - a rename is done as a whole or not at all,
  - a photo and its sidecar are both edited or neither,
  - no staging file is left, neither among the photos nor in the undo folder,
  - symbolic links lead to the photos that they led to before, or to where undo brings them back,
  - a scan that finds photos moved by others knows each again: its tag is where the photo is,
  - journal and disk agree: taking the step back, if the journal has it, gives the very files from before: their names,
    bytes and times.

    kill_test.py --lumidex PROGRAM [--rounds 200] [--photos 200] [--seed N] [--folder EMPTY_FOLDER]
"""

import argparse
import contextlib
import hashlib
import json
import os
import random
import re
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time

BATCHES = [
    ("rename", ["rename", "--order", "name", "--pattern", "R{{round}}_{{number:4}}"]),
    ("shift names by one", ["rename", "--order", "name", "--start", "2", "--pattern", "N_{{number:4}}"]),
    ("turn the names round", ["rename", "--order", "date", "--pattern", "N_{{number:4}}"]),
    ("rotate", ["rotate", "right"]),
    ("shift-date", ["shift-date", "+1h"]),
    ("rotate without undo", ["rotate", "left", "--no-undo"]),
    ("undo", ["undo"]),
    ("undo without redo", ["undo", "--no-redo"]),
    ("redo", ["redo"]),
    ("scan what moved", ["scan"]),
]


class Failed(Exception):
    pass


def require(condition, text):
    if not condition:
        raise Failed(text)


class Catalogue:
    """A folder with photos, and what lumidex knows of it."""

    def __init__(self, program, root):
        self.program = program
        self.photos = os.path.join(root, "photos")
        self.catalogue = os.path.join(root, "catalogue.sqlite")
        self.kept = self.catalogue + ".undo"
        self.links = os.path.join(self.photos, "best")

    def command(self, arguments):
        files = [self.photos] if arguments[0] not in ("undo", "redo") else []
        return [self.program, "--json", "--catalogue", self.catalogue] + arguments + files

    def run(self, arguments):
        done = subprocess.run(self.command(arguments), capture_output=True, check=False)
        return done.returncode, done.stdout

    def steps(self):
        code, output = self.run(["undo", "--list"])
        require(code == 0, f"undo --list ends with {code}: {output.decode(errors='replace')}")
        return json.loads(output)

    def snapshot(self):
        """Of each photo its bytes and its time, by name."""
        files = {}
        for name in sorted(os.listdir(self.photos)):
            path = os.path.join(self.photos, name)
            if path == self.links:
                continue
            with open(path, "rb") as file:
                content = file.read()
            files[name] = (hashlib.sha1(content).hexdigest(), os.stat(path).st_mtime_ns, picture(content, name))
        return files

    def pictures_of_links(self):
        """To which picture each symbolic link leads."""
        found = {}
        for name in sorted(os.listdir(self.links)):
            path = os.path.join(self.links, name)
            require(os.path.exists(path), f"the link {name} leads nowhere: {os.readlink(path)}")
            with open(path, "rb") as file:
                found[name] = picture(file.read(), name)
        return found

    def ids(self):
        """Of each picture in the folder the id of the record that the catalogue has of it."""
        with contextlib.closing(sqlite3.connect(f"file:{self.catalogue}?mode=ro", uri=True)) as database:
            rows = database.execute("SELECT path, id FROM photos WHERE lost = 0").fetchall()
        by_path = {os.fsdecode(path): key for path, key in rows}
        return {entry[2]: by_path.get(os.path.join(self.photos, name)) for name, entry in self.snapshot().items()
                if not name.endswith(".xmp")}

    def photo_names(self):
        return sorted(name for name in self.snapshot() if not name.endswith(".xmp"))

    def move_outside(self, number, random_source):
        """What another program does: photos get other names, some those of others, and links are pointed there. Those
        with sidecars stay: undo follows photos alone, which the catalogue knows."""
        names = [name for name in self.photo_names()
                 if not os.path.exists(os.path.join(self.photos, name[:-len("jpg")] + "xmp"))]
        moving = random_source.sample(names, len(names) * 2 // 3)
        new_names = [f"M{number}_{i:04}.jpg" for i in range(len(moving) // 2)] + moving[len(moving) // 2:]
        random_source.shuffle(new_names)
        targets = dict(zip(moving, new_names))
        for name in moving:
            os.rename(os.path.join(self.photos, name), os.path.join(self.photos, name + ".moving"))
        for name, target in targets.items():
            os.rename(os.path.join(self.photos, name + ".moving"), os.path.join(self.photos, target))
        for link in os.listdir(self.links):
            path = os.path.join(self.links, link)
            folder, name = os.path.split(os.readlink(path))
            if name in targets:
                os.remove(path)
                os.symlink(os.path.join(folder, targets[name]), path)

    def kept_names(self):
        return sorted(name for name in os.listdir(self.kept) if name not in ("lock", "reserve")) if os.path.isdir(self.kept) else []


SIDECAR = """<?xpacket begin="" id="W5M0MpCehiHzreSzNTczkc9d"?>
<x:xmpmeta xmlns:x="adobe:ns:meta/"><rdf:RDF xmlns:rdf="http://www.w3.org/1999/02/22-rdf-syntax-ns#">
 <rdf:Description rdf:about="" xmlns:xmp="http://ns.adobe.com/xap/1.0/" xmlns:tiff="http://ns.adobe.com/tiff/1.0/"
  xmp:Label="photo {}" xmp:CreateDate="2024-05-17T10:00:00" tiff:Orientation="1"/>
</rdf:RDF></x:xmpmeta>
<?xpacket end="w"?>"""


def picture(content, name):
    """What no edit may touch: the coded picture of a JPEG file, from its start of scan on; of a sidecar all but its
    date and its orientation."""
    if name.endswith(".xmp"):
        return hashlib.sha1(re.sub(rb'(CreateDate|Orientation)="[^"]*"', rb"\1", content)).hexdigest()
    at = 2
    while True:
        require(content[at] == 0xFF, f"{name} is no JPEG file any more")
        if content[at + 1] == 0xDA:
            return hashlib.sha1(content[at:]).hexdigest()
        at += 2 + int.from_bytes(content[at + 2:at + 4], "big")


def copy_state(source, target):
    """The same photos, catalogue and originals somewhere else."""
    for folder in (target.photos, target.kept):
        shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(source.photos, target.photos, symlinks=True)
    if os.path.isdir(source.kept):
        shutil.copytree(source.kept, target.kept)
    for end in ("", "-wal", "-shm"):
        if os.path.exists(target.catalogue + end):
            os.remove(target.catalogue + end)
        if os.path.exists(source.catalogue + end):
            shutil.copy2(source.catalogue + end, target.catalogue + end)
    # The journal speaks of the photos by their whole names.
    return target


def restore(catalogue, state):
    copy_state(state, catalogue)


def check(before, now, expected, is_rename, what):
    require(not any(name.startswith(".") for name in now), f"{what}: a staging file is left: {list(now)}")
    require(sorted(entry[2] for entry in now.values()) == sorted(entry[2] for entry in before.values()),
            f"{what}: a picture is missing or there twice")
    if is_rename:
        require(now in (before, expected), f"{what}: renamed by halves")
        return
    for name, entry in now.items():
        require(name in before, f"{what}: {name} is new")
        require(entry in (before[name], expected[name]),
                f"{what}: {name} is neither the old nor the new photo")
    for name in (name for name in now if name.endswith(".xmp")):
        photo = name[:-len("xmp")] + "jpg"
        if expected[name] != before[name] and expected[photo] != before[photo]:
            require((now[name] == before[name]) == (now[photo] == before[photo]),
                    f"{what}: only one of {photo} and its sidecar is edited")


def play(catalogue, spare, batch, arguments, random_source, duration):
    """One round. Returns whether the batch was killed, and how much of it was done."""
    before = catalogue.snapshot()
    links = catalogue.pictures_of_links()
    copy_state(catalogue, spare)
    started = time.monotonic()
    code, output = catalogue.run(arguments)
    took = time.monotonic() - started
    expected = catalogue.snapshot()
    if code == 4 and arguments[0] == "undo":
        # Nothing can be taken back where a later step without undo changed all of the photos.
        causes = [finding["cause"] for step in json.loads(output)["done"] for finding in step["findings"]]
        require(expected == before and causes and all("changed since" in cause or "goes with" in cause for cause in causes)
                and any(step["givenUp"] for step in catalogue.steps()["steps"]),
                f"{batch}: undisturbed it is refused: {output.decode(errors='replace')}")
    else:
        require(code in (0, 1, 3), f"{batch}: undisturbed it ends with {code}: {output.decode(errors='replace')}")
    restore(catalogue, spare)
    require(catalogue.snapshot() == before, "the test itself does not restore the photos")
    known = catalogue.steps()

    process = subprocess.Popen(catalogue.command(arguments), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(random_source.uniform(0, max(took, duration) * 1.05))
    killed = process.poll() is None
    process.send_signal(signal.SIGKILL)
    process.wait()

    steps = catalogue.steps()
    now = catalogue.snapshot()
    is_rename = sorted(before.values()) == sorted(expected.values())
    check(before, now, expected, is_rename, batch)
    require(catalogue.pictures_of_links() == links, f"{batch}: a link leads to another photo")
    done = sum(1 for name, entry in now.items() if before.get(name) != entry)
    again = catalogue.steps()
    require(again["steps"] == steps["steps"] and not again["recovered"] and catalogue.snapshot() == now,
            f"{batch}: recovery is not done after once: {again}")

    # Journal and disk agree when what the journal says can be taken back is what was done.
    if arguments[0] not in ("undo", "redo"):
        numbers = {step["number"] for step in known["steps"]}
        new = [step for step in steps["steps"] if step["number"] not in numbers and not step["undone"]]
        if "--no-undo" in arguments:
            require(all(step["givenUp"] for step in new), f"{batch}: the journal promises what nobody can take back")
        elif new:
            require(new[0]["files"] == done or is_rename, f"{batch}: {done} files are changed, the journal says {new[0]['files']}")
            code, output = catalogue.run(["undo"])
            require(code == 0, f"{batch}: it cannot be taken back: {output.decode(errors='replace')}")
            require(catalogue.snapshot() == before, f"{batch}: taking it back does not give the photos from before")
            require(catalogue.pictures_of_links() == links, f"{batch}: taking it back breaks a link")
            require(catalogue.run(["redo"])[0] == 0, f"{batch}: it cannot be done again")
            require(catalogue.snapshot() == now, f"{batch}: doing it again does not give the same photos")
        else:
            require(done == 0, f"{batch}: {done} files are changed, and the journal does not know of it")
    require(not steps["steps"] or os.path.exists(os.path.join(catalogue.kept, "lock")), "the undo folder is gone")
    # One version is kept of each photo that a step changed.
    require(len(set(catalogue.kept_names())) == len(catalogue.kept_names()), "kept twice")
    return killed, done


def play_first_scans(program, root, photos, rounds, random_source):
    """Kills the very first scan: what is there then is no catalogue yet, or a sound one."""
    started = time.monotonic()
    place = os.path.join(root, "first")
    for number in range(rounds + 1):
        shutil.rmtree(place, ignore_errors=True)
        os.makedirs(place)
        command = [program, "--json", "--catalogue", os.path.join(place, "catalogue.sqlite")]
        process = subprocess.Popen(command + ["scan", photos], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if number == 0:
            # How long it takes when nobody disturbs it.
            process.wait()
            took = time.monotonic() - started
        else:
            time.sleep(random_source.uniform(0, took))
            process.send_signal(signal.SIGKILL)
            process.wait()
        for arguments, codes in ((["undo", "--list"], (0,)), (["undo"], (1,)), (["scan", photos], (0, 1)), (["albums"], (0, 1))):
            done = subprocess.run(command + arguments, capture_output=True, check=False)
            require(done.returncode in codes,
                    f"first scan: {arguments[0]} ends with {done.returncode}: {done.stdout.decode(errors='replace')}")
    shutil.rmtree(place)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--lumidex", required=True)
    parser.add_argument("--rounds", type=int, default=200)
    parser.add_argument("--photos", type=int, default=200)
    parser.add_argument("--seed", type=int, default=int(time.time()))
    parser.add_argument("--folder")
    arguments = parser.parse_args()

    root = arguments.folder or tempfile.mkdtemp(prefix="lumidex-kill-")
    os.makedirs(os.path.join(root, "home"), exist_ok=True)
    for name in ("HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"):
        os.environ[name] = os.path.join(root, "home")
    os.environ["TZ"] = "UTC"
    random_source = random.Random(arguments.seed)
    print(f"kill_test: seed {arguments.seed}, {arguments.rounds} rounds, {arguments.photos} photos", flush=True)

    place = os.path.join(root, "here")
    os.makedirs(place)
    spare_place = os.path.join(root, "spare")
    os.makedirs(spare_place)
    catalogue = Catalogue(arguments.lumidex, place)
    spare = Catalogue(arguments.lumidex, spare_place)
    subprocess.run([arguments.lumidex, "sample", os.path.join(root, "sample"), "--photos",
                    str(max(50, arguments.photos))], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.makedirs(catalogue.photos)
    count = 0
    for folder, _, names in sorted(os.walk(os.path.join(root, "sample"))):
        for name in sorted(names):
            if name.lower().endswith(".jpg") and count < arguments.photos:
                shutil.copy2(os.path.join(folder, name), os.path.join(catalogue.photos, f"P_{count:04}.jpg"))
                count += 1
    os.makedirs(catalogue.links)
    # Pictures that are alike could be told from each other by nothing.
    seen = set()
    for number, (name, entry) in enumerate(catalogue.snapshot().items()):
        if entry[2] in seen:
            os.remove(os.path.join(catalogue.photos, name))
        elif number % 2 == 0:
            with open(os.path.join(catalogue.photos, name[:-len("jpg")] + "xmp"), "w", encoding="utf-8") as sidecar:
                sidecar.write(SIDECAR.format(number))
        seen.add(entry[2])
    names = catalogue.photo_names()
    for number, name in enumerate(names[::7]):
        whole = os.path.join(catalogue.photos, name)
        os.symlink(whole if number % 3 == 0 else os.path.join("..", name), os.path.join(catalogue.links, f"{number}.jpg"))
    require(catalogue.run(["scan"])[0] in (0, 1), "the scan fails")
    ids = catalogue.ids()
    require(None not in ids.values(), "the scan does not take all photos in")

    killed = 0
    partly = 0
    number = -1
    try:
        play_first_scans(arguments.lumidex, root, catalogue.photos, max(5, arguments.rounds // 4), random_source)
        for number in range(arguments.rounds):
            batch, words = random_source.choice(BATCHES)
            words = [word.replace("{{round}}", str(number)).replace("{{", "{").replace("}}", "}") for word in words]
            if batch == "turn the names round":
                words[words.index("date")] = random_source.choice(["date", "name"])
            if batch == "scan what moved":
                catalogue.move_outside(number, random_source)
            was_killed, done = play(catalogue, spare, batch, words, random_source, 0.02)
            if batch == "scan what moved":
                require(catalogue.run(["scan"])[0] in (0, 1), "the scan after the kill fails")
            require(catalogue.ids() == ids, f"{batch}: a photo has lost its record")
            killed += was_killed
            partly += was_killed and done > 0
            if (number + 1) % 10 == 0:
                print(f"kill_test: {number + 1} rounds, {killed} killed, {partly} of them with something done", flush=True)
    except Failed as failure:
        print(f"kill_test: round {number}: {failure}; the folder is kept: {root}", file=sys.stderr)
        return 1
    print(f"kill_test: {arguments.rounds} rounds over {len(catalogue.snapshot())} photos and sidecars, {killed} killed, {partly} of them"
          " with something done: nothing was lost")
    shutil.rmtree(root, ignore_errors=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
