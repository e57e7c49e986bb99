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

/// One job, filled before the engine starts and not changed while it runs, so that workers read the fields
/// from their own threads without a lock. Only the report and the outcome change meanwhile; their functions
/// may be called from any thread.
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

    /// Whether a disk job is to write every sector of its drive, which is rid of its volumes before, instead
    /// of the volumes alone.
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
    /// What the files and folders were when the user was asked, by path; what is something else when the job
    /// begins is not touched. A path without an identity is taken as it is found.
    QHash<QString, TargetIdentity> targetIdentities() const { return m_targetIdentities; }
    void setTargetIdentities(const QHash<QString, TargetIdentity> &identities)
    {
        m_targetIdentities = identities;
    }
    /// Whether the user has named them one by one; not when a Recycle Bin is emptied. What a link leads to is
    /// missed only where the link was named.
    bool targetsAreNamed() const { return m_targetsAreNamed; }
    void setTargetsAreNamed(bool named) { m_targetsAreNamed = named; }

    /// What is known before the job of what it leaves out; noted whenever it begins.
    QList<Shortfall> omissions() const { return m_omissions; }
    void setOmissions(const QList<Shortfall> &omissions) { m_omissions = omissions; }

    /// Parallelism of a file wipe, valid from 1 to MostThreads.
    qint32 threadCount() const { return m_threadCount; }
    void setThreadCount(qint32 count) { m_threadCount = count; }

    /// Size of the write buffer in MiB, valid from 1 to LargestBufferMB.
    qint32 bufferSizeMB() const { return m_bufferSizeMB; }
    void setBufferSizeMB(qint32 size) { m_bufferSizeMB = size; }

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
    /// Runs `change(WipeReport &)` on the report and returns what it returns, by value. The report is locked
    /// meanwhile: `change` must not call report functions of this task.
    template <typename Change>
    auto updateReport(Change change)
    {
        const QMutexLocker locker(&m_reportMutex);
        return change(m_report);
    }

    /// How the job went, with what it fell short of so far; failed as long as it has not ended.
    OutcomeRecord outcome() const;
    /// To be called where it happens, by workers.
    void noteShortfall(const Shortfall &shortfall);
    /// Bytes that the medium has taken. To be called where they are written, on any thread.
    void noteWritten(qint64 bytes);
    qint64 written() const; ///< 0 before the job
    /// A volume that the job begins to work on.
    void noteVolume(const QString &volume);
    /// The end of the job; complete becomes partial where that was noted.
    void setOutcome(JobOutcome outcome);
    /// Forgets what an earlier run has left, the omissions excepted.
    void clearOutcome();

    /// The volumes that a disk job has left dismounted, by name: whatever became of the job, nothing mounts
    /// them again. Set by its worker at the end.
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
    mutable QMutex m_outcomeMutex; // of its own, so that a change of the report may note something
    OutcomeRecord m_outcome;
    QString m_id;
};
