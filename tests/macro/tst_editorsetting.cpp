#include "editorstage.h"
#include "support/paintwatch.h"
#include "support/suite.h"

/// What the macro editor shows of a macro: a new one, one of the profile, one of a damaged file.
class tst_editorsetting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewMacroIsATextWithEnterAsItsKeys();
    void aNewMacroThatIsConfirmedAtOnceIsStored();
    void aMacroOfTheProfileIsShown_data();
    void aMacroOfTheProfileIsShown();
    void anyOtherNumberShowsTheDefaults_data();
    void anyOtherNumberShowsTheDefaults();
    void theMacroOfTheCurrentProfileIsShown();
    void eachModeShowsItsEvents_data();
    void eachModeShowsItsEvents();
    void theLoopCountIsShown_data();
    void theLoopCountIsShown();
    void aFlagSelectsItsBox_data();
    void aFlagSelectsItsBox();
    void aFlagThatIsNeitherSelectsTheBoxAlone();
    void copyAndPasteShowsKeysAndText();
    void theDialogIsDrawnAnewWithAMode();
};

namespace {

MacroInfo tappedMacro(std::uint32_t mode)
{
    MacroInfo macro = namedMacro("tapped");
    macro.MODE = mode;
    putEvents(macro.KEYMAP, {{36, 1, 4}, {36, 2, 0}});
    return macro;
}

} // namespace

void tst_editorsetting::aNewMacroIsATextWithEnterAsItsKeys()
{
    const EditorStage stage;
    const QString enter = QStringLiteral("36/1/0 36/2/0");
    QCOMPARE(stage.radiosOn(), QStringList(QStringLiteral("ButtonText")));
    QCOMPARE(stage.name().text(), QString());
    QCOMPARE(stage.events().count(), 0U);
    QCOMPARE(stage.loop().text(), QStringLiteral("1"));
    QVERIFY(!stage.button("ButtonLoop").isChecked());
    stage.click("ButtonCopy");
    QVERIFY(stage.button("ButtonStartKey").isChecked());
    QVERIFY(stage.button("ButtonSendKey").isChecked());
    QCOMPARE(listed(stage.display("pStartDisplayView").getKeymapInfo(), 2), enter);
    QCOMPARE(listed(stage.display("pSendDisplayView").getKeymapInfo(), 2), enter);
    QCOMPARE(stage.display("pStartDisplayView").count(), 2U);
    QCOMPARE(stage.display("pSendDisplayView").count(), 2U);
    QCOMPARE(stage.text().toPlainText(), QString());
}

void tst_editorsetting::aNewMacroThatIsConfirmedAtOnceIsStored()
{
    const EditorStage stage;
    MacroInfo expected{};
    SetText(expected.MACRO_NAME, "Custom");
    expected.MODE = 1;
    expected.bSTARTKEY = 1;
    expected.bSENDKEY = 1;
    putEvents(expected.STARTKEY, {{36, 1, 0}, {36, 2, 0}});
    putEvents(expected.SENDKEY, {{36, 1, 0}, {36, 2, 0}});
    expected.MACRO_LOOP = 1;
    QVERIFY(isSameMacro(stage.confirmed(), expected));
}

void tst_editorsetting::aMacroOfTheProfileIsShown_data()
{
    QTest::addColumn<int>("macro");
    for (const int macro : {0, 1, 17, 48, 49})
        QTest::addRow("%d", macro) << macro;
}

void tst_editorsetting::aMacroOfTheProfileIsShown()
{
    QFETCH(int, macro);
    const EditorStage stage;
    for (unsigned each = 0; each < kMacroCount; ++each)
        m_Config.PROFILE[0].MACRO[each] = namedMacro("macro " + std::to_string(each));
    stage.view->setcurrentMacroID(macro);
    QCOMPARE(stage.name().text(), QStringLiteral("macro %1").arg(macro));
    QCOMPARE(stage.radiosOn(), QStringList(QStringLiteral("ButtonRecordDelay")));
}

void tst_editorsetting::anyOtherNumberShowsTheDefaults_data()
{
    QTest::addColumn<int>("macro");
    for (const int macro : {-1, 50, -5, 51, INT_MIN, INT_MAX})
        QTest::addRow("%d", macro) << macro;
}

void tst_editorsetting::anyOtherNumberShowsTheDefaults()
{
    QFETCH(int, macro);
    const EditorStage stage;
    std::ranges::fill(m_Config.PROFILE[0].MACRO, namedMacro("stored"));
    stage.view->setcurrentMacroID(macro);
    QCOMPARE(stage.name().text(), QString());
    QCOMPARE(stage.radiosOn(), QStringList(QStringLiteral("ButtonText")));
}

void tst_editorsetting::theMacroOfTheCurrentProfileIsShown()
{
    const EditorStage stage;
    m_Config.PROFILE_ID = 6;
    m_Config.PROFILE[6].MACRO[2] = namedMacro("in the seventh");
    stage.view->setcurrentMacroID(2);
    QCOMPARE(stage.name().text(), QStringLiteral("in the seventh"));
}

void tst_editorsetting::eachModeShowsItsEvents_data()
{
    QTest::addColumn<std::uint32_t>("mode");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << 1U << QStringLiteral("Enter");
    QTest::newRow("delays") << 2U << QStringLiteral("Enter|(200ms)Enter^");
    QTest::newRow("no delays") << 3U << QStringLiteral("Enter|Enter^");
}

void tst_editorsetting::eachModeShowsItsEvents()
{
    QFETCH(std::uint32_t, mode);
    QFETCH(QString, text);
    const EditorStage stage(tappedMacro(mode));
    QCOMPARE(stage.events().count(), 2U);
    QCOMPARE(stage.events().GetMacroOutputString(), text);
    // From every other mode, too.
    for (const char *other : kModeButtons) {
        stage.click(other);
        stage.click(kModeButtons[mode]);
        QCOMPARE(stage.events().GetMacroOutputString(), text);
    }
}

void tst_editorsetting::theLoopCountIsShown_data()
{
    QTest::addColumn<std::uint32_t>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0U << QStringLiteral("1");
    QTest::newRow("one") << 1U << QStringLiteral("1");
    QTest::newRow("most") << 999U << QStringLiteral("999");
    QTest::newRow("too many") << 1000U << QStringLiteral("1000");
    QTest::newRow("far too many") << 2147483647U << QStringLiteral("2147483647");
    QTest::newRow("beyond a number with sign") << 4294967295U << QStringLiteral("-1");
}

void tst_editorsetting::theLoopCountIsShown()
{
    QFETCH(std::uint32_t, count);
    MacroInfo macro = namedMacro("loop");
    macro.MACRO_LOOP = count;
    const EditorStage stage(macro);
    QTEST(stage.loop().text(), "text");
}

void tst_editorsetting::aFlagSelectsItsBox_data()
{
    QTest::addColumn<std::uint32_t>("flag");
    QTest::newRow("off") << 0U;
    QTest::newRow("on") << 1U;
}

void tst_editorsetting::aFlagSelectsItsBox()
{
    QFETCH(std::uint32_t, flag);
    MacroInfo macro = namedMacro("flags");
    macro.bLOOP = flag;
    macro.bSTARTKEY = flag;
    macro.bSENDKEY = 1 - flag;
    const EditorStage stage(macro);
    QCOMPARE(stage.button("ButtonLoop").isChecked(), flag == 1);
    QCOMPARE(stage.loop().isReadOnly(), flag == 0);
    stage.click("ButtonCopy");
    QCOMPARE(stage.button("ButtonStartKey").isChecked(), flag == 1);
    QCOMPARE(stage.button("ButtonSendKey").isChecked(), flag == 0);
    // A view that is not enabled takes no keyboard.
    stage.click("pStartDisplayView");
    QCOMPARE(stage.display("pStartDisplayView").hasFocus(), flag == 1);
    stage.click("pSendDisplayView");
    QCOMPARE(stage.display("pSendDisplayView").hasFocus(), flag == 0);
}

/// As a file may have it: the box shows it as set, but what belongs to it is not enabled.
void tst_editorsetting::aFlagThatIsNeitherSelectsTheBoxAlone()
{
    MacroInfo macro = namedMacro("flags");
    macro.bLOOP = 2;
    macro.bSTARTKEY = 2;
    macro.bSENDKEY = 3;
    const EditorStage stage(macro);
    QVERIFY(stage.button("ButtonLoop").isChecked());
    QVERIFY(stage.loop().isReadOnly());
    stage.click("ButtonCopy");
    for (const auto &[box, field] : {std::pair("ButtonStartKey", "pStartDisplayView"),
                                     {"ButtonSendKey", "pSendDisplayView"}}) {
        QVERIFY(stage.button(box).isChecked());
        stage.click(field);
        QVERIFY(!stage.display(field).hasFocus());
    }
}

void tst_editorsetting::theDialogIsDrawnAnewWithAMode()
{
    const EditorStage stage;
    QCoreApplication::processEvents();
    const PaintWatch watch(*stage.view);
    stage.click("ButtonCopy");
    // The title and the name's label stay where they are.
    QTRY_VERIFY(watch.hasPainted({60, 20}) && watch.hasPainted({30, 95}));
}

void tst_editorsetting::copyAndPasteShowsKeysAndText()
{
    MacroInfo macro = namedMacro("paste");
    macro.MODE = 0;
    putEvents(macro.STARTKEY, {{48, 1, 7}, {48, 2, 8}});
    putEvents(macro.SENDKEY, {{53, 1, 9}, {0, 0, 0}});
    SetText(macro.COPY_PASTER, "gg wp");
    const EditorStage stage(macro);
    const MacroDisplay &start = stage.display("pStartDisplayView");
    const MacroDisplay &send = stage.display("pSendDisplayView");
    QCOMPARE(listed(start.getKeymapInfo(), 2), QStringLiteral("48/1/7 48/2/8"));
    QCOMPARE(send.count(), 1U);
    // With signs for press and release, without delays.
    QCOMPARE(start.GetMacroOutputString(), QStringLiteral("Tab|Tab^"));
    QCOMPARE(send.GetMacroOutputString(), QStringLiteral("ESC|"));
    QCOMPARE(stage.text().toPlainText(), QStringLiteral("gg wp"));
}

KYR_GUI_TEST(tst_editorsetting)
#include "tst_editorsetting.moc"
