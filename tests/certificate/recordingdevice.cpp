#include "certificate/recordingdevice.h"

#include <QPainter>

void RecordingEngine::drawTextItem(const QPointF &position, const QTextItem &item)
{
    Painted &text = add(Painted::Text);
    text.text = item.text();
    text.font = item.font();
    text.position = position;
    if (painter()->hasClipping())
        text.clip = painter()->clipBoundingRect();
}

void RecordingEngine::drawLines(const QLineF *lines, int count)
{
    for (int i = 0; i < count; ++i)
        add(Painted::Line).line = lines[i];
}

Painted &RecordingEngine::add(Painted::Kind kind)
{
    Painted one;
    one.kind = kind;
    one.pen = painter()->pen();
    one.brush = painter()->brush();
    one.isSmooth = painter()->testRenderHint(QPainter::Antialiasing) &&
                   painter()->testRenderHint(QPainter::TextAntialiasing);
    painted.append(one);
    return painted.last();
}

int RecordingDevice::metric(PaintDeviceMetric metric) const
{
    switch (metric) {
    case PdmWidth:
        return m_width;
    case PdmHeight:
        return m_height;
    case PdmWidthMM:
        return qRound(m_width * 25.4 / m_dpi);
    case PdmHeightMM:
        return qRound(m_height * 25.4 / m_dpi);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return m_dpi;
    case PdmDepth:
        return 32;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return qRound(devicePixelRatioFScale());
    default:
        return QPaintDevice::metric(metric);
    }
}
