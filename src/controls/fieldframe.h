#pragma once

#include "platform/canvas.h"

/// Draws the frame of a field to type into, two points wide, around `place`: bright while `field`,
/// or a part of it, has the keyboard.
void drawFieldFrame(Canvas &canvas, UpRect place, const QWidget &field);
