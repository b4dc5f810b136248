<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>File Web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivi</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>File non salvati</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Giochi</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Cestino</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Posizioni perse</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ultima modifica</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Posizione</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>Scheda SD</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tutti i file</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>File eliminati</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Cerca per nome</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>File senza nome</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Tutte le date</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Data sconosciuta</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>byte</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Ultima modifica</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>File esistente</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>File eliminato</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>Sensibilità ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Marca fotocamera</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Modello fotocamera</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Bilanciamento del bianco</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Tempo di esposizione</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Lunghezza focale</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Frequenza fotogrammi</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Velocità in bit</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Diaframma</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Recupera</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Recuperabilità</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Recuperabilità</translation>
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
        <translation>In valutazione</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Scansione in corso</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Attendi mentre individuiamo rapidamente i tuoi file.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>Nessun file trovato</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Non è stato trovato alcun file di questo tipo. Verifica di aver scelto il disco giusto per la scansione.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Caricamento dei file…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Potrebbe richiedere qualche istante.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Nessun file corrisponde al filtro</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>La scansione ha trovato dei file, ma nessuno corrisponde ai filtri impostati.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Nessun file trovato</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Alcuni file hanno perso il nome originale. Cercali tra i &lt;a href=&quot;#&quot;&gt;file senza nome&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Attendi la fine della scansione, poi ripeti la ricerca.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Usa il filtro per restringere la ricerca dei file.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Nessun risultato trovato</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Nulla nei risultati attuali corrisponde alla descrizione.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Prova un’altra descrizione: tipo di file, data, dimensione.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Se la scansione è in corso, attendi che trovi altri file.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Puoi anche restringere i risultati con il filtro o cercare per nome.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Come trovare i file senza nome</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Alcuni file hanno perso il nome e non è più possibile cercarli in base ad esso. Ecco come trovare i tuoi:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Apri “File senza nome”.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Scegli i tipi di file da recuperare.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Usa l’anteprima per riconoscere i file persi.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Scene</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Paesaggio</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Spiaggia</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Paesaggio urbano</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Vista aerea</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Bambini</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Animali domestici</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Compleanno</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Cena</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Spettacolo</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Laurea</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Abito da sposa</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Bouquet</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Cibo</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Sala riunioni</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Presentazione</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Lavagna bianca</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Prodotto</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Selfie</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Foto di gruppo</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Fototessera</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Documento cartaceo</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Documento d’identità</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Schermata di chat</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Scansione in corso</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Attendi mentre individuiamo rapidamente i tuoi file.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Nessun file trovato</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Non è stato trovato alcun file di questo tipo. Verifica di aver scelto il disco giusto per la scansione.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Caricamento dei file…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Potrebbe richiedere qualche istante.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Nessun file corrisponde al filtro</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>La scansione ha trovato dei file, ma nessuno corrisponde ai filtri impostati.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Selezionato</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Parzialmente selezionato</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non selezionato</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>File audio</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Pagina web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivio</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>File %1</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>elementi: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Ordinato in senso decrescente</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Ordinato in senso crescente</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Barra di scorrimento</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
