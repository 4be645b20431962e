#include "dialogs/PopupProgressBar.h"

#include "controls/faces.h"

namespace {

constexpr UpRect kMessage{12, 44, 232, 15};
constexpr UpRect kPercent{206, 18, 40, 16};
constexpr int kTextSize = 11;

} // namespace

PopupProgressBar::PopupProgressBar(QWidget *parent)
    : View(parent),
      BKImage(SkinImage::named("Pop_UP_normal")),
      WriteToDeviceBar(new pngProgressBar(this))
{
    setFrame({0, 0, kWidth, kHeight});
    WriteToDeviceBar->setObjectName(QLatin1String(popup::kBar.name));
    WriteToDeviceBar->setAccessibleName(QLatin1String(popup::kBar.description));
    WriteToDeviceBar->setFrame(popup::kBar.frame);
    setFaces(*WriteToDeviceBar, {.normal = BKImage, .over = SkinImage::named("Pop_UP_over")},
             popup::kBar.frame);
    WriteToDeviceBar->setposRange(0, 100);
    WriteToDeviceBar->setAllowMouseChangeFlag(false);
}

void PopupProgressBar::SetProgressPos(int pos)
{
    WriteToDeviceBar->setPos(pos);
    m_iPos = WriteToDeviceBar->getPos();
    update();
}

void PopupProgressBar::drawRect(Canvas &canvas)
{
    canvas.clear();
    canvas.drawImage(BKImage);
    canvas.drawLine(QStringLiteral("Applying profile to on-board memory..."), kMessage, kGold,
                    TextAlign::Left, kTextSize);
    canvas.drawLine(QString::asprintf("%d%%", m_iPos), kPercent, kGold, TextAlign::Left, kTextSize);
}
