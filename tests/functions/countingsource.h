#pragma once

#include "functions/TreeCtrlDataSource.h"

#include <QtCore/QStringList>

/// The game command tree, which notes below which of its rows somebody has looked.
class CountingSource : public TreeCtrlDataSource
{
public:
    std::size_t numberOfChildrenOfItem(GameCommandItem *item) override
    {
        note(item);
        return TreeCtrlDataSource::numberOfChildrenOfItem(item);
    }
    GameCommandItem::Pointer child(std::size_t i, GameCommandItem *ofItem) override
    {
        note(ofItem);
        topRows += ofItem ? 0 : 1;
        return TreeCtrlDataSource::child(i, ofItem);
    }

    QStringList lookedBelow; ///< each name once, in the order of the first look
    int topRows = 0;         ///< how many were made

private:
    void note(const GameCommandItem *item)
    {
        if (item && !lookedBelow.contains(item->GetTilteName()))
            lookedBelow.append(item->GetTilteName());
    }
};
