#pragma once

#include "platform/windowframe.h"

#include <QPoint>
#include <QSize>
#include <Qt>

/// The frame of a window that draws its own: the margin of its shadow is where its edges are gripped.
namespace frameparts {

constexpr int ShadowMargin = 10; ///< pixels
constexpr int DragHeight = 80;   ///< pixels from the top

Qt::Edges edgesAt(const QPoint &position, const QSize &window);

/// What lies under a place of the window.
enum class Under {
    Nothing, ///< that takes a press
    Control,
    MaximizeButton,
};

platform::FramePart partAt(const QPoint &position, const QSize &window, bool isMaximized, Under under);

} // namespace frameparts
