#pragma once

#include "platform/desktoppanels.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <deque>
#include <functional>
#include <memory>

using Path = std::optional<std::string>;

/// The user's home folder, made anew for each class.
inline std::unique_ptr<QTemporaryDir> home;

inline QDir documents()
{
    return QDir(home->filePath(QStringLiteral("Documents")));
}

inline std::string documentPath(const QString &name)
{
    return documents().filePath(name).toStdString();
}

inline void putFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("old") != 3)
        qFatal("cannot write the test's file");
}

/// The user: has an answer for each dialog that gets the keyboard, in turn. A dialog without an
/// answer is closed, and counts.
class User : public QObject
{
public:
    using Answer = std::function<void(QDialog &dialog)>;

    User() { qApp->installEventFilter(this); }

    User &then(Answer answer)
    {
        m_answers.push_back(std::move(answer));
        return *this;
    }
    bool isDone() const { return m_answers.empty() && m_surplus == 0; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *const dialog = qobject_cast<QDialog *>(watched);
        if (!dialog)
            return false;
        // A desktop gives the keyboard back by itself.
        if (event->type() == QEvent::Hide && dialog->parentWidget())
            dialog->parentWidget()->activateWindow();
        if (event->type() == QEvent::WindowActivate) {
            const auto look = [this, shown = QPointer(dialog)] { answer(shown); };
            QMetaObject::invokeMethod(this, look, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void answer(const QPointer<QDialog> &dialog)
    {
        if (!dialog || !dialog->isActiveWindow())
            return;
        const bool isExpected = !m_answers.empty();
        if (isExpected) {
            const Answer next = std::move(m_answers.front());
            m_answers.pop_front();
            next(*dialog);
        }
        m_surplus += !isExpected;
        // A panel that nobody answers would hold up the test.
        if (dialog && (!isExpected || QTest::currentTestFailed()))
            dialog->reject();
    }

    std::deque<Answer> m_answers;
    int m_surplus = 0;
};

inline void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

inline void cancel(QDialog & /*dialog*/)
{
    press(Qt::Key_Escape);
}

inline void confirm(QDialog & /*dialog*/)
{
    press(Qt::Key_Return);
}

/// Types a name over the one offered and confirms.
inline User::Answer type(const QString &name)
{
    return [name](QDialog &dialog) {
        auto *const edit = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(edit && edit->window() == &dialog);
        QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
        for (const QChar letter : name)
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(letter), {});
        press(Qt::Key_Return);
    };
}

inline User::Answer click(QMessageBox::StandardButton button)
{
    return [button](QDialog &dialog) {
        auto *const box = qobject_cast<QMessageBox *>(&dialog);
        QVERIFY(box && box->button(button));
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    };
}

inline QFileDialog &panel(QDialog &dialog)
{
    auto *const found = qobject_cast<QFileDialog *>(&dialog);
    if (!found)
        qFatal("the dialog is no file panel");
    return *found;
}

inline QString nameIn(QDialog &dialog)
{
    return panel(dialog).findChild<QLineEdit *>()->text();
}

/// A window with the keyboard, the panels, and a user.
struct PanelStage
{
    PanelStage()
    {
        window->show();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window does not come up");
    }
    Path open() { return panels.openPanel("Import Profile", "XML"); }
    Path save(const char *name = "Profile0")
    {
        return panels.savePanel("Export Profile", name, "XML");
    }
    Path ask(bool isSave) { return isSave ? save() : open(); }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    DesktopPanels panels;
    User user;
};

inline void addBothPanels()
{
    QTest::addColumn<bool>("isSave");
    QTest::newRow("open") << false;
    QTest::newRow("save") << true;
}

/// What the tests of the panels share: a user's home with an empty folder for documents.
class PanelTest : public QObject
{
    Q_OBJECT

public:
    static void initMain()
    {
        // The toolkit keeps the looks of its panel in the user's configuration.
        home = std::make_unique<QTemporaryDir>();
        qputenv("HOME", home->path().toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", home->filePath(QStringLiteral("config")).toLocal8Bit());
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

private Q_SLOTS:
    void init()
    {
        documents().removeRecursively();
        QVERIFY(QDir().mkpath(documents().path()));
    }
    void cleanupTestCase() { home.reset(); }
};
