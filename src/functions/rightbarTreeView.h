#pragma once

#include "controls/collapsiblepanel.h"
#include "functions/MyOutlineView.h"
#include "model/settings.h"

/// The panel "Game Commands" of the side bar: the tree of the game's key-bound commands. A command
/// that a person selects is told by its code.
class rightbarTreeView : public CollapsiblePanel
{
public:
    /// Collapsed; `noticeAction` is sent with the panel after a player has expanded or collapsed
    /// it.
    rightbarTreeView(QWidget *parent, UpRect frame, const Action<CollapsiblePanel *> &noticeAction);

    /// Sent with the code of the command that a person has selected.
    void setTreeSelChangeNoticeAction(const Action<FunctionCode> &action);
    /// Opens the category of a game command and selects its row, without telling anybody. A code in
    /// no category's range opens nothing, one that no row carries selects nothing.
    void setTreeSel(std::int32_t code);

private:
    void outlineViewShouldSelectItem(GameCommandItem *item);

    std::shared_ptr<TreeCtrlDataSource> pTreeDataSource;
    MyOutlineView *pOutlineView; ///< and its scroll view in one
    Action<FunctionCode> _TreeSelChangeNoticeAction;
};
