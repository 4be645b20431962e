#include "panels/BottomView.h"

#include "model/settings.h"
#include "platform/systemlog.h"

namespace {

enum Tag {
    kToggleTag = 4096,
    kIntensityTag,
    kPulsationTag,
    kIntensityListTag,
    kPulsationListTag,
    kColorButtonTag,
    kColorListTag,
};

constexpr UpRect kInside{0, 0, 466, 101};

constexpr BarLook::Label kLabels[] = {
    {"Color", {20, 56, 125, 15}},
    {"Intensity", {167, 56, 125, 15}},
    {"Pulsation", {315, 56, 125, 15}},
};

constexpr BarLook kLook{.inside = kInside,
                        .background = "bottomBar",
                        .over = "bottomO",
                        .down = "bottomD",
                        .title = "Illumination Settings",
                        .titleRect = {185, 81, 200, 15},
                        .labels = kLabels,
                        .toggleTag = kToggleTag,
                        .toggleRect = {137, 1, 192, 17},
                        .toggleDescription = "Illumination settings, open or close",
                        .open = {"botmini1", "botmini2"},
                        .closed = {"botmini3", "botmini4"}};

/// A button that shows a level of the profile, and the list to choose it from. The rows stand for
/// the codes 0..3.
struct LevelRow
{
    ButtonRow button;
    int listTag = 0;
    const char *texts[4] = {};
    std::uint32_t ProfileInfo::*field = nullptr;
};

// clang-format off
/// In the order of Level.
constexpr LevelRow kLevels[] = {
    {{"btnIntensity", {167, 25, 122, 29}, kIntensityTag, "", "Intensity"}, kIntensityListTag,
     {"High", "Medium", "Low", "Off"}, &ProfileInfo::LED_INTENSITY},
    {{"btnPulsation", {314, 25, 122, 29}, kPulsationTag, "", "Pulsation"}, kPulsationListTag,
     {"Fast", "Medium", "Low", "Off"}, &ProfileInfo::LED_PULSATION},
};
// clang-format on

constexpr UpRect kColorButton{20, 26, 122, 29};
/// The colour picture covers the lower edge of its button.
constexpr UpRect kColorList{kColorButton.x + 4, kColorButton.y - 96 + 3, 118, 96};

static_assert(kInside.holds(kColorButton) && kInside.holds(kLevels[0].button.frame) &&
              kInside.holds(kLevels[1].button.frame));

} // namespace

BottomView::BottomView(QWidget *parent) : BarView(kLook, parent) {}

void BottomView::awakeFromNib()
{
    static_assert(std::size(kLevels) == kLevelCount);
    const Faces skin = faces();
    btnColorButton = new colorbutton(&controls(), kColorButton);
    btnColorButton->setObjectName(QStringLiteral("btnColorButton"));
    btnColorButton->setAccessibleName(QStringLiteral("Color"));
    btnColorButton->setTag(kColorButtonTag);
    btnColorButton->setNormalImage(SkinImage::CopyImagefromrect(skin.normal, kColorButton));
    btnColorButton->setHoverImage(SkinImage::CopyImagefromrect(skin.over, kColorButton));
    btnColorButton->setLeftDownAction({this, &BottomView::colorButtonDown});
    for (std::size_t level = 0; level < kLevelCount; ++level) {
        m_levelButtons[level] = makeButton(&controls(), kLevels[level].button, skin);
        m_levelButtons[level]->setAction({this, &BottomView::buttonAction});
        m_popup.attachTo(*m_levelButtons[level]);
    }
    BarView::awakeFromNib();
}

void BottomView::InitSetting()
{
    const ProfileInfo &profile = CurrentProfile();
    setColorButton(profile.LED_COLOR_R, profile.LED_COLOR_G, profile.LED_COLOR_B);
    setPulsationButton(profile.LED_PULSATION);
    setIntensityButton(profile.LED_INTENSITY);
}

void BottomView::setIntensityButton(std::uint32_t code)
{
    setLevelButton(Intensity, code);
}

void BottomView::setPulsationButton(std::uint32_t code)
{
    setLevelButton(Pulsation, code);
}

void BottomView::setLevelButton(Level level, std::uint32_t code)
{
    const LevelRow &row = kLevels[level];
    if (code < std::size(row.texts))
        m_levelButtons[level]->setCaptionText(QLatin1String(row.texts[code]));
}

void BottomView::setColorButton(std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    btnColorButton->setFillColor(red, green, blue);
}

void BottomView::buttonAction(HoverButton *sender)
{
    switch (sender->tag()) {
    case kIntensityTag:
        return DisplayIntensityListBox();
    case kPulsationTag:
        return DisplayPulsationListBox();
    default:
        return BarView::buttonAction(sender);
    }
}

void BottomView::colorButtonDown(colorbutton * /*sender*/)
{
    m_popup.pressed();
    DisplayColorListbox();
}

void BottomView::DisplayIntensityListBox()
{
    displayLevels(Intensity);
}

void BottomView::DisplayPulsationListBox()
{
    displayLevels(Pulsation);
}

void BottomView::displayLevels(Level level)
{
    if (!m_popup.mayOpen())
        return;
    const LevelRow &row = kLevels[level];
    m_popup.open(*m_levelButtons[level],
                 {.title = row.button.description,
                  .tag = row.listTag,
                  .texts = row.texts,
                  .selected = static_cast<int>(CurrentProfile().*row.field),
                  .changeAction = {this, &BottomView::ListboxAction}},
                 {this, &BottomView::CloseListBox});
}

void BottomView::DisplayColorListbox()
{
    if (!m_popup.mayOpen())
        return;
    auto *const picture = new pngcolorlist(nullptr);
    picture->setObjectName(QStringLiteral("pColorListView"));
    picture->setTag(kColorListTag);
    picture->setChangeAction({this, &BottomView::ListboxAction});
    m_popup.open(*btnColorButton, {"pColorListbox", "Color", picture, kColorList},
                 {this, &BottomView::CloseColorListBox});
}

void BottomView::ListboxAction(PopupContent *sender)
{
    const auto *const row = std::ranges::find(kLevels, sender->tag(), &LevelRow::listTag);
    if (row != std::end(kLevels))
        chooseLevel(static_cast<Level>(row - kLevels),
                    static_cast<const pngListBox *>(sender)->getcursel());
    else if (sender->tag() == kColorListTag)
        chooseColor(*static_cast<const pngcolorlist *>(sender));
    controller().setMainViewApplyStatus(true);
}

void BottomView::chooseLevel(Level level, int row)
{
    // The pulsation logs under the name of the intensity too, on purpose.
    systemLog("IDC_LISTBOX_INTENSITY:%d", row);
    // Return in a list without a selection chooses nothing.
    if (row >= 0) {
        CurrentProfile().*kLevels[level].field = static_cast<std::uint32_t>(row);
        setLevelButton(level, static_cast<std::uint32_t>(row));
    }
    m_popup.chosen();
}

void BottomView::chooseColor(const pngcolorlist &picture)
{
    setColorButton(picture.getRed(), picture.getGreen(), picture.getBlue());
    ProfileInfo &profile = CurrentProfile();
    profile.LED_COLOR_R = picture.getRed();
    profile.LED_COLOR_G = picture.getGreen();
    profile.LED_COLOR_B = picture.getBlue();
    m_popup.chosen();
    controller().refreshProfileColorBar();
}

void BottomView::CloseListBox(PopupContent * /*sender*/)
{
    closePopup();
}

void BottomView::CloseColorListBox(PopupContent * /*sender*/)
{
    closePopup();
}

void BottomView::closePopup()
{
    const QWidget *const mainWindow = window()->parentWidget();
    m_popup.close(mainWindow ? *mainWindow->window() : *window());
}

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
