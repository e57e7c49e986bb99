#pragma once

#include <QByteArray>
#include <QString>

namespace platform {

// Where the kernel and udev tell about devices. Tests lay out a tree of their own.
struct SystemTree
{
    QString sys = QStringLiteral("/sys");
    QString proc = QStringLiteral("/proc");
    QString dev = QStringLiteral("/dev");
    QString udev = QStringLiteral("/run/udev/data");
};

// The contents of one small attribute file without the trailing line end; empty when it cannot be read.
QByteArray readAttribute(const QString &path);
// The same as a number; 0 when there is none.
qint64 readNumber(const QString &path);

} // namespace platform
