#pragma once

#include "model/spanningvolume.h"

#include <QCoreApplication>
#include <QString>

/// Words for the obstacles to erasing a disk. Names are shown as displayText().
class ObstaclesText
{
    Q_DECLARE_TR_FUNCTIONS(DiskSelectPage)

public:
    ObstaclesText() = delete;

    /// Empty without obstacles.
    static QString of(const DiskObstacles &obstacles);
    static QString of(const SpanningVolume &volume);
};
