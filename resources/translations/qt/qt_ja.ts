<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
    <context>
        <name>QShortcut</name>
        <message>
            <source>Left</source>
            <translation>←</translation>
        </message>
        <message>
            <source>Right</source>
            <translation>→</translation>
        </message>
        <message>
            <source>Backspace</source>
            <translation>Backspae</translation>
        </message>
    </context>
    <context>
        <name>QPageSize</name>
        <message>
            <source>Note</source>
            <translation>ノート</translation>
        </message>
        <message>
            <source>Letter / ANSI A</source>
            <translation>レター / ANSI A</translation>
        </message>
        <message>
            <source>Legal</source>
            <translation>リーガルサイズ</translation>
        </message>
        <message>
            <source>Envelope Monarch</source>
            <translation>封筒モナーク</translation>
        </message>
        <message>
            <source>Architect A</source>
            <translation>ARCH A</translation>
        </message>
        <message>
            <source>Architect B</source>
            <translation>ARCH B</translation>
        </message>
        <message>
            <source>Architect C</source>
            <translation>ARCH C</translation>
        </message>
        <message>
            <source>Architect D</source>
            <translation>ARCH D</translation>
        </message>
        <message>
            <source>Architect E</source>
            <translation>ARCH E</translation>
        </message>
        <message>
            <source>Letter Extra</source>
            <translation>レター Extra</translation>
        </message>
        <message>
            <source>Letter Small</source>
            <translation>レター Small</translation>
        </message>
        <message>
            <source>Envelope You 4</source>
            <translation>洋形4号封筒</translation>
        </message>
        <message>
            <source>Envelope US 10</source>
            <translation>US 封筒 #10</translation>
        </message>
        <message>
            <source>Envelope US 11</source>
            <translation>US 封筒 #11</translation>
        </message>
        <message>
            <source>Envelope US 12</source>
            <translation>US 封筒 #12</translation>
        </message>
        <message>
            <source>Envelope US 14</source>
            <translation>US 封筒 #14</translation>
        </message>
        <message>
            <source>Envelope PRC 1</source>
            <translation>PRC 封筒 #1</translation>
        </message>
        <message>
            <source>Envelope PRC 2</source>
            <translation>PRC 封筒 #2</translation>
        </message>
        <message>
            <source>Envelope PRC 3</source>
            <translation>PRC 封筒 #3</translation>
        </message>
        <message>
            <source>Envelope PRC 4</source>
            <translation>PRC 封筒 #4</translation>
        </message>
        <message>
            <source>Envelope PRC 5</source>
            <translation>PRC 封筒 #5</translation>
        </message>
        <message>
            <source>Envelope PRC 6</source>
            <translation>PRC 封筒 #6</translation>
        </message>
        <message>
            <source>Envelope PRC 7</source>
            <translation>PRC 封筒 #7</translation>
        </message>
        <message>
            <source>Envelope PRC 8</source>
            <translation>PRC 封筒 #8</translation>
        </message>
        <message>
            <source>Envelope PRC 9</source>
            <translation>PRC 封筒 #9</translation>
        </message>
        <message>
            <source>Envelope C65</source>
            <translation>C65 封筒</translation>
        </message>
        <message>
            <source>Envelope DL</source>
            <translation>DL 封筒</translation>
        </message>
        <message>
            <source>Envelope B4</source>
            <translation>B4 封筒</translation>
        </message>
        <message>
            <source>Envelope B5</source>
            <translation>B5 封筒</translation>
        </message>
        <message>
            <source>Envelope B6</source>
            <translation>B6 封筒</translation>
        </message>
        <message>
            <source>Envelope C0</source>
            <translation>C0 封筒</translation>
        </message>
        <message>
            <source>Envelope C1</source>
            <translation>C1 封筒</translation>
        </message>
        <message>
            <source>Envelope C2</source>
            <translation>C2 封筒</translation>
        </message>
        <message>
            <source>Envelope C3</source>
            <translation>C3 封筒</translation>
        </message>
        <message>
            <source>Envelope C4</source>
            <translation>C4 封筒</translation>
        </message>
        <message>
            <source>Envelope C5</source>
            <translation>C5 封筒</translation>
        </message>
        <message>
            <source>Envelope C6</source>
            <translation>C6 封筒</translation>
        </message>
        <message>
            <source>Envelope C7</source>
            <translation>C7 封筒</translation>
        </message>
        <message>
            <source>Executive (7.5 x 10 in)</source>
            <translation>エグゼクティヴ (7.5 × 10in)</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>カスタム</translation>
        </message>
        <message>
            <source>Quarto</source>
            <translation>クォート</translation>
        </message>
        <message>
            <source>PRC 32K Big</source>
            <translation>PRC 32K(大)</translation>
        </message>
        <message>
            <source>Executive (7.25 x 10.5 in)</source>
            <translation>エグゼクティヴ (7.25 × 10.5in)</translation>
        </message>
        <message>
            <source>Postcard</source>
            <translation>ポストカード</translation>
        </message>
        <message>
            <source>Tabloid / ANSI B</source>
            <translation>タブロイド / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Invite</source>
            <translation>招待状用封筒</translation>
        </message>
        <message>
            <source>Envelope Chou 3</source>
            <translation>長形3号封筒</translation>
        </message>
        <message>
            <source>Envelope Chou 4</source>
            <translation>長形4号封筒</translation>
        </message>
        <message>
            <source>Statement</source>
            <translation>ステイトメント</translation>
        </message>
        <message>
            <source>Fan-fold German (8.5 x 12 in)</source>
            <translation>ドイツファンフォールド (8.5 × 12in)</translation>
        </message>
        <message>
            <source>Envelope PRC 10</source>
            <translation>PRC 封筒 #10</translation>
        </message>
        <message>
            <source>Envelope Kaku 2</source>
            <translation>角形2号封筒</translation>
        </message>
        <message>
            <source>Envelope Kaku 3</source>
            <translation>角形3号封筒</translation>
        </message>
        <message>
            <source>Envelope US 9</source>
            <translation>US 封筒 #9</translation>
        </message>
        <message>
            <source>%1 x %2 in</source>
            <translation>%1 × %2in</translation>
        </message>
        <message>
            <source>Fan-fold US (14.875 x 11 in)</source>
            <translation>US ファンフォールド (14.875 × 11in)</translation>
        </message>
        <message>
            <source>Fan-fold German Legal (8.5 x 13 in)</source>
            <translation>ドイツリーガルファンフォールド (8.5 × 13in)</translation>
        </message>
        <message>
            <source>Custom (%1in x %2in)</source>
            <translation>カスタム (%1in × %2in)</translation>
        </message>
        <message>
            <source>Custom (%1mm x %2mm)</source>
            <translation>カスタム (%1mm × %2mm)</translation>
        </message>
        <message>
            <source>Custom (%1CC x %2CC)</source>
            <translation>カスタム (%1CC × %2CC)</translation>
        </message>
        <message>
            <source>Custom (%1DD x %2DD)</source>
            <translation>カスタム (%1DD × %2DD)</translation>
        </message>
        <message>
            <source>Custom (%1pc x %2pc)</source>
            <translation>カスタム (%1pc × %2pc)</translation>
        </message>
        <message>
            <source>Custom (%1pt x %2pt)</source>
            <translation>カスタム (%1pt × %2pt)</translation>
        </message>
        <message>
            <source>Letter Plus</source>
            <translation>レター Plus</translation>
        </message>
        <message>
            <source>Tabloid Extra</source>
            <translation>タブロイド・エクストラ</translation>
        </message>
        <message>
            <source>Envelope Italian</source>
            <translation>封筒イタリア</translation>
        </message>
        <message>
            <source>Double Postcard</source>
            <translation>ダブルポストカード</translation>
        </message>
        <message>
            <source>Legal Extra</source>
            <translation>リーガル Extra</translation>
        </message>
        <message>
            <source>Folio (8.27 x 13 in)</source>
            <translation>フォリオ (8.27 × 13in)</translation>
        </message>
        <message>
            <source>Ledger / ANSI B</source>
            <translation>レジャー / ANSI B</translation>
        </message>
        <message>
            <source>Envelope Personal</source>
            <translation>個人用封筒</translation>
        </message>
    </context>
    <context>
        <name>QPageSetupWidget</name>
        <message>
            <source>P̸</source>
            <translation>pc</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>書式設定</translation>
        </message>
        <message>
            <source>bottom margin</source>
            <translation>下端余白</translation>
        </message>
        <message>
            <source>Paper</source>
            <translation>用紙</translation>
        </message>
        <message>
            <source>Paper source:</source>
            <translation>給紙装置:</translation>
        </message>
        <message>
            <source>right margin</source>
            <translation>右端余白</translation>
        </message>
        <message>
            <source>Pica (P̸)</source>
            <translation>パイカ (pc)</translation>
        </message>
        <message>
            <source>Margins</source>
            <translation>余白</translation>
        </message>
        <message>
            <source>Custom</source>
            <translation>カスタム</translation>
        </message>
        <message>
            <source>Landscape</source>
            <translation>横 (ランドスケープ)</translation>
        </message>
        <message>
            <source>Page Layout</source>
            <translation>ページレイアウト</translation>
        </message>
        <message>
            <source>Width:</source>
            <translation>幅:</translation>
        </message>
        <message>
            <source>Orientation</source>
            <translation>印刷の向き</translation>
        </message>
        <message>
            <source>Didot (DD)</source>
            <translation>ディドー (DD)</translation>
        </message>
        <message>
            <source>Portrait</source>
            <translation>縦 (ポートレート)</translation>
        </message>
        <message>
            <source>Page order:</source>
            <translation>ページの順序:</translation>
        </message>
        <message>
            <source>top margin</source>
            <translation>上端余白</translation>
        </message>
        <message>
            <source>left margin</source>
            <translation>左端余白</translation>
        </message>
        <message>
            <source>Page size:</source>
            <translation>用紙サイズ:</translation>
        </message>
        <message>
            <source>Cicero (CC)</source>
            <translation>シセロ (CC)</translation>
        </message>
        <message>
            <source>Reverse portrait</source>
            <translation>縦 反転 (リバースポートレート)</translation>
        </message>
        <message>
            <source>Millimeters (mm)</source>
            <translation>ミリメートル (mm)</translation>
        </message>
        <message>
            <source>Points (pt)</source>
            <translation>ポイント (pt)</translation>
        </message>
        <message>
            <source>Pages per sheet:</source>
            <translation>シートごとのページ数:</translation>
        </message>
        <message>
            <source>Inches (in)</source>
            <translation>インチ (in)</translation>
        </message>
        <message>
            <source>Reverse landscape</source>
            <translation>横 反転 (リバースランドスケープ)</translation>
        </message>
        <message>
            <source>Height:</source>
            <translation>高さ:</translation>
        </message>
    </context>
    <context>
        <name>QMessageBox</name>
        <message>
            <source>Help</source>
            <translation>ヘルプ</translation>
        </message>
        <message>
            <source>Show Details...</source>
            <translation>詳細を表示...</translation>
        </message>
        <message>
            <source>Hide Details...</source>
            <translation>詳細を隠す...</translation>
        </message>
    </context>
    <context>
        <name>QPlatformTheme</name>
        <message>
            <source>&amp;No</source>
            <translation>いいえ(&amp;N)</translation>
        </message>
        <message>
            <source>&amp;Yes</source>
            <translation>はい(&amp;Y)</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>ヘルプ</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>開く</translation>
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
            <translation>適用</translation>
        </message>
        <message>
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
        <message>
            <source>Reset</source>
            <translation>リセット</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>再試行</translation>
        </message>
        <message>
            <source>Restore Defaults</source>
            <translation>デフォルトに戻す</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message>
            <source>Ignore</source>
            <translation>無視</translation>
        </message>
        <message>
            <source>N&amp;o to All</source>
            <translation>全ていいえ(&amp;O)</translation>
        </message>
        <message>
            <source>Save All</source>
            <translation>すべて保存</translation>
        </message>
        <message>
            <source>Discard</source>
            <translation>変更を破棄</translation>
        </message>
        <message>
            <source>Yes to &amp;All</source>
            <translation>全てはい(&amp;A)</translation>
        </message>
    </context>
    <context>
        <name>QPrintDialog</name>
        <message>
            <source>Even Pages</source>
            <translation>偶数ページ</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message>
            <source>&amp;Options &lt;&lt;</source>
            <translation>オプション(&amp;O) &lt;&lt;</translation>
        </message>
        <message>
            <source>&amp;Options &gt;&gt;</source>
            <translation>オプション(&amp;O) &gt;&gt;</translation>
        </message>
        <message>
            <source>Left to Right, Top to Bottom</source>
            <translation>左から右、上から下</translation>
        </message>
        <message>
            <source>Right to Left, Bottom to Top</source>
            <translation>右から左、下から上</translation>
        </message>
        <message>
            <source>Write PDF file</source>
            <translation>PDF ファイルへ書き込み</translation>
        </message>
        <message>
            <source>&amp;Print</source>
            <translation>印刷(&amp;P)</translation>
        </message>
        <message>
            <source>Options 'Pages Per Sheet' and 'Page Set' cannot be used together.
Please turn one of those options off.</source>
            <translation>「シートごとのページ数」と「ページセット」オプションは同時には使用できません。
どちらかのオプションをオフにしてください。</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to overwrite it?</source>
            <translation>%1 は既に存在します。
上書きしますか?</translation>
        </message>
        <message>
            <source>Left to Right, Bottom to Top</source>
            <translation>左から右、下から上</translation>
        </message>
        <message>
            <source>Odd Pages</source>
            <translation>奇数ページ</translation>
        </message>
        <message>
            <source>Local file</source>
            <translation>ローカルファイル</translation>
        </message>
        <message>
            <source>Print to File (PDF)</source>
            <translation>PDF ファイルに出力</translation>
        </message>
        <message>
            <source>Print To File ...</source>
            <translation>ファイルへ出力...</translation>
        </message>
        <message>
            <source>Automatic</source>
            <translation>自動</translation>
        </message>
        <message>
            <source>Right to Left, Top to Bottom</source>
            <translation>右から左、上から下</translation>
        </message>
        <message>
            <source>Bottom to Top, Left to Right</source>
            <translation>下から上、左から右</translation>
        </message>
        <message>
            <source>The 'From' value cannot be greater than the 'To' value.</source>
            <translation>印刷開始ページ番号は、印刷終了ページ番号より小さくなければなりません。</translation>
        </message>
        <message>
            <source>All Pages</source>
            <translation>全てのページ</translation>
        </message>
        <message>
            <source>%1 is a directory.
Please choose a different file name.</source>
            <translation>%1 はディレクトリです。
別のファイル名を指定してください。</translation>
        </message>
        <message>
            <source>File %1 is not writable.
Please choose a different file name.</source>
            <translation>ファイル %1 は書き込み可能ではありません。
別のファイル名を指定してください。</translation>
        </message>
        <message>
            <source>Bottom to Top, Right to Left</source>
            <translation>下から上、右から左</translation>
        </message>
        <message>
            <source>Top to Bottom, Left to Right</source>
            <translation>上から下、左から右</translation>
        </message>
        <message>
            <source>Top to Bottom, Right to Left</source>
            <translation>上から下、右から左</translation>
        </message>
    </context>
    <context>
        <name>QPrintSettingsOutput</name>
        <message>
            <source>to</source>
            <translation>末尾のページ</translation>
        </message>
        <message>
            <source>Form</source>
            <translation>書式</translation>
        </message>
        <message>
            <source>None</source>
            <translation>なし</translation>
        </message>
        <message>
            <source>Color</source>
            <translation>カラー</translation>
        </message>
        <message>
            <source>Print all</source>
            <translation>すべて印刷</translation>
        </message>
        <message>
            <source>Current Page</source>
            <translation>現在のページ</translation>
        </message>
        <message>
            <source>Selection</source>
            <translation>選択した部分を印刷</translation>
        </message>
        <message>
            <source>Long side</source>
            <translation>長辺綴じ</translation>
        </message>
        <message>
            <source>Copies</source>
            <translation>印刷部数</translation>
        </message>
        <message>
            <source>Print range</source>
            <translation>印刷範囲</translation>
        </message>
        <message>
            <source>Color Mode</source>
            <translation>カラーモード</translation>
        </message>
        <message>
            <source>Options</source>
            <translation>オプション</translation>
        </message>
        <message>
            <source>Output Settings</source>
            <translation>出力設定</translation>
        </message>
        <message>
            <source>Reverse</source>
            <translation>逆順</translation>
        </message>
        <message>
            <source>Grayscale</source>
            <translation>グレースケール</translation>
        </message>
        <message>
            <source>Short side</source>
            <translation>短辺綴じ</translation>
        </message>
        <message>
            <source>Collate</source>
            <translation>丁合い</translation>
        </message>
        <message>
            <source>Copies:</source>
            <translation>印刷部数:</translation>
        </message>
        <message>
            <source>Pages from</source>
            <translation>先頭のページ</translation>
        </message>
        <message>
            <source>Page Set:</source>
            <translation>ページセット:</translation>
        </message>
        <message>
            <source>Duplex Printing</source>
            <translation>両面印刷</translation>
        </message>
    </context>
    <context>
        <name>QGnomeTheme</name>
        <message>
            <source>&amp;Save</source>
            <translation>保存(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Close</source>
            <translation>閉じる(&amp;C)</translation>
        </message>
        <message>
            <source>Close without Saving</source>
            <translation>保存せずに閉じる</translation>
        </message>
        <message>
            <source>&amp;Cancel</source>
            <translation>キャンセル(&amp;C)</translation>
        </message>
    </context>
    <context>
        <name>QPrintWidget</name>
        <message>
            <source>Form</source>
            <translation>書式</translation>
        </message>
        <message>
            <source>Type:</source>
            <translation>タイプ:</translation>
        </message>
        <message>
            <source>&amp;Name:</source>
            <translation>名前(&amp;N):</translation>
        </message>
        <message>
            <source>Output &amp;file:</source>
            <translation>出力ファイル名(&amp;F):</translation>
        </message>
        <message>
            <source>P&amp;roperties</source>
            <translation>プロパティ(&amp;R)</translation>
        </message>
        <message>
            <source>Preview</source>
            <translation>プレビュー</translation>
        </message>
        <message>
            <source>Printer</source>
            <translation>プリンタ</translation>
        </message>
        <message>
            <source>Location:</source>
            <translation>設置場所:</translation>
        </message>
    </context>
    <context>
        <name>QCupsJobWidget</name>
        <message>
            <source>Job</source>
            <translation>ジョブ</translation>
        </message>
        <message>
            <source>End:</source>
            <translation>終了バナー:</translation>
        </message>
        <message>
            <source>None</source>
            <translation>なし</translation>
        </message>
        <message>
            <source>Banner Pages</source>
            <translation>バナーページ</translation>
        </message>
        <message>
            <source>Night (18:00 to 05:59)</source>
            <translation>夜間 (18:00 から 05:59)</translation>
        </message>
        <message>
            <source>Specific Time</source>
            <translation>指定時刻</translation>
        </message>
        <message>
            <source>Billing information:</source>
            <translation>課金情報:</translation>
        </message>
        <message>
            <source>Scheduled printing:</source>
            <translation>印刷スケジュール:</translation>
        </message>
        <message>
            <source>Secret</source>
            <translation>機密</translation>
        </message>
        <message>
            <source>Top Secret</source>
            <translation>最高機密</translation>
        </message>
        <message>
            <source>Start:</source>
            <translation>開始バナー:</translation>
        </message>
        <message>
            <source>Day (06:00 to 17:59)</source>
            <translation>昼間 (06:00 から 17:59)</translation>
        </message>
        <message>
            <source>Second Shift (16:00 to 23:59)</source>
            <translation>第2直 (16:00 から 23:59)</translation>
        </message>
        <message>
            <source>Job Control</source>
            <translation>ジョブコントロール</translation>
        </message>
        <message>
            <source>Weekend (Saturday to Sunday)</source>
            <translation>週末 (土曜日から日曜日)</translation>
        </message>
        <message>
            <source>Standard</source>
            <translation>標準</translation>
        </message>
        <message>
            <source>Classified</source>
            <translation>機密扱い</translation>
        </message>
        <message>
            <source>Third Shift (00:00 to 07:59)</source>
            <translation>第3直 (0:00 から 07:59)</translation>
        </message>
        <message>
            <source>Hold Indefinitely</source>
            <translation>待機</translation>
        </message>
        <message>
            <source>Print Immediately</source>
            <translation>すぐに印刷</translation>
        </message>
        <message>
            <source>Confidential</source>
            <translation>内密</translation>
        </message>
        <message>
            <source>Job priority:</source>
            <translation>ジョブ優先度:</translation>
        </message>
        <message>
            <source>Unclassified</source>
            <translation>機密扱いなし</translation>
        </message>
    </context>
    <context>
        <name>QScrollBar</name>
        <message>
            <source>Top</source>
            <translation>上端にスクロール</translation>
        </message>
        <message>
            <source>Scroll down</source>
            <translation>下へスクロール</translation>
        </message>
        <message>
            <source>Scroll here</source>
            <translation>ここにスクロール</translation>
        </message>
        <message>
            <source>Scroll left</source>
            <translation>左へスクロール</translation>
        </message>
        <message>
            <source>Bottom</source>
            <translation>下端にスクロール</translation>
        </message>
        <message>
            <source>Page up</source>
            <translation>１ページ戻る</translation>
        </message>
        <message>
            <source>Page right</source>
            <translation>１ページ右へスクロール</translation>
        </message>
        <message>
            <source>Scroll up</source>
            <translation>上へスクロール</translation>
        </message>
        <message>
            <source>Scroll right</source>
            <translation>右へスクロール</translation>
        </message>
        <message>
            <source>Left edge</source>
            <translation>左端にスクロール</translation>
        </message>
        <message>
            <source>Page down</source>
            <translation>１ページ進む</translation>
        </message>
        <message>
            <source>Page left</source>
            <translation>１ページ左へスクロール</translation>
        </message>
        <message>
            <source>Right edge</source>
            <translation>右端にスクロール</translation>
        </message>
    </context>
    <context>
        <name>QFileDialog</name>
        <message>
            <source>Back</source>
            <translation>戻る</translation>
        </message>
        <message>
            <source>File</source>
            <translation>ファイル</translation>
        </message>
        <message>
            <source>Open</source>
            <translation>開く</translation>
        </message>
        <message>
            <source>&amp;Open</source>
            <translation>開く(&amp;O)</translation>
        </message>
        <message>
            <source>&amp;Save</source>
            <translation>保存(&amp;S)</translation>
        </message>
        <message>
            <source>Alias</source>
            <translation>エイリアス</translation>
        </message>
        <message>
            <source>Drive</source>
            <translation>ドライブ</translation>
        </message>
        <message>
            <source>Files</source>
            <translation>ファイル</translation>
        </message>
        <message>
            <source>Show </source>
            <translation>表示</translation>
        </message>
        <message>
            <source>'%1' is write protected.
Do you want to delete it anyway?</source>
            <translation>'%1' は書き込みが禁止されています。
本当に削除しますか?</translation>
        </message>
        <message>
            <source>Are you sure you want to delete '%1'?</source>
            <translation>'%1' を本当に削除しますか?</translation>
        </message>
        <message>
            <source>List of places and bookmarks</source>
            <translation>アドレスやブックマークのリスト</translation>
        </message>
        <message>
            <source>File &amp;name:</source>
            <translation>ファイル名(&amp;N):</translation>
        </message>
        <message>
            <source>File Folder</source>
            <translation>ファイルフォルダ</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>New Folder</source>
            <translation>新しいフォルダ</translation>
        </message>
        <message>
            <source>Folder</source>
            <translation>フォルダ</translation>
        </message>
        <message>
            <source>Parent Directory</source>
            <translation>親ディレクトリ</translation>
        </message>
        <message>
            <source>&amp;New Folder</source>
            <translation>新しいフォルダ(&amp;N)</translation>
        </message>
        <message>
            <source>Remove</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>マイコンピュータ</translation>
        </message>
        <message>
            <source>Look in:</source>
            <translation>アドレス:</translation>
        </message>
        <message>
            <source>Create a New Folder</source>
            <translation>新しいフォルダの作成</translation>
        </message>
        <message>
            <source>%1 File</source>
            <translation>%1 ファイル</translation>
        </message>
        <message>
            <source>Files of type:</source>
            <translation>ファイルの種類:</translation>
        </message>
        <message>
            <source>Find Directory</source>
            <translation>ディレクトリの検索</translation>
        </message>
        <message>
            <source>Show &amp;hidden files</source>
            <translation>隠しファイルの表示(&amp;H)</translation>
        </message>
        <message>
            <source>Save As</source>
            <translation>名前を付けて保存</translation>
        </message>
        <message>
            <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
            <translation>%1
ディレクトリが見つかりません。
正しいディレクトリ名が入力されているかを確認してください。</translation>
        </message>
        <message>
            <source>Sidebar</source>
            <translation>サイドバー</translation>
        </message>
        <message>
            <source>List View</source>
            <translation>一覧表示</translation>
        </message>
        <message>
            <source>&amp;Choose</source>
            <translation>選択(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Delete</source>
            <translation>削除(&amp;D)</translation>
        </message>
        <message>
            <source>All files (*)</source>
            <translation>すべてのファイル(*)</translation>
        </message>
        <message>
            <source>All Files (*)</source>
            <translation>すべてのファイル(*)</translation>
        </message>
        <message>
            <source>Directories</source>
            <translation>ディレクトリ</translation>
        </message>
        <message>
            <source>&amp;Rename</source>
            <translation>名前の変更(&amp;R)</translation>
        </message>
        <message>
            <source>Could not delete directory.</source>
            <translation>ディレクトリを削除できませんでした。</translation>
        </message>
        <message>
            <source>Directory:</source>
            <translation>ディレクトリ:</translation>
        </message>
        <message>
            <source>Unknown</source>
            <translation>不明</translation>
        </message>
        <message>
            <source>%1 already exists.
Do you want to replace it?</source>
            <translation>%1 は既に存在します。
置き換えますか?</translation>
        </message>
        <message>
            <source>Forward</source>
            <translation>進む</translation>
        </message>
        <message>
            <source>Go forward</source>
            <translation>進む</translation>
        </message>
        <message>
            <source>Go to the parent directory</source>
            <translation>親ディレクトリへ移動</translation>
        </message>
        <message>
            <source>Recent Places</source>
            <translation>履歴</translation>
        </message>
        <message>
            <source>Go back</source>
            <translation>戻る</translation>
        </message>
        <message>
            <source>Change to detail view mode</source>
            <translation>詳細表示モードへ変更</translation>
        </message>
        <message>
            <source>Create New Folder</source>
            <translation>新しいフォルダの作成</translation>
        </message>
        <message>
            <source>Shortcut</source>
            <translation>ショートカット</translation>
        </message>
        <message>
            <source>Detail View</source>
            <translation>詳細表示</translation>
        </message>
        <message>
            <source>%1
File not found.
Please verify the correct file name was given.</source>
            <translation>%1
ファイルが見つかりません。
正しいファイル名が入力されているかを確認してください。</translation>
        </message>
        <message>
            <source>Change to list view mode</source>
            <translation>リスト表示モードへ変更</translation>
        </message>
    </context>
    <context>
        <name>QLineEdit</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>切り取り(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>コピー(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>やり直す(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>元に戻す(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>貼り付け(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>すべてを選択</translation>
        </message>
    </context>
    <context>
        <name>QWidgetTextControl</name>
        <message>
            <source>Cu&amp;t</source>
            <translation>切り取り(&amp;T)</translation>
        </message>
        <message>
            <source>&amp;Copy</source>
            <translation>コピー(&amp;C)</translation>
        </message>
        <message>
            <source>&amp;Redo</source>
            <translation>やり直す(&amp;R)</translation>
        </message>
        <message>
            <source>&amp;Undo</source>
            <translation>元に戻す(&amp;U)</translation>
        </message>
        <message>
            <source>&amp;Paste</source>
            <translation>貼り付け(&amp;P)</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>削除</translation>
        </message>
        <message>
            <source>Select All</source>
            <translation>すべてを選択</translation>
        </message>
        <message>
            <source>Copy &amp;Link Location</source>
            <translation>リンクの場所をコピー(&amp;L)</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesWidget</name>
        <message>
            <source>Form</source>
            <translation>書式</translation>
        </message>
        <message>
            <source>Page</source>
            <translation>ページ</translation>
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
            <translation>名前</translation>
        </message>
        <message>
            <source>Size</source>
            <translation>サイズ</translation>
        </message>
        <message>
            <source>Type</source>
            <translation>タイプ</translation>
        </message>
        <message>
            <source>&lt;b&gt;The name "%1" can not be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuations marks.</source>
            <translation>&lt;b&gt;ファイル名 "%1" は使用できません。&lt;/b&gt;&lt;p&gt;名前を短くしたり、アクセント記号などを削除して再度試してください。</translation>
        </message>
        <message>
            <source>%1 bytes</source>
            <translation>%1 バイト</translation>
        </message>
        <message>
            <source>My Computer</source>
            <translation>マイコンピュータ</translation>
        </message>
        <message>
            <source>Computer</source>
            <translation>コンピュータ</translation>
        </message>
        <message>
            <source>Invalid filename</source>
            <translation>無効なファイル名</translation>
        </message>
        <message>
            <source>%1 byte(s)</source>
            <translation>%1 バイト</translation>
        </message>
        <message>
            <source>Date Modified</source>
            <translation>更新日</translation>
        </message>
    </context>
    <context>
        <name>QComboBox</name>
        <message>
            <source>True</source>
            <translation>真</translation>
        </message>
        <message>
            <source>False</source>
            <translation>偽</translation>
        </message>
        <message>
            <source>Open the combo box selection popup</source>
            <translation>コンボボックスの選択用ポップアップを開く</translation>
        </message>
    </context>
    <context>
        <name>QDialog</name>
        <message>
            <source>What's This?</source>
            <translation>ヒント</translation>
        </message>
    </context>
    <context>
        <name>QUnicodeControlCharacterMenu</name>
        <message>
            <source>RLE Start of right-to-left embedding</source>
            <translation>RLE(Start of right-to-left embedding)</translation>
        </message>
        <message>
            <source>ZWSP Zero width space</source>
            <translation>ZWSP(幅0の空白)</translation>
        </message>
        <message>
            <source>LRI Left-to-right isolate</source>
            <translation>LRI(Left-to-right isolate)</translation>
        </message>
        <message>
            <source>Insert Unicode control character</source>
            <translation>Unicode制御文字を挿入</translation>
        </message>
        <message>
            <source>LRO Start of left-to-right override</source>
            <translation>LRO(Start of left-to-right override)</translation>
        </message>
        <message>
            <source>LRE Start of left-to-right embedding</source>
            <translation>LRE(Start of left-to-right embedding)</translation>
        </message>
        <message>
            <source>RLI Right-to-left isolate</source>
            <translation>RLI(Right-to-left isolate)</translation>
        </message>
        <message>
            <source>RLM Right-to-left mark</source>
            <translation>RLM(Right-to-left mark)</translation>
        </message>
        <message>
            <source>PDF Pop directional formatting</source>
            <translation>PDF(Pop directional formatting)</translation>
        </message>
        <message>
            <source>ZWNJ Zero width non-joiner</source>
            <translation>ZWNJ(幅0の非接続文字)</translation>
        </message>
        <message>
            <source>RLO Start of right-to-left override</source>
            <translation>RLO(Start of right-to-left override)</translation>
        </message>
        <message>
            <source>PDI Pop directional isolate</source>
            <translation>PDI(Pop directional isolate)</translation>
        </message>
        <message>
            <source>ZWJ Zero width joiner</source>
            <translation>ZWJ(幅0の接続文字)</translation>
        </message>
        <message>
            <source>LRM Left-to-right mark</source>
            <translation>LRM(Left-to-right mark)</translation>
        </message>
        <message>
            <source>FSI First strong isolate</source>
            <translation>FSI(First strong isolate)</translation>
        </message>
    </context>
    <context>
        <name>QAbstractSpinBox</name>
        <message>
            <source>Step &amp;down</source>
            <translation>下(&amp;D)</translation>
        </message>
        <message>
            <source>&amp;Step up</source>
            <translation>上(&amp;S)</translation>
        </message>
        <message>
            <source>&amp;Select All</source>
            <translation>すべてを選択(&amp;S)</translation>
        </message>
    </context>
    <context>
        <name>QTabBar</name>
        <message>
            <source>Scroll Left</source>
            <translation>左へスクロール</translation>
        </message>
        <message>
            <source>Scroll Right</source>
            <translation>右へスクロール</translation>
        </message>
    </context>
    <context>
        <name>QPrintPropertiesDialog</name>
        <message>
            <source>Job Options</source>
            <translation>ジョブオプション</translation>
        </message>
        <message>
            <source>Printer Properties</source>
            <translation>プリンタのプロパティ</translation>
        </message>
    </context>
    <context>
        <name>CloseButton</name>
        <message>
            <source>Close Tab</source>
            <translation>タブを閉じる</translation>
        </message>
    </context>
    <context>
        <name>QApplication</name>
        <message>
            <source>Executable '%1' requires Qt %2, found Qt %3.</source>
            <translation>実行可能ファイル '%1' には Qt %2 が必要ですが Qt %3 が見つかりました。</translation>
        </message>
        <message>
            <source>Incompatible Qt Library Error</source>
            <translation>互換性のない Qt ライブラリエラー</translation>
        </message>
    </context>
</TS>
