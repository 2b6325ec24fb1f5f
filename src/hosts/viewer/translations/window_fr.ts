<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>Show all rows and first columns, and forget how these sources were seen last; bookmarks and notes stay</source>
        <translation>Montrer toutes les lignes et les colonnes du début, et oublier comment ces sources étaient présentées ; les signets et les notes restent</translation>
    </message>
    <message>
        <source>Start &amp;Afresh</source>
        <translation>Recommencer à &amp;neuf</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>A&amp;ller</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;ltre</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>&amp;Uniquement</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Masquer</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>T&amp;imes</source>
        <translation>&amp;Heures</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thème</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>Lan&amp;gue</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Open Files...</source>
        <translation>&amp;Ouvrir des fichiers...</translation>
    </message>
    <message>
        <source>Add logs, trace databases or cabinets to what is on show</source>
        <translation>Ajouter des journaux, des bases de données de traces ou des fichiers CAB à ce qui est affiché</translation>
    </message>
    <message>
        <source>Open &amp;Folder...</source>
        <translation>Ouvrir un &amp;dossier...</translation>
    </message>
    <message>
        <source>Add all logs of a folder to what is on show</source>
        <translation>Ajouter tous les journaux d&apos;un dossier à ce qui est affiché</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Write the rows on show to a file: CSV, JSON or text</source>
        <translation>Écrire les lignes affichées dans un fichier&#xa0;: CSV, JSON ou texte</translation>
    </message>
    <message>
        <source>&amp;Stop Reading</source>
        <translation>&amp;Arrêter la lecture</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Close the viewer</source>
        <translation>Fermer la visionneuse</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the selected rows as they are shown, one line each</source>
        <translation>Copier les lignes sélectionnées telles qu&apos;elles sont affichées, une ligne de texte pour chacune</translation>
    </message>
    <message>
        <source>Copy &amp;Lines</source>
        <translation>Copier les &amp;lignes brutes</translation>
    </message>
    <message>
        <source>Copy the lines of the selected rows as they stand in their files</source>
        <translation>Copier les lignes sélectionnées telles qu&apos;elles figurent dans leurs fichiers</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>Copier en CS&amp;V</translation>
    </message>
    <message>
        <source>Copy the selected rows with their headers, for a spreadsheet</source>
        <translation>Copier les lignes sélectionnées avec leurs en-têtes, pour un tableur</translation>
    </message>
    <message>
        <source>Copy Val&amp;ue</source>
        <translation>Copier la val&amp;eur</translation>
    </message>
    <message>
        <source>Copy the field or the part of the trace that is selected in the details</source>
        <translation>Copier le champ ou la partie de la trace sélectionnée dans les détails</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select every row on show</source>
        <translation>Sélectionner toutes les lignes affichées</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>Si&amp;gnet</translation>
    </message>
    <message>
        <source>Set a bookmark on the current row, or take it away</source>
        <translation>Poser un signet sur la ligne active ou l&apos;enlever</translation>
    </message>
    <message>
        <source>&amp;Note...</source>
        <translation>&amp;Note...</translation>
    </message>
    <message>
        <source>Keep a text with the current row, in a file beside its log</source>
        <translation>Garder un texte avec la ligne active, dans un fichier à côté de son journal</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>&amp;Effacer les signets</translation>
    </message>
    <message>
        <source>Take every bookmark away; notes stay</source>
        <translation>Enlever tous les signets&#xa0;; les notes restent</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Rechercher...</translation>
    </message>
    <message>
        <source>Look for a text in the rows on show</source>
        <translation>Rechercher un texte dans les lignes affichées</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Rechercher le &amp;suivant</translation>
    </message>
    <message>
        <source>Go to the next hit</source>
        <translation>Aller à la correspondance suivante</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <source>Go to the hit before</source>
        <translation>Aller à la correspondance précédente</translation>
    </message>
    <message>
        <source>&amp;Keep Text Marked</source>
        <translation>&amp;Garder le texte marqué</translation>
    </message>
    <message>
        <source>Mark the text that is looked for in a colour of its own from now on</source>
        <translation>Marquer désormais le texte recherché d&apos;une couleur à lui</translation>
    </message>
    <message>
        <source>Next &amp;Error</source>
        <translation>&amp;Erreur suivante</translation>
    </message>
    <message>
        <source>Go to the next row of an error</source>
        <translation>Aller à la prochaine ligne d&apos;erreur</translation>
    </message>
    <message>
        <source>Pre&amp;vious Error</source>
        <translation>Erreur précé&amp;dente</translation>
    </message>
    <message>
        <source>Go to the row of an error before</source>
        <translation>Aller à la ligne d&apos;erreur précédente</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>Proc&amp;hain avertissement</translation>
    </message>
    <message>
        <source>Go to the next row of a warning</source>
        <translation>Aller à la prochaine ligne d&apos;avertissement</translation>
    </message>
    <message>
        <source>Previous W&amp;arning</source>
        <translation>&amp;Avertissement précédent</translation>
    </message>
    <message>
        <source>Go to the row of a warning before</source>
        <translation>Aller à la ligne d&apos;avertissement précédente</translation>
    </message>
    <message>
        <source>&amp;Time...</source>
        <translation>&amp;Heure...</translation>
    </message>
    <message>
        <source>Go to the rows of a time</source>
        <translation>Aller aux lignes d&apos;une heure</translation>
    </message>
    <message>
        <source>Next Bookma&amp;rk</source>
        <translation>Signet suiva&amp;nt</translation>
    </message>
    <message>
        <source>Go to the next row with a bookmark or a note</source>
        <translation>Aller à la prochaine ligne avec un signet ou une note</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>Signet précé&amp;dent</translation>
    </message>
    <message>
        <source>Go to the row with a bookmark or a note before</source>
        <translation>Aller à la ligne précédente avec un signet ou une note</translation>
    </message>
    <message>
        <source>&amp;Bookmarks and Notes...</source>
        <translation>&amp;Signets et notes...</translation>
    </message>
    <message>
        <source>List all bookmarks and notes, to go to one</source>
        <translation>Énumérer les signets et les notes pour aller à l&apos;un d&apos;eux</translation>
    </message>
    <message>
        <source>&amp;Texts...</source>
        <translation>&amp;Textes...</translation>
    </message>
    <message>
        <source>Show rows that have a text, or that have it not</source>
        <translation>Afficher les lignes qui contiennent un texte, ou qui ne le contiennent pas</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>&amp;Afficher toutes les lignes</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>Supprimer le filtre</translation>
    </message>
    <message>
        <source>&amp;Macro Traces...</source>
        <translation>&amp;Macro-traces...</translation>
    </message>
    <message>
        <source>Show what a macro trace of the opened databases turned on</source>
        <translation>Afficher ce qu&apos;une macro-trace des bases de données ouvertes a activé</translation>
    </message>
    <message>
        <source>Sa&amp;ved Filters...</source>
        <translation>Filtres e&amp;nregistrés...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name</source>
        <translation>Prendre un filtre enregistré sous un nom</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>&amp;Enregistrer le filtre...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>Enregistrer le filtre sous un nom, dans un fichier que d&apos;autres peuvent ouvrir</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>Ou&amp;vrir un fichier de filtre...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>Prendre un filtre dans un fichier reçu</translation>
    </message>
    <message>
        <source>&amp;Narrow Times</source>
        <translation>&amp;Resserrer la période</translation>
    </message>
    <message>
        <source>Show half of the time, around the current row</source>
        <translation>Afficher la moitié de la période, autour de la ligne active</translation>
    </message>
    <message>
        <source>&amp;Widen Times</source>
        <translation>&amp;Élargir la période</translation>
    </message>
    <message>
        <source>Show twice the time, around the current row</source>
        <translation>Afficher le double de la période, autour de la ligne active</translation>
    </message>
    <message>
        <source>All T&amp;imes</source>
        <translation>Toute la pér&amp;iode</translation>
    </message>
    <message>
        <source>Show rows of all times</source>
        <translation>Afficher les lignes de toutes les heures</translation>
    </message>
    <message>
        <source>This &amp;Process</source>
        <translation>Ce &amp;processus</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s process alone</source>
        <translation>Afficher uniquement les lignes du processus de la ligne active</translation>
    </message>
    <message>
        <source>This &amp;Component</source>
        <translation>Ce &amp;composant</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s component alone</source>
        <translation>Afficher uniquement les lignes du composant de la ligne active</translation>
    </message>
    <message>
        <source>This &amp;Source</source>
        <translation>Cette &amp;source</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s source alone</source>
        <translation>Afficher uniquement les lignes de la source de la ligne active</translation>
    </message>
    <message>
        <source>This &amp;Level</source>
        <translation>Ce &amp;niveau</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s level alone</source>
        <translation>Afficher uniquement les lignes du niveau de la ligne active</translation>
    </message>
    <message>
        <source>This C&amp;all</source>
        <translation>Cet &amp;appel</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s call alone, in all processes</source>
        <translation>Afficher uniquement les lignes de l&apos;appel de la ligne active, dans tous les processus</translation>
    </message>
    <message>
        <source>This P&amp;ort</source>
        <translation>Ce p&amp;ort</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s port alone</source>
        <translation>Afficher uniquement les lignes du port de la ligne active</translation>
    </message>
    <message>
        <source>This &amp;Thread</source>
        <translation>Ce &amp;thread</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s thread alone</source>
        <translation>Afficher uniquement les lignes du thread de la ligne active</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s process</source>
        <translation>Masquer les lignes du processus de la ligne active</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s component</source>
        <translation>Masquer les lignes du composant de la ligne active</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s source</source>
        <translation>Masquer les lignes de la source de la ligne active</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s level</source>
        <translation>Masquer les lignes du niveau de la ligne active</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Valeurs</translation>
    </message>
    <message>
        <source>Show the values of processes, components, sources and levels beside the rows</source>
        <translation>Afficher à côté des lignes les valeurs des processus, composants, sources et niveaux</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>Show all of the current row below the rows</source>
        <translation>Afficher tout le contenu de la ligne active sous les lignes</translation>
    </message>
    <message>
        <source>C&amp;alls</source>
        <translation>&amp;Appels</translation>
    </message>
    <message>
        <source>List the calls of the rows on show below them</source>
        <translation>Énumérer les appels sous les lignes affichées</translation>
    </message>
    <message>
        <source>T&amp;his Call</source>
        <translation>&amp;Cet appel</translation>
    </message>
    <message>
        <source>Show the lines of the current row&apos;s call over time, in all processes</source>
        <translation>Afficher dans le temps les lignes de l&apos;appel de la ligne active, dans tous les processus</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>Autre &amp;volet</translation>
    </message>
    <message>
        <source>Go from the rows to the values, or back</source>
        <translation>Aller des lignes aux valeurs, ou revenir</translation>
    </message>
    <message>
        <source>&amp;Follow</source>
        <translation>&amp;Suivre</translation>
    </message>
    <message>
        <source>Show rows that come to the logs as they grow, and keep the end in sight</source>
        <translation>Afficher les lignes qui arrivent dans les journaux et garder la fin en vue</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Colonnes...</translation>
    </message>
    <message>
        <source>Show or hide columns of the table</source>
        <translation>Afficher ou masquer des colonnes du tableau</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>Texte plus &amp;grand</translation>
    </message>
    <message>
        <source>Show rows in larger letters</source>
        <translation>Afficher les lignes en plus gros caractères</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>Texte plus &amp;petit</translation>
    </message>
    <message>
        <source>Show rows in smaller letters</source>
        <translation>Afficher les lignes en plus petits caractères</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>Texte &amp;normal</translation>
    </message>
    <message>
        <source>Show rows in letters of the usual size</source>
        <translation>Afficher les lignes en caractères de taille habituelle</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;Horloge</translation>
    </message>
    <message>
        <source>Show when each row was written</source>
        <translation>Afficher quand chaque ligne a été écrite</translation>
    </message>
    <message>
        <source>Since Row &amp;Before</source>
        <translation>Depuis la ligne &amp;précédente</translation>
    </message>
    <message>
        <source>Show how long after the row above each row was written</source>
        <translation>Afficher combien de temps après la ligne du dessus chaque ligne a été écrite</translation>
    </message>
    <message>
        <source>Since &amp;Marked Row</source>
        <translation>Depuis la ligne &amp;marquée</translation>
    </message>
    <message>
        <source>Show how long before or after the marked row each row was written</source>
        <translation>Afficher combien de temps avant ou après la ligne marquée chaque ligne a été écrite</translation>
    </message>
    <message>
        <source>Mar&amp;k This Row</source>
        <translation>Mar&amp;quer cette ligne</translation>
    </message>
    <message>
        <source>Tell times from the current row</source>
        <translation>Donner les temps à partir de la ligne active</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>Light or dark as the desktop is</source>
        <translation>Clair ou sombre, selon le bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>Dark letters on a light ground</source>
        <translation>Caractères sombres sur fond clair</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>Light letters on a dark ground</source>
        <translation>Caractères clairs sur fond sombre</translation>
    </message>
    <message>
        <source>Show all texts of the window in this language</source>
        <translation>Afficher tous les textes de la fenêtre dans cette langue</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos...</translation>
    </message>
    <message>
        <source>Tell the version</source>
        <translation>Indiquer la version</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Rubriques d&apos;aide</translation>
    </message>
    <message>
        <source>Open the manual at the page of the viewer</source>
        <translation>Ouvrir le manuel à la page de la visionneuse</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>Show every key of the viewer</source>
        <translation>Montrer toutes les touches de la visionneuse</translation>
    </message>
    <message>
        <source>End what is being opened, read, copied or exported; the rows so far stay</source>
        <translation>Mettre fin à l&apos;ouverture, à la lecture, à la copie ou à l&apos;export&#xa0;; les lignes déjà lues restent</translation>
    </message>
</context>
<context>
    <name>FileTarget</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 ne peut pas être écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>FilterTexts</name>
    <message>
        <source>&quot;%1&quot; of a filter is of another kind</source>
        <translation>«&#xa0;%1&#xa0;» d&apos;un filtre est d&apos;un autre type</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot; to filter by</source>
        <translation>il n&apos;y a pas de colonne «&#xa0;%1&#xa0;» pour filtrer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a filter is no time</source>
        <translation>«&#xa0;%1&#xa0;» d&apos;un filtre n&apos;est pas une heure</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular expression: %2</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une expression régulière&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help - Orvan Diagnostic Tool</source>
        <translation>Aide - Outil de diagnostic Orvan</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Effet</translation>
    </message>
</context>
<context>
    <name>NoteTexts</name>
    <message>
        <source>a note is no object</source>
        <translation>une note n&apos;est pas un objet</translation>
    </message>
    <message>
        <source>a note has no bookmark or text</source>
        <translation>une note n&apos;a pas de signet ou de texte</translation>
    </message>
    <message>
        <source>it is none of notes</source>
        <translation>ce n&apos;est pas un fichier de notes</translation>
    </message>
    <message>
        <source>it has no version</source>
        <translation>il n&apos;a pas de version</translation>
    </message>
    <message>
        <source>it has no notes</source>
        <translation>il n&apos;a pas de notes</translation>
    </message>
</context>
<context>
    <name>NotesFile</name>
    <message>
        <source>The notes in %1 can&apos;t be read, and stay as they are: %2</source>
        <translation>Les notes de %1 ne peuvent pas être lues et restent telles quelles&#xa0;: %2</translation>
    </message>
    <message>
        <source>The notes in %1 are those of a newer viewer, and are not shown</source>
        <translation>Les notes de %1 viennent d&apos;une visionneuse plus récente et ne sont pas affichées</translation>
    </message>
    <message>
        <source>The notes in %1 can&apos;t be read: %2</source>
        <translation>Les notes de %1 ne peuvent pas être lues&#xa0;: %2</translation>
    </message>
    <message>
        <source>Somebody else has changed the note on line %1 of %2, too: both texts are kept</source>
        <translation>Quelqu&apos;un d&apos;autre a aussi modifié la note de la ligne %1 de %2&#xa0;: les deux textes sont gardés</translation>
    </message>
    <message>
        <source>No notes can be written beside %1 (%2). They are kept in %3.</source>
        <translation>Aucune note ne peut être écrite à côté de %1 (%2). Elles sont gardées dans %3.</translation>
    </message>
    <message>
        <source>The notes on %1 can&apos;t be kept, neither beside it (%2) nor in %3 (%4)</source>
        <translation>Les notes de %1 ne peuvent être gardées ni à côté (%2) ni dans %3 (%4)</translation>
    </message>
    <message>
        <source>The damaged notes are kept in %1</source>
        <translation>Les notes endommagées sont gardées dans %1</translation>
    </message>
    <message>
        <source>The notes in %1 stay there, though those beside the log go on: %2</source>
        <translation>Les notes de %1 y restent, mais celles à côté du journal continuent : %2</translation>
    </message>
    <message>
        <source>a newer viewer has written there</source>
        <translation>une visionneuse plus récente y a écrit</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>lecture impossible</translation>
    </message>
    <message>
        <source>%1 does not say what was written to it</source>
        <translation>%1 ne contient pas ce qui y a été écrit</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>In the rows</source>
        <translation>Dans les lignes</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>Première et dernière ligne</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Début, Fin</translation>
    </message>
    <message>
        <source>End stays at the end of logs that are followed</source>
        <translation>Fin reste à la fin des journaux suivis</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Shift+Up, Shift+Down</source>
        <translation>Maj+Haut, Maj+Bas</translation>
    </message>
    <message>
        <source>Selects rows from the current one on</source>
        <translation>Sélectionne des lignes à partir de la ligne active</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>De côté</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Gauche, Droite</translation>
    </message>
    <message>
        <source>Shows the rest of long rows</source>
        <translation>Montre le reste des longues lignes</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menu de la ligne</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>What can be done with the current row</source>
        <translation>Ce qu&apos;on peut faire de la ligne active</translation>
    </message>
    <message>
        <source>In the values</source>
        <translation>Dans les valeurs</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Cocher</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Shows or hides the rows of the value</source>
        <translation>Montre ou masque les lignes de la valeur</translation>
    </message>
    <message>
        <source>Only This</source>
        <translation>Seulement celle-ci</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Shows the rows of the value alone, or all again</source>
        <translation>Montre seulement les lignes de la valeur, ou de nouveau toutes</translation>
    </message>
    <message>
        <source>Open or close a group</source>
        <translation>Ouvrir ou fermer un groupe</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>Droite, Gauche</translation>
    </message>
    <message>
        <source>Such as all components</source>
        <translation>Par exemple tous les composants</translation>
    </message>
    <message>
        <source>In the bars of find and filter</source>
        <translation>Dans les barres de recherche et de filtre</translation>
    </message>
    <message>
        <source>Next and previous hit</source>
        <translation>Correspondance suivante et précédente</translation>
    </message>
    <message>
        <source>Enter, Shift+Enter</source>
        <translation>Entrée, Maj+Entrée</translation>
    </message>
    <message>
        <source>In the text to find</source>
        <translation>Dans le texte à rechercher</translation>
    </message>
    <message>
        <source>Close find</source>
        <translation>Fermer la recherche</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Ends the marks of the text, but for those kept</source>
        <translation>Retire les marques du texte, sauf celles conservées</translation>
    </message>
    <message>
        <source>Back to the rows</source>
        <translation>Retour aux lignes</translation>
    </message>
    <message>
        <source>Enter, Esc</source>
        <translation>Entrée, Échap</translation>
    </message>
    <message>
        <source>In the texts of the filter</source>
        <translation>Dans les textes du filtre</translation>
    </message>
    <message>
        <source>In the lanes of a call</source>
        <translation>Dans les couloirs d&apos;un appel</translation>
    </message>
    <message>
        <source>Line before and after</source>
        <translation>Ligne précédente et suivante</translation>
    </message>
    <message>
        <source>In all lanes, by time</source>
        <translation>Dans tous les couloirs, par heure</translation>
    </message>
    <message>
        <source>Within the lane</source>
        <translation>Dans le couloir</translation>
    </message>
    <message>
        <source>Ctrl+Left, Ctrl+Right</source>
        <translation>Ctrl+Gauche, Ctrl+Droite</translation>
    </message>
    <message>
        <source>The line before and after of the same process</source>
        <translation>La ligne précédente et suivante du même processus</translation>
    </message>
    <message>
        <source>Other lane</source>
        <translation>Autre couloir</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>Haut, Bas</translation>
    </message>
    <message>
        <source>The line of another process that is nearest</source>
        <translation>La ligne la plus proche d&apos;un autre processus</translation>
    </message>
    <message>
        <source>First and last line</source>
        <translation>Première et dernière ligne</translation>
    </message>
    <message>
        <source>Of the call; with Ctrl of the lane</source>
        <translation>De l&apos;appel&#xa0;; avec Ctrl, du couloir</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Plus, Minus, 0</source>
        <translation>Plus, Moins, 0</translation>
    </message>
    <message>
        <source>0 shows the whole call</source>
        <translation>0 montre tout l&apos;appel</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>Aller à la ligne</translation>
    </message>
    <message>
        <source>Shows the line among all rows</source>
        <translation>Montre la ligne parmi toutes les lignes</translation>
    </message>
    <message>
        <source>The lanes stay open</source>
        <translation>Les couloirs restent ouverts</translation>
    </message>
    <message>
        <source>In the lists of calls and bookmarks</source>
        <translation>Dans les listes des appels et des signets</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Shows the lanes of the call, or the row of the mark</source>
        <translation>Montre les couloirs de l&apos;appel ou la ligne de la marque</translation>
    </message>
    <message>
        <source>Remove a mark</source>
        <translation>Retirer une marque</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>In the list of bookmarks and notes</source>
        <translation>Dans la liste des signets et notes</translation>
    </message>
    <message>
        <source>In the list of calls; it stays open</source>
        <translation>Dans la liste des appels, qui reste ouverte</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>Device I/O error</source>
        <translation>Erreur d&apos;E/S du périphérique</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disque plein</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>Le fichier existe déjà</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Fichier introuvable</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lecture au-delà de la fin du fichier</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Mémoire insuffisante</translation>
    </message>
    <message>
        <source>Out of string space</source>
        <translation>Espace de texte insuffisant</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Chemin introuvable</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Erreur d&apos;accès au chemin ou au fichier</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
</context>
<context>
    <name>RowColumns</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Composant</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>Thread</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Appel</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>the time of a row is no time</source>
        <translation>l&apos;heure d&apos;une ligne n&apos;est pas une heure</translation>
    </message>
    <message>
        <source>the day of a row is no day</source>
        <translation>le jour d&apos;une ligne n&apos;est pas un jour</translation>
    </message>
    <message>
        <source>a row has no file</source>
        <translation>une ligne n&apos;a pas de fichier</translation>
    </message>
    <message>
        <source>a row has no line</source>
        <translation>une ligne n&apos;a pas de numéro</translation>
    </message>
    <message>
        <source>a row has no hash</source>
        <translation>une ligne n&apos;a pas d&apos;empreinte</translation>
    </message>
</context>
<context>
    <name>SavedFilters</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a filter</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être le nom d&apos;un filtre</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 ne peut pas être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is no filter</source>
        <translation>%1 n&apos;est pas un filtre</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>%1 d </source>
        <translation>%1 j </translation>
    </message>
</context>
<context>
    <name>viewer::CallListModel</name>
    <message>
        <source>Call</source>
        <translation>Appel</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Erreurs</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
</context>
<context>
    <name>viewer::CallListPane</name>
    <message>
        <source>Calls</source>
        <translation>Appels</translation>
    </message>
    <message>
        <source>State of the list of calls</source>
        <translation>État de la liste des appels</translation>
    </message>
    <message>
        <source>Looking for calls...</source>
        <translation>Recherche des appels...</translation>
    </message>
    <message>
        <source>No call was found until it was stopped.</source>
        <translation>Aucun appel n&apos;a été trouvé avant l&apos;arrêt.</translation>
    </message>
    <message>
        <source>No call is known: the lines of the open logs are of a form without call ids.</source>
        <translation>Aucun appel n&apos;est connu&#xa0;: les lignes des journaux ouverts sont d&apos;une forme sans identifiant d&apos;appel.</translation>
    </message>
    <message>
        <source>No row on show has a call id.</source>
        <translation>Aucune ligne affichée n&apos;a d&apos;identifiant d&apos;appel.</translation>
    </message>
    <message>
        <source>Calls of the rows on show: %1</source>
        <translation>Appels des lignes affichées&#xa0;: %1</translation>
    </message>
    <message>
        <source>, the first of more; a filter brings others</source>
        <translation>, les premiers parmi d&apos;autres&#xa0;; un filtre en montre d&apos;autres</translation>
    </message>
    <message>
        <source>, %1 % of the rows so far</source>
        <translation>, jusqu&apos;ici %1 % des lignes</translation>
    </message>
    <message>
        <source>, stopped after %1 % of the rows</source>
        <translation>, arrêté après %1 % des lignes</translation>
    </message>
    <message>
        <source>&amp;Show This Call</source>
        <translation>&amp;Afficher cet appel</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Trier par</translation>
    </message>
</context>
<context>
    <name>viewer::CallPane</name>
    <message>
        <source>The call</source>
        <translation>L&apos;appel</translation>
    </message>
    <message>
        <source>The selected line</source>
        <translation>La ligne sélectionnée</translation>
    </message>
    <message>
        <source>Text of the selected line</source>
        <translation>Texte de la ligne sélectionnée</translation>
    </message>
    <message>
        <source>Looking for the lines of the call...</source>
        <translation>Recherche des lignes de l&apos;appel...</translation>
    </message>
    <message>
        <source>No line of the call was found.</source>
        <translation>Aucune ligne de l&apos;appel n&apos;a été trouvée.</translation>
    </message>
    <message>
        <source>Call %1. Lines: %2, processes: %3, errors: %4, warnings: %5</source>
        <translation>Appel %1. Lignes&#xa0;: %2, processus&#xa0;: %3, erreurs&#xa0;: %4, avertissements&#xa0;: %5</translation>
    </message>
    <message>
        <source>, length: %1</source>
        <translation>, durée&#xa0;: %1</translation>
    </message>
    <message>
        <source>; it has more, which are not shown</source>
        <translation>; il en a d&apos;autres, qui ne sont pas affichées</translation>
    </message>
    <message>
        <source>; looking for more, %1 %</source>
        <translation>; recherche en cours, %1 %</translation>
    </message>
    <message>
        <source>; stopped after %1 %</source>
        <translation>; arrêté après %1 %</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>niveau %1</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>port %1</translation>
    </message>
    <message>
        <source>thread %1</source>
        <translation>thread %1</translation>
    </message>
</context>
<context>
    <name>viewer::CallTabs</name>
    <message>
        <source>Calls</source>
        <translation>Appels</translation>
    </message>
    <message>
        <source>This Call</source>
        <translation>Cet appel</translation>
    </message>
    <message>
        <source>Close the calls</source>
        <translation>Fermer les appels</translation>
    </message>
</context>
<context>
    <name>viewer::DetailsPane</name>
    <message>
        <source>Fields of the row</source>
        <translation>Champs de la ligne</translation>
    </message>
    <message>
        <source>Trace of the row</source>
        <translation>Trace de la ligne</translation>
    </message>
    <message>
        <source>Select a row to read all of it here.</source>
        <translation>Sélectionnez une ligne pour la lire ici en entier.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Show all %1 characters of the trace</source>
        <translation>Afficher les %1 caractères de la trace</translation>
    </message>
</context>
<context>
    <name>viewer::FacetPane</name>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Sources</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Niveaux</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>&amp;Uniquement ceci</translation>
    </message>
    <message>
        <source>Show &amp;All Values</source>
        <translation>&amp;Afficher toutes les valeurs</translation>
    </message>
</context>
<context>
    <name>viewer::FilterBar</name>
    <message>
        <source>Rows &amp;with:</source>
        <translation>Lignes a&amp;vec&#xa0;:</translation>
    </message>
    <message>
        <source>with&amp;out:</source>
        <translation>&amp;sans&#xa0;:</translation>
    </message>
    <message>
        <source>Text that rows have</source>
        <translation>Texte que les lignes contiennent</translation>
    </message>
    <message>
        <source>Text that rows do not have</source>
        <translation>Texte que les lignes ne contiennent pas</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>E&amp;xpression</translation>
    </message>
    <message>
        <source>Take the texts for regular expressions</source>
        <translation>Prendre les textes pour des expressions régulières</translation>
    </message>
    <message>
        <source>&amp;Aa</source>
        <translation>&amp;Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Tell capital letters from small ones</source>
        <translation>Distinguer les majuscules des minuscules</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>without &quot;%1&quot;</source>
        <translation>sans « %1 »</translation>
    </message>
    <message>
        <source>with &quot;%1&quot;</source>
        <translation>avec « %1 »</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 n&apos;est pas %2</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 est %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source> or </source>
        <translation> ou </translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>de %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>à %1</translation>
    </message>
</context>
<context>
    <name>viewer::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Text of a line</source>
        <translation>Texte d&apos;une ligne</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texte à rechercher</translation>
    </message>
    <message>
        <source>Ex&amp;pression</source>
        <translation>Ex&amp;pression</translation>
    </message>
    <message>
        <source>Take the text for a regular expression</source>
        <translation>Prendre le texte pour une expression régulière</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Correspondances</translation>
    </message>
    <message>
        <source>Find previous (Shift+F3)</source>
        <translation>Rechercher le précédent (Maj+F3)</translation>
    </message>
    <message>
        <source>Find next (F3)</source>
        <translation>Rechercher le suivant (F3)</translation>
    </message>
    <message>
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>Garder ce texte marqué (Ctrl+M)</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Fermer la barre de recherche (Échap)</translation>
    </message>
    <message>
        <source>%1 hits so far</source>
        <translation>%1 correspondances jusqu&apos;ici</translation>
    </message>
    <message>
        <source>No hits</source>
        <translation>Aucune correspondance</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 correspondances</translation>
    </message>
    <message>
        <source>No further colour is free</source>
        <translation>Aucune autre couleur n&apos;est libre</translation>
    </message>
    <message>
        <source>Mark %1 no more</source>
        <translation>Ne plus marquer %1</translation>
    </message>
</context>
<context>
    <name>viewer::FollowBar</name>
    <message>
        <source>Go to the last row, and keep the end in sight (End)</source>
        <translation>Aller à la dernière ligne et garder la fin en vue (Fin)</translation>
    </message>
    <message>
        <source>1 new line</source>
        <translation>1 nouvelle ligne</translation>
    </message>
    <message>
        <source>%1 new lines</source>
        <translation>%1 nouvelles lignes</translation>
    </message>
</context>
<context>
    <name>viewer::LaneView</name>
    <message>
        <source>Lines of call %1 over time</source>
        <translation>Lignes de l&apos;appel %1 dans le temps</translation>
    </message>
    <message>
        <source>Lines of a call over time</source>
        <translation>Lignes d&apos;un appel dans le temps</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Ligne %1 sur %2</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>niveau %1</translation>
    </message>
    <message>
        <source>%1 lines here</source>
        <translation>%1 lignes ici</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>The filter of last time is on and hides rows; Ctrl+Shift+A shows all.</source>
        <translation>Le filtre de la dernière fois est appliqué et masque des lignes ; Ctrl+Maj+A les montre toutes.</translation>
    </message>
    <message>
        <source>The current row has no such value</source>
        <translation>La ligne actuelle n&apos;a pas une telle valeur</translation>
    </message>
    <message>
        <source>There is no further one</source>
        <translation>Il n&apos;y en a pas d&apos;autre</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Writing: %1 of %2 rows</source>
        <translation>Écriture&#xa0;: %1 lignes sur %2</translation>
    </message>
    <message>
        <source>Reading: %1 rows so far</source>
        <translation>Lecture&#xa0;: %1 lignes jusqu&apos;ici</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 lignes sur %2</translation>
    </message>
    <message>
        <source>, row %1</source>
        <translation>, ligne %1</translation>
    </message>
    <message>
        <source>, following</source>
        <translation>, suivi</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>No source is open.

Drop logs, trace databases or cabinets here, or open them with Ctrl+O.</source>
        <translation>Aucune source n&apos;est ouverte.

Déposez ici des journaux, des bases de données de traces ou des fichiers CAB, ou ouvrez-les avec Ctrl+O.</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>Aller à l&apos;heure</translation>
    </message>
    <message>
        <source>Time, such as 15:23:07:</source>
        <translation>Heure, comme 15:23:07&#xa0;:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>Texte séparé par des virgules (*.csv)</translation>
    </message>
    <message>
        <source>JSON, an object a line (*.json)</source>
        <translation>JSON, un objet par ligne (*.json)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>%1 rows written</source>
        <translation>%1 lignes écrites</translation>
    </message>
    <message>
        <source>The export was given up, and left no file</source>
        <translation>L&apos;exportation a été abandonnée et n&apos;a laissé aucun fichier</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Ouvrir des fichiers</translation>
    </message>
    <message>
        <source>Logs, databases and cabinets (*.txt *.log *.mdb *.cab *.csv)</source>
        <translation>Journaux, bases de données et fichiers CAB (*.txt *.log *.mdb *.cab *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir un dossier</translation>
    </message>
    <message>
        <source>%1 rows copied</source>
        <translation>%1 lignes copiées</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>No call is shown. %1 shows the call of the current row.</source>
        <translation>Aucun appel n&apos;est affiché. %1 affiche l&apos;appel de la ligne active.</translation>
    </message>
    <message>
        <source>The current row has no call id. Lines of some forms have none; where there is one, %1 shows the call.</source>
        <translation>La ligne active n&apos;a pas d&apos;identifiant d&apos;appel. Les lignes de certaines formes n&apos;en ont pas&#xa0;; là où il y en a un, %1 affiche l&apos;appel.</translation>
    </message>
    <message>
        <source>All Traces</source>
        <translation>Toutes les traces</translation>
    </message>
    <message>
        <source>No filter was saved yet</source>
        <translation>Aucun filtre n&apos;a encore été enregistré</translation>
    </message>
    <message>
        <source>Save Filter</source>
        <translation>Enregistrer le filtre</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Open Filter File</source>
        <translation>Ouvrir un fichier de filtre</translation>
    </message>
    <message>
        <source>Filters (*.json)</source>
        <translation>Filtres (*.json)</translation>
    </message>
    <message>
        <source>Nothing that is open can be followed: only logs in files of their own grow. Trace databases, cabinets and what comes through a pipe do not.</source>
        <translation>Rien de ce qui est ouvert ne peut être suivi&#xa0;: seuls grandissent les journaux qui ont leur propre fichier. Les bases de données de traces, les fichiers CAB et ce qui vient d&apos;un tube ne grandissent pas.</translation>
    </message>
    <message>
        <source>What is no log of its own is shown, and not followed</source>
        <translation>Ce qui n&apos;est pas un journal à part est affiché, mais pas suivi</translation>
    </message>
    <message>
        <source>No row has a bookmark any more.</source>
        <translation>Plus aucune ligne n&apos;a de signet.</translation>
    </message>
    <message>
        <source>The row has a bookmark.</source>
        <translation>La ligne a un signet.</translation>
    </message>
    <message>
        <source>The row has no bookmark any more.</source>
        <translation>La ligne n&apos;a plus de signet.</translation>
    </message>
    <message>
        <source>No row has a bookmark or a note. Ctrl+B sets a bookmark.</source>
        <translation>Aucune ligne n&apos;a de signet ni de note. Ctrl+B pose un signet.</translation>
    </message>
    <message>
        <source>The rows with bookmarks and notes are hidden by the filter.</source>
        <translation>Les lignes avec des signets et des notes sont masquées par le filtre.</translation>
    </message>
    <message>
        <source>The row is hidden by the filter; Ctrl+Shift+A shows all.</source>
        <translation>La ligne est masquée par le filtre&#xa0;; Ctrl+Maj+A les affiche toutes.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Text for this row; an empty one takes the note away:</source>
        <translation>Texte pour cette ligne&#xa0;; un texte vide enlève la note&#xa0;:</translation>
    </message>
    <message>
        <source>The text is %1 characters too long for a note:</source>
        <translation>Le texte dépasse de %1 caractères la longueur d&apos;une note&#xa0;:</translation>
    </message>
    <message>
        <source>The note can&apos;t be kept: %1</source>
        <translation>La note ne peut pas être gardée&#xa0;: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>%1 of %2 selected rows copied; an export has all that are on show</source>
        <translation>%1 lignes copiées sur %2 sélectionnées&#xa0;; un export contient toutes les lignes affichées</translation>
    </message>
    <message>
        <source>The manual is not beside the viewer. Install it again to read it.</source>
        <translation>Le manuel n&apos;est pas à côté de la visionneuse. Réinstallez-la pour le lire.</translation>
    </message>
    <message>
        <source>Copying was given up; the clipboard is as it was</source>
        <translation>La copie a été abandonnée&#xa0;; le presse-papiers est inchangé</translation>
    </message>
    <message>
        <source>Copying: %1 of %2 rows</source>
        <translation>Copie&#xa0;: %1 lignes sur %2</translation>
    </message>
</context>
<context>
    <name>viewer::MarkGutter</name>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Signets et notes</translation>
    </message>
</context>
<context>
    <name>viewer::MarkList</name>
    <message>
        <source>Bookmarks and Notes</source>
        <translation>Signets et notes</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Signets et notes</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>The row of this note was not found in what is open.</source>
        <translation>La ligne de cette note n&apos;a pas été trouvée dans ce qui est ouvert.</translation>
    </message>
    <message>
        <source>Ctrl+B sets a bookmark on the current row, Ctrl+N gives it a note.</source>
        <translation>Ctrl+B pose un signet sur la ligne active, Ctrl+N lui donne une note.</translation>
    </message>
    <message>
        <source>Enter goes to the row, Delete takes the bookmark and the note away.</source>
        <translation>Entrée va à la ligne, Suppr enlève le signet et la note.</translation>
    </message>
</context>
<context>
    <name>viewer::Marks</name>
    <message>
        <source>Bookmark</source>
        <translation>Signet</translation>
    </message>
    <message>
        <source>Bookmarks and notes on rows that come through a pipe are not kept</source>
        <translation>Les signets et les notes sur des lignes venues d&apos;un tube ne sont pas gardés</translation>
    </message>
</context>
<context>
    <name>viewer::RowModel</name>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <source>Since row before</source>
        <translation>Depuis la ligne précédente</translation>
    </message>
    <message>
        <source>Since marked row</source>
        <translation>Depuis la ligne marquée</translation>
    </message>
</context>
<context>
    <name>viewer::RowTable</name>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>&amp;Rétablir les colonnes</translation>
    </message>
</context>
<context>
    <name>viewer::TimeStrip</name>
    <message>
        <source>Rows over time</source>
        <translation>Lignes dans le temps</translation>
    </message>
    <message>
        <source>Errors, warnings and other rows on show, over time</source>
        <translation>Erreurs, avertissements et autres lignes affichées, dans le temps</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 correspondances</translation>
    </message>
    <message>
        <source>%1: %2 rows, %3 errors, %4 warnings</source>
        <translation>%1&#xa0;: %2 lignes, %3 erreurs, %4 avertissements</translation>
    </message>
</context>
</TS>
