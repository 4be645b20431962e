#pragma once

#include "controls/contextmenu.h"
#include "controls/HoverButton.h"
#include "support/pointer.h"

#include <QtTest/QTest>

/// The target of one item.
class Choice : public QObject
{
public:
    void choose()
    {
        ++count;
        menuOpen = QApplication::activePopupWidget() || menu;
    }

    int count = 0;
    bool menuOpen = false; ///< at the last choice
    QPointer<ContextMenu> menu;
};

/// A shown window with a button that opens a menu.
class MenuStage : public QObject
{
public:
    MenuStage()
    {
        window.resize(300, 200);
        button->setAction({this, &MenuStage::open});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        away();
    }

    void open(HoverButton *control)
    {
        ++openings;
        menu = ContextMenu::popUp(items, *control);
        first.menu = second.menu = inner.menu = menu;
    }

    void away() { pointer::move(window, {1, 1}); }
    void openByPointer()
    {
        away();
        pointer::move(*button, button->rect().center());
        pointer::click(*button);
    }
    void openByKey()
    {
        key(Qt::Key_Tab);
        key(Qt::Key_Space);
    }
    void key(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }

    QAction *item(const char *text) const
    {
        return menu->findChild<QAction *>(QString::fromLatin1(text));
    }
    ContextMenu *submenu() const
    {
        return dynamic_cast<ContextMenu *>(menu->findChild<QMenu *>(QStringLiteral("Inner")));
    }
    QRect row(const char *text) const { return menu->actionGeometry(item(text)); }
    void clickItem(QMenu &in, const char *text) const
    {
        const QPoint at = in.actionGeometry(item(text)).center();
        pointer::move(in, at);
        pointer::click(in, at);
    }

    Choice first;
    Choice second;
    Choice inner;
    std::vector<MenuItem> items{
        {QStringLiteral("First"), {&first, &Choice::choose}, {}, false},
        {QStringLiteral("Second"), {&second, &Choice::choose}, {}, true},
        {QStringLiteral("Inner"),
         {},
         {{QStringLiteral("Innermost"), {&inner, &Choice::choose}, {}, false},
          {QStringLiteral("Other"), {}, {}, true}},
         true},
    };
    int openings = 0;
    View window;
    QPointer<HoverButton> button = new HoverButton(&window, {20, 150, 97, 27});
    QPointer<ContextMenu> menu;
};

/// The name of the item that is highlighted; empty where none is.
inline QString activeName(const QMenu &menu)
{
    return menu.activeAction() ? menu.activeAction()->objectName() : QString();
}
