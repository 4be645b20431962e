#include "controls/rowdrag.h"

#include <QtCore/QMimeData>
#include <QtGui/QDrag>
#include <QtWidgets/QApplication>

namespace {

constexpr qreal kOpacity = 0.5;

/// `strip` lies within `source`: outside there is nothing to take a picture of.
QPixmap pictureOf(QWidget &source, QRect strip)
{
    const QPixmap row = source.grab(strip);
    QPixmap picture(row.size());
    picture.setDevicePixelRatio(row.devicePixelRatio());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setOpacity(kOpacity);
    painter.drawPixmap(0, 0, row);
    // Dark rows over a dark window have no edge of their own.
    outlineInside(painter, QRectF(QPointF(), strip.size()), kGold);
    return picture;
}

} // namespace

void dragRow(QWidget &source, QRect strip, QPoint pressedAt, const QString &text)
{
    const QRect shown = strip & source.rect();
    auto *const data = new QMimeData;
    data->setText(text);
    auto *const drag = new QDrag(&source); // the toolkit deletes it when the drag is over
    drag->setMimeData(data);
    drag->setPixmap(pictureOf(source, shown));
    drag->setHotSpot(pressedAt - shown.topLeft());
    drag->exec(Qt::CopyAction);
}

bool isDrag(QPoint pressedAt, QPoint now)
{
    return (now - pressedAt).manhattanLength() >= QApplication::startDragDistance();
}
