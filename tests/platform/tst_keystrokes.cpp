#include "strokestage.h"
#include "support/suite.h"

using keystroke::kA;
using keystroke::kCapsLock;
using keystroke::kLeftShift;
using keystroke::kRightShift;

/// What becomes of the display's key events.
class tst_keystrokes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyGoesDownAndUp();
    void aHeldKeyGoesDownAgainAndAgainAndUpOnce();
    void aHeldKeySentWithoutReleasesIsToldAlike();
    void noOtherKeyHasAFlag();
    void otherKeysCarryTheFlags();
    void capsLockIsToldWhenItGoesDown_data();
    void capsLockIsToldWhenItGoesDown();
    void capsLockLeavesTheFlagsOfHeldKeys();
    void aHeldCapsLockIsToldOnce();
    void aKeyWithoutACodeIsLoggedOnly();
    void aKeyIsToldByItsPlaceWhateverItTypes_data();
    void aKeyIsToldByItsPlaceWhateverItTypes();
};

void tst_keystrokes::aKeyGoesDownAndUp()
{
    StrokeStage stage;
    keystroke::press(kA, {.time = 5000, .modifiers = {}});
    keystroke::release(kA, {.time = (quint64{1} << 32) + 7, .modifiers = {}});
    QCOMPARE(stage.view.told(), QStringLiteral("down 0, up 0"));
    QCOMPARE(stage.view.strokes[0].characters, QStringLiteral("a"));
    QCOMPARE(stage.view.strokes[1].characters, QStringLiteral("a"));
    QCOMPARE(stage.view.strokes[0].time, 5000U);
    QCOMPARE(stage.view.strokes[1].time, 7U);
    QCOMPARE(stage.view.strokes[0].modifierFlags, 0U);
}

void tst_keystrokes::aHeldKeyGoesDownAgainAndAgainAndUpOnce()
{
    StrokeStage stage;
    keystroke::press(kA);
    keystroke::repeat(kA, 3);
    QCOMPARE(stage.view.told(), QStringLiteral("down 0, down 0, down 0, down 0"));
    keystroke::release(kA);
    QCOMPARE(stage.view.told(), QStringLiteral("down 0, down 0, down 0, down 0, up 0"));
}

void tst_keystrokes::aHeldKeySentWithoutReleasesIsToldAlike()
{
    StrokeStage stage;
    keystroke::press(kA);
    keystroke::repeatPresses(kA, 2);
    keystroke::release(kA);
    QCOMPARE(stage.view.told(), QStringLiteral("down 0, down 0, down 0, up 0"));
}

void tst_keystrokes::noOtherKeyHasAFlag()
{
    const std::vector<int> modifierKeys{54, 55, 56, 57, 58, 59, 60, 61, 62, 63};
    std::vector<int> found;
    for (int code = 0; code < 128; ++code) {
        if (modifierMask(static_cast<std::uint16_t>(code)) != 0)
            found.push_back(code);
    }
    QCOMPARE(found, modifierKeys);
    QCOMPARE(modifierMask(57), 0x10000U);
}

void tst_keystrokes::otherKeysCarryTheFlags()
{
    StrokeStage stage;
    keystroke::press(kRightShift);
    keystroke::press(kA);
    keystroke::release(kRightShift);
    keystroke::release(kA);
    QCOMPARE(stage.view.told(), QStringLiteral("flags 60 20000, down 0, flags 60 0, up 0"));
    QCOMPARE(stage.view.strokes[1].modifierFlags, 0x20000U);
    QCOMPARE(stage.view.strokes[3].modifierFlags, 0U);
}

void tst_keystrokes::capsLockIsToldWhenItGoesDown_data()
{
    QTest::addColumn<quint32>("before");
    QTest::addColumn<QString>("told");
    const auto on = QStringLiteral("flags 57 10000");
    const auto off = QStringLiteral("flags 57 0");
    constexpr quint32 numLock = 16;
    QTest::newRow("switched on") << quint32{0} << on;
    QTest::newRow("switched off") << kLockBefore << off;
    QTest::newRow("on, with other bits") << (numLock | kShiftBefore) << on;
    QTest::newRow("off, with other bits") << (numLock | kLockBefore) << off;
}

void tst_keystrokes::capsLockIsToldWhenItGoesDown()
{
    QFETCH(quint32, before);
    QFETCH(QString, told);
    StrokeStage stage;
    keystroke::press(kCapsLock, {.modifiersBefore = before, .modifiers = {}});
    QCOMPARE(stage.view.told(), told);
    keystroke::release(kCapsLock, {.modifiersBefore = before | kLockBefore, .modifiers = {}});
    QCOMPARE(stage.view.told(), told);
}

void tst_keystrokes::capsLockLeavesTheFlagsOfHeldKeys()
{
    StrokeStage stage;
    keystroke::press(kLeftShift);
    keystroke::tap(kCapsLock);
    keystroke::release(kLeftShift);
    QCOMPARE(stage.view.told(), QStringLiteral("flags 56 20000, flags 57 30000, flags 56 0"));
}

void tst_keystrokes::aHeldCapsLockIsToldOnce()
{
    StrokeStage stage;
    keystroke::press(kCapsLock);
    keystroke::repeat(kCapsLock, 3);
    keystroke::release(kCapsLock);
    QCOMPARE(stage.view.strokes.size(), std::size_t{1});
}

void tst_keystrokes::aKeyWithoutACodeIsLoggedOnly()
{
    StrokeStage stage;
    keystroke::tap(keystroke::kPause);
    QCOMPARE(stage.view.told(), QString());
    const std::vector<std::string> once(1, "no virtual key code for scan code 127");
    QCOMPARE(stage.log.lines, once);
    keystroke::press(keystroke::kPause);
    keystroke::repeat(keystroke::kPause, 3);
    keystroke::repeatPresses(keystroke::kPause, 3);
    QCOMPARE(stage.log.lines, once);
    keystroke::tap(kA);
    QCOMPARE(stage.view.told(), QStringLiteral("down 0, up 0"));
}

void tst_keystrokes::aKeyIsToldByItsPlaceWhateverItTypes_data()
{
    using keystroke::HardwareKey;
    QTest::addColumn<HardwareKey>("key");
    QTest::addColumn<QString>("told");
    QTest::newRow("a letter of another layout")
        << HardwareKey{30, Qt::Key_Q, QStringLiteral("q")} << QStringLiteral("down 0, up 0");
    QTest::newRow("a letter of another script")
        << HardwareKey{30, Qt::Key(0x424), QStringLiteral("ф")} << QStringLiteral("down 0, up 0");
    QTest::newRow("a dead key") << HardwareKey{26, Qt::Key_Dead_Circumflex}
                                << QStringLiteral("down 33, up 33");
    QTest::newRow("Caps Lock that types Escape")
        << HardwareKey{58, Qt::Key_Escape, QStringLiteral("\x1b")}
        << QStringLiteral("flags 57 10000");
    QTest::newRow("Escape that locks the capitals")
        << HardwareKey{1, Qt::Key_CapsLock} << QStringLiteral("down 53, up 53");
    QTest::newRow("Caps Lock that is a control key")
        << HardwareKey{58, Qt::Key_Control} << QStringLiteral("flags 57 10000");
    QTest::newRow("a control key that types a letter")
        << HardwareKey{29, Qt::Key_B, QStringLiteral("b")}
        << QStringLiteral("flags 59 40000, flags 59 0");
    QTest::newRow("a right option key that is AltGr")
        << HardwareKey{100, Qt::Key_AltGr} << QStringLiteral("flags 61 80000, flags 61 0");
    QTest::newRow("shift and tab")
        << HardwareKey{15, Qt::Key_Backtab} << QStringLiteral("down 48, up 48");
}

void tst_keystrokes::aKeyIsToldByItsPlaceWhateverItTypes()
{
    QFETCH(keystroke::HardwareKey, key);
    QFETCH(QString, told);
    StrokeStage stage;
    keystroke::tap(key);
    QCOMPARE(stage.view.told(), told);
    QCOMPARE(stage.view.strokes[0].characters, key.text);
}

KYR_GUI_TEST(tst_keystrokes)
#include "tst_keystrokes.moc"
