#include "controls/scrollbars.h"
#include "controls/skinscrollarea.h"
#include "displaystage.h"
#include "macro/textcells.h"
#include "support/pictures.h"
#include "support/screen.h"
#include "support/suite.h"

#include <QtWidgets/QScrollBar>

using keystroke::kB;

/// A recording view that gets higher in a scroll area.
class tst_macrodisplayscroll : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aShownViewGrowsByItself();
    void theNewestEventComesIntoSight();
    void aKeyThatComesBeforeTheScrollComesIntoSightToo();
    void aClickShowsTheBeginning();
    void aKeyThatShowsAsNothingDoesNotScroll();
    void aLoadedListShowsItsBeginning();
    void aDrawingDoesNotScroll();
    void aScrolledViewLooksAsDrawnWhole();
};

namespace {

constexpr int kLine = 15;

/// Lines enough to scroll far.
const Events kLongList(60, {121, kKeyPress, 20});

/// A view in the scroll area of a window that has the keyboard.
struct ScrollStage
{
    ScrollStage()
    {
        area.setFrame({10, 40, 230, 140});
        display->setMaxKeymapEvent(kMostMacroEvents);
        display->enableScroll(true);
        area.setWidget(display);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not get the keyboard");
    }

    /// Until it has grown, was drawn so, and was scrolled.
    void settle() const
    {
        const auto lines = static_cast<int>(text().size()) / 20 + 1;
        QTRY_VERIFY(display->height() >= lines * kLine);
        const std::size_t drawings = log.lines.size();
        display->update();
        QTRY_VERIFY(log.lines.size() > drawings);
        QCoreApplication::processEvents();
    }
    QString text() const { return eventText(display->getKeymapInfo().first(display->count()), {}); }
    std::vector<TextCell> cells() const { return layOutCells(text(), display->height(), kLine); }
    bool isInSight(const TextCell &cell) const
    {
        const QRect place = UpHost(display->height()).down(cell.place);
        return area.viewport()->rect().contains(place.translated(display->pos()));
    }
    bool isFirstInSight() const { return !cells().empty() && isInSight(cells().front()); }
    bool isNewestInSight() const { return !cells().empty() && isInSight(cells().back()); }
    int scrolled() const { return area.verticalScrollBar()->value(); }

    LogCapture log;
    custumwindow window{{100, 100, 300, 200}, nullptr};
    SkinScrollArea area{&window};
    MacroDisplay *const display = new MacroDisplay(&area, {0, 0, 230, 140});
};

/// Taps keys between the next drawing of a view and what that drawing leaves
/// for later.
class TapAfterDrawing : public QObject
{
public:
    explicit TapAfterDrawing(QWidget &view) { view.installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        watched->removeEventFilter(this);
        // Comes before what the drawing itself puts off.
        QMetaObject::invokeMethod(
            watched, [] { keystroke::tapMany(30); }, Qt::QueuedConnection);
        return false;
    }
};

} // namespace

void tst_macrodisplayscroll::aShownViewGrowsByItself()
{
    ScrollStage stage;
    stage.display->setKeymapInfo(Events(300, {0, 3, 0}));
    QTRY_COMPARE(stage.display->height(), 245);
    QCoreApplication::processEvents();
    QCOMPARE(stage.display->height(), 245);
}

void tst_macrodisplayscroll::theNewestEventComesIntoSight()
{
    ScrollStage stage;
    pointer::click(*stage.display, {20, 20});
    for (int key = 0; key < 60; ++key) {
        keystroke::tap(keystroke::kTab);
        stage.settle();
        QVERIFY(stage.isNewestInSight());
    }
    QVERIFY(stage.scrolled() > 0);
    stage.area.verticalScrollBar()->setValue(0);
    QVERIFY(!stage.isNewestInSight());
    keystroke::press(kB);
    stage.settle();
    QVERIFY(stage.isNewestInSight());
    stage.area.verticalScrollBar()->setValue(stage.area.verticalScrollBar()->maximum());
    keystroke::release(kB);
    stage.settle();
    QVERIFY(stage.isNewestInSight());
}

void tst_macrodisplayscroll::aKeyThatComesBeforeTheScrollComesIntoSightToo()
{
    ScrollStage stage;
    stage.display->setKeymapInfo(kLongList);
    stage.settle(); // high enough for what follows
    pointer::click(*stage.display, {20, 20});
    keystroke::tapMany(60);
    stage.settle();
    const TapAfterDrawing tap(*stage.display);
    keystroke::tapMany(1);
    QTRY_COMPARE(stage.display->count(), 182U);
    stage.settle();
    QVERIFY(stage.isNewestInSight());
}

void tst_macrodisplayscroll::aClickShowsTheBeginning()
{
    ScrollStage stage;
    stage.display->setKeymapInfo(kLongList);
    stage.settle();
    stage.area.verticalScrollBar()->setValue(500);
    QCOMPARE(stage.scrolled(), 500);
    pointer::click(*stage.display, {20, 520});
    QCOMPARE(stage.display->count(), 0U);
    QCOMPARE(stage.scrolled(), 0);
    keystroke::press(kB);
    stage.settle();
    QCOMPARE(stage.scrolled(), 0);
    QVERIFY(stage.isFirstInSight());
}

void tst_macrodisplayscroll::aKeyThatShowsAsNothingDoesNotScroll()
{
    ScrollStage stage;
    stage.display->setKeymapInfo(kLongList);
    stage.settle();
    stage.display->setDisplayUpAndDown(false);
    pointer::click(*stage.display, {20, 20});
    keystroke::tap(keystroke::kF12);
    stage.settle();
    QCOMPARE(stage.scrolled(), 0);
}

void tst_macrodisplayscroll::aLoadedListShowsItsBeginning()
{
    ScrollStage stage;
    stage.display->setKeymapInfo(kLongList);
    stage.settle();
    QCOMPARE(stage.scrolled(), 0);
    QVERIFY(stage.isFirstInSight());
    QVERIFY(!stage.isNewestInSight());
    // Also when another was scrolled.
    stage.area.verticalScrollBar()->setValue(200);
    stage.display->setKeymapInfo(kLongList);
    QCOMPARE(stage.scrolled(), 0);
    stage.settle();
    QCOMPARE(stage.scrolled(), 0);
    // Also when keys came before it, of which the last was not shown any more.
    pointer::click(*stage.display, {20, 20});
    keystroke::tapMany(100);
    stage.display->setKeymapInfo(kLongList);
    stage.settle();
    QCOMPARE(stage.scrolled(), 0);
}

void tst_macrodisplayscroll::aDrawingDoesNotScroll()
{
    ScrollStage stage;
    pointer::click(*stage.display, {20, 20});
    keystroke::tapMany(100);
    stage.settle();
    QVERIFY(stage.isNewestInSight());
    stage.area.verticalScrollBar()->setValue(40);
    stage.display->update();
    QCoreApplication::processEvents();
    QCOMPARE(stage.scrolled(), 40);
    stage.display->enablewindow(false);
    QCoreApplication::processEvents();
    QCOMPARE(stage.scrolled(), 40);
}

void tst_macrodisplayscroll::aScrolledViewLooksAsDrawnWhole()
{
    ScrollStage stage;
    stage.display->setKeymapInfo(kLongList);
    stage.settle();
    const QWidget &viewport = *stage.area.viewport();
    const QRect place(viewport.mapTo(&stage.window, QPoint()),
                      viewport.size() - QSize(kScrollBarWidth, 0));
    for (int value = 0; value < 40; value += 3) {
        stage.area.verticalScrollBar()->setValue(value);
        const QRect seen(QPoint(0, value), place.size());
        QCOMPARE(onScreen(stage.window).copy(place), shown(*stage.display).copy(seen));
    }
}

KYR_GUI_TEST(tst_macrodisplayscroll)
#include "tst_macrodisplayscroll.moc"
