#pragma once

#include <QtWidgets/QApplication>
#include <QtWidgets/QProxyStyle>

/// A style whose animations take so many milliseconds; with 0 it has none.
class AnimatedStyle : public QProxyStyle
{
public:
    explicit AnimatedStyle(int duration) : m_duration(duration) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? m_duration
                   : QProxyStyle::styleHint(hint, option, widget, result);
    }

private:
    int m_duration;
};

/// Gives all windows that style.
inline void animateFor(int milliseconds)
{
    QApplication::setStyle(new AnimatedStyle(milliseconds));
}
