#include "readable.h"
#include "support/suite.h"

/// Whether texts that cannot be read are found.
class tst_textcontrast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreRecordedAndNotDrawn();
    void everythingElseIsDrawn();
    void aTextIsHeldAgainstWhatLiesBelowIt_data();
    void aTextIsHeldAgainstWhatLiesBelowIt();
    void onlyWhatShowsCounts();
    void contrastGoesFromOneToTwentyOne();
};

namespace {

/// Writes "Ink" on a ground whose right half may have another colour.
class Written : public QWidget
{
public:
    Written(const QColor &ground, const QColor &right, const QColor &ink)
        : m_ground(ground), m_right(right), m_ink(ink)
    {
        resize(60, 20);
    }

    QRect place{0, 0, 60, 20};

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), m_ground);
        painter.fillRect(QRect(30, 0, 30, 20), m_right);
        painter.setPen(m_ink);
        painter.drawText(place, Qt::AlignCenter, QStringLiteral("Ink"));
    }

private:
    QColor m_ground;
    QColor m_right;
    QColor m_ink;
};

int scale()
{
    return qRound(qApp->devicePixelRatio());
}

/// Where the only text lies, in pixels.
QRect inkOf(const TextRecorder &recorder)
{
    return recorder.texts().front().path.boundingRect().toAlignedRect();
}

QRect inPixels(QRect points)
{
    return {points.topLeft() * scale(), points.size() * scale()};
}

} // namespace

void tst_textcontrast::textsAreRecordedAndNotDrawn()
{
    Written written(Qt::black, Qt::black, Qt::red);
    const TextRecorder recorder(written);
    QCOMPARE(textsOf(recorder), QStringLiteral("Ink"));
    QCOMPARE(recorder.texts().front().colour, QColor(Qt::red));
    QVERIFY(inPixels({0, 0, 60, 20}).contains(inkOf(recorder)));
    QVERIFY(inkOf(recorder).contains(inPixels({30, 10, 1, 1})));
    QImage black(QSize(60, 20) * scale(), QImage::Format_ARGB32_Premultiplied);
    black.fill(Qt::black);
    QCOMPARE(recorder.picture(), black);
}

void tst_textcontrast::everythingElseIsDrawn()
{
    QWidget window;
    window.resize(100, 50);
    Written written(Qt::blue, Qt::green, Qt::red);
    written.setParent(&window);
    written.move(20, 10);
    const TextRecorder recorder(window);
    const auto colourAt = [&](QPoint point) {
        return recorder.picture().pixelColor(point * scale());
    };
    QCOMPARE(colourAt({21, 11}), QColor(Qt::blue));
    QCOMPARE(colourAt({78, 28}), QColor(Qt::green));
    QCOMPARE(colourAt({1, 1}), window.palette().color(QPalette::Window));
    QVERIFY(inPixels({20, 10, 60, 20}).contains(inkOf(recorder)));
}

void tst_textcontrast::aTextIsHeldAgainstWhatLiesBelowIt_data()
{
    QTest::addColumn<QColor>("left");
    QTest::addColumn<QColor>("right");
    QTest::addColumn<QColor>("ink");
    QTest::addColumn<bool>("isEnough");
    const QColor dark(30, 26, 22);
    QTest::newRow("light") << dark << dark << QColor(255, 180, 0) << true;
    QTest::newRow("dark") << dark << dark << QColor(90, 80, 70) << false;
    QTest::newRow("see-through") << dark << dark << QColor(255, 180, 0, 80) << false;
    QTest::newRow("dark on light")
        << QColor(Qt::white) << QColor(Qt::white) << QColor(Qt::black) << true;
    QTest::newRow("half on light") << dark << QColor(Qt::white) << QColor(255, 180, 0) << false;
}

void tst_textcontrast::aTextIsHeldAgainstWhatLiesBelowIt()
{
    QFETCH(const QColor, left);
    QFETCH(const QColor, right);
    QFETCH(const QColor, ink);
    Written written(left, right, ink);
    QTEST(faintTexts(TextRecorder(written)).isEmpty(), "isEnough");
}

void tst_textcontrast::onlyWhatShowsCounts()
{
    QWidget window;
    window.resize(30, 20);
    Written written(Qt::black, Qt::black, QColor(20, 20, 20));
    written.setParent(&window);
    QCOMPARE(faintTexts(TextRecorder(window)).size(), 1);
    written.move(25, 0); // its text begins outside the window
    QVERIFY(faintTexts(TextRecorder(window)).isEmpty());
}

void tst_textcontrast::contrastGoesFromOneToTwentyOne()
{
    QCOMPARE(contrast(luminance(qRgb(255, 255, 255)), luminance(qRgb(0, 0, 0))), 21.0);
    QCOMPARE(contrast(luminance(qRgb(9, 9, 9)), luminance(qRgb(9, 9, 9))), 1.0);
    QVERIFY(std::abs(contrast(luminance(qRgb(119, 119, 119)), 1) - 4.48) < 0.01);
}

KYR_GUI_TEST(tst_textcontrast)
#include "tst_textcontrast.moc"
