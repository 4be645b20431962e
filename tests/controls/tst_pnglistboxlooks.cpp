#include "controls/liststage.h"
#include "support/lettering.h"
#include "support/paintwatch.h"
#include "support/pictures.h"
#include "support/suite.h"

/// How the list of text rows is drawn.
class tst_pnglistboxlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListIsBlackWithTheSelectedRowInTheForeColour();
    void theColoursCanBeSet();
    void theTextStandsAtItsSide_data();
    void theTextStandsAtItsSide();
    void theTextStandsBelowTheTopOfItsRow();
    void theTextIsOfElevenPoints();
    void everyChangeIsDrawn_data();
    void everyChangeIsDrawn();
    void aTextTooLongIsCutAtTheEndOfItsStrip();
    void aClearedListIsBlack();
};

namespace {

using Change = std::function<void(pngListBox &)>;

/// Where the text of a row is, from the row's own upper left corner.
QRect textInRow(QWidget &list, int row, int height)
{
    return extentOfOther(shown(list).copy(0, row * height, list.width(), height), Qt::black);
}

} // namespace

void tst_pnglistboxlooks::theListIsBlackWithTheSelectedRowInTheForeColour()
{
    ListStage stage;
    stage.list.clearAll();
    for (int row = 0; row < 3; ++row)
        stage.list.AddString({});
    QCOMPARE(extentOf(shown(stage.list), Qt::black), stage.list.rect());
    stage.list.setcursel(1);
    QCOMPARE(extentOf(shown(stage.list), QColor(41, 41, 41)), QRect(0, 20, 97, 20));
    stage.list.setItemHeight(30);
    QCOMPARE(extentOf(shown(stage.list), QColor(41, 41, 41)), QRect(0, 30, 97, 30));
    stage.list.setcursel(3); // no such row
    QVERIFY(extentOf(shown(stage.list), QColor(41, 41, 41)).isEmpty());
}

void tst_pnglistboxlooks::theColoursCanBeSet()
{
    ListStage stage;
    QCOMPARE(brightest(shown(stage.list)).hsvSaturation(), 0);
    stage.list.setTextColor(0, 200, 0);
    QCOMPARE(brightest(shown(stage.list)).hsvHue(), 120);
    stage.list.setcursel(0);
    stage.list.setForeColor(90, 80, 70);
    QCOMPARE(extentOf(shown(stage.list), QColor(90, 80, 70)), QRect(0, 0, 97, 20));
    stage.list.setForeColor(999, -1, 0);
    QCOMPARE(shownAt(stage.list, {0, 0}), QColor(255, 0, 0));
}

void tst_pnglistboxlooks::theTextStandsAtItsSide_data()
{
    QTest::addColumn<std::optional<TextAlign>>("align");
    QTest::addColumn<int>("side");
    const auto row = [](const char *name, std::optional<TextAlign> align, int side) {
        QTest::newRow(name) << align << side;
    };
    row("as made", std::nullopt, 0);
    row("left", TextAlign::Left, -1);
    row("right", TextAlign::Right, +1);
    row("centre", TextAlign::Centre, 0);
}

void tst_pnglistboxlooks::theTextStandsAtItsSide()
{
    QFETCH(std::optional<TextAlign>, align);
    QFETCH(int, side);
    ListStage stage;
    stage.list.clearAll();
    stage.list.AddString(QStringLiteral("HIH"));
    if (align)
        stage.list.setTextAlign(*align);
    const QRect text = textInRow(stage.list, 0, 20);
    QVERIFY(text.width() > 8);
    const int left = text.left();
    const int right = stage.list.width() - 1 - text.right();
    const bool holds = side < 0   ? left <= 2 && right > 50
                       : side > 0 ? right <= 2 && left > 50
                                  : qAbs(left - right) <= 2;
    QVERIFY2(holds, qPrintable(QStringLiteral("%1 left, %2 right").arg(left).arg(right)));
}

void tst_pnglistboxlooks::theTextStandsBelowTheTopOfItsRow()
{
    ListStage stage;
    stage.list.setItemHeight(30);
    for (int row = 0; row < 3; ++row) {
        const QRect text = textInRow(stage.list, row, 30);
        // The strip is shorter by 3 at its top; the text begins there.
        QVERIFY(text.height() > 4 && text.top() >= 3 && text.bottom() < 22);
    }
}

void tst_pnglistboxlooks::theTextIsOfElevenPoints()
{
    ListStage stage;
    for (const int height : {20, 21}) {
        stage.list.setItemHeight(height);
        QPixmap expected(97, height);
        expected.fill(Qt::black);
        QPainter painter(&expected);
        painter.setPen(Qt::white);
        writeLine(painter, QStringLiteral("two"), {0, 3, 97, height - 3}, 11, Qt::AlignHCenter);
        painter.end();
        QCOMPARE(shown(stage.list).copy(0, height, 97, height),
                 expected.toImage().convertToFormat(QImage::Format_ARGB32));
    }
}

void tst_pnglistboxlooks::everyChangeIsDrawn_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("a row more", [](pngListBox &list) { list.AddString(QStringLiteral("four")); });
    row("another selection", [](pngListBox &list) { list.setcursel(2); });
    row("the texts' colour", [](pngListBox &list) { list.setTextColor(0, 200, 0); });
    row("the rows' colour", [](pngListBox &list) { list.setForeColor(0, 200, 0); });
    row("the texts' side", [](pngListBox &list) { list.setTextAlign(TextAlign::Right); });
    row("the rows' height", [](pngListBox &list) { list.setItemHeight(30); });
}

void tst_pnglistboxlooks::everyChangeIsDrawn()
{
    QFETCH(Change, change);
    ListStage stage;
    QVERIFY(QTest::qWaitForWindowExposed(&stage.window));
    const PaintWatch watch(stage.list);
    QCoreApplication::processEvents();
    QVERIFY(!watch.hasPainted({40, 70}));
    change(stage.list);
    QTRY_VERIFY(watch.hasPainted({40, 70}));
}

void tst_pnglistboxlooks::aTextTooLongIsCutAtTheEndOfItsStrip()
{
    ListStage stage;
    const auto withRow = [&](const QString &text) {
        stage.list.clearAll();
        stage.list.AddString({});
        stage.list.AddString(text);
        return shown(stage.list);
    };
    const QString beginning = QStringLiteral("Whirling strike of the northern wind");
    const QImage cut = withRow(beginning);
    const QRect text = extentOfOther(cut, Qt::black);
    QVERIFY(text.top() >= 20 && text.bottom() < 40 && text.width() > 60);
    // Centred, a text that is not cut would lose its beginning with every word more.
    QCOMPARE(withRow(beginning + QStringLiteral(" and of the southern sea")), cut);
}

void tst_pnglistboxlooks::aClearedListIsBlack()
{
    ListStage stage;
    stage.list.setcursel(1);
    stage.list.clearAll();
    QVERIFY(extentOfOther(shown(stage.list), Qt::black).isEmpty());
}

KYR_GUI_TEST(tst_pnglistboxlooks)
#include "tst_pnglistboxlooks.moc"
