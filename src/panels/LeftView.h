#pragma once

#include "panels/barview.h"

/// The content of the left bar: the sensor settings of the current profile.
class LeftView : public BarView, public BarContent
{
public:
    explicit LeftView(QWidget *parent);

    /// Nothing of the profile shows on this bar yet.
    void InitSetting() override {}

protected:
    void toggleBar() override;
    void closeBar() override;
    bool isBarMin() const override;
};
