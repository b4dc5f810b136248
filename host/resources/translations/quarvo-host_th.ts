<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en">
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
            <numerusform>%Ln รายการต่อวินาที</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>ถูกลบ %Ln ไฟล์</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>เลือกแล้ว %Ln ไฟล์</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>ยังไม่ได้เลือก</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>ตัวกรองซ่อนไว้ %Ln ไฟล์</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>หยุด</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>กู้คืน…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>ความคืบหน้าการสแกน</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 จากพื้นที่ว่าง %2 ที่ปลายทาง</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>ต้องใช้ %1 แต่ปลายทางว่างเพียง %2</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>กู้คืนไปที่ %1 เลือกโฟลเดอร์อื่น…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>เลือกโฟลเดอร์สำหรับกู้คืน</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>ขึ้นหนึ่งระดับ</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>จบการค้นหา</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>พบ “%1” ใน %Ln ชื่อ</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>เลือก</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>เลือกหรือยกเลิกหลายไฟล์ (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>เลือกรูปภาพทั้งหมด</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>เลือกไฟล์ที่ถูกลบทั้งหมด</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>เลือกทุกอย่างใน “%1”</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>เลือกทุกอย่างที่พบ</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>สลับการเลือก</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>ยกเลิกการเลือกทั้งหมด</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>เลิกทำ</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>ทำซ้ำ</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>ไม่มีปลั๊กอิน SDCardScanContentPlugin อยู่ข้างโปรแกรม</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>โหลด %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 เป็นปลั๊กอินชนิดอื่น: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>เปิด “%1” ไม่ได้: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>ไม่มีโปรแกรมที่เปิด “%1” ได้</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>ทุกขนาด</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>ไม่เกิน 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 ถึง 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 ถึง 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>เกิน 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>ทุกวันที่</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>7 วันที่ผ่านมา</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>30 วันที่ผ่านมา</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>ปีที่ผ่านมา</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>เก่ากว่าหนึ่งปี</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>ทุกชนิด</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>เฉพาะที่ถูกลบ</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>แสดงทั้งหมด</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>ชนิด</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>ขนาด</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>วันที่</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>ของ ใน จาก และ ที่ กับ</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>ไฟล์ทั้งหมด</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>รูปภาพ</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>วิดีโอ</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>เสียง</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>เอกสาร</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>อีเมล</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>ฐานข้อมูล</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>ไฟล์เว็บ</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>ไฟล์บีบอัด</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>อื่นๆ</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>หยุดการสแกนแล้ว กำลังแสดงสิ่งที่พบ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>อ่านไม่ได้ %Ln รายการ รายการแรก: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>ยังไม่ได้สร้างการ์ดตัวอย่าง โปรดเปิดโฟลเดอร์ ดิสก์อิมเมจ หรืออุปกรณ์</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>เปิดโฟลเดอร์</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>เปิดดิสก์อิมเมจ</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>เลือกแล้ว %Ln ไฟล์</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>ยกเลิกการเลือก %Ln ไฟล์แล้ว</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>เปลี่ยนการเลือก %Ln รายการแล้ว</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>เลิกทำการเปลี่ยนแปลงแล้ว</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>ทำการเปลี่ยนแปลงซ้ำแล้ว</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>ไม่มีอะไรให้เลิกทำ</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>ไม่มีอะไรให้ทำซ้ำ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>เลิกทำ</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>ทำซ้ำ</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>ไม่มีภาพตัวอย่างในไฟล์</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>หน่วยความจำไม่พอสำหรับไฟล์นี้</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>ภาพใหญ่เกินกว่าจะส่งต่อได้</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>ไม่มีเมทาดาทาในไฟล์</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>ภาพเสียหายหรือเป็นชนิดที่ไม่รู้จัก</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>ภาพไม่ได้ระบุขนาด</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>ภาพใหญ่เกินไป: %1 × %2</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>หน่วยความจำไม่พอสำหรับภาพขนาด %1 × %2</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>วิดีโอเสียหาย: %1</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>ไม่มีภาพในไฟล์</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>วิดีโอเสียหาย</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>วิดีโอเสียหายหรือเป็นชนิดที่ไม่รู้จัก: %1</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>ถอดรหัสเฟรมของวิดีโอไม่ได้</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>ไม่มีโปรแกรม quarvo-media อยู่ข้างโปรแกรมนี้ จึงไม่มีภาพย่อและเมทาดาทา</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>เริ่มโปรแกรม %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>โปรแกรม %1 ไม่ตอบสนองตามที่ควร</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>ใช้เวลานานเกินไป</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>ตัวถอดรหัสหยุดทำงาน</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>ตัวถอดรหัสทำงานผิดพลาด</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>ไฟล์เสียหาย</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>ไฟล์เสียหาย: %1</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>ไฟล์แบบนี้ไม่มีเมทาดาทาที่อ่านได้</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>ไม่มีภาพในไฟล์แบบนี้</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>กำลังโหลด…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>แสดงภาพนี้ไม่ได้
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 จาก %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>ภาพก่อนหน้า</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>ภาพถัดไป</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>ไม่มีพื้นที่เหลือที่ %1</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>พื้นที่ที่ %1 ไม่พอ: ไฟล์ต้องใช้ %2 แต่ว่าง %3</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>สร้างไฟล์ไม่ได้: %1</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>เนื้อหาสิ้นสุดที่ไบต์ %L1 จาก %L2</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>การเขียนล้มเหลว: %1</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ไม่ใช่โฟลเดอร์</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>สร้างโฟลเดอร์ %1 ไม่ได้</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>เขียนไปที่ %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>สร้างไฟล์ %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>มีไฟล์ชื่อ %1 มากเกินไป</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 จาก %Ln ไฟล์</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 จาก %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>กู้คืน %Ln ไฟล์ไปที่ %1 แล้ว</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>กู้คืนไม่ได้ %Ln ไฟล์</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>การกู้คืน</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>ความคืบหน้าการกู้คืน</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>ไฟล์ที่กู้คืนไม่ได้</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>เปิดโฟลเดอร์</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จสิ้น</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>ยกเลิกการกู้คืนแล้ว</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>กู้คืนเสร็จสมบูรณ์</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>กู้คืนบางไฟล์ไม่ได้</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>กำลังกู้คืนไปที่ %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>กู้คืนไปที่</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>ไม่มีอะไรให้กู้คืน</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>ยกเลิกแล้ว</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>อ่านเลยจุดสิ้นสุด</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>สื่อสิ้นสุดเร็วเกินไป</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 ไม่ใช่โฟลเดอร์ ดิสก์อิมเมจ หรือดิสก์</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>อ่าน %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ว่างเปล่า</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 เล็กเกินกว่าจะเป็นดิสก์อิมเมจ</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>อ่าน %1 ไม่ได้</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>อ่านการ์ดไม่ได้อีกต่อไป</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>อ่านระเบียนของไฟล์ไม่ได้</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>อ่านการ์ดไม่ได้: %1</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>ระเบียนของไฟล์เปลี่ยนไปหลังการสแกน</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>เนื้อหาสิ้นสุดที่ไบต์ %L1 จาก %L2</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>อ่านการ์ดที่ไบต์ %L1 ของไฟล์ไม่ได้: %2</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>เคยมีไฟล์ที่ถูกลบอีกไฟล์อยู่ที่เดียวกัน ไม่ทราบว่าไฟล์ใดยังคงอยู่</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>เนื้อหาบางส่วนถูกไฟล์อื่นเขียนทับ</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>เนื้อหาบางส่วนถูกไฟล์ใหม่กว่า %1 เขียนทับ</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>รายการตำแหน่งของไฟล์บนการ์ดเสียหาย</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>เนื้อหาอยู่เลยจุดสิ้นสุดของการ์ด</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>การ์ดไม่ได้บอกตำแหน่งของเนื้อหาแล้ว</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>การ์ดไม่ได้บอกความยาวของไฟล์และตำแหน่งของเนื้อหาแล้ว</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>อ่านไฟล์ไม่ได้</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>อ่านโฟลเดอร์ %1 ไม่ได้: %2</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>อ่านโฟลเดอร์ %1 ได้ไม่ครบ: %2</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 หายไประหว่างการสแกน</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>ไม่มีไฟล์นี้แล้ว</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>เปิดไฟล์ไม่ได้</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>เปิดไฟล์ไม่ได้: %1</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 ไม่มีระบบไฟล์ที่อ่านได้ (FAT, exFAT, NTFS หรือ ext)</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>ไฟล์ที่ถูกลบซึ่งไม่มีโฟลเดอร์</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>เปิดไดรฟ์ข้อมูล %1 ไม่ได้</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>การ์ดสิ้นสุดก่อนระบบไฟล์ บางไฟล์อาจไม่สมบูรณ์</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>อ่านโฟลเดอร์บนสุดของการ์ดไม่ได้</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>อ่านการ์ดได้ไม่ทั้งหมด: %1</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>ไม่มี %1</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>ไดรฟ์ข้อมูล %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>ไดรฟ์ข้อมูล %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>อ่านโฟลเดอร์ /%1 ไม่ได้</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>โฟลเดอร์ /%1 อยู่ลึกเกินไปจึงไม่ได้อ่าน</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>“%1” ว่างเปล่า</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>การ์ด</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>ตามชนิด</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>ตามตำแหน่ง</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>ค้นหาที่ไหน</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 อยู่บนการ์ดที่กำลังกู้คืน การเขียนที่นั่นอาจทำลายสิ่งที่ยังกู้คืนได้ โปรดเลือกโฟลเดอร์บนดิสก์อื่น</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 อยู่ในโฟลเดอร์ที่สแกน โปรดเลือกโฟลเดอร์ภายนอก</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 คือดิสก์อิมเมจที่สแกน ไม่ใช่โฟลเดอร์ โปรดเลือกโฟลเดอร์</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>พื้นที่ที่ %1 ไม่พอ: ไฟล์ต้องใช้ %2 แต่ว่างเพียง %3 โปรดเลือกโฟลเดอร์อื่นหรือเลือกไฟล์ให้น้อยลง</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln ไฟล์</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln โฟลเดอร์</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>ไม่มีภาพในไฟล์แบบนี้</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>เปิดโฟลเดอร์…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>เปิดดิสก์อิมเมจ…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>สแกนอีกครั้ง</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>หยุดสแกน</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>ค้นหาตามชื่อ</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>ภาพย่อ</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>รายการพร้อมรายละเอียด</translation>
    </message>
    <message>
        <source>List</source>
        <translation>รายการ</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>สว่างหรือมืด</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>เปิด…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>แหล่งที่มา: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>ค้นหาตามคำอธิบาย</translation>
    </message>
</context>
</TS>
