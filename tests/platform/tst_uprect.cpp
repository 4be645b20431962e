#include "platform/view.h"
#include "support/suite.h"

#include <QtGui/QScreen>

/// Upward geometry and the views that are placed by it.
class tst_uprect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void geometryIsTurnedOverAndBack_data();
    void geometryIsTurnedOverAndBack();
    void pointsAreTurnedOverAndBack();
    void aViewStandsWhereItsFrameSays();
    void childrenKeepTheirDistanceFromTheLowerEdge();
    void grandchildrenAreKeptInPlaceToo();
    void aWindowStandsOnTheScreenWhereItsFrameSays();
    void aPointOfAViewIsFoundOnTheScreen();
};

void tst_uprect::geometryIsTurnedOverAndBack_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<UpRect>("up");
    QTest::addColumn<QRect>("down");
    const auto row = [](const char *name, int height, UpRect up, QRect down) {
        QTest::newRow(name) << height << up << down;
    };
    row("at the lower left", 640, {0, 0, 10, 20}, {0, 620, 10, 20});
    row("at the top", 640, {5, 620, 10, 20}, {5, 0, 10, 20});
    row("the whole", 640, {0, 0, 654, 640}, {0, 0, 654, 640});
    row("a button", 640, {234, 443, 97, 27}, {234, 170, 97, 27});
    row("outside", 100, {-5, 120, 10, 20}, {-5, -40, 10, 20});
    row("below", 100, {0, -20, 10, 20}, {0, 100, 10, 20});
    row("empty", 100, {3, 4, 0, 0}, {3, 96, 0, 0});
}

void tst_uprect::geometryIsTurnedOverAndBack()
{
    QFETCH(int, height);
    QFETCH(UpRect, up);
    QFETCH(QRect, down);
    QCOMPARE(UpHost(height).down(up), down);
    QVERIFY(UpHost(height).up(down) == up);
}

void tst_uprect::pointsAreTurnedOverAndBack()
{
    QCOMPARE(UpHost(100).down(UpPoint{7, 30}), QPoint(7, 70));
    QVERIFY(UpHost(100).up(QPoint(7, 70)) == (UpPoint{7, 30}));
    QVERIFY((UpRect{1, 2, 3, 4}).origin() == (UpPoint{1, 2}));
}

void tst_uprect::aViewStandsWhereItsFrameSays()
{
    View host;
    host.resize(200, 100);
    View child(&host);
    child.setFrame({10, 20, 30, 40});
    QCOMPARE(child.geometry(), QRect(10, 40, 30, 40));
    QVERIFY(child.frame() == (UpRect{10, 20, 30, 40}));
}

void tst_uprect::childrenKeepTheirDistanceFromTheLowerEdge()
{
    View host;
    host.resize(200, 100);
    View child(&host);
    child.setFrame({10, 20, 30, 40});
    QWidget plain(&host);
    plain.setGeometry(1, 2, 3, 4);
    host.show();
    host.resize(200, 250);
    QTRY_COMPARE(child.geometry(), QRect(10, 190, 30, 40));
    QCOMPARE(plain.geometry(), QRect(1, 2, 3, 4));
    host.resize(200, 90);
    QTRY_COMPARE(child.geometry(), QRect(10, 30, 30, 40));
    QVERIFY(child.frame() == (UpRect{10, 20, 30, 40}));
}

void tst_uprect::grandchildrenAreKeptInPlaceToo()
{
    View host;
    host.resize(200, 100);
    View child(&host);
    child.setFrame({0, 0, 200, 100});
    View grandchild(&child);
    grandchild.setFrame({10, 20, 30, 40});
    host.show();
    child.setFrame({0, 0, 200, 60});
    QTRY_COMPARE(grandchild.geometry(), QRect(10, 0, 30, 40));
}

void tst_uprect::aWindowStandsOnTheScreenWhereItsFrameSays()
{
    const int screenHeight = QGuiApplication::primaryScreen()->geometry().height();
    View window(nullptr, Qt::FramelessWindowHint);
    window.setFrame({100, 50, 200, 80});
    QCOMPARE(window.geometry(), QRect(100, screenHeight - 130, 200, 80));
    window.move(10, 20);
    QVERIFY(window.frame() == (UpRect{10, screenHeight - 100, 200, 80}));
}

void tst_uprect::aPointOfAViewIsFoundOnTheScreen()
{
    View window(nullptr, Qt::FramelessWindowHint);
    window.setFrame({100, 50, 200, 80});
    View child(&window);
    child.setFrame({10, 20, 30, 40});
    QVERIFY(onScreen(child, {3, 4}) == (UpPoint{113, 74}));
    QVERIFY(onScreen(window, {0, 0}) == (UpPoint{100, 50}));
}

KYR_GUI_TEST(tst_uprect)
#include "tst_uprect.moc"
