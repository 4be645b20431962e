#include "controls/contextmenu.h"

#include "platform/canvas.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPainterPath>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QStyleOptionMenuItem>

namespace {

constexpr int kTextSize = 12;
constexpr int kRowHeight = 24;
constexpr int kSeparatorHeight = 3;
constexpr int kCheckColumn = 26;
constexpr int kArrowColumn = 26;
constexpr int kFrameWidth = 4;
constexpr qreal kRowCorner = 3;

QLinearGradient downwards(const QRectF &rect, const QColor &top, const QColor &bottom)
{
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

/// The skin's plate: a rectangle with its corners cut off.
QPolygonF plate(const QRectF &rect, qreal corner)
{
    const qreal left = rect.left();
    const qreal right = rect.right();
    const qreal top = rect.top();
    const qreal bottom = rect.bottom();
    return {{left + corner, top},     {right - corner, top},    {right, top + corner},
            {right, bottom - corner}, {right - corner, bottom}, {left + corner, bottom},
            {left, bottom - corner},  {left, top + corner}};
}

/// The line that a pen of one point draws just inside `rect`, `depth` points from its edge.
QRectF lineInside(const QRectF &rect, qreal depth = 0)
{
    const qreal inset = depth + 0.5;
    return rect.adjusted(inset, inset, -inset, -inset);
}

void drawPanel(QPainter &painter, const QRectF &rect)
{
    painter.fillRect(rect, kRim);
    painter.setPen(QPen(downwards(rect, kGoldLight, kGoldDark), 1));
    painter.setBrush(downwards(rect, kMetal, kMetalDark));
    painter.drawRect(lineInside(rect, 1));
    painter.setPen(kBevel);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(lineInside(rect, 2));
}

/// A line that fades towards the ends of `rect`, so many points below its top.
void drawFadingLine(QPainter &painter, const QRectF &rect, qreal depth, const QColor &colour)
{
    QLinearGradient line(rect.topLeft(), rect.topRight());
    line.setColorAt(0, Qt::transparent);
    line.setColorAt(0.1, colour);
    line.setColorAt(0.9, colour);
    line.setColorAt(1, Qt::transparent);
    painter.fillRect(QRectF(rect.left(), rect.top() + depth, rect.width(), 1), line);
}

/// Etched: a groove, and the light on its lower edge.
void drawSeparator(QPainter &painter, const QRectF &rect)
{
    drawFadingLine(painter, rect, 0, kRim);
    drawFadingLine(painter, rect, 1, kGoldDeep);
}

void drawHighlight(QPainter &painter, const QRectF &rect)
{
    painter.setPen(QPen(downwards(rect, kMoonDeep, kMoonBody), 1));
    painter.setBrush(downwards(rect, kMoonDark, kMoonDeep));
    painter.drawPolygon(plate(lineInside(rect), kRowCorner));
}

void drawCheckMark(QPainter &painter, QPointF centre, const QColor &colour)
{
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QPolygonF tick{{-4, 0.5}, {-1.2, 3.5}, {4, -3.5}};
    painter.drawPolyline(tick.translated(centre));
}

void drawArrow(QPainter &painter, QPointF centre, const QColor &colour)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const QPolygonF arrow{{-2, -4}, {2.5, 0}, {-2, 4}};
    painter.drawPolygon(arrow.translated(centre));
}

void drawItem(QPainter &painter, const QStyleOptionMenuItem &item)
{
    const QRectF row = item.rect;
    const bool isEnabled = item.state & QStyle::State_Enabled;
    const bool lit = item.state & QStyle::State_Selected;
    if (lit)
        drawHighlight(painter, row);
    const QColor colour = !isEnabled ? kFaint : lit ? kWhite : kGold;
    const qreal middle = row.center().y();
    if (item.checked)
        drawCheckMark(painter, {row.left() + kCheckColumn / 2.0, middle}, colour);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawArrow(painter, {row.right() - kArrowColumn / 2.0, middle}, colour);
    painter.setFont(item.font);
    painter.setPen(colour);
    painter.drawText(row.adjusted(kCheckColumn, 0, -kArrowColumn, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic,
                     item.text);
}

/// The skin's look of a menu. What it does not draw, such as the edge of the item area, is part of
/// the panel.
class MenuStyle : public QProxyStyle
{
public:
    MenuStyle() : QProxyStyle(QStringLiteral("fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        switch (metric) {
        case PM_MenuPanelWidth:
            return kFrameWidth;
        case PM_SubMenuOverlap:
        case PM_MenuHMargin:
        case PM_MenuVMargin:
            return 0;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                           const QWidget *widget) const override
    {
        const auto *const item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (type != CT_MenuItem || !item)
            return QProxyStyle::sizeFromContents(type, option, contents, widget);
        if (item->menuItemType == QStyleOptionMenuItem::Separator)
            return {1, kSeparatorHeight};
        return {kCheckColumn + contents.width() + kArrowColumn, kRowHeight};
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_PanelMenu)
            smoothly(painter, [&] { drawPanel(*painter, option->rect); });
        else if (element != PE_FrameMenu)
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *const item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (element == CE_MenuScroller || !item)
            QProxyStyle::drawControl(element, option, painter, widget);
        else if (item->menuItemType == QStyleOptionMenuItem::Separator)
            drawSeparator(*painter, item->rect);
        else if (element == CE_MenuItem)
            smoothly(painter, [&] { drawItem(*painter, *item); });
    }

private:
    template <class Draw>
    static void smoothly(QPainter *painter, Draw draw)
    {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        draw();
        painter->restore();
    }
};

QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

ContextMenu *ContextMenu::popUp(const std::vector<MenuItem> &items, QWidget &control)
{
    if (items.empty())
        return nullptr;
    auto *const menu = new ContextMenu(items, &control, QStringLiteral("ContextMenu"));
    menu->setWindowTitle(control.accessibleName());
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    const bool byKey = control.hasFocus() && !control.underMouse();
    menu->popup(control.mapToGlobal(UpHost(control.height()).down(UpPoint{})));
    if (byKey)
        menu->focusNextChild();
    return menu;
}

ContextMenu::ContextMenu(const std::vector<MenuItem> &items, QWidget *parent, const QString &name)
    : QMenu(parent)
{
    auto *const style = new MenuStyle;
    style->setParent(this);
    setStyle(style);
    setFont(systemFont(kTextSize));
    setObjectName(name);
    setWindowTitle(name);
    for (const MenuItem &item : items) {
        if (!isEmpty())
            addSeparator();
        addItem(item);
    }
}

void ContextMenu::addItem(const MenuItem &item)
{
    QAction *const action = addAction(withoutMnemonic(item.text));
    action->setObjectName(item.text);
    action->setCheckable(item.checked);
    action->setChecked(item.checked);
    if (!item.submenu.empty())
        action->setMenu(new ContextMenu(item.submenu, this, item.text));
    else
        connect(action, &QAction::triggered, this,
                [this, chosen = item.action] { choose(chosen); });
}

void ContextMenu::choose(const Action<> &action)
{
    // By pointer and key the menus have closed already, by assistive technology they have not.
    for (QWidget *menu = this; qobject_cast<QMenu *>(menu); menu = menu->parentWidget())
        menu->hide();
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [action] { action.send(); }, Qt::QueuedConnection);
}
