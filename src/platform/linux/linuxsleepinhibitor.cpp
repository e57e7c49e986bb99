#include "platform/linux/linuxsleepinhibitor.h"

#include <QAtomicInteger>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>

namespace platform {

namespace {

// The daemon may have to start first. A job waits no longer than this.
constexpr int PatienceMs = 5000;

// logind releases the lock when the last copy of the descriptor is closed, also at the end of the process.
class Inhibitor final : public AwakeHold
{
public:
    explicit Inhibitor(const QDBusUnixFileDescriptor &descriptor)
        : m_descriptor(descriptor)
    {}
    bool delaysShutdown() const override { return false; }

private:
    QDBusUnixFileDescriptor m_descriptor;
};

// A connection for one call, because the shared connection of the process would not recover after a restart
// of the bus.
class SystemBus
{
public:
    SystemBus()
        : m_name(QStringLiteral("quorvex-sleep-%1").arg(s_count.fetchAndAddRelaxed(1)))
        , m_connection(QDBusConnection::connectToBus(QDBusConnection::SystemBus, m_name))
    {}
    ~SystemBus() { QDBusConnection::disconnectFromBus(m_name); }
    SystemBus(const SystemBus &) = delete;
    SystemBus &operator=(const SystemBus &) = delete;

    QDBusConnection &connection() { return m_connection; }

private:
    inline static QAtomicInteger<int> s_count;

    QString m_name;
    QDBusConnection m_connection;
};

Status statusOf(const QDBusError &error)
{
    qInfo("[Session] No lock against sleep: %s", qPrintable(error.message()));
    const bool isRefused = error.type() == QDBusError::AccessDenied;
    return {isRefused ? AccessDenied : NotSupported, 0, "Inhibit"};
}

} // namespace

Result<std::unique_ptr<AwakeHold>> inhibitSleep(const QString &reason)
{
    SystemBus bus;
    if (!bus.connection().isConnected())
        return statusOf(bus.connection().lastError());
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("Inhibit"));
    call.setArguments(
        {QStringLiteral("sleep:shutdown:idle"), QStringLiteral("Quorvex"), reason, QStringLiteral("block")});
    const QDBusReply<QDBusUnixFileDescriptor> reply = bus.connection().call(call, QDBus::Block, PatienceMs);
    if (!reply.isValid())
        return statusOf(reply.error());
    if (!reply.value().isValid())
        return Status{NotSupported, 0, "Inhibit"};
    return std::unique_ptr<AwakeHold>(std::make_unique<Inhibitor>(reply.value()));
}

} // namespace platform
