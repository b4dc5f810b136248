<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en">
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
        <translation>Dokumen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Basis data</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>File web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Arsip</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Lainnya</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>File belum disimpan</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gim</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>Keranjang Sampah</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>Lokasi yang hilang</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Salin</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
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
        <source>Path</source>
        <translation>Lokasi</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>Kartu SD</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Semua file</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>File terhapus</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Cari nama</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>File tanpa nama</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>Semua waktu</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>Waktu tidak diketahui</translation>
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
        <translation>Nama</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>Tanggal diubah</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>Lokasi</translation>
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
        <translation>File yang ada</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>File terhapus</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>Resolusi</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>Kecepatan ISO</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>Merek kamera</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>Model kamera</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>Keseimbangan putih</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>Waktu pajanan</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>Panjang fokus</translation>
    </message>
    <message>
        <source>software</source>
        <translation>Perangkat lunak</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>Laju bingkai</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>Laju bit</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>Bukaan</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>Tampilkan di foldernya</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>Pilih semua</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>Pratinjau</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>Pulihkan</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>Mengerti</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>Peluang pemulihan</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>Peluang pemulihan</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Tinggi</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>Sedang</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>Menilai</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>Memindai</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>Harap tunggu, file Anda sedang dicari dengan cepat.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>File tidak ditemukan</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>Tidak ada file jenis ini yang ditemukan. Periksa apakah disk yang dipilih untuk dipindai sudah benar.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>Memuat file…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>Ini mungkin perlu waktu sebentar.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>Tidak ada yang cocok dengan filter ini</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>Pemindaian menemukan file, tetapi tidak ada yang cocok dengan filter yang dipilih.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>Maaf, file tidak ditemukan</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. Beberapa file kehilangan nama aslinya. Cari file tersebut di &lt;a href=&quot;#&quot;&gt;file tanpa nama&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. Tunggu hingga pemindaian selesai, lalu cari lagi.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. Gunakan filter untuk mempersempit pencarian file.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>Maaf, tidak ada hasil</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>Tidak ada hasil saat ini yang cocok dengan deskripsi Anda.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>Coba deskripsi lain: jenis file, tanggal, atau ukuran.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>Jika pemindaian masih berjalan, tunggu file berikutnya.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>Gunakan juga filter atau cari berdasarkan nama.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>Cara menemukan file tanpa nama</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>Beberapa file kehilangan namanya sehingga tidak dapat dicari. Begini cara menemukannya:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>Buka “File tanpa nama”.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>Pilih jenis file yang ingin dipulihkan.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>Lihat pratinjau untuk menemukan file yang hilang.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>Suasana</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>Pemandangan</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>Pantai</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>Pemandangan kota</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>Hotel</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>Foto udara</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>Anak-anak</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>Hewan peliharaan</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>Ulang tahun</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>Makan malam</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>Pertunjukan</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>Pameran</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>Olahraga</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>Wisuda</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>Gaun pengantin</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>Buket bunga</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>Makanan</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>Ruang rapat</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>Presentasi</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>Papan tulis</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>Produk</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>Swafoto</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>Foto bersama</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>Pasfoto</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>Dokumen kertas</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>Dokumen identitas</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>Tangkapan layar obrolan</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>Pilih semua</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Memindai</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>Harap tunggu, file Anda sedang dicari dengan cepat.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>File tidak ditemukan</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>Tidak ada file jenis ini yang ditemukan. Periksa apakah disk yang dipilih untuk dipindai sudah benar.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>Memuat file…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>Ini mungkin perlu waktu sebentar.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>Tidak ada yang cocok dengan filter ini</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>Pemindaian menemukan file, tetapi tidak ada yang cocok dengan filter yang dipilih.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>Dicentang</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Dicentang sebagian</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Tidak dicentang</translation>
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
        <translation>Dokumen</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Basis data</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Halaman web</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Arsip</translation>
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
        <translation>item: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 dari %2</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>Diurutkan menurun</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>Diurutkan menaik</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>Bilah gulir</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
