#pragma once

#include "controls/popuplist.h"
#include "support/logcapture.h"
#include "support/pointer.h"
#include "support/popups.h"

#include <array>
#include <memory>

/// A shown window with a button, and the list that a click on it opens.
class PopupStage : public QObject
{
public:
    static constexpr std::array kTexts{"one", "two", "three"};
    static constexpr int kTag = 77;
    static constexpr int kSelected = 1;
    static constexpr int kRowHeight = 20;

    PopupStage()
    {
        button->setAction({this, &PopupStage::click});
        popup->attachTo(*button);
        window->show();
        activate(*window);
    }
    /// The window goes while what its lists may tell still stands.
    ~PopupStage() override { window.reset(); }
    PopupStage(const PopupStage &) = delete;
    PopupStage &operator=(const PopupStage &) = delete;

    /// The click's way: nothing opens where the list says so.
    void click(HoverButton * /*sender*/)
    {
        if (popup->mayOpen())
            open();
    }
    void open(int selected = kSelected)
    {
        popup->open(*button,
                    {.title = "Numbers",
                     .tag = kTag,
                     .texts = kTexts,
                     .selected = selected,
                     .changeAction = {this, &PopupStage::choose}},
                    {this, &PopupStage::close});
    }
    /// The list that has just been opened, once it has the keyboard.
    pngListBox &opened()
    {
        open();
        return list();
    }
    static pngListBox &list()
    {
        if (windows().empty())
            qFatal("the list does not open");
        waitForKeyboard(*windows().back());
        return *windows().back()->findChild<pngListBox *>(QStringLiteral("pListboxView"));
    }

    void choose(pngListBox *sender)
    {
        chosenRow = sender->getcursel();
        popup->chosen();
        closingsAtChoice = closings;
    }
    void close(PopupContent * /*sender*/)
    {
        ++closings;
        if (popup && window)
            popup->close(*keyWindow);
    }

    /// A window takes the keyboard, from a list too.
    static void activate(QWidget &taker)
    {
        taker.activateWindow();
        waitForKeyboard(taker);
    }
    void activate() const { activate(*window); }

    /// What is open, of all stages. What is closed may live a moment longer.
    static std::vector<QWidget *> windows() { return openLists(); }
    static std::size_t openCount() { return windows().size(); }

    /// The toolkit calls a window active too while one that belongs to it has the keyboard.
    static bool hasKeyboard(const QWidget &window)
    {
        return QApplication::activeWindow() == &window;
    }

    LogCapture log;
    std::unique_ptr<custumwindow> window =
        std::make_unique<custumwindow>(UpRect{100, 400, 300, 200}, nullptr);
    HoverButton *button = new HoverButton(window.get(), {20, 150, 97, 27});
    std::unique_ptr<PopupList> popup = std::make_unique<PopupList>();
    QWidget *keyWindow = window.get(); ///< to which close() gives the keyboard
    int chosenRow = -1;
    int closings = 0;
    int closingsAtChoice = -1;

private:
    static void waitForKeyboard(const QWidget &window)
    {
        if (!QTest::qWaitFor([&window] { return hasKeyboard(window); }))
            qFatal("the window does not get the keyboard");
    }
};

/// A click that leaves what it has put off undone: sent directly, while clicks on a window let the
/// event loop run.
inline void clickRowDirectly(pngListBox &list, int row)
{
    QTest::mouseClick(&list, Qt::LeftButton, {}, rowPoint(row));
}

/// Whether the keyboard stays where it is once nothing more is to be done.
inline bool keepsKeyboard(const QWidget &window)
{
    QCoreApplication::processEvents();
    return PopupStage::hasKeyboard(window);
}
