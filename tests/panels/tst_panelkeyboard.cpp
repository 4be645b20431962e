#include "listedfunctions.h"
#include "support/focus.h"
#include "support/suite.h"

/// The keyboard's way through the panels of the right bar.
class tst_panelkeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeyReachesWhatShows_data();
    void theTabKeyReachesWhatShows();
    void theTabKeyPassesTheHiddenPanelsOfAShutBar();
    void aKeyReachedByTabShowsTheFrame();
    void aCollapsingPanelsListGivesTheKeyboardToItsKey_data() { knownListRows(); }
    void aCollapsingPanelsListGivesTheKeyboardToItsKey();
    void aPanelCollapsedForAnotherKeepsTheKeyboardInTheBar_data() { knownListRows(); }
    void aPanelCollapsedForAnotherKeepsTheKeyboardInTheBar();
    void aPanelCollapsedForAButtonKeepsTheKeyboardInTheBar_data() { knownListRows(); }
    void aPanelCollapsedForAButtonKeepsTheKeyboardInTheBar();
    void aClosingBarKeepsTheKeyboard_data() { knownListRows(); }
    void aClosingBarKeepsTheKeyboard();
    void aClosingBarKeepsTheKeyboardOfAKey_data();
    void aClosingBarKeepsTheKeyboardOfAKey();
    void aClosingBarLetsTheMacroPanelsKeyboardGo();
};

namespace {

/// What has the keyboard: "window/control/what it says".
QString keyboardPlace()
{
    const QWidget *const at = QApplication::focusWidget();
    return at ? focusPlace() + QLatin1Char('/') + at->accessibleName() : QString();
}

/// Presses the tab key; where the keyboard is then. A window gets it in its own time.
QString tab()
{
    const QString before = keyboardPlace();
    keyboard::press(Qt::Key_Tab);
    if (!QTest::qWaitFor([&] { return keyboardPlace() != before; }))
        return QStringLiteral("stays at ") + before;
    return keyboardPlace();
}

/// The stops from the bar's handle on, until the keyboard is in another window.
QStringList stopsOfRightBar(const PanelsStage &stage)
{
    QStringList stops;
    keyboard::tabTo(stage.toggle(kRightBar));
    constexpr int kMost = 20;
    for (int step = 0; step < kMost; ++step) {
        const QString place = tab();
        if (!place.startsWith(QStringLiteral("RightBar/")))
            return stops << place.section(QLatin1Char('/'), 0, 1);
        stops << place.section(QLatin1Char('/'), 1);
    }
    return stops;
}

QStringList stopsWith(const char *contentStop, int at)
{
    QStringList stops;
    for (const KnownPanel &known : kKnownPanels)
        stops << QStringLiteral("btnExpand/") + QLatin1String(known.title);
    stops << QStringLiteral("btnNew/New macro") << QStringLiteral("btnDelete/Delete macro");
    if (contentStop)
        stops.insert(at, QLatin1String(contentStop));
    return stops << QStringLiteral("BottomBar/btnToggle");
}

} // namespace

void tst_panelkeyboard::theTabKeyReachesWhatShows_data()
{
    QTest::addColumn<std::vector<PanelId>>("open");
    QTest::addColumn<QStringList>("stops");
    using Panels = std::vector<PanelId>;
    QTest::newRow("none") << Panels{} << stopsWith(nullptr, 0);
    QTest::newRow("game commands")
        << Panels{PanelId::Tree} << stopsWith("pOutlineView/Game Commands", 1);
    QTest::newRow("CPI") << Panels{PanelId::Cpi} << stopsWith("pDPIListbox/Change CPI", 2);
    QTest::newRow("profile") << Panels{PanelId::Profile}
                             << stopsWith("pProfileListbox/Change Profile", 3);
    QTest::newRow("macros") << Panels{PanelId::Macro}
                            << stopsWith("pMacroListbox/Custom Macros", 6);
    QTest::newRow("collapsed again") << Panels{PanelId::Cpi, PanelId::Cpi} << stopsWith(nullptr, 0);
}

void tst_panelkeyboard::theTabKeyReachesWhatShows()
{
    QFETCH(std::vector<PanelId>, open);
    PanelsStage stage;
    stage.toggleRight();
    for (const PanelId id : open)
        stage.clickHeader(id);
    QTEST(stopsOfRightBar(stage), "stops");
}

void tst_panelkeyboard::theTabKeyPassesTheHiddenPanelsOfAShutBar()
{
    PanelsStage stage;
    const QStringList behind(QStringLiteral("BottomBar/btnToggle"));
    QCOMPARE(stopsOfRightBar(stage), behind);
    stage.openAt(PanelId::Cpi);
    stage.toggleRight();
    QCOMPARE(stopsOfRightBar(stage), behind);
}

void tst_panelkeyboard::aKeyReachedByTabShowsTheFrame()
{
    PanelsStage stage;
    stage.toggleRight();
    for (const KnownPanel &known : kKnownPanels) {
        HoverButton &key = stage.expandKey(known.id);
        QVERIFY(!showsFocusFrame(key));
        keyboard::tabTo(key);
        QVERIFY2(showsFocusFrame(key), known.title);
    }
}

void tst_panelkeyboard::aCollapsingPanelsListGivesTheKeyboardToItsKey()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    keyboard::tabTo(stage.list(known->name));
    stage.clickHeader(known->id);
    QVERIFY(stage.expandKey(known->id).hasFocus());
    QVERIFY(!showsFocusFrame(stage.expandKey(known->id))); // it was not brought there by key
    QCOMPARE(QApplication::activeWindow(), &stage.right());
}

void tst_panelkeyboard::aPanelCollapsedForAnotherKeepsTheKeyboardInTheBar()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    keyboard::tabTo(stage.list(known->name));
    stage.clickHeader(PanelId::Macro);
    QVERIFY(stage.expandKey(known->id).hasFocus());
    QCOMPARE(QApplication::activeWindow(), &stage.right());
}

void tst_panelkeyboard::aPanelCollapsedForAButtonKeepsTheKeyboardInTheBar()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    keyboard::tabTo(stage.list(known->name));
    stage.find(1, 9);
    QCOMPARE(stage.expanded(), std::vector<PanelId>());
    QVERIFY(stage.expandKey(known->id).hasFocus());
    QCOMPARE(QApplication::activeWindow(), &stage.right());
}

void tst_panelkeyboard::aClosingBarKeepsTheKeyboard()
{
    QFETCH(const KnownList *, known);
    PanelsStage stage;
    stage.openAt(known->id);
    keyboard::tabTo(stage.list(known->name));
    pointer::click(stage.toggle(kRightBar));
    QCOMPARE(QApplication::activeWindow(), &stage.right());
    stage.arrive();
    QCOMPARE(QApplication::activeWindow(), &stage.right());
    QCOMPARE(tab().section(QLatin1Char('/'), 0, 1), QStringLiteral("RightBar/btnToggle"));
}

void tst_panelkeyboard::aClosingBarKeepsTheKeyboardOfAKey_data()
{
    QTest::addColumn<PanelId>("id");
    for (const KnownPanel &known : kKnownPanels)
        QTest::newRow(known.title) << known.id;
}

void tst_panelkeyboard::aClosingBarKeepsTheKeyboardOfAKey()
{
    QFETCH(PanelId, id);
    PanelsStage stage;
    stage.toggleRight();
    keyboard::tabTo(stage.expandKey(id));
    stage.toggleRight();
    QCOMPARE(QApplication::activeWindow(), &stage.right());
    QVERIFY(!stage.expandKey(id).hasFocus());
    QCOMPARE(tab().section(QLatin1Char('/'), 0, 1), QStringLiteral("RightBar/btnToggle"));
}

/// The macro panel hides as the bar sets out, before the others do.
void tst_panelkeyboard::aClosingBarLetsTheMacroPanelsKeyboardGo()
{
    PanelsStage stage;
    stage.toggleRight();
    keyboard::tabTo(stage.expandKey(PanelId::Macro));
    pointer::click(stage.toggle(kRightBar));
    QVERIFY(!stage.right().focusWidget());
    QCOMPARE(QApplication::activeWindow(), &stage.right());
}

KYR_GUI_TEST(tst_panelkeyboard)
#include "tst_panelkeyboard.moc"
