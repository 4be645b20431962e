#pragma once

#include "panelstage.h"

#include <span>

inline constexpr const char *kCpiRows[] = {"   * CPI 800",  "   * CPI 1600", "   * CPI 2400",
                                           "   * CPI 3200", "   * CPI 4000", "   * CPI 5000",
                                           "   * CPI UP",   "   * CPI DOWN"};
inline constexpr const char *kProfileRows[] = {
    "   * Profile 1", "   * Profile 2",  "   * Profile 3",  "   * Profile 4",
    "   * Profile 5", "   * Profile 6",  "   * Profile 7",  "   * Profile 8",
    "   * Profile 9", "   * Profile 10", "   * Profile UP", "   * Profile DOWN"};

/// A panel with a fixed list as it is to be.
struct KnownList
{
    PanelId id;
    const char *name; ///< of the list's object
    int tag;
    int rowHeight;
    UpRect collapsed; ///< the list in the panel
    UpRect expanded;
    std::span<const char *const> rows;
    FunctionCode first; ///< what the first row stands for
    const char *logged; ///< of a choice, before the row
};

inline constexpr KnownList kKnownLists[] = {
    {PanelId::Cpi,
     "pDPIListbox",
     0x1000,
     20,
     {0, 60, 175, 160},
     {0, 60, 175, 160},
     kCpiRows,
     0x10,
     "DPI Index:"},
    {PanelId::Profile,
     "pProfileListbox",
     0x1001,
     18,
     {0, 30, 175, 220},
     {0, 0, 175, 220},
     kProfileRows,
     0x20,
     "Profile Index:"},
};

inline void knownListRows()
{
    QTest::addColumn<const KnownList *>("known");
    for (const KnownList &known : kKnownLists)
        QTest::newRow(known.name) << &known;
}

/// What a function of a list is called on a button.
inline QString captionOfRow(const KnownList &known, int row)
{
    return QString::fromLatin1(known.rows[static_cast<std::size_t>(row)]).mid(5);
}

inline int rowCount(const KnownList &known)
{
    return static_cast<int>(known.rows.size());
}

/// The program with a panel open and a mouse button selected.
struct ListedStage : PanelsStage
{
    static constexpr int kButton = 5;

    explicit ListedStage(const KnownList &known) : choices(list(known.name))
    {
        find(kButton, 9); // opens the bar
        clickHeader(known.id);
        program.log.lines.clear();
    }

    QString caption() const { return program.mouseButton(kButton).captionText(); }
    void apply() const { pointer::click(program.button("ButtonApply")); }

    pngListBox &choices;
};
