#include "randomrecord.h"
#include "storefixture.h"
#include "support/suite.h"

#include <memory>

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
    fillRecord(seed);
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

KYR_PLAIN_TEST(tst_roundtrip)
#include "tst_roundtrip.moc"
