#include "engine/heldtree.h"
#include "support/suite.h"

#include "platform/files.h"
#include "platform/platform.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
constexpr int Many = 150; // more than the tree holds at a time
}

class tst_HeldTree : public QObject
{
    Q_OBJECT

private slots:
    void foldersAreKnownByTheirWay();
    void aFolderIsAddedOnce();
    void oneFolderOnTwoWays();
    void aFolderThatIsOpenedAgain();
    void anotherFolderIsNotOpenedAgain();
    void anotherTopIsNotOpenedAgain();
    void aReplacedFolderIsAddedAnew();

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    // Opens so many folders that all earlier ones are closed.
    void crowdOut(HeldTree &tree)
    {
        const auto top = tree.addTop(path(u"crowd"_s));
        QVERIFY(top.ok());
        for (int i = 0; i < Many; ++i)
            QVERIFY(tree.addFolder(top.value(), QString::number(i)).ok());
    }

    QTemporaryDir m_folder;

private slots:
    void initTestCase()
    {
        for (int i = 0; i < Many; ++i)
            QVERIFY(QDir().mkpath(path(u"crowd/%1"_s.arg(i))));
    }
};

void tst_HeldTree::foldersAreKnownByTheirWay()
{
    QVERIFY(QDir().mkpath(path(u"way/a/b"_s)));
    HeldTree tree;
    const auto top = tree.addTop(path(u"way"_s));
    const auto a = tree.addFolder(top.value(), u"a"_s);
    const auto b = tree.addFolder(a.value(), u"b"_s);
    QCOMPARE(tree.size(), 3);
    QCOMPARE(tree.path(b.value()), path(u"way/a/b"_s));
    QCOMPARE(tree.path(b.value(), u"file"_s), path(u"way/a/b/file"_s));
    QCOMPARE(tree.parentOf(b.value()), a.value());
    QCOMPARE(tree.parentOf(top.value()), HeldTree::None);
    QCOMPARE(tree.itself(b.value()).value().path(), path(u"way/a/b"_s));
    QCOMPARE(tree.asEntry(b.value()).value().name(), u"b"_s);
    QCOMPARE(tree.asEntry(top.value()).code(), quint32(platform::InvalidParameter));
    QVERIFY(tree.addFolder(a.value(), u"none"_s).status().isAbsent());
}

void tst_HeldTree::aFolderIsAddedOnce()
{
    QVERIFY(QDir().mkpath(path(u"once/a"_s)));
    HeldTree tree;
    const auto top = tree.addTop(path(u"once"_s));
    QCOMPARE(tree.addTop(path(u"once"_s)).value(), top.value());
    const auto a = tree.addFolder(top.value(), u"a"_s);
    QCOMPARE(tree.addFolder(top.value(), u"a"_s).value(), a.value());
    QCOMPARE(tree.size(), 2);
}

void tst_HeldTree::oneFolderOnTwoWays()
{
    QVERIFY(QDir().mkpath(path(u"two/a"_s)));
    HeldTree tree;
    const auto top = tree.addTop(path(u"two"_s));
    const auto a = tree.addFolder(top.value(), u"a"_s);
    const auto again = tree.addTop(path(u"two/a"_s));
    QVERIFY(again.value() != a.value());
    QCOMPARE(tree.firstAs(again.value()), a.value());
    QCOMPARE(tree.firstAs(a.value()), a.value());
}

void tst_HeldTree::aFolderThatIsOpenedAgain()
{
    writeFile(path(u"again/a/b/c/file"_s), "abc");
    HeldTree tree;
    const auto a = tree.addFolder(tree.addTop(path(u"again"_s)).value(), u"a"_s);
    const auto c = tree.addFolder(tree.addFolder(a.value(), u"b"_s).value(), u"c"_s);
    crowdOut(tree);
    const auto file = tree.entry(c.value(), u"file"_s);
    QVERIFY(file.ok());
    QCOMPARE(platform::Platform::current().files().info(file.value()).value().size, 3);
}

void tst_HeldTree::anotherFolderIsNotOpenedAgain()
{
    QVERIFY(QDir().mkpath(path(u"another/a/b"_s)));
    HeldTree tree;
    const auto a = tree.addFolder(tree.addTop(path(u"another"_s)).value(), u"a"_s);
    const auto b = tree.addFolder(a.value(), u"b"_s);
    crowdOut(tree);
    QVERIFY(QDir().rename(path(u"another/a"_s), path(u"another/moved"_s)));
    QVERIFY(QDir().mkpath(path(u"another/a/b"_s)));
    QCOMPARE(tree.entry(a.value(), u"file"_s).code(), quint32(platform::PathNotFound));
    QCOMPARE(tree.entry(b.value(), u"file"_s).code(), quint32(platform::PathNotFound));
}

void tst_HeldTree::anotherTopIsNotOpenedAgain()
{
    QVERIFY(QDir().mkpath(path(u"top"_s)));
    HeldTree tree;
    const auto top = tree.addTop(path(u"top"_s));
    crowdOut(tree);
    QVERIFY(QDir().rename(path(u"top"_s), path(u"moved top"_s)));
    QVERIFY(QDir().mkpath(path(u"top"_s)));
    QCOMPARE(tree.entry(top.value(), u"file"_s).code(), quint32(platform::PathNotFound));
}

void tst_HeldTree::aReplacedFolderIsAddedAnew()
{
    QVERIFY(QDir().mkpath(path(u"anew/a"_s)));
    HeldTree tree;
    const auto top = tree.addTop(path(u"anew"_s));
    const auto a = tree.addFolder(top.value(), u"a"_s);
    tree.release(a.value());
    QVERIFY(QDir().rename(path(u"anew/a"_s), path(u"anew/b"_s)));
    QVERIFY(QDir().mkpath(path(u"anew/a"_s)));
    const auto other = tree.addFolder(top.value(), u"a"_s);
    QVERIFY(other.value() != a.value());
    const auto found = platform::Platform::current().files().info(tree.asEntry(other.value()).value());
#ifndef Q_OS_WIN
    QVERIFY(!tree.isSame(a.value(), found.value()));
#endif
    QVERIFY(tree.isSame(other.value(), found.value()));
}

QUORVEX_SUITE(tst_HeldTree, QCoreApplication)
#include "tst_heldtree.moc"
