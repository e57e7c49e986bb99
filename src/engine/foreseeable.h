#pragma once

#include "model/joboutcome.h"

#include <QList>
#include <QString>
#include <QStringList>

class WipeTask;

class FileSurvey;

/// The shortfalls of a job that can be known before it starts, for the confirmation; notes carry further
/// remarks for it. Nothing is written; files and devices are opened for queries only.
OutcomeRecord foreseeableShortfalls(const WipeTask &task);
/// The shortfalls of a file job whose files have been surveyed.
OutcomeRecord foreseeableShortfalls(const WipeTask &task, const FileSurvey &survey);

/// The targets of a file job that are links; the job removes the links themselves.
QStringList linksAmong(const QStringList &paths);

/// The reserve that a free-space job leaves on a volume with that many free bytes: a shortfall when it is a
/// large part of them, else a note.
Shortfall keptReserve(const QString &volume, qint64 freeBytes, qint64 reserve);
