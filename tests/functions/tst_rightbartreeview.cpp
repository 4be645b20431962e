#include "support/pictures.h"
#include "support/suite.h"
#include "treepanelstage.h"

/// The panel of game commands: its header, and how it collapses and expands.
class tst_rightbartreeview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itBeginsCollapsed();
    void theHeaderIsAGreyStrip_data();
    void theHeaderIsAGreyStrip();
    void theTitleStandsInTheHeader();
    void thePartsAreNamedForAssistiveTechnology();
    void thePartsLieWhereTheyBelong();
    void theToggleShowsAPlusOrAMinus();
    void aClickOnTheToggleIsToldOnce();
    void aClickOnTheHeaderIsToldOnce_data();
    void aClickOnTheHeaderIsToldOnce();
    void aClickBelowTheHeaderDoesNothing_data();
    void aClickBelowTheHeaderDoesNothing();
    void theHeaderOfAnExpandedPanelEndsThereToo();
    void otherClicksOnTheHeaderDoNothing();
    void theProgramExpandsWithoutTelling();
    void theTagIsKept();
};

namespace {

const QColor kStripGrey(21, 21, 21);

/// Sets a panel's height like its owner, who keeps its top edge in place.
void setHeight(TreePanelStage &stage, int height)
{
    stage.panel.setFrame({0, 250 - height, 177, height});
}

/// What a toggle looks like with that picture.
QImage toggleWith(TreePanelStage &stage, const char *picture)
{
    HoverButton button(&stage.panel, stage.toggle().frame());
    button.setNormalImage(SkinImage::named(picture));
    return shown(button);
}

} // namespace

void tst_rightbartreeview::itBeginsCollapsed()
{
    const TreePanelStage stage;
    QVERIFY(!stage.panel.GetExpanded());
    QVERIFY(!stage.toggle().isChecked());
    QVERIFY(!stage.outline().isVisible());
    QCOMPARE(stage.notices.count(), std::size_t{0});
    QCOMPARE(outlinerows::opened(stage.outline()), QStringList());
    QCOMPARE(stage.outline().model()->rowCount(), 7);
}

void tst_rightbartreeview::theHeaderIsAGreyStrip_data()
{
    QTest::addColumn<int>("height");
    QTest::newRow("collapsed") << 30;
    QTest::newRow("expanded") << 250;
}

void tst_rightbartreeview::theHeaderIsAGreyStrip()
{
    QFETCH(int, height);
    TreePanelStage stage;
    setHeight(stage, height);
    stage.panel.SetExpanded(height > 30);
    const QImage image = shown(stage.window);
    // Its uppermost line catches the light.
    QCOMPARE(extentOf(image, kStripGrey), QRect(2, 3, 173, 27));
    const QImage column = image.copy(4, 0, 1, 30);
    QCOMPARE(extentOfOther(column, Qt::black), QRect(0, 2, 1, 28));
    QVERIFY(column.pixelColor(0, 2).value() > kStripGrey.value());
}

void tst_rightbartreeview::theTitleStandsInTheHeader()
{
    TreePanelStage stage;
    const QImage image = shown(stage.window).copy(0, 0, 150, 30); // left of the toggle
    const QRect text =
        detail::extentWhere(image, [](const QColor &pixel) { return pixel.value() > 60; });
    // Left in (177 - 168, 250 - 25, 177 - 4, 15), from below.
    QVERIFY(QRect(9, 10, 173, 15).contains(text));
    QVERIFY(text.left() <= 11 && text.width() > 60 && text.height() >= 7);
    QCOMPARE(brightest(image.copy(text)).hsvSaturation(), 0);
    QVERIFY(brightest(image.copy(text)).value() > 240);
}

void tst_rightbartreeview::thePartsAreNamedForAssistiveTechnology()
{
    const TreePanelStage stage;
    QCOMPARE(stage.toggle().accessibleName(), QStringLiteral("Game Commands"));
    QCOMPARE(stage.outline().accessibleName(), QStringLiteral("Game Commands"));
}

void tst_rightbartreeview::thePartsLieWhereTheyBelong()
{
    TreePanelStage stage;
    for (int round = 0; round < 2; ++round) {
        stage.panel.SetExpanded(false);
        QVERIFY(stage.toggle().frame() == (UpRect{156, 8, 17, 18}));
        QVERIFY(stage.outline().frame() == (UpRect{0, 30, 175, 180}));
        QVERIFY(!stage.outline().isVisible());
        stage.panel.SetExpanded(true);
        QVERIFY(stage.toggle().frame() == (UpRect{156, 229, 17, 18}));
        QVERIFY(stage.outline().frame() == (UpRect{0, 0, 175, 220}));
        QCOMPARE(stage.outline().geometry(), QRect(0, 30, 175, 220));
        QVERIFY(stage.outline().isVisible());
    }
    stage.panel.SetExpanded(false);
    setHeight(stage, 30);
    QCOMPARE(stage.toggle().geometry(), QRect(156, 4, 17, 18));
}

void tst_rightbartreeview::theToggleShowsAPlusOrAMinus()
{
    TreePanelStage stage;
    const QImage plus = toggleWith(stage, "add");
    const QImage minus = toggleWith(stage, "minus");
    QVERIFY(plus != minus);
    QCOMPARE(shown(stage.toggle()), plus);
    pointer::click(stage.toggle());
    QCOMPARE(shown(stage.toggle()), minus);
    stage.panel.SetExpanded(false);
    QCOMPARE(shown(stage.toggle()), plus);
}

void tst_rightbartreeview::aClickOnTheToggleIsToldOnce()
{
    TreePanelStage stage;
    pointer::click(stage.toggle());
    QVERIFY(stage.panel.GetExpanded());
    QVERIFY(stage.toggle().isChecked());
    QCOMPARE(stage.notices.senders, std::vector<CollapsiblePanel *>{&stage.panel});
    pointer::click(stage.toggle());
    QVERIFY(!stage.panel.GetExpanded());
    QVERIFY(!stage.toggle().isChecked());
    QCOMPARE(stage.notices.count(), std::size_t{2});
}

void tst_rightbartreeview::aClickOnTheHeaderIsToldOnce_data()
{
    QTest::addColumn<int>("depth");
    for (const int depth : {0, 2, 15, 29, 30})
        QTest::addRow("%d", depth) << depth;
}

void tst_rightbartreeview::aClickOnTheHeaderIsToldOnce()
{
    QFETCH(int, depth);
    TreePanelStage stage;
    stage.clickAtDepth(depth);
    QVERIFY(stage.panel.GetExpanded());
    QVERIFY(stage.toggle().isChecked());
    QCOMPARE(stage.notices.senders, std::vector<CollapsiblePanel *>{&stage.panel});
}

void tst_rightbartreeview::aClickBelowTheHeaderDoesNothing_data()
{
    QTest::addColumn<int>("depth");
    for (const int depth : {31, 60, 249})
        QTest::addRow("%d", depth) << depth;
}

void tst_rightbartreeview::aClickBelowTheHeaderDoesNothing()
{
    QFETCH(int, depth);
    const TreePanelStage stage;
    stage.clickAtDepth(depth);
    QVERIFY(!stage.panel.GetExpanded());
    QCOMPARE(stage.notices.count(), std::size_t{0});
}

void tst_rightbartreeview::theHeaderOfAnExpandedPanelEndsThereToo()
{
    TreePanelStage stage;
    stage.panel.SetExpanded(true);
    stage.clickAtDepth(31, 176); // beside the outline
    QVERIFY(stage.panel.GetExpanded());
    stage.clickAtDepth(30, 176);
    QVERIFY(!stage.panel.GetExpanded());
    stage.panel.SetExpanded(true);
    stage.clickAtDepth(29);
    QVERIFY(!stage.panel.GetExpanded());
    QCOMPARE(stage.notices.count(), std::size_t{2});
}

void tst_rightbartreeview::otherClicksOnTheHeaderDoNothing()
{
    TreePanelStage stage;
    stage.panel.setFrame({0, 0, 120, 250});
    pointer::click(stage.panel, {60, 15}, Qt::RightButton);
    for (const QPoint outside : {QPoint(60, 120), QPoint(150, 15)}) {
        pointer::press(stage.panel, {60, 15});
        pointer::release(stage.panel, outside);
    }
    QVERIFY(!stage.panel.GetExpanded());
    QCOMPARE(stage.notices.count(), std::size_t{0});
}

void tst_rightbartreeview::theProgramExpandsWithoutTelling()
{
    TreePanelStage stage;
    for (const bool expanded : {true, true, false, false}) {
        stage.panel.SetExpanded(expanded);
        QCOMPARE(stage.panel.GetExpanded(), expanded);
        QCOMPARE(stage.toggle().isChecked(), expanded);
    }
    QCOMPARE(stage.notices.count(), std::size_t{0});
}

void tst_rightbartreeview::theTagIsKept()
{
    TreePanelStage stage;
    QCOMPARE(stage.panel.tag(), 0);
    stage.panel.setTag(4099);
    QCOMPARE(stage.panel.tag(), 4099);
}

KYR_GUI_TEST(tst_rightbartreeview)
#include "tst_rightbartreeview.moc"
