#pragma once

#include "model/spanningvolume.h"

#include <QCoreApplication>
#include <QString>

/// What is in the way of erasing a disk, in words. Names are shown as displayText().
class ObstaclesText
{
    Q_DECLARE_TR_FUNCTIONS(DiskSelectPage)

public:
    ObstaclesText() = delete;

    /// Empty when nothing is.
    static QString of(const DiskObstacles &obstacles);
    static QString of(const SpanningVolume &volume);
};
