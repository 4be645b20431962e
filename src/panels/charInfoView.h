#pragma once

#include "controls/faces.h"
#include "controls/popuplist.h"
#include "controls/shapedcontent.h"
#include "controls/textfields.h"
#include "panels/charinfocontrols.h"
#include "platform/keystrokes.h"

#include <array>
#include <cstdint>

/// The insides of the dialog that names the game character of the current profile: region, realm
/// and name. It starts empty whatever the profile has. The profile gets what was entered on OK; OK
/// with an empty field goes to that field instead; a realm has been stored by then, on purpose. The
/// Return key is OK whatever button has the keyboard, Escape is Cancel.
class charInfoView : public View, public ShapedContent
{
public:
    static constexpr int kWidth = charinfo::kWidth;
    static constexpr int kHeight = charinfo::kHeight;

    explicit charInfoView(QWidget *parent);

    /// Sent with what ended the dialog, before its window closes.
    void setcharAction(const Action<std::int32_t> &action) { charAction = action; }

    /// A click on a button, told apart by its tag; others are ignored.
    void buttonAction(HoverButton *sender);
    /// What the close button does.
    void closeRequested() { end(kCharInfoClose); }

    /// Shows a region's name on its button; a code that is none, 5 and above, changes nothing.
    void setRegionButton(std::uint32_t code);
    /// Opens the list of the regions below its button; nothing while it is open.
    void DisplayRegionListBox();
    /// A choice in a list; in any but that of the regions it does nothing.
    void ListboxAction(pngListBox *sender);
    void CloseListBox(PopupContent *sender);
    const SkinImage &background() const override { return BKImage; }

protected:
    void drawRect(Canvas &canvas) override;
    void keyDown(QKeyEvent *event) override;
    void keyUp(QKeyEvent *event) override;

private:
    enum Field : std::size_t { Realm, Name };
    static constexpr std::size_t kFieldCount = 2;
    struct FieldRow;
    static const std::array<FieldRow, kFieldCount> kFields;

    void buildFields();
    void buildButtons();
    void confirm();
    bool storeField(std::size_t field);
    void end(std::int32_t tag);
    void keyboardMoved();

    SkinImage BKImage;
    std::array<TextField *, kFieldCount> m_fields{};
    HoverButton *ButtonOK = nullptr;
    HoverButton *ButtonCancel = nullptr;
    HoverButton *ButtonRegion = nullptr;
    PopupList m_popup;
    std::int32_t m_Region = 0;
    Action<std::int32_t> charAction;
    KeyStrokes m_strokes;
    int m_pressedKey = 0; ///< went down here and has not come up
};
