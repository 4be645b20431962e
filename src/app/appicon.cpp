#include "app/appicon.h"

#include <QtCore/QEvent>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {

void setIcon()
{
    QIcon icon;
    for (const char *name :
         {"icon16", "icon24", "icon32", "icon48", "icon64", "icon128", "icon256"})
        icon.addPixmap(QPixmap(QLatin1String(":/icon/") + QLatin1String(name), "PNG"));
    QApplication::setWindowIcon(icon);
}

/// Waits for one painting and is gone.
class FirstPainting : public QObject
{
public:
    explicit FirstPainting(QWidget &window) : QObject(&window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        watched->removeEventFilter(this);
        QMetaObject::invokeMethod(qApp, setIcon, Qt::QueuedConnection);
        deleteLater();
        return false;
    }
};

} // namespace

void setIconOncePainted(QWidget &window)
{
    new FirstPainting(window);
}
