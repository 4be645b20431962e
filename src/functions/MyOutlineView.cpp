#include "functions/MyOutlineView.h"

#include "controls/rowdrag.h"
#include "controls/scrollbars.h"
#include "controls/wholetext.h"

#include <QtCore/QMimeData>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>

#include <utility>

namespace {

constexpr int kColumnWidth = 175;
constexpr int kRowHeight = 18;
constexpr int kTextSize = 11;
constexpr int kIndentation = 10;
constexpr int kTextMargin = 2;
constexpr int kStretch = 88; ///< per cent: the longest names just fit beside the scroll bar
constexpr qreal kArrow = 3.5;
constexpr QColor kHighlight(41, 41, 41);

/// Rows of one height, whatever the desktop's style thinks.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem & /*option*/,
                   const QModelIndex & /*index*/) const override
    {
        return {kColumnWidth, kRowHeight};
    }
};

bool isChoosing(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

/// Points to the right, or downwards when the row is open.
void drawArrow(QPainter &painter, QPointF middle, bool open)
{
    const QPolygonF right{{-0.6 * kArrow, -kArrow}, {kArrow, 0}, {-0.6 * kArrow, kArrow}};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(middle);
    painter.rotate(open ? 90 : 0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kGoldLight);
    painter.drawPolygon(right);
    painter.restore();
}

} // namespace

MyOutlineView::MyOutlineView(QWidget *parent) : Framed(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHeaderHidden(true);
    setIndentation(kIndentation);
    setUniformRowHeights(true);
    setItemDelegate(new RowDelegate(this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAcceptDrops(true);
    useSkinScrollBars(*this);
    QPalette colours = palette();
    colours.setColor(QPalette::Base, Qt::black);
    setPalette(colours);
    QFont letters = systemFont(kTextSize);
    letters.setStretch(kStretch);
    setFont(letters);
}

void MyOutlineView::setDataSource(const std::shared_ptr<OutlineDataSource> &source)
{
    setModel(new OutlineModel(source, this));
    header()->setStretchLastSection(false);
    setColumnWidth(0, kColumnWidth);
}

template <class Matches>
QModelIndex MyOutlineView::firstRow(Matches matches) const
{
    QModelIndex row = model() ? model()->index(0, 0) : QModelIndex();
    while (row.isValid() && !matches(*OutlineModel::itemAt(row)))
        row = indexBelow(row);
    return row;
}

QModelIndex MyOutlineView::findIndex(std::ptrdiff_t index) const
{
    return firstRow([=](const GameCommandItem &item) { return item.getIndexId() == index; });
}

GameCommandItem *MyOutlineView::findItembyIndex(std::ptrdiff_t index) const
{
    return OutlineModel::itemAt(findIndex(index));
}

void MyOutlineView::setSelectedItembyIndex(std::ptrdiff_t index)
{
    selectRow(findIndex(index));
}

void MyOutlineView::expandItembyIndex(std::ptrdiff_t index)
{
    if (const QModelIndex row = findIndex(index); row.isValid())
        expand(row);
}

void MyOutlineView::collapseItembyIndex(std::ptrdiff_t index)
{
    if (const QModelIndex row = findIndex(index); row.isValid())
        collapse(row);
}

void MyOutlineView::setSelectedItem(const GameCommandItem *item)
{
    selectRow(firstRow([=](const GameCommandItem &at) { return &at == item; }));
}

void MyOutlineView::selectRow(const QModelIndex &row)
{
    if (!row.isValid())
        return;
    const bool isInSight = viewport()->rect().contains(visualRect(row));
    setCurrentIndex(row);
    // With its neighbours around it, where there are any.
    if (!isInSight)
        scrollTo(row, PositionAtCenter);
}

QRect MyOutlineView::stripOf(const QModelIndex &index) const
{
    QRect strip = visualRect(index);
    strip.setLeft(strip.left() - kIndentation * (index.parent().isValid() ? 2 : 1));
    strip.setWidth(kColumnWidth);
    return strip;
}

QRect MyOutlineView::textRect(const QModelIndex &index) const
{
    const int right = verticalScrollBar()->isVisible() ? kScrollBarWidth : 0;
    QRect rect = visualRect(index);
    rect.setRight(stripOf(index).right() - right);
    return rect.adjusted(kTextMargin, 0, -kTextMargin, 0);
}

void MyOutlineView::drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    if (selectionModel()->isSelected(index))
        painter->fillRect(option.rect, kHighlight);
    // The view has no ring; a player who came by key sees which row the keys go from.
    if (index == currentIndex() && m_focusFrame.isShown(*this))
        outlineInside(*painter, stripOf(index), kGold);
    const QRect place = textRect(index);
    if (model()->hasChildren(index))
        drawArrow(*painter,
                  QPointF(stripOf(index).left() + kIndentation / 2.0, place.center().y() + 0.5),
                  isExpanded(index));
    painter->setFont(font());
    painter->setPen(kGold);
    painter->drawText(
        place, Qt::AlignVCenter | Qt::TextSingleLine,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideMiddle, place.width()));
}

bool MyOutlineView::isOnArrow(const QModelIndex &index, QPoint position) const
{
    return model()->hasChildren(index) && position.x() < visualRect(index).left();
}

void MyOutlineView::toggle(const QModelIndex &index)
{
    if (!model()->hasChildren(index))
        return;
    setExpanded(index, !isExpanded(index));
    // The keys do not go on from a row that has gone out of sight.
    if (!isExpanded(index) && currentIndex().parent() == index)
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void MyOutlineView::choose(const QModelIndex &index)
{
    const QPointer<MyOutlineView> alive(this);
    m_shouldSelect.send(OutlineModel::itemAt(index));
    if (alive)
        setCurrentIndex(index);
}

void MyOutlineView::focusInEvent(QFocusEvent *event)
{
    m_focusFrame.focusIn(*event);
    Framed::focusInEvent(event);
}

void MyOutlineView::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = event->position().toPoint();
    m_pressed = event->button() == Qt::LeftButton ? indexAt(m_pressedAt) : QModelIndex();
    if (!m_pressed.isValid() || !isOnArrow(m_pressed, m_pressedAt))
        return;
    toggle(m_pressed);
    m_pressed = QModelIndex();
}

void MyOutlineView::mouseMoveEvent(QMouseEvent *event)
{
    if (!(event->buttons() & Qt::LeftButton) || !m_pressed.isValid() ||
        !isDrag(m_pressedAt, event->position().toPoint()))
        return;
    const QModelIndex dragged = std::exchange(m_pressed, QModelIndex());
    const std::unique_ptr<QMimeData> carried(model()->mimeData({dragged}));
    if (carried)
        dragRow(*viewport(), stripOf(dragged), m_pressedAt, carried->text());
}

void MyOutlineView::mouseReleaseEvent(QMouseEvent *event)
{
    const QModelIndex pressed = std::exchange(m_pressed, QModelIndex());
    if (pressed.isValid() && event->button() == Qt::LeftButton &&
        indexAt(event->position().toPoint()) == pressed)
        choose(pressed);
}

void MyOutlineView::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    // On the arrow the press has opened or closed it already.
    if (m_pressed.isValid())
        toggle(m_pressed);
}

void MyOutlineView::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex before = currentIndex();
    if (isChoosing(event->key())) {
        toggle(before);
        if (before.isValid())
            choose(before);
        return;
    }
    // The row that the view begins with is not selected yet.
    const bool isFirst = before.isValid() && !selectionModel()->hasSelection();
    if (isFirst && (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up))
        return choose(before);
    Framed::keyPressEvent(event);
    if (const QModelIndex now = currentIndex(); now.isValid() && now != before)
        m_shouldSelect.send(OutlineModel::itemAt(now));
}

bool MyOutlineView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return Framed::viewportEvent(event);
    const auto &help = *static_cast<QHelpEvent *>(event);
    const QModelIndex row = indexAt(help.pos());
    showWholeText(help, *viewport(), row.data().toString(), fontMetrics(), textRect(row).width());
    return true;
}
