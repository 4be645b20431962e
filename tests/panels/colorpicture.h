#pragma once

#include "panels/pngcolorlist.h"
#include "support/pointer.h"
#include "support/receiver.h"

#include <QtGui/QImage>

/// The picture that colours are picked from as it was drawn, not as the program packs it; at one or
/// two pixels a point.
inline QImage drawnColours(int scale = 1)
{
    const auto *const suffix = scale == 1 ? "" : "@2x";
    return QImage(QStringLiteral(SKIN_FOLDER "/Color%1.png").arg(QLatin1String(suffix)))
        .convertToFormat(QImage::Format_ARGB32);
}

/// A plain colour of the picture, and a point of it, y downwards.
struct KnownSwatch
{
    const char *name = "";
    QColor colour;
    QPoint point;
};

inline const KnownSwatch kKnownSwatches[] = {
    {"red", {255, 0, 0}, {6, 86}},         {"orange", {255, 60, 0}, {18, 86}},
    {"yellow", {255, 255, 0}, {30, 86}},   {"green", {0, 255, 0}, {42, 86}},
    {"cyan", {0, 255, 255}, {53, 86}},     {"blue", {0, 0, 255}, {64, 86}},
    {"violet", {128, 0, 255}, {76, 86}},   {"magenta", {255, 0, 255}, {88, 86}},
    {"white", {255, 255, 255}, {100, 86}}, {"black", {0, 0, 0}, {112, 86}},
};

inline void swatchRows()
{
    QTest::addColumn<const KnownSwatch *>("known");
    for (const KnownSwatch &known : kKnownSwatches)
        QTest::newRow(known.name) << &known;
}

/// The left button as the display tells of it: at a place that may lie between points, as it does
/// on a fine one, and at a time in milliseconds.
inline void sendButton(QEvent::Type type, const QWidget &control, QPointF at, int time)
{
    const bool isPress = type == QEvent::MouseButtonPress;
    QTest::lastMouseTimestamp = time;
    qt_handleMouseEvent(pointer::windowOf(control), control.mapTo(control.window(), at),
                        control.mapToGlobal(QPoint()) + at, isPress ? Qt::LeftButton : Qt::NoButton,
                        Qt::LeftButton, type, {}, time);
}

/// Presses and releases it there, `since` milliseconds after what the mouse did last.
inline void clickBetween(const QWidget &control, QPointF at,
                         int since = QTest::mouseDoubleClickInterval)
{
    const int time = QTest::lastMouseTimestamp + since;
    sendButton(QEvent::MouseButtonPress, control, at, time);
    sendButton(QEvent::MouseButtonRelease, control, at, time + 1);
}

/// A shown window with the colour picture in it.
struct ColourStage
{
    ColourStage()
    {
        window.resize(200, 150);
        list.setChangeAction({&picks, &Lists::receive});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        list.setFocus();
    }

    /// The colour last picked.
    QColor picked() const { return colourOf(list.getRed(), list.getGreen(), list.getBlue()); }
    void key(Qt::Key key, Qt::KeyboardModifiers with = {})
    {
        QTest::keyClick(window.windowHandle(), key, with);
    }

    using Lists = Receiver<pngcolorlist>;

    View window;
    pngcolorlist list{&window, {20, 30, 118, 96}};
    Lists picks;
};
