#include "platform/linux/linuxcontentplace.h"
#include "support/suite.h"

#include <QTest>

#include <linux/fiemap.h>
#include <linux/fs.h>
#include <linux/magic.h>

using namespace platform;

namespace {

constexpr quint32 Bcachefs = 0xCA451A4E;
constexpr quint32 Zfs = 0x2FC12FC1;
constexpr quint32 Ubifs = 0x24051905;
constexpr quint32 Hfs = 0x4244;
constexpr quint32 HfsPlus = 0x482B;

} // namespace

Q_DECLARE_METATYPE(ElsewhereReasons)

// The conclusions drawn from the kernel's answers about a file.
class tst_ContentPlace : public QObject
{
    Q_OBJECT

private slots:
    void reasonsOfAFileSystem_data();
    void reasonsOfAFileSystem();
    void withoutAnExtentMap_data();
    void withoutAnExtentMap();
    void extents_data();
    void extents();
    void bytesOfExtents();
};

void tst_ContentPlace::reasonsOfAFileSystem_data()
{
    QTest::addColumn<quint32>("fileSystem");
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<bool>("journalsData");
    QTest::addColumn<ElsewhereReasons>("expected");
    const auto row = [](const char *name, quint32 fileSystem, quint32 flags, ElsewhereReasons expected,
                        bool journalsData = false) {
        QTest::newRow(name) << fileSystem << flags << journalsData << expected;
    };
    row("ext4", EXT4_SUPER_MAGIC, 0x80000, {});
    row("ext4, data=journal", EXT4_SUPER_MAGIC, 0x80000, Elsewhere::Journalled, true);
    row("ext4, file with a journal", EXT4_SUPER_MAGIC, FS_JOURNAL_DATA_FL, Elsewhere::Journalled);
    row("xfs", XFS_SUPER_MAGIC, 0, {});
    row("btrfs", BTRFS_SUPER_MAGIC, 0, Elsewhere::Relocating);
    row("btrfs, compressed", BTRFS_SUPER_MAGIC, FS_COMPR_FL, Elsewhere::Relocating);
    row("btrfs, in place", BTRFS_SUPER_MAGIC, FS_NOCOW_FL, {});
    row("f2fs", F2FS_SUPER_MAGIC, FS_NOCOW_FL, Elsewhere::Relocating);
    row("nilfs2", NILFS_SUPER_MAGIC, 0, Elsewhere::Relocating);
    row("jffs2", JFFS2_SUPER_MAGIC, 0, Elsewhere::Relocating);
    row("ubifs", Ubifs, 0, Elsewhere::Relocating);
    row("bcachefs", Bcachefs, 0, Elsewhere::Relocating);
    row("zfs", Zfs, 0, Elsewhere::Relocating);
    row("overlay", OVERLAYFS_SUPER_MAGIC, 0, Elsewhere::LowerLayer);
    row("cifs", CIFS_SUPER_MAGIC, 0, Elsewhere::Unknown);
    row("smb2", SMB2_SUPER_MAGIC, 0, Elsewhere::Unknown);
    row("smb", SMB_SUPER_MAGIC, 0, Elsewhere::Unknown);
    row("one that shows extents", 0x12345678, 0, {});
}

void tst_ContentPlace::reasonsOfAFileSystem()
{
    QFETCH(quint32, fileSystem);
    QFETCH(quint32, flags);
    QFETCH(bool, journalsData);
    const ElsewhereReasons found =
        reasonsOf({fileSystem, flags, /*hasExtentMap=*/true, /*journalsData=*/journalsData});
    QTEST(found, "expected");
}

void tst_ContentPlace::withoutAnExtentMap_data()
{
    QTest::addColumn<quint32>("fileSystem");
    QTest::addColumn<bool>("isKnown");
    QTest::newRow("tmpfs") << quint32(TMPFS_MAGIC) << true;
    QTest::newRow("ramfs") << quint32(RAMFS_MAGIC) << true;
    QTest::newRow("vfat") << quint32(MSDOS_SUPER_MAGIC) << true;
    QTest::newRow("exfat") << quint32(EXFAT_SUPER_MAGIC) << true;
    QTest::newRow("ext2") << quint32(EXT2_SUPER_MAGIC) << true;
    QTest::newRow("udf") << quint32(UDF_SUPER_MAGIC) << true;
    QTest::newRow("hfs") << Hfs << true;
    QTest::newRow("hfs+") << HfsPlus << true;
    QTest::newRow("fuse") << quint32(FUSE_SUPER_MAGIC) << false;
    QTest::newRow("nfs") << quint32(NFS_SUPER_MAGIC) << false;
    QTest::newRow("9p") << quint32(V9FS_MAGIC) << false;
    QTest::newRow("ceph") << quint32(CEPH_SUPER_MAGIC) << false;
    QTest::newRow("ecryptfs") << quint32(ECRYPTFS_SUPER_MAGIC) << false;
    QTest::newRow("another one") << quint32(0x12345678) << false;
}

void tst_ContentPlace::withoutAnExtentMap()
{
    QFETCH(quint32, fileSystem);
    QFETCH(bool, isKnown);
    const ElsewhereReasons expected = isKnown ? ElsewhereReasons() : Elsewhere::Unknown;
    QCOMPARE(reasonsOf({.fileSystem = fileSystem}), expected);
}

void tst_ContentPlace::extents_data()
{
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<ElsewhereReasons>("expected");
    const auto row = [](const char *name, quint32 flags, ElsewhereReasons expected) {
        QTest::newRow(name) << flags << expected;
    };
    row("plain", FIEMAP_EXTENT_LAST, {});
    row("merged", FIEMAP_EXTENT_MERGED, {});
    row("unwritten", FIEMAP_EXTENT_UNWRITTEN, {});
    row("not yet allocated", FIEMAP_EXTENT_DELALLOC | FIEMAP_EXTENT_UNKNOWN, {});
    row("unknown", FIEMAP_EXTENT_UNKNOWN, Elsewhere::Unknown);
    row("shared", FIEMAP_EXTENT_SHARED | FIEMAP_EXTENT_LAST, Elsewhere::Shared);
    row("inline", FIEMAP_EXTENT_DATA_INLINE | FIEMAP_EXTENT_NOT_ALIGNED, Elsewhere::Inline);
    row("tail", FIEMAP_EXTENT_DATA_TAIL | FIEMAP_EXTENT_NOT_ALIGNED, Elsewhere::Inline);
    row("compressed", FIEMAP_EXTENT_ENCODED, Elsewhere::Encoded);
    row("compressed and shared", FIEMAP_EXTENT_ENCODED | FIEMAP_EXTENT_SHARED,
        Elsewhere::Encoded | Elsewhere::Shared);
}

void tst_ContentPlace::extents()
{
    QFETCH(quint32, flags);
    QFETCH(ElsewhereReasons, expected);
    const ContentPlace found = placeOf({{0, 4096, 0}, {4096, 4096, flags}}, 8192);
    QCOMPARE(found.elsewhere, expected);
    QCOMPARE(found.bytes, expected ? 4096 : 0);
}

// Blocks reach beyond the end of the file, and so do extents that were allocated in advance.
void tst_ContentPlace::bytesOfExtents()
{
    constexpr quint32 Shared = FIEMAP_EXTENT_SHARED;
    const QList<FileExtent> extents{
        {0, 4096, Shared}, {8192, 4096, 0}, {12288, 4096, Shared}, {16384, 65536, Shared | 1}};
    QCOMPARE(placeOf(extents, 12289), (ContentPlace{Elsewhere::Shared, 4097}));
    QCOMPARE(placeOf(extents, 12288), (ContentPlace{Elsewhere::Shared, 4096}));
    QCOMPARE(placeOf({{4096, 4096, Shared}}, 4096), (ContentPlace{{}, 0}));
}

QUORVEX_SUITE(tst_ContentPlace, suites::NoApplication)
#include "tst_contentplace.moc"
