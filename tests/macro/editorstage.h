#pragma once

#include "dialogs/dialogwindow.h"
#include "macro/MacroView.h"
#include "model/fixedtext.h"
#include "model/settings.h"
#include "support/dialogs.h"
#include "support/focus.h"
#include "support/keyboard.h"
#include "support/keystroke.h"
#include "support/logcapture.h"
#include "support/receiver.h"

#include <QtGui/QClipboard>

#include <algorithm>
#include <cstring>

/// The radio buttons, in the order of MacroMode.
inline constexpr const char *kModeButtons[] = {"ButtonCopy", "ButtonText", "ButtonRecordDelay",
                                               "ButtonNoDelay"};

/// A macro with that name and nothing else, of the mode that shows events.
inline MacroInfo namedMacro(std::string_view name)
{
    MacroInfo macro{};
    SetText(macro.MACRO_NAME, name);
    macro.MODE = kModeRecordDelay;
    return macro;
}

/// Fills the front of a list of events.
inline void putEvents(std::span<KeymapEvent> slots, std::initializer_list<KeymapEvent> events)
{
    std::ranges::copy(events, slots.begin());
}

/// The first `count` slots as "code/kind/delay ...".
inline QString listed(std::span<const KeymapEvent> slots, std::size_t count)
{
    QStringList events;
    for (const KeymapEvent &event : slots.first(count))
        events << QStringLiteral("%1/%2/%3").arg(event.keycode).arg(event.kind).arg(event.delay);
    return events.join(u' ');
}

inline QString textIn(std::span<const char> field)
{
    const std::string_view text = GetText(field);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString nameOf(const MacroInfo &macro)
{
    return textIn(macro.MACRO_NAME);
}

inline QString pastedTextOf(const MacroInfo &macro)
{
    return textIn(macro.COPY_PASTER);
}

inline bool isSameMacro(const MacroInfo &left, const MacroInfo &right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

/// Whether none of a record's profiles, its macros included, has changed.
inline bool isUnchanged(const ConfigData &before)
{
    return std::memcmp(&before, &m_Config, sizeof before) == 0;
}

/// Who is told how an editor ended.
class EditorTarget : public QObject
{
public:
    void MacroOKAction(MacroView *sender) { come("OK", sender); }
    void MacroCancelAction(MacroView *sender) { come("Cancel", sender); }

    QStringList came;
    MacroView *editor = nullptr; ///< who told it last
    std::function<void()> during;

private:
    void come(const char *how, MacroView *sender)
    {
        came << QString::fromLatin1(how);
        editor = sender;
        if (during)
            during();
    }
};

/// A macro editor in its window over a shown one, with the keyboard, on an empty record; not run
/// modally, unless by run().
struct EditorStage
{
    /// For a new macro.
    EditorStage()
    {
        m_Config = {};
        owner.show();
        view = makeDialogAt<MacroView>(owner);
        window = dynamic_cast<custumwindow *>(view->window());
        view->setTarget(&target);
        window->show();
        giveKeyboardTo(*window);
    }
    /// For a macro of the current profile, its first one.
    explicit EditorStage(const MacroInfo &macro) : EditorStage()
    {
        m_Config.PROFILE[0].MACRO[0] = macro;
        view->setcurrentMacroID(0);
    }

    template <class Control = QWidget>
    Control &find(const char *name) const
    {
        auto *const found = view->template findChild<Control *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no control %s", name);
        return *found;
    }
    HoverButton &button(const char *name) const { return find<HoverButton>(name); }
    TextField &name() const { return find<TextField>("pTextfieldMacroName"); }
    TextField &loop() const { return find<TextField>("pLoopTextfield"); }
    TextArea &text() const { return find<TextArea>("pCopyTextfield"); }
    MacroDisplay &display(const char *name) const { return find<MacroDisplay>(name); }
    MacroDisplay &events() const { return display("pMacroDisplayView"); }

    /// The radio buttons that are on.
    QStringList radiosOn() const
    {
        QStringList names;
        for (const char *name : kModeButtons) {
            if (button(name).isChecked())
                names << QString::fromLatin1(name);
        }
        return names;
    }
    void click(const char *name) const { pointer::click(find(name)); }
    /// A press on the dialog itself, clear of all controls.
    void clickBackground() const { pointer::click(*view, {5, 200}); }

    /// Puts a text into a field in the place of what is there, by way of the clipboard.
    void paste(QWidget &field, const QString &text) const
    {
        QGuiApplication::clipboard()->setText(text);
        pointer::click(field);
        pressWithControl(Qt::Key_A);
        pressWithControl(Qt::Key_V);
    }
    /// Types a text into a field in the place of what is there.
    void type(QWidget &field, const char *text) const
    {
        pointer::click(field);
        pressWithControl(Qt::Key_A);
        keyboard::press(Qt::Key_Delete);
        for (const char *key = text; *key; ++key)
            QTest::keyClick(window->windowHandle(), *key);
    }
    void pressWithControl(Qt::Key key) const
    {
        QTest::keyClick(window->windowHandle(), key, Qt::ControlModifier);
    }

    /// What OK makes of the macro that was opened.
    const MacroInfo &confirmed() const
    {
        click("ButtonOK");
        return CurrentProfile().MACRO[0];
    }

    static void giveKeyboardTo(QWidget &window)
    {
        window.activateWindow();
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }))
            qFatal("the window does not get the keyboard");
    }

    /// Runs the editor modally and acts once it has the keyboard. Returns with the run.
    void run(const DialogVisitor::Visit &visit)
    {
        // From where it is opened: a run shows the window anew.
        giveKeyboardTo(owner);
        const DialogVisitor visitor(visit);
        view->runModal();
    }

    LogCapture log;
    EditorTarget target;
    custumwindow owner{{40, 50, 600, 550}, nullptr};
    QPointer<MacroView> view;
    QPointer<custumwindow> window;
};
