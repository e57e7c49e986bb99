#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QDateTime)

/// The format of dates in certificates and lists, "2026-03-05 14:07:09"; empty for an invalid date.
QString displayTime(const QDateTime &moment);
