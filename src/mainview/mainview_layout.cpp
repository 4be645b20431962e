#include "mainview/MainView.h"

namespace {

struct Label
{
    const char *text = "";
    UpRect rect;
    TextAlign align = TextAlign::Left;
    int size = 0;
};

constexpr Label kLabels[] = {
    {"PROFILE", {70, 520, 70, 15}, TextAlign::Centre, 11},
    {"Enable in-game mode", {80, 395, 120, 15}, TextAlign::Left, 10},
    {"Mouse Memory usage", {60, 368, 138, 15}, TextAlign::Left, 10},
};
constexpr UpRect kPercentRect{154, 350, 45, 15};
constexpr int kPercentSize = 10;
constexpr int kFullMemory = 64;

UpRect profileColorLine(unsigned index)
{
    const auto profile =
        static_cast<ControlId>(static_cast<unsigned>(ControlId::BtnProfile1) + index);
    const UpRect frame = controlRow(profile).frame;
    return {frame.x + 2, frame.y - 10, frame.width - 4, 5};
}

} // namespace

void MainView::buildControls()
{
    // The whole window in four states: every control's faces are cut from these.
    const Faces skin{SkinImage::named("mainbk"), SkinImage::named("mainO"),
                     SkinImage::named("mainD"), SkinImage::named("mainDis")};
    BKImage = skin.normal;
    for (const ControlRow &row : kControlTable) {
        switch (row.kind) {
        case ControlKind::Check:
            AddCheckButton(row, skin);
            break;
        case ControlKind::Push:
            AddButton(row, skin);
            break;
        case ControlKind::ProgressBar:
            addMemoryUsageBar(row, skin);
            break;
        }
    }
    orderTabs();
}

void MainView::AddCheckButton(const ControlRow &row, const Faces &skin)
{
    addHoverButton(row, skin)->setCheckable(true);
}

void MainView::AddButton(const ControlRow &row, const Faces &skin)
{
    addHoverButton(row, skin);
}

HoverButton *MainView::addHoverButton(const ControlRow &row, const Faces &skin)
{
    HoverButton *const button = makeButton(this, row, skin);
    button->setAction({this, &MainView::buttonAction});
    button->setRightAction({this, &MainView::buttonRightAction});
    if (row.tag >= kFirstButtonTag && row.tag <= kLastButtonTag)
        button->enableDragDrop({this, &MainView::DragDropButtonAction});
    m_buttons[static_cast<std::size_t>(row.id)] = button;
    return button;
}

void MainView::addMemoryUsageBar(const ControlRow &row, const Faces &skin)
{
    MSMemoryUsageBar = makeBar(this, row, 1, 0, kFullMemory, skin);
    MSMemoryUsageBar->setAllowMouseChangeFlag(false);
    MSMemoryUsageBar->setChangeAction({this, &MainView::progessbarAction});
}

void MainView::orderTabs()
{
    // The toolkit orders only what takes the keyboard: the view does while it heads the row.
    setFocusPolicy(Qt::TabFocus);
    setTabOrder(this, button(kTabOrder[0]));
    for (std::size_t i = 1; i < std::size(kTabOrder); ++i)
        setTabOrder(button(kTabOrder[i - 1]), button(kTabOrder[i]));
    setFocusPolicy(Qt::NoFocus);
}

/// The gauge only shows: there is nothing that a change by the player could mean.
void MainView::progessbarAction(pngProgressBar * /*sender*/) {}

void MainView::drawRect(Canvas &canvas)
{
    canvas.clear();
    canvas.drawImage(BKImage);
    for (const Label &label : kLabels)
        canvas.DrawMyTextwithColor(QLatin1String(label.text), label.rect, kGold, label.align,
                                   label.size);
    const int percent = static_cast<int>(m_MSMemoryUsage) * 100 / kFullMemory;
    canvas.DrawMyTextwithColor(QString::asprintf("%d%%", percent), kPercentRect, kGold,
                               TextAlign::Left, kPercentSize);
    for (unsigned index = 0; index < kProfileCount; ++index)
        DrawProfileColorLine(canvas, index);
    DisplayCharacterinfo(canvas);
}

void MainView::DrawProfileColorLine(Canvas &canvas, unsigned index)
{
    const ProfileInfo &profile = ProfileAt(index);
    canvas.fill(profileColorLine(index),
                colourOf(profile.LED_COLOR_R, profile.LED_COLOR_G, profile.LED_COLOR_B));
}
