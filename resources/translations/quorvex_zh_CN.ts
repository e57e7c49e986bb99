<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>BaseWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation type="unfinished"></translation>
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
        <translation>其记录为 %1 字节，任何文件都不可能有这么大。</translation>
    </message>
    <message>
        <source>Impossible sizes in the sum: %1</source>
        <translation>总和中不可能的大小：%1</translation>
    </message>
</context>
<context>
    <name>CertificateDialog</name>
    <message>
        <source>Erasure Certificate - %1</source>
        <translation>擦除证书 - %1</translation>
    </message>
    <message>
        <source>📄 Export PDF</source>
        <translation>📄 导出 PDF</translation>
    </message>
    <message>
        <source>🖨️ Print</source>
        <translation>🖨️ 打印</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Export Certificate</source>
        <translation>导出证书</translation>
    </message>
    <message>
        <source>PDF Files (*.pdf)</source>
        <translation>PDF 文件 (*.pdf)</translation>
    </message>
    <message>
        <source>Export Successful</source>
        <translation>导出成功</translation>
    </message>
    <message>
        <source>Certificate exported to:
%1</source>
        <translation>证书已导出至：
%1</translation>
    </message>
    <message>
        <source>Export Failed</source>
        <translation>导出失败</translation>
    </message>
    <message>
        <source>Unable to export certificate. Please check file path permissions.</source>
        <translation>无法导出证书，请检查文件路径的权限。</translation>
    </message>
    <message>
        <source>Print Certificate</source>
        <translation>打印证书</translation>
    </message>
    <message>
        <source>Operation Summary</source>
        <translation>操作摘要</translation>
    </message>
    <message>
        <source>Operation Type</source>
        <translation>操作类型</translation>
    </message>
    <message>
        <source>Erase Standard</source>
        <translation>擦除标准</translation>
    </message>
    <message>
        <source>Overwrite Passes</source>
        <translation>覆写次数</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>End Time</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>耗时</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Storage Device</source>
        <translation>存储设备</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Erasure Details</source>
        <translation>擦除详情</translation>
    </message>
    <message>
        <source>Files Processed</source>
        <translation>已处理文件</translation>
    </message>
    <message>
        <source>Total Sectors</source>
        <translation>总扇区数</translation>
    </message>
    <message>
        <source>Sectors Erased</source>
        <translation>已擦除扇区</translation>
    </message>
    <message>
        <source>Data Written</source>
        <translation>写入数据量</translation>
    </message>
    <message>
        <source>On the Medium</source>
        <translation>写入介质</translation>
    </message>
    <message>
        <source>Bad Sectors</source>
        <translation>坏扇区</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>验证</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Passed ✓</source>
        <translation>通过 ✓</translation>
    </message>
    <message>
        <source>Failed ✗</source>
        <translation>未通过 ✗</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>采样数量</translation>
    </message>
    <message>
        <source>Data Hash</source>
        <translation>数据哈希</translation>
    </message>
    <message>
        <source>Operator Info</source>
        <translation>操作人员信息</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作人员</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Data Erasure Certificate</source>
        <translation>数据擦除证书</translation>
    </message>
    <message>
        <source>Secure Data Wipe Compliance Record</source>
        <translation>安全数据擦除合规记录</translation>
    </message>
    <message>
        <source>Certificate ID:</source>
        <translation>证书编号:</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>创建时间:</translation>
    </message>
    <message>
        <source>Disclaimer: This certificate confirms that the above storage device/files have been securely erased in accordance with the specified data erasure standard. The erasure process complies with applicable data protection regulations. This certificate was automatically generated by Quorvex and serves as a compliance record for data destruction.</source>
        <translation>声明：本证书证明上述存储设备/文件已依照指定的数据擦除标准完成安全擦除，擦除过程符合适用的数据保护法规。本证书由 Quorvex 自动生成，可作为数据销毁的合规记录。</translation>
    </message>
    <message>
        <source>Not read back</source>
        <translation>未读回</translation>
    </message>
    <message>
        <source>Nothing that could be compared</source>
        <translation>没有可比对的内容</translation>
    </message>
    <message>
        <source>Read Back</source>
        <translation>读回</translation>
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
        <translation>今日的证书编号已全部用完。</translation>
    </message>
</context>
<context>
    <name>CertificateRenderer</name>
    <message>
        <source>操作摘要</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除标准</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>覆写次数</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 次</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>结束时间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>耗时</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>状态:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>存储设备信息</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>型号</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>序列号</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>容量</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>类型</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>接口</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除详情</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件数量</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 个</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>总扇区数</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已擦除扇区</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>写入数据量</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>坏扇区数</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证信息</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证结果:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>通过</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未通过</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>采样数量</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> 个位置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>数据哈希</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作信息</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作员</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>计算机</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>数据擦除证书</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>证书编号: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>生成时间: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>声明: 本证书证明上述存储设备/文件已按照指定的数据擦除标准进行了安全擦除操作。擦除过程符合相关数据保护法规的要求。本证书由 Quorvex 软件自动生成，可作为数据销毁的合规性证明文件。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>专业数据擦除工具</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>实际处理: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未读回</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>读回的内容无法比对</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(全部内容见本程序历史记录)</source>
        <translation type="unfinished"></translation>
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
        <translation>此程序构建时未包含证书功能</translation>
    </message>
    <message>
        <source>no command given</source>
        <translation>未指定命令</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not complete</source>
        <translation>“%1”不完整</translation>
    </message>
    <message>
        <source>unknown command &apos;%1&apos;</source>
        <translation>未知的命令“%1”</translation>
    </message>
    <message>
        <source>--data-dir is empty</source>
        <translation>--data-dir 的值为空白</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs %2</source>
        <translation>“%1”需要 %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is one argument too many for &apos;%2&apos;</source>
        <translation>“%1”是“%2”多余的参数</translation>
    </message>
    <message>
        <source>%1 (read %2)</source>
        <translation>%1 (请参阅 %2)</translation>
    </message>
    <message>
        <source>%1 is no file</source>
        <translation>%1 不是文件</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is too large for a report</source>
        <translation>%1 过大，不可能是报告</translation>
    </message>
    <message>
        <source>the fields are alike, but not the text, from byte %1 on</source>
        <translation>各字段相同，但文本自字节 %1 起不同</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>the first field that differs is %1: %2 in the record, %3 in the file</source>
        <translation>第一个不同的字段是 %1：记录中为 %2，文件中为 %3</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1 is no report</source>
        <translation>不相符：%1 不是报告</translation>
    </message>
    <message>
        <source>NOT THE SAME: the database has no record of %1</source>
        <translation>不相符：数据库中没有 %1 的记录</translation>
    </message>
    <message>
        <source>THE SAME: %1 is the record of %2</source>
        <translation>相符：%1 即为 %2 的记录</translation>
    </message>
    <message>
        <source>NOT THE SAME: %1</source>
        <translation>不相符：%1</translation>
    </message>
    <message>
        <source>ALL ZERO: every one of the %1 bytes of %2 is 0x00</source>
        <translation>全部为零：%2 的 %1 个字节均为 0x00</translation>
    </message>
    <message>
        <source>NOT ZERO: byte %1 of %2 is %3</source>
        <translation>并非全零：%2 的字节 %1 为 %3</translation>
    </message>
    <message>
        <source>a path is empty</source>
        <translation>路径为空白</translation>
    </message>
    <message>
        <source>Compares an exported report with its record, or looks for bytes that are left</source>
        <translation>比对导出的报告与其记录，或寻找残留的字节</translation>
    </message>
    <message>
        <source>FILE is a report as JSON, or with --zeros an image file or a drive, which is only read.</source>
        <translation>FILE 为 JSON 格式的报告；搭配 --zeros 时则为镜像文件或驱动器，且仅会读取。</translation>
    </message>
    <message>
        <source>Read FILE through and say whether every byte is 0x00</source>
        <translation>完整读取 FILE，并报告是否所有字节均为 0x00</translation>
    </message>
    <message>
        <source>system</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>可移动</translation>
    </message>
    <message>
        <source>No drives found.</source>
        <translation>找不到任何驱动器。</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>驱动器</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>总线</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>标志</translation>
    </message>
    <message>
        <source>, system</source>
        <translation>，系统</translation>
    </message>
    <message>
        <source>Lists the drives with their volumes</source>
        <translation>列出驱动器及其卷</translation>
    </message>
    <message>
        <source>random</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>complement</source>
        <translation>补数</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>%1 (verified)</source>
        <translation>%1 (含验证)</translation>
    </message>
    <message>
        <source>%1  %2: %3, level %4 (%5)</source>
        <translation>%1  %2：%3，等级 %4 (%5)</translation>
    </message>
    <message>
        <source>Lists the erasure standards with their passes</source>
        <translation>列出擦除标准及其覆写次数与样式</translation>
    </message>
    <message>
        <source>report %1 could not be deleted</source>
        <translation>无法删除报告 %1</translation>
    </message>
    <message>
        <source>Report %1 is deleted.</source>
        <translation>已删除报告 %1。</translation>
    </message>
    <message>
        <source>Deletes one report from the database</source>
        <translation>从数据库删除一份报告</translation>
    </message>
    <message>
        <source>&apos;%1&apos; needs --pdf or --json-file</source>
        <translation>“%1”需要 --pdf 或 --json-file</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named for two outputs</source>
        <translation>“%1” 被指定为两个输出</translation>
    </message>
    <message>
        <source>%1 could not be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>Exports one report as certificate, as JSON, or as both</source>
        <translation>将一份报告导出为证书、JSON 或两者</translation>
    </message>
    <message>
        <source>The JSON is the stored text, byte for byte, for &apos;quorvex-cli check&apos;.</source>
        <translation>JSON 为保存的原始文本，逐字节相同，可供“quorvex-cli check”使用。</translation>
    </message>
    <message>
        <source>Write the certificate as PDF, into this file or folder</source>
        <translation>将证书以 PDF 格式写入此文件或文件夹</translation>
    </message>
    <message>
        <source>Write the report as JSON; - is standard output</source>
        <translation>将报告以 JSON 格式写入；- 表示标准输出</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>No reports.</source>
        <translation>没有报告。</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>证书</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>方法</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>--%1 takes a number %2, not &apos;%3&apos;</source>
        <translation>--%1 必须是数字 (%2)，而非“%3”</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 以上</translation>
    </message>
    <message>
        <source>Lists the stored reports, latest first</source>
        <translation>列出已存储的报告，最新的在前</translation>
    </message>
    <message>
        <source>How many to list (100)</source>
        <translation>要列出的数量 (100)</translation>
    </message>
    <message>
        <source>How many of the latest to leave out (0)</source>
        <translation>要略过的最新报告数量 (0)</translation>
    </message>
    <message>
        <source>Shows one report</source>
        <translation>显示一份报告</translation>
    </message>
    <message>
        <source>Lists what &apos;wipe trash&apos; would erase</source>
        <translation>列出“wipe trash”将擦除的项目</translation>
    </message>
    <message>
        <source>  the whole drive: its partition table and everything between and outside its volumes</source>
        <translation>  整个驱动器：分区表，以及各卷之间和之外的所有内容</translation>
    </message>
    <message>
        <source>  its volumes are unmounted before, and stay so once something was written</source>
        <translation>  事先会卸载其卷，一旦写入过数据便维持卸载</translation>
    </message>
    <message>
        <source>Erases a whole drive</source>
        <translation>擦除整个驱动器</translation>
    </message>
    <message>
        <source>DRIVE is the number that &apos;quorvex-cli disks&apos; shows, or a device path. System disks are refused.</source>
        <translation>DRIVE 为“quorvex-cli disks”所显示的编号或设备路径。系统磁盘会被拒绝。</translation>
    </message>
    <message>
        <source>Of a drive with mounted volumes only these are erased; --whole unmounts them and erases every sector of the drive.</source>
        <translation>若驱动器有已挂载的卷，只会擦除这些卷；--whole 会卸载它们并擦除驱动器的每个扇区。</translation>
    </message>
    <message>
        <source>Unmount all volumes of the drive and erase every sector of it</source>
        <translation>卸载驱动器的所有卷并擦除其每个扇区</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 及其他 %2 项</translation>
    </message>
    <message>
        <source>Erases files, and folders with all that is in them</source>
        <translation>擦除文件，以及文件夹与其中的所有内容</translation>
    </message>
    <message>
        <source>A link is removed itself; what it leads to is not touched. Put -- before a path that begins with a dash.</source>
        <translation>链接只会移除其本身，所指向的内容不受影响。若路径以连字符开头，请在其前加上 --。</translation>
    </message>
    <message>
        <source>  the free space of:</source>
        <translation>  下列卷的空闲空间：</translation>
    </message>
    <message>
        <source>  files that exist are kept</source>
        <translation>  现有文件会予以保留</translation>
    </message>
    <message>
        <source>--report takes the report of one volume, not of several</source>
        <translation>--report 只能用于单一卷的报告，不适用于多个卷</translation>
    </message>
    <message>
        <source>--pdf takes a folder when there are several volumes</source>
        <translation>有多个卷时，--pdf 须指定文件夹</translation>
    </message>
    <message>
        <source>Erases the free space of volumes</source>
        <translation>擦除卷的空闲空间</translation>
    </message>
    <message>
        <source>VOLUME is a drive letter, a mount point, or a drive number for all volumes of the drive.</source>
        <translation>VOLUME 为盘符、挂载点，或驱动器编号 (代表该驱动器的所有卷)。</translation>
    </message>
    <message>
        <source>The Recycle Bin is empty.</source>
        <translation>回收站是空的。</translation>
    </message>
    <message>
        <source>the bin&apos;s own list of its folders still names what was erased, error %1</source>
        <translation>回收站本身的文件夹列表仍留有已擦除项目的名称，错误 %1</translation>
    </message>
    <message>
        <source>nothing to erase was found, but not every bin was looked into: %1</source>
        <translation>找不到可擦除的项目，但并非每个回收站都已查看：%1</translation>
    </message>
    <message>
        <source>the Recycle Bin</source>
        <translation>回收站</translation>
    </message>
    <message>
        <source>Erases everything in the current user&apos;s Recycle Bin</source>
        <translation>擦除当前用户回收站中的所有内容</translation>
    </message>
    <message>
        <source>That is the Recycle Bin of Windows, and the Trash of other desktops.</source>
        <translation>即 Windows 的回收站，以及其他桌面环境的回收站。</translation>
    </message>
    <message>
        <source>This is about to be destroyed for good:</source>
        <translation>下列内容即将永久销毁：</translation>
    </message>
    <message>
        <source>not confirmed: standard input is no terminal; --yes skips the question</source>
        <translation>未确认：标准输入不是终端；使用 --yes 可略过确认</translation>
    </message>
    <message>
        <source>Type %1 to destroy it:</source>
        <translation>请输入 %1 以进行销毁：</translation>
    </message>
    <message>
        <source>cancelled, nothing was written</source>
        <translation>已取消，未写入任何数据</translation>
    </message>
    <message>
        <source>not confirmed, nothing was written</source>
        <translation>未确认，未写入任何数据</translation>
    </message>
    <message>
        <source>no such drive: %1</source>
        <translation>找不到驱动器：%1</translation>
    </message>
    <message>
        <source>a device that is no drive</source>
        <translation>不是驱动器的设备</translation>
    </message>
    <message>
        <source>drive %1</source>
        <translation>驱动器 %1</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 为只读</translation>
    </message>
    <message>
        <source>%1 is a part of drive %2; a whole drive must be given</source>
        <translation>%1 是驱动器 %2 的一部分；必须指定整个驱动器</translation>
    </message>
    <message>
        <source>drive %1 is a system disk and cannot be erased while it is in use</source>
        <translation>驱动器 %1 是系统磁盘，使用中无法擦除</translation>
    </message>
    <message>
        <source>drive %1 is read-only</source>
        <translation>驱动器 %1 为只读</translation>
    </message>
    <message>
        <source>drive %1 is held by %2</source>
        <translation>驱动器 %1 正由 %2 占用</translation>
    </message>
    <message>
        <source>to release it: %1</source>
        <translation>解除占用：%1</translation>
    </message>
    <message>
        <source>not permitted to write to drive %1</source>
        <translation>没有写入驱动器 %1 的权限</translation>
    </message>
    <message>
        <source>drive %1 is gone, or another one has taken its place</source>
        <translation>驱动器 %1 已不存在，或已由另一个驱动器取代</translation>
    </message>
    <message>
        <source>volume %1 lies on drive %2 and also on %3</source>
        <translation>卷 %1 位于驱动器 %2，同时也位于 %3</translation>
    </message>
    <message>
        <source>%1 is no file or folder; a drive is erased with &apos;wipe disk&apos;</source>
        <translation>%1 不是文件或文件夹；驱动器请以“wipe disk”擦除</translation>
    </message>
    <message>
        <source>%1 goes back through a link; give the path without &quot;..&quot;</source>
        <translation>%1 会经由链接回到上级；请指定不含“..”的路径</translation>
    </message>
    <message>
        <source>%1 cannot be looked at, error %2</source>
        <translation>无法查看 %1，错误 %2</translation>
    </message>
    <message>
        <source>%1 is the root of a volume; name what is to be erased in it</source>
        <translation>%1 是卷的根目录；请指定其中要擦除的项目</translation>
    </message>
    <message>
        <source>Machine output: JSON, one value a line</source>
        <translation>机器可读的输出：JSON，每行一个值</translation>
    </message>
    <message>
        <source>Keep database and log in this folder instead of the per-user one</source>
        <translation>将数据库与日志存放于此文件夹，而非各用户的文件夹</translation>
    </message>
    <message>
        <source>Let this image file appear as a drive (repeatable)</source>
        <translation>将此镜像文件视为驱动器 (可重复指定)</translation>
    </message>
    <message>
        <source>List and open no real drive</source>
        <translation>不列出也不打开任何实际的驱动器</translation>
    </message>
    <message>
        <source>Print errors and the final line only</source>
        <translation>仅输出错误与最后一行</translation>
    </message>
    <message>
        <source>Show this help</source>
        <translation>显示此帮助</translation>
    </message>
    <message>
        <source>Show the version</source>
        <translation>显示版本</translation>
    </message>
    <message>
        <source>no image file: %1</source>
        <translation>找不到镜像文件：%1</translation>
    </message>
    <message>
        <source>Usage: quorvex-cli [OPTION...] %1</source>
        <translation>用法：quorvex-cli [选项...] %1</translation>
    </message>
    <message>
        <source>Example:</source>
        <translation>示例：</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Options of every command:</source>
        <translation>所有命令通用的选项：</translation>
    </message>
    <message>
        <source>done, everything asked for was done</source>
        <translation>成功，所有要求均已完成</translation>
    </message>
    <message>
        <source>the job ran and failed, in whole or in part</source>
        <translation>任务已运行，但全部或部分失败</translation>
    </message>
    <message>
        <source>the command line is wrong</source>
        <translation>命令行有误</translation>
    </message>
    <message>
        <source>refused before anything was written</source>
        <translation>在写入任何数据之前即遭拒绝</translation>
    </message>
    <message>
        <source>cancelled (Ctrl+C), the job stopped cleanly</source>
        <translation>已取消 (Ctrl+C)，任务已正常停止</translation>
    </message>
    <message>
        <source>a report or other output could not be written</source>
        <translation>无法写入报告或其他输出</translation>
    </message>
    <message>
        <source>Exit codes:</source>
        <translation>退出代码：</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Destroys data beyond recovery and proves it.</source>
        <translation>彻底销毁数据使其无法恢复，并提供证明。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Each command has a help of its own: quorvex-cli wipe disk --help</source>
        <translation>每个命令都有专门的帮助：quorvex-cli wipe disk --help</translation>
    </message>
    <message>
        <source>the program&apos;s log in %1 lies in what is to be erased; --data-dir takes another folder</source>
        <translation>程序位于 %1 的日志文件在要擦除的内容之中；--data-dir 可指定其他文件夹</translation>
    </message>
    <message>
        <source>the data folder %1 cannot be used</source>
        <translation>无法使用数据存放文件夹 %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies in what is to be erased</source>
        <translation>“%1”位于要擦除的范围内</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no report; --force replaces it</source>
        <translation>“%1” 已存在且不是报告；--force 会取代它</translation>
    </message>
    <message>
        <source>the report database in %1 lies in what is to be erased; --data-dir takes another folder, --no-report does without</source>
        <translation>位于 %1 的报告数据库在要擦除的范围内；可用 --data-dir 指定其他文件夹，或用 --no-report 不保存报告</translation>
    </message>
    <message>
        <source>report %1 could not be stored in the database: %2</source>
        <translation>无法将报告 %1 存入数据库：%2</translation>
    </message>
    <message>
        <source>the report file %1 could not be written</source>
        <translation>无法写入报告文件 %1</translation>
    </message>
    <message>
        <source>the certificate %1 could not be written</source>
        <translation>无法写入证书 %1</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;, known are: %2</source>
        <translation>未知的语言“%1”，可用的语言：%2</translation>
    </message>
    <message>
        <source>the catalogue of the language %1 cannot be read</source>
        <translation>无法读取 %1 的语言目录</translation>
    </message>
    <message>
        <source>1 pass</source>
        <translation>1 次覆写</translation>
    </message>
    <message>
        <source>%1 passes</source>
        <translation>%1 次覆写</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be the name of a file</source>
        <translation>“%1”不能作为文件名称</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a folder, not a file</source>
        <translation>“%1”是文件夹，不是文件</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists and is no ordinary file</source>
        <translation>“%1”已存在，且不是普通文件</translation>
    </message>
    <message>
        <source>the folder of &apos;%1&apos; does not exist</source>
        <translation>“%1”所在的文件夹不存在</translation>
    </message>
    <message>
        <source>pass %1/%2</source>
        <translation>第 %1/%2 次覆写</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>the report database in %1 cannot be used: %2</source>
        <translation>无法使用位于 %1 的报告数据库：%2</translation>
    </message>
    <message>
        <source>the report database cannot be read: %1</source>
        <translation>无法读取报告数据库：%1</translation>
    </message>
    <message>
        <source>there is no report %1</source>
        <translation>找不到报告 %1</translation>
    </message>
    <message>
        <source>what is stored as report %1 is damaged</source>
        <translation>存储为报告 %1 的内容已损坏</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>扇区</translation>
    </message>
    <message>
        <source>Sectors erased</source>
        <translation>已擦除扇区</translation>
    </message>
    <message>
        <source>Bad sectors</source>
        <translation>坏扇区</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>卷</translation>
    </message>
    <message>
        <source>Shortfall</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>passed</source>
        <translation>通过</translation>
    </message>
    <message>
        <source>not passed</source>
        <translation>未通过</translation>
    </message>
    <message>
        <source>Verification</source>
        <translation>验证</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>不回读验证</translation>
    </message>
    <message>
        <source>Read back</source>
        <translation>回读</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>采样数量</translation>
    </message>
    <message>
        <source>Hash</source>
        <translation>哈希</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 个文件</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 个文件</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
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
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>耗时</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>写入数据量</translation>
    </message>
    <message>
        <source>On the medium</source>
        <translation>写入介质</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作人员</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>the output could not be written</source>
        <translation>无法写入输出</translation>
    </message>
    <message>
        <source>[error]</source>
        <translation>[错误]</translation>
    </message>
    <message>
        <source>[warning]</source>
        <translation>[警告]</translation>
    </message>
    <message>
        <source>[info]</source>
        <translation>[信息]</translation>
    </message>
    <message>
        <source>DONE</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>PARTLY DONE</source>
        <translation>部分完成</translation>
    </message>
    <message>
        <source>CANCELLED</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>已写入 %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，共 %2</translation>
    </message>
    <message>
        <source>%1: %2, %3, %4 in %5, certificate %6</source>
        <translation>%1：%2，%3，%4，耗时 %5，证书 %6</translation>
    </message>
    <message>
        <source>, report %1</source>
        <translation>，报告 %1</translation>
    </message>
    <message>
        <source>, PDF %1</source>
        <translation>，PDF %1</translation>
    </message>
    <message>
        <source>--root is empty</source>
        <translation>--root 的值为空白</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是文件夹</translation>
    </message>
    <message>
        <source>Look into the Windows bins below this folder, which stands for a drive (repeatable)</source>
        <translation>在此文件夹 (代表一个驱动器) 下寻找 Windows 回收站 (可重复指定)</translation>
    </message>
    <message>
        <source>With --root: only the bin of the user with this security identifier</source>
        <translation>搭配 --root：仅限具有此安全标识符的用户的回收站</translation>
    </message>
    <message>
        <source>--sid is empty</source>
        <translation>--sid 的值为空白</translation>
    </message>
    <message>
        <source>--sid needs --root</source>
        <translation>--sid 需要 --root</translation>
    </message>
    <message>
        <source>no bin of %1 was found</source>
        <translation>找不到 %1 的回收站</translation>
    </message>
    <message>
        <source>the system does not tell who the user is</source>
        <translation>系统未提供用户的身份</translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 个项目</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>1 entry without a record</source>
        <translation>1 个没有记录的项目</translation>
    </message>
    <message>
        <source>%1 entries without a record</source>
        <translation>%1 个没有记录的项目</translation>
    </message>
    <message>
        <source>and %1, %2</source>
        <translation>以及 %1，%2</translation>
    </message>
    <message>
        <source>%1 is a link and is not followed</source>
        <translation>%1 是链接，不会跟随</translation>
    </message>
    <message>
        <source>%1 belongs to another user and is left alone</source>
        <translation>%1 属于其他用户，将保持不动</translation>
    </message>
    <message>
        <source>%1 cannot be looked into, error %2</source>
        <translation>无法查看 %1，错误 %2</translation>
    </message>
    <message>
        <source>folder, </source>
        <translation>文件夹 </translation>
    </message>
    <message>
        <source>, only its record is left</source>
        <translation>，仅剩记录</translation>
    </message>
    <message>
        <source>%1 (%2%3%4)</source>
        <translation>%1 (%2%3%4)</translation>
    </message>
    <message>
        <source>volume %1</source>
        <translation>卷 %1</translation>
    </message>
    <message>
        <source>no such volume: %1</source>
        <translation>找不到卷：%1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>unknown method &apos;%1&apos;, &apos;quorvex-cli methods&apos; lists them</source>
        <translation>未知的方法“%1”，可用“quorvex-cli methods”列出</translation>
    </message>
    <message>
        <source>unknown kind of shortfall &apos;%1&apos;, there are: %2</source>
        <translation>未知的缺失类型“%1”，可用的类型：%2</translation>
    </message>
    <message>
        <source>Erasure standard, by name or number (0: NIST 800-88)</source>
        <translation>擦除标准，以名称或编号指定 (0：NIST 800-88)</translation>
    </message>
    <message>
        <source>Do not read back what was written</source>
        <translation>不回读已写入的内容</translation>
    </message>
    <message>
        <source>Samples to read back from a drive (1000)</source>
        <translation>从驱动器回读的采样数量 (1000)</translation>
    </message>
    <message>
        <source>Files to erase at the same time, 1 to 32</source>
        <translation>同时擦除的文件数，1 至 32</translation>
    </message>
    <message>
        <source>Write buffer in MiB, 1 to 1024 (64)</source>
        <translation>写入缓冲区大小 (MiB)，1 至 1024 (64)</translation>
    </message>
    <message>
        <source>Write the report as JSON into this file</source>
        <translation>将报告以 JSON 格式写入此文件</translation>
    </message>
    <message>
        <source>Let --report replace a file that is no report</source>
        <translation>允许 --report 取代不是报告的文件</translation>
    </message>
    <message>
        <source>Do not store the report in the database</source>
        <translation>不将报告存入数据库</translation>
    </message>
    <message>
        <source>After a success write the certificate as PDF, into this file or folder</source>
        <translation>成功后将证书以 PDF 格式写入此文件或文件夹</translation>
    </message>
    <message>
        <source>A shortfall of this kind is no failure; may be given several times</source>
        <translation>此类缺失不视为失败 (可重复指定)</translation>
    </message>
    <message>
        <source>Do not ask for the word ERASE</source>
        <translation>不要求输入 ERASE 进行确认</translation>
    </message>
    <message>
        <source>read back</source>
        <translation>回读验证</translation>
    </message>
    <message>
        <source>  with %1, %2, %3</source>
        <translation>  使用 %1，%2，%3</translation>
    </message>
    <message>
        <source>--no-report does without.</source>
        <translation>使用 --no-report 则不需要编号。</translation>
    </message>
    <message>
        <source>left unmounted: %1</source>
        <translation>仍处于卸载状态：%1</translation>
    </message>
    <message>
        <source>  not everything will be erased:</source>
        <translation>  并非所有内容都会被擦除：</translation>
    </message>
    <message>
        <source>%1 is empty, there is nothing to check</source>
        <translation>%1 是空的，没有可检查的内容</translation>
    </message>
    <message>
        <source>%1 cannot be read at byte %2, error %3</source>
        <translation>无法读取 %1 的字节 %2，错误 %3</translation>
    </message>
    <message>
        <source>not permitted to read %1</source>
        <translation>没有读取 %1 的权限</translation>
    </message>
    <message>
        <source>%1 cannot be opened, error %2</source>
        <translation>无法打开 %1，错误 %2</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 是文件夹</translation>
    </message>
    <message>
        <source>%1; try it as administrator</source>
        <translation>%1；请以管理员身份重试</translation>
    </message>
    <message>
        <source>%1; try it with sudo</source>
        <translation>%1；请用 sudo 重试</translation>
    </message>
    <message>
        <source>Tells what drives and volumes answer, for whoever helps from afar</source>
        <translation>显示驱动器和卷的应答，供远程协助者使用</translation>
    </message>
    <message>
        <source>Nothing is written. The answers are in English in every language and have serial numbers and paths in them: look through them before you send them on.</source>
        <translation>不会写入任何内容。应答在所有语言中均为英文，并包含序列号和路径：发送前请先查看。</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1 的回收站</translation>
    </message>
    <message>
        <source>Language: %1 (default: the system&apos;s)</source>
        <translation>语言：%1 (默认：系统语言)</translation>
    </message>
</context>
<context>
    <name>CompleteDialog</name>
    <message>
        <source>Erasing Complete</source>
        <translation>擦除完成</translation>
    </message>
    <message>
        <source>Erase Failed</source>
        <translation>擦除失败</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>An error occurred during erasure.
Please check the log for details.</source>
        <translation>擦除时发生错误。
详细信息请参阅日志。</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.</source>
        <translation>所有选择的数据均已安全擦除。</translation>
    </message>
    <message>
        <source>All selected data has been securely erased.
An erasure certificate has been generated.</source>
        <translation>所有选择的数据均已安全擦除。
擦除证书已生成。</translation>
    </message>
    <message>
        <source>Data Erased Successfully!</source>
        <translation>数据擦除成功！</translation>
    </message>
    <message>
        <source>Left unmounted: %1</source>
        <translation>维持卸载：%1</translation>
    </message>
    <message>
        <source>The report is not stored. %1</source>
        <translation>报告未保存。%1</translation>
    </message>
    <message>
        <source>Certificate: </source>
        <translation>证书： </translation>
    </message>
    <message>
        <source>View Certificate</source>
        <translation>查看证书</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Confirm Erase</source>
        <translation>确认擦除</translation>
    </message>
    <message>
        <source>Type &lt;b&gt;ERASE&lt;/b&gt; to confirm:</source>
        <translation>请输入 &lt;b&gt;ERASE&lt;/b&gt; 以确认：</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Warning: Irreversible Operation</source>
        <translation>警告：此操作无法恢复</translation>
    </message>
    <message>
        <source>The selected data will be permanently erased and cannot be recovered.</source>
        <translation>选择的数据将被永久擦除，且无法恢复。</translation>
    </message>
    <message>
        <source>This will be destroyed</source>
        <translation>将被销毁的内容</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise all outside its volumes stays)</source>
        <translation>擦除整个磁盘
(否则卷以外的一切都会保留)</translation>
    </message>
    <message>
        <source>Erase the whole disk
(otherwise %1 outside its volumes stay)</source>
        <translation>擦除整个磁盘
(否则卷以外的 %1 会保留)</translation>
    </message>
    <message>
        <source>Every sector is overwritten, the partition table too. All volumes of the disk are unmounted before.</source>
        <translation>每个扇区都会被覆写，包括分区表。事先会卸载磁盘的所有卷。</translation>
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
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>DiskSelectPage</name>
    <message>
        <source>Wipe Disk and Partition</source>
        <translation>擦除磁盘与分区</translation>
    </message>
    <message>
        <source>Select a disk or partition to wipe. Expand disks to see partitions.</source>
        <translation>选择要擦除的磁盘或分区。展开磁盘即可查看分区。</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 返回</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>下一步 →</translation>
    </message>
    <message>
        <source>Disks and partitions</source>
        <translation>磁盘与分区</translation>
    </message>
    <message>
        <source>Disk/Partition</source>
        <translation>磁盘/分区</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Wipe Free Space</source>
        <translation>擦除空闲空间</translation>
    </message>
    <message>
        <source>Select a partition to securely wipe free space.</source>
        <translation>选择要安全擦除空闲空间的分区。</translation>
    </message>
    <message>
        <source>Select a disk or partition to completely wipe. All data will be permanently deleted.</source>
        <translation>选择要完全擦除的磁盘或分区。所有数据将被永久删除。</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system disk for wiping.</source>
        <translation>⚠️ 无法选择系统磁盘进行擦除。</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system disk. It will not affect existing files or system operation.</source>
        <translation>ℹ️ 对系统磁盘擦除空闲空间是安全的，不会影响现有文件或系统运行。</translation>
    </message>
    <message>
        <source>⚠️ Cannot select system partition for wiping.</source>
        <translation>⚠️ 无法选择系统分区进行擦除。</translation>
    </message>
    <message>
        <source>ℹ️ Free space wipe is safe for system partition. It will not affect existing files or system operation.</source>
        <translation>ℹ️ 对系统分区擦除空闲空间是安全的，不会影响现有文件或系统运行。</translation>
    </message>
    <message>
        <source>💿 Disk %1 - %2</source>
        <translation>💿 磁盘 %1 - %2</translation>
    </message>
    <message>
        <source>⚠️ System Disk</source>
        <translation>⚠️ 系统磁盘</translation>
    </message>
    <message>
        <source>Removable</source>
        <translation>可移动</translation>
    </message>
    <message>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>📁 Partition %1</source>
        <translation>📁 分区 %1</translation>
    </message>
    <message>
        <source>📁 %1</source>
        <translation>📁 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>空闲 %1</translation>
    </message>
    <message>
        <source>⚠️ System</source>
        <translation>⚠️ 系统</translation>
    </message>
    <message>
        <source>⚠️ Boot</source>
        <translation>⚠️ 引导</translation>
    </message>
    <message>
        <source>a device that is no disk</source>
        <translation>不是磁盘的设备</translation>
    </message>
    <message>
        <source>disk %1</source>
        <translation>磁盘 %1</translation>
    </message>
    <message>
        <source>Volume %1 lies on this disk and also on %2.</source>
        <translation>卷 %1 位于此磁盘，同时也位于 %2。</translation>
    </message>
    <message>
        <source>The disk is read-only.</source>
        <translation>此磁盘为只读。</translation>
    </message>
    <message>
        <source>The disk is held by: %1</source>
        <translation>此磁盘正由下列项目占用：%1</translation>
    </message>
    <message>
        <source>These commands release it:</source>
        <translation>下列命令可解除占用：</translation>
    </message>
</context>
<context>
    <name>DiskWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 没有可用的磁盘或卷句柄</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>通过磁盘句柄进行擦除...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败，错误码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>通过卷句柄进行擦除...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>使用估算卷大小: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在擦除卷 %1/%2，大小: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>卷 %1 擦除完成，已写入: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>卷 %1 有 %2 未被覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>写入字节数为0，到达卷末尾</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>到达卷边界，继续下一个卷...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 访问被拒绝</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 磁盘写保护</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 设备未就绪</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 磁盘被占用</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 锁定冲突</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: I/O 设备错误</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>刷新写入失败，错误码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在验证...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证失败，位置: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证通过</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法擦除系统盘</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在锁定磁盘卷...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法锁定磁盘卷，请关闭所有使用该磁盘的程序</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘卷已锁定并卸载</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法获取磁盘信息</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘擦除完成!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>开始磁盘擦除...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘编号: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>序列号: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>卷 %1 又被挂载，未写入任何数据</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在打开磁盘...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘打开成功</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开磁盘，错误码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>将通过卷句柄进行擦除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>扇区大小: %1 字节</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>总扇区数: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (模式: %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>覆写失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>随机</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未知</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘未能恢复联机，错误码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已重新挂载: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>警告: 未找到任何卷，可能是无分区磁盘</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在查找磁盘 %1 上的卷...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>找到卷: %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>共找到 %1 个需要锁定的卷</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在处理卷: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开卷 %1，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在锁定卷 %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>卷 %1 锁定成功</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>警告: 卷 %1 锁定失败，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在卸载卷 %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>卷 %1 卸载成功</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>警告: 卷 %1 卸载失败，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FailureWords</name>
    <message>
        <source>错误: 卷已加密且未解锁 (BitLocker)，请先解锁该卷，或擦除整个磁盘 (--whole)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 设备已断开，或介质已更换</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: 设备或介质故障</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileSelectPage</name>
    <message>
        <source>Select Files to Shred</source>
        <translation>选择要擦除的文件</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>点击按钮以添加文件与文件夹</translation>
    </message>
    <message>
        <source>📄 Add Files</source>
        <translation>📄 添加文件</translation>
    </message>
    <message>
        <source>📁 Add Folder</source>
        <translation>📁 添加文件夹</translation>
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
        <translation>点击以添加文件，或将文件拖动至此</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← 返回</translation>
    </message>
    <message>
        <source>Next →</source>
        <translation>下一步 →</translation>
    </message>
    <message>
        <source>Files and folders to shred</source>
        <translation>要擦除的文件与文件夹</translation>
    </message>
    <message>
        <source>Select Files</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>All Files (*.*)</source>
        <translation>所有文件 (*.*)</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Confirm Clear</source>
        <translation>确认清除</translation>
    </message>
    <message>
        <source>Are you sure you want to clear all added files?</source>
        <translation>确定要清除所有已添加的文件吗？</translation>
    </message>
    <message>
        <source>Added %1 items, total %2</source>
        <translation>已添加 %1 个项目，共 %2</translation>
    </message>
    <message>
        <source>1 item could not be found</source>
        <translation>找不到 1 个项目</translation>
    </message>
    <message>
        <source>%1 items could not be found</source>
        <translation>找不到 %1 个项目</translation>
    </message>
</context>
<context>
    <name>FileSurvey</name>
    <message>
        <source>1 file has further names; its content is erased under these too</source>
        <translation>1 个文件有其他名称；在这些名称下的内容也会被擦除</translation>
    </message>
    <message>
        <source>%1 files have further names; their content is erased under these too</source>
        <translation>%1 个文件有其他名称；在这些名称下的内容也会被擦除</translation>
    </message>
    <message>
        <source>Sparse files such as %1 take another %2 when they are overwritten, and only %3 are free. Nothing was written.</source>
        <translation>像 %1 这样的稀疏文件在覆写时还需要 %2，而空闲空间只有 %3。未写入任何数据。</translation>
    </message>
</context>
<context>
    <name>FileWipeWorker</name>
    <message>
        <source>所有文件为空，跳过数据覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>第 %1/%2 遍覆写出现失败文件，失败数: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FlushFileBuffers 失败: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开文件(WinAPI): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SetFilePointerEx 失败: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WriteFile 失败: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>验证失败: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 个文件的内容可能还保存在别处，未被覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>内存分配失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除失败: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法删除文件夹: %1，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在扫描目标文件...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>没有找到要擦除的文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在执行安全删除及元数据清理...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除任务已由用户取消</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>所有文件擦除成功！共处理 %1 个文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除完成，但有 %1 个文件失败。数据可能不安全！</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法读取文件夹: %1，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法访问: %1，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件夹中挂载了其他文件系统，保持原样: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件还有 %1 个其他硬链接: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>任务期间又出现 %1 个文件，同样进行擦除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>准备擦除 %1 个文件，单遍总大小 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件已被替换，保持原样: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件内容不在本机，仅保存在云端，无法擦除: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件夹内容未全部在本机，部分仅保存在云端，无法擦除: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 个文件由云服务同步，云端可能仍保留其副本和历史版本</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在清除文件系统日志中的文件名...</source>
        <translation>正在清除文件系统日志中的文件名...</translation>
    </message>
    <message>
        <source>文件系统日志中可能仍保留文件名: %1</source>
        <translation>文件系统日志中可能仍保留文件名: %1</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWipeWorker</name>
    <message>
        <source>内存分配失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已写入: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>检测到系统分区，保留 1 GB 安全空间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>空闲空间已填满</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>警告: 文件系统不再接受数据，仍有 %1 空闲空间未填满</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法创建填充文件: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>写入错误，位置: %1，错误码: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>空闲空间没有减少，文件系统可能压缩数据</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>未写入任何数据。</translation>
    </message>
    <message>
        <source>Volume %1 is not the one that was chosen any more.</source>
        <translation>卷 %1 已不是所选的卷。</translation>
    </message>
    <message>
        <source>Another job is erasing the free space of this volume; its files are in %1.</source>
        <translation>另一项任务正在擦除此卷的空闲空间；其文件位于 %1。</translation>
    </message>
    <message>
        <source>开始空闲空间擦除...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无效的目标</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>目标分区: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>分区大小: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件系统: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>目标磁盘: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘大小: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>磁盘没有分区表，尝试查找对应的卷...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>找到对应卷: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>警告: 磁盘上没有可用的非系统分区</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>将擦除 %1 个分区的空闲空间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  - %1</source>
        <translation>  - %1</translation>
    </message>
    <message>
        <source>没有可用的分区</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>========== 分区 %1/%2: %3 ==========</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除已取消</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>空闲空间擦除完成!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>空闲空间: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>没有空闲空间需要擦除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>卷不再可用，错误码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已清理上次中断留下的临时文件: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>填充空闲空间失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法创建临时目录: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保留 %1 作为安全空间，不会被覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模式: 0x00</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模式: 0xFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模式: 随机</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模式: 0x%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>模式: 未知</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在清理文件系统残留...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文件系统残留清理不完整，错误码: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已删除的填充文件没有释放空间，无法继续覆写</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>查看证书</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>删除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清除所有</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除历史记录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>全部</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已取消</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>状态:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>目标</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>时间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>状态</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>查看</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[磁盘] </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[分区] </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[空闲] </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[文件] </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 个文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出证书</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF文件 (*.pdf)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出成功</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>证书已导出到: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法导出证书文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确认删除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定要删除此擦除记录吗？</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>提示</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>没有可清除的记录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确认清除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>确定要清除所有擦除记录吗？

此操作不可恢复！</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清除完成</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>所有记录已清除</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Destroy Data Permanently. No Leaks.</source>
        <translation>永久销毁数据，杜绝泄露。</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>磁盘擦除</translation>
    </message>
    <message>
        <source>Completely erase all data on the disk, including partitions and boot records</source>
        <translation>完全擦除磁盘所有数据，包括分区与引导记录</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>空闲空间擦除</translation>
    </message>
    <message>
        <source>Remove remnants of deleted files</source>
        <translation>清除已删除文件的残留数据</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>文件擦除</translation>
    </message>
    <message>
        <source>Permanently shred files and folders</source>
        <translation>永久擦除文件与文件夹</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>回收站擦除</translation>
    </message>
    <message>
        <source>Wipe deleted files in Recycle Bin</source>
        <translation>擦除回收站中已删除的文件</translation>
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
        <translation>Gutmann 35 次覆写</translation>
    </message>
</context>
<context>
    <name>JobController</name>
    <message>
        <source>The previous job is still ending.</source>
        <translation>前一个任务仍在结束中。</translation>
    </message>
    <message>
        <source>An erasure is running.</source>
        <translation>正在执行擦除。</translation>
    </message>
    <message>
        <source>The system could not be kept from sleeping during this job, error %1</source>
        <translation>无法在此任务期间阻止系统进入睡眠，错误 %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>配置错误</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LogWidget</name>
    <message>
        <source>复制日志</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存日志</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>清除</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>文本文件 (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoopFiles</name>
    <message>
        <source>The loop device %1 is attached to %2. Nothing was written.</source>
        <translation>循环设备 %1 附加在 %2 上。未写入任何数据。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorvex - Data Secure Eraser</source>
        <translation>Quorvex - 安全数据擦除</translation>
    </message>
    <message>
        <source>Wipe Free Space?</source>
        <translation>要擦除空闲空间吗？</translation>
    </message>
    <message>
        <source>Recycle Bin files have been securely wiped!

Would you also like to wipe free space to ensure previously
emptied files cannot be recovered?

This may take longer depending on available free space.</source>
        <translation>回收站中的文件已安全擦除！

您是否也要擦除空闲空间，以确保先前从回收站
清除的文件无法恢复？

视空闲空间大小而定，这可能需要较长时间。</translation>
    </message>
    <message>
        <source>Reading drives...</source>
        <translation>正在读取驱动器...</translation>
    </message>
    <message>
        <source>This Disk Cannot Be Erased</source>
        <translation>无法擦除此磁盘</translation>
    </message>
    <message>
        <source>This Volume Cannot Be Erased</source>
        <translation>无法擦除此卷</translation>
    </message>
    <message>
        <source>The Erasure Cannot Start</source>
        <translation>无法开始擦除</translation>
    </message>
    <message>
        <source>Confirm Stop</source>
        <translation>确认停止</translation>
    </message>
    <message>
        <source>Are you sure you want to stop the wipe task?
This operation cannot be undone.</source>
        <translation>确定要停止擦除任务吗？
此操作无法恢复。</translation>
    </message>
    <message>
        <source>Confirm Exit</source>
        <translation>确认退出</translation>
    </message>
    <message>
        <source>Wipe task is in progress. Are you sure you want to exit?
Exiting will interrupt the current task.</source>
        <translation>擦除任务正在进行中，确定要退出吗？
退出将中断当前的任务。</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Quorvex - Data Secure Eraser&lt;/h3&gt;&lt;p&gt;Version 5.0&lt;/p&gt;&lt;p&gt;Securely wipe your data with military-grade standards.&lt;br&gt;Support disk wipe, partition wipe, free space wipe and file wipe.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Quorvex - 安全数据擦除&lt;/h3&gt;&lt;p&gt;版本 5.0&lt;/p&gt;&lt;p&gt;以军事级标准安全擦除您的数据。&lt;br&gt;支持磁盘擦除、分区擦除、空闲空间擦除与文件擦除。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Veltrano. Erased means erased, and the certificate says how.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Veltrano. 擦除就是彻底擦除，证书说明如何做到。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>About Quorvex</source>
        <translation>关于 Quorvex</translation>
    </message>
    <message>
        <source>All of these will be erased, not only %1
%2</source>
        <translation>不仅 %1，下列项目全部都会被擦除
%2</translation>
    </message>
    <message>
        <source>These Files Cannot Be Erased</source>
        <translation>无法擦除这些文件</translation>
    </message>
    <message>
        <source>Found %1 items, total %2</source>
        <translation>找到 %1 个项目，共 %2</translation>
    </message>
    <message>
        <source>Erased too, without a record: %1</source>
        <translation>一并擦除，没有记录：%1</translation>
    </message>
    <message>
        <source>Not looked into: %1</source>
        <translation>未查看：%1</translation>
    </message>
    <message>
        <source>Recycle Bin Wipe</source>
        <translation>回收站擦除</translation>
    </message>
    <message>
        <source>Scanning deleted files in Recycle Bin...</source>
        <translation>正在扫描回收站中已删除的文件...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin...</source>
        <translation>正在扫描回收站...</translation>
    </message>
    <message>
        <source>Scanning Recycle Bin on drive %1 (%2/%3)...</source>
        <translation>正在扫描驱动器 %1 的回收站 (%2/%3)...</translation>
    </message>
    <message>
        <source>The Recycle Bin is already empty.

However, previously deleted files may still be recoverable.
Would you like to wipe free space to ensure they cannot be recovered?</source>
        <translation>回收站已是空的。

不过，先前删除的文件可能仍可恢复。
您要擦除空闲空间，以确保这些文件无法恢复吗？</translation>
    </message>
    <message>
        <source>Recycle Bin is Empty</source>
        <translation>回收站是空的</translation>
    </message>
    <message>
        <source>The following deleted files were found in the Recycle Bin</source>
        <translation>在回收站中找到下列已删除的文件</translation>
    </message>
    <message>
        <source>Select Files to Shred</source>
        <translation>选择要擦除的文件</translation>
    </message>
    <message>
        <source>Click buttons to add files and folders</source>
        <translation>点击按钮以添加文件与文件夹</translation>
    </message>
    <message>
        <source>Recycle Bin of %1</source>
        <translation>%1 的回收站</translation>
    </message>
</context>
<context>
    <name>MethodCard</name>
    <message>
        <source>%1 次覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>安全级别: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MethodSelectPage</name>
    <message>
        <source>选择擦除方法</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>不同的擦除方法提供不同级别的安全性，覆写次数越多越安全，但耗时也越长</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>← 返回</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
</context>
<context>
    <name>OutcomeRecord</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 项</translation>
    </message>
    <message>
        <source>Written to the medium: %1</source>
        <translation>写入介质：%1</translation>
    </message>
    <message>
        <source>Partly erased: %1</source>
        <translation>仅部分擦除：%1</translation>
    </message>
    <message>
        <source>Not completely erased: the job failed</source>
        <translation>未完全擦除：任务失败</translation>
    </message>
    <message>
        <source>Not completely erased: the job was cancelled</source>
        <translation>未完全擦除：任务已取消</translation>
    </message>
    <message>
        <source>only the mounted volumes are erased, not the rest of the drive</source>
        <translation>仅擦除已挂载的卷，不擦除驱动器的其余部分</translation>
    </message>
    <message>
        <source>volumes could not be opened and were not erased</source>
        <translation>无法打开卷，未予擦除</translation>
    </message>
    <message>
        <source>volumes took no more data before their end</source>
        <translation>卷在到达结尾前就不再接受数据</translation>
    </message>
    <message>
        <source>volumes were in use while they were overwritten</source>
        <translation>卷在覆写期间正在使用中</translation>
    </message>
    <message>
        <source>the end of the drive is no whole sector and was not overwritten</source>
        <translation>驱动器的结尾不是完整扇区，未被覆写</translation>
    </message>
    <message>
        <source>the drive says that it has no size, nothing was written</source>
        <translation>驱动器报告的容量为零，未写入任何数据</translation>
    </message>
    <message>
        <source>volumes reach beyond the drive</source>
        <translation>卷超出驱动器的范围</translation>
    </message>
    <message>
        <source>the drive has no mounted volume whose free space could be erased</source>
        <translation>驱动器没有可擦除其空闲空间的已挂载卷</translation>
    </message>
    <message>
        <source>nothing was written although there was free space</source>
        <translation>虽有空闲空间，但未写入任何数据</translation>
    </message>
    <message>
        <source>free space was left that could not be filled</source>
        <translation>仍有无法填满的空闲空间</translation>
    </message>
    <message>
        <source>more than 10 % of the free space is left as a reserve</source>
        <translation>超过 10% 的空闲空间会留作预留空间</translation>
    </message>
    <message>
        <source>fill files were left behind</source>
        <translation>填充文件遗留下来</translation>
    </message>
    <message>
        <source>entries were gone before they could be erased</source>
        <translation>项目在擦除之前已不存在</translation>
    </message>
    <message>
        <source>entries were replaced by others meanwhile</source>
        <translation>项目在过程中已被其他项目取代</translation>
    </message>
    <message>
        <source>files grew after they were overwritten</source>
        <translation>文件在覆写后变大</translation>
    </message>
    <message>
        <source>entries could not be removed</source>
        <translation>无法移除项目</translation>
    </message>
    <message>
        <source>the file system may keep the content elsewhere, where it is not overwritten</source>
        <translation>文件系统可能将内容保留在其他位置，该处不会被覆写</translation>
    </message>
    <message>
        <source>links are removed, what they lead to is not erased</source>
        <translation>链接会被移除，但其所指向的内容不会被擦除</translation>
    </message>
    <message>
        <source>bins were not looked into, what they hold is not erased</source>
        <translation>有回收站未被查看，其内容不会被擦除</translation>
    </message>
    <message>
        <source>what was written was not read back</source>
        <translation>未回读已写入的内容</translation>
    </message>
    <message>
        <source>what was written cannot be compared when it is read back</source>
        <translation>已写入的内容在回读时无法比对</translation>
    </message>
    <message>
        <source>a small part of the free space is left as a reserve</source>
        <translation>一小部分空闲空间会留作预留空间</translation>
    </message>
    <message>
        <source>files had further names, which stay and lead to overwritten content</source>
        <translation>文件另有其他名称，这些名称会保留并指向已覆写的内容</translation>
    </message>
    <message>
        <source>the file system writes to new places and may keep earlier content, in snapshots for instance</source>
        <translation>文件系统会写入新的位置，可能保留先前的内容，例如在快照中</translation>
    </message>
    <message>
        <source>there was no free space to overwrite</source>
        <translation>没有可供覆写的空闲空间</translation>
    </message>
    <message>
        <source>shadow copies of the volume may keep earlier content</source>
        <translation>卷的卷影副本可能保留以前的内容</translation>
    </message>
    <message>
        <source>a cloud service keeps copies and earlier versions of files</source>
        <translation>云服务保留文件的副本和历史版本</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>擦除进度</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>速度: --</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>剩余时间: 计算中...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>⏹️ 停止</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除方法: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>速度: %1/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 秒</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 分 %2 秒</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 小时 %2 分</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>剩余时间: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▶️ 继续</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>⏸️ 暂停</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>恢复此页面的显示；擦除并未停止</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>只暂停此页面的显示；擦除会继续进行</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>已暂停</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>正在擦除数据...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProtectedFolders</name>
    <message>
        <source>提示: Windows 安全中心的“受控文件夹访问”可能阻止本程序写入，请在其中允许本程序后重试</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>未知</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>机械硬盘</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>固态硬盘</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>USB设备</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NVMe</source>
        <translation>NVMe</translation>
    </message>
    <message>
        <source>外置硬盘</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportStorage</name>
    <message>
        <source>Another program holds the report database.</source>
        <translation>另一个程序正在占用报告数据库。</translation>
    </message>
    <message>
        <source>The report database cannot be written.</source>
        <translation>无法写入报告数据库。</translation>
    </message>
    <message>
        <source>There is no room left for the report database.</source>
        <translation>报告数据库已无空闲空间。</translation>
    </message>
    <message>
        <source>The report database is damaged.</source>
        <translation>报告数据库已损坏。</translation>
    </message>
    <message>
        <source>The report database cannot be opened.</source>
        <translation>无法打开报告数据库。</translation>
    </message>
    <message>
        <source>A link is in the place of the report database.</source>
        <translation>报告数据库的位置是一个链接。</translation>
    </message>
    <message>
        <source>The report database did not take the report.</source>
        <translation>报告数据库未接受此报告。</translation>
    </message>
</context>
<context>
    <name>SelectableValue</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>擦除后验证数据</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>自动生成擦除证书</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除完成后自动导出PDF证书</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>导出路径:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择默认导出路径...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>选择导出目录</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>证书导出</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>恢复默认</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>无法保存设置</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>保存成功</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>设置已保存</source>
        <translation type="unfinished"></translation>
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
        <translation>菜单</translation>
    </message>
    <message>
        <source>Data Wipe</source>
        <translation>数据擦除</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>StoredReport</name>
    <message>
        <source>Report Not Found</source>
        <translation>找不到报告</translation>
    </message>
    <message>
        <source>There is no report %1 in the database.</source>
        <translation>数据库中没有报告 %1。</translation>
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
        <translation>驱动器 %1：型号 %2，序列号 %3，%4，%5</translation>
    </message>
    <message>
        <source>volume %1, %2, %3, %4 free</source>
        <translation>卷 %1，%2，%3，空闲 %4</translation>
    </message>
    <message>
        <source>, label %1</source>
        <translation>，标签 %1</translation>
    </message>
    <message>
        <source>no mounted volumes</source>
        <translation>没有已挂载的卷</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>及其他 %1 项</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 个文件，%1</translation>
    </message>
    <message>
        <source>at least 1 file, %1</source>
        <translation>至少 1 个文件，%1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 个文件，%2</translation>
    </message>
    <message>
        <source>at least %1 files, %2</source>
        <translation>至少 %1 个文件，%2</translation>
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
        <translation>菜单</translation>
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
        <translation>关闭</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>支持</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>语言已更改</translation>
    </message>
    <message>
        <source>Language has been changed.

The application will restart now.</source>
        <translation>语言已更改。

程序即将重新启动。</translation>
    </message>
</context>
<context>
    <name>WipeEngine</name>
    <message>
        <source>无法在运行时更改任务</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The drive is in use by another program.</source>
        <translation>驱动器正由其他程序使用。</translation>
    </message>
    <message>
        <source>The drive cannot be rid of its volumes, error %1.</source>
        <translation>无法卸下驱动器的卷，错误 %1。</translation>
    </message>
    <message>
        <source>Volume %1 is in use and cannot be unmounted.</source>
        <translation>卷 %1 使用中，无法卸载。</translation>
    </message>
    <message>
        <source>Volume %1 cannot be unmounted, error %2.</source>
        <translation>卷 %1 无法卸载，错误 %2。</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>未写入任何数据。</translation>
    </message>
    <message>
        <source>Not mounted again: %1</source>
        <translation>未重新挂载：%1</translation>
    </message>
    <message>
        <source>没有设置任务</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>任务已在运行</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>创建工作线程失败</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>开始擦除任务...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除方法: %1 (%2次覆写)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>任务已停止</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>第 %1/%2 次覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>错误: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除完成!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除失败</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WipeHistoryModel</name>
    <message>
        <source>%1 个文件</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>证书ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>操作类型</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>目标</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>擦除方法</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>开始时间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>状态</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WipeMethod</name>
    <message>
        <source>美国国家标准技术研究院标准，单次覆写，适用于大多数场景</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>英国政府安全标准，2次覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>美国国防部标准，7次覆写，军事级别安全</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>德国联邦信息安全办公室标准，7次覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Peter Gutmann提出的最高安全标准，35次覆写</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>基础</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>标准</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>增强</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>高级</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>最高</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>未知</source>
        <translation type="unfinished"></translation>
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
        <translation>运行中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Completed</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Disk Wipe</source>
        <translation>磁盘擦除</translation>
    </message>
    <message>
        <source>Partition Wipe</source>
        <translation>分区擦除</translation>
    </message>
    <message>
        <source>Free Space Wipe</source>
        <translation>空闲空间擦除</translation>
    </message>
    <message>
        <source>File Wipe</source>
        <translation>文件擦除</translation>
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
        <translation>找不到文件：%1</translation>
    </message>
    <message>
        <source>Please select a disk to wipe</source>
        <translation>请选择要擦除的磁盘</translation>
    </message>
    <message>
        <source>Cannot wipe system disk. Please boot from external drive.</source>
        <translation>无法擦除系统磁盘，请从外接驱动器启动。</translation>
    </message>
    <message>
        <source>Please select a partition to wipe</source>
        <translation>请选择要擦除的分区</translation>
    </message>
    <message>
        <source>Cannot wipe system partition. Please boot from external drive.</source>
        <translation>无法擦除系统分区，请从外接驱动器启动。</translation>
    </message>
    <message>
        <source>Please select a disk or partition for free space wipe</source>
        <translation>请选择要擦除空闲空间的磁盘或分区</translation>
    </message>
    <message>
        <source>Please add files to wipe</source>
        <translation>请添加要擦除的文件</translation>
    </message>
    <message>
        <source>线程数必须在1-32之间</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>缓冲区大小必须在1-1024 MB之间</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
