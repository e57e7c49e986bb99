#pragma once

#include "model/diskinfo.h"
#include "model/wipereport.h"

#include <QByteArray>

DiskInfo filledDisk();

/// A report with every field set.
WipeReport filledReport();

/// The JSON text of filledReport(). It stands apart from the suites, since moc loses its way in a raw string
/// of many lines.
extern const QByteArray filledText;
