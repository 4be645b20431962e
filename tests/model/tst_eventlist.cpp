#include "model/eventlist.h"
#include "support/suite.h"

#include <array>
#include <vector>

/// The text form of event lists.
class tst_eventlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTokenizerGivesWhatStandsBeforeEachComma_data();
    void theTokenizerGivesWhatStandsBeforeEachComma();
    void theCursorStandsBehindTheComma();
    void aCursorPastTheEndGivesNothing();
    void aListIsReadTripleByTriple_data();
    void aListIsReadTripleByTriple();
    void aNumberIsItsLeadingDigits_data();
    void aNumberIsItsLeadingDigits();
    void readingClearsTheListFirst();
    void readingStopsWhenTheSlotsAreFull_data();
    void readingStopsWhenTheSlotsAreFull();
    void onlyUsedEventsAreWritten_data();
    void onlyUsedEventsAreWritten();
    void allEventsAreWrittenEmptyOnesIncluded();
    void numbersAreWrittenSigned();
    void aFullListHasNoTerminatorAndIsReadBackWhole();
};

bool operator==(const KeymapEvent &a, const KeymapEvent &b)
{
    return a.keycode == b.keycode && a.kind == b.kind && a.delay == b.delay;
}

using EventList = std::vector<KeymapEvent>;

namespace {

std::string repeated(const std::string &text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

EventList fullList()
{
    EventList events(500);
    for (std::uint32_t i = 0; i < 500; ++i)
        events[i] = {i, 1 + i % 2, 1000 - i};
    return events;
}

} // namespace

void tst_eventlist::theTokenizerGivesWhatStandsBeforeEachComma_data()
{
    QTest::addColumn<std::string>("text");
    QTest::addColumn<std::vector<std::string>>("tokens");
    using Tokens = std::vector<std::string>;
    QTest::newRow("empty") << std::string() << Tokens{};
    QTest::newRow("one") << std::string("56,") << Tokens{"56"};
    QTest::newRow("an event") << std::string("56,1,3,") << Tokens{"56", "1", "3"};
    QTest::newRow("last without comma") << std::string("56,1,3") << Tokens{"56", "1"};
    QTest::newRow("no comma at all") << std::string("56") << Tokens{};
    QTest::newRow("empty tokens") << std::string(",,7,") << Tokens{"", "", "7"};
    QTest::newRow("anything") << std::string(" a b,\n,") << Tokens{" a b", "\n"};
}

void tst_eventlist::theTokenizerGivesWhatStandsBeforeEachComma()
{
    QFETCH(std::string, text);
    unsigned cursor = 0;
    std::vector<std::string> tokens;
    while (const auto token = GetSubString(cursor, text))
        tokens.emplace_back(*token);
    QTEST(tokens, "tokens");
}

void tst_eventlist::theCursorStandsBehindTheComma()
{
    unsigned cursor = 0;
    GetSubString(cursor, "56,1,");
    QCOMPARE(cursor, 3U);
    GetSubString(cursor, "56,1,");
    QCOMPARE(cursor, 5U);
}

void tst_eventlist::aCursorPastTheEndGivesNothing()
{
    for (unsigned start : {3U, 4U, UINT32_MAX}) {
        unsigned cursor = start;
        QVERIFY(!GetSubString(cursor, "56,"));
        QCOMPARE(cursor, start);
    }
}

void tst_eventlist::aListIsReadTripleByTriple_data()
{
    QTest::addColumn<std::string>("text");
    QTest::addColumn<EventList>("events");
    const auto row = [](const char *name, const char *text, const EventList &events) {
        QTest::newRow(name) << std::string(text) << events;
    };
    row("empty", "", {{}, {}, {}});
    row("two events", "56,1,3,56,2,0,", {{56, 1, 3}, {56, 2, 0}, {}});
    row("a slot cut short after its kind", "1,1,5,2,", {{1, 1, 5}, {2, 0, 0}, {}});
    row("a slot cut short before its delay", "1,1,5,2,1,", {{1, 1, 5}, {2, 1, 0}, {}});
    row("last number without comma", "1,1,5,2,1,9", {{1, 1, 5}, {2, 1, 0}, {}});
    row("one number without comma", "7", {{}, {}, {}});
    row("a kind of 0 does not stop reading", "1,0,5,2,1,6,", {{1, 0, 5}, {2, 1, 6}, {}});
    row("empty slots first", "0,0,0,2,1,6,", {{}, {2, 1, 6}, {}});
    row("commas only", ",,,,", {{}, {}, {}});
    row("more triples than slots", "1,1,1,2,1,2,3,1,3,4,1,4,", {{1, 1, 1}, {2, 1, 2}, {3, 1, 3}});
    row("not a list", "hello, world", {{}, {}, {}});
}

void tst_eventlist::aListIsReadTripleByTriple()
{
    QFETCH(std::string, text);
    EventList events(3);
    readEventList(text, events);
    QTEST(events, "events");
}

void tst_eventlist::aNumberIsItsLeadingDigits_data()
{
    QTest::addColumn<std::string>("token");
    QTest::addColumn<std::uint32_t>("number");
    const auto row = [](const std::string &token, std::uint32_t number) {
        QTest::newRow(('"' + token + '"').c_str()) << token << number;
    };
    row("0", 0);
    row("007", 7);
    row("  12", 12);
    row("\t\n 12", 12);
    row("12abc", 12);
    row("12 34", 12);
    row("12.9", 12);
    row("0x10", 0);
    row("abc", 0);
    row("", 0);
    row("   ", 0);
    row("-5", 0);
    row("2147483647", 2147483647);
    row("2147483648", 2147483647);
    row("4294967296", 2147483647);
    row("99999999999999999999999999999999", 2147483647);
}

void tst_eventlist::aNumberIsItsLeadingDigits()
{
    QFETCH(std::string, token);
    QFETCH(std::uint32_t, number);
    EventList events(1);
    readEventList("3," + token + ",4,", events);
    QCOMPARE(events, (EventList{{3, number, 4}}));
}

void tst_eventlist::readingClearsTheListFirst()
{
    EventList events(4, {9, 9, 9});
    readEventList("1,2,3,", events);
    QCOMPARE(events, (EventList{{1, 2, 3}, {}, {}, {}}));
}

void tst_eventlist::readingStopsWhenTheSlotsAreFull_data()
{
    QTest::addColumn<int>("triples");
    QTest::addColumn<unsigned>("slots");
    QTest::addColumn<std::uint32_t>("read");
    QTest::newRow("499 of 500") << 499 << 500U << 499U;
    QTest::newRow("500 of 500") << 500 << 500U << 500U;
    QTest::newRow("501 of 500") << 501 << 500U << 500U;
    QTest::newRow("10000 of 500") << 10000 << 500U << 500U;
    QTest::newRow("3 of 2") << 3 << 2U << 2U;
}

void tst_eventlist::readingStopsWhenTheSlotsAreFull()
{
    QFETCH(int, triples);
    QFETCH(unsigned, slots);
    QFETCH(std::uint32_t, read);
    const KeymapEvent event = {7, 1, 2};
    const KeymapEvent guard = {99, 99, 99};
    EventList events(slots + 1, guard);
    readEventList(repeated("7,1,2,", triples), std::span(events).first(slots));
    EventList expected(read, event);
    expected.resize(slots);
    expected.push_back(guard);
    QCOMPARE(events, expected);
}

void tst_eventlist::onlyUsedEventsAreWritten_data()
{
    QTest::addColumn<EventList>("events");
    QTest::addColumn<std::string>("text");
    QTest::newRow("no slots") << EventList{} << std::string();
    QTest::newRow("empty") << EventList{{}, {}} << std::string();
    QTest::newRow("two") << EventList{{56, 1, 3}, {56, 2, 0}, {}} << std::string("56,1,3,56,2,0,");
    QTest::newRow("up to the first kind of 0")
        << EventList{{1, 1, 1}, {2, 0, 2}, {3, 1, 3}} << std::string("1,1,1,");
    QTest::newRow("full") << EventList{{1, 1, 1}, {2, 2, 2}} << std::string("1,1,1,2,2,2,");
}

void tst_eventlist::onlyUsedEventsAreWritten()
{
    QFETCH(EventList, events);
    QTEST(usedEventsText(events), "text");
}

void tst_eventlist::allEventsAreWrittenEmptyOnesIncluded()
{
    QCOMPARE(allEventsText(EventList{{}, {}}), std::string("0,0,0,0,0,0,"));
    QCOMPARE(allEventsText(EventList{{}, {8, 1, 0}}), std::string("0,0,0,8,1,0,"));
    QCOMPARE(allEventsText(EventList{{8, 0, 5}, {}}), std::string("8,0,5,0,0,0,"));
}

void tst_eventlist::numbersAreWrittenSigned()
{
    const EventList events = {{2147483647, 2147483648, 4294967295}};
    QCOMPARE(usedEventsText(events), std::string("2147483647,-2147483648,-1,"));
}

void tst_eventlist::aFullListHasNoTerminatorAndIsReadBackWhole()
{
    const EventList events = fullList();
    const std::string text = usedEventsText(events);
    QCOMPARE(std::ranges::count(text, ','), 1500);
    QVERIFY(text.ends_with(",501,"));

    EventList again(500, {9, 9, 9});
    readEventList(text, again);
    QCOMPARE(again, events);
}

KYR_PLAIN_TEST(tst_eventlist)
#include "tst_eventlist.moc"
