#include "services/trash/recyclebininfofile.h"

#include <QtEndian>

namespace {
// All numbers are little-endian.
constexpr qsizetype SizeAt = 8;

// Version 1: a field of fixed length.
constexpr qsizetype FixedPathAt = 24;
constexpr qsizetype FixedPathUnits = 260;
constexpr qsizetype SmallestVersion1 = 544; // bytes

// Version 2: the number of UTF-16 code units, followed by the path.
constexpr qsizetype LengthAt = 24;
constexpr qsizetype PathAt = 28;
constexpr qsizetype SmallestVersion2 = 29; // bytes

template <typename T>
T numberAt(QByteArrayView contents, qsizetype offset)
{
    return qFromLittleEndian<T>(contents.data() + offset);
}

// Copied unit by unit: a decoder would remove a byte order mark and replace lone surrogates, which are both
// allowed in file names.
QString textAt(QByteArrayView contents, qsizetype offset, qsizetype units)
{
    QString text(units, Qt::Uninitialized);
    qFromLittleEndian<char16_t>(contents.data() + offset, units, text.data());
    return text;
}

QString recordedPath(QByteArrayView contents)
{
    const auto version = numberAt<quint64>(contents, 0);
    if (version == 1 && contents.size() >= SmallestVersion1)
        return textAt(contents, FixedPathAt, FixedPathUnits);
    if (version == 2 && contents.size() >= SmallestVersion2) {
        // The stored length may be up to 4 G units, whatever the size of the file.
        const qint64 units = numberAt<quint32>(contents, LengthAt);
        if (PathAt + 2 * units <= contents.size())
            return textAt(contents, PathAt, static_cast<qsizetype>(units));
    }
    return {};
}

QString withoutPadding(const QString &path)
{
    QString trimmed = path.trimmed();
    if (trimmed.endsWith(QChar::Null))
        trimmed.chop(1);
    return trimmed;
}
} // namespace

RecycleBinItem recyclebin::parseInfo(QByteArrayView contents)
{
    RecycleBinItem item;
    if (contents.size() < SmallestInfoFile)
        return item;
    item.size = numberAt<quint64>(contents, SizeAt);
    item.originalPath = withoutPadding(recordedPath(contents));
    item.fileName = lastComponent(item.originalPath);
    return item;
}

QString recyclebin::lastComponent(const QString &path)
{
    qsizetype separator = path.lastIndexOf(u'\\');
    if (separator < 0)
        separator = path.lastIndexOf(u'/');
    return path.mid(separator + 1);
}
