#include "macro/MacroDelWarn.h"

#include "model/settings.h"

namespace {

constexpr UpRect kTexts[] = {{10, 100, 350, 15}, {40, 66, 250, 15}};

constexpr ButtonRow kButtons[] = {
    {"ButtonClose", {354, 145, 27, 27}, kDialogCloseTag, "", "Close"},
    {"ButtonOK", {114, 6, 81, 38}, kDialogOKTag, "OK", "OK"},
    {"ButtonCancel", {194, 6, 81, 38}, kDialogCancelTag, "Cancel", "Cancel"},
};

constexpr const char *kDontShow = "Don't show it again.";
constexpr ButtonRow kCheckBox{"CheckButtonDel", {17, 66, 18, 18}, 4099, "", kDontShow};

constexpr DialogLayout kLayout{
    .width = MacroDelWarn::kWidth,
    .height = MacroDelWarn::kHeight,
    .normal = "warn_n",
    .over = "warn_o",
    .down = "warn_d",
    .title = {17, 148, 80, 15},
    .texts = kTexts,
    .buttons = kButtons,
    .align = TextAlign::Left,
};

} // namespace

MacroDelWarn::MacroDelWarn(QWidget *parent)
    : MessageDialog(parent, kLayout),
      CheckButtonDel(makeCheckBox(this, kCheckBox, "uncheck", "check"))
{
    CheckButtonDel->setAction({this, &MacroDelWarn::confirmAction});
    setTexts(
        QStringLiteral("Warning"),
        {QStringLiteral("Are you sure you want to delete this macro?"), QLatin1String(kDontShow)});
}

void MacroDelWarn::confirmAction(HoverButton *sender)
{
    m_Config.MACRODEL_CONFIRM = sender->isChecked() ? 0 : 1;
}

void MacroDelWarn::answered(int tag)
{
    if (tag == kDialogOKTag)
        DelAction.send(this);
}
