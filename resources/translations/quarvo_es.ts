<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Bases de datos</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Archivos web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivos comprimidos</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Archivos sin guardar</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Juegos</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Papelera de reciclaje</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Ubicaciones perdidas</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
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
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ubicación</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>Tarjeta SD</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Archivos eliminados</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Buscar por nombre</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Archivos sin nombre</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Todas las fechas</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Fecha desconocida</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>SizeUnit_KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>SizeUnit_MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>SizeUnit_GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>SizeUnit_TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Archivo existente</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Archivo eliminado</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>Sensibilidad ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Marca de la cámara</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Modelo de la cámara</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Balance de blancos</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Tiempo de exposición</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Distancia focal</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Fotogramas por segundo</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Mostrar en su carpeta</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Entendido</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Recuperabilidad</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Recuperabilidad</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Alta</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Media</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Evaluando</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Analizando</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Espere mientras localizamos rápidamente sus archivos.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>No se encontraron archivos</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>No se encontraron archivos de este tipo. Compruebe que ha elegido el disco correcto para el análisis.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Cargando archivos…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Esto puede tardar un momento.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Nada coincide con este filtro</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>El análisis encontró archivos, pero ninguno coincide con los filtros aplicados.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>No se encontró ningún archivo</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Algunos archivos han perdido su nombre original. Búsquelos entre los &lt;a href=&quot;#&quot;&gt;archivos sin nombre&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Espere a que termine el análisis y vuelva a buscar.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Utilice el filtro para encontrar antes sus archivos.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>No se encontraron resultados</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Nada en los resultados actuales del análisis coincide con su descripción.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Pruebe otra descripción: tipo de archivo, fecha o tamaño.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Si el análisis sigue en curso, espere más resultados.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>También puede usar el filtro o buscar por nombre.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Cómo encontrar archivos sin nombre</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Algunos archivos han perdido su nombre y ya no se pueden buscar por él. Así puede encontrar los suyos:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Abra «Archivos sin nombre».</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Elija los tipos de archivo que quiere recuperar.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Use la vista previa para reconocer los archivos perdidos.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Escenas</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Paisaje</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Playa</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Paisaje urbano</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Vista aérea</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Niños</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Mascotas</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Cumpleaños</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Cena</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Espectáculo</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Exposición</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Deportes</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Graduación</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Vestido de novia</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Ramo de flores</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Comida</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Sala de reuniones</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Presentación</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Pizarra blanca</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Producto</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Selfi</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Foto de grupo</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Foto de carné</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Documento en papel</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Documento de identidad</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Captura de chat</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Analizando</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Espere mientras localizamos rápidamente sus archivos.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>No se encontraron archivos</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>No se encontraron archivos de este tipo. Compruebe que ha elegido el disco correcto para el análisis.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Cargando archivos…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Esto puede tardar un momento.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Nada coincide con este filtro</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>El análisis encontró archivos, pero ninguno coincide con los filtros aplicados.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Marcado</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Marcado en parte</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Sin marcar</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Archivo de audio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivo comprimido</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>Archivo %1</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>elementos: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>En orden descendente</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>En orden ascendente</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Barra de desplazamiento</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
