#pragma once

#include "functions/GameCommandItem.h"

/// What an outline asks for its rows. In all questions the item null is the invisible root above
/// the top rows.
class OutlineDataSource
{
public:
    virtual ~OutlineDataSource() = default;

    /// GameCommandItem::kLeafMark for an item that never has any.
    virtual std::size_t numberOfChildrenOfItem(GameCommandItem *item) = 0;
    /// Child `i` of an item; null when there is none.
    virtual GameCommandItem::Pointer child(std::size_t i, GameCommandItem *ofItem) = 0;
    /// Whether an item can be opened; asked for every row that shows, so it makes no children.
    virtual bool isItemExpandable(GameCommandItem *item) = 0;
    /// What is written in an item's row.
    virtual QString objectValueForTableColumn(GameCommandItem *byItem) = 0;
    /// The plain text that a drag of these items carries; nothing refuses the drag.
    virtual std::optional<QString> writeItems(const std::vector<GameCommandItem *> &items) = 0;
};

/// The game command tree: seven categories over their commands.
class TreeCtrlDataSource : public OutlineDataSource
{
public:
    std::size_t numberOfChildrenOfItem(GameCommandItem *item) override;
    /// A category is a new row at every call.
    GameCommandItem::Pointer child(std::size_t i, GameCommandItem *ofItem) override;
    bool isItemExpandable(GameCommandItem *item) override;
    QString objectValueForTableColumn(GameCommandItem *byItem) override;
    /// The index of the first item. On purpose that of a category too, which a button then takes
    /// for a basic function, and on purpose not that of the first category, which is 0.
    std::optional<QString> writeItems(const std::vector<GameCommandItem *> &items) override;
};
