#include "editorstage.h"
#include "support/suite.h"
#include "support/testsettings.h"

/// Where OK writes the macro.
class tst_editorsave : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMacroOfTheProfileIsReplaced_data();
    void aMacroOfTheProfileIsReplaced();
    void aNewMacroGoesIntoTheFirstFreeSlot_data();
    void aNewMacroGoesIntoTheFirstFreeSlot();
    void whatAFreeSlotHeldIsReplaced();
    void inAFullProfileANewMacroIsLost();
    void anyOtherNumberSavesNothing_data();
    void anyOtherNumberSavesNothing();
    void theProfileThatIsCurrentAtOKCounts();
    void aMacroOpenedInAnotherProfileReplacesTheOneHere();
    void theFileIsNotWritten();
};

namespace {

/// A profile with macros in the first slots.
void fillSlots(unsigned count, unsigned profile = 0)
{
    for (unsigned slot = 0; slot < count; ++slot)
        m_Config.PROFILE[profile].MACRO[slot] = namedMacro("macro " + std::to_string(slot));
}

/// Confirms a macro of that name and says in which slots of which profiles ("profile/slot") the
/// record has changed.
QStringList changedBy(const EditorStage &stage, const char *name)
{
    const ConfigData before = m_Config;
    stage.type(stage.name(), name);
    stage.click("ButtonOK");
    QStringList changed;
    for (unsigned profile = 0; profile < kProfileCount; ++profile) {
        for (unsigned slot = 0; slot < kMacroCount; ++slot) {
            if (!isSameMacro(before.PROFILE[profile].MACRO[slot],
                             m_Config.PROFILE[profile].MACRO[slot]))
                changed << QStringLiteral("%1/%2").arg(profile).arg(slot);
        }
    }
    return changed;
}

} // namespace

void tst_editorsave::aMacroOfTheProfileIsReplaced_data()
{
    QTest::addColumn<int>("slot");
    for (const int slot : {0, 1, 25, 48, 49})
        QTest::addRow("%d", slot) << slot;
}

void tst_editorsave::aMacroOfTheProfileIsReplaced()
{
    QFETCH(int, slot);
    const EditorStage stage;
    fillSlots(kMacroCount);
    stage.view->setcurrentMacroID(slot);
    QCOMPARE(changedBy(stage, "replaced"), QStringList(QStringLiteral("0/%1").arg(slot)));
    QCOMPARE(nameOf(m_Config.PROFILE[0].MACRO[slot]), QStringLiteral("replaced"));
    QVERIFY(stage.view->hasSaved());
}

void tst_editorsave::aNewMacroGoesIntoTheFirstFreeSlot_data()
{
    QTest::addColumn<unsigned>("used");
    QTest::addColumn<int>("freed");
    QTest::addColumn<int>("slot");
    QTest::newRow("an empty profile") << 0U << -1 << 0;
    QTest::newRow("a few") << 3U << -1 << 3;
    QTest::newRow("all but one") << 49U << -1 << 49;
    QTest::newRow("one in the middle") << 50U << 20 << 20;
    QTest::newRow("the first") << 50U << 0 << 0;
}

void tst_editorsave::aNewMacroGoesIntoTheFirstFreeSlot()
{
    QFETCH(unsigned, used);
    QFETCH(int, freed);
    QFETCH(int, slot);
    const EditorStage stage;
    fillSlots(used);
    if (freed >= 0)
        m_Config.PROFILE[0].MACRO[freed] = {};
    stage.view->setcurrentMacroID(-1);
    QCOMPARE(changedBy(stage, "new"), QStringList(QStringLiteral("0/%1").arg(slot)));
    QCOMPARE(nameOf(m_Config.PROFILE[0].MACRO[slot]), QStringLiteral("new"));
}

/// A slot is free when it has no name, whatever else is in it.
void tst_editorsave::whatAFreeSlotHeldIsReplaced()
{
    const EditorStage stage;
    MacroInfo nameless = namedMacro("");
    std::ranges::fill(nameless.KEYMAP, KeymapEvent{48, 1, 5});
    m_Config.PROFILE[0].MACRO[0] = nameless;
    QCOMPARE(changedBy(stage, "new"), QStringList(QStringLiteral("0/0")));
    QCOMPARE(m_Config.PROFILE[0].MACRO[0].KEYMAP[499].kind, 0U);
}

void tst_editorsave::inAFullProfileANewMacroIsLost()
{
    EditorStage stage;
    fillSlots(kMacroCount);
    const ConfigData before = m_Config;
    stage.target.during = [&] { QVERIFY(!stage.view->hasSaved()); };
    stage.run([](const OpenDialog &dialog) { dialog.click("ButtonOK"); });
    QVERIFY(isUnchanged(before));
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
}

void tst_editorsave::anyOtherNumberSavesNothing_data()
{
    QTest::addColumn<int>("macro");
    for (const int macro : {50, 51, -2, -5, INT_MIN, INT_MAX})
        QTest::addRow("%d", macro) << macro;
}

void tst_editorsave::anyOtherNumberSavesNothing()
{
    QFETCH(int, macro);
    EditorStage stage;
    fillSlots(3);
    const ConfigData before = m_Config;
    stage.view->setcurrentMacroID(macro);
    stage.target.during = [&] { QVERIFY(!stage.view->hasSaved()); };
    stage.run([](const OpenDialog &dialog) { dialog.click("ButtonOK"); });
    QVERIFY(isUnchanged(before));
    QCOMPARE(stage.target.came, QStringList(QStringLiteral("OK")));
}

void tst_editorsave::theProfileThatIsCurrentAtOKCounts()
{
    const EditorStage stage;
    fillSlots(2, 4);
    m_Config.PROFILE_ID = 4;
    QCOMPARE(changedBy(stage, "new"), QStringList(QStringLiteral("4/2")));
}

void tst_editorsave::aMacroOpenedInAnotherProfileReplacesTheOneHere()
{
    const EditorStage stage(namedMacro("opened"));
    m_Config.PROFILE_ID = 9;
    QCOMPARE(changedBy(stage, "moved"), QStringList(QStringLiteral("9/0")));
    QCOMPARE(nameOf(m_Config.PROFILE[0].MACRO[0]), QStringLiteral("opened"));
}

void tst_editorsave::theFileIsNotWritten()
{
    const TestSettings settings;
    xmlconfig store;
    store.setConfigfileName(settings.path());
    settings.put("as it was");
    const EditorStage stage;
    QCOMPARE(changedBy(stage, "new"), QStringList(QStringLiteral("0/0")));
    stage.click("ButtonCancel");
    QCOMPARE(settings.bytes(), QByteArray("as it was"));
}

KYR_GUI_TEST(tst_editorsave)
#include "tst_editorsave.moc"
