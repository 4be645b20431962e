#pragma once

#include <QtCore/QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

/// A row of the game command tree: one of the seven categories, or a command in one of them.
class GameCommandItem
{
public:
    using Pointer = std::shared_ptr<GameCommandItem>;
    using ChildList = std::vector<Pointer>;

    /// The count of children that a command answers: it is a leaf, and never has any.
    static constexpr std::size_t kLeafMark = static_cast<std::size_t>(-1);

    /// A new row for a category, 0..6, which is also kept in the global `rootItem`. Above 6 there
    /// is none, and `rootItem` is cleared.
    static Pointer rootItem(unsigned category);

    /// A row with that text. `parentItem` must outlive it; null for a category.
    GameCommandItem(QString strTilte, GameCommandItem *parentItem);

    /// The category number of a category, the function code of a command.
    void setIndexId(std::ptrdiff_t index) { iIndex = index; }
    std::ptrdiff_t getIndexId() const { return iIndex; }
    /// Null for a category.
    GameCommandItem *GetParent() const { return m_parent; }
    /// What is written in the row.
    const QString &GetTilteName() const { return TilteName; }

    /// The commands of a category, made when they are first asked for; null for a leaf.
    const ChildList *children();
    /// Their count; kLeafMark for a leaf.
    std::size_t numberOfChildren();
    /// Null for a leaf, and for a place past the last child.
    Pointer childAtIndex(std::size_t i);

    /// New rows for the commands of a category in their order, children of this row. Empty for a
    /// category above 6.
    ChildList AddChildItem(unsigned category);

private:
    GameCommandItem *m_parent;
    std::optional<ChildList> m_children; ///< nothing before they were asked for
    std::ptrdiff_t iIndex = 0;
    QString TilteName;
};

/// The category row that was made last; null when a category was asked for that there is not.
extern GameCommandItem::Pointer rootItem;
