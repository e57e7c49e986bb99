#pragma once

#include "engine/filewipeworker.h"
#include "model/wipetask.h"
#include "platform/forwarding.h"
#include "platform/platform.h"
#include "support/journaledfolders.h"
#include "support/observedfiles.h"
#include "support/workerrecord.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

// A file job in its own folder, on real files, with every call recorded. The folder may also hold files that
// the job must leave alone, because only targets are wiped.
class FileJob
{
public:
    // Other files or folders than those of the platform; they outlive the job.
    explicit FileJob(platform::Files &below = platform::Platform::current().files(),
                     platform::Folders &foldersBelow = platform::Platform::current().folders());

    WipeTask task;
    ObservedFiles files;
    JournaledFolders folders;
    WorkerRecord said;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    // Both create missing parent folders and return the path.
    QString makeFolder(const QString &name);
    QString makeFile(const QString &name, const QByteArray &content);
    QString makeFile(const QString &name, qsizetype size) { return makeFile(name, QByteArray(size, 'M')); }

    void setPasses(const QList<PassPattern> &passes);

    // Created at first use, with the task as it is then.
    FileWipeWorker &worker();
    bool run(const QStringList &targets);
    // Stops the job like the user interface, from another thread than the worker's.
    void stop();

    QStringList lines() const { return said.lines(); }

private:
    QTemporaryDir m_folder;
    platform::ForwardingPlatform m_platform;
    platform::ScopedPlatform m_scope;
    std::unique_ptr<FileWipeWorker> m_worker;
};

// The log lines of the worker, with the level in front as in WorkerRecord.
namespace said {

inline const QString scanning = QStringLiteral("0 正在扫描目标文件...");
inline const QString nothingFound = QStringLiteral("error 没有找到要擦除的文件");
inline const QString allEmpty = QStringLiteral("0 所有文件为空，跳过数据覆写");
inline const QString deleting = QStringLiteral("0 正在执行安全删除及元数据清理...");
inline const QString cancelled = QStringLiteral("1 擦除任务已由用户取消");
inline const QString succeeded = QStringLiteral("finished true");
inline const QString failed = QStringLiteral("finished false");

QString preparing(int files, const QString &size);
QString pass(int pass, int passes);
QString passFailed(int pass, int passes, int failures);
QString allDone(int files);
QString someFailed(int files);
QString cannotOpen(const QString &path);
QString deletionFailed(const QString &path);
QString folderUnreadable(const QString &path, quint32 code);

} // namespace said
