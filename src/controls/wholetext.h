#pragma once

#include <QtGui/QFontMetrics>

class QHelpEvent;
class QWidget;

/// Answers a tooltip event of `view`: a text that is wider than `space`, in points, is shown whole
/// and as it stands, whatever it may look like; with any other the view's own tooltip.
void showWholeText(const QHelpEvent &event, QWidget &view, const QString &text,
                   const QFontMetrics &metrics, int space);
