#pragma once

#include "dialogs/MessageDialog.h"
#include "dialogs/warntwocontrols.h"
#include "platform/action.h"

/// The insides of a question: what its OK and its Cancel mean is set from outside, its close button
/// means neither.
class WarnTwoView : public MessageDialog
{
public:
    static constexpr int kWidth = warntwo::kWidth;
    static constexpr int kHeight = warntwo::kHeight;

    explicit WarnTwoView(QWidget *parent);

    using MessageDialog::setDisplayString;

    /// Sent after the modal run, while the window is still open: on OK the one, on Cancel the
    /// other. One that was not set does nothing.
    void setYESAction(const Action<> &action) { m_yesAction = action; }
    void setNOAction(const Action<> &action) { m_noAction = action; }

protected:
    void answered(int tag) override;

private:
    Action<> m_yesAction;
    Action<> m_noAction;
};
