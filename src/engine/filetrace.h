#pragma once

#include "platform/status.h"

#include <QDebug>
#include <QString>

/// Traces a failure at a file; does nothing for a success.
inline void traceFile(const QString &path, const platform::Status &status)
{
    if (!status)
        qDebug().noquote() << "[FileWipe]" << path << status.diagnostic();
}
