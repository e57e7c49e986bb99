#pragma once

#include <QtGlobal>

QT_FORWARD_DECLARE_CLASS(QWidget)

struct WipeReport;

/// The white sheet with everything that a certificate says, as it stands at the moment of the call.
QWidget *makeCertificateView(const WipeReport &report, QWidget *parent);
