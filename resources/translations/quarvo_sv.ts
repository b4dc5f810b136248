<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Foton</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Videor</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Ljud</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-post</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databaser</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Webbfiler</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Arkiv</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Övrigt</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Osparade filer</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spel</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Papperskorgen</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Förlorade platser</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Plats</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD-kort</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alla filer</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Borttagna filer</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Sök på namn</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Filer utan namn</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Alla datum</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Okänt datum</translation>
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
        <translation>Namn</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Plats</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Befintlig fil</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Borttagen fil</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Upplösning</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ISO-tal</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Kameramärke</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Kameramodell</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Vitbalans</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Exponeringstid</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Brännvidd</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Programvara</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Bildfrekvens</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Bithastighet</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Bländare</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Visa i mappen</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Förhandsgranska</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Jag förstår</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Återställbarhet</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Återställbarhet</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Hög</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Medel</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Bedöms</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Söker igenom</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Vänta medan vi snabbt letar upp dina filer.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>Inga filer hittades</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Inga filer av den här typen hittades. Kontrollera att rätt disk har valts för genomsökning.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Läser in filer…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Det kan ta en stund.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Inget matchar filtret</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>Genomsökningen hittade filer, men ingen av dem matchar de valda filtren.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Tyvärr hittades ingen fil</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Vissa filer har förlorat sina ursprungliga namn. Leta efter dem under &lt;a href=&quot;#&quot;&gt;filer utan namn&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Vänta tills genomsökningen är klar och sök sedan igen.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Använd filtret för att hitta dina filer snabbare.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Tyvärr hittades inga resultat</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Inget i de aktuella resultaten stämmer med din beskrivning.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Prova en annan beskrivning: filtyp, datum eller storlek.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Pågår genomsökningen, vänta tills fler filer hittas.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Begränsa resultaten med filtret eller sök på namn.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Så hittar du filer utan namn</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Vissa filer har förlorat sina namn och går inte att söka på namnet. Så här hittar du dina:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Öppna ”Filer utan namn”.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Välj de filtyper som du vill återställa.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Förhandsgranska filerna för att hitta dem du förlorat.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Motiv</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Landskap</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Strand</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Stadsvy</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotell</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Flygvy</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Barn</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Husdjur</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Födelsedag</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Middag</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Uppträdande</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Utställning</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Sport</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Examen</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Brudklänning</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Bukett</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Mat</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Mötesrum</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Presentation</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Whiteboardtavla</translation>
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
        <translation>Gruppfoto</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>ID-foto</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Pappersdokument</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>ID-handling</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Chattskärmbild</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Söker igenom</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Vänta medan vi snabbt letar upp dina filer.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>Inga filer hittades</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Inga filer av den här typen hittades. Kontrollera att rätt disk har valts för genomsökning.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Läser in filer…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Det kan ta en stund.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Inget matchar filtret</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>Genomsökningen hittade filer, men ingen av dem matchar de valda filtren.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Markerad</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Delvis markerad</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Inte markerad</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Ljudfil</translation>
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
        <translation>E-post</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Databas</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Webbsida</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Arkiv</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1-fil</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>objekt: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Fallande sortering</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Stigande sortering</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Rullningslist</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
