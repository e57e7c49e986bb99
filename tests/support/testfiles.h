#pragma once

#include <QByteArray>
#include <QString>

// Files as tests make and read them, by other means than what is tested. What cannot be done fails the
// running test, at the line that wanted it.

// Where in a test something is wanted; to be left as it is by callers.
struct TestPlace
{
    const char *file = __builtin_FILE();
    int line = __builtin_LINE();
};

// All three make what is missing above, replace what the file held, and answer the path.
QString writeFile(const QString &path, const QByteArray &content, const TestPlace &place = {});
// So many zeros, which take no room where the file system has holes.
QString writeZeros(const QString &path, qint64 size, const TestPlace &place = {});
#ifdef Q_OS_UNIX
// The content is on the medium, not in a cache, when this is done.
QString writeThrough(const QString &path, const QByteArray &content, const TestPlace &place = {});
#endif

QByteArray contentOf(const QString &path, const TestPlace &place = {});
// With a line feed for the line ends of this system.
QByteArray textOf(const QString &path, const TestPlace &place = {});
// Empty for a file that is not there, or not yet.
QByteArray contentIfAny(const QString &path, const TestPlace &place = {});
