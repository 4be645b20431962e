#include "barsstage.h"
#include "support/keyboard.h"
#include "support/lettering.h"
#include "support/pictures.h"
#include "support/skinpictures.h"
#include "support/suite.h"

/// How the bars and their handles are drawn.
class tst_barlooks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOpenBarShowsItsWholePicture_data() { barRows(); }
    void anOpenBarShowsItsWholePicture();
    void aShutBarShowsThePicturesOuterEdge_data() { barRows(); }
    void aShutBarShowsThePicturesOuterEdge();
    void theTitleStandsOnTheOpenBar_data() { barRows(); }
    void theTitleStandsOnTheOpenBar();
    void theHandleTellsWhetherTheBarIsOpen_data() { barRows(); }
    void theHandleTellsWhetherTheBarIsOpen();
    void theHandleShowsThatTheDesktopHasShutTheBar_data() { barRows(); }
    void theHandleShowsThatTheDesktopHasShutTheBar();
    void theHandleLightsUpUnderThePointer_data() { barRows(); }
    void theHandleLightsUpUnderThePointer();
    void theHandleLightsUpWhilePressed_data() { barRows(); }
    void theHandleLightsUpWhilePressed();
    void theHandleChangesAsTheBarSetsOut_data() { barRows(); }
    void theHandleChangesAsTheBarSetsOut();
};

namespace {

/// A part, y downwards, of what the bar shows.
QImage shownPart(const BarsStage &stage, const KnownBar &known, QRect part)
{
    return shown(stage.content(known)).copy(part);
}

QImage picture(const KnownBar &known, QRect part)
{
    return skin(known.background).toImage().convertToFormat(QImage::Format_ARGB32).copy(part);
}

/// What a face looks like on the colour that stands behind a control drawn by itself.
QImage face(const HoverButton &toggle, const char *name)
{
    QPixmap pixmap(toggle.size());
    pixmap.fill(toggle.palette().color(QPalette::Window));
    QPainter(&pixmap).drawPixmap(0, 0, skin(name));
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The picture with what stands upon it painted over.
QImage without(const std::vector<QRect> &covers, QImage image)
{
    QPainter painter(&image);
    for (const QRect &cover : covers)
        painter.fillRect(cover, Qt::black);
    return image;
}

QSize pictureSize(const KnownBar &known)
{
    return {known.open.width, known.open.height};
}

} // namespace

void tst_barlooks::anOpenBarShowsItsWholePicture()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    stage.clickToggle(*known);
    const QRect whole(QPoint(), pictureSize(*known));
    QCOMPARE(skin(known->background).size(), whole.size());
    std::vector covers{UpHost(known->open.height).down(known->titleRect)};
    for (const UpRect &label : known->labels)
        covers.push_back(UpHost(known->open.height).down(label));
    // The controls of some bars are in a part of the bar's size, which shows nothing itself.
    const View &content = stage.content(*known);
    for (const QWidget *part : content.findChildren<QWidget *>()) {
        const QRect place(part->mapTo(&content, QPoint()), part->size());
        if (place != content.rect())
            covers.push_back(place);
    }
    QCOMPARE(without(covers, shownPart(stage, *known, whole)),
             without(covers, picture(*known, whole)));
}

void tst_barlooks::aShutBarShowsThePicturesOuterEdge()
{
    QFETCH(const KnownBar *, known);
    const BarsStage stage;
    const QSize shut = stage.bar(*known).size();
    const QSize open = pictureSize(*known);
    // Outer is left, right, below.
    const QPoint edge(known->open.x > 0 ? open.width() - shut.width() : 0,
                      open.height() - shut.height());
    const QRect part(0, 0, 16, 16); // off the handle
    QCOMPARE(shownPart(stage, *known, part), picture(*known, part.translated(edge)));
}

void tst_barlooks::theTitleStandsOnTheOpenBar()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    stage.clickToggle(*known);
    const QRect place = UpHost(known->open.height).down(known->titleRect);
    QPixmap expected = skin(known->background);
    QPainter painter(&expected);
    painter.setPen(kGold);
    writeLine(painter, QLatin1String(known->title), place, 12);
    painter.end();
    QVERIFY(shownPart(stage, *known, place) != picture(*known, place));
    QCOMPARE(shownPart(stage, *known, place),
             expected.toImage().convertToFormat(QImage::Format_ARGB32).copy(place));
}

void tst_barlooks::theHandleTellsWhetherTheBarIsOpen()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    HoverButton &toggle = stage.toggle(*known);
    QCOMPARE(skin(known->shutFace).size(), toggle.size());
    QCOMPARE(shown(toggle), face(toggle, known->shutFace));
    stage.clickToggle(*known);
    stage.pointAway(*known);
    QCOMPARE(shown(toggle), face(toggle, known->openFace));
    stage.clickToggle(*known);
    stage.pointAway(*known);
    QCOMPARE(shown(toggle), face(toggle, known->shutFace));
}

void tst_barlooks::theHandleShowsThatTheDesktopHasShutTheBar()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    stage.clickToggle(*known);
    stage.pointAway(*known);
    stage.bar(*known).windowHandle()->close();
    stage.arrive();
    HoverButton &toggle = stage.toggle(*known);
    QCOMPARE(shown(toggle), face(toggle, known->shutFace));
}

void tst_barlooks::theHandleLightsUpUnderThePointer()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    HoverButton &toggle = stage.toggle(*known);
    for (const char *lit : {known->shutLit, known->openLit}) {
        stage.pointAway(*known);
        pointer::move(toggle, toggle.rect().center());
        QCOMPARE(shown(toggle), face(toggle, lit));
        stage.clickToggle(*known);
    }
}

void tst_barlooks::theHandleLightsUpWhilePressed()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    HoverButton &toggle = stage.toggle(*known);
    const QRect inner = toggle.rect().adjusted(1, 1, -1, -1); // within the frame of the keyboard
    keyboard::tabTo(toggle);
    stage.pointAway(*known);
    QWindow *const window = stage.bar(*known).windowHandle();
    for (const char *lit : {known->shutLit, known->openLit}) {
        QTest::keyPress(window, Qt::Key_Space);
        QCOMPARE(shown(toggle).copy(inner), face(toggle, lit).copy(inner));
        QTest::keyRelease(window, Qt::Key_Space);
        stage.arrive();
    }
}

void tst_barlooks::theHandleChangesAsTheBarSetsOut()
{
    QFETCH(const KnownBar *, known);
    BarsStage stage;
    HoverButton &toggle = stage.toggle(*known);
    for (const char *plain : {known->openFace, known->shutFace}) {
        pointer::click(toggle);
        stage.pointAway(*known);
        QCOMPARE(shown(toggle), face(toggle, plain));
        stage.arrive();
    }
}

KYR_GUI_TEST(tst_barlooks)
#include "tst_barlooks.moc"
