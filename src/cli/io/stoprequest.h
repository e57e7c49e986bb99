#pragma once

#include <QObject>

#include <atomic>
#include <functional>

namespace cli {

/// A stop request, from a signal or a test. It cannot be withdrawn. Lives on the thread of the command.
class StopRequest : public QObject
{
    Q_OBJECT

public:
    /// isAsked reports a request that the event loop has not delivered yet.
    explicit StopRequest(std::function<bool()> isAsked = {}, QObject *parent = nullptr);

    void request();
    bool isRequested() const; ///< any thread

signals:
    /// Emitted once.
    void requested();

private:
    std::function<bool()> m_isAsked;
    std::atomic<bool> m_requested{false};
};

} // namespace cli
