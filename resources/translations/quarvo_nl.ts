<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video’s</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databases</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Webbestanden</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archieven</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Overige</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Niet-opgeslagen bestanden</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Games</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Prullenbak</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Verloren locaties</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Gewijzigd op</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Locatie</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD-kaart</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle bestanden</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Verwijderde bestanden</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Zoeken op naam</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Bestanden zonder naam</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Alle datums</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Onbekende datum</translation>
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
        <translation>Naam</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Gewijzigd op</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Map</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Bestaand bestand</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Verwijderd bestand</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ISO-waarde</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Cameramerk</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Cameramodel</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Witbalans</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Belichtingstijd</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Brandpuntsafstand</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Beeldsnelheid</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Bitsnelheid</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Diafragma</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>In de map weergeven</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Herstelbaarheid</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Herstelbaarheid</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Gemiddeld</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Beoordeling</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Bezig met scannen</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Een ogenblik geduld, de bestanden worden snel opgezocht.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>Geen bestanden gevonden</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Er zijn geen bestanden van dit type gevonden. Controleer of de juiste schijf is gekozen om te scannen.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Bestanden laden…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Dit kan even duren.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Niets voldoet aan dit filter</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>De scan heeft bestanden gevonden, maar geen ervan voldoet aan de ingestelde filters.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Geen bestand gevonden</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Sommige bestanden zijn hun oorspronkelijke naam kwijt. Ze staan bij &lt;a href=&quot;#&quot;&gt;bestanden zonder naam&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Wacht tot de scan klaar is en zoek dan opnieuw.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Gebruik het filter om sneller bestanden te vinden.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Geen resultaten gevonden</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Niets in de huidige scanresultaten past bij deze beschrijving.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Probeer een andere beschrijving: type, datum of grootte.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Is de scan nog bezig, wacht dan op meer bestanden.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Beperk de resultaten met het filter of zoek op naam.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Bestanden zonder naam vinden</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Sommige bestanden zijn hun naam kwijt en kunnen daar niet meer op worden gezocht. Zo zijn ze toch te vinden:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Open ‘Bestanden zonder naam’.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Kies de bestandstypen die hersteld moeten worden.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Bekijk voorbeelden om de verloren bestanden te herkennen.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Scènes</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Landschap</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Strand</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Stadsgezicht</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Luchtfoto</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Kinderen</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Huisdieren</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Verjaardag</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Diner</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Optreden</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Tentoonstelling</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Afstuderen</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Trouwjurk</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Boeket</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Eten</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Vergaderruimte</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Presentatie</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Whiteboard</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Product</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Selfie</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Groepsfoto</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Pasfoto</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Papieren document</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Identiteitsbewijs</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Chatschermafbeelding</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Bezig met scannen</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Een ogenblik geduld, de bestanden worden snel opgezocht.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Geen bestanden gevonden</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Er zijn geen bestanden van dit type gevonden. Controleer of de juiste schijf is gekozen om te scannen.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Bestanden laden…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Dit kan even duren.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Niets voldoet aan dit filter</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>De scan heeft bestanden gevonden, maar geen ervan voldoet aan de ingestelde filters.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Aangevinkt</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Gedeeltelijk aangevinkt</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Niet aangevinkt</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Audiobestand</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
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
        <translation>Webpagina</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archief</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1-bestand</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>onderdelen: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Aflopend gesorteerd</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Oplopend gesorteerd</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Schuifbalk</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
