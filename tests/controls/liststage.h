#pragma once

#include "controls/pngListBox.h"
#include "support/logcapture.h"
#include "support/pointer.h"
#include "support/receiver.h"

/// A shown window with a list of three rows in it, with room for seven.
struct ListStage
{
    ListStage()
    {
        window.resize(200, 200);
        for (const char *text : {"one", "two", "three"})
            list.AddString(QString::fromLatin1(text));
        list.setChangeAction({&changes, &Lists::receive});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }

    void clickAt(int fromTop) { pointer::click(list, {20, fromTop}); }
    void key(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }

    using Lists = Receiver<pngListBox>;

    LogCapture log;
    View window;
    pngListBox list{&window, {20, 30, 97, 140}};
    Lists changes;
};
