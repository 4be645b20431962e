#include "panels/RightView.h"

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

} // namespace

RightView::RightView(QWidget *parent) : BarView(kLook, parent) {}

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

void RightView::hideMiniBar()
{
    m_toggleHadKeyboard = m_toggleHadKeyboard || toggleButton().hasFocus();
    toggleButton().hide();
}

void RightView::openMiniBar()
{
    showToggleAt(kToggleOpen);
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
    // Hiding took the keyboard from it.
    if (m_toggleHadKeyboard)
        toggleButton().setFocus(Qt::TabFocusReason);
    m_toggleHadKeyboard = false;
}

void RightView::setAllWindowclose()
{
    SetMaxToggleImage();
}

void RightView::setTreeSel(std::int32_t /*code*/)
{
    SetMaxToggleImage();
}

void RightView::setDPISel(std::int32_t /*row*/)
{
    SetMaxToggleImage();
}

void RightView::setProfileSel(std::int32_t /*row*/)
{
    SetMaxToggleImage();
}

void RightView::setMacroSel(std::int32_t /*row*/)
{
    SetMaxToggleImage();
}
