#include "functions/rightbarTreeView.h"

#include "functions/functioncodes.h"
#include "platform/systemlog.h"

#include <algorithm>
#include <optional>

namespace {

constexpr PanelLook kLook{.title = "Game Commands",
                          .stripDepth = 30,
                          .stripHeight = 28,
                          .titleDepth = 25,
                          .clickDepth = 30,
                          .isFilled = false,
                          .collapsed = {{156, 8, 17, 18}, {0, 30, 175, 180}},
                          .expanded = {{156, 229, 17, 18}, {0, 0, 175, 220}}};

constexpr std::int32_t kFirstCommand = 4097;

/// The category in whose range a code lies; the last range has no end.
std::optional<std::int32_t> categoryOf(std::int32_t code)
{
    const auto last = static_cast<std::int32_t>(functions::gameCategories().size()) - 1;
    const std::int32_t category = std::min((code >> 12) - 1, last);
    const bool isInRange = category >= 0 && code > (category + 1) << 12;
    return isInRange ? std::optional(category) : std::nullopt;
}

} // namespace

rightbarTreeView::rightbarTreeView(QWidget *parent, UpRect frame,
                                   const Action<CollapsiblePanel *> &noticeAction)
    : CollapsiblePanel(kLook, parent, frame, noticeAction),
      pTreeDataSource(std::make_shared<TreeCtrlDataSource>()),
      pOutlineView(new MyOutlineView(this))
{
    pOutlineView->setObjectName(QStringLiteral("pOutlineView"));
    pOutlineView->setAccessibleName(QLatin1String(kLook.title));
    pOutlineView->setDataSource(pTreeDataSource);
    pOutlineView->setShouldSelectItem({this, &rightbarTreeView::outlineViewShouldSelectItem});
    setContent(pOutlineView);
}

void rightbarTreeView::setTreeSelChangeNoticeAction(const Action<FunctionCode> &action)
{
    _TreeSelChangeNoticeAction = action;
}

void rightbarTreeView::outlineViewShouldSelectItem(GameCommandItem *item)
{
    const std::ptrdiff_t index = item->getIndexId();
    systemLog("outlineViewSelectionDidChange.%x", static_cast<unsigned>(index));
    if (index >= kFirstCommand)
        _TreeSelChangeNoticeAction.send(static_cast<FunctionCode>(index));
}

void rightbarTreeView::setTreeSel(std::int32_t code)
{
    // No row carries these numbers: on purpose open categories stay open.
    for (unsigned category = 0; category < functions::gameCategories().size(); ++category)
        pOutlineView->collapseItembyIndex(functions::codesBegin(category));
    if (const auto category = categoryOf(code))
        pOutlineView->expandItembyIndex(*category);
    pOutlineView->setSelectedItembyIndex(code);
    pOutlineView->viewport()->update();
}
