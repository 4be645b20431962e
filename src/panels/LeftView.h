#pragma once

#include "panels/barview.h"
#include "panels/levelchoice.h"

#include <array>

/// The content of the left bar: the sensor settings of the current profile. A change is in the
/// record at once, and there is something to apply then.
class LeftView : public BarView, public BarContent
{
public:
    explicit LeftView(QWidget *parent);

    void awakeFromNib() override;

    /// Loads the controls from the current profile.
    void InitSetting() override;
    /// Shows the CPI step of a code, 0..5, on its button; another code leaves what it shows.
    void SetDpiCaption(std::uint32_t code);

    void buttonAction(HoverButton *sender) override;
    /// A slider was moved, told apart by its tag.
    void progessbarAction(pngProgressBar *sender);

    /// Opens the list of CPI steps below its button; nothing while it is open.
    void DisplayListBox();
    /// A choice in a list, told apart by its tag.
    void ListboxAction(pngListBox *sender);
    void CloseListBox(PopupContent *sender);

protected:
    void toggleBar() override;
    void closeBar() override;
    bool isBarMin() const override;

private:
    static constexpr std::size_t kBarCount = 5;

    LevelChoice m_dpi;
    std::array<pngProgressBar *, kBarCount> m_bars{}; ///< in the order of their tags
    PopupList m_list;
};
