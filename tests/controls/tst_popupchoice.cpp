#include "popupstage.h"
#include "support/suite.h"

/// A choice from a list that opens below a button, by click and by key.
class tst_popupchoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChoiceIsClosedLaterAndOnce();
    void aChoiceThatLosesTheKeyboardIsClosedOnce();
    void aListOpenedRightAfterAChoiceStays();
    void theSecondPressOfADoubleClickReachesNoButton_data();
    void theSecondPressOfADoubleClickReachesNoButton();
    void afterAChoiceByKeyEveryPressReachesTheButton();
};

namespace {

/// Presses and releases the left button there, `at` being the time of both.
void pressAndRelease(const PopupStage &stage, QPoint there, quint64 at)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool isPress = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, stage.window->mapFromGlobal(there), there, Qt::LeftButton,
                          isPress ? Qt::LeftButton : Qt::NoButton, {});
        event.setTimestamp(at);
        QApplication::sendEvent(stage.window->windowHandle(), &event);
    }
}

/// A button below the middle row of the list, which counts its clicks.
class ButtonBelow : public QObject
{
public:
    explicit ButtonBelow(const PopupStage &stage)
    {
        button = new HoverButton(stage.window.get(), {20, 90, 97, 60});
        button->setAction({this, &ButtonBelow::receive});
        button->show();
    }
    void receive(HoverButton * /*sender*/) { ++clicks; }

    HoverButton *button;
    int clicks = 0;
};

} // namespace

void tst_popupchoice::aChoiceIsClosedLaterAndOnce()
{
    PopupStage stage;
    pointer::click(stage.opened(), rowPoint(2));
    QCOMPARE(stage.chosenRow, 2);
    QCOMPARE(stage.closingsAtChoice, 0);
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    QVERIFY(stage.popup->mayOpen());
    QTRY_VERIFY(PopupStage::hasKeyboard(*stage.window));
    QCOMPARE(stage.closings, 1);
    QCOMPARE(stage.log.lines, std::vector<std::string>{"CloseListBox"});
}

void tst_popupchoice::aChoiceThatLosesTheKeyboardIsClosedOnce()
{
    PopupStage stage;
    clickRowDirectly(stage.opened(), 0);
    QCOMPARE(stage.closings, 0);
    stage.activate();
    QVERIFY(keepsKeyboard(*stage.window));
    QCOMPARE(stage.closings, 1);
}

void tst_popupchoice::aListOpenedRightAfterAChoiceStays()
{
    PopupStage stage;
    clickRowDirectly(stage.opened(), 0);
    stage.popup->close(*stage.window);
    const pngListBox &second = stage.opened();
    QVERIFY(keepsKeyboard(*second.window()));
    QCOMPARE(PopupStage::openCount(), 1U);
    QVERIFY(!stage.popup->mayOpen());
    QCOMPARE(stage.closings, 0);
}

void tst_popupchoice::theSecondPressOfADoubleClickReachesNoButton_data()
{
    QTest::addColumn<int>("since");
    QTest::addColumn<int>("clicks");
    QTest::newRow("at once") << 1 << 0;
    QTest::newRow("just in time") << QApplication::doubleClickInterval() - 1 << 0;
    QTest::newRow("too late") << QApplication::doubleClickInterval() << 1;
}

void tst_popupchoice::theSecondPressOfADoubleClickReachesNoButton()
{
    QFETCH(int, since);
    PopupStage stage;
    const ButtonBelow below(stage);
    pngListBox &list = stage.opened();
    const QPoint there = list.mapToGlobal(rowPoint(1));
    QVERIFY(QRect(below.button->mapToGlobal(QPoint()), below.button->size()).contains(there));
    QCursor::setPos(there);
    clickRowDirectly(list, 1);
    const quint64 released = list.releasedAt();
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    pressAndRelease(stage, there, released + static_cast<quint64>(since));
    QTEST(below.clicks, "clicks");
}

void tst_popupchoice::afterAChoiceByKeyEveryPressReachesTheButton()
{
    PopupStage stage;
    const ButtonBelow below(stage);
    const pngListBox &list = stage.opened();
    const QPoint there = list.mapToGlobal(rowPoint(1));
    QCursor::setPos(there);
    QTest::keyClick(pointer::windowOf(list), Qt::Key_Return);
    QTRY_COMPARE(PopupStage::openCount(), 0U);
    QCOMPARE(stage.chosenRow, 1);
    const int hour = 3600 * 1000; // that the desktop runs
    pressAndRelease(stage, there, hour);
    QCOMPARE(below.clicks, 1);
}

KYR_GUI_TEST(tst_popupchoice)
#include "tst_popupchoice.moc"
