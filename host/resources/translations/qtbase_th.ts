<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th_TH" sourcelanguage="en">
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>เลิกทำ(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>ทำซ้ำ(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>ตัด(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>คัดลอก(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>วาง(&amp;P)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>ลบ</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>เลือกทั้งหมด</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>ค้นหาใน:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>ย้อนกลับ</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>ไปข้างหน้า</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>ไปข้างหน้า</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>โฟลเดอร์หลัก</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>ไปที่โฟลเดอร์หลัก</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>สร้างโฟลเดอร์ใหม่</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>สร้างโฟลเดอร์ใหม่</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>มุมมองรายการ</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>เปลี่ยนเป็นมุมมองรายการ</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>มุมมองรายละเอียด</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>เปลี่ยนเป็นมุมมองรายละเอียด</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>แถบข้าง</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>รายการตำแหน่งและที่คั่น</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ไฟล์</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>ไฟล์ชนิด:</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>เปลี่ยนชื่อ(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>ลบ(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>แสดงไฟล์ที่ซ่อน(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>โฟลเดอร์ใหม่(&amp;N)</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>โฟลเดอร์:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ชื่อไฟล์(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>เปิด(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>เลือก(&amp;C)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>ไฟล์ทั้งหมด (*)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>โฟลเดอร์ใหม่</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>ตำแหน่งล่าสุด</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>เอาออก</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
ไม่พบโฟลเดอร์
โปรดตรวจสอบว่าชื่อโฟลเดอร์ถูกต้อง</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
ไม่พบไฟล์
โปรดตรวจสอบว่าชื่อไฟล์ถูกต้อง</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
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
        <source>Computer</source>
        <translation>คอมพิวเตอร์</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>เปิด</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>ใช่(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>ไม่ใช่(&amp;N)</translation>
    </message>
</context>
</TS>
