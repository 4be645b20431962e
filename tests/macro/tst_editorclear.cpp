#include "editorstage.h"
#include "support/suite.h"

/// CLEAR in each mode.
class tst_editorclear : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clearEmptiesTheEventList_data();
    void clearEmptiesTheEventList();
    void clearResetsKeysAndText();
    void clearKeepsTheKeysDelays();
    void anUncheckedBoxStaysUnchecked_data();
    void anUncheckedBoxStaysUnchecked();
    void theBoxCatchesUpWithItsNextClick();
    void inAModeThatIsNoneClearDoesNothing();
    void clearIsNothingBeforeOK_data() { clearEmptiesTheEventList_data(); }
    void clearIsNothingBeforeOK();
    void aModeChangeKeepsWhatWasCleared();
};

namespace {

/// All fields in use, every event slot included.
MacroInfo fullMacro(std::uint32_t mode)
{
    MacroInfo macro = namedMacro("full");
    macro.MODE = mode;
    std::ranges::fill(macro.KEYMAP, KeymapEvent{48, 1, 5});
    putEvents(macro.STARTKEY, {{48, 1, 6}, {48, 2, 7}});
    putEvents(macro.SENDKEY, {{53, 1, 8}, {53, 2, 9}});
    SetText(macro.COPY_PASTER, "text");
    macro.bSTARTKEY = 1;
    macro.bSENDKEY = 1;
    macro.bLOOP = 1;
    macro.MACRO_LOOP = 12;
    return macro;
}

struct KeyBox
{
    const char *box;
    const char *view;
};
constexpr KeyBox kKeyBoxes[] = {{"ButtonStartKey", "pStartDisplayView"},
                                {"ButtonSendKey", "pSendDisplayView"}};

/// The macro in Copy & Paste with both boxes unchecked.
MacroInfo uncheckedMacro()
{
    MacroInfo macro = fullMacro(0);
    macro.bSTARTKEY = 0;
    macro.bSENDKEY = 0;
    return macro;
}

} // namespace

void tst_editorclear::clearEmptiesTheEventList_data()
{
    QTest::addColumn<std::uint32_t>("mode");
    for (const std::uint32_t mode : {1U, 2U, 3U})
        QTest::addRow("%u", mode) << mode;
}

void tst_editorclear::clearEmptiesTheEventList()
{
    QFETCH(std::uint32_t, mode);
    const EditorStage stage(fullMacro(mode));
    QCOMPARE(stage.events().count(), 300U);
    stage.click("ButtonClear");
    QCOMPARE(stage.events().count(), 0U);
    QCOMPARE(stage.name().text(), QStringLiteral("full"));
    QCOMPARE(stage.loop().text(), QStringLiteral("12"));
    const MacroInfo &stored = stage.confirmed();
    for (const auto &[keycode, kind, delay] : stored.KEYMAP)
        QVERIFY(keycode == 0 && kind == 0 && delay == 0);
    QCOMPARE(nameOf(stored), QStringLiteral("full"));
    QCOMPARE(stored.bLOOP, 1U);
    QCOMPARE(stored.MACRO_LOOP, 12U);
    QCOMPARE(stored.MODE, mode);
}

void tst_editorclear::clearResetsKeysAndText()
{
    const EditorStage stage(fullMacro(0));
    stage.type(stage.name(), "typed");
    stage.type(stage.text(), "typed too");
    stage.click("ButtonClear");
    QCOMPARE(stage.text().toPlainText(), QString());
    QCOMPARE(stage.display("pStartDisplayView").GetMacroOutputString(),
             QStringLiteral("Enter|Enter^"));
    QCOMPARE(stage.display("pSendDisplayView").GetMacroOutputString(),
             QStringLiteral("Enter|Enter^"));
    QCOMPARE(stage.name().text(), QStringLiteral("typed"));
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(pastedTextOf(stored), QString());
    QCOMPARE(nameOf(stored), QStringLiteral("typed"));
    QCOMPARE(stored.bLOOP, 1U);
    QCOMPARE(stored.bSTARTKEY, 1U);
    QCOMPARE(stored.bSENDKEY, 1U);
    // The slots of the list beyond those of the view are not the mode's.
    QCOMPARE(stored.KEYMAP[300].keycode, 48U);
    QCOMPARE(stored.KEYMAP[499].kind, 1U);
}

void tst_editorclear::clearKeepsTheKeysDelays()
{
    const EditorStage stage(fullMacro(0));
    stage.click("ButtonClear");
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(listed(stored.STARTKEY, 2), QStringLiteral("36/1/6 36/2/7"));
    QCOMPARE(listed(stored.SENDKEY, 2), QStringLiteral("36/1/8 36/2/9"));
}

void tst_editorclear::anUncheckedBoxStaysUnchecked_data()
{
    QTest::addColumn<QByteArray>("view");
    for (const auto &[box, view] : kKeyBoxes)
        QTest::newRow(box) << QByteArray(view);
}

void tst_editorclear::anUncheckedBoxStaysUnchecked()
{
    QFETCH(QByteArray, view);
    const char *const box = QTest::currentDataTag();
    const QColor grey(170, 170, 170);
    const EditorStage stage(uncheckedMacro());
    MacroDisplay &key = stage.display(view.constData());
    stage.click("ButtonClear");
    QVERIFY(!stage.button(box).isChecked());
    QCOMPARE(shownAt(key, {220, 15}), grey);
    QCOMPARE(key.GetMacroOutputString(), QStringLiteral("Enter|Enter^"));
    QCOMPARE(stage.confirmed().bSTARTKEY, 1U);
    QCOMPARE(stage.confirmed().bSENDKEY, 1U);
    // They catch up when the mode is shown anew.
    stage.click("ButtonCopy");
    QVERIFY(stage.button(box).isChecked());
    QCOMPARE(shownAt(key, {220, 15}), QColor(Qt::white));
}

void tst_editorclear::theBoxCatchesUpWithItsNextClick()
{
    const EditorStage stage(uncheckedMacro());
    stage.click("ButtonClear");
    for (const auto &[box, view] : kKeyBoxes) {
        stage.click(box);
        QVERIFY(!stage.button(box).isChecked()); // it was on, whatever it showed
        stage.click(box);
        QVERIFY(stage.button(box).isChecked());
        stage.click(view);
        QVERIFY(stage.find(view).hasFocus());
    }
}

void tst_editorclear::inAModeThatIsNoneClearDoesNothing()
{
    const EditorStage stage(fullMacro(2));
    stage.view->setMacroDelaymode(7);
    stage.click("ButtonClear");
    QCOMPARE(stage.events().count(), 300U);
    QCOMPARE(stage.confirmed().KEYMAP[499].keycode, 48U);
}

void tst_editorclear::clearIsNothingBeforeOK()
{
    QFETCH(std::uint32_t, mode);
    const EditorStage stage(fullMacro(mode));
    const ConfigData before = m_Config;
    stage.click("ButtonClear");
    stage.click("ButtonCancel");
    QVERIFY(isUnchanged(before));
}

void tst_editorclear::aModeChangeKeepsWhatWasCleared()
{
    const EditorStage stage(fullMacro(2));
    stage.click("ButtonClear");
    stage.click("ButtonNoDelay");
    QCOMPARE(stage.events().count(), 0U);
    // The text is not the copy's before OK: it comes back.
    stage.click("ButtonCopy");
    stage.click("ButtonClear");
    QCOMPARE(stage.text().toPlainText(), QString());
    stage.click("ButtonCopy");
    QCOMPARE(stage.text().toPlainText(), QStringLiteral("text"));
}

KYR_GUI_TEST(tst_editorclear)
#include "tst_editorclear.moc"
