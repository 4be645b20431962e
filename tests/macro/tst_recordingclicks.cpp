#include "displaystage.h"
#include "support/suite.h"

#include <QtWidgets/QLineEdit>

using keystroke::kA;
using keystroke::kB;
using keystroke::kTab;

/// The mouse in the recording view: a click starts anew.
class tst_recordingclicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickGivesTheKeyboardAndEmptiesTheList();
    void aClickEmptiesALoadedList();
    void theEventsStayInTheirSlots();
    void aDoubleClickEmptiesTheListToo();
    void aPressAloneDoesNothing();
    void aPressReleasedOutsideDoesNothing_data();
    void aPressReleasedOutsideDoesNothing();
    void aPressInAnotherControlReleasedHereDoesNothing();
    void otherButtonsOfTheMouseDoNothing_data();
    void otherButtonsOfTheMouseDoNothing();
    void aDragDoesNotMoveTheWindow();
    void aClickElsewhereTakesTheKeyboardAway();
    void theTabKeyPassesItBy();
};

namespace {

/// A view that has recorded a key and does not have the keyboard.
void recordAndLeave(DisplayStage &stage)
{
    stage.click();
    keystroke::tap(kA);
    stage.other.setFocus();
}

const auto kRecorded = QStringLiteral("0:1:0 0:2:0");

} // namespace

void tst_recordingclicks::aClickGivesTheKeyboardAndEmptiesTheList()
{
    DisplayStage stage;
    recordAndLeave(stage);
    QCOMPARE(stage.list(), kRecorded);
    QVERIFY(!stage.display.hasFocus());
    QTRY_VERIFY(stage.log.contains("A|A^"));
    stage.log.lines.clear();
    stage.click();
    QVERIFY(stage.display.hasFocus());
    QCOMPARE(stage.display.count(), 0U);
    QTRY_VERIFY(stage.log.contains("")); // drawn without them
}

void tst_recordingclicks::aClickEmptiesALoadedList()
{
    DisplayStage stage;
    const Events loaded{{48, 1, 7}, {48, 2, 0}};
    stage.display.setKeymapInfo(loaded);
    stage.click();
    QCOMPARE(stage.display.count(), 0U);
    QCOMPARE(stage.firstSlots(3), QStringLiteral("48:1:7 48:2:0 0:0:0"));
}

void tst_recordingclicks::theEventsStayInTheirSlots()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(kA);
    keystroke::tap(kB);
    stage.click();
    QCOMPARE(stage.firstSlots(5), QStringLiteral("0:1:0 0:2:0 11:1:0 11:2:0 0:0:0"));
    keystroke::tap(kTab);
    QCOMPARE(stage.list(), QStringLiteral("48:1:0 48:2:0"));
    QCOMPARE(stage.firstSlots(5), QStringLiteral("48:1:0 48:2:0 11:1:0 11:2:0 0:0:0"));
}

void tst_recordingclicks::aDoubleClickEmptiesTheListToo()
{
    DisplayStage stage;
    recordAndLeave(stage);
    pointer::doubleClick(stage.display, {20, 20});
    QVERIFY(stage.display.hasFocus());
    QCOMPARE(stage.display.count(), 0U);
}

void tst_recordingclicks::aPressAloneDoesNothing()
{
    DisplayStage stage;
    recordAndLeave(stage);
    pointer::press(stage.display, {20, 20});
    QVERIFY(!stage.display.hasFocus());
    QCOMPARE(stage.list(), kRecorded);
    pointer::release(stage.display, {20, 20});
    QCOMPARE(stage.display.count(), 0U);
}

void tst_recordingclicks::aPressReleasedOutsideDoesNothing_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<bool>("isOutside");
    QTest::newRow("left of it") << QPoint(-1, 20) << true;
    QTest::newRow("right of it") << QPoint(230, 20) << true;
    QTest::newRow("above it") << QPoint(20, -1) << true;
    QTest::newRow("below it") << QPoint(20, 140) << true;
    QTest::newRow("in its first corner") << QPoint(0, 0) << false;
    QTest::newRow("in its last corner") << QPoint(229, 139) << false;
}

void tst_recordingclicks::aPressReleasedOutsideDoesNothing()
{
    QFETCH(QPoint, at);
    QFETCH(bool, isOutside);
    DisplayStage stage;
    recordAndLeave(stage);
    pointer::press(stage.display, {20, 20});
    pointer::release(stage.display, at);
    QCOMPARE(stage.display.hasFocus(), !isOutside);
    QCOMPARE(stage.list(), isOutside ? kRecorded : QString());
}

void tst_recordingclicks::aPressInAnotherControlReleasedHereDoesNothing()
{
    DisplayStage stage;
    recordAndLeave(stage);
    pointer::press(stage.other, {5, 5});
    pointer::release(stage.display, {20, 20});
    QVERIFY(!stage.display.hasFocus());
    QCOMPARE(stage.list(), kRecorded);
}

void tst_recordingclicks::otherButtonsOfTheMouseDoNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void tst_recordingclicks::otherButtonsOfTheMouseDoNothing()
{
    QFETCH(Qt::MouseButton, button);
    DisplayStage stage;
    recordAndLeave(stage);
    pointer::click(stage.display, button);
    QVERIFY(!stage.display.hasFocus());
    QCOMPARE(stage.list(), kRecorded);
}

void tst_recordingclicks::aDragDoesNotMoveTheWindow()
{
    DisplayStage stage;
    stage.window.setBCanDragWindow(true);
    const QPoint before = stage.window.pos();
    pointer::press(stage.display, {20, 20});
    QVERIFY(stage.window.initialLocation() == UpPoint{});
    pointer::move(stage.display, {60, 50});
    pointer::release(stage.display, {60, 50});
    QCOMPARE(stage.window.pos(), before);
    // Beside it, it does.
    pointer::press(stage.display, {-5, 20});
    pointer::move(stage.display, {35, 50});
    QVERIFY(stage.window.pos() != before);
}

void tst_recordingclicks::aClickElsewhereTakesTheKeyboardAway()
{
    DisplayStage stage;
    QLineEdit field(&stage.window);
    field.setGeometry(10, 170, 100, 25);
    field.show();
    stage.click();
    pointer::click(field);
    keystroke::tap(kA);
    QCOMPARE(stage.list(), QString());
    QCOMPARE(field.text(), QStringLiteral("a"));
}

void tst_recordingclicks::theTabKeyPassesItBy()
{
    DisplayStage stage;
    HoverButton third(&stage.window, {250, 60, 40, 20});
    third.show();
    stage.other.setFocus();
    keystroke::press(kTab);
    QVERIFY(third.hasFocus());
    keystroke::press(kTab);
    QVERIFY(stage.other.hasFocus());
}

KYR_GUI_TEST(tst_recordingclicks)
#include "tst_recordingclicks.moc"
