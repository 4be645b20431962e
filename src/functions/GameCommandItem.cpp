#include "functions/GameCommandItem.h"

#include "functions/functioncodes.h"

#include <utility>

GameCommandItem::Pointer rootItem;

GameCommandItem::Pointer GameCommandItem::rootItem(unsigned category)
{
    ::rootItem.reset();
    const auto categories = functions::gameCategories();
    if (category >= categories.size())
        return nullptr;
    ::rootItem =
        std::make_shared<GameCommandItem>(QLatin1String(categories[category].name), nullptr);
    ::rootItem->setIndexId(category);
    return ::rootItem;
}

GameCommandItem::GameCommandItem(QString strTilte, GameCommandItem *parentItem)
    : m_parent(parentItem), TilteName(std::move(strTilte))
{
}

const GameCommandItem::ChildList *GameCommandItem::children()
{
    if (m_parent)
        return nullptr;
    if (!m_children)
        m_children = AddChildItem(static_cast<unsigned>(iIndex));
    return &*m_children;
}

std::size_t GameCommandItem::numberOfChildren()
{
    const ChildList *const list = children();
    return list ? list->size() : kLeafMark;
}

GameCommandItem::Pointer GameCommandItem::childAtIndex(std::size_t i)
{
    const ChildList *const list = children();
    return list && i < list->size() ? (*list)[i] : nullptr;
}

GameCommandItem::ChildList GameCommandItem::AddChildItem(unsigned category)
{
    ChildList list;
    const auto categories = functions::gameCategories();
    if (category >= categories.size())
        return list;
    const auto count = static_cast<unsigned>(categories[category].commands.size());
    list.reserve(count);
    for (unsigned item = 0; item < count; ++item) {
        list.push_back(std::make_shared<GameCommandItem>(GetSubTitle(category, item), this));
        list.back()->setIndexId(functions::gameCode(category, item));
    }
    return list;
}
