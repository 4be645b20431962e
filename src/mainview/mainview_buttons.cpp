#include "functions/functioncodes.h"
#include "mainview/MainView.h"
#include "platform/systemlog.h"

namespace {

constexpr int kQuickListTag = 8192;

struct QuickRow
{
    const char *text; ///< shown in the list and, until captions are rebuilt, on the button
    FunctionCode code;
};

constexpr QuickRow kQuickRows[] = {
    {"Left-Click", 1},     {"Right-Click", 2},      {"Double Click", 3},  {"Mouse Button 4", 4},
    {"Mouse Button 5", 5}, {"Universal Scroll", 6}, {"Disable/Clear", 9},
};

} // namespace

void MainView::selectAction(HoverButton *sender)
{
    const int buttonid = sender->tag() - kFirstButtonTag;
    setCheckButton(sender, buttonid);
    findFunctionItem(CurrentProfile().BUTTON[buttonid]);
}

void MainView::findFunctionItem(FunctionCode code)
{
    if (pWindowControll)
        pWindowControll->findFunctionItem(code);
}

void MainView::buttonRightAction(HoverButton *sender)
{
    const int buttonid = sender->tag() - kFirstButtonTag;
    if (buttonid < 0 || buttonid >= static_cast<int>(kButtonCount))
        return;
    setCheckButton(sender, buttonid);
    // Only the first two buttons say so.
    if (buttonid < 2)
        systemLog("Button %d was Right Down", buttonid + 1);
    DisplayButtonListBox(buttonid);
}

void MainView::setCheckButton(HoverButton *button, int buttonid)
{
    m_curButtonID = buttonid;
    for (unsigned k = 0; k < kButtonCount; ++k)
        GetButtonHandle(static_cast<int>(k))->setChecked(false);
    if (buttonid >= 0 && buttonid < static_cast<int>(kButtonCount))
        button->setChecked(true);
}

HoverButton *MainView::GetButtonHandle(int id) const
{
    const bool isMouseButton = id >= 0 && id < static_cast<int>(kButtonCount);
    const bool isProfile = id >= kFirstProfileTag && id <= kLastProfileTag;
    if (!isMouseButton && !isProfile)
        return nullptr;
    const int tag = isProfile ? id : kFirstButtonTag + id;
    const auto *const row = std::ranges::find(kControlTable, tag, &ControlRow::tag);
    return button(row->id);
}

void MainView::SetButtonCaption(HoverButton *button, FunctionCode functionid)
{
    button->setCaptionText(functions::caption(functionid, CurrentProfile()));
}

void MainView::assign(HoverButton *button, FunctionCode code)
{
    CurrentProfile().BUTTON[button->tag() - kFirstButtonTag] = code;
    setApplyButtonStatus(true);
    CalcMouseMemoryUsage();
}

void MainView::changeCurrentButtonFunction(FunctionCode code)
{
    systemLog("changeCurrentButtonFunction:%x", code);
    HoverButton *const selected = GetButtonHandle(m_curButtonID);
    if (!selected)
        return;
    SetButtonCaption(selected, code);
    assign(selected, code);
}

void MainView::DragDropButtonAction(HoverButton *button)
{
    systemLog("DragDropButtonAction");
    const auto code = static_cast<FunctionCode>(button->getDropindex());
    SetButtonCaption(button, code);
    assign(button, code);
}

void MainView::initButtonSetting()
{
    const bool gameMode = m_Config.GAME_MODE != 0;
    button(ControlId::chkGameMode)->setChecked(gameMode);
    for (unsigned k = 0; k < kButtonCount; ++k) {
        HoverButton *const slot = GetButtonHandle(static_cast<int>(k));
        slot->setDisable(gameMode);
        SetButtonCaption(slot, CurrentProfile().BUTTON[k]);
    }
    if (pWindowControll)
        pWindowControll->refreshMacroList();
}

void MainView::macrosChanged()
{
    for (unsigned k = 0; k < kButtonCount; ++k) {
        const FunctionCode code = CurrentProfile().BUTTON[k];
        if (functions::macroSlot(code))
            SetButtonCaption(GetButtonHandle(static_cast<int>(k)), code);
    }
    setApplyButtonStatus(true);
    CalcMouseMemoryUsage();
}

void MainView::DisplayButtonListBox(int buttonid)
{
    CloseButtonListBox(this);
    std::array<const char *, std::size(kQuickRows)> texts{};
    std::ranges::transform(kQuickRows, texts.begin(), &QuickRow::text);
    m_quickList.open(*GetButtonHandle(buttonid),
                     {.title = "Basic Functions",
                      .tag = kQuickListTag,
                      .texts = texts,
                      .changeAction = {this, &MainView::ButtonListboxAction}},
                     {this, &MainView::CloseButtonListBox});
}

void MainView::ButtonListboxAction(pngListBox *sender)
{
    HoverButton *const selected = GetButtonHandle(m_curButtonID);
    if (sender->tag() == kQuickListTag && selected) {
        const int row = sender->getcursel();
        systemLog("IDC_LISTBOX_BUTTON_FUNC:%d", row);
        if (row >= 0 && row < static_cast<int>(std::size(kQuickRows))) {
            selected->setCaptionText(QLatin1String(kQuickRows[row].text));
            CurrentProfile().BUTTON[m_curButtonID] = kQuickRows[row].code;
        }
        m_quickList.chosen();
    }
    setApplyButtonStatus(true);
    CalcMouseMemoryUsage();
}

void MainView::CloseButtonListBox(QWidget * /*sender*/)
{
    m_quickList.close(*window());
}
