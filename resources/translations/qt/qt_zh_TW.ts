<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Del</source>
            <translation>刪除鍵 (Del)</translation>
        </message>
        <message>
            <source>Ins</source>
            <translation>插入鍵 (Ins)</translation>
        </message>
        <message>
            <source>Left</source>
            <translation>左鍵</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>右鍵</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>空白鍵</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Note</source>
            <translation>筆記</translation>
        </message>
        <message>
            <source>Letter / ANSI A</source>
            <translation>信封 / ANSI A</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>信封型 Monarch</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>信封型 US 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>信封型 US 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>信封型 US 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>信封型 US 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>信封型 PRC 1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>信封型 PRC 2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>信封型 PRC 3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>信封型 PRC 4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>信封型 PRC 5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>信封型 PRC 6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>信封型 PRC 7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>信封型 PRC 8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>信封型 PRC 9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>信封型 C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>信封型 DL</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>信封型 B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>信封型 B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>信封型 B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>信封型 C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>信封型 C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>信封型 C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>信封型 C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>信封型 C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>信封型 C5</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>信封型 C6</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>信封型 C7</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>自訂</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>明信片</translation>
        </message>
        <message>
            <source>Tabloid / ANSI B</source>
            <translation>小報 / ANSI B</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>信封型 PRC 10</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>信封型 US 9</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>自訂 (%1in x %2in)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>自訂 (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>自訂 (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>自訂 (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>自訂 (%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>自訂 (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>雙明信片大小</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>信封型 Personal</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>Form</source>
            <translation>表單</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>下邊緣</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>紙張</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>紙張來源：</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>右邊緣</translation>
        </message>
        <message>
            <source>Pica (P̸)</source>
            <translation>派卡 (P̸)</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>邊緣</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>自訂</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>橫印</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>頁面配置</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>寬度：</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>方向</translation>
        </message>
        <message>
            <source>Didot (DD)</source>
            <translation>迪多 (DD)</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>直印</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>頁面順序：</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>上邊緣</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>左邊緣</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>頁面大小：</translation>
        </message>
        <message>
            <source>Cicero (CC)</source>
            <translation>西塞羅 (CC)</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>反向直印</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>毫米 (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>點 (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>每張紙包含頁數：</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>英吋 (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>反向橫印</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>高度：</translation>
        </message>
    </context>
    <context>
        <name>QDialogButtonBox</name>
        <message>
            <source>OK</source>
            <translation>確定</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>OK</source>
            <translation>確定</translation>
        </message>
        <message>
            <source>&amp;No</source>
            <translation>否(&amp;N)</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>是(&amp;Y)</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>說明</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>開啟</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>儲存</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>終止</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>套用</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>關閉</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>重設</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>重試</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>還原到預設值</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>取消</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>忽略</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>全部皆否(&amp;O)</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>全部儲存</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>丟棄</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>全部皆是(&amp;A)</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>OK</source>
            <translation>確定</translation>
        </message>
        <message>
            <source>Even Pages</source>
            <translation>偶數頁</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>列印</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>選項(&amp;O) &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>選項(&amp;O) &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>左至右，上到下</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>右至左，下到上</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>寫入 PDF 檔案</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>列印(&amp;P)</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>不能同時使用「每張紙包含頁數」與「頁面設定」選項。
請關閉其中一個選項。</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1 已存在。
是否覆寫？</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>左至右，下到上</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>奇數頁</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>本地端檔案</translation>
        </message>
        <message>
            <source>There are conflicts in duplex settings. Do you want to fix them?</source>
            <translation>在雙面設定中發現衝突選項，是否修復？</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>列印到檔案（PDF）</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>列印到檔案...</translation>
        </message>
        <message>
            <source>Invalid Pages Definition</source>
            <translation>無效頁面定義</translation>
        </message>
        <message>
            <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
            <translation>%1 沒遵循正確語法。請使用「,」分隔範圍與頁面、「-」定義範圍並確保範圍沒有相交。</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>右至左，上到下</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>下到上，左到右</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>「起始」值不能大於「結束」值。</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>全部頁面</translation>
        </message>
        <message>
            <source>Duplex Settings Conflicts</source>
            <translation>雙面設定衝突</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 是個目錄。
請選擇其他檔名。</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>檔案 %1 無法寫入。
請選擇其它檔名。</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>下到上，右到左</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>上到下，左到右</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>上到下，右到左</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>到</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>表單</translation>
        </message>
        <message>
            <source>None</source>
            <translation>無</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>顏色</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>全部列印</translation>
        </message>
        <message>
            <source>Pages</source>
            <translation>頁面</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>目前頁面</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>選擇區塊</translation>
        </message>
        <message>
            <source>Long side</source>
            <translation>長邊</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>份數</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>列印範圍</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>顏色模式</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>選項</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>輸出設定</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>反向</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>灰階</translation>
        </message>
        <message>
            <source>Short side</source>
            <translation>短邊</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>校對</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>份數：</translation>
        </message>
        <message>
            <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
            <translation>使用逗號分隔頁面或頁面範圍。頁面範圍使用 (數字)-(數字) 的形式指定，例如 3,5-7,9 列印第三、五、六、七和九頁。</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>指定頁面從</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>頁面設定：</translation>
        </message>
        <message>
            <source>Duplex Printing</source>
            <translation>雙面列印</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;OK</source>
            <translation>確定(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>儲存(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>關閉(&amp;C)</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>關閉而不儲存</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>取消(&amp;C)</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>...</source>
            <translation>…</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>表單</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>型態：</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>名稱(&amp;N)：</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>輸出檔案(&amp;F)：</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>屬性(&amp;R)</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>預覽</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>印表機</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>位置：</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>作業</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>結尾：</translation>
        </message>
        <message>
            <source>None</source>
            <translation>無</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>橫幅頁面</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>晚上 (18:00 到 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>指定時間</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>付款資訊：</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>排定列印：</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>機密</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>高度機密</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>開始：</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>早上 (06:00 到 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>第二輪班 (16:00 到 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>作業控制</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>假日（週六到週日）</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>標準</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>已分類</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>第三輪班 (00:00 到 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>立即暫停列印</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>立即列印</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>機密</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>作業優先級：</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>未分類</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>頂端</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>往下捲動</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>在此捲動</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>往左捲動</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>底端</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>頁面上方</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>頁面右方</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>往上捲動</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>往右捲動</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>左邊緣</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>頁面下方</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>頁面左方</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>右邊緣</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>返回</translation>
        </message>
        <message>
            <source>File</source>
            <translation>檔案</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>開啟</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>開啟(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>儲存(&amp;S)</translation>
        </message>
        <message>
            <source>Alias</source>
            <translation>別名</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>硬碟</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>檔案</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>顯示 </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>「%1」有寫入保護。
仍然刪除？</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>確定刪除「%1」？</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>位置與書籤列表</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>檔名(&amp;N)：</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>檔案資料夾</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>刪除</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>新資料夾</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>資料夾</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>父目錄</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>新增資料夾(&amp;N)</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>移除</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>我的電腦</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>尋找於：</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>建立新資料夾</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>%1 檔案</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>檔案型態：</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>尋找資料夾</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>顯示隱藏檔案(&amp;H)</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>另存新檔</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
找不到目錄。
請檢查提供的目錄名稱是否正確。</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>側邊欄</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>列表檢視</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>選擇(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>刪除(&amp;D)</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>所有檔案(*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>所有檔案 (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>資料夾</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>重新命名(&amp;R)</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>無法刪除資料夾。</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>目錄：</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>未知</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>%1 已存在。
是否取代？</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>往前</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>往前</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>前往父目錄</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>最近開啟位置</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>返回</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>切換到詳細檢視模式</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>建立新資料夾</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>捷徑</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>詳細檢視</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
找不到檔案。
請檢查提供的檔名是否正確。</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>切換到列表檢視模式</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>剪下(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>複製(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>重做(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>復原(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>貼上(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>刪除</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>全部選擇</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>剪下(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>複製(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>重做(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>復原(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>貼上(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>刪除</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>全部選擇</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>複製連結位址(&amp;L)</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>表單</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>頁面</translation>
        </message>
        <message>
            <source>There are conflicts in some options. Please fix them.</source>
            <translation>部份選項發生衝突，請修復這些問題。</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>進階</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>種類</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名稱</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>大小</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>型態</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>我的電腦</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>電腦</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>檔名無效</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
            <translation>&lt;b&gt;不能使用名稱「%1」。&lt;/b&gt;&lt;p&gt;嘗試使用字數較少或沒有標點符號的另一名稱。</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>修改日期</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>真 (True)</translation>
        </message>
        <message>
            <source>False</source>
            <translation>假 (False)</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>打開下拉式方塊的選取區塊彈出視窗</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Advanced Option Conflicts</source>
            <translation>進階選項衝突</translation>
        </message>
        <message>
            <source>Job Options</source>
            <translation>作業選項</translation>
        </message>
        <message>
            <source>Page Setup Conflicts</source>
            <translation>頁面設定衝突</translation>
        </message>
        <message>
            <source>There are conflicts in some advanced options. Do you want to fix them?</source>
            <translation>部份進階選項發現衝突，是否修復？</translation>
        </message>
        <message>
            <source>There are conflicts in page setup options. Do you want to fix them?</source>
            <translation>頁面設定中發現衝突選項，是否修復？</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>列印機屬性</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>這是什麼？</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Show Details...</source>
            <translation>顯示詳情...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>隱藏詳情...</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>RLE Start of right-to-left embedding</source>
            <translation>RLE 右到左嵌入起點</translation>
        </message>
        <message>
            <source>ZWSP Zero width space</source>
            <translation>ZWSP 零寬度空白</translation>
        </message>
        <message>
            <source>LRI Left-to-right isolate</source>
            <translation>LRI 左至右分隔</translation>
        </message>
        <message>
            <source>Insert Unicode control character</source>
            <translation>插入 Unicode 控制字元</translation>
        </message>
        <message>
            <source>LRO Start of left-to-right override</source>
            <translation>LRO 左到右覆寫起點</translation>
        </message>
        <message>
            <source>LRE Start of left-to-right embedding</source>
            <translation>LRE 左到右嵌入起點</translation>
        </message>
        <message>
            <source>RLI Right-to-left isolate</source>
            <translation>RLI 右至左分隔</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM 右到左標記</translation>
        </message>
        <message>
            <source>PDF Pop directional formatting</source>
            <translation>PDF 彈出方向格式</translation>
        </message>
        <message>
            <source>ZWNJ Zero width non-joiner</source>
            <translation>ZWNJ 零寬度非連接器</translation>
        </message>
        <message>
            <source>RLO Start of right-to-left override</source>
            <translation>RLO 右到左覆寫起點</translation>
        </message>
        <message>
            <source>ZWJ Zero width joiner</source>
            <translation>ZWJ 零寬度連接器</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM 左到右標記</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>單步向下(&amp;D)</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>單步向上(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>全部選擇(&amp;S)</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>往左捲動</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>往右捲動</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>關閉分頁</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>執行檔「%1」需要 Qt %2，但只找到 Qt %3。</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Qt 函式庫不相容錯誤</translation>
        </message>
    </context>
</TS>
