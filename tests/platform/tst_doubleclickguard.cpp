#include "platform/doubleclickguard.h"
#include "support/suite.h"

#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// The second press of a double click, kept from what stands below a window that has closed.
class tst_doubleclickguard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void onlyASecondPressIsKeptBack_data();
    void onlyASecondPressIsKeptBack();
    void aGuardThatIsNotArmedKeepsNothingBack();
    void theDoubleClickThatThePressBecomesIsKeptBackToo();
    void theGuardEndsWithTheSecondPress();
    void theGuardEndsWithAnyOtherPress();
    void aGuardMayBeArmedAgain();
};

namespace {

constexpr quint64 kClickedAt = 5000;
constexpr QPoint kPlace{60, 40};

/// What a pointer does to a window.
struct Press
{
    /// `after` milliseconds after the click, so far from its place.
    explicit Press(int after = 0, QPoint off = {}, Qt::MouseButton pressed = Qt::LeftButton)
        : since(after), way(off), button(pressed)
    {
    }

    int since;
    QPoint way;
    Qt::MouseButton button;
};

/// A shown window that counts the presses that reach it, and a guard.
class GuardStage : public QWidget
{
public:
    GuardStage()
    {
        resize(200, 120);
        show();
        if (!QTest::qWaitForWindowActive(this))
            qFatal("the window does not come up");
        QCursor::setPos(mapToGlobal(kPlace));
    }

    void arm() { guard.arm(kClickedAt); }
    void send(const Press &press, QEvent::Type type = QEvent::MouseButtonPress)
    {
        const QPoint at = kPlace + press.way;
        QMouseEvent event(type, at, mapToGlobal(at), press.button, press.button, {});
        event.setTimestamp(kClickedAt + static_cast<quint64>(press.since));
        QApplication::sendEvent(windowHandle(), &event);
    }

    DoubleClickGuard guard;
    int presses = 0;
    int doubleClicks = 0;

protected:
    void mousePressEvent(QMouseEvent * /*event*/) override { ++presses; }
    void mouseDoubleClickEvent(QMouseEvent * /*event*/) override { ++doubleClicks; }
};

} // namespace

void tst_doubleclickguard::initTestCase()
{
    QApplication::setDoubleClickInterval(400);
    QApplication::setStartDragDistance(10);
}

void tst_doubleclickguard::onlyASecondPressIsKeptBack_data()
{
    QTest::addColumn<Press>("press");
    QTest::addColumn<bool>("reaches");
    QTest::newRow("at once") << Press() << false;
    QTest::newRow("just in time") << Press(399) << false;
    QTest::newRow("too late") << Press(400) << true;
    QTest::newRow("beside it") << Press(100, {-5, 4}) << false;
    QTest::newRow("too far") << Press(100, {-5, 5}) << true;
    QTest::newRow("the right button") << Press(100, {}, Qt::RightButton) << true;
    QTest::newRow("the middle button") << Press(100, {}, Qt::MiddleButton) << true;
}

void tst_doubleclickguard::onlyASecondPressIsKeptBack()
{
    QFETCH(Press, press);
    QFETCH(bool, reaches);
    GuardStage stage;
    stage.arm();
    stage.send(press);
    QCOMPARE(stage.presses, reaches ? 1 : 0);
}

void tst_doubleclickguard::aGuardThatIsNotArmedKeepsNothingBack()
{
    GuardStage stage;
    stage.send(Press(100));
    QCOMPARE(stage.presses, 1);
}

void tst_doubleclickguard::theDoubleClickThatThePressBecomesIsKeptBackToo()
{
    GuardStage stage;
    stage.arm();
    stage.send(Press(100));
    stage.send(Press(100), QEvent::MouseButtonDblClick);
    QCOMPARE(stage.presses + stage.doubleClicks, 0);
}

void tst_doubleclickguard::theGuardEndsWithTheSecondPress()
{
    GuardStage stage;
    stage.arm();
    stage.send(Press(100));
    stage.send(Press(100), QEvent::MouseButtonDblClick);
    stage.send(Press(200));
    QCOMPARE(stage.presses, 1);
}

void tst_doubleclickguard::theGuardEndsWithAnyOtherPress()
{
    GuardStage stage;
    stage.arm();
    stage.send(Press(100, {40, 0}));
    stage.send(Press(200));
    QCOMPARE(stage.presses, 2);
}

void tst_doubleclickguard::aGuardMayBeArmedAgain()
{
    GuardStage stage;
    for (int round = 0; round < 2; ++round) {
        stage.arm();
        stage.send(Press(100));
        stage.send(Press(100), QEvent::MouseButtonDblClick);
    }
    QCOMPARE(stage.presses + stage.doubleClicks, 0);
}

KYR_GUI_TEST(tst_doubleclickguard)
#include "tst_doubleclickguard.moc"
