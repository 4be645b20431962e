#pragma once

#include "outlinerows.h"
#include "support/keyboard.h"
#include "support/receiver.h"

/// A shown window with an outline in it: of the game commands, or of another source. Twelve rows
/// find room.
struct TreeStage
{
    explicit TreeStage(
        const std::shared_ptr<OutlineDataSource> &source = std::make_shared<TreeCtrlDataSource>())
    {
        window.resize(200, 240);
        outline.setObjectName(QStringLiteral("outline"));
        outline.setFrame({10, 10, 175, 220});
        outline.setDataSource(source);
        outline.setShouldSelectItem({&choices, &Choices::receive});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }

    void click(const char *name) const { outlinerows::click(outline, name); }
    void clickArrow(const char *name) const { outlinerows::clickArrow(outline, name); }
    void press(const char *name) const
    {
        pointer::press(pane(), outlinerows::onText(outline, name));
    }
    void release(const char *name) const
    {
        pointer::release(pane(), outlinerows::onText(outline, name));
    }
    /// Where the rows are.
    QWidget &pane() const { return *outline.viewport(); }

    QString selected() const { return outlinerows::selected(outline); }
    QStringList opened() const { return outlinerows::opened(outline); }
    /// The names of the rows of whose selection was told.
    QStringList chosen() const
    {
        QStringList names;
        for (const GameCommandItem *item : choices.senders)
            names.append(item->GetTilteName());
        return names;
    }

    using Choices = Receiver<GameCommandItem>;

    Choices choices;
    View window;
    MyOutlineView outline{&window};
};
