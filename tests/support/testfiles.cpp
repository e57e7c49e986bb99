#include "support/testfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

void fail(const char *what, const QFile &file, const TestPlace &place)
{
    const QString message =
        QStringLiteral("cannot %1 %2: %3").arg(QLatin1String(what), file.fileName(), file.errorString());
    QTest::qFail(qPrintable(message), place.file, place.line);
}

// Makes missing parent folders. Where that fails, the file cannot be opened either.
bool openNew(QFile &file)
{
    QDir().mkpath(QFileInfo(file.fileName()).path());
    return file.open(QIODevice::WriteOnly);
}

bool put(QFile &file, const QByteArray &content)
{
    return openNew(file) && file.write(content) == content.size() && file.flush();
}

QByteArray readAll(const QString &path, QIODevice::OpenMode mode, const TestPlace &place)
{
    QFile file(path);
    if (file.open(mode)) {
        const QByteArray content = file.readAll();
        if (file.error() == QFileDevice::NoError)
            return content;
    }
    fail("read", file, place);
    return {};
}

} // namespace

QString writeFile(const QString &path, const QByteArray &content, const TestPlace &place)
{
    QFile file(path);
    if (!put(file, content))
        fail("write", file, place);
    return path;
}

QString writeZeros(const QString &path, qint64 size, const TestPlace &place)
{
    QFile file(path);
    if (!openNew(file) || !file.resize(size))
        fail("write", file, place);
    return path;
}

#ifdef Q_OS_UNIX
QString writeThrough(const QString &path, const QByteArray &content, const TestPlace &place)
{
    QFile file(path);
    if (!put(file, content) || ::fsync(file.handle()) != 0)
        fail("write", file, place);
    return path;
}
#endif

QByteArray contentOf(const QString &path, const TestPlace &place)
{
    return readAll(path, QIODevice::ReadOnly, place);
}

QByteArray textOf(const QString &path, const TestPlace &place)
{
    return readAll(path, QIODevice::ReadOnly | QIODevice::Text, place);
}

QByteArray contentIfAny(const QString &path, const TestPlace &place)
{
    return QFileInfo::exists(path) ? contentOf(path, place) : QByteArray();
}
