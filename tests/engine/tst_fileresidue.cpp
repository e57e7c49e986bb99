#include "model/wipetask.h"
#include "realjob.h"
#include "support/loopmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/xattr.h>

#include <cstddef>

namespace {

const QByteArray &marker()
{
    static const QByteArray text = "SECRET-OF-THIS-TEST-";
    return text;
}

void writeMarkers(const QString &path, qint64 size)
{
    QByteArray content;
    while (content.size() < size)
        content += marker();
    writeFile(path, content.left(size));
}

} // namespace

// Files on real file systems, shredded by the real backend. The raw image is searched afterwards.
class tst_FileResidue : public QObject
{
    Q_OBJECT

private slots:
    void noMarkerIsLeft_data();
    void noMarkerIsLeft();
    void noNameIsLeft_data();
    void noNameIsLeft();
    void attributesAreTold();
    void keptFilesStayAsTheyAre_data();
    void keptFilesStayAsTheyAre();
};

void tst_FileResidue::noMarkerIsLeft_data()
{
    QTest::addColumn<int>("fileSystem");
    QTest::addColumn<int>("method");
    QTest::newRow("ext4, NIST") << int(LoopMount::Ext4) << 0;
    QTest::newRow("ext4, DoD") << int(LoopMount::Ext4) << 2;
    QTest::newRow("xfs, NIST") << int(LoopMount::Xfs) << 0;
    QTest::newRow("xfs, HMG") << int(LoopMount::Xfs) << 1;
}

void tst_FileResidue::noMarkerIsLeft()
{
    QFETCH(int, fileSystem);
    QFETCH(int, method);
    const auto kind = static_cast<LoopMount::FileSystem>(fileSystem);
    if (const QString reason = LoopMount::unavailableReason(kind); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.fileSystem = kind;
    LoopMount volume(folder.path(), options);
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));

    const QDir root(volume.mountPoint());
    QVERIFY(root.mkpath(QStringLiteral("deep/er")));
    const QList<qint64> sizes{20, 511, 4096, 4097, 70000, 3 * 1024 * 1024 + 17};
    for (qsizetype i = 0; i < sizes.size(); ++i)
        writeMarkers(root.filePath(QStringLiteral("deep/er/file%1").arg(i)), sizes[i]);
    writeMarkers(root.filePath(QStringLiteral("single")), 9999);
    QVERIFY(volume.unmount());
    const qint64 before = volume.countInImage(marker());
    QVERIFY2(before > 150000, qPrintable(QString::number(before))); // control: all of it is on the medium
    QVERIFY(volume.mount());

    WipeTask task;
    task.addFiles({root.filePath(QStringLiteral("deep")), root.filePath(QStringLiteral("single"))});
    task.setMethod(WipeMethod::fromType(method));
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(job.report.fileCount, 7);
    QVERIFY(!root.exists(QStringLiteral("deep")));
    QVERIFY(!root.exists(QStringLiteral("single")));
    QVERIFY(volume.unmount());
    QCOMPARE(volume.countInImage(marker()), 0);
}

void tst_FileResidue::noNameIsLeft_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("mountOptions");
    QTest::newRow("ext4") << QStringLiteral("has_journal") << QString();
    QTest::newRow("ext4, content in the journal")
        << QStringLiteral("has_journal") << QStringLiteral("data=journal");
    QTest::newRow("ext4, commits of two kinds") << QStringLiteral("fast_commit") << QString();
    QTest::newRow("ext4 without a journal") << QStringLiteral("^has_journal") << QString();
}

void tst_FileResidue::noNameIsLeft()
{
    QFETCH(QString, feature);
    QFETCH(QString, mountOptions);
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.makeArguments = QStringList{QStringLiteral("-O"), feature};
    options.mountOptions = mountOptions;
    LoopMount volume(folder.path(), options);
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));

    const QByteArray name = "NameOfThisTest";
    constexpr int Files = 300;
    const QDir root(volume.mountPoint());
    const QStringList folders{QStringLiteral("NameOfThisTest"),
                              QStringLiteral("NameOfThisTest/NameOfThisTestA"),
                              QStringLiteral("NameOfThisTest/NameOfThisTestA/NameOfThisTestB")};
    QVERIFY(root.mkpath(folders.last()));
    for (int i = 0; i < Files; ++i)
        writeMarkers(root.filePath(folders[i % 3] + QStringLiteral("/NameOfThisTest%1").arg(i)), 30);
    writeMarkers(root.filePath(QStringLiteral("NameOfThisTestSingle")), 30);
    QVERIFY(volume.unmount());
    QVERIFY(volume.countInImage(name) >= Files); // control: the names are on the medium
    QVERIFY(volume.mount());

    WipeTask task;
    task.addFiles({root.filePath(folders.first()), root.filePath(QStringLiteral("NameOfThisTestSingle"))});
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QCOMPARE(root.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{QStringLiteral("lost+found")});
    QVERIFY(volume.unmount());
    QCOMPARE(volume.countInImage(name), 0);
    QCOMPARE(volume.countInImage(marker()), 0);
}

void tst_FileResidue::attributesAreTold()
{
    if (const QString reason = LoopMount::unavailableReason(LoopMount::Ext4); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount volume(folder.path(), {.fileSystem = LoopMount::Ext4});
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QDir root(volume.mountPoint());
    const QString file = root.filePath(QStringLiteral("file"));
    const QString empty = root.filePath(QStringLiteral("empty"));
    const QString plain = root.filePath(QStringLiteral("plain"));
    writeMarkers(plain, 5000);
    writeMarkers(file, 5000);
    writeMarkers(empty, 0);
    const QByteArray value = marker().repeated(30); // has a block of its own
    for (const QString &path : {file, empty})
        QCOMPARE(::setxattr(QFile::encodeName(path).constData(), "user.secret", value.constData(),
                            static_cast<std::size_t>(value.size()), 0),
                 0);
    QVERIFY(volume.unmount());
    QVERIFY(volume.mount());

    WipeTask task;
    task.addFiles({file, empty, plain});
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    const QString attribute = QStringLiteral("/user.secret");
    const QList<Shortfall> told = task.outcome().shortfalls();
    QCOMPARE(told.size(), 2);
    for (const QString &path : {file, empty})
        QVERIFY(told.contains({ShortfallKind::ContentElsewhere, path + attribute, value.size()}));
    QVERIFY(!QFile::exists(file));
    QVERIFY(!QFile::exists(empty));
}

void tst_FileResidue::keptFilesStayAsTheyAre_data()
{
    QTest::addColumn<int>("fileSystem");
    QTest::newRow("ext4") << int(LoopMount::Ext4);
    QTest::newRow("xfs") << int(LoopMount::Xfs);
}

void tst_FileResidue::keptFilesStayAsTheyAre()
{
    QFETCH(int, fileSystem);
    const auto kind = static_cast<LoopMount::FileSystem>(fileSystem);
    if (const QString reason = LoopMount::unavailableReason(kind); !reason.isEmpty())
        QSKIP(qPrintable(reason));
    const QTemporaryDir folder;
    LoopMount::Options options;
    options.fileSystem = kind;
    LoopMount volume(folder.path(), options);
    QVERIFY2(volume.isReady(), qPrintable(volume.error()));
    const QDir root(volume.mountPoint());
    writeMarkers(root.filePath(QStringLiteral("kept")), 1234567);
    writeMarkers(root.filePath(QStringLiteral("gone")), 1234567);
    QVERIFY(root.mkdir(QStringLiteral("folder")));
    QVERIFY(QFile::link(root.filePath(QStringLiteral("kept")), root.filePath(QStringLiteral("folder/link"))));

    WipeTask task;
    task.addFiles({root.filePath(QStringLiteral("gone")), root.filePath(QStringLiteral("folder"))});
    const RealJob job = runRealJob(task);
    QVERIFY2(job.success, qPrintable(job.log.join(u'\n')));
    QVERIFY(!root.exists(QStringLiteral("folder")));
    const QByteArray content = contentOf(root.filePath(QStringLiteral("kept")));
    QCOMPARE(content.size(), 1234567);
    QCOMPARE(content.count(marker()), 1234567 / marker().size());
}

QUORVEX_SUITE(tst_FileResidue, QCoreApplication)
#include "tst_fileresidue.moc"
