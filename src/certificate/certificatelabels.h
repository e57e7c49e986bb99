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
    OnTheMedium, ///< only where labels give corrections separate rows
    BadSectors,
    Result,
    ReadBack, ///< only where labels give corrections separate rows
    Samples,
    DataHash,
    Operator,
    Computer,
};

/// The words of one form of the certificate, paper or dialog. The texts are static sources for translation.
struct CertificateLabels
{
    static constexpr std::size_t GroupCount = 5;
    static constexpr std::size_t ItemCount = 24;

    /// The place of a correction, which is a figure or a finding of the job's outcome that differs from the
    /// report.
    enum class Corrections {
        BesideTheValue,
        InRowsOfTheirOwn,
    };

    /// The files that a certificate of shredded files counts.
    enum class FileCount {
        Listed,    ///< files in the report's (mostly empty) list; the processed number is the correction
        Processed, ///< files that the job worked on
    };

    struct Title
    {
        CertificateGroup group;
        const char *text;
    };
    struct Label
    {
        CertificateItem item;
        const char *text; ///< null for an item that this form lacks
    };

    const char *context; ///< translation context of the texts
    std::array<Title, GroupCount> titles;
    std::array<Label, ItemCount> items;
    const char *passes;  ///< follows the number of passes; null for none
    const char *files;   ///< follows the number of files; null for none
    const char *samples; ///< follows the number of samples; null for none
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

/// Whether all titles and labels are in the order of their enumerations. For a static_assert behind each set.
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
