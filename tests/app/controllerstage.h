#pragma once

#include "app/fakebar.h"
#include "support/animatedstyle.h"
#include "support/animationclock.h"

/// The views' side of the controller: what was asked of each, in order, in one list.
struct FakeMain : MainContent
{
    explicit FakeMain(QStringList &list) : calls(list) {}
    void initButtonSetting() override { calls << QStringLiteral("main initButtonSetting"); }
    void setApplyButtonStatus(bool changed) override
    {
        calls << QStringLiteral("main setApplyButtonStatus %1").arg(changed);
    }
    void changeCurrentButtonFunction(FunctionCode code) override
    {
        calls << QStringLiteral("main changeCurrentButtonFunction %1").arg(code);
    }
    void macrosChanged() override { calls << QStringLiteral("main macrosChanged"); }
    void redraw() override { calls << QStringLiteral("main redraw"); }

    QStringList &calls;
};

/// Its entries say how wide the bar was, too.
struct FakePanels : SidePanels
{
    FakePanels(QStringList &list, const QWidget &bar) : calls(list), window(bar) {}
    void ResizeComponent() override { ++resizes; }
    void hideMiniBar() override { say(QStringLiteral("hideMiniBar")); }
    void openMiniBar() override { say(QStringLiteral("openMiniBar")); }
    void closeMiniBar() override { say(QStringLiteral("closeMiniBar")); }
    void refreshMacroList() override { say(QStringLiteral("refreshMacroList")); }
    void setAllWindowclose() override { say(QStringLiteral("setAllWindowclose")); }
    void setTreeSel(std::int32_t code) override { say(QStringLiteral("setTreeSel %1").arg(code)); }
    void setDPISel(std::int32_t row) override { say(QStringLiteral("setDPISel %1").arg(row)); }
    void setProfileSel(std::int32_t row) override
    {
        say(QStringLiteral("setProfileSel %1").arg(row));
    }
    void setMacroSel(std::int32_t row) override { say(QStringLiteral("setMacroSel %1").arg(row)); }
    void say(const QString &call) { calls << call + QStringLiteral(" at %1").arg(window.width()); }

    QStringList &calls;
    const QWidget &window;
    int resizes = 0;
};

/// The four windows, shown, with a controller and what it relays between. Slides take 200 ms of the
/// clock's time.
struct ControllerStage
{
    static constexpr int kDuration = 200;

    ControllerStage()
    {
        animateFor(kDuration);
        controll.setMainContent(&mainContent);
        controll.setLeftContent(&leftContent);
        controll.setRightContent(&rightContent);
        controll.setBottomContent(&bottomContent);
        main.show();
        controll.awakeFromNib();
    }

    void arrive() { clock.pass(kDuration); }
    void toggleRightBar()
    {
        controll.toggleRightBar();
        arrive();
    }
    void passHalf() { clock.pass(kDuration / 2); }
    /// What was asked since the last call of this.
    QStringList asked() { return std::exchange(calls, {}); }

    AnimationClock clock;
    QStringList calls;
    custumwindow main{{200, 120, 654, 640}, nullptr};
    custumwindow left{{0, 0, 16, 452}, &main};
    custumwindow right{{0, 0, 16, 461}, &main};
    custumwindow bottom{{0, 0, 466, 16}, &main};
    FakeMain mainContent{calls};
    FakeBar leftContent{calls, "left"};
    FakePanels rightContent{calls, right};
    FakeBar bottomContent{calls, "bottom"};
    windowcontroll controll{main, left, right, bottom};
};
