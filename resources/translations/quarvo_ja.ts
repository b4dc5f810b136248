<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>データベース</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>Web ファイル</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>未保存のファイル</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>ゲーム</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>ごみ箱</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>失われた場所</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>場所</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD カード</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>削除されたファイル</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>名前で検索</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>名前のないファイル</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>すべての期間</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>日時不明</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>バイト</translation>
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
        <translation>名前</translation>
    </message>
    <message>
        <source>size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>場所</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>既存のファイル</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>削除されたファイル</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ISO 感度</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>カメラのメーカー</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>カメラのモデル</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>露出時間</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <source>software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>絞り値</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>フォルダー内で表示</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>復元</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>復元の可能性</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>復元の可能性</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>高</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>中</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>評価中</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>スキャン中</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>ファイルをすばやく検索しています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>この種類のファイルは見つかりませんでした。スキャンするディスクを確認してください。</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>ファイルを読み込み中…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>しばらくかかる場合があります。</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>フィルターに一致する項目はありません</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>スキャンでファイルが見つかりましたが、設定されたフィルターに一致するものはありません。</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>ファイルが見つかりませんでした</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. 元の名前が失われたファイルがあります。&lt;a href=&quot;#&quot;&gt;名前のないファイル&lt;/a&gt;の中を探してください。</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. スキャンが完了するのを待ってから、もう一度検索してください。</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. フィルターを使ってファイルを絞り込んでください。</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>結果が見つかりませんでした</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>現在のスキャン結果に、説明に一致するファイルはありません。</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>ファイルの種類、日付、サイズなど、別の説明をお試しください。</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>スキャン中の場合は、さらにファイルが見つかるまでお待ちください。</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>フィルターや名前の検索で結果を絞り込むこともできます。</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>名前のないファイルの探し方</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>名前が失われたファイルは、元の名前では検索できません。次の手順で探してください。</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>「名前のないファイル」を開きます。</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>復元するファイルの種類を選択します。</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>プレビューで失ったファイルを確認します。</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>風景</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>ビーチ</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>街並み</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>ホテル</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>空撮</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>子ども</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>ペット</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>誕生日</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>ディナー</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>公演</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>展示会</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>スポーツ</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>卒業式</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>ウェディングドレス</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>花束</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>料理</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>会議室</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>プレゼンテーション</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>ホワイトボード</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>商品</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>自撮り</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>集合写真</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>証明写真</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>紙の文書</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>身分証明書</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>チャットの画面</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>スキャン中</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>ファイルをすばやく検索しています。しばらくお待ちください。</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>ファイルが見つかりません</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>この種類のファイルは見つかりませんでした。スキャンするディスクを確認してください。</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>ファイルを読み込み中…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>しばらくかかる場合があります。</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>フィルターに一致する項目はありません</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>スキャンでファイルが見つかりましたが、設定されたフィルターに一致するものはありません。</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>チェックあり</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>一部チェックあり</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>チェックなし</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>音声ファイル</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>メール</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>データベース</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>ウェブページ</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>圧縮ファイル</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 ファイル</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>項目数: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 件中 %1 件目</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>降順に並べ替え</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>昇順に並べ替え</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>スクロール バー</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>、</translation>
    </message>
</context>
</TS>
