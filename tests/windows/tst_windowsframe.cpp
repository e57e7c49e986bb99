#include "platform/appearance.h"
#include "platform/windows/windowsframemessages.h"
#include "support/scopedvariable.h"
#include "support/suite.h"
#include "windows/win32calls.h"

#include <QSize>
#include <QTest>

#include <array>

using namespace Qt::StringLiterals;
using platform::FramePart;

namespace {

MONITORINFO screenWith(const RECT &all, const RECT &work)
{
    MONITORINFO screen = {};
    screen.cbSize = sizeof screen;
    screen.rcMonitor = all;
    screen.rcWork = work;
    return screen;
}

DWORD s_contrast = 0;

BOOL WINAPI systemParameters(UINT question, UINT size, void *answer, UINT)
{
    if (question != SPI_GETHIGHCONTRAST || size != sizeof(HIGHCONTRASTW) ||
        static_cast<HIGHCONTRASTW *>(answer)->cbSize != size)
        return FALSE;
    static_cast<HIGHCONTRASTW *>(answer)->dwFlags = s_contrast;
    return TRUE;
}

} // namespace

// Messages to a window that draws its own frame, and the appearance settings of the system.
class tst_WindowsFrame : public QObject
{
    Q_OBJECT

private slots:
    void everyPartHasItsNumber();
    void placesMayLieLeftOfTheScreen();
    void maximisingLeavesTheTaskbar_data();
    void maximisingLeavesTheTaskbar();
    void whatOnlyMovesKeepsItsSize();
    void highContrastIsSeen_data();
    void highContrastIsSeen();
    void framesStayLightUnlessChosen();
};

void tst_WindowsFrame::everyPartHasItsNumber()
{
    using enum FramePart;
    constexpr std::array parts{Content, Caption, MaximizeButton, Left,       Right,      Top,
                               Bottom,  TopLeft, TopRight,       BottomLeft, BottomRight};
    constexpr std::array<LRESULT, 11> numbers{1, 2, 9, 10, 11, 12, 15, 13, 14, 16, 17};
    for (std::size_t i = 0; i < parts.size(); ++i)
        QCOMPARE(platform::hitTestOf(parts[i]), numbers[i]);
}

void tst_WindowsFrame::placesMayLieLeftOfTheScreen()
{
    QCOMPARE(platform::placeOf(MAKELPARAM(WORD(-1920), WORD(-5))), QPoint(-1920, -5));
    QCOMPARE(platform::placeOf(MAKELPARAM(30, 40)), QPoint(30, 40));
}

void tst_WindowsFrame::maximisingLeavesTheTaskbar_data()
{
    QTest::addColumn<MONITORINFO>("screen");
    QTest::addColumn<QRect>("fromScreen");
    QTest::addColumn<QRect>("place");
    QTest::newRow("taskbar below") << screenWith({0, 0, 1920, 1080}, {0, 0, 1920, 1040})
                                   << QRect(0, 0, 1920, 1040) << QRect(0, 0, 1920, 1040);
    QTest::newRow("taskbar left") << screenWith({0, 0, 1920, 1080}, {62, 0, 1920, 1080})
                                  << QRect(62, 0, 1858, 1080) << QRect(62, 0, 1858, 1080);
    QTest::newRow("screen left of the primary, taskbar above")
        << screenWith({-1280, 56, 0, 1080}, {-1280, 96, 0, 1080}) << QRect(0, 40, 1280, 984)
        << QRect(-1280, 96, 1280, 984);
    QTest::newRow("larger screen, right") << screenWith({1920, 0, 5760, 2160}, {1920, 0, 5760, 2100})
                                          << QRect(0, 0, 3840, 2100) << QRect(1920, 0, 3840, 2100);
}

void tst_WindowsFrame::maximisingLeavesTheTaskbar()
{
    QFETCH(const MONITORINFO, screen);
    QFETCH(const QRect, fromScreen);
    QFETCH(const QRect, place);
    MINMAXINFO limits = {};
    limits.ptMaxTrackSize = {9000, 9000};
    platform::limitToWorkArea(limits, screen, QSize(1470, 990));
    QCOMPARE(QRect(QPoint(limits.ptMaxPosition.x, limits.ptMaxPosition.y),
                   QSize(limits.ptMaxSize.x, limits.ptMaxSize.y)),
             fromScreen);
    QCOMPARE(QSize(limits.ptMinTrackSize.x, limits.ptMinTrackSize.y), QSize(1470, 990));
    // The size limit also allows a window that spans two screens.
    QCOMPARE(limits.ptMaxTrackSize.x, 9000);

    WINDOWPOS placed = {};
    placed.cx = 9000;
    placed.cy = 9000;
    platform::placeInWorkArea(placed, screen);
    QCOMPARE(QRect(placed.x, placed.y, placed.cx, placed.cy), place);
}

void tst_WindowsFrame::whatOnlyMovesKeepsItsSize()
{
    WINDOWPOS placed = {};
    placed.x = 7;
    placed.flags = SWP_NOSIZE;
    platform::placeInWorkArea(placed, screenWith({0, 0, 800, 600}, {0, 0, 800, 560}));
    QCOMPARE(QRect(placed.x, placed.y, placed.cx, placed.cy), QRect(7, 0, 0, 0));
}

void tst_WindowsFrame::highContrastIsSeen_data()
{
    QTest::addColumn<DWORD>("flags");
    QTest::addColumn<bool>("isOn");
    QTest::newRow("on") << DWORD(HCF_HIGHCONTRASTON | HCF_AVAILABLE) << true;
    QTest::newRow("off") << DWORD(HCF_AVAILABLE | HCF_HOTKEYAVAILABLE) << false;
}

void tst_WindowsFrame::highContrastIsSeen()
{
    QFETCH(const DWORD, flags);
    QFETCH(const bool, isOn);
    s_contrast = flags;
    platform::Win32Calls calls;
    calls.systemParametersInfo = systemParameters;
    const platform::ScopedWin32Calls scope(calls);
    QCOMPARE(platform::hasHighContrast(), isOn);
}

void tst_WindowsFrame::framesStayLightUnlessChosen()
{
    {
        const ScopedVariable none("QT_QPA_PLATFORM", {});
        platform::keepLightFrames();
        QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("windows:darkmode=0"));
    }
    const ScopedVariable chosen("QT_QPA_PLATFORM", "offscreen");
    platform::keepLightFrames();
    QCOMPARE(qgetenv("QT_QPA_PLATFORM"), QByteArray("offscreen"));
}

QUORVEX_SUITE(tst_WindowsFrame, suites::NoApplication)
#include "tst_windowsframe.moc"
