#include <QCoreApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

// A plugin that ends a Qt Widgets program, without a change to it, when its first window has been painted. Qt
// loads it by QT_QPA_GENERIC_PLUGINS.
//
//   firstpaint      ends the program at once, because its clean-up is not measured
//   firstpaint:10   waits for 10 seconds and prints the program's effort in that time

namespace {

struct Effort
{
    double milliseconds = 0; // processor time in all threads
    long wakeUps = 0;
};

Effort effortSoFar()
{
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval &time) {
        return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3;
    };
    return {milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), usage.ru_nvcsw};
}

[[noreturn]] void end()
{
    std::fflush(stdout);
    std::_Exit(0);
}

class FirstPaint : public QObject
{
    Q_OBJECT

public:
    explicit FirstPaint(std::chrono::seconds idle)
        : m_idle(idle)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            static_cast<QWidget *>(watched)->isWindow()) {
            QCoreApplication::instance()->removeEventFilter(this);
            // Deferred until the paint event has painted the children and sent the picture to the screen.
            QTimer::singleShot(0, this, &FirstPaint::shown);
        }
        return false;
    }

private:
    void shown()
    {
        if (m_idle.count() == 0)
            end();
        m_before = effortSoFar();
        QTimer::singleShot(m_idle, this, [this] {
            const Effort now = effortSoFar();
            std::printf("milliseconds %.3f wakeups %ld\n", now.milliseconds - m_before.milliseconds,
                        now.wakeUps - m_before.wakeUps);
            end();
        });
    }

    std::chrono::seconds m_idle;
    Effort m_before;
};

} // namespace

class FirstPaintPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "firstpaint.json")

public:
    QObject *create(const QString &, const QString &idle) override
    {
        return new FirstPaint(std::chrono::seconds(idle.toInt()));
    }
};

#include "firstpaint.moc"
