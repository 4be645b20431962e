#include "macro/rightbarMacro.h"

#include "controls/faces.h"
#include "controls/scrollbars.h"
#include "controls/skinscrollarea.h"
#include "dialogs/dialogwindow.h"
#include "macro/MacroDelWarn.h"
#include "macro/MacroView.h"
#include "model/fixedtext.h"
#include "platform/systemlog.h"

#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace {

constexpr FunctionListLook kLook{.panel = {.title = "Custom Macros",
                                           .stripDepth = 50,
                                           .stripHeight = 48,
                                           .titleDepth = 23,
                                           .clickDepth = 20,
                                           .collapsed = {{156, 28, 17, 18}, {0, 50, 175, 220}},
                                           .expanded = {{156, 268, 17, 18}, {0, 0, 175, 240}}},
                                 .listTag = kMacroListTag,
                                 .listName = "pMacroListbox",
                                 .logLine = "Macro Index:%d"};

constexpr QSize kListSize{175, 240}; ///< at first; it grows with its rows
constexpr int kRowsBeforeItGrows = 11;

/// The buttons stand in the header, whose lower edge moves with the panel's height.
constexpr ButtonRow kNew{"btnNew", {10, 0, 74, 27}, 0, "New", "New macro"};
constexpr ButtonRow kDelete{"btnDelete", {90, 0, 74, 27}, 0, "Delete", "Delete macro"};

constexpr std::int32_t kNewMacro = -1;

HoverButton *makeHeaderButton(QWidget *parent, const ButtonRow &row,
                              const Action<HoverButton *> &action)
{
    HoverButton *const button = makePictureButton(parent, row, "new_normal", "new_down");
    button->setAction(action);
    return button;
}

/// The codes on the buttons stay as they are, on purpose: one that played this macro plays the
/// next.
void deleteMacro(unsigned slot)
{
    const std::span<MacroInfo> macros(CurrentProfile().MACRO);
    std::ranges::copy(macros.subspan(slot + 1), macros.begin() + slot);
    macros.back() = {};
}

UpRect raised(UpRect rect, int by)
{
    return {rect.x, rect.y + by, rect.width, rect.height};
}

} // namespace

rightbarMacro::rightbarMacro(QWidget *parent, UpRect frame,
                             const Action<CollapsiblePanel *> &noticeAction)
    : FunctionListPanel(kLook, parent, frame, noticeAction),
      btnNew(makeHeaderButton(this, kNew, {this, &rightbarMacro::newbuttonAction})),
      btnDelete(makeHeaderButton(this, kDelete, {this, &rightbarMacro::deletebuttonAction})),
      MacroListscrollView(new SkinScrollArea(this))
{
    list().setDBClickAction({this, &rightbarMacro::MacroListDBClick});
    list().resize(kListSize);
    list().setRightMargin(kScrollBarWidth);
    MacroListscrollView->setWidget(&list());
    setTabOrder(btnDelete, &list());
    refreshMacroList();
    setContent(MacroListscrollView);
}

void rightbarMacro::refreshMacroList()
{
    list().clearAll();
    for (unsigned slot = 0; slot < kMacroCount; ++slot) {
        const QString name = GetString(CurrentProfile().MACRO[slot].MACRO_NAME);
        if (name.isEmpty())
            break;
        list().AddString(QStringLiteral("   * ") + name);
    }
    list().update();
    // On purpose it never becomes lower again.
    if (list().getCount() > kRowsBeforeItGrows)
        list().resize(kListSize.width(),
                      std::max(list().height(), list().getCount() * kLook.rowHeight));
    keepToRows();
}

/// Another profile may have fewer macros than there were: none is selected beyond them, and they
/// are not scrolled out of sight.
void rightbarMacro::keepToRows()
{
    const int row = list().getcursel();
    list().setcursel(row < list().getCount() ? row : -1);
    const int rows = list().getCount() * kLook.rowHeight;
    const int last = std::max(0, rows - MacroListscrollView->viewport()->height());
    QScrollBar *const bar = MacroListscrollView->verticalScrollBar();
    bar->setValue(std::min(bar->value(), last));
}

void rightbarMacro::setMacroSel(std::int32_t row)
{
    list().setcursel(row);
    if (row >= 0 && row < list().getCount())
        scrollIntoView(list(), {0, row * kLook.rowHeight, 1, kLook.rowHeight});
}

void rightbarMacro::setHiddenButton(bool hidden)
{
    btnNew->setHidden(hidden);
    btnDelete->setHidden(hidden);
}

void rightbarMacro::ExpandView(bool expand)
{
    if (expand)
        refreshMacroList();
    const int by = expand ? kLook.panel.expanded.content.height : 0;
    btnNew->setFrame(raised(kNew.frame, by));
    btnDelete->setFrame(raised(kDelete.frame, by));
    FunctionListPanel::ExpandView(expand);
}

void rightbarMacro::newbuttonAction(HoverButton * /*sender*/)
{
    DisplayMacroWindow(kNewMacro);
}

void rightbarMacro::MacroListDBClick(pngListBox *sender)
{
    DisplayMacroWindow(sender->getcursel());
    systemLog("MacroListDBClick");
}

void rightbarMacro::deletebuttonAction(HoverButton *sender)
{
    if (m_Config.MACRODEL_CONFIRM == 0)
        MacroDelAction(sender);
    else
        DisplayWarnDlg();
}

/// The bar's, or where there is none its own.
QWidget &rightbarMacro::mainWindow() const
{
    const QWidget *const owner = window()->parentWidget();
    return owner ? *owner->window() : *window();
}

void rightbarMacro::DisplayMacroWindow(std::int32_t macro)
{
    pMacroView = makeDialogAt<MacroView>(mainWindow());
    pMacroWindow = pMacroView->window();
    pMacroView->setcurrentMacroID(macro);
    pMacroView->setTarget(this);
    pMacroView->runModal();
}

void rightbarMacro::MacroOKAction(MacroView *sender)
{
    const bool isChanged = sender->hasSaved();
    releaseEditor();
    refreshMacroList();
    systemLog("MacroOKAction");
    if (isChanged)
        m_macrosChangeAction.send();
}

void rightbarMacro::MacroCancelAction(MacroView * /*sender*/)
{
    releaseEditor();
    systemLog("MacroCancelAction");
}

/// The window closes itself once we have been told.
void rightbarMacro::releaseEditor()
{
    pMacroWindow = nullptr;
    pMacroView = nullptr;
}

void rightbarMacro::DisplayWarnDlg()
{
    pWarnView = makeDialogAt<MacroDelWarn>(mainWindow());
    pWarnWindow = pWarnView->window();
    pWarnView->setDelAction({this, &rightbarMacro::MacroDelAction});
    pWarnView->runModal();
}

void rightbarMacro::MacroDelAction(QWidget * /*sender*/)
{
    const int row = list().getcursel();
    const bool isSlot = row >= 0 && row < static_cast<int>(kMacroCount);
    if (isSlot)
        deleteMacro(static_cast<unsigned>(row));
    refreshMacroList();
    update();
    systemLog("deletebuttonAction");
    if (isSlot)
        m_macrosChangeAction.send();
}
