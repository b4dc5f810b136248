<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
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
        <translation>Document</translation>
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
        <translation>Webfiles</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Others</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>Unsaved files</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Game</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Recycle Bin</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>File lost location</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
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
        <translation>Size</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date modified</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Location</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD card</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Deleted files</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Search by name</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>Files without names</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Any time</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Unknown time</translation>
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
        <translation>Size</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Date modified</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Location</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>Folder</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>Existing file</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>Deleted file</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ISO speed</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Camera brand</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Camera model</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>White balance</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Exposure time</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Focal length</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Bit rate</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Aperture</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Show in its folder</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Preview</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Recover</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Got it</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Recoverability</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Recoverability</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>High</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Medium</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Assessing</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Scanning</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Please wait while we quickly locate your files.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>No files found</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Sorry, no files of this kind were found. Please check that the right disk is selected for scanning.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Loading files…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>This may take a moment.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Nothing matches this filter</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>The scan found files, but none of them matches the filters that are set.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Sorry, no file found</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Some files have lost their original names. Please look for them among the &lt;a href=&quot;#&quot;&gt;files without names&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Wait until the scan has finished, then search again.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Use the filter to narrow down your files.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Sorry, no results found</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Nothing in the current scan results matches your description.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Try a different description, such as a file type, a date or a size.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>If the scan is still running, wait for more files to be found.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>You can also narrow the results with the filter or search by name.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>How to find files without names</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Some files have lost their names and cannot be found by them. This is how you find yours:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Open “Files without names”.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Choose the file types that you want to recover.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Preview the files to find the ones you lost.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Scenes</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Beach</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Cityscape</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Aerial view</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Children</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Pets</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Birthday</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Dinner</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Performance</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Exhibition</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Sports</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Graduation</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Wedding dress</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Bouquet</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Food</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Meeting room</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Presentation</translation>
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
        <translation>Group photo</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>ID photo</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Paper document</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Identity document</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Chat screenshot</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Scanning</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Please wait while we quickly locate your files.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>No files found</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Sorry, no files of this kind were found. Please check that the right disk is selected for scanning.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Loading files…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>This may take a moment.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Nothing matches this filter</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>The scan found files, but none of them matches the filters that are set.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Partly checked</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Not checked</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>Audio file</translation>
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
        <translation>Photo</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Web page</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 file</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>items: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Sorted in descending order</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Sorted in ascending order</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Scroll bar</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
