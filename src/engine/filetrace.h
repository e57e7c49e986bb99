#pragma once

#include "platform/status.h"

#include <QDebug>
#include <QString>

// Diagnostics of a failure at a file; nothing for a success.
inline void traceFile(const QString &path, const platform::Status &status)
{
    if (!status)
        qDebug().noquote() << "[FileWipe]" << path << status.diagnostic();
}
