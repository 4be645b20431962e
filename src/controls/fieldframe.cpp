#include "controls/fieldframe.h"

#include "platform/keywindow.h"

#include <QtWidgets/QWidget>

namespace {

constexpr QColor kEdge(138, 108, 56);
constexpr QColor kRim(7, 5, 4);
constexpr QColor kLit(255, 223, 128);

UpRect around(UpRect rect, int margin)
{
    return {rect.x - margin, rect.y - margin, rect.width + 2 * margin, rect.height + 2 * margin};
}

} // namespace

void drawFieldFrame(Canvas &canvas, UpRect place, const QWidget &field)
{
    const bool isEdited = field.isActiveWindow() && keyboardWithin(field);
    canvas.outline(around(place, 1), isEdited ? kLit : kRim);
    canvas.outline(around(place, 2), isEdited ? kGold : kEdge);
}
