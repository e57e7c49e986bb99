#pragma once

#include "model/joboutcome.h"

#include <QtGlobal>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QWidget)

struct WipeReport;

/// The white sheet with the whole certificate, built at the moment of the call. The outcome may be unknown.
QWidget *makeCertificateView(const WipeReport &report, const std::optional<OutcomeRecord> &outcome,
                             QWidget *parent);
