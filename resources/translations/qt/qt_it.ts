<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Del</source>
            <translation>Canc</translation>
        </message>
        <message>
            <source>End</source>
            <translation>Fine</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>↖</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Sinistra</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Destra</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Spazio</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Note</source>
            <translation>Nota</translation>
        </message>
        <message>
            <source>Letter / ANSI A</source>
            <translation>Lettera / ANSI A</translation>
        </message>
        <message>
            <source>Legal</source>
            <translation>Legale</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>Busta Monarch</translation>
        </message>
        <message>
            <source>Architect A</source>
            <translation>Architetto A</translation>
        </message>
        <message>
            <source>Architect B</source>
            <translation>Architetto B</translation>
        </message>
        <message>
            <source>Architect C</source>
            <translation>Architetto C</translation>
        </message>
        <message>
            <source>Architect D</source>
            <translation>Architetto D</translation>
        </message>
        <message>
            <source>Architect E</source>
            <translation>Architetto E</translation>
        </message>
        <message>
            <source>Letter Extra</source>
            <translation>Lettera extra</translation>
        </message>
        <message>
            <source>Letter Small</source>
            <translation>Lettera piccola</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>Busta You 4</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>Busta US 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>Busta US 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>Busta US 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>Busta US 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>Busta PRC 1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>Busta PRC 2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>Busta PRC 3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>Busta PRC 4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>Busta PRC 5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>Busta PRC 6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>Busta PRC 7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>Busta PRC 8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>Busta PRC 9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>Busta C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>Busta DL</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>Busta B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>Busta B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>Busta B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>Busta C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>Busta C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>Busta C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>Busta C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>Busta C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>Busta C5</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>Busta C6</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>Busta C7</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>Esecutivo (7.5 x 10 pollici)</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizzata</translation>
        </message>
        <message>
            <source>PRC 32K Big</source>
            <translation>PRC 32K Grande</translation>
        </message>
        <message>
            <source>A4 Small</source>
            <translation>A4 Piccolo</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>Esecutivo (7.25 x 10.5 pollici)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>Cartolina</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>Busta invito</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>Busta Chou 3</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>Busta Chou 4</translation>
        </message>
        <message>
            <source>Statement</source>
            <translation>Dichiarazione</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>Pieghevole tedesco (8.5 x 12 pollici)</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>Busta PRC 10</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>Busta Kaku 2</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>Busta Kaku 3</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>Busta US 9</translation>
        </message>
        <message>
            <source>%1 x %2 in</source>
            <translation>%1 x %2 pollici</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>Pieghevole US (14.875 x 11 pollici)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>Pieghevole tedesco legale (8.5 x 13 pollici)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>Personalizzata (%1in x %2in)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>Personalizzata (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>Personalizzata (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>Personalizzata (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>Personalizzata (%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>Personalizzata (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Letter Plus</source>
            <translation>Lettera plus</translation>
        </message>
        <message>
            <source>Tabloid Extra</source>
            <translation>Tabloid extra</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>Busta italiana</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>Cartolina doppia</translation>
        </message>
        <message>
            <source>Legal Extra</source>
            <translation>Legale extra</translation>
        </message>
        <message>
            <source>Folio (8.27 x 13 in)</source>
            <translation>Folio (8.27 x 13 pollici)</translation>
        </message>
        <message>
            <source>Ledger / ANSI B</source>
            <translation>Libro mastro / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>Busta personale</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>Form</source>
            <translation>Modulo</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>margine inferiore</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>Carta</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>Alimentazione della carta:</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>margine destro</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>Margini</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personalizzata</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>Orizzontale</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>Impaginazione</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>Larghezza:</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>Orientamento</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>Verticale</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>Ordine delle pagine:</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>margine superiore</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>margine sinistro</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>Dimensione della pagina:</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>Verticale inverso</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>Millimetri (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>Punti (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>Pagine per foglio:</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>Pollici (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>Orizzontale inverso</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>Altezza:</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Help</source>
            <translation>Aiuto</translation>
        </message>
        <message>
            <source>Show Details...</source>
            <translation>Mostra dettagli...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>Nascondi dettagli...</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>&amp;Yes</source>
            <translation>&amp;Sì</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Aiuto</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Apri</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>Interrompi</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Applica</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Chiudi</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>Ripristina</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>Riprova</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>Ripristina valori predefiniti</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>Ignora</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>N&amp;o a tutti</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>Salva tutti</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Scarta</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>Sì &amp;a tutti</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>Even Pages</source>
            <translation>Pagine pari</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>&amp;Opzioni &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>&amp;Opzioni &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>Da sinistra a destra, dall'alto verso il basso</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>Da destra a sinistra, dal basso verso l'alto</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>Scrivi file PDF</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>Stam&amp;pa</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>Le opzioni 'pagine per foglio' e 'insieme di pagine' non possono essere utilizzate insieme.
Disattiva una di queste opzioni.</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1 esiste già.
Vuoi sostituirlo?</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>Da sinistra a destra, dal basso verso l'alto</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>Pagine dispari</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>File locale</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>Stampa su file (PDF)</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>Stampa su file...</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>Automatico</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>Da destra a sinistra, dall'alto verso il basso</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>Dal basso verso l'alto, da sinistra a destra</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>Il valore di "Da" non può essere maggiore del valore di "A".</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>Tutte le pagine</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 è una cartella.
Seleziona un nome diverso per il file.</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>Il file %1 non è scrivibile.
Seleziona un nome diverso per il file.</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>Dal basso verso l'alto, da destra a sinistra</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>Dall'alto verso il basso, da sinistra a destra</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>Dall'alto verso il basso, da destra a sinistra</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>a</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Modulo</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nessuno</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Colore</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>Stampa tutto</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>Pagina corrente</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>Selezione</translation>
        </message>
        <message>
            <source>Long side</source>
            <translation>Lato lungo</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>Copie</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>Stampa intervallo</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>Modalità colore</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>Opzioni</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>Impostazioni di uscita</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>Ordine inverso</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>Scala di grigi</translation>
        </message>
        <message>
            <source>Short side</source>
            <translation>Lato corto</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>Fascicola</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>Copie:</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>Pagine da</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>Insieme di pagine:</translation>
        </message>
        <message>
            <source>Duplex Printing</source>
            <translation>Stampa fronte/retro</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Salva</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Chiudi</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>Chiudi senza salvare</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>&amp;Annulla</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>Modulo</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>Tipo:</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Nome:</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>&amp;File di output:</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>P&amp;roprietà</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Anteprima</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Stampante</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>Posizione:</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>Processo</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>Fine:</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Nessuno</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>Pagine di separazione</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>Notte (dalle 18:00 alle 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>Orario specifico</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>Informazioni di resoconto:</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>Pianificazione della stampa:</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>Segreto</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>Segretissimo</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>Inizio:</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>Giorno (dalle 06:00 alle 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>Secondo turno (dalle 16:00 alle 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>Controllo del processo</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>Finesettimana (da sabato a domenica)</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>Classificato</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>Terzo turno (dalle 00:00 alle 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>Trattieni indefinitamente</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>Stampa immediatamente</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>Confidenziale</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>Priorità del processo:</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>Non classificato</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>Cima</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>Scorri in basso</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>Scorri qui</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>Scorri a sinistra</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>Fondo</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>Pagina su</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>Pagina a destra</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>Scorri in alto</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>Scorri a destra</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>Margine sinistro</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>Pagina giù</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>Pagina a sinistra</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>Margine destro</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>Indietro</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Apri</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>&amp;Apri</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Salva</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>Unità</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>File</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>Mostra </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>'%1' è protetto da scrittura.
Vuoi eliminarlo comunque?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>Sei sicuro di voler eliminare '%1'?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>Lista di risorse e segnalibri</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>&amp;Nome del file:</translation>
        </message>
        <message>
            <source>Alt+Left</source>
            <translation>Alt+Sinistra</translation>
        </message>
        <message>
            <source>Alt+Up</source>
            <translation>Alt+Su</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>Cartella di file</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Elimina</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>Nuova cartella</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>Cartella</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>Cartella superiore</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>&amp;Nuova cartella</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>Elimina</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Il mio computer</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>Cerca in:</translation>
        </message>
        <message>
            <source>Alt+Right</source>
            <translation>Alt+Destra</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>Crea una nuova cartella</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>File %1</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>File di tipo:</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>Trova cartella</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>Mostra i &amp;file nascosti</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>Salva come</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
Cartella non trovata.
Verifica che sia stato inserito il nome corretto della cartella.</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>Barra laterale</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>Vista a elenco</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>S&amp;cegli</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>&amp;Elimina</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>Tutti i file (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>Tutti i file (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>Cartelle</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Rinomina</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>Impossibile rimuovere la cartella.</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>Cartella:</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>Sconosciuto</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>%1 esiste già.
Vuoi sostituirlo?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>Vai avanti</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>Avanti</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>Vai alla cartella superiore</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>Risorse recenti</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>Vai indietro</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>Passa alla modalità vista dettagliata</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>Crea nuova cartella</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>Scorciatoia</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>Vista dettagliata</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
File non trovato.
Verifica che sia stato inserito il nome corretto del file.</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>Passa alla modalità vista a elenco</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>&amp;Taglia</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Copia</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Rifai</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>Ann&amp;ulla</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>&amp;Incolla</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Elimina</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Seleziona tutto</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>&amp;Taglia</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>&amp;Copia</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Rifai</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>Ann&amp;ulla</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>&amp;Incolla</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Elimina</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Seleziona tutto</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>Copia il co&amp;llegamento</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>Modulo</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>Pagina</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nome</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Dimensione</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>Tipo</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" can not be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuations marks.</source>
            <translation>&lt;b&gt;Il nome "%1" non può essere usato.&lt;/b&gt;&lt;p&gt;Prova ad utilizzare un altro nome, con meno caratteri o senza punteggiatura.</translation>
        </message>
        <message>
            <source>%1 bytes</source>
            <translation>%1 byte</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Il mio computer</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>Nome del file non valido</translation>
        </message>
        <message>
            <source>%1 byte(s)</source>
            <translation>%1 byte</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>Data di modifica</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>Vero</translation>
        </message>
        <message>
            <source>False</source>
            <translation>Falso</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>Apri il menu a tendina</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>Che cos'è?</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>RLE Start of right-to-left embedding</source>
            <translation>RLE inizio incorporamento da destra a sinistra</translation>
        </message>
        <message>
            <source>ZWSP Zero width space</source>
            <translation>ZWSP spazio di ampiezza zero</translation>
        </message>
        <message>
            <source>LRI Left-to-right isolate</source>
            <translation>LRI Isolato da sinistra a destra</translation>
        </message>
        <message>
            <source>Insert Unicode control character</source>
            <translation>Inserisci carattere di controllo Unicode</translation>
        </message>
        <message>
            <source>LRO Start of left-to-right override</source>
            <translation>LRO inizio forzatura da sinistra a destra</translation>
        </message>
        <message>
            <source>LRE Start of left-to-right embedding</source>
            <translation>LRE inizio incorporamento da sinistra a destra</translation>
        </message>
        <message>
            <source>RLI Right-to-left isolate</source>
            <translation>RLI Isolato da destra a sinistra</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM indicatore di direzione da destra a sinistra</translation>
        </message>
        <message>
            <source>PDF Pop directional formatting</source>
            <translation>PDF ripristina impostazioni di direzione del testo</translation>
        </message>
        <message>
            <source>ZWNJ Zero width non-joiner</source>
            <translation>ZWNJ carattere non congiungente di ampiezza zero</translation>
        </message>
        <message>
            <source>RLO Start of right-to-left override</source>
            <translation>RLO inizio forzatura da destra a sinistra</translation>
        </message>
        <message>
            <source>ZWJ Zero width joiner</source>
            <translation>ZWJ carattere congiungente di ampiezza zero</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM indicatore di direzione da sinistra a destra</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>&amp;Diminuisci</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>&amp;Aumenta</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>&amp;Seleziona tutto</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>Scorri a sinistra</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>Scorri a destra</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Job Options</source>
            <translation>Opzioni del processo</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>Proprietà della stampante</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>Chiudi scheda</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>L'eseguibile '%1' richiede Qt %2, trovata Qt %3.</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Errore: libreria Qt non compatibile</translation>
        </message>
    </context>
</TS>
