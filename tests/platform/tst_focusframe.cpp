#include "platform/focusframe.h"
#include "support/suite.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QWidget>

/// Whether a view shows the frame that says where the keyboard is.
class tst_focusframe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFrameIsForWhoComesByKey_data();
    void theFrameIsForWhoComesByKey();
    void anActiveWindowChangesNothing_data() { unchanged(); }
    void anActiveWindowChangesNothing();
    void aClosedMenuChangesNothing_data() { unchanged(); }
    void aClosedMenuChangesNothing();
    void withoutTheKeyboardThereIsNoFrame();

private:
    static void unchanged();
    static void shownAfter(Qt::FocusReason reason);
};

namespace {

/// A view in a shown window, and another one beside it.
class FramedView : public QWidget
{
public:
    explicit FramedView(QWidget *parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }

    bool showsFrame() const { return m_frame.isShown(*this); }

protected:
    void focusInEvent(QFocusEvent *event) override { m_frame.focusIn(*event); }

private:
    FocusFrame m_frame;
};

struct FrameStage
{
    FrameStage()
    {
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        beside.setFocus();
    }
    /// The view gets the keyboard for that reason.
    void enter(Qt::FocusReason reason)
    {
        beside.setFocus();
        view.setFocus(reason);
    }

    QWidget window;
    FramedView view{&window};
    FramedView beside{&window};
};

} // namespace

void tst_focusframe::theFrameIsForWhoComesByKey_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("shown");
    QTest::newRow("tab") << Qt::TabFocusReason << true;
    QTest::newRow("backtab") << Qt::BacktabFocusReason << true;
    QTest::newRow("a click") << Qt::MouseFocusReason << false;
    QTest::newRow("a key of its own") << Qt::ShortcutFocusReason << false;
    QTest::newRow("a menu bar") << Qt::MenuBarFocusReason << false;
    QTest::newRow("the program") << Qt::OtherFocusReason << false;
}

void tst_focusframe::theFrameIsForWhoComesByKey()
{
    QFETCH(Qt::FocusReason, reason);
    QFETCH(bool, shown);
    FrameStage stage;
    QVERIFY(!stage.view.showsFrame());
    for (const Qt::FocusReason before : {Qt::TabFocusReason, Qt::MouseFocusReason}) {
        stage.enter(before);
        stage.enter(reason);
        QCOMPARE(stage.view.showsFrame(), shown);
    }
}

void tst_focusframe::unchanged()
{
    QTest::addColumn<Qt::FocusReason>("before");
    QTest::addColumn<bool>("shown");
    QTest::newRow("tab") << Qt::TabFocusReason << true;
    QTest::newRow("backtab") << Qt::BacktabFocusReason << true;
    QTest::newRow("a click") << Qt::MouseFocusReason << false;
}

void tst_focusframe::shownAfter(Qt::FocusReason reason)
{
    QFETCH(Qt::FocusReason, before);
    FrameStage stage;
    stage.enter(before);
    stage.enter(reason);
    QTEST(stage.view.showsFrame(), "shown");
}

void tst_focusframe::anActiveWindowChangesNothing()
{
    shownAfter(Qt::ActiveWindowFocusReason);
}

void tst_focusframe::aClosedMenuChangesNothing()
{
    shownAfter(Qt::PopupFocusReason);
}

void tst_focusframe::withoutTheKeyboardThereIsNoFrame()
{
    FrameStage stage;
    stage.enter(Qt::TabFocusReason);
    stage.beside.setFocus(Qt::TabFocusReason);
    QVERIFY(!stage.view.showsFrame());
    QVERIFY(stage.beside.showsFrame());
}

KYR_GUI_TEST(tst_focusframe)
#include "tst_focusframe.moc"
