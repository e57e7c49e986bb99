#pragma once

#include "certificate/certificatepalette.h"
#include "model/joboutcome.h"

#include <QSize>
#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)

struct WipeReport;

/// Dots per inch of a certificate on paper. Long values are cut at a fixed number of dots, so that another
/// resolution would show a different part of them.
inline constexpr int PaperResolution = 300;

/// Paints the certificate onto one page of the given size in device pixels. Content that is too long is
/// scaled down and centred. Returns all text written.
QString paintOnPaper(QPainter &painter, const CertificatePalette &palette, QSize page, int dpi,
                     const WipeReport &report, const std::optional<OutcomeRecord> &outcome);
