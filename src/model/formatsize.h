#pragma once

#include <QString>

/// A readable byte count: whole bytes below 1024, otherwise two decimals and KB to PB in steps of 1024. The
/// count is read as unsigned, and the text is the same in every locale.
QString formatSize(qint64 bytes);
