<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Left</source>
            <translation>왼쪽</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>오른쪽</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Letter / ANSI A</source>
            <translation>레터/ANSI A</translation>
        </message>
        <message>
            <source>Legal</source>
            <translation>리갈</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>우편 봉투 Monarch</translation>
        </message>
        <message>
            <source>Letter Extra</source>
            <translation>레터 Extra</translation>
        </message>
        <message>
            <source>Letter Small</source>
            <translation>레터 Small</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>우편 봉투 You 4</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>우편 봉투 US 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>우편 봉투 US 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>우편 봉투 US 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>우편 봉투 US 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>우편 봉투 PRC 1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>우편 봉투 PRC 2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>우편 봉투 PRC 3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>우편 봉투 PRC 4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>우편 봉투 PRC 5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>우편 봉투 PRC 6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>우편 봉투 PRC 7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>우편 봉투 PRC 8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>우편 봉투 PRC 9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>우편 봉투 C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>우편 봉투 DL</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>우편 봉투 B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>우편 봉투 B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>우편 봉투 B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>우편 봉투 C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>우편 봉투 C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>우편 봉투 C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>우편 봉투 C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>우편 봉투 C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>우편 봉투 C5</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>우편 봉투 C6</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>우편 봉투 C7</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>Executive(7.5 x 10 in)</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>사용자 정의</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>Executive(7.25 x 10.5 in)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>우편 엽서</translation>
        </message>
        <message>
            <source>Tabloid / ANSI B</source>
            <translation>타블로이드/ANSI B</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>우편 봉투 Invite</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>우편 봉투 Chou 3</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>우편 봉투 Chou 4</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>Fan-fold 독일(8.5 x 12 in)</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>우편 봉투 PRC 10</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>우편 봉투 Kaku 2</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>우편 봉투 Kaku 3</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>우편 봉투 US 9</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>Fan-fold 미국(14.875 x 11 in)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>Fan-fold 독일 리갈(8.5 x 13 in)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>사용자 정의(%1in x %2in)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>사용자 정의(%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>사용자 정의(%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>사용자 정의(%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>사용자 정의(%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>사용자 정의(%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Letter Plus</source>
            <translation>레터 Plus</translation>
        </message>
        <message>
            <source>Tabloid Extra</source>
            <translation>타블로이드 Extra</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>우편 봉투 Italian</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>2배 크기 우편 엽서</translation>
        </message>
        <message>
            <source>Legal Extra</source>
            <translation>리갈 Extra</translation>
        </message>
        <message>
            <source>Folio (8.27 x 13 in)</source>
            <translation>폴리오(8.27 x 13 in)</translation>
        </message>
        <message>
            <source>Ledger / ANSI B</source>
            <translation>레저/ANSI B</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>우편 봉투 Personal</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>Form</source>
            <translation>폼</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>아래쪽 여백</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>종이</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>종이 공급:</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>오른쪽 여백</translation>
        </message>
        <message>
            <source>Pica (P̸)</source>
            <translation>피카(P̸)</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>여백</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>사용자 정의</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>가로</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>쪽 레이아웃</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>너비:</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>방향</translation>
        </message>
        <message>
            <source>Didot (DD)</source>
            <translation>디도(DD)</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>세로</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>쪽 순서:</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>위쪽 여백</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>왼쪽 여백</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>쪽 크기:</translation>
        </message>
        <message>
            <source>Cicero (CC)</source>
            <translation>키케로(CC)</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>뒤집은 세로</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>밀리미터(mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>포인트(pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>장당 쪽 수:</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>인치(in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>뒤집은 가로</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>높이:</translation>
        </message>
    </context>
    <context>
        <name>QDialogButtonBox</name>
        <message>
            <source>OK</source>
            <translation>확인</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>OK</source>
            <translation>확인</translation>
        </message>
        <message>
            <source>&amp;No</source>
            <translation>아니요(&amp;N)</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>예(&amp;Y)</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>도움말</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>열기</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>저장</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>중단</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>적용</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>닫기</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>초기화</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>다시 시도</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>기본값 복원</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>취소</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>무시</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>모두 아니요(&amp;O)</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>모두 저장</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>무시</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>모두 예(&amp;A)</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>OK</source>
            <translation>확인</translation>
        </message>
        <message>
            <source>Even Pages</source>
            <translation>짝수 쪽</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>인쇄</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>설정(&amp;O) &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>설정(&amp;O) &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>왼쪽에서 오른쪽으로, 위에서 아래로</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>오른쪽에서 왼쪽으로, 아래에서 위로</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>PDF 파일 작성</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>인쇄(&amp;P)</translation>
        </message>
        <message>
            <source>1 (1x1)</source>
            <translation>1(1x1)</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>'장당 쪽 수' 옵션과 '쪽 집합' 설정을 같이 사용할 수 없습니다.
둘 중 하나의 옵션을 끄십시오.</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1이(가) 이미 존재합니다.
덮어쓰시겠습니까?</translation>
        </message>
        <message>
            <source>2 (2x1)</source>
            <translation>2(2x1)</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>왼쪽에서 오른쪽으로, 아래에서 위로</translation>
        </message>
        <message>
            <source>4 (2x2)</source>
            <translation>4(2x2)</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>홀수 쪽</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>로컬 파일</translation>
        </message>
        <message>
            <source>6 (2x3)</source>
            <translation>6(2x3)</translation>
        </message>
        <message>
            <source>16 (4x4)</source>
            <translation>16(4x4)</translation>
        </message>
        <message>
            <source>There are conflicts in duplex settings. Do you want to fix them?</source>
            <translation>양면 인쇄 설정이 충돌합니다. 해결하시겠습니까?</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>파일로 인쇄(PDF)</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>파일로 인쇄...</translation>
        </message>
        <message>
            <source>Invalid Pages Definition</source>
            <translation>잘못된 쪽 선언</translation>
        </message>
        <message>
            <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
            <translation>%1의 문법이 잘못되었습니다. ','를 사용하여 범위와 쪽을 구분하고, '-'를 사용하여 범위를 선언하고, 범위가 겹치지 않는지 확인하십시오.</translation>
        </message>
        <message>
            <source>9 (3x3)</source>
            <translation>9(3x3)</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>오른쪽에서 왼쪽으로, 위에서 아래로</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>아래에서 위로, 왼쪽에서 오른쪽으로</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>'시작' 값이 '끝' 값보다 클 수 없습니다.</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>모든 쪽</translation>
        </message>
        <message>
            <source>Duplex Settings Conflicts</source>
            <translation>양면 인쇄 설정 충돌</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1은(는) 디렉터리입니다.
다른 파일 이름을 선택하십시오.</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>파일 %1에 쓸 수 없습니다.
다른 파일 이름을 선택하십시오.</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>아래에서 위로, 오른쪽에서 왼쪽으로</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>위에서 아래로, 왼쪽에서 오른쪽으로</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>위에서 아래로, 오른쪽에서 왼쪽으로</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>끝 쪽</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>끔</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>폼</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>색상</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>모두 인쇄</translation>
        </message>
        <message>
            <source>Pages</source>
            <translation>쪽</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>현재 쪽</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>선택</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>복사 부수</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>인쇄 범위</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>색 모드</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>옵션</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>출력 설정</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>역순 인쇄</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>회색조</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>한 부씩 인쇄</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>복사 부수:</translation>
        </message>
        <message>
            <source>Short side binding</source>
            <translation>짧은 쪽으로 제본</translation>
        </message>
        <message>
            <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
            <translation>쪽이나 범위를 쉼표로 구분하여 입력하십시오. 범위는 두 개의 숫자를 줄표로 구분하여 입력하십시오. 예: 3,5-7,9를 입력하면 3, 5, 6, 7, 9쪽을 인쇄합니다.</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>시작 쪽</translation>
        </message>
        <message>
            <source>Double Sided Printing</source>
            <translation>양면 인쇄</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>쪽 집합:</translation>
        </message>
        <message>
            <source>Long side binding</source>
            <translation>긴 쪽으로 제본</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;OK</source>
            <translation>확인(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>저장(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>닫기(&amp;C)</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>저장하지 않고 닫기</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>취소(&amp;C)</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>폼</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>종류:</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>이름(&amp;N):</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>출력 파일(&amp;F):</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>속성(&amp;R)</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>미리 보기</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>프린터</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>위치:</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>작업</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>끝:</translation>
        </message>
        <message>
            <source>None</source>
            <translation>없음</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>배너 페이지</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>야간(18:00-05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>지정한 시간</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>지불 정보:</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>예약 인쇄:</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>비밀</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>일급 비밀</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>시작:</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>주간(06:00-17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>저녁(16:00-23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>작업 제어</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>주말(토, 일요일)</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>표준</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>기밀</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>심야(00:00-07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>영구 중단</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>즉시 시작</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>인가자 전용</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>작업 우선 순위:</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>기밀 해제됨</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>맨 위</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>아래로 스크롤</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>여기로 스크롤</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>왼쪽으로 스크롤</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>맨 아래</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>한 쪽 위</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>한 쪽 오른쪽</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>위로 스크롤</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>오른쪽으로 스크롤</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>왼쪽 경계</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>한 쪽 아래</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>한 쪽 왼쪽</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>오른쪽 경계</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>뒤로</translation>
        </message>
        <message>
            <source>File</source>
            <translation>파일</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>열기</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>열기(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>저장(&amp;S)</translation>
        </message>
        <message>
            <source>Alias</source>
            <translation>별명</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>드라이브</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>파일</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>표시 </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>'%1'이(가) 쓰기 금지되어 있습니다.
그래도 삭제하시겠습니까?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>'%1'을(를) 삭제하시겠습니까?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>장소와 책갈피 목록</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>파일 이름(&amp;N):</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>파일 폴더</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>삭제</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>새 폴더</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>폴더</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>부모 디렉터리</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>새 폴더(&amp;N)</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>삭제</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>내 컴퓨터</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>다음에서 찾기:</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>새 폴더 만들기</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>%1 파일</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>파일 형식:</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>디렉터리 찾기</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>숨김 파일 표시(&amp;H)</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>다른 이름으로 저장</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
디렉터리를 찾을 수 없습니다.
경로와 파일 이름을 확인하십시오.</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>사이드바</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>목록으로 보기</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>선택(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>삭제(&amp;D)</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>모든 파일 (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>모든 파일 (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>디렉터리</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>이름 바꾸기(&amp;R)</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>디렉터리를 삭제할 수 없습니다.</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>디렉터리:</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>알 수 없음</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>%1이(가) 이미 존재합니다.
바꾸시겠습니까?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>앞으로</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>앞으로 이동</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>부모 디렉터리로 이동</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>최근 장소</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>뒤로 이동</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>자세히 보기 모드로 전환</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>새 폴더 만들기</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>바로 가기</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>자세히 보기</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
파일을 찾을 수 없습니다.
경로와 파일 이름을 확인하십시오.</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>목록 보기 모드로 전환</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>잘라내기(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>복사(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>다시 실행(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>실행 취소(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>붙여넣기(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>삭제</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>모두 선택</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>잘라내기(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>복사(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>다시 실행(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>실행 취소(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>붙여넣기(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>삭제</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>모두 선택</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>링크 주소 복사(&amp;L)</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>폼</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>쪽</translation>
        </message>
        <message>
            <source>There are conflicts in some options. Please fix them.</source>
            <translation>일부 설정이 충돌합니다. 해결하십시오.</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>고급</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>형식</translation>
        </message>
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
            <translation>형식</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>내 컴퓨터</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>컴퓨터</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>잘못된 파일 이름</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
            <translation>&lt;b&gt;"%1" 이름을 사용할 수 없습니다.&lt;/b&gt;&lt;p&gt;다른 이름을 사용하거나, 글자 수를 줄이거나, 구두점을 사용하지 마십시오.</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>수정한 날짜</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>참</translation>
        </message>
        <message>
            <source>False</source>
            <translation>거짓</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>콤보 상자 선택 팝업 열기</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Advanced Option Conflicts</source>
            <translation>고급 설정 충돌</translation>
        </message>
        <message>
            <source>Job Options</source>
            <translation>작업 설정</translation>
        </message>
        <message>
            <source>Page Setup Conflicts</source>
            <translation>쪽 설정 충돌</translation>
        </message>
        <message>
            <source>There are conflicts in some advanced options. Do you want to fix them?</source>
            <translation>고급 설정이 충돌합니다. 해결하시겠습니까?</translation>
        </message>
        <message>
            <source>There are conflicts in page setup options. Do you want to fix them?</source>
            <translation>쪽 설정이 충돌합니다. 해결하시겠습니까?</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>프린터 속성</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>이것에 대한 설명</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Show Details...</source>
            <translation>자세한 정보 표시...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>자세한 정보 숨기기...</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>RLE Start of right-to-left embedding</source>
            <translation>RLE 오른쪽에서 왼쪽 임베딩 시작</translation>
        </message>
        <message>
            <source>ZWSP Zero width space</source>
            <translation>ZWSP 폭이 0인 공백</translation>
        </message>
        <message>
            <source>LRI Left-to-right isolate</source>
            <translation>LRI 왼쪽에서 오른쪽 격리</translation>
        </message>
        <message>
            <source>Insert Unicode control character</source>
            <translation>유니코드 제어 문자 삽입</translation>
        </message>
        <message>
            <source>LRO Start of left-to-right override</source>
            <translation>LRO 왼쪽에서 오른쪽 재정의 시작</translation>
        </message>
        <message>
            <source>LRE Start of left-to-right embedding</source>
            <translation>LRE 왼쪽에서 오른쪽 임베딩 시작</translation>
        </message>
        <message>
            <source>RLI Right-to-left isolate</source>
            <translation>RLI 오른쪽에서 왼쪽 격리</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM 오른쪽에서 왼쪽 기호</translation>
        </message>
        <message>
            <source>PDF Pop directional formatting</source>
            <translation>PDF Pop 방향 포매팅</translation>
        </message>
        <message>
            <source>ZWNJ Zero width non-joiner</source>
            <translation>ZWNJ 폭이 0인 비결합자</translation>
        </message>
        <message>
            <source>RLO Start of right-to-left override</source>
            <translation>RLO 오른쪽에서 왼쪽 재정의 시작</translation>
        </message>
        <message>
            <source>PDI Pop directional isolate</source>
            <translation>PDI 방향 격리 끝</translation>
        </message>
        <message>
            <source>ZWJ Zero width joiner</source>
            <translation>ZWJ 폭이 0인 결합자</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM 왼쪽에서 오른쪽 기호</translation>
        </message>
        <message>
            <source>FSI First strong isolate</source>
            <translation>FSI 첫 대문자 격리</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>한 단계 아래로(&amp;D)</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>한 단계 위로(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>모두 선택(&amp;S)</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>왼쪽으로 스크롤</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>오른쪽으로 스크롤</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>탭 닫기</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>실행 파일 '%1'은(는) Qt %2을(를) 필요로 하지만 현재 Qt %3이(가) 설치되어 있습니다.</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Qt 라이브러리 호환성 오류</translation>
        </message>
    </context>
</TS>
