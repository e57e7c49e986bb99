#include "services/loopfiles.h"
#include "support/links.h"
#include "support/reason.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <memory>

using namespace Qt::StringLiterals;

// Runs on a folder that stands in for the system's device information.
class tst_LoopFiles : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aFileThatADeviceIsAttachedToIsNamed();
    void itIsFoundUnderAnotherNameToo();
    void aFolderThatHoldsItIsTold();
    void otherFilesAreNot();
    void aLinkToItIsNot();
    void devicesWithoutAFileDoNotMatter();

private:
    QString sys() const { return m_folder->filePath(u"sys"_s); }
    QString file(const QString &name) const { return m_folder->filePath(name); }
    QString problem(const QString &path) const { return reasonOf(LoopFiles::problem({path}, sys())); }
    QString told() const
    {
        return u"The loop device /dev/loop3 is attached to %1. Nothing was written."_s.arg(m_image);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_image;
};

void tst_LoopFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_image = QFileInfo(writeFile(file(u"images/disk.img"_s), "content")).canonicalFilePath();
    writeFile(file(u"sys/block/loop3/loop/backing_file"_s), m_image.toUtf8() + '\n');
    QVERIFY(QDir().mkpath(file(u"sys/block/loop4"_s)));
}

void tst_LoopFiles::aFileThatADeviceIsAttachedToIsNamed()
{
    QCOMPARE(problem(m_image), told());
    QCOMPARE(reasonOf(LoopFiles::problem({writeFile(file(u"other"_s), "a"), m_image}, sys())), told());
}

void tst_LoopFiles::itIsFoundUnderAnotherNameToo()
{
    std::filesystem::create_hard_link(m_image.toStdU16String(), file(u"images/again"_s).toStdU16String());
    QCOMPARE(problem(file(u"images/again"_s)), told());
}

void tst_LoopFiles::aFolderThatHoldsItIsTold()
{
    QCOMPARE(problem(file(u"images"_s)), told());
    QCOMPARE(problem(m_folder->path()), told());
    // Another name that begins alike.
    QVERIFY(QDir().mkpath(file(u"image"_s)));
    QCOMPARE(problem(file(u"image"_s)), QString());
}

void tst_LoopFiles::otherFilesAreNot()
{
    QCOMPARE(problem(writeFile(file(u"images/other.img"_s), "content")), QString());
    QCOMPARE(problem(file(u"missing"_s)), QString());
    QCOMPARE(reasonOf(LoopFiles::problem({m_image}, file(u"nosys"_s))), QString());
}

void tst_LoopFiles::aLinkToItIsNot()
{
    if (!makeLink(m_image, file(u"link"_s)))
        QSKIP("SKIPPED: the system makes no symbolic links here");
    QCOMPARE(problem(file(u"link"_s)), QString());
}

void tst_LoopFiles::devicesWithoutAFileDoNotMatter()
{
    writeFile(file(u"sys/block/loop3/loop/backing_file"_s), m_image.toUtf8() + " (deleted)\n");
    QCOMPARE(problem(m_image), QString());
}

QUORVEX_SUITE(tst_LoopFiles, QCoreApplication)
#include "tst_loopfiles.moc"
