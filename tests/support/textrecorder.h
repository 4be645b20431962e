#pragma once

#include <QtGui/QImage>
#include <QtGui/QPaintDevice>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <vector>

/// A piece of text as it was drawn.
struct RecordedText
{
    QString text;
    QColor colour;     ///< with what is see-through of it
    QPainterPath path; ///< its letters, in pixels
    QRegion clip;      ///< the pixels that it may cover
};

/// Draws everything but texts, which are kept.
class TextlessEngine : public QPaintEngine
{
public:
    TextlessEngine(QImage &picture, std::vector<RecordedText> &texts)
        : QPaintEngine(AllFeatures), m_picture(picture), m_texts(texts)
    {
    }

    bool begin(QPaintDevice * /*device*/) override
    {
        m_painter.begin(&m_picture);
        setActive(true);
        return true;
    }
    bool end() override
    {
        m_painter.end();
        setActive(false);
        return true;
    }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState &now) override
    {
        const QPaintEngine::DirtyFlags dirty = now.state();
        if (dirty & (DirtyTransform | DirtyClipPath | DirtyClipRegion))
            m_painter.setTransform(now.transform());
        if (dirty & DirtyClipRegion)
            m_painter.setClipRegion(now.clipRegion(), now.clipOperation());
        if (dirty & DirtyClipPath)
            m_painter.setClipPath(now.clipPath(), now.clipOperation());
        if (dirty & DirtyClipEnabled)
            m_painter.setClipping(now.isClipEnabled());
        // Few widgets draw much: everything else is passed on with each change.
        m_painter.setPen(now.pen());
        m_painter.setBrush(now.brush());
        m_painter.setBrushOrigin(now.brushOrigin());
        m_painter.setBackground(now.backgroundBrush());
        m_painter.setBackgroundMode(now.backgroundMode());
        m_painter.setOpacity(now.opacity());
        m_painter.setCompositionMode(now.compositionMode());
        m_painter.setRenderHints(m_painter.renderHints(), false);
        m_painter.setRenderHints(now.renderHints());
    }

    void drawPixmap(const QRectF &place, const QPixmap &pixmap, const QRectF &part) override
    {
        within([&] { m_painter.drawPixmap(place, pixmap, part); });
    }
    void drawImage(const QRectF &place, const QImage &image, const QRectF &part,
                   Qt::ImageConversionFlags flags) override
    {
        within([&] { m_painter.drawImage(place, image, part, flags); });
    }
    void drawPath(const QPainterPath &path) override
    {
        within([&] { m_painter.drawPath(path); });
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        within([&] {
            if (mode == PolylineMode)
                m_painter.drawPolyline(points, count);
            else
                m_painter.drawPolygon(points, count,
                                      mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
        });
    }
    void drawRects(const QRectF *rects, int count) override
    {
        within([&] { m_painter.drawRects(rects, count); });
    }
    void drawTextItem(const QPointF &at, const QTextItem &item) override
    {
        QPainterPath letters;
        letters.addText(at, item.font(), item.text());
        QColor colour = m_painter.pen().color();
        colour.setAlphaF(colour.alphaF() * float(m_painter.opacity()));
        QRegion clip = systemClip();
        if (m_painter.hasClipping())
            clip &= m_painter.transform().map(m_painter.clipRegion());
        m_texts.push_back({item.text(), colour, m_painter.transform().map(letters), clip});
    }

private:
    /// The toolkit holds every widget to its own part of the device.
    template <class Draw>
    void within(const Draw &draw)
    {
        m_painter.save();
        const QTransform transform = m_painter.transform();
        m_painter.resetTransform();
        if (!systemClip().isEmpty())
            m_painter.setClipRegion(systemClip(), Qt::IntersectClip);
        m_painter.setTransform(transform);
        draw();
        m_painter.restore();
    }

    QImage &m_picture;
    QPainter m_painter;
    std::vector<RecordedText> &m_texts;
};

/// What a widget and everything in it shows: a picture of all that is not text, and the texts.
class TextRecorder : public QPaintDevice
{
public:
    explicit TextRecorder(QWidget &widget)
        : m_scale(qApp->devicePixelRatio()),
          m_picture((QSizeF(widget.size()) * m_scale).toSize(),
                    QImage::Format_ARGB32_Premultiplied),
          m_engine(m_picture, m_texts)
    {
        m_picture.fill(Qt::transparent);
        QPainter painter(this);
        widget.render(&painter);
    }

    const QImage &picture() const { return m_picture; }
    const std::vector<RecordedText> &texts() const { return m_texts; }

    QPaintEngine *paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return qRound(m_picture.width() / m_scale);
        case PdmHeight:
            return qRound(m_picture.height() / m_scale);
        case PdmDevicePixelRatio:
            return qRound(m_scale);
        case PdmDevicePixelRatioScaled:
            return qRound(m_scale * devicePixelRatioFScale());
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDepth:
            return 32;
        default:
            return QPaintDevice::metric(metric);
        }
    }

private:
    const qreal m_scale;
    QImage m_picture;
    std::vector<RecordedText> m_texts;
    mutable TextlessEngine m_engine;
};
