#include "levelstage.h"
#include "support/lettering.h"
#include "support/pictures.h"
#include "support/screen.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// How the open left bar is drawn.
class tst_leftviewlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theBarIsItsPicturesAndItsTexts_data();
    void theBarIsItsPicturesAndItsTexts();
    void everyTextFitsItsPlace_data() { labelRows(); }
    void everyTextFitsItsPlace();
    void everyTextIsGoldOnItsPlace_data() { labelRows(); }
    void everyTextIsGoldOnItsPlace();
    void theCpiButtonLightsUpUnderThePointer();
    void theCpiButtonShowsWhenItIsPressed();
    void theCpiCaptionStandsOnItsButton();
    void aMovedSliderIsDrawnAnew_data() { levelRows(); }
    void aMovedSliderIsDrawnAnew();

private:
    static void labelRows();
};

namespace {

constexpr int kBarHeight = 452;
constexpr int kBarLabelSize = 11;

/// What is written beside a control, as it is to be.
struct KnownLabel
{
    const char *text = "";
    UpRect place;
};

constexpr KnownLabel kKnownLabels[] = {
    {"CPI Value:", {25, 360, 70, 20}},
    {"Double-Click Speed:", {30, 320, 150, 15}},
    {"Scroll Speed:", {30, 280, 150, 15}},
    {"Pointer Speed:", {25, 240, 150, 15}},
    {"Advanced Sensitivity:", {25, 200, 150, 15}},
    {"X-Axis:", {65, 180, 40, 15}},
    {"Y-Axis:", {125, 180, 40, 15}},
};

QRect inPicture(UpRect place)
{
    return UpHost(kBarHeight).down(place);
}

QImage plain(const QPixmap &picture)
{
    return picture.toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The part of a slider that is lit at a level, in the bar.
QRect litPart(const KnownLevel &known, int level)
{
    const int lit = std::min(known.length(), known.length() * level / 9);
    UpRect part = known.place;
    (known.isUpright() ? part.height : part.width) = lit;
    return inPicture(part);
}

void write(QPainter &painter, const char *text, UpRect place, int size)
{
    painter.setPen(kGold);
    writeLine(painter, QLatin1String(text), inPicture(place), size);
}

/// The bar at rest with all sliders at a level, without a CPI step.
QImage drawnBar(int level)
{
    const QPixmap dark = skin("leftBar");
    const QPixmap lit = skin("leftbarO");
    QPixmap bar = dark;
    QPainter painter(&bar);
    write(painter, "Mouse Properties", {70, 430, 130, 20}, 12);
    for (const KnownLabel &label : kKnownLabels)
        write(painter, label.text, label.place, kBarLabelSize);
    painter.drawPixmap(inPicture(kCpiPlace), dark, inPicture(kCpiPlace));
    for (const KnownLevel &known : kKnownLevels) {
        const QRect whole = inPicture(known.place);
        const QRect part = litPart(known, level);
        painter.drawPixmap(whole, dark, whole);
        painter.drawPixmap(part, lit, part);
    }
    painter.drawPixmap(inPicture(kLeftBar.toggle), skin(kLeftBar.openFace));
    painter.end();
    return plain(bar);
}

/// The same bar as an empty screen shows it through its cut corners.
QImage drawnOnScreen(int level)
{
    const QImage bar = drawnBar(level);
    QImage screen(bar.size(), bar.format());
    screen.fill(Qt::black);
    QPainter(&screen).drawImage(QPoint(), bar);
    return screen;
}

/// The bar opened with all levels at a number from the file and without a CPI step, and the pointer
/// off its controls.
struct LooksStage : LevelStage
{
    explicit LooksStage(std::uint32_t level = 5)
    {
        putSensor(CurrentProfile(), {6, level, level, level, level, level});
        toggleLeft();
        pointAway(kLeftBar);
    }

    QImage picture() const { return shown(content(kLeftBar)); }
    QImage cpiPicture() const { return picture().copy(inPicture(kCpiPlace)); }
};

QImage cpiFace(const char *picture)
{
    // The bar stands behind the button.
    QPixmap bar = skin("leftBar");
    QPainter painter(&bar);
    painter.drawPixmap(inPicture(kCpiPlace), skin(picture), inPicture(kCpiPlace));
    painter.end();
    return plain(bar).copy(inPicture(kCpiPlace));
}

/// The smallest rectangle around all that is different in two pictures of a size.
QRect extentOfChange(const QImage &before, const QImage &after)
{
    QRect extent;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            if (before.pixel(x, y) != after.pixel(x, y))
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

/// Whether the brightest of a picture is nearly gold, as far as smooth letters reach it.
bool isGolden(const QImage &image)
{
    const QColor colour = brightest(image);
    return colour.red() > 200 && std::abs(colour.green() - colour.red() * 180 / 255) < 10 &&
           colour.blue() < 20;
}

} // namespace

void tst_leftviewlooks::theBarIsItsPicturesAndItsTexts_data()
{
    QTest::addColumn<std::uint32_t>("level");
    QTest::addColumn<int>("drawn");
    const auto row = [](std::uint32_t level, int drawn) {
        QTest::addRow("%u", level) << level << drawn;
    };
    for (int level = 1; level <= 10; ++level)
        row(static_cast<std::uint32_t>(level), level);
    // Nothing is drawn outside a slider whatever the file says.
    row(0, 1);
    row(11, 10);
    row(2147483647U, 10);
    row(4294967295U, 1);
}

void tst_leftviewlooks::theBarIsItsPicturesAndItsTexts()
{
    QFETCH(std::uint32_t, level);
    QFETCH(int, drawn);
    const LooksStage stage(level);
    QCOMPARE(extentOfChange(drawnBar(drawn), stage.picture()), QRect());
}

void tst_leftviewlooks::labelRows()
{
    QTest::addColumn<const KnownLabel *>("known");
    for (const KnownLabel &known : kKnownLabels)
        QTest::newRow(known.text) << &known;
}

void tst_leftviewlooks::everyTextFitsItsPlace()
{
    QFETCH(const KnownLabel *, known);
    const QFontMetrics metrics(systemFont(kBarLabelSize));
    QVERIFY(metrics.horizontalAdvance(QLatin1String(known->text)) <= known->place.width);
    QVERIFY(metrics.height() <= known->place.height);
}

void tst_leftviewlooks::everyTextIsGoldOnItsPlace()
{
    QFETCH(const KnownLabel *, known);
    const LooksStage stage;
    const QRect place = inPicture(known->place);
    const QRect text =
        extentOfChange(plain(skin("leftBar")).copy(place), stage.picture().copy(place));
    QVERIFY(text.width() > known->place.width / 4);
    QVERIFY(text.left() < 4); // it begins at the left
    QVERIFY(isGolden(stage.picture().copy(place)));
}

void tst_leftviewlooks::theCpiButtonLightsUpUnderThePointer()
{
    const LooksStage stage;
    QCOMPARE(stage.cpiPicture(), cpiFace("leftBar"));
    pointer::move(stage.cpi(), {50, 13});
    QCOMPARE(stage.cpiPicture(), cpiFace("leftbarO"));
    QVERIFY(stage.cpiPicture() != cpiFace("leftBar"));
    stage.pointAway(kLeftBar);
    QCOMPARE(stage.cpiPicture(), cpiFace("leftBar"));
}

void tst_leftviewlooks::theCpiButtonShowsWhenItIsPressed()
{
    const LooksStage stage;
    pointer::press(stage.cpi(), {50, 13});
    QCOMPARE(stage.cpiPicture(), cpiFace("leftbarD"));
    QVERIFY(stage.cpiPicture() != cpiFace("leftbarO"));
    pointer::release(stage.cpi(), {-9, 13});
    QVERIFY(openLists().empty());
}

void tst_leftviewlooks::theCpiCaptionStandsOnItsButton()
{
    LooksStage stage;
    const QImage before = stage.picture();
    for (const std::uint32_t code : {0U, 1U, 2U, 3U, 4U, 5U}) {
        CurrentProfile().DPI_VALUE = code;
        stage.program.reportProfile(1);
        const QRect caption = extentOfChange(before, stage.picture());
        QVERIFY(!caption.isEmpty());
        // Clear of the arrow at the button's end.
        QVERIFY(inPicture(kCpiPlace).adjusted(8, 3, -25, -3).contains(caption));
        QVERIFY(isGolden(stage.picture().copy(caption)));
    }
}

void tst_leftviewlooks::aMovedSliderIsDrawnAnew()
{
    QFETCH(const KnownLevel *, known);
    const LooksStage stage;
    QCOMPARE(extentOfChange(drawnOnScreen(5), onScreen(stage.left())), QRect());
    QImage expected = drawnOnScreen(5);
    const QRect place = inPicture(known->place);
    QPainter(&expected).drawImage(place, drawnOnScreen(8), place);
    pointer::click(stage.slider(*known), known->pointOf(8));
    stage.pointAway(kLeftBar);
    QCOMPARE(extentOfChange(expected, onScreen(stage.left())), QRect());
}

KYR_GUI_TEST(tst_leftviewlooks)
#include "tst_leftviewlooks.moc"
