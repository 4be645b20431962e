#include "functions/outlinemodel.h"

#include <QtCore/QMimeData>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

const QString kPlainText = QStringLiteral("text/plain");

} // namespace

OutlineModel::OutlineModel(std::shared_ptr<OutlineDataSource> source, QObject *parent)
    : QAbstractItemModel(parent),
      m_source(std::move(source)),
      m_topItems(m_source->numberOfChildrenOfItem(nullptr))
{
}

GameCommandItem *OutlineModel::itemAt(const QModelIndex &index)
{
    return static_cast<GameCommandItem *>(index.internalPointer());
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const auto place = static_cast<std::size_t>(row);
    if (parent.isValid())
        return createIndex(row, column, m_source->child(place, itemAt(parent)).get());
    GameCommandItem::Pointer &top = m_topItems[place];
    if (!top)
        top = m_source->child(place, nullptr);
    return createIndex(row, column, top.get());
}

QModelIndex OutlineModel::parent(const QModelIndex &child) const
{
    GameCommandItem *const item = itemAt(child);
    GameCommandItem *const above = item ? item->GetParent() : nullptr;
    if (!above)
        return {};
    const auto place = std::ranges::find(m_topItems, above, &GameCommandItem::Pointer::get);
    return createIndex(static_cast<int>(place - m_topItems.begin()), 0, above);
}

int OutlineModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_topItems.size());
    return hasChildren(parent) ? static_cast<int>(m_source->numberOfChildrenOfItem(itemAt(parent)))
                               : 0;
}

int OutlineModel::columnCount(const QModelIndex & /*parent*/) const
{
    return 1;
}

bool OutlineModel::hasChildren(const QModelIndex &parent) const
{
    return m_source->isItemExpandable(itemAt(parent));
}

QVariant OutlineModel::data(const QModelIndex &index, int role) const
{
    return role == Qt::DisplayRole ? m_source->objectValueForTableColumn(itemAt(index))
                                   : QVariant();
}

QVariant OutlineModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isName = section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isName ? QStringLiteral("Name") : QVariant();
}

QStringList OutlineModel::mimeTypes() const
{
    return {kPlainText};
}

QMimeData *OutlineModel::mimeData(const QModelIndexList &indexes) const
{
    std::vector<GameCommandItem *> items;
    std::ranges::transform(indexes, std::back_inserter(items), itemAt);
    const auto text = m_source->writeItems(items);
    if (!text)
        return nullptr;
    auto *const data = new QMimeData;
    data->setText(*text);
    return data;
}
