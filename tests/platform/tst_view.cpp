#include "platform/view.h"
#include "support/suite.h"

/// Views in their places.
class tst_view : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aChildKeepsItsDistanceFromTheLowerEdge();
    void aChildWindowStaysWhereItIs();
};

void tst_view::aChildKeepsItsDistanceFromTheLowerEdge()
{
    View parent;
    parent.resize(200, 100);
    View child(&parent);
    child.setFrame({10, 20, 30, 40});
    QCOMPARE(child.geometry(), QRect(10, 40, 30, 40));
    parent.show();
    parent.resize(240, 150);
    QCOMPARE(child.geometry(), QRect(10, 90, 30, 40));
    QVERIFY(child.frame() == (UpRect{10, 20, 30, 40}));
}

void tst_view::aChildWindowStaysWhereItIs()
{
    View parent;
    parent.resize(200, 100);
    View window(&parent, Qt::Tool | Qt::FramelessWindowHint);
    window.setFrame({300, 200, 50, 40});
    parent.show();
    window.show();
    window.move(70, 80); // by the user: the view itself does not learn of it
    parent.resize(240, 150);
    QCOMPARE(window.geometry(), QRect(70, 80, 50, 40));
}

KYR_GUI_TEST(tst_view)
#include "tst_view.moc"
