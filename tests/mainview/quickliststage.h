#pragma once

#include "support/mainwindow.h"
#include "support/popups.h"

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
