#include "platform/keywindow.h"
#include "support/suite.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>

/// Who has the keyboard, and being told when a window loses it.
class tst_keywindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWatchTellsEveryLoss();
    void aStoppedWatchTellsNothing();
    void aWatchStartedAgainReplacesTheFirst();
    void theCallMayStopTheWatch();
    void aWatchOutlivesItsWindow();
    void aWatchMayEndBeforeItsWindow();
    void aWindowMadeKeyHasTheKeyboard();
    void theKeyboardOfAnotherProgramIsLeftAlone();
    void aWindowOrderedFrontIsShownWithoutAskingForTheKeyboard();
    void theKeyboardWithinAPartIsFound();
    void theKeyboardWithinAPartOfAnotherWindowIsFoundToo();
};

namespace {

/// Two shown windows, the first with the keyboard, and a watch.
struct WindowStage
{
    WindowStage()
    {
        second.show();
        first->show();
        activate(*first);
    }
    static void activate(QWidget &window)
    {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not get the keyboard");
    }
    /// The first window loses the keyboard to the second and gets it back.
    void loseOnce()
    {
        activate(second);
        activate(*first);
    }
    void watch()
    {
        keyWatch->start(first.get(), [this] { ++losses; });
    }

    std::unique_ptr<QWidget> first = std::make_unique<QWidget>();
    QWidget second;
    std::unique_ptr<KeyWindowWatch> keyWatch = std::make_unique<KeyWindowWatch>();
    int losses = 0;
};

} // namespace

void tst_keywindow::aWatchTellsEveryLoss()
{
    WindowStage stage;
    stage.watch();
    QCOMPARE(stage.losses, 0);
    WindowStage::activate(stage.second);
    QCOMPARE(stage.losses, 1);
    WindowStage::activate(*stage.first);
    QCOMPARE(stage.losses, 1);
    stage.loseOnce();
    QCOMPARE(stage.losses, 2);
}

void tst_keywindow::aStoppedWatchTellsNothing()
{
    WindowStage stage;
    stage.keyWatch->stop(); // runs not yet
    stage.watch();
    stage.keyWatch->stop();
    stage.loseOnce();
    QCOMPARE(stage.losses, 0);
    stage.watch();
    stage.loseOnce();
    QCOMPARE(stage.losses, 1);
}

void tst_keywindow::aWatchStartedAgainReplacesTheFirst()
{
    WindowStage stage;
    stage.watch();
    int secondLosses = 0;
    stage.keyWatch->start(&stage.second, [&] { ++secondLosses; });
    stage.loseOnce();
    QCOMPARE(stage.losses, 0);
    QCOMPARE(secondLosses, 1);
    stage.watch();
    stage.loseOnce();
    QCOMPARE(stage.losses, 1);
    QCOMPARE(secondLosses, 1);
}

void tst_keywindow::theCallMayStopTheWatch()
{
    WindowStage stage;
    const auto once = std::make_shared<int>(1);
    stage.keyWatch->start(stage.first.get(), [&stage, once] {
        stage.keyWatch->stop();
        stage.losses += *once; // what the call brought along is still there
    });
    stage.loseOnce();
    stage.loseOnce();
    QCOMPARE(stage.losses, 1);
}

void tst_keywindow::aWatchOutlivesItsWindow()
{
    WindowStage stage;
    stage.watch();
    stage.first.reset();
    const int lossesByTheEnd = stage.losses;
    stage.keyWatch->stop();
    stage.keyWatch->start(&stage.second, [&] { ++stage.losses; });
    QWidget third;
    third.show();
    WindowStage::activate(stage.second);
    WindowStage::activate(third);
    QCOMPARE(stage.losses, lossesByTheEnd + 1);
}

void tst_keywindow::aWatchMayEndBeforeItsWindow()
{
    WindowStage stage;
    stage.watch();
    stage.keyWatch.reset();
    stage.loseOnce();
    QCOMPARE(stage.losses, 0);
}

void tst_keywindow::aWindowMadeKeyHasTheKeyboard()
{
    WindowStage stage;
    makeKeyWindow(stage.second);
    QTRY_VERIFY(stage.second.isActiveWindow());
    QWidget third;
    makeKeyAndOrderFront(third);
    QVERIFY(third.isVisible());
    QTRY_VERIFY(third.isActiveWindow());
}

void tst_keywindow::theKeyboardOfAnotherProgramIsLeftAlone()
{
    WindowStage stage;
    QApplication::setActiveWindow(nullptr);
    QVERIFY(!QApplication::activeWindow());
    makeKeyWindow(stage.second);
    QCoreApplication::processEvents();
    QVERIFY(!stage.second.isActiveWindow());
}

void tst_keywindow::aWindowOrderedFrontIsShownWithoutAskingForTheKeyboard()
{
    QWidget window;
    orderFront(window);
    QVERIFY(window.isVisible());
    QVERIFY(window.testAttribute(Qt::WA_ShowWithoutActivating));
}

void tst_keywindow::theKeyboardWithinAPartIsFound()
{
    WindowStage stage;
    QWidget part(stage.first.get());
    QWidget inner(&part);
    QWidget beside(stage.first.get());
    part.show();
    beside.show();
    QCOMPARE(keyboardWithin(part), nullptr);
    inner.setFocus();
    QCOMPARE(keyboardWithin(part), &inner);
    QCOMPARE(keyboardWithin(inner), &inner);
    QCOMPARE(keyboardWithin(beside), nullptr);
    part.setFocus();
    QCOMPARE(keyboardWithin(part), &part);
    QCOMPARE(keyboardWithin(inner), nullptr);
    beside.setFocus();
    QCOMPARE(keyboardWithin(part), nullptr);
}

/// It would come back there as soon as the window has the keyboard again.
void tst_keywindow::theKeyboardWithinAPartOfAnotherWindowIsFoundToo()
{
    WindowStage stage;
    QWidget part(stage.first.get());
    QWidget inner(&part);
    part.show();
    inner.setFocus();
    WindowStage::activate(stage.second);
    QVERIFY(!inner.hasFocus());
    QCOMPARE(keyboardWithin(part), &inner);
}

KYR_GUI_TEST(tst_keywindow)
#include "tst_keywindow.moc"
