#include "cli/records/reportstore.h"

#include "cli/globaloptions.h"
#include "cli/records/reporttext.h"
#include "cli/texts.h"
#include "model/displaytext.h"
#include "services/reportdatabase.h"

namespace cli {

Outcome<std::unique_ptr<ReportStore>> ReportStore::open(const QCommandLineParser &options)
{
    const QString folder = dataFolder(options).path;
    std::unique_ptr<ReportStore> store(new ReportStore(folder));
    if (store->database().initialize(folder))
        return store;
    return Refusal{SurroundingsFailed,
                   Cli::tr("the report database in %1 cannot be used: %2")
                       .arg(displayText(folder), displayText(store->database().lastError()))};
}

ReportStore::ReportStore(QString folder)
    : m_folder(std::move(folder))
{}

ReportStore::~ReportStore()
{
    database().close();
}

ReportDatabase &ReportStore::database() const
{
    return ReportDatabase::instance();
}

Refusal ReportStore::unreadable() const
{
    return {SurroundingsFailed,
            Cli::tr("the report database cannot be read: %1").arg(displayText(database().lastError()))};
}

Outcome<QByteArray> findStoredReport(const ReportStore &store, const QString &certificateId)
{
    const std::optional<QByteArray> json = store.database().storedJson(certificateId);
    if (!json)
        return store.unreadable();
    if (json->isNull())
        return Refusal{Refused, Cli::tr("there is no report %1").arg(displayText(certificateId))};
    return *json;
}

Outcome<QByteArray> readStoredReport(const ReportStore &store, const QString &certificateId)
{
    auto json = findStoredReport(store, certificateId);
    if (json && !isReportText(*json)) {
        return Refusal{SurroundingsFailed,
                       Cli::tr("what is stored as report %1 is damaged").arg(displayText(certificateId))};
    }
    return json;
}

} // namespace cli
