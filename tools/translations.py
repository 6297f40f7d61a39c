#!/usr/bin/env python3
"""Keeps translations/*.ts in step with the texts of the sources.

  tools/translations.py            takes new texts in, for translators to finish, and drops those that are gone
  tools/translations.py --check    changes nothing; tells what is out of step, and then exits with 1

Texts in English are their own translation; only those that go with a number need to be finished there, too.
"""

import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ["LumidexUtil", "platform", "host", "samples", "apps"]
LANGUAGES = ["en_US", "de_DE", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pt_BR", "ru_RU"]
UNFINISHED = re.compile(
    r'<source>([^<]*)</source>(\s*(?:<comment>[^<]*</comment>\s*)?)<translation type="unfinished"></translation>')


def find_lupdate():
    # Where several Qt versions are installed, the plain name may lead to another one.
    for name in ["/usr/lib/qt5/bin/lupdate", "lupdate-qt5", "lupdate"]:
        found = shutil.which(name)
        if found:
            return found
    sys.exit("translations: lupdate is not installed (qttools5-dev-tools)")


def copy_sources(target):
    """Copies the sources without the separators of digits, which lupdate takes for the beginning of a character."""
    for folder in FOLDERS:
        for source in sorted((ROOT / folder).rglob("*")):
            if source.suffix in (".cpp", ".h"):
                copy = target / source.relative_to(ROOT)
                copy.parent.mkdir(parents=True, exist_ok=True)
                text = source.read_text(encoding="utf-8")
                copy.write_text(re.sub(r"(?<=[0-9a-fA-F])'(?=[0-9a-fA-F])", "", text), encoding="utf-8")


def fill_in_english(file):
    text = file.read_text(encoding="utf-8")
    file.write_text(UNFINISHED.sub(r"<source>\1</source>\2<translation>\1</translation>", text), encoding="utf-8")


def update(lupdate, target):
    for language in LANGUAGES:
        subprocess.run([lupdate, "-silent", "-locations", "none", "-no-obsolete", "-disable-heuristic", "similartext",
                        "-source-language", "en_US", "-target-language", language, *FOLDERS, "-ts",
                        f"translations/lumidex_{language}.ts"],
                       cwd=target, check=True, stderr=subprocess.DEVNULL)
    fill_in_english(target / "translations/lumidex_en_US.ts")


def texts_of(file):
    """What there is to translate: context, text, comment, and whether it goes with a number."""
    texts = set()
    for context in ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            texts.add((context.findtext("name"), message.findtext("source"), message.findtext("comment") or "",
                       message.get("numerus") == "yes"))
    return texts


def literals_of(folders):
    """What the string literals of the sources say, those side by side as one."""
    pattern = re.compile(r'"((?:[^"\\\n]|\\.)*)"(?:\s*"((?:[^"\\\n]|\\.)*)")*')
    texts = []
    for folder in folders:
        for source in sorted((ROOT / folder).rglob("*.cpp")) + sorted((ROOT / folder).rglob("*.h")):
            for found in pattern.finditer(source.read_text(encoding="utf-8")):
                texts.append("".join(re.findall(r'"((?:[^"\\\n]|\\.)*)"', found.group())).replace('\\"', '"'))
    return "\n".join(texts)


def check_causes(target):
    """The command recognises causes of the host by their English: each piece must still be said somewhere."""
    said = literals_of(["host", "platform"])
    faults = 0
    for context, source, _, _ in sorted(texts_of(target / "translations/lumidex_en_US.ts")):
        pieces = re.split(r"%\d", source) if context == "Causes" else []
        for piece in pieces:
            # A sentence may be put together of two literals.
            halves = [(piece[:at], piece[at:]) for at in range(len(piece) + 1)]
            if not any(left in said and right in said for left, right in halves):
                print(f"Causes: no longer said by the host: {piece!r} of {source!r}")
                faults += 1
    return faults


def check(target):
    faults = check_causes(target)
    for language in LANGUAGES:
        name = f"translations/lumidex_{language}.ts"
        wanted, there = texts_of(target / name), texts_of(ROOT / name)
        for word, some in (("missing", wanted - there), ("no longer used", there - wanted)):
            for context, source, comment, _ in sorted(some):
                print(f"{name}: {word}: {context}: {source!r}{f' ({comment})' if comment else ''}")
                faults += 1
    return faults


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="change nothing")
    arguments = parser.parse_args()
    lupdate = find_lupdate()
    with tempfile.TemporaryDirectory() as folder:
        target = pathlib.Path(folder)
        copy_sources(target)
        (target / "translations").mkdir()
        for file in (ROOT / "translations").glob("*.ts"):
            shutil.copy(file, target / "translations")
        update(lupdate, target)
        if arguments.check:
            faults = check(target)
            if faults:
                sys.exit(f"translations: {faults} texts are out of step; make translations takes them in")
            return
        for file in sorted((target / "translations").glob("*.ts")):
            shutil.copy(file, ROOT / "translations")
            texts = ElementTree.parse(file).getroot()
            unfinished = len(texts.findall(".//translation[@type='unfinished']"))
            print(f"{file.name}: {len(texts.findall('.//message'))} texts, {unfinished} to be translated")


if __name__ == "__main__":
    main()
