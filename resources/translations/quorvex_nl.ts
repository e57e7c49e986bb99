<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Geheugentoewijzing mislukt</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, een onmogelijke grootte</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>De vermelding noemt %1 bytes, meer dan een bestand kan hebben.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>Onmogelijke groottes in de som: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>Wiscertificaat - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 PDF exporteren</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ Afdrukken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>Certificaat exporteren</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF-bestanden (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>Export geslaagd</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>Certificaat geëxporteerd naar:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Export mislukt</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>Het certificaat kan niet worden geëxporteerd. Controleer het bestandspad en de toegangsrechten.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Certificaat afdrukken</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>Soort bewerking</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>Wisstandaard</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>Overschrijfrondes</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Begintijd</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Eindtijd</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>Opslagapparaat</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>Wisdetails</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>Verwerkte bestanden</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Totaal sectoren</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>Gewiste sectoren</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>Geschreven</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>Defecte sectoren</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verificatie</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>Geslaagd ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>Niet geslaagd ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Steekproeven</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>Gegevenshash</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>Operatorgegevens</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>Wiscertificaat</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>Nalevingsbewijs voor het veilig wissen van gegevens</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>Certificaat-ID:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Aangemaakt:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>Verklaring: Dit certificaat bevestigt dat het bovengenoemde opslagapparaat of de bovengenoemde bestanden veilig zijn gewist volgens de vermelde wisstandaard. Het wisproces voldoet aan de toepasselijke regelgeving voor gegevensbescherming. Dit certificaat is automatisch aangemaakt door Quorvex en dient als nalevingsbewijs van de gegevensvernietiging.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>Op het medium</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>Niet teruggelezen</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>Niets dat kon worden vergeleken</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>Teruglezing</translation>
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
        <translation>Alle certificaatnummers van deze dag zijn in gebruik.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Soort bewerking</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>Wisstandaard</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>Overschreven</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> keer</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Begintijd</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Eindtijd</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>Opslagapparaat</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>Wisdetails</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> st.</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>Totaal sectoren</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>Gewiste sectoren</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>Geschreven</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>Defecte sectoren</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>Verificatie</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>Resultaat:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>Geslaagd</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>Niet geslaagd</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>Steekproeven</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> posities</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>Gegevenshash</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>Operatorgegevens</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>Wiscertificaat</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>Certificaat-ID: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>Aangemaakt: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>Verklaring: Dit certificaat bevestigt dat het bovengenoemde opslagapparaat of de bovengenoemde bestanden veilig zijn gewist volgens de vermelde wisstandaard. Het wisproces voldoet aan de toepasselijke regelgeving voor gegevensbescherming. Dit certificaat is automatisch aangemaakt door de software Quorvex en kan dienen als nalevingsbewijs van de gegevensvernietiging.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>Professioneel programma voor gegevenswissing</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>werkelijk verwerkt: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>niet teruggelezen</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>teruggelezen inhoud niet vergelijkbaar</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(volledig in de geschiedenis van dit programma)</translation>
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
        <translation>dit programma is gebouwd zonder certificaatfunctie</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>geen opdracht opgegeven</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; is niet volledig</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>onbekende opdracht &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; vereist %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%1&apos; is één argument te veel voor &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (zie %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 is geen bestand</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 is te groot voor een rapport</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>de velden zijn gelijk, maar de tekst niet, vanaf byte %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niets</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>het eerste afwijkende veld is %1: %2 in het record, %3 in het bestand</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>NIET GELIJK: %1 is geen rapport</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>NIET GELIJK: de database bevat geen record van %1</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>GELIJK: %1 is het record van %2</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>NIET GELIJK: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>ALLEEN NULLEN: elk van de %1 bytes van %2 is 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>NIET ALLEEN NULLEN: byte %1 van %2 is %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>een pad is leeg</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>Vergelijkt een geëxporteerd rapport met zijn record, of zoekt naar overgebleven bytes</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE is een rapport als JSON, of met --zeros een imagebestand of een schijf, die alleen wordt gelezen.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>FILE geheel doorlezen en melden of elke byte 0x00 is</translation>
    </message>
    <message>
        <source>system</source>
        <translation>systeem</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>verwisselbaar</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>Geen schijven gevonden.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Kenmerken</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, systeem</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>Toont de schijven met hun volumes</translation>
    </message>
    <message>
        <source>random</source>
        <translation>willekeurig</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>complement</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (geverifieerd)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, niveau %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>Toont de wisstandaarden met hun rondes</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>rapport %1 kon niet worden verwijderd</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>Rapport %1 is verwijderd.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>Verwijdert één rapport uit de database</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; vereist --pdf of --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>%1 kon niet worden geschreven</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>Exporteert één rapport als certificaat, als JSON of als beide</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>De JSON is de opgeslagen tekst, byte voor byte, voor &apos;quorvex-cli check&apos;.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>Het certificaat als PDF naar dit bestand of deze map schrijven</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>Het rapport als JSON schrijven; - staat voor de standaarduitvoer</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschadigd</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>Geen rapporten.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificaat</translation>
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
        <translation>Bewerking</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Doel</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 verwacht een getal %2, niet &apos;%3&apos;</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>vanaf %1</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>Toont de opgeslagen rapporten, nieuwste eerst</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>Maximaal aantal getoonde rapporten (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>Aantal nieuwste rapporten dat wordt overgeslagen (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>Toont één rapport</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>Toont wat &apos;wipe trash&apos; zou wissen</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>Wist een hele schijf</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE is het nummer dat &apos;quorvex-cli disks&apos; toont, of een apparaatpad. Systeemschijven worden geweigerd.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 en nog %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 bestand</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 bestanden</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>Wist bestanden, en mappen met alles wat erin staat</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>Van een koppeling wordt alleen de koppeling zelf verwijderd; het doel ervan blijft onaangeroerd. Zet -- voor een pad dat met een streepje begint.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  de vrije ruimte van:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  bestaande bestanden blijven behouden</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report neemt het rapport van één volume op, niet van meerdere</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>--pdf vereist bij meerdere volumes een map</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>Wist de vrije ruimte van volumes</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME is een stationsletter, een koppelpunt of een schijfnummer voor alle volumes van de schijf.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>De Prullenbak is leeg.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>de eigen mappenlijst van de Prullenbak noemt nog wat is gewist, fout %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>Prullenbak</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>Wist alles in de Prullenbak van de huidige gebruiker</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>Dat is de Prullenbak van Windows of van een andere desktopomgeving.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>Dit wordt zo meteen definitief vernietigd:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>niet bevestigd: de standaardinvoer is geen terminal; --yes slaat de vraag over</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>Typ %1 om het te vernietigen:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>afgebroken, er is niets geschreven</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>niet bevestigd, er is niets geschreven</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>schijf bestaat niet: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 is een deel van schijf %2; er moet een hele schijf worden opgegeven</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>schijf %1 is een systeemschijf en kan niet worden gewist zolang die in gebruik is</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>geen schrijfrechten voor schijf %1</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>schijf %1 is er niet meer, of een andere heeft de plaats ervan ingenomen</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 is geen bestand of map; een schijf wordt gewist met &apos;wipe disk&apos;</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 gaat terug via een koppeling; geef het pad op zonder &quot;..&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>%1 kan niet worden onderzocht, fout %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 is de hoofdmap van een volume; geef op wat daarin moet worden gewist</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>Machineleesbare uitvoer: JSON, één waarde per regel</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>Database en logboek in deze map bewaren in plaats van in die van de gebruiker</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>Dit imagebestand als schijf laten verschijnen (herhaalbaar)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>Geen echte schijven tonen of openen</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>Alleen fouten en de laatste regel weergeven</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Deze hulp weergeven</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>De versie weergeven</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>geen imagebestand: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>Gebruik: quorvex-cli [OPTION...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Voorbeeld:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opties:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>Opties van elke opdracht:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>gereed, alles wat werd gevraagd is gedaan</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>de taak is uitgevoerd en geheel of gedeeltelijk mislukt</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>de opdrachtregel is onjuist</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>geweigerd voordat er iets werd geschreven</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>afgebroken (Ctrl+C), de taak is netjes gestopt</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>een rapport of andere uitvoer kon niet worden geschreven</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Afsluitcodes:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>OPDRACHT</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>Vernietigt gegevens onherstelbaar en bewijst het.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Opdrachten:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>Elke opdracht heeft een eigen hulptekst: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>de gegevensmap %1 kan niet worden gebruikt</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; ligt in wat moet worden gewist</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 kan niet worden geschreven</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>de rapportdatabase in %1 ligt in wat moet worden gewist; --data-dir neemt een andere map, --no-report doet het zonder</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>rapport %1 kon niet in de database worden opgeslagen: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>het rapportbestand %1 kon niet worden geschreven</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>het certificaat %1 kon niet worden geschreven</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>onbekende taal &apos;%1&apos;, bekend zijn: %2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>de catalogus van de taal %1 kan niet worden gelezen</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 ronde</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 rondes</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; kan geen bestandsnaam zijn</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; is een map, geen bestand</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; bestaat en is geen gewoon bestand</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>de map van &apos;%1&apos; bestaat niet</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>ronde %1/%2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>nog %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>de rapportdatabase in %1 kan niet worden gebruikt: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>de rapportdatabase kan niet worden gelezen: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>er is geen rapport %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>wat als rapport %1 is opgeslagen, is beschadigd</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectoren</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>Gewiste sectoren</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>Defecte sectoren</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verificatie</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>geslaagd</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>niet geslaagd</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Teruggelezen</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Steekproeven</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beëindigd</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duur</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Geschreven</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>de uitvoer kon niet worden geschreven</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[fout]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[waarschuwing]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[info]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>GEREED</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>AFGEBROKEN</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>MISLUKT</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschreven</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4 in %5, certificaat %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, rapport %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root is leeg</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 is geen map</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>In de Windows-prullenbakken onder deze map zoeken, die voor een schijf staat (herhaalbaar)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>Met --root: alleen de Prullenbak van de gebruiker met deze beveiligings-id (SID)</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid is leeg</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid vereist --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>het systeem geeft niet aan wie de gebruiker is</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 item</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 items</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>map, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, alleen de vermelding ervan is nog over</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>schijf %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>volume bestaat niet: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>van %1 tot en met %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>onbekende methode &apos;%1&apos;, &apos;quorvex-cli methods&apos; toont de methoden</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>Wisstandaard, op naam of nummer (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>Niet teruglezen wat is geschreven</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>Aantal steekproeven dat van een schijf wordt teruggelezen (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>Aantal bestanden dat tegelijk wordt gewist, 1 tot en met 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>Schrijfbuffer in MiB, 1 tot en met 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>Het rapport als JSON naar dit bestand schrijven</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>Het rapport niet in de database opslaan</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>Bij succes het certificaat als PDF naar dit bestand of deze map schrijven</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>Niet om het woord ERASE vragen</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>met verificatie</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>zonder verificatie</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  met %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>afgebroken</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>%1 kan niet worden gelezen bij byte %2, fout %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>geen leesrechten voor %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>%1 kan niet worden geopend, fout %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 is een map</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>het logboek van het programma in %1 ligt in wat wordt gewist; --data-dir neemt een andere map</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>DEELS KLAAR</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 is leeg, er valt niets te controleren</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>een apparaat dat geen schijf is</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 is alleen-lezen</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>schijf %1 is alleen-lezen</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>volume %1 ligt op schijf %2 en ook op %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>schijf %1 wordt bezet gehouden door %2</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>om de schijf vrij te geven: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>Tekortkoming</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>volledig</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>gedeeltelijk</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>mislukt</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>onbekend soort tekortkoming &apos;%1&apos;, bekend zijn: %2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>Een tekortkoming van dit soort geldt niet als mislukking (herhaalbaar)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>ontkoppeld gebleven: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  niet alles wordt gewist:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  het hele station: de partitietabel en alles tussen en buiten de volumes</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  de volumes worden eerst ontkoppeld en blijven dat zodra er iets is geschreven</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>Van een station met gekoppelde volumes worden alleen deze gewist; --whole ontkoppelt ze en wist elke sector van het station.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>Alle volumes van het station ontkoppelen en elke sector ervan wissen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>Op het medium</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir is leeg</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>niets te wissen gevonden, maar niet elke prullenbak is doorzocht: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>geen prullenbak van %1 gevonden</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 item zonder registratie</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 items zonder registratie</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>en %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 is een koppeling en wordt niet gevolgd</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 is van een andere gebruiker en blijft ongemoeid</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>%1 kan niet worden doorzocht, fout %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>Met --no-report gaat het zonder.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; is voor twee uitvoerbestanden opgegeven</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; bestaat en is geen rapport; --force vervangt het</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>Laat --report een bestand vervangen dat geen rapport is</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1; probeer het als beheerder</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1; probeer het met sudo</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>Toont wat schijven en volumes antwoorden, voor wie op afstand helpt</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>Er wordt niets geschreven. De antwoorden zijn in elke taal Engels en bevatten serienummers en paden: bekijk ze voordat u ze doorstuurt.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Prullenbak van %1</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>Taal: %1 (standaard: die van het systeem)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>Wissen voltooid</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>Wissen mislukt</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>Er is een fout opgetreden tijdens het wissen.
Raadpleeg het logboek voor details.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>Alle geselecteerde gegevens zijn veilig gewist.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>Alle geselecteerde gegevens zijn veilig gewist.
Er is een wiscertificaat aangemaakt.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>Gegevens met succes gewist!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>Certificaat: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>Naar certificaat</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>Ontkoppeld gebleven: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>Het rapport is niet opgeslagen. %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>Wissen bevestigen</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>Typ &lt;b&gt;ERASE&lt;/b&gt; om te bevestigen:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>Waarschuwing: onomkeerbaar</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>De geselecteerde gegevens worden definitief gewist en kunnen niet worden hersteld.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bevestigen</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>De hele schijf wissen
(anders blijft alles buiten de volumes staan)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>De hele schijf wissen
(anders blijft %1 buiten de volumes staan)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>Elke sector wordt overschreven, ook de partitietabel. Alle volumes van de schijf worden eerst ontkoppeld.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>Dit wordt vernietigd</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>Schijven en partities wissen</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>Selecteer een schijf of partitie om te wissen. Vouw schijven uit om de partities te zien.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Terug</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Volgende →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Schijven en partities</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>Schijf/partitie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>Vrije ruimte wissen</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>Selecteer de partitie waarvan u de vrije ruimte veilig wilt wissen.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>Kies een schijf of partitie om volledig te wissen. Alle gegevens worden definitief gewist.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ De systeemschijf kan niet worden geselecteerd om te wissen.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ Het wissen van vrije ruimte is veilig voor de systeemschijf. Bestaande bestanden en de werking van het systeem blijven ongemoeid.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ De systeempartitie kan niet worden geselecteerd om te wissen.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ Het wissen van vrije ruimte is veilig voor de systeempartitie. Bestaande bestanden en de werking van het systeem blijven ongemoeid.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 Schijf %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ Systeemschijf</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>Verwisselbaar</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Beschikbaar</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 Partitie %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 vrij</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ Systeem</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ Boot</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>een apparaat dat geen schijf is</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>schijf %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>Volume %1 ligt op deze schijf en ook op %2.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>De schijf is alleen-lezen.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>De schijf wordt bezet gehouden door: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>Deze opdrachten geven de schijf vrij:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Geheugentoewijzing mislukt</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>Fout: geen schijf- of volumehandle beschikbaar</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>Wissen via de schijfhandle...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>SetFilePointerEx mislukt, foutcode: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Schrijffout, positie: %1, foutcode: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>Wissen via volumehandles...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>Geschatte volumegrootte wordt gebruikt: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>Volume %1/%2 wordt gewist, grootte: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>Volume %1: %2 niet overschreven</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>Volume %1 gewist, geschreven: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>0 bytes geschreven, einde van het volume bereikt</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>Volumegrens bereikt, verder met het volgende volume...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>Fout: toegang geweigerd</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>Fout: schijf is tegen schrijven beveiligd</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>Fout: apparaat is niet gereed</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>Fout: schijf is in gebruik</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>Fout: vergrendelingsconflict</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>Fout: I/O-apparaatfout</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>Wegschrijven van de schrijfbuffer mislukt, foutcode: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>Bezig met verifiëren...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>Verificatie mislukt, positie: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>Verificatie geslaagd</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>Waarschuwing: geen volumes gevonden, de schijf is mogelijk niet gepartitioneerd</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>Volumes op schijf %1 worden gezocht...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>Volume gevonden: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>Te vergrendelen volumes gevonden: %1</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>Volume wordt verwerkt: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>Volume %1 kan niet worden geopend, foutcode: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>Volume %1 wordt vergrendeld...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>Volume %1 is vergrendeld</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>Waarschuwing: volume %1 kan niet worden vergrendeld, foutcode: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>Volume %1 wordt ontkoppeld...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>Volume %1 is ontkoppeld</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>Waarschuwing: volume %1 kan niet worden ontkoppeld, foutcode: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>De systeemschijf kan niet worden gewist</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>Volumes van de schijf worden vergrendeld...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>De volumes van de schijf kunnen niet worden vergrendeld, sluit alle programma&apos;s die de schijf gebruiken</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>Volumes van de schijf vergrendeld en ontkoppeld</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>De schijfgegevens kunnen niet worden opgehaald</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>Wissen van de schijf voltooid!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Wissen afgebroken</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>Wissen van de schijf wordt gestart...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Doelschijf: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>Schijfnummer: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>Serienummer: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>Schijf wordt geopend...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>Schijf is geopend</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>Schijf kan niet worden geopend, foutcode: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>Het wissen gebeurt via volumehandles</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Schijfgrootte: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>Sectorgrootte: %1 bytes</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>Totaal sectoren: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>Ronde %1/%2 (patroon: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>Overschrijven mislukt</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>willekeurig</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>Volume %1 is weer gekoppeld, er is niets geschreven</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>De schijf kon niet weer online worden gebracht, foutcode: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>Weer gekoppeld: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>Fout: het volume is versleuteld en vergrendeld (BitLocker). Ontgrendel het, of wis de hele schijf (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>Fout: het apparaat is losgekoppeld, of het medium is verwisseld</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>Fout: het apparaat of het medium werkt niet goed</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>Bestanden selecteren om te versnipperen</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Klik op de knoppen om bestanden en mappen toe te voegen</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 Bestanden toevoegen</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 Map toevoegen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alles verwijderen</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>Klik om bestanden toe te voegen of sleep bestanden hierheen</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Terug</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Volgende →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>Te versnipperen bestanden en mappen</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>Bestanden selecteren</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Alle bestanden (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Map selecteren</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>Verwijderen bevestigen</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>Weet u zeker dat u alle toegevoegde bestanden uit de lijst wilt verwijderen?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>Toegevoegde items: %1, totaal %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>1 item is niet gevonden</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>%1 items zijn niet gevonden</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 bestand heeft nog andere namen; de inhoud wordt ook daaronder gewist</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 bestanden hebben nog andere namen; de inhoud wordt ook daaronder gewist</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>IJle bestanden zoals %1 nemen bij het overschrijven nog %2 in, en er is maar %3 vrij. Er is niets geschreven.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Geheugentoewijzing mislukt</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>Doelbestanden worden gezocht...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>Geen te wissen bestanden gevonden</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>Wistaak door de gebruiker afgebroken</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>Alle bestanden zijn gewist! Verwerkte bestanden: %1</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>Wissen beëindigd, mislukte bestanden: %1. De gegevens zijn mogelijk niet veilig gewist!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>Map kan niet worden gelezen: %1, foutcode: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>Geen toegang tot: %1, foutcode: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>Het bestand heeft nog andere harde koppelingen (%1): %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>Te wissen bestanden: %1, totale grootte per ronde: %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>Alle bestanden zijn leeg, het overschrijven wordt overgeslagen</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>In ronde %1/%2 zijn bestanden mislukt, aantal: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>Bestand kan niet worden geopend (WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>FlushFileBuffers mislukt: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>SetFilePointerEx mislukt: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>WriteFile mislukt: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>Verificatie mislukt: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>Bestanden worden veilig verwijderd en metagegevens opgeschoond...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Verwijderen mislukt: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>Map kan niet worden verwijderd: %1, foutcode: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>Het bestand is door een ander vervangen, dat blijft zoals het is: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>De inhoud van %1 bestanden staat mogelijk ook ergens anders, waar die niet is overschreven</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>In de map is een ander bestandssysteem gekoppeld, ongewijzigd gelaten: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>Tijdens de taak zijn nog %1 bestanden verschenen, die ook worden gewist</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>De inhoud van het bestand staat niet op deze computer maar alleen in de cloud en kan niet worden gewist: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>Niet alles in de map staat op deze computer, een deel alleen in de cloud; de map kan niet worden gewist: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 bestanden worden door een clouddienst gesynchroniseerd, die kopieën en eerdere versies kan bewaren</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>Bestandsnamen worden uit het journaal van het bestandssysteem gewist...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>Het journaal van het bestandssysteem kan nog bestandsnamen bevatten: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>Volume niet meer beschikbaar, foutcode: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>Verwijderde vulbestanden hebben geen ruimte vrijgegeven, het overschrijven kan niet worden voortgezet</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>Geheugentoewijzing mislukt</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>Geschreven: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>Systeempartitie gevonden, 1 GB wordt als veiligheidsreserve vrijgehouden</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>De vrije ruimte is gevuld</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>Vulbestand kan niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Schrijffout, positie: %1, foutcode: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>De vrije ruimte is niet afgenomen, het bestandssysteem comprimeert mogelijk gegevens</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>Wissen van vrije ruimte wordt gestart...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>Ongeldig doel</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>Doelpartitie: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>Partitiegrootte: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>Bestandssysteem: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Doelschijf: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Schijfgrootte: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>De schijf heeft geen partitietabel, het bijbehorende volume wordt gezocht...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>Bijbehorend volume gevonden: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>Waarschuwing: geen beschikbare niet-systeempartities op de schijf</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>Partities waarvan de vrije ruimte wordt gewist: %1</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>Geen partities beschikbaar</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== Partitie %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Wissen afgebroken</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>Wissen van vrije ruimte voltooid!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>Vullen van de vrije ruimte mislukt</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>Vrije ruimte: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>Geen vrije ruimte om te wissen</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>Na een onderbreking achtergebleven tijdelijke bestanden zijn verwijderd: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>Tijdelijke map kan niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>Ronde %1/%2 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>patroon: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>patroon: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>patroon: willekeurig</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>patroon: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>patroon: onbekend</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>Resten in het bestandssysteem worden opgeruimd...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>Resten in het bestandssysteem niet volledig opgeruimd, foutcode: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>Waarschuwing: het bestandssysteem neemt geen gegevens meer aan, %1 vrije ruimte is nog niet gevuld</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>Foutcode: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Er is niets geschreven.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>Volume %1 is niet meer het gekozen volume.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>Een andere taak wist de vrije ruimte van dit volume; de bestanden ervan staan in %1.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1 blijft als veiligheidsreserve over en wordt niet overschreven</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>Certificaat bekijken</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>PDF exporteren</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>Alles verwijderen</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>Wisgeschiedenis</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Doel</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Wismethode</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>Bekijken</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[Schijf] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[Partitie] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[Vrije ruimte] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[Bestanden] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>Aantal: %1</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>Certificaat exporteren</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>PDF-bestanden (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>Export geslaagd</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>Certificaat geëxporteerd naar: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>Export mislukt</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>Het certificaatbestand kan niet worden geëxporteerd</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>Verwijderen bevestigen</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>Weet u zeker dat u deze vermelding uit de wisgeschiedenis wilt verwijderen?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Melding</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>Er zijn geen vermeldingen om te verwijderen</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>Verwijderen bevestigen</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>Weet u zeker dat u alle vermeldingen uit de wisgeschiedenis wilt verwijderen?

Dit kan niet ongedaan worden gemaakt!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>Verwijderen voltooid</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>Alle vermeldingen zijn verwijderd</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>Gegevens definitief vernietigen. Geen lekken.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Schijf wissen</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>Wist alle gegevens op de schijf volledig, inclusief partities en bootrecords</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Vrije ruimte wissen</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>Verwijdert resten van verwijderde bestanden</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Bestanden wissen</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>Versnippert bestanden en mappen definitief</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Prullenbak wissen</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>Wist verwijderde bestanden in de Prullenbak</translation>
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
        <translation>Gutmann (35 rondes)</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>De vorige taak wordt nog beëindigd.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>Er loopt een wisopdracht.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>Het systeem kon tijdens deze opdracht niet wakker worden gehouden, fout %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Configuratiefout</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>De paginakoppelingen kunnen niet worden geladen.

Neem contact op met de technische ondersteuning of installeer de software opnieuw.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Browser kan niet worden geopend</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>De standaardbrowser kan niet worden geopend.

Kopieer de koppeling en open deze zelf:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>Logboek kopiëren</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Logboek opslaan</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Leegmaken</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Tekstbestanden (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>Het loop-apparaat %1 is gekoppeld aan %2. Er is niets geschreven.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - Gegevens veilig wissen</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>Vrije ruimte wissen?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>De bestanden in de Prullenbak zijn veilig gewist!

Wilt u ook de vrije ruimte wissen, zodat bestanden die eerder uit de
Prullenbak zijn verwijderd niet kunnen worden hersteld?

Afhankelijk van de beschikbare vrije ruimte kan dit langer duren.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>Stoppen bevestigen</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>Weet u zeker dat u de wistaak wilt stoppen?
Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>Afsluiten bevestigen</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>Er wordt een wistaak uitgevoerd. Weet u zeker dat u wilt afsluiten?
Door af te sluiten wordt de huidige taak afgebroken.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - Gegevens veilig wissen&lt;/h3&gt;&lt;p&gt;Versie 5.0&lt;/p&gt;&lt;p&gt;Wis uw gegevens veilig volgens standaarden op militair niveau.&lt;br&gt;Functies: schijf wissen, partitie wissen, vrije ruimte wissen en bestanden wissen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. Gewist is gewist, en het certificaat zegt hoe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>Info over Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Prullenbak wissen</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>Verwijderde bestanden in de Prullenbak worden gezocht...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>Prullenbak wordt doorzocht...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>Prullenbak op station %1 wordt doorzocht (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>Prullenbak is leeg</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>De Prullenbak is al leeg.

Eerder verwijderde bestanden kunnen mogelijk echter nog worden hersteld.
Wilt u de vrije ruimte wissen, zodat ze niet meer kunnen worden hersteld?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>De volgende verwijderde bestanden zijn gevonden in de Prullenbak</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>Gevonden items: %1, totaal %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>Bestanden selecteren om te versnipperen</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Klik op de knoppen om bestanden en mappen toe te voegen</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>Deze schijf kan niet worden gewist</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>Dit alles wordt gewist, niet alleen %1
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>Dit volume kan niet worden gewist</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>Deze bestanden kunnen niet worden gewist</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>Het wissen kan niet beginnen</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>Ook gewist, zonder registratie: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>Niet doorzocht: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>Schijven worden gelezen...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Prullenbak van %1</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>Rondes: %1</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>Beveiligingsniveau: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>Wismethode selecteren</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>De wismethoden bieden verschillende beveiligingsniveaus: meer rondes betekenen meer veiligheid, maar duren ook langer</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← Terug</translation>
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
        <translation>alleen de gekoppelde volumes worden gewist, niet de rest van de schijf</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>volumes konden niet worden geopend en zijn niet gewist</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>volumes namen vóór hun einde al geen gegevens meer aan</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>volumes waren in gebruik terwijl ze werden overschreven</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>het einde van de schijf is geen hele sector en is niet overschreven</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>de schijf meldt een grootte van nul, er is niets geschreven</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>volumes reiken voorbij het einde van de schijf</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>er is niets geschreven, hoewel er vrije ruimte was</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>er bleef vrije ruimte over die niet kon worden gevuld</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>meer dan 10% van de vrije ruimte blijft vrij als reserve</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>vulbestanden zijn achtergebleven</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>items waren al weg voordat ze konden worden gewist</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>items zijn intussen door andere vervangen</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>bestanden zijn gegroeid nadat ze waren overschreven</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>items konden niet worden verwijderd</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>het bestandssysteem bewaart de inhoud mogelijk elders, waar die niet wordt overschreven</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>koppelingen worden verwijderd, het doel ervan wordt niet gewist</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>wat is geschreven, is niet teruggelezen</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>wat is geschreven, kan bij het teruglezen niet worden vergeleken</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>een klein deel van de vrije ruimte blijft vrij als reserve</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>bestanden hadden nog andere namen, die blijven bestaan en naar overschreven inhoud leiden</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>het bestandssysteem schrijft naar nieuwe plaatsen en bewaart mogelijk eerdere inhoud, bijvoorbeeld in snapshots</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>er was geen vrije ruimte om te overschrijven</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>en nog %1</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>Deels gewist: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>Niet volledig gewist: de taak is mislukt</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>Niet volledig gewist: de taak is afgebroken</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>Naar het medium geschreven: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>het station heeft geen gekoppeld volume waarvan de vrije ruimte kan worden gewist</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>prullenbakken zijn niet doorzocht, de inhoud ervan is niet gewist</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>schaduwkopieën van het volume kunnen eerdere inhoud bewaren</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>een clouddienst bewaart kopieën en eerdere versies van bestanden</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>Snelheid: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>Resterende tijd: wordt berekend...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ Stop</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>Wismethode: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>Snelheid: %1/s</translation>
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
        <translation>%1 u %2 min</translation>
    </message>
    <message>
        <source>剩余时间: %1</source>
        <translation>Resterende tijd: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ Hervatten</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ Pauze</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>Gegevens worden gewist...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>Voortgang van het wissen</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>Hervat de weergave van deze pagina; het wissen is niet gestopt</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>Pauzeert alleen de weergave van deze pagina; het wissen gaat door</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>Tip: &quot;Controlled folder access&quot; van Windows-beveiliging verhindert mogelijk dat dit programma schrijft. Sta het daar toe en probeer het opnieuw</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>Onbekend</translation>
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
        <translation>USB-apparaat</translation>
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
        <translation>Een ander programma houdt de rapportdatabase vast.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>De rapportdatabase kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>Er is geen ruimte meer voor de rapportdatabase.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>De rapportdatabase is beschadigd.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>De rapportdatabase kan niet worden geopend.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>Op de plaats van de rapportdatabase staat een koppeling.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>De rapportdatabase heeft het rapport niet aangenomen.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>Gegevens na het wissen verifiëren</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>Automatisch een wiscertificaat aanmaken</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Bladeren...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>Na het wissen automatisch een PDF-certificaat exporteren</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>Wisinstellingen</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>Exportpad:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>Standaardexportpad kiezen...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>Exportmap selecteren</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>Certificaatexport</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Standaardwaarden</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>Instellingen opslaan</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Opgeslagen</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>De instellingen zijn opgeslagen</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Opslaan mislukt</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>De instellingen konden niet worden opgeslagen</translation>
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
        <translation>Menu</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>Gegevens wissen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Wisgeschiedenis</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>Rapport niet gevonden</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>Er is geen rapport %1 in de database.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>schijf %1: model %2, serienummer %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>volume %1, %2, %3, %4 vrij</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, label %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>geen gekoppelde volumes</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>en nog %1</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 bestand, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>minstens 1 bestand, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 bestanden, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>minstens %1 bestanden, %2</translation>
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
        <translation>Menu</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimaliseren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximaliseren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Ondersteuning</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Vorig formaat</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Taal gewijzigd</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>De taal is gewijzigd.

De toepassing wordt nu opnieuw gestart.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>De taak kan niet worden gewijzigd terwijl deze wordt uitgevoerd</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>Geen taak ingesteld</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>De taak wordt al uitgevoerd</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>Werkthread kan niet worden gemaakt</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>Wistaak wordt gestart...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>Wismethode: %1 (rondes: %2)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>Taak gestopt</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>Ronde %1/%2</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>Fout: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>Wissen voltooid!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>Wissen mislukt</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>Het station is in gebruik door een ander programma.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>De volumes van het station kunnen niet worden losgemaakt, fout %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>Volume %1 is in gebruik en kan niet worden ontkoppeld.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>Volume %1 kan niet worden ontkoppeld, fout %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Er is niets geschreven.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>Niet weer gekoppeld: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>Bestanden: %1</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>Certificaat-ID</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Soort bewerking</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Doel</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Wismethode</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Begintijd</translation>
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
        <translation>Standaard van het NIST (VS), één ronde, voor de meeste gevallen geschikt</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>Beveiligingsstandaard van de Britse overheid, 2 rondes</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>Standaard van het Amerikaanse ministerie van Defensie, 7 rondes, beveiliging op militair niveau</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>Standaard van de Duitse federale dienst voor informatiebeveiliging (BSI), 7&#xa0;rondes</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Hoogste beveiligingsstandaard, voorgesteld door Peter Gutmann, 35 rondes</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>Verhoogd</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>Maximaal</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Onbekend</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>Wachtend</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Actief</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Schijf wissen</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>Partitie wissen</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Vrije ruimte wissen</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Bestanden wissen</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>Bestand niet gevonden: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>Selecteer een schijf om te wissen</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>De systeemschijf kan niet worden gewist. Start op vanaf een externe schijf.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>Selecteer een partitie om te wissen</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>De systeempartitie kan niet worden gewist. Start op vanaf een externe schijf.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>Selecteer een schijf of partitie om de vrije ruimte te wissen</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>Voeg bestanden toe om te wissen</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>Het aantal threads moet tussen 1 en 32 liggen</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>De buffergrootte moet tussen 1 en 1024 MB liggen</translation>
    </message>
</context>
</TS>
