#include "controls/buttonstage.h"
#include "support/suite.h"

/// The skinned button: what clicks and keys do.
class tst_hoverbuttonclicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSendsTheActionWithTheButton();
    void aPressReleasedElsewhereSendsNothing();
    void aRightPressSendsTheRightAction();
    void aRightClickDoesNotPressTheButton();
    void aDisabledButtonIgnoresClicks();
    void aDisabledButtonIgnoresRightClicks();
    void aPressNeverReachesTheWindowBehind_data();
    void aPressNeverReachesTheWindowBehind();
    void aRightActionGivenWhileDisabledIsNotKept();
    void aCheckableButtonStaysOn();
    void theTabKeyReachesTheButtonAndSpaceClicksIt();
    void theMenuKeySendsTheRightAction();
    void aClickLeavesTheKeyboardWhereItIs();
    void aClickMayDeleteTheButton();
    void aRightPressMayDeleteTheButton();
};

namespace {

/// The window behind the button, to see what reaches it.
class PressCounter : public QObject
{
public:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        presses += event->type() == QEvent::MouseButtonPress ? 1 : 0;
        return false;
    }
    int presses = 0;
};

/// Deletes the button that sends.
class Deleter : public QObject
{
public:
    void receive(HoverButton *button)
    {
        delete button;
        ++deleted;
    }
    int deleted = 0;
};

} // namespace

void tst_hoverbuttonclicks::aClickSendsTheActionWithTheButton()
{
    ButtonStage stage;
    stage.press();
    QCOMPARE(stage.clicks.count(), std::size_t{0});
    pointer::release(stage.button, stage.button.rect().center());
    QCOMPARE(stage.clicks.senders, std::vector{&stage.button});
    QCOMPARE(stage.rightClicks.count(), std::size_t{0});
}

void tst_hoverbuttonclicks::aPressReleasedElsewhereSendsNothing()
{
    ButtonStage stage;
    stage.press();
    pointer::move(stage.window, {1, 1});
    pointer::release(stage.window, {1, 1});
    QCOMPARE(stage.clicks.count(), std::size_t{0});
}

void tst_hoverbuttonclicks::aRightPressSendsTheRightAction()
{
    ButtonStage stage;
    pointer::press(stage.button, stage.button.rect().center(), Qt::RightButton);
    QCOMPARE(stage.rightClicks.senders, std::vector{&stage.button});
    pointer::release(stage.button, stage.button.rect().center(), Qt::RightButton);
    QCOMPARE(stage.rightClicks.count(), std::size_t{1});
}

void tst_hoverbuttonclicks::aRightClickDoesNotPressTheButton()
{
    ButtonStage stage;
    stage.button.setCheckable(true);
    pointer::press(stage.button, stage.button.rect().center(), Qt::RightButton);
    QVERIFY(!stage.button.isDown());
    pointer::release(stage.button, stage.button.rect().center(), Qt::RightButton);
    QVERIFY(!stage.button.isChecked());
    QCOMPARE(stage.clicks.count(), std::size_t{0});
}

void tst_hoverbuttonclicks::aDisabledButtonIgnoresClicks()
{
    ButtonStage stage;
    stage.button.setDisable(true);
    pointer::click(stage.button);
    QCOMPARE(stage.clicks.count(), std::size_t{0});
    stage.button.setDisable(false);
    pointer::click(stage.button);
    QCOMPARE(stage.clicks.count(), std::size_t{1});
}

void tst_hoverbuttonclicks::aDisabledButtonIgnoresRightClicks()
{
    ButtonStage stage;
    stage.button.setDisable(true);
    pointer::rightClick(stage.button);
    QCOMPARE(stage.rightClicks.count(), std::size_t{0});
    stage.button.setDisable(false);
    pointer::rightClick(stage.button);
    QCOMPARE(stage.rightClicks.count(), std::size_t{1});
}

void tst_hoverbuttonclicks::aPressNeverReachesTheWindowBehind_data()
{
    QTest::addColumn<bool>("disabled");
    QTest::addColumn<Qt::MouseButton>("mouseButton");
    QTest::newRow("left") << false << Qt::LeftButton;
    QTest::newRow("right") << false << Qt::RightButton;
    QTest::newRow("left, disabled") << true << Qt::LeftButton;
    QTest::newRow("right, disabled") << true << Qt::RightButton;
}

void tst_hoverbuttonclicks::aPressNeverReachesTheWindowBehind()
{
    QFETCH(bool, disabled);
    QFETCH(Qt::MouseButton, mouseButton);
    ButtonStage stage;
    stage.button.setDisable(disabled);
    PressCounter counter;
    stage.window.installEventFilter(&counter);
    pointer::click(stage.button, mouseButton);
    QCOMPARE(counter.presses, 0);
    pointer::click(stage.window, {1, 1}, mouseButton);
    QCOMPARE(counter.presses, 1);
}

void tst_hoverbuttonclicks::aRightActionGivenWhileDisabledIsNotKept()
{
    ButtonStage stage;
    stage.button.setDisable(true);
    stage.button.setRightAction({&stage.clicks, &ButtonStage::Clicks::receive});
    stage.button.setDisable(false);
    pointer::rightClick(stage.button);
    QCOMPARE(stage.rightClicks.count(), std::size_t{1});
    QCOMPARE(stage.clicks.count(), std::size_t{0});

    stage.button.setRightAction({&stage.clicks, &ButtonStage::Clicks::receive});
    pointer::rightClick(stage.button);
    QCOMPARE(stage.rightClicks.count(), std::size_t{1});
    QCOMPARE(stage.clicks.count(), std::size_t{1});
}

void tst_hoverbuttonclicks::aCheckableButtonStaysOn()
{
    ButtonStage stage;
    stage.button.setCheckable(true);
    pointer::click(stage.button);
    QVERIFY(stage.button.isChecked());
    pointer::click(stage.button);
    QVERIFY(!stage.button.isChecked());
    QCOMPARE(stage.clicks.count(), std::size_t{2});
}

void tst_hoverbuttonclicks::theTabKeyReachesTheButtonAndSpaceClicksIt()
{
    ButtonStage stage;
    stage.window.setFocusPolicy(Qt::StrongFocus);
    stage.window.setFocus();
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Tab);
    stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::black));
    QVERIFY(stage.button.hasFocus());
    QCOMPARE(shownAt(stage.button, {0, 0}), QColor(255, 180, 0)); // the mark of the keyboard
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Space);
    QCOMPARE(stage.clicks.senders, std::vector{&stage.button});
}

void tst_hoverbuttonclicks::theMenuKeySendsTheRightAction()
{
    ButtonStage stage;
    stage.button.setFocus();
    stage.menuKey();
    QCOMPARE(stage.rightClicks.senders, std::vector{&stage.button});
    stage.button.setDisable(true);
    stage.menuKey();
    QCOMPARE(stage.rightClicks.count(), std::size_t{1});
}

void tst_hoverbuttonclicks::aClickLeavesTheKeyboardWhereItIs()
{
    ButtonStage stage;
    stage.window.setFocusPolicy(Qt::StrongFocus);
    stage.window.setFocus();
    pointer::click(stage.button);
    QVERIFY(stage.window.hasFocus());
}

void tst_hoverbuttonclicks::aClickMayDeleteTheButton()
{
    ButtonStage stage;
    Deleter deleter;
    auto *const button = new HoverButton(&stage.window, {20, 70, 97, 27});
    button->setAction({&deleter, &Deleter::receive});
    button->show();
    pointer::click(stage.window, button->geometry().center());
    QCOMPARE(deleter.deleted, 1);
}

void tst_hoverbuttonclicks::aRightPressMayDeleteTheButton()
{
    ButtonStage stage;
    Deleter deleter;
    auto *const button = new HoverButton(&stage.window, {20, 70, 97, 27});
    button->setRightAction({&deleter, &Deleter::receive});
    button->show();
    // Straight to the button: a window goes on to ask the control for its context menu.
    QTest::mousePress(button, Qt::RightButton);
    QCOMPARE(deleter.deleted, 1);
    QTest::mouseRelease(&stage.window, Qt::RightButton, {}, {1, 1});
}

KYR_GUI_TEST(tst_hoverbuttonclicks)
#include "tst_hoverbuttonclicks.moc"
