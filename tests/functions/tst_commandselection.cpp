#include "support/keyboard.h"
#include "support/paintwatch.h"
#include "support/suite.h"
#include "treepanelstage.h"

/// What is selected in the panel of game commands, by a person or by the program, and who hears it.
class tst_commandselection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChosenCommandIsToldAndLogged();
    void aChosenCategoryIsOnlyLogged_data();
    void aChosenCategoryIsOnlyLogged();
    void theSelectedCommandIsToldAgain();
    void theArrowKeysTellTheCommandsThatTheyCross();
    void openingACategoryTellsNothing();
    void theProgramSelectsTheCommandOfACode_data();
    void theProgramSelectsTheCommandOfACode();
    void aCommandOfACodeComesIntoSight();
    void aCommandSelectedWhileCollapsedIsInSightAfterwards();
    void openCategoriesStayOpen();
    void aCodeWithoutARowKeepsTheSelection();
    void theOutlineIsDrawnAgainForEveryCode();
};

namespace {

const std::string kChangeOf = "outlineViewSelectionDidChange.";

} // namespace

void tst_commandselection::aChosenCommandIsToldAndLogged()
{
    TreePanelStage stage;
    stage.openCategory("Movement Keys");
    QVERIFY(stage.log.lines.empty());
    outlinerows::click(stage.outline(), "Jump");
    QCOMPARE(stage.told.codes, std::vector<FunctionCode>{4104});
    QCOMPARE(stage.log.lines, std::vector<std::string>{kChangeOf + "1008"});
    outlinerows::click(stage.outline(), "Move and Steer"); // the lowest code
    QCOMPARE(stage.told.codes, (std::vector<FunctionCode>{4104, 4097}));
    QCOMPARE(stage.log.lines.back(), kChangeOf + "1001");
    QCOMPARE(outlinerows::selected(stage.outline()), QStringLiteral("Move and Steer"));
}

void tst_commandselection::aChosenCategoryIsOnlyLogged_data()
{
    QTest::addColumn<std::string>("number");
    QTest::newRow("Movement Keys") << std::string("0");
    QTest::newRow("Chat Functions") << std::string("1");
    QTest::newRow("Miscellaneous Functions") << std::string("6");
}

void tst_commandselection::aChosenCategoryIsOnlyLogged()
{
    QFETCH(std::string, number);
    TreePanelStage stage;
    stage.panel.SetExpanded(true);
    outlinerows::click(stage.outline(), QTest::currentDataTag());
    QVERIFY(stage.told.codes.empty());
    QCOMPARE(stage.log.lines, std::vector<std::string>{kChangeOf + number});
    QCOMPARE(outlinerows::selected(stage.outline()), QLatin1String(QTest::currentDataTag()));
}

void tst_commandselection::theSelectedCommandIsToldAgain()
{
    TreePanelStage stage;
    stage.panel.SetExpanded(true);
    stage.panel.setTreeSel(4104);
    outlinerows::click(stage.outline(), "Jump");
    outlinerows::click(stage.outline(), "Jump");
    QCOMPARE(stage.told.codes, (std::vector<FunctionCode>{4104, 4104}));
}

void tst_commandselection::theArrowKeysTellTheCommandsThatTheyCross()
{
    TreePanelStage stage;
    stage.openCategory("Movement Keys");
    outlinerows::click(stage.outline(), "Movement Keys");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up})
        keyboard::press(key);
    QCOMPARE(stage.told.codes, (std::vector<FunctionCode>{4097, 4098, 4097}));
    QCOMPARE(stage.log.lines.back(), kChangeOf + "0");
}

void tst_commandselection::openingACategoryTellsNothing()
{
    TreePanelStage stage;
    for (int round = 0; round < 2; ++round)
        stage.openCategory("Camera Functions");
    QVERIFY(stage.told.codes.empty());
    QVERIFY(stage.log.lines.empty());
    QCOMPARE(stage.notices.count(), std::size_t{0});
}

void tst_commandselection::theProgramSelectsTheCommandOfACode_data()
{
    QTest::addColumn<std::int32_t>("code");
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("selected");
    const auto row = [](std::int32_t code, const char *opened, const char *selected) {
        QTest::addRow("%d", code) << code << QString::fromLatin1(opened)
                                  << QString::fromLatin1(selected);
    };
    row(INT_MIN, "", "");
    row(-4097, "", "");
    row(-1, "", "");
    row(0, "", "Movement Keys"); // a category carries its number
    row(6, "", "Miscellaneous Functions");
    row(7, "", "");
    row(256, "", "");
    row(4096, "", "");
    row(4097, "Movement Keys", "Move and Steer");
    row(4104, "Movement Keys", "Jump");
    row(8191, "Movement Keys", "");
    row(8192, "", "");
    row(8193, "Chat Functions", "Open Chat");
    row(12287, "Chat Functions", "");
    row(12288, "", "");
    row(12289, "Action Bar Functions", "Action Button 1");
    row(12330, "Action Bar Functions", "Secondary Action Button 8");
    row(16383, "Action Bar Functions", "");
    row(16384, "", "");
    row(16385, "Targeting Functions", "Target Nearest Enemy");
    row(20479, "Targeting Functions", "");
    row(20480, "", "");
    row(20481, "Interface Panel Functions", "Toggle Character Pane");
    row(24575, "Interface Panel Functions", "");
    row(24576, "", "");
    row(24577, "Camera Functions", "Next View");
    row(28671, "Camera Functions", "");
    row(28672, "", "");
    row(28673, "Miscellaneous Functions", "Minimap Zoom In");
    row(28681, "Miscellaneous Functions", "Screen Shot");
    row(32767, "Miscellaneous Functions", "");
    row(32768, "Miscellaneous Functions", "");
    row(36865, "Miscellaneous Functions", "");
    row(INT_MAX, "Miscellaneous Functions", "");
}

void tst_commandselection::theProgramSelectsTheCommandOfACode()
{
    QFETCH(std::int32_t, code);
    TreePanelStage stage;
    stage.panel.SetExpanded(true);
    stage.panel.setTreeSel(code);
    QTEST(outlinerows::opened(stage.outline()).join(QLatin1Char('|')), "opened");
    QTEST(outlinerows::selected(stage.outline()), "selected");
    QVERIFY(stage.told.codes.empty());
    QVERIFY(stage.log.lines.empty());
    QCOMPARE(stage.notices.count(), std::size_t{0});
}

void tst_commandselection::aCommandOfACodeComesIntoSight()
{
    TreePanelStage stage;
    stage.panel.SetExpanded(true);
    stage.panel.setTreeSel(12330);
    QVERIFY(outlinerows::isInSight(stage.outline(), "Secondary Action Button 8"));
    stage.panel.setTreeSel(4097);
    QVERIFY(outlinerows::isInSight(stage.outline(), "Move and Steer"));
}

void tst_commandselection::aCommandSelectedWhileCollapsedIsInSightAfterwards()
{
    TreePanelStage stage;
    stage.panel.setTreeSel(12330);
    stage.panel.SetExpanded(true);
    QCOMPARE(outlinerows::selected(stage.outline()), QStringLiteral("Secondary Action Button 8"));
    QVERIFY(outlinerows::isInSight(stage.outline(), "Secondary Action Button 8"));
}

void tst_commandselection::openCategoriesStayOpen()
{
    TreePanelStage stage;
    stage.openCategory("Chat Functions");
    for (const std::int32_t code : {4104, 24577, 8192, 24578})
        stage.panel.setTreeSel(code);
    QCOMPARE(outlinerows::opened(stage.outline()).join(QLatin1Char('|')),
             QStringLiteral("Movement Keys|Chat Functions|Camera Functions"));
    QCOMPARE(outlinerows::selected(stage.outline()), QStringLiteral("Previous View"));
}

void tst_commandselection::aCodeWithoutARowKeepsTheSelection()
{
    TreePanelStage stage;
    stage.panel.SetExpanded(true);
    stage.panel.setTreeSel(4104);
    for (const std::int32_t code : {8192, 8191, -1, INT_MAX}) {
        stage.panel.setTreeSel(code);
        QCOMPARE(outlinerows::selected(stage.outline()), QStringLiteral("Jump"));
    }
}

void tst_commandselection::theOutlineIsDrawnAgainForEveryCode()
{
    TreePanelStage stage;
    stage.panel.SetExpanded(true);
    QVERIFY(QTest::qWaitForWindowExposed(&stage.window));
    QCoreApplication::processEvents();
    const PaintWatch watch(*stage.outline().viewport());
    QCoreApplication::processEvents();
    QVERIFY(!watch.hasPainted({60, 100}));
    stage.panel.setTreeSel(8192); // selects nothing
    QTRY_VERIFY(watch.hasPainted({60, 100}));
}

KYR_GUI_TEST(tst_commandselection)
#include "tst_commandselection.moc"
