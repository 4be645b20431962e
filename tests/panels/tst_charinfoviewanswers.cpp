#include "charinfostage.h"
#include "support/suite.h"

/// How the character dialog is answered, and what the profile gets from it.
class tst_charinfoviewanswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void okWithoutARealmGoesToTheRealm_data();
    void okWithoutARealmGoesToTheRealm();
    void okWithoutANameStoresTheRealmAndGoesToTheName();
    void okStoresAllAndEnds();
    void theProfileThatIsCurrentThenGetsIt();
    void aLongTextIsCutAtAWholeCharacter_data();
    void aLongTextIsCutAtAWholeCharacter();
    void aPastedControlCharacterIsABlank();
    void aBlankIsAText();
    void theOthersStoreNothing_data();
    void theOthersStoreNothing();
    void theActionComesBeforeTheWindowCloses_data();
    void theActionComesBeforeTheWindowCloses();
    void theActionMayEndTheDialog();
};

void tst_charinfoviewanswers::okWithoutARealmGoesToTheRealm_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("nothing at all") << QByteArray();
    QTest::newRow("a name") << QByteArray("Name");
}

void tst_charinfoviewanswers::okWithoutARealmGoesToTheRealm()
{
    QFETCH(QByteArray, name);
    const CharInfoStage stage;
    stage.type(stage.name(), name.constData());
    stage.click("ButtonOK");
    QVERIFY(stage.stays());
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.focused(), QStringLiteral("pTextfieldRealm"));
    QCOMPARE(stage.name().text(), QString::fromLatin1(name));
}

void tst_charinfoviewanswers::okWithoutANameStoresTheRealmAndGoesToTheName()
{
    const CharInfoStage stage;
    stage.type(stage.realm(), "Realm");
    stage.click("ButtonOK");
    QVERIFY(stage.stays());
    QCOMPARE(stage.focused(), QStringLiteral("pTextfieldName"));
    SetText(stage.before->PROFILE[3].CHARACTER_INFO.SERVER, "Realm");
    QVERIFY(stage.isUnchanged());
}

void tst_charinfoviewanswers::okStoresAllAndEnds()
{
    const CharInfoStage stage;
    stage.fill();
    stage.click("ButtonOK");
    QCOMPARE(stage.target.came, std::vector{0x1001});
    QTRY_VERIFY(!stage.window);
    CharacterInfo &expected = stage.before->PROFILE[3].CHARACTER_INFO;
    SetText(expected.SERVER, "Realm");
    SetText(expected.NAME, "Name");
    expected.REGION = 0;
    QVERIFY(stage.isUnchanged());
}

void tst_charinfoviewanswers::theProfileThatIsCurrentThenGetsIt()
{
    const CharInfoStage stage;
    stage.fill();
    m_Config.PROFILE_ID = 8;
    stage.click("ButtonOK");
    QCOMPARE(GetString(m_Config.PROFILE[8].CHARACTER_INFO.SERVER), QStringLiteral("Realm"));
    QCOMPARE(GetString(m_Config.PROFILE[8].CHARACTER_INFO.NAME), QStringLiteral("Name"));
    QCOMPARE(m_Config.PROFILE[8].CHARACTER_INFO.REGION, 0U);
    QCOMPARE(GetString(m_Config.PROFILE[3].CHARACTER_INFO.SERVER), QStringLiteral("Stored Realm"));
}

void tst_charinfoviewanswers::aLongTextIsCutAtAWholeCharacter_data()
{
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("stored");
    const auto letters = [](int count) { return QString(count, u'a'); };
    const QString umlaut = QStringLiteral("ä"); // two bytes
    const QString flame = QStringLiteral("火"); // three
    const QString dragon = QStringLiteral("🐉"); // four
    QTest::newRow("199 bytes") << letters(199) << letters(199);
    QTest::newRow("200 bytes") << letters(200) << letters(199);
    QTest::newRow("two bytes that fit") << letters(197) + umlaut << letters(197) + umlaut;
    QTest::newRow("two bytes") << letters(198) + umlaut << letters(198);
    QTest::newRow("three bytes") << letters(197) + flame << letters(197);
    QTest::newRow("four bytes") << letters(196) + dragon << letters(196);
    QTest::newRow("many") << umlaut.repeated(5000) << umlaut.repeated(99);
}

void tst_charinfoviewanswers::aLongTextIsCutAtAWholeCharacter()
{
    QFETCH(QString, given);
    QFETCH(QString, stored);
    const CharInfoStage stage;
    stage.paste(stage.realm(), given);
    stage.paste(stage.name(), given);
    stage.click("ButtonOK");
    const CharacterInfo &character = CurrentProfile().CHARACTER_INFO;
    QCOMPARE(GetString(character.SERVER), stored);
    QCOMPARE(GetString(character.NAME), stored);
    QCOMPARE(GetString(character.CLASS), QStringLiteral("Mage"));
}

void tst_charinfoviewanswers::aPastedControlCharacterIsABlank()
{
    const CharInfoStage stage;
    stage.paste(stage.realm(), QStringLiteral("a\tb\nc\x1b"
                                              "d"));
    stage.paste(stage.name(), QStringLiteral("e\u0085f\u007fg"));
    stage.click("ButtonOK");
    QCOMPARE(GetString(CurrentProfile().CHARACTER_INFO.SERVER), QStringLiteral("a b c d"));
    QCOMPARE(GetString(CurrentProfile().CHARACTER_INFO.NAME), QStringLiteral("e f g"));
}

void tst_charinfoviewanswers::aBlankIsAText()
{
    const CharInfoStage stage;
    stage.type(stage.realm(), " ");
    stage.type(stage.name(), " ");
    stage.click("ButtonOK");
    QCOMPARE(stage.target.came, std::vector{0x1001});
    QCOMPARE(GetString(CurrentProfile().CHARACTER_INFO.SERVER), QStringLiteral(" "));
    QCOMPARE(GetString(CurrentProfile().CHARACTER_INFO.NAME), QStringLiteral(" "));
}

void tst_charinfoviewanswers::theOthersStoreNothing_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("ButtonCancel") << 0x1002;
    QTest::newRow("ButtonClose") << 0x1000;
    QTest::newRow("Escape") << 0x1002;
    QTest::newRow("the desktop") << 0x1000;
}

void tst_charinfoviewanswers::theOthersStoreNothing()
{
    QFETCH(int, code);
    const QByteArray how = QTest::currentDataTag();
    const CharInfoStage stage;
    stage.fill();
    if (how == "the desktop")
        stage.window->windowHandle()->close();
    else if (how == "Escape")
        keystroke::tap(keystroke::kEscape);
    else
        stage.click(how.constData());
    QCOMPARE(stage.target.came, std::vector{code});
    QTRY_VERIFY(!stage.window);
    QVERIFY(stage.isUnchanged());
}

void tst_charinfoviewanswers::theActionComesBeforeTheWindowCloses_data()
{
    QTest::addColumn<QByteArray>("button");
    for (const char *name : {"ButtonOK", "ButtonCancel", "ButtonClose"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_charinfoviewanswers::theActionComesBeforeTheWindowCloses()
{
    QFETCH(QByteArray, button);
    CharInfoStage stage;
    bool wasVisible = false;
    bool wasStored = false;
    stage.target.during = [&] {
        wasVisible = stage.window && stage.window->isVisible();
        wasStored = !stage.isUnchanged();
    };
    stage.fill();
    stage.click(button.constData());
    QVERIFY(wasVisible);
    QCOMPARE(wasStored, button == "ButtonOK");
    QVERIFY(!stage.window || !stage.window->isVisible());
}

void tst_charinfoviewanswers::theActionMayEndTheDialog()
{
    CharInfoStage stage;
    stage.target.during = [&] { delete stage.window; };
    stage.fill();
    keystroke::tap(keystroke::kEscape);
    QCOMPARE(stage.target.came, std::vector{0x1002});
    QVERIFY(!stage.window);
}

KYR_GUI_TEST(tst_charinfoviewanswers)
#include "tst_charinfoviewanswers.moc"
