#pragma once

#include <QString>

QT_FORWARD_DECLARE_CLASS(QDateTime)

/// "2026-03-05 14:07:09", as certificates and lists show a moment; empty for an invalid one.
QString displayTime(const QDateTime &moment);
