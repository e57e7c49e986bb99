#pragma once

#include "cli/outcome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace cli {

// A file that a command writes: a report, a certificate.
class OutputFile
{
public:
    // No file is wanted.
    OutputFile() = default;

    // For the path as it was given. WrongCommandLine when it cannot name a file, with the words of the
    // command for the help.
    static Outcome<OutputFile> at(const QString &path, const QStringList &commandWords);

    bool isWanted() const { return !m_path.isEmpty(); }
    // Absolute.
    QString path() const { return m_path; }

    // Whether the file is one of the absolute paths or lies below one, also through links: it would be
    // destroyed with them.
    bool liesWithin(const QStringList &paths) const;
    // Whether both are one file, also through links.
    bool isSameAs(const OutputFile &other) const;
    // Tries whether it could be written; changes nothing.
    bool isWritable() const;
    // Writes it as a whole or not at all, replacing what stood there; devices and pipes are written through.
    // False when that failed.
    bool write(const QByteArray &content) const;

private:
    QString m_path;
};

} // namespace cli
