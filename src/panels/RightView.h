#pragma once

#include "functions/rightbarTreeView.h"
#include "macro/rightbarMacro.h"
#include "panels/barview.h"
#include "panels/rightbarDPI.h"
#include "panels/rightbarProfile.h"

#include <array>
#include <optional>

/// The content of the right bar: the four panels in which button functions are chosen, one below
/// another. A player who expands one collapses the others.
class RightView : public BarView, public SidePanels
{
public:
    explicit RightView(QWidget *parent);

    void awakeFromNib() override;

    void ResizeComponent() override;
    void hideMiniBar() override;
    void openMiniBar() override;
    void closeMiniBar() override;
    void refreshMacroList() override;
    void setAllWindowclose() override;
    void setTreeSel(std::int32_t code) override;
    void setDPISel(std::int32_t row) override;
    void setProfileSel(std::int32_t row) override;
    void setMacroSel(std::int32_t row) override;

    /// A player has expanded or collapsed a panel, told apart by its tag.
    void ViewNoticeAction(CollapsiblePanel *panel);
    /// A function was chosen in a panel: the controller is told.
    void NoticeMainFuncChange(FunctionCode code);
    /// A player has changed the macros: the controller is told.
    void macrosChanged();

    UpPoint backgroundOrigin() const override;

protected:
    void toggleBar() override;
    void closeBar() override;
    bool isBarMin() const override;

private:
    static constexpr std::size_t kPanelCount = 4;

    std::array<CollapsiblePanel *, kPanelCount> panels() const;
    void collapseOthers(const CollapsiblePanel *panel);
    void show(CollapsiblePanel *panel);
    void manageViewPos();
    void stack(bool asExpanded);
    void placePanel(CollapsiblePanel &panel, int y, int height);
    void showToggleAt(UpPoint origin);

    rightbarTreeView *pTreeView = nullptr;
    rightbarDPI *pDPIView = nullptr;
    rightbarProfile *pProfileView = nullptr;
    rightbarMacro *pMacroView = nullptr;
    std::optional<Qt::FocusReason> m_toggleKeyboard; ///< why the hidden handle had the keyboard
    bool m_isMiniBarHidden = false; ///< from the start of a slide until the bar stands open
};
