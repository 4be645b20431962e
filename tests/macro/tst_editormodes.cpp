#include "editorstage.h"
#include "support/suite.h"

/// A mode that comes from outside, also one that is none.
class tst_editormodes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModeFromOutsideSelectsItsRadioButton_data();
    void aModeFromOutsideSelectsItsRadioButton();
    void aModeThatIsNoneIsStoredAndLeavesTheLayout_data();
    void aModeThatIsNoneIsStoredAndLeavesTheLayout();
    void wildValuesOfAFileAreShownAndKept();
};

void tst_editormodes::aModeFromOutsideSelectsItsRadioButton_data()
{
    QTest::addColumn<std::uint32_t>("mode");
    for (std::uint32_t mode = 0; mode < std::size(kModeButtons); ++mode)
        QTest::newRow(kModeButtons[mode]) << mode;
}

void tst_editormodes::aModeFromOutsideSelectsItsRadioButton()
{
    QFETCH(std::uint32_t, mode);
    const EditorStage stage;
    stage.view->setMacroDelaymode(mode);
    QCOMPARE(stage.radiosOn(), QStringList(QString::fromLatin1(kModeButtons[mode])));
    QCOMPARE(stage.text().isVisible(), mode == 0);
    QCOMPARE(stage.confirmed().MODE, mode);
}

void tst_editormodes::aModeThatIsNoneIsStoredAndLeavesTheLayout_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<std::uint32_t>("mode");
    for (const char *before : kModeButtons) {
        for (const std::uint32_t mode : {4U, 7U, 4294967295U})
            QTest::addRow("%u after %s", mode, before) << QByteArray(before) << mode;
    }
}

void tst_editormodes::aModeThatIsNoneIsStoredAndLeavesTheLayout()
{
    QFETCH(QByteArray, before);
    QFETCH(std::uint32_t, mode);
    const EditorStage stage;
    stage.click(before.constData());
    const bool showsText = stage.text().isVisible();
    stage.view->setMacroDelaymode(mode);
    QCOMPARE(stage.radiosOn(), QStringList());
    QCOMPARE(stage.text().isVisible(), showsText);
    QCOMPARE(stage.loop().isVisible(), !showsText);
    QCOMPARE(stage.confirmed().MODE, mode);
}

void tst_editormodes::wildValuesOfAFileAreShownAndKept()
{
    MacroInfo macro = namedMacro("tapped");
    macro.MODE = 7;
    putEvents(macro.KEYMAP, {{36, 1, 4}, {36, 2, 0}});
    macro.bSTARTKEY = 2;
    macro.bSENDKEY = 4294967295;
    macro.bLOOP = 3;
    macro.MACRO_LOOP = 5;
    const EditorStage stage(macro);
    QCOMPARE(stage.name().text(), QStringLiteral("tapped"));
    QCOMPARE(stage.radiosOn(), QStringList());
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(stored.MODE, 7U);
    QCOMPARE(stored.bSTARTKEY, 2U);
    QCOMPARE(stored.bSENDKEY, 4294967295U);
    QCOMPARE(stored.bLOOP, 3U);
    // What the mode would have shown was not loaded: the fields of a new macro are taken.
    QCOMPARE(stored.MACRO_LOOP, 1U);
    QCOMPARE(stored.KEYMAP[0].kind, 0U);
    // Only a loop of exactly 1 can be edited; the next click on a box clears the wild value.
    stage.click("ButtonNoDelay");
    QVERIFY(stage.loop().isReadOnly());
    stage.click("ButtonLoop");
    QCOMPARE(stage.confirmed().bLOOP, 0U);
}

KYR_GUI_TEST(tst_editormodes)
#include "tst_editormodes.moc"
