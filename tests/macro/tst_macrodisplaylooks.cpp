#include "displaypictures.h"
#include "displaystage.h"
#include "support/pictures.h"
#include "support/screen.h"
#include "support/suite.h"

#include <utility>

using keystroke::kA;

/// How the recording view looks.
class tst_macrodisplaylooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyListIsABlankView();
    void eventsAreDrawnAsNamesAndArrows_data();
    void eventsAreDrawnAsNamesAndArrows();
    void arrowsAreDrawnForTheirCells();
    void arrowsFillTheirCells_data();
    void arrowsFillTheirCells();
    void theFirstLineIsAtTheTopLeft();
    void aViewTooSmallIsFilledAndNotLeft();
    void aNewEventIsDrawn();
    void aPartDrawnAgainLooksAsBefore();
};

namespace {

constexpr QColor kGreyGround(170, 170, 170);

QImage onScreenOf(const DisplayStage &stage)
{
    return onScreen(stage.window).copy(stage.display.geometry());
}

} // namespace

void tst_macrodisplaylooks::anEmptyListIsABlankView()
{
    DisplayStage stage;
    QVERIFY(extentOfOther(shown(stage.display), Qt::white).isEmpty());
    stage.display.enablewindow(false);
    QVERIFY(extentOfOther(shown(stage.display), kGreyGround).isEmpty());
}

void tst_macrodisplaylooks::eventsAreDrawnAsNamesAndArrows_data()
{
    QTest::addColumn<Events>("events");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("ground");
    const Events heldA{{0, 1, 2}, {0, 2, 0}};
    const Events nameless{{111, 1, 0}, {111, 2, 0}};
    QTest::newRow("a key") << heldA << QStringLiteral("A|(100ms)A^") << QColor(Qt::white);
    QTest::newRow("a key on grey") << heldA << QStringLiteral("A|(100ms)A^") << kGreyGround;
    QTest::newRow("a key without a name") << nameless << QStringLiteral("|^") << QColor(Qt::white);
    QTest::newRow("several lines")
        << someLines() << eventText(someLines(), {}) << QColor(Qt::white);
}

void tst_macrodisplaylooks::eventsAreDrawnAsNamesAndArrows()
{
    QFETCH(Events, events);
    QFETCH(QString, text);
    QFETCH(QColor, ground);
    DisplayStage stage;
    stage.display.enablewindow(ground == Qt::white);
    stage.display.setKeymapInfo(events);
    QCOMPARE(shown(stage.display), displayPicture(text, stage.display.size(), ground));
}

/// A picture of another size would be squeezed, and its edges lie between the pixels.
void tst_macrodisplaylooks::arrowsAreDrawnForTheirCells()
{
    const std::pair<QString, const char *> arrows[] = {{QStringLiteral("|"), "down"},
                                                       {QStringLiteral("^"), "up"}};
    for (const auto &[marker, picture] : arrows) {
        const UpRect cell = layOutCells(marker, 15, 15).front().place;
        QCOMPARE(SkinImage::named(picture).size(), QSize(cell.width, cell.height));
    }
}

void tst_macrodisplaylooks::arrowsFillTheirCells_data()
{
    QTest::addColumn<std::uint32_t>("kind");
    QTest::addColumn<QString>("sign");
    QTest::addColumn<QString>("picture");
    QTest::newRow("a press") << kKeyPress << QStringLiteral("|") << QStringLiteral("down");
    QTest::newRow("a release") << kKeyRelease << QStringLiteral("^") << QStringLiteral("up");
}

void tst_macrodisplaylooks::arrowsFillTheirCells()
{
    QFETCH(std::uint32_t, kind);
    QFETCH(QString, sign);
    QFETCH(QString, picture);
    DisplayStage stage;
    stage.display.setKeymapInfo(Events{{111, kind, 0}}); // has no name before its arrow
    const int width = layOutCells(sign, 140, 15).front().place.width;
    QPixmap expected(width, 13);
    expected.fill(Qt::white);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(expected.rect(), skin(qPrintable(picture)));
    painter.end();
    const QImage image = shown(stage.display);
    QCOMPARE(image.copy(0, 2, width, 13),
             expected.toImage().convertToFormat(QImage::Format_ARGB32));
    QVERIFY(QRect(0, 2, width, 13).contains(extentOfOther(image, Qt::white)));
    QVERIFY(!extentOfOther(image, Qt::white).isEmpty());
}

void tst_macrodisplaylooks::theFirstLineIsAtTheTopLeft()
{
    DisplayStage stage;
    stage.display.setDisplayUpAndDown(false);
    stage.display.setKeymapInfo(Events{{53, 1, 0}});
    const QRect lettering = extentOfOther(shown(stage.display), Qt::white);
    QVERIFY(!lettering.isEmpty());
    QVERIFY(QRect(0, 0, 30, 17).contains(lettering));
}

void tst_macrodisplaylooks::aViewTooSmallIsFilledAndNotLeft()
{
    DisplayStage stage;
    stage.display.setFrame({10, 40, 230, 18});
    stage.display.setKeymapInfo(someLines());
    const QImage image = shown(stage.display);
    QCOMPARE(image, displayPicture(eventText(someLines(), {}), {230, 18}, Qt::white));
    QCOMPARE(stage.display.height(), 18);
}

void tst_macrodisplaylooks::aNewEventIsDrawn()
{
    DisplayStage stage;
    stage.click();
    keystroke::tap(kA);
    const QSize size = stage.display.size();
    QCOMPARE(onScreenOf(stage), displayPicture(QStringLiteral("A|A^"), size, Qt::white));
    stage.click();
    QCOMPARE(onScreenOf(stage), displayPicture({}, size, Qt::white));
}

void tst_macrodisplaylooks::aPartDrawnAgainLooksAsBefore()
{
    DisplayStage stage;
    stage.display.setKeymapInfo(someLines());
    const QImage whole = onScreenOf(stage);
    QCOMPARE(whole, shown(stage.display));
    for (int y = 0; y < 60; y += 7) {
        stage.display.update(QRect(31, y, 90, 5));
        QCOMPARE(onScreenOf(stage), whole);
    }
}

KYR_GUI_TEST(tst_macrodisplaylooks)
#include "tst_macrodisplaylooks.moc"
