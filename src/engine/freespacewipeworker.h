#pragma once

#include "engine/basewipeworker.h"
#include "engine/fillfolder.h"
#include "engine/freespacefill.h"
#include "engine/volumespace.h"
#include "model/refusal.h"
#include "platform/anchoredfolder.h"
#include "platform/status.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>

struct DiskInfo;
struct PartitionInfo;

/// Overwrites the unused space of one or more volumes and leaves their files alone. Each pass fills the
/// volume with temporary files until only a reserve is free. At the end many small files and folders are
/// created and deleted, so that the file system reuses its records of deleted files.
///
/// The task names a volume, or a disk; of a disk all mounted volumes are wiped one after the other. The first
/// volume that fails ends the job. Fill files are removed whichever way the job ends.
class FreeSpaceWipeWorker : public BaseWipeWorker
{
    Q_OBJECT

public:
    explicit FreeSpaceWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~FreeSpaceWipeWorker() override;

    /// The first volume whose first extent lies on the drive, as Devices names it; empty without one.
    static QString findDriveForDisk(int diskNumber);

    /// Why a free-space job must not start, in words for the user: one of its volumes is no longer the chosen
    /// one, or another job works there. Empty when the job may start. A volume that cannot be queried is no
    /// obstacle here; the job reports it.
    static std::optional<Refusal> obstacleOf(const WipeTask &task);

    /// The root folder of a volume by the volume's name.
    static QString rootPathOf(const QString &volume);

public slots:
    void process() override;

protected:
    /// How long to wait for the space of deleted files while none of it comes back, and how often to look.
    std::chrono::milliseconds m_releasePatience{60'000};
    std::chrono::milliseconds m_releasePoll{100};

private:
    bool run() override;
    void complete() override;
    QStringList volumesOf(const PartitionInfo &partition);
    QStringList volumesOf(const DiskInfo &disk);
    bool wipeVolumes(const QStringList &volumes);

    bool wipeVolume(const QString &root);
    platform::Status openVolume(const QString &root);
    static PartitionInfo chosenRecord(const WipeTask &task, const QString &volume);
    static platform::Status checkMounted(const QString &root);
    static bool isChosen(platform::AnchoredFolder &volume, const PartitionInfo &chosen);
    static QString changeText(const QString &volume);
    static QString useText(const QString &folder);
    bool cleanUpAfterCrash();
    bool createTemporaryFolder();
    bool runPasses();
    static QString patternLabel(const PassPattern &pattern);
    bool fillFreeSpace(const PassPattern &pattern);
    void removeFillFiles();
    platform::Status removeTemporaries();
    bool failVolumeGone(const platform::Status &status);

    void cleanResidue();
    platform::Status cleanFileRecords();
    platform::Status cleanDirectoryEntries();

    void diagnose(const platform::Status &failure) override;

    /// Root of the current volume, open while it is wiped.
    std::unique_ptr<platform::AnchoredFolder> m_anchor;
    QString m_root;           ///< of the current volume, ends in "/" or "\"
    qint64 m_freeAtStart = 0; ///< bytes
    std::optional<VolumeSpace> m_space;
    FillFolder m_folder{*this};
    std::optional<FreeSpaceFill> m_fill; ///< during the passes
    quint64 m_wipedSectors = 0;          ///< 512-byte units, over all volumes
};
