#pragma once

#include "controls/pngListBox.h"
#include "support/pointer.h"

#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <initializer_list>
#include <vector>

/// The windows of these names that are open. One that is closed may live a moment longer.
inline std::vector<QWidget *> openWindows(std::initializer_list<const char *> names)
{
    std::vector<QWidget *> windows;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const QString own = window->objectName();
        const auto isOwn = [&](const char *name) { return own == QLatin1String(name); };
        if (window->isVisible() && std::ranges::any_of(names, isOwn))
            windows.push_back(window);
    }
    return windows;
}

/// The windows with a list.
inline std::vector<QWidget *> openLists()
{
    return openWindows({"pListbox"});
}

/// The list that was just opened, once it has the keyboard.
inline pngListBox &openedList()
{
    if (openLists().size() != 1)
        qFatal("the list does not open");
    auto *const list = openLists().front()->findChild<pngListBox *>(QStringLiteral("pListboxView"));
    if (!QTest::qWaitFor([list] { return list->hasFocus(); }))
        qFatal("the list does not get the keyboard");
    return *list;
}

/// The middle of a row of a list.
inline QPoint rowPoint(int row)
{
    return {30, 20 * row + 10};
}

inline void clickRow(const pngListBox &list, int row)
{
    pointer::click(list, rowPoint(row));
}
