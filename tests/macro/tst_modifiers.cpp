#include "displaystage.h"
#include "support/suite.h"

using keystroke::kCapsLock;
using keystroke::kLeftControl;
using keystroke::kLeftShift;
using keystroke::kRightShift;

/// How modifier keys are recorded.
class tst_modifiers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModifierKeyIsRecordedAsPressAndRelease_data();
    void aModifierKeyIsRecordedAsPressAndRelease();
    void aHeldModifierKeyIsRecordedOnce();
    void oneOfTwoReleasedIsRecordedAsAPress();
    void twoModifiersDoNotMingle();
    void aModifierIsRecordedAroundAKey();
    void capsLockIsRecordedWholeWhicheverWayItGoes();
    void capsLockGoesOneBeyondTheLimit_data();
    void capsLockGoesOneBeyondTheLimit();
    void capsLockStaysInTheStore();
    void anyOtherKeyWhoseFlagsChangeIsRecordedAsAPress();
    void aFullListTakesNoModifierKey();
    void aModifierKeyHeldSinceBeforeIsRecordedWhenItGoesUp();
    void noModifierKeyIsHeldAfterTheKeyboardWasElsewhere();
    void aCapsLockThatTypesEscapeIsCapsLock();
};

void tst_modifiers::aModifierKeyIsRecordedAsPressAndRelease_data()
{
    QTest::addColumn<quint16>("scanCode");
    QTest::addColumn<int>("keyCode");
    QTest::newRow("right command") << quint16{126} << 54;
    QTest::newRow("left command") << quint16{125} << 55;
    QTest::newRow("left shift") << quint16{42} << 56;
    QTest::newRow("left option") << quint16{56} << 58;
    QTest::newRow("left control") << quint16{29} << 59;
    QTest::newRow("right shift") << quint16{54} << 60;
    QTest::newRow("right option") << quint16{100} << 61;
    QTest::newRow("right control") << quint16{97} << 62;
    QTest::newRow("function") << quint16{464} << 63;
}

void tst_modifiers::aModifierKeyIsRecordedAsPressAndRelease()
{
    QFETCH(quint16, scanCode);
    QFETCH(int, keyCode);
    DisplayStage stage;
    stage.click();
    keystroke::press({scanCode});
    QCOMPARE(stage.list(), QStringLiteral("%1:1:0").arg(keyCode));
    keystroke::release({scanCode});
    QCOMPARE(stage.list(), QStringLiteral("%1:1:0 %1:2:0").arg(keyCode));
}

void tst_modifiers::aHeldModifierKeyIsRecordedOnce()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kLeftShift);
    keystroke::repeat(kLeftShift, 5);
    keystroke::release(kLeftShift);
    QCOMPARE(stage.list(), QStringLiteral("56:1:0 56:2:0"));
}

void tst_modifiers::oneOfTwoReleasedIsRecordedAsAPress()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kLeftShift);
    keystroke::press(kRightShift);
    keystroke::release(kRightShift);
    keystroke::release(kLeftShift);
    QCOMPARE(stage.list(), QStringLiteral("56:1:0 60:1:0 60:1:0 56:2:0"));
}

void tst_modifiers::twoModifiersDoNotMingle()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kLeftShift);
    keystroke::press(kLeftControl);
    keystroke::release(kLeftShift);
    keystroke::release(kLeftControl);
    QCOMPARE(stage.list(), QStringLiteral("56:1:0 59:1:0 56:2:0 59:2:0"));
}

void tst_modifiers::aModifierIsRecordedAroundAKey()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kLeftShift);
    keystroke::tap(keystroke::kA);
    keystroke::release(kLeftShift);
    QCOMPARE(stage.list(), QStringLiteral("56:1:0 0:1:0 0:2:0 56:2:0"));
}

void tst_modifiers::capsLockIsRecordedWholeWhicheverWayItGoes()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(kCapsLock);
    QCOMPARE(stage.list(), QStringLiteral("57:1:0 57:2:0"));
    constexpr quint32 lockBefore = 2;
    keystroke::press(kCapsLock, {.modifiersBefore = lockBefore, .modifiers = {}});
    keystroke::release(kCapsLock, {.modifiersBefore = lockBefore, .modifiers = {}});
    QCOMPARE(stage.list(), QStringLiteral("57:1:0 57:2:0 57:1:0 57:2:0"));
}

void tst_modifiers::capsLockGoesOneBeyondTheLimit_data()
{
    QTest::addColumn<std::uint32_t>("limit");
    QTest::newRow("of a short list") << kMostKeyEvents;
    QTest::newRow("at first") << 32U;
    QTest::newRow("of a macro") << kMostMacroEvents;
}

void tst_modifiers::capsLockGoesOneBeyondTheLimit()
{
    QFETCH(std::uint32_t, limit);
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(limit);
    stage.click();
    keystroke::tapMany(static_cast<int>(limit) / 2 - 1);
    keystroke::press(keystroke::kTab);
    keystroke::tap(kCapsLock);
    QCOMPARE(stage.display.count(), limit + 1);
    const auto end = stage.display.getKeymapInfo().subspan(limit - 2, 4);
    QCOMPARE(listed(end), QStringLiteral("48:1:0 57:1:0 57:2:0 0:0:0"));
    keystroke::release(keystroke::kTab);
    keystroke::tap(kCapsLock);
    QCOMPARE(stage.display.count(), limit + 1);
}

void tst_modifiers::capsLockStaysInTheStore()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(kEventCount);
    stage.click();
    keystroke::tapMany(static_cast<int>(kEventCount) / 2 - 1);
    keystroke::press(keystroke::kTab);
    keystroke::tap(kCapsLock);
    QCOMPARE(stage.display.count(), kEventCount);
    QCOMPARE(listed(stage.display.getKeymapInfo().last(2)), QStringLiteral("48:1:0 57:1:0"));
}

/// The keyboard has no such key; another source of keys may.
void tst_modifiers::anyOtherKeyWhoseFlagsChangeIsRecordedAsAPress()
{
    struct Recorder : MacroDisplay
    {
        using MacroDisplay::flagsChanged;
        using MacroDisplay::MacroDisplay;
    };
    const LogCapture log;
    Recorder recorder(nullptr);
    recorder.flagsChanged({.type = KeyEventType::FlagsChanged, .keyCode = 52, .characters = {}});
    QCOMPARE(listed(recorder.getKeymapInfo().first(2)), QStringLiteral("52:1:0 0:0:0"));
}

void tst_modifiers::aFullListTakesNoModifierKey()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(kMostKeyEvents);
    stage.click();
    keystroke::tap(keystroke::kA);
    keystroke::press(kLeftShift, at(1000));
    keystroke::release(kLeftShift, at(2000));
    keystroke::press(kCapsLock, at(3000));
    QCOMPARE(stage.firstSlots(3), QStringLiteral("0:1:0 0:2:0 0:0:0"));
}

void tst_modifiers::aModifierKeyHeldSinceBeforeIsRecordedWhenItGoesUp()
{
    DisplayStage stage;
    keystroke::press(kLeftShift);
    stage.click();
    keystroke::release(kLeftShift);
    QCOMPARE(stage.list(), QStringLiteral("56:2:0"));
}

void tst_modifiers::noModifierKeyIsHeldAfterTheKeyboardWasElsewhere()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(kLeftShift);
    stage.other.setFocus();
    keystroke::release(kLeftShift);
    stage.click();
    keystroke::tap(kRightShift);
    QCOMPARE(stage.list(), QStringLiteral("60:1:0 60:2:0"));
}

void tst_modifiers::aCapsLockThatTypesEscapeIsCapsLock()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap({kCapsLock.scanCode, Qt::Key_Escape, QStringLiteral("\x1b")});
    QCOMPARE(stage.list(), QStringLiteral("57:1:0 57:2:0"));
}

KYR_GUI_TEST(tst_modifiers)
#include "tst_modifiers.moc"
