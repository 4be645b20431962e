#pragma once

#include "functions/TreeCtrlDataSource.h"

#include <QtCore/QAbstractItemModel>

/// The rows of an outline's data source as the toolkit's item model. The source is asked only for
/// what is shown: children when their parent is first expanded.
class OutlineModel : public QAbstractItemModel
{
public:
    /// Asks the source for the number of top rows only.
    OutlineModel(std::shared_ptr<OutlineDataSource> source, QObject *parent);

    /// The item of a row; null for the invisible root.
    static GameCommandItem *itemAt(const QModelIndex &index);

    QModelIndex index(int row, int column, const QModelIndex &parent) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent) const override;
    int columnCount(const QModelIndex &parent) const override;
    bool hasChildren(const QModelIndex &parent) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QStringList mimeTypes() const override;
    /// What a drag of these rows carries; null when it is refused.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::IgnoreAction; }

private:
    std::shared_ptr<OutlineDataSource> m_source;
    /// The source makes a top row anew whenever it is asked for it.
    mutable GameCommandItem::ChildList m_topItems;
};
