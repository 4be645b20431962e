#include "charinfostage.h"
#include "support/lettering.h"
#include "support/pictures.h"
#include "support/screen.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// What the character dialog is drawn from: its pictures, its labels and the frames of its fields.
class tst_charinfoviewlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelsStandBesideTheirControls_data();
    void labelsStandBesideTheirControls();
    void elsewhereShowsThePicture();
    void aButtonsFacesAreCutFromThePictures_data();
    void aButtonsFacesAreCutFromThePictures();
    void theFieldWithTheKeyboardIsFramedBrightly_data();
    void theFieldWithTheKeyboardIsFramedBrightly();
    void aWindowWithoutTheKeyboardFramesNoFieldBrightly();
};

namespace {

constexpr UpHost kCharInfoDialog(215);

QImage charInfoSkin(const char *picture, UpRect place)
{
    return skin(picture)
        .toImage()
        .copy(kCharInfoDialog.down(place))
        .convertToFormat(QImage::Format_ARGB32);
}

QImage charInfoPart(const CharInfoStage &stage, UpRect place)
{
    return shown(*stage.view).copy(kCharInfoDialog.down(place));
}

/// The colour of a field's frame on the screen, so many points out of the field.
QColor charInfoEdge(const CharInfoStage &stage, const TextField &field, int out)
{
    const QRect place = field.geometry();
    return onScreen(*stage.window).pixelColor(place.left() - out, place.center().y());
}

} // namespace

void tst_charinfoviewlooks::labelsStandBesideTheirControls_data()
{
    QTest::addColumn<UpRect>("place");
    QTest::addColumn<int>("align");
    const auto row = [](const char *label, UpRect place, Qt::AlignmentFlag align) {
        QTest::newRow(label) << place << int{align};
    };
    row("Add a Kyr Character", {15, 192, 250, 15}, Qt::AlignLeft);
    row("Realm:", {10, 120, 100, 20}, Qt::AlignRight);
    row("Character Name:", {15, 92, 100, 20}, Qt::AlignRight);
    row("Region:", {296, 145, 85, 15}, Qt::AlignLeft);
}

void tst_charinfoviewlooks::labelsStandBesideTheirControls()
{
    QFETCH(UpRect, place);
    QFETCH(int, align);
    const CharInfoStage stage;
    QPixmap expected = skin("charinfo_n");
    QPainter painter(&expected);
    painter.setPen(kGold);
    writeLine(painter, QString::fromLatin1(QTest::currentDataTag()), kCharInfoDialog.down(place),
              11, align);
    painter.end();
    const QImage part =
        expected.toImage().copy(kCharInfoDialog.down(place)).convertToFormat(QImage::Format_ARGB32);
    QVERIFY(part != charInfoSkin("charinfo_n", place));
    QCOMPARE(charInfoPart(stage, place), part);
}

/// Also in the corners, which are transparent.
void tst_charinfoviewlooks::elsewhereShowsThePicture()
{
    const CharInfoStage stage;
    constexpr UpRect bare[] = {
        {0, 207, 453, 8}, {0, 165, 453, 20}, {0, 45, 453, 38}, {0, 0, 140, 80}, {310, 0, 143, 80},
    };
    for (const UpRect place : bare)
        QCOMPARE(charInfoPart(stage, place), charInfoSkin("charinfo_n", place));
}

void tst_charinfoviewlooks::aButtonsFacesAreCutFromThePictures_data()
{
    QTest::addColumn<UpRect>("place");
    for (const KnownCharInfoButton &known : kCharInfoButtons)
        QTest::newRow(known.name) << known.place;
}

void tst_charinfoviewlooks::aButtonsFacesAreCutFromThePictures()
{
    QFETCH(UpRect, place);
    const QImage normal = charInfoSkin("charinfo_n", place);
    const QImage over = charInfoSkin("charinfo_o", place);
    const QImage down = charInfoSkin("charinfo_d", place);
    QVERIFY(normal != over && normal != down && over != down);
    const CharInfoStage stage;
    HoverButton &button = stage.button(QTest::currentDataTag());
    button.setCaptionText({});
    pointer::move(*stage.view, {21, 160});
    QCOMPARE(shown(button), normal);
    pointer::move(button, button.rect().center());
    QCOMPARE(shown(button), over);
    pointer::press(button, button.rect().center());
    QCOMPARE(shown(button), down);
    pointer::release(*stage.view, {20, 150});
    QVERIFY(stage.stays());
}

void tst_charinfoviewlooks::theFieldWithTheKeyboardIsFramedBrightly_data()
{
    QTest::addColumn<QByteArray>("other");
    QTest::newRow("pTextfieldRealm") << QByteArray("pTextfieldName");
    QTest::newRow("pTextfieldName") << QByteArray("pTextfieldRealm");
}

void tst_charinfoviewlooks::theFieldWithTheKeyboardIsFramedBrightly()
{
    QFETCH(QByteArray, other);
    const CharInfoStage stage;
    const auto &field = stage.find<TextField>(QTest::currentDataTag());
    stage.click(other.constData());
    QCOMPARE(charInfoEdge(stage, field, 1), kRim);
    QCOMPARE(charInfoEdge(stage, field, 2), kGoldMiddle);
    stage.click(QTest::currentDataTag());
    QCOMPARE(charInfoEdge(stage, field, 1), kGoldBright);
    QCOMPARE(charInfoEdge(stage, field, 2), kGold);
    stage.click(other.constData());
    QCOMPARE(charInfoEdge(stage, field, 1), kRim);
}

void tst_charinfoviewlooks::aWindowWithoutTheKeyboardFramesNoFieldBrightly()
{
    const CharInfoStage stage;
    QCOMPARE(charInfoEdge(stage, stage.realm(), 2), kGold);
    // Its owner's keyboard would count as its own.
    QWidget other;
    other.show();
    CharInfoStage::giveKeyboardTo(other);
    QCOMPARE(charInfoEdge(stage, stage.realm(), 2), kGoldMiddle);
    CharInfoStage::giveKeyboardTo(*stage.window);
    QCOMPARE(charInfoEdge(stage, stage.realm(), 2), kGold);
}

KYR_GUI_TEST(tst_charinfoviewlooks)
#include "tst_charinfoviewlooks.moc"
