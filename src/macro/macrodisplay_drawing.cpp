#include "controls/scrollbars.h"
#include "macro/MacroDisplay.h"
#include "macro/textcells.h"
#include "platform/action.h"

void MacroDisplay::drawRect(Canvas &canvas)
{
    canvas.fill(canvas.bounds(), m_bEnable ? kWhite : kPaperGrey);
    const QString text = GetMacroOutputString();
    drawCells(canvas, text);
    // By one line for each drawing, and not before it is over.
    if (needsLine(text)) {
        if (!m_isGrowing)
            performDeferred(this, &MacroDisplay::growByOneLine);
        m_isGrowing = true;
    } else if (m_showsNewest) {
        performDeferred(this, &MacroDisplay::showNewest);
    }
}

void MacroDisplay::drawCells(Canvas &canvas, const QString &text)
{
    const std::vector<TextCell> cells = layOutCells(text, height(), m_charHeight);
    m_newest = {};
    if (!cells.empty())
        m_newest = UpHost(height()).down({0, cells.back().place.y, width(), m_charHeight});
    for (const TextCell &cell : cells) {
        m_charWidth = cell.place.width;
        // Most of a long list is scrolled out of sight.
        if (!canvas.isExposed(cell.place))
            continue;
        if (cell.character == kPressSign)
            canvas.drawImageScaled(m_Imagedown, cell.place);
        else if (cell.character == kReleaseSign)
            canvas.drawImageScaled(m_Imageup, cell.place);
        else
            canvas.DrawMyTextwithColor(cell.character, cell.place, Qt::black, TextAlign::Left,
                                       kCellFontSize);
    }
}

bool MacroDisplay::needsLine(const QString &text) const
{
    const int lines = static_cast<int>(text.size()) / m_MaxCharofsingleLine + 1;
    return m_bEnableScroll && lines * m_charHeight > height();
}

void MacroDisplay::growByOneLine()
{
    m_isGrowing = false;
    if (!needsLine(text())) // another list was loaded meanwhile
        return;
    resize(width(), height() + m_charHeight);
    update();
}

void MacroDisplay::showNewest()
{
    if (!m_showsNewest || m_newest.isNull())
        return;
    m_showsNewest = false;
    scrollIntoView(*this, m_newest);
}

void MacroDisplay::showBeginning()
{
    m_showsNewest = false;
    scrollIntoView(*this, {0, 0, width(), m_charHeight});
    update();
}
