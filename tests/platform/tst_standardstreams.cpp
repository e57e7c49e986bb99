#include "platform/linux/linuxprocesscalls.h"
#include "platform/process.h"
#include "support/linuxfaults.h"
#include "support/suite.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QTest>

#include <algorithm>
#include <cerrno>

namespace {

// What the calls below received.
QByteArray s_written;
int s_polls = 0;

// Takes at most three bytes of each text, and refuses every second call.
ssize_t reluctantWrite(int, const void *data, size_t size)
{
    static bool s_refuses = false;
    s_refuses = !s_refuses;
    if (s_refuses) {
        static bool s_interrupted = false;
        s_interrupted = !s_interrupted;
        errno = s_interrupted ? EINTR : EAGAIN;
        return -1;
    }
    const size_t taken = std::min<size_t>(size, 3);
    s_written.append(static_cast<const char *>(data), static_cast<qsizetype>(taken));
    return static_cast<ssize_t>(taken);
}

int countedPoll(pollfd *ends, nfds_t count, int)
{
    ++s_polls;
    for (nfds_t i = 0; i < count; ++i)
        ends[i].revents = ends[i].events;
    return static_cast<int>(count);
}

} // namespace

// Texts on the standard streams, on a system that takes them in pieces, later, or not at all.
class tst_StandardStreams : public QObject
{
    Q_OBJECT

private slots:
    void aTextThatIsTakenInPiecesIsWhole();
    void aRefusedTextIsAFailure_data();
    void aRefusedTextIsAFailure();
};

void tst_StandardStreams::aTextThatIsTakenInPiecesIsWhole()
{
    platform::LinuxProcessCalls calls;
    calls.write = &reluctantWrite;
    calls.poll = &countedPoll;
    const platform::ScopedCalls scope(calls);
    s_written.clear();
    s_polls = 0;
    const QByteArray text = "erased: 7 of 7 passes\n";
    const platform::Status status = platform::writeText(platform::StandardStream::Output, text);
    QVERIFY2(status.ok(), qPrintable(status.diagnostic()));
    QCOMPARE(s_written, text);
    QVERIFY(s_polls > 0);
}

void tst_StandardStreams::aRefusedTextIsAFailure_data()
{
    QTest::addColumn<int>("error");
    for (const int error : {EIO, ENOSPC, EPIPE, EBADF})
        QTest::addRow("%d", error) << error;
}

void tst_StandardStreams::aRefusedTextIsAFailure()
{
    QFETCH(const int, error);
    LinuxFaults faults;
    faults.fail(LinuxFaults::Write_, 1, error);
    const platform::Status status = platform::writeText(platform::StandardStream::Error, "lost\n");
    QVERIFY(!status.ok());
    QCOMPARE(faults.fired(), 1);
    QCOMPARE(faults.counted(), 1);
}

QUORVEX_SUITE(tst_StandardStreams, QCoreApplication)
#include "tst_standardstreams.moc"
