#pragma once

#include "functions/outlinemodel.h"
#include "platform/action.h"
#include "platform/focusframe.h"
#include "platform/view.h"

#include <QtWidgets/QTreeView>

/// An outline of game commands in the skin's look. A click selects, on its release, so that a row
/// can be dragged away without being chosen; the arrow keys and typed letters select too, and
/// Return and the space key select the same row once more. They open and close a category, as do a
/// click on its arrow and a double click. What a person selects is told, by the keys once it is
/// selected; what the program selects is not.
class MyOutlineView : public Framed<QTreeView>
{
public:
    /// Empty, until it is given a data source.
    explicit MyOutlineView(QWidget *parent);

    /// Shows the source's rows. Call it once.
    void setDataSource(const std::shared_ptr<OutlineDataSource> &source);
    /// Sent with the item that a person selects, also when it is selected already.
    void setShouldSelectItem(const Action<GameCommandItem *> &action) { m_shouldSelect = action; }

    /// The first row from the top with that index, as far as rows show: what lies in closed
    /// categories is not searched. Null when there is none.
    GameCommandItem *findItembyIndex(std::ptrdiff_t index) const;
    /// Each does so to the row of that index, and nothing when none is found.
    void setSelectedItembyIndex(std::ptrdiff_t index);
    void expandItembyIndex(std::ptrdiff_t index);
    void collapseItembyIndex(std::ptrdiff_t index);
    /// Selects an item's row in place of any other and scrolls it into view; nothing for an item
    /// that has none.
    void setSelectedItem(const GameCommandItem *item);

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option,
                 const QModelIndex &index) const override;
    void focusInEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    template <class Matches>
    QModelIndex firstRow(Matches matches) const;
    QModelIndex findIndex(std::ptrdiff_t index) const;
    void selectRow(const QModelIndex &row);
    QRect textRect(const QModelIndex &index) const;
    QRect stripOf(const QModelIndex &index) const;
    bool isOnArrow(const QModelIndex &index, QPoint position) const;
    void toggle(const QModelIndex &index);
    void choose(const QModelIndex &index);

    Action<GameCommandItem *> m_shouldSelect;
    FocusFrame m_focusFrame;
    QModelIndex m_pressed; ///< the row that is being clicked or dragged
    QPoint m_pressedAt;
};
