#include "support/animatedstyle.h"
#include "support/animationclock.h"
#include "support/drop.h"
#include "support/focus.h"
#include "support/keyboard.h"
#include "support/mainwindow.h"
#include "support/suite.h"

/// The keyboard's way through the four windows.
class tst_keyboardtravel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeyReachesEveryControlOnceInReadingOrder();
    void backtabGoesTheSameWayBack();
    void anEnabledApplyIsOnTheWay();
    void spacePressesWhatTheKeyboardIsAt();
    void theTabKeyPassesTheRightBarWhileItSlides();
    void theFrameShowsAfterTheTabKeyAndNotAtFirst();
    void aClickShowsNoFrame_data();
    void aClickShowsNoFrame();
    void everyControlOnTheWayShowsTheFrame();
    void aDisabledApplyMakesNoFrameAppearElsewhere();
    void theTabKeyGoesOnAfterAnApplyByKeyboard();
};

namespace {

const QStringList kMainStops = {
    QStringLiteral("BtnMin"),        QStringLiteral("BtnHelp"),
    QStringLiteral("BtnClose"),      QStringLiteral("BtnProfileMenu"),
    QStringLiteral("BtnToolsMenu"),  QStringLiteral("BtnHelpMenu"),
    QStringLiteral("BtnProfile1"),   QStringLiteral("BtnProfile2"),
    QStringLiteral("BtnProfile3"),   QStringLiteral("BtnProfile4"),
    QStringLiteral("BtnProfile5"),   QStringLiteral("BtnProfile6"),
    QStringLiteral("BtnProfile7"),   QStringLiteral("BtnProfile8"),
    QStringLiteral("BtnProfile9"),   QStringLiteral("BtnProfile10"),
    QStringLiteral("chkGameMode"),   QStringLiteral("ButtonSaveToDevice"),
    QStringLiteral("Button1"),       QStringLiteral("Button2"),
    QStringLiteral("Button3"),       QStringLiteral("Button4"),
    QStringLiteral("Button5"),       QStringLiteral("Button6"),
    QStringLiteral("Button7"),       QStringLiteral("Button8"),
    QStringLiteral("Button9"),       QStringLiteral("Button10"),
    QStringLiteral("Button11"),      QStringLiteral("Button12"),
    QStringLiteral("Button13"),      QStringLiteral("Button14"),
    QStringLiteral("ButtonRestore"), QStringLiteral("ButtonOK"),
    QStringLiteral("ButtonCancel"),
};

/// All stops from the main window's first one: those of the main window, then the bars' handles.
QStringList allStops()
{
    QStringList stops;
    for (const QString &name : kMainStops)
        stops << QStringLiteral("MainWindow/") + name;
    for (const char *bar : {"LeftBar", "RightBar", "BottomBar"})
        stops << QLatin1String(bar) + QStringLiteral("/btnToggle");
    return stops;
}

/// The program with the keyboard at the main window's first control.
struct TravelStage : MainWindowStage
{
    TravelStage()
    {
        window().activateWindow();
        if (!QTest::qWaitFor([&] { return QApplication::activeWindow() == &window(); }))
            qFatal("the main window does not get the keyboard");
    }

    static QStringList travel(Qt::Key key, qsizetype presses)
    {
        QStringList stops;
        for (qsizetype i = 0; i < presses; ++i)
            stops << focusPlaceAfter(key);
        return stops;
    }
    /// Goes on until the keyboard is at that place.
    static void travelTo(const QString &place)
    {
        for (int stop = 0; stop < 100 && focusPlace() != place; ++stop)
            focusPlaceAfter(Qt::Key_Tab);
        QCOMPARE(focusPlace(), place);
    }
    QStringList frames() const { return focusFrames(window()); }
};

} // namespace

void tst_keyboardtravel::theTabKeyReachesEveryControlOnceInReadingOrder()
{
    const TravelStage stage;
    const QStringList stops = allStops();
    TravelStage::travelTo(stops.last());
    QCOMPARE(TravelStage::travel(Qt::Key_Tab, stops.size()), stops);
    // And round again.
    QCOMPARE(focusPlaceAfter(Qt::Key_Tab), stops.first());
}

void tst_keyboardtravel::backtabGoesTheSameWayBack()
{
    const TravelStage stage;
    QStringList stops = allStops();
    TravelStage::travelTo(stops.first());
    std::ranges::reverse(stops);
    QCOMPARE(TravelStage::travel(Qt::Key_Backtab, stops.size()), stops);
}

void tst_keyboardtravel::anEnabledApplyIsOnTheWay()
{
    const TravelStage stage;
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    QVERIFY(stage.applyIsEnabled());
    TravelStage::travelTo(QStringLiteral("MainWindow/ButtonCancel"));
    QCOMPARE(focusPlaceAfter(Qt::Key_Tab), QStringLiteral("MainWindow/ButtonApply"));
    QCOMPARE(focusPlaceAfter(Qt::Key_Tab), QStringLiteral("LeftBar/btnToggle"));
    QCOMPARE(focusPlaceAfter(Qt::Key_Backtab), QStringLiteral("MainWindow/ButtonApply"));
}

void tst_keyboardtravel::spacePressesWhatTheKeyboardIsAt()
{
    {
        const TravelStage stage;
        keyboard::tabTo(stage.mouseButton(7));
        keyboard::press(Qt::Key_Space);
        QCOMPARE(stage.buttonsOn(), std::vector{7});
    }
    const TravelStage stage;
    keyboard::tabTo(stage.button("chkGameMode"));
    keyboard::press(Qt::Key_Space);
    QVERIFY(stage.button("chkGameMode").isChecked());
}

void tst_keyboardtravel::theTabKeyPassesTheRightBarWhileItSlides()
{
    const AnimationClock clock; // stands still: the bar is under way
    animateFor(200);
    const TravelStage stage;
    const auto *const right = stage.window().findChild<custumwindow *>(QStringLiteral("RightBar"));
    const auto *const toggle = right->findChild<HoverButton *>(QStringLiteral("btnToggle"));
    TravelStage::travelTo(QStringLiteral("LeftBar/btnToggle"));
    pointer::click(*toggle);
    QVERIFY(!toggle->isVisible());
    QCOMPARE(focusPlaceAfter(Qt::Key_Tab), QStringLiteral("BottomBar/btnToggle"));
    QCOMPARE(focusPlaceAfter(Qt::Key_Backtab), QStringLiteral("LeftBar/btnToggle"));
}

void tst_keyboardtravel::theFrameShowsAfterTheTabKeyAndNotAtFirst()
{
    const TravelStage stage;
    QCOMPARE(stage.frames(), QStringList());
    keyboard::tabTo(stage.button("BtnHelp"));
    QCOMPARE(stage.frames(), QStringList(QStringLiteral("BtnHelp")));
    focusPlaceAfter(Qt::Key_Tab);
    QCOMPARE(stage.frames(), QStringList(QStringLiteral("BtnClose")));
}

void tst_keyboardtravel::aClickShowsNoFrame_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Button5", "chkGameMode"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_keyboardtravel::aClickShowsNoFrame()
{
    QFETCH(QString, name);
    const TravelStage stage;
    pointer::click(stage.button(name));
    QCOMPARE(stage.frames(), QStringList());
    // And the keyboard, once moved, stays where it is.
    keyboard::tabTo(stage.button("BtnHelp"));
    pointer::click(stage.button(name));
    QCOMPARE(stage.frames(), QStringList(QStringLiteral("BtnHelp")));
    QCOMPARE(focusPlace(), QStringLiteral("MainWindow/BtnHelp"));
}

void tst_keyboardtravel::everyControlOnTheWayShowsTheFrame()
{
    const TravelStage stage;
    TravelStage::travelTo(allStops().first());
    for (qsizetype i = 0; i < 2 * allStops().size(); ++i) {
        const QString place = focusPlaceAfter(Qt::Key_Tab);
        auto *const button = static_cast<HoverButton *>(QApplication::focusWidget());
        QVERIFY2(showsFocusFrame(*button), qPrintable(place));
    }
}

void tst_keyboardtravel::aDisabledApplyMakesNoFrameAppearElsewhere()
{
    const TravelStage stage;
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    pointer::click(stage.button("ButtonApply"));
    QVERIFY(!stage.applyIsEnabled());
    QCOMPARE(stage.frames(), QStringList());
    // With the keyboard on it that did not come by key.
    dropText(stage.mouseButton(3), QStringLiteral("12"));
    stage.button("ButtonApply").setFocus(Qt::OtherFocusReason);
    pointer::click(stage.button("ButtonApply"));
    QVERIFY(!stage.applyIsEnabled());
    QCOMPARE(stage.frames(), QStringList());
}

void tst_keyboardtravel::theTabKeyGoesOnAfterAnApplyByKeyboard()
{
    const TravelStage stage;
    dropText(stage.mouseButton(3), QStringLiteral("11"));
    keyboard::tabTo(stage.button("ButtonApply"));
    keyboard::press(Qt::Key_Space);
    QVERIFY(!stage.applyIsEnabled());
    QVERIFY(focusPlace().startsWith(QStringLiteral("MainWindow/")));
    QCOMPARE(stage.frames().size(), 1);
    TravelStage::travelTo(QStringLiteral("LeftBar/btnToggle"));
}

KYR_GUI_TEST(tst_keyboardtravel)
#include "tst_keyboardtravel.moc"
