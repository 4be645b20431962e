#include "app/appicon.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>

void setIcon()
{
    QIcon icon;
    for (const char *name :
         {"icon16", "icon24", "icon32", "icon48", "icon64", "icon128", "icon256"})
        icon.addPixmap(QPixmap(QLatin1String(":/icon/") + QLatin1String(name), "PNG"));
    QApplication::setWindowIcon(icon);
}
