<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Memory allocation failed</translation>
    </message>
</context>
<context>
    <name>BinItemText</name>
    <message>
        <source>%1, an impossible size</source>
        <translation>%1, an impossible size</translation>
    </message>
    <message>
        <source>Its record says %1 bytes, more than any file can have.</source>
        <translation>Its record says %1 bytes, more than any file can have.</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>Impossible sizes in the sum: %1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>Erasure Certificate - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 Export PDF</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ Print</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>Export Certificate</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF Files (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>Export Successful</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>Certificate exported to:
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>Export Failed</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>Unable to export certificate. Please check file path permissions.</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>Print Certificate</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>Operation Summary</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>Operation Type</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>Erase Standard</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>Overwrite Passes</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Start Time</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>End Time</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>Storage Device</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacity</translation>
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
        <translation>Erasure Details</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>Files Processed</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>Total Sectors</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>Sectors Erased</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>Data Written</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>Bad Sectors</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verification</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>Passed ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>Failed ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Samples</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>Data Hash</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>Operator Info</translation>
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
        <translation>Data Erasure Certificate</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>Secure Data Wipe Compliance Record</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>Certificate ID:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Created:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>On the Medium</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>Not read back</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>Nothing that could be compared</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>Read Back</translation>
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
        <translation>All certificate numbers of this day are taken.</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation>Operation Summary</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Operation Type</translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation>Erase Standard</translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation>Overwrite Passes</translation>
    </message>
    <message>
        <source> 次</source>
        <translation> total</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Start Time</translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation>End Time</translation>
    </message>
    <message>
        <source>耗时</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation>Storage Device</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serial Number</translation>
    </message>
    <message>
        <source>容量</source>
        <translation>Capacity</translation>
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
        <translation>Erasure Details</translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation>Files Processed</translation>
    </message>
    <message>
        <source> 个</source>
        <translation> total</translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation>Total Sectors</translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation>Sectors Erased</translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation>Data Written</translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation>Bad Sectors</translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation>Verification</translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation>Result:</translation>
    </message>
    <message>
        <source>通过</source>
        <translation>Passed</translation>
    </message>
    <message>
        <source>未通过</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation>Samples</translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation> locations</translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation>Data Hash</translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation>Operator Info</translation>
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
        <translation>Data Erasure Certificate</translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation>Certificate ID: </translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation>Generated: </translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation>Professional Data Erasure Tool</translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation>actually processed: %1</translation>
    </message>
    <message>
        <source>未读回</source>
        <translation>not read back</translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation>what was read back cannot be compared</translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation>(in full in the history of this program)</translation>
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
        <translation>this program was built without certificates</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>no command given</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>&apos;%1&apos; is not complete</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>unknown command &apos;%1&apos;</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>&apos;%1&apos; needs %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>&apos;%1&apos; is one argument too many for &apos;%2&apos;</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (read %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 is no file</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 is too large for a report</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>the fields are alike, but not the text, from byte %1 on</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nothing</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>the first field that differs is %1: %2 in the record, %3 in the file</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>NOT THE SAME: %1 is no report</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>NOT THE SAME: the database has no record of %1</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>THE SAME: %1 is the record of %2</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>NOT THE SAME: %1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>ALL ZERO: every one of the %1 bytes of %2 is 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>NOT ZERO: byte %1 of %2 is %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>a path is empty</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>Compares an exported report with its record, or looks for bytes that are left</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>Read FILE through and say whether every byte is 0x00</translation>
    </message>
    <message>
        <source>system</source>
        <translation>system</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>removable</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>No drives found.</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Drive</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
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
        <translation>Device</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Flags</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>, system</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>Lists the drives with their volumes</translation>
    </message>
    <message>
        <source>random</source>
        <translation>random</translation>
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
        <translation>%1 (verified)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2: %3, level %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>Lists the erasure standards with their passes</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>report %1 could not be deleted</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>Report %1 is deleted.</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>Deletes one report from the database</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>&apos;%1&apos; needs --pdf or --json-file</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>%1 could not be written</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>Exports one report as certificate, as JSON, or as both</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>Write the certificate as PDF, into this file or folder</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>Write the report as JSON; - is standard output</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>damaged</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>No reports.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificate</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Started</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Operation</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Method</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 takes a number %2, not &apos;%3&apos;</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 or more</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>Lists the stored reports, latest first</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>How many to list (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>How many of the latest to leave out (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>Shows one report</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>Lists what &apos;wipe trash&apos; would erase</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>Erases a whole drive</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 and %2 more</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 file</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 files</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>Erases files, and folders with all that is in them</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  the free space of:</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  files that exist are kept</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report takes the report of one volume, not of several</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>--pdf takes a folder when there are several volumes</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>Erases the free space of volumes</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>The Recycle Bin is empty.</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>the bin&apos;s own list of its folders still names what was erased, error %1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>the Recycle Bin</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>Erases everything in the current user&apos;s Recycle Bin</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>That is the Recycle Bin of Windows, and the Trash of other desktops.</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>This is about to be destroyed for good:</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>not confirmed: standard input is no terminal; --yes skips the question</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>Type %1 to destroy it:</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>cancelled, nothing was written</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>not confirmed, nothing was written</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>no such drive: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 is a part of drive %2; a whole drive must be given</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>drive %1 is a system disk and cannot be erased while it is in use</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>not permitted to write to drive %1</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>drive %1 is gone, or another one has taken its place</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 goes back through a link; give the path without &quot;..&quot;</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>%1 cannot be looked at, error %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 is the root of a volume; name what is to be erased in it</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>Machine output: JSON, one value a line</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>Keep database and log in this folder instead of the per-user one</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>Let this image file appear as a drive (repeatable)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>List and open no real drive</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>Print errors and the final line only</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>Show this help</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>Show the version</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>no image file: %1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>Usage: quorvex-cli [OPTION...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>Example:</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Options:</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>Options of every command:</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>done, everything asked for was done</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>the job ran and failed, in whole or in part</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>the command line is wrong</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>refused before anything was written</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>cancelled (Ctrl+C), the job stopped cleanly</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>a report or other output could not be written</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>Exit codes:</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMMAND</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>Destroys data beyond recovery and proves it.</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commands:</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>Each command has a help of its own: quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>the data folder %1 cannot be used</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>&apos;%1&apos; lies in what is to be erased</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 cannot be written</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>report %1 could not be stored in the database: %2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>the report file %1 could not be written</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>the certificate %1 could not be written</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>unknown language &apos;%1&apos;, known are: %2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>the catalogue of the language %1 cannot be read</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 pass</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 passes</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>&apos;%1&apos; cannot be the name of a file</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>&apos;%1&apos; is a folder, not a file</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>&apos;%1&apos; exists and is no ordinary file</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>the folder of &apos;%1&apos; does not exist</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>pass %1/%2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>the report database in %1 cannot be used: %2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>the report database cannot be read: %1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>there is no report %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>what is stored as report %1 is damaged</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectors</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>Sectors erased</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>Bad sectors</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>Verification</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>passed</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>not passed</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>Read back</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Samples</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>Hash</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Ended</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Written</translation>
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
        <translation>Error</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>the output could not be written</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[error]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[warning]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[info]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>DONE</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>CANCELLED</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FAILED</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 written</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1: %2, %3, %4 in %5, certificate %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>, report %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>, PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root is empty</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 is no folder</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>Look into the Windows bins below this folder, which stands for a drive (repeatable)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>With --root: only the bin of the user with this security identifier</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid is empty</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid needs --root</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>the system does not tell who the user is</translation>
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
        <translation>folder, </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>, only its record is left</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>drive %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>no such volume: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>from %1 to %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>Erasure standard, by name or number (0: NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>Do not read back what was written</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>Samples to read back from a drive (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>Files to erase at the same time, 1 to 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>Write buffer in MiB, 1 to 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>Write the report as JSON into this file</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>Do not store the report in the database</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>After a success write the certificate as PDF, into this file or folder</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>Do not ask for the word ERASE</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>read back</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>not read back</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  with %1, %2, %3</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelled</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>%1 cannot be read at byte %2, error %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>not permitted to read %1</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>%1 cannot be opened, error %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 is a folder</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>PARTLY DONE</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 is empty, there is nothing to check</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Outcome</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>a device that is no drive</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 is read-only</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>drive %1 is read-only</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>volume %1 lies on drive %2 and also on %3</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>drive %1 is held by %2</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>to release it: %1</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>Shortfall</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>complete</translation>
    </message>
    <message>
        <source>partial</source>
        <translation>partial</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>failed</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>unknown kind of shortfall &apos;%1&apos;, there are: %2</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>A shortfall of this kind is no failure; may be given several times</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>left unmounted: %1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  not everything will be erased:</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  the whole drive: its partition table and everything between and outside its volumes</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  its volumes are unmounted before, and stay so once something was written</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>Unmount all volumes of the drive and erase every sector of it</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>On the medium</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>volume %1</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir is empty</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>nothing to erase was found, but not every bin was looked into: %1</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>no bin of %1 was found</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 entry without a record</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 entries without a record</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>and %1, %2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 is a link and is not followed</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 belongs to another user and is left alone</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>%1 cannot be looked into, error %2</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>--no-report does without.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>&apos;%1&apos; is named for two outputs</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>&apos;%1&apos; exists and is no report; --force replaces it</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>Let --report replace a file that is no report</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1; try it as administrator</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1; try it with sudo</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>Tells what drives and volumes answer, for whoever helps from afar</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Recycle Bin of %1</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>Language: %1 (default: the system&apos;s)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>Erasing Complete</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>Erase Failed</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>An error occurred during erasure.
Please check the log for details.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>All selected data has been securely erased.</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>All selected data has been securely erased.
An erasure certificate has been generated.</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>Data Erased Successfully!</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>Certificate: </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>View Certificate</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>Left unmounted: %1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>The report is not stored. %1</translation>
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
        <translation>Confirm Erase</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>Warning: Irreversible Operation</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>The selected data will be permanently erased and cannot be recovered.</translation>
    </message>
    <message>
        <source>ERASE</source>
        <translation>ERASE</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>Erase the whole disk
(otherwise all outside its volumes stays)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>Erase the whole disk
(otherwise %1 outside its volumes stay)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>This will be destroyed</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>Wipe Disk and Partition</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>Select a disk or partition to wipe. Expand disks to see partitions.</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Back</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Next →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>Disks and partitions</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>Disk/Partition</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
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
        <translation>Wipe Free Space</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>Select a partition to securely wipe free space.</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>Select a disk or partition to completely wipe. All data will be permanently deleted.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ Cannot select system disk for wiping.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ Cannot select system partition for wiping.</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 Disk %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ System Disk</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>Removable</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>Available</translation>
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
        <translation>%1 free</translation>
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
        <translation>a device that is no disk</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>disk %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>Volume %1 lies on this disk and also on %2.</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>The disk is read-only.</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>The disk is held by: %1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>These commands release it:</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Memory allocation failed</translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation>Error: no disk or volume handle available</translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation>Erasing through the disk handle...</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation>SetFilePointerEx failed, error code: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Write error, position: %1, error code: %2</translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation>Erasing through the volume handles...</translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation>Using estimated volume size: %1</translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation>Erasing volume %1/%2, size: %3</translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation>Volume %1: %2 not overwritten</translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation>Volume %1 erased, written: %2</translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation>0 bytes written, end of volume reached</translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation>Volume boundary reached, continuing with the next volume...</translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation>Error: access denied</translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation>Error: disk is write-protected</translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation>Error: device not ready</translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation>Error: disk is in use</translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation>Error: lock violation</translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation>Error: I/O device error</translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation>Flushing the written data failed, error code: %1</translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation>Verifying...</translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation>Verification failed, position: %1</translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation>Verification passed</translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation>Warning: no volumes found, the disk may be unpartitioned</translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation>Searching for volumes on disk %1...</translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation>Volume found: %1:</translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation>Volumes to be locked: %1</translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation>Processing volume: %1</translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation>Cannot open volume %1, error code: %2</translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation>Locking volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation>Volume %1 locked</translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation>Warning: volume %1 could not be locked, error code: %2</translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation>Dismounting volume %1...</translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation>Volume %1 dismounted</translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation>Warning: volume %1 could not be dismounted, error code: %2</translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation>Cannot wipe system disk</translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation>Locking the volumes of the disk...</translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation>Cannot lock the volumes of the disk. Please close all programs that use the disk</translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation>The volumes of the disk are locked and dismounted</translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation>Cannot read disk information</translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation>Disk wipe complete!</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Erasure cancelled</translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation>Starting disk wipe...</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Target disk: %1</translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation>Disk number: %1</translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation>Serial number: %1</translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation>Opening disk...</translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation>Disk opened</translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation>Cannot open disk, error code: %1</translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation>Erasing through the volume handles instead</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Disk size: %1</translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation>Sector size: %1 bytes</translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation>Total sectors: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation>Overwrite pass %1/%2 (pattern: %3)</translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation>Overwriting failed</translation>
    </message>
    <message>
        <source>随机</source>
        <translation>random</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation>Volume %1 was mounted again, nothing was written</translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation>The disk could not be taken online again, error code: %1</translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation>Mounted again: %1</translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation>Error: the volume is encrypted and locked (BitLocker). Unlock it, or erase the whole drive (--whole)</translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation>Error: the device was disconnected, or its medium was changed</translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation>Error: the device or its medium fails</translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>Select Files to Shred</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Click buttons to add files and folders</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 Add Files</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 Add Folder</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Clear All</translation>
    </message>
    <message>
        <source>Click to add files or drag files here</source>
        <translation>Click to add files or drag files here</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Back</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>Next →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>Files and folders to shred</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>Select Files</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>All Files (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Select Folder</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>Confirm Clear</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>Are you sure you want to clear all added files?</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>Added %1 items, total %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>1 item could not be found</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>%1 items could not be found</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 file has further names; its content is erased under these too</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 files have further names; their content is erased under these too</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation>Memory allocation failed</translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation>Scanning target files...</translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation>No files found to erase</translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation>Erasure cancelled by the user</translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation>All files erased successfully! Files processed: %1</translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation>Erasure complete, but not for all files. Failed: %1. The data may not be secure!</translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation>Cannot read folder: %1, error code: %2</translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation>Cannot access: %1, error code: %2</translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation>Other hard links to the file (%1): %2</translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation>Files to erase: %1, %2 per overwrite pass</translation>
    </message>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation>All files are empty, skipping the overwriting of data</translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation>Overwrite pass %1/%2: some files failed, number of failures: %3</translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation>Cannot open file (WinAPI): %1</translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation>FlushFileBuffers failed: %1</translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation>SetFilePointerEx failed: %1</translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation>WriteFile failed: %1</translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation>Verification failed: %1</translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation>Securely deleting files and cleaning up metadata...</translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation>Deletion failed: %1</translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation>Cannot delete folder: %1, error code: %2</translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation>The file was replaced by another, which is left as it is: %1</translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation>The content of %1 files may lie elsewhere too, where it was not overwritten</translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation>Another file system is mounted in the folder, left as it is: %1</translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation>%1 more files appeared during the job and are erased too</translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation>The content of the file is not on this computer but only in the cloud, and cannot be erased: %1</translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation>Not all of the folder is on this computer, some of it only in the cloud; it cannot be erased: %1</translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation>%1 files are synchronised by a cloud service, which may keep copies and earlier versions</translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>Clearing file names from the file system journal...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>The file system journal may still contain file names: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation>Volume is no longer available, error code: %1</translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation>Deleted fill files did not release their space, cannot continue overwriting</translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation>Memory allocation failed</translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation>Written: %1</translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation>System partition detected, keeping 1 GB of free space in reserve</translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation>Free space is filled</translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation>Cannot create fill file: %1</translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation>Write error, position: %1, error code: %2</translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation>Free space is not decreasing, the file system may be compressing data</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation>Starting free space wipe...</translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation>Invalid target</translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation>Target partition: %1</translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation>Partition size: %1</translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation>File system: %1</translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation>Target disk: %1</translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation>Disk size: %1</translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation>Disk has no partition table, searching for the matching volume...</translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation>Matching volume found: %1</translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation>Warning: no usable non-system partition on the disk</translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation>Partitions whose free space will be wiped: %1</translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation>No usable partition</translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation>========== Partition %1/%2: %3 ==========</translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation>Erasure cancelled</translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation>Free space wipe complete!</translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation>Filling free space failed</translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation>Free space: %1</translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation>No free space to wipe</translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation>Temporary files left by an interrupted run were removed: %1</translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation>Cannot create temporary folder: %1</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation>Overwrite pass %1/%2 (%3)</translation>
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
        <translation>pattern: random</translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation>pattern: 0x%1</translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation>pattern: unknown</translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation>Cleaning up file system remnants...</translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation>Cleanup of file system remnants is incomplete, error code: %1</translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation>Warning: the file system accepts no more data, %1 of free space are still not filled</translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation>error code: %1</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nothing was written.</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>Volume %1 is not the one that was chosen any more.</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>Another job is erasing the free space of this volume; its files are in %1.</translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation>%1 are kept as a safety reserve and are not overwritten</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation>View Certificate</translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation>Export PDF</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation>Clear All</translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation>Erasure History</translation>
    </message>
    <message>
        <source>全部</source>
        <translation>All</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>状态:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Erase Method</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>查看</source>
        <translation>View</translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation>[Disk] </translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation>[Partition] </translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation>[Free Space] </translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation>[Files] </translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation>%1 in total</translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation>Export Certificate</translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation>PDF Files (*.pdf)</translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation>Export Successful</translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation>Certificate exported to: %1</translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation>Export Failed</translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation>Unable to export certificate file</translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation>Confirm Delete</translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation>Are you sure you want to delete this erasure record?</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation>There are no records to clear</translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation>Confirm Clear</translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation>Are you sure you want to clear all erasure records?

This operation cannot be undone!</translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation>Clear Complete</translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation>All records have been cleared</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>Destroy Data Permanently. No Leaks.</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Disk Wipe</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>Completely erase all data on the disk, including partitions and boot records</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Free Space Wipe</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>Remove remnants of deleted&#xa0;files</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>File Wipe</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>Permanently shred files and&#xa0;folders</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Recycle Bin Wipe</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>Wipe deleted files in Recycle&#xa0;Bin</translation>
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
        <translation>Gutmann 35-Pass</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>The previous job is still ending.</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>An erasure is running.</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>The system could not be kept from sleeping during this job, error %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation>Configuration Error</translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Unable to load the page link.

Please contact technical support or reinstall the software.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Unable to Open Browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Unable to open the default browser.

Please copy the link and open it manually:
%1</translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation>Copy Log</translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation>Save Log</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation>Text Files (*.txt)</translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>The loop device %1 is attached to %2. Nothing was written.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - Data Secure Eraser</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>Wipe Free Space?</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>Confirm Stop</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>Are you sure you want to stop the wipe task?
This operation cannot be undone.</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>Confirm Exit</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>About Quorvex</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>Recycle Bin Wipe</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>Scanning deleted files in Recycle Bin...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>Scanning Recycle Bin...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>Scanning Recycle Bin on drive %1 (%2/%3)...</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>Recycle Bin is Empty</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>The following deleted files were found in the Recycle Bin</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>Found %1 items, total %2</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>Select Files to Shred</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>Click buttons to add files and folders</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>This Disk Cannot Be Erased</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>All of these will be erased, not only %1
%2</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>This Volume Cannot Be Erased</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>These Files Cannot Be Erased</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>The Erasure Cannot Start</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>Erased too, without a record: %1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>Not looked into: %1</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>Reading drives...</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>Recycle Bin of %1</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation>%1-pass overwrite</translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation>Security level: %1</translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation>Select Erase Method</translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation>Erase methods differ in security: more overwrite passes are more secure, but take longer</translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation>← Back</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>only the mounted volumes are erased, not the rest of the drive</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>volumes could not be opened and were not erased</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>volumes took no more data before their end</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>volumes were in use while they were overwritten</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>the end of the drive is no whole sector and was not overwritten</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>the drive says that it has no size, nothing was written</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>volumes reach beyond the drive</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>nothing was written although there was free space</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>free space was left that could not be filled</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>more than 10 % of the free space is left as a reserve</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>fill files were left behind</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>entries were gone before they could be erased</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>entries were replaced by others meanwhile</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>files grew after they were overwritten</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>entries could not be removed</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>the file system may keep the content elsewhere, where it is not overwritten</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>links are removed, what they lead to is not erased</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>what was written was not read back</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>what was written cannot be compared when it is read back</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>a small part of the free space is left as a reserve</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>files had further names, which stay and lead to overwritten content</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>the file system writes to new places and may keep earlier content, in snapshots for instance</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>there was no free space to overwrite</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>Partly erased: %1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>Not completely erased: the job failed</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>Not completely erased: the job was cancelled</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>Written to the medium: %1</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>the drive has no mounted volume whose free space could be erased</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>bins were not looked into, what they hold is not erased</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>shadow copies of the volume may keep earlier content</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>a cloud service keeps copies and earlier versions of files</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>速度: --</source>
        <translation>Speed: --</translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation>Time left: calculating...</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>Operation Log</translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation>⏹️ Stop</translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation>Erase method: %1</translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation>Speed: %1/s</translation>
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
        <translation>Time left: %1</translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation>▶️ Resume</translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation>⏸️ Pause</translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation>Erasing data...</translation>
    </message>
    <message>
        <source>擦除进度</source>
        <translation>Erasure progress</translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation>Resumes the display of this page; the erasure has not stopped</translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation>Pauses only the display of this page; the erasure goes on</translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation>Note: &quot;Controlled folder access&quot; of Windows Security may keep this program from writing. Allow it there and try again</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
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
        <translation>USB Device</translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation>External Drive</translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>Another program holds the report database.</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>The report database cannot be written.</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>There is no room left for the report database.</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>The report database is damaged.</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>The report database cannot be opened.</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>A link is in the place of the report database.</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>The report database did not take the report.</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation>Verify data after erasure</translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation>Generate an erasure certificate automatically</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation>Export a PDF certificate automatically after erasure</translation>
    </message>
    <message>
        <source>设置</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation>Erasure Settings</translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation>Export path:</translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation>Select default export path...</translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation>Select Export Folder</translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation>Certificate Export</translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation>Restore Defaults</translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation>Save Settings</translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation>Saved Successfully</translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation>Settings have been saved</translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation>Save Failed</translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation>The settings could not be saved</translation>
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
        <translation>Data Wipe</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>Report Not Found</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>There is no report %1 in the database.</translation>
    </message>
</context>
<context>
    <name>TargetText</name>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>drive %1: model %2, serial number %3, %4, %5</source>
        <translation>drive %1: model %2, serial number %3, %4, %5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>volume %1, %2, %3, %4 free</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>, label %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>no mounted volumes</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 file, %1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>at least 1 file, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 files, %2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>at least %1 files, %2</translation>
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
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Language Changed</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>Language has been changed.

The application will restart now.</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation>Cannot change the task while it is running</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation>No task has been set</translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation>The task is already running</translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation>Creating the worker thread failed</translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation>Starting erasure task...</translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation>Erase method: %1 (%2-pass overwrite)</translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation>Task stopped</translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation>Overwrite pass %1/%2</translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation>Error: %1</translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation>Erasure complete!</translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation>Erasure failed</translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>The drive is in use by another program.</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>The drive cannot be rid of its volumes, error %1.</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>Volume %1 is in use and cannot be unmounted.</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>Volume %1 cannot be unmounted, error %2.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Nothing was written.</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>Not mounted again: %1</translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation>Files: %1</translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation>Certificate ID</translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation>Operation Type</translation>
    </message>
    <message>
        <source>目标</source>
        <translation>Target</translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation>Erase Method</translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation>Start Time</translation>
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
        <translation>US National Institute of Standards and Technology (NIST) standard, 1 pass, suitable for most cases</translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation>British government security standard, 2 passes</translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation>US Department of Defense standard, 7 passes, military-grade security</translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation>German Federal Office for Information Security (BSI) standard, 7 passes</translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation>Highest security standard, proposed by Peter Gutmann, 35 passes</translation>
    </message>
    <message>
        <source>基础</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>增强</source>
        <translation>Enhanced</translation>
    </message>
    <message>
        <source>高级</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>最高</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>WipeReport</name>
    <message>
        <source>Pending</source>
        <translation>Pending</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Running</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>Completed</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>Disk Wipe</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>Partition Wipe</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>Free Space Wipe</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>File Wipe</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
</context>
<context>
    <name>WipeTask</name>
    <message>
        <source>File not found: %1</source>
        <translation>File not found: %1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>Please select a disk to wipe</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>Cannot wipe system disk. Please boot from external drive.</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>Please select a partition to wipe</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>Cannot wipe system partition. Please boot from external drive.</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>Please select a disk or partition for free space wipe</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>Please add files to wipe</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation>Thread count must be between 1 and 32</translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation>Buffer size must be between 1 and 1024 MB</translation>
    </message>
</context>
</TS>
