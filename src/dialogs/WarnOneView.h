#pragma once

#include "dialogs/MessageDialog.h"
#include "dialogs/warnonecontrols.h"

/// The insides of a warning that can only be taken note of: its OK does what its close button does.
class WarnOneView : public MessageDialog
{
public:
    static constexpr int kWidth = warnone::kWidth;
    static constexpr int kHeight = warnone::kHeight;

    explicit WarnOneView(QWidget *parent);

    using MessageDialog::setDisplayString;
};
