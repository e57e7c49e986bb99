#include "certificate/certificatecontent.h"

#include "certificate/certificaterenderer.h"
#include "certificate/readback.h"
#include "model/displaytext.h"
#include "model/displaytime.h"
#include "model/formatsize.h"
#include "model/wipereport.h"

using namespace Qt::StringLiterals;

namespace {

Verdict verdictFor(bool good)
{
    return good ? Verdict::Good : Verdict::Bad;
}

CertificateSection operationSummary(const WipeReport &report)
{
    return {CertificateRenderer::tr("操作摘要"),
            {
                {CertificateRenderer::tr("操作类型"), report.operationTypeName()},
                {CertificateRenderer::tr("擦除标准"), report.method.name},
                {CertificateRenderer::tr("覆写次数"),
                 QString::number(report.method.passCount()) + CertificateRenderer::tr(" 次")},
                {CertificateRenderer::tr("开始时间"), displayTime(report.startTime)},
                {CertificateRenderer::tr("结束时间"), displayTime(report.endTime)},
                {CertificateRenderer::tr("耗时"), report.duration()},
                {CertificateRenderer::tr("状态:"), report.statusName(),
                 verdictFor(report.status == WipeStatus::Completed), true},
            }};
}

CertificateSection storageDevice(const DiskInfo &disk)
{
    return {CertificateRenderer::tr("存储设备信息"),
            {
                {CertificateRenderer::tr("型号"), displayText(disk.model)},
                {CertificateRenderer::tr("序列号"), displayText(disk.serialNumber)},
                {CertificateRenderer::tr("容量"), disk.formattedSize()},
                {CertificateRenderer::tr("类型"), disk.diskTypeName()},
                {CertificateRenderer::tr("接口"), disk.busTypeName()},
            }};
}

// The list of a report's items is mostly empty, also after a job on files.
QString filesBeside(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    if (!outcome || report.wipeItems.size() == report.fileCount)
        return {};
    return CertificateRenderer::tr("实际处理: %1").arg(report.fileCount);
}

QString verificationBeside(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    switch (readBackOf(report, outcome)) {
    case ReadBack::AsReported:
        break;
    case ReadBack::NotRead:
        return CertificateRenderer::tr("未读回");
    case ReadBack::NotComparable:
        return CertificateRenderer::tr("读回的内容无法比对");
    }
    return {};
}

CertificateSection wipeDetails(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    CertificateSection section{CertificateRenderer::tr("擦除详情"), {}};
    if (report.operationType == FileWipe) {
        CertificateRow files{CertificateRenderer::tr("文件数量"),
                             QString::number(report.wipeItems.size()) + CertificateRenderer::tr(" 个")};
        files.beside = filesBeside(report, outcome);
        section.rows.append(files);
    } else {
        section.rows = {{CertificateRenderer::tr("总扇区数"), QString::number(report.totalSectors)},
                        {CertificateRenderer::tr("已擦除扇区"), QString::number(report.wipedSectors)}};
    }
    CertificateRow written{CertificateRenderer::tr("写入数据量"),
                           formatSize(static_cast<qint64>(report.bytesWritten))};
    if (outcome)
        written.beside = outcome->writtenText(report.bytesWritten);
    section.rows.append(written);
    section.rows.append({CertificateRenderer::tr("坏扇区数"), QString::number(report.badSectors)});
    return section;
}

CertificateSection verification(const WipeReport &report, const std::optional<OutcomeRecord> &outcome)
{
    CertificateSection section{
        CertificateRenderer::tr("验证信息"),
        {
            {CertificateRenderer::tr("验证结果:"),
             report.verificationPassed ? CertificateRenderer::tr("通过") : CertificateRenderer::tr("未通过"),
             verdictFor(report.verificationPassed), false, verificationBeside(report, outcome)},
            {CertificateRenderer::tr("采样数量"),
             QString::number(report.verificationSampleSize) + CertificateRenderer::tr(" 个位置")},
        }};
    if (!report.dataHash.isEmpty())
        section.rows.append({CertificateRenderer::tr("数据哈希"), displayText(report.dataHash)});
    return section;
}

CertificateSection operatorInformation(const WipeReport &report)
{
    return {CertificateRenderer::tr("操作信息"),
            {
                {CertificateRenderer::tr("操作员"), displayText(report.operatorName)},
                {CertificateRenderer::tr("计算机"), displayText(report.computerName)},
            }};
}

} // namespace

QList<CertificateSection> certificateContent(const WipeReport &report,
                                             const std::optional<OutcomeRecord> &outcome)
{
    QList<CertificateSection> sections{operationSummary(report)};
    if (report.operationType != FileWipe)
        sections.append(storageDevice(report.disk));
    sections.append(wipeDetails(report, outcome));
    sections.append(verification(report, outcome));
    sections.append(operatorInformation(report));
    return sections;
}
