#pragma once

#include "functions/MyOutlineView.h"
#include "support/pointer.h"

/// The rows of an outline as a person sees them and points at them: by what is written in them.
namespace outlinerows {

/// The row of that name, among those that are not in a closed category; invalid without one.
inline QModelIndex row(const MyOutlineView &outline, const QString &name)
{
    QModelIndex index = outline.model()->index(0, 0);
    while (index.isValid() && index.data().toString() != name)
        index = outline.indexBelow(index);
    return index;
}

inline QModelIndex row(const MyOutlineView &outline, const char *name)
{
    const QModelIndex found = row(outline, QString::fromLatin1(name));
    if (!found.isValid())
        qFatal("no row %s", name);
    return found;
}

/// On the text of a row, and on the arrow beside it.
inline QPoint onText(const MyOutlineView &outline, const char *name)
{
    const QRect place = outline.visualRect(row(outline, name));
    return {place.left() + 5, place.center().y()};
}

inline QPoint onArrow(const MyOutlineView &outline, const char *name)
{
    return {5, outline.visualRect(row(outline, name)).center().y()};
}

inline void click(const MyOutlineView &outline, const char *name)
{
    pointer::click(*outline.viewport(), onText(outline, name));
}

inline void clickArrow(const MyOutlineView &outline, const char *name)
{
    pointer::click(*outline.viewport(), onArrow(outline, name));
}

/// The names of the selected rows.
inline QString selected(const MyOutlineView &outline)
{
    QStringList names;
    for (const QModelIndex &index : outline.selectionModel()->selectedIndexes())
        names.append(index.data().toString());
    return names.join(QLatin1Char('|'));
}

/// The names of the open categories, from the top.
inline QStringList opened(const MyOutlineView &outline)
{
    QStringList names;
    for (int i = 0; i < outline.model()->rowCount(); ++i) {
        const QModelIndex category = outline.model()->index(i, 0);
        if (outline.isExpanded(category))
            names.append(category.data().toString());
    }
    return names;
}

/// Whether a row can be seen: its text, since the toolkit scrolls a row's last line of pixels no
/// further than to the edge.
inline bool isInSight(const MyOutlineView &outline, const char *name)
{
    const QRect place = outline.visualRect(row(outline, name)).adjusted(0, 1, 0, -1);
    return outline.viewport()->rect().contains(place);
}

} // namespace outlinerows
