#!/usr/bin/env python3
"""Every text that the program shows stands in every translation table, with its placeholders and with the
quotes, dots and spaces of its language, and no table holds a text that is not shown any more. In no language
does the window, or a menu, give one letter to two controls: the Alt key would then only move between them.
Usage: check_translations.py SOURCE_FOLDER"""

import pathlib
import re
import sys
import xml.etree.ElementTree as xml

FOLDERS = ["app", "browser", "imaging", "library", "model", "platform", "weblookup"]
LANGUAGES = ["de", "en", "es", "fr", "it", "ja", "zh_CN"]
PLURAL_FORMS = {"ja": 1, "zh_CN": 1}  # two in the others
# Their own letters are on no key, so that their captions have a Latin one in brackets.
SCRIPTS_WITHOUT_KEYS = ["ja", "zh_CN"]
# What is not written so in the language: signs of a typewriter, French signs that a line's end could part
# from their word, half-width signs at full-width letters.
WRONG_SIGNS = {"de": r'["\']', "es": r'["\']', "fr": r'["\']| [:;!?»]|« ', "it": r'["\']',
               "ja": r'["\']|[ぁ-鿿][,.;!?]', "zh_CN": r'["\']|[一-鿿][,.:;!?]'}
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
    """The texts of the window's controls and menu titles that have a letter for the Alt key, and the keys of
    those controls whose captions have none."""
    yield from (text for text in sorted(set(texts_of_code(root))) if text[1].startswith("Alt+"))
    for context, layout in layouts(root):
        for widget in layout.iter("widget"):
            for entry in widget.findall("property"):
                text = entry.findtext("string") or ""
                if entry.get("name") in ("text", "title") and "&" in text:
                    yield (context, text)


def menus(root):
    """The texts of each menu's commands that have a letter."""
    for context, layout in layouts(root):
        texts = {action.get("name"): entry.findtext("string") for action in layout.iter("action")
                 for entry in action.findall("property") if entry.get("name") == "text"}
        for widget in layout.iter("widget"):
            if widget.get("class") == "QMenu":
                commands = [texts.get(command.get("name")) or "" for command in widget.findall("addaction")]
                yield [(context, text) for text in commands if "&" in text]


def letters_given_twice(texts):
    letters = [letter.lower() for text in texts for letter in re.findall(r"(?:&|^Alt\+)(.)", text)]
    return sorted({letter for letter in letters if letters.count(letter) > 1})


class Table:
    """A translation table: each text with its forms, one but for plurals."""

    def __init__(self, path):
        self.name = path.name
        self.language = path.stem.removeprefix("velmora_")
        self.forms = {}
        self.unfinished = []
        for context in xml.parse(path).iter("context"):
            for message in context.iter("message"):
                text = (context.findtext("name"), message.findtext("source"))
                translation = message.find("translation")
                plurals = [form.text or "" for form in translation.iter("numerusform")]
                self.forms[text] = plurals or [translation.text or ""]
                if translation.get("type"):
                    self.unfinished.append(text)

    def letters(self, texts):
        return [self.forms.get(text, [""])[0] for text in texts]


def wrong_translations(table, text, is_plural):
    forms = table.forms.get(text, [""])
    if not all(forms):
        return [f"no translation of {text}"]
    wrong = []
    if len(forms) != (PLURAL_FORMS.get(table.language, 2) if is_plural else 1):
        wrong.append(f"{len(forms)} forms of {text}")
    for mark in ("%@", "%1", "%2"):
        if any(form.count(mark) != text[1].count(mark) for form in forms):
            wrong.append(f"placeholders differ in {text}")
    if any(re.search(WRONG_SIGNS.get(table.language, "(?!)"), form) for form in forms):
        wrong.append(f"signs of another language in {text}")
    if any("..." in form for form in forms) and "..." not in text[1]:
        wrong.append(f"three dots for an ellipsis in {text}")
    # A single one may be a word.
    if is_plural and "%Ln" not in forms[-1]:
        wrong.append(f"no number in {text}")
    has_letter = "&" in text[1].replace("&&", "")
    if table.language in SCRIPTS_WITHOUT_KEYS and has_letter and not re.search(r"\(&[A-Z]\)", forms[0]):
        wrong.append(f"no letter in brackets: {text}")
    if table.language not in SCRIPTS_WITHOUT_KEYS and "(&" in forms[0]:
        wrong.append(f"letter in brackets: {text}")
    return wrong


def wrong_in_table(table, shown, lettered):
    wrong = [f"unfinished: {text}" for text in table.unfinished]
    for text in sorted(shown):
        is_plural = "%Ln" in text[1]
        if is_plural or table.language != "en":  # whose table has plurals alone
            wrong += wrong_translations(table, text, is_plural)
    for group in lettered:
        if table.language != "en":
            wrong += [f"letter given twice: {letter}" for letter in letters_given_twice(table.letters(group))]
    wrong += [f"not shown any more: {text}" for text in sorted(set(table.forms) - shown)]
    return [f"{table.name}: {what}" for what in wrong]


def main():
    root = pathlib.Path(sys.argv[1])
    shown = set(texts_of_code(root)) | set(texts_of_layouts(root))
    failures = [] if len(shown) > 100 else [f"only {len(shown)} texts were found in the program"]
    window = list(texts_with_letters(root))
    failures += [] if len(window) > 15 else [f"only {len(window)} letters were found in the window"]
    lettered = [window, *menus(root)]
    failures += [] if len(lettered) > 4 else [f"only {len(lettered) - 1} menus were found"]
    for group in lettered:
        failures += [f"letter given twice: {letter}"
                     for letter in letters_given_twice([text for _, text in group])]
    for language in LANGUAGES:
        table = Table(root / "app" / "translations" / f"velmora_{language}.ts")
        failures += wrong_in_table(table, shown, lettered)
    print("\n".join(failures) or f"{len(shown)} texts checked in {len(LANGUAGES)} languages")
    return 1 if failures else 0


sys.exit(main())
