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

struct CertificateRow
{
    CertificateItem item;
    QString label;                    ///< without a colon, unless the labels bring one
    QString value;                    ///< safe to show: see displayText()
    std::optional<Verdict> verdict{}; ///< set in a highlighted row
    QString correction{};             ///< stands beside the value, which stays as the report has it
};

struct CertificateSection
{
    CertificateGroup group;
    QString title;
    QList<CertificateRow> rows;
};

/// Everything that a certificate says about a job, in order, in the user's language and in the words of one
/// of its forms. The outcome may be unknown.
QList<CertificateSection> certificatePlan(const WipeReport &report,
                                          const std::optional<OutcomeRecord> &outcome,
                                          const CertificateLabels &labels);
