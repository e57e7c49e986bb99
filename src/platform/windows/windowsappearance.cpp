#include "platform/appearance.h"

#include "platform/windows/windowsdesktopcalls.h"

#include <QByteArray>

namespace platform {

void keepLightFrames()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=0");
}

bool hasHighContrast()
{
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof contrast;
    return desktopCalls().systemParametersInfo(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace platform
