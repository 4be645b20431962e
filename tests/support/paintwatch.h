#pragma once

#include <QtGui/QPaintEvent>
#include <QtWidgets/QWidget>

/// Notes which parts of a shown widget are painted while it lives.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }

    bool hasPainted(QPoint at) const { return m_painted.contains(at); }

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

private:
    QRegion m_painted;
};
