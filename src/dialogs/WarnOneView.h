#pragma once

#include "dialogs/MessageDialog.h"

/// The insides of a warning that can only be taken note of: its OK does what its close button does.
class WarnOneView : public MessageDialog
{
public:
    static constexpr int kWidth = 387;
    static constexpr int kHeight = 176;

    explicit WarnOneView(QWidget *parent);

    using MessageDialog::setDisplayString;
};
