#include "ui/style/uiresources.h"

#include <QtGlobal>

void addUiResources()
{
    Q_INIT_RESOURCE(ui);
}
