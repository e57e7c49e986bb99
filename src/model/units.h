#pragma once

#include <QtGlobal>

/// Units of bytes.
inline constexpr qint64 KiB = 1024;
inline constexpr qint64 MiB = 1024 * KiB;
inline constexpr qint64 GiB = 1024 * MiB;
