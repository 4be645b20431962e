#pragma once

#include "dialogs/aboutcontrols.h"
#include "dialogs/MessageDialog.h"

/// The insides of the window that tells the versions of the program and of the mouse.
class AboutView : public MessageDialog
{
public:
    static constexpr int kWidth = about::kWidth;
    static constexpr int kHeight = about::kHeight;

    explicit AboutView(QWidget *parent);

    /// Shows the mouse's firmware version as reported: the low byte is what stands before the dot,
    /// the rest what stands behind it. 0 = unknown, as at first.
    void setFWNumber(std::uint32_t number);
};
