#include "panels/barview.h"

namespace {

constexpr int kTitleSize = 12;

} // namespace

BarView::BarView(const BarLook &look, QWidget *parent)
    : View(parent),
      m_look(look),
      BKImage(SkinImage::named(look.background)),
      btnToggle(new HoverButton(this, look.toggleRect))
{
    btnToggle->setObjectName(QStringLiteral("btnToggle"));
    btnToggle->setAccessibleName(QLatin1String(look.toggleDescription));
    btnToggle->setTag(look.toggleTag);
    btnToggle->setAction({this, &BarView::buttonAction});
}

void BarView::awakeFromNib()
{
    SetMinToggleImage();
    closeBar();
}

void BarView::buttonAction(HoverButton *sender)
{
    if (sender->tag() != m_look.toggleTag)
        return;
    toggleBar();
    isBarMin() ? SetMinToggleImage() : SetMaxToggleImage();
}

void BarView::closeRequested()
{
    if (!isBarMin())
        btnToggle->click();
}

void BarView::SetMaxToggleImage()
{
    setToggleImages(m_look.open);
}

void BarView::SetMinToggleImage()
{
    setToggleImages(m_look.closed);
}

void BarView::setToggleImages(const BarLook::Handle &handle)
{
    const SkinImage lit = SkinImage::named(handle.lit);
    btnToggle->setNormalImage(SkinImage::named(handle.normal));
    btnToggle->setHoverImage(lit);
    btnToggle->setAlternateImage(lit);
}

void BarView::drawRect(Canvas &canvas)
{
    const UpPoint origin = backgroundOrigin();
    const UpRect &title = m_look.titleRect;
    canvas.clear();
    canvas.drawImage(BKImage, origin);
    canvas.drawLine(QLatin1String(m_look.title),
                    {title.x + origin.x, title.y + origin.y, title.width, title.height}, kGold,
                    TextAlign::Left, kTitleSize);
}
