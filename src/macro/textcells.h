#pragma once

#include "platform/uprect.h"

#include <QtCore/QString>

#include <vector>

/// The cell of a character.
struct TextCell
{
    QChar character;
    UpRect place;
};

/// The size of the letters in cells, in points.
inline constexpr int kCellFontSize = 11;

/// Lays `text` out in lines of cells from the top of a view of that height downwards: each cell as
/// wide as its character, rounded, the lines `lineHeight` apart and broken after the cell that
/// reaches beyond 214 points.
std::vector<TextCell> layOutCells(const QString &text, int viewHeight, int lineHeight);
