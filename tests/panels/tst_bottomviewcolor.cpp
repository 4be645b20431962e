#include "colorpicture.h"
#include "lightingstage.h"
#include "mainview/fullsettings.h"
#include "support/paintwatch.h"
#include "support/suite.h"

/// Choosing a colour on the bottom bar from its picture.
class tst_bottomviewcolor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPickIsStoredAndShown_data() { swatchRows(); }
    void aPickIsStoredAndShown();
    void picksAllOverThePictureAreStored();
    void nothingElseChanges();
    void theColourThatIsSetCountsAsAChange();
    void aPickClosesThePicture();
    void theProfilesLineIsDrawnInTheColour();
    void aReleaseBesideThePictureLeavesItOpen();
    void aDoubleClickOnTheButtonPicksNothing();
    void theKeyboardPicksToo();
    void aPickGoesIntoTheProfileShownByThen();
    void applyWritesTheColourAndTells();
    void theButtonShowsTheColourInItsSwatchOnly();
    void aColourOutsideItsRangeIsTheBrightestAndKept();
};

namespace {

/// The program at its fourth profile, whose bar is open.
struct ColorStage : LightingStage
{
    ColorStage()
    {
        makeRoomBelow();
        program.reportProfile(4);
        toggleBottom();
    }

    void pick(QPoint at) const { pointer::click(openPicture(), at); }
    static ProfileInfo &fourth() { return m_Config.PROFILE[3]; }
    /// What the record holds.
    static QColor stored(const ProfileInfo &profile = fourth())
    {
        return {static_cast<int>(profile.LED_COLOR_R), static_cast<int>(profile.LED_COLOR_G),
                static_cast<int>(profile.LED_COLOR_B)};
    }
};

const QColor kFactoryColour(255, 60, 0);

/// The colour lines of the third, fourth and fifth profile in the main view.
const QRect kThirdLine(247, 133, 38, 5);
const QRect kFourthLine(286, 133, 38, 5);
const QRect kFifthLine(326, 133, 38, 5);

/// Whether a line is all of one colour.
bool isAll(const QImage &view, QRect line, const QColor &colour)
{
    return extentOfOther(view.copy(line), colour).isEmpty();
}

} // namespace

void tst_bottomviewcolor::aPickIsStoredAndShown()
{
    QFETCH(const KnownSwatch *, known);
    const ColorStage stage;
    QCOMPARE(stage.swatch(), kFactoryColour);
    stage.pick(known->point);
    QCOMPARE(ColorStage::stored(), known->colour);
    QCOMPARE(stage.swatch(), known->colour);
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_bottomviewcolor::picksAllOverThePictureAreStored()
{
    const ColorStage stage;
    const QImage drawn = drawnColours();
    for (int y = 0; y < drawn.height(); y += 9) {
        for (int x = 1; x < drawn.width(); x += 13) {
            stage.pick({x, y});
            QCOMPARE(ColorStage::stored(), drawn.pixelColor(x, y));
            QCOMPARE(stage.swatch(), drawn.pixelColor(x, y));
            QTRY_VERIFY(openPopups().empty());
        }
    }
}

void tst_bottomviewcolor::nothingElseChanges()
{
    const ColorStage stage;
    const Record expected = copyOf();
    setColour(expected->PROFILE[3], drawnColours().pixelColor(40, 20));
    stage.pick({40, 20});
    QTRY_VERIFY(openPopups().empty());
    QVERIFY(isRecord(*expected));
}

void tst_bottomviewcolor::theColourThatIsSetCountsAsAChange()
{
    const ColorStage stage;
    QVERIFY(!stage.program.applyIsEnabled());
    stage.pick({18, 86});
    QCOMPARE(ColorStage::stored(), kFactoryColour);
    QVERIFY(stage.program.applyIsEnabled());
}

void tst_bottomviewcolor::aPickClosesThePicture()
{
    const ColorStage stage;
    stage.pick({40, 20});
    QTRY_VERIFY(openPopups().empty());
    QCOMPARE(stage.program.log.lines, std::vector<std::string>{"CloseListBox"});
    QTRY_VERIFY(stage.program.window().isActiveWindow());
}

void tst_bottomviewcolor::theProfilesLineIsDrawnInTheColour()
{
    const ColorStage stage;
    QWidget &view = stage.program.view();
    QVERIFY(isAll(shown(view), kFourthLine, kFactoryColour));
    const PaintWatch watch(view);
    const pngcolorlist &picture = stage.openPicture();
    QVERIFY(!watch.hasPainted(kFourthLine.center()));
    pointer::click(picture, {64, 86});
    QTRY_VERIFY(watch.hasPainted(kFourthLine.center()));
    QVERIFY(isAll(shown(view), kThirdLine, kFactoryColour));
    QVERIFY(isAll(shown(view), kFourthLine, Qt::blue));
    QVERIFY(isAll(shown(view), kFifthLine, kFactoryColour));
}

void tst_bottomviewcolor::aReleaseBesideThePictureLeavesItOpen()
{
    const ColorStage stage;
    const pngcolorlist &picture = stage.openPicture();
    pointer::press(picture, {64, 86});
    pointer::release(picture, {64, 96});
    QCoreApplication::processEvents();
    QCOMPARE(&opened(kColorLight), &picture);
    QCOMPARE(ColorStage::stored(), kFactoryColour);
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_bottomviewcolor::aDoubleClickOnTheButtonPicksNothing()
{
    const ColorStage stage;
    const colorbutton &button = stage.colorButton();
    // On the edge that the picture covers.
    const QPoint at(60, button.height() - 1);
    clickBetween(button, at);
    const QWidget &picture = opened(kColorLight);
    const QPoint there = picture.mapFromGlobal(button.mapToGlobal(at));
    QVERIFY(picture.rect().contains(there));
    clickBetween(picture, there, 1);
    QCOMPARE(&opened(kColorLight), &picture);
    QVERIFY(!stage.program.applyIsEnabled());
    clickBetween(picture, there);
    QCOMPARE(ColorStage::stored(), drawnColours().pixelColor(there));
}

void tst_bottomviewcolor::theKeyboardPicksToo()
{
    const ColorStage stage;
    keyboard::tabTo(stage.colorButton());
    keyboard::press(Qt::Key_Space);
    opened(kColorLight);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Up, Qt::Key_Up, Qt::Key_Return})
        keyboard::press(key);
    const QColor expected = drawnColours().pixelColor(63, 40);
    QCOMPARE(ColorStage::stored(), expected);
    QCOMPARE(stage.swatch(), expected);
    QVERIFY(stage.program.applyIsEnabled());
    QTRY_VERIFY(openPopups().empty());
    QTRY_VERIFY(stage.program.window().isActiveWindow());
}

void tst_bottomviewcolor::aPickGoesIntoTheProfileShownByThen()
{
    ColorStage stage;
    const pngcolorlist &picture = stage.openPicture();
    stage.program.reportProfile(5);
    pointer::click(picture, {64, 86});
    QCOMPARE(ColorStage::stored(), kFactoryColour);
    QCOMPARE(ColorStage::stored(m_Config.PROFILE[4]), QColor(Qt::blue));
    QVERIFY(isAll(shown(stage.program.view()), kFifthLine, Qt::blue));
}

void tst_bottomviewcolor::applyWritesTheColourAndTells()
{
    const ColorStage stage;
    stage.pick({64, 86});
    QTRY_VERIFY(openPopups().empty());
    QVERIFY(stage.program.requestsSinceStart().empty());
    QCOMPARE(stage.program.settings.bytes(), QByteArray());
    pointer::click(stage.program.button("ButtonApply"));
    QVERIFY(isInFile(stage.program.settings.bytes(), m_Config));
    QCOMPARE(ColorStage::stored(), QColor(Qt::blue));
    QCOMPARE(stage.program.requestsSinceStart(), std::vector{takeSettings()});
}

void tst_bottomviewcolor::theButtonShowsTheColourInItsSwatchOnly()
{
    const ColorStage stage;
    stage.pick({30, 86});
    QTRY_VERIFY(openPopups().empty());
    stage.pointAway(kBottomBar);
    const QImage yellow = shown(stage.content());
    QTRY_VERIFY((stage.pick({64, 86}), ColorStage::stored() == QColor(Qt::blue)));
    QTRY_VERIFY(openPopups().empty());
    stage.pointAway(kBottomBar);
    QImage blue = shown(stage.content());
    const QRect swatch = UpHost(101).down(UpRect{24, 29, 94, 20});
    QVERIFY(isAll(yellow, swatch, Qt::yellow));
    QVERIFY(isAll(blue, swatch, Qt::blue));
    QPainter(&blue).fillRect(swatch, Qt::yellow);
    QCOMPARE(blue, yellow);
}

void tst_bottomviewcolor::aColourOutsideItsRangeIsTheBrightestAndKept()
{
    LightingStage stage;
    ProfileInfo &profile = m_Config.PROFILE[0];
    profile.LED_COLOR_R = 256;
    profile.LED_COLOR_G = 10;
    profile.LED_COLOR_B = 4294967295U;
    stage.restart();
    stage.toggleBottom();
    QCOMPARE(stage.swatch(), QColor(255, 10, 255));
    QCOMPARE(profile.LED_COLOR_R, 256U);
    QCOMPARE(profile.LED_COLOR_B, 4294967295U);
    QVERIFY(!stage.program.applyIsEnabled());
}

KYR_GUI_TEST(tst_bottomviewcolor)
#include "tst_bottomviewcolor.moc"
