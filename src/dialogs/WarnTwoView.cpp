#include "dialogs/WarnTwoView.h"

namespace {

constexpr UpRect kTexts[] = {{24, 56, 339, 82}};

constexpr DialogLayout kLayout{
    .width = WarnTwoView::kWidth,
    .height = WarnTwoView::kHeight,
    .normal = "warntwo_n",
    .over = "warntwo_o",
    .down = "warntwo_d",
    .title = {33, 146, 320, 18},
    .texts = kTexts,
    .buttons = warntwo::kButtons,
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
