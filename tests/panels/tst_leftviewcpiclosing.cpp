#include "levelstage.h"
#include "mainview/fullsettings.h"
#include "support/keyboard.h"
#include "support/suite.h"

/// How the list of CPI steps closes without a choice, and opens again.
class tst_leftviewcpiclosing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeClosesTheList();
    void theListClosesWhenItLosesTheKeyboard_data();
    void theListClosesWhenItLosesTheKeyboard();
    void theDesktopMayCloseTheList();
    void afterTheKeyboardTheListOpensAgainAtOnce();
    void afterAChoiceTheListOpensAgainAtOnce();
    void aPressOnTheButtonThatClosesTheListOpensNone_data();
    void aPressOnTheButtonThatClosesTheListOpensNone();
    void theNextClickOpensItAgain();
    void aClickOnASliderClosesTheListAndMovesIt();
    void theSecondPressOfADoubleClickReachesNoSlider_data();
    void theSecondPressOfADoubleClickReachesNoSlider();
    void theListClosesWithItsBar_data();
    void theListClosesWithItsBar();
    void aClosedListIsGone();
    void theProgramMayEndWithTheListOpen();
};

namespace {

/// The open bar with nothing changed in it.
struct ClosingStage : OpenLevelStage
{
    ClosingStage()
    {
        activateLeft();
        forget();
    }
    /// The bar's window takes the keyboard as it does for a click into it; the list is gone then.
    void takeKeyboard() const
    {
        activateLeft();
        if (!openLists().empty())
            qFatal("the list is still open");
    }
    bool clickOpens() const
    {
        pointer::click(cpi());
        return openLists().size() == 1;
    }
    bool isUnchanged() const { return isRecord(*before) && !program.applyIsEnabled(); }

    const Record before = copyOf();
};

const std::vector<std::string> kLostKeyboard{"windowKeyChange", "CloseListBox"};

} // namespace

void tst_leftviewcpiclosing::escapeClosesTheList()
{
    const ClosingStage stage;
    stage.openList();
    keyboard::press(Qt::Key_Down);
    keyboard::press(Qt::Key_Escape);
    QTRY_VERIFY(openLists().empty());
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>{"CloseListBox"});
    QTRY_VERIFY(stage.leftIsKey());
}

void tst_leftviewcpiclosing::theListClosesWhenItLosesTheKeyboard_data()
{
    QTest::addColumn<QString>("window");
    for (const char *name : {"MainWindow", "LeftBar", "RightBar", "BottomBar"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_leftviewcpiclosing::theListClosesWhenItLosesTheKeyboard()
{
    QFETCH(QString, window);
    const ClosingStage stage;
    stage.openList();
    QWidget &main = stage.program.window();
    auto *const other = main.findChild<custumwindow *>(window);
    (other ? other : &main)->activateWindow();
    QTRY_VERIFY(openLists().empty());
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.program.log.lines, kLostKeyboard);
    QTRY_VERIFY(stage.leftIsKey());
}

void tst_leftviewcpiclosing::theDesktopMayCloseTheList()
{
    const ClosingStage stage;
    pointer::windowOf(stage.openList())->close();
    QTRY_VERIFY(openLists().empty());
    QTRY_VERIFY(stage.program.log.contains("CloseListBox"));
    QVERIFY(stage.isUnchanged());
    QTRY_VERIFY(stage.clickOpens());
}

void tst_leftviewcpiclosing::afterTheKeyboardTheListOpensAgainAtOnce()
{
    const ClosingStage stage;
    keyboard::tabTo(stage.cpi());
    for (int time = 0; time < 3; ++time) {
        keyboard::press(Qt::Key_Space);
        openedList();
        keyboard::press(Qt::Key_Escape);
        QTRY_VERIFY(openLists().empty());
        QTRY_VERIFY(stage.leftIsKey());
    }
}

void tst_leftviewcpiclosing::afterAChoiceTheListOpensAgainAtOnce()
{
    const ClosingStage stage;
    for (const int row : {1, 4, 0}) {
        clickRow(stage.openList(), row);
        QTRY_VERIFY(openLists().empty());
        QCOMPARE(CurrentProfile().DPI_VALUE, static_cast<std::uint32_t>(row));
    }
}

void tst_leftviewcpiclosing::aPressOnTheButtonThatClosesTheListOpensNone_data()
{
    QTest::addColumn<bool>("isToldFirst");
    QTest::newRow("the press is told first") << true;
    QTest::newRow("the loss of the keyboard is told first") << false;
}

void tst_leftviewcpiclosing::aPressOnTheButtonThatClosesTheListOpensNone()
{
    QFETCH(bool, isToldFirst);
    const ClosingStage stage;
    constexpr QPoint there(50, 13);
    stage.openList();
    if (!isToldFirst)
        stage.takeKeyboard();
    pointer::press(stage.cpi(), there);
    if (isToldFirst)
        stage.takeKeyboard();
    pointer::release(stage.cpi(), there);
    QVERIFY(openLists().empty());
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.program.log.lines, kLostKeyboard);
    QTRY_VERIFY(stage.clickOpens());
}

void tst_leftviewcpiclosing::theNextClickOpensItAgain()
{
    const ClosingStage stage;
    for (int time = 0; time < 3; ++time) {
        stage.openList();
        stage.takeKeyboard();
        QVERIFY(!stage.clickOpens());
    }
    QVERIFY(stage.clickOpens());
}

void tst_leftviewcpiclosing::aClickOnASliderClosesTheListAndMovesIt()
{
    const ClosingStage stage;
    const KnownLevel &known = kKnownLevels[1];
    stage.openList();
    stage.takeKeyboard();
    pointer::click(stage.slider(known), known.pointOf(7));
    QCOMPARE(CurrentProfile().SCROLL_SPEED, 7U);
    QCOMPARE(CurrentProfile().DPI_VALUE, 2U);
    QTRY_VERIFY(stage.clickOpens());
}

void tst_leftviewcpiclosing::theSecondPressOfADoubleClickReachesNoSlider_data()
{
    QTest::addColumn<int>("since");
    QTest::addColumn<bool>("moves");
    QTest::newRow("in time") << 1 << false;
    QTest::newRow("too late") << QApplication::doubleClickInterval() << true;
}

void tst_leftviewcpiclosing::theSecondPressOfADoubleClickReachesNoSlider()
{
    QFETCH(int, since);
    QFETCH(bool, moves);
    const ClosingStage stage;
    const KnownLevel &known = kKnownLevels[0]; // below the third row of the list
    const QPoint there = stage.slider(known).mapToGlobal(known.pointOf(7));
    pngListBox &list = stage.openList();
    const QPoint inList = list.mapFromGlobal(there);
    QCOMPARE(inList.y() / 20, 2);
    QCursor::setPos(there);
    // Sent directly: the event loop deletes the list.
    QTest::mouseClick(&list, Qt::LeftButton, {}, inList);
    const quint64 released = list.releasedAt();
    QTRY_VERIFY(openLists().empty());
    QMouseEvent press(QEvent::MouseButtonPress, stage.left().mapFromGlobal(there), there,
                      Qt::LeftButton, Qt::LeftButton, {});
    press.setTimestamp(released + static_cast<quint64>(since));
    QApplication::sendEvent(stage.left().windowHandle(), &press);
    QCOMPARE(CurrentProfile().DBCLICK_SPEED, moves ? 7U : 10U);
    QCOMPARE(CurrentProfile().DPI_VALUE, 2U);
}

void tst_leftviewcpiclosing::theListClosesWithItsBar_data()
{
    QTest::addColumn<bool>("byDesktop");
    QTest::newRow("by its handle") << false;
    QTest::newRow("by the desktop") << true;
}

void tst_leftviewcpiclosing::theListClosesWithItsBar()
{
    QFETCH(bool, byDesktop);
    ClosingStage stage;
    stage.openList();
    if (byDesktop)
        stage.left().windowHandle()->close();
    else
        pointer::click(stage.toggle(kLeftBar));
    QTRY_VERIFY(openLists().empty());
    stage.arrive();
    QVERIFY(stage.lies(kLeftBar, kLeftBar.shut));
    QVERIFY(stage.isUnchanged());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>{"CloseListBox"});
    QTRY_VERIFY(stage.leftIsKey());
    stage.toggleLeft();
    clickRow(stage.openList(), 5);
    QCOMPARE(CurrentProfile().DPI_VALUE, 5U);
}

void tst_leftviewcpiclosing::aClosedListIsGone()
{
    const ClosingStage stage;
    const QPointer<QWidget> chosen = stage.openList().window();
    clickRow(*chosen->findChild<pngListBox *>(QStringLiteral("pListboxView")), 0);
    QTRY_VERIFY(!chosen);
    const QPointer<QWidget> left = stage.openList().window();
    keyboard::press(Qt::Key_Escape);
    QTRY_VERIFY(!left);
}

void tst_leftviewcpiclosing::theProgramMayEndWithTheListOpen()
{
    ClosingStage stage;
    stage.openList();
    stage.program.interface.reset();
    QVERIFY(openLists().empty());
}

KYR_GUI_TEST(tst_leftviewcpiclosing)
#include "tst_leftviewcpiclosing.moc"
