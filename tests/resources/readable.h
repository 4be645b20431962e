#pragma once

#include "controls/HoverButton.h"
#include "support/pointer.h"
#include "support/textcontrast.h"

/// Holds that everything written in a widget can be read, these texts among it.
inline void isReadable(QWidget &shown, const QStringList &expected)
{
    const TextRecorder recorder(shown);
    const QString texts = textsOf(recorder);
    for (const QString &text : expected)
        QVERIFY2(texts.contains(text), qPrintable(text + QLatin1String(" is not in ") + texts));
    const QStringList faint = faintTexts(recorder);
    QVERIFY2(faint.isEmpty(), qPrintable(faint.join(u'\n')));
}

/// The same of what is written on the enabled buttons of a window, below the pointer, held down
/// and, where they can be, on. Gives how many there are.
inline int areReadableInEachState(const QWidget &window)
{
    int count = 0;
    for (QWidget *const widget : window.findChildren<QWidget *>()) {
        auto *const button = dynamic_cast<HoverButton *>(widget);
        if (!button || button->captionText().isEmpty() || !button->isVisible() ||
            !button->isEnabled())
            continue;
        const QString beginning = button->captionText().trimmed().left(3);
        pointer::move(*button, button->rect().center());
        isReadable(*button, {beginning});
        button->setDown(true);
        isReadable(*button, {beginning});
        button->setDown(false);
        ++count;
    }
    return count;
}
