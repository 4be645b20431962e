#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

// A picture of the skin as the build packs it: a head, then pixels as the toolkit paints them (32
// bits, premultiplied), from the upper left corner, row by row. A picture without a base has all of
// them. One with a base, a picture of the same size, has only those that differ from it, in spans.

/// What a packed picture begins with.
struct PackedHead
{
    qint32 width = 0;
    qint32 height = 0;
    char base[24] = {}; ///< the base's name in the program, filled up with zeros; empty without one
};

/// So many pixels, counted from the picture's first; they follow.
struct PackedSpan
{
    qint32 start = 0;
    qint32 count = 0;
};

/// The size of a packed picture in pixels; empty where it is not one.
QSize packedSize(const QByteArray &packed);

/// The name of a packed picture's base; empty where it has none or is not a picture.
QByteArray packedBase(const QByteArray &packed);

/// A picture without a base. It shares the bytes of `packed`, where
/// they lie as the toolkit needs them. What is no such picture, or has not
/// as many pixels as it should, gives none.
QImage unpackedWhole(const QByteArray &packed);

/// A part, in pixels, of a picture that is made of its base and of what differs, or of the base
/// itself where `over` is empty: then it shares the base's bytes. Spans that lie outside of the
/// picture or are cut short, a base of another size, and a part that is not all within, give none.
QImage unpackedPart(const QImage &base, const QByteArray &over, const QRect &part);
