#include "dialogs/AboutView.h"

namespace {

constexpr UpRect kTexts[] = {{20, 62, 218, 18}, {20, 38, 218, 18}};

constexpr DialogLayout kLayout{
    .width = AboutView::kWidth,
    .height = AboutView::kHeight,
    .normal = "About_n",
    .over = "about_o",
    .down = "about_d",
    .title = {34, 146, 190, 18},
    .texts = kTexts,
    .buttons = about::kButtons,
};

QString firmwareLine(std::uint32_t number)
{
    if (number == 0)
        return QStringLiteral("Firmware Version:N/A");
    return QString::asprintf("Firmware Version:%x.%x", number & 0xFF, number >> 8);
}

} // namespace

AboutView::AboutView(QWidget *parent) : MessageDialog(parent, kLayout)
{
    setFWNumber(0);
}

void AboutView::setFWNumber(std::uint32_t number)
{
    setTexts(QStringLiteral("About"),
             {QStringLiteral("Software Version:1.02"), firmwareLine(number)});
}
