#include "lightingstage.h"
#include "mainview/fullsettings.h"
#include "support/suite.h"

/// Choosing an intensity or a pulsation from its list.
class tst_bottomviewlevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChoiceIsStoredAndShown_data() { lightLevelCodeRows(); }
    void aChoiceIsStoredAndShown();
    void nothingElseChanges_data() { lightLevelCodeRows(); }
    void nothingElseChanges();
    void theLevelThatIsSetCountsAsAChange_data() { lightLevelCodeRows(); }
    void theLevelThatIsSetCountsAsAChange();
    void bothListsLogUnderTheSameName_data() { lightLevelCodeRows(); }
    void bothListsLogUnderTheSameName();
    void afterAChoiceTheMainWindowHasTheKeyboard_data() { lightLevelRows(); }
    void afterAChoiceTheMainWindowHasTheKeyboard();
    void theKeyboardChoosesToo_data() { lightLevelRows(); }
    void theKeyboardChoosesToo();
    void returnWithoutARowStoresNothing_data() { lightLevelRows(); }
    void returnWithoutARowStoresNothing();
    void aListOfAnotherNumberOnlyCountsAsAChange_data() { lightLevelRows(); }
    void aListOfAnotherNumberOnlyCountsAsAChange();
    void aChoiceGoesIntoTheProfileShownByThen_data() { lightLevelRows(); }
    void aChoiceGoesIntoTheProfileShownByThen();
    void applyWritesTheChoiceAndTells_data() { lightLevelRows(); }
    void applyWritesTheChoiceAndTells();
    void choicesFollowEachOther();
};

namespace {

/// The program at its third profile, whose bar is open and shows "Medium" twice.
struct LightLevelStage : LightingStage
{
    LightLevelStage()
    {
        makeRoomBelow();
        program.reportProfile(3);
        toggleBottom();
    }

    void choose(const KnownLightLevel &known, int row) const
    {
        pointer::click(openLevels(known), rowPoint(row));
    }
    /// The code of the profile that is the third one.
    static std::uint32_t &code(const KnownLightLevel &known)
    {
        return m_Config.PROFILE[2].*known.field;
    }
};

std::string logged(int row)
{
    return "IDC_LISTBOX_INTENSITY:" + std::to_string(row);
}

} // namespace

void tst_bottomviewlevels::aChoiceIsStoredAndShown()
{
    QFETCH(const KnownLightLevel *, known);
    QFETCH(int, code);
    const LightLevelStage stage;
    stage.choose(*known, code);
    QCOMPARE(LightLevelStage::code(*known), static_cast<std::uint32_t>(code));
    QCOMPARE(stage.caption(known->light), QLatin1String(known->texts[code]));
    QCOMPARE(stage.caption(otherThan(*known).light), QStringLiteral("Medium"));
    QTRY_VERIFY(openPopups().empty());
}

void tst_bottomviewlevels::nothingElseChanges()
{
    QFETCH(const KnownLightLevel *, known);
    QFETCH(int, code);
    const LightLevelStage stage;
    const Record expected = copyOf();
    expected->PROFILE[2].*known->field = static_cast<std::uint32_t>(code);
    stage.choose(*known, code);
    QTRY_VERIFY(openPopups().empty());
    QVERIFY(isRecord(*expected));
}

void tst_bottomviewlevels::theLevelThatIsSetCountsAsAChange()
{
    QFETCH(const KnownLightLevel *, known);
    QFETCH(int, code);
    const LightLevelStage stage;
    LightLevelStage::code(*known) = static_cast<std::uint32_t>(code);
    QVERIFY(!stage.program.applyIsEnabled());
    stage.choose(*known, code);
    QCOMPARE(LightLevelStage::code(*known), static_cast<std::uint32_t>(code));
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_bottomviewlevels::bothListsLogUnderTheSameName()
{
    QFETCH(const KnownLightLevel *, known);
    QFETCH(int, code);
    const LightLevelStage stage;
    stage.choose(*known, code);
    QTRY_VERIFY(openPopups().empty());
    const std::vector<std::string> lines = {logged(code), "CloseListBox"};
    QCOMPARE(stage.program.log.lines, lines);
}

void tst_bottomviewlevels::afterAChoiceTheMainWindowHasTheKeyboard()
{
    QFETCH(const KnownLightLevel *, known);
    const LightLevelStage stage;
    stage.choose(*known, 2);
    QTRY_VERIFY(openPopups().empty());
    QTRY_VERIFY(stage.program.window().isActiveWindow());
}

void tst_bottomviewlevels::theKeyboardChoosesToo()
{
    QFETCH(const KnownLightLevel *, known);
    const LightLevelStage stage;
    const pngListBox &list = stage.openLevels(*known);
    // From the second row down to the last and one up.
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up})
        QTest::keyClick(pointer::windowOf(list), key);
    QCOMPARE(LightLevelStage::code(*known), 1U);
    QTest::keyClick(pointer::windowOf(list), Qt::Key_Return);
    QCOMPARE(LightLevelStage::code(*known), 2U);
    QCOMPARE(stage.caption(known->light), QStringLiteral("Low"));
    QVERIFY(stage.program.applyIsEnabled());
    QTRY_VERIFY(openPopups().empty());
    QTRY_VERIFY(stage.program.window().isActiveWindow());
}

void tst_bottomviewlevels::returnWithoutARowStoresNothing()
{
    QFETCH(const KnownLightLevel *, known);
    const LightLevelStage stage;
    LightLevelStage::code(*known) = 7;
    QTest::keyClick(pointer::windowOf(stage.openLevels(*known)), Qt::Key_Return);
    QCOMPARE(LightLevelStage::code(*known), 7U);
    QCOMPARE(stage.caption(known->light), QStringLiteral("Medium"));
    QVERIFY(stage.program.applyIsEnabled()); // whatever was chosen
    QVERIFY(stage.program.log.contains(logged(-1)));
    QTRY_VERIFY(openPopups().empty());
}

void tst_bottomviewlevels::aListOfAnotherNumberOnlyCountsAsAChange()
{
    QFETCH(const KnownLightLevel *, known);
    const LightLevelStage stage;
    pngListBox &list = stage.openLevels(*known);
    const auto before = std::make_unique<ConfigData>(m_Config);
    list.setTag(4103);
    pointer::click(list, rowPoint(3));
    QCoreApplication::processEvents();
    QCOMPARE(std::memcmp(&m_Config, before.get(), sizeof m_Config), 0);
    QCOMPARE(stage.caption(known->light), QStringLiteral("Medium"));
    QCOMPARE(openPopups().size(), std::size_t{1});
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_bottomviewlevels::aChoiceGoesIntoTheProfileShownByThen()
{
    QFETCH(const KnownLightLevel *, known);
    LightLevelStage stage;
    const pngListBox &list = stage.openLevels(*known);
    stage.program.reportProfile(5);
    pointer::click(list, rowPoint(3));
    QCOMPARE(m_Config.PROFILE[4].*known->field, 3U);
    QCOMPARE(LightLevelStage::code(*known), 1U);
    QCOMPARE(stage.caption(known->light), QStringLiteral("Off"));
}

void tst_bottomviewlevels::applyWritesTheChoiceAndTells()
{
    QFETCH(const KnownLightLevel *, known);
    const LightLevelStage stage;
    stage.choose(*known, 0);
    QTRY_VERIFY(openPopups().empty());
    QVERIFY(stage.program.requestsSinceStart().empty());
    QCOMPARE(stage.program.settings.bytes(), QByteArray());
    pointer::click(stage.program.button("ButtonApply"));
    QVERIFY(isInFile(stage.program.settings.bytes(), m_Config));
    QCOMPARE(stage.program.requestsSinceStart(), std::vector{takeSettings()});
    QCOMPARE(LightLevelStage::code(*known), 0U);
}

void tst_bottomviewlevels::choicesFollowEachOther()
{
    const LightLevelStage stage;
    for (const KnownLightLevel &known : kKnownLightLevels) {
        for (const int row : {0, 3, 1, 2}) {
            stage.choose(known, row);
            QTRY_VERIFY(openPopups().empty());
            QCOMPARE(LightLevelStage::code(known), static_cast<std::uint32_t>(row));
        }
    }
    QCOMPARE(stage.program.log.count("CloseListBox"), 8L);
}

KYR_GUI_TEST(tst_bottomviewlevels)
#include "tst_bottomviewlevels.moc"
