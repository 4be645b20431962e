#pragma once

#include "controls/shapedcontent.h"
#include "controls/textfields.h"
#include "dialogs/ModalDialog.h"
#include "macro/MacroDisplay.h"
#include "macro/macrolayout.h"
#include "platform/action.h"

#include <array>

class SkinScrollArea;

/// The macro editor: name, mode, recorded keys, start and send key, text and loop of one macro.
///
/// It works on a copy, which OK writes into the current profile; the settings file is not written.
/// What the controls hold belongs to the copy only from OK on: a change of the mode shows the copy
/// again and drops what was typed and recorded, on purpose.
class MacroView : public ModalDialog, public ShapedContent
{
public:
    static constexpr int kWidth = macrolayout::kWidth;
    static constexpr int kHeight = macrolayout::kHeight;

    /// Shows the defaults of a new macro.
    explicit MacroView(QWidget *parent);

    /// The macro of the current profile that is edited, 0..49, or -1 for a new one. With any
    /// other number it goes on showing what it shows, and OK saves nothing.
    void setcurrentMacroID(std::int32_t macro);
    /// Who is told, after the modal run, how it ended: its MacroOKAction() or MacroCancelAction()
    /// is called with the editor.
    template <class Target>
    void setTarget(Target *target)
    {
        m_okAction = {target, &Target::MacroOKAction};
        m_cancelAction = {target, &Target::MacroCancelAction};
    }

    /// Shows the copy: its name, and what belongs to its mode.
    void initSetting();
    /// Makes a mode the copy's and lays the dialog out for it. A number that is no mode is stored,
    /// selects no radio button and leaves the layout as it was.
    void setMacroDelaymode(std::uint32_t mode);
    /// Empties what belongs to the mode: the events, or the text and both keys. To a number that is
    /// no mode nothing belongs.
    void ClearMacro();
    /// Writes the copy into the current profile: over the macro that was opened, or as a new one
    /// into the first slot without a name. Without a free slot it is lost, on purpose silently.
    void saveMacroInfo();
    /// Whether saveMacroInfo() has found a slot.
    bool hasSaved() const { return m_hasSaved; }
    /// A click on a control, told apart by its tag; others are ignored.
    void buttonAction(HoverButton *sender);
    const SkinImage &background() const override { return BKImage; }

protected:
    void drawRect(Canvas &canvas) override;
    void mouseDown(const ViewMouseEvent &event) override;
    void answered(int tag) override;
    void returnPressed(QWidget *focused) override;

private:
    using Choice = macrolayout::Choice;
    using Field = macrolayout::Field;

    // Building and layout (MacroView.cpp)
    void buildFields();
    void buildEventList();
    void buildButtons();
    template <class Control>
    Control *addField(Field field, Control *control);
    void layOut(macrolayout::Layout layout);
    void setCopyPastemode() { layOut(macrolayout::Layout::CopyPaste); }
    void setTextmode() { layOut(macrolayout::Layout::Events); }
    void setRecordmode() { layOut(macrolayout::Layout::Events); }
    void setNodelaymode() { layOut(macrolayout::Layout::Events); }
    HoverButton &choice(Choice choice) const
    {
        return *m_choices[static_cast<std::size_t>(choice)];
    }
    void drawLabel(Canvas &canvas, const macrolayout::LabelRow &label, TextAlign align) const;
    void takeKeyboard();

    // Editing (macroview_editing.cpp)
    struct ModeRow;
    struct ActionRow;
    static std::span<const ModeRow> modeRows();
    static const ModeRow *modeRow(std::uint32_t mode);
    void showEvents(const ModeRow &mode);
    void showKeysAndText();
    void showKey(Choice box, MacroDisplay &view, std::uint32_t flag,
                 std::span<const KeymapEvent> keys);
    void clearEvents();
    void clearKeysAndText();
    void setDefaultKeys();
    void cancel() { answer(macrolayout::kTagCancel); }
    void flipStartKey();
    void flipSendKey();
    void flipKey(std::uint32_t &flag, Choice box, MacroDisplay &view);
    void flipLoop();
    void showLoop();
    template <std::uint32_t mode>
    void chooseMode();

    // Saving (macroview_saving.cpp)
    void confirm();
    void takeLoopCount();
    void takeTexts();
    void takeEvents();
    bool hasLoopError() const;
    MacroInfo *slotToSave() const;

    MacroInfo m_MacroInfo{};
    std::int32_t m_MacroID = -1;
    bool m_hasSaved = false;
    Action<MacroView *> m_okAction;
    Action<MacroView *> m_cancelAction;

    SkinImage BKImage;
    TextField *pTextfieldMacroName = nullptr;
    SkinScrollArea *MacroscrollView = nullptr;
    MacroDisplay *pMacroDisplayView = nullptr;
    MacroDisplay *pStartDisplayView = nullptr;
    TextArea *pCopyTextfield = nullptr;
    MacroDisplay *pSendDisplayView = nullptr;
    TextField *pLoopTextfield = nullptr;
    std::array<PlacedWidget, macrolayout::kFieldCount> m_fields;
    std::array<HoverButton *, macrolayout::kChoiceCount> m_choices{};
    macrolayout::Layout m_layout = macrolayout::Layout::Events;
};
