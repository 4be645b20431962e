#include "macro/textcells.h"

#include "platform/canvas.h"

#include <QtGui/QFontMetrics>

#include <cmath>

namespace {

constexpr int kLineWidth = 214;
constexpr int kLineGap = 2; ///< what a cell is lower than its line

} // namespace

std::vector<TextCell> layOutCells(const QString &text, int viewHeight, int lineHeight)
{
    const QFontMetricsF metrics(systemFont(kCellFontSize));
    std::vector<TextCell> cells;
    cells.reserve(static_cast<std::size_t>(text.size()));
    int x = 0;
    int line = 0;
    for (const QChar character : text) {
        const auto width = static_cast<int>(std::lround(metrics.horizontalAdvance(character)));
        cells.push_back(
            {character, {x, viewHeight - (line + 1) * lineHeight, width, lineHeight - kLineGap}});
        x += width;
        if (x > kLineWidth) {
            x = 0;
            ++line;
        }
    }
    return cells;
}
