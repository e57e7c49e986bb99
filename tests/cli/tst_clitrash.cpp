#include "cli/testio.h"
#include "platform/forwarding.h"
#include "platform/platform.h"
#include "support/fakedevices.h"
#include "support/infofiles.h"
#include "support/links.h"
#include "support/suite.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

// "trash list" and "wipe trash", on bins in folders of the test.
class tst_CliTrash : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { hideMachine(m_home); }
    void init();

    void theBinsOfARootAreListed();
    void oneUsersBinIsListed();
    void theListIsOneObjectForMachines();
    void anEmptyBinListsNothing();
    void aRootThatIsNoFolderIsRefused();
    void sidWithoutRootMakesNoSense();
    void anEmptyRootIsNotTheCurrentFolder();
    void aRootUnderTwoNamesCountsOnce();
    void namesCannotSteerTheTerminal();
    void anOldPathEndsAtItsZero();
    void anImpossibleSizeIsToldAsSuch();
    void whatWasListedIsErased();
    void onlyTheUserThatWasNamedLosesFiles();
    void nothingIsErasedWithoutTheWord();
    void anEmptyBinIsDoneAtOnce();
    void aBinThatIsALinkIsLeftAlone();
    void aRecordThatLeadsElsewhereErasesNothingThere();
    void aDamagedRecordIsErasedWithItsFile();
    void dataWithoutARecordIsErasedToo();
    void aSidWithoutABinIsRefused();
    void whatIsNotLookedIntoIsListed();
    void whatIsNotLookedIntoMakesTheJobPartial();
#ifdef Q_OS_UNIX
    void theDesktopsTrashIsErasedWithItsRecords();
    void aLinkInTheBinMakesNothingPartial();
    void namesOfErasedFoldersLeaveTheRecords();
    void theBinOfAnotherAccountIsToldAsSuch();
    void theDesktopIsToldOfItsBin();
    void recordsThatCannotBeMendedAreTold();
    void aTrashThatIsALinkIsLeftAlone();
#endif

private:
    QString path(const QString &name) const
    {
        return m_root->filePath(name);
    }
    QString bin(const QString &sid, const QString &name) const
    {
        return path(u"$Recycle.Bin/%1/%2"_s.arg(sid, name));
    }
    // A deleted file with its record.
    void addDeleted(const QString &sid, const QString &name, const QString &original,
                    const QByteArray &content)
    {
        QVERIFY(QDir().mkpath(bin(sid, {})));
        writeFile(bin(sid, u"$I"_s + name), infoVersion2(original, quint64(content.size())));
        writeFile(bin(sid, u"$R"_s + name), content);
    }
    QStringList list(const QStringList &more = {}) const
    {
        return QStringList{u"trash"_s, u"list"_s, u"--root"_s, m_root->path()} + more;
    }
    QStringList wipe(const QStringList &more = {u"--yes"_s}) const
    {
        return QStringList{u"wipe"_s, u"trash"_s, u"--root"_s, m_root->path()} + more;
    }

    // Adds a file to the trash of the desktop.
    void addToTrash(const QString &name, const QByteArray &content) const
    {
        const QString trash = m_home.filePath(u"Trash"_s);
        QVERIFY(QDir().mkpath(trash + u"/files"_s));
        QVERIFY(QDir().mkpath(trash + u"/info"_s));
        writeFile(trash + u"/files/"_s + name, content);
        writeFile(trash + u"/info/"_s + name + u".trashinfo"_s, "[Trash Info]\nPath=/tmp/a\n");
    }

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_root;
};

namespace {

// The real files, and a user defined by the test.
struct AccountMachine
{
    FakeSession session;
    std::unique_ptr<platform::Platform> native = platform::createPlatform({{}, true});
    platform::ForwardingPlatform platform{native->files(), native->folders(), native->devices(), session};
    platform::ScopedPlatform scope{platform};

    AccountMachine() { session.user = native->session().userId(); }
};

const QString Alice = u"S-1-5-21-1-2-3-1001"_s;
const QString Bob = u"S-1-5-21-1-2-3-1002"_s;

} // namespace

void tst_CliTrash::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    QVERIFY(QDir(m_home.filePath(u"Trash"_s)).removeRecursively());
}

void tst_CliTrash::theBinsOfARootAreListed()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\letters\\love.txt"_s, QByteArray(1000, 'a'));
    addDeleted(Bob, u"BBBBBB.txt"_s, u"C:\\bills.txt"_s, QByteArray(24, 'b'));
    CliRun run;
    run(list());
    QCOMPARE(run.code, 0);
    QVERIFY2(run.io.out.contains("C:\\letters\\love.txt (1000 B)\n"), run.io.out.constData());
    QVERIFY(run.io.out.contains("C:\\bills.txt (24 B)\n"));
    QVERIFY(run.io.out.endsWith("2 items, 1.00 KB\n"));
    QVERIFY(QFile::exists(bin(Alice, u"$RAAAAAA.txt"_s)));
}

void tst_CliTrash::oneUsersBinIsListed()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "a");
    addDeleted(Bob, u"BBBBBB.txt"_s, u"C:\\b.txt"_s, "b");
    CliRun run;
    run(list({u"--sid"_s, Bob}));
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out, QByteArray("C:\\b.txt (1 B)\n1 item, 1 B\n"));
}

void tst_CliTrash::theListIsOneObjectForMachines()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "abc");
    CliRun run;
    run(list({u"--json"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.documents().size(), 1);
    const QJsonObject object = run.io.documents().constFirst().object();
    QCOMPARE(object.keys(), (QStringList{u"drives"_s, u"fileCount"_s, u"filePaths"_s, u"items"_s,
                                         u"totalSize"_s, u"unrecorded"_s, u"unscanned"_s}));
    QCOMPARE(object.value(u"fileCount"), QJsonValue(1));
    QCOMPARE(object.value(u"totalSize"), QJsonValue(u"3"_s));
    QCOMPARE(object.value(u"filePaths").toArray().size(), 2);
    QCOMPARE(object.value(u"drives").toArray().size(), 1);
    const QJsonObject item = object.value(u"items").toArray().at(0).toObject();
    QCOMPARE(item.value(u"fileName"), QJsonValue(u"a.txt"_s));
    QCOMPARE(item.value(u"originalPath"), QJsonValue(u"C:\\a.txt"_s));
    QVERIFY(item.value(u"recyclePath").toString().endsWith(u"$RAAAAAA.txt"_s));
    QVERIFY(item.value(u"infoPath").toString().endsWith(u"$IAAAAAA.txt"_s));
    QCOMPARE(item.value(u"size"), QJsonValue(u"3"_s));
    QCOMPARE(item.value(u"isDirectory"), QJsonValue(false));
}

void tst_CliTrash::anEmptyBinListsNothing()
{
    CliRun run;
    run(list());
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out, QByteArray("0 items, 0 B\n"));
}

void tst_CliTrash::aRootThatIsNoFolderIsRefused()
{
    CliRun run;
    run({u"trash"_s, u"list"_s, u"--root"_s, path(u"missing"_s)});
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("is no folder"), run.io.err.constData());
}

void tst_CliTrash::sidWithoutRootMakesNoSense()
{
    CliRun run;
    run({u"wipe"_s, u"trash"_s, u"--sid"_s, Alice, u"--yes"_s});
    QCOMPARE(run.code, 2);
    QVERIFY2(run.complains("--sid needs --root"), run.io.err.constData());
    CliRun empty;
    empty(wipe({u"--sid="_s, u"--yes"_s})); // an empty variable must not mean all users
    QCOMPARE(empty.code, 2);
}

void tst_CliTrash::anEmptyRootIsNotTheCurrentFolder()
{
    CliRun run;
    run({u"wipe"_s, u"trash"_s, u"--root="_s, u"--yes"_s});
    QCOMPARE(run.code, 2);
}

void tst_CliTrash::aRootUnderTwoNamesCountsOnce()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "abc");
    CliRun run;
    run(list({u"--root"_s, m_root->path() + u"/."_s}));
    QCOMPARE(run.code, 0);
    QVERIFY2(run.io.out.endsWith("1 item, 3 B\n"), run.io.out.constData());
}

void tst_CliTrash::namesCannotSteerTheTerminal()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a\x1b[2J\u202Etxt"_s, "abc");
    CliRun run;
    run(list());
    QVERIFY(!run.io.out.contains('\x1b'));
    QVERIFY(!run.io.out.contains("\xe2\x80\xae"));
}

void tst_CliTrash::anOldPathEndsAtItsZero()
{
    const QString recorded = QString(u"C:\\old\\letter.txt\0\\harmless.txt"_s);
    writeFile(bin(Alice, u"$IAAAAAA.txt"_s), infoVersion1(recorded, 3));
    writeFile(bin(Alice, u"$RAAAAAA.txt"_s), "abc");
    CliRun run;
    run(list());
    QCOMPARE(run.io.out, QByteArray("C:\\old\\letter.txt (3 B)\n1 item, 3 B\n"));
    CliRun json;
    json(list({u"--json"_s}));
    const QJsonObject object = json.io.documents().constFirst().object();
    const QJsonObject item = object.value(u"items").toArray().at(0).toObject();
    QCOMPARE(item.value(u"originalPath"), QJsonValue(u"C:\\old\\letter.txt"_s));
    QCOMPARE(item.value(u"fileName"), QJsonValue(u"letter.txt"_s));
}

void tst_CliTrash::anImpossibleSizeIsToldAsSuch()
{
    writeFile(bin(Alice, u"$IAAAAAA.txt"_s),
              infoVersion2(u"C:\\a.txt"_s, std::numeric_limits<quint64>::max()));
    writeFile(bin(Alice, u"$RAAAAAA.txt"_s), "abc");
    addDeleted(Alice, u"BBBBBB.txt"_s, u"C:\\b.txt"_s, "four");
    CliRun run;
    run(list());
    QVERIFY2(run.io.out.contains("C:\\a.txt (16384.00 PB, an impossible size)\n"), run.io.out.constData());
    QVERIFY2(run.io.out.endsWith("2 items, 16384.00 PB\nImpossible sizes in the sum: 1\n"),
             run.io.out.constData());
    CliRun json;
    json(list({u"--json"_s}));
    const QJsonObject object = json.io.documents().constFirst().object();
    QCOMPARE(object.value(u"totalSize"), QJsonValue(u"18446744073709551615"_s));
}

void tst_CliTrash::whatWasListedIsErased()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, QByteArray(5000, 'a'));
    addDeleted(Bob, u"BBBBBB"_s, u"C:\\folder"_s, {});
    QVERIFY(QFile::remove(bin(Bob, u"$RBBBBBB"_s)));
    QVERIFY(QDir().mkpath(bin(Bob, u"$RBBBBBB/sub"_s)));
    writeFile(bin(Bob, u"$RBBBBBB/sub/deep.txt"_s), "deep");
    writeFile(bin(Bob, u"desktop.ini"_s), "kept");
    writeFile(path(u"kept.txt"_s), "kept");
    CliRun run;
    run(wipe());
    QCOMPARE(run.code, 0);
    QCOMPARE(QDir(bin(Alice, {})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList());
    QCOMPARE(QDir(bin(Bob, {})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"desktop.ini"_s});
    QCOMPARE(contentOf(path(u"kept.txt"_s)), QByteArray("kept"));
    QVERIFY2(run.io.out.contains("DONE: the Recycle Bin, NIST 800-88"), run.io.out.constData());
}

void tst_CliTrash::onlyTheUserThatWasNamedLosesFiles()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "a");
    addDeleted(Bob, u"BBBBBB.txt"_s, u"C:\\b.txt"_s, "b");
    CliRun run;
    run(wipe({u"--sid"_s, Bob, u"--yes"_s}));
    QCOMPARE(run.code, 0);
    QCOMPARE(contentOf(bin(Alice, u"$RAAAAAA.txt"_s)), QByteArray("a"));
    QVERIFY(!QFile::exists(bin(Bob, u"$RBBBBBB.txt"_s)));
}

void tst_CliTrash::nothingIsErasedWithoutTheWord()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "a");
    CliRun run;
    run.io.inputIsTerminal = true;
    run.io.input = {u"yes"_s};
    run(wipe({}));
    QCOMPARE(run.code, 3);
    QCOMPARE(contentOf(bin(Alice, u"$RAAAAAA.txt"_s)), QByteArray("a"));
    QVERIFY2(run.io.err.contains("C:\\a.txt (1 B)") && run.io.err.contains("1 item, 1 B"),
             run.io.err.constData());
}

void tst_CliTrash::anEmptyBinIsDoneAtOnce()
{
    CliRun run;
    run(wipe());
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out, QByteArray("The Recycle Bin is empty.\n"));
    CliRun machine;
    machine(wipe({u"--yes"_s, u"--json"_s}));
    QCOMPARE(machine.code, 0);
    QCOMPARE(machine.io.events(u"log"_s).size(), 1);
    const QJsonObject last = machine.io.events().constLast();
    QCOMPARE(last.value(u"event"), QJsonValue(u"finished"_s));
    QCOMPARE(last.value(u"success"), QJsonValue(true));
    QCOMPARE(last.value(u"report").toObject(), QJsonObject());
}

void tst_CliTrash::aBinThatIsALinkIsLeftAlone()
{
    const QTemporaryDir elsewhere;
    QVERIFY(QDir().mkpath(elsewhere.filePath(Alice)));
    writeFile(elsewhere.filePath(Alice + u"/$IAAAAAA.txt"_s), infoVersion2(u"C:\\a.txt"_s, 1));
    writeFile(elsewhere.filePath(Alice + u"/$RAAAAAA.txt"_s), "a");
    if (!makeLink(elsewhere.path(), path(u"$Recycle.Bin"_s)))
        QSKIP(NoLinks);
    CliRun run;
    run(wipe());
    QCOMPARE(run.code, 3);
    QVERIFY2(run.complains("$Recycle.Bin is a link and is not followed"), run.io.err.constData());
    QCOMPARE(contentOf(elsewhere.filePath(Alice + u"/$RAAAAAA.txt"_s)), QByteArray("a"));
}

void tst_CliTrash::aRecordThatLeadsElsewhereErasesNothingThere()
{
    writeFile(path(u"victim.txt"_s), "kept");
    addDeleted(Alice, u"AAAAAA.txt"_s, path(u"victim.txt"_s), "a");
    addDeleted(Alice, u"BBBBBB.txt"_s, u"../../victim.txt"_s, "b");
    CliRun run;
    run(wipe());
    QCOMPARE(run.code, 0);
    QCOMPARE(contentOf(path(u"victim.txt"_s)), QByteArray("kept"));
}

void tst_CliTrash::aDamagedRecordIsErasedWithItsFile()
{
    QVERIFY(QDir().mkpath(bin(Alice, {})));
    writeFile(bin(Alice, u"$IAAAAAA.txt"_s), "\x02");
    writeFile(bin(Alice, u"$RAAAAAA.txt"_s), "secret");
    CliRun run;
    run(wipe());
    QCOMPARE(run.code, 0);
    QVERIFY(!QFile::exists(bin(Alice, u"$IAAAAAA.txt"_s)));
    QVERIFY(!QFile::exists(bin(Alice, u"$RAAAAAA.txt"_s)));
}

void tst_CliTrash::dataWithoutARecordIsErasedToo()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "abc");
    writeFile(bin(Alice, u"$RBBBBBB.txt"_s), "12345");
    writeFile(bin(Alice, u"$RCCCCCC/deep/c.txt"_s), "1234567");
    CliRun listing;
    listing(list());
    QCOMPARE(listing.code, 0);
    QCOMPARE(listing.io.out, QByteArray("C:\\a.txt (3 B)\n$RBBBBBB.txt (5 B)\n$RCCCCCC (folder, 7 B)\n"
                                        "1 item, 3 B\nand 2 entries without a record, 12 B\n"));
    CliRun machine;
    machine(list({u"--json"_s}));
    const QJsonObject object = machine.io.documents().constFirst().object();
    QCOMPARE(object.value(u"fileCount"), QJsonValue(1));
    QCOMPARE(object.value(u"unrecorded").toArray().size(), 2);
    QCOMPARE(object.value(u"unrecorded").toArray().at(0).toObject().value(u"recyclePath"),
             QJsonValue(QFileInfo(bin(Alice, u"$RBBBBBB.txt"_s)).canonicalFilePath()));
    CliRun run;
    run.io.inputIsTerminal = true;
    run.io.input = {u"ERASE"_s};
    run(wipe({}));
    QCOMPARE(run.code, 0);
    QVERIFY2(run.io.err.contains("  and 2 entries without a record, 12 B\n"), run.io.err.constData());
    QVERIFY(QDir(bin(Alice, {})).isEmpty());
}

void tst_CliTrash::aSidWithoutABinIsRefused()
{
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "abc");
    for (const QStringList &command : {wipe({u"--sid"_s, Bob, u"--yes"_s}), list({u"--sid"_s, Bob})}) {
        CliRun run;
        run(command);
        QCOMPARE(run.code, 3);
        QVERIFY2(run.complains(("no bin of " + Bob.toUtf8() + " was found").constData()),
                 run.io.err.constData());
        QCOMPARE(run.io.out, QByteArray());
    }
    QCOMPARE(contentOf(bin(Alice, u"$RAAAAAA.txt"_s)), QByteArray("abc"));
}

void tst_CliTrash::whatIsNotLookedIntoIsListed()
{
    const QTemporaryDir elsewhere;
    QVERIFY(QDir().mkpath(path(u"$Recycle.Bin"_s)));
    if (!makeLink(elsewhere.path(), bin(Alice, {}).chopped(1)))
        QSKIP(NoLinks);
    const QByteArray place =
        QFileInfo(m_root->path()).canonicalFilePath().toUtf8() + "/$Recycle.Bin/" + Alice.toUtf8();
    CliRun run;
    run(list());
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.out, "0 items, 0 B\n" + place + " is a link and is not followed\n");
    CliRun machine;
    machine(list({u"--json"_s}));
    const QJsonArray told = machine.io.documents().constFirst().object().value(u"unscanned").toArray();
    QCOMPARE(told,
             (QJsonArray{QJsonObject{{u"path"_s, QString::fromUtf8(place)}, {u"reason"_s, u"link"_s}}}));
}

void tst_CliTrash::whatIsNotLookedIntoMakesTheJobPartial()
{
    const QTemporaryDir elsewhere;
    writeFile(elsewhere.filePath(u"$RAAAAAA.txt"_s), "kept");
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "abc");
    if (!makeLink(elsewhere.path(), bin(Bob, {}).chopped(1)))
        QSKIP(NoLinks);
    CliRun run;
    run(wipe({u"--yes"_s, u"--json"_s}));
    QCOMPARE(run.code, 1);
    QVERIFY2(run.io.err.contains("is a link and is not followed\n"), run.io.err.constData());
    QVERIFY(run.io.err.contains("not everything will be erased"));
    const QJsonObject last = run.io.events().constLast();
    QCOMPARE(last.value(u"outcome"), QJsonValue(u"partial"_s));
    const QJsonArray shortfalls = last.value(u"shortfalls").toArray();
    QCOMPARE(shortfalls.size(), 1);
    QCOMPARE(shortfalls.at(0).toObject().value(u"kind"), QJsonValue(u"bin-not-entered"_s));
    QVERIFY(shortfalls.at(0).toObject().value(u"place").toString().endsWith(Bob));
    QVERIFY(!QFile::exists(bin(Alice, u"$RAAAAAA.txt"_s)));
    QCOMPARE(contentOf(elsewhere.filePath(u"$RAAAAAA.txt"_s)), QByteArray("kept"));
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "abc");
    CliRun accepted;
    accepted(wipe({u"--yes"_s, u"--accept"_s, u"bin-not-entered"_s}));
    QCOMPARE(accepted.code, 0);
}

#ifdef Q_OS_UNIX
void tst_CliTrash::theDesktopsTrashIsErasedWithItsRecords()
{
    const QString trash = m_home.filePath(u"Trash"_s);
    QVERIFY(QDir().mkpath(trash + u"/files"_s));
    QVERIFY(QDir().mkpath(trash + u"/info"_s));
    writeFile(trash + u"/files/letter.txt"_s, QByteArray(100, 'l'));
    writeFile(trash + u"/info/letter.txt.trashinfo"_s, "[Trash Info]\nPath=/tmp/a%20letter.txt\n");
    writeFile(trash + u"/files/stray"_s, "stray");
    CliRun run;
    run({u"trash"_s, u"list"_s});
    QCOMPARE(run.code, 0);
    QVERIFY2(run.io.out.contains("/tmp/a letter.txt (100 B)\n"), run.io.out.constData());
    QVERIFY(run.io.out.endsWith("2 items, 105 B\n"));
    CliRun erasing;
    erasing({u"wipe"_s, u"trash"_s, u"--yes"_s});
    QCOMPARE(erasing.code, 0);
    QVERIFY(QDir(trash + u"/files"_s).isEmpty());
    QVERIFY(QDir(trash + u"/info"_s).isEmpty());
}

void tst_CliTrash::theBinOfAnotherAccountIsToldAsSuch()
{
    AccountMachine machine;
    machine.session.otherAccount = u"root"_s;
    CliRun empty;
    empty({u"wipe"_s, u"trash"_s, u"--yes"_s});
    QCOMPARE(empty.io.out, QByteArray("The Recycle Bin is empty. Recycle Bin of root\n"));
    addToTrash(u"letter.txt"_s, QByteArray(100, 'l'));
    CliRun run;
    run({u"trash"_s, u"list"_s});
    QVERIFY2(run.io.out.endsWith("Recycle Bin of root\n1 item, 100 B\n"), run.io.out.constData());
    const auto accountForMachines = [] {
        CliRun json;
        json({u"trash"_s, u"list"_s, u"--json"_s});
        return json.io.documents().value(0).object().value(u"account"_s);
    };
    QCOMPARE(accountForMachines(), QJsonValue(u"root"_s));
    CliRun asked;
    asked({u"wipe"_s, u"trash"_s});
    QCOMPARE(asked.code, 3);
    QVERIFY2(asked.io.out.contains("  Recycle Bin of root\n"), asked.io.out.constData());
    // The owner of a named bin does not depend on the account of this process.
    addDeleted(Alice, u"AAAAAA.txt"_s, u"C:\\a.txt"_s, "a");
    CliRun named;
    named(list());
    QVERIFY2(!named.io.out.contains("Recycle Bin of"), named.io.out.constData());
    machine.session.otherAccount.clear();
    QVERIFY(accountForMachines().isUndefined());
}

void tst_CliTrash::theDesktopIsToldOfItsBin()
{
    AccountMachine machine;
    addToTrash(u"letter.txt"_s, "l");
    CliRun listed;
    listed({u"trash"_s, u"list"_s});
    QCOMPARE(machine.session.binChanges, 0);
    CliRun run;
    run({u"wipe"_s, u"trash"_s, u"--yes"_s});
    QCOMPARE(run.code, 0);
    QVERIFY2(!run.io.out.contains("Recycle Bin of"), run.io.out.constData());
    QCOMPARE(machine.session.binChanges, 1);
}

// The target of a link was never in the bin.
void tst_CliTrash::aLinkInTheBinMakesNothingPartial()
{
    const QTemporaryDir elsewhere;
    const QString trash = m_home.filePath(u"Trash"_s);
    QVERIFY(QDir().mkpath(trash + u"/files"_s));
    QVERIFY(QDir().mkpath(trash + u"/info"_s));
    if (!makeLink(elsewhere.path(), trash + u"/files/link"_s))
        QSKIP(NoLinks);
    writeFile(trash + u"/info/link.trashinfo"_s, "[Trash Info]\nPath=/tmp/link\n");
    CliRun run;
    run({u"wipe"_s, u"trash"_s, u"--yes"_s, u"--json"_s});
    QCOMPARE(run.code, 0);
    QCOMPARE(run.io.events().constLast().value(u"outcome"), QJsonValue(u"complete"_s));
    QVERIFY(QDir(trash + u"/files"_s).isEmpty());
    QVERIFY(QFileInfo(elsewhere.path()).isDir());
}

void tst_CliTrash::namesOfErasedFoldersLeaveTheRecords()
{
    const QString trash = m_home.filePath(u"Trash"_s);
    QVERIFY(QDir().mkpath(trash + u"/files/project"_s));
    QVERIFY(QDir().mkpath(trash + u"/info"_s));
    writeFile(trash + u"/files/project/plan.txt"_s, "plan");
    writeFile(trash + u"/info/project.trashinfo"_s, "[Trash Info]\nPath=/tmp/project\n");
    writeFile(trash + u"/directorysizes"_s, "4 1700000000 project\n");
    CliRun run;
    run({u"wipe"_s, u"trash"_s, u"--yes"_s});
    QCOMPARE(run.code, 0);
    QVERIFY(!contentOf(trash + u"/directorysizes"_s).contains("project"));
}

void tst_CliTrash::recordsThatCannotBeMendedAreTold()
{
    const QString trash = m_home.filePath(u"Trash"_s);
    QVERIFY(QDir().mkpath(trash + u"/files"_s));
    QVERIFY(QDir().mkpath(trash + u"/info"_s));
    writeFile(trash + u"/files/a"_s, "a");
    // The entry is not a readable file.
    QVERIFY(QDir().mkpath(trash + u"/directorysizes/x"_s));
    CliRun run;
    run({u"wipe"_s, u"trash"_s, u"--yes"_s, u"--json"_s});
    QCOMPARE(run.code, 5);
    QVERIFY(!QFile::exists(trash + u"/files/a"_s));
    QVERIFY(run.io.events().constLast().value(u"success").toBool()); // the erased files are still reported
    QCOMPARE(run.io.events(u"error"_s).size(), 1);
}

void tst_CliTrash::aTrashThatIsALinkIsLeftAlone()
{
    const QTemporaryDir elsewhere;
    QVERIFY(QDir().mkpath(elsewhere.filePath(u"files"_s)));
    writeFile(elsewhere.filePath(u"files/kept.txt"_s), "kept");
    QVERIFY(makeLink(elsewhere.path(), m_home.filePath(u"Trash"_s)));
    CliRun run;
    run({u"wipe"_s, u"trash"_s, u"--yes"_s});
    QCOMPARE(run.code, 3);
    QCOMPARE(run.io.out, QByteArray());
    QVERIFY2(run.complains("Trash is a link and is not followed"), run.io.err.constData());
    QCOMPARE(contentOf(elsewhere.filePath(u"files/kept.txt"_s)), QByteArray("kept"));
    QVERIFY(QFile::remove(m_home.filePath(u"Trash"_s)));
}
#endif

QUORVEX_SUITE(tst_CliTrash, QCoreApplication)
#include "tst_clitrash.moc"
