#include "macro/MacroView.h"

#include "model/fixedtext.h"
#include "platform/systemlog.h"

#include <algorithm>

using namespace macrolayout;

namespace {

/// Leaves the delays as they are.
void setEnter(std::span<KeymapEvent, kMostKeyEvents> keys)
{
    for (KeymapEvent &key : keys)
        key.keycode = kReturnKey;
    keys.front().kind = kKeyPress;
    keys.back().kind = kKeyRelease;
}

} // namespace

struct MacroView::ModeRow
{
    void (MacroView::*setLayout)() = nullptr;
    Choice radio = {};
    EventTextStyle style; ///< of the event list
};

/// In the order of MacroMode.
std::span<const MacroView::ModeRow> MacroView::modeRows()
{
    static constexpr ModeRow rows[] = {
        {&MacroView::setCopyPastemode, Choice::ButtonCopy, {false, true}},
        {&MacroView::setTextmode, Choice::ButtonText, {false, false}},
        {&MacroView::setRecordmode, Choice::ButtonRecordDelay, {true, true}},
        {&MacroView::setNodelaymode, Choice::ButtonNoDelay, {false, true}},
    };
    return rows;
}

/// Null for a number that is no mode.
const MacroView::ModeRow *MacroView::modeRow(std::uint32_t mode)
{
    return mode < modeRows().size() ? &modeRows()[mode] : nullptr;
}

void MacroView::setcurrentMacroID(std::int32_t macro)
{
    m_MacroID = macro;
    if (macro < 0 || macro >= static_cast<std::int32_t>(kMacroCount))
        return;
    m_MacroInfo = CurrentProfile().MACRO[macro];
    initSetting();
}

void MacroView::setMacroDelaymode(std::uint32_t mode)
{
    m_MacroInfo.MODE = mode;
    const ModeRow *const row = modeRow(mode);
    if (row)
        (this->*row->setLayout)();
    for (const ModeRow &other : modeRows())
        choice(other.radio).setChecked(&other == row);
}

void MacroView::initSetting()
{
    pTextfieldMacroName->load(GetString(m_MacroInfo.MACRO_NAME));
    setMacroDelaymode(m_MacroInfo.MODE);
    if (m_MacroInfo.MODE == kModeCopyPaste)
        showKeysAndText();
    else if (const ModeRow *const mode = modeRow(m_MacroInfo.MODE))
        showEvents(*mode);
    update();
}

void MacroView::showEvents(const ModeRow &mode)
{
    pMacroDisplayView->setKeymapInfo(m_MacroInfo.KEYMAP);
    pMacroDisplayView->setDisplayDelay(mode.style.showsDelays);
    pMacroDisplayView->setDisplayUpAndDown(mode.style.showsUpAndDown);
    showLoop();
    const auto count = static_cast<std::int32_t>(m_MacroInfo.MACRO_LOOP);
    pLoopTextfield->load(QString::number(count == 0 ? 1 : count));
}

void MacroView::showKeysAndText()
{
    showKey(Choice::ButtonStartKey, *pStartDisplayView, m_MacroInfo.bSTARTKEY,
            m_MacroInfo.STARTKEY);
    showKey(Choice::ButtonSendKey, *pSendDisplayView, m_MacroInfo.bSENDKEY, m_MacroInfo.SENDKEY);
    pCopyTextfield->load(GetString(m_MacroInfo.COPY_PASTER));
}

void MacroView::showKey(Choice box, MacroDisplay &view, std::uint32_t flag,
                        std::span<const KeymapEvent> keys)
{
    view.setDisplayDelay(false);
    choice(box).setChecked(flag != 0);
    view.enablewindow(flag == 1);
    view.setKeymapInfo(keys);
}

void MacroView::showLoop()
{
    choice(Choice::ButtonLoop).setChecked(m_MacroInfo.bLOOP != 0);
    pLoopTextfield->setEditable(m_MacroInfo.bLOOP == 1);
}

void MacroView::setDefaultKeys()
{
    setEnter(m_MacroInfo.STARTKEY);
    setEnter(m_MacroInfo.SENDKEY);
    m_MacroInfo.bSTARTKEY = 1;
    m_MacroInfo.bSENDKEY = 1;
}

void MacroView::ClearMacro()
{
    if (m_MacroInfo.MODE == kModeCopyPaste)
        clearKeysAndText();
    else if (modeRow(m_MacroInfo.MODE))
        clearEvents();
}

void MacroView::clearEvents()
{
    std::ranges::fill(m_MacroInfo.KEYMAP, KeymapEvent{});
    pMacroDisplayView->setKeymapInfo(m_MacroInfo.KEYMAP);
}

void MacroView::clearKeysAndText()
{
    // The check boxes and the views' grey catch up when the mode is shown anew, on purpose.
    setDefaultKeys();
    pStartDisplayView->setKeymapInfo(m_MacroInfo.STARTKEY);
    pSendDisplayView->setKeymapInfo(m_MacroInfo.SENDKEY);
    pCopyTextfield->load({});
}

struct MacroView::ActionRow
{
    int tag;
    const char *logLine; ///< null for none
    void (MacroView::*act)();
};

void MacroView::buttonAction(HoverButton *sender)
{
    static constexpr ActionRow rows[] = {
        {kTagOK, nullptr, &MacroView::confirm},
        {kTagCancel, "IDC_MACRO_BUTTON_CANCEL  was clicked", &MacroView::cancel},
        {kTagClear, "IDC_MACRO_BUTTON_CLEAR  was clicked", &MacroView::ClearMacro},
        {kTagClose, nullptr, &MacroView::cancel},
        {kTagStartKey, "IDC_MACRO_BUTTON_STARTKEY  was clicked", &MacroView::flipStartKey},
        {kTagSendKey, "IDC_MACRO_BUTTON_SENDKEY  was clicked", &MacroView::flipSendKey},
        {kTagCopy, "IDC_MACRO_BUTTON_COPY  was clicked", &MacroView::chooseMode<kModeCopyPaste>},
        {kTagText, "IDC_MACRO_BUTTON_TEXT  was clicked", &MacroView::chooseMode<kModeText>},
        {kTagRecordDelay, "IDC_MACRO_BUTTON_RECORDDELAY  was clicked",
         &MacroView::chooseMode<kModeRecordDelay>},
        {kTagNoDelay, "IDC_MACRO_BUTTON_NODELAY  was clicked",
         &MacroView::chooseMode<kModeNoDelay>},
        {kTagLoop, "IDC_MACRO_BUTTON_LOOP  was clicked", &MacroView::flipLoop},
    };
    const auto *const row = std::ranges::find(rows, sender->tag(), &ActionRow::tag);
    // Two quick clicks on OK do not save twice, and none after CANCEL saves.
    if (row == std::end(rows) || isAnswered())
        return;
    if (row->logLine)
        systemLog("%s", row->logLine);
    (this->*row->act)();
}

template <std::uint32_t mode>
void MacroView::chooseMode()
{
    setMacroDelaymode(mode);
    initSetting();
}

void MacroView::flipStartKey()
{
    flipKey(m_MacroInfo.bSTARTKEY, Choice::ButtonStartKey, *pStartDisplayView);
}

void MacroView::flipSendKey()
{
    flipKey(m_MacroInfo.bSENDKEY, Choice::ButtonSendKey, *pSendDisplayView);
}

void MacroView::flipKey(std::uint32_t &flag, Choice box, MacroDisplay &view)
{
    flag = flag ? 0 : 1;
    choice(box).setChecked(flag == 1);
    view.enablewindow(flag == 1);
}

void MacroView::flipLoop()
{
    takeLoopCount();
    m_MacroInfo.bLOOP = m_MacroInfo.bLOOP ? 0 : 1;
    takeKeyboard();
    showLoop();
}
