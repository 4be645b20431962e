#include "controls/textfields.h"

#include "controls/scrollbars.h"
#include "platform/canvas.h"

#include <QtCore/QMimeData>
#include <QtGui/QTextDocument>

#include <string_view>

namespace {

constexpr int kTextSize = 12;
constexpr qsizetype kMostPasted = 32767;

void setColours(QWidget &field, const QColor &ground)
{
    QPalette palette = field.palette();
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::Highlight, kMoonDeep);
    palette.setColor(QPalette::HighlightedText, kWhite);
    field.setPalette(palette);
}

void setLook(QWidget &field)
{
    field.setFont(systemFont(kTextSize));
    setColours(field, kWhite);
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
    connect(this, &QLineEdit::textEdited, this, &TextField::refuseUnacceptable);
}

void TextField::load(const QString &text)
{
    m_loaded = text;
    setText(text);
}

/// The toolkit lets everything be typed into a field whose text is not acceptable anyway, as one
/// that was loaded may be.
void TextField::refuseUnacceptable()
{
    if (!hasAcceptableInput())
        setText(m_loaded);
}

void TextField::setEditable(bool editable)
{
    setReadOnly(!editable);
    setColours(*this, editable ? kWhite : kPaperGrey);
}

QString TextField::plainText() const
{
    return isModified() ? withoutControls(text(), {}) : m_loaded;
}

void TextField::keyReleaseEvent(QKeyEvent *event)
{
    Framed::keyReleaseEvent(event);
    event->ignore();
}

TextArea::TextArea(QWidget *parent) : Framed(parent)
{
    setFrameShape(QFrame::NoFrame);
    setTabChangesFocus(true);
    setLook(*this);
    useSkinScrollBars(*this);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void TextArea::load(const QString &text)
{
    m_loaded = text;
    setPlainText(text);
}

QString TextArea::plainText() const
{
    if (!document()->isModified())
        return m_loaded;
    // The toolkit's plain text would have other blanks than were typed.
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return withoutControls(text, u"\n\t");
}

/// A megabyte without a blank would take the toolkit minutes to break into lines.
void TextArea::insertFromMimeData(const QMimeData *source)
{
    insertPlainText(source->text().left(kMostPasted));
}
