#!/usr/bin/env python3
"""Kills lumidex at random moments of finding similar photos and of moving copies to the trash.

Each round works on a folder in which every photo has a copy.
  - `similar` is killed (SIGKILL) after a random time, up to three times, and then left alone. The groups and the verdicts
    are those of an undisturbed run, and the catalogue is as matching makes it.
  - `similar --trash --yes` is killed after a random time. Every picture is then there once, in the folder or in the
    trash, the one to keep in the folder; after `undo` the folder is as it was, byte for byte.

    similar_kill_test.py --lumidex PROGRAM [--rounds 20] [--photos 50] [--seed N] [--folder EMPTY_FOLDER]
"""

import argparse
import json
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time


MOST_KILLS = 3


class Failed(Exception):
    pass


def require(condition, text):
    if not condition:
        raise Failed(text)


def contents(folder):
    files = {}
    for root, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(root, name)
            with open(path, "rb") as file:
                files[os.path.relpath(path, folder)] = file.read()
    return files


class Place:
    """Photos, their catalogue and a trash of their own."""

    def __init__(self, program, root):
        self.program = program
        self.root = root
        self.photos = os.path.join(root, "photos")
        self.trash = os.path.join(root, "data", "Trash", "files")
        self.environment = dict(os.environ)
        for name, folder in (("HOME", "home"), ("XDG_DATA_HOME", "data"), ("XDG_CONFIG_HOME", "config")):
            self.environment[name] = os.path.join(root, folder)
            os.makedirs(self.environment[name], exist_ok=True)

    def command(self, arguments):
        return [self.program, "--json", "--lang", "en_US"] + arguments

    def run(self, arguments, expected=(0,)):
        ran = subprocess.run(self.command(arguments), env=self.environment, stdout=subprocess.PIPE,
                             stderr=subprocess.PIPE, check=False)
        require(ran.returncode in expected,
                "%s ended with %d: %s" % (arguments, ran.returncode, ran.stderr.decode(errors="replace")))
        return json.loads(ran.stdout)

    def kill(self, arguments, seconds):
        """Returns whether the program had ended before."""
        process = subprocess.Popen(self.command(arguments), env=self.environment, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        try:
            process.wait(seconds)
            return True
        except subprocess.TimeoutExpired:
            process.send_signal(signal.SIGKILL)
            process.wait()
            return False

    def begin(self):
        """The photos alone are known."""
        shutil.rmtree(os.path.join(self.root, "data"), ignore_errors=True)
        os.makedirs(os.path.join(self.root, "data"))
        self.run(["scan", self.photos])


def groups_of(document):
    """What does not depend on the order in which the catalogue numbered its clusters."""
    groups = []
    for group in document["groups"]:
        groups.append(sorted((os.path.basename(member["path"]), member["keep"], member["verdict"] or "",
                              member["why"]) for member in group["members"]))
    return sorted(groups)


def timed(place, arguments):
    begun = time.monotonic()
    document = place.run(arguments)
    return time.monotonic() - begun, document


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument("--lumidex", required=True)
    options.add_argument("--rounds", type=int, default=20)
    options.add_argument("--photos", type=int, default=50)
    options.add_argument("--seed", type=int, default=None)
    options.add_argument("--folder")
    arguments = options.parse_args()
    seed = arguments.seed if arguments.seed is not None else random.randrange(1 << 30)
    dice = random.Random(seed)
    root = arguments.folder or tempfile.mkdtemp(prefix="lumidex-similar-kill-")
    kills = trash_kills = 0
    try:
        place = Place(os.path.abspath(arguments.lumidex), root)
        place.run(["sample", "--photos", str(arguments.photos), "--seed", "5", place.photos])
        for name, content in contents(place.photos).items():
            copy = os.path.join(place.photos, "copies", name)
            os.makedirs(os.path.dirname(copy), exist_ok=True)
            with open(copy, "wb") as file:
                file.write(content)
        before = contents(place.photos)
        place.begin()
        long, undisturbed = timed(place, ["similar"])
        same = sum(member["verdict"] == "same" for group in undisturbed["groups"] for member in group["members"])
        require(same >= 10, "only %d copies are told" % same)
        for _ in range(arguments.rounds):
            place.begin()
            for _ in range(MOST_KILLS):
                if place.kill(["similar"], dice.uniform(0, long)):
                    break
                kills += 1
            document = place.run(["similar"])
            here, there = groups_of(document), groups_of(undisturbed)
            require(here == there, "the groups are others than undisturbed ones: %s for %s" %
                    ([group for group in here if group not in there], [group for group in there if group not in here]))
            require(place.run(["similar", "--check"])["differences"] == [], "the clusters are not as matched")
            planning, _ = timed(place, ["similar", "--trash", "--dry-run"])
            trash_kills += 0 if place.kill(["similar", "--trash", "--yes"], dice.uniform(0.5, 1.5) * planning) else 1
            place.run(["undo", "--list"])
            here = contents(place.photos)
            there = contents(place.trash) if os.path.isdir(place.trash) else {}
            require(len(here) + len(there) == len(before), "%d photos and %d in the trash are not %d" %
                    (len(here), len(there), len(before)))
            kept = {os.path.relpath(member["path"], place.photos) for group in document["groups"]
                    for member in group["members"] if member["keep"]}
            require(kept <= set(here), "a photo to keep is gone")
            place.run(["undo"], (0, 1, 4) if not there else (0,))
            require(contents(place.photos) == before, "after undo the photos are not as before")
        print("%d rounds, %d kills of similar, %d of --trash, seed %d: nothing lost" %
              (arguments.rounds, kills, trash_kills, seed))
        return 0
    except Failed as failure:
        print("FAILED with seed %d: %s\nleft in %s" % (seed, failure, root), file=sys.stderr)
        arguments.folder = root
        return 1
    finally:
        if not arguments.folder:
            shutil.rmtree(root, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
