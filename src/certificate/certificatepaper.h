#pragma once

#include "certificate/certificatepalette.h"
#include "model/joboutcome.h"

#include <QSize>
#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QPainter)

struct WipeReport;

/// Dots per inch of a certificate on paper. Long values are cut at a number of dots: at any other resolution
/// the same certificate would show less, or more, of them.
inline constexpr int PaperResolution = 300;

/// Paints the certificate so that all of it lies on a page of that many device pixels: what is longer becomes
/// smaller, in the middle. Returns everything that was written.
QString paintOnPaper(QPainter &painter, const CertificatePalette &palette, QSize page, int dpi,
                     const WipeReport &report, const std::optional<OutcomeRecord> &outcome);
