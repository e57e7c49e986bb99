#pragma once

#include <QtGlobal>

/// What tells the target of a file job from another that takes its place under the same path. Numbers are 0
/// where the file system gives its files other ones whenever it likes.
struct TargetIdentity
{
    int kind = 0; ///< file, folder, link; compared only
    quint64 device = 0;
    quint64 number = 0;
    qint64 born = 0;

    bool operator==(const TargetIdentity &) const = default;
};
