#pragma once

#include "barsstage.h"
#include "controls/collapsiblepanel.h"
#include "controls/pngListBox.h"
#include "model/fixedtext.h"
#include "support/keyboard.h"

#include <QtCore/QMimeData>
#include <QtGui/QDrag>

inline constexpr const KnownBar &kRightBar = kKnownBars[1];

enum class PanelId { Tree, Cpi, Profile, Macro };
inline constexpr std::size_t kPanels = 4;

/// One panel as it is to be, from top to bottom.
struct KnownPanel
{
    PanelId id;
    const char *title;
    int tag;
    const char *logged; ///< when a player expands or collapses it
    int clickDepth;     ///< down to which a click in it expands and collapses
};

inline constexpr KnownPanel kKnownPanels[kPanels] = {
    {PanelId::Tree, "Game Commands", 0x2000, "IDC_VIEW_GAMECOMMAND", 30},
    {PanelId::Cpi, "Change CPI", 0x2001, "IDC_VIEW_DPI", 30},
    {PanelId::Profile, "Change Profile", 0x2002, "IDC_VIEW_PROFILE", 30},
    {PanelId::Macro, "Custom Macros", 0x2003, "IDC_VIEW_MACRO", 20},
};

/// The upward frame of a part in what holds it.
inline UpRect placeOf(const QWidget &part)
{
    return UpHost(part.parentWidget()->height()).up(part.geometry());
}

/// The same as a text that a failing test shows.
inline QString placeText(const QWidget &part)
{
    const UpRect place = placeOf(part);
    return QStringLiteral("%1,%2,%3,%4")
        .arg(place.x)
        .arg(place.y)
        .arg(place.width)
        .arg(place.height);
}

/// Presses a row, moves away from it, and gives the text that the drag that this started carries;
/// "" where none was started. The move is sent directly: delivered by the window, the drag would
/// be over, and deleted.
inline QString draggedText(pngListBox &list, QPoint from)
{
    pointer::press(list, from);
    const QPoint there = from + QPoint(-15, 0);
    QMouseEvent move(QEvent::MouseMove, there, list.mapToGlobal(there), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&list, &move);
    const std::unique_ptr<QDrag> drag(list.findChild<QDrag *>());
    return drag ? drag->mimeData()->text() : QString();
}

/// The program with the panels of its right bar.
struct PanelsStage : BarsStage
{
    /// The panels that are expanded, from the top.
    std::vector<PanelId> expanded() const
    {
        std::vector<PanelId> found;
        for (const KnownPanel &known : kKnownPanels) {
            if (panel(known.id).GetExpanded())
                found.push_back(known.id);
        }
        return found;
    }
    /// Where the panels lie.
    QStringList places() const
    {
        QStringList places;
        for (const KnownPanel &known : kKnownPanels)
            places << placeText(panel(known.id));
        return places;
    }
    HoverButton &expandKey(PanelId id) const
    {
        const QString title = QLatin1String(kKnownPanels[static_cast<std::size_t>(id)].title);
        for (auto *key : right().findChildren<HoverButton *>(QStringLiteral("btnExpand"))) {
            if (key->accessibleName() == title)
                return *key;
        }
        qFatal("no panel %s", qPrintable(title));
    }
    CollapsiblePanel &panel(PanelId id) const
    {
        return *static_cast<CollapsiblePanel *>(expandKey(id).parentWidget());
    }
    pngListBox &list(const char *name) const
    {
        return *static_cast<pngListBox *>(part(panel(PanelId::Tree).parentWidget(), name));
    }
    /// What bears that name somewhere in `parent`.
    static QWidget *part(const QWidget *parent, const char *name)
    {
        auto *const found = parent->findChild<QWidget *>(QLatin1String(name));
        if (!found)
            qFatal("no %s", name);
        return found;
    }
    custumwindow &right() const { return bar(kRightBar); }

    /// Opens the bar, or closes it, by its handle.
    void toggleRight() { clickToggle(kRightBar); }
    /// Opens the bar and expands the panel by a click on its header.
    void openAt(PanelId id)
    {
        toggleRight();
        clickHeader(id);
    }
    void clickHeader(PanelId id) const { pointer::click(panel(id), {60, 10}); }
    /// Clicks in the middle of a row of a list.
    static void clickRow(const pngListBox &list, int row, int height)
    {
        pointer::click(list, {40, row * height + height / 2});
    }

    static FunctionCode &code(int number) { return CurrentProfile().BUTTON[number - 1]; }
    /// Gives a mouse button a function and clicks it; the bar opens for it and stands.
    void find(int number, FunctionCode function)
    {
        code(number) = function;
        pointer::click(program.mouseButton(number));
        arrive();
    }
    /// What was logged that begins like this.
    std::vector<std::string> logged(const char *beginning) const
    {
        std::vector<std::string> lines;
        std::ranges::copy_if(program.log.lines, std::back_inserter(lines),
                             [&](const std::string &line) { return line.starts_with(beginning); });
        return lines;
    }
};
