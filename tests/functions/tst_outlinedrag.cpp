#include "support/pictures.h"
#include "support/suite.h"
#include "treestage.h"

#include <QtCore/QMimeData>
#include <QtGui/QDrag>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

/// Rows dragged out of an outline. The offscreen platform ends every drag at once and leaves it to
/// the event loop to delete, so that what was dragged can be looked at.
class tst_outlinedrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragCarriesTheRowsIndex_data();
    void aDragCarriesTheRowsIndex();
    void theFirstCategoryIsNotDragged();
    void nothingIsDraggedFromElsewhere_data();
    void nothingIsDraggedFromElsewhere();
    void aDragBeginsAtTheDesktopsDistance();
    void aDragChoosesNothing();
    void oneDragIsOneDrag();
    void afterADragAClickSelectsAgain();
    void aRefusedDragChoosesNothing();
    void theDragPictureIsTheRowAtHalfOpacity_data();
    void theDragPictureIsTheRowAtHalfOpacity();
    void theDragPictureHasAGoldenEdge();
    void theRowIsHeldWhereItWasPressed();
    void aScrolledRowIsHeldWhereItWasPressed();
    void ofARowPartlyOutOfSightThatPartIsShown();
    void withoutTheLeftButtonNothingIsDragged();
};

namespace {

constexpr QPoint kFar(0, 40);

/// Movement and camera open; dragged by the pointer.
struct OutlineDragStage : TreeStage
{
    OutlineDragStage()
    {
        outline.expandItembyIndex(5);
        outline.expandItembyIndex(0);
    }

    /// The move is sent directly: delivered by the window, it would be over, and the drag deleted.
    void moveTo(QPoint at, Qt::MouseButton held = Qt::LeftButton) const
    {
        QMouseEvent move(QEvent::MouseMove, at, pane().mapToGlobal(at), Qt::NoButton, held, {});
        QApplication::sendEvent(&pane(), &move);
    }
    /// Presses there, moves by `way`, and gives the drag that this started.
    QDrag *dragFrom(QPoint start, QPoint way = kFar) const
    {
        pointer::press(pane(), start);
        moveTo(start + way);
        return running();
    }
    QDrag *drag(const char *name, QPoint way = kFar) const
    {
        return dragFrom(outlinerows::onText(outline, name), way);
    }
    QDrag *running() const { return pane().findChild<QDrag *>(); }
};

} // namespace

void tst_outlinedrag::aDragCarriesTheRowsIndex_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *text) {
        QTest::newRow(name) << QString::fromLatin1(name) << QString::fromLatin1(text);
    };
    row("Jump", "4104");
    row("Move and Steer", "4097");
    row("Camera Functions", "5");
    row("Chat Functions", "1");
}

void tst_outlinedrag::aDragCarriesTheRowsIndex()
{
    QFETCH(QString, name);
    OutlineDragStage stage;
    stage.outline.scrollTo(outlinerows::row(stage.outline, name));
    const QDrag *const drag = stage.drag(name.toLatin1().constData());
    QVERIFY(drag);
    QTEST(drag->mimeData()->text(), "text");
    QCOMPARE(drag->mimeData()->formats(), QStringList{QStringLiteral("text/plain")});
    QCOMPARE(drag->source(), &stage.pane());
    QCOMPARE(drag->supportedActions(), Qt::DropActions(Qt::CopyAction));
}

void tst_outlinedrag::theFirstCategoryIsNotDragged()
{
    const OutlineDragStage stage;
    QVERIFY(!stage.drag("Movement Keys"));
}

void tst_outlinedrag::nothingIsDraggedFromElsewhere_data()
{
    QTest::addColumn<QPoint>("start");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("the arrow") << QPoint(5, 27) << Qt::LeftButton;
    QTest::newRow("below the rows") << QPoint(60, 215) << Qt::LeftButton;
    QTest::newRow("the right button") << QPoint(60, 27) << Qt::RightButton;
}

void tst_outlinedrag::nothingIsDraggedFromElsewhere()
{
    QFETCH(QPoint, start);
    QFETCH(Qt::MouseButton, button);
    OutlineDragStage stage;
    stage.outline.collapseItembyIndex(0);
    pointer::press(stage.pane(), start, button);
    stage.moveTo(start - kFar);
    QVERIFY(!stage.running());
}

void tst_outlinedrag::aDragBeginsAtTheDesktopsDistance()
{
    const OutlineDragStage stage;
    QApplication::setStartDragDistance(12);
    QVERIFY(!stage.drag("Jump", {5, 6}));
    stage.moveTo(outlinerows::onText(stage.outline, "Jump") + QPoint(5, -7));
    QVERIFY(stage.running());
}

void tst_outlinedrag::aDragChoosesNothing()
{
    OutlineDragStage stage;
    stage.outline.setSelectedItembyIndex(4098);
    QVERIFY(stage.drag("Jump"));
    stage.release("Jump");
    QCOMPARE(stage.selected(), QStringLiteral("Move Forward"));
    QCOMPARE(stage.choices.count(), std::size_t{0});
}

void tst_outlinedrag::oneDragIsOneDrag()
{
    const OutlineDragStage stage;
    QVERIFY(stage.drag("Jump"));
    stage.moveTo({60, 10});
    stage.moveTo({60, 200});
    QCOMPARE(stage.pane().findChildren<QDrag *>().size(), 1);
}

void tst_outlinedrag::afterADragAClickSelectsAgain()
{
    const OutlineDragStage stage;
    QVERIFY(stage.drag("Jump"));
    stage.release("Turn Left");
    stage.click("Turn Left");
    QCOMPARE(stage.selected(), QStringLiteral("Turn Left"));
    QCOMPARE(stage.chosen(), QStringList{QStringLiteral("Turn Left")});
}

void tst_outlinedrag::aRefusedDragChoosesNothing()
{
    const OutlineDragStage stage;
    QVERIFY(!stage.drag("Movement Keys"));
    stage.release("Movement Keys");
    QCOMPARE(stage.choices.count(), std::size_t{0});
    QCOMPARE(stage.selected(), QString());
}

void tst_outlinedrag::theDragPictureIsTheRowAtHalfOpacity_data()
{
    QTest::addColumn<std::ptrdiff_t>("selected");
    QTest::addColumn<int>("grey");
    QTest::newRow("a row") << std::ptrdiff_t{4098} << 0;
    QTest::newRow("the selected row") << std::ptrdiff_t{4104} << 41;
}

void tst_outlinedrag::theDragPictureIsTheRowAtHalfOpacity()
{
    QFETCH(std::ptrdiff_t, selected);
    QFETCH(int, grey);
    OutlineDragStage stage;
    stage.outline.setSelectedItembyIndex(selected);
    const QDrag *const drag = stage.drag("Jump");
    QVERIFY(drag);
    QCOMPARE(drag->pixmap().size(), QSize(175, 18));
    const QImage picture = drag->pixmap().toImage();
    const QColor ground = picture.pixelColor(100, 8);
    QVERIFY2(qAbs(ground.alpha() - 128) <= 2, qPrintable(ground.name(QColor::HexArgb)));
    QVERIFY2(qAbs(ground.red() - grey) <= 2, qPrintable(ground.name(QColor::HexArgb)));
    const auto isText = [](const QColor &pixel) { return pixel.red() > 200; };
    const QRect text = detail::extentWhere(picture.copy(1, 1, 173, 16), isText);
    QVERIFY(text.left() > 15 && text.width() > 15 && text.right() < 70);
}

void tst_outlinedrag::theDragPictureHasAGoldenEdge()
{
    const OutlineDragStage stage;
    const QDrag *const drag = stage.drag("Jump");
    QVERIFY(drag);
    const QImage picture = drag->pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
    const QColor edge = picture.pixelColor(0, 0);
    QVERIFY(edge.red() > 160 && qAbs(edge.hsvHue() - kGold.hsvHue()) <= 2);
    const QRect inner = picture.rect().adjusted(1, 1, -1, -1);
    QCOMPARE(extentOfOther(picture, edge), inner);
    QVERIFY(extentOf(picture.copy(inner), edge).isEmpty());
}

void tst_outlinedrag::theRowIsHeldWhereItWasPressed()
{
    const OutlineDragStage stage;
    const QDrag *const drag = stage.dragFrom({47, 18 * 8 + 5});
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->text(), QStringLiteral("4104"));
    QCOMPARE(drag->hotSpot(), QPoint(47, 5));
}

void tst_outlinedrag::aScrolledRowIsHeldWhereItWasPressed()
{
    const OutlineDragStage stage;
    stage.outline.verticalScrollBar()->setValue(18 * 4 + 7);
    const QDrag *const drag = stage.dragFrom({47, 18 * 4 - 7 + 5});
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->text(), QStringLiteral("4104"));
    QCOMPARE(drag->hotSpot(), QPoint(47, 5));
}

void tst_outlinedrag::ofARowPartlyOutOfSightThatPartIsShown()
{
    const OutlineDragStage stage;
    stage.outline.verticalScrollBar()->setValue(18 * 8 + 7); // so much is above the edge
    const QDrag *const drag = stage.dragFrom({47, 5});
    QVERIFY(drag);
    QCOMPARE(drag->mimeData()->text(), QStringLiteral("4104"));
    QCOMPARE(drag->pixmap().size(), QSize(175, 11));
    const QImage picture = drag->pixmap().toImage();
    QCOMPARE(picture.pixelColor(100, 10), picture.pixelColor(100, 0)); // its edge, all around
    QCOMPARE(drag->hotSpot(), QPoint(47, 5));
}

void tst_outlinedrag::withoutTheLeftButtonNothingIsDragged()
{
    const OutlineDragStage stage;
    stage.press("Jump"); // its release is lost
    stage.moveTo(outlinerows::onText(stage.outline, "Jump") + kFar, Qt::RightButton);
    QVERIFY(!stage.running());
}

KYR_GUI_TEST(tst_outlinedrag)
#include "tst_outlinedrag.moc"
