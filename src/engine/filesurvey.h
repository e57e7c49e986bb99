#pragma once

#include "model/shortfall.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>

class WipeTask;

// What a file job is going to find under its targets.
class FileSurvey
{
    Q_DECLARE_TR_FUNCTIONS(FileSurvey)

public:
    // What overwriting takes of the free space of one file system.
    struct Room
    {
        QString place; // one of the files
        qint64 holeBytes = 0;
    };

    quint64 files = 0; // everything that is no folder
    quint64 bytes = 0;
    quint64 filesWithOtherNames = 0;
    qint64 filesInCloud = 0;    // of which a cloud service keeps copies
    bool isComplete = true;     // false when something could not be looked at, or the look was ended
    QStringList keptElsewhere;  // targets whose content may outlast being overwritten
    QList<Shortfall> snapshots; // notes on the volumes of the files
    QStringList mounted;        // what other file systems are mounted on; the job does not enter it
    QHash<quint64, Room> rooms; // by device

    // "2 files have further names ..."; empty when none has.
    QString otherNamesText() const;
    // Why the job is not to begin: to overwrite a sparse file takes room for its holes. Empty when there is
    // enough of it, or when nobody can tell.
    QString roomProblem() const;
};

// How far the question goes whether content may be kept elsewhere, which has the system write out what it
// holds back of a file: so many files over all targets; of a folder with more of them it is asked itself.
inline constexpr int MostContentQuestions = 1000;

// Walks as the job itself does: in folders that are held, past links and mounts, each file once. Opens
// nothing to be written. shallStop ends the walk.
FileSurvey surveyFiles(
    const WipeTask &task, const std::function<bool()> &shallStop = [] { return false; },
    int mostContentQuestions = MostContentQuestions);
