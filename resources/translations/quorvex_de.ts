<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Speicherzuweisung fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, eine unmögliche Größe</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>Ihr Eintrag nennt %1 Bytes, mehr, als eine Datei haben kann.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>Unmögliche Größen in der Summe: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>Löschzertifikat - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 PDF exportieren</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ Drucken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>Zertifikat exportieren</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>Export erfolgreich</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>Zertifikat exportiert nach:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Export fehlgeschlagen</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>Das Zertifikat konnte nicht exportiert werden. Bitte prüfen Sie den Dateipfad und die Zugriffsrechte.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Zertifikat drucken</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>Vorgangsart</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>Löschstandard</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>Durchgänge</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>Löschdetails</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>Dateien bearbeitet</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Sektoren gesamt</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>Sektoren gelöscht</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>Defekte Sektoren</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verifizierung</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>Bestanden ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>Nicht bestanden ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Stichproben</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>Daten-Hash</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>Bedienerangaben</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>Löschzertifikat</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>Konformitätsnachweis über die sichere Datenlöschung</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>Zertifikats-ID:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Erstellt:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>Erklärung: Dieses Zertifikat bestätigt, dass der oben genannte Datenträger bzw. die oben genannten Dateien gemäß dem angegebenen Löschstandard sicher gelöscht wurden. Der Löschvorgang entspricht den geltenden Datenschutzvorschriften. Dieses Zertifikat wurde von Quorvex automatisch erstellt und dient als Konformitätsnachweis für die Datenvernichtung.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>Auf dem Medium</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>Nicht zurückgelesen</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>Nichts, was sich vergleichen ließ</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>Zurückgelesen</translation>
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
        <translation>Alle Zertifikatsnummern dieses Tages sind vergeben.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Vorgangsart</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>Löschstandard</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>Durchgänge</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> ×</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>Löschdetails</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> Stück</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>Sektoren gesamt</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>Sektoren gelöscht</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>Defekte Sektoren</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>Verifizierung</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>Ergebnis:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>Stichproben</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> Positionen</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>Daten-Hash</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>Bedienerangaben</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>Löschzertifikat</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>Zertifikats-ID: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>Erstellt: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>Erklärung: Dieses Zertifikat bestätigt, dass der oben genannte Datenträger bzw. die oben genannten Dateien gemäß dem angegebenen Löschstandard sicher gelöscht wurden. Der Löschvorgang entspricht den geltenden Datenschutzvorschriften. Dieses Zertifikat wurde von Quorvex automatisch erstellt und kann als Konformitätsnachweis für die Datenvernichtung dienen.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>Professionelles Werkzeug zur Datenlöschung</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>tatsächlich bearbeitet: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>nicht zurückgelesen</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>Zurückgelesenes nicht vergleichbar</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(vollständig im Verlauf dieses Programms)</translation>
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
        <translation>dieses Programm wurde ohne Zertifikatsfunktion erstellt</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>kein Befehl angegeben</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; ist unvollständig</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unbekannter Befehl &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; benötigt %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%1&apos; ist ein Argument zu viel für &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (siehe %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 ist keine Datei</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 ist zu groß für einen Bericht</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>die Felder stimmen überein, der Text jedoch nicht, ab Byte %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>das erste abweichende Feld ist %1: %2 im Datensatz, %3 in der Datei</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>NICHT IDENTISCH: %1 ist kein Bericht</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>NICHT IDENTISCH: die Datenbank enthält keinen Datensatz zu %1</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>IDENTISCH: %1 ist der Datensatz zu %2</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>NICHT IDENTISCH: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>NUR NULLEN: jedes der %1 Bytes von %2 ist 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>NICHT NUR NULLEN: Byte %1 von %2 ist %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>ein Pfad ist leer</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>Vergleicht einen exportierten Bericht mit seinem Datensatz oder sucht nach übrig gebliebenen Bytes</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE ist ein Bericht im JSON-Format oder mit --zeros eine Abbilddatei oder ein Datenträger, der nur gelesen wird.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>FILE ganz durchlesen und melden, ob jedes Byte 0x00 ist</translation>
    </message>
    <message>
        <source>system</source>
        <translation>System</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>Wechselmedium</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>Keine Datenträger gefunden.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Merkmale</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, System</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>Listet die Datenträger mit ihren Volumes auf</translation>
    </message>
    <message>
        <source>random</source>
        <translation>Zufall</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>Komplement</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (verifiziert)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, Stufe %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>Listet die Löschstandards mit ihren Durchgängen auf</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>der Bericht %1 konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>Bericht %1 wurde entfernt.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>Entfernt einen Bericht aus der Datenbank</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; benötigt --pdf oder --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>%1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>Exportiert einen Bericht als Zertifikat, als JSON oder als beides</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>Das JSON ist der gespeicherte Text, Byte für Byte, für &apos;quorvex-cli check&apos;.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>Zertifikat als PDF in diese Datei oder diesen Ordner schreiben</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>Bericht als JSON schreiben; - steht für die Standardausgabe</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>Keine Berichte.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 erwartet eine Zahl %2, nicht &apos;%3&apos;</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>ab %1</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>Listet die gespeicherten Berichte auf, neueste zuerst</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>Höchstzahl der aufgelisteten Berichte (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>Anzahl der neuesten Berichte, die ausgelassen werden (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>Zeigt einen Bericht an</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>Listet auf, was &apos;wipe trash&apos; löschen würde</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>Löscht einen ganzen Datenträger</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE ist die Nummer, die &apos;quorvex-cli disks&apos; anzeigt, oder ein Gerätepfad. Systemdatenträger werden abgelehnt.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>Löscht Dateien sowie Ordner mit ihrem gesamten Inhalt</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>Von einem Link wird nur der Link selbst entfernt; sein Ziel bleibt unberührt. Vor einen Pfad, der mit einem Bindestrich beginnt, gehört --.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  der freie Speicherplatz von:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  vorhandene Dateien bleiben erhalten</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report nimmt den Bericht eines einzigen Volumes auf, nicht den von mehreren</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>--pdf erwartet bei mehreren Volumes einen Ordner</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>Löscht den freien Speicherplatz von Volumes</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME ist ein Laufwerksbuchstabe, ein Einhängepunkt oder eine Datenträgernummer für alle Volumes des Datenträgers.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>Der Papierkorb ist leer.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>die eigene Ordnerliste des Papierkorbs nennt noch, was gelöscht wurde, Fehler %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>Löscht alles im Papierkorb des aktuellen Benutzers</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>Gemeint ist der Papierkorb von Windows oder einer anderen Desktop-Umgebung.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>Dies wird gleich endgültig vernichtet:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>nicht bestätigt: die Standardeingabe ist kein Terminal; --yes überspringt die Rückfrage</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>Zum Vernichten %1 eingeben:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>abgebrochen, es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>nicht bestätigt, es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>Datenträger nicht vorhanden: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 ist ein Teil von Datenträger %2; es muss ein ganzer Datenträger angegeben werden</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>Datenträger %1 ist ein Systemdatenträger und kann im laufenden Betrieb nicht gelöscht werden</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>keine Schreibberechtigung für Datenträger %1</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>Datenträger %1 ist nicht mehr da oder ein anderer ist an seine Stelle getreten</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 ist weder Datei noch Ordner; ein Datenträger wird mit &apos;wipe disk&apos; gelöscht</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 führt über einen Link zurück; geben Sie den Pfad ohne &quot;..&quot; an</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>%1 kann nicht untersucht werden, Fehler %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 ist das Stammverzeichnis eines Volumes; benennen Sie, was darin gelöscht werden soll</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>Maschinenlesbare Ausgabe: JSON, ein Wert pro Zeile</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>Datenbank und Protokoll in diesem Ordner statt im Benutzerordner ablegen</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>Diese Abbilddatei als Datenträger erscheinen lassen (wiederholbar)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>Keine echten Datenträger auflisten oder öffnen</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>Nur Fehler und die letzte Zeile ausgeben</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Diese Hilfe anzeigen</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Version anzeigen</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>keine Abbilddatei: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>Aufruf: quorvex-cli [OPTION...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Beispiel:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>Optionen jedes Befehls:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>fertig, alles Verlangte wurde erledigt</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>der Auftrag lief und schlug ganz oder teilweise fehl</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>die Befehlszeile ist fehlerhaft</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>abgelehnt, bevor etwas geschrieben wurde</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>abgebrochen (Strg+C), der Auftrag wurde sauber beendet</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>ein Bericht oder eine andere Ausgabe konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Exit-Codes:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>BEFEHL</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>Vernichtet Daten unwiederbringlich und weist es nach.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>Jeder Befehl hat eine eigene Hilfe: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>der Datenordner %1 kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; liegt in dem, was gelöscht werden soll</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>die Berichtsdatenbank in %1 liegt in dem, was gelöscht werden soll; --data-dir nimmt einen anderen Ordner, --no-report kommt ohne sie aus</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>der Bericht %1 konnte nicht in der Datenbank gespeichert werden: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>die Berichtsdatei %1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>das Zertifikat %1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>unbekannte Sprache &apos;%1&apos;, bekannt sind: %2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>der Katalog der Sprache %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 Durchgang</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 Durchgänge</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; kann kein Dateiname sein</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; ist ein Ordner, keine Datei</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; ist vorhanden und keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>der Ordner von &apos;%1&apos; ist nicht vorhanden</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>Durchgang %1/%2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>die Berichtsdatenbank in %1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>die Berichtsdatenbank kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>es gibt keinen Bericht %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>der als %1 gespeicherte Bericht ist beschädigt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektoren</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>Sektoren gelöscht</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>Defekte Sektoren</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verifizierung</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>nicht bestanden</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Zurückgelesen</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Stichproben</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschrieben</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>die Ausgabe konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[Fehler]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[Warnung]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[Info]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>FERTIG</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>ABGEBROCHEN</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FEHLGESCHLAGEN</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4 in %5, Zertifikat %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, Bericht %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root ist leer</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>Die Windows-Papierkörbe unter diesem Ordner durchsuchen, der für einen Datenträger steht (wiederholbar)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>Mit --root: nur der Papierkorb des Benutzers mit dieser Sicherheits-ID (SID)</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid ist leer</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid benötigt --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>das System gibt nicht an, wer der Benutzer ist</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Element</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 Elemente</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>Ordner, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, nur noch sein Eintrag ist vorhanden</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>Datenträger %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>Volume nicht vorhanden: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>unbekanntes Verfahren &apos;%1&apos;, &apos;quorvex-cli methods&apos; listet die Verfahren auf</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>Löschstandard, nach Name oder Nummer (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>Geschriebene Daten nicht zurücklesen</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>Anzahl der von einem Datenträger zurückgelesenen Stichproben (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>Anzahl der gleichzeitig gelöschten Dateien, 1 bis 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>Schreibpuffer in MiB, 1 bis 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>Bericht als JSON in diese Datei schreiben</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>Bericht nicht in der Datenbank speichern</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>Bei Erfolg das Zertifikat als PDF in diese Datei oder diesen Ordner schreiben</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>Nicht nach dem Wort ERASE fragen</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>mit Verifizierung</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>ohne Verifizierung</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  mit %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>%1 kann bei Byte %2 nicht gelesen werden, Fehler %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>keine Leseberechtigung für %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>%1 kann nicht geöffnet werden, Fehler %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 ist ein Ordner</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>das Protokoll des Programms in %1 liegt in dem, was gelöscht werden soll; --data-dir nimmt einen anderen Ordner</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>TEILWEISE FERTIG</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 ist leer, es gibt nichts zu prüfen</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>einem Gerät, das kein Datenträger ist</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 ist schreibgeschützt</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>Datenträger %1 ist schreibgeschützt</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>Volume %1 liegt auf Datenträger %2 und auch auf %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>Datenträger %1 wird von %2 belegt</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>zum Freigeben: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>teilweise</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fehlgeschlagen</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>unbekannte Art von Lücke &apos;%1&apos;, es gibt: %2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>Eine Lücke dieser Art gilt nicht als Fehlschlag (wiederholbar)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>ausgehängt geblieben: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  es wird nicht alles gelöscht:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  das ganze Laufwerk: seine Partitionstabelle und alles zwischen und außerhalb seiner Volumes</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  seine Volumes werden vorher ausgehängt und bleiben es, sobald etwas geschrieben wurde</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>Von einem Laufwerk mit eingehängten Volumes werden nur diese gelöscht; --whole hängt sie aus und löscht jeden Sektor des Laufwerks.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>Alle Volumes des Laufwerks aushängen und jeden seiner Sektoren löschen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>Auf dem Medium</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>Volume %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir ist leer</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>nichts zu löschen gefunden, aber nicht jeder Papierkorb wurde durchsucht: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>kein Papierkorb von %1 gefunden</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 Eintrag ohne Datensatz</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 Einträge ohne Datensatz</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>und %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 ist ein Link, dem nicht gefolgt wird</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 gehört einem anderen Benutzer und wird nicht angetastet</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>%1 kann nicht durchsucht werden, Fehler %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>Mit --no-report geht es ohne.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; ist für zwei Ausgaben angegeben</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; existiert und ist kein Bericht; --force ersetzt die Datei</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>Erlaubt --report, eine Datei zu ersetzen, die kein Bericht ist</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1; als Administrator versuchen</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1; mit sudo versuchen</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>Sagt, was Laufwerke und Volumes antworten, für Hilfe aus der Ferne</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>Es wird nichts geschrieben. Die Antworten sind in jeder Sprache englisch und enthalten Seriennummern und Pfade: Sehen Sie sie durch, bevor Sie sie weitergeben.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Papierkorb von %1</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>Sprache: %1 (Vorgabe: die des Systems)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>Löschung abgeschlossen</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>Löschung fehlgeschlagen</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>Bei der Löschung ist ein Fehler aufgetreten.
Einzelheiten finden Sie im Protokoll.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>Alle ausgewählten Daten wurden sicher gelöscht.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>Alle ausgewählten Daten wurden sicher gelöscht.
Ein Löschzertifikat wurde erstellt.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>Daten erfolgreich gelöscht!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>Zertifikat: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>Zum Zertifikat</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>Ausgehängt geblieben: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>Der Bericht ist nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>Löschung bestätigen</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>Geben Sie zur Bestätigung &lt;b&gt;ERASE&lt;/b&gt; ein:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>Warnung: nicht umkehrbar</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>Die ausgewählten Daten werden endgültig gelöscht und sind nicht wiederherstellbar.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>Den ganzen Datenträger löschen
(sonst bleibt alles außerhalb seiner Volumes)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>Den ganzen Datenträger löschen
(sonst bleiben %1 außerhalb seiner Volumes)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>Jeder Sektor wird überschrieben, auch die Partitionstabelle. Alle Volumes des Datenträgers werden vorher ausgehängt.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>Das wird vernichtet</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>Datenträger und Partitionen löschen</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>Wählen Sie einen Datenträger oder eine Partition zum Löschen aus. Klappen Sie Datenträger auf, um ihre Partitionen zu sehen.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Zurück</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Weiter →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Datenträger und Partitionen</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>Datenträger/Partition</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>Freispeicher löschen</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>Wählen Sie die Partition aus, deren freier Speicherplatz sicher gelöscht werden soll.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>Wählen Sie einen Datenträger oder eine Partition zum vollständigen Löschen aus. Alle Daten werden endgültig gelöscht.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ Der Systemdatenträger kann nicht zum Löschen ausgewählt werden.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ Die Freispeicherlöschung ist für den Systemdatenträger unbedenklich. Vorhandene Dateien und der Systembetrieb bleiben unberührt.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ Die Systempartition kann nicht zum Löschen ausgewählt werden.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ Die Freispeicherlöschung ist für die Systempartition unbedenklich. Vorhandene Dateien und der Systembetrieb bleiben unberührt.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 Nr. %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ Systemdatenträger</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>Wechselmedium</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 Partition %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ System</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ Boot</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>einem Gerät, das kein Datenträger ist</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>Datenträger %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>Volume %1 liegt auf diesem Datenträger und auch auf %2.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Der Datenträger ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>Der Datenträger wird belegt von: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>Diese Befehle geben ihn frei:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Speicherzuweisung fehlgeschlagen</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>Fehler: kein Datenträger- oder Volume-Handle verfügbar</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>Löschung über das Datenträger-Handle...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>SetFilePointerEx fehlgeschlagen, Fehlercode: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Schreibfehler, Position: %1, Fehlercode: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>Löschung über Volume-Handles...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>Geschätzte Volume-Größe wird verwendet: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>Volume %1/%2 wird gelöscht, Größe: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>Volume %1: %2 nicht überschrieben</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>Volume %1 gelöscht, geschrieben: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>0 Bytes geschrieben, Ende des Volumes erreicht</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>Volume-Grenze erreicht, weiter mit dem nächsten Volume...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>Fehler: Zugriff verweigert</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>Fehler: Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>Fehler: Gerät ist nicht bereit</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>Fehler: Datenträger wird verwendet</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>Fehler: Sperrkonflikt</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>Fehler: E/A-Gerätefehler</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>Leeren des Schreibpuffers fehlgeschlagen, Fehlercode: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>Verifizierung läuft...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>Verifizierung fehlgeschlagen, Position: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>Verifizierung bestanden</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>Warnung: keine Volumes gefunden, der Datenträger ist möglicherweise nicht partitioniert</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>Volumes auf Datenträger %1 werden gesucht...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>Volume gefunden: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>Zu sperrende Volumes gefunden: %1</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>Volume wird bearbeitet: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>Volume %1 konnte nicht geöffnet werden, Fehlercode: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>Volume %1 wird gesperrt...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>Volume %1 wurde gesperrt</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>Warnung: Volume %1 konnte nicht gesperrt werden, Fehlercode: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>Volume %1 wird ausgehängt...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>Volume %1 wurde ausgehängt</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>Warnung: Volume %1 konnte nicht ausgehängt werden, Fehlercode: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>Der Systemdatenträger kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>Volumes des Datenträgers werden gesperrt...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>Die Volumes des Datenträgers konnten nicht gesperrt werden, bitte schließen Sie alle Programme, die den Datenträger verwenden</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>Volumes des Datenträgers gesperrt und ausgehängt</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>Die Datenträgerinformationen konnten nicht gelesen werden</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>Datenträgerlöschung abgeschlossen!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Löschung abgebrochen</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>Datenträgerlöschung wird gestartet...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Zieldatenträger: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>Datenträgernummer: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>Seriennummer: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>Datenträger wird geöffnet...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>Datenträger wurde geöffnet</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>Datenträger konnte nicht geöffnet werden, Fehlercode: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>Die Löschung erfolgt über Volume-Handles</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Datenträgergröße: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>Sektorgröße: %1 Bytes</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>Sektoren gesamt: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>Durchgang %1/%2 (Muster: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>Überschreiben fehlgeschlagen</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>Zufall</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>Volume %1 wurde wieder eingehängt, es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>Der Datenträger konnte nicht wieder online geschaltet werden, Fehlercode: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>Wieder eingehängt: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>Fehler: Das Volume ist verschlüsselt und nicht entsperrt (BitLocker). Entsperren Sie es, oder löschen Sie das ganze Laufwerk (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>Fehler: Das Gerät wurde getrennt, oder das Medium wurde gewechselt</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>Fehler: Das Gerät oder sein Medium ist defekt</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>Dateien zum Schreddern auswählen</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Fügen Sie über die Schaltflächen Dateien und Ordner hinzu</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 Dateien hinzufügen</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>Klicken Sie, um Dateien hinzuzufügen, oder ziehen Sie Dateien hierher</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Zurück</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Weiter →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>Zu schreddernde Dateien und Ordner</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>Dateien auswählen</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>Entfernen bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>Möchten Sie wirklich alle hinzugefügten Dateien aus der Liste entfernen?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>Hinzugefügte Elemente: %1, insgesamt %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>1 Element wurde nicht gefunden</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>%1 Elemente wurden nicht gefunden</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 Datei hat weitere Namen; ihr Inhalt wird auch unter diesen gelöscht</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 Dateien haben weitere Namen; ihr Inhalt wird auch unter diesen gelöscht</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>Lückenhafte Dateien wie %1 belegen beim Überschreiben weitere %2, und nur %3 sind frei. Es wurde nichts geschrieben.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Speicherzuweisung fehlgeschlagen</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>Zieldateien werden gesucht...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>Keine zu löschenden Dateien gefunden</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>Löschauftrag vom Benutzer abgebrochen</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>Alle Dateien erfolgreich gelöscht! Bearbeitete Dateien: %1</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>Löschung beendet, fehlgeschlagene Dateien: %1. Die Daten sind möglicherweise nicht sicher gelöscht!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>Ordner konnte nicht gelesen werden: %1, Fehlercode: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>Kein Zugriff auf: %1, Fehlercode: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>Die Datei hat weitere Hardlinks (%1): %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>Zu löschende Dateien: %1, Gesamtgröße je Durchgang: %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>Alle Dateien sind leer, das Überschreiben wird übersprungen</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>In Durchgang %1/%2 sind Dateien fehlgeschlagen, Anzahl: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>Datei konnte nicht geöffnet werden (WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>FlushFileBuffers fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>SetFilePointerEx fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>WriteFile fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>Verifizierung fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>Dateien werden sicher entfernt und Metadaten bereinigt...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Entfernen fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>Ordner konnte nicht entfernt werden: %1, Fehlercode: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>Die Datei wurde durch eine andere ersetzt, die bleibt, wie sie ist: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>Der Inhalt von %1 Dateien liegt möglicherweise auch anderswo, wo er nicht überschrieben wurde</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>Im Ordner ist ein anderes Dateisystem eingehängt, es bleibt unverändert: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>Während des Auftrags sind %1 weitere Dateien erschienen, sie werden ebenfalls gelöscht</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>Der Inhalt der Datei ist nicht auf diesem Computer, sondern nur in der Cloud, und kann nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>Nicht alles in dem Ordner ist auf diesem Computer, manches nur in der Cloud; er kann nicht gelöscht werden: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 Dateien werden von einem Cloud-Dienst synchronisiert, der Kopien und frühere Versionen behalten kann</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>Dateinamen im Journal des Dateisystems werden gelöscht...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>Im Journal des Dateisystems können Dateinamen stehen geblieben sein: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>Volume nicht mehr verfügbar, Fehlercode: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>Entfernte Fülldateien haben keinen Speicherplatz freigegeben, das Überschreiben kann nicht fortgesetzt werden</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>Speicherzuweisung fehlgeschlagen</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>Systempartition erkannt, 1 GB bleibt als Sicherheitsreserve frei</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>Der freie Speicherplatz ist gefüllt</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>Fülldatei konnte nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Schreibfehler, Position: %1, Fehlercode: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>Der freie Speicherplatz hat nicht abgenommen, das Dateisystem komprimiert möglicherweise die Daten</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>Freispeicherlöschung wird gestartet...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>Ungültiges Ziel</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>Zielpartition: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>Partitionsgröße: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>Dateisystem: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Zieldatenträger: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Datenträgergröße: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>Der Datenträger hat keine Partitionstabelle, das zugehörige Volume wird gesucht...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>Zugehöriges Volume gefunden: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>Warnung: keine verfügbaren Nicht-Systempartitionen auf dem Datenträger</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>Partitionen, deren freier Speicherplatz gelöscht wird: %1</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>Keine Partitionen verfügbar</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== Partition %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Löschung abgebrochen</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>Freispeicherlöschung abgeschlossen!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>Füllen des freien Speicherplatzes fehlgeschlagen</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>Freier Speicherplatz: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>Kein freier Speicherplatz zu löschen</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>Nach einer Unterbrechung verbliebene temporäre Dateien wurden entfernt: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>Temporärer Ordner konnte nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>Durchgang %1/%2 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>Muster: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>Muster: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>Muster: Zufall</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>Muster: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>Muster: unbekannt</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>Rückstände im Dateisystem werden bereinigt...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>Rückstände im Dateisystem nicht vollständig bereinigt, Fehlercode: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>Warnung: Das Dateisystem nimmt keine Daten mehr an, %1 freier Speicherplatz sind noch nicht gefüllt</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>Fehlercode: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>Volume %1 ist nicht mehr das ausgewählte.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>Ein anderer Auftrag löscht gerade den freien Speicher dieses Volumes; seine Dateien liegen in %1.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1 bleiben als Sicherheitsreserve und werden nicht überschrieben</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>Zertifikat anzeigen</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>PDF exportieren</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>Löschverlauf</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[Datenträger] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[Partition] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[Freispeicher] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[Dateien] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>Anzahl: %1</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>Zertifikat exportieren</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>PDF-Dateien (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>Export erfolgreich</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>Zertifikat exportiert nach: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>Export fehlgeschlagen</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>Die Zertifikatsdatei konnte nicht exportiert werden</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>Entfernen bestätigen</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>Möchten Sie diesen Eintrag wirklich aus dem Löschverlauf entfernen?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>Keine Einträge zum Entfernen vorhanden</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>Entfernen bestätigen</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>Möchten Sie wirklich alle Einträge aus dem Löschverlauf entfernen?

Dies kann nicht rückgängig gemacht werden!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>Einträge entfernt</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>Alle Einträge wurden entfernt</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>Daten endgültig vernichten. Kein Datenleck.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Datenträger löschen</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>Löscht alle Daten auf dem Datenträger vollständig, einschließlich Partitionen und Bootsektoren</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Freispeicher löschen</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>Beseitigt Reste gelöschter Dateien</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Dateien schreddern</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>Schreddert Dateien und Ordner endgültig</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Papierkorb schreddern</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>Schreddert gelöschte Dateien im Papierkorb</translation>
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
        <translation>Gutmann (35 Durchgänge)</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>Der vorige Auftrag wird noch beendet.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>Eine Löschung läuft.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>Das System konnte für die Dauer des Auftrags nicht wach gehalten werden, Fehler %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Konfigurationsfehler</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Die Links der Seiten konnten nicht geladen werden.

Bitte wenden Sie sich an den technischen Support oder installieren Sie die Software neu.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Browser kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Der Standardbrowser konnte nicht geöffnet werden.

Bitte kopieren Sie den Link und rufen Sie ihn selbst auf:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>Protokoll kopieren</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Textdateien (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>Das Loop-Gerät %1 ist mit %2 verbunden. Es wurde nichts geschrieben.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - Sichere Datenlöschung</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>Freispeicher löschen?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>Die Dateien im Papierkorb wurden sicher gelöscht!

Möchten Sie auch den freien Speicherplatz löschen, damit zuvor aus dem
Papierkorb entfernte Dateien nicht wiederhergestellt werden können?

Je nach Größe des freien Speicherplatzes kann dies länger dauern.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>Stopp bestätigen</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>Möchten Sie den Löschauftrag wirklich stoppen?
Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>Beenden bestätigen</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>Ein Löschauftrag läuft. Möchten Sie das Programm wirklich beenden?
Beim Beenden wird der laufende Auftrag abgebrochen.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - Sichere Datenlöschung&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Löschen Sie Ihre Daten sicher nach Standards auf militärischem Niveau.&lt;br&gt;Funktionen: Datenträger löschen, Partition löschen, Freispeicher löschen und Dateien schreddern.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. Gelöscht heißt gelöscht, und das Zertifikat sagt, wie.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>Info über Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Papierkorb schreddern</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>Gelöschte Dateien im Papierkorb werden gesucht...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>Papierkorb wird durchsucht...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>Papierkorb auf Laufwerk %1 wird durchsucht (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>Papierkorb ist leer</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>Der Papierkorb ist bereits leer.

Früher daraus entfernte Dateien lassen sich jedoch möglicherweise noch wiederherstellen.
Möchten Sie den freien Speicherplatz löschen, damit dies nicht mehr möglich ist?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>Folgende gelöschte Dateien wurden im Papierkorb gefunden</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>Gefundene Elemente: %1, insgesamt %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>Dateien zum Schreddern auswählen</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Fügen Sie über die Schaltflächen Dateien und Ordner hinzu</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>Dieser Datenträger kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>Dies alles wird gelöscht, nicht nur %1
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>Dieses Volume kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>Diese Dateien können nicht gelöscht werden</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>Das Löschen kann nicht beginnen</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>Wird auch gelöscht, ohne Datensatz: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>Nicht durchsucht: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>Datenträger werden gelesen...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Papierkorb von %1</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>Durchgänge: %1</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>Sicherheitsstufe: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>Löschverfahren auswählen</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>Die Löschverfahren bieten unterschiedliche Sicherheitsstufen: Mehr Durchgänge bedeuten mehr Sicherheit, dauern aber länger</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← Zurück</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>nur die eingehängten Volumes werden gelöscht, nicht der Rest des Datenträgers</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>Volumes konnten nicht geöffnet werden und wurden nicht gelöscht</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>Volumes nahmen schon vor ihrem Ende keine Daten mehr an</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>Volumes wurden verwendet, während sie überschrieben wurden</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>das Ende des Datenträgers ist kein ganzer Sektor und wurde nicht überschrieben</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>der Datenträger gibt seine Größe mit null an, es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>Volumes reichen über den Datenträger hinaus</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>es wurde nichts geschrieben, obwohl freier Speicherplatz vorhanden war</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>es blieb freier Speicherplatz übrig, der nicht gefüllt werden konnte</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>mehr als 10&#xa0;% des freien Speicherplatzes bleiben als Reserve frei</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>Fülldateien sind zurückgeblieben</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>Elemente waren nicht mehr da, bevor sie gelöscht werden konnten</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>Elemente wurden zwischenzeitlich durch andere ersetzt</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>Dateien wurden größer, nachdem sie überschrieben worden waren</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>Elemente konnten nicht entfernt werden</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>das Dateisystem bewahrt den Inhalt möglicherweise an anderer Stelle auf, wo er nicht überschrieben wird</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>Links werden entfernt, ihre Ziele werden nicht gelöscht</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>die geschriebenen Daten wurden nicht zurückgelesen</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>die geschriebenen Daten lassen sich beim Zurücklesen nicht vergleichen</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>ein kleiner Teil des freien Speicherplatzes bleibt als Reserve frei</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>Dateien hatten weitere Namen, die bestehen bleiben und auf überschriebenen Inhalt verweisen</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>das Dateisystem schreibt an neue Stellen und bewahrt früheren Inhalt möglicherweise auf, etwa in Snapshots</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>es gab keinen freien Speicherplatz zum Überschreiben</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>Teilweise gelöscht: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>Nicht vollständig gelöscht: Der Auftrag ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>Nicht vollständig gelöscht: Der Auftrag wurde abgebrochen</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>Auf das Medium geschrieben: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>das Laufwerk hat kein eingehängtes Volume, dessen freier Speicher gelöscht werden könnte</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>Papierkörbe wurden nicht durchsucht, ihr Inhalt ist nicht gelöscht</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>Schattenkopien des Volumes können früheren Inhalt behalten</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>ein Cloud-Dienst behält Kopien und frühere Versionen von Dateien</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>Geschwindigkeit: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>Restzeit: wird berechnet...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ Stopp</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>Löschverfahren: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>Geschwindigkeit: %1/s</translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 小时 %2 分</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>剩余时间: %1</source>
        <translation>Restzeit: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ Fortsetzen</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ Pause</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>Daten werden gelöscht...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>Fortschritt der Löschung</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>Setzt die Anzeige dieser Seite fort; die Löschung lief weiter</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>Hält nur die Anzeige dieser Seite an; die Löschung läuft weiter</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>Hinweis: Der „Überwachte Ordnerzugriff“ der Windows-Sicherheit verhindert möglicherweise, dass dieses Programm schreibt. Lassen Sie es dort zu, und versuchen Sie es erneut</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>Unbekannt</translation>
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
        <translation>USB-Gerät</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>Extern</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>Ein anderes Programm hält die Berichtsdatenbank fest.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>Die Berichtsdatenbank kann nicht beschrieben werden.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>Für die Berichtsdatenbank ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>Die Berichtsdatenbank ist beschädigt.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>Die Berichtsdatenbank kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>An der Stelle der Berichtsdatenbank ist ein Link.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>Die Berichtsdatenbank hat den Bericht nicht angenommen.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>Daten nach der Löschung verifizieren</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>Löschzertifikat automatisch erstellen</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>Nach der Löschung das Zertifikat automatisch als PDF exportieren</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>Löscheinstellungen</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>Exportpfad:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>Standard-Exportpfad wählen...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>Exportordner auswählen</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>Zertifikatsexport</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>Einstellungen speichern</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>Die Einstellungen wurden gespeichert</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Speichern fehlgeschlagen</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden</translation>
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
        <translation>Menü</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>Datenlöschung</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Löschverlauf</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>Bericht nicht gefunden</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>Die Datenbank enthält keinen Bericht %1.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>Datenträger %1: Modell %2, Seriennummer %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>Volume %1, %2, %3, %4 frei</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, Bezeichnung %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>keine eingehängten Volumes</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 Datei, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>mindestens 1 Datei, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 Dateien, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>mindestens %1 Dateien, %2</translation>
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
        <translation>Menü</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Sprache geändert</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Die Sprache wurde geändert.

Die Anwendung wird jetzt neu gestartet.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>Der Auftrag kann nicht geändert werden, während er läuft</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>Kein Auftrag festgelegt</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>Der Auftrag läuft bereits</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>Arbeitsthread konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>Löschauftrag wird gestartet...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>Löschverfahren: %1 (Durchgänge: %2)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>Auftrag gestoppt</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>Durchgang %1/%2</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>Löschung abgeschlossen!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>Löschung fehlgeschlagen</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>Das Laufwerk wird von einem anderen Programm verwendet.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>Die Volumes des Laufwerks lassen sich nicht lösen, Fehler %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>Volume %1 wird verwendet und kann nicht ausgehängt werden.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>Volume %1 kann nicht ausgehängt werden, Fehler %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>Nicht wieder eingehängt: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>Zertifikats-ID</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Vorgangsart</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>Standard des NIST (USA), ein Durchgang, für die meisten Fälle geeignet</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>Sicherheitsstandard der britischen Regierung, 2 Durchgänge</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>Standard des US-Verteidigungsministeriums, 7 Durchgänge, Sicherheit auf militärischem Niveau</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>Standard des Bundesamts für Sicherheit in der Informationstechnik (BSI), 7&#xa0;Durchgänge</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Höchster Sicherheitsstandard, vorgeschlagen von Peter Gutmann, 35 Durchgänge</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>Maximal</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>Ausstehend</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abbruch</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Datenträgerlöschung</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>Partitionslöschung</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Freispeicherlöschung</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Dateilöschung</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>Datei nicht gefunden: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>Bitte wählen Sie den zu löschenden Datenträger aus</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>Der Systemdatenträger kann nicht gelöscht werden. Bitte starten Sie von einem externen Datenträger.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>Bitte wählen Sie die zu löschende Partition aus</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>Die Systempartition kann nicht gelöscht werden. Bitte starten Sie von einem externen Datenträger.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>Bitte wählen Sie einen Datenträger oder eine Partition für die Freispeicherlöschung aus</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>Bitte fügen Sie zu löschende Dateien hinzu</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>Die Anzahl der Threads muss zwischen 1 und 32 liegen</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>Die Puffergröße muss zwischen 1 und 1024 MB liegen</translation>
    </message>
</context>
</TS>
