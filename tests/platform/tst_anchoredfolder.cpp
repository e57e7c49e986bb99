#include "platform/places.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include "platform/anchoredfolder.h"
#include "platform/devices.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <filesystem>
#include <system_error>

using namespace platform;
using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<AnchoredFolder> anchored(const QString &path)
{
    auto folder = backend().folders().anchor(path);
    if (!folder)
        qWarning().noquote() << "cannot open" << path << folder.status().diagnostic();
    return folder ? folder.take() : nullptr;
}

bool stands(const QString &path)
{
    return std::filesystem::exists(std::filesystem::symlink_status(nativePath(path)));
}

} // namespace

// The contract of anchored folders, on every backend and file system.
class tst_AnchoredFolder : public ContractSuite
{
    Q_OBJECT

private slots:
    void filesAreMadeListedAndRemoved();
    void foldersAreMadeAndRemoved();
    void takenNamesAreNotTouched();
    void namesAreSingleComponents();
    void whatIsNoFolderIsNotOpened();
    void aFolderIsClaimedOnce();
    void aFolderInUseIsNotMistakenForAnother();
    void spaceIsThatOfTheVolume();
    void volumesTellWhichTheyAre();
};

void tst_AnchoredFolder::filesAreMadeListedAndRemoved()
{
    const auto folder = anchored(m_folder);
    QVERIFY(folder);
    QVERIFY(!folder->isClaimed());
    {
        const auto file = folder->createFile(u"文件.tmp"_s);
        QVERIFY2(file, qPrintable(file.status().diagnostic()));
        const QByteArray bytes(10'000, 'x');
        QCOMPARE(file.value()->write(bytes.constData(), bytes.size()).valueOr(-1), qint64(bytes.size()));
        QVERIFY(file.value()->flush());
    }
    QCOMPARE(contentOf(path(u"文件.tmp"_s)), QByteArray(10'000, 'x'));
    QCOMPARE(folder->info(u"文件.tmp"_s).value().size, qint64(10'000));
    // A second listing starts from the beginning.
    for (int i = 0; i < 2; ++i) {
        QStringList names;
        QVERIFY(folder->forEachEntry([&](const QString &name, FileKind kind) {
            names.append(name);
            return kind == FileKind::Regular;
        }));
        QCOMPARE(names, QStringList{u"文件.tmp"_s});
    }
    QVERIFY(folder->removeFile(u"文件.tmp"_s));
    QVERIFY(!stands(path(u"文件.tmp"_s)));
    QVERIFY(folder->removeFile(u"文件.tmp"_s).isAbsent());
    QVERIFY(folder->info(u"文件.tmp"_s).status().isAbsent());
}

void tst_AnchoredFolder::foldersAreMadeAndRemoved()
{
    const auto folder = anchored(m_folder);
    QVERIFY(folder);
    auto inner = folder->createFolder(u"inner"_s);
    QVERIFY2(inner, qPrintable(inner.status().diagnostic()));
    QCOMPARE(inner.value()->path(), path(u"inner"_s));
    QVERIFY(inner.value()->hide());
    QVERIFY(inner.value()->createFile(u"file"_s));
    QVERIFY(QFileInfo::exists(path(u"inner/file"_s)));
    inner.value().reset();
    QCOMPARE(folder->removeFolder(u"inner"_s).code, quint32(DirectoryNotEmpty));
    QVERIFY(folder->removeTree(u"inner"_s));
    QVERIFY(!stands(path(u"inner"_s)));
    QVERIFY(folder->createFolder(u"inner"_s));
    QVERIFY(folder->removeFolder(u"inner"_s));
    QVERIFY(!stands(path(u"inner"_s)));
}

void tst_AnchoredFolder::takenNamesAreNotTouched()
{
    writeFile(path(u"file"_s), "stays");
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    const bool hasLink = makeLink(path(u"file"_s), path(u"link"_s));
    const auto folder = anchored(m_folder);
    QVERIFY(folder);
    QStringList names{u"file"_s, u"folder"_s};
    if (hasLink)
        names.append(u"link"_s);
    for (const QString &name : std::as_const(names)) {
        QCOMPARE(folder->createFile(name).code(), quint32(AlreadyExists));
        QCOMPARE(folder->createFolder(name).code(), quint32(AlreadyExists));
        QVERIFY(stands(path(name)));
    }
    QCOMPARE(contentOf(path(u"file"_s)), QByteArray("stays"));
}

void tst_AnchoredFolder::namesAreSingleComponents()
{
    QVERIFY(QDir().mkpath(path(u"a/b"_s)));
    writeFile(path(u"a/file"_s), "stays");
    const auto folder = anchored(path(u"a"_s));
    QVERIFY(folder);
    const QString withZero = u"a"_s + QChar(u'\0') + u'b';
    for (const QString &name : {u""_s, u"."_s, u".."_s, u"b/c"_s, u"../a"_s, u"/"_s, withZero}) {
        QCOMPARE(folder->createFile(name).code(), quint32(InvalidParameter));
        QCOMPARE(folder->createFolder(name).code(), quint32(InvalidParameter));
        QCOMPARE(folder->openFolder(name).code(), quint32(InvalidParameter));
        QCOMPARE(folder->info(name).code(), quint32(InvalidParameter));
        QCOMPARE(folder->removeFile(name).code, quint32(InvalidParameter));
        QCOMPARE(folder->removeFolder(name).code, quint32(InvalidParameter));
        QCOMPARE(folder->removeTree(name).code, quint32(InvalidParameter));
    }
    QCOMPARE(contentOf(path(u"a/file"_s)), QByteArray("stays"));
    QVERIFY(QFileInfo::exists(path(u"a/b"_s)));
}

void tst_AnchoredFolder::whatIsNoFolderIsNotOpened()
{
    writeFile(path(u"file"_s), "stays");
    QVERIFY(QDir().mkdir(path(u"folder"_s)));
    const auto folder = anchored(m_folder);
    QVERIFY(folder);
    QVERIFY(folder->openFolder(u"file"_s).status().isAbsent());
    QVERIFY(folder->openFolder(u"nothing"_s).status().isAbsent());
    QVERIFY(backend().folders().anchor(path(u"file"_s)).status().isAbsent());
    if (!makeLink(path(u"folder"_s), path(u"link"_s)))
        return;
    QVERIFY(!folder->openFolder(u"link"_s));
    QVERIFY(!backend().folders().anchor(path(u"link"_s)));
    QVERIFY(!folder->removeFolder(u"link"_s));
    QVERIFY(stands(path(u"link"_s)));
}

void tst_AnchoredFolder::aFolderIsClaimedOnce()
{
    const auto folder = anchored(m_folder);
    const auto other = anchored(m_folder);
    QVERIFY(folder && other);
    auto made = folder->createFolder(u"mine"_s);
    QVERIFY(made);
    QVERIFY(made.value()->isClaimed());
    QCOMPARE(other->openFolder(u"mine"_s).code(), quint32(SharingViolation));
    made.value().reset();
    auto opened = other->openFolder(u"mine"_s);
    QVERIFY(opened);
    QVERIFY(opened.value()->isClaimed());
    QCOMPARE(folder->openFolder(u"mine"_s).code(), quint32(SharingViolation));
}

// Where the system allows the folder to be replaced, the handle still means the old one. Where it refuses,
// the result is equally safe.
void tst_AnchoredFolder::aFolderInUseIsNotMistakenForAnother()
{
    QVERIFY(QDir().mkdir(path(u"other"_s)));
    writeFile(path(u"other/file"_s), "stays");
    const auto root = anchored(m_folder);
    QVERIFY(root);
    auto folder = root->createFolder(u"mine"_s);
    QVERIFY(folder);
    QVERIFY(folder.value()->createFile(u"file"_s));

    std::error_code refused;
    std::filesystem::rename(nativePath(path(u"mine"_s)), nativePath(path(u"moved"_s)), refused);
#ifdef Q_OS_WIN
    QVERIFY(refused);
    const QString mine = path(u"mine"_s);
#else
    QVERIFY(!refused);
    QVERIFY(makeLink(path(u"other"_s), path(u"mine"_s)));
    const QString mine = path(u"moved"_s);
#endif
    QVERIFY(folder.value()->createFile(u"another"_s));
    QVERIFY(QFileInfo::exists(mine + u"/another"_s));
    QVERIFY(folder.value()->removeFile(u"another"_s));
    QVERIFY(folder.value()->removeFile(u"file"_s));
    QVERIFY(!QFileInfo::exists(mine + u"/file"_s));
    QCOMPARE(contentOf(path(u"other/file"_s)), QByteArray("stays"));
    QVERIFY(!QFileInfo::exists(path(u"other/another"_s)));
}

void tst_AnchoredFolder::spaceIsThatOfTheVolume()
{
    const auto folder = anchored(m_folder);
    QVERIFY(folder);
    QCOMPARE(folder->space().value().totalBytes, backend().folders().space(m_folder).value().totalBytes);
}

void tst_AnchoredFolder::volumesTellWhichTheyAre()
{
    int compared = 0;
    for (const MountedVolume &volume : backend().devices().mountedVolumes()) {
        if (!volume.isReady)
            continue;
        const auto root = backend().folders().anchor(volume.rootPath);
        if (!root) // opening may need root
            continue;
        const auto identity = root.value()->volumeIdentity();
        QVERIFY(identity);
        QVERIFY(!identity.value().isEmpty());
        QCOMPARE(volume.identity, identity.value());
        ++compared;
    }
    if (compared == 0)
        QSKIP("SKIPPED: no mounted volume in sight");
}

QUORVEX_SUITE(tst_AnchoredFolder, QCoreApplication)
#include "tst_anchoredfolder.moc"
