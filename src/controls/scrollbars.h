#pragma once

class QAbstractScrollArea;
class QRect;
class QWidget;

/// How wide scroll bars are, in points: what the content leaves free at its right edge while it
/// scrolls.
inline constexpr int kScrollBarWidth = 7;

/// Gives an area the skin's scroll bars, each shown only when there is something to scroll. They
/// lie over the content's edge and take nothing of its room.
void useSkinScrollBars(QAbstractScrollArea &area, int width = kScrollBarWidth);

/// Scrolls the area that `content` stands in so far up or down that `part` of it, y downwards, is
/// in sight. In no area, nothing happens.
void scrollIntoView(const QWidget &content, const QRect &part);
