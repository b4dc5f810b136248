<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>BottomBar</name>
    <message>
        <source>%1, %2</source>
        <comment>files and folders</comment>
        <translation>%1，%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) a second</source>
        <translation>
            <numerusform>每秒 %Ln 個項目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>已刪除 %Ln 個</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>已勾選 %Ln 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>未勾選任何檔案</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln 個被篩選隱藏</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>還原…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>掃描進度</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>需要 %1，目的地可用 %2</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>需要 %1，目的地僅有 %2 可用</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>還原至 %1。選擇其他資料夾…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>選擇還原目的資料夾</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>往上</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>結束搜尋</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>在 %Ln 個名稱中找到「%1」</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>勾選</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>勾選或取消勾選多個檔案 (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>勾選所有相片</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>勾選所有已刪除的檔案</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>勾選「%1」中的全部</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>勾選找到的全部檔案</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>反向勾選</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>全部取消勾選</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>程式旁邊沒有外掛程式 SDCardScanContentPlugin。</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>無法載入 %1：%2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 是其他類型的外掛程式：%2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>無法開啟「%1」：%2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>沒有程式可以開啟「%1」。</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>任何大小</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>不超過 1 MB</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 至 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 至 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>超過 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>任何日期</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>最近 30 天</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>最近一年</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>一年以前</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>任何類型</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>僅已刪除</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>顯示全部</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>的 和 與 在 從</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>所有檔案</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>電子郵件</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>資料庫</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>網頁檔案</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>壓縮檔</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>其他</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>掃描已停止。顯示已找到的內容。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln 個項目無法讀取，第一個：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>尚未建立範例記憶卡。請開啟資料夾、磁碟映像或裝置。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>開啟磁碟映像</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>已勾選 %Ln 個檔案。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>已取消勾選 %Ln 個檔案。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>已變更 %Ln 處勾選。</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>已復原變更。</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>已重做變更。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>沒有可復原的動作。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>沒有可重做的動作。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>檔案中沒有預覽圖。</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>記憶體不足，無法處理此檔案。</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>圖片太大，無法傳遞。</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>檔案中沒有中繼資料。</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>圖片已損毀或類型不明。</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>圖片未註明尺寸。</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>圖片太大：%1 × %2。</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>記憶體不足，無法處理 %1 × %2 的圖片。</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>影片已損毀：%1。</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>檔案中沒有圖片。</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>影片已損毀。</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>影片已損毀或類型不明：%1。</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>無法解碼影片的任何畫面。</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>此程式旁邊沒有程式 quarvo-media：將沒有縮圖和中繼資料。</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>無法啟動程式 %1：%2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>程式 %1 沒有正常回應。</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>花費時間過長</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>解碼器已當機</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>解碼器運作異常</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>檔案已損毀。</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>檔案已損毀：%1。</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>此類檔案沒有可讀取的中繼資料。</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>此類檔案中沒有圖片。</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>正在載入…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>無法顯示此圖片。
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2/%3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>上一張圖片</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>下一張圖片</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>%1 已沒有可用空間。</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>%1 的空間不足：檔案需要 %2，可用 %3。</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>無法建立檔案：%1。</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>內容在第 %L1 位元組處結束，共 %L2 位元組。</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>寫入失敗：%1。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 不是資料夾。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>無法建立資料夾 %1。</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>無法寫入 %1：%2。</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>無法建立檔案 %1：%2。</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>名為 %1 的檔案過多。</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1/%Ln 個檔案</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1/%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>已將 %Ln 個檔案還原至 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln 個檔案無法還原。</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>還原進度</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>無法還原的檔案</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>還原已取消</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>還原完成</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>部分檔案無法還原</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>正在還原至 %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>還原至</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>沒有可還原的內容。</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>讀取超出結尾</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>媒體過早結束</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 不是資料夾、磁碟映像或磁碟。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>無法讀取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 是空的。</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 太小，不是磁碟映像。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>無法讀取 %1。</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>記憶卡已無法讀取。</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>無法讀取檔案的記錄。</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>無法讀取記憶卡：%1。</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>掃描後檔案的記錄已變更。</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>內容在第 %L1 位元組處結束，共 %L2 位元組。</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>在檔案的第 %L1 位元組處無法讀取記憶卡：%2。</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>同一位置曾有另一個已刪除的檔案，無法確定現存的是哪一個。</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>部分內容已被其他檔案覆寫。</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>部分內容已被較新的檔案 %1 覆寫。</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>記憶卡上該檔案的位置清單已損毀。</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>內容位於記憶卡結尾之外。</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>記憶卡上已沒有內容位置的記錄。</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>記憶卡上已沒有檔案長度和內容位置的記錄。</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>無法讀取檔案。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>無法讀取資料夾 %1：%2。</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>無法完整讀取資料夾 %1：%2。</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 在掃描期間消失了。</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>檔案已不存在。</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>無法開啟檔案。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>無法開啟檔案：%1。</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 中沒有可讀取的檔案系統（FAT、exFAT、NTFS 或 ext）。</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>沒有資料夾的已刪除檔案</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>無法開啟磁碟區 %1。</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>記憶卡在其檔案系統之前結束，檔案可能不完整。</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>無法讀取記憶卡的最上層資料夾。</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>無法讀取整張記憶卡：%1。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 不存在。</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>磁碟區 %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>磁碟區 %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>無法讀取資料夾 /%1。</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>資料夾 /%1 層級過深，未讀取。</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>「%1」是空的。</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>記憶卡</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>依類型</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>依位置</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>尋找位置</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 位於正在還原的記憶卡上。寫入該處可能會破壞尚可還原的內容。請選擇其他磁碟上的資料夾。</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 位於已掃描的資料夾中。請選擇該資料夾以外的資料夾。</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 是已掃描的磁碟映像，不是資料夾。請選擇資料夾。</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>%1 的空間不足：檔案需要 %2，僅有 %3 可用。請選擇其他資料夾或減少勾選的檔案。</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln 個檔案</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln 個資料夾</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>此類檔案中沒有圖片。</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>開啟資料夾…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>開啟磁碟映像…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>重新掃描</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>停止掃描</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>依名稱搜尋</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>縮圖</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>清單與詳細資料</translation>
    </message>
    <message>
        <source>List</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>淺色或深色</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開啟…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>來源：%1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>依描述搜尋</translation>
    </message>
</context>
</TS>
