#pragma once

#include "certificate/certificatelabels.h"
#include "model/joboutcome.h"

#include <QList>
#include <QString>

#include <optional>

struct WipeReport;

/// The verdict of a highlighted row, which decides its colour.
enum class Verdict {
    Good,
    Bad,
    Open, ///< neither; paper shows it as Bad
};

/// One line of a section, a label with its value.
struct CertificateRow
{
    CertificateItem item;
    QString label;                    ///< without a colon, unless the labels bring one
    QString value;                    ///< safe to show: see displayText()
    std::optional<Verdict> verdict{}; ///< set in a highlighted row
    QString correction{};             ///< shown beside the value, which stays as in the report
};

/// One titled group of rows.
struct CertificateSection
{
    CertificateGroup group;
    QString title;
    QList<CertificateRow> rows;
};

/// All content of a job's certificate in order, in the user's language and in the words of one form. The
/// outcome may be unknown.
QList<CertificateSection> certificatePlan(const WipeReport &report,
                                          const std::optional<OutcomeRecord> &outcome,
                                          const CertificateLabels &labels);
