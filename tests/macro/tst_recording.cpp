#include "displaystage.h"
#include "support/suite.h"

#include <QtCore/QElapsedTimer>

using keystroke::kA;
using keystroke::kB;

/// What of the keyboard becomes part of a list.
class tst_recording : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyIsRecordedAsPressAndRelease_data();
    void aKeyIsRecordedAsPressAndRelease();
    void aHeldKeyIsRecordedOnce();
    void aHeldKeyIsRecordedOnceBesideAnother();
    void aKeyPressedAgainAfterAnotherIsRecordedAgain();
    void releasesAreRecordedWithoutTheirPress();
    void insertIsNeverReleased();
    void aKeyWithoutANameIsRecorded();
    void aKeyWithoutACodeChangesNothing();
    void aFullListTakesNoMore_data();
    void aFullListTakesNoMore();
    void aListOfTwoIsStartedAnewByAClick();
    void noListOutgrowsItsStore();
    void aStormOfKeysLeavesTheListWhole();
    void eachEventIsShown();
};

namespace {

/// Of keys that are tapped in turn.
Events tapped(std::size_t count)
{
    constexpr KeymapEvent turn[] = {{0, 1, 0}, {0, 2, 0}, {11, 1, 0}, {11, 2, 0}};
    Events events;
    while (events.size() < count)
        events.push_back(turn[events.size() % 4]);
    return events;
}

} // namespace

void tst_recording::aKeyIsRecordedAsPressAndRelease_data()
{
    QTest::addColumn<keystroke::HardwareKey>("key");
    QTest::addColumn<int>("keyCode");
    QTest::newRow("a letter") << kA << 0;
    QTest::newRow("tab") << keystroke::kTab << 48;
    QTest::newRow("escape") << keystroke::kEscape << 53;
    QTest::newRow("return") << keystroke::kReturn << 36;
    QTest::newRow("left") << keystroke::HardwareKey{105, Qt::Key_Left} << 123;
    QTest::newRow("F5") << keystroke::HardwareKey{63, Qt::Key_F5} << 96;
}

void tst_recording::aKeyIsRecordedAsPressAndRelease()
{
    QFETCH(keystroke::HardwareKey, key);
    QFETCH(int, keyCode);
    DisplayStage stage;
    stage.click();
    keystroke::press(key);
    QCOMPARE(stage.list(), QStringLiteral("%1:1:0").arg(keyCode));
    keystroke::release(key);
    QCOMPARE(stage.list(), QStringLiteral("%1:1:0 %1:2:0").arg(keyCode));
    QVERIFY(stage.display.hasFocus());
}

void tst_recording::aHeldKeyIsRecordedOnce()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA);
    keystroke::repeat(kA, 20);
    keystroke::release(kA);
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 0:2:0"));
    keystroke::tap(kA);
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 0:2:0 0:1:0 0:2:0"));
}

void tst_recording::aHeldKeyIsRecordedOnceBesideAnother()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA);
    keystroke::press(kB);
    keystroke::repeat(kB, 5);
    keystroke::release(kA);
    keystroke::release(kB);
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 11:1:0 0:2:0 11:2:0"));
}

void tst_recording::aKeyPressedAgainAfterAnotherIsRecordedAgain()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA);
    keystroke::press(kB);
    keystroke::press(kA);
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 11:1:0 0:1:0"));
}

void tst_recording::releasesAreRecordedWithoutTheirPress()
{
    DisplayStage stage;
    stage.click();
    keystroke::release(kA);
    keystroke::release(kA);
    QCOMPARE(stage.list(), QStringLiteral("0:2:0 0:2:0"));
}

void tst_recording::insertIsNeverReleased()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(keystroke::kInsert);
    QCOMPARE(stage.list(), QStringLiteral("114:1:0"));
    keystroke::tap(keystroke::kInsert); // counts as held
    QCOMPARE(stage.list(), QStringLiteral("114:1:0"));
    keystroke::tap(kA);
    keystroke::tap(keystroke::kInsert);
    QCOMPARE(stage.list(), QStringLiteral("114:1:0 0:1:0 0:2:0 114:1:0"));
}

void tst_recording::aKeyWithoutANameIsRecorded()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(keystroke::kF12);
    QCOMPARE(stage.list(), QStringLiteral("111:1:0 111:2:0"));
}

void tst_recording::aKeyWithoutACodeChangesNothing()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(kA);
    const auto before = stage.display.getKeymapInfo();
    const Events slots(before.begin(), before.end());
    stage.log.lines.clear();
    keystroke::press(keystroke::kPause, at(5000));
    keystroke::release(keystroke::kPause, at(6000));
    QCOMPARE(stage.log.lines.front(), std::string("no virtual key code for scan code 127"));
    QCOMPARE(stage.display.count(), 2U);
    QVERIFY(std::ranges::equal(stage.display.getKeymapInfo(), slots));
    QCOMPARE(stage.keyLog(), std::vector<std::string>());
}

void tst_recording::aFullListTakesNoMore_data()
{
    QTest::addColumn<std::uint32_t>("limit");
    QTest::addColumn<bool>("isSet");
    QTest::newRow("at first") << 32U << false;
    QTest::newRow("none") << 0U << true;
    QTest::newRow("one") << 1U << true;
    QTest::newRow("two") << 2U << true;
    QTest::newRow("three") << 3U << true;
    QTest::newRow("all of a macro") << 300U << true;
    QTest::newRow("all of the store") << 500U << true;
}

void tst_recording::aFullListTakesNoMore()
{
    QFETCH(std::uint32_t, limit);
    QFETCH(bool, isSet);
    DisplayStage stage;
    if (isSet)
        stage.display.setMaxKeymapEvent(limit);
    stage.click();
    keystroke::tapMany(260);
    QVERIFY(stage.events() == tapped(limit));
    keystroke::tap(keystroke::kLeftShift);
    keystroke::tap(keystroke::kCapsLock);
    QVERIFY(stage.events() == tapped(limit));
    QVERIFY(std::ranges::all_of(stage.display.getKeymapInfo().subspan(limit),
                                [](const KeymapEvent &slot) { return slot == KeymapEvent{}; }));
}

void tst_recording::aListOfTwoIsStartedAnewByAClick()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(kMostKeyEvents);
    stage.click();
    keystroke::tap(kA);
    keystroke::tap(kB);
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 0:2:0"));
    stage.click();
    QCOMPARE(stage.list(), QString());
    keystroke::tap(kB);
    QCOMPARE(stage.list(), QStringLiteral("11:1:0 11:2:0"));
}

void tst_recording::noListOutgrowsItsStore()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(100'000);
    stage.click();
    keystroke::tapMany(300);
    keystroke::tap(keystroke::kCapsLock);
    keystroke::tap(keystroke::kLeftShift);
    QVERIFY(stage.events() == tapped(kEventCount));
}

void tst_recording::aStormOfKeysLeavesTheListWhole()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(kMostMacroEvents);
    stage.display.enableScroll(true);
    stage.click();
    QElapsedTimer timer;
    timer.start();
    keystroke::tapMany(5000);
    QVERIFY(timer.elapsed() < 5000);
    QVERIFY(stage.events() == tapped(kMostMacroEvents));
    QVERIFY(stage.display.GetMacroOutputString().startsWith(QLatin1String("A|A^B|B^")));
}

void tst_recording::eachEventIsShown()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA);
    QTRY_VERIFY(stage.log.contains("A|"));
    keystroke::release(kA);
    QTRY_VERIFY(stage.log.contains("A|A^"));
    keystroke::press(keystroke::kLeftShift);
    QTRY_VERIFY(stage.log.contains("A|A^Shift|"));
}

KYR_GUI_TEST(tst_recording)
#include "tst_recording.moc"
