#pragma once

#include "engine/realjob.h"
#include "model/units.h"
#include "model/wipemethod.h"
#include "model/wipetask.h"
#include "support/faultydrive.h"

#include <QByteArray>
#include <QString>

// The jobs of these suites: chunks of 1 MiB, so that positions tell something.
namespace faultjob {

inline constexpr char Old = 'o'; // what the drives hold before

void setUpDisk(WipeTask &task, const FaultyDrive &drive, WipeMethod::Type method);

QString writeErrorAt(qint64 position, int error);

QByteArray stretchOf(char character, qint64 size);

} // namespace faultjob
