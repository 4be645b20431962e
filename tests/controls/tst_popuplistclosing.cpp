#include "popupstage.h"
#include "support/suite.h"

/// How a list that opens below a button closes, and who has the keyboard then.
class tst_popuplistclosing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLossOfTheKeyboardClosesTheList();
    void escapeClosesTheList();
    void theNamedWindowGetsTheKeyboard();
    void anotherListKeepsTheKeyboardThatItHasTaken();
    void anotherListThatIsYetToTakeTheKeyboardGetsIt();
    void theKeyboardOfAnotherProgramStaysThere();
    void withoutAListNothingIsClosed();
    void aClosedListIsGone();
    void theDesktopMayCloseTheList();
    void aListMayBeClosedBeforeItHasTheKeyboard();
    void theWindowMayGoWhileTheListIsOpen();
    void whatOpenedTheListMayGoWhileItIsOpen();
    void whatOpenedTheListMayGoRightAfterAChoice();
};

namespace {

using Lines = std::vector<std::string>;

} // namespace

void tst_popuplistclosing::theLossOfTheKeyboardClosesTheList()
{
    PopupStage stage;
    stage.opened();
    QCOMPARE(stage.closings, 0);
    stage.activate();
    QCOMPARE(stage.closings, 1);
    QCOMPARE(PopupStage::openCount(), 0U);
    QVERIFY(stage.popup->mayOpen());
    QVERIFY(keepsKeyboard(*stage.window));
    QCOMPARE(stage.log.lines, (Lines{"windowKeyChange", "CloseListBox"}));
    QCOMPARE(stage.chosenRow, -1);
}

void tst_popuplistclosing::escapeClosesTheList()
{
    PopupStage stage;
    QTest::keyClick(pointer::windowOf(stage.opened()), Qt::Key_Escape);
    QCOMPARE(stage.closings, 1);
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    QTRY_VERIFY(PopupStage::hasKeyboard(*stage.window));
    QCOMPARE(stage.closings, 1);
    QCOMPARE(stage.log.lines, Lines{"CloseListBox"});
}

void tst_popuplistclosing::theNamedWindowGetsTheKeyboard()
{
    PopupStage stage;
    QWidget named;
    named.show();
    stage.activate();
    stage.keyWindow = &named;
    pointer::click(stage.opened(), rowPoint(0));
    QTRY_VERIFY(PopupStage::hasKeyboard(named));
    QVERIFY(keepsKeyboard(named));
}

void tst_popuplistclosing::anotherListKeepsTheKeyboardThatItHasTaken()
{
    PopupStage first;
    PopupStage second;
    const QPointer<QWidget> firstWindow = first.opened().window();
    second.open();
    QTRY_COMPARE(first.closings, 1);
    QTRY_VERIFY(!firstWindow);
    QCOMPARE(PopupStage::openCount(), 1U);
    QVERIFY(keepsKeyboard(*PopupStage::list().window()));
    QVERIFY(first.popup->mayOpen());
    QVERIFY(!second.popup->mayOpen());
    QCOMPARE(second.closings, 0);
}

void tst_popuplistclosing::anotherListThatIsYetToTakeTheKeyboardGetsIt()
{
    PopupStage first;
    PopupStage second;
    const QPointer<QWidget> firstWindow = first.opened().window();
    second.open();
    QVERIFY(PopupStage::hasKeyboard(*firstWindow));
    first.close(nullptr);
    QTRY_VERIFY(!firstWindow);
    QCOMPARE(PopupStage::openCount(), 1U);
    QVERIFY(keepsKeyboard(*PopupStage::list().window()));
    QCOMPARE(second.closings, 0);
}

void tst_popuplistclosing::theKeyboardOfAnotherProgramStaysThere()
{
    PopupStage stage;
    stage.opened();
    QApplication::setActiveWindow(nullptr);
    QCOMPARE(stage.closings, 1);
    QCOMPARE(PopupStage::openCount(), 0U);
    QVERIFY(!keepsKeyboard(*stage.window));
}

void tst_popuplistclosing::withoutAListNothingIsClosed()
{
    PopupStage stage;
    QWidget other;
    other.show();
    PopupStage::activate(other);
    stage.popup->close(*stage.window);
    QVERIFY(keepsKeyboard(other));
    QCOMPARE(stage.log.lines, Lines());
}

void tst_popuplistclosing::aClosedListIsGone()
{
    PopupStage stage;
    const QPointer<QWidget> chosenFrom = &stage.opened();
    clickRowDirectly(static_cast<pngListBox &>(*chosenFrom), 0);
    QTRY_VERIFY(!chosenFrom);
    const QPointer<QWidget> left = &stage.opened();
    stage.activate();
    QTRY_VERIFY(!left);
}

void tst_popuplistclosing::theDesktopMayCloseTheList()
{
    PopupStage stage;
    pointer::windowOf(stage.opened())->close();
    QTRY_COMPARE(stage.closings, 1);
    QCOMPARE(PopupStage::openCount(), 0U);
    QVERIFY(stage.popup->mayOpen());
    QTRY_VERIFY(PopupStage::hasKeyboard(*stage.window));
    pointer::click(stage.opened(), rowPoint(0));
    QTRY_COMPARE(stage.closings, 2);
    QCOMPARE(stage.log.count("CloseListBox"), 2L);
}

void tst_popuplistclosing::aListMayBeClosedBeforeItHasTheKeyboard()
{
    PopupStage stage;
    stage.open();
    PopupStage::windows().front()->close();
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    QVERIFY(stage.popup->mayOpen());
    pointer::click(stage.opened(), rowPoint(0));
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    QCOMPARE(stage.chosenRow, 0);
}

void tst_popuplistclosing::theWindowMayGoWhileTheListIsOpen()
{
    PopupStage stage;
    const QPointer<QWidget> list = &stage.opened();
    stage.window.reset();
    QVERIFY(!list);
    QCoreApplication::processEvents();
    QCOMPARE(PopupStage::openCount(), 0U);
}

void tst_popuplistclosing::whatOpenedTheListMayGoWhileItIsOpen()
{
    PopupStage stage;
    pngListBox &list = stage.opened();
    stage.popup.reset();
    QTest::keyClick(pointer::windowOf(list), Qt::Key_Down);
    QCOMPARE(list.getcursel(), PopupStage::kSelected + 1);
    stage.activate();
    QCOMPARE(stage.closings, 1); // which nobody is there to do
    QCOMPARE(PopupStage::openCount(), 1U);
}

void tst_popuplistclosing::whatOpenedTheListMayGoRightAfterAChoice()
{
    PopupStage stage;
    clickRowDirectly(stage.opened(), 0);
    stage.popup.reset();
    QCoreApplication::processEvents();
    QCOMPARE(stage.chosenRow, 0);
    QCOMPARE(stage.closings, 0);
}

KYR_GUI_TEST(tst_popuplistclosing)
#include "tst_popuplistclosing.moc"
