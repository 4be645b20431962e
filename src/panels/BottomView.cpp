#include "panels/BottomView.h"

#include "model/settings.h"
#include "panels/bottombarcontrols.h"

#include <algorithm>

using namespace bottombar;

namespace {

constexpr BarLook::Label kLabels[] = {
    {"Color", {20, 56, 125, 15}},
    {"Intensity", {167, 56, 125, 15}},
    {"Pulsation", {315, 56, 125, 15}},
};

constexpr BarLook kLook{.background = "bottomBar",
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

/// The colour picture covers the lower edge of its button.
constexpr UpRect kColorList{kColorButton.frame.x + 4, kColorButton.frame.y - 96 + 3, 118, 96};

} // namespace

BottomView::BottomView(QWidget *parent) : BarView(kLook, parent) {}

void BottomView::awakeFromNib()
{
    static_assert(std::size(kLevels) == kLevelCount);
    const Faces skin = faces();
    View &controls = addControls(kInside);
    makeColorButton(controls, skin);
    for (std::size_t level = 0; level < kLevelCount; ++level) {
        m_levels[level] = LevelChoice(kLevels[level], controls, skin);
        m_levels[level].button().setAction({this, &BottomView::buttonAction});
        m_popup.attachTo(m_levels[level].button());
    }
    BarView::awakeFromNib();
}

void BottomView::makeColorButton(View &parent, const Faces &skin)
{
    btnColorButton = new colorbutton(&parent, kColorButton.frame);
    btnColorButton->setObjectName(QLatin1String(kColorButton.name));
    btnColorButton->setAccessibleName(QLatin1String(kColorButton.description));
    btnColorButton->setTag(kColorButton.tag);
    btnColorButton->setNormalImage(SkinImage::CopyImagefromrect(skin.normal, kColorButton.frame));
    btnColorButton->setHoverImage(SkinImage::CopyImagefromrect(skin.over, kColorButton.frame));
    btnColorButton->setLeftDownAction({this, &BottomView::colorButtonDown});
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
    m_levels[Intensity].show(code);
}

void BottomView::setPulsationButton(std::uint32_t code)
{
    m_levels[Pulsation].show(code);
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
    // This button acts on its press, before a listener to presses would hear of it.
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
    m_levels[level].open(m_popup, {this, &BottomView::ListboxAction},
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
    m_popup.open(
        *btnColorButton,
        {.windowName = "pColorListbox", .title = "Color", .view = picture, .frame = kColorList},
        {this, &BottomView::CloseColorListBox});
}

void BottomView::ListboxAction(PopupContent *sender)
{
    const auto level = std::ranges::find(m_levels, sender->tag(), &LevelChoice::listTag);
    if (level != m_levels.end()) {
        level->take(*static_cast<const pngListBox *>(sender));
        m_popup.chosen();
    } else if (sender->tag() == kColorListTag) {
        chooseColor(*static_cast<const pngcolorlist *>(sender));
    }
    controller().setMainViewApplyStatus(true);
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
    closePopup();
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
