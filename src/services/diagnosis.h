#pragma once

#include "platform/status.h"

#include <QList>
#include <QString>

/// Asks the system and its devices everything that a job asks before its first write. The answers help to
/// support a user remotely: they are in English and use the system's own numbers. Nothing is written and
/// nothing is opened for writing.
namespace diagnosis {

/// One question and its answer.
struct Answer
{
    QString question;
    QString text{};             ///< readable text, unchanged from the device; must be cleaned before display
    platform::Status failure{}; ///< success when `text` is the answer
};

/// The questions about one subject, in the order in which they were asked.
struct Section
{
    QString subject;
    QList<Answer> answers{};
};

/// The running system, its user, and the volumes it runs from. Any thread.
Section system();

/// Drives in the numbering of DiskManager, then all volumes by name, including those without a mount point,
/// then mounted volumes in the system's order. Devices that do not exist are left out. A device that does not
/// answer within the limit of limitedquestion is listed as such. Any thread.
QList<Section> devices();

} // namespace diagnosis
