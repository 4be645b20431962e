#include "editorstage.h"
#include "platform/canvas.h"
#include "support/lettering.h"
#include "support/screen.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// What the macro editor is drawn from: its pictures, labels and the frames of its fields.
class tst_editorlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelsStandBesideTheirControls_data();
    void labelsStandBesideTheirControls();
    void betweenTheControlsShowsThePicture();
    void aButtonsFacesAreCutFromThePictures_data();
    void aButtonsFacesAreCutFromThePictures();
    void aBoxShowsWhetherItIsOn_data();
    void aBoxShowsWhetherItIsOn();
    void aLoopCountThatIsNotUsedIsGrey();
    void aKeyThatIsNotUsedIsGrey_data();
    void aKeyThatIsNotUsedIsGrey();
    void theFieldWithTheKeyboardIsFramedBrightly_data();
    void theFieldWithTheKeyboardIsFramedBrightly();
    void aHiddenFieldHasNoFrame();
};

namespace {

constexpr UpHost kDialog(522);
constexpr QColor kGrey(170, 170, 170);

QImage skinPart(const char *picture, UpRect place)
{
    return skin(picture).toImage().copy(kDialog.down(place)).convertToFormat(QImage::Format_ARGB32);
}

/// The background with a label on it.
QImage labelled(const char *text, UpRect place, int align)
{
    QPixmap picture = skin("Macro_N");
    QPainter painter(&picture);
    painter.setPen(kGold);
    writeLine(painter, QString::fromLatin1(text), kDialog.down(place), 11, align);
    return picture.toImage().copy(kDialog.down(place)).convertToFormat(QImage::Format_ARGB32);
}

QImage dialogPart(const EditorStage &stage, UpRect place)
{
    return shown(*stage.view).copy(kDialog.down(place));
}

struct BoxRow
{
    const char *name;
    const char *off;
    const char *on;
};
constexpr BoxRow kBoxes[] = {
    {"ButtonStartKey", "uncheck", "check"},      {"ButtonSendKey", "uncheck", "check"},
    {"ButtonCopy", "radio_n", "radio_d"},        {"ButtonText", "radio_n", "radio_d"},
    {"ButtonRecordDelay", "radio_n", "radio_d"}, {"ButtonNoDelay", "radio_n", "radio_d"},
    {"ButtonLoop", "uncheck", "check"},
};

} // namespace

void tst_editorlooks::labelsStandBesideTheirControls_data()
{
    QTest::addColumn<UpRect>("copyPaste");
    QTest::addColumn<UpRect>("events");
    const auto row = [](const char *label, UpRect copyPaste, UpRect events) {
        QTest::newRow(label) << copyPaste << events;
    };
    row("Custom Macro", {10, 497, 130, 15}, {10, 497, 130, 15});
    row("Name:", {20, 422, 50, 15}, {20, 422, 50, 15});
    row("Start Key", {50, 390, 100, 15}, {});
    row("Send Key", {50, 230, 100, 15}, {});
    row("Copy & Paste(Driver Only)", {46, 196, 200, 15}, {46, 250, 200, 15});
    row("Text(Auto Delay)", {46, 175, 100, 15}, {46, 230, 100, 15});
    row("Record Delay", {46, 154, 100, 15}, {46, 207, 100, 15});
    row("No Delay", {46, 130, 100, 15}, {46, 182, 100, 15});
    row("Loop", {}, {50, 150, 50, 15});
}

void tst_editorlooks::labelsStandBesideTheirControls()
{
    QFETCH(UpRect, copyPaste);
    QFETCH(UpRect, events);
    const char *const text = QTest::currentDataTag();
    const int align = text == QByteArray("Custom Macro") ? Qt::AlignHCenter : Qt::AlignLeft;
    const EditorStage stage;
    const auto compare = [&](const char *mode, UpRect place) {
        stage.click(mode);
        if (place.width > 0)
            QCOMPARE(dialogPart(stage, place), labelled(text, place, align));
    };
    compare("ButtonCopy", copyPaste);
    for (const char *mode : {"ButtonText", "ButtonRecordDelay", "ButtonNoDelay"})
        compare(mode, events);
}

/// Also where the other layout has labels.
void tst_editorlooks::betweenTheControlsShowsThePicture()
{
    const EditorStage stage;
    const auto isBare = [&](UpRect place) {
        return dialogPart(stage, place) == skinPart("Macro_N", place);
    };
    stage.click("ButtonText");
    QVERIFY(isBare({0, 510, 261, 12}));
    QVERIFY(isBare({50, 265, 195, 5}));
    QVERIFY(isBare({0, 124, 261, 16}));
    QVERIFY(isBare({0, 0, 261, 11}));
    stage.click("ButtonCopy");
    QVERIFY(isBare({50, 407, 195, 7}));
    QVERIFY(isBare({50, 215, 195, 12}));
    QVERIFY(isBare({150, 130, 100, 60}));
}

void tst_editorlooks::aButtonsFacesAreCutFromThePictures_data()
{
    QTest::addColumn<UpRect>("place");
    QTest::newRow("ButtonOK") << UpRect{64, 48, 135, 38};
    QTest::newRow("ButtonClear") << UpRect{64, 85, 135, 38};
    QTest::newRow("ButtonCancel") << UpRect{64, 11, 135, 38};
    QTest::newRow("ButtonClose") << UpRect{219, 483, 32, 32};
}

void tst_editorlooks::aButtonsFacesAreCutFromThePictures()
{
    QFETCH(UpRect, place);
    const EditorStage stage;
    HoverButton &button = stage.button(QTest::currentDataTag());
    button.setCaptionText({});
    pointer::move(*stage.view, {6, 210});
    QCOMPARE(shown(button), skinPart("Macro_N", place));
    pointer::move(button, button.rect().center());
    QCOMPARE(shown(button), skinPart("Macro_O", place));
    pointer::press(button, button.rect().center());
    QCOMPARE(shown(button), skinPart("Macro_D", place));
    pointer::release(*stage.view, {5, 200});
}

void tst_editorlooks::aBoxShowsWhetherItIsOn_data()
{
    QTest::addColumn<QByteArray>("off");
    QTest::addColumn<QByteArray>("on");
    for (const auto &[name, off, on] : kBoxes)
        QTest::newRow(name) << QByteArray(off) << QByteArray(on);
}

void tst_editorlooks::aBoxShowsWhetherItIsOn()
{
    QFETCH(QByteArray, off);
    QFETCH(QByteArray, on);
    const EditorStage stage;
    HoverButton &box = stage.button(QTest::currentDataTag());
    stage.click(box.isVisible() ? "ButtonText" : "ButtonCopy");
    const QRect place = box.geometry();
    for (const bool isOn : {false, true, false}) {
        box.setChecked(isOn);
        QPixmap expected = skin("Macro_N");
        const QPixmap picture = skin((isOn ? on : off).constData());
        // From the lower left corner: what is larger than its frame is cut at the top and right.
        QPainter(&expected).drawPixmap(place.left(), place.bottom() + 1 - picture.height(),
                                       picture);
        QCOMPARE(shown(*stage.view).copy(place),
                 expected.toImage().convertToFormat(QImage::Format_ARGB32).copy(place));
    }
}

void tst_editorlooks::aLoopCountThatIsNotUsedIsGrey()
{
    const EditorStage stage;
    const QPoint at(40, 5);
    QCOMPARE(shownAt(stage.loop(), at), kGrey);
    stage.click("ButtonLoop");
    QCOMPARE(shownAt(stage.loop(), at), QColor(Qt::white));
    stage.click("ButtonLoop");
    QCOMPARE(shownAt(stage.loop(), at), kGrey);
}

void tst_editorlooks::aKeyThatIsNotUsedIsGrey_data()
{
    QTest::addColumn<QByteArray>("view");
    QTest::newRow("ButtonStartKey") << QByteArray("pStartDisplayView");
    QTest::newRow("ButtonSendKey") << QByteArray("pSendDisplayView");
}

void tst_editorlooks::aKeyThatIsNotUsedIsGrey()
{
    QFETCH(QByteArray, view);
    const EditorStage stage;
    stage.click("ButtonCopy");
    QWidget &key = stage.find(view.constData());
    const QPoint at(220, 15);
    QCOMPARE(shownAt(key, at), QColor(Qt::white));
    stage.click(QTest::currentDataTag());
    QCOMPARE(shownAt(key, at), kGrey);
    stage.click(QTest::currentDataTag());
    QCOMPARE(shownAt(key, at), QColor(Qt::white));
}

void tst_editorlooks::theFieldWithTheKeyboardIsFramedBrightly_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<UpRect>("place");
    const auto row = [](const char *field, const char *mode, UpRect place) {
        QTest::newRow(field) << QByteArray(mode) << place;
    };
    row("pTextfieldMacroName", "ButtonText", {80, 417, 165, 24});
    row("pMacroDisplayView", "ButtonText", {15, 272, 230, 140});
    row("pLoopTextfield", "ButtonText", {109, 142, 50, 30});
    row("pStartDisplayView", "ButtonCopy", {15, 365, 230, 18});
    row("pCopyTextfield", "ButtonCopy", {15, 273, 230, 90});
    row("pSendDisplayView", "ButtonCopy", {15, 252, 230, 18});
}

void tst_editorlooks::theFieldWithTheKeyboardIsFramedBrightly()
{
    QFETCH(QByteArray, mode);
    QFETCH(UpRect, place);
    const EditorStage stage;
    stage.click(mode.constData());
    stage.clickBackground();
    // Taken from the screen: that it is drawn anew is what matters.
    const auto edge = [&](int out) {
        const QRect field = kDialog.down(place);
        return onScreen(*stage.window).pixelColor(field.left() - out, field.center().y());
    };
    QCOMPARE(edge(1), kRim);
    QCOMPARE(edge(2), kGoldMiddle);
    stage.click(QTest::currentDataTag());
    QCOMPARE(edge(1), kGoldBright);
    QCOMPARE(edge(2), kGold);
    stage.clickBackground();
    QCOMPARE(edge(1), kRim);
}

void tst_editorlooks::aHiddenFieldHasNoFrame()
{
    const EditorStage stage;
    stage.click("ButtonCopy");
    const UpRect aroundLoop{147, 140, 60, 34};
    QCOMPARE(dialogPart(stage, aroundLoop), skinPart("Macro_N", aroundLoop));
    QVERIFY(shownAt(*stage.view, {0, 521}) != kRim);
}

KYR_GUI_TEST(tst_editorlooks)
#include "tst_editorlooks.moc"
