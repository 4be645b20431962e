#include "faces.h"
#include "support/mainwindow.h"
#include "support/screen.h"
#include "support/suite.h"

#include <QtGui/QEnterEvent>
#include <QtWidgets/QApplication>

/// Where the controls of the main view stand and how the view is drawn.
class tst_layout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlIsInItsPlace_data() { controlRows(); }
    void everyControlIsInItsPlace();
    void everyButtonHasItsTagKindAndCaption_data() { buttonRows(); }
    void everyButtonHasItsTagKindAndCaption();
    void thereAreNoOtherControls();
    void theFacesAreCutFromTheSkin_data() { buttonRows(); }
    void theFacesAreCutFromTheSkin();
    void aButtonUnderThePointerShowsItsHoverFace();
    void aButtonThatIsOnShowsItsPressedFace();
    void everyControlIsNamedForAssistiveTechnology_data() { controlRows(); }
    void everyControlIsNamedForAssistiveTechnology();
    void theMemoryBarIsFixed();
    void theCornersAreTransparent();
    void theBackgroundIsTheSkin();
    void theLabelsStandOnTheBackground_data();
    void theLabelsStandOnTheBackground();
    void aColourLineHasItsProfilesColour_data();
    void aColourLineHasItsProfilesColour();
    void aColourLineIsAsLargeAsItsKey();
    void aColourOutsideItsRangeIsTheBrightest();
    void theColourLinesStandOnTheBackground();
    void everyRedrawDrawsTheWholeView_data();
    void everyRedrawDrawsTheWholeView();
    void aNewColourIsDrawnWhenAPanelAsksForIt();

private:
    static void controlRows();
    static void buttonRows();
};

namespace {

void enter(HoverButton &button)
{
    const QPointF at(5, 5);
    QEnterEvent event(at, at, button.mapToGlobal(at));
    QApplication::sendEvent(&button, &event);
}

/// The line below a profile's key; profiles count from 0.
QRect colourLine(int profile)
{
    constexpr int left[] = {164, 205, 245, 284, 324, 364, 404, 444, 484, 524};
    return {left[profile] + 2, 640 - 502 - 5, 38, 5};
}

void setColour(int profile, const QColor &colour)
{
    ProfileInfo &info = m_Config.PROFILE[profile];
    info.LED_COLOR_R = static_cast<std::uint32_t>(colour.red());
    info.LED_COLOR_G = static_cast<std::uint32_t>(colour.green());
    info.LED_COLOR_B = static_cast<std::uint32_t>(colour.blue());
}

QWidget *controlNamed(const MainWindowStage &stage, const char *name)
{
    return stage.view().findChild<QWidget *>(QString::fromLatin1(name));
}

} // namespace

void tst_layout::controlRows()
{
    QTest::addColumn<const KnownControl *>("control");
    for (const KnownControl &control : kKnownControls)
        QTest::newRow(control.name) << &control;
}

void tst_layout::buttonRows()
{
    QTest::addColumn<const KnownControl *>("control");
    for (const KnownControl &control : kKnownControls) {
        if (control.kind != Kind::Bar)
            QTest::newRow(control.name) << &control;
    }
}

void tst_layout::everyControlIsInItsPlace()
{
    QFETCH(const KnownControl *, control);
    const MainWindowStage stage;
    const QWidget *const widget = controlNamed(stage, control->name);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &stage.view());
    QCOMPARE(widget->geometry(), downward(*control));
    QVERIFY(widget->isVisible());
}

void tst_layout::everyButtonHasItsTagKindAndCaption()
{
    QFETCH(const KnownControl *, control);
    const MainWindowStage stage;
    const HoverButton &button = stage.button(control->name);
    QCOMPARE(button.tag(), control->tag);
    QCOMPARE(button.isCheckable(), control->kind == Kind::Check);
    QCOMPARE(button.captionText(), QString::fromLatin1(control->caption));
}

void tst_layout::thereAreNoOtherControls()
{
    const MainWindowStage stage;
    QStringList names;
    for (const QObject *child : stage.view().children()) {
        if (child->isWidgetType() && !child->objectName().isEmpty())
            names.append(child->objectName());
    }
    QStringList expected;
    for (const KnownControl &control : kKnownControls)
        expected.append(QString::fromLatin1(control.name));
    QCOMPARE(names, expected); // in the order of their making
}

void tst_layout::theFacesAreCutFromTheSkin()
{
    QFETCH(const KnownControl *, control);
    const MainWindowStage stage;
    HoverButton &button = stage.button(control->name);
    const QRect part = downward(*control);
    button.setDisable(true);
    QCOMPARE(shownFace(button), faceOf(button, "mainDis", part));
    button.setDisable(false);
    button.setChecked(false);
    QCOMPARE(shownFace(button), faceOf(button, "mainbk", part));
    enter(button);
    QCOMPARE(shownFace(button), faceOf(button, "mainO", part));
    button.setDown(true);
    QCOMPARE(shownFace(button), faceOf(button, "mainD", part));
}

void tst_layout::aButtonUnderThePointerShowsItsHoverFace()
{
    const MainWindowStage stage;
    HoverButton &button = stage.mouseButton(4);
    const QRect part(234, 640 - 415 - 27, 97, 27);
    pointer::move(stage.view(), {40, 300}); // the way into the window
    pointer::move(button, {40, 10});
    QCOMPARE(shownFace(button), faceOf(button, "mainO", part));
    pointer::move(stage.view(), {40, 300});
    QCOMPARE(shownFace(button), faceOf(button, "mainbk", part));
}

void tst_layout::aButtonThatIsOnShowsItsPressedFace()
{
    const MainWindowStage stage;
    HoverButton &key = stage.profileKey(1);
    QCOMPARE(shownFace(key), faceOf(key, "mainD", {164, 640 - 512 - 35, 42, 35}));
}

void tst_layout::everyControlIsNamedForAssistiveTechnology()
{
    QFETCH(const KnownControl *, control);
    const MainWindowStage stage;
    QVERIFY(!controlNamed(stage, control->name)->accessibleName().isEmpty());
}

void tst_layout::theMemoryBarIsFixed()
{
    const MainWindowStage stage;
    auto *const bar = stage.view().findChild<pngProgressBar *>(QStringLiteral("MSMemoryUsageBar"));
    QVERIFY(bar);
    QCOMPARE(bar->tag(), 0x102A);
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 64);
    pointer::click(*bar, {45, 9});
    QCOMPARE(bar->getPos(), 0);

    const QRect part(60, 640 - 350 - 18, 90, 18);
    const QImage empty = skin("mainbk").copy(part).toImage();
    const QImage full = skin("mainO").copy(part).toImage();
    QVERIFY(empty != full);
    bar->setPos(32);
    const QImage half = shown(*bar);
    QCOMPARE(half.copy(45, 0, 45, 18), empty.copy(45, 0, 45, 18).convertToFormat(half.format()));
    QCOMPARE(half.copy(0, 0, 45, 18), full.copy(0, 0, 45, 18).convertToFormat(half.format()));
}

void tst_layout::theCornersAreTransparent()
{
    const MainWindowStage stage;
    // The view by itself: it begins on an opaque ground, which it has to clear.
    const QImage picture = shown(stage.view());
    for (const QPoint corner : {QPoint(0, 0), QPoint(653, 0), QPoint(0, 639), QPoint(653, 639)})
        QCOMPARE(picture.pixelColor(corner).alpha(), 0);
}

void tst_layout::theBackgroundIsTheSkin()
{
    const MainWindowStage stage;
    const QImage picture = shown(stage.view());
    const QImage background = skin("mainbk").toImage().convertToFormat(picture.format());
    const QRect bare(60, 600, 540, 30); // below every control
    QCOMPARE(picture.copy(bare), background.copy(bare));
}

void tst_layout::theLabelsStandOnTheBackground_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRect>("place");
    QTest::addColumn<int>("align");
    QTest::addColumn<int>("size");
    const auto row = [](const char *text, QRect place, Qt::AlignmentFlag align, int size) {
        QTest::newRow(text) << QString::fromLatin1(text) << place << int{align} << size;
    };
    row("PROFILE", {70, 640 - 520 - 15, 70, 15}, Qt::AlignHCenter, 11);
    row("Enable in-game mode", {80, 640 - 395 - 15, 120, 15}, Qt::AlignLeft, 10);
    row("Mouse Memory usage", {60, 640 - 368 - 15, 138, 15}, Qt::AlignLeft, 10);
    row("0%", {154, 640 - 350 - 15, 45, 15}, Qt::AlignLeft, 10);
}

void tst_layout::theLabelsStandOnTheBackground()
{
    QFETCH(QString, text);
    QFETCH(QRect, place);
    QFETCH(int, align);
    QFETCH(int, size);
    const MainWindowStage stage;
    const QImage picture = shown(stage.view()).copy(place);
    QVERIFY(picture != skin("mainbk").toImage().convertToFormat(picture.format()).copy(place));
    QCOMPARE(picture, withText(skin("mainbk"), text, place, size, align));
}

void tst_layout::aColourLineHasItsProfilesColour_data()
{
    QTest::addColumn<int>("profile");
    for (int profile = 0; profile < 10; ++profile)
        QTest::addRow("%d", profile + 1) << profile;
}

void tst_layout::aColourLineHasItsProfilesColour()
{
    QFETCH(int, profile);
    const MainWindowStage stage;
    const QColor colour(17 * profile, 255 - profile, 100 + profile);
    setColour(profile, colour);
    QCOMPARE(extentOf(shown(stage.view()), colour), colourLine(profile));
}

void tst_layout::aColourLineIsAsLargeAsItsKey()
{
    const MainWindowStage stage; // every profile's colour is 255, 60, 0 at first
    const QImage picture = shown(stage.view());
    const QColor colour(255, 60, 0);
    QCOMPARE(extentOf(picture, colour), QRect(166, 133, 398, 5));
    QVERIFY(picture.pixelColor(204, 135) != colour); // between the first two
}

void tst_layout::aColourOutsideItsRangeIsTheBrightest()
{
    const MainWindowStage stage;
    setColour(0, {0, 0, 0});
    m_Config.PROFILE[0].LED_COLOR_R = 256;
    m_Config.PROFILE[0].LED_COLOR_B = 0xFFFFFFFF;
    QCOMPARE(shownAt(stage.view(), {170, 135}), QColor(255, 0, 255));
}

/// Neither a line nor anything drawn after it covers more than it should.
void tst_layout::theColourLinesStandOnTheBackground()
{
    const MainWindowStage stage;
    QImage expected = skin("mainbk").toImage().convertToFormat(QImage::Format_ARGB32);
    QPainter painter(&expected);
    for (int profile = 0; profile < 10; ++profile)
        painter.fillRect(colourLine(profile), QColor(255, 60, 0));
    painter.end();
    const QRect around(150, 128, 430, 15); // below the keys
    QCOMPARE(shown(stage.view()).copy(around), expected.copy(around));
}

using Redraw = std::function<void(MainWindowStage &stage)>;

void tst_layout::everyRedrawDrawsTheWholeView_data()
{
    QTest::addColumn<Redraw>("redraw");
    const auto row = [](const char *name, const Redraw &redraw) { QTest::newRow(name) << redraw; };
    row("asked for by a panel",
        [](MainWindowStage &stage) { stage.interface->controller().refreshProfileColorBar(); });
    row("of the percentage",
        [](MainWindowStage &stage) { stage.view().update(154, 640 - 350 - 15, 45, 15); });
    row("of the labels", [](MainWindowStage &stage) { stage.view().update(0, 0, 200, 640); });
    row("of a part of a label", [](MainWindowStage &stage) { stage.view().update(90, 110, 9, 6); });
    row("after a recount that changes nothing",
        [](MainWindowStage &stage) { stage.reportProfile(1); });
}

void tst_layout::everyRedrawDrawsTheWholeView()
{
    QFETCH(Redraw, redraw);
    MainWindowStage stage;
    const QImage before = onScreen(stage.window());
    QVERIFY(extentOf(before, QColor(255, 60, 0)).isValid());
    for (int times = 0; times < 3; ++times) {
        redraw(stage);
        QCOMPARE(onScreen(stage.window()), before);
    }
}

void tst_layout::aNewColourIsDrawnWhenAPanelAsksForIt()
{
    const MainWindowStage stage;
    QImage expected = onScreen(stage.window());
    for (int profile = 0; profile < 10; ++profile) {
        const QColor colour(20 * profile, 7, 250 - profile);
        setColour(profile, colour);
        QPainter(&expected).fillRect(colourLine(profile), colour);
    }
    stage.interface->controller().refreshProfileColorBar();
    QCOMPARE(onScreen(stage.window()), expected);
}

KYR_GUI_TEST(tst_layout)
#include "tst_layout.moc"
