#pragma once

#include "support/faultyfolder.h"
#include "support/loopmount.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

// A loop device over a file that fails on command, with an ext4 file system mounted if wanted.
class FaultyDrive
{
public:
    static QString unavailableReason();

    explicit FaultyDrive(qint64 sizeBytes, LoopMount::FileSystem fileSystem = LoopMount::NoFileSystem);
    // The mount point lies outside the faulty folder, so that it stays reachable when that folder is gone.
    ~FaultyDrive();

    bool isReady() const { return m_ready; }
    QString device() const { return m_drive->device(); }
    // The file behind the drive, still subject to the faults.
    QString image() const { return m_drive->image(); }
    QString mountPoint() const { return m_folder.filePath(QStringLiteral("mounted")); }

    // The content of the medium, read below the faults.
    QByteArray content();
    bool fill(const QByteArray &content);

private:
    bool isMounted() const;
    bool mount();

    QTemporaryDir m_folder;

public:
    FaultyFolder faults;

private:
    std::unique_ptr<LoopMount> m_drive;
    bool m_mounted = false;
    bool m_ready = false;
};
