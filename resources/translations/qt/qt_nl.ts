<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Left</source>
            <translation>Pijl links</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Pijl rechts</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Spatiebalk</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Note</source>
            <translation>Notitie</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>Monarch-envelop</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>Envelop You 4</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>Envelop US 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>Envelop US 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>Envelop US 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>Envelop US 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>Envelop PRC 1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>Envelop PRC 2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>Envelop PRC 3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>Envelop PRC 4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>Envelop PRC 5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>Envelop PRC 6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>Envelop PRC 7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>Envelop PRC 8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>Envelop PRC 9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>Envelop C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>DL-envelop</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>Envelop B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>Envelop B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>Envelop B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>Envelop C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>Envelop C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>Envelop C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>Envelop C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>Envelop C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>C5-envelop</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>C6-envelop</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>Envelop C7</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Aangepast</translation>
        </message>
        <message>
            <source>A4 Small</source>
            <translation>A4 klein</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>Ansichtkaart</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>Envelop Invite</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>Envelop Chou 3</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>Envelop Chou 4</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>Envelop PRC 10</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>Envelop Kaku 2</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>Envelop Kaku 3</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>Aangepast (%1in x %2in)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>Aangepast (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>Aangepast (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>Aangepast (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>Aangepast (%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>Aangepast (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>Envelop Italiaans</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>Dubbele ansichtkaart</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>Envelop Personal</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulier</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>onderrand</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>Papier</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>Papierbron:</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>rechter rand</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>Marges</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Aangepast</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>Landschap</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>Pagina-indeling</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>Breedte:</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>Oriëntatie</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>Portret</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>Paginavolgorde:</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>bovenrand</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>linker rand</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>Pagegrootte:</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>Omgekeerd portret</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>Punten (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>Pagina's per vel:</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>Omgekeerd landschap</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>Hoogte:</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>&amp;No</source>
            <translation>&amp;Nee</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>&amp;Ja</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Openen</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Opslaan</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>Afbreken</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Toepassen</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Sluiten</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>Opnieuw proberen</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>Standaard herstellen</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuleren</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>Negeren</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>Nee &amp;op alles</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>Alles opslaan</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Verwerpen</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>Ja op &amp;alles</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>Even Pages</source>
            <translation>Even pagina's</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Afdrukken</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>&amp;Opties &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>&amp;Opties &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>Links naar rechts, boven naar onder</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>Rechts naar links, onder naar boven</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>PDF-bestand schrijven</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>A&amp;fdrukken</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>Opties 'Pagina's per vel' en 'Paginaset' kunnen niet samen gebruikt worden.
Schakel een van deze opties uit.</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1 bestaat al.
Wilt u het overschrijven?</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>Links naar rechts, onder naar boven</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>Oneven pagina's</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>Lokaal bestand</translation>
        </message>
        <message>
            <source>There are conflicts in duplex settings. Do you want to fix them?</source>
            <translation>Er zijn conflicten in duplex instellingen. Wilt u ze repareren?</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>Naar bestand afdrukken (PDF)</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>Naar bestand afdrukken...</translation>
        </message>
        <message>
            <source>Invalid Pages Definition</source>
            <translation>Ongeldige paginadefinities</translation>
        </message>
        <message>
            <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
            <translation>%1 volgt niet de juiste syntaxis. Gebruik ',' om reeksen en pagina's te scheiden, '-' om reeksen te definiëren en ga na dat reeksen elkaar niet overlappen.</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>Rechts naar links, boven naar onder</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>Onder naar boven, links naar rechts</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>De 'Van'-waarde kan niet groter zijn dan de 'Naar'-waarde.</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>Alle pagina's</translation>
        </message>
        <message>
            <source>Duplex Settings Conflicts</source>
            <translation>Conflicten in duplex-instellingen</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 is een map.
Gaarne een andere bestandsnaam kiezen.</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>Bestand %1 is niet beschrijfbaar.
Gaarne een andere bestandsnaam kiezen.</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>Onder naar boven, rechts naar links</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>Boven naar onder, links naar rechts</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>Boven naar onder, rechts naar links</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>tot</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Formulier</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Geen</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Kleur</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>Alles afdrukken</translation>
        </message>
        <message>
            <source>Pages</source>
            <translation>Pagina's</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>Huidige pagina</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>Selectie</translation>
        </message>
        <message>
            <source>Long side</source>
            <translation>Lange zijde</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Kopieën</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>Afdrukbereik</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>Kleurmodus</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>Opties</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>Uitvoerinstellingen</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>Omgekeerd</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>Grijswaarden</translation>
        </message>
        <message>
            <source>Short side</source>
            <translation>Korte zijde</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>Samenstellen</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>Kopieën:</translation>
        </message>
        <message>
            <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
            <translation>Pagina's of reeksen scheiden met komma's. Reeksen worden gespecificeerd door twee getallen gescheiden door een minteken. Bijvoorbeeld: 3,5-7,9 drukt pagina's 3, 5, 6, 7 en 9 af.</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>Pagina's vanaf</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>Afdrukbereik:</translation>
        </message>
        <message>
            <source>Duplex Printing</source>
            <translation>Dubbelzijdig afdrukken</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;Save</source>
            <translation>Op&amp;slaan</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>Sl&amp;uiten</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>Sluiten zonder opslaan</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>&amp;Annuleren</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulier</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Naam:</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>&amp;Uitvoerbestand:</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>&amp;Eigenschappen</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Voorbeeld</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>Locatie:</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>End:</source>
            <translation>Einde:</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Geen</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>Schutbladen</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>'s Nachts (18:00 tot 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>Specifieke tijd</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>Rekeninginformatie:</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>Gepland afdrukken:</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>Geheim</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>Zeer geheim</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>Begin:</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>Overdag (06:00 tot 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>Tweede dienst (16:00 tot 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>Taakbesturing</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>Weekend (zaterdag en zondag)</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>Standaard</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>Geclassificeerd</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>Derde dienst (00:00 tot 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>Oneindig vasthouden</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>Onmiddellijk afdrukken</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>Vertrouwelijk</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>Taakprioriteit:</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>Niet geclassificeerd</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>Bovenaan</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>Omlaag schuiven</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>Hier schuiven</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>Naar links schuiven</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>Onderaan</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>Pagina omhoog</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>Pagina rechts</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>Omhoog schuiven</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>Naar rechts schuiven</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>Linker rand</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>Pagina omlaag</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>Pagina links</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>Rechter rand</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>Terug</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Bestand</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Openen</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>&amp;Openen</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>Op&amp;slaan</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>Station</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>Bestanden</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>Tonen </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>'%1' is beveiligd tegen schrijven.
Wilt u het toch verwijderen?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>Wilt u '%1' verwijderen?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>Lijst met plaatsen en bladwijzers</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>Bestands&amp;naam:</translation>
        </message>
        <message>
            <source>Alt+Up</source>
            <translation>Alt+Pijl omhoog</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>Bestandsmap</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Verwijderen</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>Nieuwe map</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>Map</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>Hogere map</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>&amp;Nieuwe map</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>Verwijderen</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Mijn computer</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>Zoeken in:</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>Een nieuwe map aanmaken</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>%1 bestand</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>Bestanden van type:</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>Map zoeken</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>Ver&amp;borgen bestanden tonen</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>Opslaan als</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
Map niet gevonden.
Ga na dat de juiste mapnaam is gegeven.</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>Zijbalk</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>Lijstweergave</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>&amp;Kiezen</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>Verwij&amp;deren</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>Alle bestanden (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>Alle bestanden (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>Mappen</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>He&amp;rnoemen</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>Kon map niet verwijderen.</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>Map:</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>Onbekend</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>%1 bestaat al.
Wilt u het vervangen?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>Verder</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>Ga verder</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>Ga naar de hogere map</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>Recente plaatsen</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>Ga terug</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>Naar modus detailweergave wijzigen</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>Nieuwe map aanmaken</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>Sneltoets</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>Detailweergave</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
Bestand niet gevonden.
Verifieer op juiste bestandsnaam.</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>Naar modus lijstweergave wijzigen</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Kni&amp;ppen</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Kopiëren</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>Opnie&amp;uw</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Ongedaan maken</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>P&amp;lakken</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Verwijderen</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Alles selecteren</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Kni&amp;ppen</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Kopiëren</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>Opnie&amp;uw</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Ongedaan maken</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>P&amp;lakken</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Verwijderen</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Alles selecteren</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>Koppe&amp;ling kopiëren</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulier</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>Pagina</translation>
        </message>
        <message>
            <source>There are conflicts in some options. Please fix them.</source>
            <translation>Er zijn conflicten in enkele opties. Repareer ze.</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>Geavanceerd</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>Soort</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Naam</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Grootte</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Mijn computer</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>Ongeldige bestandsnaam</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
            <translation>&lt;b&gt;De naam "%1" kan niet worden gebruikt.&lt;/b&gt;&lt;p&gt;Probeer een andere naam met minder lettertekens of zonder tekens voor punctuatie.</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>Datum gewijzigd</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>Waar</translation>
        </message>
        <message>
            <source>False</source>
            <translation>Onwaar</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>Het keuzevak met selecties openen</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Advanced Option Conflicts</source>
            <translation>Conflicten in geavanceerd opties</translation>
        </message>
        <message>
            <source>Job Options</source>
            <translation>Taakopties</translation>
        </message>
        <message>
            <source>Page Setup Conflicts</source>
            <translation>Conflicten in pagina-instelling</translation>
        </message>
        <message>
            <source>There are conflicts in some advanced options. Do you want to fix them?</source>
            <translation>Er zijn conflicten in enige geavanceerde opties. Wilt u ze repareren?</translation>
        </message>
        <message>
            <source>There are conflicts in page setup options. Do you want to fix them?</source>
            <translation>Er zijn conflicten in opties voor instellingen van pagina's. Wilt u ze repareren?</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>Printereigenschappen</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>Wat is dit?</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Show Details...</source>
            <translation>Details tonen...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>Details verbergen...</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>RLE Start of right-to-left embedding</source>
            <translation>RLE-start met rechts-naar-links inbedding</translation>
        </message>
        <message>
            <source>LRI Left-to-right isolate</source>
            <translation>LRI links-naar-rechts isoleren</translation>
        </message>
        <message>
            <source>Insert Unicode control character</source>
            <translation>Unicode control character invoegen</translation>
        </message>
        <message>
            <source>LRO Start of left-to-right override</source>
            <translation>LRO-start van links-naar-rechts vervanging</translation>
        </message>
        <message>
            <source>LRE Start of left-to-right embedding</source>
            <translation>LRE-start van links-naar-rechts inbedding</translation>
        </message>
        <message>
            <source>RLI Right-to-left isolate</source>
            <translation>RLI rechts-naar-links isoleren</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM rechts-naar-links-markering</translation>
        </message>
        <message>
            <source>PDF Pop directional formatting</source>
            <translation>PDF Pop directionele opmaak</translation>
        </message>
        <message>
            <source>RLO Start of right-to-left override</source>
            <translation>RLO-start van rechts-naar-links vervanging</translation>
        </message>
        <message>
            <source>PDI Pop directional isolate</source>
            <translation>PDI pop-directionele-isolatie</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM links-naar-rechts-markering</translation>
        </message>
        <message>
            <source>FSI First strong isolate</source>
            <translation>FSI eerste-krachtige-isolatie</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>Stap o&amp;mlaag</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>&amp;Stap omhoog</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>Alles &amp;selecteren</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>Naar links schuiven</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>Naar rechts schuiven</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>Tabblad sluiten</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>Uitvoerbaar programma '%1' vereist Qt %2, gevonden Qt %3.</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Fout met niet compatibele Qt-bibliotheek</translation>
        </message>
    </context>
</TS>
