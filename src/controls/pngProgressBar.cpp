#include "controls/pngProgressBar.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QToolTip>

#include <algorithm>

pngProgressBar::pngProgressBar(QWidget *parent, UpRect frame) : ViewOf(parent)
{
    setFrame(frame);
    setFocusPolicy(Qt::StrongFocus);
    updateSlider();
    connect(this, &QAbstractSlider::valueChanged, this, &pngProgressBar::takeSliderValue);
}

void pngProgressBar::setBKImage(const SkinImage &image)
{
    BKImage = image;
    update();
}

void pngProgressBar::setOverImage(const SkinImage &image)
{
    OverImage = image;
    update();
}

void pngProgressBar::setDirStyle(int style)
{
    _DirStyle = style;
    setOrientation(isHorizontal() ? Qt::Horizontal : Qt::Vertical);
    update();
}

void pngProgressBar::setposRange(double minValue, double maxValue)
{
    _minimum = minValue;
    _maximum = std::max(minValue, maxValue);
    setPos(getPos());
}

void pngProgressBar::setAllowMouseChangeFlag(bool allow)
{
    bAllowMouseChangeFlag = allow;
    setFocusPolicy(allow ? Qt::StrongFocus : Qt::NoFocus);
}

void pngProgressBar::setPos(int pos)
{
    _currentpos = std::clamp(static_cast<double>(pos), _minimum, _maximum);
    updateSlider();
    update();
}

/// Keeps the toolkit's idea of the value in step, for the keyboard and assistive technology.
void pngProgressBar::updateSlider()
{
    setRange(static_cast<int>(_minimum), static_cast<int>(_maximum));
    setValue(getPos());
}

int pngProgressBar::uncovered(int length) const
{
    const double range = _maximum - _minimum;
    return range > 0 ? static_cast<int>(length * _currentpos / range) : 0;
}

void pngProgressBar::drawRect(Canvas &canvas)
{
    canvas.drawImage(BKImage);
    const QSize shown =
        isHorizontal() ? QSize(uncovered(width()), height()) : QSize(width(), uncovered(height()));
    canvas.drawImagePart(OverImage, {}, shown);
    if (m_focusFrame.isShown(*this))
        canvas.outline(canvas.bounds(), kWhite);
}

void pngProgressBar::mouseDown(const ViewMouseEvent &event)
{
    if (bAllowMouseChangeFlag)
        followPointer(event);
}

void pngProgressBar::mouseDragged(const ViewMouseEvent &event)
{
    if (bAllowMouseChangeFlag)
        followPointer(event);
}

void pngProgressBar::followPointer(const ViewMouseEvent &event)
{
    const int along = isHorizontal() ? event.position.x : event.position.y;
    const int length = std::max(1, isHorizontal() ? width() : height());
    // The minimum is not added back, on purpose: the left or bottom edge stands for 0, which
    // setPos() raises to the minimum.
    setPos(static_cast<int>(along * (_maximum - _minimum) / length));
    tellPosition(event.event->globalPosition().toPoint());
    changeAction.send(this);
}

/// In numbers, since the two highest positions of a range from 1 look alike.
void pngProgressBar::tellPosition(QPoint pointer)
{
    QToolTip::showText(pointer, QString::number(getPos()), this);
}

bool pngProgressBar::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !bAllowMouseChangeFlag)
        return ViewOf::event(event);
    tellPosition(static_cast<QHelpEvent *>(event)->globalPos());
    return true;
}

void pngProgressBar::keyDown(QKeyEvent *event)
{
    if (!bAllowMouseChangeFlag)
        return event->ignore();
    const QPointer<pngProgressBar> alive(this);
    const int before = getPos();
    ViewOf::keyDown(event);
    if (alive && getPos() != before)
        tellPosition(mapToGlobal(rect().center()));
}

void pngProgressBar::focusInEvent(QFocusEvent *event)
{
    m_focusFrame.focusIn(*event);
    ViewOf::focusInEvent(event);
}

void pngProgressBar::wheelEvent(QWheelEvent *event)
{
    const int turn = event->angleDelta().y();
    if (!bAllowMouseChangeFlag || turn == 0)
        return event->ignore();
    // By itself the toolkit would move as many steps as a text scrolls lines.
    m_turned += turn;
    const int notches = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned %= QWheelEvent::DefaultDeltasPerStep;
    const QPointer<pngProgressBar> alive(this);
    setValue(getPos() + notches);
    if (alive)
        tellPosition(event->globalPosition().toPoint());
}

/// The toolkit changed the value by itself: by a key, the wheel, or for assistive technology.
void pngProgressBar::takeSliderValue(int value)
{
    if (value == getPos())
        return;
    if (!bAllowMouseChangeFlag)
        return updateSlider();
    setPos(value);
    changeAction.send(this);
}
