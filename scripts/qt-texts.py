#!/usr/bin/env python3
"""Takes the texts of Qt's own dialogs, menus and buttons into resources/translations/qt, as far as the desktop program can
show them. They come from Debian's package qt6-translations-l10n. To be run when that brings newer ones."""
import pathlib
import subprocess
import sys
import xml.etree.ElementTree as ET

CATALOGUES = pathlib.Path("/usr/share/qt6/translations")
LCONVERT = "/usr/lib/qt6/bin/lconvert"
TRANSLATIONS = pathlib.Path(__file__).resolve().parent.parent / "resources" / "translations"
# Error texts are left out, because they go into logs and answers that are not translated.
CONTEXTS = {
    "CloseButton",
    "QAbstractSpinBox",
    "QApplication",
    "QComboBox",
    "QCupsJobWidget",
    "QDialog",
    "QDialogButtonBox",
    "QFileDialog",
    "QFileSystemModel",
    "QGnomeTheme",
    "QLineEdit",
    "QMessageBox",
    "QPageSetupWidget",
    "QPageSize",
    "QPlatformTheme",
    "QPrintDialog",
    "QPrintPropertiesDialog",
    "QPrintPropertiesWidget",
    "QPrintSettingsOutput",
    "QPrintWidget",
    "QScrollBar",
    "QShortcut",
    "QTabBar",
    "QUnicodeControlCharacterMenu",
    "QWidgetTextControl",
}
# The names of the keys that appear in menus.
KEYS = {"Alt", "Backspace", "Ctrl", "Del", "End", "Esc", "Home", "Ins", "Left", "Right", "Shift", "Space", "Tab"}


def languages():
    """The program's code of each language that Qt has texts for, and Qt's. Qt has the Portuguese of Brazil only."""
    for line in (TRANSLATIONS / "languages.txt").read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            code, _, theirs, _ = line.split(" | ")
            if theirs != "-":
                yield code, theirs


def keep(context):
    name = context.find("name").text
    if name not in CONTEXTS:
        return False
    for message in context.findall("message"):
        source = message.find("source").text
        # A text that is equal in both languages needs no catalogue, and the box about Qt is never shown.
        is_same = message.find("translation").text == source
        is_foreign = "About Qt" in source or "C++" in source or (name == "QShortcut" and source not in KEYS)
        if is_same or is_foreign:
            context.remove(message)
    return context.find("message") is not None


def main():
    if not CATALOGUES.is_dir():
        sys.exit(f"error: there is no {CATALOGUES}: the package qt6-translations-l10n brings it")
    folder = TRANSLATIONS / "qt"
    folder.mkdir(exist_ok=True)
    for code, theirs in languages():
        if not (CATALOGUES / f"qtbase_{theirs}.qm").is_file():
            sys.exit(f"error: Qt has no catalogue {theirs} for {code}: see the head of languages.txt")
        command = [LCONVERT, "-of", "ts", "-i", CATALOGUES / f"qtbase_{theirs}.qm", "-o", "-"]
        root = ET.fromstring(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)
        for context in root.findall("context"):
            if not keep(context):
                root.remove(context)
        root.set("language", code)
        ET.indent(root, "    ")
        text = ET.tostring(root, encoding="unicode")
        head = '<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
        (folder / f"qt_{code}.ts").write_text(head + text + "\n", encoding="utf-8")


main()
