#pragma once

#include <QString>

#include <array>
#include <cstddef>

/// The groups of rows on a certificate, in their order.
enum class CertificateGroup : std::size_t {
    Operation,
    Device,
    Details,
    Verification,
    OperatorInfo,
};

/// The subjects of the rows on a certificate, in their order.
enum class CertificateItem : std::size_t {
    OperationType,
    EraseStandard,
    Passes,
    StartTime,
    EndTime,
    Duration,
    Status,
    Model,
    SerialNumber,
    Capacity,
    DriveType,
    Interface,
    Files,
    TotalSectors,
    SectorsErased,
    DataWritten,
    OnTheMedium, ///< only where labels give corrections a row of their own
    BadSectors,
    Result,
    ReadBack, ///< only where labels give corrections a row of their own
    Samples,
    DataHash,
    Operator,
    Computer,
};

/// The words of one form of the certificate: the paper or the dialog. The texts are sources for translation;
/// they are static.
struct CertificateLabels
{
    static constexpr std::size_t GroupCount = 5;
    static constexpr std::size_t ItemCount = 24;

    /// Where a correction stands: a figure or a finding of the job's outcome that the report states
    /// otherwise.
    enum class Corrections {
        BesideTheValue,
        InRowsOfTheirOwn,
    };

    /// Which files a certificate of shredded files counts.
    enum class FileCount {
        Listed,    ///< those in the report's list, which is mostly empty; the number follows as a correction
        Processed, ///< those that the job worked on
    };

    struct Title
    {
        CertificateGroup group;
        const char *text;
    };
    struct Label
    {
        CertificateItem item;
        const char *text; ///< null for an item that this form does not have
    };

    const char *context; ///< of the texts, for translation
    std::array<Title, GroupCount> titles;
    std::array<Label, ItemCount> items;
    const char *passes;  ///< behind the number of passes; null for nothing
    const char *files;   ///< behind the number of files; null for nothing
    const char *samples; ///< behind the number of samples; null for nothing
    const char *passed;
    const char *failed;
    const char *notRead;
    const char *notComparable;
    const char *processed; ///< the correction of the listed files, with %1; null where FileCount is Processed
    Corrections corrections;
    FileCount fileCount;

    QString title(CertificateGroup group) const;
    QString label(CertificateItem item) const;
    /// The translation of one of the texts above; empty for a null pointer.
    QString translated(const char *text) const;
};

/// Whether every title and every label stands at its own place. For a static_assert behind each set.
constexpr bool isInOrder(const CertificateLabels &labels)
{
    for (std::size_t i = 0; i < labels.titles.size(); ++i) {
        if (static_cast<std::size_t>(labels.titles[i].group) != i)
            return false;
    }
    for (std::size_t i = 0; i < labels.items.size(); ++i) {
        if (static_cast<std::size_t>(labels.items[i].item) != i)
            return false;
    }
    return true;
}
