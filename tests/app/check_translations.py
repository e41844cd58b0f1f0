#!/usr/bin/env python3
"""Every text that the program shows stands in every translation table, with its placeholders, and no table holds a text
that is not shown any more. In no language does the window give one letter to two controls: the Alt key would then only
move between them. Usage: check_translations.py SOURCE_FOLDER"""

import pathlib
import re
import sys
import xml.etree.ElementTree as xml

FOLDERS = ["app", "browser", "imaging", "library", "model", "platform", "weblookup"]
LITERALS = r'((?:"(?:[^"\\]|\\.)*"\s*)+)'


def texts_of_code(root):
    for folder in FOLDERS:
        for source in (root / folder).rglob("*.cpp"):
            code = source.read_text()
            for call in re.findall(r'(?:localised\(|QT_TRANSLATE_NOOP\("Velmora",)\s*' + LITERALS, code):
                text = "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', call))
                yield ("Velmora", text.replace('\\"', '"'))


def layouts(root):
    """The window and its parts, each with the name of its context."""
    for folder in FOLDERS:
        for layout in (root / folder).rglob("*.ui"):
            tree = xml.parse(layout)
            yield tree.findtext("class"), tree


def texts_of_layouts(root):
    for context, layout in layouts(root):
        for string in layout.iter("string"):
            if string.text and string.get("notr") != "true":
                yield (context, string.text)


def texts_with_letters(root):
    """The texts of the window's controls and menu titles that have a letter for the Alt key, and the keys of those
    controls whose captions have none."""
    yield from (text for text in sorted(set(texts_of_code(root))) if text[1].startswith("Alt+"))
    for context, layout in layouts(root):
        for widget in layout.iter("widget"):
            for entry in widget.findall("property"):
                text = entry.findtext("string") or ""
                if entry.get("name") in ("text", "title") and "&" in text:
                    yield (context, text)


def letters_given_twice(texts):
    letters = [letter.lower() for text in texts for letter in re.findall(r"(?:&|^Alt\+)(.)", text)]
    return sorted({letter for letter in letters if letters.count(letter) > 1})


def texts_of_table(table):
    for context in xml.parse(table).iter("context"):
        for message in context.iter("message"):
            yield (context.findtext("name"), message.findtext("source")), message.findtext("translation")


def main():
    root = pathlib.Path(sys.argv[1])
    shown = set(texts_of_code(root)) | set(texts_of_layouts(root))
    failures = [] if len(shown) > 100 else [f"only {len(shown)} texts were found in the program"]
    lettered = list(texts_with_letters(root))
    failures += [] if len(lettered) > 15 else [f"only {len(lettered)} letters were found in the window"]
    failures += [f"letter given twice: {letter}" for letter in letters_given_twice([text for _, text in lettered])]
    for table in sorted((root / "app" / "translations").glob("*.ts")):
        translated = dict(texts_of_table(table))
        for text in sorted(shown):
            translation = translated.get(text)
            if not translation:
                failures.append(f"{table.name}: no translation of {text}")
            elif translation.count("%@") != text[1].count("%@"):
                failures.append(f"{table.name}: placeholders differ in {text}")
        twice = letters_given_twice([translated.get(text) or "" for text in lettered])
        failures += [f"{table.name}: letter given twice: {letter}" for letter in twice]
        # A letter in brackets is for scripts whose own letters are on no key.
        failures += [f"{table.name}: letter in brackets: {text}" for text in sorted(translated.values()) if "(&" in text]
        failures += [f"{table.name}: not shown any more: {text}" for text in sorted(set(translated) - shown)]
    print("\n".join(failures) or f"{len(shown)} texts checked")
    return 1 if failures else 0


sys.exit(main())
