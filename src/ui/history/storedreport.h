#pragma once

#include "model/wipereport.h"

#include <QString>

#include <optional>

QT_FORWARD_DECLARE_CLASS(QWidget)

/// The report of that id for a certificate. Where it is not stored any more, or damaged, the user is told,
/// and there is none: the database gives a new one for it, whose certificate would be false.
std::optional<WipeReport> storedReport(const QString &certificateId, QWidget *parent);
