#include "controls/custumwindow.h"
#include "support/focus.h"
#include "support/keyboard.h"
#include "support/suite.h"

/// The tab key's way from one window to the next, and the frame that shows where it is.
class tst_tabneighbours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTabKeyGoesRoundTheWindows();
    void backtabGoesRoundTheOtherWay();
    void withoutNeighboursTheTabKeyStaysInTheWindow();
    void aHiddenNeighbourIsNotEntered();
    void aNeighbourWithoutControlsIsPassedBy();
    void aDisabledLastControlDoesNotHoldTheTabKey();
    void theControlReachedWithinAWindowShowsIt();
    void theControlReachedInAnotherWindowShowsIt_data();
    void theControlReachedInAnotherWindowShowsIt();
    void aControlOfALeftWindowShowsNothing();
    void aDisabledControlThatShowedNothingShowsNothingElsewhere();
    void aDisabledControlThatShowedItPassesItOn();
};

namespace {

/// A window with two buttons, "1" and "2".
struct TwoButtons : custumwindow
{
    TwoButtons(const char *name, QWidget *owner) : custumwindow({0, 0, 200, 100}, owner)
    {
        setObjectName(QLatin1String(name));
        first.setObjectName(QStringLiteral("1"));
        second.setObjectName(QStringLiteral("2"));
    }

    HoverButton first{this, {10, 50, 97, 27}};
    HoverButton second{this, {10, 10, 97, 27}};
};

/// Three windows, "A", "B" and "C", in a ring; the keyboard is at A's first button.
struct RingStage
{
    RingStage()
    {
        TwoButtons *const ring[] = {&a, &b, &c};
        for (std::size_t i = 0; i < std::size(ring); ++i)
            ring[i]->setTabNeighbours(ring[(i + 2) % 3], ring[(i + 1) % 3]);
        for (TwoButtons *window : ring)
            window->show();
        a.activateWindow();
        a.first.setFocus();
        if (!isAt("A/1"))
            qFatal("the first window does not get the keyboard");
    }

    static bool isAt(const char *place)
    {
        return QTest::qWaitFor([&] { return focusPlace() == QLatin1String(place); });
    }
    /// Where the keyboard is after each press of the key. A window gets it in its own time.
    static void goesRound(Qt::Key key, std::initializer_list<const char *> places)
    {
        for (const char *place : places) {
            keyboard::press(key);
            QVERIFY2(isAt(place),
                     qPrintable(QLatin1String(place) + QStringLiteral(", but at ") + focusPlace()));
        }
    }

    TwoButtons a{"A", nullptr};
    TwoButtons b{"B", &a};
    TwoButtons c{"C", &a};
};

} // namespace

void tst_tabneighbours::theTabKeyGoesRoundTheWindows()
{
    const RingStage stage;
    RingStage::goesRound(Qt::Key_Tab, {"A/2", "B/1", "B/2", "C/1", "C/2", "A/1", "A/2", "B/1"});
}

void tst_tabneighbours::backtabGoesRoundTheOtherWay()
{
    const RingStage stage;
    RingStage::goesRound(Qt::Key_Backtab, {"C/2", "C/1", "B/2", "B/1", "A/2", "A/1", "C/2"});
}

void tst_tabneighbours::withoutNeighboursTheTabKeyStaysInTheWindow()
{
    RingStage stage;
    stage.a.setTabNeighbours(nullptr, nullptr);
    RingStage::goesRound(Qt::Key_Tab, {"A/2", "A/1", "A/2"});
    RingStage::goesRound(Qt::Key_Backtab, {"A/1", "A/2"});
}

void tst_tabneighbours::aHiddenNeighbourIsNotEntered()
{
    RingStage stage;
    stage.b.hide();
    stage.a.activateWindow();
    QVERIFY(RingStage::isAt("A/1"));
    RingStage::goesRound(Qt::Key_Tab, {"A/2"});
    keyboard::press(Qt::Key_Tab);
    QTRY_VERIFY(focusPlace() != QStringLiteral("A/2"));
    QVERIFY(!focusPlace().startsWith(QStringLiteral("B/")));
}

void tst_tabneighbours::aNeighbourWithoutControlsIsPassedBy()
{
    RingStage stage;
    stage.b.first.hide();
    stage.b.second.hide();
    RingStage::goesRound(Qt::Key_Tab, {"A/2", "C/1"});
    RingStage::goesRound(Qt::Key_Backtab, {"A/2"});
}

void tst_tabneighbours::aDisabledLastControlDoesNotHoldTheTabKey()
{
    RingStage stage;
    stage.a.second.setDisable(true);
    stage.b.first.setDisable(true);
    RingStage::goesRound(Qt::Key_Tab, {"B/2", "C/1"});
    RingStage::goesRound(Qt::Key_Backtab, {"B/2", "A/1"});
}

void tst_tabneighbours::theControlReachedWithinAWindowShowsIt()
{
    RingStage stage;
    QCOMPARE(focusFrames(stage.a), QStringList());
    RingStage::goesRound(Qt::Key_Tab, {"A/2"});
    QCOMPARE(focusFrames(stage.a), QStringList(QStringLiteral("2")));
    RingStage::goesRound(Qt::Key_Backtab, {"A/1"});
    QCOMPARE(focusFrames(stage.a), QStringList(QStringLiteral("1")));
}

void tst_tabneighbours::theControlReachedInAnotherWindowShowsIt_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Backtab") << Qt::Key_Backtab;
}

void tst_tabneighbours::theControlReachedInAnotherWindowShowsIt()
{
    QFETCH(Qt::Key, key);
    RingStage stage;
    for (int stop = 0; stop < 6; ++stop) {
        const QString before = focusPlace();
        keyboard::press(key);
        QTRY_VERIFY(focusPlace() != before);
        const QStringList place = focusPlace().split(QLatin1Char('/'));
        QCOMPARE(place.size(), 2);
        for (const TwoButtons *window : {&stage.a, &stage.b, &stage.c}) {
            const bool here = window->objectName() == place.first();
            QCOMPARE(focusFrames(*window), here ? QStringList(place.last()) : QStringList());
        }
    }
}

void tst_tabneighbours::aControlOfALeftWindowShowsNothing()
{
    RingStage stage;
    RingStage::goesRound(Qt::Key_Tab, {"A/2", "B/1"});
    QCOMPARE(focusFrames(stage.a), QStringList());
}

void tst_tabneighbours::aDisabledControlThatShowedNothingShowsNothingElsewhere()
{
    RingStage stage;
    stage.a.first.setDisable(true);
    QCOMPARE(focusFrames(stage.a), QStringList());
    RingStage::goesRound(Qt::Key_Tab, {"A/2"});
    QCOMPARE(focusFrames(stage.a), QStringList(QStringLiteral("2")));
}

void tst_tabneighbours::aDisabledControlThatShowedItPassesItOn()
{
    RingStage stage;
    RingStage::goesRound(Qt::Key_Tab, {"A/2"});
    RingStage::goesRound(Qt::Key_Backtab, {"A/1"});
    stage.a.first.setDisable(true);
    QCOMPARE(focusPlace(), QStringLiteral("A/2"));
    QCOMPARE(focusFrames(stage.a), QStringList(QStringLiteral("2")));
}

KYR_GUI_TEST(tst_tabneighbours)
#include "tst_tabneighbours.moc"
