<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Del</source>
            <translation>Suppr</translation>
        </message>
        <message>
            <source>End</source>
            <translation>Fin</translation>
        </message>
        <message>
            <source>Esc</source>
            <translation>Échap</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>Inser</translation>
        </message>
        <message>
            <source>Home</source>
            <translation>Début</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>Gauche</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>Droite</translation>
        </message>
        <message>
            <source>Shift</source>
            <translation>Maj</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>Espace</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Effacement</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Letter / ANSI A</source>
            <translation>Lettre / ANSI A</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>Enveloppe Monarch</translation>
        </message>
        <message>
            <source>Letter Extra</source>
            <translation>Legal Extra</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>Enveloppe You 4</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>Enveloppe US 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>Enveloppe US 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>Enveloppe US 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>Enveloppe US 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>Enveloppe PRC 1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>Enveloppe PRC 2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>Enveloppe PRC 3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>Enveloppe PRC 4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>Enveloppe PRC 5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>Enveloppe PRC 6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>Enveloppe PRC 7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>Enveloppe PRC 8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>Enveloppe PRC 9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>Enveloppe C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>Enveloppe DL</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>Enveloppe B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>Enveloppe B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>Enveloppe B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>Enveloppe C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>Enveloppe C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>Enveloppe C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>Enveloppe C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>Enveloppe C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>Enveloppe C5</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>Enveloppe C6</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>Enveloppe C7</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>Executive (7.5 x 10 po)</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personnalisée</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>Executive (7.25 x 10.5 po)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>Carte postale</translation>
        </message>
        <message>
            <source>Tabloid / ANSI B</source>
            <translation>Tabloïd / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>Enveloppe Invitation</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>Enveloppe Chou 3</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>Enveloppe Chou 4</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>Fanfold allemand (8.5 x 12 po)</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>Enveloppe PRC 10</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>Enveloppe Kaku 2</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>Enveloppe Kaku 3</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>Enveloppe US 9</translation>
        </message>
        <message>
            <source>%1 x %2 in</source>
            <translation>%1 x %2 po</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>Fanfold US (14.875 x 11 po)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>Legal Fanfold allemand (8.5 x 13 po)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>Personnalisée (%1po x %2po)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>Personnalisée (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>Personnalisée (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>Personnalisée (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>Personnalisée (%1pc  %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>Personnalisée (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Tabloid Extra</source>
            <translation>Tabloïd Extra</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>Enveloppe italienne</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>Carte postale double</translation>
        </message>
        <message>
            <source>Folio (8.27 x 13 in)</source>
            <translation>Folio (8.27 x 13 po)</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>Enveloppe Personelle</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>in</source>
            <translation>po</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Formulaire</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>marge basse</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>Papier</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>Source du papier :</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>marge droite</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>Marges</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>Personnalisée</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>Paysage</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>Mise en page</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>Largeur :</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>Ordre des pages :</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>marge haute</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>marge gauche</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>Dimensions :</translation>
        </message>
        <message>
            <source>Cicero (CC)</source>
            <translation>Cicéro (CC)</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>Portrait inversé</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>Millimètres (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>Points (pts)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>Pages par feuille :</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>Pouces (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>Paysage inversé</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>Hauteur :</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Help</source>
            <translation>Aide</translation>
        </message>
        <message>
            <source>Show Details...</source>
            <translation>Montrer les détails...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>Masquer les détails...</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>&amp;No</source>
            <translation>&amp;Non</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>&amp;Oui</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Aide</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Ouvrir</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>Abandonner</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>Appliquer</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>Réinitialiser</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>Réessayer</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>Restaurer les valeurs par défaut</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>Ignorer</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>Non à to&amp;ut</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>Tout enregistrer</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>Ne pas tenir compte</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>Oui à &amp;tout</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>Even Pages</source>
            <translation>Pages paires</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>De gauche à droite puis  de haut en bas</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>De droite à gauche puis de bas en haut</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>Imprime dans un fichier PDF</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>Im&amp;primer</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>Les options "Pages par feuille" et "Configuration de la page" ne peuvent pas être utilisées ensemble.
Veuillez désactiver l'une de ces options.</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1 existe.
Voulez-vous l'écraser ?</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>De gauche à droite puis de bas en haut</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>Pages impaires</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>Fichier local</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>Imprimer dans un fichier (PDF)</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>Imprimer dans un fichier...</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>Automatique</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>De droite à gauche puis de haut en bas</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>De bas en haut puis de gauche à droite</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>La valeur "De" ne peut pas être plus grande que la valeur "à".</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>Toutes les pages</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 est un dossier.
Veuillez choisir un nom de fichier différent.</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>Impossible d'écrire dans le fichier %1.
Veuillez choisir un nom de fichier différent.</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>De bas en haut puis de droite à gauche</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>De haut en bas puis de gauche à droite</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>De haut en bas puis de droite à gauche</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>à</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>Formulaire</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Non</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>Couleur</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>Imprimer tout</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>Page courante</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>Sélection</translation>
        </message>
        <message>
            <source>Long side</source>
            <translation>Côté long</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>Imprimer la sélection</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>Mode de couleur</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>Paramètres de sortie</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>Ordre inverse</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>Dégradé de gris</translation>
        </message>
        <message>
            <source>Short side</source>
            <translation>Côté court</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>Assembler</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>Copies :</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>Pages de</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>Configuration de la page :</translation>
        </message>
        <message>
            <source>Duplex Printing</source>
            <translation>Impression recto-verso</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Enregistrer</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>&amp;Fermer</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>Fermer sans enregistrer</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>&amp;Annuler</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulaire</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>Type :</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>&amp;Nom :</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>&amp;Fichier de sortie :</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>P&amp;ropriétés</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>Aperçu</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>Imprimante</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>Emplacement :</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>Tâche</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>Finales :</translation>
        </message>
        <message>
            <source>None</source>
            <translation>Aucun</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>Pages de garde</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>Nuit (de 18:00 à 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>Temps spécifique</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>Informations de facturation :</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>Impressions planifiées :</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>Top secret</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>Premières :</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>Jour (de 06:00 à 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>Deuxième quart (de 16:00 à 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>Contrôle des tâches</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>Week-end (de samedi à dimanche)</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>Classifié</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>Troisième quart (de 00:00 à 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>Attendre indéfiniment</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>Imprimer immédiatement</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>Confidentiel</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>Priorité de la tâche :</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>Non classifié</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>Haut</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>Défiler vers le bas</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>Défiler jusqu'ici</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>Défiler vers la gauche</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>Bas</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>Page précédente</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>Page suivante</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>Défiler vers le haut</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>Défiler vers la droite</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>Bord gauche</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>Page suivante</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>Page précédente</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>Bord droit</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>Précédent</translation>
        </message>
        <message>
            <source>File</source>
            <translation>Fichier</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>Ouvrir</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>&amp;Ouvrir</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>&amp;Enregistrer</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>Disque</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>Fichiers</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>Afficher </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>"%1" est protégé en écriture.
Voulez-vous quand même le supprimer ?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>Êtes-vous sûr de vouloir supprimer "%1" ?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>Liste des emplacements et des favoris</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>&amp;Nom de fichier :</translation>
        </message>
        <message>
            <source>Alt+Left</source>
            <translation>Alt+Gauche</translation>
        </message>
        <message>
            <source>Alt+Up</source>
            <translation>Alt+Haut</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>Dossier</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>Nouveau dossier</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>Dossier</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>Dossier parent</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>&amp;Nouveau dossier</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Poste de travail</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>Voir dans :</translation>
        </message>
        <message>
            <source>Alt+Right</source>
            <translation>Alt+Droite</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>Crée un nouveau dossier</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>Fichier %1</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>Fichiers de type :</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>Chercher dans le dossier</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>Afficher les fic&amp;hiers cachés</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>Enregistrer sous</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
Dossier introuvable.
Veuillez vérifier que le nom du dossier est correct.</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>Barre latérale</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>Vue en liste</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>&amp;Choisir</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>Suppri&amp;mer</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>Tous les fichiers (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>Tous les fichiers (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>Dossiers</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>&amp;Renommer</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>Impossible de supprimer le dossier.</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>Dossier :</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>Inconnu</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>Le fichier %1 existe déjà
Voulez-vous l'écraser ?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>Suivant</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>Va à l'élément suivant</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>Va au dossier parent</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>Emplacements récents</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>Aller à l'élément précédent</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>Affichage la vue sous forme détaillée</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>Créer un nouveau dossier</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>Raccourci</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>Vue détaillée</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
Fichier introuvable.
Veuillez vérifier que le nom du fichier est correct.</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>Affiche la vue sous forme de liste</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Co&amp;uper</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>Cop&amp;ier</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Rétablir</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Annuler</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>Co&amp;ller</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Tout sélectionner</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>Co&amp;uper</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>Cop&amp;ier</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>&amp;Rétablir</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>&amp;Annuler</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>Co&amp;ller</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Supprimer</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>Tout sélectionner</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>Copier l'adresse du &amp;lien</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>Formulaire</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>Type</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Nom</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>Taille</translation>
        </message>
        <message>
            <source>%1 GB</source>
            <translation>%1 Go</translation>
        </message>
        <message>
            <source>%1 KB</source>
            <translation>%1 Ko</translation>
        </message>
        <message>
            <source>%1 MB</source>
            <translation>%1 Mo</translation>
        </message>
        <message>
            <source>%1 TB</source>
            <translation>%1 To</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" can not be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuations marks.</source>
            <translation>&lt;b&gt;Le nom "%1" ne peut pas être utilisé.&lt;/b&gt;&lt;p&gt;Essayez un autre nom avec moins de caractères ou sans ponctuation.</translation>
        </message>
        <message>
            <source>%1 bytes</source>
            <translation>%1 octets</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>Poste de travail</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>Ordinateur</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>Nom de fichier invalide</translation>
        </message>
        <message>
            <source>%1 byte(s)</source>
            <translation>%1 octet(s)</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>Dernière modification</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>Vrai</translation>
        </message>
        <message>
            <source>False</source>
            <translation>Faux</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>Ouvrir la liste déroulante</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>Qu'est-ce que c'est ?</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>Insert Unicode control character</source>
            <translation>Insérer caractère de contrôle Unicode</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>&amp;Diminuer</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>&amp;Augmenter</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>Tout &amp;sélectionner</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>Défiler vers la gauche</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>Défiler vers la droite</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Job Options</source>
            <translation>Options de la tâche</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>Fermer l'onglet</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>L'exécutable "%1" requiert Qt %2 (Qt %3 trouvé).</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Erreur de bibliothèque Qt incompatible</translation>
        </message>
    </context>
</TS>
