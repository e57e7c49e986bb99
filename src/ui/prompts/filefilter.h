#pragma once

#include <QString>

/// The filter of a file dialog as this system reads it. "*.*" means every file on Windows only; elsewhere it
/// leaves out names without a dot.
QString filterForThisSystem(QString filter);
