#pragma once

#include "dialogs/MessageDialog.h"
#include "macro/macrowarncontrols.h"
#include "platform/action.h"

/// The insides of the question before a macro is deleted, with a box that switches the question
/// off. The box acts at once, whatever the answer is.
class MacroDelWarn : public MessageDialog
{
public:
    static constexpr int kWidth = macrowarn::kWidth;
    static constexpr int kHeight = macrowarn::kHeight;

    explicit MacroDelWarn(QWidget *parent);

    /// Sent with the dialog on OK, after the modal run, while the window is still open.
    void setDelAction(const Action<QWidget *> &action) { DelAction = action; }

protected:
    void answered(int tag) override;

private:
    void confirmAction(HoverButton *sender);

    HoverButton *CheckButtonDel;
    Action<QWidget *> DelAction;
};
