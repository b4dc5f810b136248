<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>BottomBar</name>
    <message>
        <source>%1, %2</source>
        <comment>files and folders</comment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) a second</source>
        <translation>
            <numerusform>%Ln elemento por segundo</numerusform>
            <numerusform>%Ln elementos por segundo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln eliminado</numerusform>
            <numerusform>%Ln eliminados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln archivo marcado</numerusform>
            <numerusform>%Ln archivos marcados</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Nada marcado</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln oculto por el filtro</numerusform>
            <numerusform>%Ln ocultos por el filtro</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Recuperar…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Progreso del análisis</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 de %2 libres en el destino</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>Se necesitan %1, solo hay %2 libres en el destino</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Recuperar en %1. Elegir otra carpeta…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Elegir la carpeta de recuperación</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Terminar la búsqueda</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>«%1» encontrado en %Ln nombre</numerusform>
            <numerusform>«%1» encontrado en %Ln nombres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Marcar</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Marcar o desmarcar muchos archivos (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Marcar todas las fotos</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Marcar todos los archivos eliminados</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Marcar todo en «%1»</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Marcar todo lo encontrado</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Invertir las marcas</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Desmarcar todo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>El complemento SDCardScanContentPlugin no está junto al programa.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>No se puede cargar %1: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 es un complemento de otro tipo: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>No se puede abrir «%1»: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Ningún programa abre «%1».</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Cualquier tamaño</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Hasta 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>De 1 a 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>De 10 a 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Más de 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Cualquier fecha</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Últimos 7 días</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Últimos 30 días</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Último año</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Hace más de un año</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Cualquier tipo</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Solo eliminados</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>el la los las un una y de del en con</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Bases de datos</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Archivos web</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archivos comprimidos</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>El análisis se ha detenido. Se muestra lo que ha encontrado.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>No se pudo leer %Ln elemento, el primero: %1</numerusform>
            <numerusform>No se pudieron leer %Ln elementos, el primero: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>No se ha creado la tarjeta de ejemplo. Abra una carpeta, una imagen de disco o un dispositivo.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Abrir imagen de disco</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln archivo marcado.</numerusform>
            <numerusform>%Ln archivos marcados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln archivo desmarcado.</numerusform>
            <numerusform>%Ln archivos desmarcados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln marca cambiada.</numerusform>
            <numerusform>%Ln marcas cambiadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>Se ha deshecho el cambio.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>Se ha rehecho el cambio.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>El archivo no contiene vista previa.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>No hay memoria suficiente para este archivo.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>La imagen es demasiado grande para transferirla.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>El archivo no contiene metadatos.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>La imagen está dañada o es de un tipo desconocido.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>La imagen no indica sus dimensiones.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>La imagen es demasiado grande: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>No hay memoria suficiente para una imagen de %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>El vídeo está dañado: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>El archivo no contiene ninguna imagen.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>El vídeo está dañado.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>El vídeo está dañado o es de un tipo desconocido: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>No se puede descodificar ningún fotograma del vídeo.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>El programa quarvo-media no está junto a este: no hay miniaturas ni metadatos.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>No se puede iniciar el programa %1: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>El programa %1 no responde como debería.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>ha tardado demasiado</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>el descodificador ha fallado</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>el descodificador se ha perdido</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>El archivo está dañado.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>El archivo está dañado: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>Un archivo así no tiene metadatos legibles.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Un archivo así no contiene imágenes.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>No se puede mostrar esta imagen.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 de %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Imagen anterior</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Imagen siguiente</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>No queda espacio en %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>No hay espacio suficiente en %1: el archivo necesita %2, hay %3 libres.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>No se puede crear el archivo: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>El contenido termina en el byte %L1 de %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Error de escritura: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>No se puede escribir en %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>No se puede crear el archivo %1: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Demasiados archivos tienen el nombre %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 de %Ln archivo</numerusform>
            <numerusform>%1 de %Ln archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln archivo recuperado en %1.</numerusform>
            <numerusform>%Ln archivos recuperados en %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>No se pudo recuperar %Ln archivo.</numerusform>
            <numerusform>No se pudieron recuperar %Ln archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperación</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Progreso de la recuperación</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>Archivos que no se pudieron recuperar</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Recuperación cancelada</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Recuperación completada</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Algunos archivos no se pudieron recuperar</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Recuperando en %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Recuperar en</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>No hay nada que recuperar.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>lectura más allá del final</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>el soporte termina antes de tiempo</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 no es una carpeta, ni una imagen de disco, ni un disco.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 está vacío.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 es demasiado pequeño para ser una imagen de disco.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>Ya no se puede leer la tarjeta.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>No se puede leer el registro del archivo.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>No se puede leer la tarjeta: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>El registro del archivo ha cambiado desde el análisis.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>El contenido termina en el byte %L1 de %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>No se puede leer la tarjeta en el byte %L1 del archivo: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>Había otro archivo eliminado en el mismo lugar; no se sabe cuál de los dos sigue ahí.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Otro archivo ha sobrescrito una parte del contenido.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>El archivo más reciente %1 ha sobrescrito una parte del contenido.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>La lista de lugares del archivo en la tarjeta está dañada.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>El contenido está más allá del final de la tarjeta.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>La tarjeta ya no indica dónde está el contenido.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>La tarjeta ya no indica la longitud del archivo ni dónde está su contenido.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>No se pudo leer el archivo.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>No se puede leer la carpeta %1: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>No se pudo leer entera la carpeta %1: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 desapareció durante el análisis.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>El archivo ya no está.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>No se puede abrir el archivo.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>No se puede abrir el archivo: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 no contiene ningún sistema de archivos legible (FAT, exFAT, NTFS o ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>Archivos eliminados sin carpeta</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>No se pudo abrir el volumen %1.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>La tarjeta termina antes que su sistema de archivos; puede haber archivos cortados.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>No se puede leer la carpeta raíz de la tarjeta.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>No se pudo leer toda la tarjeta: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 no existe.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volumen %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Volumen %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>No se pudo leer la carpeta /%1.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>La carpeta /%1 está a demasiada profundidad y no se ha leído.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>«%1» está vacío.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Tarjeta</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Por lugar</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Dónde buscar</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 está en la tarjeta que se va a recuperar. Escribir en ella podría destruir lo que queda por recuperar. Elija una carpeta de otro disco.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 está en la carpeta analizada. Elija una carpeta fuera de ella.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 es la imagen de disco analizada, no una carpeta. Elija una carpeta.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>No hay espacio suficiente en %1: los archivos necesitan %2, solo hay %3 libres. Elija otra carpeta o marque menos archivos.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln archivo</numerusform>
            <numerusform>%Ln archivos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln carpeta</numerusform>
            <numerusform>%Ln carpetas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>Un archivo así no contiene imágenes.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Abrir carpeta…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Abrir imagen de disco…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Volver a analizar</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Detener el análisis</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Buscar por nombre</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturas</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Lista con detalles</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Claro u oscuro</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Abrir…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Origen: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Buscar por descripción</translation>
    </message>
</context>
</TS>
