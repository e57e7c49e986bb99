<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>メモリの割り当てに失敗しました</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1 (あり得ないサイズ)</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>記録には %1 バイトとありますが、どのファイルもこの大きさにはなり得ません。</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>合計に含まれるあり得ないサイズ: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>消去証明書 - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 PDF 出力</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ 印刷</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>証明書の出力</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF ファイル (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>出力完了</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>証明書を出力しました:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>出力エラー</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>証明書を出力できません。ファイルパスのアクセス許可を確認してください。</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>証明書の印刷</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>作業の概要</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>作業の種類</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>消去規格</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>上書き回数</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>開始日時</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>終了日時</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>ストレージデバイス</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>インターフェイス</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>消去の詳細</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>処理ファイル数</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>総セクター数</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>消去済みセクター数</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>書き込み量</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>不良セクター数</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>検証</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>合格 ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>不合格 ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>サンプル数</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>データハッシュ</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>作業者情報</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>作業者</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>データ消去証明書</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>安全なデータ消去に関するコンプライアンス記録</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>証明書番号:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>作成日時:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>声明: 本証明書は、上記のストレージデバイスまたはファイルが、指定されたデータ消去規格に従って安全に消去されたことを証明するものです。消去の手順は、適用されるデータ保護関連法令に準拠しています。本証明書は Quorvex によって自動的に作成されたものであり、データ抹消のコンプライアンス記録として使用できます。</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>媒体への書き込み</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>読み戻していません</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>比較できる内容なし</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>読み戻し</translation>
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
        <translation>本日の証明書番号はすべて使用済みです。</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>作業の概要</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>作業の種類</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>消去規格</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>上書き回数</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> 回</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>開始日時</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>終了日時</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>ストレージデバイス</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>インターフェイス</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>消去の詳細</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>ファイル数</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> 個</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>総セクター数</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>消去済みセクター数</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>書き込み量</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>不良セクター数</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>検証</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>検証結果:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>サンプル数</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> か所</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>データハッシュ</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>作業者情報</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>作業者</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>データ消去証明書</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>証明書番号: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>作成日時: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>声明: 本証明書は、上記のストレージデバイスまたはファイルが、指定されたデータ消去規格に従って安全に消去されたことを証明するものです。消去の手順は、適用されるデータ保護関連法令に準拠しています。本証明書は Quorvex によって自動的に作成されたものであり、データ抹消のコンプライアンス記録として使用できます。</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>プロフェッショナル向けデータ消去ツール</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>実際の処理数: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>読み戻していません</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>読み戻した内容は比較できません</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(全文は本プログラムの履歴にあります)</translation>
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
        <translation>このプログラムは証明書機能なしでビルドされています</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>コマンドが指定されていません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>コマンド &apos;%1&apos; は不完全です</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>不明なコマンドです: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; には %2 の指定が必要です</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%2&apos; に対して引数 &apos;%1&apos; は余分です</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (%2 を参照)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 はファイルではありません</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 はレポートとしては大きすぎます</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>項目は同じですが、バイト位置 %1 以降のテキストが異なります</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>最初に異なる項目は %1 です (記録: %2、ファイル: %3)</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>不一致: %1 はレポートではありません</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>不一致: データベースに %1 の記録がありません</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>一致: %1 は %2 の記録と同じです</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>不一致: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>すべてゼロ: %2 の %1 バイトはすべて 0x00 です</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>ゼロ以外を検出: %2 のバイト位置 %1 の値は %3 です</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>空のパスが指定されています</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>出力したレポートを記録と照合するか、残っているデータを探します</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE は JSON 形式のレポートです。--zeros を付けた場合は、読み取りだけを行うイメージファイルまたはドライブです。</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>FILE を最後まで読み取り、全バイトが 0x00 かどうかを表示</translation>
    </message>
    <message>
        <source>system</source>
        <translation>システム</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>リムーバブル</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>ドライブが見つかりません。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
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
        <source>Bus</source>
        <translation>バス</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, システム</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>ドライブとそのボリュームを一覧表示します</translation>
    </message>
    <message>
        <source>random</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>補数</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (検証あり)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, レベル %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>消去規格とその上書きパターンを一覧表示します</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>レポート %1 を削除できませんでした</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>レポート %1 を削除しました。</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>データベースからレポートを 1 件削除します</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; には --pdf または --json-file の指定が必要です</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>%1 を書き込めませんでした</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>1 件のレポートを証明書、JSON、またはその両方として出力します</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>JSON は保存されているテキストと 1 バイトも違わないため、&apos;quorvex-cli check&apos; で照合できます。</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>証明書をこのファイルまたはフォルダーに PDF で出力</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>レポートを JSON で出力 (- は標準出力)</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>レポートはありません。</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>証明書</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>開始日時</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>作業</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>消去方式</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 には数値 (%2) を指定してください: &apos;%3&apos; は使用できません</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>保存されているレポートを新しい順に一覧表示します</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>表示する件数 (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>最新のものから飛ばす件数 (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>レポートを 1 件表示します</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>&apos;wipe trash&apos; の消去対象を一覧表示します</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>ドライブ全体を消去します</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE は &apos;quorvex-cli disks&apos; で表示される番号、またはデバイスパスです。システムディスクは拒否されます。</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 件</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 個のファイル</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>ファイル、およびフォルダーとその中身をすべて消去します</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>リンクはリンク自体のみを削除し、リンク先には触れません。ハイフンで始まるパスの前には -- を置いてください。</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  次の空き領域:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  既存のファイルは残ります</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report に指定できるのは 1 つのボリュームのレポートだけです</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>ボリュームが複数ある場合、--pdf にはフォルダーを指定してください</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>ボリュームの空き領域を消去します</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME はドライブ文字、マウントポイント、またはドライブ番号 (そのドライブの全ボリューム) です。</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>ごみ箱は空です。</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>消去した項目の名前が、ごみ箱のフォルダー一覧に残っています (エラー %1)</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>ごみ箱</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>現在のユーザーのごみ箱の中身をすべて消去します</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>対象は Windows のごみ箱と、その他のデスクトップ環境のごみ箱 (Trash) です。</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>次のデータを完全に抹消します:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>確認できません: 標準入力が端末ではありません。--yes を付けると確認を省略できます</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>抹消するには %1 と入力してください:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>中止しました。書き込みは行われていません</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>確認されませんでした。書き込みは行われていません</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>ドライブが見つかりません: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 はドライブ %2 の一部です。ドライブ全体を指定してください</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>ドライブ %1 は使用中のシステムディスクのため、消去できません</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>ドライブ %1 への書き込みが許可されていません</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>ドライブ %1 が取り外されたか、別のドライブに替わっています</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 はファイルでもフォルダーでもありません。ドライブの消去には &apos;wipe disk&apos; を使用してください</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 はリンクを経由して上位に戻ります。&quot;..&quot; を含まないパスを指定してください</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>%1 を調べられません (エラー %2)</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 はボリュームのルートです。その中の消去対象を指定してください</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>機械可読出力: 1 行に 1 つの JSON 値</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>データベースとログを、ユーザー別フォルダーではなくこのフォルダーに保存</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>このイメージファイルをドライブとして扱う (複数指定可)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>実際のドライブは一覧に含めず、開きもしない</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>エラーと最終行のみを表示</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>このヘルプを表示</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>バージョンを表示</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>イメージファイルが見つかりません: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>使い方: quorvex-cli [オプション...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>例:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>全コマンド共通のオプション:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>完了 (要求された処理をすべて実行)</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>処理を実行したが、全部または一部が失敗</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>コマンドラインの誤り</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>書き込みを行う前に拒否</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>中止 (Ctrl+C)、処理は問題なく停止</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>レポートまたはその他の出力の書き込みに失敗</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>終了コード:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>データを復元不可能な状態に抹消し、それを証明します。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>コマンド:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>コマンドごとのヘルプもあります: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>データフォルダー %1 を使用できません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; は消去対象の中にあります</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>%1 のレポートデータベースは消去対象の中にあります。--data-dir で別のフォルダーを指定するか、--no-report でデータベースなしで実行してください</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>レポート %1 をデータベースに保存できませんでした: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>レポートファイル %1 を書き込めませんでした</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>証明書 %1 を書き込めませんでした</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>不明な言語です: &apos;%1&apos; (使用できる言語: %2)</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>言語 %1 の翻訳カタログを読み取れません</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 回上書き</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 回上書き</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; はファイル名として使用できません</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; はファイルではなくフォルダーです</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; は既に存在し、通常のファイルではありません</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>&apos;%1&apos; のフォルダーが存在しません</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>上書き %1/%2 回目</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>%1 のレポートデータベースを使用できません: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>レポートデータベースを読み取れません: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>レポート %1 はありません</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>保存されているレポート %1 は破損しています</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル数</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>セクター数</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>消去済みセクター数</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>不良セクター数</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>検証</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>読み戻し</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>サンプル数</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>ハッシュ</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>終了日時</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>所要時間</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>書き込み量</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>作業者</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>出力を書き込めませんでした</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[エラー]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[警告]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[情報]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>書き込み量 %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4, 所要時間 %5, 証明書 %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, レポート %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root が空です</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 はフォルダーではありません</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>このフォルダーをドライブとみなし、その中の Windows のごみ箱を調べる (複数指定可)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>--root と併用: このセキュリティ識別子のユーザーのごみ箱のみ</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid が空です</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid には --root の指定が必要です</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>現在のユーザーをシステムから取得できません</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 個の項目</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 個の項目</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>フォルダー, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, 記録のみ残存</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>ドライブ %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>ボリュームが見つかりません: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>不明な消去方式です: &apos;%1&apos; (&apos;quorvex-cli methods&apos; で一覧を表示できます)</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>消去規格の名前または番号 (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>書き込んだデータを読み戻さない</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>ドライブから読み戻すサンプル数 (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>同時に消去するファイル数 (1～32)</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>書き込みバッファー (MiB)、1～1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>レポートをこのファイルに JSON で出力</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>レポートをデータベースに保存しない</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>成功後、証明書をこのファイルまたはフォルダーに PDF で出力</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>ERASE の入力を求めない</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>読み戻し検証あり</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>読み戻し検証なし</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  消去方式 %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>%1 のバイト位置 %2 を読み取れません (エラー %3)</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>%1 の読み取りが許可されていません</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>%1 を開けません (エラー %2)</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 はフォルダーです</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>%1 にあるプログラムのログが消去対象に含まれています。--data-dir で別のフォルダーを指定できます</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>一部完了</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 は空です。確認するものがありません</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>結果</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>ドライブではないデバイス</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 は読み取り専用です</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>ドライブ %1 は読み取り専用です</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>ボリューム %1 はドライブ %2 のほか、%3 にもまたがっています</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>ドライブ %1 は %2 によって占有されています</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>解放するには: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>未達事項</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>備考</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>すべて完了</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>一部完了</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>不明な未達事項の種類です: &apos;%1&apos; (指定できる種類: %2)</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>この種類の未達事項を失敗とみなさない (複数指定可)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>マウント解除されたままのボリューム: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  一部は消去されません:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  ドライブ全体: パーティションテーブルと、ボリュームの間および外側のすべて</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  ボリュームは事前にアンマウントされ、何かが書き込まれた後はそのままになります</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>マウントされたボリュームがあるドライブでは、それらだけが消去されます。--whole はそれらをアンマウントし、ドライブの全セクターを消去します。</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>ドライブの全ボリュームをアンマウントし、全セクターを消去する</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>ボリューム</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>媒体への書き込み</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>ボリューム %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir が空です</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>消去するものは見つかりませんでしたが、調べていないごみ箱があります: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>%1 のごみ箱が見つかりません</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>記録のない項目 1 件</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>記録のない項目 %1 件</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>および %1、%2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 はリンクのため、たどりません</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 は別のユーザーのものなので、触れません</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>%1 を調べられません、エラー %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>--no-report を指定すると、番号なしで実行できます。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; が 2 つの出力先に指定されています</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; は既に存在し、レポートではありません。--force で置き換えます</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>--report でレポート以外のファイルも置き換える</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1。管理者として実行してください</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1。sudo を付けて実行してください</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>ドライブとボリュームの応答を表示します（遠隔サポート用）</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>何も書き込みません。応答はどの言語でも英語で、シリアル番号とパスを含みます。送る前に確認してください。</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1 のごみ箱</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>言語: %1（既定: システムの言語）</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>消去完了</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>消去失敗</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>消去中にエラーが発生しました。
詳細はログを確認してください。</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>選択したデータはすべて安全に消去されました。</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>選択したデータはすべて安全に消去されました。
消去証明書が作成されました。</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>データの消去が完了しました！</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>証明書: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>証明書を表示</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>アンマウントされたまま: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>レポートは保存されていません。%1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>消去の確認</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>確認のため &lt;b&gt;ERASE&lt;/b&gt; と入力してください:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>警告: この操作は元に戻せません</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>選択したデータは完全に消去され復元できません。</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>消去する</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>ディスク全体を消去する
(しない場合、ボリューム外のすべてが残ります)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>ディスク全体を消去する
(しない場合、ボリューム外の %1 が残ります)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>パーティションテーブルを含む全セクターが上書きされます。事前にディスクの全ボリュームがアンマウントされます。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>破棄される対象</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>ディスク・パーティションの消去</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>消去対象を選択してください。ディスクを展開するとパーティションが表示されます。</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 戻る</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>次へ →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>ディスクとパーティション</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>ディスク/パーティション</translation>
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
        <source>Interface</source>
        <translation>インターフェイス</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>空き領域の消去</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>空き領域を安全に消去するパーティションを選択してください。</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>完全に消去するディスクまたはパーティションを選択してください。すべてのデータが失われます。</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ システムディスクは消去対象に選択できません。</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ システムディスクの空き領域消去は安全です。既存のファイルやシステムに影響しません。</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ システムパーティションは消去対象に選択できません。</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ システムパーティションの空き領域消去は安全です。既存のファイルやシステムに影響しません。</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 ディスク %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ システム</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>リムーバブル</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>利用可能</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 パーティション %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>空き %1</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ システム</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ ブート</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>ディスクではないデバイス</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>ディスク %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>ボリューム %1 はこのディスクのほか、%2 にもまたがっています。</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>このディスクは読み取り専用です。</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>このディスクは次により占有されています: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>次のコマンドで解放できます:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>メモリの割り当てに失敗しました</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>エラー: 使用できるディスクハンドルまたはボリュームハンドルがありません</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>ディスクハンドルを使用して消去しています...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>SetFilePointerEx に失敗しました (エラーコード: %1)</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>書き込みエラー (位置: %1、エラーコード: %2)</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>ボリュームハンドルを使用して消去しています...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>ボリュームサイズの推定値を使用します: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>ボリューム %1/%2 を消去しています (サイズ: %3)</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>ボリューム %1 の %2 が上書きされていません</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>ボリューム %1 の消去が完了しました (書き込み量: %2)</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>書き込みバイト数が 0 です。ボリュームの末尾に達しました</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>ボリュームの境界に達しました。次のボリュームに進みます...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>エラー: アクセスが拒否されました</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>エラー: ディスクが書き込み禁止になっています</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>エラー: デバイスの準備ができていません</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>エラー: ディスクが使用中です</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>エラー: ロックが競合しています</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>エラー: I/O デバイスエラー</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>書き込みのフラッシュに失敗しました (エラーコード: %1)</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>検証しています...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>検証に失敗しました (位置: %1)</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>検証に合格しました</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>警告: ボリュームが見つかりません。パーティションのないディスクの可能性があります</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>ディスク %1 のボリュームを検索しています...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>ボリュームを検出しました: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>ロックが必要なボリュームが %1 個見つかりました</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>ボリュームを処理しています: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>ボリューム %1 を開けません (エラーコード: %2)</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>ボリューム %1 をロックしています...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>ボリューム %1 をロックしました</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>警告: ボリューム %1 のロックに失敗しました (エラーコード: %2)</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>ボリューム %1 のマウントを解除しています...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>ボリューム %1 のマウントを解除しました</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>警告: ボリューム %1 のマウント解除に失敗しました (エラーコード: %2)</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>システムディスクは消去できません</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>ディスクのボリュームをロックしています...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>ディスクのボリュームをロックできません。このディスクを使用しているプログラムをすべて終了してください</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>ディスクのボリュームをロックし、マウントを解除しました</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>ディスク情報を取得できません</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>ディスク消去が完了しました！</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>消去を中止しました</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>ディスク消去を開始します...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>対象ディスク: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>ディスク番号: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>シリアル番号: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>ディスクを開いています...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>ディスクを開きました</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>ディスクを開けません (エラーコード: %1)</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>ボリュームハンドルを使用して消去します</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>ディスクサイズ: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>セクターサイズ: %1 バイト</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>総セクター数: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>上書き %1/%2 回目 (パターン: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>上書きに失敗しました</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>ボリューム %1 が再びマウントされたため、何も書き込まれませんでした</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>ディスクをオンラインに戻せませんでした。エラーコード: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>再マウントしました: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>エラー: ボリュームは暗号化され、ロックされています (BitLocker)。ロックを解除するか、ドライブ全体を消去してください (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>エラー: デバイスが取り外されたか、メディアが交換されました</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>エラー: デバイスまたはメディアの障害</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>消去するファイルの選択</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>ボタンをクリックして、ファイルやフォルダーを追加してください</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 ファイルを追加</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 フォルダーを追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>すべて除外</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>クリックしてファイルを追加するか、ここにドラッグしてください</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 戻る</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>次へ →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>消去するファイルとフォルダー</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>ファイルの選択</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>除外の確認</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>追加したファイルをすべてリストから除外しますか？</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>追加済み: %1 個、合計 %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>1 個の項目が見つかりませんでした</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>%1 個の項目が見つかりませんでした</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 個のファイルに別の名前があり、その名前でも内容が消去されます</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 個のファイルに別の名前があり、その名前でも内容が消去されます</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>%1 のようなスパースファイルは上書きするとさらに %2 を占めますが、空きは %3 しかありません。何も書き込まれていません。</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>メモリの割り当てに失敗しました</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>対象のファイルをスキャンしています...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>消去するファイルが見つかりません</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>ユーザーが消去を中止しました</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>すべてのファイルを消去しました！処理したファイル: %1 個</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>消去は終了しましたが、%1 個のファイルで失敗しました。データが安全に消去されていない可能性があります！</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>フォルダーを読み取れません: %1 (エラーコード: %2)</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>アクセスできません: %1 (エラーコード: %2)</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>このファイルには他に %1 個のハードリンクがあります: %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>%1 個のファイルを消去します (上書き 1 回あたりの合計サイズ: %2)</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>すべてのファイルが空のため、データの上書きを省略します</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>上書き %1/%2 回目で失敗したファイルがあります (失敗数: %3)</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>ファイルを開けません (WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>FlushFileBuffers に失敗しました: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>SetFilePointerEx に失敗しました: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>WriteFile に失敗しました: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>検証に失敗しました: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>安全な削除とメタデータの消去を実行しています...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>削除に失敗しました: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>フォルダーを削除できません: %1 (エラーコード: %2)</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>ファイルが別のものに置き換えられたため、そのまま残します: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>%1 個のファイルの内容は、上書きされない別の場所にも残っている可能性があります</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>フォルダー内に別のファイルシステムがマウントされているため、そのまま残します: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>ジョブ中にさらに %1 個のファイルが現れました。同様に消去します</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>ファイルの内容はこのコンピューターになく、クラウドだけにあるため消去できません: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>フォルダーの内容の一部がこのコンピューターになく、クラウドだけにあるため消去できません: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 個のファイルはクラウドサービスで同期されており、コピーや以前のバージョンが残っている可能性があります</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>ファイルシステムのジャーナルからファイル名を消去しています...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>ファイルシステムのジャーナルにファイル名が残っている可能性があります: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>ボリュームが使用できなくなりました (エラーコード: %1)</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>削除した充填ファイルの領域が解放されないため、上書きを続行できません</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>メモリの割り当てに失敗しました</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>書き込み量: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>システムパーティションを検出したため、安全のため 1 GB の空きを残します</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>空き領域をすべて埋めました</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>充填ファイルを作成できません: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>書き込みエラー (位置: %1、エラーコード: %2)</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>空き領域が減少しません。ファイルシステムがデータを圧縮している可能性があります</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>空き領域消去を開始します...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>対象が無効です</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>対象パーティション: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>パーティションサイズ: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>ファイルシステム: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>対象ディスク: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>ディスクサイズ: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>ディスクにパーティションテーブルがありません。対応するボリュームを検索しています...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>対応するボリュームを検出しました: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>警告: ディスクに使用できる非システムパーティションがありません</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>%1 個のパーティションの空き領域を消去します</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>使用できるパーティションがありません</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== パーティション %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>消去を中止しました</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>空き領域消去が完了しました！</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>空き領域の充填に失敗しました</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>空き領域: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>消去する空き領域がありません</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>前回の中断で残った一時ファイルを削除しました: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>一時フォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>上書き %1/%2 回目 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>パターン: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>パターン: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>パターン: ランダム</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>パターン: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>パターン: 不明</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>ファイルシステムの残存データを消去しています...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>ファイルシステムの残存データを完全には消去できませんでした (エラーコード: %1)</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>警告: ファイルシステムがこれ以上データを受け付けません。%1 の空き領域が未充填です</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>エラーコード: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>何も書き込まれていません。</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>ボリューム %1 は選択されたものではなくなっています。</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>別のジョブがこのボリュームの空き領域を消去しています。そのファイルは %1 にあります。</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1 を安全領域として残し、上書きしません</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>証明書を表示</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>PDF 出力</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>消去履歴</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>消去方式</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[ディスク] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[パーティション] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[空き領域] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[ファイル] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>証明書の出力</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>PDF ファイル (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>出力完了</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>証明書を出力しました: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>出力エラー</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>証明書ファイルを出力できません</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>削除の確認</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>この消去記録を削除しますか？</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>削除する記録がありません</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>削除の確認</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>すべての消去記録を削除しますか？

この操作は元に戻せません！</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>削除完了</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>すべての記録を削除しました</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>データを完全に抹消し、情報漏えいを防ぎます。</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>ディスク消去</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>パーティションやブートレコードを含む、すべてのデータを完全に消去します</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>空き領域消去</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>ファイル削除後の残存データを消去します</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>ファイル消去</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>ファイルとフォルダーを完全に消去します</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>ごみ箱消去</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>ごみ箱内の削除済みファイルを消去します</translation>
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
        <translation>Gutmann 35 回</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>前のジョブがまだ終了処理中です。</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>消去を実行中です。</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>このジョブの間、システムのスリープを防げませんでした。エラー %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>設定エラー</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>ページのリンクを読み込めません。

テクニカルサポートに問い合わせるか、ソフトウェアを再インストールしてください。</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>ブラウザーを開けません</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>既定のブラウザーを開けません。

次のリンクをコピーしてアクセスしてください:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>ログをコピー</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>ログを保存</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>クリア</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>テキストファイル (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>ループデバイス %1 が %2 に接続されています。何も書き込まれていません。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - 安全なデータ消去</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>空き領域を消去しますか？</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>ごみ箱のファイルを安全に消去しました！

以前にごみ箱から削除したファイルが復元されないように、
空き領域も消去しますか？

空き領域の大きさによっては、時間がかかることがあります。</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>中止の確認</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>消去タスクを中止しますか？
この操作は元に戻せません。</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>終了の確認</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>消去タスクを実行中です。終了しますか？
終了すると、現在のタスクは中断されます。</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - 安全なデータ消去&lt;/h3&gt;&lt;p&gt;バージョン 5.0&lt;/p&gt;&lt;p&gt;軍用レベルの規格に従って、データを安全に消去します。&lt;br&gt;ディスク消去、パーティション消去、空き領域消去、ファイル消去に対応しています。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. 消去したものは確実に消え、その方法は証明書が示します。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>Quorvex のバージョン情報</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>ごみ箱消去</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>ごみ箱内の削除済みファイルをスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>ごみ箱をスキャンしています...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>ドライブ %1 のごみ箱をスキャンしています (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>ごみ箱は空です</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>ごみ箱は既に空です。

ただし、以前に削除したファイルはまだ復元できる可能性があります。
復元できないように、空き領域を消去しますか？</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>ごみ箱で次の削除済みファイルが見つかりました</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>検出: %1 個、合計 %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>消去するファイルの選択</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>ボタンをクリックして、ファイルやフォルダーを追加してください</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>このディスクは消去できません</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>%1 だけでなく、次のすべてが消去されます
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>このボリュームは消去できません</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>これらのファイルは消去できません</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>消去を開始できません</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>記録なしで同時に消去: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>調べていない場所: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>ドライブを読み込んでいます...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1 のごみ箱</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>%1 回上書き</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>セキュリティレベル: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>消去方式の選択</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>安全性は消去方式によって異なります。上書き回数が多いほど安全ですが、時間がかかります</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← 戻る</translation>
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
        <translation>マウントされたボリュームのみを消去し、ドライブの残りの部分は消去しません</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>ボリュームを開けず、消去していません</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>ボリュームが末尾に達する前にデータを受け付けなくなりました</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>上書き中にボリュームが使用されていました</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>ドライブの末尾が 1 セクターに満たず、上書きされていません</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>ドライブが報告する容量が 0 であり、何も書き込まれていません</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>ボリュームがドライブの範囲を超えています</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>空き領域があったにもかかわらず、何も書き込まれていません</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>充填できなかった空き領域が残りました</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>予備として残す領域が空き領域の 10% を超えます</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>充填ファイルが残っています</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>消去する前に項目がなくなっていました</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>途中で項目が別のものに置き換わりました</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>上書き後にファイルが大きくなりました</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>項目を削除できませんでした</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>ファイルシステムが内容を別の場所に保持している可能性があり、そこは上書きされません</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>リンクは削除されますが、リンク先は消去されません</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>書き込んだデータは読み戻されていません</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>書き込んだデータは、読み戻しても照合できません</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>空き領域のごく一部を予備として残します</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>ファイルに別の名前があり、その名前は残って上書き後の内容を指します</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>ファイルシステムが新しい場所に書き込み、以前の内容をスナップショットなどに保持している可能性があります</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>上書きする空き領域がありませんでした</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>一部のみ消去: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>完全には消去されていません: 処理が失敗しました</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>完全には消去されていません: 処理が中止されました</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>媒体への書き込み: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>空き領域を消去できるマウント済みボリュームがドライブにありません</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>調べていないごみ箱があり、その中身は消去されません</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>ボリュームのシャドウコピーに以前の内容が残っている可能性があります</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>クラウドサービスがファイルのコピーと以前のバージョンを保持しています</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>速度: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>残り時間: 計算中...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>作業ログ</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ 中止</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>消去方式: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>速度: %1/s</translation>
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
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>剩余时间: %1</source>
        <translation>残り時間: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ 再開</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ 一時停止</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>データを消去しています...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>消去の進行状況</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>このページの表示を再開します。消去は止まっていません</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>このページの表示だけを一時停止します。消去は続きます</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>ヒント: Windows セキュリティの「コントロールされたフォルダー アクセス」が書き込みを妨げている可能性があります。そこで本プログラムを許可してから再試行してください</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>不明</translation>
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
        <translation>USB</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>外付け HDD</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>別のプログラムがレポートデータベースを使用中です。</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>レポートデータベースに書き込めません。</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>レポートデータベースの空き容量がありません。</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>レポートデータベースが破損しています。</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>レポートデータベースを開けません。</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>レポートデータベースの場所にリンクがあります。</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>レポートデータベースがレポートを受け付けませんでした。</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>消去後にデータを検証する</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>消去証明書を自動的に作成する</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>消去完了後に PDF 証明書を自動的に出力する</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>消去の設定</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>出力先:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>既定の出力先を選択...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>出力先フォルダーの選択</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>証明書の出力</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>保存完了</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>設定を保存しました</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>保存エラー</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>設定を保存できませんでした</translation>
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
        <translation>メニュー</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>データ消去</translation>
    </message>
    <message>
        <source>History</source>
        <translation>消去履歴</translation>
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
        <translation>レポートが見つかりません</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>データベースにレポート %1 はありません。</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>ドライブ %1: モデル %2, シリアル番号 %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>ボリューム %1, %2, %3, 空き %4</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, ラベル %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>マウントされたボリュームなし</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 個のファイル, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>少なくとも 1 個のファイル, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 個のファイル, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>少なくとも %1 個のファイル, %2</translation>
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
        <translation>メニュー</translation>
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
        <translation>閉じる</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>サポート</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元のサイズに戻す</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>言語の変更</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>言語を変更しました。

アプリケーションを再起動します。</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>実行中はタスクを変更できません</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>タスクが設定されていません</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>タスクは既に実行中です</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>ワーカースレッドの作成に失敗しました</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>消去タスクを開始します...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>消去方式: %1 (%2 回上書き)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>タスクを中止しました</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>上書き %1/%2 回目</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>エラー: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>消去が完了しました！</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>消去に失敗しました</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>ドライブは別のプログラムで使用中です。</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>ドライブのボリュームを切り離せません。エラー %1。</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>ボリューム %1 は使用中のため、アンマウントできません。</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>ボリューム %1 をアンマウントできません。エラー %2。</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>何も書き込まれませんでした。</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>再マウントされていません: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>証明書番号</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>作業の種類</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>消去方式</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>開始日時</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>米国国立標準技術研究所の規格、1 回上書き、ほとんどの用途に適合</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>英国政府のセキュリティ規格、2 回上書き</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>米国国防総省の規格、7 回上書き、軍用レベルの安全性</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>ドイツ連邦情報セキュリティ庁の規格、7 回上書き</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Peter Gutmann 氏が提唱した最高レベルの規格、35 回上書き</translation>
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
        <translation>強化</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>ディスク消去</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>パーティション消去</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>空き領域消去</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>ファイル消去</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>ファイルが見つかりません: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>消去するディスクを選択してください</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>システムディスクは消去できません。外付けドライブから起動してください。</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>消去するパーティションを選択してください</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>システムパーティションは消去できません。外付けドライブから起動してください。</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>空き領域を消去するディスクまたはパーティションを選択してください</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>消去するファイルを追加してください</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>スレッド数は 1～32 の範囲で指定してください</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>バッファーサイズは 1～1024 MB の範囲で指定してください</translation>
    </message>
</context>
</TS>
