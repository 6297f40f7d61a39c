#!/usr/bin/env python3
"""Runs clang-tidy over the sources that changed since they were last found clean.

    tools/tidy.py [--all] [BUILD_FOLDER]

A source counts as unchanged while its text, the headers of the project that it reads, .clang-tidy, the way it is compiled
and clang-tidy's version are those of a run without findings. Their digests are kept in the user's cache folder.
--all looks at every source all the same.
"""

import concurrent.futures
import functools
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = pathlib.Path(os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache") / "lumidex" / "tidy"
INCLUDE = re.compile(rb'^[ \t]*#[ \t]*include[ \t]*[<"]([^>"]+)[>"]', re.MULTILINE)
KEPT_DAYS = 60


def include_roots(entry):
    """The project's own folders in which this source's headers are searched."""
    words = shlex.split(entry["command"])
    for flag, value in zip(words, words[1:] + [""]):
        folder = value if flag in ("-I", "-isystem") else flag[2:] if flag.startswith("-I") else ""
        if folder:
            folder = pathlib.Path(os.path.normpath(os.path.join(entry["directory"], folder)))
            if folder.is_relative_to(ROOT):
                yield folder


@functools.lru_cache(maxsize=None)
def digest_and_includes(path):
    text = path.read_bytes()
    return hashlib.sha256(text).digest(), [os.fsdecode(name) for name in INCLUDE.findall(text)]


@functools.lru_cache(maxsize=None)
def place(folder, name):
    header = pathlib.Path(os.path.normpath(folder / name))
    return header if header.is_file() else None


def files_read(source, roots):
    """The source and the headers of the project that it reads, directly or through others."""
    found, waiting = {}, [source]
    while waiting:
        path = waiting.pop()
        if path in found:
            continue
        found[path], names = digest_and_includes(path)
        for name in names:
            header = next(filter(None, (place(folder, name) for folder in [path.parent, *roots])), None)
            if header:
                waiting.append(header)
    return found


def digest(entry, common):
    state = hashlib.sha256(common)
    state.update(entry["command"].replace(str(ROOT), ".").encode())
    for path, content in sorted(files_read(pathlib.Path(entry["file"]), list(include_roots(entry))).items()):
        state.update(f"{path.relative_to(ROOT)}\0".encode() + content)
    return state.hexdigest()


def stand_in_for_moc(entry):
    """What moc would write into a source is made by the build, and is not ours to look at: an empty file will do."""
    for name in re.findall(rb'#include "(\w+\.moc)"', pathlib.Path(entry["file"]).read_bytes()):
        folder = next(root for root in include_roots(entry) if root.parts[-1] == "include" and "_autogen" in root.parts[-2])
        folder.mkdir(parents=True, exist_ok=True)
        (folder / os.fsdecode(name)).touch()


def look(entry, build):
    run = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), entry["file"]], cwd=ROOT, text=True,
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    # What clang-tidy says beside its findings is how many it kept to itself.
    broken = run.returncode != 0 and not run.stdout
    return run.returncode == 0, run.stderr if broken else run.stdout


def main(arguments):
    everything = "--all" in arguments
    build = ROOT / next((a for a in arguments if not a.startswith("-")), "build/lint")
    common = (ROOT / ".clang-tidy").read_bytes() + subprocess.check_output(["clang-tidy", "--version"])
    sources = {str(ROOT / name) for name in subprocess.check_output(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.cpp"], cwd=ROOT, text=True).split("\n")}
    units = {entry["file"]: entry for entry in json.loads((build / "compile_commands.json").read_text())
             if entry["file"] in sources and os.path.exists(entry["file"])}

    CACHE.mkdir(parents=True, exist_ok=True)
    for kept in CACHE.iterdir():
        if kept.stat().st_mtime < time.time() - KEPT_DAYS * 86400:
            kept.unlink(missing_ok=True)

    changed = []
    for entry in units.values():
        stand_in_for_moc(entry)
        clean = CACHE / digest(entry, common)
        if clean.exists() and not everything:
            clean.touch()
        else:
            changed.append((entry, clean))

    faulty = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        runs = {pool.submit(look, entry, build): (entry, clean) for entry, clean in changed}
        for run in concurrent.futures.as_completed(runs):
            entry, clean = runs[run]
            is_clean, output = run.result()
            if is_clean:
                clean.touch()
            else:
                faulty += 1
                print(f"clang-tidy: {os.path.relpath(entry['file'], ROOT)}\n{output}", flush=True)
    others = len(sources - set(units)) - 1
    print(f"clang-tidy: {len(units)} sources, {len(changed)} of them changed, {faulty} with findings; "
          f"{others} are not of this build")
    if not faulty:
        (CACHE / "complete").touch()
    return 1 if faulty else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
