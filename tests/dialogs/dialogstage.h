#pragma once

#include "controls/custumwindow.h"
#include "dialogs/AboutView.h"
#include "dialogs/WarnOneView.h"
#include "dialogs/WarnTwoView.h"
#include "support/pictures.h"
#include "support/pointer.h"

#include <QtCore/QThread>

#include <functional>

/// What a person does with a dialog.
using Act = std::function<void()>;

/// A message dialog in its window, as the program makes them, over a shown window; not run yet.
template <class Dialog>
struct DialogStage
{
    DialogStage()
    {
        owner.show();
        waitUntilActive(owner);
        window->setContentView(view);
        window->setBCanDragWindow(true);
        window->centerOver(owner);
    }

    /// A dialog counts as active as soon as its owner is: what matters is who gets the keys.
    static void waitUntilActive(QWidget &shown)
    {
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &shown; }))
            qFatal("the window does not get the keyboard");
    }
    /// Makes a call from the event loop.
    static void later(const Act &call)
    {
        QMetaObject::invokeMethod(qApp, call, Qt::QueuedConnection);
    }

    /// Runs the dialog and acts once it has the keyboard. Returns with the run, which ends when the
    /// test has failed already.
    void run(const Act &act)
    {
        later([this, act] {
            waitUntilActive(*window);
            act();
            if (QTest::currentTestFailed())
                delete window;
        });
        view->runModal();
    }

    HoverButton &button(const char *name) const
    {
        auto *const found = view->template findChild<HoverButton *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no button %s", name);
        return *found;
    }
    void click(const char *name) const { pointer::click(button(name)); }
    void key(Qt::Key key) const { QTest::keyClick(window->windowHandle(), key); }
    void closeByTheDesktop() const { window->windowHandle()->close(); }
    /// The object name of the control that has the keyboard.
    QString focused() const { return window->focusWidget()->objectName(); }

    custumwindow owner{{0, 0, 600, 500}, nullptr};
    QPointer<custumwindow> window{
        new custumwindow({0, 0, Dialog::kWidth, Dialog::kHeight}, &owner, Qt::Dialog)};
    QPointer<Dialog> view{new Dialog(window)};
};

/// A target for a question's actions: keeps which came, and how things stood then.
class Answers : public QObject
{
public:
    explicit Answers(DialogStage<WarnTwoView> &stage) : m_stage(stage)
    {
        stage.view->setYESAction({this, &Answers::yes});
        stage.view->setNOAction({this, &Answers::no});
    }
    void yes() { come(QStringLiteral("YES")); }
    void no() { come(QStringLiteral("NO")); }

    QStringList came;
    bool inTheRun = false;   ///< an action came while the modal run was not over
    bool afterClose = false; ///< an action came when the window was closed already
    Act during;              ///< done in the action, if set

private:
    void come(const QString &name)
    {
        came << name;
        inTheRun |= QThread::currentThread()->loopLevel() > m_level;
        afterClose |= !m_stage.window || !m_stage.window->isVisible();
        if (during)
            during();
    }

    DialogStage<WarnTwoView> &m_stage;
    int m_level = QThread::currentThread()->loopLevel();
};
