#pragma once

#include <QString>
#include <QtGlobal>

#include <sys/types.h>

#include <atomic>

// A mounted folder whose files fail on command. A separate process serves it from a plain folder beside it.
// A loop device over one of its files is a drive with real faults; the kernel, the backends and the programs
// under test see them as those of a broken medium.
//
// Faults apply to every file in it, at positions in bytes, and last until heal(). Needs root. Destruction
// unmounts; files still open inside fail from then on.
class FaultyFolder
{
public:
    // Why no faulty folder can be made here, for QSKIP; empty when one can.
    static QString unavailableReason();

    // folder: an existing folder of the test that outlives this object.
    explicit FaultyFolder(const QString &folder);
    ~FaultyFolder();
    FaultyFolder(const FaultyFolder &) = delete;
    FaultyFolder &operator=(const FaultyFolder &) = delete;

    bool isReady() const { return m_ready; }
    // The mount point.
    QString path() const { return m_mountPoint; }
    // The path of the same file below all faults.
    QString below(const QString &name) const { return m_below + u'/' + name; }

    // Every access to [first, end) fails with EIO and leaves the file unchanged.
    void failReads(qint64 first, qint64 end);
    void failWrites(qint64 first, qint64 end);
    // Flushes fail with EIO; writes do not.
    void failFlushes();
    // Every write beyond the position fails with ENOSPC.
    void limitRoomTo(qint64 position);
    // Write failures begin only after this many more bytes were written.
    void beginAfter(qint64 bytes);
    // Operation number nth (from 1) on any entry of the folder fails with this errno and does nothing.
    // Counting begins anew.
    void failOperation(int nth, int error);
    void heal();

    // Ends the server. This call or a later one on a file open inside fails, and so does the folder.
    void vanish();
    // Ends the server during the write with which the bytes written from now on reach this number.
    void vanishAfter(qint64 bytes);
    // Whether the server has ended. Calls on files open inside fail slightly earlier.
    bool isGone();

    int failedReads() const;
    int failedWrites() const;
    int failedFlushes() const;
    // Whether the operation of failOperation() came.
    bool hasFailedOperation() const;

    // The memory that both processes share.
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
