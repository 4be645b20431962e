#include "controls/liststage.h"
#include "support/pictures.h"
#include "support/suite.h"

#include <QtCore/QMimeData>
#include <QtGui/QDrag>
#include <QtWidgets/QApplication>

/// Rows dragged out of a list. The offscreen platform ends every drag at once and leaves it to the
/// event loop to delete, so that what was dragged can be looked at.
class tst_pnglistboxdrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDragCarriesTheCodeOfTheSelectedRow_data();
    void aDragCarriesTheCodeOfTheSelectedRow();
    void nothingIsDragged_data();
    void nothingIsDragged();
    void theReleaseThatEndsADragChoosesNothing();
    void aPressStartsOneDragAtMost();
    void theDragPictureIsTheRowAtHalfOpacity();
    void theDragPictureHasAGoldenEdge();
    void theRowIsHeldWhereItWasPressed();
};

namespace {

using Prepare = std::function<void(pngListBox &)>;

struct DragStage : ListStage
{
    DragStage()
    {
        list.setTag(kMacroListTag);
        list.enableDragDrop(true);
    }

    /// Presses `from` the top of the list, moves by `way`, and gives the drag that this started.
    QDrag *drag(int from, QPoint way)
    {
        const QPoint start(20, from);
        pointer::press(list, start);
        return moveTo(start + way);
    }
    /// The move is sent directly: delivered by the window, it would be over, and the drag deleted.
    QDrag *moveTo(QPoint there)
    {
        QMouseEvent move(QEvent::MouseMove, there, list.mapToGlobal(there), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&list, &move);
        return list.findChild<QDrag *>();
    }
};

} // namespace

void tst_pnglistboxdrag::aDragCarriesTheCodeOfTheSelectedRow_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<int>("fromTop");
    QTest::addColumn<QString>("text");
    QTest::newRow("first CPI step") << 4096 << 10 << QStringLiteral("16");
    QTest::newRow("second profile") << 4097 << 30 << QStringLiteral("33");
    QTest::newRow("third macro") << 4098 << 50 << QStringLiteral("258");
}

void tst_pnglistboxdrag::aDragCarriesTheCodeOfTheSelectedRow()
{
    QFETCH(int, tag);
    QFETCH(int, fromTop);
    DragStage stage;
    stage.list.setTag(tag);
    const QDrag *const drag = stage.drag(fromTop, {0, 15});
    QVERIFY(drag);
    QTEST(drag->mimeData()->text(), "text");
    QCOMPARE(drag->mimeData()->formats(), QStringList{QStringLiteral("text/plain")});
    QCOMPARE(drag->source(), &stage.list);
    QCOMPARE(drag->supportedActions(), Qt::DropActions(Qt::CopyAction));
}

void tst_pnglistboxdrag::nothingIsDragged_data()
{
    QTest::addColumn<Prepare>("prepare");
    QTest::addColumn<int>("fromTop");
    QTest::addColumn<QPoint>("way");
    const QPoint far(0, 15);
    const auto row = [](const char *name, const Prepare &prepare, int fromTop, QPoint way) {
        QTest::newRow(name) << prepare << fromTop << way;
    };
    row(
        "not enabled", [](pngListBox &list) { list.enableDragDrop(false); }, 10, far);
    row(
        "a list without functions", [](pngListBox &list) { list.setTag(8192); }, 10, far);
    row("hardly moved", [](pngListBox &) {}, 10, {1, 1});
    row(
        "nothing selected", [](pngListBox &) {}, 65, far);
    row(
        "no such row", [](pngListBox &list) { list.setcursel(3); }, 65, far);
}

void tst_pnglistboxdrag::nothingIsDragged()
{
    QFETCH(Prepare, prepare);
    QFETCH(int, fromTop);
    QFETCH(QPoint, way);
    DragStage stage;
    prepare(stage.list);
    QVERIFY(!stage.drag(fromTop, way));
}

void tst_pnglistboxdrag::theReleaseThatEndsADragChoosesNothing()
{
    DragStage stage;
    QVERIFY(stage.drag(10, {0, 15}));
    // Straight to the list: a window keeps it to itself, where the desktop may not.
    QTest::mouseRelease(&stage.list, Qt::LeftButton, {}, {20, 25});
    QCOMPARE(stage.changes.count(), std::size_t{0});
    pointer::click(stage.list, {20, 30});
    QCOMPARE(stage.changes.count(), std::size_t{1});
}

void tst_pnglistboxdrag::aPressStartsOneDragAtMost()
{
    DragStage stage;
    QVERIFY(stage.drag(10, {0, 15}));
    QTRY_VERIFY(!stage.list.findChild<QDrag *>());
    QVERIFY(!stage.moveTo({20, 50}));
    pointer::release(stage.list, {20, 50});
    QVERIFY(stage.drag(50, {0, 15}));
}

void tst_pnglistboxdrag::theDragPictureIsTheRowAtHalfOpacity()
{
    DragStage stage;
    stage.list.setForeColor(200, 100, 50);
    const QDrag *const drag = stage.drag(30, {0, 15});
    QVERIFY(drag);
    QCOMPARE(drag->pixmap().size(), QSize(97, 20));
    const QColor corner = drag->pixmap().toImage().pixelColor(1, 1);
    QVERIFY2(qAbs(corner.alpha() - 128) <= 2, qPrintable(corner.name(QColor::HexArgb)));
    QVERIFY2(qAbs(corner.red() - 200) <= 4, qPrintable(corner.name(QColor::HexArgb)));
}

/// Dark rows over a dark window have no edge of their own.
void tst_pnglistboxdrag::theDragPictureHasAGoldenEdge()
{
    DragStage stage;
    const QDrag *const drag = stage.drag(30, {0, 15});
    QVERIFY(drag);
    const QImage picture = drag->pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
    // Half transparent gold over the half transparent grey of the selected row.
    const QColor edge = picture.pixelColor(0, 0);
    QVERIFY(edge.red() > 160 && qAbs(edge.hsvHue() - kGold.hsvHue()) <= 2 && edge.alpha() > 180);
    const QRect inner = picture.rect().adjusted(1, 1, -1, -1);
    QCOMPARE(extentOfOther(picture, edge), inner);
    QVERIFY(extentOf(picture.copy(inner), edge).isEmpty());
}

void tst_pnglistboxdrag::theRowIsHeldWhereItWasPressed()
{
    DragStage stage;
    const QDrag *const drag = stage.drag(27, {0, 15});
    QVERIFY(drag);
    QCOMPARE(drag->hotSpot(), QPoint(20, 7));
}

KYR_GUI_TEST(tst_pnglistboxdrag)
#include "tst_pnglistboxdrag.moc"
