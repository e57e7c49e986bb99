#include "support/loopmount.h"
#include "model/units.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>

QString LoopMount::unavailableReason(FileSystem fileSystem)
{
    if (::geteuid() != 0)
        return QStringLiteral("SKIPPED: loop devices and mounts need root");
    if (!QFileInfo::exists(QStringLiteral("/dev/loop-control")))
        return QStringLiteral(
            "SKIPPED: there is no /dev/loop-control, this kernel or container has no loop devices");
    QStringList programs{QStringLiteral("losetup"), QStringLiteral("mount"), QStringLiteral("umount")};
    if (fileSystem != NoFileSystem)
        programs.append(makeProgram(fileSystem));
    for (const QString &program : std::as_const(programs)) {
        if (executable(program).isEmpty())
            return QStringLiteral("SKIPPED: %1 is not installed").arg(program);
    }
    return {};
}

LoopMount::LoopMount(const QString &folder, Options options, const QString &name)
    : m_options(std::move(options))
    , m_image(folder + QLatin1Char('/') + name + QStringLiteral(".img"))
    , m_mountPoint(folder + QLatin1Char('/') + name)
{
    if (m_options.sizeBytes <= 0)
        m_options.sizeBytes = defaultSize(m_options.fileSystem);
    m_ready = createImage() && attach() && makeFileSystem() &&
              (m_options.fileSystem == NoFileSystem || !m_options.mounted || mount());
}

LoopMount::~LoopMount()
{
    if (!close())
        QTest::qFail(qPrintable(QStringLiteral("left behind: ") + m_error), __FILE__, __LINE__);
}

bool LoopMount::isMounted() const
{
    struct stat above = {};
    struct stat inside = {};
    return ::stat(QFile::encodeName(QFileInfo(m_mountPoint).path()).constData(), &above) == 0 &&
           ::stat(QFile::encodeName(m_mountPoint).constData(), &inside) == 0 && above.st_dev != inside.st_dev;
}

bool LoopMount::mount(const QString &mountOptions)
{
    if (!QDir().mkpath(m_mountPoint))
        return failed(QStringLiteral("cannot create ") + m_mountPoint);
    QStringList arguments;
    if (!mountOptions.isEmpty())
        arguments << QStringLiteral("-o") << mountOptions;
    return run(QStringLiteral("mount"), arguments << m_device << m_mountPoint);
}

bool LoopMount::unmount()
{
    // A program that lists the volumes of the machine briefly opens each of them; the program under test may
    // do so in another process.
    QString busy;
    for (int attempt = 0; attempt < 60; ++attempt) {
        if (!isMounted() || execute(QStringLiteral("umount"), {m_mountPoint}, nullptr, &busy))
            return true;
        QTest::qSleep(20 + attempt);
    }
    return failed(busy);
}

bool LoopMount::remount(const QString &mountOptions)
{
    return run(QStringLiteral("mount"),
               {QStringLiteral("-o"), QStringLiteral("remount,") + mountOptions, m_mountPoint});
}

bool LoopMount::close()
{
    if (!unmount()) {
        // A failed test left a file open. Detaching the mount at least frees the folder; the device follows
        // when the file is closed.
        const QString busy = m_error;
        run(QStringLiteral("umount"), {QStringLiteral("--lazy"), m_mountPoint});
        detach();
        m_error = busy;
        return false;
    }
    return detach();
}

qint64 LoopMount::countInImage(const QByteArray &marker)
{
    Q_ASSERT(!marker.isEmpty());
    if (isMounted())
        syncMounted();
    QFile file(m_image);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        failed(QStringLiteral("cannot read ") + m_image);
        return -1;
    }
    qint64 count = 0;
    QByteArray window;
    while (true) {
        const QByteArray chunk = file.read(4 * 1024 * 1024);
        if (chunk.isEmpty())
            break;
        window += chunk;
        qsizetype from = 0;
        for (qsizetype at = window.indexOf(marker); at >= 0; at = window.indexOf(marker, from)) {
            ++count;
            from = at + marker.size();
        }
        // Keeps the end of the window, where a marker may begin that continues in the next chunk.
        window = window.mid(qMax(from, window.size() - marker.size() + 1));
    }
    if (file.error() != QFileDevice::NoError) {
        failed(QStringLiteral("cannot read %1: %2").arg(m_image, file.errorString()));
        return -1;
    }
    return count;
}

QByteArray LoopMount::readImage(qint64 offset, qint64 size)
{
    QFile file(m_image);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !file.seek(offset)) {
        failed(QStringLiteral("cannot read ") + m_image);
        return {};
    }
    return file.read(size);
}

bool LoopMount::writeImage(qint64 offset, const QByteArray &bytes)
{
    QFile file(m_image);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !file.seek(offset) ||
        file.write(bytes) != bytes.size() || ::fdatasync(file.handle()) != 0)
        return failed(QStringLiteral("cannot write ") + m_image);
    return true;
}

qint64 LoopMount::flushCount() const
{
    QFile statistics(QStringLiteral("/sys/block/%1/stat").arg(QFileInfo(m_device).fileName()));
    if (!statistics.open(QIODevice::ReadOnly))
        return -1;
    const QList<QByteArray> counts = statistics.readAll().simplified().split(' ');
    return counts.size() > 15 ? counts[15].toLongLong() : -1;
}

qint64 LoopMount::defaultSize(FileSystem fileSystem)
{
    switch (fileSystem) {
    case Xfs:
        return 320 * MiB; // mkfs.xfs refuses below 300
    case Btrfs:
        return 256 * MiB; // mkfs.btrfs refuses below 109
    default:
        return 64 * MiB;
    }
}

QString LoopMount::makeProgram(FileSystem fileSystem)
{
    switch (fileSystem) {
    case Ext4:
        return QStringLiteral("mkfs.ext4");
    case Xfs:
        return QStringLiteral("mkfs.xfs");
    case Btrfs:
        return QStringLiteral("mkfs.btrfs");
    default:
        return {};
    }
}

QString LoopMount::executable(const QString &program)
{
    const QString found = QStandardPaths::findExecutable(program);
    if (!found.isEmpty())
        return found;
    return QStandardPaths::findExecutable(program, {QStringLiteral("/usr/sbin"), QStringLiteral("/sbin")});
}

bool LoopMount::failed(const QString &text)
{
    m_error = text;
    qCritical().noquote() << "LoopMount:" << text;
    return false;
}

bool LoopMount::execute(const QString &program, const QStringList &arguments, QString *output,
                        QString *problem)
{
    QProcess process;
    process.start(executable(program), arguments, QIODevice::ReadOnly);
    const bool ended = process.waitForFinished(60000);
    if (output)
        *output = QString::fromLocal8Bit(process.readAllStandardOutput()).trimmed();
    if (ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    *problem = QStringLiteral("%1 %2: %3")
                   .arg(program, arguments.join(QLatin1Char(' ')),
                        ended ? QString::fromLocal8Bit(process.readAllStandardError()).trimmed()
                              : process.errorString());
    return false;
}

bool LoopMount::run(const QString &program, const QStringList &arguments, QString *output)
{
    QString problem;
    return execute(program, arguments, output, &problem) || failed(problem);
}

bool LoopMount::createImage()
{
    QFile file(m_image);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return failed(QStringLiteral("cannot create %1: %2").arg(m_image, file.errorString()));
    const int error = m_options.preallocated ? ::posix_fallocate(file.handle(), 0, m_options.sizeBytes)
                      : file.resize(m_options.sizeBytes) ? 0
                                                         : EIO;
    return error == 0 || failed(QStringLiteral("no room for ") + m_image);
}

bool LoopMount::attach()
{
    QStringList arguments{QStringLiteral("--find"), QStringLiteral("--show"),
                          QStringLiteral("--sector-size=%1").arg(m_options.sectorSize)};
    if (m_options.partitioned)
        arguments << QStringLiteral("--partscan");
    QString device;
    if (!run(QStringLiteral("losetup"), QStringList(arguments) << m_image, &device))
        return false;
    m_device = device;
    m_canonicalImage = QFile::encodeName(QFileInfo(m_image).canonicalFilePath());
    // The kernel refuses direct I/O where the folder's file system lacks it, such as tmpfs. Everything else
    // works without it.
    QString refusal;
    m_directIo =
        execute(QStringLiteral("losetup"), {QStringLiteral("--direct-io=on"), m_device}, nullptr, &refusal);
    return true;
}

bool LoopMount::makeFileSystem()
{
    if (m_options.fileSystem == NoFileSystem)
        return true;
    QStringList arguments{QStringLiteral("-q")};
    if (m_options.fileSystem == Ext4)
        arguments << QStringLiteral("-F");
    return run(makeProgram(m_options.fileSystem),
               arguments + m_options.makeArguments + QStringList{m_device});
}

bool LoopMount::isStillOurs() const
{
    QFile file(QStringLiteral("/sys/block/%1/loop/backing_file").arg(QFileInfo(m_device).fileName()));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QByteArray backing = file.readAll();
    backing.chop(1);
    return backing == m_canonicalImage || backing == m_canonicalImage + " (deleted)";
}

bool LoopMount::detach()
{
    if (m_device.isEmpty())
        return true;
    if (isStillOurs() && !run(QStringLiteral("losetup"), {QStringLiteral("--detach"), m_device}))
        return false;
    // A device that another program has open, as in unmount(), is detached when it is closed.
    for (int attempt = 0; isStillOurs(); ++attempt) {
        if (attempt == 60)
            return failed(m_device + QStringLiteral(" is still attached"));
        QTest::qSleep(20 + attempt);
    }
    m_device.clear();
    return true;
}

void LoopMount::syncMounted()
{
    const int fd = ::open(QFile::encodeName(m_mountPoint).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0 || ::syncfs(fd) != 0)
        failed(QStringLiteral("cannot write out ") + m_mountPoint);
    if (fd >= 0)
        ::close(fd);
}
