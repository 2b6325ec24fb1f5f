<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>Show all rows and first columns, and forget how these sources were seen last; bookmarks and notes stay</source>
        <translation>Alle Zeilen und die anfänglichen Spalten zeigen und vergessen, wie diese Quellen zuletzt zu sehen waren; Lesezeichen und Notizen bleiben</translation>
    </message>
    <message>
        <source>Start &amp;Afresh</source>
        <translation>&amp;Neu beginnen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;lter</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>&amp;Nur</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>A&amp;usblenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;nsicht</translation>
    </message>
    <message>
        <source>T&amp;imes</source>
        <translation>Ze&amp;iten</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Open Files...</source>
        <translation>Dateien ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Add logs, trace databases or cabinets to what is on show</source>
        <translation>Logs, Trace-Datenbanken oder CAB-Dateien zu dem hinzunehmen, was gezeigt wird</translation>
    </message>
    <message>
        <source>Open &amp;Folder...</source>
        <translation>&amp;Ordner öffnen...</translation>
    </message>
    <message>
        <source>Add all logs of a folder to what is on show</source>
        <translation>Alle Logs eines Ordners zu dem hinzunehmen, was gezeigt wird</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Write the rows on show to a file: CSV, JSON or text</source>
        <translation>Die gezeigten Zeilen in eine Datei schreiben: CSV, JSON oder Text</translation>
    </message>
    <message>
        <source>&amp;Stop Reading</source>
        <translation>Lesen an&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>B&amp;eenden</translation>
    </message>
    <message>
        <source>Close the viewer</source>
        <translation>Den Betrachter schließen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected rows as they are shown, one line each</source>
        <translation>Die ausgewählten Zeilen kopieren, wie sie gezeigt werden, jede als eine Textzeile</translation>
    </message>
    <message>
        <source>Copy &amp;Lines</source>
        <translation>&amp;Rohzeilen kopieren</translation>
    </message>
    <message>
        <source>Copy the lines of the selected rows as they stand in their files</source>
        <translation>Die Zeilen kopieren, wie sie in ihren Dateien stehen</translation>
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
        <source>Copy Val&amp;ue</source>
        <translation>&amp;Wert kopieren</translation>
    </message>
    <message>
        <source>Copy the field or the part of the trace that is selected in the details</source>
        <translation>Das Feld oder den Teil des Traces kopieren, der in den Details ausgewählt ist</translation>
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
        <source>&amp;Bookmark</source>
        <translation>&amp;Lesezeichen</translation>
    </message>
    <message>
        <source>Set a bookmark on the current row, or take it away</source>
        <translation>Ein Lesezeichen auf die aktuelle Zeile setzen oder es entfernen</translation>
    </message>
    <message>
        <source>&amp;Note...</source>
        <translation>&amp;Notiz...</translation>
    </message>
    <message>
        <source>Keep a text with the current row, in a file beside its log</source>
        <translation>Einen Text zur aktuellen Zeile aufheben, in einer Datei neben ihrem Log</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>Lesezeichen lösch&amp;en</translation>
    </message>
    <message>
        <source>Take every bookmark away; notes stay</source>
        <translation>Alle Lesezeichen entfernen; Notizen bleiben</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>Look for a text in the rows on show</source>
        <translation>Einen Text in den gezeigten Zeilen suchen</translation>
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
        <source>&amp;Keep Text Marked</source>
        <translation>Te&amp;xt markiert lassen</translation>
    </message>
    <message>
        <source>Mark the text that is looked for in a colour of its own from now on</source>
        <translation>Den gesuchten Text ab jetzt in einer eigenen Farbe markieren</translation>
    </message>
    <message>
        <source>Next &amp;Error</source>
        <translation>Nächster F&amp;ehler</translation>
    </message>
    <message>
        <source>Go to the next row of an error</source>
        <translation>Zur nächsten Zeile mit einem Fehler gehen</translation>
    </message>
    <message>
        <source>Pre&amp;vious Error</source>
        <translation>&amp;Voriger Fehler</translation>
    </message>
    <message>
        <source>Go to the row of an error before</source>
        <translation>Zur vorigen Zeile mit einem Fehler gehen</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>Nächste Warn&amp;ung</translation>
    </message>
    <message>
        <source>Go to the next row of a warning</source>
        <translation>Zur nächsten Zeile mit einer Warnung gehen</translation>
    </message>
    <message>
        <source>Previous W&amp;arning</source>
        <translation>Vorige W&amp;arnung</translation>
    </message>
    <message>
        <source>Go to the row of a warning before</source>
        <translation>Zur vorigen Zeile mit einer Warnung gehen</translation>
    </message>
    <message>
        <source>&amp;Time...</source>
        <translation>&amp;Zeit...</translation>
    </message>
    <message>
        <source>Go to the rows of a time</source>
        <translation>Zu den Zeilen einer Zeit gehen</translation>
    </message>
    <message>
        <source>Next Bookma&amp;rk</source>
        <translation>&amp;Nächstes Lesezeichen</translation>
    </message>
    <message>
        <source>Go to the next row with a bookmark or a note</source>
        <translation>Zur nächsten Zeile mit Lesezeichen oder Notiz gehen</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>Vo&amp;rheriges Lesezeichen</translation>
    </message>
    <message>
        <source>Go to the row with a bookmark or a note before</source>
        <translation>Zur vorigen Zeile mit Lesezeichen oder Notiz gehen</translation>
    </message>
    <message>
        <source>&amp;Bookmarks and Notes...</source>
        <translation>&amp;Lesezeichen und Notizen...</translation>
    </message>
    <message>
        <source>List all bookmarks and notes, to go to one</source>
        <translation>Alle Lesezeichen und Notizen auflisten, um zu einer zu gehen</translation>
    </message>
    <message>
        <source>&amp;Texts...</source>
        <translation>&amp;Texte...</translation>
    </message>
    <message>
        <source>Show rows that have a text, or that have it not</source>
        <translation>Zeilen zeigen, die einen Text haben oder nicht haben</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>&amp;Alle Zeilen zeigen</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>Den Filter aufheben</translation>
    </message>
    <message>
        <source>&amp;Macro Traces...</source>
        <translation>&amp;Makro-Traces...</translation>
    </message>
    <message>
        <source>Show what a macro trace of the opened databases turned on</source>
        <translation>Zeigen, was ein Makro-Trace der geöffneten Datenbanken eingeschaltet hat</translation>
    </message>
    <message>
        <source>Sa&amp;ved Filters...</source>
        <translation>Gespe&amp;icherte Filter...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name</source>
        <translation>Einen Filter nehmen, der unter einem Namen gespeichert ist</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>Filter &amp;speichern...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>Den Filter unter einem Namen speichern, in einer Datei, die andere öffnen können</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>Filter&amp;datei öffnen...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>Einen Filter aus einer Datei nehmen, die jemand gegeben hat</translation>
    </message>
    <message>
        <source>&amp;Narrow Times</source>
        <translation>Zeitraum &amp;verengen</translation>
    </message>
    <message>
        <source>Show half of the time, around the current row</source>
        <translation>Die halbe Zeit um die aktuelle Zeile zeigen</translation>
    </message>
    <message>
        <source>&amp;Widen Times</source>
        <translation>Zeitraum er&amp;weitern</translation>
    </message>
    <message>
        <source>Show twice the time, around the current row</source>
        <translation>Die doppelte Zeit um die aktuelle Zeile zeigen</translation>
    </message>
    <message>
        <source>All T&amp;imes</source>
        <translation>Alle &amp;Zeiten</translation>
    </message>
    <message>
        <source>Show rows of all times</source>
        <translation>Zeilen aller Zeiten zeigen</translation>
    </message>
    <message>
        <source>This &amp;Process</source>
        <translation>Diesen &amp;Prozess</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s process alone</source>
        <translation>Nur die Zeilen des Prozesses der aktuellen Zeile zeigen</translation>
    </message>
    <message>
        <source>This &amp;Component</source>
        <translation>Diese &amp;Komponente</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s component alone</source>
        <translation>Nur die Zeilen der Komponente der aktuellen Zeile zeigen</translation>
    </message>
    <message>
        <source>This &amp;Source</source>
        <translation>Diese &amp;Quelle</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s source alone</source>
        <translation>Nur die Zeilen der Quelle der aktuellen Zeile zeigen</translation>
    </message>
    <message>
        <source>This &amp;Level</source>
        <translation>Diese &amp;Stufe</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s level alone</source>
        <translation>Nur die Zeilen der Stufe der aktuellen Zeile zeigen</translation>
    </message>
    <message>
        <source>This C&amp;all</source>
        <translation>Diesen &amp;Anruf</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s call alone, in all processes</source>
        <translation>Nur die Zeilen des Anrufs der aktuellen Zeile zeigen, in allen Prozessen</translation>
    </message>
    <message>
        <source>This P&amp;ort</source>
        <translation>Diesen P&amp;ort</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s port alone</source>
        <translation>Nur die Zeilen des Ports der aktuellen Zeile zeigen</translation>
    </message>
    <message>
        <source>This &amp;Thread</source>
        <translation>Diesen &amp;Thread</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s thread alone</source>
        <translation>Nur die Zeilen des Threads der aktuellen Zeile zeigen</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s process</source>
        <translation>Die Zeilen des Prozesses der aktuellen Zeile ausblenden</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s component</source>
        <translation>Die Zeilen der Komponente der aktuellen Zeile ausblenden</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s source</source>
        <translation>Die Zeilen der Quelle der aktuellen Zeile ausblenden</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s level</source>
        <translation>Die Zeilen der Stufe der aktuellen Zeile ausblenden</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Werte</translation>
    </message>
    <message>
        <source>Show the values of processes, components, sources and levels beside the rows</source>
        <translation>Die Werte von Prozessen, Komponenten, Quellen und Stufen neben den Zeilen zeigen</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Show all of the current row below the rows</source>
        <translation>Alles von der aktuellen Zeile unter den Zeilen zeigen</translation>
    </message>
    <message>
        <source>C&amp;alls</source>
        <translation>&amp;Anrufe</translation>
    </message>
    <message>
        <source>List the calls of the rows on show below them</source>
        <translation>Die Anrufe der gezeigten Zeilen darunter auflisten</translation>
    </message>
    <message>
        <source>T&amp;his Call</source>
        <translation>&amp;Dieser Anruf</translation>
    </message>
    <message>
        <source>Show the lines of the current row&apos;s call over time, in all processes</source>
        <translation>Die Zeilen des Anrufs der aktuellen Zeile über der Zeit zeigen, in allen Prozessen</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>&amp;Anderer Bereich</translation>
    </message>
    <message>
        <source>Go from the rows to the values, or back</source>
        <translation>Von den Zeilen zu den Werten gehen oder zurück</translation>
    </message>
    <message>
        <source>&amp;Follow</source>
        <translation>&amp;Folgen</translation>
    </message>
    <message>
        <source>Show rows that come to the logs as they grow, and keep the end in sight</source>
        <translation>Zeilen zeigen, die zu wachsenden Logs kommen, und das Ende im Blick behalten</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Spalten...</translation>
    </message>
    <message>
        <source>Show or hide columns of the table</source>
        <translation>Spalten der Tabelle ein- oder ausblenden</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>&amp;Größerer Text</translation>
    </message>
    <message>
        <source>Show rows in larger letters</source>
        <translation>Zeilen in größerer Schrift zeigen</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>&amp;Kleinerer Text</translation>
    </message>
    <message>
        <source>Show rows in smaller letters</source>
        <translation>Zeilen in kleinerer Schrift zeigen</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>&amp;Normaler Text</translation>
    </message>
    <message>
        <source>Show rows in letters of the usual size</source>
        <translation>Zeilen in der üblichen Schriftgröße zeigen</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;Uhrzeit</translation>
    </message>
    <message>
        <source>Show when each row was written</source>
        <translation>Zeigen, wann jede Zeile geschrieben wurde</translation>
    </message>
    <message>
        <source>Since Row &amp;Before</source>
        <translation>Seit der Zeile &amp;davor</translation>
    </message>
    <message>
        <source>Show how long after the row above each row was written</source>
        <translation>Zeigen, wie lange nach der Zeile darüber jede Zeile geschrieben wurde</translation>
    </message>
    <message>
        <source>Since &amp;Marked Row</source>
        <translation>Seit der &amp;markierten Zeile</translation>
    </message>
    <message>
        <source>Show how long before or after the marked row each row was written</source>
        <translation>Zeigen, wie lange vor oder nach der markierten Zeile jede Zeile geschrieben wurde</translation>
    </message>
    <message>
        <source>Mar&amp;k This Row</source>
        <translation>Diese Zeile mar&amp;kieren</translation>
    </message>
    <message>
        <source>Tell times from the current row</source>
        <translation>Zeiten ab der aktuellen Zeile angeben</translation>
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
        <source>Show all texts of the window in this language</source>
        <translation>Alle Texte des Fensters in dieser Sprache zeigen</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Info...</translation>
    </message>
    <message>
        <source>Tell the version</source>
        <translation>Die Version nennen</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Hilfethemen</translation>
    </message>
    <message>
        <source>Open the manual at the page of the viewer</source>
        <translation>Das Handbuch bei der Seite des Betrachters öffnen</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>&amp;Tasten</translation>
    </message>
    <message>
        <source>Show every key of the viewer</source>
        <translation>Alle Tasten des Betrachters zeigen</translation>
    </message>
    <message>
        <source>End what is being opened, read, copied or exported; the rows so far stay</source>
        <translation>Öffnen, Lesen, Kopieren oder Exportieren beenden; die bisherigen Zeilen bleiben</translation>
    </message>
</context>
<context>
    <name>FileTarget</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
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
    <name>NoteTexts</name>
    <message>
        <source>a note is no object</source>
        <translation>eine Notiz ist kein Objekt</translation>
    </message>
    <message>
        <source>a note has no bookmark or text</source>
        <translation>eine Notiz hat kein Lesezeichen oder keinen Text</translation>
    </message>
    <message>
        <source>it is none of notes</source>
        <translation>sie ist keine Datei mit Notizen</translation>
    </message>
    <message>
        <source>it has no version</source>
        <translation>sie hat keine Version</translation>
    </message>
    <message>
        <source>it has no notes</source>
        <translation>sie hat keine Notizen</translation>
    </message>
</context>
<context>
    <name>NotesFile</name>
    <message>
        <source>The notes in %1 can&apos;t be read, and stay as they are: %2</source>
        <translation>Die Notizen in %1 können nicht gelesen werden und bleiben, wie sie sind: %2</translation>
    </message>
    <message>
        <source>The notes in %1 are those of a newer viewer, and are not shown</source>
        <translation>Die Notizen in %1 sind von einem neueren Betrachter und werden nicht gezeigt</translation>
    </message>
    <message>
        <source>The notes in %1 can&apos;t be read: %2</source>
        <translation>Die Notizen in %1 können nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Somebody else has changed the note on line %1 of %2, too: both texts are kept</source>
        <translation>Jemand anders hat die Notiz zu Zeile %1 von %2 auch geändert: beide Texte bleiben</translation>
    </message>
    <message>
        <source>No notes can be written beside %1 (%2). They are kept in %3.</source>
        <translation>Neben %1 können keine Notizen geschrieben werden (%2). Sie werden in %3 aufgehoben.</translation>
    </message>
    <message>
        <source>The notes on %1 can&apos;t be kept, neither beside it (%2) nor in %3 (%4)</source>
        <translation>Die Notizen zu %1 können nicht aufgehoben werden, weder daneben (%2) noch in %3 (%4)</translation>
    </message>
    <message>
        <source>The damaged notes are kept in %1</source>
        <translation>Die beschädigten Notizen sind in %1 aufgehoben</translation>
    </message>
    <message>
        <source>The notes in %1 stay there, though those beside the log go on: %2</source>
        <translation>Die Notizen in %1 bleiben dort, neben dem Log geht es aber weiter: %2</translation>
    </message>
    <message>
        <source>a newer viewer has written there</source>
        <translation>ein neuerer Betrachter hat dort geschrieben</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>es ist nicht lesbar</translation>
    </message>
    <message>
        <source>%1 does not say what was written to it</source>
        <translation>%1 enthält nicht, was hineingeschrieben wurde</translation>
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
        <source>In the rows</source>
        <translation>In den Zeilen</translation>
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
        <source>End stays at the end of logs that are followed</source>
        <translation>Ende bleibt am Ende von Logs, denen gefolgt wird</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Shift+Up, Shift+Down</source>
        <translation>Umschalt+Auf, Umschalt+Ab</translation>
    </message>
    <message>
        <source>Selects rows from the current one on</source>
        <translation>Wählt Zeilen von der aktuellen an aus</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>Seitwärts</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Links, Rechts</translation>
    </message>
    <message>
        <source>Shows the rest of long rows</source>
        <translation>Zeigt den Rest langer Zeilen</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menü der Zeile</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>What can be done with the current row</source>
        <translation>Was mit der aktuellen Zeile getan werden kann</translation>
    </message>
    <message>
        <source>In the values</source>
        <translation>In den Werten</translation>
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
        <source>Shows or hides the rows of the value</source>
        <translation>Zeigt oder verbirgt die Zeilen des Wertes</translation>
    </message>
    <message>
        <source>Only This</source>
        <translation>Nur dieser Wert</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Shows the rows of the value alone, or all again</source>
        <translation>Zeigt nur die Zeilen des Wertes oder wieder alle</translation>
    </message>
    <message>
        <source>Open or close a group</source>
        <translation>Eine Gruppe öffnen oder schließen</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>Rechts, Links</translation>
    </message>
    <message>
        <source>Such as all components</source>
        <translation>Etwa alle Komponenten</translation>
    </message>
    <message>
        <source>In the bars of find and filter</source>
        <translation>In den Leisten für Suche und Filter</translation>
    </message>
    <message>
        <source>Next and previous hit</source>
        <translation>Nächster und voriger Treffer</translation>
    </message>
    <message>
        <source>Enter, Shift+Enter</source>
        <translation>Eingabe, Umschalt+Eingabe</translation>
    </message>
    <message>
        <source>In the text to find</source>
        <translation>Im gesuchten Text</translation>
    </message>
    <message>
        <source>Close find</source>
        <translation>Suche schließen</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Ends the marks of the text, but for those kept</source>
        <translation>Beendet die Markierung des Textes, bis auf behaltene</translation>
    </message>
    <message>
        <source>Back to the rows</source>
        <translation>Zurück zu den Zeilen</translation>
    </message>
    <message>
        <source>Enter, Esc</source>
        <translation>Eingabe, Esc</translation>
    </message>
    <message>
        <source>In the texts of the filter</source>
        <translation>In den Texten des Filters</translation>
    </message>
    <message>
        <source>In the lanes of a call</source>
        <translation>In den Bahnen eines Anrufs</translation>
    </message>
    <message>
        <source>Line before and after</source>
        <translation>Zeile davor und danach</translation>
    </message>
    <message>
        <source>In all lanes, by time</source>
        <translation>In allen Bahnen, nach der Zeit</translation>
    </message>
    <message>
        <source>Within the lane</source>
        <translation>In der Bahn</translation>
    </message>
    <message>
        <source>Ctrl+Left, Ctrl+Right</source>
        <translation>Strg+Links, Strg+Rechts</translation>
    </message>
    <message>
        <source>The line before and after of the same process</source>
        <translation>Die Zeile davor und danach desselben Prozesses</translation>
    </message>
    <message>
        <source>Other lane</source>
        <translation>Andere Bahn</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>Auf, Ab</translation>
    </message>
    <message>
        <source>The line of another process that is nearest</source>
        <translation>Die nächstgelegene Zeile eines anderen Prozesses</translation>
    </message>
    <message>
        <source>First and last line</source>
        <translation>Erste und letzte Zeile</translation>
    </message>
    <message>
        <source>Of the call; with Ctrl of the lane</source>
        <translation>Des Anrufs; mit Strg der Bahn</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Plus, Minus, 0</source>
        <translation>Plus, Minus, 0</translation>
    </message>
    <message>
        <source>0 shows the whole call</source>
        <translation>0 zeigt den ganzen Anruf</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>Zur Zeile gehen</translation>
    </message>
    <message>
        <source>Shows the line among all rows</source>
        <translation>Zeigt die Zeile unter allen Zeilen</translation>
    </message>
    <message>
        <source>The lanes stay open</source>
        <translation>Die Bahnen bleiben offen</translation>
    </message>
    <message>
        <source>In the lists of calls and bookmarks</source>
        <translation>In den Listen der Anrufe und Lesezeichen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Shows the lanes of the call, or the row of the mark</source>
        <translation>Zeigt die Bahnen des Anrufs oder die Zeile des Zeichens</translation>
    </message>
    <message>
        <source>Remove a mark</source>
        <translation>Ein Zeichen entfernen</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>In the list of bookmarks and notes</source>
        <translation>In der Liste der Lesezeichen und Notizen</translation>
    </message>
    <message>
        <source>In the list of calls; it stays open</source>
        <translation>In der Anrufliste; sie bleibt offen</translation>
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
    <name>RowColumns</name>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Komponente</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
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
        <translation>Anruf</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>the time of a row is no time</source>
        <translation>die Zeit einer Zeile ist keine Zeit</translation>
    </message>
    <message>
        <source>the day of a row is no day</source>
        <translation>der Tag einer Zeile ist kein Tag</translation>
    </message>
    <message>
        <source>a row has no file</source>
        <translation>eine Zeile hat keine Datei</translation>
    </message>
    <message>
        <source>a row has no line</source>
        <translation>eine Zeile hat keine Zeilennummer</translation>
    </message>
    <message>
        <source>a row has no hash</source>
        <translation>eine Zeile hat keine Prüfsumme</translation>
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
    <name>TimeText</name>
    <message>
        <source>%1 d </source>
        <translation>%1 T </translation>
    </message>
</context>
<context>
    <name>viewer::CallListModel</name>
    <message>
        <source>Call</source>
        <translation>Anruf</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
</context>
<context>
    <name>viewer::CallListPane</name>
    <message>
        <source>Calls</source>
        <translation>Anrufe</translation>
    </message>
    <message>
        <source>State of the list of calls</source>
        <translation>Stand der Anrufliste</translation>
    </message>
    <message>
        <source>Looking for calls...</source>
        <translation>Anrufe werden gesucht...</translation>
    </message>
    <message>
        <source>No call was found until it was stopped.</source>
        <translation>Bis zum Anhalten wurde kein Anruf gefunden.</translation>
    </message>
    <message>
        <source>No call is known: the lines of the open logs are of a form without call ids.</source>
        <translation>Kein Anruf ist bekannt: Die Zeilen der geöffneten Logs haben eine Form ohne Anruf-IDs.</translation>
    </message>
    <message>
        <source>No row on show has a call id.</source>
        <translation>Keine gezeigte Zeile hat eine Anruf-ID.</translation>
    </message>
    <message>
        <source>Calls of the rows on show: %1</source>
        <translation>Anrufe der gezeigten Zeilen: %1</translation>
    </message>
    <message>
        <source>, the first of more; a filter brings others</source>
        <translation>, die ersten von mehr; ein Filter bringt andere</translation>
    </message>
    <message>
        <source>, %1 % of the rows so far</source>
        <translation>, bisher %1 % der Zeilen</translation>
    </message>
    <message>
        <source>, stopped after %1 % of the rows</source>
        <translation>, angehalten nach %1 % der Zeilen</translation>
    </message>
    <message>
        <source>&amp;Show This Call</source>
        <translation>Diesen Anruf &amp;zeigen</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Sortieren nach</translation>
    </message>
</context>
<context>
    <name>viewer::CallPane</name>
    <message>
        <source>The call</source>
        <translation>Der Anruf</translation>
    </message>
    <message>
        <source>The selected line</source>
        <translation>Die ausgewählte Zeile</translation>
    </message>
    <message>
        <source>Text of the selected line</source>
        <translation>Text der ausgewählten Zeile</translation>
    </message>
    <message>
        <source>Looking for the lines of the call...</source>
        <translation>Die Zeilen des Anrufs werden gesucht...</translation>
    </message>
    <message>
        <source>No line of the call was found.</source>
        <translation>Keine Zeile des Anrufs wurde gefunden.</translation>
    </message>
    <message>
        <source>Call %1. Lines: %2, processes: %3, errors: %4, warnings: %5</source>
        <translation>Anruf %1. Zeilen: %2, Prozesse: %3, Fehler: %4, Warnungen: %5</translation>
    </message>
    <message>
        <source>, length: %1</source>
        <translation>, Dauer: %1</translation>
    </message>
    <message>
        <source>; it has more, which are not shown</source>
        <translation>; er hat mehr, die nicht gezeigt werden</translation>
    </message>
    <message>
        <source>; looking for more, %1 %</source>
        <translation>; weitere werden gesucht, %1 %</translation>
    </message>
    <message>
        <source>; stopped after %1 %</source>
        <translation>; angehalten nach %1 %</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>Stufe %1</translation>
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
        <source>port %1</source>
        <translation>Port %1</translation>
    </message>
    <message>
        <source>thread %1</source>
        <translation>Thread %1</translation>
    </message>
</context>
<context>
    <name>viewer::CallTabs</name>
    <message>
        <source>Calls</source>
        <translation>Anrufe</translation>
    </message>
    <message>
        <source>This Call</source>
        <translation>Dieser Anruf</translation>
    </message>
    <message>
        <source>Close the calls</source>
        <translation>Die Anrufe schließen</translation>
    </message>
</context>
<context>
    <name>viewer::DetailsPane</name>
    <message>
        <source>Fields of the row</source>
        <translation>Felder der Zeile</translation>
    </message>
    <message>
        <source>Trace of the row</source>
        <translation>Trace der Zeile</translation>
    </message>
    <message>
        <source>Select a row to read all of it here.</source>
        <translation>Eine Zeile auswählen, um sie hier ganz zu lesen.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Show all %1 characters of the trace</source>
        <translation>Alle %1 Zeichen des Traces anzeigen</translation>
    </message>
</context>
<context>
    <name>viewer::FacetPane</name>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Komponenten</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Stufen</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>&amp;Nur dies</translation>
    </message>
    <message>
        <source>Show &amp;All Values</source>
        <translation>&amp;Alle Werte zeigen</translation>
    </message>
</context>
<context>
    <name>viewer::FilterBar</name>
    <message>
        <source>Rows &amp;with:</source>
        <translation>Zeilen &amp;mit:</translation>
    </message>
    <message>
        <source>with&amp;out:</source>
        <translation>&amp;ohne:</translation>
    </message>
    <message>
        <source>Text that rows have</source>
        <translation>Text, den Zeilen haben</translation>
    </message>
    <message>
        <source>Text that rows do not have</source>
        <translation>Text, den Zeilen nicht haben</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>Ausdr&amp;uck</translation>
    </message>
    <message>
        <source>Take the texts for regular expressions</source>
        <translation>Die Texte als reguläre Ausdrücke nehmen</translation>
    </message>
    <message>
        <source>&amp;Aa</source>
        <translation>&amp;Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Groß- und Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Tell capital letters from small ones</source>
        <translation>Groß- und Kleinbuchstaben unterscheiden</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>without &quot;%1&quot;</source>
        <translation>ohne „%1“</translation>
    </message>
    <message>
        <source>with &quot;%1&quot;</source>
        <translation>mit „%1“</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 ist nicht %2</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 ist %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>von %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>bis %1</translation>
    </message>
</context>
<context>
    <name>viewer::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Text of a line</source>
        <translation>Text einer Zeile</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Gesuchter Text</translation>
    </message>
    <message>
        <source>Ex&amp;pression</source>
        <translation>Aus&amp;druck</translation>
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
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>Diesen Text markiert lassen (Strg+M)</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Die Suchleiste schließen (Esc)</translation>
    </message>
    <message>
        <source>%1 hits so far</source>
        <translation>bisher %1 Treffer</translation>
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
        <source>No further colour is free</source>
        <translation>Keine weitere Farbe ist frei</translation>
    </message>
    <message>
        <source>Mark %1 no more</source>
        <translation>%1 nicht mehr markieren</translation>
    </message>
</context>
<context>
    <name>viewer::FollowBar</name>
    <message>
        <source>Go to the last row, and keep the end in sight (End)</source>
        <translation>Zur letzten Zeile gehen und das Ende im Blick behalten (Ende)</translation>
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
    <name>viewer::LaneView</name>
    <message>
        <source>Lines of call %1 over time</source>
        <translation>Zeilen des Anrufs %1 über der Zeit</translation>
    </message>
    <message>
        <source>Lines of a call over time</source>
        <translation>Zeilen eines Anrufs über der Zeit</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Zeile %1 von %2</translation>
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
        <source>level %1</source>
        <translation>Stufe %1</translation>
    </message>
    <message>
        <source>%1 lines here</source>
        <translation>%1 Zeilen hier</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>The filter of last time is on and hides rows; Ctrl+Shift+A shows all.</source>
        <translation>Der Filter vom letzten Mal gilt und blendet Zeilen aus; Strg+Umschalt+A zeigt alle.</translation>
    </message>
    <message>
        <source>The current row has no such value</source>
        <translation>Die aktuelle Zeile hat keinen solchen Wert</translation>
    </message>
    <message>
        <source>There is no further one</source>
        <translation>Es gibt keine weitere</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Writing: %1 of %2 rows</source>
        <translation>Schreiben: %1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>Reading: %1 rows so far</source>
        <translation>Lesen: bisher %1 Zeilen</translation>
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
        <source>, row %1</source>
        <translation>, Zeile %1</translation>
    </message>
    <message>
        <source>, following</source>
        <translation>, folgt</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>No source is open.

Drop logs, trace databases or cabinets here, or open them with Ctrl+O.</source>
        <translation>Keine Quelle ist geöffnet.

Legen Sie Logs, Trace-Datenbanken oder CAB-Dateien hier ab, oder öffnen Sie sie mit Strg+O.</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>Gehe zu Zeit</translation>
    </message>
    <message>
        <source>Time, such as 15:23:07:</source>
        <translation>Zeit, etwa 15:23:07:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>Text mit Kommas (*.csv)</translation>
    </message>
    <message>
        <source>JSON, an object a line (*.json)</source>
        <translation>JSON, ein Objekt je Zeile (*.json)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>%1 rows written</source>
        <translation>%1 Zeilen geschrieben</translation>
    </message>
    <message>
        <source>The export was given up, and left no file</source>
        <translation>Der Export wurde abgebrochen und hat keine Datei hinterlassen</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>Logs, databases and cabinets (*.txt *.log *.mdb *.cab *.csv)</source>
        <translation>Logs, Datenbanken und CAB-Dateien (*.txt *.log *.mdb *.cab *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>%1 rows copied</source>
        <translation>%1 Zeilen kopiert</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>No call is shown. %1 shows the call of the current row.</source>
        <translation>Kein Anruf wird gezeigt. %1 zeigt den Anruf der aktuellen Zeile.</translation>
    </message>
    <message>
        <source>The current row has no call id. Lines of some forms have none; where there is one, %1 shows the call.</source>
        <translation>Die aktuelle Zeile hat keine Anruf-ID. Zeilen mancher Formen haben keine; wo es eine gibt, zeigt %1 den Anruf.</translation>
    </message>
    <message>
        <source>All Traces</source>
        <translation>Alle Traces</translation>
    </message>
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
        <source>Nothing that is open can be followed: only logs in files of their own grow. Trace databases, cabinets and what comes through a pipe do not.</source>
        <translation>Nichts Geöffnetem kann gefolgt werden: Nur Logs in eigenen Dateien wachsen. Trace-Datenbanken, CAB-Dateien und was durch eine Pipe kommt, tun es nicht.</translation>
    </message>
    <message>
        <source>What is no log of its own is shown, and not followed</source>
        <translation>Was kein eigenes Log ist, wird gezeigt, und es wird ihm nicht gefolgt</translation>
    </message>
    <message>
        <source>No row has a bookmark any more.</source>
        <translation>Keine Zeile hat mehr ein Lesezeichen.</translation>
    </message>
    <message>
        <source>The row has a bookmark.</source>
        <translation>Die Zeile hat ein Lesezeichen.</translation>
    </message>
    <message>
        <source>The row has no bookmark any more.</source>
        <translation>Die Zeile hat kein Lesezeichen mehr.</translation>
    </message>
    <message>
        <source>No row has a bookmark or a note. Ctrl+B sets a bookmark.</source>
        <translation>Keine Zeile hat ein Lesezeichen oder eine Notiz. Strg+B setzt ein Lesezeichen.</translation>
    </message>
    <message>
        <source>The rows with bookmarks and notes are hidden by the filter.</source>
        <translation>Die Zeilen mit Lesezeichen und Notizen sind durch den Filter ausgeblendet.</translation>
    </message>
    <message>
        <source>The row is hidden by the filter; Ctrl+Shift+A shows all.</source>
        <translation>Die Zeile ist durch den Filter ausgeblendet; Strg+Umschalt+A zeigt alle.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Text for this row; an empty one takes the note away:</source>
        <translation>Text zu dieser Zeile; ein leerer nimmt die Notiz weg:</translation>
    </message>
    <message>
        <source>The text is %1 characters too long for a note:</source>
        <translation>Der Text ist um %1 Zeichen zu lang für eine Notiz:</translation>
    </message>
    <message>
        <source>The note can&apos;t be kept: %1</source>
        <translation>Die Notiz kann nicht aufgehoben werden: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>%1 of %2 selected rows copied; an export has all that are on show</source>
        <translation>%1 von %2 ausgewählten Zeilen kopiert; ein Export enthält alle angezeigten Zeilen</translation>
    </message>
    <message>
        <source>The manual is not beside the viewer. Install it again to read it.</source>
        <translation>Das Handbuch liegt nicht beim Betrachter. Installieren Sie ihn neu, um es zu lesen.</translation>
    </message>
    <message>
        <source>Copying was given up; the clipboard is as it was</source>
        <translation>Das Kopieren wurde abgebrochen; die Zwischenablage ist unverändert</translation>
    </message>
    <message>
        <source>Copying: %1 of %2 rows</source>
        <translation>Kopieren: %1 von %2 Zeilen</translation>
    </message>
</context>
<context>
    <name>viewer::MarkGutter</name>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Lesezeichen und Notizen</translation>
    </message>
</context>
<context>
    <name>viewer::MarkList</name>
    <message>
        <source>Bookmarks and Notes</source>
        <translation>Lesezeichen und Notizen</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Lesezeichen und Notizen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Trace</translation>
    </message>
    <message>
        <source>The row of this note was not found in what is open.</source>
        <translation>Die Zeile dieser Notiz wurde in dem, was geöffnet ist, nicht gefunden.</translation>
    </message>
    <message>
        <source>Ctrl+B sets a bookmark on the current row, Ctrl+N gives it a note.</source>
        <translation>Strg+B setzt ein Lesezeichen auf die aktuelle Zeile, Strg+N gibt ihr eine Notiz.</translation>
    </message>
    <message>
        <source>Enter goes to the row, Delete takes the bookmark and the note away.</source>
        <translation>Die Eingabetaste geht zur Zeile, Entf nimmt Lesezeichen und Notiz weg.</translation>
    </message>
</context>
<context>
    <name>viewer::Marks</name>
    <message>
        <source>Bookmark</source>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>Bookmarks and notes on rows that come through a pipe are not kept</source>
        <translation>Lesezeichen und Notizen zu Zeilen, die durch eine Pipe kommen, werden nicht aufgehoben</translation>
    </message>
</context>
<context>
    <name>viewer::RowModel</name>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Since row before</source>
        <translation>Seit der Zeile davor</translation>
    </message>
    <message>
        <source>Since marked row</source>
        <translation>Seit der markierten Zeile</translation>
    </message>
</context>
<context>
    <name>viewer::RowTable</name>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>Spalten &amp;zurücksetzen</translation>
    </message>
</context>
<context>
    <name>viewer::TimeStrip</name>
    <message>
        <source>Rows over time</source>
        <translation>Zeilen über der Zeit</translation>
    </message>
    <message>
        <source>Errors, warnings and other rows on show, over time</source>
        <translation>Fehler, Warnungen und andere gezeigte Zeilen über der Zeit</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>%1: %2 rows, %3 errors, %4 warnings</source>
        <translation>%1: %2 Zeilen, %3 Fehler, %4 Warnungen</translation>
    </message>
</context>
</TS>
