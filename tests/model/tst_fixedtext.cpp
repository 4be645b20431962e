#include "model/fixedtext.h"

#include "support/suite.h"
#include "support/testsettings.h"

#include <algorithm>
#include <array>

/// Texts in and out of the record's fixed arrays.
class tst_fixedtext : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsCutAtTheLastWholeCharacterThatFits_data();
    void aTextIsCutAtTheLastWholeCharacterThatFits();
    void everyCharacterWidthIsCutWholeAtEveryPhase_data();
    void everyCharacterWidthIsCutWholeAtEveryPhase();
    void aTextEndsAtANul();
    void theRestOfTheFieldIsCleared();
    void aFieldWithoutTerminatorReadsToItsEnd();
    void whatAFileCannotHoldIsReplaced_data();
    void whatAFileCannotHoldIsReplaced();
    void whatIsStoredIsReadBackFromTheFile_data();
    void whatIsStoredIsReadBackFromTheFile();
    void aHugeBrokenTextIsStoredAtOnce();
};

namespace {

const QByteArray kReplacement = "\xEF\xBF\xBD";

QByteArray stored(const QByteArray &text, unsigned capacity = 200)
{
    std::array<char, 300> bytes = {};
    bytes.fill('x');
    const std::span<char> field = std::span(bytes).first(capacity);
    SetText(field, std::string_view(text.data(), static_cast<std::size_t>(text.size())));
    if (field.back() != '\0' || bytes[capacity] != 'x')
        qFatal("the text is not terminated within its field");
    const auto result = GetText(field);
    return {result.data(), static_cast<qsizetype>(result.size())};
}

/// Characters of 1 to 4 bytes.
const QByteArray kCharacters[] = {"a", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"};

} // namespace

void tst_fixedtext::aTextIsCutAtTheLastWholeCharacterThatFits_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<unsigned>("capacity");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const QByteArray &text, unsigned capacity,
                        const QByteArray &expected) {
        QTest::newRow(name) << text << capacity << expected;
    };
    const QByteArray full(199, 'a');
    row("empty", "", 200, "");
    row("199 bytes fit 200", full, 200, full);
    row("200 bytes are cut to 199", full + 'b', 200, full);
    row("5000 bytes are cut to 199", QByteArray(5000, 'a'), 200, full);
    row("99 bytes fit a macro name", full.left(99), 100, full.left(99));
    row("100 bytes do not", full.left(100), 100, full.left(99));
    row("259 bytes fit a copied text", QByteArray(259, 'c'), 260, QByteArray(259, 'c'));
    row("260 bytes do not", QByteArray(260, 'c'), 260, QByteArray(259, 'c'));
    row("a field of one byte holds nothing", "ab", 1, "");
    row("nor half a character", "\xC3\xA9", 2, "");
    row("a byte order mark stays", "\xEF\xBB\xBF" + full, 200, "\xEF\xBB\xBF" + full.left(196));
}

void tst_fixedtext::aTextIsCutAtTheLastWholeCharacterThatFits()
{
    QFETCH(QByteArray, text);
    QFETCH(unsigned, capacity);
    QTEST(stored(text, capacity), "expected");
}

void tst_fixedtext::everyCharacterWidthIsCutWholeAtEveryPhase_data()
{
    QTest::addColumn<QByteArray>("character");
    QTest::addColumn<qsizetype>("phase");
    for (const QByteArray &character : kCharacters) {
        for (qsizetype phase = 0; phase < 5; ++phase)
            QTest::addRow("%lld bytes, phase %lld", qlonglong(character.size()), qlonglong(phase))
                << character << phase;
    }
}

void tst_fixedtext::everyCharacterWidthIsCutWholeAtEveryPhase()
{
    QFETCH(QByteArray, character);
    QFETCH(qsizetype, phase);
    const QByteArray before(phase, '.');
    const auto fitting = (199 - phase) / character.size();
    QCOMPARE(stored(before + character.repeated(210)), before + character.repeated(fitting));
}

void tst_fixedtext::aTextEndsAtANul()
{
    QCOMPARE(stored(QByteArray("ab\0cd", 5)), QByteArray("ab"));
    QCOMPARE(stored(QByteArray("\0cd", 3)), QByteArray());
    // What follows the NUL does not count: no repair, no length.
    QCOMPARE(stored(QByteArray("ab\0\xFF", 4) + QByteArray(500, 'x')), QByteArray("ab"));
}

void tst_fixedtext::theRestOfTheFieldIsCleared()
{
    std::array<char, 8> field = {'o', 'l', 'd', 'e', 'r', '!', '!', '!'};
    SetText(field, "new");
    QCOMPARE(field, (std::array<char, 8>{'n', 'e', 'w'}));
}

void tst_fixedtext::aFieldWithoutTerminatorReadsToItsEnd()
{
    const std::array<char, 3> field = {'a', 'b', 'c'};
    QCOMPARE(GetText(field), std::string_view("abc"));
}

void tst_fixedtext::whatAFileCannotHoldIsReplaced_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char *name, const QByteArray &text, const QByteArray &expected) {
        QTest::newRow(name) << text << expected;
    };
    const QByteArray &r = kReplacement;
    row("a lone continuation byte", "a\x80z", 'a' + r + 'z');
    row("a character cut short", "a\xE2\x82", 'a' + r + r);
    row("an overlong slash", "a\xC0\xAFz", 'a' + r + r + 'z');
    row("an impossible byte", "\xFFz", r + 'z');
    row("a surrogate half", "\xED\xA0\x80z", r + r + r + 'z');
    row("U+0001", "a\x01z", 'a' + r + 'z');
    row("U+001F", "a\x1Fz", 'a' + r + 'z');
    row("escape", "\x1B[0m", r + "[0m");
    row("U+FFFE", "a\xEF\xBF\xBEz", 'a' + r + 'z');
    row("U+FFFF", "a\xEF\xBF\xBFz", 'a' + r + 'z');
    row("tab and line breaks stay", "a\tb\nc\rd", "a\tb\nc\rd");
    row("continuation bytes only", QByteArray(300, '\x80'), r.repeated(66));
    row("controls only", QByteArray(300, '\x02'), r.repeated(66));
    row("broken beyond the field", QByteArray(199, 'a') + "\xFF", QByteArray(199, 'a'));
}

void tst_fixedtext::whatAFileCannotHoldIsReplaced()
{
    QFETCH(QByteArray, text);
    QTEST(stored(text), "expected");
}

void tst_fixedtext::whatIsStoredIsReadBackFromTheFile_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("full") << QByteArray(259, 'a');
    QTest::newRow("markup") << QByteArray("</string><key>&amp;\"'<![CDATA[x]]>");
    QTest::newRow("blanks around") << QByteArray("  two \t blanks \n ");
    QTest::newRow("blanks only") << QByteArray("   ");
    QTest::newRow("carriage returns") << QByteArray("a\r\nb\rc");
    QTest::newRow("every width") << QByteArray("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
    QTest::newRow("full of 4-byte characters") << kCharacters[3].repeated(80);
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFname");
    QTest::newRow("delete") << QByteArray("\x7F");
    QTest::newRow("not UTF-8") << QByteArray("\xFF\xFE\x80");
    QTest::newRow("controls") << QByteArray("\x01\x02\x03");
    QTest::newRow("NUL inside") << QByteArray("ab\0cd", 5);
}

void tst_fixedtext::whatIsStoredIsReadBackFromTheFile()
{
    QFETCH(QByteArray, text);
    const TestSettings settings;
    MacroInfo &macro = m_Config.PROFILE[3].MACRO[49];
    SetText(macro.COPY_PASTER,
            std::string_view(text.data(), static_cast<std::size_t>(text.size())));
    const auto before = std::to_array(macro.COPY_PASTER);

    xmlconfig store;
    store.setConfigfileName(settings.path());
    store.WriteConfigFile();
    m_Config = {};
    store.LoadConfigFile();
    QVERIFY(std::ranges::equal(macro.COPY_PASTER, before));
}

void tst_fixedtext::aHugeBrokenTextIsStoredAtOnce()
{
    // Repairing all of it would take minutes.
    const QByteArray nonCharacters = QByteArray("\xEF\xBF\xBE").repeated(5'000'000);
    QCOMPARE(stored(nonCharacters), kReplacement.repeated(66));
}

KYR_PLAIN_TEST(tst_fixedtext)
#include "tst_fixedtext.moc"
