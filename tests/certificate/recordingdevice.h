#pragma once

#include <QBrush>
#include <QFont>
#include <QLineF>
#include <QList>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QString>

// One painted element, in device pixels.
struct Painted
{
    enum Kind { Text, Line, Ellipse, Path, Other };

    Kind kind = Other;
    QString text;
    QFont font;
    QPointF position; // of a text: the left end of its base line
    QRectF clip;      // of a text; null without clipping
    QLineF line;
    QRectF bounds;     // of an ellipse
    QPainterPath path; // of any other shape
    QPen pen;
    QBrush brush;
    bool isSmooth = false;
};

class RecordingEngine : public QPaintEngine
{
public:
    QList<Painted> painted;

    RecordingEngine()
        : QPaintEngine(AllFeatures)
    {}
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF &position, const QTextItem &item) override;
    using QPaintEngine::drawLines;
    void drawLines(const QLineF *lines, int count) override;
    using QPaintEngine::drawEllipse;
    void drawEllipse(const QRectF &bounds) override { add(Painted::Ellipse).bounds = bounds; }
    void drawPath(const QPainterPath &path) override { add(Painted::Path).path = path; }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { add(Painted::Other); }
    using QPaintEngine::drawPolygon;
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { add(Painted::Other); }

private:
    Painted &add(Painted::Kind kind);
};

// Paper that records each painted element and its attributes.
class RecordingDevice : public QPaintDevice
{
public:
    RecordingDevice(int width, int height, int dpi)
        : m_width(width)
        , m_height(height)
        , m_dpi(dpi)
    {}
    QPaintEngine *paintEngine() const override { return &m_engine; }
    const QList<Painted> &painted() const { return m_engine.painted; }

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    const int m_width;
    const int m_height;
    const int m_dpi;
    mutable RecordingEngine m_engine;
};
