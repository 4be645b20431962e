#include "controls/faces.h"
#include "support/pictures.h"
#include "support/pointer.h"
#include "support/suite.h"

/// Cutting the faces of controls from a window's pictures.
class tst_faces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aButtonIsWhatItsRowSays();
    void theFacesAreCutAtTheButtonsPlace();
    void withoutAPictureThereIsNoFace();
    void aBarIsUncoveredFromTheHoverPicture();
    void aPictureButtonHasTwoPicturesOfItsOwn();
    void aCheckBoxStaysOn();
};

namespace {

constexpr ButtonRow kRow{"ButtonOK", {20, 30, 40, 20}, 4097, "OK", "Confirm"};

/// A grey window of 100 x 80 points with a rectangle of one colour where the row's button stands.
SkinImage windowWith(const QColor &colour)
{
    return markedPicture({100, 80}, Qt::darkGray, UpHost(80).down(kRow.frame), colour);
}

/// With nothing but its face to see.
void showQuietly(HoverButton &button, const QWidget &window)
{
    button.setCaptionText({});
    button.show();
    pointer::move(window, {1, 1});
}

struct FacesStage
{
    FacesStage()
    {
        window.resize(100, 80);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }
    HoverButton &make(const Faces &faces)
    {
        HoverButton *const button = makeButton(&window, kRow, faces);
        showQuietly(*button, window);
        return *button;
    }

    View window;
};

bool isAll(HoverButton &button, const QColor &colour)
{
    return extentOf(shown(button), colour) == button.rect() &&
           extentOfOther(shown(button), colour).isEmpty();
}

void hasTheRowsFields(const HoverButton &button, const QWidget &parent)
{
    QCOMPARE(button.parentWidget(), &parent);
    QCOMPARE(button.objectName(), QStringLiteral("ButtonOK"));
    QVERIFY(button.frame() == kRow.frame);
    QCOMPARE(button.tag(), 4097);
    QCOMPARE(button.captionText(), QStringLiteral("OK"));
    QCOMPARE(button.accessibleName(), QStringLiteral("Confirm"));
}

/// A picture of the skin as the row's button shows it: from its lower left corner.
QImage faceOf(const char *name)
{
    View view;
    view.resize(kRow.frame.width, kRow.frame.height);
    QImage face = shown(view);
    const QPixmap picture = SkinImage::named(name).pixmap();
    QPainter(&face).drawPixmap(0, face.height() - picture.height(), picture);
    return face;
}

} // namespace

void tst_faces::aButtonIsWhatItsRowSays()
{
    FacesStage stage;
    const HoverButton *const button = makeButton(&stage.window, kRow, {});
    hasTheRowsFields(*button, stage.window);
}

void tst_faces::theFacesAreCutAtTheButtonsPlace()
{
    FacesStage stage;
    HoverButton &button = stage.make(
        {windowWith(Qt::green), windowWith(Qt::blue), windowWith(Qt::red), windowWith(Qt::gray)});
    QVERIFY(isAll(button, Qt::green));
    pointer::move(button, button.rect().center());
    QVERIFY(isAll(button, Qt::blue));
    pointer::press(button, button.rect().center());
    QVERIFY(isAll(button, Qt::red));
    pointer::release(button, button.rect().center());
    button.setDisable(true);
    QVERIFY(isAll(button, Qt::gray));
}

void tst_faces::withoutAPictureThereIsNoFace()
{
    FacesStage stage;
    HoverButton &button = stage.make({.normal = windowWith(Qt::green)});
    pointer::move(button, button.rect().center());
    QVERIFY(isAll(button, Qt::green));
    pointer::press(button, button.rect().center());
    QVERIFY(isAll(button, Qt::green));
    pointer::release(button, button.rect().center());
    button.setDisable(true);
    QVERIFY(isAll(button, Qt::green));
}

void tst_faces::aBarIsUncoveredFromTheHoverPicture()
{
    FacesStage stage;
    pngProgressBar bar(&stage.window, kRow.frame);
    bar.setposRange(0, 100);
    setFaces(bar, {.normal = windowWith(Qt::green), .over = windowWith(Qt::blue)}, kRow.frame);
    bar.setPos(50);
    QCOMPARE(extentOf(shown(bar), Qt::blue), QRect(0, 0, 20, 20));
    QCOMPARE(extentOf(shown(bar), Qt::green), QRect(20, 0, 20, 20));
}

void tst_faces::aPictureButtonHasTwoPicturesOfItsOwn()
{
    FacesStage stage;
    HoverButton &button = *makePictureButton(&stage.window, kRow, "uncheck", "check");
    hasTheRowsFields(button, stage.window);
    QVERIFY(!button.isCheckable());
    showQuietly(button, stage.window);
    QCOMPARE(shown(button), faceOf("uncheck"));
    pointer::move(button, button.rect().center());
    QCOMPARE(shown(button), faceOf("uncheck"));
    pointer::press(button, button.rect().center());
    QCOMPARE(shown(button), faceOf("check"));
    pointer::release(button, button.rect().center());
    QCOMPARE(shown(button), faceOf("uncheck"));
    button.setDisable(true);
    QCOMPARE(shown(button), faceOf("uncheck"));
}

void tst_faces::aCheckBoxStaysOn()
{
    FacesStage stage;
    HoverButton &box = *makeCheckBox(&stage.window, kRow, "radio_n", "radio_d");
    hasTheRowsFields(box, stage.window);
    QVERIFY(box.isCheckable());
    showQuietly(box, stage.window);
    for (const bool isOn : {false, true, false}) {
        QCOMPARE(box.isChecked(), isOn);
        QCOMPARE(shown(box), faceOf(isOn ? "radio_d" : "radio_n"));
        pointer::click(box);
    }
}

KYR_GUI_TEST(tst_faces)
#include "tst_faces.moc"
