#include "platform/linux/linuxsession.h"
#include "support/scopedvariable.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace platform;

// The answers of the session apart from its volumes (see tst_blocktree).
class tst_LinuxSession : public QObject
{
    Q_OBJECT

private slots:
    void userIsNamedByTheNumber();
    void rightsAreThoseOfTheUserInEffect();
    void rootsOfTheSystem();
    void whoeverAskedForRightsHasAnotherBin_data();
    void whoeverAskedForRightsHasAnotherBin();
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

void tst_LinuxSession::whoeverAskedForRightsHasAnotherBin_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<bool>("isForeign");
    const QByteArray own = LinuxSession().userId().toLatin1();
    QTest::newRow("nobody asked") << QByteArray("SUDO_UID") << QByteArray() << false;
    for (const char *variable : {"SUDO_UID", "PKEXEC_UID"}) {
        QTest::addRow("%s of another", variable) << QByteArray(variable) << QByteArray("4711") << true;
        QTest::addRow("%s of the same", variable) << QByteArray(variable) << own << false;
        QTest::addRow("%s of nobody", variable) << QByteArray(variable) << QByteArray("x") << false;
    }
}

void tst_LinuxSession::whoeverAskedForRightsHasAnotherBin()
{
    QFETCH(const QByteArray, variable);
    QFETCH(const QByteArray, user);
    QFETCH(const bool, isForeign);
    const ScopedVariable noSudo("SUDO_UID", {});
    const ScopedVariable noPkexec("PKEXEC_UID", {});
    const ScopedVariable asked(variable.constData(), user);
    QProcess id;
    id.start(u"id"_s, {u"-un"_s});
    QVERIFY(id.waitForFinished());
    const QString name = QString::fromLocal8Bit(id.readAllStandardOutput().trimmed());
    QVERIFY(!name.isEmpty());
    QCOMPARE(LinuxSession().foreignAccount(), isForeign ? name : QString());
}

QUORVEX_SUITE(tst_LinuxSession, QCoreApplication)
#include "tst_linuxsession.moc"
