#pragma once

#include "model/joboutcome.h"

#include <QList>
#include <QString>

#include <optional>

struct WipeReport;

/// The verdict of a highlighted row, which decides its colour.
enum class Verdict { Good, Bad };

struct CertificateRow
{
    QString label; ///< without a colon, unless the row is highlighted: that label brings its own
    QString value; ///< safe to show: see displayText()
    std::optional<Verdict> verdict{}; ///< set in a highlighted row
    bool strongLabel = false;         ///< a highlighted row whose label is as large and bold as the value
    QString beside{}; ///< what the outcome knows better, behind the value that stays as the report has it
};

struct CertificateSection
{
    QString title;
    QList<CertificateRow> rows;
};

/// What the painted page says about a job, in order, in the user's language; the outcome may be unknown.
QList<CertificateSection> certificateContent(const WipeReport &report,
                                             const std::optional<OutcomeRecord> &outcome);
