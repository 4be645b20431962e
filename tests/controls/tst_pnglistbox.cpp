#include "controls/liststage.h"
#include "support/suite.h"

/// The list of text rows: its contents, selecting, the double click, the keyboard.
class tst_pnglistbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreAddedAndCleared();
    void settingTheSelectionSendsNothing();
    void aPressSelectsTheRowUnderThePointer_data();
    void aPressSelectsTheRowUnderThePointer();
    void aPressBelowTheLastRowKeepsTheSelectionAndStillSends();
    void theReleaseSendsTheAction();
    void theLastReleasesTimeIsKept();
    void everyReleaseSendsTheAction();
    void onlyTheLeftButtonSelects();
    void aDoubleClickSendsItsActionOnce();
    void theSecondPressOfADoubleClickSelectsNothing_data();
    void theSecondPressOfADoubleClickSelectsNothing();
    void aDoubleClickWithoutItsActionSendsOnlyTheChange();
    void keysMoveTheSelection_data();
    void keysMoveTheSelection();
    void anEmptyListHasNothingToSelect();
    void aPageIsTheRowsInSight();
    void f2SendsTheDoubleClick();
    void returnSendsTheChangeAndEscapeTheKeyLoss();
    void losingTheKeyboardIsLoggedAndSent();
    void aStoppedWatchSendsNothing();
    void aClickGivesTheListTheKeyboard();
    void theSelectedRowIsToldToAssistiveTechnology();
    void rowsStandForFunctions_data();
    void rowsStandForFunctions();
};

namespace {

using Lists = ListStage::Lists;
using Losses = Receiver<PopupContent>;

} // namespace

void tst_pnglistbox::rowsAreAddedAndCleared()
{
    pngListBox list(nullptr, {0, 0, 97, 140});
    QCOMPARE(list.getCount(), 0);
    QCOMPARE(list.getcursel(), -1);
    QCOMPARE(list.AddString(QStringLiteral("one")), 1);
    QCOMPARE(list.AddString(QStringLiteral("two")), 2);
    QCOMPARE(list.getCount(), 2);
    QCOMPARE(list.stringAt(1), QStringLiteral("two"));
    list.clearAll();
    QCOMPARE(list.getCount(), 0);
    QCOMPARE(list.stringAt(0), QString());
    QCOMPARE(list.AddString(QStringLiteral("again")), 1);
}

void tst_pnglistbox::settingTheSelectionSendsNothing()
{
    ListStage stage;
    stage.list.setcursel(2);
    QCOMPARE(stage.list.getcursel(), 2);
    stage.list.setcursel(-1);
    QCOMPARE(stage.list.getcursel(), -1);
    QCOMPARE(stage.changes.count(), std::size_t{0});
}

void tst_pnglistbox::aPressSelectsTheRowUnderThePointer_data()
{
    QTest::addColumn<int>("itemHeight");
    QTest::addColumn<int>("fromTop");
    QTest::addColumn<int>("row");
    const auto row = [](int itemHeight, int fromTop, int selected) {
        QTest::addRow("rows of %d, %d from the top", itemHeight, fromTop)
            << itemHeight << fromTop << selected;
    };
    row(20, 0, 0);
    row(20, 19, 0);
    row(20, 20, 1);
    row(20, 40, 2);
    row(20, 59, 2);
    row(20, 60, -1);
    row(20, 139, -1);
    row(33, 32, 0);
    row(33, 33, 1);
    row(33, 98, 2);
    row(33, 99, -1);
    row(0, 1, 1); // no row is lower than a point
}

void tst_pnglistbox::aPressSelectsTheRowUnderThePointer()
{
    QFETCH(int, itemHeight);
    QFETCH(int, fromTop);
    ListStage stage;
    stage.list.setItemHeight(itemHeight);
    pointer::press(stage.list, {20, fromTop});
    QTEST(stage.list.getcursel(), "row");
}

void tst_pnglistbox::aPressBelowTheLastRowKeepsTheSelectionAndStillSends()
{
    ListStage stage;
    stage.list.setcursel(1);
    stage.clickAt(65);
    QCOMPARE(stage.list.getcursel(), 1);
    QCOMPARE(stage.changes.senders, std::vector{&stage.list});
}

void tst_pnglistbox::theReleaseSendsTheAction()
{
    ListStage stage;
    pointer::press(stage.list, {20, 30});
    QCOMPARE(stage.list.getcursel(), 1);
    QCOMPARE(stage.changes.count(), std::size_t{0});
    pointer::release(stage.list, {20, 30});
    QCOMPARE(stage.changes.senders, std::vector{&stage.list});
}

void tst_pnglistbox::theLastReleasesTimeIsKept()
{
    ListStage stage;
    QCOMPARE(stage.list.releasedAt(), quint64{0});
    const QPoint at(20, 30);
    for (const quint64 time : {7000U, 7300U}) {
        QMouseEvent release(QEvent::MouseButtonRelease, at, stage.list.mapToGlobal(at),
                            Qt::LeftButton, Qt::NoButton, {});
        release.setTimestamp(time);
        QApplication::sendEvent(&stage.list, &release);
        QCOMPARE(stage.list.releasedAt(), time);
    }
}

void tst_pnglistbox::everyReleaseSendsTheAction()
{
    ListStage stage;
    stage.clickAt(30);
    stage.clickAt(30); // the same row again
    pointer::press(stage.list, {20, 10});
    pointer::move(stage.list, {20, 155});
    pointer::release(stage.list, {20, 160}); // outside
    QCOMPARE(stage.changes.count(), std::size_t{3});
    QCOMPARE(stage.list.getcursel(), 0);
}

void tst_pnglistbox::onlyTheLeftButtonSelects()
{
    ListStage stage;
    pointer::click(stage.list, {20, 30}, Qt::RightButton);
    pointer::click(stage.list, {20, 30}, Qt::MiddleButton);
    QCOMPARE(stage.list.getcursel(), -1);
    QCOMPARE(stage.changes.count(), std::size_t{0});
}

void tst_pnglistbox::aDoubleClickSendsItsActionOnce()
{
    ListStage stage;
    Lists doubleClicks;
    stage.list.setDBClickAction({&doubleClicks, &Lists::receive});
    stage.clickAt(10);
    QCOMPARE(doubleClicks.count(), std::size_t{0});
    pointer::doubleClick(stage.list, {20, 30});
    QCOMPARE(doubleClicks.senders, std::vector{&stage.list});
    QCOMPARE(stage.list.getcursel(), 1);
}

void tst_pnglistbox::theSecondPressOfADoubleClickSelectsNothing_data()
{
    QTest::addColumn<bool>("withAction");
    QTest::newRow("with action") << true;
    QTest::newRow("without action") << false;
}

void tst_pnglistbox::theSecondPressOfADoubleClickSelectsNothing()
{
    QFETCH(bool, withAction);
    ListStage stage;
    Lists doubleClicks;
    if (withAction)
        stage.list.setDBClickAction({&doubleClicks, &Lists::receive});
    stage.list.setcursel(0);
    QTest::mouseDClick(&stage.list, Qt::LeftButton, {}, {20, 30}); // the second press alone
    QCOMPARE(stage.list.getcursel(), 0);
    QCOMPARE(doubleClicks.count(), std::size_t{withAction ? 1U : 0U});
    QCOMPARE(stage.changes.count(), std::size_t{0});
    QTest::mouseRelease(&stage.list, Qt::LeftButton, {}, {20, 30});
}

void tst_pnglistbox::aDoubleClickWithoutItsActionSendsOnlyTheChange()
{
    ListStage stage;
    pointer::doubleClick(stage.list, {20, 50});
    pointer::release(stage.list, {20, 50});
    QCOMPARE(stage.list.getcursel(), 2);
    QCOMPARE(stage.changes.count(), std::size_t{2}); // one for each release
}

void tst_pnglistbox::keysMoveTheSelection_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("to");
    QTest::newRow("down") << 0 << Qt::Key_Down << 1;
    QTest::newRow("up") << 2 << Qt::Key_Up << 1;
    QTest::newRow("down at the end") << 2 << Qt::Key_Down << 2;
    QTest::newRow("up at the start") << 0 << Qt::Key_Up << 0;
    QTest::newRow("down from nothing") << -1 << Qt::Key_Down << 0;
    QTest::newRow("up from nothing") << -1 << Qt::Key_Up << 0;
    QTest::newRow("home") << 2 << Qt::Key_Home << 0;
    QTest::newRow("end") << 0 << Qt::Key_End << 2;
    QTest::newRow("a page down, beyond the end") << 0 << Qt::Key_PageDown << 2;
    QTest::newRow("a page up, beyond the start") << 2 << Qt::Key_PageUp << 0;
    QTest::newRow("any other key") << 1 << Qt::Key_A << 1;
}

void tst_pnglistbox::keysMoveTheSelection()
{
    QFETCH(int, from);
    QFETCH(Qt::Key, key);
    ListStage stage;
    stage.list.setcursel(from);
    stage.list.setFocus();
    stage.key(key);
    QTEST(stage.list.getcursel(), "to");
    QCOMPARE(stage.changes.count(), std::size_t{0});
}

void tst_pnglistbox::anEmptyListHasNothingToSelect()
{
    ListStage stage;
    stage.list.clearAll();
    stage.list.setFocus();
    stage.key(Qt::Key_Down);
    stage.clickAt(10);
    QCOMPARE(stage.list.getcursel(), -1);
}

void tst_pnglistbox::aPageIsTheRowsInSight()
{
    ListStage stage;
    for (int row = 3; row < 20; ++row)
        stage.list.AddString(QString::number(row));
    stage.list.setFocus();
    stage.list.setcursel(1);
    stage.key(Qt::Key_PageDown);
    QCOMPARE(stage.list.getcursel(), 8);
    stage.key(Qt::Key_PageDown);
    stage.key(Qt::Key_PageUp);
    QCOMPARE(stage.list.getcursel(), 8);
}

void tst_pnglistbox::f2SendsTheDoubleClick()
{
    ListStage stage;
    Receiver<pngListBox> doubleClicks;
    stage.list.setDBClickAction({&doubleClicks, &Receiver<pngListBox>::receive});
    stage.list.setFocus();
    stage.key(Qt::Key_F2);
    QCOMPARE(doubleClicks.senders.size(), 1);
    QCOMPARE(stage.changes.senders.size(), 0);
}

void tst_pnglistbox::returnSendsTheChangeAndEscapeTheKeyLoss()
{
    ListStage stage;
    Losses losses;
    stage.list.observeWindowKeyChangeStart({&losses, &Losses::receive});
    stage.list.setFocus();
    stage.key(Qt::Key_Return);
    stage.key(Qt::Key_Enter);
    QCOMPARE(stage.changes.count(), std::size_t{2});
    QCOMPARE(losses.count(), std::size_t{0});
    stage.key(Qt::Key_Escape);
    QCOMPARE(losses.senders, std::vector<PopupContent *>{&stage.list});
    QCOMPARE(stage.changes.count(), std::size_t{2});
}

void tst_pnglistbox::losingTheKeyboardIsLoggedAndSent()
{
    ListStage stage;
    Losses losses;
    stage.list.observeWindowKeyChangeStart({&losses, &Losses::receive});
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_COMPARE(losses.senders, std::vector<PopupContent *>{&stage.list});
    QCOMPARE(stage.log.lines, std::vector<std::string>{"windowKeyChange"});
}

void tst_pnglistbox::aStoppedWatchSendsNothing()
{
    ListStage stage;
    Losses losses;
    stage.list.observeWindowKeyChangeStart({&losses, &Losses::receive});
    stage.list.observeWindowKeyChangeStop();
    stage.list.setFocus();
    stage.key(Qt::Key_Escape);
    QCOMPARE(losses.count(), std::size_t{0});
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QCOMPARE(losses.count(), std::size_t{0});
    QVERIFY(stage.log.lines.empty());
}

void tst_pnglistbox::aClickGivesTheListTheKeyboard()
{
    ListStage stage;
    stage.window.setFocusPolicy(Qt::StrongFocus);
    stage.window.setFocus();
    stage.clickAt(30);
    QVERIFY(stage.list.hasFocus());
    stage.key(Qt::Key_Down);
    QCOMPARE(stage.list.getcursel(), 2);
}

void tst_pnglistbox::theSelectedRowIsToldToAssistiveTechnology()
{
    ListStage stage;
    stage.clickAt(30);
    QCOMPARE(stage.list.accessibleDescription(), QStringLiteral("two"));
    stage.list.setcursel(0);
    QCOMPARE(stage.list.accessibleDescription(), QStringLiteral("one"));
    stage.list.setcursel(-1);
    QCOMPARE(stage.list.accessibleDescription(), QString());
}

void tst_pnglistbox::rowsStandForFunctions_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<int>("row");
    QTest::addColumn<FunctionCode>("code");
    const auto row = [](int tag, int listRow, FunctionCode code) {
        QTest::addRow("%d, row %d", tag, listRow) << tag << listRow << code;
    };
    row(4096, 0, 16);
    row(4096, 7, 23);
    row(4097, 0, 32);
    row(4097, 11, 43);
    row(4098, 0, 256);
    row(4098, 2, 258);
    row(4098, 49, 305);
    for (int tag : {0, 4095, 4099, 8192, -1})
        row(tag, 3, 0);
}

void tst_pnglistbox::rowsStandForFunctions()
{
    QFETCH(int, tag);
    QFETCH(int, row);
    pngListBox list(nullptr);
    list.setTag(tag);
    QTEST(list.getfunctionid(row), "code");
}

KYR_GUI_TEST(tst_pnglistbox)
#include "tst_pnglistbox.moc"
