#include "macro/keymapevents.h"

#include "macro/keynames.h"

namespace {

QLatin1String nameOf(const KeymapEvent &event)
{
    return QLatin1String(keyName(static_cast<std::uint8_t>(event.keycode)));
}

void appendKey(QString &text, const KeymapEvent &event, bool showsUpAndDown)
{
    if (showsUpAndDown || event.kind == kKeyPress)
        text += nameOf(event);
    if (!showsUpAndDown)
        return;
    if (event.kind == kKeyPress)
        text += kPressSign;
    else if (event.kind == kKeyRelease)
        text += kReleaseSign;
}

void appendDelay(QString &text, const KeymapEvent &event)
{
    // Shown signed, as the numbers in the file are; one that is too large wraps.
    if (event.delay != 0)
        text += QStringLiteral("(%1ms)").arg(static_cast<std::int32_t>(event.delay * kDelayUnit));
}

} // namespace

QString eventText(std::span<const KeymapEvent> events, EventTextStyle style)
{
    QString text;
    for (const KeymapEvent &event : events) {
        appendKey(text, event, style.showsUpAndDown);
        if (style.showsDelays)
            appendDelay(text, event);
    }
    return text;
}
