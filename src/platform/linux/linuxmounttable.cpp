#include "platform/linux/linuxmounttable.h"

#include "platform/filenames.h"

namespace platform {

namespace {

// The kernel escapes blank, tab, line feed and backslash as three octal digits.
QString unescaped(const QByteArray &field)
{
    QByteArray text;
    text.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        if (isOctal && i + 3 < field.size()) {
            text += static_cast<char>(code);
            i += 3;
        } else {
            text += field[i];
        }
    }
    return decodeName(text);
}

} // namespace

QList<MountEntry> parseMountInfo(const QByteArray &text)
{
    // 36 35 98:0 /root /mount/point rw,noatime master:1 - ext4 /dev/root rw,errors=continue
    QList<MountEntry> entries;
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype separator = fields.indexOf(QByteArray("-"), 6);
        if (separator < 0 || fields.size() < separator + 3)
            continue;
        MountEntry entry{fields[2],
                         unescaped(fields[3]),
                         unescaped(fields[4]),
                         fields[separator + 1],
                         unescaped(fields[separator + 2]),
                         unescaped(fields.value(separator + 3))};
        entry.mountOptions = QString::fromUtf8(fields[5]);
        entry.propagation = fields.mid(6, separator - 6).join(' ');
        entry.id = fields[0].toInt();
        entry.parent = fields[1].toInt();
        entries.append(entry);
    }
    return entries;
}

QStringList parseSwaps(const QByteArray &text)
{
    QStringList areas;
    const QList<QByteArray> lines = text.split('\n');
    for (qsizetype i = 1; i < lines.size(); ++i) { // the first line is a heading
        const QByteArray name = lines[i].left(lines[i].indexOf(' '));
        if (name.startsWith('/'))
            areas.append(unescaped(name));
    }
    return areas;
}

} // namespace platform
