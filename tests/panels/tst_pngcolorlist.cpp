#include "colorpicture.h"
#include "support/pictures.h"
#include "support/suite.h"

/// The picture that a colour is picked from by a click.
class tst_pngcolorlist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsThePicture();
    void everyPointGivesThePicturesOwnPixel();
    void everySwatchGivesItsColour_data() { swatchRows(); }
    void everySwatchGivesItsColour();
    void beforeTheFirstPickItIsBlack();
    void thePickIsMadeAtTheRelease();
    void aDragPicksWhereItEnds();
    void aDragLeavesTheWindowWhereItIs();
    void aReleaseOutsidePicksNothing_data();
    void aReleaseOutsidePicksNothing();
    void theSecondPressOfADoubleClickIsNoPick();
    void besideThePictureThereIsNothingToPick();
    void otherButtonsPickNothing_data();
    void otherButtonsPickNothing();
    void whatLiesOverItIsNotPicked();
    void withoutAnActionAPickIsJustKept();
    void aFrameHidesNothingThatIsPicked();
    void itKeepsItsTag();
};

void tst_pngcolorlist::itShowsThePicture()
{
    ColourStage stage;
    QCOMPARE(shown(stage.list), drawnColours());
    QCOMPARE(stage.list.cursor().shape(), Qt::CrossCursor);
}

void tst_pngcolorlist::everyPointGivesThePicturesOwnPixel()
{
    const ColourStage stage;
    const QImage drawn = drawnColours();
    QCOMPARE(drawn.size(), QSize(118, 96));
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            pointer::click(stage.list, {x, y});
            if (stage.picked() != drawn.pixelColor(x, y))
                QFAIL(qPrintable(QStringLiteral("%1, %2").arg(x).arg(y)));
        }
    }
    QCOMPARE(stage.picks.count(), std::size_t{11328});
}

void tst_pngcolorlist::everySwatchGivesItsColour()
{
    QFETCH(const KnownSwatch *, known);
    ColourStage stage;
    pointer::click(stage.list, known->point);
    QCOMPARE(stage.list.getRed(), static_cast<std::uint32_t>(known->colour.red()));
    QCOMPARE(stage.list.getGreen(), static_cast<std::uint32_t>(known->colour.green()));
    QCOMPARE(stage.list.getBlue(), static_cast<std::uint32_t>(known->colour.blue()));
    QCOMPARE(stage.picks.senders, std::vector{&stage.list});
}

void tst_pngcolorlist::beforeTheFirstPickItIsBlack()
{
    const ColourStage stage;
    QCOMPARE(stage.picked(), QColor(Qt::black));
    QCOMPARE(stage.picks.count(), std::size_t{0});
}

void tst_pngcolorlist::thePickIsMadeAtTheRelease()
{
    const ColourStage stage;
    pointer::press(stage.list, {6, 86});
    QCOMPARE(stage.picks.count(), std::size_t{0});
    pointer::release(stage.list, {6, 86});
    QCOMPARE(stage.picks.count(), std::size_t{1});
}

void tst_pngcolorlist::aDragPicksWhereItEnds()
{
    const ColourStage stage;
    pointer::press(stage.list, {6, 86});
    pointer::move(stage.list, {30, 86});
    pointer::release(stage.list, {42, 86});
    QCOMPARE(stage.picked(), QColor(Qt::green));
    QCOMPARE(stage.picks.count(), std::size_t{1});
}

void tst_pngcolorlist::aDragLeavesTheWindowWhereItIs()
{
    custumwindow window({100, 100, 118, 96}, nullptr);
    window.setBCanDragWindow(true);
    auto *const list = new pngcolorlist(nullptr);
    window.setContentView(list);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QRect place = window.geometry();
    pointer::press(*list, {20, 20});
    pointer::move(*list, {50, 40});
    pointer::release(*list, {50, 40});
    QCOMPARE(window.geometry(), place);
}

void tst_pngcolorlist::aReleaseOutsidePicksNothing_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::newRow("left") << QPoint(-1, 86);
    QTest::newRow("above") << QPoint(6, -1);
    QTest::newRow("right") << QPoint(118, 86);
    QTest::newRow("below") << QPoint(6, 96);
    QTest::newRow("far away") << QPoint(-2000, 3000);
}

void tst_pngcolorlist::aReleaseOutsidePicksNothing()
{
    QFETCH(QPoint, at);
    const ColourStage stage;
    pointer::press(stage.list, {6, 86});
    pointer::release(stage.list, at);
    QCOMPARE(stage.picks.count(), std::size_t{0});
    QCOMPARE(stage.picked(), QColor(Qt::black));
    pointer::click(stage.list, {6, 86});
    QCOMPARE(stage.picked(), QColor(Qt::red));
}

void tst_pngcolorlist::theSecondPressOfADoubleClickIsNoPick()
{
    const ColourStage stage;
    pointer::doubleClick(stage.list, {6, 86});
    QCOMPARE(stage.picks.count(), std::size_t{1});
    pointer::click(stage.list, {30, 86});
    QCOMPARE(stage.picks.count(), std::size_t{2});
    QCOMPARE(stage.picked(), QColor(Qt::yellow));
}

void tst_pngcolorlist::besideThePictureThereIsNothingToPick()
{
    ColourStage stage;
    stage.list.setFrame({20, 30, 140, 110});
    // The picture stays at the lower left.
    QCOMPARE(shown(stage.list).copy(0, 14, 118, 96), drawnColours());
    for (const QPoint beside : {QPoint(6, 13), QPoint(118, 100), QPoint(139, 1)})
        pointer::click(stage.list, beside);
    QCOMPARE(stage.picks.count(), std::size_t{0});
    pointer::click(stage.list, {6, 14 + 95});
    QCOMPARE(stage.picked(), QColor(Qt::red));
    pointer::click(stage.list, {58, 14});
    QCOMPARE(stage.picked(), drawnColours().pixelColor(58, 0));
}

void tst_pngcolorlist::otherButtonsPickNothing_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_pngcolorlist::otherButtonsPickNothing()
{
    QFETCH(Qt::MouseButton, button);
    const ColourStage stage;
    pointer::click(stage.list, {6, 86}, button);
    QCOMPARE(stage.picks.count(), std::size_t{0});
}

void tst_pngcolorlist::whatLiesOverItIsNotPicked()
{
    ColourStage stage;
    QWidget cover(nullptr, Qt::ToolTip | Qt::WindowTransparentForInput);
    cover.setPalette(QColor(12, 34, 56));
    cover.setGeometry(QRect(stage.list.mapToGlobal(QPoint()), stage.list.size()));
    QWidget within(&stage.list);
    within.setAttribute(Qt::WA_TransparentForMouseEvents);
    within.setAutoFillBackground(true);
    within.setPalette(QColor(12, 34, 56));
    within.resize(stage.list.size());
    cover.show();
    within.show();
    QVERIFY(QTest::qWaitForWindowExposed(&cover));
    for (const KnownSwatch &known : kKnownSwatches) {
        pointer::click(stage.list, known.point);
        QCOMPARE(stage.picked(), known.colour);
    }
}

void tst_pngcolorlist::withoutAnActionAPickIsJustKept()
{
    ColourStage stage;
    stage.list.setChangeAction({});
    pointer::click(stage.list, {64, 86});
    QCOMPARE(stage.picked(), QColor(Qt::blue));
    QCOMPARE(stage.picks.count(), std::size_t{0});
}

void tst_pngcolorlist::itKeepsItsTag()
{
    ColourStage stage;
    QCOMPARE(stage.list.tag(), 0);
    stage.list.setTag(4102);
    QCOMPARE(stage.list.tag(), 4102);
}

void tst_pngcolorlist::aFrameHidesNothingThatIsPicked()
{
    ColourStage stage;
    const QImage plain = shown(stage.list);
    stage.list.setFramed(true);
    const QImage framed = shown(stage.list);
    const QRect inner = stage.list.rect().adjusted(2, 2, -2, -2);
    QCOMPARE(framed.copy(inner), plain.copy(inner));
    QCOMPARE(framed.pixelColor(0, 50), kRim);
    const QColor below = drawnColours().pixelColor(1, 50);
    QVERIFY(below.alpha() == 255 && framed.pixelColor(1, 50) != below);
    clickBetween(stage.list, {1, 50});
    QCOMPARE(stage.picked(), below);
}

KYR_GUI_TEST(tst_pngcolorlist)
#include "tst_pngcolorlist.moc"
