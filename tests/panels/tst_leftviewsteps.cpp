#include "levelstage.h"
#include "mainview/fullsettings.h"
#include "support/focus.h"
#include "support/keyboard.h"
#include "support/suite.h"

/// The sliders of the left bar, moved by steps: by the wheel and by keys.
class tst_leftviewsteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNotchOfTheWheelIsAStep_data();
    void aNotchOfTheWheelIsAStep();
    void aFinerWheelAddsUp_data() { levelRows(); }
    void aFinerWheelAddsUp();
    void theWheelNeedsNoKeyboard();
    void keysMoveAClickedSlider_data() { keyRows(); }
    void keysMoveAClickedSlider();
    void keysMoveASliderReachedByTab_data() { keyRows(); }
    void keysMoveASliderReachedByTab();
    void aStepPastAnEndIsNone_data() { levelRows(); }
    void aStepPastAnEndIsNone();
    void aStepBeginsWhereThePointerLeft_data() { levelRows(); }
    void aStepBeginsWhereThePointerLeft();
    void aStepGoesIntoTheProfileThatIsCurrentByThen();
    void theFrameShowsAfterTheTabKeyOnly_data() { levelRows(); }
    void theFrameShowsAfterTheTabKeyOnly();

private:
    static void keyRows();
};

namespace {

constexpr Sensor kMiddle{2, 5, 5, 5, 5, 5};

/// The open bar of the program on full settings, all levels in the middle.
struct StepStage : OpenLevelStage
{
    StepStage() : OpenLevelStage(fullSettings())
    {
        putSensor(CurrentProfile(), kMiddle);
        program.reportProfile(3); // has them shown
        forget();
        before = copyOf();
    }

    /// Whether a movement, and nothing else, has set the slider from the middle to `level`.
    bool hasStepped(const KnownLevel &known, std::uint32_t level) const
    {
        const Record expected = copyOf(*before);
        expected->PROFILE[2].*known.field = level;
        return isRecord(*expected) && slider(known).getPos() == static_cast<int>(level) &&
               program.log.lines == std::vector<std::string>{known.logged} &&
               program.applyIsEnabled();
    }
    /// Whether nothing has happened.
    bool rests(const KnownLevel &known, int level) const
    {
        return slider(known).getPos() == level && program.log.lines.empty() &&
               !program.applyIsEnabled();
    }

    Record before;
};

bool showsKeyboardFrame(pngProgressBar &slider)
{
    const QImage image = shown(slider);
    return extentOf(image, kWhite) == slider.rect() &&
           image.pixelColor(0, slider.height() / 2) == kWhite &&
           image.pixelColor(slider.width() / 2, 0) == kWhite;
}

} // namespace

void tst_leftviewsteps::aNotchOfTheWheelIsAStep_data()
{
    QTest::addColumn<const KnownLevel *>("known");
    QTest::addColumn<int>("angle");
    QTest::addColumn<std::uint32_t>("level");
    constexpr std::pair<int, std::uint32_t> turns[] = {{120, 6},  {-120, 4},  {360, 8},
                                                       {-360, 2}, {1200, 10}, {-1200, 1}};
    for (const KnownLevel &known : kKnownLevels) {
        for (const auto &[angle, level] : turns)
            QTest::addRow("%s, %d", known.name, angle) << &known << angle << level;
    }
}

void tst_leftviewsteps::aNotchOfTheWheelIsAStep()
{
    QFETCH(const KnownLevel *, known);
    QFETCH(int, angle);
    QFETCH(std::uint32_t, level);
    const StepStage stage;
    pointer::turnWheel(stage.slider(*known), angle);
    QVERIFY(stage.hasStepped(*known, level));
}

void tst_leftviewsteps::aFinerWheelAddsUp()
{
    QFETCH(const KnownLevel *, known);
    StepStage stage;
    const auto turn = [&](int angle, int times) {
        for (int time = 0; time < times; ++time)
            pointer::turnWheel(stage.slider(*known), angle);
    };
    turn(30, 3);
    QVERIFY(stage.rests(*known, 5));
    turn(30, 1);
    QVERIFY(stage.hasStepped(*known, 6));
    stage.forget();
    turn(-30, 3);
    QVERIFY(stage.rests(*known, 6));
    turn(-30, 1);
    QVERIFY(stage.hasStepped(*known, 5));
}

void tst_leftviewsteps::theWheelNeedsNoKeyboard()
{
    const StepStage stage;
    const QString before = focusPlace();
    for (const KnownLevel &known : kKnownLevels)
        pointer::turnWheel(stage.slider(known), 120);
    QCOMPARE(stage.shows(), QStringLiteral(" 2400,6,6,6,6,6"));
    QCOMPARE(focusPlace(), before);
}

void tst_leftviewsteps::keyRows()
{
    QTest::addColumn<const KnownLevel *>("known");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<std::uint32_t>("level");
    constexpr std::pair<Qt::Key, std::uint32_t> keys[] = {{Qt::Key_Up, 6},   {Qt::Key_Right, 6},
                                                          {Qt::Key_Down, 4}, {Qt::Key_Left, 4},
                                                          {Qt::Key_Home, 1}, {Qt::Key_End, 10}};
    for (const KnownLevel &known : kKnownLevels) {
        for (const auto &[key, level] : keys)
            QTest::addRow("%s, %x", known.name, key) << &known << key << level;
    }
}

void tst_leftviewsteps::keysMoveAClickedSlider()
{
    QFETCH(const KnownLevel *, known);
    QFETCH(Qt::Key, key);
    QFETCH(std::uint32_t, level);
    StepStage stage;
    stage.activateLeft();
    pointer::click(stage.slider(*known), known->pointOf(5));
    stage.forget();
    keyboard::press(key);
    QVERIFY(stage.hasStepped(*known, level));
}

void tst_leftviewsteps::keysMoveASliderReachedByTab()
{
    QFETCH(const KnownLevel *, known);
    QFETCH(Qt::Key, key);
    QFETCH(std::uint32_t, level);
    const StepStage stage;
    keyboard::tabTo(stage.slider(*known));
    keyboard::press(key);
    QVERIFY(stage.hasStepped(*known, level));
}

void tst_leftviewsteps::aStepPastAnEndIsNone()
{
    QFETCH(const KnownLevel *, known);
    StepStage stage;
    keyboard::tabTo(stage.slider(*known));
    keyboard::press(Qt::Key_End);
    stage.forget();
    pointer::turnWheel(stage.slider(*known), 120);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_End})
        keyboard::press(key);
    QVERIFY(stage.rests(*known, 10));
    keyboard::press(Qt::Key_Home);
    stage.forget();
    pointer::turnWheel(stage.slider(*known), -120);
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Left, Qt::Key_Home})
        keyboard::press(key);
    QVERIFY(stage.rests(*known, 1));
}

void tst_leftviewsteps::aStepBeginsWhereThePointerLeft()
{
    QFETCH(const KnownLevel *, known);
    StepStage stage;
    pointer::click(stage.slider(*known), known->pointOf(8));
    stage.forget();
    pointer::turnWheel(stage.slider(*known), 120);
    QVERIFY(stage.hasStepped(*known, 9));
}

void tst_leftviewsteps::aStepGoesIntoTheProfileThatIsCurrentByThen()
{
    StepStage stage;
    putSensor(m_Config.PROFILE[6], {0, 2, 2, 2, 2, 2});
    const Record expected = withProfile(m_Config, 7);
    const KnownLevel &known = kKnownLevels[2];
    keyboard::tabTo(stage.slider(known));
    stage.program.reportProfile(7);
    QVERIFY(stage.rests(known, 2));
    keyboard::press(Qt::Key_Up);
    expected->PROFILE[6].SENSITIVITY = 3;
    QVERIFY(isRecord(*expected));
}

void tst_leftviewsteps::theFrameShowsAfterTheTabKeyOnly()
{
    QFETCH(const KnownLevel *, known);
    const StepStage stage;
    pngProgressBar &slider = stage.slider(*known);
    stage.activateLeft();
    QVERIFY(!showsKeyboardFrame(slider));
    pointer::click(slider, known->pointOf(5));
    QVERIFY(slider.hasFocus());
    QVERIFY(!showsKeyboardFrame(slider));
    keyboard::press(Qt::Key_Up);
    QVERIFY(!showsKeyboardFrame(slider));
    keyboard::press(Qt::Key_Tab);
    QVERIFY(!showsKeyboardFrame(slider));
    keyboard::tabTo(slider); // once round
    QVERIFY(showsKeyboardFrame(slider));
    keyboard::press(Qt::Key_Up);
    QVERIFY(showsKeyboardFrame(slider));
}

KYR_GUI_TEST(tst_leftviewsteps)
#include "tst_leftviewsteps.moc"
