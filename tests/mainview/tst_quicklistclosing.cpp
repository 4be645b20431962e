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
};

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

KYR_GUI_TEST(tst_quicklistclosing)
#include "tst_quicklistclosing.moc"
