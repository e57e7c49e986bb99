#include "platform/process.h"
#include "support/suite.h"

#include <QCoreApplication>
#include <QTest>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

// A stop request without a handler ends this program, and the suite with it.
class tst_StopHandler : public QObject
{
    Q_OBJECT

private slots:
    void aWishIsHeldUntilThereIsAHandler_data();
    void aWishIsHeldUntilThereIsAHandler();
    void aWishThatComesTooLateChangesNothing();
};

void tst_StopHandler::aWishIsHeldUntilThereIsAHandler_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("hang up") << SIGHUP;
}

void tst_StopHandler::aWishIsHeldUntilThereIsAHandler()
{
    QFETCH(const int, signal);
    sigset_t before;
    QCOMPARE(::pthread_sigmask(SIG_SETMASK, nullptr, &before), 0);
    platform::holdStopSignals();
    QCOMPARE(::raise(signal), 0);
    int stops = 0;
    const platform::StopHandler handler([&stops] { ++stops; });
    QVERIFY(platform::StopHandler::isAsked());
    QTRY_COMPARE_WITH_TIMEOUT(stops, 1, 60000);
    sigset_t after;
    QCOMPARE(::pthread_sigmask(SIG_SETMASK, nullptr, &after), 0);
    for (const int one : {SIGINT, SIGTERM, SIGHUP})
        QCOMPARE(::sigismember(&after, one), ::sigismember(&before, one));
}

// Runs in a child process, which the stop request may end.
void tst_StopHandler::aWishThatComesTooLateChangesNothing()
{
    const pid_t child = ::fork();
    if (child == 0) {
        {
            const platform::StopHandler handler([] {});
        }
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            ::raise(signal);
        ::_exit(7);
    }
    QVERIFY(child > 0);
    int status = 0;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QVERIFY2(WIFEXITED(status), QByteArray::number(WTERMSIG(status)).constData());
    QCOMPARE(WEXITSTATUS(status), 7);
}

QUORVEX_SUITE(tst_StopHandler, QCoreApplication)
#include "tst_stophandler.moc"
