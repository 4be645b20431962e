#include "support/drop.h"
#include "support/suite.h"
#include "treestage.h"

/// Rows of an outline found, selected, opened and closed by the program.
class tst_myoutlineview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreFoundByTheirIndex();
    void aClosedCategoryIsNotSearched();
    void aRowIsExpandedAndCollapsedByItsIndex();
    void theProgramSelectsOneRowAndTellsNobody();
    void theProgramsSelectionComesIntoSight();
    void aRowThatWasOutOfSightShowsWithItsNeighbours();
    void aRowInSightStaysWhereItIs();
    void aSelectedRowComesIntoSightAgain();
    void whatIsNotFoundChangesNothing();
    void anItemWithoutARowIsNotSelected();
    void textsAreNotTaken_data();
    void textsAreNotTaken();
};

namespace {

const QStringList kMovementOpen{QStringLiteral("Movement Keys")};

} // namespace

void tst_myoutlineview::rowsAreFoundByTheirIndex()
{
    const TreeStage stage;
    for (std::ptrdiff_t category = 0; category < 7; ++category) {
        const GameCommandItem *const found = stage.outline.findItembyIndex(category);
        QVERIFY(found);
        QCOMPARE(found->getIndexId(), category);
    }
    stage.clickArrow("Camera Functions");
    QCOMPARE(stage.outline.findItembyIndex(24580)->GetTilteName(), QStringLiteral("Zoom Out"));
    QCOMPARE(stage.outline.findItembyIndex(6)->GetTilteName(),
             QStringLiteral("Miscellaneous Functions"));
    for (const std::ptrdiff_t none : {-1, 7, 24576, 24581})
        QVERIFY(!stage.outline.findItembyIndex(none));
}

void tst_myoutlineview::aClosedCategoryIsNotSearched()
{
    const TreeStage stage;
    QVERIFY(!stage.outline.findItembyIndex(4104));
    stage.clickArrow("Movement Keys");
    QVERIFY(stage.outline.findItembyIndex(4104));
    stage.clickArrow("Movement Keys");
    QVERIFY(!stage.outline.findItembyIndex(4104));
}

void tst_myoutlineview::aRowIsExpandedAndCollapsedByItsIndex()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(0);
    stage.outline.expandItembyIndex(5);
    QCOMPARE(stage.opened(), kMovementOpen + QStringList{QStringLiteral("Camera Functions")});
    stage.outline.expandItembyIndex(0);
    stage.outline.collapseItembyIndex(5);
    QCOMPARE(stage.opened(), kMovementOpen);
    stage.outline.collapseItembyIndex(5);
    stage.outline.collapseItembyIndex(0);
    QCOMPARE(stage.opened(), QStringList());
    QCOMPARE(stage.choices.count(), std::size_t{0});
}

void tst_myoutlineview::theProgramSelectsOneRowAndTellsNobody()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(0);
    stage.outline.setSelectedItembyIndex(4104);
    QCOMPARE(stage.selected(), QStringLiteral("Jump"));
    stage.outline.setSelectedItembyIndex(3);
    QCOMPARE(stage.selected(), QStringLiteral("Targeting Functions"));
    stage.outline.setSelectedItem(stage.outline.findItembyIndex(4098));
    QCOMPARE(stage.selected(), QStringLiteral("Move Forward"));
    QCOMPARE(stage.choices.count(), std::size_t{0});
}

void tst_myoutlineview::theProgramsSelectionComesIntoSight()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(2);
    QVERIFY(!outlinerows::isInSight(stage.outline, "Next Action Bar"));
    stage.outline.setSelectedItembyIndex(12340);
    QVERIFY(outlinerows::isInSight(stage.outline, "Next Action Bar"));
    stage.outline.setSelectedItembyIndex(0);
    QVERIFY(outlinerows::isInSight(stage.outline, "Movement Keys"));
}

void tst_myoutlineview::aRowThatWasOutOfSightShowsWithItsNeighbours()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(2);
    stage.outline.setSelectedItembyIndex(12330);
    for (const char *name : {"Secondary Action Button 6", "Secondary Action Button 7",
                             "Secondary Action Button 9", "Secondary Action Button 10"})
        QVERIFY2(outlinerows::isInSight(stage.outline, name), name);
}

void tst_myoutlineview::aRowInSightStaysWhereItIs()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(2);
    stage.outline.setSelectedItembyIndex(12330);
    const int before = stage.outline.verticalScrollBar()->value();
    stage.outline.setSelectedItembyIndex(12332);
    QCOMPARE(stage.selected(), QStringLiteral("Secondary Action Button 10"));
    QCOMPARE(stage.outline.verticalScrollBar()->value(), before);
}

void tst_myoutlineview::aSelectedRowComesIntoSightAgain()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(2);
    stage.outline.setSelectedItembyIndex(2);
    pointer::turnWheel(stage.pane(), -1200);
    QVERIFY(!outlinerows::isInSight(stage.outline, "Action Bar Functions"));
    stage.outline.setSelectedItembyIndex(2);
    QVERIFY(outlinerows::isInSight(stage.outline, "Action Bar Functions"));
}

void tst_myoutlineview::whatIsNotFoundChangesNothing()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(0);
    stage.outline.setSelectedItembyIndex(4104);
    for (const std::ptrdiff_t none : {-1, 7, 8193, 4111}) {
        stage.outline.setSelectedItembyIndex(none);
        stage.outline.expandItembyIndex(none);
        stage.outline.collapseItembyIndex(none);
    }
    stage.outline.expandItembyIndex(4104); // a command, which has nothing to open
    QCOMPARE(stage.selected(), QStringLiteral("Jump"));
    QCOMPARE(stage.opened(), kMovementOpen);
}

void tst_myoutlineview::anItemWithoutARowIsNotSelected()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(0);
    GameCommandItem *const jump = stage.outline.findItembyIndex(4104);
    stage.outline.collapseItembyIndex(0);
    stage.outline.setSelectedItembyIndex(3);
    stage.outline.setSelectedItem(jump);
    QCOMPARE(stage.selected(), QStringLiteral("Targeting Functions"));
    // An item of the same index that stands in no row.
    stage.outline.setSelectedItem(GameCommandItem::rootItem(5).get());
    stage.outline.setSelectedItem(nullptr);
    QCOMPARE(stage.selected(), QStringLiteral("Targeting Functions"));
    QCOMPARE(stage.opened(), QStringList());
}

void tst_myoutlineview::textsAreNotTaken_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"4104", "0", "text"})
        QTest::newRow(text) << QString::fromLatin1(text);
}

void tst_myoutlineview::textsAreNotTaken()
{
    QFETCH(QString, text);
    TreeStage stage;
    stage.outline.setSelectedItembyIndex(3);
    QVERIFY(!dropText(stage.pane(), text));
    QCOMPARE(stage.selected(), QStringLiteral("Targeting Functions"));
    QCOMPARE(stage.choices.count(), std::size_t{0});
    QCOMPARE(stage.outline.model()->rowCount(), 7);
}

KYR_GUI_TEST(tst_myoutlineview)
#include "tst_myoutlineview.moc"
