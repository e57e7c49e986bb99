#include "platform/linux/linuxsession.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace platform;

// What the session knows beside its volumes (tst_blocktree).
class tst_LinuxSession : public QObject
{
    Q_OBJECT

private slots:
    void userIsNamedByTheNumber();
    void rightsAreThoseOfTheUserInEffect();
    void rootsOfTheSystem();
};

void tst_LinuxSession::userIsNamedByTheNumber()
{
    QProcess id;
    id.start(u"id"_s, {u"-u"_s});
    QVERIFY(id.waitForFinished());
    QCOMPARE(LinuxSession().userId(), QString::fromLatin1(id.readAllStandardOutput().trimmed()));
}

void tst_LinuxSession::rightsAreThoseOfTheUserInEffect()
{
    LinuxSession session;
    QCOMPARE(session.isAdministrator().valueOr(::geteuid() != 0), ::geteuid() == 0);
    if (::getuid() != 0)
        return;
    constexpr uid_t Nobody = 65534;
    QCOMPARE(::seteuid(Nobody), 0);
    const bool isAdministrator = session.isAdministrator().valueOr(true);
    QCOMPARE(::seteuid(0), 0);
    QVERIFY(!isAdministrator);
}

void tst_LinuxSession::rootsOfTheSystem()
{
    LinuxSession session;
    for (const QString &root :
         {u"/"_s, u"/boot"_s, u"/boot/efi"_s, u"/usr"_s, u"/var/"_s, u"/home"_s, u"/efi"_s, u"/nix"_s}) {
        QVERIFY2(session.isSystemRoot(root), qPrintable(root));
        QVERIFY2(session.holdsSystemFiles(root), qPrintable(root));
    }
    QVERIFY(!session.isSystemRoot(u"/media/data"_s));
    QVERIFY(!session.holdsSystemFiles(u"/homes"_s));
}

QUORVEX_SUITE(tst_LinuxSession, QCoreApplication)
#include "tst_linuxsession.moc"
