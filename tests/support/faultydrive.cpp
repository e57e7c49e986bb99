#include "support/faultydrive.h"

#include "support/testfiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <sys/stat.h>

QString FaultyDrive::unavailableReason()
{
    const QString reason = LoopMount::unavailableReason(LoopMount::Ext4);
    return reason.isEmpty() ? FaultyFolder::unavailableReason() : reason;
}

FaultyDrive::FaultyDrive(qint64 sizeBytes, LoopMount::FileSystem fileSystem)
    : faults(m_folder.path())
{
    if (!faults.isReady())
        return;
    LoopMount::Options options;
    options.fileSystem = fileSystem;
    options.sizeBytes = sizeBytes;
    options.mounted = false;
    m_drive = std::make_unique<LoopMount>(faults.path(), options, QStringLiteral("drive"));
    m_ready = m_drive->isReady() && (fileSystem == LoopMount::NoFileSystem || mount());
}

FaultyDrive::~FaultyDrive()
{
    // A job on the drive may have unmounted it.
    if (m_mounted && isMounted())
        QProcess::execute(QStringLiteral("umount"), {QStringLiteral("--lazy"), mountPoint()});
}

QByteArray FaultyDrive::content()
{
    return contentOf(faults.below(QStringLiteral("drive.img")));
}

bool FaultyDrive::fill(const QByteArray &content)
{
    QFile file(faults.below(QStringLiteral("drive.img")));
    return file.open(QIODevice::ReadWrite) && file.write(content) == content.size();
}

bool FaultyDrive::isMounted() const
{
    struct stat above = {};
    struct stat inside = {};
    return ::stat(QFile::encodeName(m_folder.path()).constData(), &above) == 0 &&
           (::stat(QFile::encodeName(mountPoint()).constData(), &inside) != 0 ||
            above.st_dev != inside.st_dev);
}

bool FaultyDrive::mount()
{
    m_mounted = QDir().mkpath(mountPoint()) &&
                QProcess::execute(QStringLiteral("mount"), {device(), mountPoint()}) == 0;
    return m_mounted;
}
