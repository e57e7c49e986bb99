#include "platform/fileflags.h"
#include "platform/places.h"
#include "support/loopmount.h"
#include "support/plainmount.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/filenames.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/linux/linuxdurabilitygroup.h"
#include "platform/linux/linuxfiledescriptor.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/mount.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Page = 4096;

Files &files()
{
    return backend().files();
}

EntryPath held(const QString &folder, const QString &name = {})
{
    return {backend().folders().hold(folder).take(), name};
}

// A file written to its end, flushed and left open.
std::unique_ptr<FileHandle> written(const std::shared_ptr<DurabilityGroup> &group, const EntryPath &entry,
                                    const QByteArray &bytes)
{
    auto file = files().openIn(group, entry, OpenMode::Overwrite);
    if (!file || file.value()->write(bytes.constData(), bytes.size()).valueOr(-1) != bytes.size() ||
        !file.value()->flush())
        qFatal("cannot write %s", qPrintable(entry.path()));
    return file.take();
}

// Syncs the file system through a call that needs no root.
bool syncFileSystem(const QString &folder)
{
    const FileDescriptor opened(::open(encodeName(folder).constData(), O_RDONLY | O_CLOEXEC));
    return ::syncfs(opened.get()) == 0;
}

} // namespace

// Files that reach the medium together, on file systems where they do.
class tst_DurabilityGroup : public ContractSuite
{
    Q_OBJECT

private slots:
    void initTestCase_data();
    void membersDoNotWaitForEachWrite();
    void membersAreOnTheMediumWhenItIsClosed_data();
    void membersAreOnTheMediumWhenItIsClosed();
    void theDriveIsFlushedWhereNothingIsToBeLogged();
    void namesAndLengthsAreOnTheMediumToo();
    void theFolderMayBeRemoved();
    void whatIsFlushedLaterIsFlushedByItself();
    void isClosedOnce();
    void anotherMountIsNotCovered();
    void elsewhereThereIsNone();
    void aPathIsNoHeldFolder();
    void kernelsThatTellLostWrites_data();
    void kernelsThatTellLostWrites();
};

void tst_DurabilityGroup::initTestCase_data()
{
    Places::addRows({u"ext4"_s, u"ext4 on 4096-byte sectors"_s, u"xfs"_s, u"btrfs"_s});
}

void tst_DurabilityGroup::membersDoNotWaitForEachWrite()
{
    const QString name = writeFile(path(u"file"_s), QByteArray(10'000, 'a'));
    const auto group = files().beginGroup(held(m_folder));
    QVERIFY(group.ok());
    constexpr int Asked = O_ACCMODE | O_DIRECT | O_SYNC;
    const auto flagsIn = [&](const std::shared_ptr<DurabilityGroup> &in) {
        const auto file = files().openIn(in, held(m_folder, u"file"_s), OpenMode::Overwrite);
        return file ? openFlags(name) & Asked : -1;
    };
    QCOMPARE(flagsIn(group.value()), O_RDWR | O_DIRECT);
    QCOMPARE(flagsIn(nullptr), O_RDWR | O_DIRECT | O_DSYNC);
    QVERIFY(files().closeGroup(*group.value()).ok());
}

void tst_DurabilityGroup::membersAreOnTheMediumWhenItIsClosed_data()
{
    QTest::addColumn<qint64>("size");
    for (const qint64 size : {1, 700, 4096, 100'000, 1'048'576, 1'048'577})
        QTest::addRow("%lld", static_cast<long long>(size)) << size;
}

// Uses several members, because the last step of closing concerns a single one.
void tst_DurabilityGroup::membersAreOnTheMediumWhenItIsClosed()
{
    QFETCH(qint64, size);
    const QByteArray marker = u"%1 bytes of each member;"_s.arg(size).toUtf8();
    const QByteArray content = marker.repeated(size / marker.size() + 1).left(size);
    for (int i = 0; i < 3; ++i)
        writeThrough(path(QString::number(i)), QByteArray(size, 'a'));
    const auto group = files().beginGroup(held(m_folder));
    QVERIFY(group.ok());
    for (int i = 0; i < 3; ++i)
        written(group.value(), held(m_folder, QString::number(i)), content);
    const qint64 before = m_places.loop()->flushCount();
    QVERIFY(before >= 0);
    QVERIFY(files().closeGroup(*group.value()).ok());
    QVERIFY(m_places.loop()->flushCount() > before);
    const QByteArray image = m_places.loop()->readImage(0, QFileInfo(m_places.loop()->image()).size());
    // Checked only where small files are stored apart from metadata.
    if (size >= Page)
        QVERIFY(image.count(content.left(Page - 100)) >= 3);
    else if (size >= marker.size())
        QVERIFY(image.count(content) >= 3);
}

void tst_DurabilityGroup::theDriveIsFlushedWhereNothingIsToBeLogged()
{
    writeThrough(path(u"file"_s), QByteArray(4 * Page, 'a'));
    const auto group = files().beginGroup(held(m_folder));
    QVERIFY(group.ok());
    const auto file = written(group.value(), held(m_folder, u"file"_s), QByteArray(4 * Page, 'z'));
    QVERIFY(syncFileSystem(m_folder));
    const qint64 before = m_places.loop()->flushCount();
    QVERIFY(files().closeGroup(*group.value()).ok());
    QFETCH_GLOBAL(QString, place);
    if (place != u"btrfs"_s) // its commit has flushed already, and the file system knows it
        QVERIFY(m_places.loop()->flushCount() > before);
}

void tst_DurabilityGroup::namesAndLengthsAreOnTheMediumToo()
{
    writeThrough(path(u"file"_s), QByteArray(4 * Page, 'a'));
    const auto group = files().beginGroup(held(m_folder));
    QVERIFY(group.ok());
    const EntryPath entry = held(m_folder, u"file"_s);
    {
        const auto file = files().openIn(group.value(), entry, OpenMode::Truncate);
        QVERIFY(file.ok());
        QVERIFY(file.value()->setEnd().ok());
        QVERIFY(file.value()->flush().ok());
    }
    QVERIFY(files().rename(entry, entry.sibling(u"other"_s)).ok());
    QVERIFY(files().remove(entry.sibling(u"other"_s)).ok());
    const qint64 before = m_places.loop()->flushCount();
    QVERIFY(files().closeGroup(*group.value()).ok());
    QVERIFY(m_places.loop()->flushCount() > before);
}

void tst_DurabilityGroup::theFolderMayBeRemoved()
{
    QVERIFY(QDir().mkdir(path(u"gone"_s)));
    const auto group = files().beginGroup(held(path(u"gone"_s)));
    QVERIFY(group.ok());
    QVERIFY(QDir().rmdir(path(u"gone"_s)));
    QVERIFY(files().closeGroup(*group.value()).ok());
}

void tst_DurabilityGroup::whatIsFlushedLaterIsFlushedByItself()
{
    writeThrough(path(u"file"_s), QByteArray(4 * Page, 'a'));
    const auto group = files().beginGroup(held(m_folder));
    const auto file = written(group.value(), held(m_folder, u"file"_s), QByteArray(4 * Page, 'y'));
    QVERIFY(files().closeGroup(*group.value()).ok());
    QVERIFY(file->seek(0).ok());
    QCOMPARE(file->write(QByteArray(4 * Page, 'z').constData(), 4 * Page).valueOr(-1), 4 * Page);
    const qint64 before = m_places.loop()->flushCount();
    QVERIFY(file->flush().ok());
    QVERIFY(m_places.loop()->flushCount() > before);
}

void tst_DurabilityGroup::isClosedOnce()
{
    const auto group = files().beginGroup(held(m_folder));
    QVERIFY(files().closeGroup(*group.value()).ok());
    QCOMPARE(files().closeGroup(*group.value()).code, quint32(InvalidParameter));
}

// The other mount shows the same file system, but a held folder does not lead to it.
void tst_DurabilityGroup::anotherMountIsNotCovered()
{
    writeFile(path(u"below/file"_s), QByteArray(Page, 'a'));
    QVERIFY(QDir().mkdir(path(u"mounted"_s)));
    const PlainMount mount("", path(u"below"_s), path(u"mounted"_s), MS_BIND);
    QVERIFY(mount.isMounted());
    const auto group = files().beginGroup(held(m_folder));
    QVERIFY(group.ok());
    QVERIFY(group.value()->covers(*held(path(u"below"_s)).folder()));
    QVERIFY(!group.value()->covers(*held(path(u"mounted"_s)).folder()));
    const QString name = path(u"mounted/file"_s);
    const auto file = files().openIn(group.value(), held(path(u"mounted"_s), u"file"_s), OpenMode::Overwrite);
    QVERIFY(file.ok());
    QVERIFY(openFlags(name) & O_DSYNC);
    QVERIFY(files().closeGroup(*group.value()).ok());
}

void tst_DurabilityGroup::elsewhereThereIsNone()
{
    for (const char *const type : {"tmpfs", "ramfs"}) {
        QVERIFY(QDir().mkpath(path(u"mounted"_s)));
        const PlainMount mount(type, {}, path(u"mounted"_s));
        QVERIFY(mount.isMounted());
        QCOMPARE(files().beginGroup(held(path(u"mounted"_s))).code(), quint32(NotSupported));
    }
    QCOMPARE(files().beginGroup(held(u"/sys"_s)).code(), quint32(NotSupported));
}

void tst_DurabilityGroup::aPathIsNoHeldFolder()
{
    QCOMPARE(files().beginGroup(m_folder).code(), quint32(InvalidParameter));
}

void tst_DurabilityGroup::kernelsThatTellLostWrites_data()
{
    QTest::addColumn<QByteArray>("release");
    QTest::addColumn<bool>("expected");
    QTest::newRow("4.19") << QByteArray("4.19.0-27-amd64") << false;
    QTest::newRow("5.4") << QByteArray("5.4.0-200-generic") << false;
    QTest::newRow("5.7") << QByteArray("5.7.19") << false;
    QTest::newRow("5.8") << QByteArray("5.8.0") << true;
    QTest::newRow("5.10") << QByteArray("5.10.0-33-amd64") << true;
    QTest::newRow("6.1") << QByteArray("6.1.0-37-amd64") << true;
    QTest::newRow("7.0") << QByteArray("7.0-rc1") << true;
    QTest::newRow("no number") << QByteArray("next") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void tst_DurabilityGroup::kernelsThatTellLostWrites()
{
    QFETCH(QByteArray, release);
    QFETCH(bool, expected);
    QCOMPARE(tellsLostWrites(release.constData()), expected);
}

QUORVEX_SUITE(tst_DurabilityGroup, QCoreApplication)
#include "tst_durabilitygroup.moc"
