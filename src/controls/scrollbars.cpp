#include "controls/scrollbars.h"

#include "platform/canvas.h"

#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOptionSlider>

#include <algorithm>

namespace {

constexpr int kShortestSlider = 24;
constexpr qreal kCorner = 2.5;

/// A slider in a groove, without arrows.
class ScrollBarStyle : public QProxyStyle
{
public:
    explicit ScrollBarStyle(int width) : QProxyStyle(QStringLiteral("fusion")), m_width(width) {}

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_ScrollBarExtent:
        case PM_ScrollView_ScrollBarOverlap:
            return m_width;
        case PM_ScrollBarSliderMin:
            return kShortestSlider;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        if (hint == SH_ScrollBar_Transient)
            return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override
    {
        const auto *const bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
        if (control != CC_ScrollBar || !bar)
            return QProxyStyle::subControlRect(control, option, part, widget);
        return partOf(*bar, part);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override
    {
        const auto *const bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
        if (control != CC_ScrollBar || !bar)
            return QProxyStyle::drawComplexControl(control, option, painter, widget);
        painter->save();
        painter->fillRect(bar->rect, kMetalRecess);
        const bool isLit = bar->activeSubControls & SC_ScrollBarSlider;
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(kRim);
        painter->setBrush(isLit ? kGoldBright : kGoldMiddle);
        painter->drawRoundedRect(QRectF(partOf(*bar, SC_ScrollBarSlider)).adjusted(1, 1, -1, -1),
                                 kCorner, kCorner);
        painter->restore();
    }

private:
    /// The groove is the whole bar; the slider stands in it, the pages are what it leaves.
    static QRect partOf(const QStyleOptionSlider &bar, SubControl part)
    {
        const bool upright = bar.orientation == Qt::Vertical;
        const int whole = upright ? bar.rect.height() : bar.rect.width();
        const int length = sliderLength(bar, whole);
        const int start = sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                  whole - length, bar.upsideDown);
        const auto span = [&](int from, int to) {
            return upright ? QRect(0, from, bar.rect.width(), to - from)
                           : QRect(from, 0, to - from, bar.rect.height());
        };
        switch (part) {
        case SC_ScrollBarSlider:
            return span(start, start + length);
        case SC_ScrollBarSubPage:
            return span(0, start);
        case SC_ScrollBarAddPage:
            return span(start + length, whole);
        case SC_ScrollBarGroove:
            return span(0, whole);
        default:
            return {};
        }
    }

    static int sliderLength(const QStyleOptionSlider &bar, int whole)
    {
        const qint64 range = qint64{bar.maximum} - bar.minimum;
        if (range <= 0)
            return whole;
        const auto share = static_cast<int>(qint64{bar.pageStep} * whole / (range + bar.pageStep));
        return std::clamp(share, std::min(kShortestSlider, whole), whole);
    }

    int m_width;
};

} // namespace

void useSkinScrollBars(QAbstractScrollArea &area, int width)
{
    auto *const style = new ScrollBarStyle(width);
    style->setParent(&area);
    for (QScrollBar *bar : {area.verticalScrollBar(), area.horizontalScrollBar()})
        bar->setStyle(style);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void scrollIntoView(const QWidget &content, const QRect &part)
{
    const QWidget *const viewport = content.parentWidget();
    auto *const area = viewport ? qobject_cast<QScrollArea *>(viewport->parentWidget()) : nullptr;
    if (!area || area->widget() != &content)
        return;
    // The toolkit's own way to do so stops a point too early.
    QScrollBar &bar = *area->verticalScrollBar();
    const int least = part.top() + part.height() - viewport->height();
    bar.setValue(std::min(std::max(bar.value(), least), part.top()));
}
