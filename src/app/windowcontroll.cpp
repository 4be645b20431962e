#include "app/windowcontroll.h"

#include "platform/keywindow.h"

#include <QtCore/QEvent>

#include <utility>

namespace {

/// The functions that a list of the side panels offers, and how it is told to select one.
struct ListedFunctions
{
    std::int32_t first;
    std::int32_t last;
    void (SidePanels::*select)(std::int32_t row);
};

constexpr ListedFunctions kListedFunctions[] = {
    {16, 23, &SidePanels::setDPISel},
    {32, 43, &SidePanels::setProfileSel},
    {256, 306, &SidePanels::setMacroSel}, // one past the 50 macros, on purpose
};
constexpr std::int32_t kFirstTreeCode = 4096;

} // namespace

windowcontroll::windowcontroll(custumwindow &main, custumwindow &left, custumwindow &right,
                               custumwindow &bottom)
    : MainWindow(main),
      LeftBar(left),
      RightBar(right),
      BottomBar(bottom),
      m_left(BarSide::Left, main, left),
      m_right(BarSide::Right, main, right),
      m_bottom(BarSide::Bottom, main, bottom)
{
}

void windowcontroll::awakeFromNib()
{
    bMinLeftBar = bMinRightBar = bMinBottomBar = true;
    MainWindow.setBCanDragWindow(true);
    MainWindow.installEventFilter(this);
    custumwindow *const ring[] = {&MainWindow, &LeftBar, &RightBar, &BottomBar};
    for (std::size_t i = 0; i < std::size(ring); ++i)
        ring[i]->setTabNeighbours(ring[(i + 3) % 4], ring[(i + 1) % 4]);
    for (custumwindow *bar : {&LeftBar, &RightBar, &BottomBar}) {
        bar->installEventFilter(this);
        bar->setBCanDragWindow(true);
        bar->setDragMoves(&MainWindow);
    }
    followMain();
    for (custumwindow *bar : {&LeftBar, &RightBar, &BottomBar})
        orderFront(*bar);
}

void windowcontroll::initialWindowpos()
{
    MainWindow.setBCanDragWindow(true);
    CloseLeftBar();
    CloseRightBar();
    CloseBottomBar();
}

void windowcontroll::initialSetting()
{
    if (m_mainContent)
        m_mainContent->initButtonSetting();
    if (m_leftContent)
        m_leftContent->InitSetting();
    if (m_bottomContent)
        m_bottomContent->InitSetting();
}

void windowcontroll::refreshSetting()
{
    if (m_leftContent && !bMinLeftBar)
        m_leftContent->InitSetting();
    if (m_bottomContent && !bMinBottomBar)
        m_bottomContent->InitSetting();
}

void windowcontroll::refreshMacroList()
{
    if (m_rightContent && !bMinRightBar)
        m_rightContent->refreshMacroList();
}

void windowcontroll::macrosChanged()
{
    if (m_mainContent)
        m_mainContent->macrosChanged();
}

void windowcontroll::setMainViewApplyStatus(bool changed)
{
    if (m_mainContent)
        m_mainContent->setApplyButtonStatus(changed);
}

void windowcontroll::refreshProfileColorBar()
{
    if (m_mainContent)
        m_mainContent->redraw();
}

void windowcontroll::windowDidResize()
{
    if (m_rightContent)
        m_rightContent->ResizeComponent();
}

void windowcontroll::OpenLeftBar()
{
    bMinLeftBar = false;
    m_left.slide(true);
}

void windowcontroll::CloseLeftBar()
{
    bMinLeftBar = true;
    m_left.slide(false);
}

void windowcontroll::OpenRightBar()
{
    bMinRightBar = false;
    m_right.slide(true);
}

void windowcontroll::CloseRightBar()
{
    bMinRightBar = true;
    m_awaited.reset();
    m_right.slide(false);
}

void windowcontroll::OpenBottomBar()
{
    bMinBottomBar = false;
    m_bottom.slide(true);
}

void windowcontroll::CloseBottomBar()
{
    bMinBottomBar = true;
    m_bottom.slide(false);
}

void windowcontroll::toggleLeftBar()
{
    bMinLeftBar ? OpenLeftBar() : CloseLeftBar();
}

void windowcontroll::toggleBottomBar()
{
    bMinBottomBar ? OpenBottomBar() : CloseBottomBar();
}

void windowcontroll::toggleRightBar()
{
    if (bMinRightBar)
        return showRightBar();
    if (m_rightContent) {
        m_rightContent->setAllWindowclose();
        m_rightContent->hideMiniBar();
    }
    CloseRightBar();
    m_right.whenArrived({this, &windowcontroll::rightBarClosed});
}

void windowcontroll::showRightBar()
{
    if (m_rightContent)
        m_rightContent->hideMiniBar();
    OpenRightBar();
    m_right.whenArrived({this, &windowcontroll::rightBarOpened});
}

void windowcontroll::rightBarOpened()
{
    if (m_rightContent)
        m_rightContent->openMiniBar();
    showAwaited();
}

void windowcontroll::showAwaited()
{
    if (const auto code = std::exchange(m_awaited, {}))
        showFunction(*code);
}

void windowcontroll::rightBarClosed()
{
    if (m_rightContent)
        m_rightContent->closeMiniBar();
}

void windowcontroll::changeSelFunction(FunctionCode code)
{
    if (m_mainContent)
        m_mainContent->changeCurrentButtonFunction(code);
}

void windowcontroll::findFunctionItem(FunctionCode code)
{
    // The panels take their width from the bar: they are asked once it has it.
    m_awaited = code;
    if (bMinRightBar)
        return showRightBar();
    if (!m_right.isMoving())
        showAwaited();
}

void windowcontroll::showFunction(FunctionCode code)
{
    if (!m_rightContent)
        return;
    const auto number = static_cast<std::int32_t>(code);
    if (number >= kFirstTreeCode)
        return m_rightContent->setTreeSel(number);
    for (const ListedFunctions &list : kListedFunctions) {
        if (number >= list.first && number <= list.last)
            return (m_rightContent->*list.select)(number - list.first);
    }
    m_rightContent->setAllWindowclose();
}

void windowcontroll::followMain()
{
    for (BarSlide *bar : {&m_left, &m_right, &m_bottom})
        bar->follow();
}

bool windowcontroll::eventFilter(QObject *watched, QEvent *event)
{
    const bool moved = event->type() == QEvent::Move;
    const bool resized = event->type() == QEvent::Resize;
    if (watched == &MainWindow && (moved || resized))
        followMain();
    else if (watched == &RightBar && resized)
        windowDidResize();
    return false;
}
