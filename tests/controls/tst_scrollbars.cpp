#include "controls/scrollbars.h"
#include "support/pictures.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

/// The skin's scroll bars: how long the slider is and where it stands, and what a mouse does there.
class tst_scrollbars : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSliderIsAsLongAsItsShareOfTheContent_data();
    void theSliderIsAsLongAsItsShareOfTheContent();
    void theSliderStandsWhereTheContentDoes_data();
    void theSliderStandsWhereTheContentDoes();
    void withNothingToScrollTheSliderFillsTheBar();
    void theWholeRestOfTheBarPages_data();
    void theWholeRestOfTheBarPages();
    void theSliderIsDragged_data() { directions(); }
    void theSliderIsDragged();
    void theBarIsDrawnInTheSkinsColours_data() { directions(); }
    void theBarIsDrawnInTheSkinsColours();
    void aSliderLightsUpUnderThePointerAndHeld_data() { directions(); }
    void aSliderLightsUpUnderThePointerAndHeld();
    void theBarsShowWhenThereIsSomethingToScroll();
    void theBarsTakeNoRoom();

private:
    static void directions();
};

namespace {

constexpr int kLength = 100; ///< of the area, and so of the bar

/// A shown area with one of its bars: what goes along a bar is swapped for the level one.
struct ScrollBarStage
{
    explicit ScrollBarStage(Qt::Orientation direction, int content, int length = kLength)
        : orientation(direction)
    {
        window.resize(400, 300);
        area.setFrameShape(QFrame::NoFrame);
        area.setGeometry(QRect(QPoint(20, 30), along(QSize(60, length))));
        useSkinScrollBars(area);
        auto *const inside = new QWidget;
        inside->resize(along(QSize(60, content)));
        area.setWidget(inside);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }

    QSize along(QSize size) const { return orientation == Qt::Vertical ? size : size.transposed(); }
    QPoint along(QPoint point) const
    {
        return orientation == Qt::Vertical ? point : point.transposed();
    }
    QScrollBar &bar() const
    {
        return orientation == Qt::Vertical ? *area.verticalScrollBar()
                                           : *area.horizontalScrollBar();
    }
    QImage picture() const
    {
        const QImage image = shown(bar());
        return orientation == Qt::Vertical ? image
                                           : image.transformed(QTransform(0, 1, 1, 0, 0, 0));
    }
    /// From where to where the slider is drawn.
    QRect slider() const { return extentOfOther(picture(), kMetalRecess); }
    void press(int at) const { pointer::press(bar(), along(QPoint(3, at))); }
    void release(int at) const { pointer::release(bar(), along(QPoint(3, at))); }
    void click(int at) const
    {
        press(at);
        release(at);
    }

    QWidget window;
    QScrollArea area{&window};
    Qt::Orientation orientation;
};

} // namespace

void tst_scrollbars::directions()
{
    QTest::addColumn<Qt::Orientation>("direction");
    QTest::newRow("upright") << Qt::Vertical;
    QTest::newRow("level") << Qt::Horizontal;
}

void tst_scrollbars::theSliderIsAsLongAsItsShareOfTheContent_data()
{
    QTest::addColumn<Qt::Orientation>("direction");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("content");
    QTest::addColumn<int>("slider");
    const auto row = [](const char *name, int length, int content, int slider) {
        QTest::addRow("%s, upright", name) << Qt::Vertical << length << content << slider;
        QTest::addRow("%s, level", name) << Qt::Horizontal << length << content << slider;
    };
    row("a little more", 100, 101, 99);
    row("twice as much", 100, 200, 50);
    row("four times", 100, 400, 25);
    row("the shortest", 100, 1000, 24);
    row("very much", 100, 1000000, 24);
    row("no room for the shortest", 20, 1000, 20);
}

void tst_scrollbars::theSliderIsAsLongAsItsShareOfTheContent()
{
    QFETCH(Qt::Orientation, direction);
    QFETCH(int, length);
    QFETCH(int, content);
    QFETCH(int, slider);
    const ScrollBarStage stage(direction, content, length);
    QCOMPARE(stage.slider(), QRect(0, 0, 7, slider));
}

void tst_scrollbars::theSliderStandsWhereTheContentDoes_data()
{
    QTest::addColumn<Qt::Orientation>("direction");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("start");
    // Of 400 points 300 are to be scrolled; the slider of 25 has 75 to go.
    for (const auto &[value, start] : {std::pair(0, 0), {4, 1}, {100, 25}, {150, 38}, {300, 75}}) {
        QTest::addRow("%d, upright", value) << Qt::Vertical << value << start;
        QTest::addRow("%d, level", value) << Qt::Horizontal << value << start;
    }
}

void tst_scrollbars::theSliderStandsWhereTheContentDoes()
{
    QFETCH(Qt::Orientation, direction);
    QFETCH(int, value);
    QFETCH(int, start);
    const ScrollBarStage stage(direction, 400);
    QCOMPARE(stage.bar().maximum(), 300);
    stage.bar().setValue(value);
    QCOMPARE(stage.slider(), QRect(0, start, 7, 25));
}

void tst_scrollbars::withNothingToScrollTheSliderFillsTheBar()
{
    ScrollBarStage stage(Qt::Vertical, 80);
    stage.area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QTRY_VERIFY(stage.bar().isVisible());
    QCOMPARE(stage.slider(), QRect(0, 0, 7, 100));
}

void tst_scrollbars::theWholeRestOfTheBarPages_data()
{
    QTest::addColumn<Qt::Orientation>("direction");
    QTest::addColumn<int>("at");
    QTest::addColumn<int>("value");
    // The slider stands from 37 to 62 of 100; a page is what shows. At the ends are no arrows,
    // which would go on by less.
    for (const auto &[at, value] :
         {std::pair(0, 50), {5, 50}, {36, 50}, {38, 150}, {61, 150}, {63, 250}, {99, 250}}) {
        QTest::addRow("%d, upright", at) << Qt::Vertical << at << value;
        QTest::addRow("%d, level", at) << Qt::Horizontal << at << value;
    }
}

void tst_scrollbars::theWholeRestOfTheBarPages()
{
    QFETCH(Qt::Orientation, direction);
    QFETCH(int, at);
    const ScrollBarStage stage(direction, 400);
    stage.bar().setValue(150);
    stage.click(at);
    QTEST(stage.bar().value(), "value");
}

void tst_scrollbars::theSliderIsDragged()
{
    QFETCH(Qt::Orientation, direction);
    const ScrollBarStage stage(direction, 400);
    stage.press(10);
    for (const auto &[to, value] : {std::pair(11, 4), {35, 100}, {85, 300}, {200, 300}, {10, 0}}) {
        pointer::move(stage.bar(), stage.along(QPoint(3, to)));
        QCOMPARE(stage.bar().value(), value);
    }
    stage.release(10);
}

void tst_scrollbars::theBarIsDrawnInTheSkinsColours()
{
    QFETCH(Qt::Orientation, direction);
    const ScrollBarStage stage(direction, 400);
    const QImage picture = stage.picture();
    QCOMPARE(picture.size(), QSize(7, 100));
    QCOMPARE(extentOf(picture, kMetalRecess), QRect(0, 0, 7, 100)); // around its corners too
    QVERIFY(extentOfOther(picture.copy(0, 25, 7, 75), kMetalRecess).isEmpty());
    QCOMPARE(extentOf(picture, kGoldMiddle), QRect(2, 2, 3, 21));
    const QColor edge = picture.pixelColor(0, 12);
    QVERIFY(edge.value() < 13 && edge.value() >= 7);
}

void tst_scrollbars::aSliderLightsUpUnderThePointerAndHeld()
{
    QFETCH(Qt::Orientation, direction);
    const ScrollBarStage stage(direction, 400);
    const auto isLit = [&] { return stage.picture().pixelColor(3, 12) == kGoldBright; };
    const auto moveTo = [&](int at) { pointer::move(stage.bar(), stage.along(QPoint(3, at))); };
    moveTo(90); // beside the slider
    QVERIFY(!isLit());
    moveTo(12);
    QVERIFY(isLit());
    moveTo(90);
    QVERIFY(!isLit());
    stage.press(12);
    pointer::move(stage.window, {2, 2}); // the slider at its start
    QVERIFY(isLit());
    pointer::release(stage.window, {2, 2});
}

void tst_scrollbars::theBarsShowWhenThereIsSomethingToScroll()
{
    const ScrollBarStage stage(Qt::Vertical, 100);
    QWidget &inside = *stage.area.widget();
    const auto visible = [&] {
        return std::pair(stage.area.verticalScrollBar()->isVisible(),
                         stage.area.horizontalScrollBar()->isVisible());
    };
    QCOMPARE(visible(), std::pair(false, false));
    inside.resize(60, 101);
    QTRY_COMPARE(visible(), std::pair(true, false));
    inside.resize(61, 100);
    QTRY_COMPARE(visible(), std::pair(false, true));
    inside.resize(60, 100);
    QTRY_COMPARE(visible(), std::pair(false, false));
}

void tst_scrollbars::theBarsTakeNoRoom()
{
    const ScrollBarStage stage(Qt::Vertical, 400);
    QTRY_VERIFY(stage.bar().isVisible());
    QCOMPARE(stage.area.viewport()->geometry(), QRect(0, 0, 60, 100));
    QCOMPARE(QRect(stage.bar().mapTo(&stage.area, QPoint()), stage.bar().size()),
             QRect(53, 0, 7, 100));
}

KYR_GUI_TEST(tst_scrollbars)
#include "tst_scrollbars.moc"
