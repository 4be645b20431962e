#include "dialogs/WarnOneView.h"

namespace {

constexpr UpRect kTexts[] = {{24, 56, 339, 82}};

constexpr DialogLayout kLayout{
    .width = WarnOneView::kWidth,
    .height = WarnOneView::kHeight,
    .normal = "warnone_n",
    .over = "warnone_o",
    .down = "warnone_d",
    .title = {33, 146, 320, 18},
    .texts = kTexts,
    .buttons = warnone::kButtons,
};

} // namespace

WarnOneView::WarnOneView(QWidget *parent) : MessageDialog(parent, kLayout) {}
