#include "services/trash/trashinfofile.h"

#include "platform/filenames.h"

#include <QList>

QString parseTrashInfo(const QByteArray &contents)
{
    bool isInGroup = false;
    const QList<QByteArray> lines = contents.split('\n');
    for (const QByteArray &whole : lines) {
        const QByteArray line = whole.endsWith('\r') ? whole.chopped(1) : whole;
        if (line.startsWith('[')) {
            isInGroup = line.trimmed() == "[Trash Info]";
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        // The first of several paths counts.
        if (isInGroup && equals >= 0 && line.first(equals).trimmed() == "Path")
            return platform::decodeName(QByteArray::fromPercentEncoding(line.sliced(equals + 1).trimmed()));
    }
    return {};
}
