#include "editorstage.h"
#include "support/suite.h"

/// The events and keys that OK takes from the views that record them.
class tst_editorevents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordedEventsAreStored_data();
    void recordedEventsAreStored();
    void aStoredListThatIsConfirmedStaysAsItIs();
    void theSlotsBehindThoseOfTheViewStay();
    void eventsBehindTheNewOnesAreTakenAlong();
    void aListThatWasOnlyClickedIsTakenAsItWas();
    void recordingStopsAtThreeHundredEvents();
    void theLastHalfOfAPairBeyondTheLimitIsLost();
    void recordedKeysAreStored_data();
    void recordedKeysAreStored();
    void aThirdEventOfAKeyIsNotTaken_data() { recordedKeysAreStored_data(); }
    void aThirdEventOfAKeyIsNotTaken();
    void aKeyOfOneEventKeepsTheOldSecondOne();
    void delaysAreRecordedInEveryMode_data();
    void delaysAreRecordedInEveryMode();
};

namespace {

using namespace keystroke;

constexpr int kMost = 300;

/// Records so many events, two for a key.
void recordTaps(int taps)
{
    for (int tap = 0; tap < taps; ++tap)
        keystroke::tap(tap % 2 == 0 ? kA : kB);
}

MacroInfo filledMacro()
{
    MacroInfo macro = namedMacro("filled");
    for (std::uint32_t i = 0; i < kEventCount; ++i)
        macro.KEYMAP[i] = {i % 100, i % 2 + 1, i};
    return macro;
}

} // namespace

void tst_editorevents::recordedEventsAreStored_data()
{
    QTest::addColumn<QByteArray>("mode");
    for (const char *mode : {"ButtonText", "ButtonRecordDelay", "ButtonNoDelay"})
        QTest::newRow(mode) << QByteArray(mode);
}

void tst_editorevents::recordedEventsAreStored()
{
    QFETCH(QByteArray, mode);
    const EditorStage stage;
    stage.click(mode.constData());
    stage.click("pMacroDisplayView");
    tap(kA);
    tap(kReturn);
    tap(kEscape);
    tap(kTab);
    QCOMPARE(listed(stage.confirmed().KEYMAP, 9),
             QStringLiteral("0/1/0 0/2/0 36/1/0 36/2/0 53/1/0 53/2/0 48/1/0 48/2/0 0/0/0"));
}

void tst_editorevents::aStoredListThatIsConfirmedStaysAsItIs()
{
    const MacroInfo macro = filledMacro();
    const EditorStage stage(macro);
    QCOMPARE(listed(stage.confirmed().KEYMAP, kEventCount), listed(macro.KEYMAP, kEventCount));
}

void tst_editorevents::theSlotsBehindThoseOfTheViewStay()
{
    const MacroInfo macro = filledMacro();
    const EditorStage stage(macro);
    stage.click("pMacroDisplayView");
    recordTaps(kMost / 2);
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(listed(std::span(stored.KEYMAP).subspan(298), 2), QStringLiteral("11/1/0 11/2/0"));
    QCOMPARE(listed(std::span(stored.KEYMAP).subspan(300), 200),
             listed(std::span(macro.KEYMAP).subspan(300), 200));
}

/// A click takes the old events out of use and leaves them in their slots.
void tst_editorevents::eventsBehindTheNewOnesAreTakenAlong()
{
    MacroInfo macro = namedMacro("old");
    putEvents(macro.KEYMAP, {{48, 1, 1}, {48, 2, 2}, {53, 1, 3}, {53, 2, 4}});
    const EditorStage stage(macro);
    stage.click("pMacroDisplayView");
    tap(kB);
    QCOMPARE(stage.events().count(), 2U);
    QCOMPARE(listed(stage.confirmed().KEYMAP, 5),
             QStringLiteral("11/1/0 11/2/0 53/1/3 53/2/4 0/0/0"));
}

void tst_editorevents::aListThatWasOnlyClickedIsTakenAsItWas()
{
    MacroInfo macro = namedMacro("clicked");
    putEvents(macro.KEYMAP, {{48, 1, 1}, {48, 2, 2}});
    const EditorStage stage(macro);
    stage.click("pMacroDisplayView");
    QCOMPARE(stage.events().count(), 0U);
    QCOMPARE(listed(stage.confirmed().KEYMAP, 3), QStringLiteral("48/1/1 48/2/2 0/0/0"));
}

void tst_editorevents::recordingStopsAtThreeHundredEvents()
{
    const EditorStage stage;
    stage.click("pMacroDisplayView");
    recordTaps(kMost / 2 + 3);
    QCOMPARE(stage.events().count(), 300U);
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(listed(std::span(stored.KEYMAP).subspan(299), 2), QStringLiteral("11/2/0 0/0/0"));
}

void tst_editorevents::theLastHalfOfAPairBeyondTheLimitIsLost()
{
    const EditorStage stage;
    stage.click("pMacroDisplayView");
    recordTaps(kMost / 2 - 1);
    press(kB);
    tap(kCapsLock);
    QCOMPARE(stage.events().count(), 301U);
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(listed(std::span(stored.KEYMAP).subspan(298), 3),
             QStringLiteral("11/1/0 57/1/0 0/0/0"));
}

void tst_editorevents::recordedKeysAreStored_data()
{
    QTest::addColumn<bool>("isStart");
    QTest::newRow("pStartDisplayView") << true;
    QTest::newRow("pSendDisplayView") << false;
}

void tst_editorevents::recordedKeysAreStored()
{
    QFETCH(bool, isStart);
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.click(QTest::currentDataTag());
    tap(kB);
    const MacroInfo &stored = stage.confirmed();
    const QString recorded = QStringLiteral("11/1/0 11/2/0");
    const QString enter = QStringLiteral("36/1/0 36/2/0");
    QCOMPARE(listed(stored.STARTKEY, 2), isStart ? recorded : enter);
    QCOMPARE(listed(stored.SENDKEY, 2), isStart ? enter : recorded);
}

void tst_editorevents::aThirdEventOfAKeyIsNotTaken()
{
    QFETCH(bool, isStart);
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.click(QTest::currentDataTag());
    press(kB);
    tap(kCapsLock);
    tap(kA);
    QCOMPARE(stage.display(QTest::currentDataTag()).count(), 3U);
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(listed(isStart ? stored.STARTKEY : stored.SENDKEY, 2),
             QStringLiteral("11/1/0 57/1/0"));
    QCOMPARE(stored.bSENDKEY, 1U); // what lies behind the slots in the record
}

void tst_editorevents::aKeyOfOneEventKeepsTheOldSecondOne()
{
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.click("pStartDisplayView");
    press(kTab);
    QCOMPARE(listed(stage.confirmed().STARTKEY, 2), QStringLiteral("48/1/0 36/2/0"));
}

void tst_editorevents::delaysAreRecordedInEveryMode_data()
{
    recordedEventsAreStored_data();
}

void tst_editorevents::delaysAreRecordedInEveryMode()
{
    QFETCH(QByteArray, mode);
    const EditorStage stage;
    stage.click(mode.constData());
    stage.click("pMacroDisplayView");
    press(kA, {.time = 1000, .modifiers = {}});
    release(kA, {.time = 1200, .modifiers = {}});
    press(kB, {.time = 2200, .modifiers = {}});
    QCOMPARE(listed(stage.confirmed().KEYMAP, 3), QStringLiteral("0/1/4 0/2/20 11/1/0"));
}

KYR_GUI_TEST(tst_editorevents)
#include "tst_editorevents.moc"
