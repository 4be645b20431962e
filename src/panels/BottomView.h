#pragma once

#include "panels/barview.h"

/// The content of the bottom bar: the lighting of the current profile.
class BottomView : public BarView, public BarContent
{
public:
    explicit BottomView(QWidget *parent);

    /// Nothing of the profile shows on this bar yet.
    void InitSetting() override {}

protected:
    void toggleBar() override;
    void closeBar() override;
    bool isBarMin() const override;
};
