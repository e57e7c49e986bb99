#!/usr/bin/env python3
"""Compares every text of the catalogues with its source: nothing unfinished, the same placeholders, tags, blanks at the
ends, line breaks, and what users type (options, the program's name, commands in quotes), and no Chinese where it does not
belong."""
import pathlib
import re
import sys
import xml.etree.ElementTree as ET

CHINESE = re.compile(r"[\u4e00-\u9fff]")


def marks(text):
    return sorted(re.findall(r"%L?\d+|%n", text))


def tags(text):
    return sorted(re.findall(r"</?[a-z0-9]+[^>]*>", text))


def options(text):
    return sorted(re.findall(r"(?<![\w-])--[a-z-]+", text))


def typed(text):
    """What a user types: the program's name, and commands in quotes."""
    return re.findall(r"quorvex-cli|(?<=')(?:wipe|trash|reports|check|disks|methods|doctor)(?: [a-z]+)*(?=')", text)


def ends(text):
    return len(text) - len(text.lstrip()), len(text) - len(text.rstrip())


def faults(source, message, language):
    if language == "zh_CN" and CHINESE.search(source):
        return
    translation = message.find("translation")
    text = translation.text or ""
    if translation.get("type") is not None or not text:
        yield "unfinished"
        return
    for what, measure in (
        ("placeholders", marks),
        ("tags", tags),
        ("options", options),
        ("blanks at the ends", ends),
        ("line breaks", lambda t: t.count("\n")),
    ):
        if measure(source) != measure(text):
            yield what
    # Languages have quotes of their own.
    if any(name not in text for name in typed(source)):
        yield "names to be typed"
    if not language.startswith(("ja", "zh")) and CHINESE.search(text):
        yield "Chinese"


def main():
    folder = pathlib.Path(__file__).resolve().parent.parent / "resources" / "translations"
    lines = (folder / "languages.txt").read_text(encoding="utf-8").splitlines()
    languages = [line.split(" | ")[0] for line in lines if line and not line.startswith("#")]
    found = 0
    texts = 0
    for language in sorted(languages):
        path = folder / f"quorvex_{language}.ts"
        for context in ET.parse(path).getroot().findall("context"):
            for message in context.findall("message"):
                texts += 1
                source = message.find("source").text or ""
                for fault in faults(source, message, language):
                    found += 1
                    print(f"{path.name}: {context.find('name').text}: {source!r}: {fault}")
    if texts == 0:
        sys.exit("error: there are no catalogues")
    if found:
        sys.exit(f"error: {found} faults in the catalogues")
    print(f"{texts} texts compared.")


main()
