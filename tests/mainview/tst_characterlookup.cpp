#include "lookupstage.h"
#include "support/suite.h"

/// What the program asks the game service when a player looks a character up.
class tst_characterlookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatThePlayerEntersIsAskedAndStored();
    void whatWasTypedIsAskedFor_data();
    void whatWasTypedIsAskedFor();
    void bytesThatAreNoTextAreEscapedAndLogged_data();
    void bytesThatAreNoTextAreEscapedAndLogged();
    void everyRegionHasItsHostAndItsPortraits();
    void aRegionThatIsNoneIsNotAsked_data();
    void aRegionThatIsNoneIsNotAsked();
    void aDialogThatIsGivenUpTouchesNoNetwork_data();
    void aDialogThatIsGivenUpTouchesNoNetwork();
    void anotherCodeDoesNothing();
    void aRegionWithoutAHostIsNotAsked();
    void whatWasFoundIsNotAChangeToApply();
};

namespace {

constexpr char kPortraitBytes[] = "a portrait's bytes";

} // namespace

void tst_characterlookup::whatThePlayerEntersIsAskedAndStored()
{
    LookupStage stage;
    stage.service.answer("/api/kyr/character/Some+Realm/Someone", characterAnswer());
    stage.service.answer("/static-render/eu/realm/12/123-avatar.jpg", webAnswer(kPortraitBytes));
    stage.lookUp(QStringLiteral("Some Realm"), QStringLiteral("Someone"), 1);
    QVERIFY(!LookupStage::openDialogView());
    QTRY_COMPARE(characterOf(0), (Character{60, "Mage", stage.portraitFile()}));
    QCOMPARE(stage.bytesOf("123-avatar.jpg"), QByteArray(kPortraitBytes));
    const CharacterInfo &info = m_Config.PROFILE[0].CHARACTER_INFO;
    QCOMPARE(info.REGION, 1U);
    QCOMPARE(GetText(info.SERVER), std::string_view("Some Realm"));
    QCOMPARE(GetText(info.NAME), std::string_view("Someone"));
    QCOMPARE(stage.service.count(), std::size_t{2});
    QVERIFY(stage.service.visit(0).request().contains("\r\nUser-Agent: KyrMGUI2\r\n"));
    QVERIFY(!stage.service.visit(0).request().contains("no-cache"));
    QVERIFY(stage.service.visit(1).request().contains("\r\nCache-Control: no-cache\r\n"));
}

void tst_characterlookup::whatWasTypedIsAskedFor_data()
{
    QTest::addColumn<QString>("realm");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("blanks") << QStringLiteral("Two  Words Here") << QStringLiteral(" a b ")
                            << QByteArray("Two++Words+Here/+a+b+");
    QTest::newRow("umlaut") << QStringLiteral(u"\u00e4") << QStringLiteral(u"\u00d6x")
                            << QByteArray("%C3%A4/%C3%96x");
    QTest::newRow("Korean") << QStringLiteral(u"\uc544\uc988") << QStringLiteral(u"\uc774 \ub984")
                            << QByteArray("%EC%95%84%EC%A6%88/%EC%9D%B4+%EB%A6%84");
    QTest::newRow("nothing else escaped")
        << QStringLiteral("a-b'c") << QStringLiteral("d.e_f~+") << QByteArray("a-b'c/d.e_f~+");
}

void tst_characterlookup::whatWasTypedIsAskedFor()
{
    QFETCH(QString, realm);
    QFETCH(QString, name);
    QFETCH(QByteArray, path);
    LookupStage stage;
    stage.lookUp(realm, name);
    const WebVisit &visit = stage.visit(0);
    QCOMPARE(visit.requestLine(), "GET /api/kyr/character/" + path + " HTTP/1.1");
    QVERIFY(visit.request().contains(
        "\r\nHost: " + QByteArray::fromStdString(stage.service.host()) + "\r\n"));
    QVERIFY(stage.log.lines.empty());
}

void tst_characterlookup::bytesThatAreNoTextAreEscapedAndLogged_data()
{
    QTest::addColumn<std::string>("realm");
    QTest::addColumn<std::string>("name");
    QTest::addColumn<std::vector<std::string>>("logged");
    QTest::addColumn<QByteArray>("path");
    using Lines = std::vector<std::string>;
    QTest::newRow("Latin 1") << std::string("\xE4r a") << std::string("Name")
                             << Lines{"%e4%72%20%61"} << QByteArray("%e4%72%20%61/Name");
    QTest::newRow("both") << std::string("\xFF")
                          << std::string("\x80"
                                         "0")
                          << Lines{"%ff", "%80%30"} << QByteArray("%ff/%80%30");
    QTest::newRow("cut off") << std::string("Realm") << std::string("ab\xC3") << Lines{"%61%62%c3"}
                             << QByteArray("Realm/%61%62%c3");
    QTest::newRow("empty realm") << std::string() << std::string("Name") << Lines{""}
                                 << QByteArray("/Name");
    QTest::newRow("empty") << std::string() << std::string() << Lines{"", ""} << QByteArray("/");
}

void tst_characterlookup::bytesThatAreNoTextAreEscapedAndLogged()
{
    QFETCH(std::string, realm);
    QFETCH(std::string, name);
    LookupStage stage;
    LookupStage::setCharacter(realm, name);
    stage.ask();
    QTEST(stage.log.lines, "logged");
    QFETCH(QByteArray, path);
    QCOMPARE(stage.visit(0).requestLine(), "GET /api/kyr/character/" + path + " HTTP/1.1");
}

void tst_characterlookup::everyRegionHasItsHostAndItsPortraits()
{
    std::array<WebServer, kRegionCount> regions;
    LookupStage stage;
    stage.interface.reset();
    for (std::size_t region = 0; region < kRegionCount; ++region) {
        regions[region].answer("/api/kyr/character/Realm/Name", characterAnswer());
        stage.hosts[region] = regions[region].host();
    }
    stage.start(stage.settings.path());
    const char *const labels[] = {"us", "eu", "kr", "tw", "cn"};
    for (std::size_t region = 0; region < kRegionCount; ++region) {
        stage.lookUp(QStringLiteral("Realm"), QStringLiteral("Name"), static_cast<int>(region));
        QTRY_COMPARE(regions[region].count(), std::size_t{2});
        QCOMPARE(regions[region].visit(0).path(), QByteArray("/api/kyr/character/Realm/Name"));
        QCOMPARE(regions[region].visit(1).path(),
                 "/static-render/" + QByteArray(labels[region]) + "/realm/12/123-avatar.jpg");
        regions[region].last().finish(webAnswer("", "404 Not Found"));
    }
    for (const WebServer &region : regions)
        QCOMPARE(region.count(), std::size_t{2});
    QCOMPARE(stage.service.connections(), std::size_t{0});
}

void tst_characterlookup::aRegionThatIsNoneIsNotAsked_data()
{
    QTest::addColumn<std::uint32_t>("region");
    QTest::newRow("5") << 5U;
    QTest::newRow("-1") << 0xFFFFFFFFU;
}

void tst_characterlookup::aRegionThatIsNoneIsNotAsked()
{
    QFETCH(std::uint32_t, region);
    LookupStage stage;
    LookupStage::setCharacter("\xE4", "Name", region);
    for (const int code : {kCharInfoOK, kCharInfoCancel, kCharInfoClose})
        stage.view().CharInfoAction(code);
    QVERIFY(stage.requested().empty());
    const std::string realm = "%e4"; // which is made before the region is looked at
    QCOMPARE(stage.log.lines, (std::vector<std::string>{realm, realm, realm}));
    QCOMPARE(stage.service.connections(), std::size_t{0});
}

void tst_characterlookup::aDialogThatIsGivenUpTouchesNoNetwork_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<std::vector<std::string>>("logged");
    QTest::newRow("Cancel") << QByteArray("ButtonCancel")
                            << std::vector<std::string>{"IDC_CHAR_BUTTON_CANCEL"};
    QTest::newRow("Close") << QByteArray("ButtonClose")
                           << std::vector<std::string>{"IDC_CHAR_BUTTON_CLOSE"};
}

void tst_characterlookup::aDialogThatIsGivenUpTouchesNoNetwork()
{
    QFETCH(QByteArray, button);
    LookupStage stage;
    const charInfoView &dialog = stage.openDialog();
    pointer::click(LookupStage::part(dialog, button));
    QVERIFY(stage.requested().empty());
    QTEST(stage.log.lines, "logged");
    QCOMPARE(stage.service.connections(), std::size_t{0});
}

void tst_characterlookup::anotherCodeDoesNothing()
{
    LookupStage stage;
    for (const int code : {0, 0xFFF, 0x1003, 0x2000, -1})
        stage.view().CharInfoAction(code);
    QVERIFY(stage.requested().empty());
    QVERIFY(stage.log.lines.empty());
}

void tst_characterlookup::aRegionWithoutAHostIsNotAsked()
{
    LookupStage stage;
    stage.hosts.fill({});
    stage.restart(std::chrono::seconds(60));
    stage.ask();
    QVERIFY(stage.requested().empty());
    QVERIFY(stage.log.lines.empty());
}

void tst_characterlookup::whatWasFoundIsNotAChangeToApply()
{
    LookupStage stage(smallSettings());
    stage.service.answer("/api/kyr/character/Realm/Name", characterAnswer());
    stage.service.answerAll(webAnswer(kPortraitBytes));
    stage.lookUp(QStringLiteral("Realm"), QStringLiteral("Name"));
    QTRY_COMPARE(characterOf(2), (Character{60, "Mage", stage.portraitFile()}));
    QVERIFY(!stage.applyIsEnabled());
    QCOMPARE(stage.settings.bytes(), smallSettings());
    QVERIFY(stage.requestsSinceStart().empty());
    QCOMPARE(stage.entries(),
             (QStringList{QStringLiteral("123-avatar.jpg"), QStringLiteral("KT7R4Setting.xml")}));
}

KYR_GUI_TEST(tst_characterlookup)
#include "tst_characterlookup.moc"
