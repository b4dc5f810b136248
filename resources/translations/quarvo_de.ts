<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mails</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbanken</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Webdateien</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Sonstige</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Nicht gespeicherte Dateien</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiele</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Verlorene Speicherorte</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Speicherort</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD-Karte</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Gelöschte Dateien</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Dateien ohne Namen</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Gesamter Zeitraum</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Unbekanntes Datum</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>Bytes</translation>
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
        <translation>Name</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Speicherort</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Vorhandene Datei</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Gelöschte Datei</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ISO-Empfindlichkeit</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Kamerahersteller</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Kameramodell</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Blende</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Wiederherstellbarkeit</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Wiederherstellbarkeit</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Wird bewertet</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Scan läuft</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Einen Moment bitte, die Dateien werden schnell gesucht.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>Keine Dateien gefunden</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Keine Dateien dieser Art gefunden. Bitte prüfen, ob der richtige Datenträger gewählt ist.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Dateien werden geladen&#xa0;…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Das kann einen Moment dauern.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Kein Treffer für diesen Filter</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>Der Scan hat Dateien gefunden, aber keine davon passt zu den gesetzten Filtern.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Leider keine Datei gefunden</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Manche Dateien haben ihren ursprünglichen Namen verloren. Sie stehen unter &lt;a href=&quot;#&quot;&gt;Dateien ohne Namen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Das Ende des Scans abwarten und dann noch einmal suchen.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Die Dateien mit dem Filter eingrenzen.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Leider keine Treffer</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>In den bisherigen Scanergebnissen passt nichts zu dieser Beschreibung.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Anders beschreiben, etwa mit Dateityp, Datum oder Größe.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Läuft der Scan noch, auf weitere Dateien warten.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Die Ergebnisse filtern oder nach Namen suchen.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>So lassen sich Dateien ohne Namen finden</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Manche Dateien haben ihren Namen verloren. So sind sie ohne Namenssuche zu finden:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>„Dateien ohne Namen“ öffnen.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Die Dateitypen wählen, die wiederhergestellt werden sollen.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Die verlorenen Dateien anhand der Vorschau erkennen.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Motive</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Landschaft</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Strand</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Stadtansicht</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Luftaufnahme</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Kinder</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Haustiere</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Geburtstag</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Abendessen</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Auftritt</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Ausstellung</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Abschlussfeier</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Brautkleid</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Blumenstrauß</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Essen</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Besprechungsraum</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Präsentation</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Whiteboard</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Selfie</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Gruppenfoto</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Passfoto</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Papierdokument</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Ausweis</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Chat-Screenshot</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Scan läuft</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Einen Moment bitte, die Dateien werden schnell gesucht.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Keine Dateien gefunden</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Keine Dateien dieser Art gefunden. Bitte prüfen, ob der richtige Datenträger gewählt ist.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Dateien werden geladen&#xa0;…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Das kann einen Moment dauern.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Kein Treffer für diesen Filter</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>Der Scan hat Dateien gefunden, aber keine davon passt zu den gesetzten Filtern.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Teilweise markiert</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nicht markiert</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Audiodatei</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1-Datei</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>Elemente: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Absteigend sortiert</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Aufsteigend sortiert</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Bildlaufleiste</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
