#pragma once

#include "support/pointer.h"

#include <QtWidgets/QMenu>

#include <vector>

namespace detail {

/// The menu or submenu on top, once it is the one of that name.
inline QMenu &menuOnTop(const QString &name)
{
    QMenu *menu = nullptr;
    const auto isOnTop = [&] {
        menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        return menu && menu->objectName() == name;
    };
    if (!QTest::qWaitFor(isOnTop))
        qFatal("no menu %s", qPrintable(name));
    return *menu;
}

inline void clickItem(const QMenu &menu, const QString &text)
{
    for (QAction *const action : menu.actions()) {
        if (action->objectName() == text)
            return pointer::click(menu, menu.actionGeometry(action).center());
    }
    qFatal("no menu item %s", qPrintable(text));
}

} // namespace detail

/// Clicks on `control`, then on the items of its menu one after the other, all but the last one
/// having a submenu. Returns when what was chosen is done.
inline void chooseFromMenu(const QWidget &control, const std::vector<const char *> &items)
{
    pointer::click(control);
    QString menu = QStringLiteral("ContextMenu");
    for (const char *item : items) {
        const QString text = QString::fromLatin1(item);
        detail::clickItem(detail::menuOnTop(menu), text);
        menu = text;
    }
    QCoreApplication::sendPostedEvents(qApp, QEvent::MetaCall); // the choice comes from the loop
}
