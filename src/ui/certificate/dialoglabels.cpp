#include "ui/certificate/dialoglabels.h"

#include <QtGlobal>

namespace {

using enum CertificateGroup;
using enum CertificateItem;

constexpr CertificateLabels labels{
    .context = "CertificateDialog",
    .titles = {{
        {Operation, QT_TRANSLATE_NOOP("CertificateDialog", "Operation Summary")},
        {Device, QT_TRANSLATE_NOOP("CertificateDialog", "Storage Device")},
        {Details, QT_TRANSLATE_NOOP("CertificateDialog", "Erasure Details")},
        {Verification, QT_TRANSLATE_NOOP("CertificateDialog", "Verification")},
        {OperatorInfo, QT_TRANSLATE_NOOP("CertificateDialog", "Operator Info")},
    }},
    .items = {{
        {OperationType, QT_TRANSLATE_NOOP("CertificateDialog", "Operation Type")},
        {EraseStandard, QT_TRANSLATE_NOOP("CertificateDialog", "Erase Standard")},
        {Passes, QT_TRANSLATE_NOOP("CertificateDialog", "Overwrite Passes")},
        {StartTime, QT_TRANSLATE_NOOP("CertificateDialog", "Start Time")},
        {EndTime, QT_TRANSLATE_NOOP("CertificateDialog", "End Time")},
        {Duration, QT_TRANSLATE_NOOP("CertificateDialog", "Duration")},
        {Status, QT_TRANSLATE_NOOP("CertificateDialog", "Status")},
        {Model, QT_TRANSLATE_NOOP("CertificateDialog", "Model")},
        {SerialNumber, QT_TRANSLATE_NOOP("CertificateDialog", "Serial Number")},
        {Capacity, QT_TRANSLATE_NOOP("CertificateDialog", "Capacity")},
        {DriveType, QT_TRANSLATE_NOOP("CertificateDialog", "Type")},
        {Interface, QT_TRANSLATE_NOOP("CertificateDialog", "Interface")},
        {Files, QT_TRANSLATE_NOOP("CertificateDialog", "Files Processed")},
        {TotalSectors, QT_TRANSLATE_NOOP("CertificateDialog", "Total Sectors")},
        {SectorsErased, QT_TRANSLATE_NOOP("CertificateDialog", "Sectors Erased")},
        {DataWritten, QT_TRANSLATE_NOOP("CertificateDialog", "Data Written")},
        {OnTheMedium, QT_TRANSLATE_NOOP("CertificateDialog", "On the Medium")},
        {BadSectors, QT_TRANSLATE_NOOP("CertificateDialog", "Bad Sectors")},
        {Result, QT_TRANSLATE_NOOP("CertificateDialog", "Result")},
        {ReadBack, QT_TRANSLATE_NOOP("CertificateDialog", "Read Back")},
        {Samples, QT_TRANSLATE_NOOP("CertificateDialog", "Samples")},
        {DataHash, QT_TRANSLATE_NOOP("CertificateDialog", "Data Hash")},
        {Operator, QT_TRANSLATE_NOOP("CertificateDialog", "Operator")},
        {Computer, QT_TRANSLATE_NOOP("CertificateDialog", "Computer")},
    }},
    .passes = nullptr,
    .files = nullptr,
    .samples = nullptr,
    .passed = QT_TRANSLATE_NOOP("CertificateDialog", "Passed ✓"),
    .failed = QT_TRANSLATE_NOOP("CertificateDialog", "Failed ✗"),
    .notRead = QT_TRANSLATE_NOOP("CertificateDialog", "Not read back"),
    .notComparable = QT_TRANSLATE_NOOP("CertificateDialog", "Nothing that could be compared"),
    .processed = nullptr,
    .corrections = CertificateLabels::Corrections::InRowsOfTheirOwn,
    .fileCount = CertificateLabels::FileCount::Processed,
};
static_assert(isInOrder(labels));

} // namespace

const CertificateLabels dialogLabels = labels;
