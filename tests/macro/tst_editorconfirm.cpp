#include "editorstage.h"
#include "support/suite.h"

/// What OK takes from the fields for name and text, and from those that the mode hides.
class tst_editorconfirm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNameIsTaken_data();
    void theNameIsTaken();
    void theTextIsTakenInEveryMode_data() { modeRows({0, 1, 2, 3}); }
    void theTextIsTakenInEveryMode();
    void aMacroOfEventsLosesItsTextAndKeys_data() { modeRows({1, 2, 3}); }
    void aMacroOfEventsLosesItsTextAndKeys();
    void aMacroOfATextLosesItsEventsAndLoopCount();

private:
    static void modeRows(std::initializer_list<std::uint32_t> modes);
};

void tst_editorconfirm::modeRows(std::initializer_list<std::uint32_t> modes)
{
    QTest::addColumn<std::uint32_t>("mode");
    for (const std::uint32_t mode : modes)
        QTest::newRow(kModeButtons[mode]) << mode;
}

void tst_editorconfirm::theNameIsTaken_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("stored");
    const auto row = [](const char *what, const char *typed, const char *stored) {
        QTest::newRow(what) << QByteArray(typed) << QString::fromLatin1(stored);
    };
    row("a name", "Fire ball", "Fire ball");
    row("none", "", "Custom");
    row("blanks", "  ", "  ");
    row("what a file has to write otherwise", "<a href=\"&amp;\">'", "<a href=\"&amp;\">'");
    row("a format", "%s%n%d %@", "%s%n%d %@");
}

void tst_editorconfirm::theNameIsTaken()
{
    QFETCH(QByteArray, typed);
    const EditorStage stage(namedMacro("before"));
    stage.type(stage.name(), typed.constData());
    QTEST(nameOf(stage.confirmed()), "stored");
}

void tst_editorconfirm::theTextIsTakenInEveryMode()
{
    QFETCH(std::uint32_t, mode);
    const EditorStage stage;
    stage.click("ButtonCopy");
    stage.type(stage.text(), "typed text");
    stage.view->setMacroDelaymode(mode);
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(pastedTextOf(stored), QStringLiteral("typed text"));
    QCOMPARE(stored.MODE, mode);
}

/// The fields that its mode does not show are those of a new macro.
void tst_editorconfirm::aMacroOfEventsLosesItsTextAndKeys()
{
    QFETCH(std::uint32_t, mode);
    MacroInfo macro = namedMacro("events");
    macro.MODE = mode;
    SetText(macro.COPY_PASTER, "stored text");
    putEvents(macro.STARTKEY, {{48, 1, 3}, {48, 2, 4}});
    putEvents(macro.SENDKEY, {{53, 1, 3}, {53, 2, 4}});
    putEvents(macro.KEYMAP, {{0, 1, 9}, {0, 2, 0}});
    macro.bSENDKEY = 1;
    const EditorStage stage(macro);
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(pastedTextOf(stored), QString());
    QCOMPARE(listed(stored.STARTKEY, 2), QStringLiteral("36/1/0 36/2/0"));
    QCOMPARE(listed(stored.SENDKEY, 2), QStringLiteral("36/1/0 36/2/0"));
    QCOMPARE(stored.bSTARTKEY, 0U);
    QCOMPARE(stored.bSENDKEY, 1U);
    // The recorded delays are kept in every mode.
    QCOMPARE(listed(stored.KEYMAP, 3), QStringLiteral("0/1/9 0/2/0 0/0/0"));
}

void tst_editorconfirm::aMacroOfATextLosesItsEventsAndLoopCount()
{
    MacroInfo macro = namedMacro("looping");
    macro.bLOOP = 1;
    macro.MACRO_LOOP = 12;
    macro.MODE = 0;
    std::ranges::fill(macro.KEYMAP, KeymapEvent{48, 1, 5});
    SetText(macro.COPY_PASTER, "stored text");
    const EditorStage stage(macro);
    const MacroInfo &stored = stage.confirmed();
    QCOMPARE(pastedTextOf(stored), QStringLiteral("stored text"));
    QCOMPARE(stored.MACRO_LOOP, 1U);
    QCOMPARE(stored.bLOOP, 1U);
    QCOMPARE(stored.KEYMAP[0].kind, 0U);
    QCOMPARE(stored.KEYMAP[299].kind, 0U);
    QCOMPARE(listed(std::span(stored.KEYMAP).last(200), 1), QStringLiteral("48/1/5"));
}

KYR_GUI_TEST(tst_editorconfirm)
#include "tst_editorconfirm.moc"
