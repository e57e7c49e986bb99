#pragma once

#include "model/diskinfo.h"
#include "model/wipereport.h"

#include <QByteArray>

DiskInfo filledDisk();

/// A report with every field set.
WipeReport filledReport();

/// The JSON text of filledReport(). It has a source of its own, because moc cannot parse a raw string of
/// many lines.
extern const QByteArray filledText;
