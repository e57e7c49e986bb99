#pragma once

#include "engine/filewipeworker.h"
#include "model/wipetask.h"
#include "platform/platform.h"
#include "support/observedfiles.h"
#include "support/workerrecord.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <thread>

// A file job in a folder of its own, on the machine's own files, every call of which is observed. Everything
// that the job is to leave alone may stand in the same folder: only targets are wiped.
class FileJob
{
public:
    // Other files or folders than the machine's own; they outlive the job.
    explicit FileJob(platform::Files &below = platform::Platform::current().files(),
                     platform::Folders &folders = platform::Platform::current().folders())
        : files(below)
        , m_platform(files, folders, platform::Platform::current().devices(),
                     platform::Platform::current().session())
        , m_scope(m_platform)
    {
        if (!m_folder.isValid())
            qFatal("no temporary folder");
        task.setThreadCount(1);
    }

    WipeTask task;
    ObservedFiles files;
    WorkerRecord said;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    // Both make what is missing above, and answer the path.
    QString makeFolder(const QString &name)
    {
        if (!QDir().mkpath(path(name)))
            qFatal("cannot create %s", qPrintable(name));
        return path(name);
    }
    QString makeFile(const QString &name, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(name));
        return file.fileName();
    }
    QString makeFile(const QString &name, qsizetype size) { return makeFile(name, QByteArray(size, 'M')); }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    void setPasses(const QList<PassPattern> &passes)
    {
        WipeMethod method;
        method.passes = passes;
        task.setMethod(method);
    }

    // The worker is made at first use, with the task as it is then.
    FileWipeWorker &worker()
    {
        if (!m_worker) {
            m_worker = std::make_unique<FileWipeWorker>(&task);
            said.attach(*m_worker);
        }
        return *m_worker;
    }
    bool run(const QStringList &targets)
    {
        task.setFiles(targets);
        worker().process();
        return said.succeeded();
    }
    // As the interface stops a job: from a thread that is not the worker's.
    void stop()
    {
        std::thread([this] { m_worker->stop(); }).join();
    }

    QStringList lines() const { return said.lines(); }

private:
    QTemporaryDir m_folder;
    platform::ForwardingPlatform m_platform;
    platform::ScopedPlatform m_scope;
    std::unique_ptr<FileWipeWorker> m_worker;
};

// What the worker says, with its level as WorkerRecord puts it.
namespace said {

inline const QString scanning = QStringLiteral("0 正在扫描目标文件...");
inline const QString nothingFound = QStringLiteral("error 没有找到要擦除的文件");
inline const QString allEmpty = QStringLiteral("0 所有文件为空，跳过数据覆写");
inline const QString deleting = QStringLiteral("0 正在执行安全删除及元数据清理...");
inline const QString cancelled = QStringLiteral("1 擦除任务已由用户取消");
inline const QString succeeded = QStringLiteral("finished true");
inline const QString failed = QStringLiteral("finished false");

inline QString preparing(int files, const QString &size)
{
    return QStringLiteral("0 准备擦除 %1 个文件，单遍总大小 %2").arg(files).arg(size);
}
inline QString pass(int pass, int passes)
{
    return QStringLiteral("pass %1/%2").arg(pass).arg(passes);
}
inline QString passFailed(int pass, int passes, int failures)
{
    return QStringLiteral("2 第 %1/%2 遍覆写出现失败文件，失败数: %3").arg(pass).arg(passes).arg(failures);
}
inline QString allDone(int files)
{
    return QStringLiteral("0 所有文件擦除成功！共处理 %1 个文件").arg(files);
}
inline QString someFailed(int files)
{
    return QStringLiteral("2 擦除完成，但有 %1 个文件失败。数据可能不安全！").arg(files);
}
inline QString cannotOpen(const QString &path)
{
    return QStringLiteral("2 无法打开文件(WinAPI): ") + path;
}
inline QString deletionFailed(const QString &path)
{
    return QStringLiteral("1 删除失败: ") + path;
}
inline QString folderUnreadable(const QString &path, quint32 code)
{
    return QStringLiteral("2 无法读取文件夹: ") + path + QStringLiteral("，错误码: %1").arg(code);
}

} // namespace said
