#include "controls/collapsiblepanel.h"
#include "panels/BottomView.h"
#include "panels/LeftView.h"
#include "panels/RightView.h"
#include "support/suite.h"

/// The views of the bars as they wake up, before their windows are shown.
class tst_barsawake : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theViewsCloseTheirBars();
    void thePanelsBeginCollapsedWithoutWidth();
};

namespace {

/// The four windows with a controller, and the views, not awake yet.
struct AwakeStage
{
    AwakeStage()
    {
        leftView.setWindowControll(&controll);
        rightView.setWindowControll(&controll);
        bottomView.setWindowControll(&controll);
    }

    custumwindow main{{200, 120, 654, 640}, nullptr};
    custumwindow left{{0, 0, 16, 452}, &main};
    custumwindow right{{0, 0, 16, 461}, &main};
    custumwindow bottom{{0, 0, 466, 16}, &main};
    windowcontroll controll{main, left, right, bottom};
    LeftView leftView{&left};
    RightView rightView{&right};
    BottomView bottomView{&bottom};
};

/// In the order of their making. The toolkit's search does not tell them from other widgets.
std::vector<CollapsiblePanel *> panelsOf(const RightView &view)
{
    std::vector<CollapsiblePanel *> panels;
    for (QObject *child : view.children()) {
        if (auto *const panel = dynamic_cast<CollapsiblePanel *>(child))
            panels.push_back(panel);
    }
    return panels;
}

} // namespace

void tst_barsawake::theViewsCloseTheirBars()
{
    AwakeStage stage;
    stage.controll.OpenLeftBar();
    stage.controll.OpenRightBar();
    stage.controll.OpenBottomBar();
    stage.leftView.awakeFromNib();
    QVERIFY(stage.controll.IsMinLeftbar());
    QVERIFY(!stage.controll.IsMinRightBar() && !stage.controll.IsMinBottomBar());
    stage.rightView.awakeFromNib();
    QVERIFY(stage.controll.IsMinRightBar());
    QVERIFY(!stage.controll.IsMinBottomBar());
    stage.bottomView.awakeFromNib();
    QVERIFY(stage.controll.IsMinBottomBar());
}

void tst_barsawake::thePanelsBeginCollapsedWithoutWidth()
{
    AwakeStage stage;
    stage.rightView.awakeFromNib();
    const std::vector<CollapsiblePanel *> panels = panelsOf(stage.rightView);
    QCOMPARE(panels.size(), std::size_t{4});
    constexpr std::pair<int, int> kStart[] = {
        {0x2000, 376}, {0x2001, 346}, {0x2002, 316}, {0x2003, 286}};
    for (std::size_t i = 0; i < std::size(kStart); ++i) {
        const CollapsiblePanel &panel = *panels[i];
        QCOMPARE(panel.tag(), kStart[i].first);
        QVERIFY(panel.frame() == (UpRect{0, kStart[i].second, 0, 30}));
        QVERIFY(panel.isHidden() && !panel.GetExpanded());
    }
}

KYR_GUI_TEST(tst_barsawake)
#include "tst_barsawake.moc"
