#pragma once

#include "platform/windowframe.h"

#include <QPoint>
#include <QSize>
#include <Qt>

/// The frame of a window that draws it itself. The margin of the shadow takes the place of the edges.
namespace frameparts {

constexpr int ShadowMargin = 10; ///< pixels
constexpr int DragHeight = 80;   ///< pixels from the top

Qt::Edges edgesAt(const QPoint &position, const QSize &window);

/// Kinds of widgets under a place of the window.
enum class Under {
    Nothing, ///< no widget that takes a press
    Control,
    MaximizeButton,
};

platform::FramePart partAt(const QPoint &position, const QSize &window, bool isMaximized, Under under);

} // namespace frameparts
