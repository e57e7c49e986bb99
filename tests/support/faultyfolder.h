#pragma once

#include <QString>
#include <QtGlobal>

#include <sys/types.h>

#include <atomic>

// A mounted folder whose files fail on command. A process of its own serves it from a plain folder beside it;
// a loop device over one of its files is a drive with real faults, which the kernel, the backends and the
// programs under test meet as those of a broken medium.
//
// Faults concern every file in it, at positions in bytes, and hold until heal(). Needs root. Destruction
// unmounts; whatever is open inside by then fails.
class FaultyFolder
{
public:
    // Why none can be made here, for QSKIP; empty when one can.
    static QString unavailableReason();

    // folder: an existing one of the test's own, which outlives this.
    explicit FaultyFolder(const QString &folder);
    ~FaultyFolder();
    FaultyFolder(const FaultyFolder &) = delete;
    FaultyFolder &operator=(const FaultyFolder &) = delete;

    bool isReady() const { return m_ready; }
    // Where it is mounted.
    QString path() const { return m_mountPoint; }
    // The same file below all faults.
    QString below(const QString &name) const { return m_below + u'/' + name; }

    // Whatever touches [first, end) fails with EIO and leaves the file as it is.
    void failReads(qint64 first, qint64 end);
    void failWrites(qint64 first, qint64 end);
    // Flushing fails with EIO, writing does not.
    void failFlushes();
    // Whatever is written beyond the position fails with ENOSPC.
    void limitRoomTo(qint64 position);
    // Failing writes begin only when so many bytes more have been written.
    void beginAfter(qint64 bytes);
    void heal();

    // The server ends: this call or every later one on what is open inside fails, and so does the folder.
    void vanish();
    // The same during the write that brings the bytes written from now on up to this many.
    void vanishAfter(qint64 bytes);
    // Whether the server has ended. What is open inside fails a moment before.
    bool isGone();

    int failedReads() const;
    int failedWrites() const;
    int failedFlushes() const;

    // What both processes see.
    struct Plan;

private:
    bool start();
    [[noreturn]] void serve(int readyEnd);
    void unmount();

    QString m_below;
    QString m_mountPoint;
    Plan *m_plan = nullptr;
    pid_t m_server = -1;
    bool m_ready = false;
};
