#pragma once

#include "panelstage.h"

#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

inline constexpr int kMacroRowHeight = 20;

inline void nameMacro(unsigned slot, const std::string &name)
{
    SetText(CurrentProfile().MACRO[slot].MACRO_NAME, name);
}

/// Gives the first macros of the current profile the names "M 0", "M 1" ... and no others any.
inline void nameMacros(unsigned count)
{
    for (unsigned slot = 0; slot < kMacroCount; ++slot)
        nameMacro(slot, slot < count ? "M " + std::to_string(slot) : std::string());
}

/// The program with so many macros.
struct MacroStage : PanelsStage
{
    explicit MacroStage(unsigned count) { nameMacros(count); }

    pngListBox &macros() const { return list("pMacroListbox"); }
    QScrollArea &scroll() const
    {
        return *static_cast<QScrollArea *>(macros().parentWidget()->parentWidget());
    }
    HoverButton &headerButton(const char *name) const
    {
        return *static_cast<HoverButton *>(part(&panel(PanelId::Macro), name));
    }
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < macros().getCount(); ++row)
            texts << macros().stringAt(row);
        return texts;
    }
    /// Clicks in the scroll bar, below its slider.
    void pageDown() const
    {
        const QScrollBar &scrollBar = *scroll().verticalScrollBar();
        pointer::click(scrollBar, {4, scrollBar.height() - 3});
    }
    /// Whether the whole row shows.
    bool showsWhole(int row) const
    {
        const QRegion strip(0, row * kMacroRowHeight, 150, kMacroRowHeight);
        return (macros().visibleRegion() & strip) == strip;
    }
};

/// What is listed of them.
inline QStringList macroRows(unsigned count)
{
    QStringList rows;
    for (unsigned slot = 0; slot < count; ++slot)
        rows << QStringLiteral("   * M %1").arg(slot);
    return rows;
}
