#include "ui/mainwindow/heldjob.h"

#include "engine/wipeengine.h"
#include "jobs/jobcontroller.h"
#include "services/reportdatabase.h"

#include <QTest>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

HeldJob::HeldJob()
    : memory(drives.memory)
{
    memory.beforeWrite = [this] {
        isWriting = true;
        letGo.acquire();
        letGo.release();
    };
    fixture = std::make_unique<WindowFixture>(std::move(drives.owned));
    engine().setStopPatience(10ms);
}

HeldJob::~HeldJob()
{
    letGo.release();
    fixture.reset();
}

WipeEngine &HeldJob::engine() const
{
    return *fixture->window->findChild<WipeEngine *>();
}

JobController &HeldJob::job() const
{
    return *fixture->window->findChild<JobController *>();
}

void HeldJob::start()
{
    fixture->window->onDiskWipeClicked();
    choose(*fixture, diskRow(*fixture, 0));
    fixture->dialogs.answers = {WindowFixture::typeErase};
    QVERIFY(fixture->click(u"Start"_s));
    QTRY_VERIFY_WITH_TIMEOUT(isWriting, 60000);
    QCOMPARE(fixture->window->currentPage(), int(MainWindow::Progress));
}

std::optional<JobOutcome> HeldJob::storedOutcome() const
{
    const QList<WipeReport> reports = fixture->reports();
    if (reports.size() != 1)
        return std::nullopt;
    const auto outcome = ReportDatabase::instance().outcome(reports.constFirst().certificateId);
    return outcome ? std::optional(outcome->outcome()) : std::nullopt;
}
