#pragma once

#include "controls/scrollbars.h"
#include "platform/view.h"

#include <QtWidgets/QScrollArea>

/// An area that scrolls up and down only, with the skin's scroll bar, which shows when there is
/// something to scroll. The tab key goes past what it shows without scrolling.
class SkinScrollArea : public Framed<QScrollArea>
{
public:
    explicit SkinScrollArea(QWidget *parent, int barWidth = kScrollBarWidth);

protected:
    bool focusNextPrevChild(bool next) override;
};
