#include "engine/foreseeable.h"
#include "filejob.h"
#include "model/joboutcome.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;
using platform::Status;

namespace {

// Files named "cloud..." have copies in a cloud service; files named "offline..." exist only there.
class CloudFiles : public platform::ForwardingFiles
{
public:
    using ForwardingFiles::ForwardingFiles;

    platform::Result<platform::FileInfo> info(const platform::EntryPath &entry) override
    {
        auto found = ForwardingFiles::info(entry);
        if (found)
            found.value().isInCloud = QFileInfo(entry.path()).fileName().startsWith(u"cloud"_s);
        return found;
    }
    platform::Result<std::unique_ptr<platform::FileHandle>>
    openIn(const std::shared_ptr<platform::DurabilityGroup> &group, const platform::EntryPath &entry,
           platform::OpenMode mode) override
    {
        if (QFileInfo(entry.path()).fileName().startsWith(u"offline"_s))
            return Status{platform::FileOffline, 0, "planned"};
        return ForwardingFiles::openIn(group, entry, mode);
    }
};

class CloudFolders : public platform::ForwardingFolders
{
public:
    using ForwardingFolders::ForwardingFolders;

    platform::Result<std::shared_ptr<platform::FolderHandle>>
    holdIn(const std::shared_ptr<platform::FolderHandle> &parent, const QString &name, Mounts mounts) override
    {
        if (name.startsWith(u"offline"_s))
            return Status{platform::FileOffline, 0, "planned"};
        return ForwardingFolders::holdIn(parent, name, mounts);
    }
};

struct Machine
{
    CloudFiles files{platform::Platform::current().files()};
    CloudFolders folders{platform::Platform::current().folders()};
};

const Shortfall TwoCopies{ShortfallKind::CloudCopy, {}, -1, 2};

} // namespace

// Jobs on files with copies in a cloud, or with their only copy there.
class tst_CloudFiles : public QObject
{
    Q_OBJECT

private slots:
    void copiesAreNotedOnce();
    void copiesAreForeseen();
    void noCopiesAreNoNote();
    void aFileThatIsOnlyInACloudIsNotErased();
    void aFolderThatIsPartlyInACloudIsNotErased();
    void aTargetThatIsPartlyInACloud();
};

void tst_CloudFiles::copiesAreNotedOnce()
{
    Machine machine;
    FileJob job(machine.files, machine.folders);
    QVERIFY(
        job.run({job.makeFile(u"cloud1"_s, 10), job.makeFile(u"a"_s, 10), job.makeFile(u"cloud2"_s, 10)}));
    QCOMPARE(job.lines().filter(u"云"_s),
             QStringList{u"1 2 个文件由云服务同步，云端可能仍保留其副本和历史版本"_s});
    QCOMPARE(job.task.outcome().notes(), QList<Shortfall>{TwoCopies});
    QVERIFY(!job.task.outcome().hasShortfalls());
}

void tst_CloudFiles::copiesAreForeseen()
{
    Machine machine;
    FileJob job(machine.files, machine.folders);
    job.makeFile(u"folder/cloud1"_s, 10);
    job.task.setOperationType(FileWipe);
    job.task.setFiles({job.path(u"folder"_s), job.makeFile(u"cloud2"_s, 0)});
    const OutcomeRecord foreseen = foreseeableShortfalls(job.task);
    QCOMPARE(foreseen.notes(), QList<Shortfall>{TwoCopies});
    QVERIFY(!foreseen.hasShortfalls());
}

void tst_CloudFiles::noCopiesAreNoNote()
{
    Machine machine;
    FileJob job(machine.files, machine.folders);
    QVERIFY(job.run({job.makeFile(u"a"_s, 10)}));
    QVERIFY(job.lines().filter(u"云"_s).isEmpty());
    QVERIFY(!job.task.outcome().has(ShortfallKind::CloudCopy));
}

void tst_CloudFiles::aFileThatIsOnlyInACloudIsNotErased()
{
    Machine machine;
    FileJob job(machine.files, machine.folders);
    const QString offline = job.makeFile(u"offline"_s, 10);
    const QString here = job.makeFile(u"here"_s, 10);
    QVERIFY(!job.run({here, offline}));
    QVERIFY(job.lines().contains(u"2 文件内容不在本机，仅保存在云端，无法擦除: "_s + offline));
    QVERIFY(!job.lines().contains(said::cannotOpen(offline)));
    QVERIFY(QFile::exists(offline));
    QVERIFY(QFile::exists(here));
}

void tst_CloudFiles::aFolderThatIsPartlyInACloudIsNotErased()
{
    Machine machine;
    FileJob job(machine.files, machine.folders);
    const QString file = job.makeFile(u"folder/offline/a"_s, 10);
    const QString here = job.makeFile(u"folder/here"_s, 10);
    QVERIFY(!job.run({job.path(u"folder"_s)}));
    QVERIFY(job.lines().contains(u"2 文件夹内容未全部在本机，部分仅保存在云端，无法擦除: "_s +
                                 job.path(u"folder/offline"_s)));
    QVERIFY(job.lines().contains(said::someFailed(1)));
    QCOMPARE(contentOf(file), QByteArray(10, 'M'));
    QVERIFY(!QFile::exists(here));
}

void tst_CloudFiles::aTargetThatIsPartlyInACloud()
{
    Machine machine;
    FileJob job(machine.files, machine.folders);
    const QString file = job.makeFile(u"offline/a"_s, 10);
    QVERIFY(!job.run({job.path(u"offline"_s)}));
    QCOMPARE(job.lines(), (QStringList{said::scanning,
                                       u"2 文件夹内容未全部在本机，部分仅保存在云端，无法擦除: "_s +
                                           job.path(u"offline"_s),
                                       said::nothingFound, said::failed}));
    QVERIFY(QFile::exists(file));
}

QUORVEX_SUITE(tst_CloudFiles, QCoreApplication)
#include "tst_cloudfiles.moc"
