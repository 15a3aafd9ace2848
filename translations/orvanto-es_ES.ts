<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>AddButton</name>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>No hay archivos en el portapapeles</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Add files…</source>
        <translation>Añadir archivos…</translation>
    </message>
    <message>
        <source>Add folder…</source>
        <translation>Añadir carpeta…</translation>
    </message>
</context>
<context>
    <name>AllOrNothing</name>
    <message>
        <source>All or nothing</source>
        <translation>Todo o nada</translation>
    </message>
    <message>
        <source>All or nothing: a run renames every file of the list, or none</source>
        <translation>Todo o nada: una ejecución renombra todos los archivos de la lista o ninguno</translation>
    </message>
    <message>
        <source>%1: nothing will be renamed, as %2 cannot be</source>
        <translation>%1: no se renombrará nada, porque hay %2 con problemas</translation>
    </message>
    <message>
        <source>New names so far: %1 of %2. Put everything back, or keep what is done?</source>
        <translation>Nombres nuevos hasta ahora: %1 de %2. ¿Restaurar todo o conservar lo hecho?</translation>
    </message>
    <message>
        <source>Put everything back</source>
        <translation>Restaurar todo</translation>
    </message>
    <message>
        <source>Keep what is done</source>
        <translation>Conservar lo hecho</translation>
    </message>
    <message>
        <source>Kept</source>
        <extracomment>of the report: files that have the name already which the rules make; a number follows</extracomment>
        <translation>Conservados</translation>
    </message>
    <message>
        <source>Rename what can be</source>
        <translation>Renombrar lo que se pueda</translation>
    </message>
    <message>
        <source>Nothing was renamed, as not every file can be.</source>
        <translation>No se ha renombrado nada, porque no todos los archivos se pueden renombrar.</translation>
    </message>
    <message>
        <source>Nothing was renamed: one file failed, and the others have their old names again.</source>
        <translation>No se ha renombrado nada: un archivo ha fallado y los demás vuelven a tener su nombre anterior.</translation>
    </message>
    <message>
        <source>Nothing was renamed: the run was cancelled.</source>
        <translation>No se ha renombrado nada: la ejecución se ha cancelado.</translation>
    </message>
    <message>
        <source>The run could not be put back as a whole; files that do not have their old names: %1</source>
        <translation>No se ha podido restaurar todo; archivos sin su nombre anterior: %1</translation>
    </message>
    <message>
        <source>Nothing was renamed: the journal of the run cannot be written.</source>
        <translation>No se ha renombrado nada: no se puede escribir el diario de la ejecución.</translation>
    </message>
    <message>
        <source>The run is not finished yet.</source>
        <translation>La ejecución aún no ha terminado.</translation>
    </message>
    <message>
        <source>Could not put back file &apos;%1&apos;: it is called &apos;%2&apos;</source>
        <translation>No se ha podido restaurar el archivo &apos;%1&apos;: se llama &apos;%2&apos;</translation>
    </message>
</context>
<context>
    <name>DialogNotice</name>
    <message>
        <source>Don&apos;t show this message again.</source>
        <translation>No volver a mostrar este mensaje.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>DialogSettings</name>
    <message>
        <source>Global Settings</source>
        <translation>Configuración general</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Add-ons</source>
        <translation>Extensiones</translation>
    </message>
    <message>
        <source>Localisation</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Donate</source>
        <translation>Donar</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Requires registry entry</source>
        <translation>Requiere una entrada en el registro</translation>
    </message>
    <message>
        <source>Load on system start-up</source>
        <translation>Iniciar con el sistema</translation>
    </message>
    <message>
        <source>Minimize on start</source>
        <translation>Minimizar al iniciar</translation>
    </message>
    <message>
        <source>Disable splash screen</source>
        <translation>Desactivar la pantalla de presentación</translation>
    </message>
    <message>
        <source>Restore window layout</source>
        <translation>Restaurar la disposición de la ventana</translation>
    </message>
    <message>
        <source>Restore window geometry</source>
        <translation>Restaurar el tamaño y la posición de la ventana</translation>
    </message>
    <message>
        <source>Minimize to tray icon</source>
        <translation>Minimizar al área de notificación</translation>
    </message>
    <message>
        <source>Automatically check for new version</source>
        <translation>Buscar nuevas versiones automáticamente</translation>
    </message>
    <message>
        <source>Check Now</source>
        <translation>Buscar ahora</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Translation: Kavrondel</source>
        <translation>Traducción: Kavrondel</translation>
    </message>
    <message>
        <source>Support this project</source>
        <translation>Apoyar este proyecto</translation>
    </message>
    <message>
        <source>This application is freeware and will always remain free. </source>
        <translation>Esta aplicación es gratuita y siempre lo será. </translation>
    </message>
    <message>
        <source>By making a small contribution you can help us in developing, upgrading and maintaining our products.</source>
        <translation>Con una pequeña contribución nos puede ayudar a desarrollar, mejorar y mantener nuestros productos.</translation>
    </message>
    <message>
        <source>Application Directory</source>
        <translation>Carpeta de la aplicación</translation>
    </message>
    <message>
        <source>Application Data Directory</source>
        <translation>Carpeta de datos de la aplicación</translation>
    </message>
    <message>
        <source>Visit our website</source>
        <translation>Visitar nuestro sitio web</translation>
    </message>
    <message>
        <source>Send us feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>&lt;b style=&apos;color:#888&apos;&gt;Made by Kavrondel&lt;/b&gt;</source>
        <translation>&lt;b style=&apos;color:#888&apos;&gt;Desarrollado por Kavrondel&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The command completed successfully.</source>
        <translation>El comando se ha completado correctamente.</translation>
    </message>
    <message>
        <source>The command failed to execute.</source>
        <translation>No se ha podido ejecutar el comando.</translation>
    </message>
    <message>
        <source>Make sure you have administrator rights.</source>
        <translation>Compruebe que dispone de permisos de administrador.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>DialogStart</name>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Automatically check for new versions</source>
        <translation>Buscar nuevas versiones automáticamente</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>We would like to thank you for your confidence and hope you&apos;ll enjoy this software.</source>
        <translation>Gracias por su confianza. Esperamos que disfrute de este programa.</translation>
    </message>
    <message>
        <source>Discover more products from us:</source>
        <translation>Descubra más productos nuestros:</translation>
    </message>
    <message>
        <source>We are looking for native speaking translators.</source>
        <translation>Buscamos traductores nativos.</translation>
    </message>
    <message>
        <source>Please contact us at: </source>
        <translation>Póngase en contacto con nosotros en: </translation>
    </message>
</context>
<context>
    <name>ExampleRules</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Number photos</source>
        <translation>Numerar fotos</translation>
    </message>
    <message>
        <source>Blanks for underscores</source>
        <translation>Espacios en lugar de guiones bajos</translation>
    </message>
    <message>
        <source>Tidy upper and lower case</source>
        <translation>Normalizar mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>Without camera prefixes</source>
        <translation>Sin prefijos de cámara</translation>
    </message>
    <message>
        <source>Dates as 2024-01-31</source>
        <translation>Fechas como 2024-01-31</translation>
    </message>
    <message>
        <source>Track numbers with two digits</source>
        <translation>Números de pista con dos cifras</translation>
    </message>
    <message>
        <source>&quot;Title - Artist&quot; for &quot;Artist - Title&quot;</source>
        <translation>«Título - Artista» en lugar de «Artista - Título»</translation>
    </message>
</context>
<context>
    <name>ExplorerModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
</context>
<context>
    <name>Fates</name>
    <message>
        <source>the file is not there</source>
        <translation>el archivo no existe</translation>
    </message>
    <message>
        <source>the new name is empty or only dots</source>
        <translation>el nombre nuevo está vacío o solo tiene puntos</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>esa carpeta no existe</translation>
    </message>
    <message>
        <source>the file system does not take the new name</source>
        <translation>el sistema de archivos no admite el nombre nuevo</translation>
    </message>
    <message>
        <source>the new name is too long</source>
        <translation>el nombre nuevo es demasiado largo</translation>
    </message>
    <message>
        <source>nothing can be renamed in this folder</source>
        <translation>no se puede renombrar nada en esta carpeta</translation>
    </message>
    <message>
        <source>the new name holds half a character</source>
        <translation>el nombre nuevo contiene medio carácter</translation>
    </message>
    <message>
        <source>the system refused</source>
        <translation>el sistema lo rechazó</translation>
    </message>
    <message>
        <source>the name is taken</source>
        <translation>el nombre ya está en uso</translation>
    </message>
    <message>
        <source>row %1 takes the name %2</source>
        <translation>la fila %1 toma el nombre %2</translation>
    </message>
    <message>
        <source>row %1 still has the name %2</source>
        <translation>la fila %1 aún tiene el nombre %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 archivos</translation>
    </message>
    <message>
        <source>1 keeps its name</source>
        <translation>1 conserva su nombre</translation>
    </message>
    <message>
        <source>%1 keep their names</source>
        <translation>%1 conservan su nombre</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>comprobando…</translation>
    </message>
    <message>
        <source>Go to the next row in trouble (F8)</source>
        <translation>Ir a la siguiente fila con problemas (F8)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, selección: %2</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot</source>
        <translation>%1: %2 con nombre nuevo, %3, %4 con problemas</translation>
    </message>
    <message>
        <source>%1: %2 will be renamed, %3, %4 cannot, %5 unknown</source>
        <translation>%1: %2 con nombre nuevo, %3, %4 con problemas, %5 sin determinar</translation>
    </message>
    <message>
        <source>Keeps its name.</source>
        <translation>Conserva su nombre.</translation>
    </message>
    <message>
        <source>Cannot be told before the run.</source>
        <translation>No se puede saber antes de renombrar.</translation>
    </message>
    <message>
        <source>Stays: %1.</source>
        <translation>Se queda igual: %1.</translation>
    </message>
    <message>
        <source>Moves to the folder %1.</source>
        <translation>Se moverá a la carpeta %1.</translation>
    </message>
    <message>
        <source>The new name leads to the folder %1.</source>
        <translation>El nombre nuevo lleva a la carpeta %1.</translation>
    </message>
    <message>
        <source>Not renamed: %1.</source>
        <translation>Sin renombrar: %1.</translation>
    </message>
    <message>
        <source>Show details…</source>
        <translation>Mostrar detalles…</translation>
    </message>
    <message>
        <source>Not Renamed</source>
        <translation>Archivos sin renombrar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nombre nuevo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>another file has its name</source>
        <translation>otro archivo tiene su nombre</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Active Rules</source>
        <translation>Reglas activas</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vaciar la lista</translation>
    </message>
    <message>
        <source>File List</source>
        <translation>Lista de archivos</translation>
    </message>
    <message>
        <source>Name Filter</source>
        <translation>Filtro de nombres</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Show full path</source>
        <translation>Mostrar la ruta completa</translation>
    </message>
    <message>
        <source>Application Log</source>
        <translation>Registro de la aplicación</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>Save logs</source>
        <translation>Guardar los registros</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Include debug messages</source>
        <translation>Incluir mensajes de depuración</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Depuración</translation>
    </message>
    <message>
        <source>Open log directory</source>
        <translation>Abrir la carpeta de registros</translation>
    </message>
    <message>
        <source>Global Settings</source>
        <translation>Configuración general</translation>
    </message>
    <message>
        <source>File Explorer</source>
        <translation>Explorador de archivos</translation>
    </message>
    <message>
        <source>Please wait</source>
        <translation>Espere, por favor</translation>
    </message>
    <message>
        <source>Acquire files</source>
        <translation>Recopilando archivos</translation>
    </message>
    <message>
        <source>File renaming started</source>
        <translation>Se han empezado a renombrar los archivos</translation>
    </message>
    <message>
        <source>Could not rename file</source>
        <translation>No se ha podido renombrar el archivo</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Processed</source>
        <translation>Procesados</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallidos</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Please support us if you like this software and want to keep our service alive.</source>
        <translation>Apóyenos si le gusta este programa y desea que nuestro servicio siga adelante.</translation>
    </message>
    <message>
        <source>Thank you!</source>
        <translation>¡Gracias!</translation>
    </message>
    <message>
        <source>Application has been minimized.</source>
        <translation>La aplicación se ha minimizado.</translation>
    </message>
    <message>
        <source>Click the tray icon to show.</source>
        <translation>Haga clic en el icono del área de notificación para mostrarla.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacidad</translation>
    </message>
    <message>
        <source>Stay on Top</source>
        <translation>Siempre visible</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Undo the last run</source>
        <translation>Deshacer la última ejecución</translation>
    </message>
    <message>
        <source>Undo, redo and earlier runs</source>
        <translation>Deshacer, rehacer y ejecuciones anteriores</translation>
    </message>
    <message>
        <source>Add files and folders</source>
        <translation>Añadir archivos y carpetas</translation>
    </message>
    <message>
        <source>Sort the files</source>
        <translation>Ordenar los archivos</translation>
    </message>
    <message>
        <source>Drop files or folders here, or press Ctrl+O</source>
        <translation>Arrastre aquí archivos o carpetas, o pulse Ctrl+O</translation>
    </message>
    <message>
        <source>Choose a kind of rule above, fill in its fields and press &quot;%1&quot;</source>
        <extracomment>%1 is the text of the button &quot;Add&quot;</extracomment>
        <translation>Elija arriba un tipo de regla, rellene sus campos y pulse «%1»</translation>
    </message>
</context>
<context>
    <name>Places</name>
    <message>
        <source>Home</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Descargas</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Archivo %1</translation>
    </message>
</context>
<context>
    <name>QAbstractSocket</name>
    <message>
        <source>Socket operation timed out</source>
        <translation>Tiempo de espera agotado en una operación de socket</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Seleccionar todo</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Aumentar</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Dis&amp;minuir</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>QDockWidget</name>
    <message>
        <source>Float</source>
        <translation>Desacoplar</translation>
    </message>
    <message>
        <source>Undocks and re-attaches the dock widget</source>
        <translation>Desacopla el panel o lo vuelve a acoplar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Closes the dock widget</source>
        <translation>Cierra el panel</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nueva carpeta</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Cambiar a la vista de detalles</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Cambiar a la vista de lista</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Crear carpeta nueva</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Crear una carpeta nueva</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista de detalles</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nombre de archivo:</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Archivos de tipo:</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Ir atrás</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Ir adelante</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir a la carpeta superior</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de lugares y marcadores</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Buscar en:</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Carpeta superior</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar archivos &amp;ocultos</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Carpeta:</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ya existe.
¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
No se encontró el archivo.
Compruebe el nombre del archivo.</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar </translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Elegir</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
No se encontró la carpeta.
Compruebe que el nombre sea correcto.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Fecha de modificación</translation>
    </message>
</context>
<context>
    <name>QHttp</name>
    <message>
        <source>Connection refused</source>
        <translation>Conexión rechazada</translation>
    </message>
    <message>
        <source>Connection closed</source>
        <translation>Conexión cerrada</translation>
    </message>
    <message>
        <source>Host %1 not found</source>
        <translation>No se ha encontrado el servidor %1</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>QNativeSocketEngine</name>
    <message>
        <source>Host unreachable</source>
        <translation>Servidor inaccesible</translation>
    </message>
    <message>
        <source>Network unreachable</source>
        <translation>Red inaccesible</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Desplazar hasta aquí</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Principio</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Borde derecho</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Página a la izquierda</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Página arriba</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Página a la derecha</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Página abajo</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Desplazar a la izquierda</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Desplazar a la derecha</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar la dirección del &amp;enlace</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
</context>
<context>
    <name>RuleEdit</name>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Put these values in the place of the rule</source>
        <translation>Poner estos valores en lugar de la regla</translation>
    </message>
    <message>
        <source>Leave the rule as it is</source>
        <translation>Dejar la regla como está</translation>
    </message>
</context>
<context>
    <name>RuleSetDialog</name>
    <message>
        <source>Rule sets</source>
        <translation>Conjuntos de reglas</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>RuleSetMenu</name>
    <message>
        <source>Rule sets</source>
        <translation>Conjuntos de reglas</translation>
    </message>
    <message>
        <source>Save the active rules under a name, and take them up again</source>
        <translation>Guardar las reglas activas con un nombre y recuperarlas</translation>
    </message>
    <message>
        <source>The rules were changed since.</source>
        <translation>Las reglas han cambiado desde entonces.</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Últimas usadas</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Manage…</source>
        <translation>Administrar…</translation>
    </message>
    <message>
        <source>Open file…</source>
        <translation>Abrir archivo…</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Ejemplos</translation>
    </message>
</context>
<context>
    <name>RuleSetQuestions</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Rule sets</source>
        <translation>Conjuntos de reglas</translation>
    </message>
    <message>
        <source>The active rules are not saved. Replace them?</source>
        <translation>Las reglas activas no están guardadas. ¿Reemplazarlas?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>There is a rule set &quot;%1&quot; already. Replace it?</source>
        <translation>Ya existe un conjunto de reglas «%1». ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>Delete the rule set &quot;%1&quot;?</source>
        <translation>¿Eliminar el conjunto de reglas «%1»?</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Save rule set</source>
        <translation>Guardar conjunto de reglas</translation>
    </message>
    <message>
        <source>Name of the rule set</source>
        <translation>Nombre del conjunto de reglas</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Open rule set</source>
        <translation>Abrir conjunto de reglas</translation>
    </message>
    <message>
        <source>No rules were loaded from %1:</source>
        <translation>No se cargó ninguna regla de %1:</translation>
    </message>
    <message>
        <source>The rule set could not be saved:</source>
        <translation>No se pudo guardar el conjunto de reglas:</translation>
    </message>
    <message>
        <source>The rule set could not be deleted:</source>
        <translation>No se pudo eliminar el conjunto de reglas:</translation>
    </message>
    <message>
        <source>The rule set could not be renamed:</source>
        <translation>No se pudo cambiar el nombre del conjunto de reglas:</translation>
    </message>
</context>
<context>
    <name>RuleSets</name>
    <message>
        <source>rule %1, %2</source>
        <translation>regla %1, %2</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>debe ser un objeto</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>demasiado grande</translation>
    </message>
    <message>
        <source>line %1 is no JSON</source>
        <translation>la línea %1 no es JSON</translation>
    </message>
    <message>
        <source>must be a text of at most %1 characters</source>
        <translation>debe ser un texto de %1 caracteres como máximo</translation>
    </message>
    <message>
        <source>must be a name, without blanks at its ends</source>
        <translation>debe ser un nombre sin espacios al principio ni al final</translation>
    </message>
    <message>
        <source>must be a whole number from %1 to %2</source>
        <translation>debe ser un número entero de %1 a %2</translation>
    </message>
    <message>
        <source>must be true or false</source>
        <translation>debe ser true o false</translation>
    </message>
    <message>
        <source>must be %1</source>
        <translation>debe ser %1</translation>
    </message>
    <message>
        <source>must be one of %1</source>
        <translation>debe ser uno de estos valores: %1</translation>
    </message>
    <message>
        <source>must be a list of at most %1 rules</source>
        <translation>debe ser una lista de %1 reglas como máximo</translation>
    </message>
    <message>
        <source>a newer version of the program wrote this file</source>
        <translation>este archivo lo escribió una versión más reciente del programa</translation>
    </message>
    <message>
        <source>no such field is known</source>
        <translation>este campo no se conoce</translation>
    </message>
    <message>
        <source>is missing</source>
        <translation>falta</translation>
    </message>
    <message>
        <source>is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>another rule set has this name</source>
        <translation>otro conjunto de reglas tiene este nombre</translation>
    </message>
    <message>
        <source>the file with the old name could not be removed</source>
        <translation>no se pudo eliminar el archivo con el nombre anterior</translation>
    </message>
</context>
<context>
    <name>Rules</name>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Change Case</source>
        <translation>Mayúsculas/minúsculas</translation>
    </message>
    <message>
        <source>Uppercase letters</source>
        <translation>Mayúsculas</translation>
    </message>
    <message>
        <source>Lowercase letters</source>
        <translation>Minúsculas</translation>
    </message>
    <message>
        <source>Uppercase first letter of each word</source>
        <translation>Primera letra de cada palabra en mayúscula</translation>
    </message>
    <message>
        <source>Ignore File Extension</source>
        <translation>Ignorar la extensión del archivo</translation>
    </message>
    <message>
        <source>Enumerate</source>
        <translation>Numerar</translation>
    </message>
    <message>
        <source>Start Number</source>
        <translation>Número inicial</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Leading Zeros</source>
        <translation>Ceros a la izquierda</translation>
    </message>
    <message>
        <source>Insert Text</source>
        <translation>Insertar texto</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Replace what</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Reemplazar por</translation>
    </message>
    <message>
        <source>Regular Expression</source>
        <translation>Expresión regular</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>No valid pattern: it will change nothing.</source>
        <translation>El patrón no es válido: no cambiará nada.</translation>
    </message>
    <message>
        <source>This pattern would take too long: it will change nothing.</source>
        <translation>Este patrón tardaría demasiado: no cambiará nada.</translation>
    </message>
    <message>
        <source>Upper and lower case differ; as much as possible is found.</source>
        <translation>Se distinguen mayúsculas y minúsculas; se encuentra lo más posible.</translation>
    </message>
    <message>
        <source>any character</source>
        <translation>cualquier carácter</translation>
    </message>
    <message>
        <source>the dot itself</source>
        <translation>el propio punto</translation>
    </message>
    <message>
        <source>one of these characters</source>
        <translation>uno de estos caracteres</translation>
    </message>
    <message>
        <source>any other character</source>
        <translation>cualquier otro carácter</translation>
    </message>
    <message>
        <source>a digit</source>
        <translation>una cifra</translation>
    </message>
    <message>
        <source>a letter, a digit or _</source>
        <translation>una letra, una cifra o _</translation>
    </message>
    <message>
        <source>a blank</source>
        <translation>un espacio</translation>
    </message>
    <message>
        <source>any number of a, also none</source>
        <translation>cualquier número de a, también ninguna</translation>
    </message>
    <message>
        <source>one a or more</source>
        <translation>una a o más</translation>
    </message>
    <message>
        <source>one a or none</source>
        <translation>una a o ninguna</translation>
    </message>
    <message>
        <source>two to four a</source>
        <translation>de dos a cuatro a</translation>
    </message>
    <message>
        <source>either ab or cd</source>
        <translation>o bien ab o bien cd</translation>
    </message>
    <message>
        <source>the beginning of the name</source>
        <translation>el principio del nombre</translation>
    </message>
    <message>
        <source>the end of the name</source>
        <translation>el final del nombre</translation>
    </message>
    <message>
        <source>a group: \1 in the new text is what it found</source>
        <translation>un grupo: \1 en el texto nuevo es lo que encontró</translation>
    </message>
</context>
<context>
    <name>Runs</name>
    <message>
        <source>An undo was interrupted; what it left can still be taken back</source>
        <translation>Se interrumpió una acción de deshacer; lo que falta todavía se puede deshacer</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; what it renamed can be taken back</source>
        <translation>La ejecución de %1 se interrumpió; los cambios de nombre que hizo se pueden deshacer</translation>
    </message>
    <message>
        <source>This run cannot be undone</source>
        <translation>Esta ejecución no se puede deshacer</translation>
    </message>
    <message>
        <source>The last renames of this run cannot be undone: %1</source>
        <translation>Los últimos cambios de nombre de esta ejecución no se pueden deshacer: %1</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 carpetas</translation>
    </message>
    <message>
        <source>Take back 1 rename of %1 in %2</source>
        <translation>Deshacer 1 cambio de nombre (%1) en %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3</source>
        <translation>Deshacer %1 cambios de nombre (%2) en %3</translation>
    </message>
    <message>
        <source>Another window of the program is at this run.</source>
        <translation>Otra ventana del programa está trabajando con esta ejecución.</translation>
    </message>
    <message>
        <source>This run is of another machine, or of a newer version of the program.</source>
        <translation>Esta ejecución es de otro equipo o de una versión más reciente del programa.</translation>
    </message>
    <message>
        <source>A later run renamed some of these files. Take that one back first.</source>
        <translation>Una ejecución posterior cambió el nombre de algunos de estos archivos. Deshaga primero esa ejecución.</translation>
    </message>
    <message>
        <source>Nothing of this run is left to be taken back.</source>
        <translation>De esta ejecución ya no queda nada por deshacer.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Taking back started</source>
        <translation>Se han empezado a deshacer los cambios de nombre</translation>
    </message>
    <message>
        <source>Could not take back file &apos;%1&apos;: %2</source>
        <translation>No se ha podido deshacer el cambio de nombre del archivo &apos;%1&apos;: %2</translation>
    </message>
    <message>
        <source>Take back %1 renames of %2 in %3 folders</source>
        <translation>Deshacer %1 cambios de nombre (%2) en %3 carpetas</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Ejecuciones</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrados</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>partly taken back</source>
        <translation>deshecha en parte</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>deshecha</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completa</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelada</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrumpida</translation>
    </message>
    <message>
        <source>in hand</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>of another machine</source>
        <translation>de otro equipo</translation>
    </message>
    <message>
        <source>of a newer version</source>
        <translation>de una versión más reciente</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>ilegible</translation>
    </message>
    <message>
        <source>%1, touched by a later run</source>
        <translation>%1, modificada por una ejecución posterior</translation>
    </message>
    <message>
        <source>The run of %1 renamed some of these files. Take that one back first.</source>
        <translation>La ejecución de %1 cambió el nombre de algunos de estos archivos. Deshaga primero esa ejecución.</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Show files</source>
        <translation>Mostrar archivos</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Olvidar</translation>
    </message>
    <message>
        <source>Forget all</source>
        <translation>Olvidar todas</translation>
    </message>
    <message>
        <source>Forget all runs? The files stay as they are, and no run can be taken back any more.</source>
        <translation>¿Olvidar todas las ejecuciones? Los archivos quedan como están y ya no se podrá deshacer ninguna ejecución.</translation>
    </message>
    <message>
        <source>Files of the Run of %1</source>
        <translation>Archivos de la ejecución de %1</translation>
    </message>
    <message>
        <source>Old name</source>
        <translation>Nombre anterior</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nombre nuevo</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>has its new name</source>
        <translation>tiene el nombre nuevo</translation>
    </message>
    <message>
        <source>has its old name</source>
        <translation>tiene el nombre anterior</translation>
    </message>
    <message>
        <source>another file is there</source>
        <translation>hay otro archivo allí</translation>
    </message>
    <message>
        <source>is not there</source>
        <translation>no está</translation>
    </message>
    <message>
        <source>Runs…</source>
        <translation>Ejecuciones…</translation>
    </message>
    <message>
        <source>This run was interrupted; &quot;Runs…&quot; can finish it, too</source>
        <translation>Esta ejecución se interrumpió; «Ejecuciones…» también puede terminarla</translation>
    </message>
    <message>
        <source>This run was to rename all files or none, and was interrupted. Finish it, put everything back, or leave the files as they are.</source>
        <translation>Esta ejecución debía renombrar todos los archivos o ninguno, y se interrumpió. Se puede terminar, restaurar todo o dejar los archivos como están.</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminar</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Dejar así</translation>
    </message>
    <message>
        <source>Finishing a run started</source>
        <translation>Se ha empezado a terminar una ejecución</translation>
    </message>
    <message>
        <source>The run of %1 was interrupted; &quot;Runs…&quot; can finish it or put it back</source>
        <translation>La ejecución de %1 se interrumpió; «Ejecuciones…» puede terminarla o restaurar todo</translation>
    </message>
</context>
<context>
    <name>SortMenu</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensión</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Time of modification</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Order of adding</source>
        <translation>Orden de adición</translation>
    </message>
    <message>
        <source>%1, ascending</source>
        <translation>%1, ascendente</translation>
    </message>
    <message>
        <source>%1, descending</source>
        <translation>%1, descendente</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>VersionCheck</name>
    <message>
        <source>Data transmission failure</source>
        <translation>Error en la transmisión de datos</translation>
    </message>
    <message>
        <source>Version check failed</source>
        <translation>Error al comprobar la versión</translation>
    </message>
    <message>
        <source>Error connecting to server.</source>
        <translation>Error al conectar con el servidor.</translation>
    </message>
    <message>
        <source>Please check manually at:</source>
        <translation>Compruébelo manualmente en:</translation>
    </message>
    <message>
        <source>There is a new version available!</source>
        <translation>¡Hay una nueva versión disponible!</translation>
    </message>
    <message>
        <source>Would you like to download it now?</source>
        <translation>¿Desea descargarla ahora?</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>What&apos;s new?</source>
        <translation>¿Qué hay de nuevo?</translation>
    </message>
    <message>
        <source>Skip Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>You are using the latest version.</source>
        <translation>Está utilizando la última versión.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
</TS>
