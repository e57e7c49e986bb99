#include "engine/filejob.h"

#include "support/testfiles.h"

#include <QDir>

#include <thread>

FileJob::FileJob(platform::Files &below, platform::Folders &foldersBelow)
    : files(below)
    , folders(foldersBelow)
    , m_platform(files, folders, platform::Platform::current().devices(),
                 platform::Platform::current().session())
    , m_scope(m_platform)
{
    if (!m_folder.isValid())
        qFatal("no temporary folder");
    task.setThreadCount(1);
}

QString FileJob::makeFolder(const QString &name)
{
    if (!QDir().mkpath(path(name)))
        qFatal("cannot create %s", qPrintable(name));
    return path(name);
}

QString FileJob::makeFile(const QString &name, const QByteArray &content)
{
    return writeFile(path(name), content);
}

void FileJob::setPasses(const QList<PassPattern> &passes)
{
    WipeMethod method;
    method.passes = passes;
    task.setMethod(method);
}

FileWipeWorker &FileJob::worker()
{
    if (!m_worker) {
        m_worker = std::make_unique<FileWipeWorker>(&task);
        said.attach(*m_worker);
    }
    return *m_worker;
}

bool FileJob::run(const QStringList &targets)
{
    task.setFiles(targets);
    worker().process();
    return said.succeeded();
}

void FileJob::stop()
{
    std::thread([this] { m_worker->stop(); }).join();
}

namespace said {

QString preparing(int files, const QString &size)
{
    return QStringLiteral("0 准备擦除 %1 个文件，单遍总大小 %2").arg(files).arg(size);
}

QString pass(int pass, int passes)
{
    return QStringLiteral("pass %1/%2").arg(pass).arg(passes);
}

QString passFailed(int pass, int passes, int failures)
{
    return QStringLiteral("2 第 %1/%2 遍覆写出现失败文件，失败数: %3").arg(pass).arg(passes).arg(failures);
}

QString allDone(int files)
{
    return QStringLiteral("0 所有文件擦除成功！共处理 %1 个文件").arg(files);
}

QString someFailed(int files)
{
    return QStringLiteral("2 擦除完成，但有 %1 个文件失败。数据可能不安全！").arg(files);
}

QString cannotOpen(const QString &path)
{
    return QStringLiteral("2 无法打开文件(WinAPI): ") + path;
}

QString deletionFailed(const QString &path)
{
    return QStringLiteral("1 删除失败: ") + path;
}

QString folderUnreadable(const QString &path, quint32 code)
{
    return QStringLiteral("2 无法读取文件夹: ") + path + QStringLiteral("，错误码: %1").arg(code);
}

} // namespace said
