#include "panels/barview.h"

#include "platform/keywindow.h"

namespace {

constexpr int kTitleSize = 12;
constexpr int kLabelSize = 11;

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

Faces BarView::faces() const
{
    return {BKImage, SkinImage::named(m_look.over), SkinImage::named(m_look.down)};
}

View &BarView::addControls(UpRect inside)
{
    m_controls = new View(this);
    m_controls->setFrame(inside);
    m_controls->lower(); // the handle lies over it
    showControls();
    return *m_controls;
}

void BarView::showControls()
{
    if (!m_controls)
        return;
    const bool isShut = width() <= kBarHandle || height() <= kBarHandle;
    isShut ? hideQuietly(*m_controls) : m_controls->show();
    // The second click of a double click on the handle would meet whatever slides past below it.
    const bool isWhole = rect().contains(m_controls->geometry());
    m_controls->setAttribute(Qt::WA_TransparentForMouseEvents, !isWhole);
}

void BarView::resizeEvent(QResizeEvent *event)
{
    View::resizeEvent(event);
    showControls();
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
    const auto onPicture = [origin](UpRect rect) {
        return UpRect{rect.x + origin.x, rect.y + origin.y, rect.width, rect.height};
    };
    canvas.clear();
    canvas.drawImage(BKImage, origin);
    canvas.drawLine(QLatin1String(m_look.title), onPicture(m_look.titleRect), kGold,
                    TextAlign::Left, kTitleSize);
    for (const BarLook::Label &label : m_look.labels)
        canvas.drawLine(QLatin1String(label.text), onPicture(label.rect), kGold, TextAlign::Left,
                        kLabelSize);
}
