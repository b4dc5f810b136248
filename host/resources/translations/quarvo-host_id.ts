<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en">
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
            <numerusform>%Ln item per detik</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>%Ln terhapus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln file dicentang</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Tidak ada yang dicentang</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln disembunyikan oleh filter</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Hentikan</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>Pulihkan…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>Kemajuan pemindaian</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 dari %2 kosong di tujuan</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>Perlu %1, hanya %2 kosong di tujuan</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>Pulihkan ke %1. Pilih folder lain…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>Pilih folder tujuan pemulihan</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>Naik</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>Akhiri pencarian</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>“%1” ditemukan dalam %Ln nama</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>Centang</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>Centang atau hapus centang banyak file (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>Centang semua foto</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>Centang semua file terhapus</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>Centang semua di “%1”</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>Centang semua yang ditemukan</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>Balikkan centang</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>Hapus semua centang</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Urungkan</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ulangi</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>Plugin SDCardScanContentPlugin tidak ada di samping program.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 tidak dapat dimuat: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 adalah plugin jenis lain: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>“%1” tidak dapat dibuka: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>Tidak ada program yang membuka “%1”.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>Semua ukuran</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>Hingga 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 hingga 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 hingga 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>Lebih dari 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>Semua tanggal</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>7 hari terakhir</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>30 hari terakhir</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>Setahun terakhir</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>Lebih dari setahun</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>Semua jenis</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>Hanya terhapus</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>Tampilkan semua</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tanggal</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>dari di dan dengan pada yang</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>Semua file</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumen</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Email</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>Basis data</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>File web</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Arsip</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Lainnya</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>Pemindaian dihentikan. Hasil yang ditemukan ditampilkan.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln hal tidak dapat dibaca, yang pertama: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>Kartu contoh belum dibuat. Buka folder, citra disk, atau perangkat.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Buka folder</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>Buka citra disk</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln file dicentang.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>Centang %Ln file dihapus.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln centang diubah.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>Perubahan diurungkan.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>Perubahan diulangi.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Tidak ada yang dapat diurungkan.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Tidak ada yang dapat diulangi.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Urungkan</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ulangi</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>File tidak berisi pratinjau.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>Memori tidak cukup untuk file ini.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>Gambar terlalu besar untuk diserahkan.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>File tidak berisi metadata.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>Gambar rusak atau jenisnya tidak dikenal.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>Gambar tidak menyebutkan ukurannya.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>Gambar terlalu besar: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>Memori tidak cukup untuk gambar %1 × %2.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>Video rusak: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>File tidak berisi gambar.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>Video rusak.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>Video rusak atau jenisnya tidak dikenal: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>Tidak ada bingkai video yang dapat didekode.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>Program quarvo-media tidak ada di samping program ini: tidak ada gambar mini dan metadata.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>Program %1 tidak dapat dijalankan: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>Program %1 tidak menjawab sebagaimana mestinya.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>terlalu lama</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>dekoder berhenti mendadak</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>dekoder kehilangan arah</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>File rusak.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>File rusak: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>File semacam ini tidak memiliki metadata yang dapat dibaca.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>File semacam ini tidak berisi gambar.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Memuat…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>Gambar ini tidak dapat ditampilkan.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 dari %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>Gambar sebelumnya</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>Gambar berikutnya</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>Tidak ada ruang tersisa di %1.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>Ruang di %1 tidak cukup: file memerlukan %2, yang kosong %3.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>File tidak dapat dibuat: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Isi berakhir pada byte %L1 dari %L2.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>Penulisan gagal: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 bukan folder.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Folder %1 tidak dapat dibuat.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>Tidak dapat menulis ke %1: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>File %1 tidak dapat dibuat: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>Terlalu banyak file bernama %1.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1 dari %Ln file</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 dari %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln file dipulihkan ke %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln file tidak dapat dipulihkan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Pemulihan</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>Kemajuan pemulihan</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>File yang tidak dapat dipulihkan</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Buka folder</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>Pemulihan dibatalkan</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>Pemulihan selesai</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>Beberapa file tidak dapat dipulihkan</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>Memulihkan ke %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>Pulihkan ke</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>Tidak ada yang perlu dipulihkan.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>dibatalkan</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>pembacaan melewati akhir</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>media berakhir terlalu awal</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 bukan folder, citra disk, ataupun disk.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 tidak dapat dibaca: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 kosong.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 terlalu kecil untuk citra disk.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>Kartu tidak dapat dibaca lagi.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>Catatan file tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>Kartu tidak dapat dibaca: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>Catatan file telah berubah sejak pemindaian.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>Isi berakhir pada byte %L1 dari %L2.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>Kartu tidak dapat dibaca pada byte %L1 file: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>Ada file terhapus lain di tempat yang sama; tidak diketahui mana dari keduanya yang masih ada.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>Sebagian isi telah ditimpa oleh file lain.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>Sebagian isi telah ditimpa oleh file yang lebih baru, %1.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>Daftar tempat file pada kartu rusak.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>Isi berada di luar akhir kartu.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>Kartu tidak lagi menyebutkan letak isi.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>Kartu tidak lagi menyebutkan panjang file dan letak isinya.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>File tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>Folder %1 tidak dapat dibaca: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>Folder %1 tidak dapat dibaca seluruhnya: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 menghilang selama pemindaian.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>File sudah tidak ada.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>File tidak dapat dibuka.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>File tidak dapat dibuka: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 tidak berisi sistem file yang dapat dibaca (FAT, exFAT, NTFS, atau ext).</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>File terhapus tanpa folder</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>Volume %1 tidak dapat dibuka.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>Kartu berakhir sebelum sistem filenya; file mungkin terpotong.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>Folder teratas kartu tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>Kartu tidak dapat dibaca seluruhnya: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 tidak ada.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>Volume %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>Volume %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>Folder /%1 tidak dapat dibaca.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>Folder /%1 terlalu dalam dan tidak dibaca.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>“%1” kosong.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>Kartu</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>Menurut jenis</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>Menurut tempat</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>Tempat mencari</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 berada di kartu yang sedang dipulihkan. Menulis di sana dapat merusak yang masih bisa dipulihkan. Pilih folder di disk lain.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 berada di folder yang dipindai. Pilih folder di luarnya.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 adalah citra disk yang dipindai, bukan folder. Pilih sebuah folder.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>Ruang di %1 tidak cukup: file memerlukan %2, hanya %3 yang kosong. Pilih folder lain atau centang lebih sedikit file.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln folder</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>File semacam ini tidak berisi gambar.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>Bahasa</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>Buka folder…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>Buka citra disk…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Pindai lagi</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>Hentikan pemindaian</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Cari nama</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Gambar mini</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>Daftar dengan detail</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Daftar</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Terang atau gelap</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Buka…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>Sumber: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>Cari menurut deskripsi</translation>
    </message>
</context>
</TS>
