#pragma once

#include <QByteArray>
#include <QString>

// Makes and reads files by other means than the tested code. A failure fails the running test at the line of
// the call.

// The line of the call; callers leave it at its default.
struct TestPlace
{
    const char *file = __builtin_FILE();
    int line = __builtin_LINE();
};

// All three make missing parent folders, replace the content of the file and return its path.
QString writeFile(const QString &path, const QByteArray &content, const TestPlace &place = {});
// Writes this many zeros, which take no space where the file system supports holes.
QString writeZeros(const QString &path, qint64 size, const TestPlace &place = {});
#ifdef Q_OS_UNIX
// The content is on the medium, not in a cache, when the function returns.
QString writeThrough(const QString &path, const QByteArray &content, const TestPlace &place = {});
#endif

QByteArray contentOf(const QString &path, const TestPlace &place = {});
// The text with this system's line ends replaced by line feeds.
QByteArray textOf(const QString &path, const TestPlace &place = {});
// Empty for a file that does not exist (yet).
QByteArray contentIfAny(const QString &path, const TestPlace &place = {});
