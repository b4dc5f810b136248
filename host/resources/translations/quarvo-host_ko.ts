<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en">
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
            <numerusform>초당 %Ln개 항목</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln deleted</source>
        <translation>
            <numerusform>삭제됨 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked</source>
        <translation>
            <numerusform>파일 %Ln개 선택됨</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>선택된 항목 없음</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hidden by the filter</source>
        <translation>
            <numerusform>필터로 %Ln개 숨김</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source>Recover…</source>
        <translation>복구…</translation>
    </message>
    <message>
        <source>Progress of the scan</source>
        <translation>스캔 진행률</translation>
    </message>
    <message>
        <source>%1 of %2 free at the target</source>
        <comment>needed, free</comment>
        <translation>%1 / 대상 여유 공간 %2</translation>
    </message>
    <message>
        <source>%1 needed, only %2 free at the target</source>
        <translation>%1 필요, 대상 여유 공간은 %2뿐임</translation>
    </message>
    <message>
        <source>Recover to %1. Choose another folder…</source>
        <translation>%1(으)로 복구합니다. 다른 폴더 선택…</translation>
    </message>
    <message>
        <source>Choose the folder to recover to</source>
        <translation>복구할 폴더 선택</translation>
    </message>
</context>
<context>
    <name>Breadcrumbs</name>
    <message>
        <source>Up</source>
        <translation>위로</translation>
    </message>
    <message>
        <source>End the search</source>
        <translation>검색 종료</translation>
    </message>
    <message numerus="yes">
        <source>“%1” found in %Ln name(s)</source>
        <translation>
            <numerusform>이름 %Ln개에서 ‘%1’ 찾음</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BulkMenu</name>
    <message>
        <source>Check</source>
        <translation>선택</translation>
    </message>
    <message>
        <source>Check or uncheck many files (%1)</source>
        <translation>여러 파일 선택 또는 선택 해제(%1)</translation>
    </message>
    <message>
        <source>Check all photos</source>
        <translation>모든 사진 선택</translation>
    </message>
    <message>
        <source>Check all deleted files</source>
        <translation>삭제된 파일 모두 선택</translation>
    </message>
    <message>
        <source>Check everything in “%1”</source>
        <translation>‘%1’의 모든 항목 선택</translation>
    </message>
    <message>
        <source>Check everything found</source>
        <translation>찾은 항목 모두 선택</translation>
    </message>
    <message>
        <source>Invert the checks</source>
        <translation>선택 반전</translation>
    </message>
    <message>
        <source>Uncheck all</source>
        <translation>모두 선택 해제</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
</context>
<context>
    <name>ContentPlugin</name>
    <message>
        <source>The plug-in SDCardScanContentPlugin is not beside the program.</source>
        <translation>프로그램 옆에 SDCardScanContentPlugin 플러그인이 없습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2</source>
        <translation>%1을(를) 불러올 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is a plug-in of another kind: %2</source>
        <translation>%1은(는) 다른 종류의 플러그인입니다: %2</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>“%1” cannot be opened: %2</source>
        <translation>‘%1’을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>No program opens “%1”.</source>
        <translation>‘%1’을(를) 여는 프로그램이 없습니다.</translation>
    </message>
</context>
<context>
    <name>FilterBar</name>
    <message>
        <source>Any size</source>
        <translation>모든 크기</translation>
    </message>
    <message>
        <source>Up to 1 MB</source>
        <translation>1 MB 이하</translation>
    </message>
    <message>
        <source>1 to 10 MB</source>
        <translation>1~10 MB</translation>
    </message>
    <message>
        <source>10 to 100 MB</source>
        <translation>10~100 MB</translation>
    </message>
    <message>
        <source>Over 100 MB</source>
        <translation>100 MB 초과</translation>
    </message>
    <message>
        <source>Any date</source>
        <translation>모든 날짜</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>최근 7일</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>최근 30일</translation>
    </message>
    <message>
        <source>Last year</source>
        <translation>최근 1년</translation>
    </message>
    <message>
        <source>Older than a year</source>
        <translation>1년 이전</translation>
    </message>
    <message>
        <source>Any kind</source>
        <translation>모든 종류</translation>
    </message>
    <message>
        <source>Deleted only</source>
        <translation>삭제된 파일만</translation>
    </message>
    <message>
        <source>Show everything</source>
        <translation>모두 표시</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>종류</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>날짜</translation>
    </message>
</context>
<context>
    <name>ItemDescription</name>
    <message>
        <source>a an and at from in of on the with</source>
        <comment>Words of a search by description that say nothing alone</comment>
        <translation>의 에서 와 과 및 에</translation>
    </message>
</context>
<context>
    <name>ItemKinds</name>
    <message>
        <source>All files</source>
        <translation>모든 파일</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>비디오</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>이메일</translation>
    </message>
    <message>
        <source>Databases</source>
        <translation>데이터베이스</translation>
    </message>
    <message>
        <source>Web files</source>
        <translation>웹 파일</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>압축 파일</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>기타</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The scan was stopped. What it found is shown.</source>
        <translation>스캔이 중지되었습니다. 찾은 항목을 표시합니다.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln thing(s) could not be read, the first: %1</source>
        <translation>
            <numerusform>%Ln개 항목을 읽을 수 없습니다. 첫 번째: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>The sample card has not been made. Open a folder, a disk image or a device.</source>
        <translation>샘플 카드가 만들어지지 않았습니다. 폴더, 디스크 이미지 또는 장치를 여세요.</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Open disk image</source>
        <translation>디스크 이미지 열기</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) checked.</source>
        <translation>
            <numerusform>파일 %Ln개를 선택했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) unchecked.</source>
        <translation>
            <numerusform>파일 %Ln개의 선택을 해제했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln check(s) changed.</source>
        <translation>
            <numerusform>선택 %Ln개를 변경했습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The change was undone.</source>
        <translation>변경을 취소했습니다.</translation>
    </message>
    <message>
        <source>The change was made again.</source>
        <translation>변경을 다시 실행했습니다.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>취소할 작업이 없습니다.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>다시 실행할 작업이 없습니다.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
</context>
<context>
    <name>Media</name>
    <message>
        <source>There is no preview in the file.</source>
        <translation>파일에 미리 보기가 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough memory for this file.</source>
        <translation>이 파일에 필요한 메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>The picture is too large to be handed over.</source>
        <translation>사진이 너무 커서 전달할 수 없습니다.</translation>
    </message>
    <message>
        <source>There is no metadata in the file.</source>
        <translation>파일에 메타데이터가 없습니다.</translation>
    </message>
    <message>
        <source>The picture is broken or of an unknown kind.</source>
        <translation>사진이 손상되었거나 알 수 없는 형식입니다.</translation>
    </message>
    <message>
        <source>The picture does not say how large it is.</source>
        <translation>사진의 크기를 알 수 없습니다.</translation>
    </message>
    <message>
        <source>The picture is too large: %1 × %2.</source>
        <translation>사진이 너무 큽니다: %1 × %2.</translation>
    </message>
    <message>
        <source>There is not enough memory for a picture of %1 × %2.</source>
        <translation>%1 × %2 크기의 사진에 필요한 메모리가 부족합니다.</translation>
    </message>
    <message>
        <source>The video is broken: %1.</source>
        <translation>비디오가 손상되었습니다: %1.</translation>
    </message>
    <message>
        <source>There is no picture in the file.</source>
        <translation>파일에 사진이 없습니다.</translation>
    </message>
    <message>
        <source>The video is broken.</source>
        <translation>비디오가 손상되었습니다.</translation>
    </message>
    <message>
        <source>The video is broken or of an unknown kind: %1.</source>
        <translation>비디오가 손상되었거나 알 수 없는 형식입니다: %1.</translation>
    </message>
    <message>
        <source>No frame of the video can be decoded.</source>
        <translation>비디오 프레임을 디코딩할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>MediaHelper</name>
    <message>
        <source>The program quarvo-media is not beside this one: there are no thumbnails and no metadata.</source>
        <translation>이 프로그램 옆에 quarvo-media 프로그램이 없어 축소판과 메타데이터를 표시할 수 없습니다.</translation>
    </message>
    <message>
        <source>The program %1 cannot be started: %2</source>
        <translation>%1 프로그램을 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>The program %1 does not answer as it should.</source>
        <translation>%1 프로그램이 제대로 응답하지 않습니다.</translation>
    </message>
    <message>
        <source>it took too long</source>
        <translation>시간이 너무 오래 걸렸습니다</translation>
    </message>
    <message>
        <source>the decoder crashed</source>
        <translation>디코더가 비정상 종료되었습니다</translation>
    </message>
    <message>
        <source>the decoder lost its way</source>
        <translation>디코더가 제대로 작동하지 않았습니다</translation>
    </message>
</context>
<context>
    <name>MediaPool</name>
    <message>
        <source>The file is damaged.</source>
        <translation>파일이 손상되었습니다.</translation>
    </message>
    <message>
        <source>The file is damaged: %1.</source>
        <translation>파일이 손상되었습니다: %1.</translation>
    </message>
</context>
<context>
    <name>MessageBanner</name>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>MetadataReader</name>
    <message>
        <source>Such a file has no metadata that can be read.</source>
        <translation>이런 파일에는 읽을 수 있는 메타데이터가 없습니다.</translation>
    </message>
</context>
<context>
    <name>PictureViewer</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>이런 파일에는 사진이 없습니다.</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>불러오는 중…</translation>
    </message>
    <message>
        <source>This picture cannot be shown.
%1</source>
        <translation>이 사진을 표시할 수 없습니다.
%1</translation>
    </message>
    <message>
        <source>%1   %2 of %3</source>
        <translation>%1   %2 / %3</translation>
    </message>
    <message>
        <source>Previous picture</source>
        <translation>이전 사진</translation>
    </message>
    <message>
        <source>Next picture</source>
        <translation>다음 사진</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>There is no room left at %1.</source>
        <translation>%1에 남은 공간이 없습니다.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the file needs %2, %3 are free.</source>
        <translation>%1에 공간이 부족합니다: 파일에 %2이(가) 필요하지만 여유 공간은 %3입니다.</translation>
    </message>
    <message>
        <source>The file cannot be created: %1.</source>
        <translation>파일을 만들 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>내용이 %L2바이트 중 %L1바이트에서 끝납니다.</translation>
    </message>
    <message>
        <source>Writing failed: %1.</source>
        <translation>쓰기 실패: %1.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1은(는) 폴더가 아닙니다.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>%1 폴더를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Nothing can be written to %1: %2.</source>
        <translation>%1에 쓸 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The file %1 cannot be created: %2.</source>
        <translation>%1 파일을 만들 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Too many files have the name %1.</source>
        <translation>이름이 %1인 파일이 너무 많습니다.</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message numerus="yes">
        <source>%1 of %Ln file(s)</source>
        <translation>
            <numerusform>파일 %Ln개 중 %1개</numerusform>
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
            <numerusform>파일 %Ln개를 %1에 복구했습니다.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be recovered.</source>
        <translation>
            <numerusform>파일 %Ln개를 복구할 수 없습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>Progress of the recovery</source>
        <translation>복구 진행률</translation>
    </message>
    <message>
        <source>Files that could not be recovered</source>
        <translation>복구하지 못한 파일</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Recovery cancelled</source>
        <translation>복구가 취소됨</translation>
    </message>
    <message>
        <source>Recovery complete</source>
        <translation>복구 완료</translation>
    </message>
    <message>
        <source>Some files could not be recovered</source>
        <translation>일부 파일을 복구하지 못함</translation>
    </message>
    <message>
        <source>Recovering to %1</source>
        <translation>%1에 복구 중</translation>
    </message>
</context>
<context>
    <name>RecoveryFlow</name>
    <message>
        <source>Recover to</source>
        <translation>복구 위치</translation>
    </message>
    <message>
        <source>There is nothing to recover.</source>
        <translation>복구할 항목이 없습니다.</translation>
    </message>
</context>
<context>
    <name>ScanSource</name>
    <message>
        <source>cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>a read past the end</source>
        <translation>끝을 넘어선 읽기</translation>
    </message>
    <message>
        <source>the medium ends too early</source>
        <translation>미디어가 너무 일찍 끝남</translation>
    </message>
    <message>
        <source>%1 is neither a folder nor a disk image nor a disk.</source>
        <translation>%1은(는) 폴더, 디스크 이미지, 디스크 중 어느 것도 아닙니다.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1을(를) 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1은(는) 비어 있습니다.</translation>
    </message>
    <message>
        <source>%1 is too small to be a disk image.</source>
        <translation>%1은(는) 디스크 이미지로 보기에는 너무 작습니다.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The card cannot be read any more.</source>
        <translation>카드를 더 이상 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The file&apos;s record cannot be read.</source>
        <translation>파일의 레코드를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The card cannot be read: %1.</source>
        <translation>카드를 읽을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>The file&apos;s record has changed since the scan.</source>
        <translation>스캔 후 파일의 레코드가 변경되었습니다.</translation>
    </message>
    <message>
        <source>The contents end at byte %L1 of %L2.</source>
        <translation>내용이 %L2바이트 중 %L1바이트에서 끝납니다.</translation>
    </message>
    <message>
        <source>The card cannot be read at byte %L1 of the file: %2.</source>
        <translation>파일의 %L1바이트에서 카드를 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>Another deleted file was in the same place; which of the two is still there is not known.</source>
        <translation>같은 자리에 삭제된 다른 파일이 있었습니다. 둘 중 어느 것이 남아 있는지 알 수 없습니다.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by another file.</source>
        <translation>내용의 일부를 다른 파일이 덮어썼습니다.</translation>
    </message>
    <message>
        <source>A part of the contents has been overwritten by the newer file %1.</source>
        <translation>내용의 일부를 더 새로운 파일 %1이(가) 덮어썼습니다.</translation>
    </message>
    <message>
        <source>The list of the file&apos;s places on the card is broken.</source>
        <translation>카드에 있는 파일 위치 목록이 손상되었습니다.</translation>
    </message>
    <message>
        <source>The contents lie past the end of the card.</source>
        <translation>내용이 카드 끝을 벗어나 있습니다.</translation>
    </message>
    <message>
        <source>The card no longer says where the contents are.</source>
        <translation>내용의 위치가 카드에 남아 있지 않습니다.</translation>
    </message>
    <message>
        <source>The card no longer says how long the file was and where its contents are.</source>
        <translation>파일의 길이와 내용의 위치가 카드에 남아 있지 않습니다.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>파일을 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be read: %2.</source>
        <translation>%1 폴더를 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>The folder %1 could not be read whole: %2.</source>
        <translation>%1 폴더 전체를 읽을 수 없습니다: %2.</translation>
    </message>
    <message>
        <source>%1 went away during the scan.</source>
        <translation>스캔 중에 %1이(가) 사라졌습니다.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>파일이 더 이상 없습니다.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>파일을 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>파일을 열 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>%1 holds no file system that can be read (FAT, exFAT, NTFS or ext).</source>
        <translation>%1에 읽을 수 있는 파일 시스템(FAT, exFAT, NTFS 또는 ext)이 없습니다.</translation>
    </message>
    <message>
        <source>Deleted files without a folder</source>
        <translation>폴더 없는 삭제된 파일</translation>
    </message>
    <message>
        <source>Volume %1 could not be opened.</source>
        <translation>볼륨 %1을(를) 열 수 없습니다.</translation>
    </message>
    <message>
        <source>The card ends before its file system does; files may be cut off.</source>
        <translation>카드가 파일 시스템보다 먼저 끝납니다. 파일이 잘렸을 수 있습니다.</translation>
    </message>
    <message>
        <source>The card&apos;s top folder cannot be read.</source>
        <translation>카드의 최상위 폴더를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The card could not be read everywhere: %1.</source>
        <translation>카드를 모두 읽을 수 없습니다: %1.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1이(가) 없습니다.</translation>
    </message>
    <message>
        <source>Volume %1</source>
        <translation>볼륨 %1</translation>
    </message>
    <message>
        <source>Volume %1 (%2)</source>
        <translation>볼륨 %1(%2)</translation>
    </message>
    <message>
        <source>The folder /%1 could not be read.</source>
        <translation>/%1 폴더를 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>The folder /%1 lies too deep and was not read.</source>
        <translation>/%1 폴더는 너무 깊어서 읽지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>“%1” is empty.</source>
        <translation>‘%1’은(는) 비어 있습니다.</translation>
    </message>
</context>
<context>
    <name>SidePanel</name>
    <message>
        <source>Card</source>
        <translation>카드</translation>
    </message>
    <message>
        <source>By kind</source>
        <translation>종류별</translation>
    </message>
    <message>
        <source>By place</source>
        <translation>위치별</translation>
    </message>
    <message>
        <source>Where to look</source>
        <translation>찾을 위치</translation>
    </message>
</context>
<context>
    <name>TargetCheck</name>
    <message>
        <source>%1 is on the card that is being recovered. Writing there could destroy what is still to be recovered. Choose a folder on another disk.</source>
        <translation>%1은(는) 복구 중인 카드에 있습니다. 그곳에 쓰면 아직 복구할 수 있는 내용이 손상될 수 있습니다. 다른 디스크의 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>%1 lies in the folder that was scanned. Choose a folder outside it.</source>
        <translation>%1은(는) 스캔한 폴더 안에 있습니다. 그 밖의 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>%1 is the disk image that was scanned, not a folder. Choose a folder.</source>
        <translation>%1은(는) 스캔한 디스크 이미지이며 폴더가 아닙니다. 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>There is not enough room at %1: the files need %2, only %3 are free. Choose another folder or check fewer files.</source>
        <translation>%1에 공간이 부족합니다: 파일에 %2이(가) 필요하지만 여유 공간은 %3뿐입니다. 다른 폴더를 선택하거나 파일을 더 적게 선택하세요.</translation>
    </message>
</context>
<context>
    <name>Texts</name>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>파일 %Ln개</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln folder(s)</source>
        <translation>
            <numerusform>폴더 %Ln개</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>There is no picture in such a file.</source>
        <translation>이런 파일에는 사진이 없습니다.</translation>
    </message>
</context>
<context>
    <name>TopBar</name>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Open folder…</source>
        <translation>폴더 열기…</translation>
    </message>
    <message>
        <source>Open disk image…</source>
        <translation>디스크 이미지 열기…</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>다시 스캔</translation>
    </message>
    <message>
        <source>Stop scanning</source>
        <translation>스캔 중지</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>이름으로 검색</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>축소판</translation>
    </message>
    <message>
        <source>List with details</source>
        <translation>세부 정보 목록</translation>
    </message>
    <message>
        <source>List</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>밝게 또는 어둡게</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>열기…</translation>
    </message>
    <message>
        <source>Source: %1</source>
        <translation>소스: %1</translation>
    </message>
    <message>
        <source>Search by description</source>
        <translation>설명으로 검색</translation>
    </message>
</context>
</TS>
