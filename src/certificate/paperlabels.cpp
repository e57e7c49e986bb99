#include "certificate/paperlabels.h"

#include <QtGlobal>

namespace {

using enum CertificateGroup;
using enum CertificateItem;

constexpr CertificateLabels labels{
    .context = "CertificateRenderer",
    .titles = {{
        {Operation, QT_TRANSLATE_NOOP("CertificateRenderer", "操作摘要")},
        {Device, QT_TRANSLATE_NOOP("CertificateRenderer", "存储设备信息")},
        {Details, QT_TRANSLATE_NOOP("CertificateRenderer", "擦除详情")},
        {Verification, QT_TRANSLATE_NOOP("CertificateRenderer", "验证信息")},
        {OperatorInfo, QT_TRANSLATE_NOOP("CertificateRenderer", "操作信息")},
    }},
    .items = {{
        {OperationType, QT_TRANSLATE_NOOP("CertificateRenderer", "操作类型")},
        {EraseStandard, QT_TRANSLATE_NOOP("CertificateRenderer", "擦除标准")},
        {Passes, QT_TRANSLATE_NOOP("CertificateRenderer", "覆写次数")},
        {StartTime, QT_TRANSLATE_NOOP("CertificateRenderer", "开始时间")},
        {EndTime, QT_TRANSLATE_NOOP("CertificateRenderer", "结束时间")},
        {Duration, QT_TRANSLATE_NOOP("CertificateRenderer", "耗时")},
        {Status, QT_TRANSLATE_NOOP("CertificateRenderer", "状态:")},
        {Model, QT_TRANSLATE_NOOP("CertificateRenderer", "型号")},
        {SerialNumber, QT_TRANSLATE_NOOP("CertificateRenderer", "序列号")},
        {Capacity, QT_TRANSLATE_NOOP("CertificateRenderer", "容量")},
        {DriveType, QT_TRANSLATE_NOOP("CertificateRenderer", "类型")},
        {Interface, QT_TRANSLATE_NOOP("CertificateRenderer", "接口")},
        {Files, QT_TRANSLATE_NOOP("CertificateRenderer", "文件数量")},
        {TotalSectors, QT_TRANSLATE_NOOP("CertificateRenderer", "总扇区数")},
        {SectorsErased, QT_TRANSLATE_NOOP("CertificateRenderer", "已擦除扇区")},
        {DataWritten, QT_TRANSLATE_NOOP("CertificateRenderer", "写入数据量")},
        {OnTheMedium, nullptr},
        {BadSectors, QT_TRANSLATE_NOOP("CertificateRenderer", "坏扇区数")},
        {Result, QT_TRANSLATE_NOOP("CertificateRenderer", "验证结果:")},
        {ReadBack, nullptr},
        {Samples, QT_TRANSLATE_NOOP("CertificateRenderer", "采样数量")},
        {DataHash, QT_TRANSLATE_NOOP("CertificateRenderer", "数据哈希")},
        {Operator, QT_TRANSLATE_NOOP("CertificateRenderer", "操作员")},
        {Computer, QT_TRANSLATE_NOOP("CertificateRenderer", "计算机")},
    }},
    .passes = QT_TRANSLATE_NOOP("CertificateRenderer", " 次"),
    .files = QT_TRANSLATE_NOOP("CertificateRenderer", " 个"),
    .samples = QT_TRANSLATE_NOOP("CertificateRenderer", " 个位置"),
    .passed = QT_TRANSLATE_NOOP("CertificateRenderer", "通过"),
    .failed = QT_TRANSLATE_NOOP("CertificateRenderer", "未通过"),
    .notRead = QT_TRANSLATE_NOOP("CertificateRenderer", "未读回"),
    .notComparable = QT_TRANSLATE_NOOP("CertificateRenderer", "读回的内容无法比对"),
    .processed = QT_TRANSLATE_NOOP("CertificateRenderer", "实际处理: %1"),
    .corrections = CertificateLabels::Corrections::BesideTheValue,
    .fileCount = CertificateLabels::FileCount::Listed,
};
static_assert(isInOrder(labels));

} // namespace

const CertificateLabels paperLabels = labels;
