<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Del</source>
            <translation>Entf</translation>
        </message>
        <message>
            <source>End</source>
            <translation>Ende</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>Einfg</translation>
        </message>
        <message>
            <source>Ctrl</source>
            <translation>Strg</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>Pos1</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Links</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Rechts</translation>
        </message>
        <message>
            <source>Shift</source>
            <translation>Umschalt</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Leertaste</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Rücktaste</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Envelope Monarch</source>
            <translation>Umschlag Monarch</translation>
        </message>
        <message>
            <source>Letter Small</source>
            <translation>Letter Klein</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>Umschlag You 4</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>Umschlag US 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>Umschlag US 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>Umschlag US 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>Umschlag US 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>Umschlag PRC 1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>Umschlag PRC 2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>Umschlag PRC 3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>Umschlag PRC 4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>Umschlag PRC 5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>Umschlag PRC 6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>Umschlag PRC 7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>Umschlag PRC 8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>Umschlag PRC 9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>Umschlag C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>Umschlag DL</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>Umschlag B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>Umschlag B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>Umschlag B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>Umschlag C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>Umschlag C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>Umschlag C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>Umschlag C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>Umschlag C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>Umschlag C5</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>Umschlag C6</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>Umschlag C7</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>Executive (7,5 x 10 Zoll)</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Benutzerdefiniert</translation>
        </message>
        <message>
            <source>PRC 32K Big</source>
            <translation>PRC 32K Groß</translation>
        </message>
        <message>
            <source>A4 Small</source>
            <translation>A4 Klein</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>Executive (7,25 x 10,5 Zoll)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>Postkarte</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>Umschlag Einladung</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>Umschlag Chou 3</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>Umschlag Chou 4</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>Endlosdruckpapier Deutsch (8,5 x 12 Zoll)</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>Umschlag PRC 10</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>Umschlag Kaku 2</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>Umschlag Kaku 3</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>Umschlag US 9</translation>
        </message>
        <message>
            <source>%1 x %2 in</source>
            <translation>%1 x %2 Zoll</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>Endlosdruckpapier US (14,875 x 11 Zoll)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>Endlosdruckpapier Deutsch Legal (8,5 x 13 Zoll)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>Benutzerdefiniert (%1 Zoll x %2 Zoll)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>Benutzerdefiniert (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>Benutzerdefiniert (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>Benutzerdefiniert (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>Benutzerdefiniert (%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>Benutzerdefiniert (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>Umschlag Italienisch</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>Doppelpostkarte</translation>
        </message>
        <message>
            <source>Folio (8.27 x 13 in)</source>
            <translation>Folio (8,27 x 13 Zoll)</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>Umschlag Personal</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>in</source>
            <translation>Zoll</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Formular</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>Unterer Rand</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>Papier</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>Papierquelle:</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>Rechter Rand</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>Ränder</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Benutzerdefiniert</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>Querformat</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>Seitenaufbau</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>Breite:</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>Ausrichtung</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>Hochformat</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>Reihenfolge der Seiten:</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>Oberer Rand</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>Linker Rand</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>Seitengröße:</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>Umgekehrtes Hochformat</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>Millimeter (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>Punkte (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>Seiten pro Blatt:</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>Zoll (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>Umgekehrtes Querformat</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>Höhe:</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>&amp;No</source>
            <translation>&amp;Nein</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>&amp;Ja</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Hilfe</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Öffnen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Speichern</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Anwenden</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>Zurücksetzen</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>Wiederholen</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>Voreinstellungen</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>Ignorieren</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>N&amp;ein, keine</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>Alles speichern</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Verwerfen</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>Ja, &amp;alle</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>bis</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>Aus</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Formular</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Farbe</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>Alles drucken</translation>
        </message>
        <message>
            <source>Pages</source>
            <translation>Seiten</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>Aktuelle Seite</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>Auswahl</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Anzahl Exemplare</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>Bereich drucken</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>Farbmodus</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>Optionen</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>Ausgabeeinstellungen</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>Umgekehrt</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>Graustufen</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>Sortieren</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>Anzahl Exemplare:</translation>
        </message>
        <message>
            <source>Short side binding</source>
            <translation>Kurze Seite</translation>
        </message>
        <message>
            <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
            <translation>Geben Sie die Seiten oder Bereiche durch Kommata getrennt ein. Bereiche werden durch zwei durch einen Bindestrich getrennte Zahlen festgelegt. Beispiel: 3,5-7,9 druckt die Seiten 3, 5, 6, 7 und 9.</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>Seiten von</translation>
        </message>
        <message>
            <source>Double Sided Printing</source>
            <translation>Beidseitiger Druck</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>Seiten-Satz:</translation>
        </message>
        <message>
            <source>Long side binding</source>
            <translation>Lange Seite</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;Save</source>
            <translation>S&amp;peichern</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>Schl&amp;ießen</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>Schließen ohne zu Speichern</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>&amp;Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>Formular</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>Typ:</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>Ausgabe&amp;datei:</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>&amp;Eigenschaften</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Vorschau</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Drucker</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>Standort:</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>Druckauftrag</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>Ende:</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Keine</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>Kopfseiten</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>Nachts (18:00 bis 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>Zu festgelegter Zeit</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>Rechnungsinformation:</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>Zum Drucken vorgesehen:</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>Geheim</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>Streng geheim</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>Anfang:</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>Tagsüber (06:00 bis 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>Zweite Schicht (16:00 bis 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>Einstellungen zum Druckauftrag</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>Wochenende (Samstag bis Sonntag)</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Vorgabe</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>Nicht öffentlich</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>Dritte Schicht (00:00 bis 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>Unbegrenzt vorhalten</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>Sofort ausdrucken</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>Vertraulich</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>Priorität des Druckauftrags:</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>Öffentlich</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>Anfang</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>Nach unten scrollen</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>Hierher scrollen</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>Nach links scrollen</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>Ende</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>Eine Seite nach oben</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>Eine Seite nach rechts</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>Nach oben scrollen</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>Nach rechts scrollen</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>Linker Rand</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>Eine Seite nach unten</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>Eine Seite nach links</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>Rechter Rand</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>Zurück</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Öffnen</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>&amp;Öffnen</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>S&amp;peichern</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>Dateien</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>Anzeigen </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>'%1' ist schreibgeschützt.
Möchten Sie die Datei trotzdem löschen?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>Sind Sie sicher, dass Sie '%1' löschen möchten?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>Liste der Orte und Lesezeichen</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>Datei&amp;name:</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>Neues Verzeichnis</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>Übergeordnetes Verzeichnis</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>&amp;Neues Verzeichnis</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>Suchen in:</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>Neuen Ordner erstellen</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>Dateien des Typs:</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>Verzeichnis suchen</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>&amp;Versteckte Dateien anzeigen</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>Speichern unter</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
Das Verzeichnis konnte nicht gefunden werden.
Stellen Sie sicher, dass der Verzeichnisname richtig ist.</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>Seitenleiste</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>Liste</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>&amp;Auswählen</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Löschen</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>Alle Dateien (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>Alle Dateien (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>Verzeichnisse</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Umbenennen</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>Das Verzeichnis konnte nicht gelöscht werden.</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>Verzeichnis:</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>Die Datei %1 existiert bereits.
Soll sie überschrieben werden?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>Vorwärts</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>Vor</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>Gehe zum übergeordneten Verzeichnis</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>Zuletzt besucht</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>Zurück</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>Wechsle zu Detailansicht</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>Neuen Ordner erstellen</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>Details</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
Die Datei konnte nicht gefunden werden.
Stellen Sie sicher, dass der Dateiname richtig ist.</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>Wechsle zu Listenansicht</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>&amp;Ausschneiden</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Kopieren</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>Wieder&amp;herstellen</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Rückgängig</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>Einf&amp;ügen</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Alles auswählen</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>&amp;Ausschneiden</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Kopieren</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>Wieder&amp;herstellen</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Rückgängig</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>Einf&amp;ügen</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Löschen</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Alles auswählen</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>&amp;Link-Adresse kopieren</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>Formular</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>Seite</translation>
        </message>
        <message>
            <source>There are conflicts in some options. Please fix them.</source>
            <translation>Einige Einstellungen sind widersprüchlich. Bitte korrigieren Sie diese.</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Erweitert</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>Art</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Größe</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Typ</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Mein Computer</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>Änderungsdatum</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>Wahr</translation>
        </message>
        <message>
            <source>False</source>
            <translation>Falsch</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>Öffnet das Auswahlfenster der Combobox</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>Even Pages</source>
            <translation>Gerade Seiten</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>&amp;Einstellungen &lt;&lt; </translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>&amp;Einstellungen &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>Von links nach rechts, von oben nach unten</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>Von rechts nach links, von unten nach oben</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>PDF-Datei schreiben</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>&amp;Drucken</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>Die Einstellungen "Seiten pro Blatt" und "Seiten-Satz" können nicht zusammen verwendet werden.
Bitte deaktivieren Sie eine der beiden.</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>Die Datei %1 existiert bereits.
Soll sie überschrieben werden?</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>Von links nach rechts, von unten nach oben</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>Ungerade Seiten</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>Lokale Datei</translation>
        </message>
        <message>
            <source>There are conflicts in duplex settings. Do you want to fix them?</source>
            <translation>Die Duplexeinstellungen sind widersprüchlich. Möchten Sie diese korrigieren?</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>In PDF-Datei drucken</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>In Datei drucken ...</translation>
        </message>
        <message>
            <source>Invalid Pages Definition</source>
            <translation>Ungültige Seitendefinition</translation>
        </message>
        <message>
            <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
            <translation>%1 entspricht nicht der richtigen Schreibweise. Bitte benutzen Sie ',' um Bereiche und Seitennummern voneinander abzugrenzen, '-' um Bereiche festzulegen, und stellen Sie sicher, dass sich die Bereiche nicht überschneiden.</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>Von rechts nach links, von oben nach unten</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>Von unten nach oben, von links nach rechts</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>Die Angabe für die erste Seite darf nicht größer sein als die für die letzte Seite.</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>Alle Seiten</translation>
        </message>
        <message>
            <source>Duplex Settings Conflicts</source>
            <translation>Widersprüchliche Duplexeinstellungen</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 ist ein Verzeichnis.
Bitte wählen Sie einen anderen Dateinamen.</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>Die Datei %1 ist schreibgeschützt.
Bitte wählen Sie einen anderen Dateinamen.</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>Von unten nach oben, von rechts nach links</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>Von oben nach unten, von links nach rechts</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>Von oben nach unten, von rechts nach links</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Advanced Option Conflicts</source>
            <translation>Widersprüchliche erweiterte Einstellungen</translation>
        </message>
        <message>
            <source>Job Options</source>
            <translation>Einstellungen zum Druckauftrag</translation>
        </message>
        <message>
            <source>Page Setup Conflicts</source>
            <translation>Widersprüchliche Seiteneinstellungen</translation>
        </message>
        <message>
            <source>There are conflicts in some advanced options. Do you want to fix them?</source>
            <translation>Die erweiterten Einstellungen sind widersprüchlich. Möchten Sie diese korrigieren?</translation>
        </message>
        <message>
            <source>There are conflicts in page setup options. Do you want to fix them?</source>
            <translation>Die Seiteneinstellungen sind widersprüchlich. Möchten Sie diese korrigieren?</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>Druckereigenschaften</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>Direkthilfe</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Show Details...</source>
            <translation>Details einblenden...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>Details ausblenden...</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>Insert Unicode control character</source>
            <translation>Unicode-Kontrollzeichen einfügen</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>&amp;Dekrementieren</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>&amp;Inkrementieren</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>&amp;Alles auswählen</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>Nach links scrollen</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>Nach rechts scrollen</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>Schließen</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>Die Anwendung '%1' benötigt Qt %2; es wurde aber Qt %3 gefunden.</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Die Qt-Bibliothek ist inkompatibel</translation>
        </message>
    </context>
</TS>
