#include "ui/mainwindow/taskchoice.h"

#include "jobs/jobcontroller.h"
#include "model/wipetask.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "services/trash/recyclebininfo.h"
#include "ui/disks/diskselectpage.h"
#include "ui/files/fileselectpage.h"
#include "ui/mainwindow/recyclebinflow.h"

#include <QStringList>

#include <utility>

namespace {

// Drops the paths that have vanished. A path that cannot be examined stays: the job then fails on it, instead
// of telling that everything was erased.
QStringList existing(QStringList paths)
{
    platform::Files &files = platform::Platform::current().files();
    paths.removeIf([&files](const QString &path) { return files.info(path).status().isAbsent(); });
    return paths;
}

} // namespace

TaskChoice::TaskChoice(JobController &job, DiskSelectPage &disks, FileSelectPage &files, RecycleBinFlow &bin)
    : m_job(job)
    , m_disks(disks)
    , m_files(files)
    , m_bin(bin)
{}

void TaskChoice::begin(OperationType type)
{
    // The menu leads to the home page past the Back button, which leaves the bin otherwise.
    m_bin.leave();
    m_job.newTask(type);
}

void TaskChoice::takeDisk()
{
    if (!m_job.task())
        return;
    const bool isWholeDisk = m_disks.selectionType() == DiskSelectPage::DiskSelected;
    m_job.task()->setDisk(m_disks.selectedDisk());
    // A partition of an earlier choice must not stay.
    m_job.task()->setPartition(isWholeDisk ? PartitionInfo() : m_disks.selectedPartition());
    // Free space was chosen on the home page, and no choice on this page changes that.
    if (m_job.task()->operationType() != FreeSpaceWipe)
        m_job.task()->setOperationType(isWholeDisk ? DiskWipe : PartitionWipe);
}

void TaskChoice::takeFiles()
{
    // The content of the bin was handed over when the scan ended.
    if (!m_job.task() || m_bin.isActive())
        return;
    m_job.task()->setFiles(m_files.files());
    m_job.task()->setOperationType(FileWipe);
}

void TaskChoice::takeRecycleBin(const RecycleBinInfo &found)
{
    WipeTask &task = m_job.newTask(FileWipe);
    task.setFiles(existing(found.doomedPaths()));
    task.setTargetsAreNamed(false);
    task.setOmissions(found.omissions());
    m_bin.show(found);
}
