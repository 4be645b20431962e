#include "panels/RightView.h"

#include "platform/keywindow.h"
#include "platform/systemlog.h"

#include <algorithm>
#include <utility>

namespace {

constexpr UpPoint kToggleClosed{0, 133};
constexpr UpPoint kToggleOpen{185, 133};

constexpr BarLook kLook{.background = "rightN",
                        .title = "Button Functions",
                        .titleRect = {28, 426, 130, 20},
                        .toggleTag = 0x1000,
                        .toggleRect = {kToggleClosed.x, kToggleClosed.y, 15, 195},
                        .toggleDescription = "Button functions, open or close",
                        .open = {"rightmini2", "rightmini2O"},
                        .closed = {"rightmini", "rightminiO"}};

/// A panel's number, what is logged when a player expands or collapses it, and its places.
struct PanelRow
{
    int tag;
    const char *name;
    int startY; ///< before the bar was first open
    int collapsedHeight;
    int expandedHeight;
};

/// From top to bottom.
constexpr PanelRow kPanels[] = {
    {0x2000, "IDC_VIEW_GAMECOMMAND", 376, 30, 250},
    {0x2001, "IDC_VIEW_DPI", 346, 30, 250},
    {0x2002, "IDC_VIEW_PROFILE", 316, 30, 250},
    {0x2003, "IDC_VIEW_MACRO", 286, 50, 290},
};
constexpr int kPanelsTop = 406;
constexpr int kStartHeight = 30;
constexpr int kRightMargin = 23; ///< what the bar is wider than its panels

const PanelRow *rowOf(int tag)
{
    const auto *const row = std::ranges::find(kPanels, tag, &PanelRow::tag);
    return row == std::end(kPanels) ? nullptr : row;
}

} // namespace

RightView::RightView(QWidget *parent) : BarView(kLook, parent) {}

void RightView::awakeFromNib()
{
    const Action<CollapsiblePanel *> notice{this, &RightView::ViewNoticeAction};
    const Action<FunctionCode> change{this, &RightView::NoticeMainFuncChange};
    const auto start = [](std::size_t i) { return UpRect{0, kPanels[i].startY, 0, kStartHeight}; };
    pTreeView = new rightbarTreeView(this, start(0), notice);
    pTreeView->setTreeSelChangeNoticeAction(change);
    pDPIView = new rightbarDPI(this, start(1), notice);
    pDPIView->setDPISelChangeNoticeAction(change);
    pProfileView = new rightbarProfile(this, start(2), notice);
    pProfileView->setProfileSelChangeNoticeAction(change);
    pMacroView = new rightbarMacro(this, start(3), notice);
    pMacroView->setMacroSelChangeNoticeAction(change);
    pMacroView->setMacrosChangeAction({this, &RightView::macrosChanged});
    for (std::size_t i = 0; i < kPanelCount; ++i) {
        panels()[i]->setTag(kPanels[i].tag);
        panels()[i]->hide(); // until the bar has room for it
    }
    BarView::awakeFromNib();
}

std::array<CollapsiblePanel *, RightView::kPanelCount> RightView::panels() const
{
    return {pTreeView, pDPIView, pProfileView, pMacroView};
}

void RightView::toggleBar()
{
    controller().toggleRightBar();
}

void RightView::closeBar()
{
    controller().CloseRightBar();
}

bool RightView::isBarMin() const
{
    return controller().IsMinRightBar();
}

/// The bar slides out from beneath the main window: what shows is its outer edge.
UpPoint RightView::backgroundOrigin() const
{
    return {width() - background().size().width(), 0};
}

void RightView::ViewNoticeAction(CollapsiblePanel *panel)
{
    const PanelRow *const row = rowOf(panel->tag());
    if (!row)
        return;
    systemLog("%s", row->name);
    if (panel->GetExpanded())
        collapseOthers(panel);
    manageViewPos();
}

void RightView::NoticeMainFuncChange(FunctionCode code)
{
    controller().changeSelFunction(code);
}

void RightView::macrosChanged()
{
    controller().macrosChanged();
}

/// Null collapses all.
void RightView::collapseOthers(const CollapsiblePanel *panel)
{
    for (CollapsiblePanel *each : panels()) {
        if (each != panel)
            each->SetExpanded(false);
    }
}

void RightView::manageViewPos()
{
    stack(true);
}

void RightView::ResizeComponent()
{
    // A notice of the slide may come late, when a panel is expanded already.
    stack(!m_isMiniBarHidden);
}

/// Hangs the panels one below another from a fixed edge; while the bar slides all are as high as
/// collapsed ones.
void RightView::stack(bool asExpanded)
{
    int y = kPanelsTop;
    for (std::size_t i = 0; i < kPanelCount; ++i) {
        CollapsiblePanel &panel = *panels()[i];
        const bool expanded = asExpanded && panel.GetExpanded();
        const int height = expanded ? kPanels[i].expandedHeight : kPanels[i].collapsedHeight;
        y -= height;
        placePanel(panel, y, height);
    }
}

/// A closed bar has no room for the panels; hidden, the tab key passes them by.
void RightView::placePanel(CollapsiblePanel &panel, int y, int height)
{
    const int width = std::max(0, window()->width() - kRightMargin);
    panel.setFrame({0, y, width, height});
    if (width == 0 || (&panel == pMacroView && m_isMiniBarHidden))
        hideQuietly(panel);
    else
        panel.show();
}

void RightView::hideMiniBar()
{
    if (toggleButton().hasFocus())
        m_toggleKeyboard =
            toggleButton().showsKeyboard() ? Qt::TabFocusReason : Qt::OtherFocusReason;
    hideQuietly(toggleButton());
    m_isMiniBarHidden = true;
    hideQuietly(*pMacroView);
    pMacroView->setHiddenButton(true);
}

void RightView::openMiniBar()
{
    showToggleAt(kToggleOpen);
    m_isMiniBarHidden = false;
    pMacroView->setHiddenButton(false);
    // The profile may have changed while the bar was shut.
    pMacroView->refreshMacroList();
    // A header may have been clicked while the bar was sliding.
    manageViewPos();
}

void RightView::closeMiniBar()
{
    showToggleAt(kToggleClosed);
}

void RightView::showToggleAt(UpPoint origin)
{
    const UpRect frame = toggleButton().frame();
    toggleButton().setFrame({origin.x, origin.y, frame.width, frame.height});
    toggleButton().show();
    const auto keyboard = std::exchange(m_toggleKeyboard, {});
    if (keyboard && !window()->focusWidget())
        toggleButton().setFocus(*keyboard);
}

/// Null closes all.
void RightView::show(CollapsiblePanel *panel)
{
    collapseOthers(panel);
    if (panel)
        panel->SetExpanded(true);
    manageViewPos();
    SetMaxToggleImage();
}

void RightView::refreshMacroList()
{
    // A collapsed one too: its "Delete" shows and deletes what is selected.
    pMacroView->refreshMacroList();
}

void RightView::setAllWindowclose()
{
    show(nullptr);
}

void RightView::setTreeSel(std::int32_t code)
{
    show(pTreeView);
    pTreeView->setTreeSel(code);
}

void RightView::setDPISel(std::int32_t row)
{
    show(pDPIView);
    pDPIView->setDPISel(row);
}

void RightView::setProfileSel(std::int32_t row)
{
    show(pProfileView);
    pProfileView->setProfileSel(row);
}

void RightView::setMacroSel(std::int32_t row)
{
    show(pMacroView);
    pMacroView->setMacroSel(row);
}
