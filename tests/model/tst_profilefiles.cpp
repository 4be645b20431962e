#include "fakefilepanels.h"
#include "randomrecord.h"
#include "storefixture.h"
#include "support/suite.h"

#include <memory>

/// One profile, exported to a file of its own and imported from one.
class tst_profilefiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anExportAsksWhereTo_data();
    void anExportAsksWhereTo();
    void anImportAsksForTheFile();
    void aCancelledPanelDoesNothing();
    void withoutPanelsBothCountAsCancelled();
    void theFileHoldsWhatTheSettingsFileHasForTheProfile();
    void anIndexBeyondTheLastMeansTheFirstProfile();
    void anExportTouchesNothingElse();
    void anExportLeavesAnUnreadableSettingsFileToTheNextWrite();
    void aProfileIsTheSameInAnotherSlot_data();
    void aProfileIsTheSameInAnotherSlot();
    void anEmptyProfileEmptiesTheSlot();
    void whatTheFileDoesNotHoldBecomesEmpty();
    void keysOfTheWrongTypeBecomeEmpty();
    void aPropertyListOfSomethingElseEmptiesTheProfile_data();
    void aPropertyListOfSomethingElseEmptiesTheProfile();
    void anImportWritesNoFile();
};

namespace {

using Kind = FakeFilePanels::Question::Kind;

/// A store with panels that answer with a path in its folder.
struct PanelFixture : StoreFixture
{
    PanelFixture()
    {
        store.setFilePanels(&panels);
        panels.answer = path();
    }
    std::string path() const { return pathOf(QStringLiteral("Profile.XML")).toStdString(); }
    QString pathOf(const QString &name) const { return QDir(settings.folder()).filePath(name); }
    void put(const QByteArray &bytes) const
    {
        QFile file(QString::fromStdString(path()));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray written() const
    {
        QFile file(QString::fromStdString(path()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    FakeFilePanels panels;
};

bool sameProfile(const ProfileInfo &a, const ProfileInfo &b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Whether the record is `before` but for one profile, which is `profile`.
bool isRecordWith(const ConfigData &before, std::uint32_t index, const ProfileInfo &profile)
{
    const auto expected = std::make_unique<ConfigData>(before);
    expected->PROFILE[index] = profile;
    return sameRecord(m_Config, *expected);
}

const ProfileInfo &emptyProfile()
{
    static const ProfileInfo profile = {};
    return profile;
}

} // namespace

void tst_profilefiles::anExportAsksWhereTo_data()
{
    QTest::addColumn<std::uint32_t>("index");
    QTest::addColumn<std::string>("name");
    QTest::newRow("first") << 0U << std::string("Profile0");
    QTest::newRow("second") << 1U << std::string("Profile1");
    QTest::newRow("tenth") << 9U << std::string("Profile9");
    QTest::newRow("beyond") << 10U << std::string("Profile0");
}

void tst_profilefiles::anExportAsksWhereTo()
{
    QFETCH(std::uint32_t, index);
    QFETCH(std::string, name);
    PanelFixture fixture;
    QVERIFY(fixture.store.ExportProfile(index));
    QVERIFY(fixture.panels.questions ==
            (std::vector<FakeFilePanels::Question>{{Kind::Save, "Export Profile", name, "XML"}}));
    QCOMPARE(entries(fixture), QStringList{QStringLiteral("Profile.XML")});
}

void tst_profilefiles::anImportAsksForTheFile()
{
    PanelFixture fixture;
    fixture.put(plistOf(plistEntry("DPI_VALUE", "<integer>4</integer>")));
    QVERIFY(fixture.store.ImportProfile(5));
    QVERIFY(fixture.panels.questions ==
            (std::vector<FakeFilePanels::Question>{{Kind::Open, "Import Profile", "", "XML"}}));
    QCOMPARE(m_Config.PROFILE[5].DPI_VALUE, 4U);
    QVERIFY(fixture.log.lines.empty());
}

void tst_profilefiles::aCancelledPanelDoesNothing()
{
    PanelFixture fixture;
    fixture.panels.answer.reset();
    fillRecord(1);
    const auto before = std::make_unique<ConfigData>(m_Config);
    QVERIFY(!fixture.store.ExportProfile(2));
    QVERIFY(!fixture.store.ImportProfile(2));
    QCOMPARE(fixture.panels.questions.size(), std::size_t{2});
    QVERIFY(sameRecord(m_Config, *before));
    QVERIFY(entries(fixture).isEmpty());
    QVERIFY(fixture.log.lines.empty());
}

void tst_profilefiles::withoutPanelsBothCountAsCancelled()
{
    PanelFixture fixture;
    fixture.store.setFilePanels(nullptr);
    QVERIFY(!fixture.store.ExportProfile(0));
    QVERIFY(!fixture.store.ImportProfile(0));
    QVERIFY(!xmlconfig().ExportProfile(0));
    QVERIFY(entries(fixture).isEmpty());
}

void tst_profilefiles::theFileHoldsWhatTheSettingsFileHasForTheProfile()
{
    PanelFixture fixture;
    fillRecord(2);
    fixture.store.WriteConfigFile();
    fixture.store.WriteProfileToFile(3, fixture.path());
    const QVariantMap root = readPlist(fixture.written());
    QCOMPARE(root.size(), 11 + 14 + 1 + 50);
    QCOMPARE(QVariant(root), readPlist(fixture.settings.bytes())[QStringLiteral("PROFILE_4")]);
    QVERIFY(fixture.written().startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE "));
}

void tst_profilefiles::anIndexBeyondTheLastMeansTheFirstProfile()
{
    PanelFixture fixture;
    fillRecord(3);
    const auto before = std::make_unique<ConfigData>(m_Config);
    for (const std::uint32_t index : {10U, 4'294'967'295U}) {
        fixture.store.WriteProfileToFile(index, fixture.path());
        m_Config.PROFILE[0] = {};
        fixture.store.ReadProfileFromFile(index, fixture.path());
        QVERIFY(sameRecord(m_Config, *before));
    }
}

void tst_profilefiles::anExportTouchesNothingElse()
{
    PanelFixture fixture;
    fixture.settings.put("settings");
    fillRecord(4);
    const auto before = std::make_unique<ConfigData>(m_Config);
    fixture.store.WriteProfileToFile(9, fixture.path());
    QVERIFY(sameRecord(m_Config, *before));
    QCOMPARE(fixture.settings.bytes(), QByteArray("settings"));
    QCOMPARE(entries(fixture), (QStringList{kSettingsName, QStringLiteral("Profile.XML")}));
    QCOMPARE(pConfigFileName, fixture.settings.path());
    QVERIFY(fixture.log.lines.empty());
}

void tst_profilefiles::anExportLeavesAnUnreadableSettingsFileToTheNextWrite()
{
    PanelFixture fixture;
    fixture.load("junk");
    fixture.store.WriteProfileToFile(0, fixture.path());
    fixture.store.ReadProfileFromFile(0, fixture.path());
    QCOMPARE(fixture.settings.bytes(), QByteArray("junk"));
    QCOMPARE(entries(fixture).size(), 2);
    fixture.store.WriteConfigFile();
    QVERIFY(entries(fixture).contains(QStringLiteral("KT7R4Setting.xml.unreadable")));
}

void tst_profilefiles::aProfileIsTheSameInAnotherSlot_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 11; seed <= 14; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_profilefiles::aProfileIsTheSameInAnotherSlot()
{
    QFETCH(unsigned, seed);
    PanelFixture fixture;
    fillRecord(seed);
    const auto before = std::make_unique<ConfigData>(m_Config);
    QVERIFY(!sameProfile(before->PROFILE[3], before->PROFILE[7]));
    QVERIFY(fixture.store.ExportProfile(3));
    QVERIFY(fixture.store.ImportProfile(7));
    QVERIFY(sameProfile(m_Config.PROFILE[7], before->PROFILE[3]));
    QVERIFY(isRecordWith(*before, 7, before->PROFILE[3]));
    QVERIFY(fixture.log.lines.empty());
}

void tst_profilefiles::anEmptyProfileEmptiesTheSlot()
{
    PanelFixture fixture;
    fixture.store.WriteProfileToFile(0, fixture.path());
    fillRecord(5);
    const auto before = std::make_unique<ConfigData>(m_Config);
    fixture.store.ReadProfileFromFile(4, fixture.path());
    QVERIFY(isRecordWith(*before, 4, emptyProfile()));
}

void tst_profilefiles::whatTheFileDoesNotHoldBecomesEmpty()
{
    PanelFixture fixture;
    const QByteArray macro = plistEntry("MACRO_NAME", "<string>m &amp; n</string>") +
                             plistEntry("KEYMAP", "<string>7,1,2,8,</string>");
    fixture.put(plistOf(plistEntry("BUTTON_14", "<integer>-1</integer>") +
                        plistEntry("CHARACTER_INFO",
                                   plistDictionary(plistEntry("LEVEL", "<integer>80</integer>"))) +
                        plistEntry("MACRO_50", plistDictionary(macro))));
    std::memset(&m_Config, 0xA5, sizeof m_Config);
    const auto before = std::make_unique<ConfigData>(m_Config);
    const auto expected = std::make_unique<ProfileInfo>();
    expected->BUTTON[13] = 0xFFFFFFFF;
    expected->CHARACTER_INFO.LEVEL = 80;
    std::strcpy(expected->MACRO[49].MACRO_NAME, "m & n");
    expected->MACRO[49].KEYMAP[0] = {7, 1, 2};
    expected->MACRO[49].KEYMAP[1].keycode = 8;

    fixture.store.ReadProfileFromFile(9, fixture.path());
    QVERIFY(isRecordWith(*before, 9, *expected));
}

void tst_profilefiles::keysOfTheWrongTypeBecomeEmpty()
{
    PanelFixture fixture;
    QByteArray wrong;
    for (const Key &key : kSettingsKeys) {
        if (key.level == Level::Profile)
            wrong += plistEntry(key.name, "<string>1</string>");
    }
    fixture.put(plistOf(wrong + plistEntry("CHARACTER_INFO", "<integer>1</integer>") +
                        plistEntry("MACRO_1", "<array><integer>1</integer></array>")));
    fillRecord(6);
    const auto before = std::make_unique<ConfigData>(m_Config);
    fixture.store.ReadProfileFromFile(1, fixture.path());
    QVERIFY(isRecordWith(*before, 1, emptyProfile()));
}

void tst_profilefiles::aPropertyListOfSomethingElseEmptiesTheProfile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << plistOf("");
    QTest::newRow("other keys") << plistOf(plistEntry("Name", "<string>x</string>"));
    PanelFixture fixture;
    fillRecord(7);
    fixture.store.WriteConfigFile();
    QTest::newRow("settings file") << fixture.settings.bytes();
}

void tst_profilefiles::aPropertyListOfSomethingElseEmptiesTheProfile()
{
    QFETCH(QByteArray, bytes);
    PanelFixture fixture;
    fixture.put(bytes);
    std::memset(&m_Config, 0xA5, sizeof m_Config);
    const auto before = std::make_unique<ConfigData>(m_Config);
    QVERIFY(fixture.store.ImportProfile(6));
    QVERIFY(isRecordWith(*before, 6, emptyProfile()));
    QVERIFY(fixture.log.lines.empty());
}

void tst_profilefiles::anImportWritesNoFile()
{
    PanelFixture fixture;
    const QByteArray bytes = plistOf(plistEntry("DPI_VALUE", "<integer>4</integer>"));
    fixture.put(bytes);
    fixture.store.ReadProfileFromFile(0, fixture.path());
    QCOMPARE(entries(fixture), QStringList{QStringLiteral("Profile.XML")});
    QCOMPARE(fixture.written(), bytes);
}

KYR_PLAIN_TEST(tst_profilefiles)
#include "tst_profilefiles.moc"
