#include "colorpicture.h"
#include "support/suite.h"

#include <set>

/// The picture that colours are picked from, at both resolutions: what it shows decides which
/// colours can be picked.
class tst_colorpicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itHasItsSize_data() { scales(); }
    void itHasItsSize();
    void itIsOpaque_data() { scales(); }
    void itIsOpaque();
    void everyPlainColourHasASwatch_data();
    void everyPlainColourHasASwatch();
    void bothResolutionsHaveTheSwatchesAtTheSamePoints_data() { swatchRows(); }
    void bothResolutionsHaveTheSwatchesAtTheSamePoints();
    void theGreysGoFromBlackToWhite_data() { scales(); }
    void theGreysGoFromBlackToWhite();
    void everyHueIsThere_data() { scales(); }
    void everyHueIsThere();
    void theMainHuesHaveTheirTints_data() { scales(); }
    void theMainHuesHaveTheirTints();
    void theMainHuesHaveTheirShades_data() { scales(); }
    void theMainHuesHaveTheirShades();

private:
    static void scales()
    {
        QTest::addColumn<int>("scale");
        QTest::newRow("1") << 1;
        QTest::newRow("2") << 2;
    }
};

namespace {

constexpr int kMainHues[] = {0, 60, 120, 180, 240, 300};

/// Each colour of the picture once.
std::vector<QColor> coloursOf(const QImage &image)
{
    std::set<QRgb> found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found.insert(image.pixel(x, y));
    }
    std::vector<QColor> colours;
    std::ranges::transform(found, std::back_inserter(colours), &QColor::fromRgba);
    return colours;
}

/// The side of the largest square of one colour.
int largestSquare(const QImage &image, const QColor &colour)
{
    int largest = 0;
    std::vector<int> above(static_cast<std::size_t>(image.width()) + 1);
    for (int y = 0; y < image.height(); ++y) {
        int aboveLeft = 0;
        for (int x = 0; x < image.width(); ++x) {
            int &left = above[static_cast<std::size_t>(x)];
            int &here = above[static_cast<std::size_t>(x) + 1];
            const int square =
                image.pixelColor(x, y) == colour ? 1 + std::min({left, here, aboveLeft}) : 0;
            aboveLeft = std::exchange(here, square);
            largest = std::max(largest, square);
        }
    }
    return largest;
}

int hueDistance(int hue, int other)
{
    const int way = std::abs(hue - other) % 360;
    return std::min(way, 360 - way);
}

/// How many of the colours of that hue, with a little tolerance, `level` tells apart.
template <class Level>
std::size_t levelsOf(const std::vector<QColor> &colours, int hue, Level level)
{
    constexpr int tolerance = 2;
    std::set<int> levels;
    for (const QColor &colour : colours) {
        if (colour.saturation() > 0 && hueDistance(colour.hue(), hue) <= tolerance)
            levels.insert(level(colour));
    }
    levels.erase(0);
    return levels.size();
}

} // namespace

void tst_colorpicture::itHasItsSize()
{
    QFETCH(int, scale);
    QCOMPARE(drawnColours(scale).size(), QSize(118, 96) * scale);
}

void tst_colorpicture::itIsOpaque()
{
    QFETCH(int, scale);
    for (const QColor &colour : coloursOf(drawnColours(scale)))
        QCOMPARE(colour.alpha(), 255);
}

void tst_colorpicture::everyPlainColourHasASwatch_data()
{
    QTest::addColumn<QColor>("colour");
    for (const KnownSwatch &known : kKnownSwatches)
        QTest::newRow(known.name) << known.colour;
}

void tst_colorpicture::everyPlainColourHasASwatch()
{
    QFETCH(QColor, colour);
    for (const int scale : {1, 2})
        QVERIFY(largestSquare(drawnColours(scale), colour) >= 10 * scale);
}

void tst_colorpicture::bothResolutionsHaveTheSwatchesAtTheSamePoints()
{
    QFETCH(const KnownSwatch *, known);
    for (const int scale : {1, 2}) {
        const QRect square(known->point - QPoint(5, 5), QSize(10, 10));
        const QRect pixels(square.topLeft() * scale, square.size() * scale);
        const QImage swatch = drawnColours(scale).copy(pixels);
        QCOMPARE(coloursOf(swatch), std::vector{known->colour});
    }
}

void tst_colorpicture::theGreysGoFromBlackToWhite()
{
    QFETCH(int, scale);
    std::set<int> levels;
    for (const QColor &colour : coloursOf(drawnColours(scale))) {
        if (colour.red() == colour.green() && colour.green() == colour.blue())
            levels.insert(colour.red());
    }
    QVERIFY(levels.size() >= 60);
    QCOMPARE(*levels.begin(), 0);
    QCOMPARE(*levels.rbegin(), 255);
    // Without a jump.
    for (auto level = std::next(levels.begin()); level != levels.end(); ++level)
        QVERIFY(*level - *std::prev(level) <= 5);
}

void tst_colorpicture::everyHueIsThere()
{
    QFETCH(int, scale);
    std::vector<QColor> full = coloursOf(drawnColours(scale));
    std::erase_if(full, [](const QColor &colour) {
        return colour.saturation() < 255 || colour.value() < 255;
    });
    for (int hue = 0; hue < 360; hue += 5) {
        const bool met = std::ranges::any_of(
            full, [&](const QColor &colour) { return hueDistance(colour.hue(), hue) <= 2; });
        QVERIFY2(met, qPrintable(QString::number(hue)));
    }
}

void tst_colorpicture::theMainHuesHaveTheirTints()
{
    QFETCH(int, scale);
    std::vector<QColor> tints = coloursOf(drawnColours(scale));
    std::erase_if(tints, [](const QColor &colour) { return colour.value() < 255; });
    for (const int hue : kMainHues)
        QVERIFY(levelsOf(tints, hue, [](const QColor &tint) { return tint.saturation(); }) >= 20);
}

void tst_colorpicture::theMainHuesHaveTheirShades()
{
    QFETCH(int, scale);
    std::vector<QColor> shades = coloursOf(drawnColours(scale));
    std::erase_if(shades, [](const QColor &colour) { return colour.saturation() < 250; });
    for (const int hue : kMainHues)
        QVERIFY(levelsOf(shades, hue, [](const QColor &shade) { return shade.value(); }) >= 20);
}

KYR_GUI_TEST(tst_colorpicture)
#include "tst_colorpicture.moc"
