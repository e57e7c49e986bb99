#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

/// The folders of the kernel's and udev's device information. Tests provide a tree of their own.
struct SystemTree
{
    QString sys = QStringLiteral("/sys");
    QString proc = QStringLiteral("/proc");
    QString dev = QStringLiteral("/dev");
    QString udev = QStringLiteral("/run/udev/data");
};

/// The contents of a small attribute file without the trailing line end; empty when it cannot be read.
QByteArray readAttribute(const QString &path);
/// The contents as a number; 0 when there is none.
qint64 readNumber(const QString &path);
/// A length in the kernel's unit of 512 bytes, as bytes; 0 when there is none, and when it is beyond any
/// number of bytes.
qint64 readLength(const QString &path);

} // namespace platform
