#pragma once

#include "platform/view.h"

/// A drag of a row of `source` out of its window: it carries `text` as plain text, and the row's
/// picture, half transparent, goes along with the pointer from where it was pressed. `strip` is the
/// row's place and `pressedAt` the press, both in `source`, y downwards. Returns once the drag is
/// over; `source` may be gone by then.
void dragRow(QWidget &source, QRect strip, QPoint pressedAt, const QString &text);

/// Whether the pointer has come so far from the press that a drag is meant.
bool isDrag(QPoint pressedAt, QPoint now);
