#include "controls/HoverButton.h"
#include "controls/tooltips.h"
#include "longnames.h"
#include "support/pictures.h"
#include "support/suite.h"
#include "treestage.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

/// How an outline is drawn, and what stands at its edges.
class tst_myoutlinelooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOutlineIsBlackWithRowsOfOneHeight();
    void everyTextIsOrange();
    void theTextIsNarrowAndIndented();
    void theSelectedRowIsDarkGrey();
    void theArrowTurnsDownWhenTheCategoryIsOpen();
    void theRowThatTheKeysGoFromIsFramed();
    void thePointerDrawsNoFrame();
    void thereIsNoHeader();
    void theOnlyColumnIsAsWideAsThePanel();
    void scrollBarsAppearWhenThereIsSomethingToScroll();
    void scrollBarsTakeNoRoom();
    void aLongNameLosesItsMiddle();
    void aCutNameIsToldByItsTooltip();
    void theTooltipComesUpUnderThePointer();
    void aNameThatFitsHasNoTooltip();
    void belowTheRowsThereIsNoTooltip();
    void aNameEndsBesideTheScrollBar();
};

namespace {

const QColor kDarkGrey(41, 41, 41);
const QColor kOrange(255, 180, 0);
const QString kLongName =
    QStringLiteral("Whirling <b>strike</b> of the northern wind & the southern sea");

/// A row as it is drawn, y downwards.
QImage rowPicture(MyOutlineView &outline, int row)
{
    return shown(outline).copy(0, 18 * row, 175, 18);
}

/// Around the lines of the frame's colour that reach the outline's left edge, where no text does.
QRect framedRow(MyOutlineView &outline)
{
    const QImage image = shown(outline);
    QRect frame = extentOf(image.copy(0, 0, 1, image.height()), kOrange);
    if (!frame.isEmpty() && image.pixelColor(174, frame.top()) == kOrange)
        frame.setRight(174);
    return frame;
}

/// Thin strokes do not reach their colour quite.
bool isNear(const QColor &colour, const QColor &wanted)
{
    constexpr int most = 16;
    return qAbs(colour.red() - wanted.red()) <= most &&
           qAbs(colour.green() - wanted.green()) <= most &&
           qAbs(colour.blue() - wanted.blue()) <= most;
}

/// What stands in the only row of an outline of that name.
QImage pictureOfName(const QString &name)
{
    TreeStage stage(std::make_shared<LongNames>(QStringList{name}));
    return rowPicture(stage.outline, 0);
}

} // namespace

void tst_myoutlinelooks::theOutlineIsBlackWithRowsOfOneHeight()
{
    TreeStage stage;
    const QImage image = shown(stage.outline);
    QCOMPARE(image.size(), QSize(175, 220));
    for (int row = 0; row < 7; ++row) {
        const QRect drawn = extentOfOther(image.copy(0, 18 * row, 175, 18), Qt::black);
        QVERIFY(drawn.width() > 40 && drawn.top() > 0 && drawn.bottom() < 17);
    }
    QVERIFY(extentOfOther(image.copy(0, 18 * 7, 175, 220 - 18 * 7), Qt::black).isEmpty());
}

void tst_myoutlinelooks::everyTextIsOrange()
{
    TreeStage stage;
    stage.outline.expandItembyIndex(0);
    stage.outline.setSelectedItembyIndex(4098);
    for (int row = 0; row < 12; ++row) {
        // Right of the arrows, which are of another colour, and left of the scroll bar.
        const QColor text = brightest(rowPicture(stage.outline, row).copy(10, 0, 150, 18));
        QVERIFY2(isNear(text, kOrange), qPrintable(text.name()));
    }
}

void tst_myoutlinelooks::theTextIsNarrowAndIndented()
{
    TreeStage stage;
    stage.clickArrow("Movement Keys");
    QFont letters = systemFont(11);
    letters.setStretch(88);
    const auto expected = [&](int left, const char *name) {
        QPixmap row(175, 18);
        row.fill(Qt::black);
        QPainter painter(&row);
        painter.setFont(letters);
        painter.setPen(kOrange);
        painter.drawText(QRect(left, 0, 140, 18), Qt::AlignVCenter, QLatin1String(name));
        painter.end();
        return row.toImage().convertToFormat(QImage::Format_ARGB32).copy(10, 0, 150, 18);
    };
    const auto drawn = [&](int row) { return rowPicture(stage.outline, row).copy(10, 0, 150, 18); };
    QCOMPARE(drawn(0), expected(12, "Movement Keys"));
    QCOMPARE(drawn(8), expected(22, "Jump"));
}

void tst_myoutlinelooks::theSelectedRowIsDarkGrey()
{
    TreeStage stage;
    QVERIFY(extentOf(shown(stage.outline), kDarkGrey).isEmpty());
    stage.click("Targeting Functions");
    QCOMPARE(extentOf(shown(stage.outline), kDarkGrey), QRect(0, 18 * 3, 175, 18));
    stage.clickArrow("Camera Functions");
    stage.click("Zoom In");
    QCOMPARE(extentOf(shown(stage.outline), kDarkGrey), QRect(0, 18 * 8, 175, 18));
}

void tst_myoutlinelooks::theArrowTurnsDownWhenTheCategoryIsOpen()
{
    TreeStage stage;
    const auto arrow = [&](int row) {
        return detail::extentWhere(rowPicture(stage.outline, row).copy(0, 0, 10, 18),
                                   [](const QColor &pixel) { return pixel.value() > 100; });
    };
    const QRect closed = arrow(0);
    QVERIFY(!extentOf(rowPicture(stage.outline, 0).copy(closed), QColor(201, 162, 92)).isEmpty());
    QVERIFY(closed.height() > closed.width());
    stage.clickArrow("Movement Keys");
    const QRect open = arrow(0);
    QVERIFY(open.width() > open.height());
    QVERIFY(arrow(1).isEmpty()); // a command
    stage.clickArrow("Movement Keys");
    QCOMPARE(arrow(0), closed);
}

void tst_myoutlinelooks::theRowThatTheKeysGoFromIsFramed()
{
    TreeStage stage;
    HoverButton before(&stage.window, {10, 0, 20, 8});
    before.show();
    before.setFocus();
    keyboard::tabTo(stage.outline);
    QCOMPARE(framedRow(stage.outline), QRect(0, 0, 175, 18));
    stage.outline.setSelectedItembyIndex(3);
    QCOMPARE(framedRow(stage.outline), QRect(0, 18 * 3, 175, 18));
    keyboard::press(Qt::Key_Down);
    QCOMPARE(framedRow(stage.outline), QRect(0, 18 * 4, 175, 18));
    keyboard::tabTo(before);
    QCOMPARE(framedRow(stage.outline), QRect());
}

void tst_myoutlinelooks::thePointerDrawsNoFrame()
{
    TreeStage stage;
    HoverButton before(&stage.window, {10, 0, 20, 8});
    before.show();
    before.setFocus();
    stage.click("Targeting Functions");
    QVERIFY(stage.outline.hasFocus());
    QCOMPARE(framedRow(stage.outline), QRect());
}

void tst_myoutlinelooks::thereIsNoHeader()
{
    const TreeStage stage;
    QVERIFY(!stage.outline.header()->isVisible());
    QCOMPARE(stage.pane().geometry(), QRect(0, 0, 175, 220));
}

void tst_myoutlinelooks::theOnlyColumnIsAsWideAsThePanel()
{
    TreeStage stage;
    QCOMPARE(stage.outline.model()->columnCount(), 1);
    QCOMPARE(stage.outline.columnWidth(0), 175);
    stage.outline.setFrame({10, 10, 120, 220});
    QCOMPARE(stage.outline.columnWidth(0), 175);
    stage.outline.setFrame({10, 10, 190, 220});
    QCOMPARE(stage.outline.columnWidth(0), 175);
}

void tst_myoutlinelooks::scrollBarsAppearWhenThereIsSomethingToScroll()
{
    TreeStage stage;
    const QScrollBar &upright = *stage.outline.verticalScrollBar();
    const QScrollBar &level = *stage.outline.horizontalScrollBar();
    QVERIFY(!upright.isVisible());
    QVERIFY(!level.isVisible());
    stage.clickArrow("Camera Functions"); // 11 rows
    QVERIFY(!upright.isVisible());
    stage.clickArrow("Chat Functions");
    QTRY_VERIFY(upright.isVisible());
    QVERIFY(!level.isVisible());
    stage.clickArrow("Chat Functions");
    QTRY_VERIFY(!upright.isVisible());
    stage.outline.setFrame({10, 10, 120, 220});
    QTRY_VERIFY(level.isVisible());
}

void tst_myoutlinelooks::scrollBarsTakeNoRoom()
{
    TreeStage stage;
    stage.clickArrow("Action Bar Functions");
    const QScrollBar &bar = *stage.outline.verticalScrollBar();
    QTRY_VERIFY(bar.isVisible());
    QCOMPARE(stage.pane().geometry(), QRect(0, 0, 175, 220));
    const QPoint corner = bar.mapTo(&stage.outline, QPoint());
    QCOMPARE(QRect(corner, bar.size()), QRect(168, 0, 7, 220));
}

void tst_myoutlinelooks::aLongNameLosesItsMiddle()
{
    const QString start = QStringLiteral("Whirling strike of the sun, moon and stars, ");
    const QString end = QStringLiteral(", a present of the cold northern wind");
    const QImage cut = pictureOfName(start + QStringLiteral("one and only, cold and wild") + end);
    QCOMPARE(pictureOfName(start + QStringLiteral("second, hot and even wilder") + end), cut);
    QVERIFY(pictureOfName(QStringLiteral("Hurling") + start.mid(8) + QString(27, u'x') + end) !=
            cut);
    QVERIFY(pictureOfName(start + QString(27, u'x') + end.chopped(4) + QStringLiteral("gale")) !=
            cut);
    QVERIFY(extentOfOther(cut, Qt::black).right() < 174);
}

void tst_myoutlinelooks::aCutNameIsToldByItsTooltip()
{
    const TreeStage stage(std::make_shared<LongNames>(QStringList{kLongName}));
    QCOMPARE(toolTipAt(stage.pane(), {60, 9}), kLongName);
}

void tst_myoutlinelooks::theTooltipComesUpUnderThePointer()
{
    const TreeStage stage(std::make_shared<LongNames>(QStringList{kLongName}));
    QToolTip::hideText();
    pointer::move(stage.pane(), {50, 9});
    pointer::move(stage.pane(), {60, 9});
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY(QToolTip::text().contains(kLongName.toHtmlEscaped()));
}

void tst_myoutlinelooks::aNameThatFitsHasNoTooltip()
{
    const TreeStage stage(std::make_shared<LongNames>(QStringList{QStringLiteral("Jump")}));
    QCOMPARE(toolTipAt(stage.pane(), {20, 9}), QString());
}

void tst_myoutlinelooks::belowTheRowsThereIsNoTooltip()
{
    const TreeStage stage(std::make_shared<LongNames>(QStringList{kLongName}));
    QCOMPARE(toolTipAt(stage.pane(), {60, 100}), QString());
}

void tst_myoutlinelooks::aNameEndsBesideTheScrollBar()
{
    // As wide as a row without a scroll bar has room for.
    TreeStage ruler;
    QString name;
    while (ruler.outline.fontMetrics().horizontalAdvance(name + u'i') <= 161)
        name += u'i';
    const TreeStage alone(std::make_shared<LongNames>(QStringList{name}));
    QCOMPARE(toolTipAt(alone.pane(), {60, 9}), QString());
    TreeStage many(std::make_shared<LongNames>(QStringList(20, name)));
    QTRY_VERIFY(many.outline.verticalScrollBar()->isVisible());
    QCOMPARE(toolTipAt(many.pane(), {60, 9}), name);
    // Where no bar lies over it: the pane alone.
    const QImage row = shown(many.pane()).copy(0, 0, 175, 18);
    QVERIFY(extentOfOther(row, Qt::black).right() < 168);
}

KYR_GUI_TEST(tst_myoutlinelooks)
#include "tst_myoutlinelooks.moc"
