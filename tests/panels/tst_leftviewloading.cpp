#include "levelstage.h"
#include "support/suite.h"

#include <functional>

/// When the left bar's controls take over what the profile says.
class tst_leftviewloading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theHandleLoadsTheCurrentProfile_data();
    void theHandleLoadsTheCurrentProfile();
    void theHandleLoadsAsTheBarSetsOut();
    void aSwitchLoadsAnOpenBarAndNoShutOne_data();
    void aSwitchLoadsAnOpenBarAndNoShutOne();
    void restoringDefaultsLoadsEveryBar_data();
    void restoringDefaultsLoadsEveryBar();
    void loadingIsNoChange();
    void eachCodeHasItsCaption_data();
    void eachCodeHasItsCaption();
    void anotherCodeKeepsTheCaption_data();
    void anotherCodeKeepsTheCaption();
    void aLevelOutsideTheRangeShowsTheBound_data();
    void aLevelOutsideTheRangeShowsTheBound();
    void theRecordKeepsALevelUntilItsSliderIsMoved_data() { levelRows(); }
    void theRecordKeepsALevelUntilItsSliderIsMoved();

private:
    static void oddCodeRows();
};

namespace {

using Act = std::function<void(LevelStage &stage)>;

/// All ten profiles different from each other.
void putTenProfiles()
{
    for (std::uint32_t i = 0; i < kProfileCount; ++i)
        putSensor(m_Config.PROFILE[i], {i % 6, i + 1, 10 - i, i % 5 + 1, i % 4 + 3, i % 3 + 6});
}

/// A settings file whose first profile has that number under all six keys.
QByteArray settingsFull(qint64 number)
{
    QByteArray entries;
    for (const char *key : {"DPI_VALUE", "DBCLICK_SPEED", "SCROLL_SPEED", "SENSITIVITY",
                            "ADVANCED_SEN_X", "ADVANCED_SEN_Y"})
        entries += plistEntry(key, "<integer>" + QByteArray::number(number) + "</integer>");
    return plistOf(plistEntry("PROFILE_1", plistDictionary(entries)));
}

const QString kFirst = QStringLiteral(" 800,1,10,1,3,6");
const QString kFifth = QStringLiteral(" 4000,5,6,5,3,7");

} // namespace

void tst_leftviewloading::theHandleLoadsTheCurrentProfile_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("shown");
    QTest::newRow("1") << 1 << kFirst;
    QTest::newRow("2") << 2 << QStringLiteral(" 1600,2,9,2,4,7");
    QTest::newRow("5") << 5 << kFifth;
    QTest::newRow("6") << 6 << QStringLiteral(" 5000,6,5,1,4,8");
    QTest::newRow("10") << 10 << QStringLiteral(" 3200,10,1,5,4,6");
    QTest::newRow("one outside") << 11 << kFirst;
}

void tst_leftviewloading::theHandleLoadsTheCurrentProfile()
{
    QFETCH(int, number);
    QFETCH(QString, shown);
    LevelStage stage;
    putTenProfiles();
    stage.program.reportProfile(number);
    QVERIFY(stage.shows() != shown);
    stage.toggleLeft();
    QCOMPARE(stage.shows(), shown);
    putSensor(CurrentProfile(), {2, 3, 4, 5, 6, 7});
    stage.toggleLeft(); // shuts it
    QCOMPARE(stage.shows(), QStringLiteral(" 2400,3,4,5,6,7"));
}

void tst_leftviewloading::theHandleLoadsAsTheBarSetsOut()
{
    LevelStage stage;
    putTenProfiles();
    pointer::click(stage.toggle(kLeftBar));
    QCOMPARE(stage.shows(), kFirst);
    stage.passHalf();
    putSensor(CurrentProfile(), {2, 3, 4, 5, 6, 7});
    pointer::click(stage.toggle(kLeftBar)); // turns it round
    QCOMPARE(stage.shows(), QStringLiteral(" 2400,3,4,5,6,7"));
}

void tst_leftviewloading::aSwitchLoadsAnOpenBarAndNoShutOne_data()
{
    QTest::addColumn<Act>("act");
    const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
    row("a profile key", [](LevelStage &stage) { pointer::click(stage.program.profileKey(5)); });
    row("the mouse", [](LevelStage &stage) { stage.program.reportProfile(5); });
}

void tst_leftviewloading::aSwitchLoadsAnOpenBarAndNoShutOne()
{
    QFETCH(Act, act);
    LevelStage stage;
    putTenProfiles();
    stage.toggleLeft();
    act(stage);
    QCOMPARE(stage.shows(), kFifth);
    stage.program.reportProfile(1);
    QCOMPARE(stage.shows(), kFirst);
    stage.toggleLeft();
    act(stage);
    QCOMPARE(stage.shows(), kFirst);
    stage.toggleLeft();
    QCOMPARE(stage.shows(), kFifth);
}

void tst_leftviewloading::restoringDefaultsLoadsEveryBar_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("shut") << false;
    QTest::newRow("open") << true;
}

void tst_leftviewloading::restoringDefaultsLoadsEveryBar()
{
    QFETCH(bool, isOpen);
    LevelStage stage;
    putTenProfiles();
    if (isOpen)
        stage.toggleLeft();
    pointer::click(stage.program.button("ButtonRestore"));
    QCOMPARE(stage.shows(), QStringLiteral(" 2400,10,3,6,10,10"));
}

void tst_leftviewloading::loadingIsNoChange()
{
    LevelStage stage;
    putTenProfiles();
    stage.program.log.lines.clear();
    stage.toggleLeft();
    for (int number = 10; number > 0; --number)
        stage.program.reportProfile(number);
    stage.toggleLeft();
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
}

void tst_leftviewloading::eachCodeHasItsCaption_data()
{
    QTest::addColumn<std::uint32_t>("code");
    QTest::addColumn<QString>("caption");
    std::uint32_t code = 0;
    for (const char *caption : {" 800", " 1600", " 2400", " 3200", " 4000", " 5000"})
        QTest::newRow(caption) << code++ << QString::fromLatin1(caption);
}

void tst_leftviewloading::eachCodeHasItsCaption()
{
    QFETCH(std::uint32_t, code);
    LevelStage stage;
    QCOMPARE(stage.cpi().captionText(), QString());
    CurrentProfile().DPI_VALUE = code;
    stage.toggleLeft();
    QTEST(stage.cpi().captionText(), "caption");
}

void tst_leftviewloading::oddCodeRows()
{
    QTest::addColumn<qint64>("number");
    for (const qint64 number : {6LL, 7LL, 0x80000000LL, 4294967295LL, -1LL})
        QTest::addRow("%lld", number) << number;
}

void tst_leftviewloading::anotherCodeKeepsTheCaption_data()
{
    oddCodeRows();
}

void tst_leftviewloading::anotherCodeKeepsTheCaption()
{
    QFETCH(qint64, number);
    LevelStage stage(settingsFull(number));
    const auto code = static_cast<std::uint32_t>(number);
    QCOMPARE(CurrentProfile().DPI_VALUE, code);
    stage.toggleLeft();
    QCOMPARE(stage.cpi().captionText(), QString()); // it has none before the first
    m_Config.PROFILE[1].DPI_VALUE = 4;
    stage.program.reportProfile(2);
    QCOMPARE(stage.cpi().captionText(), QStringLiteral(" 4000"));
    stage.program.reportProfile(1);
    QCOMPARE(stage.cpi().captionText(), QStringLiteral(" 4000"));
    QCOMPARE(CurrentProfile().DPI_VALUE, code);
}

void tst_leftviewloading::aLevelOutsideTheRangeShowsTheBound_data()
{
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QString>("shown");
    const auto row = [](qint64 number, const char *shown) {
        QTest::addRow("%lld", number) << number << QString::fromLatin1(shown);
    };
    row(0, " 800,1,1,1,1,1");
    row(11, ",10,10,10,10,10");
    row(2147483647, ",10,10,10,10,10");
    // More than a signed number holds, which a position is.
    row(4294967295, ",1,1,1,1,1");
    row(-1, ",1,1,1,1,1");
}

void tst_leftviewloading::aLevelOutsideTheRangeShowsTheBound()
{
    QFETCH(qint64, number);
    LevelStage stage(settingsFull(number));
    stage.toggleLeft();
    QTEST(stage.shows(), "shown");
}

void tst_leftviewloading::theRecordKeepsALevelUntilItsSliderIsMoved()
{
    QFETCH(const KnownLevel *, known);
    for (const qint64 number : {0LL, 11LL, 4294967295LL, -1LL}) {
        const OpenLevelStage stage(settingsFull(number));
        const auto kept = static_cast<std::uint32_t>(number);
        for (const KnownLevel &level : kKnownLevels)
            QCOMPARE(CurrentProfile().*level.field, kept);
        pointer::click(stage.slider(*known), known->pointOf(4));
        for (const KnownLevel &level : kKnownLevels)
            QCOMPARE(CurrentProfile().*level.field, &level == known ? 4U : kept);
        QCOMPARE(CurrentProfile().DPI_VALUE, kept);
    }
}

KYR_GUI_TEST(tst_leftviewloading)
#include "tst_leftviewloading.moc"
