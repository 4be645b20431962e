#include "popupstage.h"
#include "support/suite.h"

/// Which press of a button may open its list: not the one that has closed it.
class tst_popuppresses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPressWhileTheListIsOpenOpensNothing();
    void thePressThatTookTheKeyboardOpensNothing();
    void aPressAMomentAfterTheLossOpensNothing();
    void theNextPressOpensAgain();
    void aPressLongAfterTheLossOpensAgain();
    void aPressRightAfterAnEndByTheListItselfOpensAgain_data();
    void aPressRightAfterAnEndByTheListItselfOpensAgain();
    void thePressThatTookTheKeyboardLeavesItWithTheNamedWindow();
    void theNextPressTakesTheKeyboard();
    void aPressLongAfterTheLossTakesTheKeyboard();
    void theNamedWindowMayBeGoneAtThePress();
    void aPressInAnotherListLeavesItOpen();
};

namespace {

/// How long after the loss of the keyboard a press may still be the one that has caused it, in
/// milliseconds.
constexpr int kSamePress = 200;

/// A stage whose lists give the keyboard to another window than their button's.
struct NamedStage : PopupStage
{
    NamedStage()
    {
        named->show();
        activate();
        keyWindow = named.get();
    }

    /// The window takes the keyboard as the toolkit makes it do for a press there, which follows.
    void pressWindow() const
    {
        activate();
        pointer::press(*window, QPoint(5, 5));
        pointer::release(*window, QPoint(5, 5));
    }

    std::unique_ptr<QWidget> named = std::make_unique<QWidget>();
};

/// Opens the list and lets the window take the keyboard from it.
void openAndLose(PopupStage &stage)
{
    stage.opened();
    stage.window->activateWindow();
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    QTRY_VERIFY(PopupStage::hasKeyboard(*stage.keyWindow));
}

} // namespace

void tst_popuppresses::aPressWhileTheListIsOpenOpensNothing()
{
    PopupStage stage;
    stage.opened();
    const QPoint middle = stage.button->rect().center();
    pointer::press(*stage.button, middle);
    QVERIFY(!stage.popup->mayOpen());
    QCOMPARE(PopupStage::openCount(), 1U);
    stage.activate();
    QCOMPARE(PopupStage::openCount(), 0U);
    pointer::release(*stage.button, middle);
    QCOMPARE(PopupStage::openCount(), 0U);
    // The press has been told before the loss: the next one is another.
    pointer::click(*stage.button);
    QCOMPARE(PopupStage::openCount(), 1U);
}

void tst_popuppresses::thePressThatTookTheKeyboardOpensNothing()
{
    PopupStage stage;
    openAndLose(stage);
    pointer::click(*stage.button);
    QVERIFY(!stage.popup->mayOpen());
    QCOMPARE(PopupStage::openCount(), 0U);
}

void tst_popuppresses::aPressAMomentAfterTheLossOpensNothing()
{
    constexpr int moment = 20;
    QElapsedTimer sinceBefore;
    // On a busy machine the press may come too late: then once more.
    do {
        PopupStage stage;
        sinceBefore.start();
        openAndLose(stage);
        QElapsedTimer sinceLost;
        sinceLost.start();
        QTRY_VERIFY_WITH_TIMEOUT(sinceLost.hasExpired(moment), kSamePress);
        pointer::click(*stage.button);
        if (!sinceBefore.hasExpired(kSamePress))
            QCOMPARE(PopupStage::openCount(), 0U);
    } while (sinceBefore.hasExpired(kSamePress));
}

void tst_popuppresses::theNextPressOpensAgain()
{
    PopupStage stage;
    openAndLose(stage);
    pointer::click(*stage.button);
    pointer::click(*stage.button);
    QCOMPARE(PopupStage::openCount(), 1U);
    QVERIFY(!stage.popup->mayOpen());
}

void tst_popuppresses::aPressLongAfterTheLossOpensAgain()
{
    PopupStage stage;
    openAndLose(stage);
    QElapsedTimer sinceLost;
    sinceLost.start();
    QTRY_VERIFY(sinceLost.hasExpired(kSamePress));
    pointer::click(*stage.button);
    QCOMPARE(PopupStage::openCount(), 1U);
}

void tst_popuppresses::aPressRightAfterAnEndByTheListItselfOpensAgain_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("a choice") << Qt::Key_Return;
    QTest::newRow("no choice") << Qt::Key_Escape;
}

void tst_popuppresses::aPressRightAfterAnEndByTheListItselfOpensAgain()
{
    QFETCH(Qt::Key, key);
    PopupStage stage;
    QTest::keyClick(pointer::windowOf(stage.opened()), key);
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    pointer::click(*stage.button);
    QCOMPARE(PopupStage::openCount(), 1U);
}

void tst_popuppresses::thePressThatTookTheKeyboardLeavesItWithTheNamedWindow()
{
    QElapsedTimer sinceBefore;
    // On a busy machine the press may come too late: then once more.
    do {
        NamedStage stage;
        sinceBefore.start();
        openAndLose(stage);
        stage.pressWindow();
        if (!sinceBefore.hasExpired(kSamePress))
            QTRY_VERIFY(PopupStage::hasKeyboard(*stage.named));
    } while (sinceBefore.hasExpired(kSamePress));
}

void tst_popuppresses::theNextPressTakesTheKeyboard()
{
    NamedStage stage;
    openAndLose(stage);
    stage.pressWindow();
    stage.pressWindow();
    QVERIFY(keepsKeyboard(*stage.window));
}

void tst_popuppresses::aPressLongAfterTheLossTakesTheKeyboard()
{
    NamedStage stage;
    openAndLose(stage);
    QElapsedTimer sinceLost;
    sinceLost.start();
    QTRY_VERIFY(sinceLost.hasExpired(kSamePress));
    stage.pressWindow();
    QVERIFY(keepsKeyboard(*stage.window));
}

void tst_popuppresses::theNamedWindowMayBeGoneAtThePress()
{
    NamedStage stage;
    openAndLose(stage);
    stage.named.reset();
    stage.pressWindow();
    QVERIFY(keepsKeyboard(*stage.window));
}

void tst_popuppresses::aPressInAnotherListLeavesItOpen()
{
    PopupStage stage;
    PopupStage other;
    stage.opened();
    other.open();
    QTRY_COMPARE(stage.closings, 1);
    pngListBox &list = PopupStage::list();
    pointer::press(list, rowPoint(0));
    QVERIFY(keepsKeyboard(*list.window()));
    QCOMPARE(other.closings, 0);
}

KYR_GUI_TEST(tst_popuppresses)
#include "tst_popuppresses.moc"
