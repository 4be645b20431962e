#include "panels/LeftView.h"

namespace {

constexpr BarLook kLook{.background = "leftBar",
                        .title = "Mouse Properties",
                        .titleRect = {70, 430, 130, 20},
                        .toggleTag = 0x2000,
                        .toggleRect = {1, 130, 17, 192},
                        .toggleDescription = "Mouse properties, open or close",
                        .open = {"leftmini1", "leftmini2"},
                        .closed = {"leftmini3", "leftmini4"}};

} // namespace

LeftView::LeftView(QWidget *parent) : BarView(kLook, parent) {}

void LeftView::toggleBar()
{
    InitSetting();
    controller().toggleLeftBar();
}

void LeftView::closeBar()
{
    controller().CloseLeftBar();
}

bool LeftView::isBarMin() const
{
    return controller().IsMinLeftbar();
}
