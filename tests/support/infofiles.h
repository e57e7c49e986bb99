#pragma once

#include <QByteArray>
#include <QString>
#include <QtEndian>

// Contents of "$I" files, built from their fields.

QByteArray utf16(const QString &text);

template <typename T>
QByteArray littleEndian(T number)
{
    QByteArray bytes(sizeof(T), '\0');
    qToLittleEndian<T>(number, bytes.data());
    return bytes;
}

QByteArray infoHeader(quint64 version, quint64 size);

// The content as the system writes it, with a terminating zero at the end of the path.
QByteArray infoVersion2(const QString &path, quint64 size);

QByteArray infoVersion1(const QString &path, quint64 size);
