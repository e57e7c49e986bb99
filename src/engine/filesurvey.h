#pragma once

#include "model/refusal.h"
#include "model/shortfall.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <functional>
#include <optional>

class WipeTask;

/// A survey of the files that a job will find under its targets.
class FileSurvey
{
    Q_DECLARE_TR_FUNCTIONS(FileSurvey)

public:
    /// The room that overwriting needs on one file system.
    struct Room
    {
        QString place; ///< path of one of the files
        qint64 holeBytes = 0;
    };

    quint64 files = 0; ///< everything but folders
    quint64 bytes = 0;
    quint64 filesWithOtherNames = 0;
    qint64 filesInCloud = 0;    ///< files with copies in a cloud service
    bool isComplete = true;     ///< false when something could not be read, or the survey was ended early
    QStringList keptElsewhere;  ///< targets whose content may survive an overwrite
    QList<Shortfall> snapshots; ///< notes on the volumes of the files
    QStringList mounted;        ///< mount points of other file systems, which the job does not enter
    QHash<quint64, Room> rooms; ///< by device

    /// "2 files have further names ..."; empty without such files.
    QString otherNamesText() const;
    /// Overwriting a sparse file takes room for its holes. Nothing is refused when the room is unknown.
    std::optional<Refusal> roomProblem() const;
};

/// The number of files, over all targets, that are asked whether their content is kept elsewhere. The
/// question makes the system write out its cached data of a file. When the number is used up, the folder is
/// asked instead of its remaining files.
inline constexpr int MostContentQuestions = 1000;

/// Walks the targets as the job does: in held folders, without following links or entering mounts, each file
/// once. Opens no file for writing. shallStop ends the walk.
FileSurvey surveyFiles(
    const WipeTask &task, const std::function<bool()> &shallStop = [] { return false; },
    int mostContentQuestions = MostContentQuestions);
