#pragma once

#include "model/operationtype.h"

class DiskSelectPage;
class FileSelectPage;
class JobController;
class RecycleBinFlow;
struct RecycleBinInfo;

/// Turns the user's choices on the pages into the task of the next job. Interface thread.
class TaskChoice
{
public:
    /// All of them outlive this.
    TaskChoice(JobController &job, DiskSelectPage &disks, FileSelectPage &files, RecycleBinFlow &bin);

    /// Begins a task of that kind, on which the Recycle Bin has no part any more.
    void begin(OperationType type);

    /// Each takes what its page shows. Nothing without a task.
    void takeDisk();
    void takeFiles();

    /// Begins a task of the items that were found, without those that have vanished since, and shows the
    /// items.
    void takeRecycleBin(const RecycleBinInfo &found);

private:
    JobController &m_job;
    DiskSelectPage &m_disks;
    FileSelectPage &m_files;
    RecycleBinFlow &m_bin;
};
