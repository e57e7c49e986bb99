#include "jobs/certificatenumber.h"

#include "model/wipereport.h"
#include "model/wipetask.h"
#include "services/reportdatabase.h"

#include <QCoreApplication>

namespace {

constexpr int NumbersOfADay = 8999;

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(CertificateNumber)
};

// The id without its number.
QString dayOf(const QString &certificateId)
{
    return certificateId.left(certificateId.lastIndexOf(u'-') + 1);
}

} // namespace

std::optional<Refusal> claimCertificateId(WipeTask &task, const QStringList &taken)
{
    ReportDatabase &database = ReportDatabase::instance();
    QString id = task.report().certificateId;
    QString counted; // the day of the last count, since counting is slow and drawing is quick
    // An unreadable database cannot lose a report either; storing then fails and is reported.
    while (taken.contains(id) || database.holds(id).value_or(false)) {
        if (const QString day = dayOf(id); day != counted) {
            if (database.countBeginningWith(day).value_or(0) + taken.size() >= NumbersOfADay)
                return Refusal{Words::tr("All certificate numbers of this day are taken.")};
            counted = day;
        }
        const WipeReport fresh;
        task.updateReport([&fresh](WipeReport &report) { report = fresh; });
        id = fresh.certificateId;
    }
    return {};
}
