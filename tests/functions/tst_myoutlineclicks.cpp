#include "support/suite.h"
#include "treestage.h"

/// An outline under the pointer: what a click, a double click and a click on an arrow do.
class tst_myoutlineclicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickSelectsOnItsRelease();
    void theChoiceIsToldBeforeTheRowIsSelected();
    void aClickOnTheSelectedRowIsToldAgain();
    void aPressThatIsReleasedElsewhereDoesNothing_data();
    void aPressThatIsReleasedElsewhereDoesNothing();
    void otherMouseButtonsDoNothing_data();
    void otherMouseButtonsDoNothing();
    void aClickBelowTheRowsDoesNothing();
    void anArrowOpensAndClosesAndTellsNobody();
    void theArrowsOfOpenCategoriesStayInPlace();
    void whereACommandHasNoArrowAClickSelectsIt();
    void aDoubleClickOpensAndCloses();
    void aDoubleClickOnAnArrowTogglesTwice();
    void aDoubleClickOnACommandOpensNothing();
};

void tst_myoutlineclicks::aClickSelectsOnItsRelease()
{
    const TreeStage stage;
    stage.press("Camera Functions");
    QCOMPARE(stage.selected(), QString());
    QCOMPARE(stage.choices.count(), std::size_t{0});
    stage.release("Camera Functions");
    QCOMPARE(stage.selected(), QStringLiteral("Camera Functions"));
    stage.click("Chat Functions");
    QCOMPARE(stage.selected(), QStringLiteral("Chat Functions"));
    QCOMPARE(stage.chosen(),
             (QStringList{QStringLiteral("Camera Functions"), QStringLiteral("Chat Functions")}));
    QCOMPARE(stage.opened(), QStringList());
}

void tst_myoutlineclicks::theChoiceIsToldBeforeTheRowIsSelected()
{
    struct Looker : QObject
    {
        void look(GameCommandItem * /*item*/) { seen = outlinerows::selected(*outline); }
        const MyOutlineView *outline = nullptr;
        QString seen;
    } looker;
    TreeStage stage;
    stage.click("Chat Functions");
    looker.outline = &stage.outline;
    stage.outline.setShouldSelectItem({&looker, &Looker::look});
    stage.click("Camera Functions");
    QCOMPARE(looker.seen, QStringLiteral("Chat Functions"));
    QCOMPARE(stage.selected(), QStringLiteral("Camera Functions"));
}

void tst_myoutlineclicks::aClickOnTheSelectedRowIsToldAgain()
{
    TreeStage stage;
    stage.outline.setSelectedItembyIndex(1);
    for (std::size_t clicks = 1; clicks <= 3; ++clicks) {
        stage.click("Chat Functions");
        QCOMPARE(stage.choices.count(), clicks);
        QCOMPARE(stage.selected(), QStringLiteral("Chat Functions"));
    }
}

void tst_myoutlineclicks::aPressThatIsReleasedElsewhereDoesNothing_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("to");
    const QPoint camera(60, 18 * 5 + 16);
    QTest::newRow("just below") << camera << QPoint(60, 18 * 6 + 3);
    QTest::newRow("just below the last row") << QPoint(60, 18 * 6 + 16) << QPoint(60, 18 * 7 + 3);
    QTest::newRow("another row") << camera << QPoint(60, 27);
    QTest::newRow("below the rows") << camera << QPoint(60, 200);
    QTest::newRow("beside the outline") << camera << QPoint(180, 100);
    QTest::newRow("onto a row") << QPoint(60, 18 * 7 + 3) << QPoint(60, 18 * 6 + 16);
}

void tst_myoutlineclicks::aPressThatIsReleasedElsewhereDoesNothing()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, to);
    const TreeStage stage;
    pointer::press(stage.pane(), from);
    pointer::release(stage.pane(), to);
    QCOMPARE(stage.choices.count(), std::size_t{0});
    QCOMPARE(stage.selected(), QString());
}

void tst_myoutlineclicks::otherMouseButtonsDoNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_myoutlineclicks::otherMouseButtonsDoNothing()
{
    QFETCH(Qt::MouseButton, button);
    const TreeStage stage;
    const auto clickAt = [&](QPoint at) { pointer::click(stage.pane(), at, button); };
    clickAt(outlinerows::onText(stage.outline, "Camera Functions"));
    clickAt(outlinerows::onArrow(stage.outline, "Camera Functions"));
    QCOMPARE(stage.choices.count(), std::size_t{0});
    QCOMPARE(stage.selected(), QString());
    QCOMPARE(stage.opened(), QStringList());
}

void tst_myoutlineclicks::aClickBelowTheRowsDoesNothing()
{
    TreeStage stage;
    stage.outline.setSelectedItembyIndex(3);
    pointer::click(stage.pane(), {60, 200});
    QCOMPARE(stage.choices.count(), std::size_t{0});
    QCOMPARE(stage.selected(), QStringLiteral("Targeting Functions"));
}

void tst_myoutlineclicks::anArrowOpensAndClosesAndTellsNobody()
{
    const TreeStage stage;
    stage.clickArrow("Camera Functions");
    QCOMPARE(stage.opened(), QStringList{QStringLiteral("Camera Functions")});
    stage.clickArrow("Camera Functions");
    QCOMPARE(stage.opened(), QStringList());
    QCOMPARE(stage.choices.count(), std::size_t{0});
    QCOMPARE(stage.selected(), QString());
}

void tst_myoutlineclicks::theArrowsOfOpenCategoriesStayInPlace()
{
    const TreeStage stage;
    stage.clickArrow("Chat Functions");
    stage.clickArrow("Movement Keys");
    stage.clickArrow("Movement Keys");
    QCOMPARE(stage.opened(), QStringList{QStringLiteral("Chat Functions")});
    stage.click("Open Chat");
    stage.clickArrow("Chat Functions");
    QCOMPARE(stage.opened(), QStringList());
    QCOMPARE(stage.chosen(), QStringList{QStringLiteral("Open Chat")});
}

void tst_myoutlineclicks::whereACommandHasNoArrowAClickSelectsIt()
{
    const TreeStage stage;
    stage.clickArrow("Camera Functions");
    stage.clickArrow("Zoom In");
    QCOMPARE(stage.chosen(), QStringList{QStringLiteral("Zoom In")});
    QCOMPARE(stage.selected(), QStringLiteral("Zoom In"));
}

void tst_myoutlineclicks::aDoubleClickOpensAndCloses()
{
    const TreeStage stage;
    const QStringList cameraOpen{QStringLiteral("Camera Functions")};
    for (const QStringList &expected : {cameraOpen, QStringList()}) {
        pointer::doubleClick(stage.pane(), outlinerows::onText(stage.outline, "Camera Functions"));
        QCOMPARE(stage.opened(), expected);
        QCOMPARE(stage.selected(), QStringLiteral("Camera Functions"));
    }
}

void tst_myoutlineclicks::aDoubleClickOnAnArrowTogglesTwice()
{
    const TreeStage stage;
    pointer::doubleClick(stage.pane(), outlinerows::onArrow(stage.outline, "Camera Functions"));
    QCOMPARE(stage.opened(), QStringList());
    QCOMPARE(stage.choices.count(), std::size_t{0});
}

void tst_myoutlineclicks::aDoubleClickOnACommandOpensNothing()
{
    const TreeStage stage;
    stage.clickArrow("Camera Functions");
    pointer::doubleClick(stage.pane(), outlinerows::onText(stage.outline, "Zoom In"));
    QCOMPARE(stage.opened(), QStringList{QStringLiteral("Camera Functions")});
    QCOMPARE(stage.selected(), QStringLiteral("Zoom In"));
}

KYR_GUI_TEST(tst_myoutlineclicks)
#include "tst_myoutlineclicks.moc"
