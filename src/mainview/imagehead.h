#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSize>

#include <cstdint>

/// What decoding an image would take, as the bytes of its file tell before a decoder sees them. The
/// sizes that decoders tell come from the same bytes, but some unpack much to find them, and some
/// tell another than they decode.
struct ImageHead
{
    const char *format = ""; ///< as the toolkit names it: "png", "jpeg", "gif" or "bmp"
    std::int64_t pixels = 0; ///< of the largest picture in it that is looked at
    int passes = 1;          ///< over all pixels
};

/// The head of an image file; without a format where it is none of these, is broken, or tells no
/// size. No read beyond the bytes, whatever they hold.
ImageHead imageHead(const QByteArray &bytes);

/// The same PNG file with what makes its pixels and nothing else: its texts and profiles can be
/// packed, and as large as they like. Anything but a PNG file is returned as it is.
QByteArray pixelsOnly(const QByteArray &png);
