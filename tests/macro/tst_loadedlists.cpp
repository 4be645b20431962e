#include "displaystage.h"
#include "support/suite.h"

/// Loading a stored list into the recording view.
class tst_loadedlists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aListEndsAtItsFirstEmptySlot_data();
    void aListEndsAtItsFirstEmptySlot();
    void aListIsLoadedUpToTheLimit_data();
    void aListIsLoadedUpToTheLimit();
    void eventsOfAnyOtherKindAreKept();
    void loadingClearsAllOldSlots();
    void loadingAnEmptyListClearsTheView();
    void aLoadedListIsShown();
    void aDisabledViewShowsAListToo();
    void loadingLeavesTheKeyboardWhereItIs_data();
    void loadingLeavesTheKeyboardWhereItIs();
    void keysAreRecordedBehindALoadedList();
    void aListTakenFromOneViewLoadsIntoAnother();
};

namespace {

/// Events of a list, each of its own code and delay.
Events numbered(std::size_t count)
{
    Events events;
    for (std::uint32_t at = 0; at < count; ++at)
        events.push_back({at % 120, at % 2 + 1, at});
    return events;
}

std::size_t usedSlots(const MacroDisplay &display)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        display.getKeymapInfo(), [](const KeymapEvent &slot) { return !(slot == KeymapEvent{}); }));
}

} // namespace

void tst_loadedlists::aListEndsAtItsFirstEmptySlot_data()
{
    QTest::addColumn<Events>("stored");
    QTest::addColumn<QString>("loaded");
    const auto row = [](const char *name, const Events &stored, const char *loaded) {
        QTest::newRow(name) << stored << QString::fromLatin1(loaded);
    };
    row("the third", {{48, 1, 2}, {48, 2, 3}, {0, 0, 0}, {11, 1, 4}}, "48:1:2 48:2:3");
    row("a slot with a code and a delay", {{48, 1, 2}, {11, 0, 9}, {11, 1, 4}}, "48:1:2");
    row("the first", {{48, 0, 2}, {11, 1, 4}}, "");
    row("none", {{48, 1, 2}, {48, 2, 3}}, "48:1:2 48:2:3");
    row("a list without slots", {}, "");
}

void tst_loadedlists::aListEndsAtItsFirstEmptySlot()
{
    QFETCH(Events, stored);
    QFETCH(QString, loaded);
    DisplayStage stage;
    stage.display.setKeymapInfo(stored);
    QCOMPARE(stage.list(), loaded);
    QCOMPARE(usedSlots(stage.display), static_cast<std::size_t>(stage.display.count()));
}

void tst_loadedlists::aListIsLoadedUpToTheLimit_data()
{
    QTest::addColumn<std::uint32_t>("limit");
    QTest::addColumn<std::size_t>("stored");
    QTest::addColumn<std::size_t>("loaded");
    const auto row = [](const char *name, std::uint32_t limit, std::size_t stored,
                        std::size_t loaded) { QTest::newRow(name) << limit << stored << loaded; };
    row("the limit at first", 32, 500, 32);
    row("a short list", 2, 500, 2);
    row("a short list that is full", 2, 2, 2);
    row("a macro", 300, 500, 300);
    row("a macro that is full", 300, 300, 300);
    row("a list shorter than the limit", 300, 2, 2);
    row("all of the store", 500, 500, 500);
    row("a limit beyond the store", 100'000, 500, 500);
    row("a list beyond the store", 100'000, 700, 500);
    row("no limit to speak of", 0, 500, 0);
}

void tst_loadedlists::aListIsLoadedUpToTheLimit()
{
    QFETCH(std::uint32_t, limit);
    QFETCH(std::size_t, stored);
    QFETCH(std::size_t, loaded);
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(limit);
    stage.display.setKeymapInfo(numbered(stored));
    QVERIFY(stage.events() == numbered(loaded));
    QCOMPARE(usedSlots(stage.display), loaded);
}

void tst_loadedlists::eventsOfAnyOtherKindAreKept()
{
    DisplayStage stage;
    const Events stored{{0xffffffff, 0xffffffff, 0xffffffff}, {300, 3, 1}};
    stage.display.setKeymapInfo(stored);
    QVERIFY(stage.events() == stored);
}

void tst_loadedlists::loadingClearsAllOldSlots()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(kEventCount);
    stage.display.setKeymapInfo(numbered(kEventCount));
    stage.click(); // leaves them in their slots
    QCOMPARE(usedSlots(stage.display), std::size_t{kEventCount});
    stage.display.setKeymapInfo(Events{{48, 1, 2}, {48, 2, 3}});
    QCOMPARE(stage.firstSlots(3), QStringLiteral("48:1:2 48:2:3 0:0:0"));
    QCOMPARE(usedSlots(stage.display), std::size_t{2});
}

void tst_loadedlists::loadingAnEmptyListClearsTheView()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(numbered(10));
    stage.display.setKeymapInfo({});
    QCOMPARE(stage.display.count(), 0U);
    QCOMPARE(usedSlots(stage.display), std::size_t{0});
}

void tst_loadedlists::aLoadedListIsShown()
{
    DisplayStage stage;
    QCoreApplication::processEvents();
    stage.display.setKeymapInfo(Events{{48, 1, 2}, {48, 2, 3}});
    QTRY_VERIFY(stage.log.contains("Tab|(100ms)Tab^(150ms)"));
}

void tst_loadedlists::aDisabledViewShowsAListToo()
{
    DisplayStage stage;
    stage.display.enablewindow(false);
    stage.display.setKeymapInfo(Events{{48, 1, 2}, {48, 2, 3}});
    QCOMPARE(stage.list(), QStringLiteral("48:1:2 48:2:3"));
    QTRY_VERIFY(stage.log.contains("Tab|(100ms)Tab^(150ms)"));
}

void tst_loadedlists::loadingLeavesTheKeyboardWhereItIs_data()
{
    QTest::addColumn<bool>("isHere");
    QTest::newRow("here") << true;
    QTest::newRow("elsewhere") << false;
}

void tst_loadedlists::loadingLeavesTheKeyboardWhereItIs()
{
    QFETCH(bool, isHere);
    DisplayStage stage;
    isHere ? stage.click() : stage.other.setFocus();
    stage.display.setKeymapInfo(numbered(10));
    QCOMPARE(stage.display.hasFocus(), isHere);
    QCOMPARE(stage.other.hasFocus(), !isHere);
}

void tst_loadedlists::keysAreRecordedBehindALoadedList()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(3);
    stage.click();
    stage.display.setKeymapInfo(Events{{48, 1, 2}, {48, 2, 3}});
    // Nothing was recorded before: there is no pause to end.
    keystroke::tap(keystroke::kA);
    QCOMPARE(stage.list(), QStringLiteral("48:1:2 48:2:0 0:1:0"));
}

void tst_loadedlists::aListTakenFromOneViewLoadsIntoAnother()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(keystroke::kA);
    keystroke::tap(keystroke::kCapsLock);
    MacroDisplay second(&stage.window);
    second.setMaxKeymapEvent(3);
    second.setKeymapInfo(stage.display.getKeymapInfo());
    QCOMPARE(listed(second.getKeymapInfo().first(4)), QStringLiteral("0:1:0 0:2:0 57:1:0 0:0:0"));
}

KYR_GUI_TEST(tst_loadedlists)
#include "tst_loadedlists.moc"
