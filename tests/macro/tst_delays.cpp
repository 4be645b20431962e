#include "displaystage.h"
#include "support/suite.h"

using keystroke::kA;
using keystroke::kB;
using keystroke::kCapsLock;
using keystroke::kLeftShift;

/// The pauses between recorded events, by the clock of the display.
class tst_delays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPauseIsCountedInUnitsOf50_data();
    void aPauseIsCountedInUnitsOf50();
    void everyKindOfEventEndsThePauseBeforeIt_data();
    void everyKindOfEventEndsThePauseBeforeIt();
    void theLastEventHasNoDelay();
    void anEventOutOfOrderComesAtOnceAndTheClockGoesOnFromIt();
    void theRepetitionOfAHeldKeyIsPartOfItsPause();
    void anEventLeftOutIsPartOfThePause_data();
    void anEventLeftOutIsPartOfThePause();
    void theLastEventOfAFullListKeepsNoDelay();
    void capsLockIsReleasedAtOnce();
    void theFirstEventAfterAClickEndsNoPause();
    void keysPressedWhileDisabledDoNotCount();
    void aLoadedListIsContinuedFromTheLastRecordedEvent();
};

void tst_delays::aPauseIsCountedInUnitsOf50_data()
{
    QTest::addColumn<quint64>("from");
    QTest::addColumn<quint64>("to");
    QTest::addColumn<std::uint32_t>("delay");
    const auto row = [](const char *name, quint64 from, quint64 to, std::uint32_t delay) {
        QTest::newRow(name) << from << to << delay;
    };
    row("none", 1000, 1000, 0);
    row("49 ms", 1000, 1049, 0);
    row("50 ms", 1000, 1050, 1);
    row("99 ms", 1000, 1099, 1);
    row("100 ms", 1000, 1100, 2);
    row("120 ms", 1000, 1120, 2);
    row("a second", 1000, 2000, 20);
    row("an hour", 1000, 3'601'000, 72'000);
    row("24 days", 0, 0x7fffffff, 42'949'672);
    row("from the clock's start", 0, 1000, 20);
    row("over the clock's sign", 0x7fffffc0, 0x80000038, 2);
    row("over the clock's end", 0xffffffc0, 0x38, 2);
    row("over the end of its 32 bits", 0xffffffc0, 0x100000038, 2);
    row("to its very end", 0xffffffcd, 0xffffffff, 1);
    row("out of order", 1000, 900, 0);
    row("out of order over the clock's end", 0x38, 0xffffffc0, 0);
}

void tst_delays::aPauseIsCountedInUnitsOf50()
{
    QFETCH(quint64, from);
    QFETCH(quint64, to);
    QFETCH(std::uint32_t, delay);
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(from));
    keystroke::release(kA, at(to));
    QCOMPARE(stage.list(), QStringLiteral("0:1:%1 0:2:0").arg(delay));
}

void tst_delays::everyKindOfEventEndsThePauseBeforeIt_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<keystroke::HardwareKey>("key");
    QTest::newRow("a press") << QEvent::KeyPress << kB;
    QTest::newRow("a release") << QEvent::KeyRelease << kB;
    QTest::newRow("a modifier key pressed") << QEvent::KeyPress << kLeftShift;
    QTest::newRow("a modifier key released") << QEvent::KeyRelease << kLeftShift;
    QTest::newRow("caps lock") << QEvent::KeyPress << kCapsLock;
    QTest::newRow("a press of insert") << QEvent::KeyPress << keystroke::kInsert;
}

void tst_delays::everyKindOfEventEndsThePauseBeforeIt()
{
    QFETCH(QEvent::Type, type);
    QFETCH(keystroke::HardwareKey, key);
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    keystroke::send(type, key, at(1250));
    keystroke::release(kA, at(1350));
    const Events events = stage.events();
    QCOMPARE(events.front().delay, 5U);
    QCOMPARE(events.at(events.size() - 2).delay, 2U);
    QCOMPARE(events.back().delay, 0U);
}

void tst_delays::theLastEventHasNoDelay()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    QCOMPARE(stage.list(), QStringLiteral("0:1:0"));
    keystroke::release(kA, at(2000));
    keystroke::press(kB, at(2300));
    QCOMPARE(stage.list(), QStringLiteral("0:1:20 0:2:6 11:1:0"));
}

void tst_delays::anEventOutOfOrderComesAtOnceAndTheClockGoesOnFromIt()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    keystroke::release(kA, at(900));
    keystroke::press(kB, at(1000));
    QCOMPARE(stage.list(), QStringLiteral("0:1:0 0:2:2 11:1:0"));
}

void tst_delays::theRepetitionOfAHeldKeyIsPartOfItsPause()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    for (quint64 time = 1500; time < 2000; time += 30)
        keystroke::press(kA, {.time = time, .isRepeat = true, .modifiers = {}});
    QCOMPARE(stage.list(), QStringLiteral("0:1:0"));
    keystroke::release(kA, at(2000));
    QCOMPARE(stage.list(), QStringLiteral("0:1:20 0:2:0"));
}

void tst_delays::anEventLeftOutIsPartOfThePause_data()
{
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<keystroke::HardwareKey>("key");
    QTest::newRow("the release of insert") << QEvent::KeyRelease << keystroke::kInsert;
    QTest::newRow("the release of caps lock") << QEvent::KeyRelease << kCapsLock;
    QTest::newRow("a key without a code") << QEvent::KeyPress << keystroke::kPause;
    QTest::newRow("a second press") << QEvent::KeyPress << kA;
}

void tst_delays::anEventLeftOutIsPartOfThePause()
{
    QFETCH(QEvent::Type, type);
    QFETCH(keystroke::HardwareKey, key);
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    keystroke::send(type, key, at(1150));
    QCOMPARE(stage.list(), QStringLiteral("0:1:0"));
    keystroke::release(kA, at(1300));
    QCOMPARE(stage.list(), QStringLiteral("0:1:6 0:2:0"));
}

void tst_delays::theLastEventOfAFullListKeepsNoDelay()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(kMostKeyEvents);
    stage.click();
    keystroke::press(kA, at(1000));
    keystroke::release(kA, at(1100));
    keystroke::press(kB, at(2000));
    keystroke::release(kB, at(3000));
    keystroke::press(kLeftShift, at(4000));
    keystroke::press(kCapsLock, at(5000));
    QCOMPARE(stage.list(), QStringLiteral("0:1:2 0:2:0"));
    // Nor do they move the clock.
    stage.display.setMaxKeymapEvent(3);
    keystroke::press(kB, at(6100));
    QCOMPARE(stage.list(), QStringLiteral("0:1:2 0:2:100 11:1:0"));
}

void tst_delays::capsLockIsReleasedAtOnce()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    keystroke::press(kCapsLock, at(1500));
    keystroke::release(kCapsLock, at(1900));
    keystroke::release(kA, at(2000));
    QCOMPARE(stage.list(), QStringLiteral("0:1:10 57:1:0 57:2:10 0:2:0"));
}

void tst_delays::theFirstEventAfterAClickEndsNoPause()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    keystroke::release(kA, at(1100));
    stage.click();
    keystroke::press(kB, at(9000));
    QCOMPARE(stage.list(), QStringLiteral("11:1:0"));
    QCOMPARE(stage.firstSlots(2), QStringLiteral("11:1:0 0:2:0"));
    keystroke::release(kB, at(9200));
    QCOMPARE(stage.list(), QStringLiteral("11:1:4 11:2:0"));
}

void tst_delays::keysPressedWhileDisabledDoNotCount()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    stage.display.enablewindow(false);
    stage.display.setFocus();
    keystroke::release(kA, at(1500));
    stage.display.enablewindow(true);
    keystroke::release(kA, at(2000));
    QCOMPARE(stage.list(), QStringLiteral("0:1:20 0:2:0"));
}

void tst_delays::aLoadedListIsContinuedFromTheLastRecordedEvent()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kA, at(1000));
    const Events loaded{{48, 1, 7}, {48, 2, 0}};
    stage.display.setKeymapInfo(loaded);
    keystroke::press(kB, at(2000));
    QCOMPARE(stage.list(), QStringLiteral("48:1:7 48:2:20 11:1:0"));
}

KYR_GUI_TEST(tst_delays)
#include "tst_delays.moc"
