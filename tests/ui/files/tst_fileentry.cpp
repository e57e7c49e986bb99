#include "support/suite.h"
#include "ui/files/fileentry.h"

#include "support/links.h"
#ifdef Q_OS_LINUX
#include "support/plainmount.h"
#endif
#include "support/testfiles.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

#define MAKE_LINK_OR_SKIP(target, link)                                                                      \
    do {                                                                                                     \
        if (!makeLink(target, link))                                                                         \
            QSKIP("SKIPPED: the system makes no links for this user");                                       \
    } while (false)

class tst_FileEntry : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void aFileHasItsOwnSize();
    void aFolderHasTheSumOfItsFiles();
    void hiddenFilesAndFoldersCount();
    void anEmptyFolderHasNoBytes();
    void whatDoesNotExistIsNoEntry();
    void aLinkIsAFileWithoutBytes();
    void linksInAFolderAreNotFollowed();
    void foldersLinkedInACircleEnd();
    void whatIsMountedInAFolderDoesNotCount();
    void pipesHaveNoBytes();
    void aVeryDeepFolderIsSummedUp();
    void aFolderThatCannotBeReadEnds();

    void listTexts_data();
    void listTexts();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, qint64 size) const { writeFile(path(name), QByteArray(size, 'x')); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FileEntry::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_FileEntry::aFileHasItsOwnSize()
{
    write(u"a"_s, 1536);
    const auto entry = FileEntry::fromPath(path(u"a"_s));
    QVERIFY(entry);
    QCOMPARE(entry->path, path(u"a"_s));
    QVERIFY(!entry->isFolder);
    QCOMPARE(entry->size, 1536);
}

void tst_FileEntry::aFolderHasTheSumOfItsFiles()
{
    write(u"folder/one"_s, 1);
    write(u"folder/sub/two"_s, 2);
    write(u"folder/sub/sub/three"_s, 3);
    const auto entry = FileEntry::fromPath(path(u"folder"_s));
    QVERIFY(entry && entry->isFolder);
    QCOMPARE(entry->size, 6);
    QCOMPARE(entry->listText(), u"📁  folder  (6 B)"_s);
}

void tst_FileEntry::hiddenFilesAndFoldersCount()
{
    write(u"folder/.hidden"_s, 10);
    write(u"folder/.sub/.hidden"_s, 100);
    write(u"folder/seen"_s, 1);
    QCOMPARE(sizeOfFilesBelow(path(u"folder"_s)), 111);
}

void tst_FileEntry::anEmptyFolderHasNoBytes()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"empty"_s));
    const auto entry = FileEntry::fromPath(path(u"empty"_s));
    QVERIFY(entry && entry->isFolder);
    QCOMPARE(entry->size, 0);
}

void tst_FileEntry::whatDoesNotExistIsNoEntry()
{
    QVERIFY(!FileEntry::fromPath(path(u"nowhere"_s)));
    QVERIFY(!FileEntry::fromPath(QString()));
}

void tst_FileEntry::aLinkIsAFileWithoutBytes()
{
    write(u"folder/file"_s, 50);
    MAKE_LINK_OR_SKIP(path(u"folder"_s), path(u"to folder"_s));
    const auto entry = FileEntry::fromPath(path(u"to folder"_s));
    QVERIFY(entry);
    QVERIFY(!entry->isFolder);
    QCOMPARE(entry->size, 0);
}

void tst_FileEntry::linksInAFolderAreNotFollowed()
{
    write(u"elsewhere/file"_s, 50);
    write(u"folder/own"_s, 7);
    MAKE_LINK_OR_SKIP(path(u"elsewhere"_s), path(u"folder/to folder"_s));
    MAKE_LINK_OR_SKIP(path(u"elsewhere/file"_s), path(u"folder/to file"_s));
    MAKE_LINK_OR_SKIP(path(u"nowhere"_s), path(u"folder/to nothing"_s));
    QCOMPARE(sizeOfFilesBelow(path(u"folder"_s)), 7);
}

void tst_FileEntry::foldersLinkedInACircleEnd()
{
    write(u"folder/sub/own"_s, 7);
    MAKE_LINK_OR_SKIP(path(u"folder"_s), path(u"folder/sub/up"_s));
    MAKE_LINK_OR_SKIP(path(u"folder/self"_s), path(u"folder/self"_s));
    QCOMPARE(sizeOfFilesBelow(path(u"folder"_s)), 7);
}

void tst_FileEntry::whatIsMountedInAFolderDoesNotCount()
{
#ifdef Q_OS_LINUX
    if (::geteuid() != 0)
        QSKIP("SKIPPED: mounting a volume needs root");
    write(u"folder/own"_s, 7);
    QVERIFY(QDir(path(u"folder"_s)).mkdir(u"volume"_s));
    const PlainMount volume("tmpfs", QString(), path(u"folder/volume"_s));
    QVERIFY(volume.isMounted());
    write(u"folder/volume/another's"_s, 50);
    QCOMPARE(sizeOfFilesBelow(path(u"folder"_s)), 7);
#else
    QSKIP("SKIPPED: only on Linux can a test mount a volume of its own");
#endif
}

void tst_FileEntry::pipesHaveNoBytes()
{
#ifdef Q_OS_UNIX
    write(u"folder/own"_s, 7);
    QCOMPARE(::mkfifo(QFile::encodeName(path(u"folder/pipe"_s)).constData(), 0600), 0);
    QCOMPARE(sizeOfFilesBelow(path(u"folder"_s)), 7);
    QCOMPARE(FileEntry::fromPath(path(u"folder/pipe"_s))->size, 0);
#else
    QSKIP("SKIPPED: pipes lie in no folder here");
#endif
}

void tst_FileEntry::aVeryDeepFolderIsSummedUp()
{
    QString name = u"deep"_s;
    for (int level = 0; level < 100; ++level)
        name += u"/d"_s;
    write(name + u"/file"_s, 9);
    QCOMPARE(sizeOfFilesBelow(path(u"deep"_s)), 9);
}

void tst_FileEntry::aFolderThatCannotBeReadEnds()
{
    QCOMPARE(sizeOfFilesBelow(path(u"nowhere"_s)), 0);
}

void tst_FileEntry::listTexts_data()
{
    QTest::addColumn<FileEntry>("entry");
    QTest::addColumn<QString>("text");
    QTest::newRow("file") << FileEntry{u"/media/anna/a.txt"_s, false, 1536} << u"📄  a.txt  (1.50 KB)"_s;
    QTest::newRow("folder") << FileEntry{u"/home/anna"_s, true, 0} << u"📁  anna  (0 B)"_s;
    QTest::newRow("folder with a slash at its end")
        << FileEntry{u"/media/anna/"_s, true, 6} << u"📁  anna  (6 B)"_s;
    QTest::newRow("root") << FileEntry{u"/"_s, true, 6} << u"📁  /  (6 B)"_s;
    QTest::newRow("percent signs") << FileEntry{u"/a/%1 %2 %3"_s, false, 6} << u"📄  %1 %2 %3  (6 B)"_s;
    QTest::newRow("characters that reorder")
        << FileEntry{u"/a/\u202Etxt.exe"_s, false, 6} << u"📄  [U+202E]txt.exe  (6 B)"_s;
    QTest::newRow("a line break") << FileEntry{u"/a/b\nc"_s, false, 6} << u"📄  b[U+000A]c  (6 B)"_s;
}

void tst_FileEntry::listTexts()
{
    QFETCH(FileEntry, entry);
    QFETCH(QString, text);
    QCOMPARE(entry.listText(), text);
}

QUORVEX_SUITE(tst_FileEntry, QApplication)
#include "tst_fileentry.moc"
