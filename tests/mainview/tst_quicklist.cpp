#include "quickliststage.h"
#include "support/suite.h"

/// The list of basic functions that a right click opens under a mouse button: opening it, choosing
/// from it.
class tst_quicklist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRightClickOpensTheListUnderTheButton_data();
    void aRightClickOpensTheListUnderTheButton();
    void theListFollowsWhereTheWindowStands();
    void theListHasItsRows();
    void aRightClickSelectsTheButton();
    void onlyTheFirstTwoButtonsLogARightClick_data();
    void onlyTheFirstTwoButtonsLogARightClick();
    void aRightClickElsewhereOpensNothing_data();
    void aRightClickElsewhereOpensNothing();
    void choosingARowAssignsItAndClosesTheList_data();
    void choosingARowAssignsItAndClosesTheList();
    void aChosenMouseButtonIsRenamedWithTheNextProfile();
    void theKeyboardChoosesToo();
    void returnWithoutARowAssignsNothing();
    void choosingARowMovesTheMemoryGauge();
    void aChoiceGoesIntoTheProfileShownByThen();
    void aListOfAnotherNumberOnlyCountsAsAChange();
};

void tst_quicklist::aRightClickOpensTheListUnderTheButton_data()
{
    QTest::addColumn<int>("number");
    for (int number : {1, 2, 5, 9, 12, 14})
        QTest::addRow("%d", number) << number;
}

void tst_quicklist::aRightClickOpensTheListUnderTheButton()
{
    QFETCH(int, number);
    const QuickListStage stage;
    stage.open(number);
    const QWidget &button = stage.mouseButton(number);
    const QPoint below = button.mapToGlobal(QPoint(0, button.height()));
    QCOMPARE(openLists().front()->geometry(), QRect(below, QSize(97, 140)));
    QVERIFY(openLists().front()->windowFlags().testFlag(Qt::FramelessWindowHint));
}

void tst_quicklist::theListFollowsWhereTheWindowStands()
{
    const QuickListStage stage;
    stage.window().move(20, 10);
    stage.open(3);
    QCOMPARE(openLists().front()->geometry(),
             QRect(20 + 459, 10 + 640 - 443, 97, 140)); // below Button3
}

void tst_quicklist::theListHasItsRows()
{
    const QuickListStage stage;
    const pngListBox &list = stage.open(5);
    QStringList rows;
    for (int row = 0; row < list.getCount(); ++row)
        rows.append(list.stringAt(row));
    const QString expected = QStringLiteral("Left-Click|Right-Click|Double Click|Mouse Button 4|"
                                            "Mouse Button 5|Universal Scroll|Disable/Clear");
    QCOMPARE(rows.join(QLatin1Char('|')), expected);
    QCOMPARE(list.tag(), 8192);
    QCOMPARE(list.getcursel(), -1);
    QCOMPARE(list.size(), QSize(97, 140));
    QCOMPARE(list.window()->windowTitle(), QStringLiteral("Basic Functions"));
    QVERIFY(
        !list.window()->testAttribute(Qt::WA_ShowWithoutActivating)); // it asks for the keyboard
}

void tst_quicklist::aRightClickSelectsTheButton()
{
    const QuickListStage stage;
    pointer::click(stage.mouseButton(2));
    stage.open(7);
    QCOMPARE(stage.buttonsOn(), std::vector{7});
    QVERIFY(!stage.applyIsEnabled());
}

void tst_quicklist::onlyTheFirstTwoButtonsLogARightClick_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<std::vector<std::string>>("logged");
    using Lines = std::vector<std::string>;
    QTest::newRow("1") << 1 << Lines{"Button 1 was Right Down"};
    QTest::newRow("2") << 2 << Lines{"Button 2 was Right Down"};
    QTest::newRow("3") << 3 << Lines{};
    QTest::newRow("14") << 14 << Lines{};
}

void tst_quicklist::onlyTheFirstTwoButtonsLogARightClick()
{
    QFETCH(int, number);
    const QuickListStage stage;
    stage.open(number);
    QTEST(stage.log.lines, "logged");
}

void tst_quicklist::aRightClickElsewhereOpensNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"ButtonOK", "BtnClose", "BtnProfile3", "chkGameMode", "BtnMin"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_quicklist::aRightClickElsewhereOpensNothing()
{
    QFETCH(QString, name);
    const QuickListStage stage;
    pointer::rightClick(stage.button(name));
    QVERIFY(openLists().empty());
    QCOMPARE(stage.buttonsOn(), std::vector<int>{});
    QCOMPARE(stage.quits, 0);
}

void tst_quicklist::choosingARowAssignsItAndClosesTheList_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<FunctionCode>("code");
    const auto row = [](int number, const char *caption, FunctionCode code) {
        QTest::newRow(caption) << number << QString::fromLatin1(caption) << code;
    };
    row(0, "Left-Click", 1);
    row(1, "Right-Click", 2);
    row(2, "Double Click", 3);
    row(3, "Mouse Button 4", 4);
    row(4, "Mouse Button 5", 5);
    row(5, "Universal Scroll", 6);
    row(6, "Disable/Clear", 9);
}

void tst_quicklist::choosingARowAssignsItAndClosesTheList()
{
    QFETCH(int, row);
    QFETCH(FunctionCode, code);
    const QuickListStage stage;
    m_Config.PROFILE[0].BUTTON[4] = 0;
    clickRow(stage.open(5), row);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[4], code);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[3], 9U);
    QTEST(stage.mouseButton(5).captionText(), "caption");
    QVERIFY(stage.applyIsEnabled());
    QTRY_VERIFY(openLists().empty());
    const std::vector<std::string> logged = {"IDC_LISTBOX_BUTTON_FUNC:" + std::to_string(row),
                                             "CloseListBox"};
    QCOMPARE(stage.log.lines, logged);
}

void tst_quicklist::aChosenMouseButtonIsRenamedWithTheNextProfile()
{
    QuickListStage stage;
    clickRow(stage.open(5), 3);
    QCOMPARE(stage.mouseButton(5).captionText(), QStringLiteral("Mouse Button 4"));
    stage.reportProfile(1);
    QCOMPARE(stage.mouseButton(5).captionText(), QStringLiteral("Button 4"));
    QCOMPARE(m_Config.PROFILE[0].BUTTON[4], 4U);
}

void tst_quicklist::theKeyboardChoosesToo()
{
    const QuickListStage stage;
    const QWidget &list = stage.open(3);
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Return})
        QTest::keyClick(pointer::windowOf(list), key);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[2], 2U);
    QTRY_VERIFY(openLists().empty());
}

void tst_quicklist::returnWithoutARowAssignsNothing()
{
    const QuickListStage stage;
    QTest::keyClick(pointer::windowOf(stage.open(3)), Qt::Key_Return);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[2], 9U);
    QCOMPARE(stage.mouseButton(3).captionText(), QStringLiteral("Disable/Clear"));
    QVERIFY(stage.applyIsEnabled()); // whatever was chosen
    QVERIFY(stage.log.contains("IDC_LISTBOX_BUTTON_FUNC:-1"));
    QTRY_VERIFY(openLists().empty());
}

void tst_quicklist::choosingARowMovesTheMemoryGauge()
{
    QuickListStage stage;
    std::fill_n(m_Config.PROFILE[0].BUTTON, 5, 3U); // double clicks; a sixth fills the first unit
    stage.reportProfile(1);
    const auto *const gauge =
        stage.view().findChild<pngProgressBar *>(QStringLiteral("MSMemoryUsageBar"));
    QCOMPARE(gauge->getPos(), 0);
    clickRow(stage.open(6), 2);
    QCOMPARE(stage.view().memoryUsage(), 1U);
    QCOMPARE(gauge->getPos(), 1);
}

void tst_quicklist::aChoiceGoesIntoTheProfileShownByThen()
{
    QuickListStage stage;
    const pngListBox &list = stage.open(5);
    stage.reportProfile(3);
    clickRow(list, 3);
    QCOMPARE(m_Config.PROFILE[2].BUTTON[4], 4U);
    QCOMPARE(m_Config.PROFILE[0].BUTTON[4], 9U);
    QCOMPARE(stage.mouseButton(5).captionText(), QStringLiteral("Mouse Button 4"));
}

void tst_quicklist::aListOfAnotherNumberOnlyCountsAsAChange()
{
    QuickListStage stage;
    pngListBox &list = stage.open(5);
    std::fill_n(m_Config.PROFILE[0].BUTTON, 6, 3U);
    list.setTag(8193);
    clickRow(list, 0);
    QCoreApplication::processEvents();
    QCOMPARE(m_Config.PROFILE[0].BUTTON[4], 3U);
    QCOMPARE(stage.mouseButton(5).captionText(), QStringLiteral("Disable/Clear"));
    QCOMPARE(openLists().size(), std::size_t{1});
    QCOMPARE(stage.log.lines, std::vector<std::string>());
    QVERIFY(stage.applyIsEnabled());
    QCOMPARE(stage.view().memoryUsage(), 1U); // counted again
}

KYR_GUI_TEST(tst_quicklist)
#include "tst_quicklist.moc"
