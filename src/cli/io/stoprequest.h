#pragma once

#include <QObject>

#include <atomic>
#include <functional>

namespace cli {

// The wish to stop, from a signal or from a test. Once requested it stays so. Lives on the thread that runs
// the command.
class StopRequest : public QObject
{
    Q_OBJECT

public:
    // isAsked tells of a wish that no event loop has passed on yet.
    explicit StopRequest(std::function<bool()> isAsked = {}, QObject *parent = nullptr);

    void request();
    bool isRequested() const; // any thread

signals:
    // Once.
    void requested();

private:
    std::function<bool()> m_isAsked;
    std::atomic<bool> m_requested{false};
};

} // namespace cli
