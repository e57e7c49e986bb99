#include "engine/filesurvey.h"
#include "engine/foreseeable.h"
#include "filejob.h"
#include "model/joboutcome.h"
#include "support/placedfiles.h"
#include "support/plainmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QTest>

#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

// Mounts inside the folders of a job.
class tst_FileSurveyMounts : public QObject
{
    Q_OBJECT

private slots:
    void whatIsMountedInsideIsNeitherCountedNorAskedAbout();
};

void tst_FileSurveyMounts::whatIsMountedInsideIsNeitherCountedNorAskedAbout()
{
    if (::geteuid() != 0)
        QSKIP("SKIPPED: only root can mount");
    const auto shared = [](const QString &) {
        return platform::ContentPlace{.elsewhere = platform::Elsewhere::Shared, .bytes = 1};
    };
    PlacedFiles placed(platform::Platform::current().files(), shared);
    FileJob job(placed);
    job.makeFile(u"elsewhere/kept"_s, 5000);
    job.makeFile(u"folder/a"_s, 300);
    job.makeFile(u"folder/sub/b"_s, 20);
    const QString file = job.makeFile(u"folder/file"_s, 1);
    const QString below = job.makeFolder(u"folder/mounted"_s);
    const PlainMount folders(nullptr, job.path(u"elsewhere"_s), below, MS_BIND);
    QVERIFY(folders.isMounted());
    const PlainMount files(nullptr, job.path(u"elsewhere/kept"_s), file, MS_BIND);
    QVERIFY(files.isMounted());
    job.task.setFiles({job.path(u"folder"_s)});
    const FileSurvey survey = surveyFiles(job.task);
    QCOMPARE(survey.files, quint64(2));
    QCOMPARE(survey.bytes, quint64(320));
    QVERIFY(survey.isComplete);
    QCOMPARE(survey.mounted, (QStringList{below, file}));
    const QString kept = job.path(u"folder/mounted/kept"_s);
    QVERIFY(!placed.asked.isEmpty());
    QVERIFY(!placed.asked.contains(kept) && !placed.asked.contains(file));
    const QList<Shortfall> foreseen = foreseeableShortfalls(job.task, survey).shortfalls();
    for (const QString &path : survey.mounted)
        QVERIFY(foreseen.contains(Shortfall{ShortfallKind::EntryNotRemoved, path}));

    // The job finds the same files.
    QVERIFY(job.run(job.task.files()));
    QCOMPARE(quint64(job.task.report().fileCount), survey.files);
    QCOMPARE(job.task.report().totalBytes, survey.bytes);
    QCOMPARE(contentOf(job.path(u"elsewhere/kept"_s)), QByteArray(5000, 'M'));
}

QUORVEX_SUITE(tst_FileSurveyMounts, QCoreApplication)
#include "tst_filesurveymounts.moc"
