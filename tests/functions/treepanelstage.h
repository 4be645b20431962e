#pragma once

#include "functions/rightbarTreeView.h"
#include "outlinerows.h"
#include "support/logcapture.h"
#include "support/receiver.h"

/// Keeps the codes that are told to it.
class CodeKeeper : public QObject
{
public:
    void receive(FunctionCode code) { codes.push_back(code); }

    std::vector<FunctionCode> codes;
};

/// The panel of game commands alone in a black window, collapsed, as high as it is when expanded.
struct TreePanelStage
{
    TreePanelStage()
    {
        window.resize(177, 250);
        window.setPalette(Qt::black);
        panel.setTreeSelChangeNoticeAction({&told, &CodeKeeper::receive});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }

    HoverButton &toggle() const { return found<HoverButton>("btnExpand"); }
    MyOutlineView &outline() const { return found<MyOutlineView>("pOutlineView"); }
    /// A click that far below the panel's top.
    void clickAtDepth(int depth, int x = 60) const { pointer::click(panel, {x, depth}); }
    /// Expands the panel, and a category in it by its arrow.
    void openCategory(const char *name)
    {
        panel.SetExpanded(true);
        outlinerows::clickArrow(outline(), name);
    }

    using Notices = Receiver<CollapsiblePanel>;

    LogCapture log;
    Notices notices;
    CodeKeeper told;
    View window;
    rightbarTreeView panel{&window, {0, 0, 177, 250}, {&notices, &Notices::receive}};

private:
    template <class Wanted>
    Wanted &found(const char *name) const
    {
        auto *const control = panel.findChild<Wanted *>(QString::fromLatin1(name));
        if (!control)
            qFatal("no %s in the panel", name);
        return *control;
    }
};
