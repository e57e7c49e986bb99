#include "support/infofiles.h"

QByteArray utf16(const QString &text)
{
    QByteArray bytes(text.size() * 2, '\0');
    for (qsizetype i = 0; i < text.size(); ++i)
        qToLittleEndian<quint16>(text.at(i).unicode(), bytes.data() + 2 * i);
    return bytes;
}

QByteArray infoHeader(quint64 version, quint64 size)
{
    return littleEndian(version) + littleEndian(size) + littleEndian(quint64(0x01DA5C0FFEE00000));
}

QByteArray infoVersion2(const QString &path, quint64 size)
{
    const QString stored = path + QChar(u'\0');
    return infoHeader(2, size) + littleEndian(static_cast<quint32>(stored.size())) + utf16(stored);
}

QByteArray infoVersion1(const QString &path, quint64 size)
{
    return infoHeader(1, size) + utf16(path.leftJustified(260, QChar(u'\0'), true));
}
