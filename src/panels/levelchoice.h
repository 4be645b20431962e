#pragma once

#include "controls/faces.h"
#include "controls/popuplist.h"
#include "panels/levellook.h"

/// A level of the current profile that is shown on a button and chosen from a list below it. The
/// level's code is the number of its row.
class LevelChoice
{
public:
    using Look = LevelLook;

    LevelChoice() = default;
    /// Makes the button in `parent`, which owns it; it has no action yet. `look` must outlive the
    /// choice.
    LevelChoice(const Look &look, View &parent, const Faces &faces);

    HoverButton &button() const { return *m_button; }
    int listTag() const { return m_look->listTag; }

    /// Shows the level of a code; a code without a text leaves what the button shows.
    void show(std::uint32_t code) const;
    /// Opens the list in `popup`, unless that may not open; the profile's level is selected in it.
    void open(PopupList &popup, const Action<pngListBox *> &changeAction,
              const Action<PopupContent *> &closeAction) const;
    /// Stores and shows what the list has selected; a list without a selection changes nothing.
    void take(const pngListBox &list) const;

private:
    const Look *m_look = nullptr;
    HoverButton *m_button = nullptr;
};
