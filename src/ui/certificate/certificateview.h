#pragma once

#include "model/joboutcome.h"

#include <QtGlobal>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QWidget)

struct WipeReport;

/// The white sheet with everything that a certificate says, as it stands at the moment of the call; the
/// outcome may be unknown.
QWidget *makeCertificateView(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                             QWidget *parent);
