#include "dialogs/WarnOneView.h"

namespace {

constexpr UpRect kTexts[] = {{24, 56, 339, 82}};

constexpr ButtonRow kButtons[] = {
    {"ButtonClose", {354, 144, 23, 23}, kDialogCloseTag, "", "Close"},
    {"ButtonOK", {135, 16, 117, 31}, kDialogOKTag, "OK", "OK"},
};

constexpr DialogLayout kLayout{
    .width = WarnOneView::kWidth,
    .height = WarnOneView::kHeight,
    .normal = "warnone_n",
    .over = "warnone_o",
    .down = "warnone_d",
    .title = {33, 146, 320, 18},
    .texts = kTexts,
    .buttons = kButtons,
};

} // namespace

WarnOneView::WarnOneView(QWidget *parent) : MessageDialog(parent, kLayout) {}
