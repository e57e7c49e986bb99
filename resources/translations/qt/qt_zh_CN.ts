<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Left</source>
            <translation>左方向</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>右方向</translation>
        </message>
        <message>
            <source>Space</source>
            <translation>空格</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>退格</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Note</source>
            <translation>美国笔记 (Note)</translation>
        </message>
        <message>
            <source>Letter / ANSI A</source>
            <translation>美国信纸 (Letter) / ANSI A</translation>
        </message>
        <message>
            <source>Legal</source>
            <translation>美国法律 (Legal)</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>美国信封君王 (Envelope Monarch)</translation>
        </message>
        <message>
            <source>Architect A</source>
            <translation>美国图纸 (Architect) A</translation>
        </message>
        <message>
            <source>Architect B</source>
            <translation>美国图纸 (Architect) B</translation>
        </message>
        <message>
            <source>Architect C</source>
            <translation>美国图纸 (Architect) C</translation>
        </message>
        <message>
            <source>Architect D</source>
            <translation>美国图纸 (Architect) D</translation>
        </message>
        <message>
            <source>Architect E</source>
            <translation>美国图纸 (Architect) E</translation>
        </message>
        <message>
            <source>Letter Extra</source>
            <translation>美国信纸 (Letter) 加大</translation>
        </message>
        <message>
            <source>Letter Small</source>
            <translation>美国信纸 (Letter) 小号</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>日本信封洋形 4 号</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>美国信封 (Envelope) 10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>美国信封 (Envelope) 11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>美国信封 (Envelope) 12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>美国信封 (Envelope) 14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>中国大陆信封 1 号</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>中国大陆信封 2 号</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>中国大陆信封 3 号</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>中国大陆信封 4 号</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>中国大陆信封 5 号</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>中国大陆信封 6 号</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>中国大陆信封 7 号</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>中国大陆信封 8 号</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>中国大陆信封 9 号</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>国际信封 (Envelope) C65</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>国际信封 (Envelope) DL</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>国际信封 (Envelope) B4</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>国际信封 (Envelope) B5</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>国际信封 (Envelope) B6</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>国际信封 (Envelope) C0</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>国际信封 (Envelope) C1</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>国际信封 (Envelope) C2</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>国际信封 (Envelope) C3</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>国际信封 (Envelope) C4</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>国际信封 (Envelope) C5</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>国际信封 (Envelope) C6</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>国际信封 (Envelope) C7</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>美国行政 (Executive) (7.5 x 10 in)</translation>
        </message>
        <message>
            <source>A4 Plus</source>
            <translation>A4 超大</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>自定义</translation>
        </message>
        <message>
            <source>A3 Extra</source>
            <translation>A3 加大</translation>
        </message>
        <message>
            <source>PRC 16K</source>
            <translation>中国大陆 16 开</translation>
        </message>
        <message>
            <source>PRC 32K</source>
            <translation>中国大陆 32 开</translation>
        </message>
        <message>
            <source>Quarto</source>
            <translation>美国四分 (Quarto)</translation>
        </message>
        <message>
            <source>PRC 32K Big</source>
            <translation>中国大陆大 32 开</translation>
        </message>
        <message>
            <source>A4 Extra</source>
            <translation>A4 加大</translation>
        </message>
        <message>
            <source>A4 Small</source>
            <translation>A4 小号</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>美国行政 (Executive) (7.25 x 10.5 in)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>美国明信片 (Postcard)</translation>
        </message>
        <message>
            <source>Tabloid / ANSI B</source>
            <translation>美国小报 (Tabloid) / ANSI B</translation>
        </message>
        <message>
            <source>A5 Extra</source>
            <translation>A5 加大</translation>
        </message>
        <message>
            <source>B5 Extra</source>
            <translation>B5 加大</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>国际信封请柬 (Envelope Invite)</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>日本信封长形 3 号</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>日本信封长形 4 号</translation>
        </message>
        <message>
            <source>Statement</source>
            <translation>美国声明 (Statement)</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>德国连张 (Fan-fold) (8.5 x 12 in)</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>中国大陆信封 10 号</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>日本信封角形 2 号</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>日本信封角形 3 号</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>美国信封 (Envelope) 9</translation>
        </message>
        <message>
            <source>Super A</source>
            <translation>美国相纸 (Super) A</translation>
        </message>
        <message>
            <source>Super B</source>
            <translation>美国相纸 (Super) B</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>美国连张 (Fan-fold) (14.875 x 11 in)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>德国连张法律 (Fan-fold Legal) (8.5 x 13 in)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>自定义 (%1in x %2in)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>自定义 (%1mm x %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>自定义 (%1CC x %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>自定义 (%1DD x %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>自定义 (%1pc x %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>自定义 (%1pt x %2pt)</translation>
        </message>
        <message>
            <source>Letter Plus</source>
            <translation>美国信纸 (Letter) 超大</translation>
        </message>
        <message>
            <source>Tabloid Extra</source>
            <translation>美国小报 (Tabloid) 加大</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>国际信封意式 (Envelope Italian)</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>美国明信片双倍 (Double Postcard)</translation>
        </message>
        <message>
            <source>Legal Extra</source>
            <translation>美国法律 (Legal) 加大</translation>
        </message>
        <message>
            <source>Folio (8.27 x 13 in)</source>
            <translation>欧洲对开 (Folio) (8.27 x 13 in)</translation>
        </message>
        <message>
            <source>Ledger / ANSI B</source>
            <translation>美国账簿 (Ledger) / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>美国信封个人 (Envelope Personal)</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>Form</source>
            <translation>窗体</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>下边距</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>纸张</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>纸张来源：</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>右边距</translation>
        </message>
        <message>
            <source>Pica (P̸)</source>
            <translation>派卡 (P̸)</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>边距</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>自定义</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>横向</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>页面布局</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>宽度：</translation>
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
            <translation>纵向</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>页面顺序：</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>上边距</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>左边距</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>纸张大小：</translation>
        </message>
        <message>
            <source>Cicero (CC)</source>
            <translation>西塞罗 (CC)</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>纵向倒转</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>毫米 (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>点 (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>每张页数：</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>英寸 (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>横向倒转</translation>
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
            <translation>确定</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>OK</source>
            <translation>确定</translation>
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
            <translation>帮助</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>打开</translation>
        </message>
        <message>
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message>
            <source>Abort</source>
            <translation>中止</translation>
        </message>
        <message>
            <source>Apply</source>
            <translation>应用</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>关闭</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>重置</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>重试</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>恢复默认值</translation>
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
            <translation>全否(&amp;O)</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>全部保存</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>丢弃</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>全是(&amp;A)</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>OK</source>
            <translation>确定</translation>
        </message>
        <message>
            <source>Even Pages</source>
            <translation>偶数页面</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>打印</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>选项(&amp;O) &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>选项(&amp;O) &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>从左到右，从上到下</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>从右到左，从下到上</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>写入 PDF 文件</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>打印(&amp;P)</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>“每张页数”和“页面组”选项不可同时使用。
请关闭它们之中的其中一个。</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1 已存在。
您想要覆盖它吗？</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>从左到右，从下到上</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>奇数页面</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>本机文件</translation>
        </message>
        <message>
            <source>There are conflicts in duplex settings. Do you want to fix them?</source>
            <translation>双面打印设置存在冲突。您想要修复它们吗？</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>打印到文件(PDF)</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>打印为文件...</translation>
        </message>
        <message>
            <source>Invalid Pages Definition</source>
            <translation>页面定义无效</translation>
        </message>
        <message>
            <source>%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define ranges and make sure ranges do not intersect with each other.</source>
            <translation>%1 不符合正确语法。请使用“,”来分隔范围和页面，“-”来定义范围，并确保不同范围不相互重叠。</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>从右到左，从上到下</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>从下到上，从左到右</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>“开始”数值不得大于“结束”数值。</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>全部页面</translation>
        </message>
        <message>
            <source>Duplex Settings Conflicts</source>
            <translation>双面打印设置冲突</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 是一个目录。
请选择一个不同的文件名。</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>文件 %1 不可写入。
请选择一个不同的文件名。</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>从下到上，从右到左</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>从上到下，从左到右</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>从上到下，从右到左</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>到</translation>
        </message>
        <message>
            <source>Off</source>
            <translation>关闭</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>窗体</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>彩色</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>打印全部</translation>
        </message>
        <message>
            <source>Pages</source>
            <translation>页数</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>当前页面</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>选择</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>份数</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>打印范围</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>彩色模式</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>选项</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>输出设置</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>反向打印</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>灰阶</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>逐份打印</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>份数：</translation>
        </message>
        <message>
            <source>Short side binding</source>
            <translation>短边装订</translation>
        </message>
        <message>
            <source>Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.</source>
            <translation>指定页面或范围，以半角逗号分隔。范围通过在两个数字之间插入半角连字号指定。例如：3,5-7,9 将打印 3、5、6、7、9 页。</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>页数从</translation>
        </message>
        <message>
            <source>Double Sided Printing</source>
            <translation>双面打印</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>页面组：</translation>
        </message>
        <message>
            <source>Long side binding</source>
            <translation>长边装订</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;OK</source>
            <translation>确定(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>保存(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>关闭(&amp;C)</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>关闭且不保存</translation>
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
            <translation />
        </message>
        <message>
            <source>Form</source>
            <translation>窗体</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>类型：</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>名称(&amp;N)：</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>输出文件(&amp;F)：</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>属性(&amp;R)</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>预览</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>打印机</translation>
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
            <translation>任务</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>结束：</translation>
        </message>
        <message>
            <source>None</source>
            <translation>无</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>横幅页面</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>夜间 (18:00 到 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>指定时间</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>账单信息：</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>计划打印：</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>秘密</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>绝密</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>开始：</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>白天 (06:00 到 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>第二班 (16:00 到 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>任务控制</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>周末 (周六到周日)</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>标准</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>有密级</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>第三班 (00:00 到 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>无限期待机</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>立即打印</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>机密</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>任务优先级：</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>无密级</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>顶端</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>向下滚动</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>滚动至此</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>向左滚动</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>底部</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>向上翻页</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>向右翻页</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>向上滚动</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>向右滚动</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>左边缘</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>向下翻页</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>向左翻页</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>右边缘</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>后退</translation>
        </message>
        <message>
            <source>File</source>
            <translation>文件</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>打开</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>打开(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>保存(&amp;S)</translation>
        </message>
        <message>
            <source>Alias</source>
            <translation>别名</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>驱动器</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>文件</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>显示 </translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>“%1”已被写入保护。
您仍然想要删除它吗？</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>您确定要删除“%1”吗？</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>位置和书签列表</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>文件名称(&amp;N)：</translation>
        </message>
        <message>
            <source>Alt+Left</source>
            <translation>Alt+左方向键</translation>
        </message>
        <message>
            <source>Alt+Up</source>
            <translation>Alt+上方向键</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>文件夹</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>新建文件夹</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>文件夹</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>父目录</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>新建文件夹(&amp;N)</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>移除</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>我的电脑</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>查找范围：</translation>
        </message>
        <message>
            <source>Alt+Right</source>
            <translation>Alt+右方向键</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>新建一个文件夹</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>%1 文件</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>文件类型：</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>查找目录</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>显示隐藏文件(&amp;H)</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>另存为</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
目录未找到。
请检查指定的目录名是否正确。</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>侧边栏</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>列表视图</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>选择(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>删除(&amp;D)</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>所有文件 (*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>所有文件 (*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>目录</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>重命名(&amp;R)</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>无法删除目录。</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>目录：</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>未知</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>%1 已存在。
您想要替换它吗？</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>前进</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>前进</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>转到父目录</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>最近位置</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>后退</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>更改为详情视图模式</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>新建文件夹</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>快捷方式</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>详情视图</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
文件未找到。
请检查指定的文件名是否正确。</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>更改为列表视图模式</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>剪切(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>复制(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>重做(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>撤消(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>粘贴(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>全选</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>剪切(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>复制(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>重做(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>撤消(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>粘贴(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>删除</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>全选</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>复制链接地址(&amp;L)</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>窗体</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>页</translation>
        </message>
        <message>
            <source>There are conflicts in some options. Please fix them.</source>
            <translation>某些选项存在冲突。请修复它们。</translation>
        </message>
        <message>
            <source>Advanced</source>
            <translation>高级</translation>
        </message>
    </context>
    <context>
        <name>QFileSystemModel</name>
        <message>
            <source>Kind</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>名称</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>体积</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>类型</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>我的电脑</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>计算机</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>无效的文件名</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
            <translation>&lt;b&gt;文件名“%1”不可使用。&lt;/b&gt;&lt;p&gt;请尝试其他文件名，减少字数或避免使用标点符号。</translation>
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
            <translation>是</translation>
        </message>
        <message>
            <source>False</source>
            <translation>否</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>打开组合框弹出选单</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Advanced Option Conflicts</source>
            <translation>高级选项冲突</translation>
        </message>
        <message>
            <source>Job Options</source>
            <translation>任务选项</translation>
        </message>
        <message>
            <source>Page Setup Conflicts</source>
            <translation>页面设置冲突</translation>
        </message>
        <message>
            <source>There are conflicts in some advanced options. Do you want to fix them?</source>
            <translation>高级选项存在冲突。您想要修复它们吗？</translation>
        </message>
        <message>
            <source>There are conflicts in page setup options. Do you want to fix them?</source>
            <translation>页面设置选项存在冲突。您想要修复它们吗？</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>打印机属性</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>这是什么？</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Show Details...</source>
            <translation>显示详情...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>隐藏详情...</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>RLE Start of right-to-left embedding</source>
            <translation>RLE 开始从右向左嵌入</translation>
        </message>
        <message>
            <source>ZWSP Zero width space</source>
            <translation>ZWSP 零宽度空格</translation>
        </message>
        <message>
            <source>LRI Left-to-right isolate</source>
            <translation>LRI 从左到右隔离</translation>
        </message>
        <message>
            <source>Insert Unicode control character</source>
            <translation>插入 Unicode 控制字符</translation>
        </message>
        <message>
            <source>LRO Start of left-to-right override</source>
            <translation>LRO 开始从左向右重写</translation>
        </message>
        <message>
            <source>LRE Start of left-to-right embedding</source>
            <translation>LRE 开始从左到右嵌入</translation>
        </message>
        <message>
            <source>RLI Right-to-left isolate</source>
            <translation>RLI 从右到左隔离</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM 从右向左标记</translation>
        </message>
        <message>
            <source>PDF Pop directional formatting</source>
            <translation>PDF 弹出方向格式</translation>
        </message>
        <message>
            <source>ZWNJ Zero width non-joiner</source>
            <translation>ZWNJ 零宽不连字</translation>
        </message>
        <message>
            <source>RLO Start of right-to-left override</source>
            <translation>RLO 开始从右向左重写</translation>
        </message>
        <message>
            <source>PDI Pop directional isolate</source>
            <translation>PDI 弹出定向隔离</translation>
        </message>
        <message>
            <source>ZWJ Zero width joiner</source>
            <translation>ZWJ 零宽连字</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM 从左到右标记</translation>
        </message>
        <message>
            <source>FSI First strong isolate</source>
            <translation>FSI 第一强隔离</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>降低(&amp;D)</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>升高(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>全选(&amp;S)</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>向左滚动</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>向右滚动</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>关闭标签页</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>可执行程序“%1”要求 Qt %2，但找到的是 Qt %3。</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>Qt 程序库不兼容错误</translation>
        </message>
    </context>
</TS>
