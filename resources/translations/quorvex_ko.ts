<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>메모리 할당에 실패했습니다</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, 불가능한 크기</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>기록에는 %1바이트로 되어 있으나 어떤 파일도 그럴 수 없습니다.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>합계에 포함된 불가능한 크기: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>소거 증명서 - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 PDF 내보내기</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ 인쇄</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>증명서 내보내기</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF 파일 (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>내보내기 완료</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>증명서를 내보냈습니다:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>내보내기 실패</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>증명서를 내보낼 수 없습니다. 파일 경로의 권한을 확인하십시오.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>증명서 인쇄</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>작업 요약</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>작업 유형</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>소거 표준</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>덮어쓰기 횟수</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>시작 시간</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>종료 시간</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>소요 시간</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>저장 장치</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>인터페이스</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>소거 세부 정보</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>처리된 파일 수</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>전체 섹터</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>소거된 섹터</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>쓰기 데이터량</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>불량 섹터</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>검증</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>통과 ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>미통과 ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>샘플 수</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>데이터 해시</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>작업자 정보</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>작업자</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>데이터 소거 증명서</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>안전한 데이터 소거에 대한 규정 준수 기록</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>증명서 번호:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>생성 시간:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>고지: 본 증명서는 위의 저장 장치나 파일이 지정된 데이터 소거 표준에 따라 안전하게 소거되었음을 증명합니다. 소거 절차는 관련 데이터 보호 법규를 준수합니다. 본 증명서는 Quorvex에서 자동 생성되었으며 데이터 파기의 규정 준수 기록으로 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>매체에 기록됨</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>다시 읽지 않음</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>비교할 수 있는 내용 없음</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>다시 읽기</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>CertificateNumber</name>
    <message>
        <source>All certificate numbers of this day are taken.</source>
        <translation>오늘의 인증서 번호가 모두 사용되었습니다.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>작업 요약</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>작업 유형</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>소거 표준</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>덮어쓰기 횟수</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> 회</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>시작 시간</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>종료 시간</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>소요 시간</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>저장 장치 정보</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>일련번호</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>용량</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>유형</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>인터페이스</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>소거 세부 정보</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>파일 수</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> 개</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>전체 섹터</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>소거된 섹터</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>쓰기 데이터량</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>불량 섹터</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>검증 정보</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>검증 결과:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>미통과</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>샘플 수</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> 곳</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>데이터 해시</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>작업자 정보</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>작업자</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>데이터 소거 증명서</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>증명서 번호: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>생성 시간: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>고지: 본 증명서는 위의 저장 장치나 파일이 지정된 데이터 소거 표준에 따라 안전하게 소거되었음을 증명합니다. 소거 절차는 관련 데이터 보호 법규를 준수합니다. 본 증명서는 Quorvex에서 자동 생성되었으며 데이터 파기의 규정 준수 기록으로 사용할 수 있습니다.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>전문 데이터 소거 도구</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>실제 처리: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>다시 읽지 않음</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>다시 읽은 내용을 비교할 수 없음</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(전체 내용은 이 프로그램의 기록에 있음)</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>this program was built without certificates</source>
        <translation>이 프로그램은 증명서 기능 없이 빌드되었습니다</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>명령이 지정되지 않았습니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; 명령이 완전하지 않습니다</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>알 수 없는 명령입니다: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; 명령에는 %2 인수가 필요합니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%2&apos; 명령의 인수가 너무 많습니다: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (%2 참조)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>파일이 아닙니다: %1</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 파일을 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>보고서로 보기에는 파일이 너무 큽니다: %1</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>필드는 같지만 바이트 위치 %1부터 텍스트가 다릅니다</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>처음으로 다른 필드는 %1입니다 (기록: %2, 파일: %3)</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>불일치: %1 파일은 보고서가 아닙니다</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>불일치: 데이터베이스에 %1 기록이 없습니다</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>일치: %1 파일은 %2 기록과 같습니다</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>불일치: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>모두 0: %2의 %1바이트가 모두 0x00입니다</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>0이 아님: %2의 바이트 위치 %1 값은 %3입니다</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>빈 경로가 지정되었습니다</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>내보낸 보고서를 기록과 비교하거나 남아 있는 데이터를 찾습니다</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE은 JSON 형식의 보고서입니다. --zeros를 사용하는 경우에는 읽기만 하는 이미지 파일 또는 드라이브입니다.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>FILE을 끝까지 읽고 모든 바이트가 0x00인지 표시</translation>
    </message>
    <message>
        <source>system</source>
        <translation>시스템</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>이동식</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>드라이브를 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>드라이브</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>모델</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>일련번호</translation>
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
        <source>Bus</source>
        <translation>버스</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>장치</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>플래그</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, 시스템</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>드라이브와 볼륨을 나열합니다</translation>
    </message>
    <message>
        <source>random</source>
        <translation>난수</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>보수</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (검증)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, 등급 %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>소거 표준과 덮어쓰기 패턴을 나열합니다</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>보고서 %1을(를) 삭제하지 못했습니다</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>보고서 %1을(를) 삭제했습니다.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>데이터베이스에서 보고서 하나를 삭제합니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; 명령에는 --pdf 또는 --json-file 옵션이 필요합니다</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>%1에 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>보고서 하나를 증명서, JSON 또는 둘 다로 내보냅니다</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>JSON은 저장된 텍스트와 바이트 단위까지 같으므로 &apos;quorvex-cli check&apos;로 비교할 수 있습니다.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>증명서를 이 파일 또는 폴더에 PDF로 저장</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>보고서를 JSON으로 저장 (-는 표준 출력)</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>손상됨</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>보고서가 없습니다.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>증명서</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>시작 시간</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>소거 방식</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 옵션에는 숫자(%2)를 지정하십시오: &apos;%3&apos; 값은 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 이상</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>저장된 보고서를 최신순으로 나열합니다</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>나열할 보고서 수 (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>건너뛸 최신 보고서 수 (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>보고서 하나를 표시합니다</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>&apos;wipe trash&apos;의 소거 대상을 나열합니다</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>드라이브 전체를 소거합니다</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE는 &apos;quorvex-cli disks&apos;에 표시되는 번호 또는 장치 경로입니다. 시스템 디스크는 거부됩니다.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 외 %2개</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>파일 1개</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>파일 %1개</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>파일, 그리고 폴더와 그 안의 모든 내용을 소거합니다</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>링크는 링크 자체만 제거하며 링크 대상은 건드리지 않습니다. 하이픈으로 시작하는 경로 앞에는 --를 넣으십시오.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  다음 여유 공간:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  기존 파일은 유지됩니다</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report 옵션에는 여러 볼륨이 아닌 한 볼륨의 보고서만 지정할 수 있습니다</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>볼륨이 여러 개이면 --pdf 옵션에 폴더를 지정하십시오</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>볼륨의 여유 공간을 소거합니다</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME은 드라이브 문자, 마운트 지점 또는 드라이브 번호(해당 드라이브의 모든 볼륨)입니다.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>휴지통이 비어 있습니다.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>소거한 항목의 이름이 휴지통의 폴더 목록에 아직 남아 있습니다 (오류 %1)</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>휴지통</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>현재 사용자의 휴지통에 있는 모든 항목을 소거합니다</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>Windows의 휴지통과 다른 데스크톱 환경의 휴지통(Trash)이 대상입니다.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>다음 데이터를 영구적으로 파기합니다:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>확인되지 않음: 표준 입력이 터미널이 아닙니다. --yes를 사용하면 확인을 건너뜁니다</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>파기하려면 %1 단어를 입력하십시오:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>취소되었습니다. 아무것도 쓰지 않았습니다</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>확인되지 않았습니다. 아무것도 쓰지 않았습니다</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>드라이브가 없습니다: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1은(는) 드라이브 %2의 일부입니다. 드라이브 전체를 지정하십시오</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>드라이브 %1은(는) 시스템 디스크이므로 사용 중에는 소거할 수 없습니다</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>드라이브 %1에 대한 쓰기 권한이 없습니다</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>드라이브 %1이(가) 제거되었거나 다른 드라이브로 바뀌었습니다</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1은(는) 파일이나 폴더가 아닙니다. 드라이브는 &apos;wipe disk&apos;로 소거합니다</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 경로는 링크를 거쳐 상위로 돌아갑니다. &quot;..&quot; 없이 경로를 지정하십시오</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>%1을(를) 확인할 수 없습니다 (오류 %2)</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1은(는) 볼륨의 루트입니다. 그 안에서 소거할 대상을 지정하십시오</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>기계용 출력: 한 줄에 JSON 값 하나</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>데이터베이스와 로그를 사용자별 폴더 대신 이 폴더에 보관</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>이 이미지 파일을 드라이브로 취급 (반복 지정 가능)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>실제 드라이브를 나열하지도 열지도 않음</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>오류와 마지막 줄만 출력</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>이 도움말 표시</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>버전 표시</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>이미지 파일이 없습니다: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>사용법: quorvex-cli [옵션...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>예:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>옵션:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>모든 명령의 공통 옵션:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>완료, 요청한 작업이 모두 수행됨</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>작업이 실행되었으나 전체 또는 일부가 실패함</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>명령줄이 잘못됨</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>쓰기를 시작하기 전에 거부됨</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>취소됨 (Ctrl+C), 작업이 문제없이 중지됨</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>보고서 또는 기타 출력을 쓰지 못함</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>종료 코드:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>명령</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>데이터를 복구할 수 없도록 파기하고 이를 증명합니다.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>명령:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>명령별 도움말도 있습니다: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>데이터 폴더 %1을(를) 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; 경로가 소거 대상 안에 있습니다</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>%1의 보고서 데이터베이스가 소거 대상 안에 있습니다. --data-dir로 다른 폴더를 지정하거나 --no-report로 데이터베이스 없이 실행하십시오</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>보고서 %1을(를) 데이터베이스에 저장하지 못했습니다: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>보고서 파일 %1에 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>증명서 %1에 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>알 수 없는 언어입니다: &apos;%1&apos; (사용 가능: %2)</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>언어 %1의 번역 카탈로그를 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>덮어쓰기 1회</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>덮어쓰기 %1회</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; 값은 파일 이름으로 사용할 수 없습니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; 경로는 파일이 아니라 폴더입니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; 경로가 이미 있으며 일반 파일이 아닙니다</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>&apos;%1&apos; 파일의 폴더가 없습니다</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>덮어쓰기 %1/%2회차</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 남음</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>%1의 보고서 데이터베이스를 사용할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>보고서 데이터베이스를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>보고서 %1이(가) 없습니다</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>저장된 보고서 %1이(가) 손상되었습니다</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>파일 수</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>섹터</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>소거된 섹터</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>불량 섹터</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>검증</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>통과</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>미통과</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>다시 읽기</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>샘플 수</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>해시</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>종료 시간</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>소요 시간</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>쓰기 데이터량</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>작업자</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>컴퓨터</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>출력을 쓰지 못했습니다</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[오류]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[경고]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[정보]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>쓰기 %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4, 소요 시간 %5, 증명서 %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, 보고서 %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root 값이 비어 있습니다</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>폴더가 아닙니다: %1</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>이 폴더를 드라이브로 보고 그 아래의 Windows 휴지통을 검색 (반복 지정 가능)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>--root와 함께 사용: 이 보안 식별자를 가진 사용자의 휴지통만</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid 값이 비어 있습니다</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid 옵션에는 --root 옵션이 필요합니다</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>시스템에서 현재 사용자를 확인할 수 없습니다</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>항목 1개</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>항목 %1개</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>폴더, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, 기록만 남아 있음</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>드라이브 %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>볼륨이 없습니다: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>%1~%2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>알 수 없는 소거 방식입니다: &apos;%1&apos; (&apos;quorvex-cli methods&apos;로 목록 확인)</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>소거 표준의 이름 또는 번호 (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>쓴 데이터를 다시 읽지 않음</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>드라이브에서 다시 읽을 샘플 수 (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>동시에 소거할 파일 수, 1~32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>쓰기 버퍼(MiB), 1~1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>보고서를 이 파일에 JSON으로 저장</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>보고서를 데이터베이스에 저장하지 않음</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>성공하면 증명서를 이 파일 또는 폴더에 PDF로 저장</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>ERASE 입력을 요구하지 않음</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>다시 읽어 검증함</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>다시 읽어 검증하지 않음</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  소거 방식 %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>%1의 바이트 위치 %2에서 읽을 수 없습니다 (오류 %3)</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>%1에 대한 읽기 권한이 없습니다</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>%1을(를) 열 수 없습니다 (오류 %2)</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>폴더입니다: %1</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>%1에 있는 프로그램 로그가 삭제 대상에 포함되어 있습니다. --data-dir로 다른 폴더를 지정할 수 있습니다</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>일부 완료</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1은(는) 비어 있어 확인할 것이 없습니다</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>결과</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>드라이브가 아닌 장치</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1은(는) 읽기 전용입니다</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>드라이브 %1은(는) 읽기 전용입니다</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>볼륨 %1은(는) 드라이브 %2 외에 다음에도 걸쳐 있습니다: %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>드라이브 %1을(를) %2에서 점유하고 있습니다</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>점유를 해제하려면: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>미비 사항</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>참고</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>모두 완료</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>일부 완료</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>알 수 없는 미비 사항 종류입니다: &apos;%1&apos; (사용 가능: %2)</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>이 종류의 미비 사항을 실패로 보지 않음 (반복 지정 가능)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>마운트 해제된 상태로 남은 볼륨: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  일부는 소거되지 않습니다:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  드라이브 전체: 파티션 테이블과 볼륨 사이 및 볼륨 밖의 모든 영역</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  볼륨은 먼저 마운트 해제되며, 무언가 기록된 후에는 그 상태로 남습니다</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>마운트된 볼륨이 있는 드라이브는 그 볼륨만 삭제됩니다. --whole은 볼륨을 마운트 해제하고 드라이브의 모든 섹터를 삭제합니다.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>드라이브의 모든 볼륨을 마운트 해제하고 모든 섹터를 삭제</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>볼륨</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>매체에 기록됨</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>볼륨 %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir 값이 비어 있습니다</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>소거할 것이 없지만 모든 휴지통을 살펴보지는 않았습니다: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>%1의 휴지통이 없습니다</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>기록이 없는 항목 1개</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>기록이 없는 항목 %1개</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>그리고 %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1은(는) 링크이므로 따라가지 않습니다</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1은(는) 다른 사용자의 것이므로 그대로 둡니다</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>%1을(를) 살펴볼 수 없음, 오류 %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>--no-report를 사용하면 번호 없이 진행합니다.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos;이(가) 두 출력에 지정되었습니다</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos;이(가) 있으며 보고서가 아닙니다. --force로 교체합니다</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>--report가 보고서가 아닌 파일도 교체하도록 허용</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1. 관리자 권한으로 시도하십시오</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1. sudo로 시도하십시오</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>드라이브와 볼륨의 응답을 보여 줍니다(원격 지원용)</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>아무것도 쓰지 않습니다. 응답은 모든 언어에서 영어이며 일련번호와 경로가 들어 있습니다. 보내기 전에 살펴보십시오.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1의 휴지통</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>언어: %1 (기본값: 시스템 언어)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>소거 완료</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>소거 실패</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>소거 중 오류가 발생했습니다.
자세한 내용은 로그를 확인하십시오.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>선택한 모든 데이터가 안전하게 소거되었습니다.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>선택한 모든 데이터가 안전하게 소거되었습니다.
소거 증명서가 생성되었습니다.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>데이터 소거가 완료되었습니다!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>증명서: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>증명서 보기</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>마운트 해제된 상태로 남음: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>보고서가 저장되지 않았습니다. %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>소거 확인</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>확인하려면 &lt;b&gt;ERASE&lt;/b&gt;를 입력하십시오:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>경고: 되돌릴 수 없는 작업입니다</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>선택한 데이터가 영구적으로 소거되며 복구할 수 없습니다.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>디스크 전체 삭제
(그렇지 않으면 볼륨 밖의 모든 것이 남습니다)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>디스크 전체 삭제
(그렇지 않으면 볼륨 밖의 %1이(가) 남습니다)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>파티션 테이블을 포함한 모든 섹터를 덮어씁니다. 그 전에 디스크의 모든 볼륨이 마운트 해제됩니다.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>다음이 파기됩니다</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>디스크 및 파티션 소거</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>소거할 디스크 또는 파티션을 선택하십시오. 디스크를 펼치면 파티션이 표시됩니다.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 뒤로</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>다음 →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>디스크 및 파티션</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>디스크/파티션</translation>
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
        <source>Interface</source>
        <translation>인터페이스</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>여유 공간 소거</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>여유 공간을 안전하게 소거할 파티션을 선택하십시오.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>완전히 소거할 디스크 또는 파티션을 선택하십시오. 모든 데이터가 영구적으로 삭제됩니다.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ 시스템 디스크는 소거 대상으로 선택할 수 없습니다.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ 시스템 디스크의 여유 공간은 안전하게 소거할 수 있습니다. 기존 파일이나 시스템 작동에 영향을 주지 않습니다.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ 시스템 파티션은 소거 대상으로 선택할 수 없습니다.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ 시스템 파티션의 여유 공간은 안전하게 소거할 수 있습니다. 기존 파일이나 시스템 작동에 영향을 주지 않습니다.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 디스크 %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ 시스템 디스크</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>이동식</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>사용 가능</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 파티션 %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>여유 %1</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ 시스템</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ 부팅</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>디스크가 아닌 장치</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>디스크 %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>볼륨 %1은(는) 이 디스크 외에 %2에도 걸쳐 있습니다.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>이 디스크는 읽기 전용입니다.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>이 디스크를 점유하고 있는 대상: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>다음 명령으로 점유를 해제할 수 있습니다:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>메모리 할당에 실패했습니다</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>오류: 사용할 수 있는 디스크 또는 볼륨 핸들이 없습니다</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>디스크 핸들을 통해 소거하는 중...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>SetFilePointerEx 실패, 오류 코드: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>쓰기 오류, 위치: %1, 오류 코드: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>볼륨 핸들을 통해 소거하는 중...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>볼륨 크기 추정값 사용: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>볼륨 %1/%2 소거 중, 크기: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>볼륨 %1에서 %2 크기의 영역을 덮어쓰지 못했습니다</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>볼륨 %1 소거 완료, 쓰기 데이터량: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>쓴 바이트 수가 0입니다. 볼륨 끝에 도달했습니다</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>볼륨 경계에 도달했습니다. 다음 볼륨을 계속합니다...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>오류: 액세스가 거부되었습니다</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>오류: 디스크가 쓰기 금지 상태입니다</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>오류: 장치가 준비되지 않았습니다</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>오류: 디스크가 사용 중입니다</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>오류: 잠금이 충돌합니다</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>오류: I/O 장치 오류</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>쓰기 플러시 실패, 오류 코드: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>검증 중...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>검증 실패, 위치: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>검증 통과</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>경고: 볼륨을 찾을 수 없습니다. 파티션이 없는 디스크일 수 있습니다</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>디스크 %1의 볼륨을 찾는 중...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>볼륨 발견: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>잠가야 할 볼륨 %1개를 찾았습니다</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>볼륨 처리 중: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>볼륨 %1 열기 실패, 오류 코드: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>볼륨 %1 잠그는 중...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>볼륨 %1 잠금 성공</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>경고: 볼륨 %1 잠금 실패, 오류 코드: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>볼륨 %1 마운트 해제 중...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>볼륨 %1 마운트 해제 성공</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>경고: 볼륨 %1 마운트 해제 실패, 오류 코드: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>시스템 디스크는 소거할 수 없습니다</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>디스크 볼륨을 잠그는 중...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>디스크 볼륨을 잠글 수 없습니다. 이 디스크를 사용하는 프로그램을 모두 닫으십시오</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>디스크 볼륨을 잠그고 마운트를 해제했습니다</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>디스크 정보를 가져올 수 없습니다</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>디스크 소거가 완료되었습니다!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>소거가 취소되었습니다</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>디스크 소거를 시작합니다...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>대상 디스크: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>디스크 번호: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>일련번호: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>디스크를 여는 중...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>디스크를 열었습니다</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>디스크를 열 수 없습니다. 오류 코드: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>볼륨 핸들을 통해 소거합니다</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>디스크 크기: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>섹터 크기: %1바이트</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>전체 섹터: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>덮어쓰기 %1/%2회차 (패턴: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>덮어쓰기에 실패했습니다</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>난수</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>볼륨 %1이(가) 다시 마운트되어 아무것도 기록되지 않았습니다</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>디스크를 다시 온라인으로 전환할 수 없습니다. 오류 코드: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>다시 마운트됨: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>오류: 볼륨이 암호화되어 잠겨 있습니다(BitLocker). 잠금을 해제하거나 드라이브 전체를 지우십시오(--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>오류: 장치가 분리되었거나 미디어가 교체되었습니다</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>오류: 장치 또는 미디어 고장</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>소거할 파일 선택</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>버튼을 클릭하여 파일과 폴더를 추가하십시오</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 파일 추가</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 폴더 추가</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>모두 제거</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>클릭하여 파일을 추가하거나 여기로 파일을 끌어 놓으십시오</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 뒤로</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>다음 →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>소거할 파일 및 폴더</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>파일 선택</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>모든 파일 (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>제거 확인</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>추가한 파일을 목록에서 모두 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>항목 %1개 추가됨, 총 %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>항목 1개를 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>항목 %1개를 찾을 수 없습니다</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>파일 1개에 다른 이름이 있으며, 그 이름의 내용도 소거됩니다</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>파일 %1개에 다른 이름이 있으며, 그 이름의 내용도 소거됩니다</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>%1 같은 희소 파일은 덮어쓸 때 %2이(가) 더 필요하지만 남은 공간은 %3뿐입니다. 아무것도 쓰지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>메모리 할당에 실패했습니다</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>대상 파일을 검색하는 중...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>소거할 파일을 찾을 수 없습니다</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>사용자가 소거 작업을 취소했습니다</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>모든 파일을 소거했습니다! 처리된 파일: %1개</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>소거가 끝났지만 파일 %1개가 실패했습니다. 데이터가 안전하지 않을 수 있습니다!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>폴더를 읽을 수 없습니다: %1, 오류 코드: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>액세스할 수 없습니다: %1, 오류 코드: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>파일에 다른 하드 링크가 %1개 더 있습니다: %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>파일 %1개 소거 준비, 덮어쓰기 1회당 전체 크기 %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>모든 파일이 비어 있어 데이터 덮어쓰기를 건너뜁니다</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>덮어쓰기 %1/%2회차에서 실패한 파일이 있습니다. 실패한 파일 수: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>파일을 열 수 없습니다(WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>FlushFileBuffers 실패: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>SetFilePointerEx 실패: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>WriteFile 실패: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>검증 실패: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>안전한 삭제 및 메타데이터 정리를 수행하는 중...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>삭제 실패: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>폴더를 삭제할 수 없습니다: %1, 오류 코드: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>파일이 다른 파일로 바뀌어 그대로 둡니다: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>파일 %1개의 내용이 덮어쓰지 않은 다른 곳에도 남아 있을 수 있습니다</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>폴더 안에 다른 파일 시스템이 마운트되어 있어 그대로 둡니다: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>작업 중에 파일 %1개가 더 나타나 함께 삭제합니다</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>파일 내용이 이 컴퓨터에 없고 클라우드에만 있어 지울 수 없습니다: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>폴더 내용의 일부가 이 컴퓨터에 없고 클라우드에만 있어 지울 수 없습니다: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>파일 %1개가 클라우드 서비스와 동기화되며, 그곳에 사본과 이전 버전이 남아 있을 수 있습니다</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>파일 시스템 저널에서 파일 이름을 지우는 중...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>파일 시스템 저널에 파일 이름이 남아 있을 수 있습니다: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>볼륨을 더 이상 사용할 수 없습니다. 오류 코드: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>삭제한 채우기 파일의 공간이 확보되지 않아 덮어쓰기를 계속할 수 없습니다</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>메모리 할당에 실패했습니다</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>쓰기 데이터량: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>시스템 파티션이 감지되어 안전을 위해 1 GB의 공간을 남겨 둡니다</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>여유 공간을 모두 채웠습니다</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>채우기 파일을 만들 수 없습니다: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>쓰기 오류, 위치: %1, 오류 코드: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>여유 공간이 줄어들지 않습니다. 파일 시스템이 데이터를 압축하는 것일 수 있습니다</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>여유 공간 소거를 시작합니다...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>잘못된 대상입니다</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>대상 파티션: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>파티션 크기: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>파일 시스템: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>대상 디스크: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>디스크 크기: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>디스크에 파티션 테이블이 없습니다. 해당하는 볼륨을 찾는 중...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>해당 볼륨 발견: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>경고: 디스크에 사용할 수 있는 비시스템 파티션이 없습니다</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>파티션 %1개의 여유 공간을 소거합니다</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>사용할 수 있는 파티션이 없습니다</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== 파티션 %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>소거가 취소되었습니다</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>여유 공간 소거가 완료되었습니다!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>여유 공간을 채우지 못했습니다</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>여유 공간: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>소거할 여유 공간이 없습니다</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>이전에 중단되어 남은 임시 파일을 정리했습니다: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>임시 폴더를 만들 수 없습니다: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>덮어쓰기 %1/%2회차 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>패턴: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>패턴: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>패턴: 난수</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>패턴: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>패턴: 알 수 없음</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>파일 시스템의 잔여 데이터를 정리하는 중...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>파일 시스템의 잔여 데이터가 완전히 정리되지 않았습니다. 오류 코드: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>경고: 파일 시스템이 더 이상 데이터를 받지 않습니다. %1의 여유 공간이 채워지지 않았습니다</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>오류 코드: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>아무것도 기록되지 않았습니다.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>볼륨 %1은(는) 더 이상 선택한 볼륨이 아닙니다.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>다른 작업이 이 볼륨의 여유 공간을 삭제하고 있습니다. 해당 파일은 %1에 있습니다.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1은(는) 안전 예비 공간으로 남겨 두며 덮어쓰지 않습니다</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>증명서 보기</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>PDF 내보내기</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>모두 삭제</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>소거 기록</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>전체</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>소거 방식</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>보기</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[디스크] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[파티션] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[여유 공간] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[파일] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>파일 %1개</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>증명서 내보내기</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>PDF 파일 (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>내보내기 완료</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>증명서를 내보냈습니다: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>내보내기 실패</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>증명서 파일을 내보낼 수 없습니다</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>삭제 확인</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>이 소거 기록을 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>알림</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>삭제할 기록이 없습니다</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>삭제 확인</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>모든 소거 기록을 삭제하시겠습니까?

이 작업은 되돌릴 수 없습니다!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>삭제 완료</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>모든 기록이 삭제되었습니다</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>데이터를 영구적으로 파기하여 유출을 막습니다.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>디스크 소거</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>파티션과 부트 레코드를 포함하여 디스크의 모든 데이터를 완전히 소거합니다</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>여유 공간 소거</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>삭제된 파일의 잔여 데이터를 소거합니다</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>파일 소거</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>파일과 폴더를 영구적으로 소거합니다</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>휴지통 소거</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>휴지통에 있는 삭제된 파일을 소거합니다</translation>
    </message>
    <message>
        <source>DoD 5220.22-M</source>
        <translation>DoD 5220.22-M</translation>
    </message>
    <message>
        <source>NIST 800-88</source>
        <translation>NIST 800-88</translation>
    </message>
    <message>
        <source>Gutmann 35-Pass</source>
        <translation>Gutmann 35회</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>이전 작업이 아직 끝나는 중입니다.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>지우기 작업이 진행 중입니다.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>이 작업 동안 시스템의 절전을 막지 못했습니다. 오류 %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>구성 오류</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>페이지 링크를 불러올 수 없습니다.

기술 지원에 문의하거나 소프트웨어를 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>브라우저를 열 수 없음</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>기본 브라우저를 열 수 없습니다.

다음 링크를 직접 복사하여 접속하십시오:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>로그 복사</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>로그 저장</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>텍스트 파일 (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>루프 장치 %1이(가) %2에 연결되어 있습니다. 아무것도 기록되지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - 안전한 데이터 소거</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>여유 공간을 소거하시겠습니까?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>휴지통의 파일이 안전하게 소거되었습니다!

이전에 휴지통에서 비운 파일을 복구할 수 없도록
여유 공간도 소거하시겠습니까?

여유 공간의 크기에 따라 시간이 더 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>중지 확인</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>소거 작업을 중지하시겠습니까?
이 작업은 되돌릴 수 없습니다.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>종료 확인</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>소거 작업이 진행 중입니다. 종료하시겠습니까?
종료하면 현재 작업이 중단됩니다.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - 안전한 데이터 소거&lt;/h3&gt;&lt;p&gt;버전 5.0&lt;/p&gt;&lt;p&gt;군사 수준의 표준에 따라 데이터를 안전하게 소거합니다.&lt;br&gt;디스크 소거, 파티션 소거, 여유 공간 소거 및 파일 소거를 지원합니다.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. 소거하면 완전히 소거되며, 그 방법은 증명서가 보여 줍니다.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>Quorvex 정보</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>휴지통 소거</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>휴지통에 있는 삭제된 파일을 검색하는 중...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>휴지통을 검색하는 중...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>드라이브 %1의 휴지통을 검색하는 중 (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>휴지통이 비어 있음</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>휴지통이 이미 비어 있습니다.

그러나 이전에 삭제한 파일은 아직 복구될 수 있습니다.
복구할 수 없도록 여유 공간을 소거하시겠습니까?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>휴지통에서 다음과 같은 삭제된 파일을 찾았습니다</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>항목 %1개 발견, 총 %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>소거할 파일 선택</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>버튼을 클릭하여 파일과 폴더를 추가하십시오</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>이 디스크는 소거할 수 없음</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>%1뿐만 아니라 다음이 모두 소거됩니다
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>이 볼륨은 삭제할 수 없습니다</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>이 파일은 소거할 수 없음</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>소거를 시작할 수 없음</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>기록 없이 함께 소거: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>살펴보지 않음: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>드라이브를 읽는 중...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1의 휴지통</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>덮어쓰기 %1회</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>보안 등급: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>소거 방식 선택</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>소거 방식에 따라 보안 등급이 다릅니다. 덮어쓰기 횟수가 많을수록 안전하지만 시간이 더 오래 걸립니다</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← 뒤로</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>시작</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>마운트된 볼륨만 소거되고 드라이브의 나머지 부분은 소거되지 않습니다</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>볼륨을 열 수 없어 소거하지 못했습니다</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>볼륨이 끝에 도달하기 전에 더 이상 데이터를 받지 않았습니다</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>덮어쓰는 동안 볼륨이 사용 중이었습니다</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>드라이브 끝부분이 온전한 한 섹터가 아니어서 덮어쓰지 않았습니다</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>드라이브가 보고한 크기가 0이며, 아무것도 쓰지 않았습니다</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>볼륨이 드라이브 범위를 벗어납니다</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>여유 공간이 있었지만 아무것도 쓰지 않았습니다</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>채울 수 없는 여유 공간이 남았습니다</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>예비 공간으로 남겨 두는 부분이 여유 공간의 10%를 넘습니다</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>채우기 파일이 남아 있습니다</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>소거하기 전에 항목이 사라졌습니다</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>도중에 항목이 다른 것으로 바뀌었습니다</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>덮어쓴 후에 파일이 커졌습니다</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>항목을 제거할 수 없었습니다</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>파일 시스템이 다른 위치에 내용을 보관하고 있을 수 있으며, 그 위치는 덮어쓰지 않습니다</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>링크는 제거되지만 링크 대상은 소거되지 않습니다</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>쓴 데이터를 다시 읽지 않았습니다</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>쓴 데이터를 다시 읽어도 비교할 수 없습니다</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>여유 공간의 작은 일부를 예비 공간으로 남겨 둡니다</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>파일에 다른 이름이 더 있으며, 그 이름은 남아서 덮어쓴 내용을 가리킵니다</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>파일 시스템이 새 위치에 쓰며 이전 내용을 스냅샷 등에 보관하고 있을 수 있습니다</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>덮어쓸 여유 공간이 없었습니다</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>일부만 소거됨: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>완전히 소거되지 않음: 작업이 실패했습니다</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>완전히 소거되지 않음: 작업이 취소되었습니다</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>매체에 기록됨: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>드라이브에 여유 공간을 삭제할 수 있는 마운트된 볼륨이 없습니다</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>살펴보지 않은 휴지통이 있으며, 그 내용은 소거되지 않습니다</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>볼륨의 섀도 복사본에 이전 내용이 남아 있을 수 있습니다</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>클라우드 서비스가 파일의 사본과 이전 버전을 보관합니다</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>속도: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>남은 시간: 계산 중...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>작업 로그</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ 중지</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>소거 방식: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>속도: %1/s</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1초</translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation>%1분 %2초</translation>
    </message>
    <message>
        <source>%1 小时 %2 分</source>
        <translation>%1시간 %2분</translation>
    </message>
    <message>
        <source>剩余时间: %1</source>
        <translation>남은 시간: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ 계속</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ 일시 중지</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>데이터를 소거하는 중...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>삭제 진행률</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>이 페이지의 표시를 다시 시작합니다. 삭제는 멈추지 않았습니다</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>이 페이지의 표시만 일시 중지합니다. 삭제는 계속됩니다</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>참고: Windows 보안의 &quot;제어된 폴더 액세스&quot;가 이 프로그램의 쓰기를 막고 있을 수 있습니다. 그곳에서 이 프로그램을 허용한 뒤 다시 시도하십시오</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>机械硬盘</source>
        <translation>HDD</translation>
    </message>
    <message>
        <source>固态硬盘</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>USB设备</source>
        <translation>USB 장치</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>외장 HDD</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>다른 프로그램이 보고서 데이터베이스를 사용 중입니다.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>보고서 데이터베이스에 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>보고서 데이터베이스를 위한 공간이 없습니다.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>보고서 데이터베이스가 손상되었습니다.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>보고서 데이터베이스를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>보고서 데이터베이스 자리에 링크가 있습니다.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>보고서 데이터베이스가 보고서를 받지 않았습니다.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>복사</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>소거 후 데이터 검증</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>소거 증명서 자동 생성</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>찾아보기...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>소거 완료 후 PDF 증명서 자동 내보내기</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>소거 설정</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>내보내기 경로:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>기본 내보내기 경로 선택...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>내보내기 폴더 선택</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>증명서 내보내기</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>기본값 복원</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>설정 저장</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>저장 완료</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>설정이 저장되었습니다</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>저장 실패</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>설정을 저장할 수 없습니다</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Quorvex</source>
        <translation>Quorvex</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>데이터 소거</translation>
    </message>
    <message>
        <source>History</source>
        <translation>소거 기록</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>보고서를 찾을 수 없음</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>데이터베이스에 보고서 %1이(가) 없습니다.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>드라이브 %1: 모델 %2, 일련번호 %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>볼륨 %1, %2, %3, 여유 공간 %4</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, 레이블 %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>마운트된 볼륨 없음</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>외 %1개</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>파일 1개, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>파일 최소 1개, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>파일 %1개, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>파일 최소 %1개, %2</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>Quorvex</source>
        <translation>Quorvex</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>메뉴</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>최대화</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>지원</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>이전 크기로 복원</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>언어 변경</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>언어가 변경되었습니다.

이제 프로그램을 다시 시작합니다.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>실행 중에는 작업을 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>작업이 설정되지 않았습니다</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>작업이 이미 실행 중입니다</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>작업 스레드를 만들지 못했습니다</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>소거 작업을 시작합니다...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>소거 방식: %1 (덮어쓰기 %2회)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>작업이 중지되었습니다</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>덮어쓰기 %1/%2회차</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>오류: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>소거가 완료되었습니다!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>소거에 실패했습니다</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>다른 프로그램이 드라이브를 사용 중입니다.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>드라이브의 볼륨을 분리할 수 없습니다. 오류 %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>볼륨 %1은(는) 사용 중이어서 마운트 해제할 수 없습니다.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>볼륨 %1을(를) 마운트 해제할 수 없습니다. 오류 %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>아무것도 기록되지 않았습니다.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>다시 마운트되지 않음: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>파일 %1개</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>증명서 번호</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>작업 유형</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>소거 방식</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>시작 시간</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>상태</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>미국 국립표준기술연구소 표준, 덮어쓰기 1회, 대부분의 용도에 적합</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>영국 정부 보안 표준, 덮어쓰기 2회</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>미국 국방부 표준, 덮어쓰기 7회, 군사 수준의 보안</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>독일 연방정보보안청 표준, 덮어쓰기 7회</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Peter Gutmann이 제안한 최고 수준의 보안 표준, 덮어쓰기 35회</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>기본</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>강화</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>최고</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>실행 중</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>디스크 소거</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>파티션 소거</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>여유 공간 소거</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>파일 소거</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>파일을 찾을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>소거할 디스크를 선택하십시오</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>시스템 디스크는 소거할 수 없습니다. 외장 드라이브로 부팅하십시오.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>소거할 파티션을 선택하십시오</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>시스템 파티션은 소거할 수 없습니다. 외장 드라이브로 부팅하십시오.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>여유 공간을 소거할 디스크 또는 파티션을 선택하십시오</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>소거할 파일을 추가하십시오</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>스레드 수는 1~32 범위여야 합니다</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>버퍼 크기는 1~1024 MB 범위여야 합니다</translation>
    </message>
</context>
</TS>
