#pragma once

#include "controls/pngProgressBar.h"
#include "support/pointer.h"
#include "support/receiver.h"

using Changes = Receiver<pngProgressBar>;

/// A shown window with one bar in it.
struct BarStage
{
    explicit BarStage(QSize size) : bar(&window, {30, 40, size.width(), size.height()})
    {
        window.resize(size + QSize(80, 80));
        bar.setChangeAction({&changes, &Changes::receive});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }

    View window;
    pngProgressBar bar;
    Changes changes;
};
