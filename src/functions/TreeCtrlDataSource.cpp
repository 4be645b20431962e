#include "functions/TreeCtrlDataSource.h"

#include "functions/functioncodes.h"

std::size_t TreeCtrlDataSource::numberOfChildrenOfItem(GameCommandItem *item)
{
    return item ? item->numberOfChildren() : functions::gameCategories().size();
}

GameCommandItem::Pointer TreeCtrlDataSource::child(std::size_t i, GameCommandItem *ofItem)
{
    return ofItem ? ofItem->childAtIndex(i) : GameCommandItem::rootItem(static_cast<unsigned>(i));
}

bool TreeCtrlDataSource::isItemExpandable(GameCommandItem *item)
{
    // What has no parent is no leaf. Asking for the number of children would make them.
    return !item || !item->GetParent();
}

QString TreeCtrlDataSource::objectValueForTableColumn(GameCommandItem *byItem)
{
    return byItem ? byItem->GetTilteName() : QString();
}

std::optional<QString> TreeCtrlDataSource::writeItems(const std::vector<GameCommandItem *> &items)
{
    if (items.empty() || items.front()->getIndexId() == 0)
        return {};
    return QString::number(items.front()->getIndexId());
}
