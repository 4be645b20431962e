#pragma once

#include "support/mainwindow.h"

#include <QtWidgets/QApplication>

/// The list windows that are open. One that is closed may live a moment longer.
inline std::vector<QWidget *> openLists()
{
    std::vector<QWidget *> lists;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("pListbox") && window->isVisible())
            lists.push_back(window);
    }
    return lists;
}

struct QuickListStage : MainWindowStage
{
    using MainWindowStage::MainWindowStage;

    /// Opens the list of a mouse button by a right click.
    pngListBox &open(int number) const
    {
        pointer::rightClick(mouseButton(number));
        if (openLists().size() != 1 || !QTest::qWaitForWindowActive(openLists().front()))
            qFatal("the list does not open");
        return *openLists().front()->findChild<pngListBox *>(QStringLiteral("pListboxView"));
    }
};

/// The middle of a row of the quick list.
inline QPoint rowPoint(int row)
{
    return {30, 20 * row + 10};
}

inline void clickRow(const pngListBox &list, int row)
{
    pointer::click(list, rowPoint(row));
}
