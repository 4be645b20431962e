#include "dialogs/textfit.h"

#include "platform/canvas.h"

#include <QtGui/QFontMetrics>

namespace {

constexpr int kEndless = 1 << 20;

QSize wrappedSize(const QString &text, int width, int fontSize)
{
    const QRect page(0, 0, width, kEndless);
    return QFontMetrics(systemFont(fontSize)).boundingRect(page, Qt::TextWordWrap, text).size();
}

} // namespace

TextFit fitText(const QString &text, UpRect box, int fontSize)
{
    const QSize size = wrappedSize(text, box.width, fontSize);
    const bool fits = size.width() <= box.width && size.height() <= box.height;
    if (!fits && fontSize > 1)
        return fitText(text, box, fontSize - 1);
    const int below = (box.height - size.height()) / 2;
    return {{box.x, box.y + below, box.width, size.height()}, fontSize};
}
