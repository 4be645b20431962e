#include "settingskeys.h"
#include "storefixture.h"

#include "model/fixedtext.h"

#include <QtTest/QTest>

#include <memory>
#include <random>

/// Whatever the record holds is read back from the file as it was.
class tst_roundtrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRandomRecordIsReadBackAsItWas_data();
    void aRandomRecordIsReadBackAsItWas();
    void theFullestRecordIsReadBackAsItWas();
};

namespace {

class Random
{
public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    std::uint32_t below(std::uint32_t limit)
    {
        return static_cast<std::uint32_t>(m_engine() % limit);
    }
    std::uint32_t any() { return static_cast<std::uint32_t>(m_engine()); }

    std::string bytes(std::size_t most)
    {
        std::string result(below(static_cast<std::uint32_t>(most)), '\0');
        // Mostly plain letters, else hardly any text gets through unrepaired.
        for (char &byte : result)
            byte = static_cast<char>(below(20) == 0 ? below(256) : 32 + below(95));
        return result;
    }

    /// Kinds from 1 up, so that no event ends the list.
    KeymapEvent event()
    {
        return {below(INT32_MAX), 1 + below(INT32_MAX), any() % 2 ? below(100) : INT32_MAX};
    }

private:
    std::mt19937 m_engine;
};

void fillEvents(std::span<char> member, bool isKeymap, Random &random)
{
    const auto slots = static_cast<std::uint32_t>(member.size() / sizeof(KeymapEvent));
    const bool isFull = random.below(20) == 0;
    const std::uint32_t used = isFull ? slots : random.below(std::min(slots, 12U) + 1);
    for (std::uint32_t slot = 0; slot < used; ++slot) {
        KeymapEvent event = random.event();
        // The start and send keys are kept behind an empty slot too.
        if (!isKeymap && random.below(3) == 0)
            event.kind = 0;
        std::memcpy(&member[slot * sizeof event], &event, sizeof event);
    }
}

void fillMember(const Key &key, Place place, Random &random)
{
    const auto member = memberAt(m_Config, key, place);
    const std::uint32_t number = random.any();
    if (key.holds == Holds::Integer)
        std::memcpy(member.data(), &number, sizeof number);
    else if (key.holds == Holds::Text)
        SetText(member, random.bytes(2 * member.size()));
    else
        fillEvents(member, key.size == sizeof(MacroInfo::KEYMAP), random);
}

bool isReadBack()
{
    const auto before = std::make_unique<ConfigData>(m_Config);
    StoreFixture fixture;
    m_Config = *before;
    fixture.store.WriteConfigFile();
    fixture.load();
    return fixture.log.lines.empty() && sameRecord(m_Config, *before);
}

} // namespace

void tst_roundtrip::aRandomRecordIsReadBackAsItWas_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_roundtrip::aRandomRecordIsReadBackAsItWas()
{
    QFETCH(unsigned, seed);
    Random random(seed);
    m_Config = {};
    for (const Key &key : kSettingsKeys) {
        for (unsigned i = 0; i < 500; ++i)
            fillMember(key, {i / 50, i % 50}, random);
    }
    QVERIFY(isReadBack());
}

void tst_roundtrip::theFullestRecordIsReadBackAsItWas()
{
    m_Config = {};
    for (const Key &key : kSettingsKeys) {
        for (unsigned i = 0; i < 500; ++i) {
            const auto member = memberAt(m_Config, key, {i / 50, i % 50});
            // 0x7F7F7F7F is a number of ten digits, and 0x7F a letter of sorts.
            std::ranges::fill(member, '\x7F');
            if (key.holds == Holds::Text)
                member.back() = '\0';
        }
    }
    QVERIFY(isReadBack());
}

QTEST_APPLESS_MAIN(tst_roundtrip)
#include "tst_roundtrip.moc"
