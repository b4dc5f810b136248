<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi_IN" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>वीडियो</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>ऑडियो</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>दस्तावेज़</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>ईमेल</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>डेटाबेस</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>वेब फ़ाइलें</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>संग्रह</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>अन्य</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>असहेजी फ़ाइलें</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>गेम</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>रीसायकल बिन</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>खोए हुए स्थान</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>कॉपी करें</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>नाम</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>संशोधन तिथि</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>स्थान</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD कार्ड</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>सभी फ़ाइलें</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>हटाई गई फ़ाइलें</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>नाम से खोजें</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>खोलें</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>बिना नाम की फ़ाइलें</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>सभी समय</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>अज्ञात समय</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>बाइट</translation>
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
        <translation>नाम</translation>
    </message>
    <message>
        <source>size</source>
        <translation>आकार</translation>
    </message>
    <message>
        <source>type</source>
        <translation>प्रकार</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>संशोधन तिथि</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>स्थान</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>फ़ोल्डर</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>स्थिति</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>मौजूदा फ़ाइल</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>हटाई गई फ़ाइल</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>रिज़ॉल्यूशन</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ISO संवेदनशीलता</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>कैमरा ब्रांड</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>कैमरा मॉडल</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>श्वेत संतुलन</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>एक्सपोज़र समय</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>फ़ोकल लंबाई</translation>
    </message>
    <message>
        <source>software</source>
        <translation>सॉफ़्टवेयर</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>फ़्रेम दर</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>बिट दर</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>एपर्चर</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>फ़ोल्डर में दिखाएँ</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>सभी चुनें</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>पूर्वावलोकन</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>पुनर्प्राप्त करें</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>समझ गए</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>पुनर्प्राप्ति संभावना</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>पुनर्प्राप्ति संभावना</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>उच्च</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>मध्यम</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>आकलन जारी</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>स्कैन जारी है</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>कृपया प्रतीक्षा करें, आपकी फ़ाइलें तेज़ी से ढूँढी जा रही हैं।</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>कोई फ़ाइल नहीं मिली</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>इस प्रकार की कोई फ़ाइल नहीं मिली। कृपया जाँचें कि स्कैन के लिए सही डिस्क चुनी गई है।</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>फ़ाइलें लोड हो रही हैं…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>इसमें कुछ समय लग सकता है।</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>इस फ़िल्टर से कुछ भी मेल नहीं खाता</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>स्कैन में फ़ाइलें मिलीं, लेकिन कोई भी लगाए गए फ़िल्टर से मेल नहीं खाती।</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>क्षमा करें, कोई फ़ाइल नहीं मिली</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. कुछ फ़ाइलों के मूल नाम खो गए हैं। कृपया उन्हें &lt;a href=&quot;#&quot;&gt;बिना नाम की फ़ाइलें&lt;/a&gt; में देखें।</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. स्कैन पूरा होने तक प्रतीक्षा करें, फिर दोबारा खोजें।</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. अपनी फ़ाइलें जल्दी ढूँढने के लिए फ़िल्टर का उपयोग करें।</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>क्षमा करें, कोई परिणाम नहीं मिला</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>वर्तमान स्कैन परिणामों में आपके विवरण से कुछ भी मेल नहीं खाता।</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>कोई दूसरा विवरण आज़माएँ, जैसे फ़ाइल प्रकार, तिथि या आकार।</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>यदि स्कैन अभी चल रहा है, तो और फ़ाइलें मिलने तक प्रतीक्षा करें।</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>आप फ़िल्टर या नाम से खोज द्वारा भी परिणाम सीमित कर सकते हैं।</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>बिना नाम की फ़ाइलें कैसे ढूँढें</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>कुछ फ़ाइलों के नाम खो गए हैं और उन्हें नाम से नहीं खोजा जा सकता। अपनी फ़ाइलें इस तरह ढूँढें:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>“बिना नाम की फ़ाइलें” खोलें।</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>पुनर्प्राप्त किए जाने वाले फ़ाइल प्रकार चुनें।</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>खोई हुई फ़ाइलें पहचानने के लिए पूर्वावलोकन देखें।</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>दृश्य</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>प्राकृतिक दृश्य</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>समुद्र तट</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>शहर का दृश्य</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>होटल</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>हवाई दृश्य</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>बच्चे</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>पालतू पशु</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>जन्मदिन</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>रात्रिभोज</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>मंच प्रदर्शन</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>प्रदर्शनी</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>खेल</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>दीक्षांत</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>शादी का जोड़ा</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>गुलदस्ता</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>भोजन</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>बैठक कक्ष</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>प्रस्तुति</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>व्हाइटबोर्ड</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>उत्पाद</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>सेल्फ़ी</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>समूह फ़ोटो</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>पहचान फ़ोटो</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>कागज़ी दस्तावेज़</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>पहचान पत्र</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>चैट स्क्रीनशॉट</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>सभी चुनें</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>स्कैन जारी है</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>कृपया प्रतीक्षा करें, आपकी फ़ाइलें तेज़ी से ढूँढी जा रही हैं।</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>कोई फ़ाइल नहीं मिली</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>इस प्रकार की कोई फ़ाइल नहीं मिली। कृपया जाँचें कि स्कैन के लिए सही डिस्क चुनी गई है।</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>फ़ाइलें लोड हो रही हैं…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>इसमें कुछ समय लग सकता है।</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>इस फ़िल्टर से कुछ भी मेल नहीं खाता</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>स्कैन में फ़ाइलें मिलीं, लेकिन कोई भी लगाए गए फ़िल्टर से मेल नहीं खाती।</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>बंद करें</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>चुना गया</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>आंशिक रूप से चुना गया</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>नहीं चुना गया</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>ऑडियो फ़ाइल</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>वीडियो</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>दस्तावेज़</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>ईमेल</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>डेटाबेस</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>वेब पेज</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>संग्रह</translation>
    </message>
    <message>
        <source>File</source>
        <translation>फ़ाइल</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 फ़ाइल</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>आइटम: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 में से %1</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>अवरोही क्रम में</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>आरोही क्रम में</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>स्क्रॉल बार</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
