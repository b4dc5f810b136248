<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en">
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Urungkan</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ulangi</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Po&amp;tong</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Salin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Tempel</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Cari di:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Folder Induk</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Buka folder induk</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Buat Folder Baru</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Buat Folder Baru</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Tampilan Daftar</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Ubah ke tampilan daftar</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Tampilan Detail</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ubah ke tampilan detail</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Bilah Samping</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Daftar tempat dan markah</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Jenis file:</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Ubah Nama</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Hapus</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Tampilkan file &amp;tersembunyi</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Folder &amp;Baru</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nama file:</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Buka</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Pilih</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Semua File (*)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Folder Baru</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Tempat Terbaru</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Buang</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Folder tidak ditemukan.
Periksa apakah nama folder sudah benar.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
File tidak ditemukan.
Periksa apakah nama file sudah benar.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Tanggal diubah</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ya</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Tidak</translation>
    </message>
</context>
</TS>
