#include "platform/linux/linuxsession.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace platform;

// What the session knows beside its volumes (tst_blocktree).
class TestLinuxSession : public QObject
{
    Q_OBJECT

private slots:
    void userIsNamedByTheNumber();
    void rootsOfTheSystem();
};

void TestLinuxSession::userIsNamedByTheNumber()
{
    QProcess id;
    id.start(u"id"_s, {u"-u"_s});
    QVERIFY(id.waitForFinished());
    QCOMPARE(LinuxSession().userId(), QString::fromLatin1(id.readAllStandardOutput().trimmed()));
}

void TestLinuxSession::rootsOfTheSystem()
{
    LinuxSession session;
    for (const QString &root : {u"/"_s, u"/boot"_s, u"/boot/efi"_s, u"/usr"_s, u"/var/"_s, u"/home"_s}) {
        QVERIFY2(session.isSystemRoot(root), qPrintable(root));
        QVERIFY2(session.holdsSystemFiles(root), qPrintable(root));
    }
    QVERIFY(!session.isSystemRoot(u"/media/data"_s));
    QVERIFY(!session.holdsSystemFiles(u"/homes"_s));
}

QTEST_GUILESS_MAIN(TestLinuxSession)
#include "tst_linuxsession.moc"
