#include "platform/process.h"
#include "support/suite.h"

#include <QTest>

#include <windows.h>

// The properties of the program's own process on Windows.
class tst_WindowsProcess : public QObject
{
    Q_OBJECT

private slots:
    void noBoxStopsACallOnAnEmptyDrive();
};

void tst_WindowsProcess::noBoxStopsACallOnAnEmptyDrive()
{
    // Flags set by other code stay.
    const UINT before = ::SetErrorMode(SEM_NOGPFAULTERRORBOX);
    platform::failWithoutBoxes();
    const UINT quiet = ::SetErrorMode(before);
    QCOMPARE(quiet, UINT(SEM_NOGPFAULTERRORBOX | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX));
}

QUORVEX_SUITE(tst_WindowsProcess, suites::NoApplication)
#include "tst_windowsprocess.moc"
