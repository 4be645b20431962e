#pragma once

#include "functions/TreeCtrlDataSource.h"

#include <QtCore/QStringList>

/// An outline of rows with these names and nothing below them.
class LongNames : public OutlineDataSource
{
public:
    explicit LongNames(const QStringList &names)
    {
        for (const QString &name : names)
            m_rows.push_back(std::make_shared<GameCommandItem>(name, nullptr));
    }

    std::size_t numberOfChildrenOfItem(GameCommandItem *item) override
    {
        return item ? GameCommandItem::kLeafMark : m_rows.size();
    }
    GameCommandItem::Pointer child(std::size_t i, GameCommandItem * /*ofItem*/) override
    {
        return m_rows[i];
    }
    bool isItemExpandable(GameCommandItem *item) override { return !item; }
    QString objectValueForTableColumn(GameCommandItem *byItem) override
    {
        return byItem->GetTilteName();
    }
    std::optional<QString> writeItems(const std::vector<GameCommandItem *> & /*items*/) override
    {
        return {};
    }

private:
    GameCommandItem::ChildList m_rows;
};
