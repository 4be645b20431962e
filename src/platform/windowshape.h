#pragma once

#include "platform/skinimage.h"

#include <QtGui/QRegion>

class QWidget;

/// The pixels of a picture that are at least half opaque, for a screen with `scale` pixels a point.
/// Empty where that is all of them or none: such a picture gives no shape.
QRegion opaqueShape(const SkinImage &picture, qreal scale);

/// Cuts a window out in a shape, in pixels of the screen from its upper left corner; an empty one
/// gives it back its whole rectangle. The window has to have been shown once. Only an X display has
/// such shapes.
void shapeWindow(const QWidget &window, const QRegion &shape);
