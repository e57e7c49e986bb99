#pragma once

#include <QtGlobal>

/// Distinguishes the target of a file job from another file that appears under its path later. Numbers are 0
/// where the file system does not keep its file numbers.
struct TargetIdentity
{
    int kind = 0; ///< file, folder or link; only compared
    quint64 device = 0;
    quint64 number = 0;
    qint64 born = 0;

    bool operator==(const TargetIdentity &) const = default;
};
