#include "controls/textfields.h"

#include "controls/scrollbars.h"
#include "platform/canvas.h"

#include <QtGui/QTextDocument>

#include <string_view>

namespace {

constexpr int kTextSize = 12;
constexpr QColor kReadOnly(170, 170, 170);
constexpr QColor kSelected(122, 72, 6);

void setColours(QWidget &field, const QColor &ground)
{
    QPalette palette = field.palette();
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, kSelected);
    palette.setColor(QPalette::HighlightedText, kWhite);
    field.setPalette(palette);
}

void setLook(QWidget &field)
{
    field.setFont(systemFont(kTextSize));
    setColours(field, kWhite);
    // What is typed or clicked here is not meant for the window behind.
    field.setAttribute(Qt::WA_NoMousePropagation);
}

QString withoutControls(QString text, std::u16string_view kept)
{
    for (QChar &character : text) {
        const bool isKept = kept.find(character.unicode()) != std::u16string_view::npos;
        if (character.category() == QChar::Other_Control && !isKept)
            character = u' ';
    }
    return text;
}

} // namespace

TextField::TextField(QWidget *parent) : Framed(parent)
{
    QLineEdit::setFrame(false);
    setLook(*this);
}

void TextField::setEditable(bool editable)
{
    setReadOnly(!editable);
    setColours(*this, editable ? kWhite : kReadOnly);
}

QString TextField::plainText() const
{
    return withoutControls(text(), {});
}

TextArea::TextArea(QWidget *parent) : Framed(parent)
{
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    setLook(*this);
    useSkinScrollBars(*this);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QString TextArea::plainText() const
{
    // The toolkit's plain text would have other blanks than were typed.
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return withoutControls(text, u"\n\t");
}
