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
};

namespace {

constexpr ButtonRow kRow{"ButtonOK", {20, 30, 40, 20}, 4097, "OK", "Confirm"};

/// A grey window of 100 x 80 points with a rectangle of one colour where the row's button stands.
SkinImage windowWith(const QColor &colour)
{
    return markedPicture({100, 80}, Qt::darkGray, UpHost(80).down(kRow.frame), colour);
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
        button->setCaptionText({});
        button->show();
        pointer::move(window, {1, 1});
        return *button;
    }

    View window;
};

bool isAll(HoverButton &button, const QColor &colour)
{
    return extentOf(shown(button), colour) == button.rect() &&
           extentOfOther(shown(button), colour).isEmpty();
}

} // namespace

void tst_faces::aButtonIsWhatItsRowSays()
{
    FacesStage stage;
    const HoverButton *const button = makeButton(&stage.window, kRow, {});
    QCOMPARE(button->parentWidget(), &stage.window);
    QCOMPARE(button->objectName(), QStringLiteral("ButtonOK"));
    QVERIFY(button->frame() == kRow.frame);
    QCOMPARE(button->tag(), 4097);
    QCOMPARE(button->captionText(), QStringLiteral("OK"));
    QCOMPARE(button->accessibleName(), QStringLiteral("Confirm"));
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

KYR_GUI_TEST(tst_faces)
#include "tst_faces.moc"
