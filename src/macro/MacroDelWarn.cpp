#include "macro/MacroDelWarn.h"

#include "model/settings.h"

namespace {

constexpr UpRect kTexts[] = {{10, 100, 350, 15}, {40, 66, 250, 15}};

constexpr DialogLayout kLayout{
    .width = MacroDelWarn::kWidth,
    .height = MacroDelWarn::kHeight,
    .normal = "warn_n",
    .over = "warn_o",
    .down = "warn_d",
    .title = {17, 148, 80, 15},
    .texts = kTexts,
    .buttons = macrowarn::kButtons,
    .align = TextAlign::Left,
};

} // namespace

MacroDelWarn::MacroDelWarn(QWidget *parent)
    : MessageDialog(parent, kLayout),
      CheckButtonDel(makeCheckBox(this, macrowarn::kCheckBox, "uncheck", "check"))
{
    CheckButtonDel->setAction({this, &MacroDelWarn::confirmAction});
    setTexts(QStringLiteral("Warning"),
             {QStringLiteral("Are you sure you want to delete this macro?"),
              QLatin1String(macrowarn::kDontShow)});
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
