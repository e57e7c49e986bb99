#include "jobs/reportstorage.h"

#include "model/displaytext.h"
#include "services/reportdatabase.h"

#include <QCoreApplication>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(ReportStorage)
};

QString cause(ReportDatabase::Problem problem)
{
    switch (problem) {
    case ReportDatabase::Problem::InUse:
        return Words::tr("Another program holds the report database.");
    case ReportDatabase::Problem::NoPermission:
        return Words::tr("The report database cannot be written.");
    case ReportDatabase::Problem::Full:
        return Words::tr("There is no room left for the report database.");
    case ReportDatabase::Problem::Damaged:
        return Words::tr("The report database is damaged.");
    case ReportDatabase::Problem::CannotOpen:
        return Words::tr("The report database cannot be opened.");
    case ReportDatabase::Problem::IsLink:
        return Words::tr("A link is in the place of the report database.");
    case ReportDatabase::Problem::Other:
        break;
    }
    return Words::tr("The report database did not take the report.");
}

} // namespace

QString storeReport(const WipeReport &report, const OutcomeRecord &outcome)
{
    ReportDatabase &database = ReportDatabase::instance();
    if (database.initialize() && database.saveReport(report, outcome))
        return {};
    return cause(database.lastProblem()) + QStringLiteral(" (%1)").arg(displayText(database.lastError()));
}
