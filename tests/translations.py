#!/usr/bin/env python3
"""The translations beside their sources: up to date, complete, and fit to be filled in.

translations.py            fails on an entry that is missing, unfinished, or loses what its text carries
translations.py --update   brings the .ts files up to date with lupdate
"""
import collections
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parent.parent
LANGUAGES = ("de", "zh_CN")
# A Chinese character beside a Latin letter, a digit or a place to fill in: a space belongs between them.
CROWDED = re.compile(r"[\u4e00-\u9fff][A-Za-z0-9%]|(?:[A-Za-z0-9]|%L?[\dn])[\u4e00-\u9fff]")
# Values that devices read as they are shown, and titles of forms that nobody sees: the same in every language.
SAME = re.compile(r"[\d*]+(bit)?|[YMD/-]+|[GH]\d+\w?| kbps|https://\S+|\w+(Page|Form)")


def catalogues(part):
    folder = ROOT / part / "translations"
    files = [folder / f"{part}_{language}.ts" for language in LANGUAGES]
    return files + sorted(folder.glob("*_en.ts"))  # English has its plurals to tell


def update(part, files):
    for file in files:
        only_plurals = ["-pluralonly"] if file.stem.endswith("_en") else []
        # It complains about digits grouped by apostrophes, which hold no text.
        subprocess.run(["lupdate", "-silent", "-locations", "none", "-no-obsolete", "-I", ".", *only_plurals, part, "-ts", str(file)],
                       cwd=ROOT, check=True, stderr=subprocess.DEVNULL)


def carried(text):
    """What a translation must keep: the places to fill in."""
    return collections.Counter(re.findall(r"%L?(?:\d+|n)", text))


def faults(file):
    for context in xml.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            source, translation = message.findtext("source"), message.find("translation")
            forms = [form.text for form in translation.iter("numerusform")] or [translation.text]
            where = f"{file.name}: {context.findtext('name')}: {source!r}"
            if translation.get("type") or not all(forms):
                yield f"{where} is not translated"
            elif any(carried(form) != carried(source) for form in forms):
                yield f"{where} does not fill in the same: {forms}"
            elif SAME.fullmatch(source) and forms != [source]:
                yield f"{where} must stay as it is: {forms}"
            elif any(CROWDED.search(form) for form in forms):
                yield f"{where} needs a space: {forms}"
            elif "&" in source.replace("&&", "") and not all("&" in form for form in forms):
                yield f"{where} loses its mnemonic: {forms}"


def main():
    found = []
    for part in ("batchCfg", "clientlibs", "journal", "engine", "batch", "client"):
        files = catalogues(part)
        if "--update" in sys.argv:
            update(part, files)
            continue
        with tempfile.TemporaryDirectory() as folder:
            for file in files:
                copy = pathlib.Path(folder, file.name)
                shutil.copy(file, copy)
                update(part, [copy])
                if copy.read_text() != file.read_text():
                    found.append(f"{file.name} is not what the sources say: ./dev translations, then translate")
                found += faults(copy)
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
