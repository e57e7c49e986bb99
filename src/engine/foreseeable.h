#pragma once

#include "model/joboutcome.h"

#include <QList>
#include <QString>
#include <QStringList>

class WipeTask;

class FileSurvey;

// What a job will fall short of as far as that can be known before it starts, for the question whether to
// start it; notes tell what is worth a word there. Nothing is written, or opened for more than a question.
OutcomeRecord foreseeableShortfalls(const WipeTask &task);
// The same of a file job whose files were looked at.
OutcomeRecord foreseeableShortfalls(const WipeTask &task, const FileSurvey &survey);

// The targets of a file job that are links: they are removed themselves.
QStringList linksAmong(const QStringList &paths);

// What a free-space job does not fill on a volume of which so many bytes are free: a shortfall when it is
// much of it, else a note.
Shortfall keptReserve(const QString &volume, qint64 freeBytes, qint64 reserve);
