#pragma once

#include "controls/custumwindow.h"
#include "support/pointer.h"

#include <QtWidgets/QAbstractButton>

#include <functional>
#include <utility>

/// A message dialog on the screen, as a person deals with it.
class OpenDialog
{
public:
    explicit OpenDialog(QWidget &window) : m_window(window) {}

    QWidget &window() const { return m_window; }
    QString caption() const { return m_window.windowTitle(); }
    QString text() const { return m_window.accessibleDescription(); }

    QAbstractButton &button(const char *name) const
    {
        auto *const found = m_window.findChild<QAbstractButton *>(QString::fromLatin1(name));
        if (!found)
            qFatal("no button %s in the dialog", name);
        return *found;
    }
    void click(const char *name) const { pointer::click(button(name)); }
    void key(Qt::Key key) const { QTest::keyClick(m_window.windowHandle(), key); }
    void closeByTheDesktop() const { m_window.windowHandle()->close(); }

private:
    QWidget &m_window;
};

/// While it lives, does something with every dialog that comes up, once that has the keyboard. A
/// dialog runs within the click that opens it, so there is no other place to act from. One that is
/// left open by a test that has failed is closed.
class DialogVisitor : public QObject
{
public:
    using Visit = std::function<void(const OpenDialog &dialog)>;

    explicit DialogVisitor(Visit visit) : m_visit(std::move(visit))
    {
        qApp->installEventFilter(this);
    }

    /// How many dialogs have come up.
    int count() const { return m_count; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Show)
            return false;
        const QPointer<QWidget> window(dynamic_cast<custumwindow *>(watched));
        if (window && window->isModal())
            QMetaObject::invokeMethod(
                this, [this, window] { visit(window); }, Qt::QueuedConnection);
        return false;
    }

private:
    void visit(const QPointer<QWidget> &window)
    {
        if (!QTest::qWaitFor([&] { return window && QApplication::activeWindow() == window; }))
            qFatal("the dialog does not get the keyboard");
        ++m_count;
        m_visit(OpenDialog(*window));
        if (window && QTest::currentTestFailed())
            window->hide();
    }

    Visit m_visit;
    int m_count = 0;
};
