#pragma once

#include <QString>

/// The style sheet of the main window: the application's, as far as it can be read, and the rules of the
/// sidebar. Needs addUiResources().
QString windowSheet();
