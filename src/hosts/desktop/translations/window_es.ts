<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Commands</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Action</source>
        <translation>A&amp;cción</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Tema</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Open Site...</source>
        <translation>&amp;Abrir sitio...</translation>
    </message>
    <message>
        <source>Work on another server, in a folder</source>
        <translation>Trabajar con otro servidor, en una carpeta</translation>
    </message>
    <message>
        <source>Make &amp;Sample Server...</source>
        <translation>&amp;Crear servidor de ejemplo...</translation>
    </message>
    <message>
        <source>Make a server to try things on, in a new folder</source>
        <translation>Crear un servidor de prueba en una carpeta nueva</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Close the tool</source>
        <translation>Cerrar la herramienta</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>Read again what is shown</source>
        <translation>Volver a leer lo que se muestra</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy the selected rows, one line each</source>
        <translation>Copiar las filas seleccionadas, una línea por fila</translation>
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
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todas</translation>
    </message>
    <message>
        <source>Select every row on show</source>
        <translation>Seleccionar todas las filas mostradas</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Buscar...</translation>
    </message>
    <message>
        <source>Look for a text in the log</source>
        <translation>Buscar un texto en el registro</translation>
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
        <source>&amp;Go to Time...</source>
        <translation>&amp;Ir a la hora...</translation>
    </message>
    <message>
        <source>Go to the line of a time of day</source>
        <translation>Ir a la línea de una hora del día</translation>
    </message>
    <message>
        <source>End the filter</source>
        <translation>Quitar el filtro</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>Marca&amp;dor</translation>
    </message>
    <message>
        <source>Mark the current line, or take its mark away</source>
        <translation>Marcar la línea actual o quitarle la marca</translation>
    </message>
    <message>
        <source>Next Boo&amp;kmark</source>
        <translation>Marcador si&amp;guiente</translation>
    </message>
    <message>
        <source>Go to the next marked line</source>
        <translation>Ir a la siguiente línea marcada</translation>
    </message>
    <message>
        <source>Previo&amp;us Bookmark</source>
        <translation>Marcador a&amp;nterior</translation>
    </message>
    <message>
        <source>Go to the marked line before</source>
        <translation>Ir a la línea marcada anterior</translation>
    </message>
    <message>
        <source>Cl&amp;ear Bookmarks</source>
        <translation>B&amp;orrar marcadores</translation>
    </message>
    <message>
        <source>Take every mark of this log away</source>
        <translation>Quitar todas las marcas de este registro</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Detalles</translation>
    </message>
    <message>
        <source>Show all of the current line below the log</source>
        <translation>Mostrar la línea actual completa debajo del registro</translation>
    </message>
    <message>
        <source>&amp;Other Pane</source>
        <translation>&amp;Otro panel</translation>
    </message>
    <message>
        <source>Go from the tree to the view, or back</source>
        <translation>Ir del árbol a la vista, o volver</translation>
    </message>
    <message>
        <source>&amp;Larger Text</source>
        <translation>Texto más &amp;grande</translation>
    </message>
    <message>
        <source>Show traces in larger letters</source>
        <translation>Mostrar las trazas con letra más grande</translation>
    </message>
    <message>
        <source>&amp;Smaller Text</source>
        <translation>Texto más &amp;pequeño</translation>
    </message>
    <message>
        <source>Show traces in smaller letters</source>
        <translation>Mostrar las trazas con letra más pequeña</translation>
    </message>
    <message>
        <source>&amp;Normal Text</source>
        <translation>Texto &amp;normal</translation>
    </message>
    <message>
        <source>Show traces in letters of the usual size</source>
        <translation>Mostrar las trazas con letra del tamaño habitual</translation>
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
        <source>&amp;Help Topics</source>
        <translation>&amp;Temas de ayuda</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Abrir el manual</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>Te&amp;clas</translation>
    </message>
    <message>
        <source>Show every key of the tool</source>
        <translation>Mostrar todas las teclas de la herramienta</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>&amp;Acerca de...</translation>
    </message>
    <message>
        <source>Version and interface language</source>
        <translation>Versión e idioma de la interfaz</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Registro</translation>
    </message>
    <message>
        <source>&amp;Mark This Text</source>
        <translation>&amp;Marcar este texto</translation>
    </message>
    <message>
        <source>Keep the text that is looked for marked in a colour of its own</source>
        <translation>Dejar marcado con un color propio el texto que se busca</translation>
    </message>
    <message>
        <source>Next Err&amp;or</source>
        <translation>Error sig&amp;uiente</translation>
    </message>
    <message>
        <source>Go to the next line of an error</source>
        <translation>Ir a la siguiente línea con un error</translation>
    </message>
    <message>
        <source>P&amp;revious Error</source>
        <translation>E&amp;rror anterior</translation>
    </message>
    <message>
        <source>Go to the line of an error before</source>
        <translation>Ir a la línea anterior con un error</translation>
    </message>
    <message>
        <source>Next &amp;Warning</source>
        <translation>&amp;Próxima advertencia</translation>
    </message>
    <message>
        <source>Go to the next line of a warning</source>
        <translation>Ir a la siguiente línea con una advertencia</translation>
    </message>
    <message>
        <source>Prev&amp;ious Warning</source>
        <translation>Advertencia ant&amp;erior</translation>
    </message>
    <message>
        <source>Go to the line of a warning before</source>
        <translation>Ir a la línea anterior con una advertencia</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;Filtrar...</translation>
    </message>
    <message>
        <source>Show or hide lines by what is in their columns</source>
        <translation>Mostrar u ocultar líneas según el contenido de sus columnas</translation>
    </message>
    <message>
        <source>Show &amp;All Rows</source>
        <translation>Mostrar &amp;todas las filas</translation>
    </message>
    <message>
        <source>F&amp;ollow</source>
        <translation>Segui&amp;r</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>Mostrar las líneas según llegan mientras la última sea la actual</translation>
    </message>
    <message>
        <source>Open in &amp;Viewer</source>
        <translation>Abrir en el &amp;visor</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>Abrir este registro en el visor, que muestra registros de cualquier tamaño</translation>
    </message>
    <message>
        <source>Filter by &amp;Column...</source>
        <translation>Filtrar por &amp;columna...</translation>
    </message>
    <message>
        <source>Show or hide lines by the values of a further column</source>
        <translation>Mostrar u ocultar líneas según los valores de otra columna</translation>
    </message>
    <message>
        <source>Saved Fil&amp;ters...</source>
        <translation>Filtros &amp;guardados...</translation>
    </message>
    <message>
        <source>Take a filter that was saved by a name, here or in the viewer</source>
        <translation>Tomar un filtro guardado con un nombre, aquí o en el visor</translation>
    </message>
    <message>
        <source>&amp;Save Filter...</source>
        <translation>Guardar f&amp;iltro...</translation>
    </message>
    <message>
        <source>Save the filter by a name, in a file that others can open</source>
        <translation>Guardar el filtro con un nombre, en un archivo que otros pueden abrir</translation>
    </message>
    <message>
        <source>O&amp;pen Filter File...</source>
        <translation>A&amp;brir archivo de filtro...</translation>
    </message>
    <message>
        <source>Take a filter from a file that somebody gave</source>
        <translation>Tomar un filtro de un archivo que alguien dio</translation>
    </message>
</context>
<context>
    <name>FilterFiles</name>
    <message>
        <source>No filter was saved yet</source>
        <translation>Aún no se ha guardado ningún filtro</translation>
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
        <source>Saved as %1, without the values of times and traces.</source>
        <translation>Guardado como %1, sin los valores de horas y trazas.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Guardado como %1.</translation>
    </message>
    <message>
        <source>The filter was not saved: %1.</source>
        <translation>El filtro no se guardó: %1.</translation>
    </message>
    <message>
        <source>The filter&apos;s times and processes hold in the viewer, not in a single log.</source>
        <translation>Las horas y los procesos del filtro valen en el visor, no en un solo registro.</translation>
    </message>
    <message>
        <source>The filter was not taken: %1.</source>
        <translation>El filtro no se tomó: %1.</translation>
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
    <name>FrameNeeds</name>
    <message>
        <source>End with the Newest Log</source>
        <translation>Terminar con el registro más nuevo</translation>
    </message>
    <message>
        <source>Looking at the logs...</source>
        <translation>Mirando los registros...</translation>
    </message>
    <message>
        <source>No logs were found in the server&apos;s log folder.</source>
        <translation>No se encontraron registros en la carpeta de registros del servidor.</translation>
    </message>
    <message>
        <source>The logs run from %1 to %2.</source>
        <translation>Los registros van de %1 a %2.</translation>
    </message>
    <message>
        <source>No log has lines of this time frame.</source>
        <translation>Ningún registro tiene líneas de este intervalo.</translation>
    </message>
    <message>
        <source>This time frame takes 1 log, %1.</source>
        <translation>Este intervalo toma 1 registro, %1.</translation>
    </message>
    <message>
        <source>This time frame takes %1 logs, %2.</source>
        <translation>Este intervalo toma %1 registros, %2.</translation>
    </message>
</context>
<context>
    <name>GatherReport</name>
    <message>
        <source>The server names no current log of %1.</source>
        <translation>El servidor no indica ningún registro actual de %1.</translation>
    </message>
    <message>
        <source>The current log of %1, %2, is not there.</source>
        <translation>El registro actual de %1, %2, no está.</translation>
    </message>
    <message>
        <source>The current log of %1, %2, can&apos;t be looked at: %3.</source>
        <translation>No se puede consultar el registro actual de %1, %2: %3.</translation>
    </message>
    <message>
        <source>The server&apos;s log folder %1 is not there.</source>
        <translation>La carpeta de registros %1 del servidor no está.</translation>
    </message>
    <message>
        <source>The logs in %1 could not be listed: %2.</source>
        <translation>No se pudieron enumerar los registros de %1: %2.</translation>
    </message>
    <message>
        <source>%1 was passed over: %2.</source>
        <translation>%1 se pasó por alto: %2.</translation>
    </message>
    <message>
        <source>%1 was not gathered: it is not in %2.</source>
        <translation>%1 no se recopiló: no está en %2.</translation>
    </message>
    <message>
        <source>%1 was not copied: %2.</source>
        <translation>%1 no se copió: %2.</translation>
    </message>
    <message>
        <source>%1 was copied in part: %2.</source>
        <translation>%1 se copió en parte: %2.</translation>
    </message>
    <message>
        <source>%1 was not gathered as a whole: %2.</source>
        <translation>%1 no se recopiló por completo: %2.</translation>
    </message>
    <message>
        <source>%1 was read as far as line %3: %2.</source>
        <translation>%1 se leyó hasta la línea %3: %2.</translation>
    </message>
    <message>
        <source>Lines of %1 that were not stored: %3 (%2).</source>
        <translation>Líneas de %1 que no se guardaron: %3 (%2).</translation>
    </message>
    <message>
        <source>%1 was cut while it was read.</source>
        <translation>%1 se recortó mientras se leía.</translation>
    </message>
    <message>
        <source>%1 was taken away while it was read.</source>
        <translation>%1 desapareció mientras se leía.</translation>
    </message>
    <message>
        <source>%1 logs were not gathered as a whole, the first of them %2: %3.</source>
        <translation>%1 registros no se recopilaron por completo, el primero %2: %3.</translation>
    </message>
    <message>
        <source>%1 has too many malformed lines, and was read no further than the eleventh.</source>
        <translation>%1 tiene demasiadas líneas mal formadas y solo se leyó hasta la undécima.</translation>
    </message>
    <message>
        <source>The %1 event log was not captured: %2.</source>
        <translation>El registro de eventos %1 no se capturó: %2.</translation>
    </message>
    <message>
        <source>The destination %1 can&apos;t be made: %2.</source>
        <translation>No se puede crear el destino %1: %2.</translation>
    </message>
    <message>
        <source>The destination %1 has gone.</source>
        <translation>El destino %1 ya no está.</translation>
    </message>
    <message>
        <source>No trace database was made: %1.</source>
        <translation>No se creó ninguna base de datos de trazas: %1.</translation>
    </message>
    <message>
        <source>The trace database is not complete: %1.</source>
        <translation>La base de datos de trazas no está completa: %1.</translation>
    </message>
    <message>
        <source>The macro trace definitions could not all be stored: %1.</source>
        <translation>No se pudieron guardar todas las definiciones de macrotrazas: %1.</translation>
    </message>
    <message>
        <source>The filters could not all be stored: %1.</source>
        <translation>No se pudieron guardar todos los filtros: %1.</translation>
    </message>
    <message>
        <source>No cabinet was made.</source>
        <translation>No se creó ningún archivo .cab.</translation>
    </message>
    <message>
        <source>No cabinet was made: the cabinet maker %1 is missing.</source>
        <translation>No se creó ningún archivo .cab: falta el programa %1.</translation>
    </message>
    <message>
        <source>No cabinet was made: %1.</source>
        <translation>No se creó ningún archivo .cab: %1.</translation>
    </message>
    <message>
        <source>The site&apos;s cabinet maker is not the installed one, which made the cabinet in its place.</source>
        <translation>El programa cabmaker del sitio no es el instalado, que creó el archivo .cab en su lugar.</translation>
    </message>
    <message>
        <source>%1 in the destination %2 would be lost: the gather makes a file or folder of that name and removes it again.</source>
        <translation>%1 en el destino %2 se perdería: la recopilación crea un archivo o una carpeta con ese nombre y lo elimina después.</translation>
    </message>
    <message>
        <source>%1 in the destination %2 is not a plain file, and nothing is written to such a one.</source>
        <translation>%1 en el destino %2 no es un archivo normal, y no se escribe nada en él.</translation>
    </message>
    <message>
        <source>Another gather is writing to %1; wait until it has ended, or name another folder.</source>
        <translation>Otra recopilación está escribiendo en %1; espere a que termine o indique otra carpeta.</translation>
    </message>
    <message>
        <source>The gather was cancelled.</source>
        <translation>La recopilación se canceló.</translation>
    </message>
    <message>
        <source>No line lies in the time frame.</source>
        <translation>Ninguna línea está dentro del intervalo de tiempo.</translation>
    </message>
    <message>
        <source>What was gathered is kept in %1.</source>
        <translation>Lo recopilado se conserva en %1.</translation>
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
    <name>NoticeBar</name>
    <message>
        <source>Close this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>In lists and pages</source>
        <translation>En listas y páginas</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Opens the log or the node of the current row</source>
        <translation>Abre el registro o el nodo de la fila actual</translation>
    </message>
    <message>
        <source>Open or close a node</source>
        <translation>Abrir o cerrar un nodo</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>Derecha, Izquierda</translation>
    </message>
    <message>
        <source>In a tree</source>
        <translation>En un árbol</translation>
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
        <source>Ticks or clears the current node of a page&apos;s tree</source>
        <translation>Marca o desmarca el nodo actual del árbol de una página</translation>
    </message>
    <message>
        <source>Help on a page</source>
        <translation>Ayuda de una página</translation>
    </message>
    <message>
        <source>In a wizard or a sheet, and in the about box</source>
        <translation>En un asistente, en una hoja de propiedades y en el cuadro Acerca de</translation>
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
        <source>In a list</source>
        <translation>En una lista</translation>
    </message>
    <message>
        <source>Close find or filter</source>
        <translation>Cerrar la búsqueda o el filtro</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Escape</translation>
    </message>
    <message>
        <source>Closes the bar in which the cursor is</source>
        <translation>Cierra la barra en la que está el cursor</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Diagnostic logs (diag_*.txt data_*.txt *.log);;All files (*)</source>
        <translation>Registros de diagnóstico (diag_*.txt data_*.txt *.log);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Menos</translation>
    </message>
    <message>
        <source>This site has no %1 to show.</source>
        <translation>Este sitio no tiene ningún %1 que mostrar.</translation>
    </message>
    <message>
        <source>The site %1 could not be opened: %2. Choose another one with Ctrl+Shift+O.</source>
        <translation>No se ha podido abrir el sitio %1: %2. Elija otro con Control+Mayúsculas+O.</translation>
    </message>
    <message>
        <source>The manual is not beside the tool. Install it again to read it.</source>
        <translation>El manual no está junto a la herramienta. Vuelva a instalarlo para leerlo.</translation>
    </message>
    <message>
        <source>it has no site.ini, registry.reg or drive_c in it</source>
        <translation>no contiene site.ini, registry.reg ni drive_c</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose a new folder.</source>
        <translation>No se ha podido crear un servidor de ejemplo en %1: %2. Elija una carpeta nueva.</translation>
    </message>
    <message>
        <source>No sample server could be made in %1: %2. Choose another folder.</source>
        <translation>No se ha podido crear un servidor de ejemplo en %1: %2. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The site was not closed cleanly: %1. The language of its event log may not be the first one; open it again.</source>
        <translation>El sitio no se ha cerrado correctamente: %1. Es posible que el idioma de su registro de eventos no sea el original; vuelva a abrirlo.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date, so %2 stays. Type a date as it is written there.</source>
        <translation>«%1» no es una fecha, así que se mantiene %2. Escriba la fecha con ese formato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a time, so %2 stays. Type a time as it is written there.</source>
        <translation>«%1» no es una hora, así que se mantiene %2. Escriba la hora con ese formato.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be chosen here. The field now holds %2.</source>
        <translation>%1 no se puede elegir aquí. El campo contiene ahora %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of megabytes, so the space for diagnostic files stays as it was.</source>
        <translation>«%1» no es un número de megabytes, así que el espacio para los archivos de diagnóstico queda como estaba.</translation>
    </message>
    <message>
        <source>Not all of it was done: %1.</source>
        <translation>No se hizo todo: %1.</translation>
    </message>
    <message>
        <source>%1 can be read with the viewer (orvandiag-viewer), which is not installed here.</source>
        <translation>%1 se puede leer con el visor (orvandiag-viewer), que no está instalado aquí.</translation>
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
    <name>ResultPlace</name>
    <message>
        <source>On this machine: %1</source>
        <translation>En este equipo: %1</translation>
    </message>
    <message>
        <source>No file manager was found on this machine. The results are in %1.</source>
        <translation>No se ha encontrado ningún administrador de archivos en este equipo. Los resultados están en %1.</translation>
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
    <name>SelectionNeeds</name>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>1 server log is chosen, %1. Free at the destination: %2.</source>
        <translation>1 registro del servidor elegido, %1. Libre en el destino: %2.</translation>
    </message>
    <message>
        <source>%1 server logs are chosen, %2. Free at the destination: %3.</source>
        <translation>%1 registros del servidor elegidos, %2. Libre en el destino: %3.</translation>
    </message>
    <message>
        <source>That is not enough room.</source>
        <translation>No hay espacio suficiente.</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Open a Site</source>
        <translation>Abrir un sitio</translation>
    </message>
    <message>
        <source>The folder of a server, or of a copy of one. A folder that is dropped here is opened, too.</source>
        <translation>La carpeta de un servidor o de una copia de uno. También se abre una carpeta que se suelte aquí.</translation>
    </message>
    <message>
        <source>Make a Sample Server</source>
        <translation>Crear un servidor de ejemplo</translation>
    </message>
    <message>
        <source>A server with made-up logs, to try things on, in a new folder.</source>
        <translation>Un servidor con registros inventados, para probar, en una carpeta nueva.</translation>
    </message>
    <message>
        <source>Read the Manual</source>
        <translation>Leer el manual</translation>
    </message>
    <message>
        <source>What the tool does, and how to go about it.</source>
        <translation>Qué hace la herramienta y cómo se usa.</translation>
    </message>
    <message>
        <source>No site is open</source>
        <translation>No hay ningún sitio abierto</translation>
    </message>
    <message>
        <source>A site is a server in a folder, with its logs and settings.</source>
        <translation>Un sitio es un servidor en una carpeta, con sus registros y su configuración.</translation>
    </message>
</context>
<context>
    <name>desktop::ConsolePane</name>
    <message>
        <source>Server tree</source>
        <translation>Árbol del servidor</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Procesos</translation>
    </message>
    <message>
        <source>Log files</source>
        <translation>Archivos de registro</translation>
    </message>
    <message>
        <source>The tool is still finishing what was cancelled. One moment.</source>
        <translation>La herramienta todavía está terminando lo que se canceló. Un momento.</translation>
    </message>
    <message>
        <source>That did not work: %1. Press F5 to renew what is shown, and try again.</source>
        <translation>No ha funcionado: %1. Pulse F5 para renovar lo que se muestra e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>desktop::DetailsPane</name>
    <message>
        <source>Fields of the line</source>
        <translation>Campos de la línea</translation>
    </message>
    <message>
        <source>Trace of the line</source>
        <translation>Traza de la línea</translation>
    </message>
    <message>
        <source>Select a line to read all of it here.</source>
        <translation>Seleccione una línea para leerla completa aquí.</translation>
    </message>
</context>
<context>
    <name>desktop::FilterBar</name>
    <message>
        <source>Only rows with this text</source>
        <translation>Solo filas con este texto</translation>
    </message>
    <message>
        <source>Filter by text</source>
        <translation>Filtrar por texto</translation>
    </message>
    <message>
        <source>hide &amp;matches</source>
        <translation>&amp;ocultar coincidencias</translation>
    </message>
    <message>
        <source>Hide the rows with the text instead of showing them</source>
        <translation>Ocultar las filas con el texto en lugar de mostrarlas</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todas</translation>
    </message>
    <message>
        <source>Show every row again (Ctrl+Shift+A)</source>
        <translation>Volver a mostrar todas las filas (Control+Mayúsculas+A)</translation>
    </message>
    <message>
        <source>Close the filter bar and show every row (Esc)</source>
        <translation>Cerrar la barra de filtro y mostrar todas las filas (Escape)</translation>
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
        <source>Filter by a further column (Ctrl+Alt+F)</source>
        <translation>Filtrar por otra columna (Ctrl+Alt+F)</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>no %1</translation>
    </message>
    <message>
        <source>Let go: %1</source>
        <translation>Quitar: %1</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expresión</translation>
    </message>
</context>
<context>
    <name>desktop::FilterButton</name>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>&amp;Hide the ticked ones</source>
        <translation>&amp;Ocultar los marcados</translation>
    </message>
    <message>
        <source>&amp;Untick all</source>
        <translation>&amp;Desmarcar todos</translation>
    </message>
    <message>
        <source>all</source>
        <translation>todos</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>not %1</source>
        <translation>excepto %1</translation>
    </message>
    <message>
        <source>%1: %2 </source>
        <translation>%1: %2 </translation>
    </message>
    <message>
        <source>Filter by %1: %2</source>
        <translation>Filtrar por %1: %2</translation>
    </message>
    <message>
        <source>Show or hide rows by %1</source>
        <translation>Mostrar u ocultar filas por %1</translation>
    </message>
    <message>
        <source>Values with this text</source>
        <translation>Valores con este texto</translation>
    </message>
    <message>
        <source>Look among the values</source>
        <translation>Buscar entre los valores</translation>
    </message>
    <message>
        <source>%1 more: type to look among them</source>
        <translation>%1 más: escriba para buscar entre ellos</translation>
    </message>
</context>
<context>
    <name>desktop::FindBar</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Go to &amp;time:</source>
        <translation>&amp;Ir a la hora:</translation>
    </message>
    <message>
        <source>Text in any column</source>
        <translation>Texto en cualquier columna</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texto que buscar</translation>
    </message>
    <message>
        <source>such as 15:23:07</source>
        <translation>p. ej., 15:23:07</translation>
    </message>
    <message>
        <source>Time to go to</source>
        <translation>Hora a la que ir</translation>
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
        <source>Close the find bar (Esc)</source>
        <translation>Cerrar la barra de búsqueda (Escape)</translation>
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
        <source>Keep this text marked (Ctrl+M)</source>
        <translation>Dejar marcado este texto (Ctrl+M)</translation>
    </message>
    <message>
        <source>Type the text to keep marked</source>
        <translation>Escriba el texto que queda marcado</translation>
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
    <name>desktop::GrowthBar</name>
    <message>
        <source>New lines</source>
        <translation>Líneas nuevas</translation>
    </message>
    <message>
        <source>Read the log again, to its present end (F5)</source>
        <translation>Leer de nuevo el registro hasta su final actual (F5)</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>Abrir en el vi&amp;sor</translation>
    </message>
    <message>
        <source>Open this log in the viewer, which shows logs of any size</source>
        <translation>Abrir este registro en el visor, que muestra registros de cualquier tamaño</translation>
    </message>
    <message>
        <source>Foll&amp;ow</source>
        <translation>Se&amp;guir</translation>
    </message>
    <message>
        <source>Show lines as they come, while the last line is the current one</source>
        <translation>Mostrar las líneas según llegan mientras la última sea la actual</translation>
    </message>
    <message>
        <source>Read A&amp;gain</source>
        <translation>&amp;Leer de nuevo</translation>
    </message>
</context>
<context>
    <name>desktop::LogView</name>
    <message>
        <source>Log lines</source>
        <translation>Líneas del registro</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in these lines.</source>
        <translation>&quot;%1&quot; no está en estas líneas.</translation>
    </message>
    <message>
        <source>Went on from the top.</source>
        <translation>Se ha continuado desde el principio.</translation>
    </message>
    <message>
        <source>Went on from the end.</source>
        <translation>Se ha continuado desde el final.</translation>
    </message>
    <message>
        <source>Type a time such as 15:23</source>
        <translation>Escriba una hora, p. ej., 15:23</translation>
    </message>
    <message>
        <source>No line at %1 or later</source>
        <translation>Ninguna línea a las %1 o después</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Línea %1</translation>
    </message>
    <message>
        <source>Line %1 is marked.</source>
        <translation>La línea %1 está marcada.</translation>
    </message>
    <message>
        <source>Line %1 is not marked any more.</source>
        <translation>La línea %1 ya no está marcada.</translation>
    </message>
    <message>
        <source>No line of this log is marked. Ctrl+B marks one.</source>
        <translation>Ninguna línea de este registro está marcada. Control+B marca una.</translation>
    </message>
    <message>
        <source>The marked lines are hidden by the filter.</source>
        <translation>El filtro oculta las líneas marcadas.</translation>
    </message>
    <message>
        <source>No line of this log is marked any more.</source>
        <translation>Ya no hay ninguna línea marcada en este registro.</translation>
    </message>
    <message>
        <source>&amp;Show only %1 %2</source>
        <translation>&amp;Mostrar solo %1 %2</translation>
    </message>
    <message>
        <source>&amp;Hide %1 %2</source>
        <translation>&amp;Ocultar %1 %2</translation>
    </message>
    <message>
        <source>&amp;Bookmark</source>
        <translation>Marca&amp;dor</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy as CS&amp;V</source>
        <translation>Copiar como CS&amp;V</translation>
    </message>
    <message>
        <source>Marked line %1: %2</source>
        <translation>Línea marcada %1: %2</translation>
    </message>
    <message>
        <source>Hit in line %1: %2</source>
        <translation>Coincidencia en la línea %1: %2</translation>
    </message>
    <message>
        <source>Error in line %1: %2</source>
        <translation>Error en la línea %1: %2</translation>
    </message>
    <message>
        <source>Warning in line %1: %2</source>
        <translation>Advertencia en la línea %1: %2</translation>
    </message>
    <message>
        <source>bookmark</source>
        <translation>marcador</translation>
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
        <source>No line on show tells of an error.</source>
        <translation>Ninguna línea mostrada indica un error.</translation>
    </message>
    <message>
        <source>No line on show tells of a warning.</source>
        <translation>Ninguna línea mostrada indica una advertencia.</translation>
    </message>
    <message>
        <source>This log has grown past the %1 bytes that the tool shows.</source>
        <translation>Este registro ha superado los %1 bytes que la herramienta muestra.</translation>
    </message>
    <message>
        <source>This log was begun anew.</source>
        <translation>Este registro se ha empezado de nuevo.</translation>
    </message>
    <message>
        <source>Following: lines are shown as they come.</source>
        <translation>Siguiendo: las líneas se muestran según llegan.</translation>
    </message>
    <message>
        <source>%1 new lines wait. Go to the last line to see them.</source>
        <translation>Esperan %1 líneas nuevas. Vaya a la última línea para verlas.</translation>
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
    <name>desktop::MainWindow</name>
    <message>
        <source>This site is read-only: logs can be read, but traces and settings cannot be changed. Make its folder writable, or open a copy.</source>
        <translation>Este sitio es de solo lectura: se pueden leer los registros, pero no cambiar trazas ni configuración. Permita escribir en su carpeta o abra una copia.</translation>
    </message>
    <message>
        <source>The server&apos;s database could not be opened: %1. Logs can be read and gathered, but traces and settings cannot be changed.</source>
        <translation>No se pudo abrir la base de datos del servidor: %1. Se pueden leer y reunir los registros, pero no cambiar trazas ni configuración.</translation>
    </message>
    <message>
        <source>The site %1 is no longer there. Put the folder back and press F5, or open another site with Ctrl+Shift+O.</source>
        <translation>El sitio %1 ya no existe. Restituya la carpeta y pulse F5, o abra otro sitio con Control+Mayúsculas+O.</translation>
    </message>
    <message>
        <source>The catalogue of your language (%1) is missing or damaged, so the tool&apos;s texts are in English. Choose another language in the about box (Ctrl+F1).</source>
        <translation>El catálogo de su idioma (%1) falta o está dañado, por lo que los textos de la herramienta están en inglés. Elija otro idioma en el cuadro Acerca de (Control+F1).</translation>
    </message>
    <message>
        <source>The tool&apos;s own log can&apos;t be written: %1. The tool goes on without it.</source>
        <translation>No se puede escribir el registro propio de la herramienta: %1. La herramienta continúa sin él.</translation>
    </message>
    <message>
        <source>Orvan Diagnostic Tool</source>
        <translation>Herramienta de diagnóstico de Orvan</translation>
    </message>
    <message>
        <source>1 row copied.</source>
        <translation>1 fila copiada.</translation>
    </message>
    <message>
        <source>%1 rows copied.</source>
        <translation>%1 filas copiadas.</translation>
    </message>
    <message>
        <source>Open Site: the folder of a server, with site.ini, registry.reg or drive_c</source>
        <translation>Abrir sitio: la carpeta de un servidor, con site.ini, registry.reg o drive_c</translation>
    </message>
    <message>
        <source>Make Sample Server in a New Folder</source>
        <translation>Crear servidor de ejemplo en una carpeta nueva</translation>
    </message>
    <message>
        <source>The language was not changed: %1. Choose it again.</source>
        <translation>El idioma no se cambió: %1. Elíjalo de nuevo.</translation>
    </message>
    <message>
        <source>The gather is being ended. The window closes in a moment.</source>
        <translation>Se está terminando la recopilación. La ventana se cerrará dentro de un momento.</translation>
    </message>
    <message>
        <source>&amp;Recent Sites</source>
        <translation>Sitios &amp;recientes</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Tool &amp;Bar</source>
        <translation>&amp;Barra de herramientas</translation>
    </message>
    <message>
        <source>Show or hide the buttons below the menus</source>
        <translation>Mostrar u ocultar los botones debajo de los menús</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>The site on show: %1</source>
        <translation>El sitio mostrado: %1</translation>
    </message>
    <message>
        <source>The gather is being ended. Try again in a moment.</source>
        <translation>Se está terminando la recopilación. Vuelva a intentarlo dentro de un momento.</translation>
    </message>
    <message>
        <source>This site is read-only: choose a destination outside of it.</source>
        <translation>Este sitio es de solo lectura: elija un destino fuera de él.</translation>
    </message>
    <message>
        <source>This site is read-only: what is chosen here is not written.</source>
        <translation>Este sitio es de solo lectura: lo que se elija aquí no se escribe.</translation>
    </message>
    <message>
        <source>The server was not told to start new log files: the signal in its registry stayed what it was.</source>
        <translation>No se indicó al servidor que iniciara nuevos archivos de registro: la señal de su Registro siguió siendo la misma.</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1 (no está)</translation>
    </message>
    <message>
        <source>&amp;Forget Folders That Are Not There</source>
        <translation>&amp;Olvidar las carpetas que no están</translation>
    </message>
    <message>
        <source>Sample Server</source>
        <translation>Servidor de ejemplo</translation>
    </message>
    <message>
        <source>Col&amp;umns</source>
        <translation>Col&amp;umnas</translation>
    </message>
    <message>
        <source>Sample server: %1</source>
        <translation>Servidor de ejemplo: %1</translation>
    </message>
</context>
<context>
    <name>desktop::MomentField</name>
    <message>
        <source>Calendar</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Pick a day from a calendar (F4)</source>
        <translation>Elegir un día en un calendario (F4)</translation>
    </message>
    <message>
        <source>M/d/yyyy</source>
        <translation>d/M/yyyy</translation>
    </message>
    <message>
        <source>h:mm:ss AP</source>
        <translation>H:mm:ss</translation>
    </message>
    <message>
        <source>en_US</source>
        <extracomment>The language and country by which a calendar names its days.</extracomment>
        <translation>es_ES</translation>
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
        <translation>%1 · actual</translation>
    </message>
</context>
<context>
    <name>desktop::SheetDialog</name>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Siguiente &gt;</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>A&amp;plicar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>That did not work: %1. Try again, or press Cancel.</source>
        <translation>No ha funcionado: %1. Inténtelo de nuevo o pulse Cancelar.</translation>
    </message>
</context>
<context>
    <name>desktop::TooLargePane</name>
    <message>
        <source>This log has %1 bytes, and the tool shows logs of up to %2. The viewer shows logs of any size.</source>
        <translation>Este registro tiene %1 bytes, y la herramienta muestra registros de hasta %2. El visor muestra registros de cualquier tamaño.</translation>
    </message>
    <message>
        <source>Open in Vie&amp;wer</source>
        <translation>Abrir en el vi&amp;sor</translation>
    </message>
</context>
</TS>
