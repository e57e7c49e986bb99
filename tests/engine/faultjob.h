#pragma once

#include "engine/realjob.h"
#include "model/units.h"
#include "model/wipemethod.h"
#include "model/wipetask.h"
#include "support/faultydrive.h"

#include <QByteArray>
#include <QString>

// Jobs of the fault suites. Chunks of 1 MiB make the logged positions exact.
namespace faultjob {

inline constexpr char Old = 'o'; // content of the drives before the job

void setUpDisk(WipeTask &task, const FaultyDrive &drive, WipeMethod::Type method);

QString writeErrorAt(qint64 position, int error);

QByteArray stretchOf(char character, qint64 size);

} // namespace faultjob
