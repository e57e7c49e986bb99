#pragma once

#include "engine/basewipeworker.h"
#include "engine/filecollector.h"
#include "engine/filepool.h"
#include "engine/fileprogress.h"
#include "engine/filesampling.h"
#include "engine/watchedfile.h"

#include <QSet>

#include <atomic>
#include <vector>

namespace platform {
class AlignedBuffer;
class FileHandle;
} // namespace platform

// Shreds the files and folders of a task: every pass overwrites all files in place on a pool of threads, then
// each file is cut, renamed and deleted, then the folders are removed. A pass in which one file failed is the
// last thing that happens: nothing is deleted then, so that the user still has what could not be erased.
class FileWipeWorker : public BaseWipeWorker
{
    Q_OBJECT

public:
    explicit FileWipeWorker(WipeTask *task, QObject *parent = nullptr);
    ~FileWipeWorker() override;

public slots:
    void process() override;

private:
    bool run() override;
    void complete() override;
    bool shred();
    bool concludeJob(bool success);

    WatchedFile &watched(qsizetype index) { return m_watched[static_cast<std::size_t>(index)]; }

    FileList collectFiles(const QStringList &targets);
    void measureFiles();
    void measureFile(const QString &path, const platform::FileInfo &info);
    void announceFiles();

    // False when the job is not to delete anything.
    bool overwriteAll();
    bool overwritePass(const PassPattern &pattern);
    // The number of files that failed.
    int overwriteBatch(qsizetype first, qsizetype count, const PassPattern &pattern);

    // On pool threads, from here ...
    bool overwriteJob(qsizetype index, const PassPattern &pattern, quint32 seed) noexcept;
    bool overwriteExisting(qsizetype index, const PassPattern &pattern, quint32 seed);
    bool overwriteFile(qsizetype index, qint64 size, const PassPattern &pattern, quint32 seed);
    bool writeChunks(platform::FileHandle &file, const QString &path, qint64 size, const PassPattern &pattern,
                     quint32 seed, platform::AlignedBuffer &buffer);
    bool verifyFile(const QString &path, qint64 size, const PassPattern &pattern);
    void noteReplaced(const QString &path);
    void notePlace(const QString &path, const platform::Result<platform::ContentPlace> &place);
    // ... to here.
    void logContentElsewhere();

    bool deleteAll();
    bool isToBeDeleted(qsizetype index);
    void removeFolders();

    void logOutOfMemory() noexcept;
    bool failFile(const QString &message, const QString &path, const platform::Status &status);

    FileList m_list;
    std::vector<WatchedFile> m_watched;   // the files of the list; each used by the one job that has its file
    QSet<platform::FileId> m_removed;     // where a file may be in the list under two spellings of its path
    std::atomic<int> m_elsewhereCount{0}; // files whose content may lie elsewhere too
    qint64 m_singlePassTotal = 0;         // bytes
    bool m_isTotalCertain = true;         // the size of every file that stands was told
    int m_processedCount = 0;
    int m_failedCount = 0;

    FileProgress m_progress;
    FileSampling m_sampling;
    FilePool m_pool; // destroyed first
};
