#include "dialogs/MessageDialog.h"

#include "dialogs/textfit.h"

namespace {

constexpr int kTitleSize = 12;
constexpr int kMessageSize = 12;

} // namespace

MessageDialog::MessageDialog(QWidget *parent, const DialogLayout &layout)
    : ModalDialog(parent), m_layout(layout)
{
    setFrame({0, 0, layout.width, layout.height});
    const Faces faces{SkinImage::named(layout.normal), SkinImage::named(layout.over),
                      SkinImage::named(layout.down)};
    BKImage = faces.normal;
    buildButtons(faces);
}

void MessageDialog::buildButtons(const Faces &faces)
{
    HoverButton *close = nullptr;
    for (const ButtonRow &row : m_layout.buttons) {
        HoverButton *const button = makeButton(this, row, faces);
        button->setAction({this, &MessageDialog::buttonAction});
        if (row.tag == kDialogCloseTag)
            close = button;
        if (row.tag == kDialogOKTag)
            m_first = button;
    }
    if (!m_first)
        m_first = close;
    setKeyControls(close, m_first);
}

void MessageDialog::buttonAction(HoverButton *sender)
{
    answer(sender->tag());
}

void MessageDialog::setDisplayString(const QString &strCaption, const QString &strDisplayText)
{
    setTexts(strCaption, {strDisplayText});
}

void MessageDialog::setTexts(const QString &caption, const QStringList &texts)
{
    m_caption = caption;
    m_texts = texts;
    // The window is what assistive technology announces, the view what it finds in there.
    window()->setWindowTitle(caption);
    window()->setAccessibleDescription(strText());
    setAccessibleName(caption);
    setAccessibleDescription(strText());
    update();
}

void MessageDialog::drawRect(Canvas &canvas)
{
    canvas.clear();
    canvas.drawImage(BKImage);
    canvas.drawLine(m_caption, m_layout.title, kGold, m_layout.align, kTitleSize);
    auto place = m_layout.texts.begin();
    for (const QString &text : m_texts) {
        const TextFit fit = fitText(text, *place++, kMessageSize);
        canvas.DrawMyTextwithColor(text, fit.rect, kGold, m_layout.align, fit.fontSize);
    }
}

void MessageDialog::returnPressed(QWidget * /*focused*/)
{
    m_first->click();
}
