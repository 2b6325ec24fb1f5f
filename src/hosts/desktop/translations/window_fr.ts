<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Action</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Affic&amp;hage</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Thème</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Open Site...</source>
        <translation>&amp;Ouvrir un site...</translation>
    </message>
    <message>
        <source>Work on another server, in a folder</source>
        <translation>Travailler sur un autre serveur, dans un dossier</translation>
    </message>
    <message>
        <source>Make &amp;Sample Server...</source>
        <translation>&amp;Créer un serveur d&apos;exemple...</translation>
    </message>
    <message>
        <source>Make a server to try things on, in a new folder</source>
        <translation>Créer un serveur pour faire des essais, dans un nouveau dossier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Close the tool</source>
        <translation>Fermer l&apos;outil</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>Read again what is shown</source>
        <translation>Relire ce qui est affiché</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the selected rows, one line each</source>
        <translation>Copier les lignes sélectionnées, une ligne de texte pour chacune</translation>
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
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Select every row on show</source>
        <translation>Sélectionner toutes les lignes affichées</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Rechercher...</translation>
    </message>
    <message>
        <source>Look for a text in the log</source>
        <translation>Rechercher un texte dans le journal</translation>
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
        <source>&amp;Go to Time...</source>
        <translation>Atteindre l&apos;&amp;heure...</translation>
    </message>
    <message>
        <source>Go to the line of a time of day</source>
        <translation>Aller à la ligne d&apos;une heure de la journée</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>Supprimer le filtre</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>Si&amp;gnet</translation>
    </message>
    <message>
        <source>Mark the current line, or take its mark away</source>
        <translation>Marquer la ligne active ou enlever sa marque</translation>
    </message>
    <message>
        <source>Next Boo&amp;kmark</source>
        <translation>Signet suiva&amp;nt</translation>
    </message>
    <message>
        <source>Go to the next marked line</source>
        <translation>Aller à la ligne marquée suivante</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>Signet précé&amp;dent</translation>
    </message>
    <message>
        <source>Go to the marked line before</source>
        <translation>Aller à la ligne marquée précédente</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>&amp;Effacer les signets</translation>
    </message>
    <message>
        <source>Take every mark of this log away</source>
        <translation>Enlever toutes les marques de ce journal</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>Show all of the current line below the log</source>
        <translation>Afficher la ligne active en entier sous le journal</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>Autre &amp;volet</translation>
    </message>
    <message>
        <source>Go from the tree to the view, or back</source>
        <translation>Passer de l&apos;arborescence à la vue, ou inversement</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>Texte plus &amp;grand</translation>
    </message>
    <message>
        <source>Show traces in larger letters</source>
        <translation>Afficher les traces en plus gros caractères</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>Texte plus &amp;petit</translation>
    </message>
    <message>
        <source>Show traces in smaller letters</source>
        <translation>Afficher les traces en plus petits caractères</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>Texte &amp;normal</translation>
    </message>
    <message>
        <source>Show traces in letters of the usual size</source>
        <translation>Afficher les traces en caractères de taille habituelle</translation>
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
        <source>&amp;Help Topics</source>
        <translation>&amp;Rubriques d&apos;aide</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Ouvrir le manuel</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Touches</translation>
    </message>
    <message>
        <source>Show every key of the tool</source>
        <translation>Afficher toutes les touches de l&apos;outil</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos...</translation>
    </message>
    <message>
        <source>Version and interface language</source>
        <translation>Version et langue de l&apos;interface</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>&amp;Mark This Text</source>
        <translation>&amp;Marquer ce texte</translation>
    </message>
    <message>
        <source>Keep the text that is looked for marked in a colour of its own</source>
        <translation>Garder le texte recherché marqué d&apos;une couleur à lui</translation>
    </message>
    <message>
        <source>Next Err&amp;or</source>
        <translation>Pr&amp;ochaine erreur</translation>
    </message>
    <message>
        <source>Go to the next line of an error</source>
        <translation>Aller à la ligne d&apos;erreur suivante</translation>
    </message>
    <message>
        <source>P&amp;revious Error</source>
        <translation>Erre&amp;ur précédente</translation>
    </message>
    <message>
        <source>Go to the line of an error before</source>
        <translation>Aller à la ligne d&apos;erreur précédente</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>Prochain &amp;avertissement</translation>
    </message>
    <message>
        <source>Go to the next line of a warning</source>
        <translation>Aller à la ligne d&apos;avertissement suivante</translation>
    </message>
    <message>
        <source>Prev&amp;ious Warning</source>
        <translation>Avert&amp;issement précédent</translation>
    </message>
    <message>
        <source>Go to the line of a warning before</source>
        <translation>Aller à la ligne d&apos;avertissement précédente</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;Filtrer...</translation>
    </message>
    <message>
        <source>Show or hide lines by what is in their columns</source>
        <translation>Afficher ou masquer les lignes selon le contenu de leurs colonnes</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>&amp;Afficher toutes les lignes</translation>
    </message>
    <message>
        <source>F&amp;ollow</source>
        <translation>S&amp;uivre</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>Afficher les lignes à mesure qu&apos;elles arrivent, tant que la dernière est la ligne courante</translation>
    </message>
    <message>
        <source>Open in &amp;Viewer</source>
        <translation>Ouvrir dans la &amp;visionneuse</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>Ouvrir ce journal dans la visionneuse, qui affiche les journaux de toute taille</translation>
    </message>
    <message>
        <source>Filter by &amp;Column...</source>
        <translation>Filtrer par &amp;colonne...</translation>
    </message>
    <message>
        <source>Show or hide lines by the values of a further column</source>
        <translation>Afficher ou masquer les lignes selon les valeurs d&apos;une autre colonne</translation>
    </message>
    <message>
        <source>Saved Fil&amp;ters...</source>
        <translation>Filtres &amp;enregistrés...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name, here or in the viewer</source>
        <translation>Prendre un filtre enregistré sous un nom, ici ou dans la visionneuse</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>Enre&amp;gistrer le filtre...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>Enregistrer le filtre sous un nom, dans un fichier que d&apos;autres peuvent ouvrir</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>&amp;Ouvrir un fichier de filtre...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>Prendre un filtre d&apos;un fichier que quelqu&apos;un a donné</translation>
    </message>
</context>
<context>
    <name>FilterFiles</name>
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
        <translation>Nom :</translation>
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
        <source>Saved as %1, without the values of times and traces.</source>
        <translation>Enregistré sous %1, sans les valeurs d&apos;heures et de traces.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Enregistré sous %1.</translation>
    </message>
    <message>
        <source>The filter was not saved: %1.</source>
        <translation>Le filtre n&apos;a pas été enregistré : %1.</translation>
    </message>
    <message>
        <source>The filter&apos;s times and processes hold in the viewer, not in a single log.</source>
        <translation>Les heures et les processus du filtre valent dans la visionneuse, pas dans un seul journal.</translation>
    </message>
    <message>
        <source>The filter was not taken: %1.</source>
        <translation>Le filtre n&apos;a pas été pris : %1.</translation>
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
    <name>FrameNeeds</name>
    <message>
        <source>End with the Newest Log</source>
        <translation>Finir avec le journal le plus récent</translation>
    </message>
    <message>
        <source>Looking at the logs...</source>
        <translation>Examen des journaux...</translation>
    </message>
    <message>
        <source>No logs were found in the server&apos;s log folder.</source>
        <translation>Aucun journal n&apos;a été trouvé dans le dossier des journaux du serveur.</translation>
    </message>
    <message>
        <source>The logs run from %1 to %2.</source>
        <translation>Les journaux vont de %1 à %2.</translation>
    </message>
    <message>
        <source>No log has lines of this time frame.</source>
        <translation>Aucun journal n&apos;a de lignes de cette période.</translation>
    </message>
    <message>
        <source>This time frame takes 1 log, %1.</source>
        <translation>Cette période prend 1 journal, %1.</translation>
    </message>
    <message>
        <source>This time frame takes %1 logs, %2.</source>
        <translation>Cette période prend %1 journaux, %2.</translation>
    </message>
</context>
<context>
    <name>GatherReport</name>
    <message>
        <source>The server names no current log of %1.</source>
        <translation>Le serveur n&apos;indique aucun journal actuel de %1.</translation>
    </message>
    <message>
        <source>The current log of %1, %2, is not there.</source>
        <translation>Le journal actuel de %1, %2, est introuvable.</translation>
    </message>
    <message>
        <source>The current log of %1, %2, can&apos;t be looked at: %3.</source>
        <translation>Le journal actuel de %1, %2, ne peut pas être consulté : %3.</translation>
    </message>
    <message>
        <source>The server&apos;s log folder %1 is not there.</source>
        <translation>Le dossier des journaux %1 du serveur est introuvable.</translation>
    </message>
    <message>
        <source>The logs in %1 could not be listed: %2.</source>
        <translation>Les journaux de %1 n&apos;ont pas pu être énumérés : %2.</translation>
    </message>
    <message>
        <source>%1 was passed over: %2.</source>
        <translation>%1 a été ignoré : %2.</translation>
    </message>
    <message>
        <source>%1 was not gathered: it is not in %2.</source>
        <translation>%1 n&apos;a pas été collecté&#xa0;: il n&apos;est pas dans %2.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2.</source>
        <translation>%1 n&apos;a pas été copié&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 was copied in part: %2.</source>
        <translation>%1 n&apos;a été copié qu&apos;en partie&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 was not gathered as a whole: %2.</source>
        <translation>%1 n&apos;a pas été collecté en entier&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 was read as far as line %3: %2.</source>
        <translation>%1 a été lu jusqu&apos;à la ligne %3 : %2.</translation>
    </message>
    <message>
        <source>Lines of %1 that were not stored: %3 (%2).</source>
        <translation>Lignes de %1 non enregistrées : %3 (%2).</translation>
    </message>
    <message>
        <source>%1 was cut while it was read.</source>
        <translation>%1 a été tronqué pendant la lecture.</translation>
    </message>
    <message>
        <source>%1 was taken away while it was read.</source>
        <translation>%1 a été retiré pendant la lecture.</translation>
    </message>
    <message>
        <source>%1 logs were not gathered as a whole, the first of them %2: %3.</source>
        <translation>%1 journaux n&apos;ont pas été collectés en entier, le premier étant %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>%1 has too many malformed lines, and was read no further than the eleventh.</source>
        <translation>%1 contient trop de lignes mal formées et n&apos;a été lu que jusqu&apos;à la onzième.</translation>
    </message>
    <message>
        <source>The %1 event log was not captured: %2.</source>
        <translation>Le journal d&apos;événements %1 n&apos;a pas été capturé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The destination %1 can&apos;t be made: %2.</source>
        <translation>La destination %1 ne peut pas être créée&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The destination %1 has gone.</source>
        <translation>La destination %1 n&apos;existe plus.</translation>
    </message>
    <message>
        <source>No trace database was made: %1.</source>
        <translation>Aucune base de données de traces n&apos;a été créée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The trace database is not complete: %1.</source>
        <translation>La base de données de traces est incomplète&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The macro trace definitions could not all be stored: %1.</source>
        <translation>Les définitions de macro-traces n&apos;ont pas toutes pu être enregistrées&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The filters could not all be stored: %1.</source>
        <translation>Les filtres n&apos;ont pas tous pu être enregistrés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No cabinet was made.</source>
        <translation>Aucune archive .cab n&apos;a été créée.</translation>
    </message>
    <message>
        <source>No cabinet was made: the cabinet maker %1 is missing.</source>
        <translation>Aucune archive .cab n&apos;a été créée&#xa0;: le programme %1 est absent.</translation>
    </message>
    <message>
        <source>No cabinet was made: %1.</source>
        <translation>Aucune archive .cab n&apos;a été créée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The site&apos;s cabinet maker is not the installed one, which made the cabinet in its place.</source>
        <translation>Le programme cabmaker du site n&apos;est pas celui qui est installé&#xa0;; ce dernier a créé l&apos;archive .cab à sa place.</translation>
    </message>
    <message>
        <source>%1 in the destination %2 would be lost: the gather makes a file or folder of that name and removes it again.</source>
        <translation>%1 dans la destination %2 serait perdu&#xa0;: la collecte crée un fichier ou un dossier de ce nom, puis le supprime.</translation>
    </message>
    <message>
        <source>%1 in the destination %2 is not a plain file, and nothing is written to such a one.</source>
        <translation>%1 dans la destination %2 n&apos;est pas un fichier ordinaire, et rien n&apos;y est écrit.</translation>
    </message>
    <message>
        <source>Another gather is writing to %1; wait until it has ended, or name another folder.</source>
        <translation>Une autre collecte écrit dans %1&#xa0;; attendez qu&apos;elle soit terminée, ou indiquez un autre dossier.</translation>
    </message>
    <message>
        <source>The gather was cancelled.</source>
        <translation>La collecte a été annulée.</translation>
    </message>
    <message>
        <source>No line lies in the time frame.</source>
        <translation>Aucune ligne ne se trouve dans la période.</translation>
    </message>
    <message>
        <source>What was gathered is kept in %1.</source>
        <translation>Ce qui a été collecté est conservé dans %1.</translation>
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
    <name>NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>In lists and pages</source>
        <translation>Dans les listes et les pages</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Opens the log or the node of the current row</source>
        <translation>Ouvre le journal ou le nœud de la ligne active</translation>
    </message>
    <message>
        <source>Open or close a node</source>
        <translation>Ouvrir ou fermer un nœud</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>Droite, Gauche</translation>
    </message>
    <message>
        <source>In a tree</source>
        <translation>Dans une arborescence</translation>
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
        <source>Ticks or clears the current node of a page&apos;s tree</source>
        <translation>Coche ou décoche le nœud actif de l&apos;arborescence d&apos;une page</translation>
    </message>
    <message>
        <source>Help on a page</source>
        <translation>Aide d&apos;une page</translation>
    </message>
    <message>
        <source>In a wizard or a sheet, and in the about box</source>
        <translation>Dans un assistant, une feuille de propriétés et la boîte À propos</translation>
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
        <source>In a list</source>
        <translation>Dans une liste</translation>
    </message>
    <message>
        <source>Close find or filter</source>
        <translation>Fermer la recherche ou le filtre</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Closes the bar in which the cursor is</source>
        <translation>Ferme la barre dans laquelle se trouve le curseur</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Diagnostic logs (diag_*.txt data_*.txt *.log);;All files (*)</source>
        <translation>Journaux de diagnostic (diag_*.txt data_*.txt *.log);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>This site has no %1 to show.</source>
        <translation>Ce site n&apos;a pas de %1 à afficher.</translation>
    </message>
    <message>
        <source>The site %1 could not be opened: %2. Choose another one with Ctrl+Shift+O.</source>
        <translation>Le site %1 n&apos;a pas pu être ouvert&#xa0;: %2. Choisissez-en un autre avec Ctrl+Maj+O.</translation>
    </message>
    <message>
        <source>The manual is not beside the tool. Install it again to read it.</source>
        <translation>Le manuel ne se trouve pas à côté de l&apos;outil. Réinstallez-le pour le lire.</translation>
    </message>
    <message>
        <source>it has no site.ini, registry.reg or drive_c in it</source>
        <translation>il ne contient ni site.ini, ni registry.reg, ni drive_c</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose a new folder.</source>
        <translation>Aucun serveur d&apos;exemple n&apos;a pu être créé dans %1&#xa0;: %2. Choisissez un nouveau dossier.</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose another folder.</source>
        <translation>Aucun serveur d&apos;exemple n&apos;a pu être créé dans %1&#xa0;: %2. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The site was not closed cleanly: %1. The language of its event log may not be the first one; open it again.</source>
        <translation>Le site n&apos;a pas été fermé correctement&#xa0;: %1. La langue de son journal des événements n&apos;est peut-être pas celle d&apos;origine&#xa0;; ouvrez-le de nouveau.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date, so %2 stays. Type a date as it is written there.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une date, %2 est donc conservé. Saisissez une date sous cette forme.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time, so %2 stays. Type a time as it is written there.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une heure, %2 est donc conservé. Saisissez une heure sous cette forme.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be chosen here. The field now holds %2.</source>
        <translation>%1 ne peut pas être choisi ici. Le champ contient maintenant %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of megabytes, so the space for diagnostic files stays as it was.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un nombre de mégaoctets, l&apos;espace des fichiers de diagnostic reste donc inchangé.</translation>
    </message>
    <message>
        <source>Not all of it was done: %1.</source>
        <translation>Tout n&apos;a pas été effectué&#xa0;: %1.</translation>
    </message>
    <message>
        <source>%1 can be read with the viewer (orvandiag-viewer), which is not installed here.</source>
        <translation>%1 peut être lu avec la visionneuse (orvandiag-viewer), qui n&apos;est pas installée ici.</translation>
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
    <name>ResultPlace</name>
    <message>
        <source>On this machine: %1</source>
        <translation>Sur cet ordinateur : %1</translation>
    </message>
    <message>
        <source>No file manager was found on this machine. The results are in %1.</source>
        <translation>Aucun gestionnaire de fichiers n&apos;a été trouvé sur cet ordinateur. Les résultats sont dans %1.</translation>
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
    <name>SelectionNeeds</name>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>1 server log is chosen, %1. Free at the destination: %2.</source>
        <translation>1 journal du serveur est choisi, %1. Libre à la destination : %2.</translation>
    </message>
    <message>
        <source>%1 server logs are chosen, %2. Free at the destination: %3.</source>
        <translation>%1 journaux du serveur sont choisis, %2. Libre à la destination : %3.</translation>
    </message>
    <message>
        <source>That is not enough room.</source>
        <translation>La place ne suffit pas.</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Open a Site</source>
        <translation>Ouvrir un site</translation>
    </message>
    <message>
        <source>The folder of a server, or of a copy of one. A folder that is dropped here is opened, too.</source>
        <translation>Le dossier d&apos;un serveur, ou d&apos;une copie d&apos;un serveur. Un dossier déposé ici est ouvert également.</translation>
    </message>
    <message>
        <source>Make a Sample Server</source>
        <translation>Créer un serveur d&apos;exemple</translation>
    </message>
    <message>
        <source>A server with made-up logs, to try things on, in a new folder.</source>
        <translation>Un serveur aux journaux inventés, pour faire des essais, dans un nouveau dossier.</translation>
    </message>
    <message>
        <source>Read the Manual</source>
        <translation>Lire le manuel</translation>
    </message>
    <message>
        <source>What the tool does, and how to go about it.</source>
        <translation>Ce que fait l&apos;outil et comment s&apos;y prendre.</translation>
    </message>
    <message>
        <source>No site is open</source>
        <translation>Aucun site n&apos;est ouvert</translation>
    </message>
    <message>
        <source>A site is a server in a folder, with its logs and settings.</source>
        <translation>Un site est un serveur dans un dossier, avec ses journaux et ses paramètres.</translation>
    </message>
</context>
<context>
    <name>desktop::ConsolePane</name>
    <message>
        <source>Server tree</source>
        <translation>Arborescence du serveur</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>Fichiers journaux</translation>
    </message>
    <message>
        <source>The tool is still finishing what was cancelled. One moment.</source>
        <translation>L&apos;outil termine encore ce qui a été annulé. Un instant.</translation>
    </message>
    <message>
        <source>That did not work: %1. Press F5 to renew what is shown, and try again.</source>
        <translation>Cela n&apos;a pas fonctionné&#xa0;: %1. Appuyez sur F5 pour actualiser l&apos;affichage, puis réessayez.</translation>
    </message>
</context>
<context>
    <name>desktop::DetailsPane</name>
    <message>
        <source>Fields of the line</source>
        <translation>Champs de la ligne</translation>
    </message>
    <message>
        <source>Trace of the line</source>
        <translation>Trace de la ligne</translation>
    </message>
    <message>
        <source>Select a line to read all of it here.</source>
        <translation>Sélectionnez une ligne pour la lire ici en entier.</translation>
    </message>
</context>
<context>
    <name>desktop::FilterBar</name>
    <message>
        <source>Only rows with this text</source>
        <translation>Lignes contenant ce texte</translation>
    </message>
    <message>
        <source>Filter by text</source>
        <translation>Filtrer par texte</translation>
    </message>
    <message>
        <source>hide &amp;matches</source>
        <translation>&amp;masquer ces lignes</translation>
    </message>
    <message>
        <source>Hide the rows with the text instead of showing them</source>
        <translation>Masquer les lignes contenant le texte au lieu de les afficher</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Show every row again (Ctrl+Shift+A)</source>
        <translation>Afficher de nouveau toutes les lignes (Ctrl+Maj+A)</translation>
    </message>
    <message>
        <source>Close the filter bar and show every row (Esc)</source>
        <translation>Fermer la barre de filtre et afficher toutes les lignes (Échap)</translation>
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
        <source>Filter by a further column (Ctrl+Alt+F)</source>
        <translation>Filtrer par une autre colonne (Ctrl+Alt+F)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>pas %1</translation>
    </message>
    <message>
        <source>Let go: %1</source>
        <translation>Abandonner : %1</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
</context>
<context>
    <name>desktop::FilterButton</name>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>&amp;Hide the ticked ones</source>
        <translation>&amp;Masquer les éléments cochés</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>&amp;Tout décocher</translation>
    </message>
    <message>
        <source>all</source>
        <translation>tout</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>sauf %1</translation>
    </message>
    <message>
        <source>%1: %2 </source>
        <translation>%1&#xa0;: %2 </translation>
    </message>
    <message>
        <source>Filter by %1: %2</source>
        <translation>Filtrer par %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Show or hide rows by %1</source>
        <translation>Afficher ou masquer des lignes par %1</translation>
    </message>
    <message>
        <source>Values with this text</source>
        <translation>Valeurs avec ce texte</translation>
    </message>
    <message>
        <source>Look among the values</source>
        <translation>Chercher parmi les valeurs</translation>
    </message>
    <message>
        <source>%1 more: type to look among them</source>
        <translation>%1 de plus : saisissez pour chercher parmi elles</translation>
    </message>
</context>
<context>
    <name>desktop::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Go to &amp;time:</source>
        <translation>A&amp;tteindre l&apos;heure&#xa0;:</translation>
    </message>
    <message>
        <source>Text in any column</source>
        <translation>Texte dans n&apos;importe quelle colonne</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texte à rechercher</translation>
    </message>
    <message>
        <source>such as 15:23:07</source>
        <translation>p. ex. 15:23:07</translation>
    </message>
    <message>
        <source>Time to go to</source>
        <translation>Heure à atteindre</translation>
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
        <source>Close the find bar (Esc)</source>
        <translation>Fermer la barre de recherche (Échap)</translation>
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
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>Garder ce texte marqué (Ctrl+M)</translation>
    </message>
    <message>
        <source>Type the text to keep marked</source>
        <translation>Saisissez le texte à garder marqué</translation>
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
    <name>desktop::GrowthBar</name>
    <message>
        <source>New lines</source>
        <translation>Nouvelles lignes</translation>
    </message>
    <message>
        <source>Read the log again, to its present end (F5)</source>
        <translation>Relire le journal jusqu&apos;à sa fin actuelle (F5)</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>Ouvrir dans la vi&amp;sionneuse</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>Ouvrir ce journal dans la visionneuse, qui affiche les journaux de toute taille</translation>
    </message>
    <message>
        <source>Foll&amp;ow</source>
        <translation>S&amp;uivre</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>Afficher les lignes à mesure qu&apos;elles arrivent, tant que la dernière est la ligne courante</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>Re&amp;lire</translation>
    </message>
</context>
<context>
    <name>desktop::LogView</name>
    <message>
        <source>Log lines</source>
        <translation>Lignes du journal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in these lines.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;apparaît pas dans ces lignes.</translation>
    </message>
    <message>
        <source>Went on from the top.</source>
        <translation>Recherche poursuivie depuis le début.</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>Recherche poursuivie depuis la fin.</translation>
    </message>
    <message>
        <source>Type a time such as 15:23</source>
        <translation>Saisissez une heure, p. ex. 15:23</translation>
    </message>
    <message>
        <source>No line at %1 or later</source>
        <translation>Aucune ligne à %1 ou plus tard</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>Line %1 is marked.</source>
        <translation>La ligne %1 est marquée.</translation>
    </message>
    <message>
        <source>Line %1 is not marked any more.</source>
        <translation>La ligne %1 n&apos;est plus marquée.</translation>
    </message>
    <message>
        <source>No line of this log is marked. Ctrl+B marks one.</source>
        <translation>Aucune ligne de ce journal n&apos;est marquée. Ctrl+B en marque une.</translation>
    </message>
    <message>
        <source>The marked lines are hidden by the filter.</source>
        <translation>Les lignes marquées sont masquées par le filtre.</translation>
    </message>
    <message>
        <source>No line of this log is marked any more.</source>
        <translation>Plus aucune ligne de ce journal n&apos;est marquée.</translation>
    </message>
    <message>
        <source>&amp;Show only %1 %2</source>
        <translation>Afficher &amp;uniquement %1 %2</translation>
    </message>
    <message>
        <source>&amp;Hide %1 %2</source>
        <translation>&amp;Masquer %1 %2</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>&amp;Signet</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>Copier en CS&amp;V</translation>
    </message>
    <message>
        <source>Marked line %1: %2</source>
        <translation>Ligne marquée %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Hit in line %1: %2</source>
        <translation>Correspondance à la ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Error in line %1: %2</source>
        <translation>Erreur à la ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Warning in line %1: %2</source>
        <translation>Avertissement à la ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>bookmark</source>
        <translation>signet</translation>
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
        <source>No line on show tells of an error.</source>
        <translation>Aucune ligne affichée ne signale d&apos;erreur.</translation>
    </message>
    <message>
        <source>No line on show tells of a warning.</source>
        <translation>Aucune ligne affichée ne signale d&apos;avertissement.</translation>
    </message>
    <message>
        <source>This log has grown past the %1 bytes that the tool shows.</source>
        <translation>Ce journal a dépassé les %1 octets que l&apos;outil affiche.</translation>
    </message>
    <message>
        <source>This log was begun anew.</source>
        <translation>Ce journal a été recommencé.</translation>
    </message>
    <message>
        <source>Following: lines are shown as they come.</source>
        <translation>Suivi : les lignes s&apos;affichent à mesure qu&apos;elles arrivent.</translation>
    </message>
    <message>
        <source>%1 new lines wait. Go to the last line to see them.</source>
        <translation>%1 nouvelles lignes attendent. Allez à la dernière ligne pour les voir.</translation>
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
    <name>desktop::MainWindow</name>
    <message>
        <source>This site is read-only: logs can be read, but traces and settings cannot be changed. Make its folder writable, or open a copy.</source>
        <translation>Ce site est en lecture seule&#xa0;: les journaux peuvent être lus, mais les traces et les paramètres ne peuvent pas être modifiés. Autorisez l&apos;écriture dans son dossier, ou ouvrez une copie.</translation>
    </message>
    <message>
        <source>The server&apos;s database could not be opened: %1. Logs can be read and gathered, but traces and settings cannot be changed.</source>
        <translation>La base de données du serveur n&apos;a pas pu être ouverte&#xa0;: %1. Les journaux peuvent être lus et rassemblés, mais les traces et les paramètres ne peuvent pas être modifiés.</translation>
    </message>
    <message>
        <source>The site %1 is no longer there. Put the folder back and press F5, or open another site with Ctrl+Shift+O.</source>
        <translation>Le site %1 n&apos;existe plus. Remettez le dossier en place et appuyez sur F5, ou ouvrez un autre site avec Ctrl+Maj+O.</translation>
    </message>
    <message>
        <source>The catalogue of your language (%1) is missing or damaged, so the tool&apos;s texts are in English. Choose another language in the about box (Ctrl+F1).</source>
        <translation>Le catalogue de votre langue (%1) est absent ou endommagé, les textes de l&apos;outil sont donc en anglais. Choisissez une autre langue dans la boîte À propos (Ctrl+F1).</translation>
    </message>
    <message>
        <source>The tool&apos;s own log can&apos;t be written: %1. The tool goes on without it.</source>
        <translation>Le journal propre à l&apos;outil ne peut pas être écrit : %1. L&apos;outil continue sans lui.</translation>
    </message>
    <message>
        <source>Orvan Diagnostic Tool</source>
        <translation>Outil de diagnostic Orvan</translation>
    </message>
    <message>
        <source>1 row copied.</source>
        <translation>1 ligne copiée.</translation>
    </message>
    <message>
        <source>%1 rows copied.</source>
        <translation>%1 lignes copiées.</translation>
    </message>
    <message>
        <source>Open Site: the folder of a server, with site.ini, registry.reg or drive_c</source>
        <translation>Ouvrir un site&#xa0;: le dossier d&apos;un serveur, avec site.ini, registry.reg ou drive_c</translation>
    </message>
    <message>
        <source>Make Sample Server in a New Folder</source>
        <translation>Créer un serveur d&apos;exemple dans un nouveau dossier</translation>
    </message>
    <message>
        <source>The language was not changed: %1. Choose it again.</source>
        <translation>La langue n&apos;a pas été changée&#xa0;: %1. Choisissez-la à nouveau.</translation>
    </message>
    <message>
        <source>The gather is being ended. The window closes in a moment.</source>
        <translation>La collecte se termine. La fenêtre se fermera dans un instant.</translation>
    </message>
    <message>
        <source>&amp;Recent Sites</source>
        <translation>Sites &amp;récents</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>&amp;Barre d&apos;outils</translation>
    </message>
    <message>
        <source>Show or hide the buttons below the menus</source>
        <translation>Afficher ou masquer les boutons sous les menus</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>The site on show: %1</source>
        <translation>Le site affiché&#xa0;: %1</translation>
    </message>
    <message>
        <source>The gather is being ended. Try again in a moment.</source>
        <translation>La collecte se termine. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>This site is read-only: choose a destination outside of it.</source>
        <translation>Ce site est en lecture seule&#xa0;: choisissez une destination hors de celui-ci.</translation>
    </message>
    <message>
        <source>This site is read-only: what is chosen here is not written.</source>
        <translation>Ce site est en lecture seule&#xa0;: ce qui est choisi ici n&apos;est pas enregistré.</translation>
    </message>
    <message>
        <source>The server was not told to start new log files: the signal in its registry stayed what it was.</source>
        <translation>Le serveur n&apos;a pas été invité à commencer de nouveaux fichiers journaux&#xa0;: le signal dans son registre est resté le même.</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1 (absent)</translation>
    </message>
    <message>
        <source>&amp;Forget Folders That Are Not There</source>
        <translation>&amp;Oublier les dossiers absents</translation>
    </message>
    <message>
        <source>Sample Server</source>
        <translation>Serveur d&apos;exemple</translation>
    </message>
    <message>
        <source>Col&amp;umns</source>
        <translation>Col&amp;onnes</translation>
    </message>
    <message>
        <source>Sample server: %1</source>
        <translation>Serveur d&apos;exemple : %1</translation>
    </message>
</context>
<context>
    <name>desktop::MomentField</name>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Pick a day from a calendar (F4)</source>
        <translation>Choisir un jour dans un calendrier (F4)</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>h:mm:ss AP</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>en_US</source>
        <extracomment>The language and country by which a calendar names its days.</extracomment>
        <translation>fr_FR</translation>
    </message>
</context>
<context>
    <name>desktop::ScopeModel</name>
    <message>
        <source>d MMM yyyy</source>
        <translation>d MMM yyyy</translation>
    </message>
    <message>
        <source>d MMM</source>
        <translation>d MMM</translation>
    </message>
    <message>
        <source>%1 · current</source>
        <translation>%1 · en cours</translation>
    </message>
</context>
<context>
    <name>desktop::SheetDialog</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Suivant &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;ppliquer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>That did not work: %1. Try again, or press Cancel.</source>
        <translation>Cela n&apos;a pas fonctionné&#xa0;: %1. Réessayez, ou cliquez sur Annuler.</translation>
    </message>
</context>
<context>
    <name>desktop::TooLargePane</name>
    <message>
        <source>This log has %1 bytes, and the tool shows logs of up to %2. The viewer shows logs of any size.</source>
        <translation>Ce journal a %1 octets, et l&apos;outil affiche des journaux jusqu&apos;à %2. La visionneuse affiche les journaux de toute taille.</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>Ouvrir dans la vi&amp;sionneuse</translation>
    </message>
</context>
</TS>
