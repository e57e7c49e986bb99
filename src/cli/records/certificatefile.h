#pragma once

#include "cli/io/outputfile.h"
#include "model/joboutcome.h"

#include <QString>
#include <QStringList>

#include <optional>

struct WipeReport;

namespace cli {

/// The destination of a certificate as PDF: a file, or a folder in which each certificate has its own file.
class CertificateFile
{
public:
    /// No certificate.
    CertificateFile() = default;

    /// The destination of a path as the user gave it. WrongCommandLine when the path can name neither file
    /// nor folder; refused when the program was built without certificates.
    static Outcome<CertificateFile> at(const QString &path, const QStringList &commandWords);

    bool isWanted() const { return isFolder() || m_file.isWanted(); }
    bool isFolder() const { return !m_folder.isEmpty(); }
    /// The absolute path of the file or folder, for the user.
    QString path() const { return isFolder() ? m_folder : m_file.path(); }

    /// The file; not wanted when the destination is a folder.
    const OutputFile &file() const { return m_file; }

    bool liesWithin(const QStringList &paths) const;
    /// Tests whether a certificate can be written; changes nothing.
    bool isWritable() const;
    /// Writes the certificate completely or not at all, with the outcome if it is known. Returns its path,
    /// empty on failure.
    QString write(const WipeReport &report, const std::optional<OutcomeRecord> &outcome) const;

private:
    OutputFile fileFor(const QString &certificateId) const;

    OutputFile m_file;
    QString m_folder;
};

} // namespace cli
