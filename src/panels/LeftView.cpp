#include "panels/LeftView.h"

#include "model/settings.h"
#include "platform/systemlog.h"

#include <algorithm>

namespace {

constexpr UpRect kInside{0, 0, 202, 452};

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

/// The blank belongs to the text.
constexpr const char *kDpiTexts[] = {" 800", " 1600", " 2400", " 3200", " 4000", " 5000"};
constexpr int kDpiTag = 0x2001;
constexpr LevelChoice::Look kDpi{
    .button = {"btnDPI", {97, 358, 101, 27}, kDpiTag, "", "CPI value", kArrowField},
    .listTag = 0x4000,
    .texts = kDpiTexts,
    .field = &ProfileInfo::DPI_VALUE,
    .logLine = "IDC_LISTBOX_DPI:%d"};

constexpr int kHorizontal = 1;
constexpr int kVertical = 2;
constexpr double kLeastLevel = 1;
constexpr double kMostLevel = 10;

/// A bar and the level of the profile that it edits.
struct LevelRow
{
    ButtonRow bar;
    int dirStyle = kHorizontal;
    std::uint32_t ProfileInfo::*field = nullptr;
    const char *logLine = "";
};

// clang-format off
constexpr LevelRow kLevels[] = {
    {{"dbClickSpeedBar", {42, 303, 124, 16}, 0x3000, "", "Double-click speed"}, kHorizontal,
     &ProfileInfo::DBCLICK_SPEED,  "IDC_PROGRESSBAR_DBCLICK"},
    {{"scrollSpeedBar",  {42, 260, 124, 16}, 0x3001, "", "Scroll speed"}, kHorizontal,
     &ProfileInfo::SCROLL_SPEED,   "IDC_PROGRESSBAR_SCROLLSPEED"},
    {{"pointSpeedBar",   {42, 222, 124, 16}, 0x3002, "", "Pointer speed"}, kHorizontal,
     &ProfileInfo::SENSITIVITY,    "IDC_PROGRESSBAR_POINTSPEED"},
    {{"advSensXBar",     {70, 62, 16, 112},  0x3003, "", "Sensitivity, X axis"}, kVertical,
     &ProfileInfo::ADVANCED_SEN_X, "IDC_PROGRESSBAR_ADVSENSX"},
    {{"advSensYBar",     {130, 62, 16, 112}, 0x3004, "", "Sensitivity, Y axis"}, kVertical,
     &ProfileInfo::ADVANCED_SEN_Y, "IDC_PROGRESSBAR_ADVSENSY"},
};
// clang-format on

consteval bool tableHolds()
{
    int tag = kLevels[0].bar.tag;
    return kInside.holds(kDpi.button.frame) &&
           std::ranges::all_of(kLevels, [&tag](const LevelRow &row) {
               return row.bar.tag == tag++ && kInside.holds(row.bar.frame);
           });
}
static_assert(tableHolds(), "controls inside the bar, levels in the order of their tags");

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
