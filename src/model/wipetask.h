#pragma once

#include "model/diskinfo.h"
#include "model/joboutcome.h"
#include "model/operationtype.h"
#include "model/partitioninfo.h"
#include "model/targetidentity.h"
#include "model/wipemethod.h"
#include "model/wipereport.h"

#include <QHash>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>

/// One job. It is filled before the engine starts and does not change while it runs, so that workers read the
/// fields from their own threads without a lock. Only the report and the outcome change meanwhile; their
/// functions may be called from any thread.
class WipeTask : public QObject
{
    Q_OBJECT

public:
    static constexpr qint32 MostThreads = 32;
    static constexpr qint32 LargestBufferMB = 1024;

    explicit WipeTask(QObject *parent = nullptr);

    QString id() const { return m_id; }
    void setId(const QString &id) { m_id = id; }

    OperationType operationType() const { return m_operationType; }
    void setOperationType(OperationType type) { m_operationType = type; }

    WipeMethod method() const { return m_method; }
    void setMethod(const WipeMethod &method) { m_method = method; }

    DiskInfo disk() const { return m_disk; }
    void setDisk(const DiskInfo &disk) { m_disk = disk; }

    PartitionInfo partition() const { return m_partition; }
    void setPartition(const PartitionInfo &partition) { m_partition = partition; }

    /// Whether a disk job writes every sector of its drive instead of its volumes alone. The volumes are
    /// released before.
    bool isWholeDrive() const { return m_isWholeDrive; }
    void setWholeDrive(bool whole) { m_isWholeDrive = whole; }

    /// Absolute paths of files and folders.
    QStringList files() const { return m_files; }
    void setFiles(const QStringList &files)
    {
        m_files = files;
        m_targetIdentities.clear();
    }
    /// Appends the paths that are not yet listed, compared exactly, in the order of their first appearance.
    void addFiles(const QStringList &paths);
    /// The identities of the files and folders at the time of the confirmation, by path. A target that
    /// differs when the job begins is not touched. A path without an identity is accepted as found.
    QHash<QString, TargetIdentity> targetIdentities() const { return m_targetIdentities; }
    void setTargetIdentities(const QHash<QString, TargetIdentity> &identities)
    {
        m_targetIdentities = identities;
    }
    /// Whether the user named the targets one by one; false when a Recycle Bin is emptied. The destination of
    /// a link counts as missed only when the link was named.
    bool targetsAreNamed() const { return m_targetsAreNamed; }
    void setTargetsAreNamed(bool named) { m_targetsAreNamed = named; }

    /// Shortfalls that are known before the job; they are noted at every start.
    QList<Shortfall> omissions() const { return m_omissions; }
    void setOmissions(const QList<Shortfall> &omissions) { m_omissions = omissions; }

    /// Parallelism of a file wipe, valid from 1 to MostThreads.
    qint32 threadCount() const { return m_threadCount; }
    void setThreadCount(qint32 count) { m_threadCount = count; }

    /// Size of the write buffer in MiB, valid from 1 to LargestBufferMB.
    qint32 bufferSizeMB() const { return m_bufferSizeMB; }
    void setBufferSizeMB(qint32 size) { m_bufferSizeMB = size; }

    /// Whether passes that ask for verification are read back.
    bool verifyAfterWipe() const { return m_verifyAfterWipe; }
    void setVerifyAfterWipe(bool verify) { m_verifyAfterWipe = verify; }

    /// Number of samples that a verification reads back.
    qint32 verifySampleSize() const { return m_verifySampleSize; }
    void setVerifySampleSize(qint32 size) { m_verifySampleSize = size; }

    bool generateReport() const { return m_generateReport; }
    void setGenerateReport(bool generate) { m_generateReport = generate; }

    /// A copy of the report as it is now.
    WipeReport report() const;
    void setReport(const WipeReport &report);
    /// Calls `change(WipeReport &)` on the report and returns its result by value. The report is locked
    /// meanwhile, so `change` must not call report functions of this task.
    template <typename Change>
    auto updateReport(Change change)
    {
        const QMutexLocker locker(&m_reportMutex);
        return change(m_report);
    }

    /// The outcome of the job with the shortfalls so far; failed until the job has ended.
    OutcomeRecord outcome() const;
    /// Called by workers as soon as the shortfall is known.
    void noteShortfall(const Shortfall &shortfall);
    /// Adds bytes written to the medium. Called at each write, on any thread.
    void noteWritten(qint64 bytes);
    qint64 written() const; ///< 0 before the job
    /// Records a volume when the job begins to work on it.
    void noteVolume(const QString &volume);
    /// Sets the outcome at the end of the job; complete becomes partial when the shortfalls require it.
    void setOutcome(JobOutcome outcome);
    /// Clears the results of an earlier run, except the omissions.
    void clearOutcome();

    /// The names of the volumes that a disk job has left dismounted; the program never mounts them again. Set
    /// by the worker at its end.
    QStringList dismountedVolumes() const;
    void setDismountedVolumes(const QStringList &volumes);

    /// Whether the job can be started; traces its checks to the debug output.
    bool isValid() const;
    /// The translated message for the first failed check of isValid(), empty when all pass.
    QString validationError() const;

private:
    OperationType m_operationType = FileWipe;
    WipeMethod m_method;
    DiskInfo m_disk;
    PartitionInfo m_partition;
    bool m_isWholeDrive = false;
    QStringList m_files;
    QHash<QString, TargetIdentity> m_targetIdentities;
    bool m_targetsAreNamed = true;
    QList<Shortfall> m_omissions;
    qint32 m_threadCount;
    qint32 m_bufferSizeMB = 64;
    bool m_verifyAfterWipe = true;
    qint32 m_verifySampleSize = 1000;
    bool m_generateReport = true;
    mutable QMutex m_reportMutex;
    WipeReport m_report;
    QStringList m_dismountedVolumes;
    mutable QMutex m_outcomeMutex; ///< separate, so that a change of the report can note a shortfall
    OutcomeRecord m_outcome;
    QString m_id;
};
