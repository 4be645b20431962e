#pragma once

#include "platform/action.h"

#include <QtWidgets/QMenu>

#include <vector>

/// One item of a context menu. An item with a submenu opens it; its own action is not used.
struct MenuItem
{
    QString text; ///< shown as it stands, an ampersand too
    Action<> action;
    std::vector<MenuItem> submenu;
    bool checked = false; ///< shows a check mark; an item with a submenu may have one too
};

/// A menu in the skin's look that stands below the control it belongs to. Between all items stands
/// a separator, so the items' indices are 0, 2, 4 and so on. A press outside only closes the menu.
///
/// The menu is named "ContextMenu", a submenu like its item. An item's QAction is named by the
/// item's text; its own text is the same with every ampersand doubled, as the toolkit wants it.
class ContextMenu : public QMenu
{
public:
    /// Shows a new menu at the control's lower left corner and returns at once; where the screen
    /// ends the menu moves as far as it must. It deletes itself when it closes, and goes with the
    /// control. The chosen item's action is sent after that, from the event loop, and not when its
    /// target is gone by then. A control that has the keyboard and is not under the pointer was
    /// used by key: then the first item is highlighted. Without items: no menu, null.
    static ContextMenu *popUp(const std::vector<MenuItem> &items, QWidget &control);

private:
    ContextMenu(const std::vector<MenuItem> &items, QWidget *parent, const QString &name);

    void addItem(const MenuItem &item);
    void choose(const Action<> &action);
};
