#pragma once

#include "platform/status.h"

#include <QList>
#include <QString>

/// What the machine answers when it is asked all that a job would ask before its first write. For whoever
/// helps a user from afar: questions and answers are in English and in the system's own numbers. Nothing is
/// written and nothing is opened for writing.
namespace diagnosis {

/// One question and what came back.
struct Answer
{
    QString question;
    QString text{};             ///< for people; as the device gave it, to be cleaned for display
    platform::Status failure{}; ///< success when `text` is the answer
};

/// The questions about one subject, in the order in which they were asked.
struct Section
{
    QString subject;
    QList<Answer> answers{};
};

/// The running system, who uses it, and which volumes it stands on. Any thread.
Section system();

/// The drives numbered as DiskManager numbers them, then the volumes by their names, also those that have one
/// for the system alone, then the mounted ones as the system lists them. One that does not exist is left out;
/// one that does not answer within the time of limitedquestion is told as such. Any thread.
QList<Section> devices();

} // namespace diagnosis
