#include "lightingstage.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// Where the controls of the bottom bar stand and how they are drawn.
class tst_bottomview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aControlStandsInItsPlaceWithItsTag_data() { lightRows(); }
    void aControlStandsInItsPlaceWithItsTag();
    void thereAreNoOtherControls();
    void aControlsFaceIsCutFromTheBarsPicture_data() { lightRows(); }
    void aControlsFaceIsCutFromTheBarsPicture();
    void aControlUnderThePointerShowsItsHoverFace_data() { lightRows(); }
    void aControlUnderThePointerShowsItsHoverFace();
    void aPressedButtonShowsItsPressedFace_data() { lightLevelRows(); }
    void aPressedButtonShowsItsPressedFace();
    void theLabelStandsAboveItsControl_data() { lightRows(); }
    void theLabelStandsAboveItsControl();
    void aRightClickDoesNothing_data() { lightRows(); }
    void aRightClickDoesNothing();
    void everyControlIsNamedForAssistiveTechnology_data() { lightRows(); }
    void everyControlIsNamedForAssistiveTechnology();
};

namespace {

constexpr UpHost kOpenBar(101);
const QRect kSwatch(4, 6, 94, 20); ///< in the colour button, y downwards

/// The open bar, its controls without captions.
struct PlainLighting : LightingStage
{
    PlainLighting()
    {
        CurrentProfile().LED_INTENSITY = CurrentProfile().LED_PULSATION = 4;
        toggleBottom();
        pointAway(kBottomBar);
    }
};

QImage partOf(const char *picture, UpRect part)
{
    return skin(picture).toImage().convertToFormat(QImage::Format_ARGB32).copy(kOpenBar.down(part));
}

/// What a control shows on the bar; of the colour button not the colour.
QImage faceOn(const PlainLighting &stage, const KnownLight &known)
{
    return shown(stage.content()).copy(kOpenBar.down(known.frame));
}

QImage withoutSwatch(const KnownLight &known, QImage image)
{
    if (&known == &kColorLight)
        QPainter(&image).fillRect(kSwatch, Qt::black);
    return image;
}

bool shows(const PlainLighting &stage, const KnownLight &known, const char *picture)
{
    return withoutSwatch(known, faceOn(stage, known)) ==
           withoutSwatch(known, partOf(picture, known.frame));
}

} // namespace

void tst_bottomview::aControlStandsInItsPlaceWithItsTag()
{
    QFETCH(const KnownLight *, known);
    const PlainLighting stage;
    const QAbstractButton &button = stage.button(*known);
    const QRect place(button.mapTo(&stage.content(), QPoint()), button.size());
    QCOMPARE(place, kOpenBar.down(known->frame));
    QVERIFY(button.isVisible());
    const auto *const pushed = dynamic_cast<const HoverButton *>(&button);
    QCOMPARE(pushed ? pushed->tag() : stage.colorButton().tag(), known->tag);
}

void tst_bottomview::thereAreNoOtherControls()
{
    const PlainLighting stage;
    QStringList names;
    for (const QWidget *widget : stage.content().findChildren<QWidget *>()) {
        if (!widget->objectName().isEmpty())
            names << widget->objectName();
    }
    names.sort();
    QCOMPARE(names.join(QLatin1Char(' ')),
             QStringLiteral("btnColorButton btnIntensity btnPulsation btnToggle"));
}

void tst_bottomview::aControlsFaceIsCutFromTheBarsPicture()
{
    QFETCH(const KnownLight *, known);
    const PlainLighting stage;
    QVERIFY(shows(stage, *known, "bottomBar"));
}

void tst_bottomview::aControlUnderThePointerShowsItsHoverFace()
{
    QFETCH(const KnownLight *, known);
    const PlainLighting stage;
    QAbstractButton &button = stage.button(*known);
    pointer::move(button, button.rect().center());
    QVERIFY(shows(stage, *known, "bottomO"));
    QVERIFY(!shows(stage, *known, "bottomBar"));
    stage.pointAway(kBottomBar);
    QVERIFY(shows(stage, *known, "bottomBar"));
}

void tst_bottomview::aPressedButtonShowsItsPressedFace()
{
    QFETCH(const KnownLightLevel *, known);
    const PlainLighting stage;
    const QAbstractButton &button = stage.button(known->light);
    pointer::press(button, button.rect().center());
    QVERIFY(shows(stage, known->light, "bottomD"));
    QVERIFY(!shows(stage, known->light, "bottomO"));
    pointer::release(button, {-5, -5});
    QVERIFY(openPopups().empty());
}

void tst_bottomview::theLabelStandsAboveItsControl()
{
    QFETCH(const KnownLight *, known);
    const PlainLighting stage;
    const QRect place = kOpenBar.down(known->labelRect);
    const QImage expected = withLine(skin("bottomBar"), QLatin1String(known->label), place, 11);
    QCOMPARE(shown(stage.content()).copy(place), expected);
    QVERIFY(expected != partOf("bottomBar", known->labelRect));
}

void tst_bottomview::aRightClickDoesNothing()
{
    QFETCH(const KnownLight *, known);
    const PlainLighting stage;
    pointer::rightClick(stage.button(*known));
    QVERIFY(openPopups().empty());
    QVERIFY(stage.lies(kBottomBar, kBottomBar.open));
    QVERIFY(!stage.program.applyIsEnabled());
}

void tst_bottomview::everyControlIsNamedForAssistiveTechnology()
{
    QFETCH(const KnownLight *, known);
    const PlainLighting stage;
    QCOMPARE(stage.button(*known).accessibleName(), QLatin1String(known->label));
}

KYR_GUI_TEST(tst_bottomview)
#include "tst_bottomview.moc"
