#pragma once

#include <QByteArray>
#include <QString>

// A mount without a device, unmounted on destruction. Needs root.
class PlainMount
{
public:
    // "tmpfs" and "ramfs" need no source; flags as for mount(2).
    PlainMount(const char *type, const QString &source, const QString &folder, unsigned long flags = 0);
    ~PlainMount();
    PlainMount(const PlainMount &) = delete;
    PlainMount &operator=(const PlainMount &) = delete;

    bool isMounted() const { return m_mounted; }

private:
    QByteArray m_folder;
    bool m_mounted;
};
