#pragma once

#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QApplication>
#include <QtWidgets/QToolTip>

/// Asks a view for the tooltip at a place of it, y downwards, as a pointer does that rests there.
inline void askForToolTip(QWidget &view, QPoint at)
{
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, at, view.mapToGlobal(at));
    QApplication::sendEvent(&view, &help);
}

/// What it reads: what looks like rich text is shown as such. "" where there is none.
inline QString toolTipAt(QWidget &view, QPoint at)
{
    askForToolTip(view, at);
    const QString text = QToolTip::text();
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}
