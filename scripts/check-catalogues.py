#!/usr/bin/env python3
"""Checks the translations: every text of the program is there, finished, and nothing else; no placeholder, keyboard
shortcut or trailing blank got lost. check-catalogues.py LUPDATE"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

TREE = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ["app", "locale", "ui", "update"]


def messages(catalogue):
    """(context, source, disambiguation) -> the element of the translation"""
    found = {}
    for context in ElementTree.parse(catalogue).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"), message.findtext("comment"))
            found[key] = message.find("translation")
    return found


def texts_of_the_program(lupdate, catalogue):
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / "texts.ts"
        shutil.copy(catalogue, copy)
        subprocess.run([lupdate, "-silent", "-no-obsolete", *FOLDERS, "-ts", copy],
                       check=True, cwd=TREE, stderr=subprocess.DEVNULL)
        return set(messages(copy))


def complaints(source, translation):
    if translation.get("type"):
        yield translation.get("type")
    text = translation.text or ""
    if not text.strip():
        yield "empty"
    if sorted(re.findall(r"%\d", source)) != sorted(re.findall(r"%\d", text)):
        yield "placeholders differ"
    if ("&" in source) != ("&" in text):
        yield "keyboard shortcut differs"
    if source.endswith(" ") != text.endswith(" "):
        yield "trailing blank differs"


def main():
    catalogues = sorted(TREE.glob("translations/orvanta-*.ts"))
    failures = [] if len(catalogues) == 10 else [f"{len(catalogues)} catalogues instead of 10"]
    for catalogue in catalogues:
        translated = messages(catalogue)
        texts = texts_of_the_program(sys.argv[1], catalogue)
        if len(texts) < 40:
            failures.append(f"only {len(texts)} texts were found in the program")
        failures += [f"{catalogue.name}: missing: {key}" for key in texts - set(translated)]
        failures += [f"{catalogue.name}: obsolete: {key}" for key in set(translated) - texts]
        for key, translation in translated.items():
            failures += [f"{catalogue.name}: {complaint}: {key}" for complaint in complaints(key[1], translation)]
    print("\n".join(failures))
    return 1 if failures else 0


sys.exit(main())
