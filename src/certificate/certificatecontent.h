#pragma once

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
};

struct CertificateSection
{
    QString title;
    QList<CertificateRow> rows;
};

/// What the painted page says about a job, in order, in the user's language.
QList<CertificateSection> certificateContent(const WipeReport &report);
