#include "controls/HoverButton.h"
#include "controls/skinscrollarea.h"
#include "support/keyboard.h"
#include "support/pointer.h"
#include "support/suite.h"

#include <QtWidgets/QScrollBar>

/// The area that scrolls up and down with the skin's bar.
class tst_skinscrollarea : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itStandsWhereItsFrameSays();
    void itHasNoBorder();
    void theBarShowsWhenThereIsSomethingToScroll();
    void itNeverScrollsSideways();
    void theTabKeyPassesThroughItWithoutScrolling_data();
    void theTabKeyPassesThroughItWithoutScrolling();
    void itTakesNoKeyboardItself();
    void theWheelScrollsOverTheContent();
};

namespace {

/// An area of 100 x 80 points with two buttons far apart in it, between two others.
struct AreaStage
{
    explicit AreaStage(QSize content = {100, 400})
    {
        inside->resize(content);
        first = new HoverButton(inside, {10, content.height() - 30, 40, 20});
        second = new HoverButton(inside, {10, 10, 40, 20});
        area.setFrame({20, 60, 100, 80});
        area.setWidget(inside);
        QWidget::setTabOrder(&before, first);
        QWidget::setTabOrder(first, second);
        QWidget::setTabOrder(second, &after);
        window.resize(200, 200);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }
    QScrollBar &bar() const { return *area.verticalScrollBar(); }

    View window;
    HoverButton before{&window, {20, 170, 40, 20}};
    SkinScrollArea area{&window};
    View *inside = new View;
    HoverButton *first = nullptr;
    HoverButton *second = nullptr;
    HoverButton after{&window, {20, 10, 40, 20}};
};

} // namespace

void tst_skinscrollarea::itStandsWhereItsFrameSays()
{
    const AreaStage stage;
    QCOMPARE(stage.area.geometry(), QRect(20, 60, 100, 80));
    QVERIFY((stage.area.frame() == UpRect{20, 60, 100, 80}));
}

void tst_skinscrollarea::itHasNoBorder()
{
    const AreaStage stage;
    QCOMPARE(stage.area.viewport()->geometry(), QRect(0, 0, 100, 80));
}

void tst_skinscrollarea::theBarShowsWhenThereIsSomethingToScroll()
{
    const AreaStage stage({100, 80});
    QVERIFY(!stage.bar().isVisible());
    stage.inside->resize(100, 81);
    QTRY_VERIFY(stage.bar().isVisible());
    QCOMPARE(stage.bar().maximum(), 1);
    QCOMPARE(stage.bar().width(), 7);
    stage.inside->resize(100, 80);
    QTRY_VERIFY(!stage.bar().isVisible());
}

void tst_skinscrollarea::itNeverScrollsSideways()
{
    const AreaStage stage({300, 80});
    QCoreApplication::processEvents();
    QVERIFY(!stage.area.horizontalScrollBar()->isVisible());
    QCOMPARE(stage.area.viewport()->height(), 80);
}

void tst_skinscrollarea::theTabKeyPassesThroughItWithoutScrolling_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Backtab") << Qt::Key_Backtab;
}

void tst_skinscrollarea::theTabKeyPassesThroughItWithoutScrolling()
{
    QFETCH(Qt::Key, key);
    AreaStage stage;
    const bool isForward = key == Qt::Key_Tab;
    (isForward ? stage.before : stage.after).setFocus();
    keyboard::press(key);
    QVERIFY((isForward ? stage.first : stage.second)->hasFocus());
    keyboard::press(key);
    QVERIFY((isForward ? stage.second : stage.first)->hasFocus());
    QCOMPARE(stage.bar().value(), 0);
    keyboard::press(key);
    QVERIFY((isForward ? stage.after : stage.before).hasFocus());
}

void tst_skinscrollarea::itTakesNoKeyboardItself()
{
    AreaStage stage;
    stage.before.setFocus();
    pointer::click(stage.area);
    QVERIFY(stage.before.hasFocus());
}

void tst_skinscrollarea::theWheelScrollsOverTheContent()
{
    const AreaStage stage;
    pointer::turnWheel(stage.area, -120); // the content lies there
    QVERIFY(stage.bar().value() > 0);
    pointer::turnWheel(stage.area, +120);
    QCOMPARE(stage.bar().value(), 0);
}

KYR_GUI_TEST(tst_skinscrollarea)
#include "tst_skinscrollarea.moc"
