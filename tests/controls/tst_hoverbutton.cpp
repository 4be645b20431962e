#include "controls/buttonstage.h"
#include "controls/tooltips.h"
#include "support/contrast.h"
#include "support/paintwatch.h"
#include "support/suite.h"

/// The skinned button: its faces and its caption.
class tst_hoverbutton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFaceFollowsTheState_data();
    void theFaceFollowsTheState();
    void aMissingFaceLeavesTheFaceAsItWas_data();
    void aMissingFaceLeavesTheFaceAsItWas();
    void aFaceIsAPrivateCopy();
    void theCaptionIsOrangeAndWhiteWhilePressed();
    void theCaptionOfADisabledButtonIsGrey();
    void theCaptionIsCentred();
    void aLongCaptionIsCutInsideTheButton();
    void aCaptionKeepsClearOfAnArrow();
    void aGreyCaptionCanBeRead();
    void theToolTipTellsACutCaptionAsItStands_data();
    void theToolTipTellsACutCaptionAsItStands();
    void aCaptionAsWideAsItsPlaceHasNoToolTip();
    void everyChangeIsDrawn_data();
    void everyChangeIsDrawn();
    void theCaptionIsToldToAssistiveTechnology();
};

namespace {

using Steps = std::function<void(ButtonStage &)>;

const QColor kOrange(255, 180, 0);

QColor faceAfter(const Steps &steps)
{
    ButtonStage stage;
    stage.setAllFaces();
    steps(stage);
    return stage.face();
}

/// A row: steps, and the face that they lead to.
void faceRow(const char *name, const Steps &steps, const QColor &face)
{
    QTest::newRow(name) << steps << face;
}

} // namespace

void tst_hoverbutton::theFaceFollowsTheState_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QColor>("face");
    using Stage = ButtonStage;
    faceRow(
        "at rest", [](Stage &) {}, kNormalFace);
    faceRow(
        "pointer over it", [](Stage &s) { s.hover(); }, kHoverFace);
    faceRow(
        "pointer gone again", [](Stage &s) { s.hover(), s.leave(); }, kNormalFace);
    faceRow(
        "pressed", [](Stage &s) { s.press(); }, kPressedFace);
    faceRow(
        "clicked", [](Stage &s) { pointer::click(s.button); }, kHoverFace);
    faceRow(
        "clicked on", [](Stage &s) { s.button.setCheckable(true), pointer::click(s.button); },
        kPressedFace);
    faceRow(
        "clicked on, pointer gone",
        [](Stage &s) { s.button.setCheckable(true), pointer::click(s.button), s.leave(); },
        kPressedFace);
    faceRow(
        "disabled", [](Stage &s) { s.button.setDisable(true); }, kDisabledFace);
    faceRow(
        "disabled, pointer over it", [](Stage &s) { s.button.setDisable(true), s.hover(); },
        kDisabledFace);
    faceRow(
        "disabled under the pointer", [](Stage &s) { s.hover(), s.button.setDisable(true); },
        kDisabledFace);
    faceRow(
        "disabled, pointer gone", [](Stage &s) { s.hover(), s.button.setDisable(true), s.leave(); },
        kDisabledFace);
    faceRow(
        "disabled and pressed", [](Stage &s) { s.button.setDisable(true), s.press(); },
        kDisabledFace);
    faceRow(
        "disabled while on",
        [](Stage &s) {
            s.button.setCheckable(true), pointer::click(s.button), s.button.setDisable(true);
        },
        kDisabledFace);
    faceRow(
        "enabled again", [](Stage &s) { s.button.setDisable(true), s.button.setDisable(false); },
        kNormalFace);
    faceRow(
        "enabled again under the pointer",
        [](Stage &s) { s.button.setDisable(true), s.hover(), s.button.setDisable(false); },
        kNormalFace);
}

void tst_hoverbutton::theFaceFollowsTheState()
{
    QFETCH(Steps, steps);
    QTEST(faceAfter(steps), "face");
}

void tst_hoverbutton::aMissingFaceLeavesTheFaceAsItWas_data()
{
    QTest::addColumn<Steps>("steps");
    QTest::addColumn<QColor>("face");
    using Stage = ButtonStage;
    faceRow(
        "hovered without hover face", [](Stage &s) { s.button.setHoverImage({}), s.hover(); },
        kNormalFace);
    faceRow(
        "pressed without pressed face", [](Stage &s) { s.button.setAlternateImage({}), s.press(); },
        kHoverFace);
    faceRow(
        "disabled without disabled face",
        [](Stage &s) { s.button.setDisableImage({}), s.button.setDisable(true); }, kNormalFace);
    faceRow(
        "disabled without disabled face under the pointer",
        [](Stage &s) {
            s.button.setDisableImage({}), s.hover(), s.button.setDisable(true), s.leave();
        },
        kHoverFace);
}

void tst_hoverbutton::aMissingFaceLeavesTheFaceAsItWas()
{
    QFETCH(Steps, steps);
    QTEST(faceAfter(steps), "face");
}

void tst_hoverbutton::aFaceIsAPrivateCopy()
{
    ButtonStage stage;
    SkinImage picture = plainPicture(stage.button.size(), kNormalFace);
    stage.button.setNormalImage(picture);
    picture = plainPicture(stage.button.size(), kHoverFace);
    QCOMPARE(stage.face(), kNormalFace);
}

void tst_hoverbutton::theCaptionIsOrangeAndWhiteWhilePressed()
{
    ButtonStage stage;
    stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::black));
    stage.button.setCaptionText(QStringLiteral("HIT"));
    const QColor atRest = brightest(shown(stage.button));
    QVERIFY(atRest.value() > 150 && qAbs(atRest.hsvHue() - kOrange.hsvHue()) <= 1);
    QCOMPARE(atRest.hsvSaturation(), 255);
    stage.press();
    const QColor pressed = brightest(shown(stage.button));
    QVERIFY(pressed.value() > 150);
    QCOMPARE(pressed.hsvSaturation(), 0);
}

void tst_hoverbutton::theCaptionOfADisabledButtonIsGrey()
{
    ButtonStage stage;
    stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::black));
    stage.button.setCaptionText(QStringLiteral("HIT"));
    const QColor enabled = brightest(shown(stage.button));
    stage.button.setDisable(true);
    const QColor disabled = brightest(shown(stage.button));
    QVERIFY(disabled.value() < enabled.value() && disabled.hsvSaturation() < 16);
    stage.button.setDisable(false);
    QCOMPARE(brightest(shown(stage.button)), enabled);
}

void tst_hoverbutton::theCaptionIsCentred()
{
    ButtonStage stage;
    stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::black));
    stage.button.setCaptionText(QStringLiteral("HIHIHIHIH"));
    const QRect text = extentOfOther(shown(stage.button), Qt::black);
    const QSize letters =
        QFontMetrics(systemFont(10)).tightBoundingRect(stage.button.captionText()).size();
    QVERIFY(qAbs(text.width() - letters.width()) <= 2);
    QCOMPARE(text.height(), letters.height());
    const QPoint off = text.center() - stage.button.rect().center();
    QVERIFY(qAbs(off.x()) <= 1 && qAbs(off.y()) <= 2);
}

void tst_hoverbutton::aLongCaptionIsCutInsideTheButton()
{
    ButtonStage stage;
    stage.button.setCaptionText(QStringLiteral("A caption far too long for its button"));
    stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::black));
    const QRect text = extentOfOther(shown(stage.button), Qt::black);
    QVERIFY(text.width() > 60 && text.left() >= 4 && text.right() < stage.button.width() - 4);
}

void tst_hoverbutton::aCaptionKeepsClearOfAnArrow()
{
    constexpr int arrow = 20;
    ButtonStage stage;
    stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::black));
    stage.button.setArrowWidth(arrow);
    const auto textOf = [&](const char *caption) {
        stage.button.setCaptionText(QString::fromLatin1(caption));
        return extentOfOther(shown(stage.button), Qt::black);
    };
    const int left = stage.button.width() - arrow; // what the arrow leaves
    const QRect text = textOf("HIH");
    QVERIFY(text.width() > 8 && qAbs(text.center().x() - left / 2) <= 1);
    const QRect cut = textOf("A caption far too long for its button");
    QVERIFY(cut.width() > 40 && cut.left() >= 4 && cut.right() < left - 4);
}

/// On the brightest and the darkest ground that a disabled face has.
void tst_hoverbutton::aGreyCaptionCanBeRead()
{
    for (const QColor &ground : {QColor(23, 24, 26), QColor(34, 35, 38)})
        QVERIFY(contrast(kFaint, ground) >= 4.5);
}

void tst_hoverbutton::theToolTipTellsACutCaptionAsItStands_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("told");
    const auto row = [](const char *caption, bool told) {
        QTest::newRow(caption) << QString::fromLatin1(caption) << told;
    };
    row("Short", false);
    row("A caption far too long for its button", true);
    row("A caption <b>far</b> too long for its button", true);
    row("\"Block\" & 'parry', then &amp; and &lt;", true);
    row("Many   blanks   between   the   words", true);
}

void tst_hoverbutton::theToolTipTellsACutCaptionAsItStands()
{
    QFETCH(QString, caption);
    QFETCH(bool, told);
    ButtonStage stage;
    stage.button.setCaptionText(caption);
    QCOMPARE(toolTipAt(stage.button, {10, 10}), told ? caption : QString());
}

/// It is 8 points clear of the button's sides.
void tst_hoverbutton::aCaptionAsWideAsItsPlaceHasNoToolTip()
{
    ButtonStage stage;
    const QString caption = QStringLiteral("A caption of some length");
    const int width = qCeil(QFontMetricsF(systemFont(10)).horizontalAdvance(caption)) + 16;
    stage.button.setCaptionText(caption);
    stage.button.setFrame({20, 30, width, 27});
    QCOMPARE(toolTipAt(stage.button, {10, 10}), QString());
    stage.button.setFrame({20, 30, width - 1, 27});
    QCOMPARE(toolTipAt(stage.button, {10, 10}), caption);
}

void tst_hoverbutton::everyChangeIsDrawn_data()
{
    QTest::addColumn<Steps>("change");
    const auto row = [](const char *name, const Steps &change) { QTest::newRow(name) << change; };
    row("the caption",
        [](ButtonStage &stage) { stage.button.setCaptionText(QStringLiteral("Jump")); });
    row("the normal face", [](ButtonStage &stage) {
        stage.button.setNormalImage(plainPicture(stage.button.size(), Qt::cyan));
    });
    row("the face of one that is on", [](ButtonStage &stage) {
        stage.button.setAlternateImage(plainPicture(stage.button.size(), Qt::cyan));
    });
}

void tst_hoverbutton::everyChangeIsDrawn()
{
    QFETCH(Steps, change);
    ButtonStage stage;
    QVERIFY(QTest::qWaitForWindowExposed(&stage.window));
    QCoreApplication::processEvents();
    const PaintWatch watch(stage.button);
    QCoreApplication::processEvents();
    QVERIFY(!watch.hasPainted({40, 10}));
    change(stage);
    QTRY_VERIFY(watch.hasPainted({40, 10}));
}

void tst_hoverbutton::theCaptionIsToldToAssistiveTechnology()
{
    ButtonStage stage;
    stage.button.setCaptionText(QStringLiteral("Jump"));
    QCOMPARE(stage.button.accessibleDescription(), QStringLiteral("Jump"));
    QCOMPARE(stage.button.captionText(), QStringLiteral("Jump"));
}

KYR_GUI_TEST(tst_hoverbutton)
#include "tst_hoverbutton.moc"
