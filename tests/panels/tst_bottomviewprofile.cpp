#include "lightingstage.h"
#include "support/suite.h"

/// The bottom bar shows the lighting of the current profile.
class tst_bottomviewprofile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atFirstTheControlsShowNothing();
    void openingTheBarFirstLoadsThem();
    void shuttingTheBarFirstLoadsThem();
    void theKeyboardLoadsThemToo();
    void everyCodeHasItsCaption_data() { lightLevelCodeRows(); }
    void everyCodeHasItsCaption();
    void aCodeWithoutALevelLeavesTheCaption_data();
    void aCodeWithoutALevelLeavesTheCaption();
    void aCodeWithoutALevelIsKept();
    void aSwitchLoadsAnOpenBar_data() { switches(); }
    void aSwitchLoadsAnOpenBar();
    void aShutBarWaitsUntilItOpens_data() { switches(); }
    void aShutBarWaitsUntilItOpens();
    void aRestoreLoadsThem_data();
    void aRestoreLoadsThem();
    void loadingChangesNothing();

private:
    static void switches();
};

namespace {

using Lights = QStringList;

constexpr std::uint32_t kNoLevels[] = {4, 255, 4294967295U};

/// The program whose profiles' lights differ: the first is red, high, fast, the third green, low,
/// off.
struct TwoLights : LightingStage
{
    TwoLights()
    {
        put(0, Qt::red, 0, 0);
        put(2, Qt::green, 2, 3);
    }

    static void put(unsigned profile, const QColor &colour, std::uint32_t intensity,
                    std::uint32_t pulsation)
    {
        ProfileInfo &info = m_Config.PROFILE[profile];
        setColour(info, colour);
        info.LED_INTENSITY = intensity;
        info.LED_PULSATION = pulsation;
    }
    /// What the three controls show.
    Lights lights() const
    {
        return {swatch().name(), caption(kIntensityLight), caption(kPulsationLight)};
    }
};

Lights firstLights()
{
    return {QStringLiteral("#ff0000"), QStringLiteral("High"), QStringLiteral("Fast")};
}

Lights thirdLights()
{
    return {QStringLiteral("#00ff00"), QStringLiteral("Low"), QStringLiteral("Off")};
}

using Switch = std::function<void(MainWindowStage &)>;

} // namespace

void tst_bottomviewprofile::atFirstTheControlsShowNothing()
{
    const LightingStage stage;
    QCOMPARE(stage.caption(kIntensityLight), QString());
    QCOMPARE(stage.caption(kPulsationLight), QString());
    QCOMPARE(stage.swatch(), QColor(Qt::black));
}

void tst_bottomviewprofile::openingTheBarFirstLoadsThem()
{
    const TwoLights stage;
    pointer::click(stage.toggle(kBottomBar));
    QVERIFY(stage.lies(kBottomBar, kBottomBar.shut)); // still
    QCOMPARE(stage.lights(), firstLights());
}

void tst_bottomviewprofile::shuttingTheBarFirstLoadsThem()
{
    TwoLights stage;
    stage.toggleBottom();
    TwoLights::put(0, Qt::green, 2, 3);
    QCOMPARE(stage.lights(), firstLights());
    pointer::click(stage.toggle(kBottomBar));
    QVERIFY(stage.lies(kBottomBar, kBottomBar.open));
    QCOMPARE(stage.lights(), thirdLights());
}

void tst_bottomviewprofile::theKeyboardLoadsThemToo()
{
    const TwoLights stage;
    keyboard::tabTo(stage.toggle(kBottomBar));
    keyboard::press(Qt::Key_Space);
    QCOMPARE(stage.lights(), firstLights());
}

void tst_bottomviewprofile::everyCodeHasItsCaption()
{
    QFETCH(const KnownLightLevel *, known);
    QFETCH(int, code);
    LightingStage stage;
    CurrentProfile().*known->field = static_cast<std::uint32_t>(code);
    CurrentProfile().*otherThan(*known).field = 4;
    stage.toggleBottom();
    QCOMPARE(stage.caption(known->light), QLatin1String(known->texts[code]));
    QCOMPARE(stage.caption(otherThan(*known).light), QString());
}

void tst_bottomviewprofile::aCodeWithoutALevelLeavesTheCaption_data()
{
    QTest::addColumn<std::uint32_t>("code");
    for (const std::uint32_t code : kNoLevels)
        QTest::addRow("%u", code) << code;
}

void tst_bottomviewprofile::aCodeWithoutALevelLeavesTheCaption()
{
    QFETCH(std::uint32_t, code);
    TwoLights stage;
    TwoLights::put(0, Qt::red, code, code);
    stage.toggleBottom();
    const QString red = QStringLiteral("#ff0000");
    QCOMPARE(stage.lights(), Lights({red, QString(), QString()})); // there was none
    stage.program.reportProfile(3);
    QCOMPARE(stage.lights(), thirdLights());
    stage.program.reportProfile(1);
    QCOMPARE(stage.lights(), Lights({red, QStringLiteral("Low"), QStringLiteral("Off")}));
}

void tst_bottomviewprofile::aCodeWithoutALevelIsKept()
{
    LightingStage stage;
    TwoLights::put(0, Qt::red, 4, 4294967295U);
    stage.restart();
    stage.toggleBottom();
    QCOMPARE(stage.caption(kIntensityLight), QString());
    QCOMPARE(m_Config.PROFILE[0].LED_INTENSITY, 4U);
    QCOMPARE(m_Config.PROFILE[0].LED_PULSATION, 4294967295U);
}

void tst_bottomviewprofile::switches()
{
    QTest::addColumn<Switch>("switchOver");
    QTest::newRow("by the key") << Switch(
        [](MainWindowStage &program) { pointer::click(program.profileKey(3)); });
    QTest::newRow("by the driver process")
        << Switch([](MainWindowStage &program) { program.reportProfile(3); });
}

void tst_bottomviewprofile::aSwitchLoadsAnOpenBar()
{
    QFETCH(Switch, switchOver);
    TwoLights stage;
    stage.toggleBottom();
    QCOMPARE(stage.lights(), firstLights());
    switchOver(stage.program);
    QCOMPARE(stage.lights(), thirdLights());
}

void tst_bottomviewprofile::aShutBarWaitsUntilItOpens()
{
    QFETCH(Switch, switchOver);
    TwoLights stage;
    stage.toggleBottom();
    stage.toggleBottom();
    switchOver(stage.program);
    QCOMPARE(stage.lights(), firstLights());
    stage.toggleBottom();
    QCOMPARE(stage.lights(), thirdLights());
}

void tst_bottomviewprofile::aRestoreLoadsThem_data()
{
    QTest::addColumn<int>("toggles");
    QTest::newRow("never opened") << 0;
    QTest::newRow("open") << 1;
    QTest::newRow("shut") << 2;
}

void tst_bottomviewprofile::aRestoreLoadsThem()
{
    QFETCH(int, toggles);
    TwoLights stage;
    for (int count = 0; count < toggles; ++count)
        stage.toggleBottom();
    pointer::click(stage.program.button("ButtonRestore"));
    QCOMPARE(stage.lights(), Lights({QStringLiteral("#ff3c00"), QStringLiteral("Medium"),
                                     QStringLiteral("Medium")}));
}

void tst_bottomviewprofile::loadingChangesNothing()
{
    TwoLights stage;
    stage.toggleBottom();
    stage.program.reportProfile(3);
    stage.toggleBottom();
    QVERIFY(!stage.program.applyIsEnabled());
    QCOMPARE(m_Config.PROFILE[0].LED_COLOR_R, 255U);
    QCOMPARE(m_Config.PROFILE[2].LED_COLOR_R, 0U);
    QCOMPARE(m_Config.PROFILE[2].LED_INTENSITY, 2U);
}

KYR_GUI_TEST(tst_bottomviewprofile)
#include "tst_bottomviewprofile.moc"
