<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>Show all rows and first columns, and forget how these sources were seen last; bookmarks and notes stay</source>
        <translation>Mostrar todas las filas y las columnas iniciales, y olvidar cómo se veían estas fuentes; los marcadores y las notas se conservan</translation>
    </message>
    <message>
        <source>Start &amp;Afresh</source>
        <translation>Empezar de &amp;nuevo</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>Fi&amp;lter</source>
        <translation>Fi&amp;ltro</translation>
    </message>
    <message>
        <source>&amp;Only</source>
        <translation>&amp;Solo</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ocultar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>T&amp;imes</source>
        <translation>T&amp;iempos</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>I&amp;dioma</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Open Files...</source>
        <translation>&amp;Abrir archivos...</translation>
    </message>
    <message>
        <source>Add logs, trace databases or cabinets to what is on show</source>
        <translation>Añadir registros, bases de datos de trazas o archivos CAB a lo que se muestra</translation>
    </message>
    <message>
        <source>Open &amp;Folder...</source>
        <translation>Abrir &amp;carpeta...</translation>
    </message>
    <message>
        <source>Add all logs of a folder to what is on show</source>
        <translation>Añadir todos los registros de una carpeta a lo que se muestra</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Write the rows on show to a file: CSV, JSON or text</source>
        <translation>Escribir las filas mostradas en un archivo: CSV, JSON o texto</translation>
    </message>
    <message>
        <source>&amp;Stop Reading</source>
        <translation>&amp;Detener la lectura</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Close the viewer</source>
        <translation>Cerrar el visor</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy the selected rows as they are shown, one line each</source>
        <translation>Copiar las filas seleccionadas tal como se muestran, una línea por fila</translation>
    </message>
    <message>
        <source>Copy &amp;Lines</source>
        <translation>Copiar &amp;líneas</translation>
    </message>
    <message>
        <source>Copy the lines of the selected rows as they stand in their files</source>
        <translation>Copiar las líneas de las filas seleccionadas tal como están en sus archivos</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>Copiar como CS&amp;V</translation>
    </message>
    <message>
        <source>Copy the selected rows with their headers, for a spreadsheet</source>
        <translation>Copiar las filas seleccionadas con sus encabezados, para una hoja de cálculo</translation>
    </message>
    <message>
        <source>Copy Val&amp;ue</source>
        <translation>Copiar val&amp;or</translation>
    </message>
    <message>
        <source>Copy the field or the part of the trace that is selected in the details</source>
        <translation>Copiar el campo o la parte de la traza seleccionada en los detalles</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todas</translation>
    </message>
    <message>
        <source>Select every row on show</source>
        <translation>Seleccionar todas las filas mostradas</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>Marca&amp;dor</translation>
    </message>
    <message>
        <source>Set a bookmark on the current row, or take it away</source>
        <translation>Poner un marcador en la fila actual o quitarlo</translation>
    </message>
    <message>
        <source>&amp;Note...</source>
        <translation>&amp;Nota...</translation>
    </message>
    <message>
        <source>Keep a text with the current row, in a file beside its log</source>
        <translation>Guardar un texto con la fila actual, en un archivo junto a su registro</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>B&amp;orrar marcadores</translation>
    </message>
    <message>
        <source>Take every bookmark away; notes stay</source>
        <translation>Quitar todos los marcadores; las notas se quedan</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>Look for a text in the rows on show</source>
        <translation>Buscar un texto en las filas mostradas</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>Buscar &amp;siguiente</translation>
    </message>
    <message>
        <source>Go to the next hit</source>
        <translation>Ir a la coincidencia siguiente</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>Buscar &amp;anterior</translation>
    </message>
    <message>
        <source>Go to the hit before</source>
        <translation>Ir a la coincidencia anterior</translation>
    </message>
    <message>
        <source>&amp;Keep Text Marked</source>
        <translation>De&amp;jar el texto marcado</translation>
    </message>
    <message>
        <source>Mark the text that is looked for in a colour of its own from now on</source>
        <translation>Marcar desde ahora con un color propio el texto que se busca</translation>
    </message>
    <message>
        <source>Next &amp;Error</source>
        <translation>&amp;Error siguiente</translation>
    </message>
    <message>
        <source>Go to the next row of an error</source>
        <translation>Ir a la siguiente fila con un error</translation>
    </message>
    <message>
        <source>Pre&amp;vious Error</source>
        <translation>Error anterio&amp;r</translation>
    </message>
    <message>
        <source>Go to the row of an error before</source>
        <translation>Ir a la fila anterior con un error</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>&amp;Próxima advertencia</translation>
    </message>
    <message>
        <source>Go to the next row of a warning</source>
        <translation>Ir a la siguiente fila con una advertencia</translation>
    </message>
    <message>
        <source>Previous W&amp;arning</source>
        <translation>&amp;Advertencia anterior</translation>
    </message>
    <message>
        <source>Go to the row of a warning before</source>
        <translation>Ir a la fila anterior con una advertencia</translation>
    </message>
    <message>
        <source>&amp;Time...</source>
        <translation>&amp;Hora...</translation>
    </message>
    <message>
        <source>Go to the rows of a time</source>
        <translation>Ir a las filas de una hora</translation>
    </message>
    <message>
        <source>Next Bookma&amp;rk</source>
        <translation>Marcador si&amp;guiente</translation>
    </message>
    <message>
        <source>Go to the next row with a bookmark or a note</source>
        <translation>Ir a la siguiente fila con un marcador o una nota</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>Marcador a&amp;nterior</translation>
    </message>
    <message>
        <source>Go to the row with a bookmark or a note before</source>
        <translation>Ir a la fila anterior con un marcador o una nota</translation>
    </message>
    <message>
        <source>&amp;Bookmarks and Notes...</source>
        <translation>&amp;Marcadores y notas...</translation>
    </message>
    <message>
        <source>List all bookmarks and notes, to go to one</source>
        <translation>Enumerar todos los marcadores y notas para ir a uno</translation>
    </message>
    <message>
        <source>&amp;Texts...</source>
        <translation>&amp;Textos...</translation>
    </message>
    <message>
        <source>Show rows that have a text, or that have it not</source>
        <translation>Mostrar filas que tienen un texto, o que no lo tienen</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>Mostrar &amp;todas las filas</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>Quitar el filtro</translation>
    </message>
    <message>
        <source>&amp;Macro Traces...</source>
        <translation>&amp;Macrotrazas...</translation>
    </message>
    <message>
        <source>Show what a macro trace of the opened databases turned on</source>
        <translation>Mostrar lo que activó una macrotraza de las bases de datos abiertas</translation>
    </message>
    <message>
        <source>Sa&amp;ved Filters...</source>
        <translation>Filtros &amp;guardados...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name</source>
        <translation>Usar un filtro guardado con un nombre</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>Guardar &amp;filtro...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>Guardar el filtro con un nombre, en un archivo que otros pueden abrir</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>Abrir archivo de filt&amp;ro...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>Usar un filtro de un archivo recibido</translation>
    </message>
    <message>
        <source>&amp;Narrow Times</source>
        <translation>&amp;Reducir el intervalo</translation>
    </message>
    <message>
        <source>Show half of the time, around the current row</source>
        <translation>Mostrar la mitad del tiempo, en torno a la fila actual</translation>
    </message>
    <message>
        <source>&amp;Widen Times</source>
        <translation>Am&amp;pliar el intervalo</translation>
    </message>
    <message>
        <source>Show twice the time, around the current row</source>
        <translation>Mostrar el doble de tiempo, en torno a la fila actual</translation>
    </message>
    <message>
        <source>All T&amp;imes</source>
        <translation>Todo el t&amp;iempo</translation>
    </message>
    <message>
        <source>Show rows of all times</source>
        <translation>Mostrar filas de todo el tiempo</translation>
    </message>
    <message>
        <source>This &amp;Process</source>
        <translation>Este &amp;proceso</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s process alone</source>
        <translation>Mostrar solo las filas del proceso de la fila actual</translation>
    </message>
    <message>
        <source>This &amp;Component</source>
        <translation>Este &amp;componente</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s component alone</source>
        <translation>Mostrar solo las filas del componente de la fila actual</translation>
    </message>
    <message>
        <source>This &amp;Source</source>
        <translation>Este &amp;origen</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s source alone</source>
        <translation>Mostrar solo las filas del origen de la fila actual</translation>
    </message>
    <message>
        <source>This &amp;Level</source>
        <translation>Este &amp;nivel</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s level alone</source>
        <translation>Mostrar solo las filas del nivel de la fila actual</translation>
    </message>
    <message>
        <source>This C&amp;all</source>
        <translation>Esta lla&amp;mada</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s call alone, in all processes</source>
        <translation>Mostrar solo las filas de la llamada de la fila actual, en todos los procesos</translation>
    </message>
    <message>
        <source>This P&amp;ort</source>
        <translation>Este p&amp;uerto</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s port alone</source>
        <translation>Mostrar solo las filas del puerto de la fila actual</translation>
    </message>
    <message>
        <source>This &amp;Thread</source>
        <translation>Este &amp;hilo</translation>
    </message>
    <message>
        <source>Show the rows of the current row&apos;s thread alone</source>
        <translation>Mostrar solo las filas del hilo de la fila actual</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s process</source>
        <translation>Ocultar las filas del proceso de la fila actual</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s component</source>
        <translation>Ocultar las filas del componente de la fila actual</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s source</source>
        <translation>Ocultar las filas del origen de la fila actual</translation>
    </message>
    <message>
        <source>Hide the rows of the current row&apos;s level</source>
        <translation>Ocultar las filas del nivel de la fila actual</translation>
    </message>
    <message>
        <source>&amp;Values</source>
        <translation>&amp;Valores</translation>
    </message>
    <message>
        <source>Show the values of processes, components, sources and levels beside the rows</source>
        <translation>Mostrar junto a las filas los valores de procesos, componentes, orígenes y niveles</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>Show all of the current row below the rows</source>
        <translation>Mostrar bajo las filas todo el contenido de la fila actual</translation>
    </message>
    <message>
        <source>C&amp;alls</source>
        <translation>Ll&amp;amadas</translation>
    </message>
    <message>
        <source>List the calls of the rows on show below them</source>
        <translation>Enumerar bajo las filas mostradas sus llamadas</translation>
    </message>
    <message>
        <source>T&amp;his Call</source>
        <translation>&amp;Esta llamada</translation>
    </message>
    <message>
        <source>Show the lines of the current row&apos;s call over time, in all processes</source>
        <translation>Mostrar en el tiempo las líneas de la llamada de la fila actual, en todos los procesos</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>&amp;Otro panel</translation>
    </message>
    <message>
        <source>Go from the rows to the values, or back</source>
        <translation>Ir de las filas a los valores, o volver</translation>
    </message>
    <message>
        <source>&amp;Follow</source>
        <translation>&amp;Seguir</translation>
    </message>
    <message>
        <source>Show rows that come to the logs as they grow, and keep the end in sight</source>
        <translation>Mostrar las filas que llegan a los registros según crecen y mantener el final a la vista</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Columnas...</translation>
    </message>
    <message>
        <source>Show or hide columns of the table</source>
        <translation>Mostrar u ocultar columnas de la tabla</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>Texto más &amp;grande</translation>
    </message>
    <message>
        <source>Show rows in larger letters</source>
        <translation>Mostrar las filas con letra más grande</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>Texto más &amp;pequeño</translation>
    </message>
    <message>
        <source>Show rows in smaller letters</source>
        <translation>Mostrar las filas con letra más pequeña</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>Texto &amp;normal</translation>
    </message>
    <message>
        <source>Show rows in letters of the usual size</source>
        <translation>Mostrar las filas con letra del tamaño habitual</translation>
    </message>
    <message>
        <source>&amp;Clock</source>
        <translation>&amp;Reloj</translation>
    </message>
    <message>
        <source>Show when each row was written</source>
        <translation>Mostrar cuándo se escribió cada fila</translation>
    </message>
    <message>
        <source>Since Row &amp;Before</source>
        <translation>Desde la fila &amp;anterior</translation>
    </message>
    <message>
        <source>Show how long after the row above each row was written</source>
        <translation>Mostrar cuánto después de la fila anterior se escribió cada fila</translation>
    </message>
    <message>
        <source>Since &amp;Marked Row</source>
        <translation>Desde la fila &amp;marcada</translation>
    </message>
    <message>
        <source>Show how long before or after the marked row each row was written</source>
        <translation>Mostrar cuánto antes o después de la fila marcada se escribió cada fila</translation>
    </message>
    <message>
        <source>Mar&amp;k This Row</source>
        <translation>Mar&amp;car esta fila</translation>
    </message>
    <message>
        <source>Tell times from the current row</source>
        <translation>Indicar los tiempos a partir de la fila actual</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Como el &amp;escritorio</translation>
    </message>
    <message>
        <source>Light or dark as the desktop is</source>
        <translation>Claro u oscuro, según el escritorio</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>Dark letters on a light ground</source>
        <translation>Letras oscuras sobre fondo claro</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>Light letters on a dark ground</source>
        <translation>Letras claras sobre fondo oscuro</translation>
    </message>
    <message>
        <source>Show all texts of the window in this language</source>
        <translation>Mostrar todos los textos de la ventana en este idioma</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Acerca de...</translation>
    </message>
    <message>
        <source>Tell the version</source>
        <translation>Indicar la versión</translation>
    </message>
    <message>
        <source>&amp;Help Topics</source>
        <translation>&amp;Temas de ayuda</translation>
    </message>
    <message>
        <source>Open the manual at the page of the viewer</source>
        <translation>Abrir el manual por la página del visor</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>Te&amp;clas</translation>
    </message>
    <message>
        <source>Show every key of the viewer</source>
        <translation>Mostrar todas las teclas del visor</translation>
    </message>
    <message>
        <source>End what is being opened, read, copied or exported; the rows so far stay</source>
        <translation>Terminar de abrir, leer, copiar o exportar; las filas leídas se quedan</translation>
    </message>
</context>
<context>
    <name>FileTarget</name>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
</context>
<context>
    <name>FilterTexts</name>
    <message>
        <source>&quot;%1&quot; of a filter is of another kind</source>
        <translation>«%1» de un filtro es de otro tipo</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot; to filter by</source>
        <translation>no hay columna «%1» por la que filtrar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of a filter is no time</source>
        <translation>«%1» de un filtro no es una hora</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no regular expression: %2</source>
        <translation>«%1» no es una expresión regular: %2</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help - Orvan Diagnostic Tool</source>
        <translation>Ayuda - Herramienta de diagnóstico de Orvan</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Qué hace</translation>
    </message>
</context>
<context>
    <name>NoteTexts</name>
    <message>
        <source>a note is no object</source>
        <translation>una nota no es un objeto</translation>
    </message>
    <message>
        <source>a note has no bookmark or text</source>
        <translation>una nota no tiene marcador o texto</translation>
    </message>
    <message>
        <source>it is none of notes</source>
        <translation>no es un archivo de notas</translation>
    </message>
    <message>
        <source>it has no version</source>
        <translation>no tiene versión</translation>
    </message>
    <message>
        <source>it has no notes</source>
        <translation>no tiene notas</translation>
    </message>
</context>
<context>
    <name>NotesFile</name>
    <message>
        <source>The notes in %1 can&apos;t be read, and stay as they are: %2</source>
        <translation>Las notas de %1 no se pueden leer y se quedan como están: %2</translation>
    </message>
    <message>
        <source>The notes in %1 are those of a newer viewer, and are not shown</source>
        <translation>Las notas de %1 son de un visor más reciente y no se muestran</translation>
    </message>
    <message>
        <source>The notes in %1 can&apos;t be read: %2</source>
        <translation>Las notas de %1 no se pueden leer: %2</translation>
    </message>
    <message>
        <source>Somebody else has changed the note on line %1 of %2, too: both texts are kept</source>
        <translation>Otra persona también cambió la nota de la línea %1 de %2: se conservan los dos textos</translation>
    </message>
    <message>
        <source>No notes can be written beside %1 (%2). They are kept in %3.</source>
        <translation>No se pueden escribir notas junto a %1 (%2). Se guardan en %3.</translation>
    </message>
    <message>
        <source>The notes on %1 can&apos;t be kept, neither beside it (%2) nor in %3 (%4)</source>
        <translation>Las notas de %1 no se pueden guardar ni a su lado (%2) ni en %3 (%4)</translation>
    </message>
    <message>
        <source>The damaged notes are kept in %1</source>
        <translation>Las notas dañadas se guardan en %1</translation>
    </message>
    <message>
        <source>The notes in %1 stay there, though those beside the log go on: %2</source>
        <translation>Las notas de %1 se quedan allí, aunque las que están junto al registro continúan: %2</translation>
    </message>
    <message>
        <source>a newer viewer has written there</source>
        <translation>un visor más nuevo ha escrito ahí</translation>
    </message>
    <message>
        <source>it can&apos;t be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>%1 does not say what was written to it</source>
        <translation>%1 no contiene lo que se escribió</translation>
    </message>
</context>
<context>
    <name>NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>In the rows</source>
        <translation>En las filas</translation>
    </message>
    <message>
        <source>First and last row</source>
        <translation>Primera y última fila</translation>
    </message>
    <message>
        <source>Home, End</source>
        <translation>Inicio, Fin</translation>
    </message>
    <message>
        <source>End stays at the end of logs that are followed</source>
        <translation>Fin se queda al final de los registros que se siguen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seleccionar</translation>
    </message>
    <message>
        <source>Shift+Up, Shift+Down</source>
        <translation>Mayús+Arriba, Mayús+Abajo</translation>
    </message>
    <message>
        <source>Selects rows from the current one on</source>
        <translation>Selecciona filas a partir de la actual</translation>
    </message>
    <message>
        <source>Sideways</source>
        <translation>De lado</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Izquierda, Derecha</translation>
    </message>
    <message>
        <source>Shows the rest of long rows</source>
        <translation>Muestra el resto de las filas largas</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menú de la fila</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>What can be done with the current row</source>
        <translation>Lo que se puede hacer con la fila actual</translation>
    </message>
    <message>
        <source>In the values</source>
        <translation>En los valores</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Marcar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Shows or hides the rows of the value</source>
        <translation>Muestra u oculta las filas del valor</translation>
    </message>
    <message>
        <source>Only This</source>
        <translation>Solo este</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Shows the rows of the value alone, or all again</source>
        <translation>Muestra solo las filas del valor, o de nuevo todas</translation>
    </message>
    <message>
        <source>Open or close a group</source>
        <translation>Abrir o cerrar un grupo</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>Derecha, Izquierda</translation>
    </message>
    <message>
        <source>Such as all components</source>
        <translation>Por ejemplo, todos los componentes</translation>
    </message>
    <message>
        <source>In the bars of find and filter</source>
        <translation>En las barras de búsqueda y filtro</translation>
    </message>
    <message>
        <source>Next and previous hit</source>
        <translation>Coincidencia siguiente y anterior</translation>
    </message>
    <message>
        <source>Enter, Shift+Enter</source>
        <translation>Intro, Mayús+Intro</translation>
    </message>
    <message>
        <source>In the text to find</source>
        <translation>En el texto que se busca</translation>
    </message>
    <message>
        <source>Close find</source>
        <translation>Cerrar la búsqueda</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Ends the marks of the text, but for those kept</source>
        <translation>Quita las marcas del texto, salvo las conservadas</translation>
    </message>
    <message>
        <source>Back to the rows</source>
        <translation>Volver a las filas</translation>
    </message>
    <message>
        <source>Enter, Esc</source>
        <translation>Intro, Esc</translation>
    </message>
    <message>
        <source>In the texts of the filter</source>
        <translation>En los textos del filtro</translation>
    </message>
    <message>
        <source>In the lanes of a call</source>
        <translation>En los carriles de una llamada</translation>
    </message>
    <message>
        <source>Line before and after</source>
        <translation>Línea anterior y siguiente</translation>
    </message>
    <message>
        <source>In all lanes, by time</source>
        <translation>En todos los carriles, por hora</translation>
    </message>
    <message>
        <source>Within the lane</source>
        <translation>Dentro del carril</translation>
    </message>
    <message>
        <source>Ctrl+Left, Ctrl+Right</source>
        <translation>Ctrl+Izquierda, Ctrl+Derecha</translation>
    </message>
    <message>
        <source>The line before and after of the same process</source>
        <translation>La línea anterior y siguiente del mismo proceso</translation>
    </message>
    <message>
        <source>Other lane</source>
        <translation>Otro carril</translation>
    </message>
    <message>
        <source>Up, Down</source>
        <translation>Arriba, Abajo</translation>
    </message>
    <message>
        <source>The line of another process that is nearest</source>
        <translation>La línea más cercana de otro proceso</translation>
    </message>
    <message>
        <source>First and last line</source>
        <translation>Primera y última línea</translation>
    </message>
    <message>
        <source>Of the call; with Ctrl of the lane</source>
        <translation>De la llamada; con Ctrl, del carril</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Plus, Minus, 0</source>
        <translation>Más, Menos, 0</translation>
    </message>
    <message>
        <source>0 shows the whole call</source>
        <translation>0 muestra la llamada entera</translation>
    </message>
    <message>
        <source>Go to the row</source>
        <translation>Ir a la fila</translation>
    </message>
    <message>
        <source>Shows the line among all rows</source>
        <translation>Muestra la línea entre todas las filas</translation>
    </message>
    <message>
        <source>The lanes stay open</source>
        <translation>Los carriles quedan abiertos</translation>
    </message>
    <message>
        <source>In the lists of calls and bookmarks</source>
        <translation>En las listas de llamadas y marcadores</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Shows the lanes of the call, or the row of the mark</source>
        <translation>Muestra los carriles de la llamada o la fila de la marca</translation>
    </message>
    <message>
        <source>Remove a mark</source>
        <translation>Quitar una marca</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>In the list of bookmarks and notes</source>
        <translation>En la lista de marcadores y notas</translation>
    </message>
    <message>
        <source>In the list of calls; it stays open</source>
        <translation>En la lista de llamadas, que queda abierta</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>Device I/O error</source>
        <translation>Error de E/S del dispositivo</translation>
    </message>
    <message>
        <source>Disk full</source>
        <translation>Disco lleno</translation>
    </message>
    <message>
        <source>File already exists</source>
        <translation>El archivo ya existe</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>Archivo no encontrado</translation>
    </message>
    <message>
        <source>Input past end of file</source>
        <translation>Lectura más allá del final del archivo</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memoria insuficiente</translation>
    </message>
    <message>
        <source>Out of string space</source>
        <translation>Espacio de texto insuficiente</translation>
    </message>
    <message>
        <source>Path not found</source>
        <translation>Ruta no encontrada</translation>
    </message>
    <message>
        <source>Path/File access error</source>
        <translation>Error de acceso a la ruta o al archivo</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
</context>
<context>
    <name>RowColumns</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Proceso</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Componente</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivel</translation>
    </message>
    <message>
        <source>Thread</source>
        <translation>Hilo</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
</context>
<context>
    <name>RowTexts</name>
    <message>
        <source>the time of a row is no time</source>
        <translation>la hora de una fila no es una hora</translation>
    </message>
    <message>
        <source>the day of a row is no day</source>
        <translation>el día de una fila no es un día</translation>
    </message>
    <message>
        <source>a row has no file</source>
        <translation>una fila no tiene archivo</translation>
    </message>
    <message>
        <source>a row has no line</source>
        <translation>una fila no tiene número de línea</translation>
    </message>
    <message>
        <source>a row has no hash</source>
        <translation>una fila no tiene suma de comprobación</translation>
    </message>
</context>
<context>
    <name>SavedFilters</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be the name of a filter</source>
        <translation>«%1» no puede ser el nombre de un filtro</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>%1 is no filter</source>
        <translation>%1 no es un filtro</translation>
    </message>
</context>
<context>
    <name>TimeText</name>
    <message>
        <source>%1 d </source>
        <translation>%1 d </translation>
    </message>
</context>
<context>
    <name>viewer::CallListModel</name>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Errores</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Advertencias</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
</context>
<context>
    <name>viewer::CallListPane</name>
    <message>
        <source>Calls</source>
        <translation>Llamadas</translation>
    </message>
    <message>
        <source>State of the list of calls</source>
        <translation>Estado de la lista de llamadas</translation>
    </message>
    <message>
        <source>Looking for calls...</source>
        <translation>Buscando llamadas...</translation>
    </message>
    <message>
        <source>No call was found until it was stopped.</source>
        <translation>No se encontró ninguna llamada hasta que se detuvo.</translation>
    </message>
    <message>
        <source>No call is known: the lines of the open logs are of a form without call ids.</source>
        <translation>No se conoce ninguna llamada: las líneas de los registros abiertos no llevan identificador de llamada.</translation>
    </message>
    <message>
        <source>No row on show has a call id.</source>
        <translation>Ninguna fila mostrada tiene identificador de llamada.</translation>
    </message>
    <message>
        <source>Calls of the rows on show: %1</source>
        <translation>Llamadas de las filas mostradas: %1</translation>
    </message>
    <message>
        <source>, the first of more; a filter brings others</source>
        <translation>, las primeras de más; un filtro muestra otras</translation>
    </message>
    <message>
        <source>, %1 % of the rows so far</source>
        <translation>, hasta ahora el %1 % de las filas</translation>
    </message>
    <message>
        <source>, stopped after %1 % of the rows</source>
        <translation>, detenido tras el %1 % de las filas</translation>
    </message>
    <message>
        <source>&amp;Show This Call</source>
        <translation>&amp;Mostrar esta llamada</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
</context>
<context>
    <name>viewer::CallPane</name>
    <message>
        <source>The call</source>
        <translation>La llamada</translation>
    </message>
    <message>
        <source>The selected line</source>
        <translation>La línea seleccionada</translation>
    </message>
    <message>
        <source>Text of the selected line</source>
        <translation>Texto de la línea seleccionada</translation>
    </message>
    <message>
        <source>Looking for the lines of the call...</source>
        <translation>Buscando las líneas de la llamada...</translation>
    </message>
    <message>
        <source>No line of the call was found.</source>
        <translation>No se encontró ninguna línea de la llamada.</translation>
    </message>
    <message>
        <source>Call %1. Lines: %2, processes: %3, errors: %4, warnings: %5</source>
        <translation>Llamada %1. Líneas: %2, procesos: %3, errores: %4, advertencias: %5</translation>
    </message>
    <message>
        <source>, length: %1</source>
        <translation>, duración: %1</translation>
    </message>
    <message>
        <source>; it has more, which are not shown</source>
        <translation>; tiene más, que no se muestran</translation>
    </message>
    <message>
        <source>; looking for more, %1 %</source>
        <translation>; se buscan más, %1 %</translation>
    </message>
    <message>
        <source>; stopped after %1 %</source>
        <translation>; detenido tras el %1 %</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>nivel %1</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>advertencia</translation>
    </message>
    <message>
        <source>port %1</source>
        <translation>puerto %1</translation>
    </message>
    <message>
        <source>thread %1</source>
        <translation>hilo %1</translation>
    </message>
</context>
<context>
    <name>viewer::CallTabs</name>
    <message>
        <source>Calls</source>
        <translation>Llamadas</translation>
    </message>
    <message>
        <source>This Call</source>
        <translation>Esta llamada</translation>
    </message>
    <message>
        <source>Close the calls</source>
        <translation>Cerrar las llamadas</translation>
    </message>
</context>
<context>
    <name>viewer::DetailsPane</name>
    <message>
        <source>Fields of the row</source>
        <translation>Campos de la fila</translation>
    </message>
    <message>
        <source>Trace of the row</source>
        <translation>Traza de la fila</translation>
    </message>
    <message>
        <source>Select a row to read all of it here.</source>
        <translation>Seleccione una fila para leerla aquí entera.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Show all %1 characters of the trace</source>
        <translation>Mostrar los %1 caracteres de la traza</translation>
    </message>
</context>
<context>
    <name>viewer::FacetPane</name>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Componentes</translation>
    </message>
    <message>
        <source>Sources</source>
        <translation>Orígenes</translation>
    </message>
    <message>
        <source>Levels</source>
        <translation>Niveles</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>&amp;Solo este</translation>
    </message>
    <message>
        <source>Show &amp;All Values</source>
        <translation>Mostrar &amp;todos los valores</translation>
    </message>
</context>
<context>
    <name>viewer::FilterBar</name>
    <message>
        <source>Rows &amp;with:</source>
        <translation>Filas &amp;con:</translation>
    </message>
    <message>
        <source>with&amp;out:</source>
        <translation>si&amp;n:</translation>
    </message>
    <message>
        <source>Text that rows have</source>
        <translation>Texto que tienen las filas</translation>
    </message>
    <message>
        <source>Text that rows do not have</source>
        <translation>Texto que no tienen las filas</translation>
    </message>
    <message>
        <source>E&amp;xpression</source>
        <translation>E&amp;xpresión</translation>
    </message>
    <message>
        <source>Take the texts for regular expressions</source>
        <translation>Tomar los textos como expresiones regulares</translation>
    </message>
    <message>
        <source>&amp;Aa</source>
        <translation>&amp;Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>Tell capital letters from small ones</source>
        <translation>Distinguir mayúsculas de minúsculas</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todas</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>without &quot;%1&quot;</source>
        <translation>sin «%1»</translation>
    </message>
    <message>
        <source>with &quot;%1&quot;</source>
        <translation>con «%1»</translation>
    </message>
    <message>
        <source>%1 is not %2</source>
        <translation>%1 no es %2</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 es %2</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source> or </source>
        <translation> o </translation>
    </message>
    <message>
        <source>from %1</source>
        <translation>desde %1</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>hasta %1</translation>
    </message>
</context>
<context>
    <name>viewer::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Text of a line</source>
        <translation>Texto de una línea</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texto que buscar</translation>
    </message>
    <message>
        <source>Ex&amp;pression</source>
        <translation>Ex&amp;presión</translation>
    </message>
    <message>
        <source>Take the text for a regular expression</source>
        <translation>Tomar el texto como expresión regular</translation>
    </message>
    <message>
        <source>Aa</source>
        <translation>Aa</translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>Hits</source>
        <translation>Coincidencias</translation>
    </message>
    <message>
        <source>Find previous (Shift+F3)</source>
        <translation>Buscar anterior (Mayúsculas+F3)</translation>
    </message>
    <message>
        <source>Find next (F3)</source>
        <translation>Buscar siguiente (F3)</translation>
    </message>
    <message>
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>Dejar marcado este texto (Ctrl+M)</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Cerrar la barra de búsqueda (Escape)</translation>
    </message>
    <message>
        <source>%1 hits so far</source>
        <translation>%1 coincidencias hasta ahora</translation>
    </message>
    <message>
        <source>No hits</source>
        <translation>Sin coincidencias</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 coincidencias</translation>
    </message>
    <message>
        <source>No further colour is free</source>
        <translation>No queda ningún color libre</translation>
    </message>
    <message>
        <source>Mark %1 no more</source>
        <translation>No marcar más %1</translation>
    </message>
</context>
<context>
    <name>viewer::FollowBar</name>
    <message>
        <source>Go to the last row, and keep the end in sight (End)</source>
        <translation>Ir a la última fila y mantener el final a la vista (Fin)</translation>
    </message>
    <message>
        <source>1 new line</source>
        <translation>1 línea nueva</translation>
    </message>
    <message>
        <source>%1 new lines</source>
        <translation>%1 líneas nuevas</translation>
    </message>
</context>
<context>
    <name>viewer::LaneView</name>
    <message>
        <source>Lines of call %1 over time</source>
        <translation>Líneas de la llamada %1 en el tiempo</translation>
    </message>
    <message>
        <source>Lines of a call over time</source>
        <translation>Líneas de una llamada en el tiempo</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Línea %1 de %2</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>advertencia</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>nivel %1</translation>
    </message>
    <message>
        <source>%1 lines here</source>
        <translation>%1 líneas aquí</translation>
    </message>
</context>
<context>
    <name>viewer::MainWindow</name>
    <message>
        <source>The filter of last time is on and hides rows; Ctrl+Shift+A shows all.</source>
        <translation>El filtro de la última vez está activo y oculta filas; Ctrl+Mayús+A las muestra todas.</translation>
    </message>
    <message>
        <source>The current row has no such value</source>
        <translation>La fila actual no tiene ese valor</translation>
    </message>
    <message>
        <source>There is no further one</source>
        <translation>No hay más</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Writing: %1 of %2 rows</source>
        <translation>Escribiendo: %1 de %2 filas</translation>
    </message>
    <message>
        <source>Reading: %1 rows so far</source>
        <translation>Leyendo: %1 filas hasta ahora</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 filas</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 de %2 filas</translation>
    </message>
    <message>
        <source>, row %1</source>
        <translation>, fila %1</translation>
    </message>
    <message>
        <source>, following</source>
        <translation>, siguiendo</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>No source is open.

Drop logs, trace databases or cabinets here, or open them with Ctrl+O.</source>
        <translation>No hay ningún origen abierto.

Suelte aquí registros, bases de datos de trazas o archivos CAB, o ábralos con Control+O.</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Filas</translation>
    </message>
    <message>
        <source>Go to Time</source>
        <translation>Ir a la hora</translation>
    </message>
    <message>
        <source>Time, such as 15:23:07:</source>
        <translation>Hora, como 15:23:07:</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Comma-separated text (*.csv)</source>
        <translation>Texto separado por comas (*.csv)</translation>
    </message>
    <message>
        <source>JSON, an object a line (*.json)</source>
        <translation>JSON, un objeto por línea (*.json)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>%1 rows written</source>
        <translation>%1 filas escritas</translation>
    </message>
    <message>
        <source>The export was given up, and left no file</source>
        <translation>La exportación se canceló y no dejó ningún archivo</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>Abrir archivos</translation>
    </message>
    <message>
        <source>Logs, databases and cabinets (*.txt *.log *.mdb *.cab *.csv)</source>
        <translation>Registros, bases de datos y archivos CAB (*.txt *.log *.mdb *.cab *.csv)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>%1 rows copied</source>
        <translation>%1 filas copiadas</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>No call is shown. %1 shows the call of the current row.</source>
        <translation>No se muestra ninguna llamada. %1 muestra la llamada de la fila actual.</translation>
    </message>
    <message>
        <source>The current row has no call id. Lines of some forms have none; where there is one, %1 shows the call.</source>
        <translation>La fila actual no tiene identificador de llamada. Las líneas de algunas formas no lo llevan; donde lo hay, %1 muestra la llamada.</translation>
    </message>
    <message>
        <source>All Traces</source>
        <translation>Todas las trazas</translation>
    </message>
    <message>
        <source>No filter was saved yet</source>
        <translation>Todavía no se ha guardado ningún filtro</translation>
    </message>
    <message>
        <source>Save Filter</source>
        <translation>Guardar filtro</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Open Filter File</source>
        <translation>Abrir archivo de filtro</translation>
    </message>
    <message>
        <source>Filters (*.json)</source>
        <translation>Filtros (*.json)</translation>
    </message>
    <message>
        <source>Nothing that is open can be followed: only logs in files of their own grow. Trace databases, cabinets and what comes through a pipe do not.</source>
        <translation>Nada de lo abierto se puede seguir: solo crecen los registros en archivos propios. Las bases de datos de trazas, los archivos CAB y lo que llega por una tubería no crecen.</translation>
    </message>
    <message>
        <source>What is no log of its own is shown, and not followed</source>
        <translation>Lo que no es un registro propio se muestra, pero no se sigue</translation>
    </message>
    <message>
        <source>No row has a bookmark any more.</source>
        <translation>Ya ninguna fila tiene marcador.</translation>
    </message>
    <message>
        <source>The row has a bookmark.</source>
        <translation>La fila tiene un marcador.</translation>
    </message>
    <message>
        <source>The row has no bookmark any more.</source>
        <translation>La fila ya no tiene marcador.</translation>
    </message>
    <message>
        <source>No row has a bookmark or a note. Ctrl+B sets a bookmark.</source>
        <translation>Ninguna fila tiene marcador ni nota. Control+B pone un marcador.</translation>
    </message>
    <message>
        <source>The rows with bookmarks and notes are hidden by the filter.</source>
        <translation>El filtro oculta las filas con marcadores y notas.</translation>
    </message>
    <message>
        <source>The row is hidden by the filter; Ctrl+Shift+A shows all.</source>
        <translation>El filtro oculta la fila; Control+Mayúsculas+A muestra todas.</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Text for this row; an empty one takes the note away:</source>
        <translation>Texto para esta fila; si queda vacío, la nota se quita:</translation>
    </message>
    <message>
        <source>The text is %1 characters too long for a note:</source>
        <translation>El texto es %1 caracteres demasiado largo para una nota:</translation>
    </message>
    <message>
        <source>The note can&apos;t be kept: %1</source>
        <translation>La nota no se puede guardar: %1</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>%1 of %2 selected rows copied; an export has all that are on show</source>
        <translation>%1 de %2 filas seleccionadas copiadas; una exportación contiene todas las mostradas</translation>
    </message>
    <message>
        <source>The manual is not beside the viewer. Install it again to read it.</source>
        <translation>El manual no está junto al visor. Vuelva a instalarlo para leerlo.</translation>
    </message>
    <message>
        <source>Copying was given up; the clipboard is as it was</source>
        <translation>Se ha cancelado la copia; el portapapeles no ha cambiado</translation>
    </message>
    <message>
        <source>Copying: %1 of %2 rows</source>
        <translation>Copiando: %1 de %2 filas</translation>
    </message>
</context>
<context>
    <name>viewer::MarkGutter</name>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Marcadores y notas</translation>
    </message>
</context>
<context>
    <name>viewer::MarkList</name>
    <message>
        <source>Bookmarks and Notes</source>
        <translation>Marcadores y notas</translation>
    </message>
    <message>
        <source>Bookmarks and notes</source>
        <translation>Marcadores y notas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>The row of this note was not found in what is open.</source>
        <translation>La fila de esta nota no se encontró en lo que está abierto.</translation>
    </message>
    <message>
        <source>Ctrl+B sets a bookmark on the current row, Ctrl+N gives it a note.</source>
        <translation>Control+B pone un marcador en la fila actual, Control+N le da una nota.</translation>
    </message>
    <message>
        <source>Enter goes to the row, Delete takes the bookmark and the note away.</source>
        <translation>Entrar va a la fila, Suprimir quita el marcador y la nota.</translation>
    </message>
</context>
<context>
    <name>viewer::Marks</name>
    <message>
        <source>Bookmark</source>
        <translation>Marcador</translation>
    </message>
    <message>
        <source>Bookmarks and notes on rows that come through a pipe are not kept</source>
        <translation>Los marcadores y notas en filas que llegan por una tubería no se guardan</translation>
    </message>
</context>
<context>
    <name>viewer::RowModel</name>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>advertencia</translation>
    </message>
    <message>
        <source>Since row before</source>
        <translation>Desde la fila anterior</translation>
    </message>
    <message>
        <source>Since marked row</source>
        <translation>Desde la fila marcada</translation>
    </message>
</context>
<context>
    <name>viewer::RowTable</name>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>&amp;Restablecer columnas</translation>
    </message>
</context>
<context>
    <name>viewer::TimeStrip</name>
    <message>
        <source>Rows over time</source>
        <translation>Filas en el tiempo</translation>
    </message>
    <message>
        <source>Errors, warnings and other rows on show, over time</source>
        <translation>Errores, advertencias y otras filas mostradas, en el tiempo</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 coincidencias</translation>
    </message>
    <message>
        <source>%1: %2 rows, %3 errors, %4 warnings</source>
        <translation>%1: %2 filas, %3 errores, %4 advertencias</translation>
    </message>
</context>
</TS>
