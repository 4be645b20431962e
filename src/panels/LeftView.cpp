#include "panels/LeftView.h"

#include "model/settings.h"
#include "platform/systemlog.h"

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

constexpr BarLook kLook{.inside = kInside,
                        .background = "leftBar",
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

constexpr int kDpiTag = 0x2001;
constexpr ButtonRow kDpiButton{"btnDPI", {97, 358, 101, 27}, kDpiTag, "", "CPI value"};

/// By code; the blank belongs to the text.
constexpr const char *kDpiTexts[] = {" 800", " 1600", " 2400", " 3200", " 4000", " 5000"};
constexpr int kDpiListTag = 0x4000;

constexpr int kHorizontal = 1;
constexpr int kVertical = 2;
constexpr double kLeastLevel = 1;
constexpr double kMostLevel = 10;

/// A bar and the level of the profile that it edits.
struct LevelRow
{
    const char *name = "";        ///< the object's
    const char *description = ""; ///< what it is called for assistive technology
    UpRect frame;
    int tag = 0;
    int dirStyle = kHorizontal;
    std::uint32_t ProfileInfo::*field = nullptr;
    const char *logLine = "";
};

// clang-format off
constexpr LevelRow kLevels[] = {
    {"dbClickSpeedBar", "Double-click speed", {42, 303, 124, 16}, 0x3000, kHorizontal,
     &ProfileInfo::DBCLICK_SPEED,  "IDC_PROGRESSBAR_DBCLICK"},
    {"scrollSpeedBar",  "Scroll speed",       {42, 260, 124, 16}, 0x3001, kHorizontal,
     &ProfileInfo::SCROLL_SPEED,   "IDC_PROGRESSBAR_SCROLLSPEED"},
    {"pointSpeedBar",   "Pointer speed",      {42, 222, 124, 16}, 0x3002, kHorizontal,
     &ProfileInfo::SENSITIVITY,    "IDC_PROGRESSBAR_POINTSPEED"},
    {"advSensXBar",     "Sensitivity, X axis", {70, 62, 16, 112}, 0x3003, kVertical,
     &ProfileInfo::ADVANCED_SEN_X, "IDC_PROGRESSBAR_ADVSENSX"},
    {"advSensYBar",     "Sensitivity, Y axis", {130, 62, 16, 112}, 0x3004, kVertical,
     &ProfileInfo::ADVANCED_SEN_Y, "IDC_PROGRESSBAR_ADVSENSY"},
};
// clang-format on

consteval bool tableHolds()
{
    int tag = kLevels[0].tag;
    return kInside.holds(kDpiButton.frame) &&
           std::ranges::all_of(kLevels, [&tag](const LevelRow &row) {
               return row.tag == tag++ && kInside.holds(row.frame);
           });
}
static_assert(tableHolds(), "controls inside the bar, levels in the order of their tags");

pngProgressBar *makeBar(const LevelRow &row, const Faces &faces, View &parent)
{
    auto *const bar = new pngProgressBar(&parent, row.frame);
    bar->setObjectName(QLatin1String(row.name));
    bar->setAccessibleName(QLatin1String(row.description));
    bar->setTag(row.tag);
    bar->setDirStyle(row.dirStyle);
    bar->setposRange(kLeastLevel, kMostLevel);
    setFaces(*bar, faces, row.frame);
    return bar;
}

} // namespace

LeftView::LeftView(QWidget *parent) : BarView(kLook, parent) {}

void LeftView::awakeFromNib()
{
    static_assert(std::size(kLevels) == kBarCount);
    const Faces skin = faces();
    btnDPI = makeButton(&controls(), kDpiButton, skin);
    btnDPI->setAction({this, &LeftView::buttonAction});
    m_list.attachTo(*btnDPI);
    for (std::size_t i = 0; i < kBarCount; ++i) {
        m_bars[i] = makeBar(kLevels[i], skin, controls());
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
    if (code < std::size(kDpiTexts))
        btnDPI->setCaptionText(QLatin1String(kDpiTexts[code]));
}

void LeftView::buttonAction(HoverButton *sender)
{
    if (sender->tag() == kDpiTag)
        return DisplayListBox();
    BarView::buttonAction(sender);
}

void LeftView::progessbarAction(pngProgressBar *sender)
{
    const auto *const row = std::ranges::find(kLevels, sender->tag(), &LevelRow::tag);
    if (row != std::end(kLevels)) {
        systemLog("%s", row->logLine);
        CurrentProfile().*row->field = static_cast<std::uint32_t>(sender->getPos());
    }
    controller().setMainViewApplyStatus(true);
}

void LeftView::DisplayListBox()
{
    if (!m_list.mayOpen())
        return;
    m_list.open(*btnDPI,
                {.title = "CPI Value",
                 .tag = kDpiListTag,
                 .texts = kDpiTexts,
                 .selected = static_cast<int>(CurrentProfile().DPI_VALUE),
                 .changeAction = {this, &LeftView::ListboxAction}},
                {this, &LeftView::CloseListBox});
}

void LeftView::ListboxAction(pngListBox *sender)
{
    const int row = sender->getcursel();
    if (sender->tag() == kDpiListTag) {
        systemLog("IDC_LISTBOX_DPI:%d", row);
        // Return in a list without a selection chooses nothing.
        if (row >= 0) {
            CurrentProfile().DPI_VALUE = static_cast<std::uint32_t>(row);
            SetDpiCaption(CurrentProfile().DPI_VALUE);
        }
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
