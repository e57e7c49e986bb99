#include "ui/mainwindow/frameparts.h"

namespace frameparts {

using platform::FramePart;

namespace {

FramePart partOf(Qt::Edges edges)
{
    if (edges & Qt::LeftEdge) {
        if (edges & Qt::TopEdge)
            return FramePart::TopLeft;
        return edges & Qt::BottomEdge ? FramePart::BottomLeft : FramePart::Left;
    }
    if (edges & Qt::RightEdge) {
        if (edges & Qt::TopEdge)
            return FramePart::TopRight;
        return edges & Qt::BottomEdge ? FramePart::BottomRight : FramePart::Right;
    }
    return edges & Qt::TopEdge ? FramePart::Top : FramePart::Bottom;
}

} // namespace

Qt::Edges edgesAt(const QPoint &position, const QSize &window)
{
    Qt::Edges edges;
    if (position.x() < ShadowMargin)
        edges |= Qt::LeftEdge;
    if (position.x() >= window.width() - ShadowMargin)
        edges |= Qt::RightEdge;
    if (position.y() < ShadowMargin)
        edges |= Qt::TopEdge;
    if (position.y() >= window.height() - ShadowMargin)
        edges |= Qt::BottomEdge;
    return edges;
}

FramePart partAt(const QPoint &position, const QSize &window, bool isMaximized, Under under)
{
    if (const Qt::Edges edges = isMaximized ? Qt::Edges() : edgesAt(position, window))
        return partOf(edges);
    if (under == Under::MaximizeButton)
        return FramePart::MaximizeButton;
    return under == Under::Nothing && position.y() < DragHeight ? FramePart::Caption : FramePart::Content;
}

} // namespace frameparts
