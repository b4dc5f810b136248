<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>BottomBar</name>
    <message>
        <source>%1, %2</source>
        <comment>files and folders</comment>
        <translation>%1、%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln item(s) a second</source>
        <translation>
            <numerusform>毎秒 %Ln 項目</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>削除済み %Ln 件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>%Ln 個のファイルを選択中</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>何も選択されていません</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>フィルターにより %Ln 件を非表示</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>復元…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>スキャンの進行状況</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 / 保存先の空き %2</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 が必要ですが、保存先の空きは %2 のみです</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>%1 に復元します。別のフォルダーを選択…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>復元先のフォルダーを選択</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>検索を終了</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>「%1」を %Ln 件の名前で検出</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>多数のファイルを選択または解除 (%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>すべての写真を選択</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>削除されたファイルをすべて選択</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>「%1」内をすべて選択</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>見つかったものをすべて選択</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>選択を反転</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>すべて解除</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>プラグイン SDCardScanContentPlugin がプログラムと同じ場所にありません。</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1 は別の種類のプラグインです: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>「%1」を開けません: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>「%1」を開くプログラムがありません。</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>すべてのサイズ</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>1 MB 以下</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1 ～ 10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10 ～ 100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>100 MB 超</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>すべての日付</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>過去 7 日間</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>過去 30 日間</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>過去 1 年</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>1 年以上前</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>すべての種類</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>削除済みのみ</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>の から と で を に</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>データベース</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>Web ファイル</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>その他</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>スキャンを停止しました。見つかったものを表示しています。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln 件を読み取れませんでした。最初の項目: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>サンプルカードが作成されていません。フォルダー、ディスクイメージ、またはデバイスを開いてください。</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>ディスクイメージを開く</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>%Ln 個のファイルを選択しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>%Ln 個のファイルの選択を解除しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>%Ln 件の選択を変更しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>変更を元に戻しました。</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>変更をやり直しました。</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>元に戻す操作はありません。</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>やり直す操作はありません。</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>ファイルにプレビューが含まれていません。</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>このファイルにはメモリが足りません。</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>画像が大きすぎて受け渡せません。</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>ファイルにメタデータが含まれていません。</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>画像が壊れているか、不明な種類です。</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>画像のサイズがわかりません。</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>画像が大きすぎます: %1 × %2</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>%1 × %2 の画像にはメモリが足りません。</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>ビデオが壊れています: %1</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>ファイルに画像が含まれていません。</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>ビデオが壊れています。</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>ビデオが壊れているか、不明な種類です: %1</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>ビデオのフレームをデコードできません。</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>プログラム quarvo-media が同じ場所にありません。サムネイルとメタデータは表示されません。</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>プログラム %1 を開始できません: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>プログラム %1 が正しく応答しません。</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>時間がかかりすぎました</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>デコーダーが異常終了しました</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>デコーダーが正しく動作しませんでした</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>ファイルが壊れています。</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>ファイルが壊れています: %1</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>この種類のファイルには読み取れるメタデータがありません。</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>この種類のファイルには画像がありません。</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>この画像は表示できません。
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 / %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>前の画像</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>次の画像</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>%1 に空き容量がありません。</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>%1 の空き容量が足りません: ファイルには %2 が必要ですが、空きは %3 です。</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>ファイルを作成できません: %1</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>内容が %L2 バイト中 %L1 バイト目で終わっています。</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>書き込みに失敗しました: %1</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 はフォルダーではありません。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>フォルダー %1 を作成できません。</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>ファイル %1 を作成できません: %2</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>%1 という名前のファイルが多すぎます。</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>%Ln 個中 %1 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>bytes done, bytes in all</comment>
        <translation>%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) recovered to %1.</source>
        <translation>
            <numerusform>%Ln 個のファイルを %1 に復元しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>%Ln 個のファイルを復元できませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>復元の進行状況</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>復元できなかったファイル</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>復元をキャンセルしました</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>復元が完了しました</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>一部のファイルを復元できませんでした</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>%1 に復元中</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>復元先</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>復元するものがありません。</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>終端を越えた読み取り</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>メディアが途中で終わっています</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1 はフォルダー、ディスクイメージ、ディスクのいずれでもありません。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 は空です。</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1 は小さすぎてディスクイメージではありません。</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 を読み取れません。</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>カードを読み取れなくなりました。</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>ファイルのレコードを読み取れません。</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>カードを読み取れません: %1</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>スキャン後にファイルのレコードが変わりました。</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>内容が %L2 バイト中 %L1 バイト目で終わっています。</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>ファイルの %L1 バイト目でカードを読み取れません: %2</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>同じ場所に別の削除済みファイルがありました。どちらが残っているかは不明です。</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>内容の一部が別のファイルで上書きされています。</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>内容の一部が新しいファイル %1 で上書きされています。</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>カード上のファイルの位置リストが壊れています。</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>内容がカードの終端より後ろにあります。</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>内容の場所がカードに残っていません。</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>ファイルの長さと内容の場所がカードに残っていません。</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>ファイルを読み取れませんでした。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>フォルダー %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>フォルダー %1 の全体を読み取れませんでした: %2</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>スキャン中に %1 がなくなりました。</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>ファイルはもうありません。</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>ファイルを開けません。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>ファイルを開けません: %1</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1 に読み取れるファイルシステム (FAT、exFAT、NTFS、ext) がありません。</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>フォルダーのない削除済みファイル</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>ボリューム %1 を開けませんでした。</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>カードがファイルシステムより先に終わっています。途中で切れたファイルがあるかもしれません。</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>カードの最上位フォルダーを読み取れません。</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>カードの全体を読み取れませんでした: %1</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 は存在しません。</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>ボリューム %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>ボリューム %1 (%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>フォルダー /%1 を読み取れませんでした。</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>フォルダー /%1 は階層が深すぎるため読み取りませんでした。</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>「%1」は空です。</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>カード</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>種類別</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>場所別</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>探す場所</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1 は復元中のカード上にあります。そこに書き込むと、まだ復元できるものが失われるおそれがあります。別のディスクのフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1 はスキャンしたフォルダーの中にあります。その外のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1 はスキャンしたディスクイメージで、フォルダーではありません。フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>%1 の空き容量が足りません: ファイルには %2 が必要ですが、空きは %3 だけです。別のフォルダーを選択するか、ファイルを減らしてください。</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln 個のファイル</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>%Ln 個のフォルダー</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>この種類のファイルには画像がありません。</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>フォルダーを開く…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>ディスクイメージを開く…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>再スキャン</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>スキャンを停止</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>名前で検索</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>サムネイル</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>詳細付きリスト</translation>
    </message>
    <message>
        <source>List</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>ライトまたはダーク</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>ソース: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>説明で検索</translation>
    </message>
</context>
</TS>
