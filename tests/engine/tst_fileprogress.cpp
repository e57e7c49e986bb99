#include "engine/fileprogress.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QList>
#include <QTest>

#include <utility>

namespace {

// Progress with a clock that the test sets.
struct TimedProgress
{
    qint64 now = 7000;
    QList<std::pair<qint64, qint64>> reports;
    FileProgress progress{[this](qint64 done, qint64 total) {
                              reports.append({done, total});
                          },
                          [this] { return now; }};

    void addAt(qint64 time, qint64 bytes)
    {
        now = time;
        progress.add(bytes);
    }
};

} // namespace

class tst_FileProgress : public QObject
{
    Q_OBJECT

private slots:
    void aReportComesAfterMoreThan100Ms();
    void earlierPassesCount();
    void theTotalIsNever0();
};

void tst_FileProgress::aReportComesAfterMoreThan100Ms()
{
    TimedProgress timed;
    timed.progress.beginPass(1, 1, 1000);
    timed.addAt(7000, 10);
    timed.addAt(7100, 10);
    QCOMPARE(timed.reports.size(), 0);
    timed.addAt(7101, 10);
    QCOMPARE(timed.reports, (QList<std::pair<qint64, qint64>>{{30, 1000}}));
    timed.addAt(7201, 10);
    QCOMPARE(timed.reports.size(), 1);
    timed.addAt(7202, 10);
    QCOMPARE(timed.reports.constLast(), (std::pair<qint64, qint64>{50, 1000}));
    QCOMPARE(timed.progress.bytesOfPass(), 50);
}

void tst_FileProgress::earlierPassesCount()
{
    TimedProgress timed;
    timed.progress.beginPass(3, 7, 1000);
    timed.addAt(8000, 10);
    QCOMPARE(timed.reports, (QList<std::pair<qint64, qint64>>{{2010, 7000}}));
    timed.progress.beginPass(4, 7, 1000);
    QCOMPARE(timed.progress.bytesOfPass(), 0);
}

void tst_FileProgress::theTotalIsNever0()
{
    TimedProgress timed;
    timed.progress.beginPass(1, 7, 0);
    timed.addAt(8000, 10);
    QCOMPARE(timed.reports, (QList<std::pair<qint64, qint64>>{{10, 1}}));
}

QUORVEX_SUITE(tst_FileProgress, QCoreApplication)
#include "tst_fileprogress.moc"
