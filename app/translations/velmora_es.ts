<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>Velmora</name>
    <message>
        <source>&quot;%@&quot; keeps its tags.</source>
        <translation>«%@» conserva sus etiquetas.</translation>
    </message>
    <message>
        <source>%@ (not there)</source>
        <translation>%@ (no existe)</translation>
    </message>
    <message>
        <source>A copy needs another name or another folder</source>
        <translation>Una copia necesita otro nombre u otra carpeta</translation>
    </message>
    <message>
        <source>All tags of &quot;%@&quot; are deleted.</source>
        <translation>Se han eliminado todas las etiquetas de «%@».</translation>
    </message>
    <message>
        <source>Choose another place, and save the file there with the changes</source>
        <translation>Elegir otra ubicación y guardar allí el archivo con los cambios</translation>
    </message>
    <message>
        <source>Delete All Tags</source>
        <translation>Eliminar todas las etiquetas</translation>
    </message>
    <message>
        <source>Deleted all tags of &quot;%@&quot;</source>
        <translation>Etiquetas de «%@» eliminadas</translation>
    </message>
    <message>
        <source>Do you want to delete all tags from &quot;%@&quot;?</source>
        <translation>¿Desea eliminar todas las etiquetas de «%@»?</translation>
    </message>
    <message>
        <source>Files found: %@</source>
        <translation>Archivos encontrados: %@</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>It consists of several RIFF chunks, which a save in place can&#x27;t change</source>
        <translation>Consta de varios bloques RIFF, que no se pueden cambiar al guardar in situ</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>Está vacío</translation>
    </message>
    <message>
        <source>It is not there any more</source>
        <translation>Ya no existe</translation>
    </message>
    <message>
        <source>You have no permission for that</source>
        <translation>No tiene permiso para eso</translation>
    </message>
    <message>
        <source>You have no permission to put a new file into its folder</source>
        <translation>No tiene permiso para escribir en su carpeta</translation>
    </message>
    <message>
        <source>Another program is using it</source>
        <translation>Otro programa lo está usando</translation>
    </message>
    <message>
        <source>Its disk reports a fault</source>
        <translation>Su disco comunica un error</translation>
    </message>
    <message>
        <source>Its name is too long</source>
        <translation>Su nombre es demasiado largo</translation>
    </message>
    <message>
        <source>What was to be copied is not there any more</source>
        <translation>El archivo que se iba a copiar ya no existe</translation>
    </message>
    <message>
        <source>Its folder is not there</source>
        <translation>Su carpeta no existe</translation>
    </message>
    <message>
        <source>It lies on a disk that can only be read</source>
        <translation>Está en un disco de solo lectura</translation>
    </message>
    <message>
        <source>It would become too large</source>
        <translation>Sería demasiado grande</translation>
    </message>
    <message>
        <source>Its header can&#x27;t be read</source>
        <translation>No se puede leer su cabecera</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be written</source>
        <translation>No se puede escribir su etiqueta</translation>
    </message>
    <message>
        <source>Looked in:</source>
        <translation>Se ha buscado en:</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>Ningún archivo abierto</translation>
    </message>
    <message>
        <source>No file is open: what is typed here goes nowhere</source>
        <translation>Ningún archivo abierto: lo que se escriba aquí se pierde</translation>
    </message>
    <message>
        <source>No space is left on its disk</source>
        <translation>No queda espacio en su disco</translation>
    </message>
    <message>
        <source>Not stored in files of this kind</source>
        <translation>No se guarda en archivos de este tipo</translation>
    </message>
    <message>
        <source>Save as a Copy</source>
        <translation>Guardar una copia</translation>
    </message>
    <message>
        <source>Save as a Copy…</source>
        <translation>Guardar una copia…</translation>
    </message>
    <message>
        <source>Saved &quot;%@&quot;</source>
        <translation>«%@» guardado</translation>
    </message>
    <message>
        <source>Store Cover</source>
        <translation>Usar la carátula</translation>
    </message>
    <message>
        <source>Store Filled Fields</source>
        <translation>Usar los campos rellenados</translation>
    </message>
    <message>
        <source>Take all filled fields for changes, which a save writes</source>
        <translation>Tomar todos los campos rellenados como cambios, que se escribirán al guardar</translation>
    </message>
    <message>
        <source>Take the cover for a change, which a save writes</source>
        <translation>Tomar la carátula como cambio, que se escribirá al guardar</translation>
    </message>
    <message>
        <source>The cover is cut from the form only, and stays in the file.</source>
        <translation>La carátula solo se ha cortado del formulario y sigue en el archivo.</translation>
    </message>
    <message>
        <source>The cover is deleted here. A save in place leaves it in the file.</source>
        <translation>La carátula se ha eliminado aquí. Al guardar in situ permanece en el archivo.</translation>
    </message>
    <message>
        <source>The cover was taken from folder.jpg, which counts as a change: a save writes it into the file.</source>
        <translation>La carátula procede de folder.jpg, lo que cuenta como cambio: al guardar se escribirá en el archivo.</translation>
    </message>
    <message>
        <source>The filled fields count as changes now: a save writes them.</source>
        <translation>Los campos rellenados cuentan ahora como cambios: al guardar se escribirán.</translation>
    </message>
    <message>
        <source>The pasted cover is shown only: a save does not write it.</source>
        <translation>La carátula pegada solo se muestra: al guardar no se escribirá.</translation>
    </message>
    <message>
        <source>There is no file for its tag yet, and a save in place makes none</source>
        <translation>Aún no hay archivo para su etiqueta, y al guardar in situ no se crea</translation>
    </message>
    <message>
        <source>This is no number, and is stored as no year</source>
        <translation>No es un número: no se guarda ningún año</translation>
    </message>
    <message>
        <source>Too little media lies behind its header for the header to grow or shrink</source>
        <translation>Hay demasiado pocos datos multimedia tras su cabecera como para que esta cambie de tamaño</translation>
    </message>
    <message>
        <source>What other programs read goes, too, and so do the changes that you have made here. This can&#x27;t be undone.</source>
        <translation>También se perderá lo que leen otros programas, así como los cambios hechos aquí. Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>What the last save did</source>
        <translation>Resultado del último guardado</translation>
    </message>
    <message>
        <source>What the last search found</source>
        <translation>Resultado de la última búsqueda</translation>
    </message>
    <message>
        <source>What was filled in from the web is not stored yet: a save writes only the fields that were typed in.</source>
        <translation>Lo rellenado desde la web aún no cuenta como cambio: al guardar solo se escriben los campos en los que se ha tecleado.</translation>
    </message>
    <message>
        <source>You have no permission to write to it</source>
        <translation>No tiene permiso para escribir en él</translation>
    </message>
    <message>
        <source>folders that could not be read: %@</source>
        <translation>carpetas que no se pudieron leer: %@</translation>
    </message>
    <message>
        <source>open in the form</source>
        <translation>abierto en el formulario</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%@&quot;.</source>
        <translation>No se puede abrir el archivo «%@».</translation>
    </message>
    <message>
        <source>KORVANE Velmora</source>
        <translation>KORVANE Velmora</translation>
    </message>
    <message>
        <source>Velmora can only open local files.</source>
        <translation>Velmora solo puede abrir archivos locales.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not added.</source>
        <translation>«%@» no se ha añadido.</translation>
    </message>
    <message>
        <source>Files that could not be added: %@</source>
        <translation>Archivos que no se han podido añadir: %@</translation>
    </message>
    <message>
        <source>Please ensure the file is readable and is a valid media file.</source>
        <translation>Compruebe que el archivo se puede leer y que es un archivo multimedia válido.</translation>
    </message>
    <message>
        <source>Do you want to save the changes you made?</source>
        <translation>¿Desea guardar los cambios realizados?</translation>
    </message>
    <message>
        <source>Your changes to &quot;%@&quot; will be lost if you don&#x27;t save them.</source>
        <translation>Los cambios en «%@» se perderán si no los guarda.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>%@.</source>
        <translation>%@.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Don&#x27;t Save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Añadir carpetas</translation>
    </message>
    <message>
        <source>Load Cover Art</source>
        <translation>Cargar carátula</translation>
    </message>
    <message>
        <source>Search Done.</source>
        <translation>Búsqueda terminada.</translation>
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
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Adults Only</source>
        <translation>Solo adultos</translation>
    </message>
    <message>
        <source>Animated</source>
        <translation>Animación</translation>
    </message>
    <message>
        <source>Art</source>
        <translation>Arte</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Automóvil</translation>
    </message>
    <message>
        <source>Business / Financial</source>
        <translation>Negocios / Finanzas</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>Infantil</translation>
    </message>
    <message>
        <source>Comedy</source>
        <translation>Comedia</translation>
    </message>
    <message>
        <source>Consumer</source>
        <translation>Consumo</translation>
    </message>
    <message>
        <source>Cooking</source>
        <translation>Cocina</translation>
    </message>
    <message>
        <source>Crime</source>
        <translation>Policíaco</translation>
    </message>
    <message>
        <source>Documentary</source>
        <translation>Documental</translation>
    </message>
    <message>
        <source>Drama</source>
        <translation>Drama</translation>
    </message>
    <message>
        <source>Educational</source>
        <translation>Educativo</translation>
    </message>
    <message>
        <source>Game Show</source>
        <translation>Concurso</translation>
    </message>
    <message>
        <source>Gay / Lesbian</source>
        <translation>Gay / Lésbico</translation>
    </message>
    <message>
        <source>Health</source>
        <translation>Salud</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Fiestas</translation>
    </message>
    <message>
        <source>House / Garden</source>
        <translation>Casa / Jardín</translation>
    </message>
    <message>
        <source>Mystery</source>
        <translation>Misterio</translation>
    </message>
    <message>
        <source>Nature</source>
        <translation>Naturaleza</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Noticias</translation>
    </message>
    <message>
        <source>Performing Arts</source>
        <translation>Artes escénicas</translation>
    </message>
    <message>
        <source>Reality</source>
        <translation>Telerrealidad</translation>
    </message>
    <message>
        <source>Romance</source>
        <translation>Romance</translation>
    </message>
    <message>
        <source>Science Fiction</source>
        <translation>Ciencia ficción</translation>
    </message>
    <message>
        <source>Self Improvement</source>
        <translation>Superación personal</translation>
    </message>
    <message>
        <source>Soap</source>
        <translation>Telenovela</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Special</source>
        <translation>Especial</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>Deportes</translation>
    </message>
    <message>
        <source>Talk</source>
        <translation>Tertulia</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Viajes</translation>
    </message>
    <message>
        <source>Western</source>
        <translation>Wéstern</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artista:</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Álbum:</translation>
    </message>
    <message>
        <source>Cast:</source>
        <translation>Reparto:</translation>
    </message>
    <message>
        <source>Director:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Cover art</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>Cover art: drop an image here to store it</source>
        <translation>Carátula: suelte aquí una imagen para usarla</translation>
    </message>
    <message>
        <source>too large to show</source>
        <translation>demasiado grande para mostrarla</translation>
    </message>
    <message>
        <source>Drop an image here</source>
        <translation>Suelte aquí una imagen</translation>
    </message>
    <message>
        <source>Unable to write tags to file &quot;%@&quot;.</source>
        <translation>No se pueden escribir las etiquetas en el archivo «%@».</translation>
    </message>
    <message>
        <source>Be sure you have permissions to write to the file, and that it is a valid media file.</source>
        <translation>Compruebe que tiene permiso para escribir en el archivo y que es un archivo multimedia válido.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>Imagen de la vista previa</translation>
    </message>
    <message>
        <source>Preview of the selected file</source>
        <translation>Vista previa del archivo seleccionado</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>Reproducir o pausar la vista previa</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>Posición en la vista previa</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Cortar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Copi&amp;ar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>Search a site to see its pages here</source>
        <translation>Busque en un sitio para ver aquí sus páginas</translation>
    </message>
    <message>
        <source>The web browser component is not installed.</source>
        <translation>El componente de navegación web no está instalado.</translation>
    </message>
    <message>
        <source>Waiting for the cover …</source>
        <translation>Esperando la carátula…</translation>
    </message>
    <message>
        <source>Waiting for the cover from %1 …</source>
        <translation>Esperando la carátula de %1…</translation>
    </message>
    <message>
        <source>Web pages are not shown when the program is run by the system administrator.</source>
        <translation>No se muestran páginas web cuando el administrador del sistema ejecuta el programa.</translation>
    </message>
    <message>
        <source>Looking for films and music…</source>
        <translation>Buscando películas y música…</translation>
    </message>
    <message>
        <source>No media files yet. Add files, or a folder to search, with the buttons above.</source>
        <translation>Aún no hay archivos multimedia. Añada archivos, o una carpeta donde buscar, con los botones de arriba.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Clear the field</source>
        <translation>Borrar el campo</translation>
    </message>
    <message>
        <source>Parts of the window</source>
        <translation>Partes de la ventana</translation>
    </message>
    <message>
        <source>Divider</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>Gives the parts of the window more or less room</source>
        <translation>Da más o menos espacio a las partes de la ventana</translation>
    </message>
    <message>
        <source>No cover art; drop an image here</source>
        <translation>Sin carátula; suelte aquí una imagen</translation>
    </message>
    <message>
        <source>An image of %@ pixels</source>
        <translation>Una imagen de %@ píxeles</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Canción</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>Película</translation>
    </message>
    <message>
        <source>Other file</source>
        <translation>Otro archivo</translation>
    </message>
    <message>
        <source>Alt+J</source>
        <translation>Alt+J</translation>
    </message>
    <message>
        <source>Alt+Q</source>
        <translation>Alt+K</translation>
    </message>
    <message>
        <source>Alt+X</source>
        <translation>Alt+X</translation>
    </message>
    <message>
        <source>Alt+Z</source>
        <translation>Alt+Z</translation>
    </message>
    <message>
        <source>Alt+W</source>
        <translation>Alt+Y</translation>
    </message>
    <message>
        <source>Usage: velmora [FILE|FOLDER]...</source>
        <translation>Uso: velmora [ARCHIVO|CARPETA]...</translation>
    </message>
    <message>
        <source>Edits titles, artists, covers and more of films and music.</source>
        <translation>Edita títulos, artistas, carátulas y más de películas y música.</translation>
    </message>
    <message>
        <source>  FILE       is listed; a single one is opened</source>
        <translation>  ARCHIVO    se añade a la lista; si es uno solo, se abre</translation>
    </message>
    <message>
        <source>  FOLDER     is searched for films and music</source>
        <translation>  CARPETA    se recorre en busca de películas y música</translation>
    </message>
    <message>
        <source>  --help     prints this and ends</source>
        <translation>  --help     muestra este texto y termina</translation>
    </message>
    <message>
        <source>  --version  prints the version and ends</source>
        <translation>  --version  muestra la versión y termina</translation>
    </message>
    <message>
        <source>velmora: unknown option %@; --help tells the others</source>
        <translation>velmora: opción desconocida %@; --help muestra las válidas</translation>
    </message>
    <message>
        <source>Files of this kind carry no tag</source>
        <translation>Los archivos de este tipo no llevan etiquetas</translation>
    </message>
    <message>
        <source>Files of this kind have no such field</source>
        <translation>Los archivos de este tipo no tienen ese campo</translation>
    </message>
    <message>
        <source>The file is damaged</source>
        <translation>El archivo está dañado</translation>
    </message>
    <message>
        <source>The file is of a sort that can&#x27;t be saved safely</source>
        <translation>Este tipo de archivo no se puede guardar de forma segura</translation>
    </message>
    <message>
        <source>Something is too large for this kind of file</source>
        <translation>Algo es demasiado grande para este tipo de archivo</translation>
    </message>
    <message>
        <source>It is no ordinary file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>The file is write-protected</source>
        <translation>El archivo está protegido contra escritura</translation>
    </message>
    <message>
        <source>The file has further hard links, which would keep the old contents</source>
        <translation>El archivo tiene otros enlaces duros, que conservarían el contenido anterior</translation>
    </message>
    <message>
        <source>Another program changed the file meanwhile</source>
        <translation>Entretanto, otro programa ha modificado el archivo</translation>
    </message>
    <message>
        <source>No space is left for the new file</source>
        <translation>No queda espacio para el archivo nuevo</translation>
    </message>
    <message>
        <source>The new file would have lost something</source>
        <translation>El archivo nuevo habría perdido algo</translation>
    </message>
    <message>
        <source>The system could not confirm that the folder is on the disk</source>
        <translation>El sistema no ha podido confirmar que la carpeta esté en el disco</translation>
    </message>
    <message>
        <source>The save was cancelled</source>
        <translation>Se ha cancelado el guardado</translation>
    </message>
    <message>
        <source>The file&#x27;s old contents can&#x27;t be kept for an undo: %@</source>
        <translation>No se puede conservar el contenido anterior del archivo para poder deshacer: %@</translation>
    </message>
    <message>
        <source>Its tag can&#x27;t be changed in place</source>
        <translation>Su etiqueta no se puede cambiar in situ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
    <message>
        <source>Saving &quot;%@&quot;…</source>
        <translation>Guardando «%@»…</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Leave the file as it was</source>
        <translation>Dejar el archivo como estaba</translation>
    </message>
    <message>
        <source>The portable tags of &quot;%@&quot; can&#x27;t be read.</source>
        <translation>No se pueden leer las etiquetas portátiles de «%@».</translation>
    </message>
    <message>
        <source>Other programs see more in this file</source>
        <translation>Otros programas ven más en este archivo</translation>
    </message>
    <message>
        <source>Show It</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Switch to the tags that other programs read</source>
        <translation>Cambiar a las etiquetas que leen otros programas</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>Switch to these tags, now and at each start</source>
        <translation>Cambiar a estas etiquetas, ahora y en cada inicio</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved.</source>
        <translation>«%@» no se ha guardado.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was saved, but not all of it can be read back.</source>
        <translation>«%@» se ha guardado, pero no todo se puede volver a leer.</translation>
    </message>
    <message>
        <source>Save With Portable Tags</source>
        <translation>Guardar con etiquetas portátiles</translation>
    </message>
    <message>
        <source>Write the changes into the tags that other programs read, and replace the file in one step</source>
        <translation>Escribir los cambios en las etiquetas que leen otros programas y sustituir el archivo en un solo paso</translation>
    </message>
    <message>
        <source>Save so, and do so from now on, also after the next start</source>
        <translation>Guardar así, ahora y en adelante, también tras el próximo inicio</translation>
    </message>
    <message>
        <source>Saved. Other programs see it: %@</source>
        <translation>Guardado. Otros programas lo ven: %@</translation>
    </message>
    <message>
        <source>Saved. Other programs read no tag in files of this kind: %@</source>
        <translation>Guardado. Otros programas no leen etiquetas en archivos de este tipo: %@</translation>
    </message>
    <message>
        <source>Replace Anyway</source>
        <translation>Sustituir de todos modos</translation>
    </message>
    <message>
        <source>The other links keep the old contents</source>
        <translation>Los demás enlaces conservan el contenido anterior</translation>
    </message>
    <message>
        <source>&quot;%@&quot; was not saved; its edits are kept.</source>
        <translation>«%@» no se ha guardado; sus cambios se conservan.</translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>Restaurar los cambios no guardados</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Volver a abrir el archivo cuyos cambios no se pudieron guardar y recuperarlos</translation>
    </message>
    <message>
        <source>The edits of &quot;%@&quot; are back, and not saved yet.</source>
        <translation>Los cambios de «%@» se han recuperado y aún no están guardados.</translation>
    </message>
    <message>
        <source>A percent sign stands alone. Write %% for a percent sign.</source>
        <translation>Hay un signo de porcentaje suelto. Escriba %% para un signo de porcentaje.</translation>
    </message>
    <message>
        <source>There is no field &quot;%@&quot;.</source>
        <translation>No existe el campo «%@».</translation>
    </message>
    <message>
        <source>The name does not fit the pattern</source>
        <translation>El nombre no se ajusta al patrón</translation>
    </message>
    <message>
        <source>Files of this kind have no such field: %@</source>
        <translation>Los archivos de este tipo no tienen ese campo: %@</translation>
    </message>
    <message>
        <source>It says so already</source>
        <translation>Ya tiene ese valor</translation>
    </message>
    <message>
        <source>It has that name already</source>
        <translation>Ya tiene ese nombre</translation>
    </message>
    <message>
        <source>The name is cut: it would be too long</source>
        <translation>El nombre se acorta: sería demasiado largo</translation>
    </message>
    <message>
        <source>No value: %@</source>
        <translation>Sin valor: %@</translation>
    </message>
    <message>
        <source>No name is left of the values</source>
        <translation>De los valores no sale ningún nombre</translation>
    </message>
    <message>
        <source>The file keeps its name: its tag lies in another file that goes by it</source>
        <translation>El archivo conserva su nombre: su etiqueta está en otro archivo que depende de ese nombre</translation>
    </message>
    <message>
        <source>Another row has that name or is to get it</source>
        <translation>Otra fila tiene ese nombre o lo va a recibir</translation>
    </message>
    <message>
        <source>There is a file of that name</source>
        <translation>Ya hay un archivo con ese nombre</translation>
    </message>
    <message>
        <source>Its tags have not been read yet</source>
        <translation>Sus etiquetas aún no se han leído</translation>
    </message>
    <message>
        <source>Its tags can&#x27;t be read</source>
        <translation>Sus etiquetas no se pueden leer</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Tags from Names</source>
        <translation>Etiquetas a partir de nombres</translation>
    </message>
    <message>
        <source>Names from Tags</source>
        <translation>Nombres a partir de etiquetas</translation>
    </message>
    <message>
        <source>&amp;Pattern:</source>
        <translation>&amp;Patrón:</translation>
    </message>
    <message>
        <source>Fields between percent signs, and the text between them</source>
        <translation>Los campos entre signos de porcentaje y el texto entre ellos</translation>
    </message>
    <message>
        <source>&amp;Insert Field</source>
        <translation>&amp;Insertar campo</translation>
    </message>
    <message>
        <source>Put a field into the pattern</source>
        <translation>Insertar un campo en el patrón</translation>
    </message>
    <message>
        <source>%skip% stands for text that is left out, a slash for a folder.</source>
        <translation>%skip% representa texto que se omite; una barra, una carpeta.</translation>
    </message>
    <message>
        <source>%folder% stands for the name of the file&#x27;s folder.</source>
        <translation>%folder% representa el nombre de la carpeta del archivo.</translation>
    </message>
    <message>
        <source>What becomes of every file</source>
        <translation>Cómo queda cada archivo</translation>
    </message>
    <message>
        <source>Show only files that something is &amp;wrong with</source>
        <translation>&amp;Mostrar solo los archivos con algún problema</translation>
    </message>
    <message>
        <source>Hide the files that the pattern fits</source>
        <translation>Ocultar los archivos que se ajustan al patrón</translation>
    </message>
    <message>
        <source>&amp;Set Tags</source>
        <translation>&amp;Establecer etiquetas</translation>
    </message>
    <message>
        <source>&amp;Set Names</source>
        <translation>Establecer &amp;nombres</translation>
    </message>
    <message>
        <source>Make these edits of the table; no file changes before they are applied</source>
        <translation>Convertirlo en cambios de la tabla; ningún archivo cambia hasta que se aplican</translation>
    </message>
    <message>
        <source>Leave everything as it is</source>
        <translation>Dejar todo como está</translation>
    </message>
    <message>
        <source>New Name</source>
        <translation>Nombre nuevo</translation>
    </message>
    <message>
        <source>The preview is being made.</source>
        <translation>Se está preparando la vista previa.</translation>
    </message>
    <message>
        <source>Files that change: %@.</source>
        <translation>Archivos que cambian: %@.</translation>
    </message>
    <message>
        <source>Files that something is wrong with: %@; they are left alone.</source>
        <translation>Archivos con algún problema: %@; se dejan como están.</translation>
    </message>
    <message>
        <source>&amp;Tags from Names…</source>
        <translation>&amp;Etiquetas a partir de nombres…</translation>
    </message>
    <message>
        <source>Take the tags of the selected files from their names, by a pattern</source>
        <translation>Obtener las etiquetas de los archivos seleccionados a partir de sus nombres, según un patrón</translation>
    </message>
    <message>
        <source>&amp;Names from Tags…</source>
        <translation>&amp;Nombres a partir de etiquetas…</translation>
    </message>
    <message>
        <source>Give the selected files names made of their tags, by a pattern</source>
        <translation>Dar a los archivos seleccionados nombres formados con sus etiquetas, según un patrón</translation>
    </message>
    <message>
        <source>The pattern is empty.</source>
        <translation>El patrón está vacío.</translation>
    </message>
    <message>
        <source>There is nothing beside a slash.</source>
        <translation>No hay nada junto a una barra.</translation>
    </message>
    <message>
        <source>Nothing divides one field from the next.</source>
        <translation>Nada separa un campo del siguiente.</translation>
    </message>
    <message>
        <source>A field comes twice.</source>
        <translation>Un campo aparece dos veces.</translation>
    </message>
    <message>
        <source>%skip% has no place in a new name.</source>
        <translation>%skip% no tiene cabida en un nombre nuevo.</translation>
    </message>
    <message>
        <source>A name has no slash: files stay in their folders.</source>
        <translation>Un nombre no lleva barras: los archivos se quedan en sus carpetas.</translation>
    </message>
    <message>
        <source>There is no field in the pattern.</source>
        <translation>El patrón no contiene ningún campo.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln archivo</numerusform>
            <numerusform>%Ln archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>%@ not applied</source>
        <translation>Sin aplicar: %@</translation>
    </message>
    <message>
        <source>%@ selected</source>
        <translation>Seleccionados: %@</translation>
    </message>
    <message>
        <source>%@ shown</source>
        <translation>Mostrados: %@</translation>
    </message>
    <message>
        <source>%@ to be read</source>
        <translation>Por leer: %@</translation>
    </message>
    <message>
        <source>%@, not applied</source>
        <translation>%@, sin aplicar</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Album / Director</source>
        <translation>Álbum / Dirección</translation>
    </message>
    <message>
        <source>Artist / Cast</source>
        <translation>Artista / Reparto</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Carátula</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>Biblioteca</translation>
    </message>
    <message>
        <source>Library Table</source>
        <translation>Tabla de la biblioteca</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Clasificación</translation>
    </message>
    <message>
        <source>Synopsis / Comment</source>
        <translation>Sinopsis / Comentario</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>User Guide</source>
        <translation>Guía del usuario</translation>
    </message>
    <message>
        <source>The guide&#x27;s text</source>
        <translation>El texto de la guía</translation>
    </message>
    <message>
        <source>&amp;Go to:</source>
        <translation>&amp;Ir a:</translation>
    </message>
    <message>
        <source>Go to a heading of the guide</source>
        <translation>Ir a un apartado de la guía</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Find words in the guide; Return goes to the next place</source>
        <translation>Buscar palabras en la guía; Intro pasa al siguiente resultado</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>The user guide is not installed.</source>
        <translation>La guía del usuario no está instalada.</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Qué hace</translation>
    </message>
    <message>
        <source>Every key and what it does</source>
        <translation>Todas las teclas y lo que hacen</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Cerrar esta ventana</translation>
    </message>
    <message>
        <source>%@ menu</source>
        <translation>Menú %@</translation>
    </message>
    <message>
        <source>Letters, in the list</source>
        <translation>Letras, en la lista</translation>
    </message>
    <message>
        <source>The next name that begins with them</source>
        <translation>El siguiente nombre que empieza así</translation>
    </message>
    <message>
        <source>In the list: the file above, below</source>
        <translation>En la lista: el archivo de arriba, de abajo</translation>
    </message>
    <message>
        <source>On the cover: cut it</source>
        <translation>En la carátula: cortarla</translation>
    </message>
    <message>
        <source>On the cover: copy it</source>
        <translation>En la carátula: copiarla</translation>
    </message>
    <message>
        <source>On the cover: paste one</source>
        <translation>En la carátula: pegar una</translation>
    </message>
    <message>
        <source>The next control</source>
        <translation>El control siguiente</translation>
    </message>
    <message>
        <source>The control before</source>
        <translation>El control anterior</translation>
    </message>
    <message>
        <source>The menus</source>
        <translation>Los menús</translation>
    </message>
    <message>
        <source>The buttons of the line above the form</source>
        <translation>Los botones de la línea situada encima del formulario</translation>
    </message>
    <message>
        <source>Ends the wait for a page or a cover; closes the line above the form</source>
        <translation>Finaliza la espera de una página o una carátula; cierra la línea situada encima del formulario</translation>
    </message>
    <message>
        <source>About Velmora</source>
        <translation>Acerca de Velmora</translation>
    </message>
    <message>
        <source>MIT licence: free to use, to change and to pass on, without any warranty.</source>
        <translation>Licencia MIT: se puede usar, modificar y redistribuir libremente, sin ninguna garantía.</translation>
    </message>
    <message>
        <source>Built on Qt %@ with its web engine and multimedia, TagLib, GStreamer, libjpeg and libpng, each under its own licence.</source>
        <translation>Basado en Qt %@ con su motor web y multimedia, TagLib, GStreamer, libjpeg y libpng, cada uno con su propia licencia.</translation>
    </message>
    <message>
        <source>What Velmora is and what it is built on</source>
        <translation>Qué es Velmora y en qué se basa</translation>
    </message>
    <message>
        <source>The window will look like this at each start.</source>
        <translation>La ventana tendrá este aspecto en cada inicio.</translation>
    </message>
    <message>
        <source>The layout can&#x27;t be remembered: the settings file can&#x27;t be written.</source>
        <translation>No se puede recordar la disposición: el archivo de ajustes no se puede escribir.</translation>
    </message>
    <message>
        <source>Nothing is remembered any more: there is no settings file.</source>
        <translation>Ya no se recuerda nada: no hay archivo de ajustes.</translation>
    </message>
    <message>
        <source>The settings file can&#x27;t be removed.</source>
        <translation>No se puede eliminar el archivo de ajustes.</translation>
    </message>
    <message>
        <source>The next start will not know of it: the settings file can&#x27;t be written.</source>
        <translation>El próximo inicio no lo sabrá: el archivo de ajustes no se puede escribir.</translation>
    </message>
    <message>
        <source>&quot;%@&quot; can&#x27;t be written.</source>
        <translation>No se puede escribir «%@».</translation>
    </message>
    <message>
        <source>%@ a second</source>
        <translation>%@ por segundo</translation>
    </message>
    <message>
        <source>%@ changed since and left alone</source>
        <translation>%@ modificados entretanto y sin tocar</translation>
    </message>
    <message>
        <source>%@ done</source>
        <translation>%@ hechos</translation>
    </message>
    <message>
        <source>%@ failed</source>
        <translation>%@ fallidos</translation>
    </message>
    <message>
        <source>%@ files</source>
        <translation>%@ archivos</translation>
    </message>
    <message>
        <source>%@ left</source>
        <translation>quedan %@</translation>
    </message>
    <message>
        <source>%@ not reached</source>
        <translation>%@ sin procesar</translation>
    </message>
    <message>
        <source>%@ unchanged</source>
        <translation>%@ sin cambios</translation>
    </message>
    <message>
        <source>&amp;Artist or cast:</source>
        <translation>Arti&amp;sta o reparto:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>E&amp;legir…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>&amp;Género:</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Revertir</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>Añ&amp;o:</translation>
    </message>
    <message>
        <source>A&amp;pply</source>
        <translation>A&amp;plicar</translation>
    </message>
    <message>
        <source>Al&amp;bum or director:</source>
        <translation>Ál&amp;bum o dirección:</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>C&amp;over:</source>
        <translation>Carát&amp;ula:</translation>
    </message>
    <message>
        <source>Cancelled before its turn</source>
        <translation>Cancelado antes de su turno</translation>
    </message>
    <message>
        <source>Changed since, left alone</source>
        <translation>Modificado entretanto, sin tocar</translation>
    </message>
    <message>
        <source>Choose a Cover</source>
        <translation>Elegir una carátula</translation>
    </message>
    <message>
        <source>Choose a picture as the cover of the selected files</source>
        <translation>Elegir una imagen como carátula de los archivos seleccionados</translation>
    </message>
    <message>
        <source>Close the summary</source>
        <translation>Cerrar el resumen</translation>
    </message>
    <message>
        <source>Copy the current column of the selected rows</source>
        <translation>Copiar la columna actual de las filas seleccionadas</translation>
    </message>
    <message>
        <source>Copy the paths of the selected files</source>
        <translation>Copiar las rutas de los archivos seleccionados</translation>
    </message>
    <message>
        <source>Copy the selected rows with the columns that are shown, for a spreadsheet</source>
        <translation>Copiar las filas seleccionadas con las columnas mostradas, para una hoja de cálculo</translation>
    </message>
    <message>
        <source>Do you want to remove files with edits that are not applied?</source>
        <translation>¿Desea quitar archivos con cambios sin aplicar?</translation>
    </message>
    <message numerus="yes">
        <source>The edits of %Ln file(s) will be lost.</source>
        <translation>
            <numerusform>Se perderán los cambios de %Ln archivo.</numerusform>
            <numerusform>Se perderán los cambios de %Ln archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>A file is still being saved in the main window. Try again when that is done.</source>
        <translation>La ventana principal todavía está guardando un archivo. Vuelva a intentarlo cuando termine.</translation>
    </message>
    <message>
        <source>Drop Them</source>
        <translation>Descartarlos</translation>
    </message>
    <message>
        <source>Drop what was edited in the selected files and not applied</source>
        <translation>Descartar los cambios sin aplicar de los archivos seleccionados</translation>
    </message>
    <message>
        <source>Edit the text of the current cell</source>
        <translation>Editar el texto de la celda actual</translation>
    </message>
    <message>
        <source>Edits in the library table are not applied yet.</source>
        <translation>Hay cambios sin aplicar en la tabla de la biblioteca.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Files that were not changed</source>
        <translation>Archivos no modificados</translation>
    </message>
    <message>
        <source>Give the files of the last apply their old values and names back</source>
        <translation>Devolver a los archivos los valores y nombres anteriores al último «Aplicar»</translation>
    </message>
    <message>
        <source>Move Column Left</source>
        <translation>Mover columna a la izquierda</translation>
    </message>
    <message>
        <source>Move Column Right</source>
        <translation>Mover columna a la derecha</translation>
    </message>
    <message>
        <source>Open the file in the program&#x27;s main window</source>
        <translation>Abrir el archivo en la ventana principal del programa</translation>
    </message>
    <message>
        <source>Open the folder in which the file is</source>
        <translation>Abrir la carpeta que contiene el archivo</translation>
    </message>
    <message>
        <source>Put the cells of the clipboard into the table from the current cell on</source>
        <translation>Pegar las celdas del portapapeles en la tabla a partir de la celda actual</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>&amp;Clasificación:</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Remove the cover from the selected files</source>
        <translation>Quitar la carátula de los archivos seleccionados</translation>
    </message>
    <message>
        <source>Show only the files that have these words in any column; artist:, year:1990-1999, missing:cover and the like look closer</source>
        <translation>Mostrar solo los archivos que tienen estas palabras en alguna columna; artist:, year:1990-1999, missing:cover y similares afinan la búsqueda</translation>
    </message>
    <message>
        <source>Stop; each file is as it was or as it was to be</source>
        <translation>Detener; cada archivo queda como estaba o como debía quedar</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis or comment:</source>
        <translation>Sinopsis o co&amp;mentario:</translation>
    </message>
    <message>
        <source>Take the selected files off the list; they stay where they are</source>
        <translation>Quitar de la lista los archivos seleccionados; siguen donde están</translation>
    </message>
    <message>
        <source>The album of the selected songs, the director of the selected films</source>
        <translation>El álbum de las canciones seleccionadas, la dirección de las películas seleccionadas</translation>
    </message>
    <message>
        <source>The artist of the selected songs, the cast of the selected films</source>
        <translation>El artista de las canciones seleccionadas, el reparto de las películas seleccionadas</translation>
    </message>
    <message>
        <source>The cover of the selected files: drop a picture here, or paste one</source>
        <translation>La carátula de los archivos seleccionados: suelte o pegue aquí una imagen</translation>
    </message>
    <message>
        <source>The files that were not changed, and why</source>
        <translation>Los archivos no modificados y el motivo</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>El género: elija uno o escriba el suyo</translation>
    </message>
    <message>
        <source>The parental rating of the selected films</source>
        <translation>La clasificación por edades de las películas seleccionadas</translation>
    </message>
    <message>
        <source>The table could not be exported.</source>
        <translation>No se ha podido exportar la tabla.</translation>
    </message>
    <message>
        <source>The tags are right, the name is the old one: %@</source>
        <translation>Las etiquetas están bien, el nombre es el anterior: %@</translation>
    </message>
    <message>
        <source>The title of the selected files</source>
        <translation>El título de los archivos seleccionados</translation>
    </message>
    <message>
        <source>The year of release, of up to four digits</source>
        <translation>El año de publicación, de hasta cuatro cifras</translation>
    </message>
    <message>
        <source>They are lost when the program ends.</source>
        <translation>Se pierden cuando termina el programa.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Try the files again that were not changed</source>
        <translation>Reintentar con los archivos no modificados</translation>
    </message>
    <message>
        <source>Type what is to be shown</source>
        <translation>Escribir lo que se debe mostrar</translation>
    </message>
    <message>
        <source>Undo Apply</source>
        <translation>Deshacer «Aplicar»</translation>
    </message>
    <message>
        <source>What the selected films are about, or a comment on the songs</source>
        <translation>De qué tratan las películas seleccionadas, o un comentario sobre las canciones</translation>
    </message>
    <message>
        <source>Words, artist:name, year:1990-1999, missing:cover</source>
        <translation>Palabras, artist:nombre, year:1990-1999, missing:cover</translation>
    </message>
    <message>
        <source>Write the rows and columns that are shown into a file, as CSV or JSON</source>
        <translation>Escribir en un archivo las filas y columnas mostradas, como CSV o JSON</translation>
    </message>
    <message>
        <source>Write what was edited into the files</source>
        <translation>Escribir los cambios en los archivos</translation>
    </message>
    <message>
        <source>Writing…</source>
        <translation>Escribiendo…</translation>
    </message>
    <message>
        <source>several covers</source>
        <translation>varias carátulas</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>varios valores</translation>
    </message>
    <message>
        <source>Name&amp;s</source>
        <translation>&amp;Nombres</translation>
    </message>
    <message>
        <source>Ro&amp;w</source>
        <translation>&amp;Fila</translation>
    </message>
    <message>
        <source>Fi&amp;lter:</source>
        <translation>F&amp;iltro:</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Aplicar</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportar…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Undo Apply</source>
        <translation>&amp;Deshacer «Aplicar»</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Editar celda</translation>
    </message>
    <message>
        <source>&amp;Copy Rows</source>
        <translation>&amp;Copiar filas</translation>
    </message>
    <message>
        <source>Copy Co&amp;lumn</source>
        <translation>Copiar co&amp;lumna</translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation>&amp;Pegar celdas</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtro</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>&amp;Then By</source>
        <translation>&amp;Después por</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Columnas</translation>
    </message>
    <message>
        <source>&amp;Open in Editor</source>
        <translation>&amp;Abrir en el editor</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;Copiar ruta</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Quitar de la lista</translation>
    </message>
    <message>
        <source>The listed files and what their tags say</source>
        <translation>Los archivos de la lista y lo que dicen sus etiquetas</translation>
    </message>
    <message>
        <source>Locate File…</source>
        <translation>Localizar el archivo…</translation>
    </message>
    <message>
        <source>Show where the file is now: it is opened there with your edits, which are not saved yet</source>
        <translation>Indicar dónde está ahora el archivo: se abre allí con los cambios, aún sin guardar</translation>
    </message>
    <message>
        <source>Locate &quot;%@&quot;</source>
        <translation>Localizar «%@»</translation>
    </message>
    <message>
        <source>Cells that can't take what was pasted: %@</source>
        <translation>Celdas que no admiten lo pegado: %@</translation>
    </message>
</context>
<context>
    <name>MyDocument</name>
    <message>
        <source>&amp;Paste and Store Cover</source>
        <translation>&amp;Pegar y usar la carátula</translation>
    </message>
    <message>
        <source>Make the image that was copied the cover, which a save writes</source>
        <translation>Hacer de la imagen copiada la carátula, que se escribirá al guardar</translation>
    </message>
    <message>
        <source>&amp;Trim Border</source>
        <translation>Recortar el b&amp;orde</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Recortar de la carátula un borde de un solo color</translation>
    </message>
    <message>
        <source>&amp;Delete Cover</source>
        <translation>E&amp;liminar la carátula</translation>
    </message>
    <message>
        <source>Take the cover away, which a save with portable tags writes</source>
        <translation>Quitar la carátula, lo que se escribirá al guardar con etiquetas portátiles</translation>
    </message>
    <message>
        <source>Delete &amp;All Tags from File…</source>
        <translation>Eliminar &amp;todas las etiquetas del archivo…</translation>
    </message>
    <message>
        <source>Delete every tag of the file, for all programs</source>
        <translation>Eliminar todas las etiquetas del archivo, para todos los programas</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Añadir archivos…</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Aña&amp;dir carpeta…</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Revertir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Arch&amp;ivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Find in List</source>
        <translation>&amp;Buscar en la lista</translation>
    </message>
    <message>
        <source>&amp;Load Cover Art…</source>
        <translation>&amp;Cargar carátula…</translation>
    </message>
    <message>
        <source>Look &amp;Up on the Web</source>
        <translation>Buscar &amp;en la web</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Sort by &amp;Name</source>
        <translation>Ordenar por &amp;nombre</translation>
    </message>
    <message>
        <source>Sort by &amp;Size</source>
        <translation>Ordenar &amp;por tamaño</translation>
    </message>
    <message>
        <source>Sort by &amp;Date</source>
        <translation>Ordenar por &amp;fecha</translation>
    </message>
    <message>
        <source>&amp;Portable Tags</source>
        <translation>&amp;Etiquetas portátiles</translation>
    </message>
    <message>
        <source>Open and save with the tags that other programs read</source>
        <translation>Abrir y guardar con las etiquetas que leen otros programas</translation>
    </message>
    <message>
        <source>Restore Unsaved &amp;Edits</source>
        <translation>&amp;Restaurar los cambios no guardados</translation>
    </message>
    <message>
        <source>Open the file again whose edits could not be saved, and put them back</source>
        <translation>Volver a abrir el archivo cuyos cambios no se pudieron guardar y recuperarlos</translation>
    </message>
    <message>
        <source>&amp;Library Table</source>
        <translation>&amp;Tabla de la biblioteca</translation>
    </message>
    <message>
        <source>Show all files of the list with their tags, and edit many at once</source>
        <translation>Mostrar todos los archivos de la lista con sus etiquetas y editar muchos a la vez</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation>&amp;Guía del usuario</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>Atajos de &amp;teclado</translation>
    </message>
    <message>
        <source>&amp;About Velmora</source>
        <translation>&amp;Acerca de Velmora</translation>
    </message>
    <message>
        <source>&amp;Remember This Layout</source>
        <translation>&amp;Recordar esta disposición</translation>
    </message>
    <message>
        <source>Start with this size, division, column widths and sorting from now on</source>
        <translation>Iniciar a partir de ahora con este tamaño, esta división, estos anchos de columna y este orden</translation>
    </message>
    <message>
        <source>&amp;Forget Everything</source>
        <translation>&amp;Olvidar todo</translation>
    </message>
    <message>
        <source>Remove the settings file, with the layout and the choice of portable tags</source>
        <translation>Eliminar el archivo de ajustes, con la disposición y la elección de etiquetas portátiles</translation>
    </message>
</context>
<context>
    <name>MediaList</name>
    <message>
        <source>&amp;Add Files…</source>
        <translation>Añadir arc&amp;hivos…</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Añadir archivos a la lista</translation>
    </message>
    <message>
        <source>Add F&amp;older…</source>
        <translation>Añadir car&amp;peta…</translation>
    </message>
    <message>
        <source>Search a folder for media files</source>
        <translation>Buscar archivos multimedia en una carpeta</translation>
    </message>
    <message>
        <source>Turns while folders are searched</source>
        <translation>Gira mientras se busca en las carpetas</translation>
    </message>
    <message>
        <source>Search in progress</source>
        <translation>Búsqueda en curso</translation>
    </message>
    <message>
        <source>The folder that is being searched</source>
        <translation>La carpeta en la que se está buscando</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Detener la búsqueda</translation>
    </message>
    <message>
        <source>The media files found; type a name to find one</source>
        <translation>Los archivos multimedia encontrados; escriba un nombre para buscarlo</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Archivos multimedia</translation>
    </message>
</context>
<context>
    <name>TagForm</name>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Título:</translation>
    </message>
    <message>
        <source>The title of the film or song</source>
        <translation>El título de la película o canción</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>&amp;Año:</translation>
    </message>
    <message>
        <source>The year of release</source>
        <translation>El año de publicación</translation>
    </message>
    <message>
        <source>Artist:</source>
        <translation>Artista:</translation>
    </message>
    <message>
        <source>The artist of a song, the cast of a film</source>
        <translation>El artista de una canción, el reparto de una película</translation>
    </message>
    <message>
        <source>&amp;Genre:</source>
        <translation>Gé&amp;nero:</translation>
    </message>
    <message>
        <source>The genre: choose one or type your own</source>
        <translation>El género: elija uno o escriba el suyo</translation>
    </message>
    <message>
        <source>Album:</source>
        <translation>Álbum:</translation>
    </message>
    <message>
        <source>The album of a song, the director of a film</source>
        <translation>El álbum de una canción, la dirección de una película</translation>
    </message>
    <message>
        <source>Rat&amp;ing:</source>
        <translation>C&amp;lasificación:</translation>
    </message>
    <message>
        <source>The parental rating of a film</source>
        <translation>La clasificación por edades de una película</translation>
    </message>
    <message>
        <source>Sy&amp;nopsis:</source>
        <translation>&amp;Sinopsis:</translation>
    </message>
    <message>
        <source>What the film is about</source>
        <translation>De qué trata la película</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Fecha:</translation>
    </message>
    <message>
        <source>The date, for information: it is not written into the file</source>
        <translation>La fecha, a título informativo: no se escribe en el archivo</translation>
    </message>
    <message>
        <source>&amp;Cover Art:</source>
        <translation>Carát&amp;ula:</translation>
    </message>
    <message>
        <source>The cover art; drop an image here</source>
        <translation>La carátula; suelte aquí una imagen</translation>
    </message>
    <message>
        <source>&amp;Load…</source>
        <translation>&amp;Cargar…</translation>
    </message>
    <message>
        <source>Load cover art from an image file</source>
        <translation>Cargar la carátula desde un archivo de imagen</translation>
    </message>
    <message>
        <source>Tri&amp;m</source>
        <translation>Rec&amp;ortar</translation>
    </message>
    <message>
        <source>Trim a border of one colour off the cover art</source>
        <translation>Recortar de la carátula un borde de un solo color</translation>
    </message>
    <message>
        <source>Remo&amp;ve Tag</source>
        <translation>&amp;Quitar etiqueta</translation>
    </message>
    <message>
        <source>Forget the changes without writing them</source>
        <translation>Olvidar los cambios sin escribirlos</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>&amp;Revertir</translation>
    </message>
    <message>
        <source>Read the file again and drop the changes</source>
        <translation>Volver a leer el archivo y descartar los cambios</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Write the changes into the file (Ctrl+S)</source>
        <translation>Escribir los cambios en el archivo (Ctrl+S)</translation>
    </message>
    <message>
        <source>for information only</source>
        <translation>solo informativo</translation>
    </message>
</context>
<context>
    <name>MoviePreview</name>
    <message>
        <source>Preview:</source>
        <translation>Vista previa:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>A preview of the file</source>
        <translation>Una vista previa del archivo</translation>
    </message>
    <message>
        <source>This file can’t be previewed.</source>
        <translation>No hay vista previa de este archivo.</translation>
    </message>
    <message>
        <source>Ta&amp;ke Frame</source>
        <translation>To&amp;mar fotograma</translation>
    </message>
    <message>
        <source>Take the frame shown as cover art</source>
        <translation>Usar el fotograma mostrado como carátula</translation>
    </message>
</context>
<context>
    <name>TagWebBrowser</name>
    <message>
        <source>Look &amp;up:</source>
        <translation>En la &amp;web:</translation>
    </message>
    <message>
        <source>The site to search</source>
        <translation>El sitio en el que buscar</translation>
    </message>
    <message>
        <source>The text to search for</source>
        <translation>El texto que se busca</translation>
    </message>
    <message>
        <source>Searc&amp;h</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>Search the site for the text</source>
        <translation>Buscar el texto en el sitio</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Volver</translation>
    </message>
    <message>
        <source>Go back to the page before</source>
        <translation>Volver a la página anterior</translation>
    </message>
    <message>
        <source>Turns while a page loads</source>
        <translation>Gira mientras se carga una página</translation>
    </message>
    <message>
        <source>Page loading</source>
        <translation>Cargando la página</translation>
    </message>
    <message>
        <source>Fill Form</source>
        <translation>Rellenar formulario</translation>
    </message>
    <message>
        <source>Fill the form from the page shown</source>
        <translation>Rellenar el formulario con la página mostrada</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>The address of the page shown</source>
        <translation>La dirección de la página mostrada</translation>
    </message>
    <message>
        <source>Address of the page</source>
        <translation>Dirección de la página</translation>
    </message>
    <message>
        <source>What the form fill waits for</source>
        <translation>A qué espera el rellenado del formulario</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Fill the form without the cover (Esc)</source>
        <translation>Rellenar el formulario sin la carátula (Esc)</translation>
    </message>
    <message>
        <source>The page</source>
        <translation>La página</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>The page could not be loaded.</source>
        <translation>No se ha podido cargar la página.</translation>
    </message>
    <message>
        <source>Site:</source>
        <translation>Sitio:</translation>
    </message>
</context>
</TS>
