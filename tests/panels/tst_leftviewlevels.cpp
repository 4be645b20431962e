#include "levelstage.h"
#include "mainview/fullsettings.h"
#include "support/suite.h"

/// The sliders of the left bar, moved by the pointer.
class tst_leftviewlevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPressAnywhereOnASliderSetsTheLevelOfThatPlace_data() { levelRows(); }
    void aPressAnywhereOnASliderSetsTheLevelOfThatPlace();
    void aDragSetsTheLevelOfEveryPlaceAlsoPastTheEnds_data() { levelRows(); }
    void aDragSetsTheLevelOfEveryPlaceAlsoPastTheEnds();
    void aDragBesideASliderFollowsItsLengthOnly_data() { levelRows(); }
    void aDragBesideASliderFollowsItsLengthOnly();
    void nothingButTheSlidersOwnLevelChanges_data() { levelRows(); }
    void nothingButTheSlidersOwnLevelChanges();
    void everyPressAndMoveCountsAlsoToTheSameLevel_data() { levelRows(); }
    void everyPressAndMoveCountsAlsoToTheSameLevel();
    void aReleaseDoesNotCount_data() { levelRows(); }
    void aReleaseDoesNotCount();
    void aLevelGoesIntoTheProfileThatIsCurrentByThen_data() { levelRows(); }
    void aLevelGoesIntoTheProfileThatIsCurrentByThen();
    void aSliderOfAnotherNumberOnlyCountsAsAChange();
    void applyWritesTheLevel_data() { levelRows(); }
    void applyWritesTheLevel();
};

namespace {

using Moved = std::vector<std::uint32_t>;

/// What came of a movement: the level in the record; 0 when the slider, the log or Apply tell
/// something else.
std::uint32_t outcome(const LevelStage &stage, const KnownLevel &known)
{
    const std::uint32_t level = CurrentProfile().*known.field;
    const bool shows = stage.slider(known).getPos() == static_cast<int>(level);
    const bool isLogged = stage.program.log.lines == std::vector<std::string>{known.logged};
    return shows && isLogged && stage.program.applyIsEnabled() ? level : 0;
}

} // namespace

void tst_leftviewlevels::aPressAnywhereOnASliderSetsTheLevelOfThatPlace()
{
    QFETCH(const KnownLevel *, known);
    OpenLevelStage stage;
    const pngProgressBar &slider = stage.slider(*known);
    Moved levels;
    Moved expected;
    for (int along = 0; along <= known->length(); ++along) {
        const QPoint there = known->pointAt(along);
        if (!slider.rect().contains(there))
            continue;
        stage.forget();
        pointer::press(slider, there);
        levels.push_back(outcome(stage, *known));
        expected.push_back(known->levelAt(along));
        pointer::release(slider, there);
    }
    QCOMPARE(static_cast<int>(levels.size()), known->length());
    QCOMPARE(levels, expected);
}

void tst_leftviewlevels::aDragSetsTheLevelOfEveryPlaceAlsoPastTheEnds()
{
    QFETCH(const KnownLevel *, known);
    constexpr int kBeyond = 35;
    OpenLevelStage stage;
    const pngProgressBar &slider = stage.slider(*known);
    Moved levels;
    Moved expected;
    pointer::press(slider, known->pointOf(5));
    for (int along = -kBeyond; along <= known->length() + kBeyond; ++along) {
        stage.forget();
        pointer::move(slider, known->pointAt(along));
        levels.push_back(outcome(stage, *known));
        expected.push_back(known->levelAt(along));
    }
    pointer::release(slider, known->pointAt(known->length() + kBeyond));
    QCOMPARE(expected.front(), 1U);
    QCOMPARE(expected.back(), 10U);
    QCOMPARE(levels, expected);
}

void tst_leftviewlevels::aDragBesideASliderFollowsItsLengthOnly()
{
    QFETCH(const KnownLevel *, known);
    const OpenLevelStage stage;
    const pngProgressBar &slider = stage.slider(*known);
    pointer::press(slider, known->pointOf(2));
    for (const int off : {-60, -20, 0, 20, 60}) {
        for (const int level : {3, 7, 8}) {
            const QPoint aside = known->isUpright() ? QPoint(off, 0) : QPoint(0, off);
            pointer::move(slider, known->pointOf(level) + aside);
            QCOMPARE(CurrentProfile().*known->field, static_cast<std::uint32_t>(level));
        }
    }
    pointer::release(slider, known->pointOf(8));
}

void tst_leftviewlevels::nothingButTheSlidersOwnLevelChanges()
{
    QFETCH(const KnownLevel *, known);
    const OpenLevelStage stage(fullSettings());
    const pngProgressBar &slider = stage.slider(*known);
    const Record expected = copyOf();
    QCOMPARE(expected->PROFILE_ID, 2U);
    pointer::press(slider, known->pointOf(4));
    expected->PROFILE[2].*known->field = 4;
    QVERIFY(isRecord(*expected));
    pointer::move(slider, known->pointAt(-5));
    expected->PROFILE[2].*known->field = 1;
    QVERIFY(isRecord(*expected));
    pointer::release(slider, known->pointAt(-5));
    QVERIFY(isRecord(*expected));
    QCOMPARE(stage.program.settings.bytes(), fullSettings());
    QVERIFY(stage.program.requestsSinceStart().empty());
}

void tst_leftviewlevels::everyPressAndMoveCountsAlsoToTheSameLevel()
{
    QFETCH(const KnownLevel *, known);
    OpenLevelStage stage;
    const pngProgressBar &slider = stage.slider(*known);
    pointer::click(slider, known->pointOf(6));
    stage.forget();
    pointer::press(slider, known->pointOf(6));
    QCOMPARE(outcome(stage, *known), 6U);
    stage.forget();
    const QPoint beside = known->isUpright() ? QPoint(1, 0) : QPoint(0, 1);
    pointer::move(slider, known->pointOf(6) + beside);
    QCOMPARE(outcome(stage, *known), 6U);
    pointer::release(slider, known->pointOf(6));
}

void tst_leftviewlevels::aReleaseDoesNotCount()
{
    QFETCH(const KnownLevel *, known);
    OpenLevelStage stage;
    const pngProgressBar &slider = stage.slider(*known);
    pointer::press(slider, known->pointOf(6));
    stage.forget();
    pointer::release(slider, known->pointOf(6));
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    QCOMPARE(slider.getPos(), 6);
    pointer::move(slider, known->pointOf(3)); // nothing is pressed any more
    QCOMPARE(slider.getPos(), 6);
}

void tst_leftviewlevels::aLevelGoesIntoTheProfileThatIsCurrentByThen()
{
    QFETCH(const KnownLevel *, known);
    OpenLevelStage stage;
    const pngProgressBar &slider = stage.slider(*known);
    putSensor(m_Config.PROFILE[3], {1, 9, 9, 9, 9, 9});
    const Record expected = copyOf();
    pointer::press(slider, known->pointOf(5));
    stage.program.reportProfile(4);
    QCOMPARE(slider.getPos(), 9);
    pointer::move(slider, known->pointOf(7));
    pointer::release(slider, known->pointOf(7));
    expected->PROFILE_ID = 3;
    expected->PROFILE[0].*known->field = 5;
    expected->PROFILE[3].*known->field = 7;
    QVERIFY(isRecord(*expected));
}

void tst_leftviewlevels::aSliderOfAnotherNumberOnlyCountsAsAChange()
{
    OpenLevelStage stage;
    const KnownLevel &known = kKnownLevels[4];
    stage.slider(known).setTag(0x3005);
    const Record before = copyOf();
    stage.forget();
    pointer::click(stage.slider(known), known.pointOf(3));
    QVERIFY(isRecord(*before));
    QCOMPARE(stage.program.log.lines, std::vector<std::string>());
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_leftviewlevels::applyWritesTheLevel()
{
    QFETCH(const KnownLevel *, known);
    const OpenLevelStage stage(fullSettings());
    const Record expected = copyOf();
    pointer::click(stage.slider(*known), known->pointOf(4));
    expected->PROFILE[2].*known->field = 4;
    pointer::click(stage.program.button("ButtonApply"));
    QVERIFY(isInFile(stage.program.settings.bytes(), *expected));
    QCOMPARE(stage.program.requestsSinceStart(), std::vector{takeSettings()});
    QVERIFY(!stage.program.applyIsEnabled());
}

KYR_GUI_TEST(tst_leftviewlevels)
#include "tst_leftviewlevels.moc"
