<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>&amp;Aktion</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Open Site...</source>
        <translation>Site ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Work on another server, in a folder</source>
        <translation>Mit einem anderen Server in einem Ordner arbeiten</translation>
    </message>
    <message>
        <source>Make &amp;Sample Server...</source>
        <translation>&amp;Beispielserver anlegen...</translation>
    </message>
    <message>
        <source>Make a server to try things on, in a new folder</source>
        <translation>In einem neuen Ordner einen Server zum Ausprobieren anlegen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>Close the tool</source>
        <translation>Das Tool schließen</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Read again what is shown</source>
        <translation>Das Angezeigte neu einlesen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows, one line each</source>
        <translation>Die ausgewählten Zeilen kopieren, jede als eine Textzeile</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>Als &amp;CSV kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows with their headers, for a spreadsheet</source>
        <translation>Die ausgewählten Zeilen mit Überschriften für eine Tabellenkalkulation kopieren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select every row on show</source>
        <translation>Alle angezeigten Zeilen auswählen</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Look for a text in the log</source>
        <translation>Einen Text im Protokoll suchen</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Go to the next hit</source>
        <translation>Zum nächsten Treffer gehen</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>&amp;Vorherigen Treffer suchen</translation>
    </message>
    <message>
        <source>Go to the hit before</source>
        <translation>Zum vorherigen Treffer gehen</translation>
    </message>
    <message>
        <source>&amp;Go to Time...</source>
        <translation>&amp;Gehe zu Uhrzeit...</translation>
    </message>
    <message>
        <source>Go to the line of a time of day</source>
        <translation>Zur Zeile einer Uhrzeit gehen</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>Den Filter aufheben</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>&amp;Lesezeichen</translation>
    </message>
    <message>
        <source>Mark the current line, or take its mark away</source>
        <translation>Ein Lesezeichen an der aktuellen Zeile setzen oder entfernen</translation>
    </message>
    <message>
        <source>Next Boo&amp;kmark</source>
        <translation>&amp;Nächstes Lesezeichen</translation>
    </message>
    <message>
        <source>Go to the next marked line</source>
        <translation>Zur nächsten Zeile mit Lesezeichen gehen</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>Vo&amp;rheriges Lesezeichen</translation>
    </message>
    <message>
        <source>Go to the marked line before</source>
        <translation>Zur vorherigen Zeile mit Lesezeichen gehen</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>Lesezeichen lösch&amp;en</translation>
    </message>
    <message>
        <source>Take every mark of this log away</source>
        <translation>Alle Lesezeichen dieses Protokolls entfernen</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Show all of the current line below the log</source>
        <translation>Die aktuelle Zeile vollständig unter dem Protokoll anzeigen</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>&amp;Anderer Bereich</translation>
    </message>
    <message>
        <source>Go from the tree to the view, or back</source>
        <translation>Von der Baumstruktur zur Ansicht wechseln oder zurück</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>&amp;Größerer Text</translation>
    </message>
    <message>
        <source>Show traces in larger letters</source>
        <translation>Traces in größerer Schrift anzeigen</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>&amp;Kleinerer Text</translation>
    </message>
    <message>
        <source>Show traces in smaller letters</source>
        <translation>Traces in kleinerer Schrift anzeigen</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>&amp;Normaler Text</translation>
    </message>
    <message>
        <source>Show traces in letters of the usual size</source>
        <translation>Traces in der üblichen Schriftgröße anzeigen</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
    <message>
        <source>Light or dark as the desktop is</source>
        <translation>Hell oder dunkel wie der Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Dark letters on a light ground</source>
        <translation>Dunkle Schrift auf hellem Grund</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>D&amp;unkel</translation>
    </message>
    <message>
        <source>Light letters on a dark ground</source>
        <translation>Helle Schrift auf dunklem Grund</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Hilfethemen</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Das Handbuch öffnen</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Show every key of the tool</source>
        <translation>Alle Tasten des Tools anzeigen</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Info...</translation>
    </message>
    <message>
        <source>Version and interface language</source>
        <translation>Version und Sprache der Oberfläche</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Log</translation>
    </message>
    <message>
        <source>&amp;Mark This Text</source>
        <translation>Diesen Text &amp;markieren</translation>
    </message>
    <message>
        <source>Keep the text that is looked for marked in a colour of its own</source>
        <translation>Den gesuchten Text in einer eigenen Farbe markiert lassen</translation>
    </message>
    <message>
        <source>Next Err&amp;or</source>
        <translation>Nächster &amp;Fehler</translation>
    </message>
    <message>
        <source>Go to the next line of an error</source>
        <translation>Zur nächsten Zeile mit einem Fehler gehen</translation>
    </message>
    <message>
        <source>P&amp;revious Error</source>
        <translation>Vor&amp;heriger Fehler</translation>
    </message>
    <message>
        <source>Go to the line of an error before</source>
        <translation>Zur vorherigen Zeile mit einem Fehler gehen</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>Nächste Warn&amp;ung</translation>
    </message>
    <message>
        <source>Go to the next line of a warning</source>
        <translation>Zur nächsten Zeile mit einer Warnung gehen</translation>
    </message>
    <message>
        <source>Prev&amp;ious Warning</source>
        <translation>Vorher&amp;ige Warnung</translation>
    </message>
    <message>
        <source>Go to the line of a warning before</source>
        <translation>Zur vorherigen Zeile mit einer Warnung gehen</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;Filtern...</translation>
    </message>
    <message>
        <source>Show or hide lines by what is in their columns</source>
        <translation>Zeilen nach dem Inhalt ihrer Spalten zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>&amp;Alle Zeilen zeigen</translation>
    </message>
    <message>
        <source>F&amp;ollow</source>
        <translation>F&amp;olgen</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>Zeilen zeigen, sobald sie kommen, solange die letzte Zeile die aktuelle ist</translation>
    </message>
    <message>
        <source>Open in &amp;Viewer</source>
        <translation>Im &amp;Viewer öffnen</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>Dieses Log im Viewer öffnen, der Logs jeder Größe zeigt</translation>
    </message>
    <message>
        <source>Filter by &amp;Column...</source>
        <translation>Nach &amp;Spalte filtern...</translation>
    </message>
    <message>
        <source>Show or hide lines by the values of a further column</source>
        <translation>Zeilen nach den Werten einer weiteren Spalte zeigen oder ausblenden</translation>
    </message>
    <message>
        <source>Saved Fil&amp;ters...</source>
        <translation>Gespeicherte Fil&amp;ter...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name, here or in the viewer</source>
        <translation>Einen Filter nehmen, der hier oder im Viewer unter einem Namen gespeichert wurde</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>Filter s&amp;peichern...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>Den Filter unter einem Namen in einer Datei speichern, die andere öffnen können</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>Filterdatei öff&amp;nen...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>Einen Filter aus einer Datei nehmen, die jemand gegeben hat</translation>
    </message>
</context>
<context>
    <name>FilterFiles</name>
    <message>
        <source>No filter was saved yet</source>
        <translation>Noch kein Filter wurde gespeichert</translation>
    </message>
    <message>
        <source>Save Filter</source>
        <translation>Filter speichern</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Open Filter File</source>
        <translation>Filterdatei öffnen</translation>
    </message>
    <message>
        <source>Filters (*.json)</source>
        <translation>Filter (*.json)</translation>
    </message>
    <message>
        <source>Saved as %1, without the values of times and traces.</source>
        <translation>Als %1 gespeichert, ohne die Werte von Zeiten und Traces.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The filter was not saved: %1.</source>
        <translation>Der Filter wurde nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>The filter&apos;s times and processes hold in the viewer, not in a single log.</source>
        <translation>Zeiten und Prozesse des Filters gelten im Viewer, nicht in einem einzelnen Log.</translation>
    </message>
    <message>
        <source>The filter was not taken: %1.</source>
        <translation>Der Filter wurde nicht genommen: %1.</translation>
    </message>
</context>
<context>
    <name>FilterTexts</name>
    <message>
        <source>&quot;%1&quot; of a filter is of another kind</source>
        <translation>„%1“ eines Filters ist von anderer Art</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot; to filter by</source>
        <translation>es gibt keine Spalte „%1“, nach der gefiltert werden kann</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a filter is no time</source>
        <translation>„%1“ eines Filters ist keine Zeit</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular expression: %2</source>
        <translation>„%1“ ist kein regulärer Ausdruck: %2</translation>
    </message>
</context>
<context>
    <name>FrameNeeds</name>
    <message>
        <source>End with the Newest Log</source>
        <translation>Mit dem neuesten Log enden</translation>
    </message>
    <message>
        <source>Looking at the logs...</source>
        <translation>Die Logs werden angesehen...</translation>
    </message>
    <message>
        <source>No logs were found in the server&apos;s log folder.</source>
        <translation>Im Logordner des Servers wurden keine Logs gefunden.</translation>
    </message>
    <message>
        <source>The logs run from %1 to %2.</source>
        <translation>Die Logs reichen von %1 bis %2.</translation>
    </message>
    <message>
        <source>No log has lines of this time frame.</source>
        <translation>Kein Log hat Zeilen aus diesem Zeitraum.</translation>
    </message>
    <message>
        <source>This time frame takes 1 log, %1.</source>
        <translation>Dieser Zeitraum nimmt 1 Log, %1.</translation>
    </message>
    <message>
        <source>This time frame takes %1 logs, %2.</source>
        <translation>Dieser Zeitraum nimmt %1 Logs, %2.</translation>
    </message>
</context>
<context>
    <name>GatherReport</name>
    <message>
        <source>The server names no current log of %1.</source>
        <translation>Der Server nennt kein aktuelles Protokoll von %1.</translation>
    </message>
    <message>
        <source>The current log of %1, %2, is not there.</source>
        <translation>Das aktuelle Protokoll von %1, %2, ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The current log of %1, %2, can&apos;t be looked at: %3.</source>
        <translation>Das aktuelle Protokoll von %1, %2, kann nicht eingesehen werden: %3.</translation>
    </message>
    <message>
        <source>The server&apos;s log folder %1 is not there.</source>
        <translation>Der Protokollordner %1 des Servers ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The logs in %1 could not be listed: %2.</source>
        <translation>Die Protokolle in %1 konnten nicht aufgelistet werden: %2.</translation>
    </message>
    <message>
        <source>%1 was passed over: %2.</source>
        <translation>%1 wurde übergangen: %2.</translation>
    </message>
    <message>
        <source>%1 was not gathered: it is not in %2.</source>
        <translation>%1 wurde nicht gesammelt: Es ist nicht in %2.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2.</source>
        <translation>%1 wurde nicht kopiert: %2.</translation>
    </message>
    <message>
        <source>%1 was copied in part: %2.</source>
        <translation>%1 wurde nur teilweise kopiert: %2.</translation>
    </message>
    <message>
        <source>%1 was not gathered as a whole: %2.</source>
        <translation>%1 wurde nicht vollständig gesammelt: %2.</translation>
    </message>
    <message>
        <source>%1 was read as far as line %3: %2.</source>
        <translation>%1 wurde bis Zeile %3 gelesen: %2.</translation>
    </message>
    <message>
        <source>Lines of %1 that were not stored: %3 (%2).</source>
        <translation>Nicht gespeicherte Zeilen von %1: %3 (%2).</translation>
    </message>
    <message>
        <source>%1 was cut while it was read.</source>
        <translation>%1 wurde während des Lesens gekürzt.</translation>
    </message>
    <message>
        <source>%1 was taken away while it was read.</source>
        <translation>%1 wurde während des Lesens entfernt.</translation>
    </message>
    <message>
        <source>%1 logs were not gathered as a whole, the first of them %2: %3.</source>
        <translation>%1 Protokolle wurden nicht vollständig gesammelt, als erstes %2: %3.</translation>
    </message>
    <message>
        <source>%1 has too many malformed lines, and was read no further than the eleventh.</source>
        <translation>%1 hat zu viele fehlerhafte Zeilen und wurde nur bis zur elften gelesen.</translation>
    </message>
    <message>
        <source>The %1 event log was not captured: %2.</source>
        <translation>Das Ereignisprotokoll %1 wurde nicht erfasst: %2.</translation>
    </message>
    <message>
        <source>The destination %1 can&apos;t be made: %2.</source>
        <translation>Das Ziel %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The destination %1 has gone.</source>
        <translation>Das Ziel %1 ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>No trace database was made: %1.</source>
        <translation>Es wurde keine Trace-Datenbank angelegt: %1.</translation>
    </message>
    <message>
        <source>The trace database is not complete: %1.</source>
        <translation>Die Trace-Datenbank ist nicht vollständig: %1.</translation>
    </message>
    <message>
        <source>The macro trace definitions could not all be stored: %1.</source>
        <translation>Nicht alle Makro-Trace-Definitionen konnten gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>The filters could not all be stored: %1.</source>
        <translation>Nicht alle Filter konnten gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>No cabinet was made.</source>
        <translation>Es wurde kein Archiv (.cab) angelegt.</translation>
    </message>
    <message>
        <source>No cabinet was made: the cabinet maker %1 is missing.</source>
        <translation>Es wurde kein Archiv (.cab) angelegt: Das Programm %1 fehlt.</translation>
    </message>
    <message>
        <source>No cabinet was made: %1.</source>
        <translation>Es wurde kein Archiv (.cab) angelegt: %1.</translation>
    </message>
    <message>
        <source>The site&apos;s cabinet maker is not the installed one, which made the cabinet in its place.</source>
        <translation>Das Programm cabmaker der Site ist nicht das installierte; dieses hat das Archiv an seiner Stelle angelegt.</translation>
    </message>
    <message>
        <source>%1 in the destination %2 would be lost: the gather makes a file or folder of that name and removes it again.</source>
        <translation>%1 im Ziel %2 ginge verloren: Das Sammeln legt eine Datei oder einen Ordner dieses Namens an und entfernt sie wieder.</translation>
    </message>
    <message>
        <source>%1 in the destination %2 is not a plain file, and nothing is written to such a one.</source>
        <translation>%1 im Ziel %2 ist keine gewöhnliche Datei; in eine solche wird nichts geschrieben.</translation>
    </message>
    <message>
        <source>Another gather is writing to %1; wait until it has ended, or name another folder.</source>
        <translation>Ein anderes Sammeln schreibt nach %1; warten Sie, bis es beendet ist, oder nennen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The gather was cancelled.</source>
        <translation>Das Sammeln wurde abgebrochen.</translation>
    </message>
    <message>
        <source>No line lies in the time frame.</source>
        <translation>Im Zeitraum liegt keine Zeile.</translation>
    </message>
    <message>
        <source>What was gathered is kept in %1.</source>
        <translation>Was gesammelt wurde, bleibt in %1.</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help - Orvan Diagnostic Tool</source>
        <translation>Hilfe - Orvan-Diagnosetool</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Was sie bewirkt</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>In lists and pages</source>
        <translation>In Listen und auf Seiten</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Opens the log or the node of the current row</source>
        <translation>Öffnet das Protokoll oder den Knoten der aktuellen Zeile</translation>
    </message>
    <message>
        <source>Open or close a node</source>
        <translation>Knoten öffnen oder schließen</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>Rechts, Links</translation>
    </message>
    <message>
        <source>In a tree</source>
        <translation>In einer Baumstruktur</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Ankreuzen</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Ticks or clears the current node of a page&apos;s tree</source>
        <translation>Kreuzt den aktuellen Knoten im Baum einer Seite an oder entfernt das Kreuz</translation>
    </message>
    <message>
        <source>Help on a page</source>
        <translation>Hilfe zu einer Seite</translation>
    </message>
    <message>
        <source>In a wizard or a sheet, and in the about box</source>
        <translation>In einem Assistenten, einem Einstellungsfenster und im Infofenster</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>Erste und letzte Zeile</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Pos1, Ende</translation>
    </message>
    <message>
        <source>In a list</source>
        <translation>In einer Liste</translation>
    </message>
    <message>
        <source>Close find or filter</source>
        <translation>Suche oder Filter schließen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Closes the bar in which the cursor is</source>
        <translation>Schließt die Leiste, in der sich der Cursor befindet</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Diagnostic logs (diag_*.txt data_*.txt *.log);;All files (*)</source>
        <translation>Diagnoseprotokolle (diag_*.txt data_*.txt *.log);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>This site has no %1 to show.</source>
        <translation>Diese Site hat kein %1, das angezeigt werden könnte.</translation>
    </message>
    <message>
        <source>The site %1 could not be opened: %2. Choose another one with Ctrl+Shift+O.</source>
        <translation>Die Site %1 konnte nicht geöffnet werden: %2. Wählen Sie mit Strg+Umschalt+O eine andere.</translation>
    </message>
    <message>
        <source>The manual is not beside the tool. Install it again to read it.</source>
        <translation>Das Handbuch ist nicht beim Tool vorhanden. Installieren Sie es neu, um es zu lesen.</translation>
    </message>
    <message>
        <source>it has no site.ini, registry.reg or drive_c in it</source>
        <translation>sie enthält weder site.ini noch registry.reg noch drive_c</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose a new folder.</source>
        <translation>In %1 konnte kein Beispielserver angelegt werden: %2. Wählen Sie einen neuen Ordner.</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose another folder.</source>
        <translation>In %1 konnte kein Beispielserver angelegt werden: %2. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The site was not closed cleanly: %1. The language of its event log may not be the first one; open it again.</source>
        <translation>Die Site wurde nicht ordnungsgemäß geschlossen: %1. Möglicherweise hat ihr Ereignisprotokoll nicht die ursprüngliche Sprache; öffnen Sie sie noch einmal.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date, so %2 stays. Type a date as it is written there.</source>
        <translation>„%1“ ist kein Datum, deshalb bleibt es bei %2. Geben Sie ein Datum in dieser Schreibweise ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time, so %2 stays. Type a time as it is written there.</source>
        <translation>„%1“ ist keine Uhrzeit, deshalb bleibt es bei %2. Geben Sie eine Uhrzeit in dieser Schreibweise ein.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be chosen here. The field now holds %2.</source>
        <translation>%1 kann hier nicht gewählt werden. Im Feld steht jetzt %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of megabytes, so the space for diagnostic files stays as it was.</source>
        <translation>„%1“ ist keine Anzahl von Megabyte, deshalb bleibt der Platz für Diagnosedateien, wie er war.</translation>
    </message>
    <message>
        <source>Not all of it was done: %1.</source>
        <translation>Nicht alles wurde ausgeführt: %1.</translation>
    </message>
    <message>
        <source>%1 can be read with the viewer (orvandiag-viewer), which is not installed here.</source>
        <translation>%1 kann mit dem Betrachter (orvandiag-viewer) gelesen werden, der hier nicht installiert ist.</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>Device I/O error</source>
        <translation>E/A-Fehler des Geräts</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Datenträger voll</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>Datei ist schon vorhanden</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lesen über das Dateiende hinaus</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Zu wenig Speicher</translation>
    </message>
    <message>
        <source>Out of string space</source>
        <translation>Zu wenig Platz für Text</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Fehler beim Zugriff auf Pfad oder Datei</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
</context>
<context>
    <name>ResultPlace</name>
    <message>
        <source>On this machine: %1</source>
        <translation>Auf diesem Rechner: %1</translation>
    </message>
    <message>
        <source>No file manager was found on this machine. The results are in %1.</source>
        <translation>Auf diesem Rechner wurde kein Dateimanager gefunden. Die Ergebnisse liegen in %1.</translation>
    </message>
</context>
<context>
    <name>SavedFilters</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a filter</source>
        <translation>„%1“ kann kein Name eines Filters sein</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is no filter</source>
        <translation>%1 ist kein Filter</translation>
    </message>
</context>
<context>
    <name>SelectionNeeds</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>1 server log is chosen, %1. Free at the destination: %2.</source>
        <translation>1 Serverlog ist gewählt, %1. Frei am Ziel: %2.</translation>
    </message>
    <message>
        <source>%1 server logs are chosen, %2. Free at the destination: %3.</source>
        <translation>%1 Serverlogs sind gewählt, %2. Frei am Ziel: %3.</translation>
    </message>
    <message>
        <source>That is not enough room.</source>
        <translation>Der Platz reicht nicht.</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Open a Site</source>
        <translation>Site öffnen</translation>
    </message>
    <message>
        <source>The folder of a server, or of a copy of one. A folder that is dropped here is opened, too.</source>
        <translation>Der Ordner eines Servers oder der Kopie eines Servers. Auch ein Ordner, der hier abgelegt wird, wird geöffnet.</translation>
    </message>
    <message>
        <source>Make a Sample Server</source>
        <translation>Beispielserver anlegen</translation>
    </message>
    <message>
        <source>A server with made-up logs, to try things on, in a new folder.</source>
        <translation>Ein Server mit erfundenen Protokollen zum Ausprobieren, in einem neuen Ordner.</translation>
    </message>
    <message>
        <source>Read the Manual</source>
        <translation>Handbuch lesen</translation>
    </message>
    <message>
        <source>What the tool does, and how to go about it.</source>
        <translation>Was das Werkzeug tut und wie man damit umgeht.</translation>
    </message>
    <message>
        <source>No site is open</source>
        <translation>Es ist keine Site geöffnet</translation>
    </message>
    <message>
        <source>A site is a server in a folder, with its logs and settings.</source>
        <translation>Eine Site ist ein Server in einem Ordner, mit seinen Protokollen und Einstellungen.</translation>
    </message>
</context>
<context>
    <name>desktop::ConsolePane</name>
    <message>
        <source>Server tree</source>
        <translation>Baumstruktur des Servers</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>Protokolldateien</translation>
    </message>
    <message>
        <source>The tool is still finishing what was cancelled. One moment.</source>
        <translation>Das Tool beendet noch, was abgebrochen wurde. Einen Moment.</translation>
    </message>
    <message>
        <source>That did not work: %1. Press F5 to renew what is shown, and try again.</source>
        <translation>Das hat nicht funktioniert: %1. Drücken Sie F5, um die Anzeige zu erneuern, und versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>desktop::DetailsPane</name>
    <message>
        <source>Fields of the line</source>
        <translation>Felder der Zeile</translation>
    </message>
    <message>
        <source>Trace of the line</source>
        <translation>Trace der Zeile</translation>
    </message>
    <message>
        <source>Select a line to read all of it here.</source>
        <translation>Wählen Sie eine Zeile aus, um sie hier vollständig zu lesen.</translation>
    </message>
</context>
<context>
    <name>desktop::FilterBar</name>
    <message>
        <source>Only rows with this text</source>
        <translation>Nur Zeilen mit diesem Text</translation>
    </message>
    <message>
        <source>Filter by text</source>
        <translation>Nach Text filtern</translation>
    </message>
    <message>
        <source>hide &amp;matches</source>
        <translation>&amp;Treffer ausblenden</translation>
    </message>
    <message>
        <source>Hide the rows with the text instead of showing them</source>
        <translation>Die Zeilen mit dem Text ausblenden, statt sie anzuzeigen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Show every row again (Ctrl+Shift+A)</source>
        <translation>Wieder alle Zeilen anzeigen (Strg+Umschalt+A)</translation>
    </message>
    <message>
        <source>Close the filter bar and show every row (Esc)</source>
        <translation>Die Filterleiste schließen und alle Zeilen anzeigen (Esc)</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>Take the text for a regular expression</source>
        <translation>Den Text als regulären Ausdruck verstehen</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß- und Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Filter by a further column (Ctrl+Alt+F)</source>
        <translation>Nach einer weiteren Spalte filtern (Strg+Alt+F)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>nicht %1</translation>
    </message>
    <message>
        <source>Let go: %1</source>
        <translation>Aufheben: %1</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
</context>
<context>
    <name>desktop::FilterButton</name>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>&amp;Hide the ticked ones</source>
        <translation>Ausgewählte &amp;ausblenden</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>außer %1</translation>
    </message>
    <message>
        <source>%1: %2 </source>
        <translation>%1: %2 </translation>
    </message>
    <message>
        <source>Filter by %1: %2</source>
        <translation>Nach %1 filtern: %2</translation>
    </message>
    <message>
        <source>Show or hide rows by %1</source>
        <translation>Zeilen nach %1 ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Values with this text</source>
        <translation>Werte mit diesem Text</translation>
    </message>
    <message>
        <source>Look among the values</source>
        <translation>Unter den Werten suchen</translation>
    </message>
    <message>
        <source>%1 more: type to look among them</source>
        <translation>%1 weitere: tippen, um unter ihnen zu suchen</translation>
    </message>
</context>
<context>
    <name>desktop::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Go to &amp;time:</source>
        <translation>Gehe &amp;zu Uhrzeit:</translation>
    </message>
    <message>
        <source>Text in any column</source>
        <translation>Text in einer beliebigen Spalte</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>such as 15:23:07</source>
        <translation>z. B. 15:23:07</translation>
    </message>
    <message>
        <source>Time to go to</source>
        <translation>Gesuchte Uhrzeit</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>Find previous (Shift+F3)</source>
        <translation>Vorherigen Treffer suchen (Umschalt+F3)</translation>
    </message>
    <message>
        <source>Find next (F3)</source>
        <translation>Weitersuchen (F3)</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Die Suchleiste schließen (Esc)</translation>
    </message>
    <message>
        <source>No hits</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>Ex&amp;pression</source>
        <translation>Ausdr&amp;uck</translation>
    </message>
    <message>
        <source>Take the text for a regular expression</source>
        <translation>Den Text als regulären Ausdruck verstehen</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß- und Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>Diesen Text markiert lassen (Strg+M)</translation>
    </message>
    <message>
        <source>Type the text to keep marked</source>
        <translation>Den Text eingeben, der markiert bleibt</translation>
    </message>
    <message>
        <source>No further colour is free</source>
        <translation>Keine weitere Farbe ist frei</translation>
    </message>
    <message>
        <source>Mark %1 no more</source>
        <translation>%1 nicht mehr markieren</translation>
    </message>
</context>
<context>
    <name>desktop::GrowthBar</name>
    <message>
        <source>New lines</source>
        <translation>Neue Zeilen</translation>
    </message>
    <message>
        <source>Read the log again, to its present end (F5)</source>
        <translation>Das Log bis zu seinem jetzigen Ende neu lesen (F5)</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>Im Vie&amp;wer öffnen</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>Dieses Log im Viewer öffnen, der Logs jeder Größe zeigt</translation>
    </message>
    <message>
        <source>Foll&amp;ow</source>
        <translation>F&amp;olgen</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>Zeilen zeigen, sobald sie kommen, solange die letzte Zeile die aktuelle ist</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>Neu le&amp;sen</translation>
    </message>
</context>
<context>
    <name>desktop::LogView</name>
    <message>
        <source>Log lines</source>
        <translation>Protokollzeilen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in these lines.</source>
        <translation>&quot;%1&quot; kommt in diesen Zeilen nicht vor.</translation>
    </message>
    <message>
        <source>Went on from the top.</source>
        <translation>Am Anfang fortgesetzt.</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>Am Ende fortgesetzt.</translation>
    </message>
    <message>
        <source>Type a time such as 15:23</source>
        <translation>Uhrzeit eingeben, z. B. 15:23</translation>
    </message>
    <message>
        <source>No line at %1 or later</source>
        <translation>Keine Zeile um %1 oder später</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Line %1 is marked.</source>
        <translation>Zeile %1 hat ein Lesezeichen.</translation>
    </message>
    <message>
        <source>Line %1 is not marked any more.</source>
        <translation>Zeile %1 hat kein Lesezeichen mehr.</translation>
    </message>
    <message>
        <source>No line of this log is marked. Ctrl+B marks one.</source>
        <translation>Keine Zeile dieses Protokolls hat ein Lesezeichen. Strg+B setzt eines.</translation>
    </message>
    <message>
        <source>The marked lines are hidden by the filter.</source>
        <translation>Die Zeilen mit Lesezeichen sind durch den Filter ausgeblendet.</translation>
    </message>
    <message>
        <source>No line of this log is marked any more.</source>
        <translation>Keine Zeile dieses Protokolls hat mehr ein Lesezeichen.</translation>
    </message>
    <message>
        <source>&amp;Show only %1 %2</source>
        <translation>&amp;Nur %1 %2 anzeigen</translation>
    </message>
    <message>
        <source>&amp;Hide %1 %2</source>
        <translation>%1 %2 &amp;ausblenden</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>&amp;Lesezeichen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>Als &amp;CSV kopieren</translation>
    </message>
    <message>
        <source>Marked line %1: %2</source>
        <translation>Zeile %1 mit Lesezeichen: %2</translation>
    </message>
    <message>
        <source>Hit in line %1: %2</source>
        <translation>Treffer in Zeile %1: %2</translation>
    </message>
    <message>
        <source>Error in line %1: %2</source>
        <translation>Fehler in Zeile %1: %2</translation>
    </message>
    <message>
        <source>Warning in line %1: %2</source>
        <translation>Warnung in Zeile %1: %2</translation>
    </message>
    <message>
        <source>bookmark</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>No line on show tells of an error.</source>
        <translation>Keine gezeigte Zeile meldet einen Fehler.</translation>
    </message>
    <message>
        <source>No line on show tells of a warning.</source>
        <translation>Keine gezeigte Zeile meldet eine Warnung.</translation>
    </message>
    <message>
        <source>This log has grown past the %1 bytes that the tool shows.</source>
        <translation>Dieses Log ist über die %1 Bytes gewachsen, die das Werkzeug zeigt.</translation>
    </message>
    <message>
        <source>This log was begun anew.</source>
        <translation>Dieses Log wurde neu begonnen.</translation>
    </message>
    <message>
        <source>Following: lines are shown as they come.</source>
        <translation>Folgt: Zeilen werden gezeigt, sobald sie kommen.</translation>
    </message>
    <message>
        <source>%1 new lines wait. Go to the last line to see them.</source>
        <translation>%1 neue Zeilen warten. Zur letzten Zeile gehen, um sie zu sehen.</translation>
    </message>
    <message>
        <source>1 new line</source>
        <translation>1 neue Zeile</translation>
    </message>
    <message>
        <source>%1 new lines</source>
        <translation>%1 neue Zeilen</translation>
    </message>
</context>
<context>
    <name>desktop::MainWindow</name>
    <message>
        <source>This site is read-only: logs can be read, but traces and settings cannot be changed. Make its folder writable, or open a copy.</source>
        <translation>Diese Site ist schreibgeschützt: Protokolle können gelesen, Traces und Einstellungen aber nicht geändert werden. Erlauben Sie das Schreiben in ihrem Ordner, oder öffnen Sie eine Kopie.</translation>
    </message>
    <message>
        <source>The server&apos;s database could not be opened: %1. Logs can be read and gathered, but traces and settings cannot be changed.</source>
        <translation>Die Datenbank des Servers konnte nicht geöffnet werden: %1. Protokolle können gelesen und gesammelt, Traces und Einstellungen aber nicht geändert werden.</translation>
    </message>
    <message>
        <source>The site %1 is no longer there. Put the folder back and press F5, or open another site with Ctrl+Shift+O.</source>
        <translation>Die Site %1 ist nicht mehr vorhanden. Stellen Sie den Ordner wieder her, und drücken Sie F5, oder öffnen Sie mit Strg+Umschalt+O eine andere Site.</translation>
    </message>
    <message>
        <source>The catalogue of your language (%1) is missing or damaged, so the tool&apos;s texts are in English. Choose another language in the about box (Ctrl+F1).</source>
        <translation>Der Katalog für Ihre Sprache (%1) fehlt oder ist beschädigt, deshalb sind die Texte des Tools englisch. Wählen Sie im Infofenster (Strg+F1) eine andere Sprache.</translation>
    </message>
    <message>
        <source>The tool&apos;s own log can&apos;t be written: %1. The tool goes on without it.</source>
        <translation>Das eigene Protokoll des Tools kann nicht geschrieben werden: %1. Das Tool arbeitet ohne es weiter.</translation>
    </message>
    <message>
        <source>Orvan Diagnostic Tool</source>
        <translation>Orvan-Diagnosetool</translation>
    </message>
    <message>
        <source>1 row copied.</source>
        <translation>1 Zeile kopiert.</translation>
    </message>
    <message>
        <source>%1 rows copied.</source>
        <translation>%1 Zeilen kopiert.</translation>
    </message>
    <message>
        <source>Open Site: the folder of a server, with site.ini, registry.reg or drive_c</source>
        <translation>Site öffnen: der Ordner eines Servers mit site.ini, registry.reg oder drive_c</translation>
    </message>
    <message>
        <source>Make Sample Server in a New Folder</source>
        <translation>Beispielserver in einem neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>The language was not changed: %1. Choose it again.</source>
        <translation>Die Sprache wurde nicht geändert: %1. Wählen Sie sie noch einmal.</translation>
    </message>
    <message>
        <source>The gather is being ended. The window closes in a moment.</source>
        <translation>Das Sammeln wird beendet. Das Fenster schließt sich gleich.</translation>
    </message>
    <message>
        <source>&amp;Recent Sites</source>
        <translation>&amp;Zuletzt geöffnete Sites</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>&amp;Symbolleiste</translation>
    </message>
    <message>
        <source>Show or hide the buttons below the menus</source>
        <translation>Die Schaltflächen unter den Menüs ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The site on show: %1</source>
        <translation>Die angezeigte Site: %1</translation>
    </message>
    <message>
        <source>The gather is being ended. Try again in a moment.</source>
        <translation>Das Sammeln wird beendet. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>This site is read-only: choose a destination outside of it.</source>
        <translation>Diese Site ist schreibgeschützt: Wählen Sie ein Ziel außerhalb von ihr.</translation>
    </message>
    <message>
        <source>This site is read-only: what is chosen here is not written.</source>
        <translation>Diese Site ist schreibgeschützt: Was hier gewählt wird, wird nicht geschrieben.</translation>
    </message>
    <message>
        <source>The server was not told to start new log files: the signal in its registry stayed what it was.</source>
        <translation>Dem Server wurde nicht mitgeteilt, neue Protokolldateien zu beginnen: Das Signal in seiner Registrierung blieb, was es war.</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1 (nicht vorhanden)</translation>
    </message>
    <message>
        <source>&amp;Forget Folders That Are Not There</source>
        <translation>Nicht vorhandene Ordner &amp;vergessen</translation>
    </message>
    <message>
        <source>Sample Server</source>
        <translation>Beispielserver</translation>
    </message>
    <message>
        <source>Col&amp;umns</source>
        <translation>Spal&amp;ten</translation>
    </message>
    <message>
        <source>Sample server: %1</source>
        <translation>Beispielserver: %1</translation>
    </message>
</context>
<context>
    <name>desktop::MomentField</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>Pick a day from a calendar (F4)</source>
        <translation>Einen Tag aus einem Kalender wählen (F4)</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>h:mm:ss AP</source>
        <translation>HH:mm:ss</translation>
    </message>
    <message>
        <source>en_US</source>
        <extracomment>The language and country by which a calendar names its days.</extracomment>
        <translation>de_DE</translation>
    </message>
</context>
<context>
    <name>desktop::ScopeModel</name>
    <message>
        <source>d MMM yyyy</source>
        <translation>d. MMM yyyy</translation>
    </message>
    <message>
        <source>d MMM</source>
        <translation>d. MMM</translation>
    </message>
    <message>
        <source>%1 · current</source>
        <translation>%1 · aktuell</translation>
    </message>
</context>
<context>
    <name>desktop::SheetDialog</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig stellen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Ü&amp;bernehmen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>That did not work: %1. Try again, or press Cancel.</source>
        <translation>Das hat nicht funktioniert: %1. Versuchen Sie es noch einmal, oder klicken Sie auf Abbrechen.</translation>
    </message>
</context>
<context>
    <name>desktop::TooLargePane</name>
    <message>
        <source>This log has %1 bytes, and the tool shows logs of up to %2. The viewer shows logs of any size.</source>
        <translation>Dieses Log hat %1 Bytes, und das Werkzeug zeigt Logs bis %2. Der Viewer zeigt Logs jeder Größe.</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>Im Vie&amp;wer öffnen</translation>
    </message>
</context>
</TS>
