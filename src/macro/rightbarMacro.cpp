#include "macro/rightbarMacro.h"

#include "controls/scrollbars.h"
#include "functions/functioncodes.h"

#include <QtWidgets/QScrollArea>
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
constexpr UpRect kNew{10, 0, 74, 27};
constexpr UpRect kDelete{90, 0, 74, 27};

/// Tab goes past the list without scrolling it: the toolkit's area, which is left out here, would
/// show the list's middle.
class ListArea : public Framed<QScrollArea>
{
public:
    using Framed::Framed;

protected:
    bool focusNextPrevChild(bool next) override
    {
        return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
    }
};

HoverButton *makeHeaderButton(QWidget *parent, const char *name, const char *caption)
{
    auto *const button = new HoverButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAccessibleName(QLatin1String(caption));
    button->setCaptionText(QLatin1String(caption));
    button->setNormalImage(SkinImage::named("new_normal"));
    button->setAlternateImage(SkinImage::named("new_down"));
    button->setDisable(true); // there is no editor to open yet
    return button;
}

UpRect raised(UpRect rect, int by)
{
    return {rect.x, rect.y + by, rect.width, rect.height};
}

} // namespace

rightbarMacro::rightbarMacro(QWidget *parent, UpRect frame,
                             const Action<CollapsiblePanel *> &noticeAction)
    : FunctionListPanel(kLook, parent, frame, noticeAction),
      MacroListscrollView(new ListArea(this)),
      btnNew(makeHeaderButton(this, "btnNew", "New")),
      btnDelete(makeHeaderButton(this, "btnDelete", "Delete"))
{
    MacroListscrollView->setFrameShape(QFrame::NoFrame);
    MacroListscrollView->setFocusPolicy(Qt::NoFocus);
    useSkinScrollBars(*MacroListscrollView);
    MacroListscrollView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list().resize(kListSize);
    list().setRightMargin(kScrollBarWidth);
    MacroListscrollView->setWidget(&list());
    refreshMacroList();
    setContent(MacroListscrollView);
}

void rightbarMacro::refreshMacroList()
{
    list().clearAll();
    for (unsigned slot = 0; slot < kMacroCount; ++slot) {
        const QString name =
            functions::caption(functions::kFirstMacroCode + slot, CurrentProfile());
        if (name.isEmpty())
            break;
        list().AddString(QStringLiteral("   * ") + name);
    }
    list().update();
    // On purpose it never becomes lower again.
    if (list().getCount() > kRowsBeforeItGrows)
        list().resize(kListSize.width(), list().getCount() * kLook.rowHeight);
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
    if (row < list().getCount())
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
    btnNew->setFrame(raised(kNew, by));
    btnDelete->setFrame(raised(kDelete, by));
    FunctionListPanel::ExpandView(expand);
}
