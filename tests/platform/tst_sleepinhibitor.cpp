#include "platform/linux/linuxsession.h"
#include "platform/linux/linuxsleepinhibitor.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// A bus owned by the test that this process uses as the system bus.
class PrivateBus
{
public:
    explicit PrivateBus(const QTemporaryDir &folder)
    {
        const QString config = folder.filePath(u"bus.conf"_s);
        QFile file(config);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no room for the bus");
        file.write(u"<busconfig><type>system</type><listen>%1</listen>"
                   "<auth>EXTERNAL</auth><policy context=\"default\"><allow send_destination=\"*\"/>"
                   "<allow receive_sender=\"*\"/><allow own=\"*\"/><allow user=\"*\"/></policy></busconfig>"_s
                       .arg(addressIn(folder))
                       .toUtf8());
        file.close();
        m_daemon.start(u"dbus-daemon"_s,
                       {u"--nofork"_s, u"--print-address=1"_s, u"--config-file=%1"_s.arg(config)});
        if (!m_daemon.waitForReadyRead(-1))
            qFatal("dbus-daemon does not run: %s", qPrintable(m_daemon.errorString()));
    }
    ~PrivateBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished(-1);
    }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    static QString addressIn(const QTemporaryDir &folder)
    {
        return u"unix:path="_s + folder.filePath(u"socket"_s);
    }

private:
    QProcess m_daemon;
};

// Simulates the locks of logind: a lock is a pipe whose other end shows when it is released. Runs on its own
// thread.
class Manager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    QString refusal; // the error reply
    QStringList asked;
    int watched = -1; // the end that the manager keeps

    ~Manager() override { ::close(watched); }

    // Whether all copies of the lock are closed.
    bool isGivenBack() const
    {
        pollfd end{watched, POLLIN, 0};
        return ::poll(&end, 1, -1) == 1 && (end.revents & POLLHUP) != 0;
    }
    bool isHeld() const
    {
        pollfd end{watched, POLLIN, 0};
        return watched >= 0 && ::poll(&end, 1, 0) == 0;
    }

public slots:
    // NOLINTNEXTLINE(readability-identifier-naming): the bus knows it under this name
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &who, const QString &why,
                                    const QString &mode)
    {
        asked = QStringList{what, who, why, mode};
        if (!refusal.isEmpty()) {
            sendErrorReply(refusal, u"no"_s);
            return {};
        }
        std::array<int, 2> ends{-1, -1};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            qFatal("no pipe");
        watched = ends[0];
        QDBusUnixFileDescriptor lock;
        lock.giveFileDescriptor(ends[1]);
        return lock;
    }
};

class Logind
{
public:
    explicit Logind(const QString &address, const QString &refusal = {})
        : manager(std::make_unique<Manager>())
    {
        manager->refusal = refusal;
        m_thread.start();
        manager->moveToThread(&m_thread);
        const auto serve = [this, address] {
            QDBusConnection bus = QDBusConnection::connectToBus(address, u"logind"_s);
            return bus.registerObject(u"/org/freedesktop/login1"_s, manager.get(),
                                      QDBusConnection::ExportAllSlots) &&
                   bus.registerService(u"org.freedesktop.login1"_s);
        };
        bool isServing = false;
        QMetaObject::invokeMethod(manager.get(), serve, Qt::BlockingQueuedConnection, &isServing);
        if (!isServing)
            qFatal("no service on the bus");
    }
    ~Logind()
    {
        QDBusConnection::disconnectFromBus(u"logind"_s);
        m_thread.quit();
        m_thread.wait();
    }
    Logind(const Logind &) = delete;
    Logind &operator=(const Logind &) = delete;

    std::unique_ptr<Manager> manager;

private:
    QThread m_thread;
};

} // namespace

class tst_SleepInhibitor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void theLockIsHeldUntilItIsGivenBack();
    void locksAreIndependent();
    void aRefusalIsTold_data();
    void aRefusalIsTold();
    void withoutLogindNothingIsHeld();
    void withoutABusNothingIsHeld();
    void aBusThatComesLaterIsFound();

private:
    QTemporaryDir m_folder;
};

// The bus library reads this once.
void tst_SleepInhibitor::initTestCase()
{
    QVERIFY(qputenv("DBUS_SYSTEM_BUS_ADDRESS", PrivateBus::addressIn(m_folder).toUtf8()));
}

void tst_SleepInhibitor::theLockIsHeldUntilItIsGivenBack()
{
    const PrivateBus bus(m_folder);
    const Logind logind(PrivateBus::addressIn(m_folder));
    platform::LinuxSession session;
    auto hold = session.keepAwake({u"An erasure is running."_s, 7});
    QVERIFY(hold);
    QVERIFY(!hold.value()->delaysShutdown());
    QCOMPARE(logind.manager->asked,
             (QStringList{u"sleep:shutdown:idle"_s, u"Quorvex"_s, u"An erasure is running."_s, u"block"_s}));
    QVERIFY(logind.manager->isHeld());
    hold.take().reset();
    QVERIFY(logind.manager->isGivenBack());
}

void tst_SleepInhibitor::locksAreIndependent()
{
    const PrivateBus bus(m_folder);
    const Logind logind(PrivateBus::addressIn(m_folder));
    auto first = platform::inhibitSleep(u"first"_s);
    QVERIFY(first);
    const int firstEnd = std::exchange(logind.manager->watched, -1);
    auto second = platform::inhibitSleep(u"second"_s);
    QVERIFY(second);
    first.take().reset();
    QVERIFY(logind.manager->isHeld());
    second.take().reset();
    QVERIFY(logind.manager->isGivenBack());
    ::close(firstEnd);
}

void tst_SleepInhibitor::aRefusalIsTold_data()
{
    QTest::addColumn<QString>("error");
    QTest::addColumn<quint32>("code");
    QTest::newRow("not allowed") << u"org.freedesktop.DBus.Error.AccessDenied"_s
                                 << quint32(platform::AccessDenied);
    QTest::newRow("not with this one")
        << u"org.freedesktop.DBus.Error.NotSupported"_s << quint32(platform::NotSupported);
}

void tst_SleepInhibitor::aRefusalIsTold()
{
    QFETCH(const QString, error);
    QFETCH(const quint32, code);
    const PrivateBus bus(m_folder);
    const Logind logind(PrivateBus::addressIn(m_folder), error);
    const auto hold = platform::inhibitSleep(u"reason"_s);
    QVERIFY(!hold);
    QCOMPARE(hold.code(), code);
}

void tst_SleepInhibitor::withoutLogindNothingIsHeld()
{
    const PrivateBus bus(m_folder);
    QCOMPARE(platform::inhibitSleep(u"reason"_s).code(), quint32(platform::NotSupported));
}

void tst_SleepInhibitor::withoutABusNothingIsHeld()
{
    QCOMPARE(platform::inhibitSleep(u"reason"_s).code(), quint32(platform::NotSupported));
}

// The next job requests a new lock.
void tst_SleepInhibitor::aBusThatComesLaterIsFound()
{
    withoutABusNothingIsHeld();
    const PrivateBus bus(m_folder);
    const Logind logind(PrivateBus::addressIn(m_folder));
    QVERIFY(platform::inhibitSleep(u"reason"_s));
}

QUORVEX_SUITE(tst_SleepInhibitor, QCoreApplication)
#include "tst_sleepinhibitor.moc"
