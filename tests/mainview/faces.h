#pragma once

#include "controls/HoverButton.h"
#include "mainviewcontrols.h"
#include "support/pictures.h"
#include "support/skinpictures.h"

inline QRect downward(const KnownControl &control)
{
    return {control.x, 640 - control.y - control.height, control.width, control.height};
}

/// What a face looks like on the colour that stands behind a control drawn by itself.
inline QImage faceOf(const HoverButton &button, const char *picture, QRect part)
{
    QPixmap face(part.size());
    face.fill(button.palette().color(QPalette::Window));
    QPainter(&face).drawPixmap(QPoint(), skin(picture), part);
    return face.toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The face alone: a caption would stand on it.
inline QImage shownFace(HoverButton &button)
{
    button.setCaptionText({});
    return shown(button);
}
