#include "controls/popupstage.h"
#include "support/pictures.h"
#include "support/suite.h"

/// The frame of a list that is a window of its own.
class tst_popuplooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineOfGoldStandsInADarkOne();
    void theFrameTakesNoRoom();
    void theTextsKeepClearOfTheFrame();
    void aLightMarksTheSelectedRow();
    void aListThatIsNoPopupHasNeither();
};

namespace {

constexpr char kLong[] = "Whirling strike of the northern wind";

/// The rectangle that is `depth` points inside the list's edge.
QRect inside(const QWidget &list, int depth)
{
    return list.rect().adjusted(depth, depth, -depth, -depth);
}

/// The list with a text too long for it as its only, unselected row.
QImage withLongRow(pngListBox &list)
{
    list.setcursel(-1);
    list.clearAll();
    list.AddString(QLatin1String(kLong));
    return shown(list);
}

} // namespace

void tst_popuplooks::aLineOfGoldStandsInADarkOne()
{
    PopupStage stage;
    pngListBox &list = stage.opened();
    const QImage picture = shown(list);
    const auto corners = [&](int depth) {
        const QRect at = inside(list, depth);
        return std::array{picture.pixelColor(at.topLeft()), picture.pixelColor(at.topRight()),
                          picture.pixelColor(at.bottomLeft()),
                          picture.pixelColor(at.bottomRight())};
    };
    for (const QColor &corner : corners(0))
        QCOMPARE(corner, kRim);
    const auto gold = corners(1);
    QCOMPARE(gold[0], gold[1]);
    QCOMPARE(gold[2], gold[3]);
    QVERIFY(gold[0].value() > 180 && gold[0].value() > gold[2].value() + 60); // lit from above
    QVERIFY(gold[2].value() > 100 && gold[2].hue() > 25 && gold[2].hue() < 50);
    QCOMPARE(picture.pixelColor(inside(list, 2).topLeft()), QColor(Qt::black));
}

void tst_popuplooks::theFrameTakesNoRoom()
{
    PopupStage stage;
    pngListBox &list = stage.opened();
    QCOMPARE(list.size(), QSize(97, 3 * PopupStage::kRowHeight));
    QCOMPARE(list.window()->size(), list.size());
    pointer::click(list, {0, 2 * PopupStage::kRowHeight});
    QTRY_COMPARE(stage.chosenRow, 2);
}

void tst_popuplooks::theTextsKeepClearOfTheFrame()
{
    PopupStage stage;
    const QImage picture = withLongRow(stage.opened());
    const QRect row(kPopupFrame, kPopupFrame, picture.width() - 2 * kPopupFrame, 17);
    const QRect text = extentOfOther(picture.copy(row), Qt::black);
    QVERIFY(text.width() > 60 && text.left() >= 2 && text.right() < row.width() - 2);
    QVERIFY(text.top() >= 1 && text.bottom() < row.height() - 1);
}

void tst_popuplooks::aLightMarksTheSelectedRow()
{
    PopupStage stage;
    pngListBox &list = stage.opened();
    const auto mark = [&] { return extentOf(shown(list), kMoonBody); };
    const int top = PopupStage::kSelected * PopupStage::kRowHeight;
    const QRect row(0, top, 8, PopupStage::kRowHeight);
    QVERIFY(!mark().isEmpty() && row.contains(mark()));
    QCOMPARE(shownAt(list, {60, top + 1}), QColor(41, 41, 41)); // beside it as ever
    list.setcursel(-1);
    QVERIFY(mark().isEmpty());
}

void tst_popuplooks::aListThatIsNoPopupHasNeither()
{
    pngListBox list(nullptr, {0, 0, 97, 60});
    list.AddString({});
    QVERIFY(extentOfOther(shown(list), Qt::black).isEmpty());
    list.setcursel(0);
    QCOMPARE(extentOf(shown(list), QColor(41, 41, 41)), QRect(0, 0, 97, 20));
    QVERIFY(extentOf(shown(list), kMoonBody).isEmpty());
}

KYR_GUI_TEST(tst_popuplooks)
#include "tst_popuplooks.moc"
