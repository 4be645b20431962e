#include "panels/BottomView.h"

namespace {

constexpr BarLook kLook{.background = "bottomBar",
                        .title = "Illumination Settings",
                        .titleRect = {185, 81, 200, 15},
                        .toggleTag = 4096,
                        .toggleRect = {137, 1, 192, 17},
                        .toggleDescription = "Illumination settings, open or close",
                        .open = {"botmini1", "botmini2"},
                        .closed = {"botmini3", "botmini4"}};

} // namespace

BottomView::BottomView(QWidget *parent) : BarView(kLook, parent) {}

void BottomView::toggleBar()
{
    InitSetting();
    controller().toggleBottomBar();
}

void BottomView::closeBar()
{
    controller().CloseBottomBar();
}

bool BottomView::isBarMin() const
{
    return controller().IsMinBottomBar();
}
