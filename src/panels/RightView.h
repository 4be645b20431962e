#pragma once

#include "panels/barview.h"

/// The content of the right bar: the panels in which button functions are chosen.
class RightView : public BarView, public SidePanels
{
public:
    explicit RightView(QWidget *parent);

    void ResizeComponent() override {}
    void hideMiniBar() override;
    void openMiniBar() override;
    void closeMiniBar() override;
    void setAllWindowclose() override;
    void setTreeSel(std::int32_t code) override;
    void setDPISel(std::int32_t row) override;
    void setProfileSel(std::int32_t row) override;
    void setMacroSel(std::int32_t row) override;

protected:
    void toggleBar() override;
    void closeBar() override;
    bool isBarMin() const override;
    UpPoint backgroundOrigin() const override;

private:
    void showToggleAt(UpPoint origin);

    bool m_toggleHadKeyboard = false;
};
