#include "panels/colorbutton.h"
#include "support/paintwatch.h"
#include "support/pictures.h"
#include "support/pointer.h"
#include "support/receiver.h"
#include "support/suite.h"

#include <functional>

/// The button that shows a colour.
class tst_colorbutton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itActsWhenItIsPressed();
    void itActsAtEveryPress();
    void theSpaceKeyPressesIt();
    void otherButtonsDoNotPressIt_data();
    void otherButtonsDoNotPressIt();
    void withoutAnActionAPressDoesNothing();
    void itKeepsItsTag();
    void atRestItShowsItsPicture();
    void underThePointerItShowsItsOther();
    void aNewPictureIsShownAtOnce();
    void whatIsNewIsPaintedByItself();
    void theSwatchLiesOverThePicture_data();
    void theSwatchLiesOverThePicture();
    void aLevelOutsideItsRangeIsTheBrightest_data();
    void aLevelOutsideItsRangeIsTheBrightest();
    void theColourIsToldToAssistiveTechnology();
    void theFrameShowsToThoseWhoComeByKey();
};

/// A shown window with a colour button on it, light grey at rest, dark grey under the pointer.
struct ColorButtonStage
{
    ColorButtonStage()
    {
        window.resize(200, 100);
        button.setNormalImage(plainPicture(button.size(), Qt::lightGray));
        button.setHoverImage(plainPicture(button.size(), Qt::darkGray));
        button.setFillColor(10, 20, 30);
        button.setLeftDownAction({&presses, &Receiver<colorbutton>::receive});
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
        pointAway();
    }

    void pointAway() { pointer::move(window, {190, 5}); }
    void point() { pointer::move(button, {60, 15}); }
    QRect swatch() { return extentOf(shown(button), QColor(10, 20, 30)); }
    /// The colour around the swatch; none when that is not all of one.
    QColor ground()
    {
        QImage image = shown(button);
        const QColor colour = image.pixelColor(0, 0);
        QPainter(&image).fillRect(QRect(4, 6, 94, 20), colour);
        return extentOfOther(image, colour).isEmpty() ? colour : QColor();
    }

    View window;
    colorbutton button{&window, {20, 30, 122, 29}};
    Receiver<colorbutton> presses;
};

void tst_colorbutton::itActsWhenItIsPressed()
{
    ColorButtonStage stage;
    pointer::press(stage.button, {60, 15});
    QCOMPARE(stage.presses.senders, std::vector{&stage.button});
    QVERIFY(stage.button.isDown());
    pointer::release(stage.button, {60, 15});
    QCOMPARE(stage.presses.count(), std::size_t{1});
    QVERIFY(!stage.button.isDown());
}

void tst_colorbutton::itActsAtEveryPress()
{
    const ColorButtonStage stage;
    pointer::press(stage.button, {0, 0});
    pointer::release(stage.button, {-5, -5});
    QCOMPARE(stage.presses.count(), std::size_t{1});
    pointer::click(stage.button, {121, 28});
    pointer::click(stage.button, {121, 28});
    QCOMPARE(stage.presses.count(), std::size_t{3});
}

void tst_colorbutton::theSpaceKeyPressesIt()
{
    ColorButtonStage stage;
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Tab);
    QVERIFY(stage.button.hasFocus());
    QTest::keyPress(stage.window.windowHandle(), Qt::Key_Space);
    QCOMPARE(stage.presses.senders, std::vector{&stage.button});
    QTest::keyRelease(stage.window.windowHandle(), Qt::Key_Space);
    QCOMPARE(stage.presses.count(), std::size_t{1});
}

void tst_colorbutton::otherButtonsDoNotPressIt_data()
{
    QTest::addColumn<Qt::MouseButton>("mouseButton");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_colorbutton::otherButtonsDoNotPressIt()
{
    QFETCH(Qt::MouseButton, mouseButton);
    const ColorButtonStage stage;
    pointer::click(stage.button, mouseButton);
    QCOMPARE(stage.presses.count(), std::size_t{0});
}

void tst_colorbutton::withoutAnActionAPressDoesNothing()
{
    ColorButtonStage stage;
    stage.button.setLeftDownAction({});
    pointer::click(stage.button);
    QCOMPARE(stage.presses.count(), std::size_t{0});
}

void tst_colorbutton::itKeepsItsTag()
{
    ColorButtonStage stage;
    QCOMPARE(stage.button.tag(), 0);
    stage.button.setTag(4101);
    QCOMPARE(stage.button.tag(), 4101);
}

void tst_colorbutton::atRestItShowsItsPicture()
{
    ColorButtonStage stage;
    QCOMPARE(stage.ground(), QColor(Qt::lightGray));
}

void tst_colorbutton::underThePointerItShowsItsOther()
{
    ColorButtonStage stage;
    for (int round = 0; round < 2; ++round) {
        stage.point();
        QCOMPARE(stage.ground(), QColor(Qt::darkGray));
        pointer::press(stage.button, {60, 15});
        QCOMPARE(stage.ground(), QColor(Qt::darkGray));
        pointer::release(stage.button, {60, 15});
        stage.pointAway();
        QCOMPARE(stage.ground(), QColor(Qt::lightGray));
    }
}

void tst_colorbutton::aNewPictureIsShownAtOnce()
{
    ColorButtonStage stage;
    stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::cyan));
    QCOMPARE(stage.ground(), QColor(Qt::cyan));
    stage.point();
    stage.button.setHoverImage(plainPicture(stage.button.size(), Qt::magenta));
    QCOMPARE(stage.ground(), QColor(Qt::magenta));
}

void tst_colorbutton::whatIsNewIsPaintedByItself()
{
    ColorButtonStage stage;
    const SkinImage picture = plainPicture(stage.button.size(), Qt::cyan);
    const std::vector<std::function<void()>> changes = {
        [&] { stage.button.setFillColor(90, 80, 70); },
        [&] { stage.button.setNormalImage(picture); },
        [&] { stage.button.setHoverImage(picture); },
        [&] { stage.point(); },
        [&] { stage.pointAway(); },
    };
    for (const auto &change : changes) {
        QCoreApplication::processEvents();
        const PaintWatch watch(stage.button);
        change();
        QTRY_VERIFY(watch.hasPainted({60, 15}));
    }
}

void tst_colorbutton::theSwatchLiesOverThePicture_data()
{
    QTest::addColumn<bool>("hover");
    QTest::newRow("at rest") << false;
    QTest::newRow("under the pointer") << true;
}

void tst_colorbutton::theSwatchLiesOverThePicture()
{
    QFETCH(bool, hover);
    ColorButtonStage stage;
    if (hover)
        stage.point();
    const QRect place = UpHost(29).down(UpRect{4, 3, 122 - 28, 29 - 9});
    QCOMPARE(stage.swatch(), place);
    QVERIFY(extentOfOther(shown(stage.button).copy(place), QColor(10, 20, 30)).isEmpty());
    // In a button of another size too.
    stage.button.setFrame({20, 30, 60, 40});
    QCOMPARE(stage.swatch(), UpHost(40).down(UpRect{4, 3, 32, 31}));
}

void tst_colorbutton::aLevelOutsideItsRangeIsTheBrightest_data()
{
    QTest::addColumn<std::uint32_t>("level");
    for (const std::uint32_t level : {256U, 300U, 2147483648U, 4294967295U})
        QTest::addRow("%u", level) << level;
}

void tst_colorbutton::aLevelOutsideItsRangeIsTheBrightest()
{
    QFETCH(std::uint32_t, level);
    ColorButtonStage stage;
    const QPoint middle(51, 16);
    stage.button.setFillColor(level, 20, 30);
    QCOMPARE(shownAt(stage.button, middle), QColor(255, 20, 30));
    stage.button.setFillColor(10, level, 30);
    QCOMPARE(shownAt(stage.button, middle), QColor(10, 255, 30));
    stage.button.setFillColor(10, 20, level);
    QCOMPARE(shownAt(stage.button, middle), QColor(10, 20, 255));
}

void tst_colorbutton::theColourIsToldToAssistiveTechnology()
{
    ColorButtonStage stage;
    stage.button.setFillColor(255, 60, 0);
    QCOMPARE(stage.button.accessibleDescription(), QStringLiteral("red 255, green 60, blue 0"));
}

void tst_colorbutton::theFrameShowsToThoseWhoComeByKey()
{
    ColorButtonStage stage;
    stage.button.clearFocus(); // the window gave it the keyboard when it came up
    pointer::click(stage.button);
    QVERIFY(!stage.button.hasFocus());
    QCOMPARE(extentOf(shown(stage.button), kGold), QRect());
    QTest::keyClick(stage.window.windowHandle(), Qt::Key_Tab);
    QCOMPARE(extentOf(shown(stage.button), kGold), stage.button.rect());
    QCOMPARE(stage.swatch(), QRect(4, 6, 94, 20));
}

KYR_GUI_TEST(tst_colorbutton)
#include "tst_colorbutton.moc"
