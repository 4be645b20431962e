#pragma once

#include "support/keyboard.h"
#include "support/menus.h"

namespace keyboard {

/// Goes to `control` and opens its menu.
inline QMenu &openMenu(const QWidget &control)
{
    tabTo(control);
    press(Qt::Key_Space);
    return detail::menuOnTop(QStringLiteral("ContextMenu"));
}

/// Moves down an open menu to the item of that name.
inline void moveTo(const QMenu &menu, const QString &item)
{
    const auto stands = [&] {
        return menu.activeAction() && menu.activeAction()->objectName() == item;
    };
    for (qsizetype step = menu.actions().size(); step > 0 && !stands(); --step)
        press(Qt::Key_Down);
    if (!stands())
        qFatal("the arrow keys do not reach %s", qPrintable(item));
}

/// What chooseFromMenu() does, by keyboard: the tab key to the control, Space, the arrow keys,
/// Return.
inline void chooseFromMenu(const QWidget &control, const std::vector<const char *> &items)
{
    const QMenu *menu = &openMenu(control);
    for (const char *item : items) {
        const QString text = QString::fromLatin1(item);
        moveTo(*menu, text);
        const bool isLast = item == items.back();
        press(isLast ? Qt::Key_Return : Qt::Key_Right);
        if (!isLast)
            menu = &detail::menuOnTop(text);
    }
    QCoreApplication::sendPostedEvents(qApp, QEvent::MetaCall); // the choice comes from the loop
}

} // namespace keyboard
