#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace platform {

/// One line of /proc/self/mountinfo.
struct MountEntry
{
    QByteArray deviceNumber; ///< "8:1"; a file system on several devices has a number of its own ("0:42")
    QString root;            ///< the part of the file system that is mounted, "/" for all of it
    QString mountPoint;
    QByteArray fileSystem;
    QString source;           ///< usually a device node
    QString options{};        ///< the file system's own
    QString mountOptions{};   ///< of this mount alone
    QByteArray propagation{}; ///< "shared:7 master:1", as in the mount table
    int id = 0;
    int parent = 0; ///< the mount that this one is mounted on
};

/// Pure; malformed lines are skipped. The order is that of the text, which is the order of mounting.
QList<MountEntry> parseMountInfo(const QByteArray &text);

/// The active swap areas in the text of /proc/swaps: device nodes and files.
QStringList parseSwaps(const QByteArray &text);

} // namespace platform
