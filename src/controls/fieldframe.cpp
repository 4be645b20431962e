#include "controls/fieldframe.h"

#include "platform/keywindow.h"

#include <QtWidgets/QWidget>

namespace {

UpRect around(UpRect rect, int margin)
{
    return {rect.x - margin, rect.y - margin, rect.width + 2 * margin, rect.height + 2 * margin};
}

} // namespace

void drawFieldFrame(Canvas &canvas, UpRect place, const QWidget &field)
{
    const bool isEdited = field.isActiveWindow() && keyboardWithin(field);
    canvas.outline(around(place, 1), isEdited ? kGoldBright : kRim);
    canvas.outline(around(place, 2), isEdited ? kGold : kGoldMiddle);
}
