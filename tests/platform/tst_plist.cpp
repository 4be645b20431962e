#include "platform/plist.h"

#include "platform/plistbounds.h"
#include "support/suite.h"

#include <plist/plist.h>

namespace {

using plist::Dictionary;
using plist::Document;

Document sample()
{
    const Document document;
    document.root().setInteger("positive", 42);
    document.root().setInteger("negative", -5);
    document.root().setText("text", "<&> \xC3\xA4 \"'");
    document.root().setText("empty", "");
    document.root().addDictionary("inner").setInteger("deep", 7);
    return Document::parse(document.toXml()).value_or(Document());
}

/// The same property list in the binary form, made by the library itself.
std::string toBinary(const std::string &xml)
{
    plist_t node = nullptr;
    plist_from_xml(xml.data(), static_cast<std::uint32_t>(xml.size()), &node);
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(node, &bytes, &size);
    std::string binary(bytes, size);
    plist_to_bin_free(bytes);
    plist_free(node);
    return binary;
}

std::string xmlWith(const std::string &body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + body + "</plist>";
}

std::string repeated(const std::string &text, std::size_t times)
{
    std::string result;
    while (times-- > 0)
        result += text;
    return result;
}

void appendBigEndian(std::string &bytes, std::uint64_t value, unsigned size)
{
    for (unsigned i = size; i > 0; --i)
        bytes += static_cast<char>(value >> 8U * (i - 1) & 0xFFU);
}

/// A binary property list of the given objects, the first of them the root; offsets and references
/// take four bytes.
std::string binaryOf(const std::vector<std::string> &objects)
{
    std::string bytes = "bplist00";
    std::string offsets;
    for (const std::string &object : objects) {
        appendBigEndian(offsets, bytes.size(), 4);
        bytes += object;
    }
    const std::uint64_t table = bytes.size();
    bytes += offsets + std::string("\0\0\0\0\0\0\4\4", 8);
    appendBigEndian(bytes, objects.size(), 8);
    appendBigEndian(bytes, 0, 8);
    appendBigEndian(bytes, table, 8);
    return bytes;
}

/// A dictionary of one entry: the objects of its key and its value.
std::string entry(std::uint64_t key, std::uint64_t value)
{
    std::string object = "\xD1";
    appendBigEndian(object, key, 4);
    appendBigEndian(object, value, 4);
    return object;
}

std::string array(std::initializer_list<std::uint64_t> objects)
{
    std::string object(1, static_cast<char>(0xA0U + objects.size()));
    for (const std::uint64_t value : objects)
        appendBigEndian(object, value, 4);
    return object;
}

const std::string kKeyObject = "Qk"; // the text "k"

} // namespace

class tst_plist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadBack_data();
    void whatIsWrittenIsReadBack();
    void aValueOfAnotherTypeIsNotFound();
    void aMissingDictionaryReadsAsEmptyAndTakesNothing();
    void integersBeyond32BitsAreRead();
    void aListCutShortIsNeverRead_data();
    void aListCutShortIsNeverRead();
    void whatIsNoListIsRefused_data();
    void whatIsNoListIsRefused();
    void asManyContainersAsAllowedAreRead();
    void oneContainerTooManyIsRefused();
    void deepNestingIsRefused_data();
    void deepNestingIsRefused();
    void hostileBinaryListsAreRefused_data();
    void hostileBinaryListsAreRefused();
    void changedBytesNeverCrash();
};

void tst_plist::whatIsWrittenIsReadBack_data()
{
    const std::string xml = sample().toXml();
    QTest::addColumn<std::string>("bytes");
    QTest::newRow("xml") << xml;
    QTest::newRow("binary") << toBinary(xml);
}

void tst_plist::whatIsWrittenIsReadBack()
{
    QFETCH(const std::string, bytes);
    const auto document = Document::parse(bytes);
    QVERIFY(document);
    const Dictionary root = document->root();
    QCOMPARE(root.integer("positive").value_or(0), std::int64_t{42});
    QCOMPARE(root.integer("negative").value_or(0), std::int64_t{-5});
    QCOMPARE(root.text("text").value_or("nothing"), std::string_view("<&> \xC3\xA4 \"'"));
    QCOMPARE(root.text("empty").value_or("nothing"), std::string_view());
    QCOMPARE(root.dictionary("inner").integer("deep").value_or(0), std::int64_t{7});
}

void tst_plist::aValueOfAnotherTypeIsNotFound()
{
    const Document document = sample();
    QVERIFY(!document.root().integer("text"));
    QVERIFY(!document.root().integer("inner"));
    QVERIFY(!document.root().integer("missing"));
    QVERIFY(!document.root().text("positive"));
    QVERIFY(!document.root().text("missing"));
    QVERIFY(!document.root().dictionary("text").integer("deep"));
    const auto others =
        Document::parse(xmlWith("<dict><key>r</key><real>1</real><key>t</key><true/>"
                                "<key>a</key><array><integer>1</integer></array></dict>"));
    QVERIFY(others);
    QVERIFY(!others->root().integer("r"));
    QVERIFY(!others->root().integer("t"));
    QVERIFY(!others->root().dictionary("a").integer("1"));
}

void tst_plist::aMissingDictionaryReadsAsEmptyAndTakesNothing()
{
    Dictionary missing;
    missing.setInteger("key", 1);
    missing.setText("text", "text");
    missing.addDictionary("inner").setInteger("deep", 1);
    QVERIFY(!missing.integer("key"));
    QVERIFY(!missing.text("text"));
    QVERIFY(!missing.dictionary("inner").integer("deep"));
}

void tst_plist::integersBeyond32BitsAreRead()
{
    const auto document =
        Document::parse(xmlWith("<dict><key>large</key><integer>4294967298</integer>"
                                "<key>small</key><integer>-4294967298</integer></dict>"));
    QVERIFY(document);
    QCOMPARE(document->root().integer("large").value_or(0), std::int64_t{4294967298});
    QCOMPARE(document->root().integer("small").value_or(0), std::int64_t{-4294967298});
}

void tst_plist::aListCutShortIsNeverRead_data()
{
    const std::string xml = sample().toXml();
    const std::string binary = toBinary(xml);
    QTest::addColumn<std::string>("bytes");
    QTest::addColumn<std::size_t>("needed");
    // Without the list's own end tag it is still whole.
    QTest::newRow("xml") << xml << xml.rfind("</dict>") + 7;
    QTest::newRow("binary") << binary << binary.size();
}

void tst_plist::aListCutShortIsNeverRead()
{
    QFETCH(const std::string, bytes);
    QFETCH(const std::size_t, needed);
    for (std::size_t size = 0; size < needed; ++size) {
        // A copy of just this size, so that a read past its end is found out.
        const std::vector<char> cut(bytes.begin(),
                                    bytes.begin() + static_cast<std::ptrdiff_t>(size));
        QVERIFY2(!Document::parse({cut.data(), cut.size()}), std::to_string(size).c_str());
    }
}

void tst_plist::whatIsNoListIsRefused_data()
{
    QTest::addColumn<std::string>("bytes");
    QTest::newRow("empty") << std::string();
    QTest::newRow("text") << std::string("PROFILE_ID = 1");
    QTest::newRow("zeros") << std::string(1000, '\0');
    QTest::newRow("other xml") << std::string("<?xml version=\"1.0\"?><settings/>");
    QTest::newRow("array root") << xmlWith("<array><dict/></array>");
    QTest::newRow("text root") << xmlWith("<string>text</string>");
    QTest::newRow("integer root") << xmlWith("<integer>1</integer>");
    QTest::newRow("binary array root") << binaryOf({array({})});
    QTest::newRow("binary magic alone") << std::string("bplist00");
    QTest::newRow("binary magic and zeros") << "bplist00" + std::string(32, '\0');
}

void tst_plist::whatIsNoListIsRefused()
{
    QFETCH(const std::string, bytes);
    QVERIFY(!Document::parse(bytes));
}

void tst_plist::asManyContainersAsAllowedAreRead()
{
    const std::string inner = repeated("<dict/>", plist::kMostContainers - 2);
    const std::string xml = xmlWith("<dict><key>a</key><array>" + inner + "</array></dict>");
    QVERIFY(Document::parse(xml));
    QVERIFY(Document::parse(toBinary(xml)));
}

void tst_plist::oneContainerTooManyIsRefused()
{
    const std::string inner = repeated("<dict/>", plist::kMostContainers - 1);
    const std::string xml = xmlWith("<dict><key>a</key><array>" + inner + "</array></dict>");
    QVERIFY(!Document::parse(xml));
    QVERIFY(!Document::parse(toBinary(xml)));
}

void tst_plist::deepNestingIsRefused_data()
{
    constexpr std::size_t levels = 200'000;
    QTest::addColumn<std::string>("bytes");
    QTest::newRow("dictionaries") << xmlWith(repeated("<dict><key>k</key>", levels) + "<dict/>" +
                                             repeated("</dict>", levels));
    QTest::newRow("arrays") << xmlWith("<dict><key>k</key>" + repeated("<array>", levels) +
                                       repeated("</array>", levels) + "</dict>");
    QTest::newRow("never closed") << xmlWith(repeated("<dict><key>k</key>", levels));
    std::vector<std::string> chain;
    for (std::size_t level = 0; level < levels; ++level)
        chain.push_back(entry(levels + 1, level + 1));
    chain.push_back(array({}));
    chain.push_back(kKeyObject);
    QTest::newRow("binary") << binaryOf(chain);
}

void tst_plist::deepNestingIsRefused()
{
    QFETCH(const std::string, bytes);
    QVERIFY(!Document::parse(bytes));
}

void tst_plist::hostileBinaryListsAreRefused_data()
{
    QTest::addColumn<std::string>("bytes");
    QTest::newRow("inside itself") << binaryOf({entry(1, 0), kKeyObject});
    QTest::newRow("a circle") << binaryOf({entry(1, 2), kKeyObject, entry(1, 0)});
    QTest::newRow("a reference outside") << binaryOf({entry(1, 99), kKeyObject});

    // Each level stands twice in the one above it: two to the 40th objects.
    std::vector<std::string> doubling = {entry(1, 2), kKeyObject};
    for (std::uint64_t level = 0; level < 40; ++level)
        doubling.push_back(array({doubling.size() + 1, doubling.size() + 1}));
    doubling.push_back(array({}));
    QTest::newRow("doubling") << binaryOf(doubling);

    // A long text, copied for each of very many references.
    constexpr std::uint32_t textSize = 1'000'000;
    constexpr std::uint32_t references = 100'000;
    std::string text = "\x5F\x12";
    appendBigEndian(text, textSize, 4);
    text += std::string(textSize, 'x');
    std::string many = "\xAF\x12";
    appendBigEndian(many, references, 4);
    for (std::uint32_t i = 0; i < references; ++i)
        appendBigEndian(many, 3, 4);
    QTest::newRow("a long text many times") << binaryOf({entry(1, 2), kKeyObject, many, text});
}

void tst_plist::hostileBinaryListsAreRefused()
{
    QFETCH(const std::string, bytes);
    QVERIFY(!Document::parse(bytes));
}

void tst_plist::changedBytesNeverCrash()
{
    const std::string xml = sample().toXml();
    int read = 0;
    for (std::string bytes : {xml, toBinary(xml)}) {
        for (char &byte : bytes) {
            const char old = byte;
            for (const int changed : {0x00, 0x3C, 0x7F, 0xA1, 0xD1, 0xFF}) {
                byte = static_cast<char>(changed);
                const auto document = Document::parse(bytes);
                if (!document)
                    continue;
                ++read;
                document->root().integer("positive");
                document->root().text("text");
            }
            byte = old;
        }
    }
    // Most changes fall into texts and white space and leave a list.
    QVERIFY(read > 0);
}

KYR_CORE_TEST(tst_plist)
#include "tst_plist.moc"
