#pragma once

#include "dialogs/dialogwindow.h"
#include "mainview/fullsettings.h"
#include "mainview/quickliststage.h"
#include "model/fixedtext.h"
#include "panels/charInfoView.h"
#include "support/keyboard.h"
#include "support/keystroke.h"

#include <QtGui/QClipboard>

/// A button of the character dialog as it is to be.
struct KnownCharInfoButton
{
    const char *name = "";
    UpRect place;
    int tag = 0;
    const char *caption = "";
};

inline constexpr KnownCharInfoButton kCharInfoButtons[] = {
    {"ButtonClose", {423, 187, 25, 25}, 0x1000, ""},
    {"ButtonOK", {147, 7, 80, 35}, 0x1001, "OK"},
    {"ButtonCancel", {226, 7, 80, 35}, 0x1002, "Cancel"},
    {"ButtonRegion", {294, 115, 150, 29}, 0x1003, "US&Oceanic"},
};

inline constexpr const char *kRegionCaptions[] = {"US&Oceanic", "Europe", "Korea", "Taiwan",
                                                  "China"};

/// Who is told how a character dialog ended.
class CharInfoTarget : public QObject
{
public:
    void CharInfoAction(std::int32_t code)
    {
        came.push_back(code);
        if (during)
            during();
    }

    std::vector<std::int32_t> came;
    std::function<void()> during;
};

/// The character dialog in its window over a shown one, with the keyboard. Every profile has a
/// character; the fourth one is current.
struct CharInfoStage
{
    CharInfoStage()
    {
        m_Config = {};
        m_Config.PROFILE_ID = 3;
        for (ProfileInfo &profile : m_Config.PROFILE) {
            profile.CHARACTER_INFO.REGION = 4;
            SetText(profile.CHARACTER_INFO.SERVER, "Stored Realm");
            SetText(profile.CHARACTER_INFO.NAME, "Stored Name");
            SetText(profile.CHARACTER_INFO.CLASS, "Mage");
        }
        before = copyOf();
        owner->show();
        view = makeDialogAt<charInfoView>(*owner);
        window = static_cast<custumwindow *>(view->window());
        view->setcharAction({&target, &CharInfoTarget::CharInfoAction});
        window->setCloseRequest({view.data(), &charInfoView::closeRequested});
        window->show();
        giveKeyboardTo(*window);
    }
    /// The owner takes the dialog along while what that may tell still stands.
    ~CharInfoStage() { owner.reset(); }
    CharInfoStage(const CharInfoStage &) = delete;
    CharInfoStage &operator=(const CharInfoStage &) = delete;

    template <class Control = QWidget>
    Control &find(const char *name) const
    {
        auto *const found = view->findChild<Control *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no control %s", name);
        return *found;
    }
    HoverButton &button(const char *name) const { return find<HoverButton>(name); }
    HoverButton &region() const { return button("ButtonRegion"); }
    TextField &realm() const { return find<TextField>("pTextfieldRealm"); }
    TextField &name() const { return find<TextField>("pTextfieldName"); }
    void click(const char *name) const { pointer::click(find(name)); }

    void type(const QWidget &field, const char *text) const
    {
        pointer::click(field);
        for (const char *key = text; *key; ++key)
            QTest::keyClick(window->windowHandle(), *key);
    }
    void fill() const
    {
        type(realm(), "Realm");
        type(name(), "Name");
    }
    void paste(const QWidget &field, const QString &text) const
    {
        QGuiApplication::clipboard()->setText(text);
        pointer::click(field);
        QTest::keyClick(window->windowHandle(), Qt::Key_V, Qt::ControlModifier);
    }

    /// The object name of the control that has the keyboard.
    QString focused() const { return window->focusWidget()->objectName(); }
    bool stays() const { return window && window->isVisible() && target.came.empty(); }
    bool isUnchanged() const { return isRecord(*before); }

    /// The list of regions, opened by a click.
    pngListBox &openList() const
    {
        pointer::click(region());
        return openedList();
    }

    bool clickOpens() const
    {
        pointer::click(region());
        return openLists().size() == 1;
    }

    static void giveKeyboardTo(QWidget &taker)
    {
        taker.activateWindow();
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &taker; }))
            qFatal("the window does not get the keyboard");
    }

    LogCapture log;
    CharInfoTarget target;
    Record before;
    std::unique_ptr<custumwindow> owner =
        std::make_unique<custumwindow>(UpRect{40, 250, 500, 400}, nullptr);
    QPointer<charInfoView> view;
    QPointer<custumwindow> window;
};
