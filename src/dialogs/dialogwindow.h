#pragma once

#include "controls/custumwindow.h"

/// A dialog of that class in a draggable window of its own, which belongs to the window `owner` and
/// stands at its lower left corner. It is not shown yet.
template <class Dialog>
Dialog *makeDialogAt(QWidget &owner)
{
    const UpRect at = hostOf(owner).up(owner.geometry());
    auto *const window =
        new custumwindow({at.x, at.y, Dialog::kWidth, Dialog::kHeight}, &owner, Qt::Dialog);
    auto *const dialog = new Dialog(window);
    window->setFixedSize(window->size());
    window->setContentView(dialog);
    window->setBCanDragWindow(true);
    return dialog;
}
