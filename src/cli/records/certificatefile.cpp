#include "cli/records/certificatefile.h"

#include "cli/io/paths.h"
#include "cli/records/certificateexport.h"
#include "cli/texts.h"
#include "model/wipereport.h"

#include <QFileInfo>

namespace cli {

using namespace Qt::StringLiterals;

Outcome<CertificateFile> CertificateFile::at(const QString &path, const QStringList &commandWords)
{
    if (!canExportCertificates())
        return Refusal{Refused, Cli::tr("this program was built without certificates")};
    CertificateFile certificate;
    if (!path.isEmpty() && path.isValidUtf16() && QFileInfo(absolutePath(path)).isDir()) {
        certificate.m_folder = absolutePath(path);
        return certificate;
    }
    const auto file = OutputFile::at(path, commandWords);
    if (!file)
        return file.refusal();
    certificate.m_file = *file;
    return certificate;
}

bool CertificateFile::liesWithin(const QStringList &paths) const
{
    return fileFor(u"certificate"_s).liesWithin(paths);
}

bool CertificateFile::isWritable() const
{
    // A folder is tested with a name that no certificate has.
    return fileFor(u"certificate"_s).isWritable();
}

QString CertificateFile::write(const WipeReport &report, const std::optional<OutcomeRecord> &outcome) const
{
    const QString path = fileFor(report.certificateId).path();
    return exportCertificate(report, outcome, path) ? path : QString();
}

OutputFile CertificateFile::fileFor(const QString &certificateId) const
{
    if (!isFolder())
        return m_file;
    const auto file = OutputFile::at(m_folder + u'/' + certificateId + u".pdf"_s, {});
    return file ? *file : OutputFile();
}

} // namespace cli
