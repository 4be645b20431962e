#include "app/barslide.h"

#include <QtWidgets/QStyle>

#include <cmath>
#include <utility>

namespace {

/// Milliseconds for a share of the whole way; 0 = at once.
int slideDuration(const QWidget &bar, double share)
{
    if (!bar.isVisible())
        return 0;
    const int whole = bar.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &bar);
    return static_cast<int>(std::lround(whole * share));
}

} // namespace

BarSlide::BarSlide(BarSide side, custumwindow &main, custumwindow &bar)
    : m_side(side), m_main(&main), m_bar(&bar)
{
    m_way.setEasingCurve(QEasingCurve::OutCubic);
    // An animation that is being set up tells values too.
    connect(&m_way, &QVariantAnimation::valueChanged, this, [this](const QVariant &share) {
        if (isMoving())
            moveTo(share.toDouble());
    });
    connect(&m_way, &QVariantAnimation::finished, this, &BarSlide::sendArrived);
}

void BarSlide::slide(bool open)
{
    m_way.stop();
    m_arrived = {};
    const double end = open ? 1.0 : 0.0;
    const int duration = m_bar ? slideDuration(*m_bar, std::abs(end - m_openShare)) : 0;
    if (duration == 0)
        return moveTo(end);
    m_way.setStartValue(m_openShare);
    m_way.setEndValue(end);
    m_way.setDuration(duration);
    m_way.start();
}

void BarSlide::whenArrived(const Action<> &arrived)
{
    m_arrived = arrived;
    if (!isMoving())
        sendArrived();
}

void BarSlide::follow()
{
    moveTo(m_openShare);
}

void BarSlide::moveTo(double openShare)
{
    m_openShare = openShare;
    if (m_main && m_bar)
        m_bar->setFrame(barFrame(m_side, m_main->frame(), m_bar->frame(), openShare));
}

void BarSlide::sendArrived()
{
    std::exchange(m_arrived, {}).send();
}
