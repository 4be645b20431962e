#include "dialogs/WarnTwoView.h"

namespace {

constexpr UpRect kTexts[] = {{24, 56, 339, 82}};

constexpr ButtonRow kButtons[] = {
    {"ButtonClose", {354, 144, 23, 23}, kDialogCloseTag, "", "Close"},
    {"ButtonOK", {66, 16, 117, 31}, kDialogOKTag, "OK", "OK"},
    {"ButtonCancel", {204, 16, 117, 31}, kDialogCancelTag, "Cancel", "Cancel"},
};

constexpr DialogLayout kLayout{
    .width = WarnTwoView::kWidth,
    .height = WarnTwoView::kHeight,
    .normal = "warntwo_n",
    .over = "warntwo_o",
    .down = "warntwo_d",
    .title = {33, 146, 320, 18},
    .texts = kTexts,
    .buttons = kButtons,
};

} // namespace

WarnTwoView::WarnTwoView(QWidget *parent) : MessageDialog(parent, kLayout) {}

void WarnTwoView::answered(int tag)
{
    switch (tag) {
    case kDialogOKTag:
        m_yesAction.send();
        break;
    case kDialogCancelTag:
        m_noAction.send();
        break;
    default:
        break;
    }
}
