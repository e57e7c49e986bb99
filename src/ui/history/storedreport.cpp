#include "ui/history/storedreport.h"

#include "services/reportdatabase.h"
#include "ui/prompts/prompts.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(StoredReport)
};

} // namespace

std::optional<WipeReport> storedReport(const QString &certificateId, QWidget *parent)
{
    WipeReport report = ReportDatabase::instance().getReport(certificateId);
    if (report.certificateId == certificateId)
        return report;
    Prompts::current().warning(parent, Words::tr("Report Not Found"),
                               Words::tr("There is no report %1 in the database.").arg(certificateId));
    return std::nullopt;
}
