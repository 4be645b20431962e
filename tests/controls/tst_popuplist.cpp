#include "popupstage.h"
#include "support/keyboard.h"
#include "support/pictures.h"
#include "support/suite.h"

#include <QtGui/QScreen>

/// A list that opens below a button: where it opens and what it shows.
class tst_popuplist : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aWindowOpensAboveWhereOnlyThereIsRoom_data();
    void aWindowOpensAboveWhereOnlyThereIsRoom();
    void aListOpensDirectlyBelowItsButton();
    void whereTheScreenEndsEarlyAListOpensAboveItsButton_data();
    void whereTheScreenEndsEarlyAListOpensAboveItsButton();
    void theListShowsItsRows();
    void theListHasTheKeyboard();
    void aListOpenedByKeyShowsWhereTheKeyboardIs();
    void aRowThatIsNotThereIsNotSelected_data();
    void aRowThatIsNotThereIsNotSelected();
    void anyOtherContentOpensAtItsPlace();
    void whereTheScreenEndsEarlyOtherContentIsMirrored();
};

namespace {

constexpr UpRect kButton{100, 300, 90, 30};
constexpr UpRect kBelow{100, 200, 90, 100};
constexpr UpRect kAboveButton{100, 330, 90, 100};

/// Moves the window to where the screen ends so far below its button.
void leaveBelowButton(const PopupStage &stage, int room)
{
    const QRect screen = stage.window->screen()->availableGeometry();
    const int lowerEdge = stage.button->geometry().bottom() + 1;
    stage.window->move(screen.left() + 100, screen.bottom() + 1 - room - lowerEdge);
}

QRect placeOf(const QWidget &widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

/// Opens a picture of 118 x 96 that covers the lowest 3 points of the stage's button.
QWidget &openContent(PopupStage &stage)
{
    auto *const content = new PopupContent(nullptr);
    const UpRect at = stage.button->frame();
    stage.popup->open(*stage.button, {"place", "Colors", content, {at.x + 4, at.y - 93, 118, 96}},
                      {&stage, &PopupStage::close});
    return *content->window();
}

} // namespace

void tst_popuplist::aWindowOpensAboveWhereOnlyThereIsRoom_data()
{
    QTest::addColumn<UpRect>("below");
    QTest::addColumn<UpRect>("visible");
    QTest::addColumn<UpRect>("frame");
    const auto row = [](const char *name, UpRect below, UpRect visible, UpRect frame) {
        QTest::newRow(name) << below << visible << frame;
    };
    row("room on both sides", kBelow, {0, 0, 1000, 800}, kBelow);
    row("only below", kBelow, {0, 0, 1000, 400}, kBelow);
    row("below, just so", kBelow, {0, 200, 1000, 600}, kBelow);
    row("one point short below", kBelow, {0, 201, 1000, 599}, kAboveButton);
    row("above, just so", kBelow, {0, 201, 1000, 229}, kAboveButton);
    row("one point short on both sides", kBelow, {0, 201, 1000, 228}, kBelow);
    row("far below the screen", kBelow, {0, 500, 1000, 300}, kAboveButton);
    row("beside the screen, room below", kBelow, {400, 0, 1000, 800}, kBelow);
    row("beside the screen, room above", kBelow, {-400, 250, 300, 550}, kAboveButton);
    row("below zero", {100, -100, 90, 100}, {0, -100, 1000, 800}, {100, -100, 90, 100});
    row("with a gap", {110, 195, 90, 100}, {0, 250, 1000, 550}, {110, 335, 90, 100});
    row("a gap that leaves no room", {100, 195, 90, 100}, {0, 200, 1000, 234}, {100, 195, 90, 100});
    row("over the button's edge", {104, 207, 118, 96}, {0, 250, 1000, 550}, {104, 327, 118, 96});
    row("over the edge, just so", {104, 207, 118, 96}, {0, 250, 1000, 173}, {104, 327, 118, 96});
}

void tst_popuplist::aWindowOpensAboveWhereOnlyThereIsRoom()
{
    QFETCH(UpRect, below);
    QFETCH(UpRect, visible);
    QTEST(popupFrame(kButton, below, visible), "frame");
}

void tst_popuplist::aListOpensDirectlyBelowItsButton()
{
    PopupStage stage;
    const QWidget &list = stage.opened();
    const QPoint below = stage.button->mapToGlobal(QPoint(0, 27));
    QCOMPARE(placeOf(list), QRect(below, QSize(97, 60)));
    QCOMPARE(list.window()->geometry(), QRect(below, QSize(97, 60)));
    QVERIFY(list.window()->windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(list.window()->windowType(), Qt::Tool);
    QCOMPARE(list.window()->parentWidget(), stage.window.get());
}

void tst_popuplist::whereTheScreenEndsEarlyAListOpensAboveItsButton_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("top"); // of the list, from the button's
    QTest::newRow("just enough") << 60 << 27;
    QTest::newRow("one point short") << 59 << -60;
    QTest::newRow("the button is below it") << -40 << -60;
}

void tst_popuplist::whereTheScreenEndsEarlyAListOpensAboveItsButton()
{
    QFETCH(int, room);
    QFETCH(int, top);
    PopupStage stage;
    leaveBelowButton(stage, room);
    const QPoint place = stage.button->mapToGlobal(QPoint(0, top));
    QCOMPARE(placeOf(stage.opened()), QRect(place, QSize(97, 60)));
}

void tst_popuplist::theListShowsItsRows()
{
    PopupStage stage;
    const pngListBox &list = stage.opened();
    QCOMPARE(list.getCount(), 3);
    for (int row = 0; row < 3; ++row)
        QCOMPARE(list.stringAt(row), QLatin1String(PopupStage::kTexts.at(row)));
    QCOMPARE(list.tag(), 77);
    QCOMPARE(list.getcursel(), 1);
    QCOMPARE(list.window()->windowTitle(), QStringLiteral("Numbers"));
    QCOMPARE(list.accessibleName(), QStringLiteral("Numbers"));
}

void tst_popuplist::theListHasTheKeyboard()
{
    PopupStage stage;
    QVERIFY(stage.popup->mayOpen());
    const pngListBox &list = stage.opened();
    QVERIFY(!stage.popup->mayOpen());
    QCOMPARE(QApplication::activeWindow(), list.window());
    QCOMPARE(QApplication::focusWidget(), &list);
    QTest::keyClick(pointer::windowOf(list), Qt::Key_Down);
    QCOMPARE(list.getcursel(), 2);
}

void tst_popuplist::aListOpenedByKeyShowsWhereTheKeyboardIs()
{
    PopupStage stage;
    HoverButton other(stage.window.get(), {150, 150, 97, 27});
    other.show();
    const QPoint edge(kPopupFrame, rowPoint(PopupStage::kSelected).y());
    pointer::click(*stage.button);
    QVERIFY(shownAt(PopupStage::list(), edge) != kGold);
    keyboard::press(Qt::Key_Escape);
    QTRY_VERIFY(PopupStage::hasKeyboard(*stage.window));
    keyboard::tabTo(other);
    keyboard::tabTo(*stage.button);
    keyboard::press(Qt::Key_Space);
    QCOMPARE(shownAt(PopupStage::list(), edge), kGold);
}

void tst_popuplist::aRowThatIsNotThereIsNotSelected_data()
{
    QTest::addColumn<int>("selected");
    QTest::newRow("none") << -1;
    QTest::newRow("past the last") << 3;
    QTest::newRow("far past") << std::numeric_limits<int>::max();
    QTest::newRow("far before") << std::numeric_limits<int>::min();
}

void tst_popuplist::aRowThatIsNotThereIsNotSelected()
{
    QFETCH(int, selected);
    PopupStage stage;
    stage.open(selected);
    QCOMPARE(PopupStage::list().getcursel(), -1);
}

void tst_popuplist::anyOtherContentOpensAtItsPlace()
{
    PopupStage stage;
    const QWidget &window = openContent(stage);
    QTRY_VERIFY(PopupStage::hasKeyboard(window));
    QCOMPARE(window.geometry(), QRect(stage.button->mapToGlobal(QPoint(4, 24)), QSize(118, 96)));
    QCOMPARE(window.objectName(), QStringLiteral("place"));
    QCOMPARE(window.windowTitle(), QStringLiteral("Colors"));
    const QWidget *const content = QApplication::focusWidget();
    QVERIFY(content);
    QCOMPARE(content->window(), &window);
    QCOMPARE(content->accessibleName(), QStringLiteral("Colors"));
}

void tst_popuplist::whereTheScreenEndsEarlyOtherContentIsMirrored()
{
    PopupStage stage;
    leaveBelowButton(stage, 92); // of 93
    const QPoint above = stage.button->mapToGlobal(QPoint(4, -93));
    QCOMPARE(openContent(stage).geometry(), QRect(above, QSize(118, 96)));
}

KYR_GUI_TEST(tst_popuplist)
#include "tst_popuplist.moc"
