#include "quickliststage.h"
#include "support/suite.h"

/// How the list of basic functions closes.
class tst_quicklistclosing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void escapeClosesTheListWithoutAChoice();
    void theListClosesWhenItLosesTheKeyboard();
    void theDesktopMayCloseTheList();
    void thereIsOneListAtATime();
    void aListOpenedRightAfterAChoiceStays();
    void theMainWindowGetsTheKeyboardBack();
    void theProgramMayEndWithTheListOpen();
    void aClosedListIsGone();
    void theSecondPressOfADoubleClickReachesNoButton_data();
    void theSecondPressOfADoubleClickReachesNoButton();
};

namespace {

void pressAndRelease(const MainWindowStage &stage, QPoint onScreen, quint64 at)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const bool isPress = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, stage.window().mapFromGlobal(onScreen), onScreen, Qt::LeftButton,
                          isPress ? Qt::LeftButton : Qt::NoButton, {});
        event.setTimestamp(at);
        QApplication::sendEvent(stage.window().windowHandle(), &event);
    }
}

} // namespace

void tst_quicklistclosing::escapeClosesTheListWithoutAChoice()
{
    const QuickListStage stage;
    QTest::keyClick(pointer::windowOf(stage.open(3)), Qt::Key_Escape);
    QTRY_VERIFY(openLists().empty());
    QCOMPARE(m_Config.PROFILE[0].BUTTON[2], 9U);
    QVERIFY(!stage.applyIsEnabled());
    QCOMPARE(stage.log.lines, std::vector<std::string>{"CloseListBox"});
}

void tst_quicklistclosing::theListClosesWhenItLosesTheKeyboard()
{
    const QuickListStage stage;
    stage.open(3);
    stage.window().activateWindow();
    QTRY_VERIFY(openLists().empty());
    const std::vector<std::string> logged = {"windowKeyChange", "CloseListBox"};
    QCOMPARE(stage.log.lines, logged);
    QVERIFY(!stage.applyIsEnabled());
}

void tst_quicklistclosing::theDesktopMayCloseTheList()
{
    const QuickListStage stage;
    pointer::windowOf(stage.open(3))->close();
    QTRY_VERIFY(openLists().empty());
    QTRY_VERIFY(stage.log.contains("CloseListBox"));
    QVERIFY(!stage.applyIsEnabled());
    clickRow(stage.open(10), 0);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[9], 1U);
    QTRY_COMPARE(stage.log.count("CloseListBox"), 2L);
}

void tst_quicklistclosing::thereIsOneListAtATime()
{
    const QuickListStage stage;
    stage.open(3);
    stage.open(3);
    const pngListBox &list = stage.open(10);
    QCOMPARE(stage.log.count("CloseListBox"), 2L);
    clickRow(list, 0);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[9], 1U);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[2], 9U);
    QTRY_VERIFY(openLists().empty());
    QCOMPARE(stage.log.count("CloseListBox"), 3L);
}

void tst_quicklistclosing::aListOpenedRightAfterAChoiceStays()
{
    const QuickListStage stage;
    pngListBox &first = stage.open(3);
    // Sent directly: between clicks on a window the event loop runs, and closes the first list.
    QTest::mouseClick(&first, Qt::LeftButton, {}, rowPoint(0));
    HoverButton &button = stage.mouseButton(10);
    QTest::mouseClick(&button, Qt::RightButton);
    QCOMPARE(stage.log.count("CloseListBox"), 1L);
    QCoreApplication::processEvents();
    QCOMPARE(openLists().size(), std::size_t{1});
    QCOMPARE(openLists().front()->pos(), button.mapToGlobal(QPoint(0, button.height())));
    QCOMPARE(stage.log.count("CloseListBox"), 1L);
}

void tst_quicklistclosing::theMainWindowGetsTheKeyboardBack()
{
    const QuickListStage stage;
    clickRow(stage.open(3), 0);
    QTRY_VERIFY(openLists().empty());
    QTRY_VERIFY(stage.window().isActiveWindow());
}

void tst_quicklistclosing::theProgramMayEndWithTheListOpen()
{
    QuickListStage stage;
    stage.open(3);
    stage.interface.reset();
    QVERIFY(openLists().empty());
}

void tst_quicklistclosing::aClosedListIsGone()
{
    const QuickListStage stage;
    const QPointer<QWidget> chosen = stage.open(3).window();
    clickRow(*chosen->findChild<pngListBox *>(QStringLiteral("pListboxView")), 0);
    QTRY_VERIFY(!chosen);
    const QPointer<QWidget> left = stage.open(3).window();
    QTest::keyClick(left->windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(!left);
}

void tst_quicklistclosing::theSecondPressOfADoubleClickReachesNoButton_data()
{
    QTest::addColumn<int>("since");
    QTest::addColumn<int>("selected");
    QTest::newRow("in time") << 1 << 5;
    QTest::newRow("too late") << QApplication::doubleClickInterval() << 8;
}

void tst_quicklistclosing::theSecondPressOfADoubleClickReachesNoButton()
{
    QFETCH(int, since);
    const QuickListStage stage;
    pngListBox &list = stage.open(5);
    const QPoint there = list.mapToGlobal(rowPoint(2));
    QVERIFY(stage.mouseButton(8).rect().contains(stage.mouseButton(8).mapFromGlobal(there)));
    QCursor::setPos(there);
    // Sent directly: the event loop deletes the list.
    QTest::mouseClick(&list, Qt::LeftButton, {}, rowPoint(2));
    const quint64 released = list.releasedAt();
    QTRY_VERIFY(openLists().empty());
    pressAndRelease(stage, there, released + static_cast<quint64>(since));
    QTEST(stage.view().currentButton() + 1, "selected");
    QCOMPARE(m_Config.PROFILE[0].BUTTON[4], 3U);
}

KYR_GUI_TEST(tst_quicklistclosing)
#include "tst_quicklistclosing.moc"
