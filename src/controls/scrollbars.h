#pragma once

class QAbstractScrollArea;

/// Gives an area the skin's scroll bars, each shown only when there is something to scroll. They
/// lie over the content's edge and take nothing of its room.
void useSkinScrollBars(QAbstractScrollArea &area);

/// How wide they are, in points: what the content leaves free at its right edge while it scrolls.
inline constexpr int kScrollBarWidth = 7;
