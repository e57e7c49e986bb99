<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>No se pudo asignar memoria</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, un tamaño imposible</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>Su registro indica %1 bytes, más de los que puede tener un archivo.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>Tamaños imposibles en la suma: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>Certificado de borrado - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 Exportar PDF</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ Imprimir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>Exportar certificado</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>Exportación completada</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>Certificado exportado en:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Error de exportación</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>No se pudo exportar el certificado. Compruebe los permisos de la ruta del archivo.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Imprimir certificado</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>Tipo de operación</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>Pasadas</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>Datos del borrado</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>Archivos procesados</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total de sectores</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>Sectores borrados</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>Datos escritos</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>Sectores dañados</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verificación</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>Superada ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>No superada ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>Hash de los datos</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>Datos del operador</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>Certificado de borrado de datos</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>Constancia de cumplimiento del borrado seguro de datos</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>ID del certificado:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Creado:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>Declaración: este certificado acredita que el dispositivo de almacenamiento o los archivos arriba indicados se han borrado de forma segura conforme al estándar de borrado de datos especificado. El proceso de borrado cumple la normativa de protección de datos aplicable. Este certificado ha sido generado automáticamente por Quorvex y sirve como constancia de cumplimiento de la destrucción de datos.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>En el medio</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>No releído</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>Nada que pudiera compararse</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>Relectura</translation>
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
        <translation>Todos los números de certificado de este día están ocupados.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Tipo de operación</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>Pasadas</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> ×</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation>Datos del borrado</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> en total</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>Total de sectores</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>Sectores borrados</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>Datos escritos</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>Sectores dañados</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>Verificación</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>Resultado:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>Superada</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>No superada</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> posiciones</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>Hash de los datos</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>Datos del operador</translation>
    </message>
    <message>
        <source>操作员</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>计算机</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation>Certificado de borrado de datos</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>ID del certificado: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>Creado: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>Declaración: este certificado acredita que el dispositivo de almacenamiento o los archivos arriba indicados se han borrado de forma segura conforme al estándar de borrado de datos especificado. El proceso de borrado cumple la normativa de protección de datos aplicable. Este certificado ha sido generado automáticamente por Quorvex y sirve como constancia de cumplimiento de la destrucción de datos.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>Herramienta profesional de borrado de datos</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>procesados realmente: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>no releído</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>lo releído no es comparable</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(completo en el historial de este programa)</translation>
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
        <translation>este programa se compiló sin certificados</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>no se ha indicado ningún comando</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; está incompleto</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>comando desconocido: &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; requiere %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%1&apos; es un argumento de más para &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (consulte %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 no es un archivo</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>no se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 es demasiado grande para ser un informe</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>los campos coinciden, pero el texto difiere a partir del byte %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nada</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>el primer campo que difiere es %1: %2 en la entrada, %3 en el archivo</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>NO IDÉNTICO: %1 no es un informe</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>NO IDÉNTICO: la base de datos no tiene ninguna entrada de %1</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>IDÉNTICO: %1 coincide con la entrada de %2</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>NO IDÉNTICO: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>TODO CEROS: cada uno de los %1 bytes de %2 es 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>NO TODO CEROS: el byte %1 de %2 es %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>una ruta está vacía</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>Compara un informe exportado con su entrada o busca bytes que hayan quedado</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE es un informe en JSON o, con --zeros, un archivo de imagen o una unidad, que solo se lee.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>Lee FILE por completo e indica si todos los bytes son 0x00</translation>
    </message>
    <message>
        <source>system</source>
        <translation>sistema</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>extraíble</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>No se ha encontrado ninguna unidad.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Atributos</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, sistema</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>Muestra las unidades con sus volúmenes</translation>
    </message>
    <message>
        <source>random</source>
        <translation>aleatorio</translation>
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
        <translation>%1 (con verificación)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, nivel %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>Muestra los estándares de borrado con sus pasadas</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>no se pudo eliminar el informe %1</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>Informe %1 eliminado.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>Elimina un informe de la base de datos</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; requiere --pdf o --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>no se pudo escribir %1</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>Exporta un informe como certificado, como JSON o de ambas formas</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>El JSON es el texto almacenado, byte por byte, para &apos;quorvex-cli check&apos;.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>Escribe el certificado en PDF, en este archivo o carpeta</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>Escribe el informe en JSON; - es la salida estándar</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañado</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>No hay informes.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operación</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 requiere un número %2, no &apos;%3&apos;</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>igual o superior a %1</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>Muestra los informes almacenados, primero los más recientes</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>Cuántos se muestran (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>Cuántos de los más recientes se omiten (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>Muestra un informe</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>Muestra lo que borraría &apos;wipe trash&apos;</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>Borra una unidad completa</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE es el número que muestra &apos;quorvex-cli disks&apos; o una ruta de dispositivo. Los discos del sistema se rechazan.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 archivos</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>Borra archivos, y carpetas con todo su contenido</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>De un enlace se elimina solo el propio enlace; aquello a lo que apunta no se toca. Ponga -- antes de una ruta que empiece por guion.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  el espacio libre de:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  los archivos existentes se conservan</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report admite el informe de un solo volumen, no de varios</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>--pdf requiere una carpeta cuando hay varios volúmenes</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>Borra el espacio libre de los volúmenes</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME es una letra de unidad, un punto de montaje o un número de unidad para todos los volúmenes de la unidad.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>La Papelera de reciclaje está vacía.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>la lista de carpetas de la propia Papelera aún nombra lo borrado, error %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>la Papelera de reciclaje</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>Borra todo el contenido de la Papelera de reciclaje del usuario actual</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>Es la Papelera de reciclaje de Windows y la Papelera de otros escritorios.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>Se va a destruir definitivamente lo siguiente:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>sin confirmar: la entrada estándar no es un terminal; --yes omite la pregunta</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>Escriba %1 para destruirlo:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>cancelado, no se ha escrito nada</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>sin confirmar, no se ha escrito nada</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>no existe la unidad: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 es una parte de la unidad %2; se debe indicar una unidad completa</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>la unidad %1 es un disco del sistema y no se puede borrar mientras está en uso</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>sin permiso para escribir en la unidad %1</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>la unidad %1 ya no está, u otra ha ocupado su lugar</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 no es un archivo ni una carpeta; las unidades se borran con &apos;wipe disk&apos;</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 retrocede a través de un enlace; indique la ruta sin &quot;..&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>no se puede examinar %1, error %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 es la raíz de un volumen; indique qué se debe borrar en él</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>Salida para programas: JSON, un valor por línea</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>Guarda la base de datos y el registro en esta carpeta y no en la del usuario</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>Hace que este archivo de imagen aparezca como unidad (repetible)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>No muestra ni abre ninguna unidad real</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>Muestra solo los errores y la línea final</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Muestra esta ayuda</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Muestra la versión</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>no es un archivo de imagen: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>Uso: quorvex-cli [OPCIÓN...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Ejemplo:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opciones:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>Opciones de todos los comandos:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>completado, se hizo todo lo solicitado</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>la tarea se ejecutó y falló, en todo o en parte</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>la línea de comandos es incorrecta</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>rechazado antes de escribir nada</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>cancelado (Ctrl+C), la tarea se detuvo de forma ordenada</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>no se pudo escribir un informe u otra salida</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Códigos de salida:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMANDO</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>Destruye datos sin posibilidad de recuperación y lo demuestra.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Comandos:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>Cada comando tiene su propia ayuda: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>no se puede usar la carpeta de datos %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; está dentro de lo que se va a borrar</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>no se puede escribir %1</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>la base de datos de informes de %1 está dentro de lo que se va a borrar; --data-dir usa otra carpeta, --no-report prescinde de ella</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>no se pudo guardar el informe %1 en la base de datos: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>no se pudo escribir el archivo de informe %1</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>no se pudo escribir el certificado %1</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>idioma desconocido: &apos;%1&apos;; los conocidos son: %2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>no se puede leer el catálogo del idioma %1</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 pasada</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 pasadas</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; no puede ser el nombre de un archivo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; es una carpeta, no un archivo</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; existe y no es un archivo normal</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>la carpeta de &apos;%1&apos; no existe</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>pasada %1/%2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>no se puede usar la base de datos de informes de %1: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>no se puede leer la base de datos de informes: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>no existe el informe %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>lo almacenado como informe %1 está dañado</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectores</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>Sectores borrados</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>Sectores dañados</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verificación</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>superada</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>no superada</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Lectura de verificación</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Datos escritos</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>no se pudo escribir la salida</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[error]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[advertencia]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[info]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>COMPLETADO</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>CANCELADO</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FALLIDO</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 escritos</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4 en %5, certificado %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, informe %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root está vacío</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>Busca en las papeleras de Windows bajo esta carpeta, que representa una unidad (repetible)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>Con --root: solo la papelera del usuario con este identificador de seguridad</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid está vacío</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid requiere --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>el sistema no indica quién es el usuario</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 elementos</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>carpeta, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, solo queda su entrada</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>unidad %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>no existe el volumen: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>método desconocido: &apos;%1&apos;; &apos;quorvex-cli methods&apos; los muestra todos</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>Estándar de borrado, por nombre o número (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>No lee lo escrito para verificarlo</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>Muestras que se leen de una unidad para verificarla (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>Archivos que se borran a la vez, de 1 a 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>Búfer de escritura en MiB, de 1 a 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>Escribe el informe en JSON, en este archivo</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>No guarda el informe en la base de datos</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>Tras un borrado correcto, escribe el certificado en PDF, en este archivo o carpeta</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>No pide la palabra ERASE</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>con lectura de verificación</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>sin lectura de verificación</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  método %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>no se puede leer %1 en el byte %2, error %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>sin permiso para leer %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>no se puede abrir %1, error %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 es una carpeta</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>el registro del programa en %1 está en lo que se va a borrar; --data-dir toma otra carpeta</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>HECHO EN PARTE</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 está vacío, no hay nada que comprobar</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>dispositivo que no es una unidad</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 es de solo lectura</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>la unidad %1 es de solo lectura</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>el volumen %1 está en la unidad %2 y también en: %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>la unidad %1 está ocupada por %2</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>para liberarla: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>Carencia</translation>
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
        <translation>parcial</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallido</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>tipo de carencia desconocido: &apos;%1&apos;; los disponibles son: %2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>Una carencia de este tipo no cuenta como fallo (repetible)</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>volúmenes que siguen desmontados: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  no se borrará todo:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  la unidad completa: su tabla de particiones y todo lo que hay entre sus volúmenes y fuera de ellos</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  antes se desmontan sus volúmenes, que quedan así en cuanto se haya escrito algo</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>De una unidad con volúmenes montados solo se borran estos; --whole los desmonta y borra todos los sectores de la unidad.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>Desmontar todos los volúmenes de la unidad y borrar todos sus sectores</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>En el medio</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volumen %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir está vacío</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>no se encontró nada que borrar, pero no se examinaron todas las papeleras: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>no se encontró ninguna papelera de %1</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 entrada sin registro</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 entradas sin registro</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>y %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 es un enlace y no se sigue</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 pertenece a otro usuario y no se toca</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>no se puede examinar %1, error %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>Con --no-report se prescinde de ellos.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; se indicó para dos salidas</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; existe y no es un informe; --force lo reemplaza</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>Permite que --report reemplace un archivo que no es un informe</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1; inténtelo como administrador</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1; inténtelo con sudo</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>Muestra lo que responden unidades y volúmenes, para quien ayuda a distancia</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>No se escribe nada. Las respuestas están en inglés en todos los idiomas y contienen números de serie y rutas: revíselas antes de enviarlas.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Papelera de %1</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>Idioma: %1 (por defecto: el del sistema)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>Borrado completado</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>Error en el borrado</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>Se ha producido un error durante el borrado.
Consulte el registro para obtener más información.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>Datos seleccionados borrados de forma segura.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>Datos seleccionados borrados de forma segura.
Se ha generado un certificado de borrado.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>¡Datos borrados con éxito!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>Certificado: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>Ver certificado</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>Quedan desmontados: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>El informe no está guardado. %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>Confirmar borrado</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>Escriba &lt;b&gt;ERASE&lt;/b&gt; para confirmar:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>Advertencia: operación irreversible</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>Los datos seleccionados se borrarán de forma permanente y no se podrán recuperar.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>Borrar el disco completo
(si no, se conserva todo lo que hay fuera de sus volúmenes)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>Borrar el disco completo
(si no, se conservan %1 fuera de sus volúmenes)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>Se sobrescriben todos los sectores, también la tabla de particiones. Antes se desmontan todos los volúmenes del disco.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>Esto será destruido</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>Borrado de discos y particiones</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>Seleccione qué disco o partición borrar. Expanda los discos para ver las particiones.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Atrás</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Siguiente →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Discos y particiones</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>Disco/partición</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>Borrado de espacio libre</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>Seleccione una partición para borrar su espacio libre de forma segura.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>Seleccione el disco o la partición que desea borrar por completo. Todos los datos se eliminarán de forma permanente.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ No se puede seleccionar el disco del sistema para borrarlo.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ El borrado de espacio libre es seguro para el disco del sistema. No afecta a los archivos existentes ni al funcionamiento del sistema.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ No se puede seleccionar la partición del sistema para borrarla.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ El borrado de espacio libre es seguro para la partición del sistema. No afecta a los archivos existentes ni al funcionamiento del sistema.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 Disco %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ Disco del sistema</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>Extraíble</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Disponible</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 Partición %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ Sistema</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ Arranque</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>un dispositivo que no es un disco</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>el disco %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>El volumen %1 está en este disco y también en %2.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>El disco es de solo lectura.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>El disco está ocupado por: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>Estos comandos lo liberan:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>No se pudo asignar memoria</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>Error: no hay acceso disponible al disco ni a los volúmenes</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>Borrando mediante acceso al disco...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>Error de SetFilePointerEx, código de error: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Error de escritura, posición: %1, código de error: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>Borrando mediante acceso a los volúmenes...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>Se usa el tamaño estimado del volumen: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>Borrando volumen %1/%2, tamaño: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>Volumen %1: %2 sin sobrescribir</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>Volumen %1 borrado, datos escritos: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>0 bytes escritos, se ha llegado al final del volumen</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>Límite del volumen alcanzado, se continúa con el siguiente...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>Error: acceso denegado</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>Error: el disco está protegido contra escritura</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>Error: el dispositivo no está listo</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>Error: el disco está en uso</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>Error: conflicto de bloqueo</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>Error: fallo de E/S del dispositivo</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>No se pudo vaciar el búfer de escritura, código de error: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>Verificación no superada, posición: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>Verificación superada</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>Advertencia: no se ha encontrado ningún volumen, puede que el disco no tenga particiones</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>Buscando volúmenes en el disco %1...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>Volumen encontrado: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>Volúmenes que se deben bloquear: %1</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>Procesando volumen: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>No se puede abrir el volumen %1, código de error: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>Bloqueando volumen %1...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>Volumen %1 bloqueado</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>Advertencia: no se pudo bloquear el volumen %1, código de error: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>Desmontando volumen %1...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>Volumen %1 desmontado</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>Advertencia: no se pudo desmontar el volumen %1, código de error: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>No se puede borrar el disco del sistema</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>Bloqueando los volúmenes del disco...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>No se pueden bloquear los volúmenes del disco, cierre todos los programas que usen el disco</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>Volúmenes del disco bloqueados y desmontados</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>No se puede obtener la información del disco</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>¡Borrado de disco completado!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Borrado cancelado</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>Iniciando el borrado de disco...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disco objetivo: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>Número de disco: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>Número de serie: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>Abriendo el disco...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>Disco abierto</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>No se puede abrir el disco, código de error: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>El borrado se realizará mediante acceso a los volúmenes</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Tamaño del disco: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>Tamaño de sector: %1 bytes</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>Total de sectores: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>Pasada %1/%2 (patrón: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>Error al sobrescribir</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>aleatorio</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>El volumen %1 se ha vuelto a montar, no se ha escrito nada</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>No se ha podido volver a poner el disco en línea, código de error: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>Montado de nuevo: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>Error: el volumen está cifrado y bloqueado (BitLocker). Desbloquéelo o borre la unidad completa (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>Error: el dispositivo se desconectó o se cambió el medio</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>Error: fallo del dispositivo o del medio</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>Seleccionar archivos para destruir</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Use los botones para agregar archivos y carpetas</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 Agregar archivos</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 Agregar carpeta</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Quitar todo</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>Haga clic para agregar archivos o arrástrelos aquí</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Atrás</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Siguiente →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>Archivos y carpetas para destruir</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>Seleccionar archivos</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>Quitar todo</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>¿Seguro que desea quitar todos los archivos agregados?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>Elementos agregados: %1, total: %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>No se encontró 1 elemento</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>No se encontraron %1 elementos</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 archivo tiene otros nombres; su contenido se borra también bajo estos</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 archivos tienen otros nombres; su contenido se borra también bajo estos</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>Los archivos dispersos como %1 ocupan otros %2 al sobrescribirse, y solo hay %3 libres. No se escribió nada.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>No se pudo asignar memoria</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>Examinando los archivos objetivo...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>No se han encontrado archivos para borrar</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>El usuario ha cancelado la tarea de borrado</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>¡Todos los archivos se han borrado correctamente! Archivos procesados: %1</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>Borrado terminado, archivos con error: %1. ¡Los datos podrían ser recuperables!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>No se puede leer la carpeta: %1, código de error: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>No se puede acceder a: %1, código de error: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>El archivo tiene otros enlaces físicos (%1): %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>Archivos listos para borrar: %1, tamaño total por pasada: %2</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>Todos los archivos están vacíos, se omite la sobrescritura</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>Error en la pasada %1/%2, archivos con error: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>No se puede abrir el archivo (WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>Error de FlushFileBuffers: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>Error de SetFilePointerEx: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>Error de WriteFile: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>Verificación no superada: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>Ejecutando la eliminación segura y la limpieza de metadatos...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>No se pudo eliminar: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>No se puede eliminar la carpeta: %1, código de error: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>El archivo ha sido sustituido por otro, que se deja como está: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>El contenido de %1 archivos puede estar también en otro lugar, donde no se ha sobrescrito</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>Hay otro sistema de archivos montado en la carpeta, se deja como está: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>Durante el trabajo aparecieron %1 archivos más, que también se borran</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>El contenido del archivo no está en este equipo, solo en la nube, y no se puede borrar: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>No todo el contenido de la carpeta está en este equipo, parte está solo en la nube; no se puede borrar: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 archivos se sincronizan con un servicio en la nube, que puede conservar copias y versiones anteriores</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>Borrando los nombres de archivo del diario del sistema de archivos...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>El diario del sistema de archivos puede contener aún nombres de archivo: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>El volumen ya no está disponible, código de error: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>Los archivos de relleno eliminados no han liberado espacio, no se puede seguir sobrescribiendo</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>No se pudo asignar memoria</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>Datos escritos: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>Partición del sistema detectada, se reserva 1 GB como margen de seguridad</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>Espacio libre llenado</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>No se puede crear el archivo de relleno: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Error de escritura, posición: %1, código de error: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>El espacio libre no disminuye, puede que el sistema de archivos comprima los datos</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>Iniciando el borrado de espacio libre...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>Objetivo no válido</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>Partición objetivo: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>Tamaño de la partición: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>Sistema de archivos: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Disco objetivo: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Tamaño del disco: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>El disco no tiene tabla de particiones, buscando el volumen correspondiente...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>Volumen correspondiente encontrado: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>Advertencia: el disco no tiene particiones disponibles que no sean del sistema</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>Particiones cuyo espacio libre se borrará: %1</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>No hay particiones disponibles</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== Partición %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Borrado cancelado</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>¡Borrado de espacio libre completado!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>Error al llenar el espacio libre</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>Espacio libre: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>No hay espacio libre que borrar</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>Eliminados los archivos temporales de una interrupción anterior: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>No se puede crear la carpeta temporal: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>Pasada %1/%2 (%3)</translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation>patrón: 0x00</translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation>patrón: 0xFF</translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation>patrón: aleatorio</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>patrón: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>patrón: desconocido</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>Limpiando los restos del sistema de archivos...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>Limpieza incompleta de los restos del sistema de archivos, código de error: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>Advertencia: el sistema de archivos no acepta más datos, quedan %1 de espacio libre sin llenar</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>código de error: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>El volumen %1 ya no es el que se eligió.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>Otro trabajo está borrando el espacio libre de este volumen; sus archivos están en %1.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>Se reservan %1 como espacio de seguridad que no se sobrescribe</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>Ver certificado</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>Exportar PDF</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>Eliminar todo</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>Historial de borrados</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Método</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[Disco] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[Partición] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[Espacio libre] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[Archivos] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>Cantidad: %1</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>Exportar certificado</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>Archivos PDF (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>Exportación completada</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>Certificado exportado en: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>Error de exportación</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>No se pudo exportar el certificado</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>Confirmar eliminación</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>¿Seguro que desea eliminar esta entrada del historial?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>No hay entradas que eliminar</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>Confirmar eliminación</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>¿Seguro que desea eliminar todas las entradas del historial?

¡Esta operación no se puede deshacer!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>Eliminación completada</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>Se han eliminado todas las entradas</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>Destruya datos para siempre. Sin fugas.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Borrado de disco</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>Borra por completo todos los datos del disco, incluidas las particiones y los registros de arranque</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Borrado de espacio libre</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>Borra los restos de archivos eliminados</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Borrado de archivos</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>Destruye archivos y carpetas de forma permanente</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Borrado de la Papelera</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>Borra los archivos de la Papelera de reciclaje</translation>
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
        <translation>Gutmann, 35 pasadas</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>El trabajo anterior todavía está terminando.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>Hay un borrado en curso.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>No se pudo evitar que el sistema se suspenda durante este trabajo, error %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Error de configuración</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>No se pueden cargar los enlaces de las páginas.

Póngase en contacto con el soporte técnico o reinstale el programa.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>No se puede abrir el navegador</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>No se puede abrir el navegador predeterminado.

Copie el enlace y ábralo manualmente:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>Copiar registro</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Guardar registro</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Archivos de texto (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>El dispositivo loop %1 está asociado a %2. No se escribió nada.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - Borrado seguro de datos</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>¿Borrar el espacio libre?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>¡Los archivos de la Papelera de reciclaje se han borrado de forma segura!

¿Desea borrar también el espacio libre para que los archivos
eliminados anteriormente no se puedan recuperar?

Esto puede tardar más según el espacio libre disponible.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>Confirmar detención</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>¿Seguro que desea detener la tarea de borrado?
Esta operación no se puede deshacer.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>Confirmar salida</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>Hay una tarea de borrado en curso. ¿Seguro que desea salir?
Si sale, se interrumpirá la tarea actual.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - Borrado seguro de datos&lt;/h3&gt;&lt;p&gt;Versión 5.0&lt;/p&gt;&lt;p&gt;Borre sus datos de forma segura con estándares de nivel militar.&lt;br&gt;Admite borrado de disco, borrado de partición, borrado de espacio libre y borrado de archivos.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. Borrado significa borrado, y el certificado dice cómo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>Acerca de Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Borrado de la Papelera</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>Examinando los archivos eliminados de la Papelera de reciclaje...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>Examinando la Papelera de reciclaje...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>Examinando la Papelera de reciclaje de la unidad %1 (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>La Papelera de reciclaje está vacía</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>La Papelera de reciclaje ya está vacía.

Sin embargo, es posible que los archivos eliminados anteriormente aún se puedan recuperar.
¿Desea borrar el espacio libre para que no se puedan recuperar?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>Se han encontrado los siguientes archivos eliminados en la Papelera de reciclaje</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>Elementos encontrados: %1, total: %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>Seleccionar archivos para destruir</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Use los botones para agregar archivos y carpetas</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>Este disco no se puede borrar</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>Se borrará todo esto, no solo %1
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>Este volumen no se puede borrar</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>Estos archivos no se pueden borrar</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>El borrado no puede comenzar</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>Se borra también, sin registro: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>No examinado: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>Leyendo unidades...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Papelera de %1</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>Pasadas: %1</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>Nivel de seguridad: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>Seleccionar método de borrado</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>Cada método de borrado ofrece un nivel de seguridad distinto: cuantas más pasadas, mayor seguridad, pero también mayor duración</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← Atrás</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>solo se borran los volúmenes montados, no el resto de la unidad</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>volúmenes que no se pudieron abrir y no se han borrado</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>volúmenes que dejaron de aceptar datos antes de su final</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>volúmenes que estaban en uso mientras se sobrescribían</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>el final de la unidad no es un sector completo y no se ha sobrescrito</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>la unidad indica un tamaño de cero, no se ha escrito nada</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>volúmenes que se extienden más allá de la unidad</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>no se ha escrito nada aunque había espacio libre</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>ha quedado espacio libre que no se pudo llenar</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>más del 10&#xa0;% del espacio libre se deja como reserva</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>han quedado archivos de relleno</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>elementos que ya no estaban antes de poder borrarlos</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>elementos que entretanto fueron sustituidos por otros</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>archivos que crecieron después de sobrescribirse</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>elementos que no se pudieron eliminar</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>es posible que el sistema de archivos conserve el contenido en otro lugar, donde no se sobrescribe</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>los enlaces se eliminan, aquello a lo que apuntan no se borra</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>lo escrito no se ha leído para verificarlo</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>lo escrito no se puede comparar al leerlo para verificarlo</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>una pequeña parte del espacio libre se deja como reserva</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>archivos que tenían otros nombres, que permanecen y apuntan a contenido sobrescrito</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>el sistema de archivos escribe en lugares nuevos y puede conservar contenido anterior, por ejemplo en instantáneas</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>no había espacio libre que sobrescribir</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>Borrado en parte: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>No se ha borrado por completo: la tarea ha fallado</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>No se ha borrado por completo: la tarea se ha cancelado</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>Escrito en el medio: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>la unidad no tiene ningún volumen montado cuyo espacio libre se pueda borrar</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>no se examinaron papeleras, lo que contienen no se borra</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>las instantáneas del volumen pueden conservar contenido anterior</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>un servicio en la nube conserva copias y versiones anteriores de archivos</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>Velocidad: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>Tiempo restante: calculando...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Registro de operaciones</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ Detener</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>Método de borrado: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>Velocidad: %1/s</translation>
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
        <translation>Tiempo restante: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ Reanudar</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ Pausar</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>Borrando datos...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>Progreso del borrado</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>Reanuda la visualización de esta página; el borrado no se detuvo</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>Pausa solo la visualización de esta página; el borrado continúa</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>Nota: el «acceso controlado a carpetas» de Seguridad de Windows puede impedir que este programa escriba. Permítalo allí e inténtelo de nuevo</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>Desconocido</translation>
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
        <translation>Externo</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>Otro programa tiene ocupada la base de datos de informes.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>No se puede escribir en la base de datos de informes.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>No queda espacio para la base de datos de informes.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>La base de datos de informes está dañada.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>No se puede abrir la base de datos de informes.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>En el lugar de la base de datos de informes hay un enlace.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>La base de datos de informes no aceptó el informe.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>Verificar los datos después del borrado</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>Generar automáticamente un certificado de borrado</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>Exportar automáticamente el certificado en PDF al completar el borrado</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>Opciones de borrado</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>Ruta de exportación:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>Seleccione la ruta predeterminada...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>Seleccionar carpeta de exportación</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>Exportación de certificados</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Guardado correctamente</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>Se ha guardado la configuración</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Error al guardar</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>No se ha podido guardar la configuración</translation>
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
        <translation>Menú</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>Borrado</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>Informe no encontrado</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>No hay ningún informe %1 en la base de datos.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>unidad %1: modelo %2, número de serie %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>volumen %1, %2, %3, %4 libres</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, etiqueta %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>sin volúmenes montados</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 archivo, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>al menos 1 archivo, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 archivos, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>al menos %1 archivos, %2</translation>
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
        <translation>Menú</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Soporte</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma cambiado</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Se ha cambiado el idioma.

La aplicación se reiniciará ahora.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>No se puede cambiar la tarea durante la ejecución</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>No se ha definido ninguna tarea</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>La tarea ya está en ejecución</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>No se pudo crear el subproceso de trabajo</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>Iniciando la tarea de borrado...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>Método de borrado: %1 (pasadas: %2)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>Tarea detenida</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>Pasada %1/%2</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>Error: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>¡Borrado completado!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>Error en el borrado</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>Otro programa está usando la unidad.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>No se pueden retirar los volúmenes de la unidad, error %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>El volumen %1 está en uso y no se puede desmontar.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>El volumen %1 no se puede desmontar, error %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>No se ha escrito nada.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>No se ha vuelto a montar: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>Archivos: %1</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>ID del certificado</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Tipo de operación</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Método de borrado</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Estado</translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation>Estándar del Instituto Nacional de Estándares y Tecnología de EE.&#xa0;UU., 1&#xa0;pasada, adecuado para la mayoría de los casos</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>Estándar de seguridad del Gobierno británico, 2 pasadas</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>Estándar del Departamento de Defensa de EE. UU., 7 pasadas, seguridad de nivel militar</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>Estándar de la Oficina Federal de Seguridad de la Información de Alemania, 7 pasadas</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Estándar de máxima seguridad propuesto por Peter Gutmann, 35 pasadas</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>Reforzado</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>Pendiente</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En curso</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completo</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallido</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Borrado de disco</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>Borrado de partición</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Borrado de espacio libre</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>Borrado de archivos</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>Archivo no encontrado: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>Seleccione el disco que desea borrar</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>No se puede borrar el disco del sistema. Arranque desde una unidad externa.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>Seleccione la partición que desea borrar</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>No se puede borrar la partición del sistema. Arranque desde una unidad externa.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>Seleccione un disco o una partición para borrar su espacio libre</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>Agregue los archivos que desea borrar</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>El número de subprocesos debe estar entre 1 y 32</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>El tamaño del búfer debe estar entre 1 y 1024 MB</translation>
    </message>
</context>
</TS>
