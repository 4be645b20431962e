#include "mainview/characterreply.h"

#include "support/logcapture.h"
#include "support/suite.h"

/// What is read from the lines of the game service's reply.
class tst_characterreply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsKnownAtFirst();
    void aNumberStandsBetweenColonAndComma_data();
    void aNumberStandsBetweenColonAndComma();
    void aThumbnailStandsBetweenQuotes_data();
    void aThumbnailStandsBetweenQuotes();
    void aLineMayHoldAll();
    void aLaterLineReplacesAnEarlierOne();
    void aLineThatSaysNothingReplacesNothing();
    void itIsCompleteWithAllThree_data();
    void itIsCompleteWithAllThree();
    void linesAreLoggedUntilTheReplyIsComplete();
    void theTextIsSplitAtEveryNewline_data();
    void theTextIsSplitAtEveryNewline();
    void whatIsLoggedOfALineIsBounded();
    void manyLinesAreReadInSlices();
};

namespace {

CharacterReply replyOf(std::initializer_list<std::string_view> lines)
{
    CharacterReply reply;
    for (const std::string_view line : lines)
        reply.read(line);
    return reply;
}

/// Whether a line of a class, a level or a thumbnail says anything: with the other two known the
/// reply is complete exactly then.
bool saysSomething(std::string_view word, std::string_view line)
{
    CharacterReply reply;
    if (word != "class")
        reply.read("class:1,");
    if (word != "level")
        reply.read("level:1,");
    if (word != "thumbnail")
        reply.read("thumbnail:\"x\"");
    reply.read(line);
    return reply.isComplete();
}

void readAll(CharacterReading &reading)
{
    while (!reading.readSome()) {
    }
}

constexpr int kNothing = -99;

} // namespace

void tst_characterreply::nothingIsKnownAtFirst()
{
    const CharacterReply reply;
    QVERIFY(!reply.isComplete());
    QCOMPARE(reply.classId(), 0);
    QCOMPARE(reply.level(), 0);
    QCOMPARE(reply.thumbnail(), std::string());
}

void tst_characterreply::aNumberStandsBetweenColonAndComma_data()
{
    QTest::addColumn<QByteArray>("line"); ///< with "#" for the word that is looked for
    QTest::addColumn<int>("value");
    const auto row = [](const char *line, int value) {
        QTest::newRow(line) << QByteArray(line) << value;
    };
    row("  \"#\":11,", 11);
    row("\"#\" : \t 6,", 6);
    row("\"#\":-4,", -4);
    row("\"#\":80", kNothing);
    row("\"#\" 80,", kNothing);
    row("#", kNothing);
    row("a,\"#\":80", kNothing);
    row("a,\"#\":80,", kNothing);
    row("\"#\":80,90,", 80);
    row("\"#\":80:90,", 80);
    row("\"#\":80x,", 80);
    row("\"a\":7,\"#\":3,", 7);
    row("7:5,#", 5);
    row("\"in#es\":9,", 9);
    row("\"#\":\"9\",", 0);
    row("\"#\":,", 0);
    row("\"#\":abc,", 0);
    row("\"#\":99999999999,", 2147483647);
    row("\"#\":-99999999999,", -2147483647 - 1);
}

void tst_characterreply::aNumberStandsBetweenColonAndComma()
{
    QFETCH(QByteArray, line);
    QFETCH(int, value);
    for (const char *word : {"class", "level"}) {
        const std::string given = QByteArray(line).replace("#", word).toStdString();
        const CharacterReply reply = replyOf({given});
        const bool isClass = word == std::string_view("class");
        QCOMPARE(isClass ? reply.classId() : reply.level(), value == kNothing ? 0 : value);
        QCOMPARE(isClass ? reply.level() : reply.classId(), 0);
        QCOMPARE(saysSomething(word, given), value != kNothing);
        // Only in small letters.
        const std::string loud =
            QByteArray(line).replace("#", QByteArray(word).toUpper()).toStdString();
        QVERIFY(!saysSomething(word, loud));
    }
}

void tst_characterreply::aThumbnailStandsBetweenQuotes_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("saysSomething");
    QTest::addColumn<QByteArray>("thumbnail");
    const auto row = [](const char *line, const char *thumbnail) {
        QTest::newRow(line) << QByteArray(line) << bool(thumbnail) << QByteArray(thumbnail);
    };
    row("\"thumbnail\":\"realm/123/123-avatar.jpg\",", "realm/123/123-avatar.jpg");
    row("\"thumbnail\":\"a\"b\"", "a");
    row("\"thumbnail\":'a\"", "a");
    row("\"thumbnail\":xa\"", "a");
    row("\"thumbnail\": \"a\"", "");
    row("\"thumbnail\":\"\"", "");
    row("\"thumbnail\":\xC3\xA9"
        "a\"",
        "a");
    row("\"thumbnail\":\xE7\x81\xAB"
        "b\"",
        "b");
    row("\"thumbnail\":\xF0\x9F\x90\x89\"", "");
    row("\"a\":\"first\",\"thumbnail\":\"second\"", "first");
    row("\"my thumbnails\":\"a/b\"", "a/b");
    row("\"thumbnail\":\"a", nullptr);
    row("\"thumbnail\":\"", nullptr);
    row("\"thumbnail\":", nullptr);
    row("\"thumbnail\" \"a\"", nullptr);
    row("\"Thumbnail\":\"a\"", nullptr);
    row("", nullptr);
}

void tst_characterreply::aThumbnailStandsBetweenQuotes()
{
    QFETCH(QByteArray, line);
    const std::string given = line.toStdString();
    QTEST(QByteArray::fromStdString(replyOf({given}).thumbnail()), "thumbnail");
    QTEST(::saysSomething("thumbnail", given), "saysSomething");
}

/// The values are those of the line's first key, on purpose.
void tst_characterreply::aLineMayHoldAll()
{
    const CharacterReply reply =
        replyOf({R"({"class":6,"level":80,"thumbnail":"realm/1/1-avatar.jpg"})"});
    QVERIFY(reply.isComplete());
    QCOMPARE(reply.classId(), 6);
    QCOMPARE(reply.level(), 6);
    QCOMPARE(reply.thumbnail(), std::string(","));
}

void tst_characterreply::aLaterLineReplacesAnEarlierOne()
{
    const CharacterReply reply = replyOf({"class:1,", "level:2,", "class:3,", "class level:4,"});
    QCOMPARE(reply.classId(), 4);
    QCOMPARE(reply.level(), 4);
    QCOMPARE(replyOf({"thumbnail:\"a\"", "thumbnail:\"b\""}).thumbnail(), std::string("b"));
}

void tst_characterreply::aLineThatSaysNothingReplacesNothing()
{
    const CharacterReply reply = replyOf(
        {"class:1,", "level:2,", "thumbnail:\"a\"", "class:7", "level,8:", "thumbnail:\"z"});
    QVERIFY(reply.isComplete());
    QCOMPARE(reply.classId(), 1);
    QCOMPARE(reply.level(), 2);
    QCOMPARE(reply.thumbnail(), std::string("a"));
}

void tst_characterreply::itIsCompleteWithAllThree_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isComplete");
    const auto row = [](const char *name, const char *text, bool isComplete) {
        QTest::newRow(name) << QByteArray(text) << isComplete;
    };
    row("all", "class:1,\nlevel:2,\nthumbnail:\"a\"", true);
    row("in another order", "thumbnail:\"a\"\nlevel:2,\nclass:1,", true);
    row("empty values", "class:0,\nlevel:0,\nthumbnail:\"\"", true);
    row("no thumbnail", "class:1,\nlevel:2,", false);
    row("no level", "class:1,\nthumbnail:\"a\"", false);
    row("no class", "level:2,\nthumbnail:\"a\"", false);
    row("one line with returns", "class:1,\rlevel:2,\rthumbnail:\"a\"", true);
    row("a value on the next line", "class\n:1,\nlevel:2,\nthumbnail:\"a\"", false);
    row("nothing", "", false);
}

void tst_characterreply::itIsCompleteWithAllThree()
{
    QFETCH(QByteArray, text);
    const LogCapture log;
    CharacterReading reading(text.toStdString());
    readAll(reading);
    QTEST(reading.reply().isComplete(), "isComplete");
}

void tst_characterreply::linesAreLoggedUntilTheReplyIsComplete()
{
    const LogCapture log;
    CharacterReading reading("{\n\"class\":1,\nlevel:2,\nthumbnail:\"a\"\nclass:9,\n}");
    readAll(reading);
    const std::vector<std::string> lines{"{", "\"class\":1,", "level:2,", "thumbnail:\"a\""};
    QCOMPARE(log.lines, lines);
    QCOMPARE(reading.reply().classId(), 1);
    readAll(reading);
    QCOMPARE(log.lines, lines);
}

void tst_characterreply::theTextIsSplitAtEveryNewline_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArrayList>("lines");
    QTest::newRow("empty") << QByteArray() << QByteArrayList{""};
    QTest::newRow("no newline") << QByteArray("a b") << QByteArrayList{"a b"};
    QTest::newRow("one at the end") << QByteArray("a\n") << QByteArrayList{"a", ""};
    QTest::newRow("only newlines") << QByteArray("\n\n") << QByteArrayList{"", "", ""};
    QTest::newRow("carriage returns") << QByteArray("a\r\nb\r") << QByteArrayList{"a ", "b "};
    QTest::newRow("per cent signs") << QByteArray("%s%n\n%d") << QByteArrayList{"%s%n", "%d"};
}

void tst_characterreply::theTextIsSplitAtEveryNewline()
{
    QFETCH(QByteArray, text);
    const LogCapture log;
    CharacterReading reading(text.toStdString());
    readAll(reading);
    QByteArrayList lines;
    for (const std::string &line : log.lines)
        lines << QByteArray::fromStdString(line);
    QTEST(lines, "lines");
}

void tst_characterreply::whatIsLoggedOfALineIsBounded()
{
    const LogCapture log;
    const std::string start = "thumbnail:\"" + std::string(1 << 20, 'x');
    CharacterReading reading(start + "\"\nclass:1,");
    readAll(reading);
    QCOMPARE(log.lines.front(), start.substr(0, std::size_t{16} * 1024));
    QCOMPARE(log.lines.back(), std::string("class:1,"));
    // It is read as a whole.
    QCOMPARE(reading.reply().thumbnail().size(), std::size_t{1} << 20);
}

void tst_characterreply::manyLinesAreReadInSlices()
{
    constexpr int count = 1'000'000;
    long logged = 0;
    setSystemLogSink([&](const std::string & /*line*/) { ++logged; });
    CharacterReading reading(std::string(count, '\n') + "class:1,\nlevel:2,\nthumbnail:\"a\"");
    QVERIFY(!reading.readSome());
    QVERIFY(logged > 0);
    QVERIFY(logged < count);
    QVERIFY(!reading.reply().isComplete());
    readAll(reading);
    setSystemLogSink({});
    QCOMPARE(logged, count + 3L);
    QVERIFY(reading.reply().isComplete());
}

KYR_CORE_TEST(tst_characterreply)
#include "tst_characterreply.moc"
