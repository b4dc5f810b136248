<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>รูปภาพ</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>วิดีโอ</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>เสียง</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>เอกสาร</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>อีเมล</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>ฐานข้อมูล</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>ไฟล์เว็บ</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>ไฟล์บีบอัด</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>อื่นๆ</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>ไฟล์ที่ยังไม่บันทึก</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>เกม</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>ถังรีไซเคิล</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>ตำแหน่งที่สูญหาย</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>คัดลอก</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>ชื่อ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>ขนาด</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>ชนิด</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>วันที่แก้ไข</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>ตำแหน่ง</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>การ์ด SD</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>ไฟล์ทั้งหมด</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>ไฟล์ที่ถูกลบ</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>ค้นหาตามชื่อ</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>เปิด</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>ไฟล์ไม่มีชื่อ</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>ทุกช่วงเวลา</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>ไม่ทราบเวลา</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>ไบต์</translation>
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
        <translation>ชื่อ</translation>
    </message>
    <message>
        <source>size</source>
        <translation>ขนาด</translation>
    </message>
    <message>
        <source>type</source>
        <translation>ชนิด</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>วันที่แก้ไข</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>ตำแหน่ง</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>โฟลเดอร์</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>สถานะ</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>ไฟล์ที่มีอยู่</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>ไฟล์ที่ถูกลบ</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>ความละเอียด</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ความไวแสง ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>ยี่ห้อกล้อง</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>รุ่นกล้อง</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>สมดุลแสงขาว</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>เวลารับแสง</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>ความยาวโฟกัส</translation>
    </message>
    <message>
        <source>software</source>
        <translation>ซอฟต์แวร์</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>อัตราเฟรม</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>อัตราบิต</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>รูรับแสง</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>แสดงในโฟลเดอร์</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>ดูตัวอย่าง</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>กู้คืน</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>เข้าใจแล้ว</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>โอกาสกู้คืน</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>โอกาสกู้คืน</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>สูง</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>ปานกลาง</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>กำลังประเมิน</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>กำลังสแกน</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>โปรดรอสักครู่ขณะค้นหาไฟล์ของคุณอย่างรวดเร็ว</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>ไม่พบไฟล์</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>ไม่พบไฟล์ชนิดนี้ โปรดตรวจสอบว่าเลือกดิสก์ที่จะสแกนถูกต้องแล้ว</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>กำลังโหลดไฟล์…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>อาจใช้เวลาสักครู่</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>ไม่มีไฟล์ที่ตรงกับตัวกรองนี้</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>การสแกนพบไฟล์ แต่ไม่มีไฟล์ใดตรงกับตัวกรองที่ตั้งไว้</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>ขออภัย ไม่พบไฟล์</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. ไฟล์บางไฟล์สูญเสียชื่อเดิมไป โปรดค้นหาใน&lt;a href=&quot;#&quot;&gt;ไฟล์ไม่มีชื่อ&lt;/a&gt;</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. รอให้การสแกนเสร็จสิ้น แล้วค้นหาอีกครั้ง</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. ใช้ตัวกรองเพื่อจำกัดผลการค้นหาไฟล์</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>ขออภัย ไม่พบผลลัพธ์</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>ไม่มีสิ่งใดในผลการสแกนปัจจุบันที่ตรงกับคำอธิบายของคุณ</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>ลองใช้คำอธิบายอื่น เช่น ชนิดไฟล์ วันที่ หรือขนาด</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>หากยังสแกนอยู่ โปรดรอให้พบไฟล์เพิ่มเติม</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>คุณยังสามารถจำกัดผลลัพธ์ด้วยตัวกรองหรือค้นหาตามชื่อได้</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>วิธีค้นหาไฟล์ไม่มีชื่อ</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>ไฟล์บางไฟล์สูญเสียชื่อไปจึงค้นหาด้วยชื่อไม่ได้ วิธีค้นหาไฟล์ของคุณมีดังนี้:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>เปิด “ไฟล์ไม่มีชื่อ”</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>เลือกชนิดไฟล์ที่ต้องการกู้คืน</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>ดูตัวอย่างไฟล์เพื่อหาไฟล์ที่หายไป</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>ฉาก</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>ทิวทัศน์</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>ชายหาด</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>ทิวทัศน์เมือง</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>โรงแรม</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>ภาพมุมสูง</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>เด็ก</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>สัตว์เลี้ยง</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>วันเกิด</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>มื้อค่ำ</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>การแสดง</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>นิทรรศการ</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>กีฬา</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>รับปริญญา</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>ชุดแต่งงาน</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>ช่อดอกไม้</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>อาหาร</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>ห้องประชุม</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>งานนำเสนอ</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>กระดานไวท์บอร์ด</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>สินค้า</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>เซลฟี่</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>ภาพหมู่</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>รูปติดบัตร</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>เอกสารกระดาษ</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>เอกสารประจำตัว</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>ภาพหน้าจอแชต</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>กำลังสแกน</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>โปรดรอสักครู่ขณะค้นหาไฟล์ของคุณอย่างรวดเร็ว</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>ไม่พบไฟล์</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>ไม่พบไฟล์ชนิดนี้ โปรดตรวจสอบว่าเลือกดิสก์ที่จะสแกนถูกต้องแล้ว</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>กำลังโหลดไฟล์…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>อาจใช้เวลาสักครู่</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>ไม่มีไฟล์ที่ตรงกับตัวกรองนี้</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>การสแกนพบไฟล์ แต่ไม่มีไฟล์ใดตรงกับตัวกรองที่ตั้งไว้</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>ทำเครื่องหมายแล้ว</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>ทำเครื่องหมายบางส่วน</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>ไม่ได้ทำเครื่องหมาย</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>ไฟล์เสียง</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>วิดีโอ</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>เอกสาร</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>อีเมล</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>ฐานข้อมูล</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>รูปภาพ</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>หน้าเว็บ</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>ไฟล์บีบอัด</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ไฟล์</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>ไฟล์ %1</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>รายการ: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 จาก %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>เรียงจากมากไปน้อย</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>เรียงจากน้อยไปมาก</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>แถบเลื่อน</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
