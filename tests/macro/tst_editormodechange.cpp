#include "editorstage.h"
#include "support/suite.h"

/// What a change of the mode drops: all that is not in the copy yet.
class tst_editormodechange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aModeDropsWhatWasTyped_data();
    void aModeDropsWhatWasTyped();
    void aModeDropsWhatWasRecorded_data();
    void aModeDropsWhatWasRecorded();
    void copyAndPasteDropsItsKeysAndText_data();
    void copyAndPasteDropsItsKeysAndText();
    void aRefusedOKKeepsTheNameOverAModeChange();
    void theModeThatIsOnStaysOn();
};

namespace {

void modeRows(std::span<const char *const> modes)
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    for (const char *mode : modes) {
        for (const char *to : modes)
            QTest::addRow("%s to %s", mode, to) << QByteArray(mode) << QByteArray(to);
    }
}

} // namespace

void tst_editormodechange::aModeDropsWhatWasTyped_data()
{
    modeRows(kModeButtons);
}

void tst_editormodechange::aModeDropsWhatWasTyped()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    const EditorStage stage(namedMacro("before"));
    stage.click(from.constData());
    stage.type(stage.name(), "typed");
    QCOMPARE(stage.name().text(), QStringLiteral("typed"));
    stage.click(to.constData());
    QCOMPARE(stage.name().text(), QStringLiteral("before"));
    QCOMPARE(nameOf(stage.confirmed()), QStringLiteral("before"));
}

void tst_editormodechange::aModeDropsWhatWasRecorded_data()
{
    modeRows(std::span(kModeButtons).subspan(1)); // those that show events
}

void tst_editormodechange::aModeDropsWhatWasRecorded()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    MacroInfo macro = namedMacro("recorded");
    putEvents(macro.KEYMAP, {{53, 1, 2}, {53, 2, 3}});
    macro.MACRO_LOOP = 8;
    macro.bLOOP = 1;
    const EditorStage stage(macro);
    stage.click(from.constData());
    pointer::click(stage.events());
    keystroke::tap(keystroke::kB);
    stage.type(stage.loop(), "77");
    QCOMPARE(stage.events().getKeymapInfo()[0].keycode, 11U);
    stage.click(to.constData());
    QCOMPARE(listed(stage.events().getKeymapInfo(), 3), QStringLiteral("53/1/2 53/2/3 0/0/0"));
    QCOMPARE(stage.events().count(), 2U);
    QCOMPARE(stage.loop().text(), QStringLiteral("8"));
}

void tst_editormodechange::copyAndPasteDropsItsKeysAndText_data()
{
    QTest::addColumn<QByteArray>("by");
    for (const char *mode : kModeButtons)
        QTest::newRow(mode) << QByteArray(mode);
}

void tst_editormodechange::copyAndPasteDropsItsKeysAndText()
{
    QFETCH(QByteArray, by);
    MacroInfo macro = namedMacro("paste");
    macro.MODE = 0;
    macro.bSTARTKEY = 1;
    putEvents(macro.STARTKEY, {{48, 1, 0}, {48, 2, 0}});
    SetText(macro.COPY_PASTER, "stored");
    const EditorStage stage(macro);
    stage.type(stage.text(), "typed");
    stage.click("pStartDisplayView");
    keystroke::tap(keystroke::kB);
    stage.click(by.constData());
    stage.click("ButtonCopy");
    QCOMPARE(stage.text().toPlainText(), QStringLiteral("stored"));
    QCOMPARE(listed(stage.display("pStartDisplayView").getKeymapInfo(), 2),
             QStringLiteral("48/1/0 48/2/0"));
}

/// A refused OK has taken the texts into the copy already.
void tst_editormodechange::aRefusedOKKeepsTheNameOverAModeChange()
{
    const EditorStage stage;
    stage.click("ButtonLoop");
    stage.type(stage.name(), "taken");
    stage.type(stage.loop(), "0");
    stage.click("ButtonOK");
    stage.type(stage.name(), "dropped");
    stage.click("ButtonNoDelay");
    QCOMPARE(stage.name().text(), QStringLiteral("taken"));
}

void tst_editormodechange::theModeThatIsOnStaysOn()
{
    const EditorStage stage;
    for (const char *mode : kModeButtons) {
        stage.click(mode);
        stage.click(mode);
        for (const char *other : kModeButtons)
            QCOMPARE(stage.button(other).isChecked(), other == mode);
    }
}

KYR_GUI_TEST(tst_editormodechange)
#include "tst_editormodechange.moc"
