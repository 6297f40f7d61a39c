#!/usr/bin/env python3
"""Kills lumidex at random moments of imports, and checks that only whole copies are ever seen.

Each round imports a folder of photos into another one and kills the import (SIGKILL) after a random time, several times
in a row. After each kill
  - every file under its final name is, byte for byte, the source that it is the copy of,
  - nothing else is seen in the folder of copies,
  - the sources are what they were: their names, bytes and times.
Then the same command runs undisturbed, and
  - every source has exactly one copy, with its time,
  - every photo is in the catalogue once,
  - no part of a copy is left, and a further run finds nothing to do,
  - the journal's steps of imports hold each copy once.
Then all of these steps are taken back and done again, and the albums of the photos are accepted, all of it killed likewise:
  - each copy is whole in its place or in the trash, and after the last undo all are in the trash, after the last redo in place,
  - albums are accepted all or not at all, as the journal says; undo leaves none, and redo the same ones.

    import_kill_test.py --lumidex PROGRAM [--rounds 50] [--photos 100] [--seed N] [--folder EMPTY_FOLDER]
"""

import argparse
import hashlib
import json
import os
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time


class Failed(Exception):
    pass


def require(condition, text):
    if not condition:
        raise Failed(text)


def snapshot(folder):
    """Of each file that is seen its bytes and its time, by its name."""
    files = {}
    for place, folders, names in os.walk(folder):
        folders[:] = [name for name in folders if not name.startswith(".")]
        for name in names:
            path = os.path.join(place, name)
            with open(path, "rb") as file:
                files[os.path.relpath(path, folder)] = (hashlib.sha256(file.read()).hexdigest(),
                                                        os.stat(path).st_mtime_ns)
    return files


def check_copies(card, copies, what):
    known = {content for content, _ in card.values()}
    for name, (content, _) in copies.items():
        require(content in known, f"{what}: {name} is no whole copy")
    contents = [content for content, _ in copies.values()]
    require(len(contents) == len(set(contents)), f"{what}: a photo is copied twice")


def kill_at_random(command, random_source, took):
    """True when the program was still at work."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(random_source.uniform(0, took * 1.05))
    at_work = process.poll() is None
    process.send_signal(signal.SIGKILL)
    process.wait()
    return at_work


def ask(command, codes=(0,)):
    done = subprocess.run(command, capture_output=True, check=False)
    require(done.returncode in codes, f"{command[4:]} ends with {done.returncode}: {done.stdout.decode(errors='replace')}")
    return json.loads(done.stdout)


def check_undo(lumidex, copies, trash, whole, random_source):
    """Takes all imports back and does them again, killed now and then. Returns how many runs were killed."""
    steps = [step for step in ask(lumidex + ["undo", "--list"])["steps"] if step["kind"] == "import"]
    require(sum(step["files"] for step in steps) == len(whole), "the steps do not hold each copy once")
    killed = 0
    took = 0.3
    for command, here, there in (("undo", trash, copies), ("redo", copies, trash)):
        for _ in range(random_source.randint(0, 3)):
            killed += kill_at_random(lumidex + [command, "--last", "9"], random_source, took)
            contents = sorted(content for content, _ in list(snapshot(copies).values()) + list(snapshot(trash).values()))
            require(contents == sorted(content for content, _ in whole.values()), f"killed {command}: a copy is not whole")
        started = time.monotonic()
        ask(lumidex + [command, "--last", "9"], (0, 1))
        took = max(0.1, time.monotonic() - started)
        require(sorted(snapshot(here).values()) == sorted(whole.values()), f"after {command} a copy is not where it belongs")
        require(not snapshot(there), f"after {command} something is left behind")
    require(snapshot(copies) == whole, "after redo the copies have other names")
    return killed


def check_albums(lumidex, random_source):
    killed = 0
    took = 0.5

    def accepted():
        return ask(lumidex + ["albums", "--accepted", "--list"])["albums"]

    def stands():
        return any(step["kind"] == "albums" and not step["undone"] for step in ask(lumidex + ["undo", "--list"])["steps"])

    for _ in range(random_source.randint(0, 3)):
        killed += kill_at_random(lumidex + ["albums", "--accept", "all"], random_source, took)
        require(bool(accepted()) == stands(), "albums are accepted without a step, or a step without albums")
    ask(lumidex + ["albums", "--accept", "all"])
    albums = accepted()
    require(albums, "there are no albums to accept")
    for command, goal in (("undo", []), ("redo", albums)):
        for _ in range(random_source.randint(0, 2)):
            if accepted() != goal:
                killed += kill_at_random(lumidex + [command], random_source, 0.3)
            require(accepted() in ([], albums), f"killed {command}: only some of the albums are there")
        if accepted() != goal:
            ask(lumidex + [command])
        require(accepted() == goal, f"after {command} there are other albums")
    return killed


def play(program, root, card, random_source, took):
    copies = os.path.join(root, "copies")
    catalogue = os.path.join(root, "catalogue.sqlite")
    command = [program, "--json", "--catalogue", catalogue, "import", os.path.join(root, "card"), "--to", copies]
    shutil.rmtree(copies, ignore_errors=True)
    shutil.rmtree(catalogue + ".undo", ignore_errors=True)
    for end in ("", "-wal", "-shm"):
        if os.path.exists(catalogue + end):
            os.remove(catalogue + end)
    killed = 0
    for number in range(random_source.randint(1, 4)):
        killed += kill_at_random(command, random_source, took)
        check_copies(card, snapshot(copies), f"kill {number + 1}")
        require(snapshot(os.path.join(root, "card")) == card, "a source was changed")
    partly = 0 < len(snapshot(copies)) < len(card)

    started = time.monotonic()
    done = subprocess.run(command, capture_output=True, check=False)
    took = max(took, time.monotonic() - started)
    require(done.returncode == 0, f"the last run ends with {done.returncode}: {done.stdout.decode(errors='replace')}")
    now = snapshot(copies)
    check_copies(card, now, "the last run")
    require(sorted(now.values()) == sorted(card.values()), "a photo is missing, or has another time")
    parts = set(os.listdir(os.path.join(copies, ".lumidex-import"))) - {"lock", "manifest.jsonl"}
    require(not parts, f"parts are left: {parts}")
    again = json.loads(subprocess.run(command, capture_output=True, check=False).stdout)
    require(again["copied"] == 0 and again["added"] == 0 and not again["copies"],
            f"a further run has something to do: {again['copied']} copied, {again['added']} added")
    scan = subprocess.run([program, "--json", "--catalogue", catalogue, "scan", copies], capture_output=True, check=False)
    require(json.loads(scan.stdout)["unchanged"] == len(card), "the catalogue does not have each photo")
    lumidex = [program, "--json", "--catalogue", catalogue]
    trash = os.path.join(root, "home", "Trash", "files")
    shutil.rmtree(os.path.join(root, "home", "Trash"), ignore_errors=True)
    killed += check_undo(lumidex, copies, trash, now, random_source)
    killed += check_albums(lumidex, random_source)
    return killed, partly, took


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--lumidex", required=True)
    parser.add_argument("--rounds", type=int, default=50)
    parser.add_argument("--photos", type=int, default=100)
    parser.add_argument("--seed", type=int, default=int(time.time()))
    parser.add_argument("--folder")
    arguments = parser.parse_args()

    root = arguments.folder or tempfile.mkdtemp(prefix="lumidex-import-kill-")
    for name in ("HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"):
        os.environ[name] = os.path.join(root, "home")
    os.environ["TZ"] = "UTC"
    random_source = random.Random(arguments.seed)
    print(f"import_kill_test: seed {arguments.seed}, {arguments.rounds} rounds, {arguments.photos} photos", flush=True)
    subprocess.run([arguments.lumidex, "sample", os.path.join(root, "card"), "--photos", str(arguments.photos)],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    # Pictures that are alike count as one.
    seen = set()
    for name, (content, _) in snapshot(os.path.join(root, "card")).items():
        if content in seen or not name.lower().endswith(".jpg"):
            os.remove(os.path.join(root, "card", name))
        seen.add(content)
    card = snapshot(os.path.join(root, "card"))
    require(card, "there are no photos to import")

    killed = 0
    partly = 0
    number = 0
    took = 0.1
    try:
        for number in range(arguments.rounds):
            kills, was_partly, took = play(arguments.lumidex, root, card, random_source, took)
            killed += kills
            partly += was_partly
    except Failed as failure:
        print(f"import_kill_test: round {number}: {failure}; the folder is kept: {root}", file=sys.stderr)
        return 1
    print(f"import_kill_test: {arguments.rounds} rounds over {len(card)} photos, {killed} runs killed, {partly} rounds with"
          " something done by then: only whole copies were seen, and none is missing")
    shutil.rmtree(root, ignore_errors=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
