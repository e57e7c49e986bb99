<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Allocazione di memoria non riuscita</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, una dimensione impossibile</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>Il suo record indica %1 byte, più di quanti ne possa avere un file.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>Dimensioni impossibili nella somma: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>Certificato di cancellazione - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 Esporta PDF</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ Stampa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>Esporta certificato</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>File PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>Esportazione riuscita</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>Certificato esportato in:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Esportazione non riuscita</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>Impossibile esportare il certificato. Verificare il percorso del file e le relative autorizzazioni.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Stampa certificato</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>Riepilogo dell&apos;operazione</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>Passaggi</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>Dispositivo di archiviazione</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaccia</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>Dettagli della cancellazione</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>File elaborati</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Settori totali</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>Settori cancellati</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>Dati scritti</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>Settori difettosi</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>Positivo ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>Negativo ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>Hash dei dati</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>Informazioni sull&apos;operatore</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operatore</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>Certificato di cancellazione dei dati</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>Attestazione di conformità della cancellazione sicura dei dati</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>N. certificato:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Creato il:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>Dichiarazione: il presente certificato attesta che il dispositivo di archiviazione o i file sopra indicati sono stati cancellati in modo sicuro secondo lo standard di cancellazione dei dati specificato. Il processo di cancellazione è conforme alle norme applicabili in materia di protezione dei dati. Il certificato è stato generato automaticamente da Quorvex e vale come documentazione di conformità della distruzione dei dati.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>Sul supporto</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>Non riletto</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>Nulla che potesse essere confrontato</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>Rilettura</translation>
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
        <translation>Tutti i numeri di certificato di questo giorno sono già assegnati.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>Riepilogo dell&apos;operazione</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>Passaggi</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> in totale</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>Dispositivo di archiviazione</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>Interfaccia</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>Dettagli della cancellazione</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>File elaborati</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> in totale</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>Settori totali</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>Settori cancellati</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>Dati scritti</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>Settori difettosi</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>Esito:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>Positivo</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> posizioni</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>Hash dei dati</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>Informazioni sull&apos;operatore</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Operatore</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>Certificato di cancellazione dei dati</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>N. certificato: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>Generato il: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>Dichiarazione: il presente certificato attesta che il dispositivo di archiviazione o i file sopra indicati sono stati cancellati in modo sicuro secondo lo standard di cancellazione dei dati specificato. Il processo di cancellazione è conforme alle norme applicabili in materia di protezione dei dati. Il certificato è stato generato automaticamente da Quorvex e vale come documentazione di conformità della distruzione dei dati.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>Strumento professionale per la cancellazione dei dati</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>effettivamente elaborati: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>non riletto</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>contenuto riletto non confrontabile</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(testo completo nella cronologia di questo programma)</translation>
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
        <translation>questo programma è stato compilato senza il supporto per i certificati</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>nessun comando indicato</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; è incompleto</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>comando sconosciuto &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; richiede %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%1&apos; è un argomento di troppo per &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (vedere %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 non è un file</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 è troppo grande per un rapporto</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>i campi coincidono, ma il testo differisce a partire dal byte %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niente</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>il primo campo diverso è %1: %2 nel record, %3 nel file</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>DIVERSO: %1 non è un rapporto</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>DIVERSO: il database non contiene alcun record di %1</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>IDENTICO: %1 corrisponde al record di %2</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>DIVERSO: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>SOLO ZERI: tutti i %1 byte di %2 valgono 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>NON SOLO ZERI: il byte %1 di %2 vale %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>un percorso è vuoto</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>Confronta un rapporto esportato con il relativo record oppure cerca byte rimasti</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE è un rapporto in formato JSON oppure, con --zeros, un file immagine o un disco, che viene soltanto letto.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>Legge FILE per intero e indica se ogni byte vale 0x00</translation>
    </message>
    <message>
        <source>system</source>
        <translation>sistema</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>rimovibile</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>Nessun disco trovato.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Bus</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Attributi</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, sistema</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>Elenca i dischi con i relativi volumi</translation>
    </message>
    <message>
        <source>random</source>
        <translation>casuale</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>complemento</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (con verifica)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, livello %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>Elenca gli standard di cancellazione con i relativi passaggi</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>impossibile eliminare il rapporto %1</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>Il rapporto %1 è stato eliminato.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>Elimina un rapporto dal database</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; richiede --pdf o --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>impossibile scrivere %1</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>Esporta un rapporto come certificato, come JSON o in entrambe le forme</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>Il JSON è il testo archiviato, byte per byte, destinato a &apos;quorvex-cli check&apos;.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>Scrive il certificato in formato PDF, in questo file o in questa cartella</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>Scrive il rapporto in formato JSON; - indica lo standard output</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>danneggiato</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>Nessun rapporto.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificato</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 richiede un numero %2, non &apos;%3&apos;</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>maggiore o uguale a %1</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>Elenca i rapporti archiviati, dal più recente</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>Numero di rapporti da elencare (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>Numero di rapporti più recenti da saltare (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>Mostra un rapporto</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>Elenca ciò che &apos;wipe trash&apos; cancellerebbe</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>Cancella un intero disco</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE è il numero mostrato da &apos;quorvex-cli disks&apos; oppure un percorso di dispositivo. I dischi di sistema vengono rifiutati.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 file</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 file</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>Cancella file, nonché cartelle con tutto il loro contenuto</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>Di un collegamento viene rimosso solo il collegamento stesso; ciò a cui punta non viene toccato. Anteporre -- a un percorso che inizia con un trattino.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  lo spazio libero di:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  i file esistenti vengono conservati</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report accetta il rapporto di un solo volume, non di più volumi</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>--pdf richiede una cartella quando i volumi sono più di uno</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>Cancella lo spazio libero dei volumi</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME è una lettera di unità, un punto di montaggio o un numero di disco per tutti i volumi del disco.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>Il Cestino è vuoto.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>l&apos;elenco delle cartelle tenuto dal Cestino riporta ancora ciò che è stato cancellato, errore %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>il Cestino</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>Cancella tutto il contenuto del Cestino dell&apos;utente corrente</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>Si tratta del Cestino di Windows e di quello degli altri ambienti desktop.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>Sta per essere distrutto definitivamente quanto segue:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>non confermato: lo standard input non è un terminale; --yes evita la domanda</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>Digitare %1 per distruggere tutto:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>annullato, non è stato scritto nulla</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>non confermato, non è stato scritto nulla</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>disco inesistente: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 fa parte del disco %2; occorre indicare un disco intero</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>il disco %1 è un disco di sistema e non può essere cancellato mentre è in uso</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>autorizzazione di scrittura negata per il disco %1</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>il disco %1 non c&apos;è più oppure un altro ne ha preso il posto</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 non è né un file né una cartella; un disco si cancella con &apos;wipe disk&apos;</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 risale attraverso un collegamento; indicare il percorso senza &quot;..&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>impossibile esaminare %1, errore %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 è la radice di un volume; indicare che cosa cancellare al suo interno</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>Output per l&apos;elaborazione automatica: JSON, un valore per riga</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>Conserva database e log in questa cartella anziché in quella dell&apos;utente</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>Presenta questo file immagine come un disco (ripetibile)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>Non elenca né apre alcun disco reale</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>Mostra solo gli errori e la riga finale</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Mostra questa guida</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Mostra la versione</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>non è un file immagine: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>Uso: quorvex-cli [OPZIONE...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Esempio:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opzioni:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>Opzioni comuni a tutti i comandi:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>completato, tutto ciò che era richiesto è stato eseguito</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>l&apos;attività è stata eseguita e non è riuscita, in tutto o in parte</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>la riga di comando è errata</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>rifiutato prima di qualsiasi scrittura</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>annullato (Ctrl+C), l&apos;attività si è arrestata regolarmente</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>impossibile scrivere un rapporto o un altro output</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Codici di uscita:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMANDO</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>Distrugge i dati senza possibilità di recupero e lo dimostra.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandi:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>Ogni comando dispone di una propria guida: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>impossibile utilizzare la cartella dei dati %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; si trova in ciò che deve essere cancellato</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>impossibile scrivere in %1</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>il database dei rapporti in %1 si trova in ciò che deve essere cancellato; --data-dir sceglie un&apos;altra cartella, --no-report ne fa a meno</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>impossibile archiviare il rapporto %1 nel database: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>impossibile scrivere il file del rapporto %1</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>impossibile scrivere il certificato %1</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>lingua sconosciuta &apos;%1&apos;, quelle note sono: %2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>impossibile leggere il catalogo della lingua %1</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 passaggio</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 passaggi</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; non può essere il nome di un file</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; è una cartella, non un file</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; esiste e non è un file ordinario</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>la cartella di &apos;%1&apos; non esiste</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>passaggio %1/%2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 rimanenti</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>impossibile utilizzare il database dei rapporti in %1: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>impossibile leggere il database dei rapporti: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>non esiste alcun rapporto %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>i dati archiviati come rapporto %1 sono danneggiati</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Settori</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>Settori cancellati</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>Settori difettosi</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>superata</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>non superata</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Rilettura</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Campioni</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Dati scritti</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operatore</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>impossibile scrivere l&apos;output</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[errore]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[avviso]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[info]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>RIUSCITO</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>ANNULLATO</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FALLITO</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 scritti</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4 in %5, certificato %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, rapporto %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root è vuoto</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 non è una cartella</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>Esamina i Cestini di Windows sotto questa cartella, che rappresenta un disco (ripetibile)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>Con --root: solo il Cestino dell&apos;utente con questo identificatore di sicurezza</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid è vuoto</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid richiede --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>il sistema non indica chi è l&apos;utente</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementi</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>cartella, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, ne rimane solo il record</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>disco %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>volume inesistente: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>compreso tra %1 e %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>metodo sconosciuto &apos;%1&apos;, &apos;quorvex-cli methods&apos; elenca quelli disponibili</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>Standard di cancellazione, per nome o numero (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>Non rilegge ciò che è stato scritto</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>Numero di campioni da rileggere da un disco (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>Numero di file da cancellare contemporaneamente, da 1 a 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>Buffer di scrittura in MiB, da 1 a 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>Scrive il rapporto in formato JSON in questo file</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>Non archivia il rapporto nel database</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>In caso di successo scrive il certificato in formato PDF, in questo file o in questa cartella</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>Non chiede la parola ERASE</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>con rilettura</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>senza rilettura</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  metodo %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annullato</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>impossibile leggere %1 al byte %2, errore %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>autorizzazione di lettura negata per %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>impossibile aprire %1, errore %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 è una cartella</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>il registro del programma in %1 si trova in ciò che va cancellato; --data-dir usa un&apos;altra cartella</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>FATTO IN PARTE</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 è vuoto, non c&apos;è nulla da controllare</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Esito</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>dispositivo che non è un disco</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 è di sola lettura</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>il disco %1 è di sola lettura</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>il volume %1 si trova sul disco %2 e anche su: %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>il disco %1 è occupato da %2</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>per liberarlo: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>Lacuna</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completo</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>parziale</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallito</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>tipo di lacuna sconosciuto &apos;%1&apos;, quelli disponibili sono: %2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>Una lacuna di questo tipo non è considerata un errore (ripetibile)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>volumi rimasti smontati: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  non verrà cancellato tutto:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  l&apos;intera unità: la tabella delle partizioni e tutto ciò che si trova tra i volumi e al di fuori di essi</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  i suoi volumi vengono prima smontati e restano tali non appena qualcosa è stato scritto</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>Di una unità con volumi montati vengono cancellati solo questi; --whole li smonta e cancella ogni settore dell&apos;unità.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>Smonta tutti i volumi dell&apos;unità e ne cancella ogni settore</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>Sul supporto</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir è vuoto</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>non è stato trovato nulla da cancellare, ma non tutti i cestini sono stati esaminati: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>nessun cestino di %1 trovato</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 voce senza registrazione</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 voci senza registrazione</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>e %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 è un collegamento e non viene seguito</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 appartiene a un altro utente e non viene toccato</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>impossibile esaminare %1, errore %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>Con --no-report se ne fa a meno.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; è indicato per due output</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; esiste e non è un rapporto; --force lo sostituisce</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>Consente a --report di sostituire un file che non è un rapporto</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1; provare come amministratore</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1; provare con sudo</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>Mostra che cosa rispondono unità e volumi, per chi aiuta a distanza</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>Non viene scritto nulla. Le risposte sono in inglese in ogni lingua e contengono numeri di serie e percorsi: controllarle prima di inviarle.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Cestino di %1</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>Lingua: %1 (predefinita: quella del sistema)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>Cancellazione completata</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>Cancellazione non riuscita</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>Si è verificato un errore durante la cancellazione.
Consultare il log per i dettagli.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>Tutti i dati selezionati sono stati cancellati in&#xa0;modo&#xa0;sicuro.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>Tutti i dati selezionati sono stati cancellati in&#xa0;modo&#xa0;sicuro.
È stato generato un certificato di cancellazione.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>Cancellazione riuscita!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>Certificato: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>Vedi certificato</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>Rimasti smontati: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>Il rapporto non è stato salvato. %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>Conferma cancellazione</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>Digitare &lt;b&gt;ERASE&lt;/b&gt; per confermare:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>Avviso: operazione irreversibile</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>I dati selezionati verranno cancellati definitivamente e non saranno recuperabili.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>Cancella l&apos;intero disco
(altrimenti resta tutto ciò che è fuori dai volumi)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>Cancella l&apos;intero disco
(altrimenti restano %1 fuori dai volumi)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>Ogni settore viene sovrascritto, anche la tabella delle partizioni. Prima vengono smontati tutti i volumi del disco.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>Questo verrà distrutto</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>Cancellazione di dischi e partizioni</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>Selezionare un disco o una partizione. Espandere un disco per vederne le partizioni.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Indietro</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Avanti →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Dischi e partizioni</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>Disco/Partizione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaccia</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>Cancellazione dello spazio libero</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>Selezionare una partizione di cui cancellare in modo sicuro lo spazio libero.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>Selezionare un disco o una partizione. Tutti i dati verranno cancellati definitivamente.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ Il disco di sistema non può essere cancellato.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ La cancellazione dello spazio libero è sicura per il disco di sistema. Non influisce sui file esistenti né sul funzionamento del sistema.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ La partizione di sistema non può essere cancellata.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ La cancellazione dello spazio libero è sicura per la partizione di sistema. Non influisce sui file esistenti né sul funzionamento del sistema.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 Disco %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ Sistema</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>Rimovibile</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponibile</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 Partizione %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 liberi</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ Sistema</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ Avvio</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>un dispositivo che non è un disco</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>disco %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>Il volume %1 si trova su questo disco e anche su %2.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>Il disco è di sola lettura.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>Il disco è occupato da: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>Questi comandi lo liberano:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Allocazione di memoria non riuscita</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>Errore: nessun handle di disco o di volume disponibile</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>Cancellazione tramite l&apos;handle del disco...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>SetFilePointerEx non riuscita, codice di errore: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Errore di scrittura, posizione: %1, codice di errore: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>Cancellazione tramite gli handle dei volumi...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>Uso della dimensione stimata del volume: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>Cancellazione del volume %1/%2, dimensione: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>Volume %1: %2 non sovrascritti</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>Cancellazione del volume %1 completata, dati scritti: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>0 byte scritti, raggiunta la fine del volume</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>Raggiunto il limite del volume, si passa al volume successivo...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>Errore: accesso negato</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>Errore: disco protetto da scrittura</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>Errore: dispositivo non pronto</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>Errore: disco in uso</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>Errore: conflitto di blocco</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>Errore: errore di I/O del dispositivo</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>Svuotamento del buffer di scrittura non riuscito, codice di errore: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>Verifica in corso...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>Verifica non superata, posizione: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>Verifica superata</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>Avviso: nessun volume trovato, il disco potrebbe essere privo di partizioni</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>Ricerca dei volumi sul disco %1...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>Volume trovato: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>Volumi da bloccare trovati: %1</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>Elaborazione del volume: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>Impossibile aprire il volume %1, codice di errore: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>Blocco del volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>Volume %1 bloccato</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>Avviso: blocco del volume %1 non riuscito, codice di errore: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>Smontaggio del volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>Volume %1 smontato</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>Avviso: smontaggio del volume %1 non riuscito, codice di errore: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>Impossibile cancellare il disco di sistema</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>Blocco dei volumi del disco...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>Impossibile bloccare i volumi del disco, chiudere tutti i programmi che lo utilizzano</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>Volumi del disco bloccati e smontati</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>Impossibile ottenere le informazioni sul disco</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>Cancellazione del disco completata!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Cancellazione annullata</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>Avvio della cancellazione del disco...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disco interessato: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>Numero del disco: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>Numero di serie: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>Apertura del disco...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>Disco aperto</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>Impossibile aprire il disco, codice di errore: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>La cancellazione avverrà tramite gli handle dei volumi</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Dimensione del disco: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>Dimensione del settore: %1 byte</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>Settori totali: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>Passaggio di sovrascrittura %1/%2 (pattern: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>Sovrascrittura non riuscita</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>casuale</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>Il volume %1 è stato montato di nuovo, non è stato scritto nulla</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>Non è stato possibile riportare il disco online, codice di errore: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>Montato di nuovo: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>Errore: il volume è crittografato e bloccato (BitLocker). Sbloccarlo o cancellare l’intera unità (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>Errore: il dispositivo è stato scollegato o il supporto è stato sostituito</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>Errore: guasto del dispositivo o del supporto</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>Selezione dei file da distruggere</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Fare clic sui pulsanti per aggiungere file e cartelle</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 Aggiungi file</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 Aggiungi cartella</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Rimuovi tutto</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>Fare clic per aggiungere file o trascinarli qui</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Indietro</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Avanti →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>File e cartelle da distruggere</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>Seleziona file</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>Conferma rimozione</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>Rimuovere davvero tutti i file aggiunti?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>Elementi aggiunti: %1, totale: %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>Impossibile trovare 1 elemento</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>Impossibile trovare %1 elementi</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 file ha altri nomi; il suo contenuto viene cancellato anche sotto questi</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 file hanno altri nomi; il loro contenuto viene cancellato anche sotto questi</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>I file sparsi come %1 occupano altri %2 quando vengono sovrascritti, e solo %3 sono liberi. Non è stato scritto nulla.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Allocazione di memoria non riuscita</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>Analisi dei file da cancellare...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>Nessun file da cancellare trovato</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>L&apos;attività di cancellazione è stata annullata dall&apos;utente</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>Tutti i file sono stati cancellati correttamente! File elaborati: %1</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>Cancellazione terminata, ma non riuscita per %1 file. I dati potrebbero non essere al sicuro!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>Impossibile leggere la cartella: %1, codice di errore: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>Impossibile accedere a: %1, codice di errore: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>Altri collegamenti fisici al file: %1 (%2)</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>File pronti per la cancellazione: %1, dimensione totale per passaggio: %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>Tutti i file sono vuoti, sovrascrittura dei dati omessa</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>Passaggio di sovrascrittura %1/%2 con file in errore, numero: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>Impossibile aprire il file (WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>FlushFileBuffers non riuscita: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>SetFilePointerEx non riuscita: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>WriteFile non riuscita: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>Verifica non superata: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>Eliminazione sicura e pulizia dei metadati in corso...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Eliminazione non riuscita: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>Impossibile eliminare la cartella: %1, codice di errore: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>Il file è stato sostituito da un altro, che resta com&apos;è: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>Il contenuto di %1 file può trovarsi anche altrove, dove non è stato sovrascritto</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>Nella cartella è montato un altro file system, lasciato com&apos;è: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>Durante il lavoro sono comparsi altri %1 file, che vengono cancellati anch&apos;essi</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>Il contenuto del file non è in questo computer ma solo nel cloud e non può essere cancellato: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>Non tutto il contenuto della cartella è in questo computer, una parte è solo nel cloud; non può essere cancellata: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 file sono sincronizzati da un servizio cloud, che può conservarne copie e versioni precedenti</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>Cancellazione dei nomi di file dal journal del file system...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>Il journal del file system può ancora contenere nomi di file: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>Il volume non è più disponibile, codice di errore: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>Il file di riempimento eliminato non ha liberato spazio, impossibile continuare la sovrascrittura</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>Allocazione di memoria non riuscita</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>Dati scritti: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>Rilevata una partizione di sistema, viene riservato 1 GB di spazio di sicurezza</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>Lo spazio libero è stato riempito</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>Impossibile creare il file di riempimento, %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Errore di scrittura, posizione: %1, codice di errore: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>Lo spazio libero non diminuisce, il file system potrebbe comprimere i dati</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>Avvio della cancellazione dello spazio libero...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>Oggetto non valido</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>Partizione interessata: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>Dimensione della partizione: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>File system: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disco interessato: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Dimensione del disco: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>Il disco non ha una tabella delle partizioni, ricerca del volume corrispondente...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>Volume corrispondente trovato: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>Avviso: sul disco non ci sono partizioni utilizzabili diverse da quelle di sistema</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>Partizioni di cui verrà cancellato lo spazio libero: %1</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>Nessuna partizione utilizzabile</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== Partizione %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Cancellazione annullata</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>Cancellazione dello spazio libero completata!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>Riempimento dello spazio libero non riuscito</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>Spazio libero: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>Nessuno spazio libero da cancellare</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>Rimossi i file temporanei dell&apos;ultima interruzione: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>Impossibile creare la cartella temporanea: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>Passaggio di sovrascrittura %1/%2 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>pattern: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>pattern: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>pattern: casuale</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>pattern: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>pattern: sconosciuto</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>Pulizia dei residui del file system...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>Pulizia incompleta dei residui del file system, codice di errore: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>Avviso: il file system non accetta più dati, restano %1 di spazio libero non riempiti</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>codice di errore: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>Il volume %1 non è più quello scelto.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>Un altro lavoro sta cancellando lo spazio libero di questo volume; i suoi file sono in %1.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1 restano come riserva di sicurezza e non vengono sovrascritti</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>Vedi certificato</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>Esporta PDF</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>Elimina tutto</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>Cronologia delle cancellazioni</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Riuscito</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fallito</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>Vedi</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[Disco] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[Partizione] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[Spazio libero] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[File] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 file</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>Esporta certificato</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>File PDF (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>Esportazione riuscita</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>Certificato esportato in: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>Esportazione non riuscita</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>Impossibile esportare il file del certificato</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>Conferma eliminazione</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>Eliminare davvero questo record di cancellazione?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>Nessun record da eliminare</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>Conferma eliminazione</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>Eliminare davvero tutti i record di cancellazione?

Questa operazione è irreversibile!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>Eliminazione completata</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>Tutti i record sono stati eliminati</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>Distruzione definitiva dei dati. Nessuna fuga.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Cancella disco</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>Cancella completamente i dati del disco, comprese partizioni e record di avvio</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Cancella spazio&#xa0;libero</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>Rimuove i residui dei file&#xa0;eliminati</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Cancella file</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>Distrugge definitivamente file e cartelle</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Cancella Cestino</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>Cancella i file presenti nel&#xa0;Cestino</translation>
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
        <translation>Gutmann 35 passaggi</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>Il lavoro precedente è ancora in fase di chiusura.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>È in corso una cancellazione.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>Non è stato possibile impedire la sospensione del sistema durante questa operazione, errore %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Errore di configurazione</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossibile caricare il collegamento alla pagina.

Contattare l&apos;assistenza tecnica o reinstallare il software.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossibile aprire il browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossibile aprire il browser predefinito.

Copiare manualmente il collegamento per accedervi:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>Copia log</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Salva log</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Svuota</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>File di testo (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>Il dispositivo loop %1 è associato a %2. Nulla è stato scritto.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - Cancellazione sicura dei dati</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>Cancellare lo spazio libero?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>I file del Cestino sono stati cancellati in modo sicuro!

Cancellare anche lo spazio libero, in modo che i file rimossi
in precedenza dal Cestino non possano essere recuperati?

L&apos;operazione può richiedere più tempo in base allo spazio libero disponibile.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>Conferma arresto</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>Arrestare davvero l&apos;attività di cancellazione?
Questa operazione è irreversibile.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>Conferma uscita</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>È in corso un&apos;attività di cancellazione. Uscire davvero?
Uscendo, l&apos;attività in corso verrà interrotta.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - Cancellazione sicura dei dati&lt;/h3&gt;&lt;p&gt;Versione 5.0&lt;/p&gt;&lt;p&gt;Cancella i dati in modo sicuro secondo standard di livello militare.&lt;br&gt;Consente di cancellare dischi, partizioni, spazio libero e file.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. Cancellato significa cancellato, e il certificato dice come.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>Informazioni su Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Cancella Cestino</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>Analisi dei file eliminati presenti nel Cestino...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>Analisi del Cestino...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>Analisi del Cestino dell&apos;unità %1 (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>Il Cestino è vuoto</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>Il Cestino è già vuoto.

Tuttavia, i file eliminati in precedenza potrebbero essere ancora recuperabili.
Cancellare lo spazio libero in modo che non possano essere recuperati?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>Nel Cestino sono stati trovati i seguenti file eliminati</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>Elementi trovati: %1, totale: %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>Selezione dei file da distruggere</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Fare clic sui pulsanti per aggiungere file e cartelle</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>Questo disco non può essere cancellato</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>Verrà cancellato tutto questo, non solo %1
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>Questo volume non può essere cancellato</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>Questi file non possono essere cancellati</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>La cancellazione non può iniziare</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>Cancellato anch&apos;esso, senza registrazione: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>Non esaminato: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>Lettura dei dischi...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Cestino di %1</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>Passaggi: %1</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>Livello di sicurezza: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>Selezione del metodo di cancellazione</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>Ogni metodo di cancellazione offre un diverso livello di sicurezza: più sono i passaggi di sovrascrittura, maggiore è la sicurezza, ma più lunga è la durata</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← Indietro</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Avvia</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>vengono cancellati solo i volumi montati, non il resto del disco</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>volumi che non è stato possibile aprire e che non sono stati cancellati</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>volumi che non accettavano più dati prima della propria fine</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>volumi che erano in uso durante la sovrascrittura</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>la fine del disco non è un settore intero e non è stata sovrascritta</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>il disco indica una dimensione pari a zero, non è stato scritto nulla</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>volumi che si estendono oltre il disco</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>non è stato scritto nulla benché ci fosse spazio libero</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>è rimasto spazio libero che non è stato possibile riempire</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>più del 10% dello spazio libero viene lasciato come riserva</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>sono rimasti file di riempimento</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>elementi scomparsi prima di poter essere cancellati</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>elementi sostituiti nel frattempo da altri</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>file cresciuti dopo la sovrascrittura</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>elementi che non è stato possibile rimuovere</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>il file system potrebbe conservare il contenuto altrove, dove non viene sovrascritto</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>i collegamenti vengono rimossi, ciò a cui puntano non viene cancellato</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>ciò che è stato scritto non è stato riletto</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>ciò che è stato scritto non può essere confrontato alla rilettura</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>una piccola parte dello spazio libero viene lasciata come riserva</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>file che avevano altri nomi, che rimangono e puntano a contenuto sovrascritto</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>il file system scrive in posizioni nuove e potrebbe conservare il contenuto precedente, ad esempio in snapshot</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>non c&apos;era spazio libero da sovrascrivere</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>Cancellato in parte: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>Non cancellato completamente: l&apos;attività non è riuscita</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>Non cancellato completamente: l&apos;attività è stata annullata</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>Scritto sul supporto: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>l&apos;unità non ha alcun volume montato di cui cancellare lo spazio libero</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>alcuni cestini non sono stati esaminati, il loro contenuto non viene cancellato</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>le copie shadow del volume possono conservare contenuti precedenti</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>un servizio cloud conserva copie e versioni precedenti di file</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>Velocità: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>Tempo rimanente: calcolo in corso...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Log delle operazioni</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ Arresta</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>Metodo di cancellazione: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>Velocità: %1/s</translation>
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
        <translation>Tempo rimanente: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ Riprendi</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ Pausa</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>Cancellazione dei dati in corso...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>Avanzamento della cancellazione</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>Riprende la visualizzazione di questa pagina; la cancellazione non si è fermata</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>Sospende solo la visualizzazione di questa pagina; la cancellazione continua</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>Nota: l’«accesso alle cartelle controllato» di Sicurezza di Windows può impedire la scrittura a questo programma. Consentirlo lì e riprovare</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <source>机械硬盘</source>
        <translation>Disco rigido</translation>
    </message>
    <message>
        <source>固态硬盘</source>
        <translation>SSD</translation>
    </message>
    <message>
        <source>USB设备</source>
        <translation>Unità USB</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>Disco esterno</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>Un altro programma tiene occupato il database dei rapporti.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>Il database dei rapporti non può essere scritto.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>Non c&apos;è più spazio per il database dei rapporti.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>Il database dei rapporti è danneggiato.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>Impossibile aprire il database dei rapporti.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>Al posto del database dei rapporti c&apos;è un collegamento.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>Il database dei rapporti non ha accettato il rapporto.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>Verifica i dati dopo la cancellazione</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>Genera automaticamente il certificato di cancellazione</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>Esporta automaticamente il certificato in PDF al termine della cancellazione</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>Cancellazione</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>Cartella di esportazione:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>Scegliere la cartella predefinita...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>Seleziona cartella di esportazione</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>Esportazione dei certificati</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Salvataggio riuscito</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>Le impostazioni sono state salvate</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Salvataggio non riuscito</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>Impossibile salvare le impostazioni</translation>
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
        <translation>Cancellazione</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>Rapporto non trovato</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>Nel database non è presente il rapporto %1.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>sconosciuto</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>disco %1: modello %2, numero di serie %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>volume %1, %2, %3, %4 liberi</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, etichetta %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>nessun volume montato</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e altri %1</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 file, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>almeno 1 file, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 file, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>almeno %1 file, %2</translation>
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
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Assistenza</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Lingua modificata</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>La lingua è stata modificata.

L&apos;applicazione verrà ora riavviata.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>Impossibile modificare l&apos;attività durante l&apos;esecuzione</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>Nessuna attività impostata</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>L&apos;attività è già in esecuzione</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>Creazione del thread di lavoro non riuscita</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>Avvio dell&apos;attività di cancellazione...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>Metodo di cancellazione: %1 (passaggi: %2)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>Attività arrestata</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>Passaggio di sovrascrittura %1/%2</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>Errore: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>Cancellazione completata!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>Cancellazione non riuscita</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>L&apos;unità è in uso da un altro programma.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>Non è possibile staccare i volumi dell&apos;unità, errore %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>Il volume %1 è in uso e non può essere smontato.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>Il volume %1 non può essere smontato, errore %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Non è stato scritto nulla.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>Non montato di nuovo: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>%1 file</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>N. certificato</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Operazione</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Metodo</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Stato</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>Standard del National Institute of Standards and Technology (NIST, Stati Uniti), un solo passaggio, adatto alla maggior parte dei casi</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>Standard di sicurezza del governo britannico, 2 passaggi</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>Standard del Dipartimento della Difesa degli Stati Uniti, 7 passaggi, sicurezza di livello militare</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>Standard dell&apos;Ufficio federale tedesco per la sicurezza informatica (BSI), 7&#xa0;passaggi</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Standard di massima sicurezza proposto da Peter Gutmann, 35 passaggi</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>Rafforzato</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Elevato</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Sconosciuto</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In corso</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Riuscito</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallito</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Cancellazione disco</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>Cancellazione partizione</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Cancellazione spazio libero</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Cancellazione file</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>File non trovato: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>Selezionare un disco da cancellare</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>Impossibile cancellare il disco di sistema. Avviare il computer da un disco esterno.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>Selezionare una partizione da cancellare</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>Impossibile cancellare la partizione di sistema. Avviare il computer da un disco esterno.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>Selezionare un disco o una partizione di cui cancellare lo spazio libero</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>Aggiungere i file da cancellare</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>Il numero di thread deve essere compreso tra 1 e 32</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>La dimensione del buffer deve essere compresa tra 1 e 1024 MB</translation>
    </message>
</context>
</TS>
