#pragma once

#include "dialogs/PopupProgressBar.h"
#include "support/mainwindow.h"

/// The main window with what it takes to see the progress of an on-board write.
struct ProgressStage : MainWindowStage
{
    using MainWindowStage::MainWindowStage;

    void saveOnBoard() const { pointer::click(button("ButtonSaveToDevice")); }
    void progress(const QVariant &position)
    {
        report("Kt7R4WriteToDeviceChange", "PosNumber", position);
    }
    custumwindow *progressWindow() const
    {
        return window().findChild<custumwindow *>(QStringLiteral("pPopUpBarWindow"));
    }
    const PopupProgressBar &progressView() const
    {
        return *progressWindow()->findChild<PopupProgressBar *>();
    }
    bool showsProgress() const { return progressWindow() && progressWindow()->isVisible(); }
};
