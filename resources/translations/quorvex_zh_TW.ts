<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>記憶體配置失敗</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1，不可能的大小</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>其記錄為 %1 位元組，超過任何檔案可能的大小。</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>總和中不可能的大小：%1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>抹除證明書 - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 匯出 PDF</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ 列印</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>匯出證明書</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF 檔案 (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>匯出成功</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>證明書已匯出至：
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>匯出失敗</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>無法匯出證明書，請檢查檔案路徑的權限。</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>列印證明書</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>作業摘要</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>作業類型</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>抹除標準</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>覆寫次數</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>耗時</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>儲存裝置</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型號</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>介面</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>抹除詳細資料</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>已處理檔案</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>總磁區數</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>已抹除磁區</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>寫入資料量</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>損壞磁區</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>驗證</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>通過 ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>未通過 ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>取樣數量</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>資料雜湊</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>操作人員資訊</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作人員</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>電腦</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>資料抹除證明書</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>安全資料抹除合規記錄</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>證明書編號:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>產生時間:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>聲明：本證明書證明上述儲存裝置/檔案已依照指定的資料抹除標準完成安全抹除，抹除過程符合適用的資料保護法規。本證明書由 Quorvex 自動產生，可作為資料銷毀的合規記錄。</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>寫入媒體</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>未讀回</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>無可比對的內容</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>讀回</translation>
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
        <translation>今日的憑證編號已全部用完。</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>作業摘要</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>作業類型</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>抹除標準</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>覆寫次數</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> 次</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>耗時</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>狀態:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>儲存裝置</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>型號</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>介面</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>抹除詳細資料</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>檔案數量</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> 個</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>總磁區數</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>已抹除磁區</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>寫入資料量</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>損壞磁區</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>驗證</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>驗證結果:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>通過</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>未通過</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>取樣數量</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> 個位置</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>資料雜湊</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>操作人員資訊</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>操作人員</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>電腦</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>資料抹除證明書</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>證明書編號: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>產生時間: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>聲明：本證明書證明上述儲存裝置/檔案已依照指定的資料抹除標準完成安全抹除，抹除過程符合適用的資料保護法規。本證明書由 Quorvex 自動產生，可作為資料銷毀的合規記錄。</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>專業資料抹除工具</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>實際處理：%1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>未讀回</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>讀回的內容無法比對</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>（完整內容見本程式的歷史記錄）</translation>
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
        <translation>此程式建置時未包含證明書功能</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>未指定命令</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>「%1」不完整</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>未知的命令「%1」</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>「%1」需要 %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>「%1」是「%2」多餘的引數</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (請參閱 %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 不是檔案</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>無法讀取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 過大，不可能是報告</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>各欄位相同，但文字自位元組 %1 起不同</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>無</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>第一個不同的欄位是 %1：記錄中為 %2，檔案中為 %3</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>不相符：%1 不是報告</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>不相符：資料庫中沒有 %1 的記錄</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>相符：%1 即為 %2 的記錄</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>不相符：%1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>全部為零：%2 的 %1 個位元組皆為 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>並非全零：%2 的位元組 %1 為 %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>路徑為空白</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>比對匯出的報告與其記錄，或尋找殘留的位元組</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE 為 JSON 格式的報告；搭配 --zeros 時則為映像檔或磁碟機，且僅會讀取。</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>完整讀取 FILE，並回報是否所有位元組皆為 0x00</translation>
    </message>
    <message>
        <source>system</source>
        <translation>系統</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>卸除式</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>找不到任何磁碟機。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>磁碟機</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型號</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>匯流排</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>旗標</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>，系統</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>列出磁碟機及其磁碟區</translation>
    </message>
    <message>
        <source>random</source>
        <translation>隨機</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>補數</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (含驗證)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2：%3，等級 %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>列出抹除標準及其覆寫次數與樣式</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>無法刪除報告 %1</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>已刪除報告 %1。</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>從資料庫刪除一份報告</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>「%1」需要 --pdf 或 --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>無法寫入 %1</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>將一份報告匯出為證明書、JSON 或兩者</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>JSON 為儲存的原始文字，逐位元組相同，可供「quorvex-cli check」使用。</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>將證明書以 PDF 格式寫入此檔案或資料夾</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>將報告以 JSON 格式寫入；- 表示標準輸出</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>已損毀</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>沒有報告。</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>證明書</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>作業</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 須為數字 (%2)，而非「%3」</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>列出已儲存的報告，最新的在前</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>要列出的數量 (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>要略過的最新報告數量 (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>顯示一份報告</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>列出「wipe trash」將抹除的項目</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>抹除整個磁碟機</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE 為「quorvex-cli disks」所顯示的編號或裝置路徑。系統磁碟會被拒絕。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及其他 %2 項</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 個檔案</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個檔案</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>抹除檔案，以及資料夾與其中的所有內容</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>連結只會移除其本身，所指向的內容不受影響。若路徑以連字號開頭，請在其前加上 --。</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  下列磁碟區的可用空間：</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  現有檔案會予以保留</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report 只能用於單一磁碟區的報告，不適用於多個磁碟區</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>有多個磁碟區時，--pdf 須指定資料夾</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>抹除磁碟區的可用空間</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME 為磁碟機代號、掛載點，或磁碟機編號 (代表該磁碟機的所有磁碟區)。</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>資源回收筒是空的。</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>資源回收筒本身的資料夾清單仍留有已抹除項目的名稱，錯誤 %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>資源回收筒</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>抹除目前使用者資源回收筒中的所有內容</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>即 Windows 的資源回收筒，以及其他桌面環境的垃圾桶。</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>下列內容即將永久銷毀：</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>未確認：標準輸入不是終端機；使用 --yes 可略過確認</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>請輸入 %1 以進行銷毀：</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>已取消，未寫入任何資料</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>未確認，未寫入任何資料</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>找不到磁碟機：%1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 是磁碟機 %2 的一部分；必須指定整個磁碟機</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>磁碟機 %1 是系統磁碟，使用中無法抹除</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>沒有寫入磁碟機 %1 的權限</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>磁碟機 %1 已不存在，或已由另一個磁碟機取代</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 不是檔案或資料夾；磁碟機請以「wipe disk」抹除</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 會經由連結回到上層；請指定不含「..」的路徑</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>無法檢視 %1，錯誤 %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 是磁碟區的根目錄；請指定其中要抹除的項目</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>機器可讀的輸出：JSON，每行一個值</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>將資料庫與日誌存放於此資料夾，而非各使用者的資料夾</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>將此映像檔視為磁碟機 (可重複指定)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>不列出也不開啟任何實際的磁碟機</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>僅輸出錯誤與最後一行</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>顯示此說明</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>顯示版本</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>找不到映像檔：%1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>用法：quorvex-cli [選項...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>範例：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>選項：</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>所有命令通用的選項：</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>成功，所有要求皆已完成</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>工作已執行，但全部或部分失敗</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>命令列有誤</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>在寫入任何資料之前即遭拒絕</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>已取消 (Ctrl+C)，工作已正常停止</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>無法寫入報告或其他輸出</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>結束代碼：</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>徹底銷毀資料使其無法復原，並提供證明。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>每個命令皆有專屬說明：quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>無法使用資料存放資料夾 %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>「%1」位於要抹除的範圍內</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>無法寫入 %1</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>位於 %1 的報告資料庫在要抹除的範圍內；可用 --data-dir 指定其他資料夾，或用 --no-report 不儲存報告</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>無法將報告 %1 存入資料庫：%2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>無法寫入報告檔案 %1</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>無法寫入證明書 %1</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>未知的語言「%1」，可用的語言：%2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>無法讀取 %1 的語言檔</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 次覆寫</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 次覆寫</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>「%1」不能作為檔案名稱</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>「%1」是資料夾，不是檔案</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>「%1」已存在，且不是一般檔案</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>「%1」所在的資料夾不存在</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>第 %1/%2 次覆寫</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩餘 %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>無法使用位於 %1 的報告資料庫：%2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>無法讀取報告資料庫：%1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>找不到報告 %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>儲存為報告 %1 的內容已損毀</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>磁區</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>已抹除磁區</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>損壞磁區</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>驗證</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>通過</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>未通過</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>回讀</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>取樣數量</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>雜湊</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>耗時</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>寫入資料量</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作人員</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>電腦</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>無法寫入輸出</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[錯誤]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[警告]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[資訊]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>已寫入 %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，共 %2</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1：%2，%3，%4，耗時 %5，證明書 %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>，報告 %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>，PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root 的值為空白</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是資料夾</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>在此資料夾 (代表一個磁碟機) 下尋找 Windows 資源回收筒 (可重複指定)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>搭配 --root：僅限具有此安全識別碼的使用者的資源回收筒</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid 的值為空白</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid 需要 --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>系統未提供使用者的身分</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 個項目</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>資料夾 </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>，僅剩記錄</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>磁碟機 %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>找不到磁碟區：%1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>介於 %1 與 %2 之間</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>未知的方法「%1」，可用「quorvex-cli methods」列出</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>抹除標準，以名稱或編號指定 (0：NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>不回讀已寫入的內容</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>從磁碟機回讀的取樣數量 (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>同時抹除的檔案數，1 至 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>寫入緩衝區大小 (MiB)，1 至 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>將報告以 JSON 格式寫入此檔案</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>不將報告存入資料庫</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>成功後將證明書以 PDF 格式寫入此檔案或資料夾</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>不要求輸入 ERASE 進行確認</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>回讀驗證</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>不回讀驗證</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  使用 %1，%2，%3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>無法讀取 %1 的位元組 %2，錯誤 %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>沒有讀取 %1 的權限</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>無法開啟 %1，錯誤 %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 是資料夾</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>程式位於 %1 的記錄檔在要抹除的內容之中；--data-dir 可指定其他資料夾</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>部分完成</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 是空的，沒有可檢查的內容</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>不是磁碟機的裝置</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 為唯讀</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>磁碟機 %1 為唯讀</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>磁碟區 %1 位於磁碟機 %2，同時也位於 %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>磁碟機 %1 正由 %2 佔用</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>解除佔用：%1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備註</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>全部完成</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>部分完成</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>未知的缺失類型「%1」，可用的類型：%2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>此類缺失不視為失敗 (可重複指定)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>仍處於卸載狀態：%1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  並非所有內容都會被抹除：</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  整個磁碟：分割表，以及各磁碟區之間和之外的所有內容</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  事先會卸載其磁碟區，一旦寫入過資料便維持卸載</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>若磁碟有已掛載的磁碟區，只會抹除這些磁碟區；--whole 會卸載它們並抹除磁碟的每個磁區。</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>卸載磁碟的所有磁碟區並抹除其每個磁區</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>磁碟區</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>寫入媒體</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>磁碟區 %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir 的值為空白</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>找不到可抹除的項目，但並非每個資源回收筒都已查看：%1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>找不到 %1 的資源回收筒</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 個沒有記錄的項目</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 個沒有記錄的項目</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>以及 %1，%2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 是連結，不會跟隨</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 屬於其他使用者，將保持不動</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>無法查看 %1，錯誤 %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>使用 --no-report 則不需要編號。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; 被指定為兩個輸出</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; 已存在且不是報告；--force 會取代它</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>允許 --report 取代不是報告的檔案</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1；請以系統管理員身分執行</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1；請使用 sudo 執行</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>顯示磁碟機和磁碟區的回應，供遠端協助者使用</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>不會寫入任何內容。回應在所有語言中均為英文，並包含序號和路徑：傳送前請先檢視。</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1 的資源回收筒</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>語言：%1（預設：系統語言）</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>抹除完成</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>抹除失敗</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>抹除時發生錯誤。
詳細資訊請參閱日誌。</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>所有選取的資料皆已安全抹除。</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>所有選取的資料皆已安全抹除。
抹除證明書已產生。</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>資料抹除成功！</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>證明書： </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>檢視證明書</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>維持卸載：%1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>報告未儲存。%1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>確認抹除</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>請輸入 &lt;b&gt;ERASE&lt;/b&gt; 以確認：</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>警告：此操作無法復原</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>選取的資料將被永久抹除，且無法復原。</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>抹除整個磁碟
（否則磁碟區以外的一切都會保留）</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>抹除整個磁碟
（否則磁碟區以外的 %1 會保留）</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>每個磁區都會被覆寫，包括分割表。事先會卸載磁碟的所有磁碟區。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>以下將被銷毀</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>抹除磁碟與分割區</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>選取要抹除的磁碟或分割區。展開磁碟即可檢視分割區。</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 上一步</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>下一步 →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>磁碟與分割區</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>磁碟/分割區</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>介面</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>抹除可用空間</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>選取要安全抹除可用空間的分割區。</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>選取要完全抹除的磁碟或分割區。所有資料將被永久刪除。</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ 無法選取系統磁碟進行抹除。</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ 對系統磁碟抹除可用空間是安全的，不會影響現有檔案或系統運作。</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ 無法選取系統分割區進行抹除。</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ 對系統分割區抹除可用空間是安全的，不會影響現有檔案或系統運作。</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 磁碟 %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ 系統磁碟</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>卸除式</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 分割區 %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>可用 %1</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ 系統</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ 開機</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>不是磁碟的裝置</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>磁碟 %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>磁碟區 %1 位於此磁碟，同時也位於 %2。</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>此磁碟為唯讀。</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>此磁碟正由下列項目佔用：%1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>下列命令可解除佔用：</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>記憶體配置失敗</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>錯誤：沒有可用的磁碟或磁碟區控制代碼</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>正在透過磁碟控制代碼進行抹除...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>SetFilePointerEx 失敗，錯誤碼：%1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>寫入錯誤，位置：%1，錯誤碼：%2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>正在透過磁碟區控制代碼進行抹除...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>使用估算的磁碟區大小：%1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>正在抹除磁碟區 %1/%2，大小：%3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>磁碟區 %1 有 %2 未被覆寫</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>磁碟區 %1 抹除完成，已寫入：%2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>寫入位元組數為 0，已到達磁碟區結尾</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>已到達磁碟區邊界，繼續下一個磁碟區...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>錯誤：存取被拒</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>錯誤：磁碟受到寫入保護</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>錯誤：裝置尚未就緒</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>錯誤：磁碟正在使用中</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>錯誤：鎖定衝突</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>錯誤：I/O 裝置錯誤</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>排清寫入資料失敗，錯誤碼：%1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>正在驗證...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>驗證失敗，位置：%1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>驗證通過</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>警告：找不到任何磁碟區，可能是未分割的磁碟</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>正在尋找磁碟 %1 上的磁碟區...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>找到磁碟區：%1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>共找到 %1 個需要鎖定的磁碟區</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>正在處理磁碟區：%1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>無法開啟磁碟區 %1，錯誤碼：%2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>正在鎖定磁碟區 %1...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>磁碟區 %1 鎖定成功</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>警告：磁碟區 %1 鎖定失敗，錯誤碼：%2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>正在卸載磁碟區 %1...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>磁碟區 %1 卸載成功</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>警告：磁碟區 %1 卸載失敗，錯誤碼：%2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>無法抹除系統磁碟</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>正在鎖定磁碟上的磁碟區...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>無法鎖定磁碟上的磁碟區，請關閉所有正在使用該磁碟的程式</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>磁碟上的磁碟區已鎖定並卸載</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>無法取得磁碟資訊</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>磁碟抹除完成！</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>抹除已取消</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>開始抹除磁碟...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>目標磁碟：%1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>磁碟編號：%1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>序號：%1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>正在開啟磁碟...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>磁碟開啟成功</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>無法開啟磁碟，錯誤碼：%1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>將透過磁碟區控制代碼進行抹除</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>磁碟大小：%1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>磁區大小：%1 位元組</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>總磁區數：%1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>第 %1/%2 次覆寫 (樣式：%3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>覆寫失敗</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>隨機</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>磁碟區 %1 又被掛載，未寫入任何資料</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>磁碟未能恢復連線，錯誤碼：%1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>已重新掛載：%1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>錯誤: 磁碟區已加密且未解除鎖定 (BitLocker)，請先解除鎖定，或抹除整個磁碟 (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>錯誤: 裝置已中斷連線，或媒體已更換</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>錯誤: 裝置或媒體故障</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>選取要抹除的檔案</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>按一下按鈕以新增檔案與資料夾</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 新增檔案</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 新增資料夾</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>按一下以新增檔案，或將檔案拖曳至此</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 上一步</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>下一步 →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>要抹除的檔案與資料夾</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>選取檔案</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有檔案 (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>選取資料夾</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>確認清除</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>確定要清除所有已新增的檔案嗎？</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>已新增 %1 個項目，共 %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>找不到 1 個項目</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>找不到 %1 個項目</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 個檔案有其他名稱；在這些名稱下的內容也會被抹除</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 個檔案有其他名稱；在這些名稱下的內容也會被抹除</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>像 %1 這樣的疏鬆檔案在覆寫時還需要 %2，而可用空間只有 %3。未寫入任何資料。</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>記憶體配置失敗</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>正在掃描目標檔案...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>找不到要抹除的檔案</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>抹除工作已由使用者取消</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>所有檔案抹除成功！共處理 %1 個檔案</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>抹除完成，但有 %1 個檔案失敗。資料可能不安全！</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>無法讀取資料夾：%1，錯誤碼：%2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>無法存取：%1，錯誤碼：%2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>檔案另有 %1 個硬連結：%2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>準備抹除 %1 個檔案，每次覆寫總計 %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>所有檔案皆為空，略過資料覆寫</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>第 %1/%2 次覆寫有檔案失敗，失敗數：%3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>無法開啟檔案 (WinAPI)：%1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>FlushFileBuffers 失敗：%1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>SetFilePointerEx 失敗：%1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>WriteFile 失敗：%1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>驗證失敗：%1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>正在安全刪除檔案並清理中繼資料...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>刪除失敗：%1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>無法刪除資料夾：%1，錯誤碼：%2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>檔案已被取代，保持原樣：%1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>%1 個檔案的內容可能還保存在別處，未被覆寫</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>資料夾中掛載了其他檔案系統，保持原樣：%1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>工作期間又出現 %1 個檔案，一併抹除</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>檔案內容不在本機，僅保存在雲端，無法抹除: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>資料夾內容未全部在本機，部分僅保存在雲端，無法抹除: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 個檔案由雲端服務同步，雲端可能仍保留其副本和歷史版本</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>正在清除檔案系統日誌中的檔名...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>檔案系統日誌中可能仍保留檔名: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>磁碟區已無法使用，錯誤碼：%1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>已刪除的填充檔案未釋放空間，無法繼續覆寫</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>記憶體配置失敗</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>已寫入：%1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>偵測到系統分割區，保留 1 GB 安全空間</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>可用空間已填滿</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>無法建立填充檔案：%1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>寫入錯誤，位置：%1，錯誤碼：%2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>可用空間沒有減少，檔案系統可能會壓縮資料</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>開始抹除可用空間...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>無效的目標</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>目標分割區：%1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>分割區大小：%1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>檔案系統：%1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>目標磁碟：%1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>磁碟大小：%1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>磁碟沒有分割表，正在尋找對應的磁碟區...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>找到對應的磁碟區：%1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>警告：磁碟上沒有可用的非系統分割區</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>將抹除 %1 個分割區的可用空間</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>沒有可用的分割區</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== 分割區 %1/%2：%3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>抹除已取消</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>可用空間抹除完成！</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>填滿可用空間失敗</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>可用空間：%1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>沒有需要抹除的可用空間</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>已清理上次中斷時留下的暫存檔案：%1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>無法建立暫存資料夾：%1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>第 %1/%2 次覆寫 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>樣式：0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>樣式：0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>樣式：隨機</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>樣式：0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>樣式：未知</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>正在清理檔案系統殘留...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>檔案系統殘留清理不完整，錯誤碼：%1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>警告：檔案系統不再接受資料，仍有 %1 可用空間未填滿</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>錯誤碼：%1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>未寫入任何資料。</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>磁碟區 %1 已不是所選的磁碟區。</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>另一項工作正在抹除此磁碟區的可用空間；其檔案位於 %1。</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>保留 %1 作為安全空間，不會被覆寫</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>檢視證明書</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>匯出 PDF</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>抹除歷程記錄</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>狀態：</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>抹除方法</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>檢視</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[磁碟] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[分割區] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[可用空間] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[檔案] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 個檔案</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>匯出證明書</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>PDF 檔案 (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>匯出成功</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>證明書已匯出至：%1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>匯出失敗</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>無法匯出證明書檔案</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>確認刪除</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>確定要刪除此抹除記錄嗎？</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>沒有可清除的記錄</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>確認清除</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>確定要清除所有抹除記錄嗎？

此操作無法復原！</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>清除完成</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>所有記錄皆已清除</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>永久銷毀資料，杜絕外洩。</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>磁碟抹除</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>完全抹除磁碟所有資料，包括分割區與開機記錄</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>可用空間抹除</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>清除已刪除檔案的殘留資料</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>檔案抹除</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>永久抹除檔案與資料夾</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>資源回收筒抹除</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>抹除資源回收筒中已刪除的檔案</translation>
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
        <translation>Gutmann 35 次覆寫</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>前一個工作仍在結束中。</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>正在執行抹除。</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>無法在此工作期間阻止系統進入睡眠，錯誤 %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>設定錯誤</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>無法載入頁面連結。

請聯絡技術支援或重新安裝軟體。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>無法開啟瀏覽器</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>無法開啟預設瀏覽器。

請手動複製連結並前往：
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>複製日誌</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>儲存日誌</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>文字檔案 (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>迴路裝置 %1 已連接到 %2。未寫入任何內容。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - 安全資料抹除</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>要抹除可用空間嗎？</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>資源回收筒中的檔案已安全抹除！

您是否也要抹除可用空間，以確保先前從資源回收筒
清除的檔案無法復原？

視可用空間大小而定，這可能需要較長時間。</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>確認停止</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>確定要停止抹除工作嗎？
此操作無法復原。</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>確認結束</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>抹除工作正在進行中，確定要結束程式嗎？
結束程式會中斷目前的工作。</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - 安全資料抹除&lt;/h3&gt;&lt;p&gt;版本 5.0&lt;/p&gt;&lt;p&gt;以軍事級標準安全抹除您的資料。&lt;br&gt;支援磁碟抹除、分割區抹除、可用空間抹除與檔案抹除。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. 抹除就是徹底抹除，證明書說明如何做到。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>關於 Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>資源回收筒抹除</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>正在掃描資源回收筒中已刪除的檔案...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>正在掃描資源回收筒...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>正在掃描磁碟機 %1 的資源回收筒 (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>資源回收筒是空的</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>資源回收筒已是空的。

不過，先前刪除的檔案可能仍可復原。
您要抹除可用空間，以確保這些檔案無法復原嗎？</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>在資源回收筒中找到下列已刪除的檔案</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>找到 %1 個項目，共 %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>選取要抹除的檔案</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>按一下按鈕以新增檔案與資料夾</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>無法抹除此磁碟</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>不僅 %1，下列項目全部都會被抹除
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>無法抹除此磁碟區</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>無法抹除這些檔案</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>無法開始抹除</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>一併抹除，沒有記錄：%1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>未查看：%1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>正在讀取磁碟機...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1 的資源回收筒</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>%1 次覆寫</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>安全等級：%1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>選取抹除方法</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>不同的抹除方法提供不同等級的安全性，覆寫次數越多越安全，但耗時也越長</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← 上一步</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>僅抹除已掛載的磁碟區，不抹除磁碟機的其餘部分</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>無法開啟磁碟區，未予抹除</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>磁碟區在到達結尾前就不再接受資料</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>磁碟區在覆寫期間正在使用中</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>磁碟機的結尾不是完整磁區，未被覆寫</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>磁碟機回報的容量為零，未寫入任何資料</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>磁碟區超出磁碟機的範圍</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>雖有可用空間，但未寫入任何資料</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>仍有無法填滿的可用空間</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>超過 10% 的可用空間會留作預留空間</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>填充檔案遺留未刪除</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>項目在抹除之前已不存在</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>項目在過程中已被其他項目取代</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>檔案在覆寫後變大</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>無法移除項目</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>檔案系統可能將內容保留在其他位置，該處不會被覆寫</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>連結會被移除，但其所指向的內容不會被抹除</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>未回讀已寫入的內容</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>已寫入的內容在回讀時無法比對</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>一小部分可用空間會留作預留空間</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>檔案另有其他名稱，這些名稱會保留並指向已覆寫的內容</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>檔案系統會寫入新的位置，可能保留先前的內容，例如在快照中</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>沒有可供覆寫的可用空間</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 項</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>僅部分抹除：%1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>未完全抹除：工作失敗</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>未完全抹除：工作已取消</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>寫入媒體：%1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>磁碟沒有已掛載且可抹除其可用空間的磁碟區</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>有資源回收筒未被查看，其內容不會被抹除</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>磁碟區的陰影複製可能保留先前的內容</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>雲端服務保留檔案的副本和歷史版本</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>速度：--</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>剩餘時間：計算中...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>作業日誌</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ 停止</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>抹除方法：%1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>速度：%1/秒</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 小时 %2 分</source>
        <translation>%1 小時 %2 分</translation>
    </message>
    <message>
        <source>剩余时间: %1</source>
        <translation>剩餘時間：%1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ 繼續</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ 暫停</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>正在抹除資料...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>抹除進度</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>恢復此頁面的顯示；抹除並未停止</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>只暫停此頁面的顯示；抹除會繼續進行</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>提示: Windows 安全性的「受控資料夾存取權」可能阻止本程式寫入，請在其中允許本程式後重試</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>机械硬盘</source>
        <translation>傳統硬碟</translation>
    </message>
    <message>
        <source>固态硬盘</source>
        <translation>固態硬碟</translation>
    </message>
    <message>
        <source>USB设备</source>
        <translation>USB 裝置</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>外接硬碟</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>另一個程式正在佔用報告資料庫。</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>無法寫入報告資料庫。</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>報告資料庫已無可用空間。</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>報告資料庫已損毀。</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>無法開啟報告資料庫。</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>報告資料庫的位置是一個連結。</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>報告資料庫未接受此報告。</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>抹除後驗證資料</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>自動產生抹除證明書</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>抹除完成後自動匯出 PDF 證明書</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>抹除設定</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>匯出路徑：</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>選取預設匯出路徑...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>選取匯出資料夾</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>證明書匯出</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>還原預設值</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>儲存設定</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>儲存成功</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>設定已儲存</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>儲存失敗</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>無法儲存設定</translation>
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
        <translation>選單</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>資料抹除</translation>
    </message>
    <message>
        <source>History</source>
        <translation>抹除歷程記錄</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>找不到報告</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>資料庫中沒有報告 %1。</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>磁碟機 %1：型號 %2，序號 %3，%4，%5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>磁碟區 %1，%2，%3，可用 %4</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>，標籤 %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>沒有已掛載的磁碟區</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 項</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 個檔案，%1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>至少 1 個檔案，%1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 個檔案，%2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>至少 %1 個檔案，%2</translation>
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
        <translation>選單</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>支援</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>語言已變更</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>語言已變更。

應用程式即將重新啟動。</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>執行期間無法變更工作</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>尚未設定工作</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>工作已在執行中</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>建立工作執行緒失敗</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>開始抹除工作...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>抹除方法：%1 (%2 次覆寫)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>工作已停止</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>第 %1/%2 次覆寫</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>錯誤：%1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>抹除完成！</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>抹除失敗</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>磁碟正由其他程式使用。</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>無法卸除磁碟的磁碟區，錯誤 %1。</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>磁碟區 %1 使用中，無法卸載。</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>磁碟區 %1 無法卸載，錯誤 %2。</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>未寫入任何資料。</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>未重新掛載：%1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>%1 個檔案</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>證明書編號</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>作業類型</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>目標</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>抹除方法</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>狀態</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>美國國家標準暨技術研究院 (NIST) 標準，1 次覆寫，適用於大多數情況</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>英國政府安全標準，2 次覆寫</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>美國國防部標準，7 次覆寫，軍事級安全性</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>德國聯邦資訊安全局 (BSI) 標準，7 次覆寫</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>由 Peter Gutmann 提出的最高安全標準，35 次覆寫</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>基本</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>加強</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>執行中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>磁碟抹除</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>分割區抹除</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>可用空間抹除</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>檔案抹除</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>找不到檔案：%1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>請選取要抹除的磁碟</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>無法抹除系統磁碟，請從外接磁碟機開機。</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>請選取要抹除的分割區</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>無法抹除系統分割區，請從外接磁碟機開機。</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>請選取要抹除可用空間的磁碟或分割區</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>請新增要抹除的檔案</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>執行緒數必須介於 1 與 32 之間</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>緩衝區大小必須介於 1 與 1024 MB 之間</translation>
    </message>
</context>
</TS>
