#include "panels/LeftView.h"

#include "model/settings.h"
#include "panels/leftbarcontrols.h"
#include "platform/systemlog.h"

#include <algorithm>

using namespace leftbar;

namespace {

constexpr BarLook::Label kLabels[] = {
    {"CPI Value:", {25, 360, 70, 20}},
    {"Double-Click Speed:", {30, 320, 150, 15}},
    {"Scroll Speed:", {30, 280, 150, 15}},
    {"Pointer Speed:", {25, 240, 150, 15}},
    {"Advanced Sensitivity:", {25, 200, 150, 15}},
    {"X-Axis:", {65, 180, 40, 15}},
    {"Y-Axis:", {125, 180, 40, 15}},
};

constexpr BarLook kLook{.background = "leftBar",
                        .over = "leftbarO",
                        .down = "leftbarD",
                        .title = "Mouse Properties",
                        .titleRect = {70, 430, 130, 20},
                        .labels = kLabels,
                        .toggleTag = 0x2000,
                        .toggleRect = {1, 130, 17, 192},
                        .toggleDescription = "Mouse properties, open or close",
                        .open = {"leftmini1", "leftmini2"},
                        .closed = {"leftmini3", "leftmini4"}};

} // namespace

LeftView::LeftView(QWidget *parent) : BarView(kLook, parent) {}

void LeftView::awakeFromNib()
{
    static_assert(std::size(kLevels) == kBarCount);
    const Faces skin = faces();
    View &controls = addControls(kInside);
    m_dpi = LevelChoice(kDpi, controls, skin);
    m_dpi.button().setAction({this, &LeftView::buttonAction});
    m_list.attachTo(m_dpi.button());
    for (std::size_t i = 0; i < kBarCount; ++i) {
        const LevelRow &row = kLevels[i];
        m_bars[i] = makeBar(&controls, row.bar, row.dirStyle, kLeastLevel, kMostLevel, skin);
        m_bars[i]->setChangeAction({this, &LeftView::progessbarAction});
    }
    BarView::awakeFromNib();
}

void LeftView::InitSetting()
{
    const ProfileInfo &profile = CurrentProfile();
    SetDpiCaption(profile.DPI_VALUE);
    for (std::size_t i = 0; i < kBarCount; ++i)
        m_bars[i]->setPos(static_cast<int>(profile.*kLevels[i].field));
}

void LeftView::SetDpiCaption(std::uint32_t code)
{
    m_dpi.show(code);
}

void LeftView::buttonAction(HoverButton *sender)
{
    if (sender->tag() == kDpiTag)
        return DisplayListBox();
    BarView::buttonAction(sender);
}

void LeftView::progessbarAction(pngProgressBar *sender)
{
    const auto *const row = std::ranges::find(kLevels, sender->tag(),
                                              [](const LevelRow &level) { return level.bar.tag; });
    if (row != std::end(kLevels)) {
        systemLog("%s", row->logLine);
        CurrentProfile().*row->field = static_cast<std::uint32_t>(sender->getPos());
    }
    controller().setMainViewApplyStatus(true);
}

void LeftView::DisplayListBox()
{
    m_dpi.open(m_list, {this, &LeftView::ListboxAction}, {this, &LeftView::CloseListBox});
}

void LeftView::ListboxAction(pngListBox *sender)
{
    if (sender->tag() == m_dpi.listTag()) {
        m_dpi.take(*sender);
        m_list.chosen();
    }
    controller().setMainViewApplyStatus(true);
}

void LeftView::CloseListBox(PopupContent * /*sender*/)
{
    m_list.close(*window());
}

void LeftView::toggleBar()
{
    m_list.close(*window());
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
