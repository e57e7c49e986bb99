#pragma once

#include "cli/io/outputfile.h"
#include "model/joboutcome.h"

#include <QString>
#include <QStringList>

#include <optional>

struct WipeReport;

namespace cli {

// Where a job's certificate goes as a PDF: a file, or a folder that each certificate gets a file of its own
// in.
class CertificateFile
{
public:
    // No certificate is wanted.
    CertificateFile() = default;

    // For the path as it was given. WrongCommandLine when it can be neither; refused by a program that was
    // built without certificates.
    static Outcome<CertificateFile> at(const QString &path, const QStringList &commandWords);

    bool isWanted() const { return isFolder() || m_file.isWanted(); }
    bool isFolder() const { return !m_folder.isEmpty(); }
    // Absolute, for the user: the file, or the folder.
    QString path() const { return isFolder() ? m_folder : m_file.path(); }

    // The file; none where it is a folder.
    const OutputFile &file() const { return m_file; }

    bool liesWithin(const QStringList &paths) const;
    // Tries whether one could be written; changes nothing.
    bool isWritable() const;
    // Writes the certificate as a whole or not at all, with the outcome if it is known. The path, empty when
    // that failed.
    QString write(const WipeReport &report, const std::optional<OutcomeRecord> &outcome) const;

private:
    OutputFile fileFor(const QString &certificateId) const;

    OutputFile m_file;
    QString m_folder;
};

} // namespace cli
