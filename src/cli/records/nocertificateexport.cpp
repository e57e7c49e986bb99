#include "cli/records/certificateexport.h"

namespace cli {

bool canExportCertificates()
{
    return false;
}

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    return std::make_unique<QCoreApplication>(argc, argv);
}

bool exportCertificate(const WipeReport &, const std::optional<OutcomeRecord> &, const QString &)
{
    return false;
}

} // namespace cli
