#include "controls/wholetext.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

namespace {

/// A text may hold anything, also what looks like markup.
QString asOneLine(const QString &text)
{
    return QStringLiteral("<p style='white-space:pre'>") + text.toHtmlEscaped() +
           QStringLiteral("</p>");
}

} // namespace

void showWholeText(const QHelpEvent &event, QWidget &view, const QString &text,
                   const QFontMetrics &metrics, int space)
{
    const bool isCut = metrics.elidedText(text, Qt::ElideRight, space) != text;
    QToolTip::showText(event.globalPos(), isCut ? asOneLine(text) : view.toolTip(), &view);
}
