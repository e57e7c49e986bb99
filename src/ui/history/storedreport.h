#pragma once

#include "model/wipereport.h"

#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QWidget)

/// Returns the stored report with that id for a certificate. Empty, after a message to the user, when the
/// report is missing or damaged: the database returns a new report then, whose certificate would be false.
std::optional<WipeReport> storedReport(const QString &certificateId, QWidget *parent);
