#include "displaystage.h"
#include "support/suite.h"

/// A list of events as a line of text.
class tst_eventtext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsAreWrittenInAStyle_data();
    void eventsAreWrittenInAStyle();
    void aNewViewWritesAll();
    void theTextOfAViewIsLogged();
    void theTextOfAFullListIsLoggedWhole();
    void aPersonsKeyIsWrittenAsHeld();
    void capsLockIsWrittenWhole();
};

namespace {

constexpr std::uint32_t kOtherKind = 3;

const Events kHeldA{{0, kKeyPress, 2}, {0, kKeyRelease, 0}};

} // namespace

void tst_eventtext::eventsAreWrittenInAStyle_data()
{
    QTest::addColumn<Events>("events");
    QTest::addColumn<QString>("all");
    QTest::addColumn<QString>("withoutDelays");
    QTest::addColumn<QString>("withoutMarks");
    QTest::addColumn<QString>("namesOnly");
    const auto row = [](const char *title, const Events &events, const char *all,
                        const char *withoutDelays, const char *withoutMarks,
                        const char *namesOnly) {
        QTest::newRow(title) << events << QString::fromLatin1(all)
                             << QString::fromLatin1(withoutDelays)
                             << QString::fromLatin1(withoutMarks) << QString::fromLatin1(namesOnly);
    };
    row("none", {}, "", "", "", "");
    row("a held key", kHeldA, "A|(100ms)A^", "A|A^", "A(100ms)", "A");
    row("a delay after a release", {{0, 2, 20}, {11, 1, 0}}, "A^(1000ms)B|", "A^B|", "(1000ms)B",
        "B");
    row("the shortest delay", {{48, 1, 1}}, "Tab|(50ms)", "Tab|", "Tab(50ms)", "Tab");
    row("another kind", {{0, kOtherKind, 2}}, "A(100ms)", "A", "(100ms)", "");
    row("an empty slot in between", {{0, 0, 0}, {11, 1, 0}}, "AB|", "AB|", "B", "B");
    row("a key without a name", {{111, 1, 2}, {111, 2, 0}}, "|(100ms)^", "|^", "(100ms)", "");
    row("codes from 127 on", {{127, 1, 0}, {200, 2, 0}, {255, 1, 0}}, "|^|", "|^|", "", "");
    row("low bits of a code", {{256, 1, 0}, {0xffffff0b, 2, 0}, {383, 1, 0}}, "A|B^|", "A|B^|", "A",
        "A");
    row("signs among the names", {{33, 1, 0}, {42, 1, 0}, {67, 2, 0}}, "[|\\|(*)^", "[|\\|(*)^",
        "[\\", "[\\");
    row("a delay that shows as negative", {{0, 1, 0x80000000 / 50 + 1}}, "A|(-2147483646ms)", "A|",
        "A(-2147483646ms)", "A");
}

void tst_eventtext::eventsAreWrittenInAStyle()
{
    QFETCH(Events, events);
    QFETCH(QString, all);
    QFETCH(QString, withoutDelays);
    QFETCH(QString, withoutMarks);
    QFETCH(QString, namesOnly);
    QCOMPARE(eventText(events, {}), all);
    QCOMPARE(eventText(events, {.showsDelays = false}), withoutDelays);
    QCOMPARE(eventText(events, {.showsUpAndDown = false}), withoutMarks);
    QCOMPARE(eventText(events, {.showsDelays = false, .showsUpAndDown = false}), namesOnly);
}

void tst_eventtext::aNewViewWritesAll()
{
    DisplayStage stage;
    QCOMPARE(stage.display.GetMacroOutputString(), QString());
    stage.display.setKeymapInfo(kHeldA);
    QCOMPARE(stage.display.GetMacroOutputString(), QStringLiteral("A|(100ms)A^"));
    stage.display.setDisplayDelay(false);
    QCOMPARE(stage.display.GetMacroOutputString(), QStringLiteral("A|A^"));
    stage.display.setDisplayUpAndDown(false);
    QCOMPARE(stage.display.GetMacroOutputString(), QStringLiteral("A"));
    stage.display.setDisplayDelay(true);
    QCOMPARE(stage.display.GetMacroOutputString(), QStringLiteral("A(100ms)"));
}

void tst_eventtext::theTextOfAViewIsLogged()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(kHeldA);
    stage.log.lines.clear();
    stage.display.GetMacroOutputString();
    QCOMPARE(stage.log.lines, std::vector<std::string>{"A|(100ms)A^"});
    stage.display.setKeymapInfo({});
    stage.log.lines.clear();
    stage.display.GetMacroOutputString();
    QCOMPARE(stage.log.lines, std::vector<std::string>{""});
}

void tst_eventtext::theTextOfAFullListIsLoggedWhole()
{
    DisplayStage stage;
    stage.display.setMaxKeymapEvent(kMostMacroEvents);
    stage.display.setKeymapInfo(Events(kMostMacroEvents, {121, kKeyPress, 20}));
    stage.log.lines.clear();
    const QString text = stage.display.GetMacroOutputString();
    QCOMPARE(text, QStringLiteral("Pagedown|(1000ms)").repeated(kMostMacroEvents));
    QCOMPARE(stage.log.lines, std::vector<std::string>{text.toStdString()});
}

void tst_eventtext::aPersonsKeyIsWrittenAsHeld()
{
    DisplayStage stage;
    stage.click();
    keystroke::press(keystroke::kA, at(1000));
    keystroke::release(keystroke::kA, at(1120));
    QCOMPARE(stage.display.GetMacroOutputString(), QStringLiteral("A|(100ms)A^"));
}

void tst_eventtext::capsLockIsWrittenWhole()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(keystroke::kCapsLock);
    QCOMPARE(stage.display.GetMacroOutputString(), QStringLiteral("Capslock|Capslock^"));
    stage.display.setDisplayUpAndDown(false);
    QCOMPARE(stage.display.GetMacroOutputString(), QStringLiteral("Capslock"));
}

KYR_GUI_TEST(tst_eventtext)
#include "tst_eventtext.moc"
