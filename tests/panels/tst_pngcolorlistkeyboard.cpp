#include "colorpicture.h"
#include "support/paintwatch.h"
#include "support/pictures.h"
#include "support/suite.h"

/// Picking a colour by keyboard: a cross moves over the picture.
class tst_pngcolorlistkeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstKeyShowsTheCrossInTheMiddle_data();
    void theFirstKeyShowsTheCrossInTheMiddle();
    void anArrowMovesTheCross_data();
    void anArrowMovesTheCross();
    void theCrossStaysOnThePicture_data();
    void theCrossStaysOnThePicture();
    void everyPointCanBePicked();
    void returnAndEnterPick_data();
    void returnAndEnterPick();
    void theColourUnderTheCrossIsToldToAssistiveTechnology();
    void theCrossIsNotPicked();
    void aMovedCrossIsPaintedByItself();
    void theCrossShowsOnEveryColour_data() { swatchRows(); }
    void theCrossShowsOnEveryColour();
    void otherKeysMoveAndPickNothing();
};

namespace {

const QPoint kPictureMiddle(59, 48);

/// Where the picture does not show itself.
QRect covered(ColourStage &stage)
{
    const QImage now = shown(stage.list);
    const QImage drawn = drawnColours();
    QRect extent;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            if (now.pixel(x, y) != drawn.pixel(x, y))
                extent |= QRect(x, y, 1, 1);
        }
    }
    return extent;
}

/// Shows the cross and moves it from the middle.
void moveTo(ColourStage &stage, QPoint to)
{
    const auto press = [&](int by, Qt::Key back, Qt::Key on) {
        const Qt::Key key = by < 0 ? back : on;
        for (int step = 0; step < std::abs(by) / 4; ++step)
            stage.key(key);
        for (int step = 0; step < std::abs(by) % 4; ++step)
            stage.key(key, Qt::ShiftModifier);
    };
    stage.key(Qt::Key_Return);
    press(to.x() - kPictureMiddle.x(), Qt::Key_Left, Qt::Key_Right);
    press(to.y() - kPictureMiddle.y(), Qt::Key_Up, Qt::Key_Down);
}

} // namespace

void tst_pngcolorlistkeyboard::theFirstKeyShowsTheCrossInTheMiddle_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const Qt::Key key :
         {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter})
        QTest::newRow(qPrintable(QKeySequence(key).toString())) << key;
}

void tst_pngcolorlistkeyboard::theFirstKeyShowsTheCrossInTheMiddle()
{
    QFETCH(Qt::Key, key);
    ColourStage stage;
    QCOMPARE(covered(stage), QRect());
    stage.key(key);
    QCOMPARE(covered(stage), QRect(kPictureMiddle - QPoint(4, 4), QSize(9, 9)));
    // The point that is picked is to be seen.
    QCOMPARE(shownAt(stage.list, kPictureMiddle), drawnColours().pixelColor(kPictureMiddle));
    QCOMPARE(stage.picks.count(), std::size_t{0});
}

void tst_pngcolorlistkeyboard::anArrowMovesTheCross_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("with");
    QTest::addColumn<QPoint>("by");
    const auto row = [](const char *name, Qt::Key key, QPoint by) {
        QTest::newRow(name) << key << Qt::KeyboardModifiers() << 4 * by;
        QTest::addRow("%s with Shift", name)
            << key << Qt::KeyboardModifiers(Qt::ShiftModifier) << by;
    };
    row("left", Qt::Key_Left, {-1, 0});
    row("right", Qt::Key_Right, {1, 0});
    row("up", Qt::Key_Up, {0, -1});
    row("down", Qt::Key_Down, {0, 1});
}

void tst_pngcolorlistkeyboard::anArrowMovesTheCross()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, with);
    QFETCH(QPoint, by);
    ColourStage stage;
    stage.key(key, with); // shows it
    for (int step = 1; step <= 3; ++step) {
        stage.key(key, with);
        const QPoint there = kPictureMiddle + step * by;
        QCOMPARE(covered(stage).center(), there);
        stage.key(Qt::Key_Return);
        QCOMPARE(stage.picked(), drawnColours().pixelColor(there));
    }
    QCOMPARE(stage.picks.count(), std::size_t{3});
}

void tst_pngcolorlistkeyboard::theCrossStaysOnThePicture_data()
{
    QTest::addColumn<Qt::Key>("across");
    QTest::addColumn<Qt::Key>("along");
    QTest::addColumn<QPoint>("corner");
    QTest::newRow("upper left") << Qt::Key_Left << Qt::Key_Up << QPoint(0, 0);
    QTest::newRow("upper right") << Qt::Key_Right << Qt::Key_Up << QPoint(117, 0);
    QTest::newRow("lower left") << Qt::Key_Left << Qt::Key_Down << QPoint(0, 95);
    QTest::newRow("lower right") << Qt::Key_Right << Qt::Key_Down << QPoint(117, 95);
}

void tst_pngcolorlistkeyboard::theCrossStaysOnThePicture()
{
    QFETCH(Qt::Key, across);
    QFETCH(Qt::Key, along);
    QFETCH(QPoint, corner);
    ColourStage stage;
    for (int step = 0; step < 40; ++step) {
        stage.key(across);
        stage.key(along);
    }
    const QRect visible = QRect(corner - QPoint(4, 4), QSize(9, 9)) & QRect(0, 0, 118, 96);
    QCOMPARE(covered(stage), visible);
    stage.key(Qt::Key_Return);
    QCOMPARE(stage.picked(), drawnColours().pixelColor(corner));
    // It turns round at once.
    stage.key(across == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left);
    stage.key(Qt::Key_Return);
    const int inward = across == Qt::Key_Left ? 4 : -4;
    QCOMPARE(stage.picked(), drawnColours().pixelColor(corner + QPoint(inward, 0)));
}

void tst_pngcolorlistkeyboard::everyPointCanBePicked()
{
    const QImage drawn = drawnColours();
    for (const QPoint to : {QPoint(0, 1), QPoint(5, 30), QPoint(33, 2), QPoint(61, 63),
                            QPoint(77, 47), QPoint(98, 70), QPoint(116, 94)}) {
        ColourStage stage;
        moveTo(stage, to);
        stage.key(Qt::Key_Return);
        QCOMPARE(stage.picked(), drawn.pixelColor(to));
    }
}

void tst_pngcolorlistkeyboard::returnAndEnterPick_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_pngcolorlistkeyboard::returnAndEnterPick()
{
    QFETCH(Qt::Key, key);
    ColourStage stage;
    stage.key(key); // shows the cross
    stage.key(key);
    QCOMPARE(stage.picked(), drawnColours().pixelColor(kPictureMiddle));
    QCOMPARE(stage.picks.senders, std::vector{&stage.list});
}

void tst_pngcolorlistkeyboard::theColourUnderTheCrossIsToldToAssistiveTechnology()
{
    ColourStage stage;
    QCOMPARE(stage.list.accessibleDescription(), QString());
    moveTo(stage, {18, 86});
    QCOMPARE(stage.list.accessibleDescription(), QStringLiteral("red 255, green 60, blue 0"));
}

void tst_pngcolorlistkeyboard::theCrossIsNotPicked()
{
    ColourStage stage;
    stage.key(Qt::Key_Right);
    const QImage drawn = drawnColours();
    const QRect cross = covered(stage);
    QCOMPARE(cross.size(), QSize(9, 9));
    for (int y = cross.top(); y <= cross.bottom(); ++y) {
        for (int x = cross.left(); x <= cross.right(); ++x) {
            pointer::click(stage.list, {x, y});
            QCOMPARE(stage.picked(), drawn.pixelColor(x, y));
        }
    }
}

void tst_pngcolorlistkeyboard::aMovedCrossIsPaintedByItself()
{
    ColourStage stage;
    QCoreApplication::processEvents();
    const PaintWatch watch(stage.list);
    stage.key(Qt::Key_Right);
    QTRY_VERIFY(watch.hasPainted({59, 48}));
}

void tst_pngcolorlistkeyboard::theCrossShowsOnEveryColour()
{
    QFETCH(const KnownSwatch *, known);
    ColourStage stage;
    moveTo(stage, known->point);
    const QImage now = shown(stage.list);
    const QPoint white = known->point - QPoint(4, 4);
    const QPoint black = known->point - QPoint(3, 3);
    QCOMPARE(now.pixelColor(white), QColor(Qt::white));
    QCOMPARE(now.pixelColor(black), QColor(Qt::black));
    QCOMPARE(now.pixelColor(known->point), known->colour);
}

void tst_pngcolorlistkeyboard::otherKeysMoveAndPickNothing()
{
    ColourStage stage;
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_A, Qt::Key_Shift, Qt::Key_Escape})
        stage.key(key);
    QCOMPARE(covered(stage), QRect());
    QCOMPARE(stage.picks.count(), std::size_t{0});
}

KYR_GUI_TEST(tst_pngcolorlistkeyboard)
#include "tst_pngcolorlistkeyboard.moc"
