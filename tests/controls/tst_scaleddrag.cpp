#include "controls/liststage.h"
#include "support/suite.h"

#include <QtGui/QDrag>
#include <QtWidgets/QApplication>

/// A row dragged on a display of two pixels a point.
class tst_scaleddrag : public QObject
{
    Q_OBJECT

public:
    static void initMain() { qputenv("QT_SCALE_FACTOR", "2"); }

private Q_SLOTS:
    void thePictureIsAsLargeAsTheRow();
};

void tst_scaleddrag::thePictureIsAsLargeAsTheRow()
{
    ListStage stage;
    stage.list.setTag(kMacroListTag);
    stage.list.enableDragDrop(true);
    pointer::press(stage.list, {20, 30});
    QMouseEvent move(QEvent::MouseMove, QPoint(20, 45), stage.list.mapToGlobal(QPoint(20, 45)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&stage.list, &move);
    const QDrag *const drag = stage.list.findChild<QDrag *>();
    QVERIFY(drag);
    QCOMPARE(drag->pixmap().size(), QSize(194, 40));
    QCOMPARE(drag->pixmap().deviceIndependentSize(), QSizeF(97, 20));
    // Its edge is a point broad, which is two pixels.
    const QImage picture = drag->pixmap().toImage();
    const QColor edge = picture.pixelColor(0, 20);
    QCOMPARE(picture.pixelColor(193, 20), edge);
    QCOMPARE(picture.pixelColor(1, 20), edge);
    QVERIFY(picture.pixelColor(2, 20) != edge);
}

KYR_GUI_TEST(tst_scaleddrag)
#include "tst_scaleddrag.moc"
