#pragma once

#include <QString>

/// The version of the program as CMake's project() states it: "5.0".
QString programVersion();

/// Name and version: "Quorvex 5.0".
QString programTitle();
