<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
            <numerusform>每秒 %Ln 项</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>已删除 %Ln 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>已勾选 %Ln 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>未勾选任何文件</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>%Ln 个被筛选隐藏</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>恢复…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>扫描进度</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>需要 %1，目标可用 %2</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>需要 %1，目标仅有 %2 可用</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>恢复到 %1。选择其他文件夹…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>选择恢复到的文件夹</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>向上</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>结束搜索</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>在 %Ln 个名称中找到“%1”</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>勾选</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>勾选或取消勾选多个文件 (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>勾选所有照片</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>勾选所有已删除文件</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>勾选“%1”中的全部</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>勾选找到的全部文件</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>反转勾选</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>全部取消勾选</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
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
        <translation>程序旁边没有插件 SDCardScanContentPlugin。</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>无法加载 %1：%2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 是其他类型的插件：%2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>无法打开“%1”：%2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>没有程序可以打开“%1”。</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>任意大小</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>不超过 1 MB</translation>
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
        <translation>超过 100 MB</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>任意日期</translation>
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
        <translation>任意类型</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>仅已删除</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>显示全部</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
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
        <translation>的 和 与 在 从</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>电子邮件</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>数据库</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>网页文件</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>压缩文件</translation>
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
        <translation>扫描已停止。显示已找到的内容。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln 项无法读取，第一项：%1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>尚未创建示例卡。请打开文件夹、磁盘映像或设备。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>打开磁盘映像</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>已勾选 %Ln 个文件。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>已取消勾选 %Ln 个文件。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>已更改 %Ln 处勾选。</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>已撤消更改。</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>已重做更改。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>没有可撤消的操作。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>没有可重做的操作。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
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
        <translation>文件中没有预览图。</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>内存不足，无法处理此文件。</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>图片太大，无法传递。</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>文件中没有元数据。</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>图片已损坏或类型未知。</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>图片未注明尺寸。</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>图片太大：%1 × %2。</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>内存不足，无法处理 %1 × %2 的图片。</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>视频已损坏：%1。</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>文件中没有图片。</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>视频已损坏。</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>视频已损坏或类型未知：%1。</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>无法解码视频的任何一帧。</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>此程序旁边没有程序 quarvo-media：将没有缩略图和元数据。</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>无法启动程序 %1：%2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>程序 %1 没有正常响应。</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>耗时过长</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>解码器已崩溃</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>解码器运行异常</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>文件已损坏。</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>文件已损坏：%1。</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>此类文件没有可读取的元数据。</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>此类文件中没有图片。</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>无法显示此图片。
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2/%3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>上一张图片</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>下一张图片</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>%1 已没有可用空间。</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>%1 的空间不足：文件需要 %2，可用 %3。</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>无法创建文件：%1。</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>内容在第 %L1 字节处结束，共 %L2 字节。</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>写入失败：%1。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 不是文件夹。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>无法创建文件 %1：%2。</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>名为 %1 的文件过多。</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%1/%Ln 个文件</numerusform>
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
            <numerusform>已将 %Ln 个文件恢复到 %1。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln 个文件无法恢复。</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>恢复进度</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>无法恢复的文件</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
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
        <translation>恢复已取消</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>恢复完成</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>部分文件无法恢复</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>正在恢复到 %1</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>恢复到</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>没有可恢复的内容。</translation>
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
        <translation>读取超出末尾</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>介质过早结束</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 不是文件夹、磁盘映像或磁盘。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 为空。</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 太小，不是磁盘映像。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>存储卡已无法读取。</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>无法读取文件的记录。</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>无法读取存储卡：%1。</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>扫描后文件的记录已更改。</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>内容在第 %L1 字节处结束，共 %L2 字节。</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>在文件的第 %L1 字节处无法读取存储卡：%2。</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>同一位置曾有另一个已删除的文件，无法确定现存的是哪一个。</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>部分内容已被其他文件覆盖。</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>部分内容已被较新的文件 %1 覆盖。</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>存储卡上该文件的位置列表已损坏。</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>内容位于存储卡末尾之外。</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>存储卡上已没有内容位置的记录。</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>存储卡上已没有文件长度和内容位置的记录。</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>无法读取文件。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>无法读取文件夹 %1：%2。</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>无法完整读取文件夹 %1：%2。</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>%1 在扫描期间消失了。</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>文件已不存在。</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>无法打开文件。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>无法打开文件：%1。</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 中没有可读取的文件系统（FAT、exFAT、NTFS 或 ext）。</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>没有文件夹的已删除文件</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>无法打开卷 %1。</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>存储卡在其文件系统之前结束，文件可能不完整。</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>无法读取存储卡的顶层文件夹。</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>无法读取整张存储卡：%1。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 不存在。</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>卷 %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>卷 %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>无法读取文件夹 /%1。</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>文件夹 /%1 层级过深，未读取。</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>“%1”为空。</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>存储卡</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>按类型</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>按位置</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>查找位置</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 位于正在恢复的存储卡上。写入该处可能会破坏尚可恢复的内容。请选择其他磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 位于已扫描的文件夹中。请选择该文件夹之外的文件夹。</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 是已扫描的磁盘映像，不是文件夹。请选择文件夹。</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>%1 的空间不足：文件需要 %2，仅有 %3 可用。请选择其他文件夹或减少勾选的文件。</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln 个文件夹</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>此类文件中没有图片。</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>打开文件夹…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>打开磁盘映像…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>重新扫描</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>停止扫描</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>按名称搜索</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>缩略图</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>列表和详细信息</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>浅色或深色</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>来源：%1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>按描述搜索</translation>
    </message>
</context>
</TS>
