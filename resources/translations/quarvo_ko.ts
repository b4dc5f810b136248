<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
<context>
    <name>CommonFunction</name>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>비디오</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>데이터베이스</translation>
    </message>
    <message>
        <source>Webfiles</source>
        <translation>웹 파일</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>압축 파일</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>Unsaved files</source>
        <translation>저장되지 않은 파일</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>게임</translation>
    </message>
    <message>
        <source>Recycle Bin</source>
        <translation>휴지통</translation>
    </message>
    <message>
        <source>File lost location</source>
        <translation>손실된 위치</translation>
    </message>
</context>
<context>
    <name>ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
<context>
    <name>HeaderView</name>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>수정한 날짜</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>위치</translation>
    </message>
</context>
<context>
    <name>HowToFindPicture</name>
    <message>
        <source>SD card</source>
        <translation>SD 카드</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>모든 파일</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>삭제된 파일</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>이름으로 검색</translation>
    </message>
</context>
<context>
    <name>ItemDetailViewClass</name>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
</context>
<context>
    <name>QuarvoTRS</name>
    <message>
        <source>reconstructed_files_label</source>
        <extracomment>The place of files that were found by their contents and have lost their names</extracomment>
        <translation>이름 없는 파일</translation>
    </message>
    <message>
        <source>time_nav_root_all_time</source>
        <extracomment>All files, arranged by date</extracomment>
        <translation>모든 시간</translation>
    </message>
    <message>
        <source>time_nav_root_unknown_time</source>
        <translation>알 수 없는 시간</translation>
    </message>
    <message>
        <source>SizeUnit_Bytes</source>
        <translation>바이트</translation>
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
        <translation>이름</translation>
    </message>
    <message>
        <source>size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>date_modified</source>
        <translation>수정한 날짜</translation>
    </message>
    <message>
        <source>path</source>
        <extracomment>The folder that a file lay in; header of a column and title of a row</extracomment>
        <translation>위치</translation>
    </message>
    <message>
        <source>folder</source>
        <extracomment>The type of a folder, where a file has its extension</extracomment>
        <translation>폴더</translation>
    </message>
    <message>
        <source>file_status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>filter_bar_widget_existing_files</source>
        <extracomment>A status: the file is still on the card</extracomment>
        <translation>기존 파일</translation>
    </message>
    <message>
        <source>filter_bar_widget_delete_files</source>
        <extracomment>A status: the file was deleted</extracomment>
        <translation>삭제된 파일</translation>
    </message>
    <message>
        <source>resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>iso_speed</source>
        <translation>ISO 감도</translation>
    </message>
    <message>
        <source>camera_brand</source>
        <translation>카메라 제조사</translation>
    </message>
    <message>
        <source>model</source>
        <extracomment>Of a camera</extracomment>
        <translation>카메라 모델</translation>
    </message>
    <message>
        <source>white_balance</source>
        <translation>화이트 밸런스</translation>
    </message>
    <message>
        <source>exposure_time</source>
        <translation>노출 시간</translation>
    </message>
    <message>
        <source>focal_length</source>
        <translation>초점 거리</translation>
    </message>
    <message>
        <source>software</source>
        <translation>소프트웨어</translation>
    </message>
    <message>
        <source>frame_rate</source>
        <translation>프레임 속도</translation>
    </message>
    <message>
        <source>bit_rate</source>
        <translation>비트 전송률</translation>
    </message>
    <message>
        <source>f_number</source>
        <extracomment>Of a lens</extracomment>
        <translation>조리개</translation>
    </message>
    <message>
        <source>view_in_path</source>
        <extracomment>Tooltip of the mark that leads to the file&apos;s folder</extracomment>
        <translation>폴더에서 보기</translation>
    </message>
    <message>
        <source>select_all</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>preview</source>
        <extracomment>A button and a menu entry</extracomment>
        <translation>미리 보기</translation>
    </message>
    <message>
        <source>recover</source>
        <extracomment>A menu entry</extracomment>
        <translation>복구</translation>
    </message>
    <message>
        <source>got_it</source>
        <extracomment>Closes an explanation</extracomment>
        <translation>확인</translation>
    </message>
    <message>
        <source>recoverability_label</source>
        <extracomment>Stands before a level in a tooltip</extracomment>
        <translation>복구 가능성</translation>
    </message>
    <message>
        <source>recoverability_label_list</source>
        <extracomment>Title of a row</extracomment>
        <translation>복구 가능성</translation>
    </message>
    <message>
        <source>recoverability_high</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>높음</translation>
    </message>
    <message>
        <source>recoverability_medium</source>
        <extracomment>A level, in a small label on a card</extracomment>
        <translation>보통</translation>
    </message>
    <message>
        <source>recoverability_assessing</source>
        <extracomment>The level is not known yet, in a small label on a card</extracomment>
        <translation>평가 중</translation>
    </message>
    <message>
        <source>scanning</source>
        <translation>스캔 중</translation>
    </message>
    <message>
        <source>scandataview_scanning_hint</source>
        <translation>파일을 빠르게 찾는 중입니다. 잠시 기다려 주세요.</translation>
    </message>
    <message>
        <source>file_not_found</source>
        <translation>파일을 찾을 수 없음</translation>
    </message>
    <message>
        <source>scandataview_file_not_found_hint</source>
        <translation>이 유형의 파일을 찾을 수 없습니다. 올바른 디스크를 선택하여 스캔했는지 확인하세요.</translation>
    </message>
    <message>
        <source>ai_tags_loading_title</source>
        <translation>파일 로드 중…</translation>
    </message>
    <message>
        <source>ai_tags_loading_desc</source>
        <translation>잠시 시간이 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>filter_empty_title</source>
        <translation>필터와 일치하는 항목 없음</translation>
    </message>
    <message>
        <source>filter_empty_desc</source>
        <translation>스캔에서 파일을 찾았지만 설정된 필터와 일치하는 파일이 없습니다.</translation>
    </message>
    <message>
        <source>scandataview_search_no_result</source>
        <translation>파일을 찾지 못했습니다</translation>
    </message>
    <message>
        <source>missing_original_filenames</source>
        <extracomment>Keep the number and the link; the link&apos;s words are those of reconstructed_files_label</extracomment>
        <translation>1. 일부 파일은 원래 이름을 잃었습니다. &lt;a href=&quot;#&quot;&gt;이름 없는 파일&lt;/a&gt;에서 찾아보세요.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_wait_scan</source>
        <extracomment>Keep the number</extracomment>
        <translation>2. 스캔이 끝날 때까지 기다린 후 다시 검색하세요.</translation>
    </message>
    <message>
        <source>scandataview_search_hint_use_filter</source>
        <extracomment>Keep the number</extracomment>
        <translation>3. 필터를 사용하여 파일 범위를 좁혀 보세요.</translation>
    </message>
    <message>
        <source>ai_search_empty_title</source>
        <translation>검색 결과가 없습니다</translation>
    </message>
    <message>
        <source>ai_search_empty_desc</source>
        <translation>현재 스캔 결과에 설명과 일치하는 파일이 없습니다.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip1</source>
        <translation>파일 유형, 날짜, 크기 등 다른 설명으로 시도해 보세요.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip2</source>
        <translation>스캔이 진행 중이면 파일이 더 발견될 때까지 기다려 주세요.</translation>
    </message>
    <message>
        <source>ai_search_empty_tip3</source>
        <translation>필터나 이름 검색으로 결과 범위를 좁힐 수도 있습니다.</translation>
    </message>
    <message>
        <source>how_to_find_in_reconstructed</source>
        <translation>이름 없는 파일을 찾는 방법</translation>
    </message>
    <message>
        <source>reconstructed_tip_intro</source>
        <translation>일부 파일은 이름을 잃어 원래 이름으로 검색할 수 없습니다. 다음 방법으로 찾아보세요:</translation>
    </message>
    <message>
        <source>click_reconstructed</source>
        <translation>‘이름 없는 파일’을 엽니다.</translation>
    </message>
    <message>
        <source>search_dialog_text2</source>
        <translation>복구할 파일 유형을 선택합니다.</translation>
    </message>
    <message>
        <source>search_dialog_text3</source>
        <translation>미리 보기로 잃어버린 파일을 확인합니다.</translation>
    </message>
    <message>
        <source>ai_tags_title</source>
        <translation>장면</translation>
    </message>
    <message>
        <source>ai_tags_landscape</source>
        <translation>풍경</translation>
    </message>
    <message>
        <source>ai_tags_beach</source>
        <translation>해변</translation>
    </message>
    <message>
        <source>ai_tags_cityscape</source>
        <translation>도시 풍경</translation>
    </message>
    <message>
        <source>ai_tags_hotel</source>
        <translation>호텔</translation>
    </message>
    <message>
        <source>ai_tags_aerial</source>
        <translation>항공 사진</translation>
    </message>
    <message>
        <source>ai_tags_children</source>
        <translation>어린이</translation>
    </message>
    <message>
        <source>ai_tags_pet</source>
        <translation>반려동물</translation>
    </message>
    <message>
        <source>ai_tags_birthday</source>
        <translation>생일</translation>
    </message>
    <message>
        <source>ai_tags_dinner</source>
        <translation>저녁 식사</translation>
    </message>
    <message>
        <source>ai_tags_performance</source>
        <translation>공연</translation>
    </message>
    <message>
        <source>ai_tags_exhibition</source>
        <translation>전시회</translation>
    </message>
    <message>
        <source>ai_tags_sports</source>
        <translation>스포츠</translation>
    </message>
    <message>
        <source>ai_tags_graduation</source>
        <translation>졸업식</translation>
    </message>
    <message>
        <source>ai_tags_wedding_dress</source>
        <translation>웨딩드레스</translation>
    </message>
    <message>
        <source>ai_tags_bouquet</source>
        <translation>꽃다발</translation>
    </message>
    <message>
        <source>ai_tags_food</source>
        <translation>음식</translation>
    </message>
    <message>
        <source>ai_tags_meeting_room</source>
        <translation>회의실</translation>
    </message>
    <message>
        <source>ai_tags_presentation</source>
        <translation>프레젠테이션</translation>
    </message>
    <message>
        <source>ai_tags_whiteboard</source>
        <translation>화이트보드</translation>
    </message>
    <message>
        <source>ai_tags_product</source>
        <translation>제품</translation>
    </message>
    <message>
        <source>ai_tags_selfie</source>
        <translation>셀카</translation>
    </message>
    <message>
        <source>ai_tags_group_photo</source>
        <translation>단체 사진</translation>
    </message>
    <message>
        <source>ai_tags_id_photo</source>
        <translation>증명사진</translation>
    </message>
    <message>
        <source>ai_tags_paper_document</source>
        <translation>종이 문서</translation>
    </message>
    <message>
        <source>ai_tags_identity_document</source>
        <translation>신분증</translation>
    </message>
    <message>
        <source>ai_tags_chat_screenshot</source>
        <translation>채팅 스크린샷</translation>
    </message>
</context>
<context>
    <name>SDCardContentDataWidgetClass</name>
    <message>
        <source>Select All</source>
        <translation>모두 선택</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>스캔 중</translation>
    </message>
    <message>
        <source>Please wait while we quickly locate your files.</source>
        <translation>파일을 빠르게 찾는 중입니다. 잠시 기다려 주세요.</translation>
    </message>
    <message>
        <source>File Not Found</source>
        <translation>파일을 찾을 수 없음</translation>
    </message>
    <message>
        <source>Sorry, the file type could not be found. Please check if the correct disk is selected for scanning.</source>
        <translation>이 유형의 파일을 찾을 수 없습니다. 올바른 디스크를 선택하여 스캔했는지 확인하세요.</translation>
    </message>
    <message>
        <source>Loading Files...</source>
        <translation>파일 로드 중…</translation>
    </message>
    <message>
        <source>This may take a moment.</source>
        <translation>잠시 시간이 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Nothing matches this filter...</source>
        <translation>필터와 일치하는 항목 없음</translation>
    </message>
    <message>
        <source>We found files in the scan, but none match the filters currently applied.</source>
        <translation>스캔에서 파일을 찾았지만 설정된 필터와 일치하는 파일이 없습니다.</translation>
    </message>
</context>
<context>
    <name>SearchDialog</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>SpokenText</name>
    <message>
        <source>Checked</source>
        <translation>선택됨</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>일부 선택됨</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>선택 안 됨</translation>
    </message>
    <message>
        <source>Audio file</source>
        <translation>오디오 파일</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>동영상</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>데이터베이스</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>웹 페이지</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>압축 파일</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 파일</translation>
    </message>
    <message>
        <source>items: %1</source>
        <translation>항목: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2개 중 %1번째</translation>
    </message>
    <message>
        <source>Sorted in descending order</source>
        <translation>내림차순 정렬</translation>
    </message>
    <message>
        <source>Sorted in ascending order</source>
        <translation>오름차순 정렬</translation>
    </message>
    <message>
        <source>Scroll bar</source>
        <translation>스크롤 막대</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a spoken description</comment>
        <translation>, </translation>
    </message>
</context>
</TS>
