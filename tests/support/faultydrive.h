#pragma once

#include "support/faultyfolder.h"
#include "support/loopmount.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// A loop device over a file that fails on command, with an ext4 file system mounted if wanted.
class FaultyDrive
{
public:
    static QString unavailableReason()
    {
        const QString reason = LoopMount::unavailableReason(LoopMount::Ext4);
        return reason.isEmpty() ? FaultyFolder::unavailableReason() : reason;
    }

    explicit FaultyDrive(qint64 sizeBytes, LoopMount::FileSystem fileSystem = LoopMount::NoFileSystem)
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
    // The mount point lies outside of the faulty folder, so that it can be reached when that is gone.
    ~FaultyDrive()
    {
        // A job on the drive has unmounted it.
        if (m_mounted && isMounted())
            QProcess::execute(QStringLiteral("umount"), {QStringLiteral("--lazy"), mountPoint()});
    }

    bool isReady() const { return m_ready; }
    QString device() const { return m_drive->device(); }
    // The file behind the drive, under the faults.
    QString image() const { return m_drive->image(); }
    QString mountPoint() const { return m_folder.filePath(QStringLiteral("mounted")); }

    // What is on the medium, whatever the faults.
    QByteArray content()
    {
        QFile file(faults.below(QStringLiteral("drive.img")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool fill(const QByteArray &content)
    {
        QFile file(faults.below(QStringLiteral("drive.img")));
        return file.open(QIODevice::ReadWrite) && file.write(content) == content.size();
    }

private:
    bool isMounted() const
    {
        struct stat above = {};
        struct stat inside = {};
        return ::stat(QFile::encodeName(m_folder.path()).constData(), &above) == 0 &&
               (::stat(QFile::encodeName(mountPoint()).constData(), &inside) != 0 ||
                above.st_dev != inside.st_dev);
    }
    bool mount()
    {
        m_mounted = QDir().mkpath(mountPoint()) &&
                    QProcess::execute(QStringLiteral("mount"), {device(), mountPoint()}) == 0;
        return m_mounted;
    }

    QTemporaryDir m_folder;

public:
    FaultyFolder faults;

private:
    std::unique_ptr<LoopMount> m_drive;
    bool m_mounted = false;
    bool m_ready = false;
};
