#pragma once

#include "app/barslide.h"
#include "model/settings.h"

#include <optional>

/// What the window controller asks of the view in the main window.
class MainContent
{
public:
    /// Rebuilds the captions from the current profile.
    virtual void initButtonSetting() = 0;
    virtual void setApplyButtonStatus(bool changed) = 0;
    /// Gives the selected mouse button a function.
    virtual void changeCurrentButtonFunction(FunctionCode code) = 0;
    /// The current profile's macros are others than before.
    virtual void macrosChanged() = 0;
    /// Draws the view again.
    virtual void redraw() = 0;

protected:
    ~MainContent() = default;
};

/// What it asks of the views in the left and the bottom bar.
class BarContent
{
public:
    /// Loads the controls from the current profile.
    virtual void InitSetting() = 0;

protected:
    ~BarContent() = default;
};

/// What it asks of the view in the right bar: the panels in which button functions live.
class SidePanels
{
public:
    /// The bar has another size.
    virtual void ResizeComponent() = 0;
    /// Around a slide: nothing of the content shows at the bar's edge while it moves.
    virtual void hideMiniBar() = 0;
    virtual void openMiniBar() = 0;
    virtual void closeMiniBar() = 0;
    /// Lists the macros of the current profile.
    virtual void refreshMacroList() = 0;
    /// Closes all panels, or opens one of them and selects there: a row, or for the tree a code.
    virtual void setAllWindowclose() = 0;
    virtual void setTreeSel(std::int32_t code) = 0;
    virtual void setDPISel(std::int32_t row) = 0;
    virtual void setProfileSel(std::int32_t row) = 0;
    virtual void setMacroSel(std::int32_t row) = 0;

protected:
    ~SidePanels() = default;
};

/// Opens and closes the three bars around the main window, keeps them at its sides, and relays
/// between the views. It owns none of them; a view that was never set is left out.
class windowcontroll : public QObject
{
public:
    /// The four windows; each must outlive the controller or be gone with it.
    windowcontroll(custumwindow &main, custumwindow &left, custumwindow &right,
                   custumwindow &bottom);

    void setMainContent(MainContent *content) { m_mainContent = content; }
    void setLeftContent(BarContent *content) { m_leftContent = content; }
    void setRightContent(SidePanels *content) { m_rightContent = content; }
    void setBottomContent(BarContent *content) { m_bottomContent = content; }

    /// Once the windows stand: all bars count as closed, the main window can be dragged, and the
    /// bars are attached to it.
    void awakeFromNib();
    /// Main window draggable, all bars closed.
    void initialWindowpos();

    /// Loads everything that shows the current profile anew, on bars open or closed.
    void initialSetting();
    /// Loads the left and the bottom bar anew, as far as they are open: a closed one does so when
    /// it opens.
    void refreshSetting();
    /// The current profile's macros are others: an open right bar lists them anew.
    void refreshMacroList();
    void setMainViewApplyStatus(bool changed);
    /// Has the profile colour lines drawn again.
    void refreshProfileColorBar();

    /// A bar changed its size: the right bar's view lays out its panels.
    void windowDidResize();
    /// Nothing: the bars follow the main window by themselves.
    void windowDidMove() {}

    bool IsMinLeftbar() const { return bMinLeftBar; }
    bool IsMinRightBar() const { return bMinRightBar; }
    bool IsMinBottomBar() const { return bMinBottomBar; }

    /// Each sets its flag at once; the bar slides there in its own time.
    void OpenLeftBar();
    void CloseLeftBar();
    void OpenRightBar();
    void CloseRightBar();
    void OpenBottomBar();
    void CloseBottomBar();
    void toggleLeftBar();
    void toggleRightBar();
    void toggleBottomBar();

    /// A player has changed the current profile's macros in a side panel.
    void macrosChanged();
    /// A function was chosen in a side panel.
    void changeSelFunction(FunctionCode code);
    /// Shows in the side panels where a function lives, opening the right bar for it.
    void findFunctionItem(FunctionCode code);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showRightBar();
    void rightBarOpened();
    void rightBarClosed();
    void showAwaited();
    void showFunction(FunctionCode code);
    void followMain();

    custumwindow &MainWindow;
    custumwindow &LeftBar;
    custumwindow &RightBar;
    custumwindow &BottomBar;
    BarSlide m_left;
    BarSlide m_right;
    BarSlide m_bottom;
    MainContent *m_mainContent = nullptr;
    BarContent *m_leftContent = nullptr;
    SidePanels *m_rightContent = nullptr;
    BarContent *m_bottomContent = nullptr;

    bool bMinLeftBar = true; ///< closed to its handle
    bool bMinRightBar = true;
    bool bMinBottomBar = true;
    std::optional<FunctionCode> m_awaited; ///< to be shown once the right bar stands
};
