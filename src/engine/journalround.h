#pragma once

#include "engine/fillfolder.h"
#include "engine/runningjob.h"
#include "platform/anchoredfolder.h"
#include "platform/status.h"
#include "platform/volumejournal.h"

#include <QList>
#include <QString>
#include <QtGlobal>

/// Makes the journal of a file system come round once, so that nothing is left in it of what was logged
/// before. The file system logs nothing but its own blocks, so files without content are created in a hidden
/// folder and a block of each is changed again and again. Worker's thread.
class JournalRound
{
public:
    /// The job outlives the object.
    explicit JournalRound(RunningJob &job)
        : m_job(job)
        , m_folder(job)
    {}

    /// Works in a new folder inside the given one, which outlives the round, and removes it. Removes what an
    /// interrupted round left there too. RequestAborted after a stop; DiskFull or DiskQuotaExceeded without
    /// room for enough files.
    platform::Status run(platform::AnchoredFolder &beside);
    /// Removes the folder after an exception.
    void clean();

private:
    platform::Status writeRound();
    platform::Status createFiles(qint64 wanted);
    platform::Status changeBlocks(platform::VolumeJournal &journal);

    RunningJob &m_job;
    FillFolder m_folder;
    QList<QString> m_names;
    quint64 m_mark = 0;
};
