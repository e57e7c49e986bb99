#pragma once

#include "cli/outcome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace cli {

/// A file written by a command, such as a report or a certificate.
class OutputFile
{
public:
    /// No file.
    OutputFile() = default;

    /// The file of a path as the user gave it. WrongCommandLine when the path cannot name a file;
    /// `commandWords` are for the help that is named then.
    static Outcome<OutputFile> at(const QString &path, const QStringList &commandWords);

    bool isWanted() const { return !m_path.isEmpty(); }
    /// Absolute.
    QString path() const { return m_path; }

    /// Whether the file is one of the absolute paths or lies below one, also through links. It would be
    /// destroyed with them.
    bool liesWithin(const QStringList &paths) const;
    /// Whether both are the same file, also through links.
    bool isSameAs(const OutputFile &other) const;
    /// Tests whether the file can be written; changes nothing.
    bool isWritable() const;
    /// Writes the file completely or not at all, replacing an existing one; devices and pipes are written
    /// through. False when that failed.
    bool write(const QByteArray &content) const;

private:
    QString m_path;
};

} // namespace cli
