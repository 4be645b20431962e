#pragma once

#include "panels/barview.h"
#include "panels/colorbutton.h"
#include "panels/levelchoice.h"
#include "panels/pngcolorlist.h"

#include <array>

/// The content of the bottom bar: the lighting of the current profile. A choice is in the record at
/// once, and there is something to apply then, also when it is the one that was there.
class BottomView : public BarView, public BarContent
{
public:
    explicit BottomView(QWidget *parent);

    void awakeFromNib() override;

    /// Loads the controls from the current profile.
    void InitSetting() override;
    /// Each shows the level of a code, 0..3; another code leaves what its button shows.
    void setIntensityButton(std::uint32_t code);
    void setPulsationButton(std::uint32_t code);
    /// Shows a colour, 0..255 a component.
    void setColorButton(std::uint32_t red, std::uint32_t green, std::uint32_t blue);

    void buttonAction(HoverButton *sender) override;

    /// Each opens, below its button, what a player chooses from; nothing while one is open.
    void DisplayIntensityListBox();
    void DisplayPulsationListBox();
    void DisplayColorListbox();
    /// A choice in one of them, told apart by its tag.
    void ListboxAction(PopupContent *sender);
    void CloseListBox(PopupContent *sender);
    void CloseColorListBox(PopupContent *sender);

protected:
    void toggleBar() override;
    void closeBar() override;
    bool isBarMin() const override;

private:
    /// The buttons with a list of levels.
    enum Level : std::size_t { Intensity, Pulsation };
    static constexpr std::size_t kLevelCount = 2;

    void makeColorButton(View &parent, const Faces &skin);
    void displayLevels(Level level);
    void chooseColor(const pngcolorlist &picture);
    void colorButtonDown(colorbutton *sender);
    void closePopup();

    std::array<LevelChoice, kLevelCount> m_levels;
    colorbutton *btnColorButton = nullptr;
    PopupList m_popup;
};
