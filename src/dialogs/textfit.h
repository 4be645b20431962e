#pragma once

#include "platform/uprect.h"

#include <QtCore/QString>

/// Where a text stands and how large it is.
struct TextFit
{
    UpRect rect;      ///< as wide as the box, as high as the wrapped text
    int fontSize = 0; ///< in points of the view
};

/// Places `text`, wrapped at words, into the middle of `box`, in the largest size up to `fontSize`
/// in which nothing of it stands outside. A text that does not even fit in the smallest size there
/// is, one point, keeps that.
TextFit fitText(const QString &text, UpRect box, int fontSize);
